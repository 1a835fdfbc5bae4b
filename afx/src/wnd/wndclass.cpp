#include "wndclass.h"

#include <afxwin.h>

#include <map>
#include <mutex>
#include <set>
#include <string>

namespace
{
/** The window classes that the framework registered, by module; names stay valid as long as they stand here. */
class ClassRegistry
{
  public:
    static ClassRegistry& Get()
    {
        static ClassRegistry registry;
        return registry;
    }

    LPCTSTR Add(HINSTANCE hInstance, const std::wstring& name)
    {
        const std::lock_guard lock(m_mutex);
        return m_names[hInstance].insert(name).first->c_str();
    }

    void Unregister(HINSTANCE hInstance)
    {
        const std::lock_guard lock(m_mutex);
        for (const std::wstring& name : m_names[hInstance]) {
            ::UnregisterClass(name.c_str(), hInstance);
        }
        m_names.erase(hInstance);
    }

  private:
    std::mutex m_mutex;
    std::map<HINSTANCE, std::set<std::wstring>> m_names;
};

std::wstring ClassName(HINSTANCE hInstance, UINT nStyle, HCURSOR hCursor, HBRUSH hBrush, HICON hIcon)
{
    wchar_t szName[128];
    ::wsprintfW(szName, L"Afx:%p:%x:%p:%p:%p", hInstance, nStyle, hCursor, hBrush, hIcon);
    return szName;
}
} // namespace

LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon)
{
    const HINSTANCE hInstance = AfxGetInstanceHandle();
    const std::wstring name = ClassName(hInstance, nClassStyle, hCursor, hbrBackground, hIcon);
    WNDCLASS wndClass = {};
    wndClass.style = nClassStyle;
    wndClass.lpfnWndProc = ::DefWindowProc;
    wndClass.hInstance = hInstance;
    wndClass.hIcon = hIcon;
    wndClass.hCursor = hCursor;
    wndClass.hbrBackground = hbrBackground;
    wndClass.lpszClassName = name.c_str();
    if (!AfxRegisterClass(&wndClass)) {
        AfxThrowResourceException();
    }
    return ClassRegistry::Get().Add(hInstance, name);
}

BOOL AfxRegisterClass(WNDCLASS* lpWndClass)
{
    if (!lpWndClass || !lpWndClass->lpszClassName) {
        return FALSE;
    }
    WNDCLASS existing;
    if (::GetClassInfo(lpWndClass->hInstance, lpWndClass->lpszClassName, &existing)) {
        return TRUE;
    }
    if (!::RegisterClass(lpWndClass)) {
        return ::GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
    }
    if (!IS_INTRESOURCE(lpWndClass->lpszClassName)) {
        ClassRegistry::Get().Add(lpWndClass->hInstance, lpWndClass->lpszClassName);
    }
    return TRUE;
}

void AfxUnregisterWndClasses(HINSTANCE hInstance)
{
    ClassRegistry::Get().Unregister(hInstance);
}

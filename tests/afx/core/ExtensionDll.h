#pragma once

#include <afx.h>

#include <utility>

/** One of the test extension DLLs, loaded while the object lives. */
class ExtensionDll
{
  public:
    explicit ExtensionDll(int n) : m_hModule(LoadLibraryW(n == 1 ? L"afx_core_ext1.dll" : L"afx_core_ext2.dll")) {}
    ~ExtensionDll() { Free(); }
    ExtensionDll(const ExtensionDll&) = delete;
    ExtensionDll& operator=(const ExtensionDll&) = delete;

    void Free()
    {
        if (m_hModule) {
            FreeLibrary(std::exchange(m_hModule, nullptr));
        }
    }
    HMODULE Handle() const { return m_hModule; }

  private:
    HMODULE m_hModule;
};

/** A string of the search chain. */
inline CString Loaded(UINT nID)
{
    CString str;
    return str.LoadString(nID) ? str : CString(L"-");
}

/** The module that has a resource. */
inline HINSTANCE FindData(UINT nID)
{
    return AfxFindResourceHandle(MAKEINTRESOURCE(nID), RT_RCDATA);
}

#include <common/Owner.h>

#include <afxole.h>
#include <afxwin.h>

#include <memory>
#include <vector>

/* The profile: values that a program keeps from run to run, in the registry or in a file of the Windows folder. */

namespace
{

constexpr int kMaxFileText = 4096; // characters of one value of a profile's file

CString WithExtension(LPCTSTR lpszName, LPCTSTR lpszExtension)
{
    return CString(lpszName) + lpszExtension;
}

own::RegistryKey CreateKey(HKEY hParent, LPCTSTR lpszName)
{
    own::RegistryKey key;
    if (::RegCreateKeyEx(hParent, lpszName, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_READ | KEY_WRITE, nullptr,
                         key.Receive(), nullptr) != ERROR_SUCCESS) {
        key.Release();
    }
    return key;
}

/** The bytes of a value of the given type; empty when it is not there or of another type. */
std::vector<BYTE> ReadValue(HKEY hKey, LPCTSTR lpszEntry, DWORD dwWanted)
{
    DWORD dwType = REG_NONE;
    DWORD dwBytes = 0;
    if (::RegQueryValueEx(hKey, lpszEntry, nullptr, &dwType, nullptr, &dwBytes) != ERROR_SUCCESS ||
        dwType != dwWanted) {
        return {};
    }
    std::vector<BYTE> data(dwBytes);
    if (::RegQueryValueEx(hKey, lpszEntry, nullptr, &dwType, data.data(), &dwBytes) != ERROR_SUCCESS ||
        dwType != dwWanted) {
        return {};
    }
    data.resize(dwBytes);
    return data;
}

BOOL WriteValue(HKEY hKey, LPCTSTR lpszEntry, DWORD dwType, const void* pData, DWORD dwBytes)
{
    return ::RegSetValueEx(hKey, lpszEntry, 0, dwType, static_cast<const BYTE*>(pData), dwBytes) == ERROR_SUCCESS;
}

/** Bytes stand in a file as letters: two for a byte, the lower half first. */
constexpr TCHAR kFirstLetter = _T('A');

CString ToLetters(const BYTE* pData, UINT nBytes)
{
    CString strText;
    for (UINT i = 0; i < nBytes; ++i) {
        strText += static_cast<TCHAR>(kFirstLetter + (pData[i] & 0x0F));
        strText += static_cast<TCHAR>(kFirstLetter + (pData[i] >> 4));
    }
    return strText;
}

bool IsLetterOfByte(TCHAR ch)
{
    return ch >= kFirstLetter && ch < kFirstLetter + 16;
}

std::vector<BYTE> FromLetters(const CString& strText)
{
    std::vector<BYTE> data;
    for (int i = 0; i + 1 < strText.GetLength(); i += 2) {
        if (!IsLetterOfByte(strText[i]) || !IsLetterOfByte(strText[i + 1])) {
            return {};
        }
        data.push_back(static_cast<BYTE>((strText[i] - kFirstLetter) | ((strText[i + 1] - kFirstLetter) << 4)));
    }
    return data;
}

} // namespace

void CWinApp::NameProfile()
{
    if (!m_pszProfileName) {
        m_strProfileName = m_pszRegistryKey ? CString(m_pszAppName) : WithExtension(m_pszExeName, _T(".INI"));
        m_pszProfileName = m_strProfileName;
    }
    if (!m_pszHelpFilePath) {
        TCHAR szPath[MAX_PATH] = {};
        ::GetModuleFileName(m_hInstance, szPath, MAX_PATH);
        const CString strPath(szPath);
        const int nDot = strPath.ReverseFind(_T('.'));
        m_strHelpFilePath = WithExtension(nDot > 0 ? strPath.Left(nDot) : strPath, _T(".HLP"));
        m_pszHelpFilePath = m_strHelpFilePath;
    }
}

void CWinApp::SetRegistryKey(LPCTSTR lpszRegistryKey)
{
    ASSERT(lpszRegistryKey);
    ASSERT(!m_pszRegistryKey);
    m_strRegistryKey = lpszRegistryKey;
    m_pszRegistryKey = m_strRegistryKey;
    m_strProfileName = m_pszAppName;
    m_pszProfileName = m_strProfileName;
}

void CWinApp::SetRegistryKey(UINT nIDRegistryKey)
{
    CString strKey;
    VERIFY(strKey.LoadString(nIDRegistryKey));
    SetRegistryKey(strKey);
}

HKEY CWinApp::GetAppRegistryKey()
{
    if (!m_pszRegistryKey || !m_pszProfileName) {
        return nullptr;
    }
    const CString strPath = CString(_T("Software\\")) + m_pszRegistryKey + _T("\\") + m_pszProfileName;
    return CreateKey(HKEY_CURRENT_USER, strPath).Release();
}

HKEY CWinApp::GetSectionKey(LPCTSTR lpszSection)
{
    ASSERT(lpszSection);
    const own::RegistryKey app(GetAppRegistryKey());
    return app ? CreateKey(app.Get(), lpszSection).Release() : nullptr;
}

UINT CWinApp::GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault)
{
    if (!m_pszRegistryKey) {
        return ::GetPrivateProfileInt(lpszSection, lpszEntry, nDefault, m_pszProfileName);
    }
    const own::RegistryKey key(GetSectionKey(lpszSection));
    const std::vector<BYTE> data = key ? ReadValue(key.Get(), lpszEntry, REG_DWORD) : std::vector<BYTE>();
    DWORD dwValue = 0;
    if (data.size() != sizeof(dwValue)) {
        return nDefault;
    }
    memcpy(&dwValue, data.data(), sizeof(dwValue));
    return dwValue;
}

BOOL CWinApp::WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue)
{
    if (!m_pszRegistryKey) {
        CString strValue;
        strValue.Format(_T("%d"), nValue);
        return ::WritePrivateProfileString(lpszSection, lpszEntry, strValue, m_pszProfileName);
    }
    const own::RegistryKey key(GetSectionKey(lpszSection));
    return key && WriteValue(key.Get(), lpszEntry, REG_DWORD, &nValue, sizeof(nValue));
}

CString CWinApp::GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault)
{
    const LPCTSTR lpszOtherwise = lpszDefault ? lpszDefault : _T("");
    if (!m_pszRegistryKey) {
        CString strValue;
        ::GetPrivateProfileString(lpszSection, lpszEntry, lpszOtherwise, strValue.GetBuffer(kMaxFileText), kMaxFileText,
                                  m_pszProfileName);
        strValue.ReleaseBuffer();
        return strValue;
    }
    const own::RegistryKey key(GetSectionKey(lpszSection));
    const std::vector<BYTE> data = key ? ReadValue(key.Get(), lpszEntry, REG_SZ) : std::vector<BYTE>();
    if (data.empty()) {
        return lpszOtherwise;
    }
    // The terminator is there only when whoever wrote the value put it there.
    const auto* pText = reinterpret_cast<const TCHAR*>(data.data());
    const size_t nLength = data.size() / sizeof(TCHAR);
    return CString(pText, static_cast<int>(wcsnlen(pText, nLength)));
}

BOOL CWinApp::WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue)
{
    if (!m_pszRegistryKey) {
        return ::WritePrivateProfileString(lpszSection, lpszEntry, lpszValue, m_pszProfileName);
    }
    if (!lpszEntry) {
        const own::RegistryKey app(GetAppRegistryKey());
        const LSTATUS status = app ? ::RegDeleteKey(app.Get(), lpszSection) : ERROR_FILE_NOT_FOUND;
        return status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND;
    }
    const own::RegistryKey key(GetSectionKey(lpszSection));
    if (!key) {
        return FALSE;
    }
    if (!lpszValue) {
        const LSTATUS status = ::RegDeleteValue(key.Get(), lpszEntry);
        return status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND;
    }
    return WriteValue(key.Get(), lpszEntry, REG_SZ, lpszValue, (lstrlen(lpszValue) + 1) * sizeof(TCHAR));
}

BOOL CWinApp::GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes)
{
    ASSERT(ppData && pBytes);
    *ppData = nullptr;
    *pBytes = 0;
    std::vector<BYTE> data;
    if (m_pszRegistryKey) {
        const own::RegistryKey key(GetSectionKey(lpszSection));
        if (key) {
            data = ReadValue(key.Get(), lpszEntry, REG_BINARY);
        }
    } else {
        data = FromLetters(GetProfileString(lpszSection, lpszEntry));
    }
    if (data.empty()) {
        return FALSE;
    }
    auto block = std::make_unique<BYTE[]>(data.size());
    memcpy(block.get(), data.data(), data.size());
    *pBytes = static_cast<UINT>(data.size());
    *ppData = block.release();
    return TRUE;
}

BOOL CWinApp::WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes)
{
    if (!m_pszRegistryKey) {
        return WriteProfileString(lpszSection, lpszEntry, ToLetters(pData, nBytes));
    }
    const own::RegistryKey key(GetSectionKey(lpszSection));
    return key && WriteValue(key.Get(), lpszEntry, REG_BINARY, pData, nBytes);
}

// Help

void CWinApp::WinHelp(DWORD_PTR dwData, UINT nCmd)
{
    if (m_pMainWnd && !::WinHelp(m_pMainWnd->m_hWnd, m_pszHelpFilePath, nCmd, dwData)) {
        TRACE(_T("CWinApp::WinHelp: no help for %s.\n"), m_pszHelpFilePath ? m_pszHelpFilePath : _T(""));
    }
}

void CWinApp::OnHelp()
{
    WinHelp(0, HELP_CONTENTS);
}

void CWinApp::OnHelpIndex()
{
    WinHelp(0, HELP_INDEX);
}

void CWinApp::OnHelpFinder()
{
    WinHelp(0, HELP_FINDER);
}

BOOL AfxOleInit()
{
    return SUCCEEDED(::OleInitialize(nullptr));
}

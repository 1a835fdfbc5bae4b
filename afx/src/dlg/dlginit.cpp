#include "dlginit.h"

#include <afxwin.h>

namespace
{
/** The resource type in which dialog editors store the contents of list and combo boxes. */
const LPCTSTR kDlgInitType = MAKEINTRESOURCE(240);

// Messages as those resources have them.
constexpr WORD kStoredListAdd = 0x0401;
constexpr WORD kStoredComboAdd = 0x0403;

struct DlgInitRow
{
    WORD nControl;
    WORD nMessage;
    DWORD nBytes; ///< Of the text behind the row, in the code page of the resource.
};

UINT RealMessage(WORD nStored)
{
    switch (nStored) {
    case kStoredListAdd:
        return LB_ADDSTRING;
    case kStoredComboAdd:
        return CB_ADDSTRING;
    default:
        return nStored;
    }
}

bool ReadRow(const BYTE*& p, const BYTE* pEnd, DlgInitRow& row)
{
    if (p + sizeof(WORD) > pEnd) {
        return false;
    }
    ::memcpy(&row.nControl, p, sizeof row.nControl);
    if (row.nControl == 0 || p + sizeof(WORD) * 2 + sizeof(DWORD) > pEnd) {
        return false;
    }
    ::memcpy(&row.nMessage, p + 2, sizeof row.nMessage);
    ::memcpy(&row.nBytes, p + 4, sizeof row.nBytes);
    p += 8;
    return row.nBytes <= static_cast<size_t>(pEnd - p);
}

BOOL ExecuteRows(HWND hWnd, const BYTE* p, const BYTE* pEnd)
{
    DlgInitRow row;
    BOOL bSuccess = TRUE;
    while (bSuccess && ReadRow(p, pEnd, row)) {
        const CStringA strText(reinterpret_cast<LPCSTR>(p), static_cast<int>(row.nBytes));
        const UINT nMessage = RealMessage(row.nMessage);
        if (nMessage == LB_ADDSTRING || nMessage == CB_ADDSTRING) {
            bSuccess = ::SendDlgItemMessageA(hWnd, row.nControl, nMessage, 0,
                                             reinterpret_cast<LPARAM>(strText.GetString())) >= 0;
        }
        p += row.nBytes;
    }
    return bSuccess;
}
} // namespace

void* AfxLoadLockedResource(LPCTSTR lpszName, LPCTSTR lpszType, HINSTANCE* phInst)
{
    if (!lpszName) {
        return nullptr;
    }
    const HINSTANCE hInst = AfxFindResourceHandle(lpszName, lpszType);
    const HRSRC hResource = ::FindResource(hInst, lpszName, lpszType);
    if (phInst) {
        *phInst = hInst;
    }
    return hResource ? ::LockResource(::LoadResource(hInst, hResource)) : nullptr;
}

BOOL CWnd::ExecuteDlgInit(LPCTSTR lpszResourceName)
{
    if (!lpszResourceName) {
        return TRUE;
    }
    const HINSTANCE hInst = AfxFindResourceHandle(lpszResourceName, kDlgInitType);
    const HRSRC hResource = ::FindResource(hInst, lpszResourceName, kDlgInitType);
    const auto* p = hResource ? static_cast<const BYTE*>(::LockResource(::LoadResource(hInst, hResource))) : nullptr;
    return p ? ExecuteRows(m_hWnd, p, p + ::SizeofResource(hInst, hResource)) : TRUE;
}

BOOL CWnd::ExecuteDlgInit(LPVOID lpResource)
{
    if (!lpResource) {
        return TRUE;
    }
    // The length is not known: the rows end with a control id of 0.
    const auto* p = static_cast<const BYTE*>(lpResource);
    constexpr size_t kUnknownLength = 0x100000;
    return ExecuteRows(m_hWnd, p, p + kUnknownLength);
}

#include "private.h"

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)

namespace
{
constexpr LPCWSTR kTextMemory = L"Out of memory.";
constexpr LPCWSTR kTextNotSupported = L"An unsupported operation was attempted.";
constexpr LPCWSTR kTextResource = L"A required resource was unavailable.";
constexpr LPCWSTR kTextInvalidArg = L"Encountered an improper argument.";
constexpr LPCWSTR kTextUnknown = L"An unknown error has occurred.";

constexpr UINT kMaxErrorText = 512;
} // namespace

CException::CException() : m_bAutoDelete(TRUE) {}

CException::CException(BOOL bAutoDelete) : m_bAutoDelete(bAutoDelete) {}

void CException::Delete()
{
    if (m_bAutoDelete) {
        delete this;
    }
}

BOOL CException::GetErrorMessage(LPWSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const
{
    if (pnHelpContext) {
        *pnHelpContext = 0;
    }
    if (lpszError && nMaxError > 0) {
        *lpszError = 0;
    }
    return FALSE;
}

int CException::ReportError(UINT nType, UINT nMessageID)
{
    wchar_t szText[kMaxErrorText];
    if (!GetErrorMessage(szText, kMaxErrorText) &&
        (nMessageID == 0 || AfxLoadString(nMessageID, szText, kMaxErrorText) == 0)) {
        lstrcpynW(szText, kTextUnknown, kMaxErrorText);
    }
    const LPCWSTR lpszAppName = AfxGetModuleState()->m_lpszCurrentAppName;
    return ::MessageBoxW(GetActiveWindow(), szText, lpszAppName, nType);
}

CSimpleException::CSimpleException() : CSimpleException(TRUE, 0, nullptr) {}

CSimpleException::CSimpleException(BOOL bAutoDelete) : CSimpleException(bAutoDelete, 0, nullptr) {}

CSimpleException::CSimpleException(BOOL bAutoDelete, UINT nResourceID)
    : CSimpleException(bAutoDelete, nResourceID, nullptr)
{
}

CSimpleException::CSimpleException(BOOL bAutoDelete, UINT nResourceID, LPCWSTR lpszDefault)
    : CException(bAutoDelete), m_nResourceID(nResourceID), m_lpszDefault(lpszDefault)
{
}

BOOL CSimpleException::GetErrorMessage(LPWSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const
{
    if (pnHelpContext) {
        *pnHelpContext = 0;
    }
    if (!lpszError || nMaxError == 0) {
        return FALSE;
    }
    *lpszError = 0;
    if (m_nResourceID != 0 && AfxLoadString(m_nResourceID, lpszError, nMaxError) > 0) {
        return TRUE;
    }
    if (!m_lpszDefault) {
        return FALSE;
    }
    lstrcpynW(lpszError, m_lpszDefault, static_cast<int>(nMaxError));
    return TRUE;
}

CMemoryException::CMemoryException() : CMemoryException(TRUE, 0) {}

CMemoryException::CMemoryException(BOOL bAutoDelete) : CMemoryException(bAutoDelete, 0) {}

CMemoryException::CMemoryException(BOOL bAutoDelete, UINT nResourceID)
    : CSimpleException(bAutoDelete, nResourceID, kTextMemory)
{
}

CNotSupportedException::CNotSupportedException() : CNotSupportedException(TRUE, 0) {}

CNotSupportedException::CNotSupportedException(BOOL bAutoDelete) : CNotSupportedException(bAutoDelete, 0) {}

CNotSupportedException::CNotSupportedException(BOOL bAutoDelete, UINT nResourceID)
    : CSimpleException(bAutoDelete, nResourceID, kTextNotSupported)
{
}

CResourceException::CResourceException() : CResourceException(TRUE, 0) {}

CResourceException::CResourceException(BOOL bAutoDelete) : CResourceException(bAutoDelete, 0) {}

CResourceException::CResourceException(BOOL bAutoDelete, UINT nResourceID)
    : CSimpleException(bAutoDelete, nResourceID, kTextResource)
{
}

CUserException::CUserException() : CUserException(TRUE, 0) {}

CUserException::CUserException(BOOL bAutoDelete) : CUserException(bAutoDelete, 0) {}

CUserException::CUserException(BOOL bAutoDelete, UINT nResourceID) : CSimpleException(bAutoDelete, nResourceID) {}

CInvalidArgException::CInvalidArgException() : CInvalidArgException(TRUE, 0) {}

CInvalidArgException::CInvalidArgException(BOOL bAutoDelete) : CInvalidArgException(bAutoDelete, 0) {}

CInvalidArgException::CInvalidArgException(BOOL bAutoDelete, UINT nResourceID)
    : CSimpleException(bAutoDelete, nResourceID, kTextInvalidArg)
{
}

/* The framework throws ready-made objects: throwing must work when memory is short. */

void AFXAPI AfxThrowMemoryException()
{
    static CMemoryException exception(FALSE);
    throw &exception;
}

void AFXAPI AfxThrowNotSupportedException()
{
    static CNotSupportedException exception(FALSE);
    throw &exception;
}

void AFXAPI AfxThrowResourceException()
{
    static CResourceException exception(FALSE);
    throw &exception;
}

void AFXAPI AfxThrowUserException()
{
    static CUserException exception(FALSE);
    throw &exception;
}

void AFXAPI AfxThrowInvalidArgException()
{
    static CInvalidArgException exception(FALSE);
    throw &exception;
}

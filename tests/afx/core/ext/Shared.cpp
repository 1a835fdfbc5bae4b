#include "Shared.h"

IMPLEMENT_DYNCREATE(CSharedBase, CObject)
IMPLEMENT_DYNAMIC(CSharedException, CException)

int CSharedException::s_nAlive = 0;

CSharedBase::~CSharedBase() = default;

int CSharedBase::Answer() const
{
    return 42;
}

CSharedException::CSharedException(int nCode) : CException(TRUE), m_nCode(nCode)
{
    ++s_nAlive;
}

CSharedException::~CSharedException()
{
    --s_nAlive;
}

BOOL CSharedException::GetErrorMessage(LPWSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const
{
    if (pnHelpContext) {
        *pnHelpContext = 0;
    }
    CString strText;
    strText.Format(L"shared error %d", m_nCode);
    lstrcpynW(lpszError, strText, static_cast<int>(nMaxError));
    return TRUE;
}

void SharedThrow(Thrown what)
{
    switch (what) {
    case Thrown::Memory:
        AfxThrowMemoryException();
    case Thrown::NotSupported:
        AfxThrowNotSupportedException();
    case Thrown::Resource:
        AfxThrowResourceException();
    case Thrown::User:
        AfxThrowUserException();
    case Thrown::InvalidArg:
        AfxThrowInvalidArgException();
    case Thrown::Shared:
        throw new CSharedException(7);
    }
}

int SharedCatch(void (*pfnThrowing)())
{
    try {
        pfnThrowing();
    } catch (CInvalidArgException* e) {
        e->Delete();
        return 1;
    } catch (CException* e) {
        e->Delete();
        return 2;
    }
    return 0;
}

CString SharedEcho(const CString& str)
{
    return str;
}

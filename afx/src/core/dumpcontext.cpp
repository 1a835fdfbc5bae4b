#include "private.h"

#include <cstdio>
#include <cwchar>

namespace
{
CDumpContext& DumpFormatted(CDumpContext& dc, LPCWSTR lpszFormat, ...)
{
    wchar_t szText[400];
    va_list args;
    va_start(args, lpszFormat);
    _vsnwprintf(szText, _countof(szText), lpszFormat, args);
    va_end(args);
    szText[_countof(szText) - 1] = 0;
    return dc << szText;
}
} // namespace

CDumpContext afxDump;

void AFXAPI AfxDump(const CObject* pOb)
{
    afxDump << pOb;
}

CDumpContext& CDumpContext::operator<<(LPCWSTR lpsz)
{
    AfxWriteDiagnostic(lpsz ? lpsz : L"(null)");
    return *this;
}

CDumpContext& CDumpContext::operator<<(LPCSTR lpsz)
{
    return *this << CString(lpsz ? lpsz : "(null)").GetString();
}

CDumpContext& CDumpContext::operator<<(const void* lp)
{
    return DumpFormatted(*this, L"$%p", lp);
}

CDumpContext& CDumpContext::operator<<(const CObject* pOb)
{
    if (!pOb) {
        return *this << L"(null)";
    }
    pOb->Dump(*this);
    return *this;
}

CDumpContext& CDumpContext::operator<<(const CObject& ob)
{
    return *this << &ob;
}

CDumpContext& CDumpContext::operator<<(BYTE by)
{
    return DumpFormatted(*this, L"%u", static_cast<UINT>(by));
}

CDumpContext& CDumpContext::operator<<(WORD w)
{
    return DumpFormatted(*this, L"%u", static_cast<UINT>(w));
}

CDumpContext& CDumpContext::operator<<(UINT u)
{
    return DumpFormatted(*this, L"0x%X", u);
}

CDumpContext& CDumpContext::operator<<(DWORD dw)
{
    return DumpFormatted(*this, L"%u", static_cast<UINT>(dw));
}

CDumpContext& CDumpContext::operator<<(int n)
{
    return DumpFormatted(*this, L"%d", n);
}

CDumpContext& CDumpContext::operator<<(LONG l)
{
    return DumpFormatted(*this, L"%d", static_cast<int>(l));
}

CDumpContext& CDumpContext::operator<<(LONGLONG n)
{
    return DumpFormatted(*this, L"%I64d", n);
}

CDumpContext& CDumpContext::operator<<(ULONGLONG n)
{
    return DumpFormatted(*this, L"%I64u", n);
}

CDumpContext& CDumpContext::operator<<(float f)
{
    return DumpFormatted(*this, L"%g", static_cast<double>(f));
}

CDumpContext& CDumpContext::operator<<(double d)
{
    return DumpFormatted(*this, L"%g", d);
}

void CDumpContext::Flush()
{
    fflush(stderr);
}

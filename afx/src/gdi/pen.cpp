#include "core/adopt.h"

#include <afxwin.h>

#include <algorithm>
#include <vector>

IMPLEMENT_DYNAMIC(CPen, CGdiObject)

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor)
{
    if (!CreatePen(nPenStyle, nWidth, crColor)) {
        AfxThrowResourceException();
    }
}

CPen::CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount, const DWORD* lpStyle)
{
    if (!CreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle)) {
        AfxThrowResourceException();
    }
}

CPen* PASCAL CPen::FromHandle(HPEN hPen)
{
    return static_cast<CPen*>(CGdiObject::FromHandle(hPen));
}

CPen::operator HPEN() const
{
    return static_cast<HPEN>(m_hObject);
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, COLORREF crColor)
{
    return AfxAdopt(*this, ::CreatePen(nPenStyle, nWidth, crColor));
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount, const DWORD* lpStyle)
{
    if (!pLogBrush) {
        return FALSE;
    }
    return AfxAdopt(*this, ::ExtCreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle));
}

BOOL CPen::CreatePenIndirect(LPLOGPEN lpLogPen)
{
    return lpLogPen && AfxAdopt(*this, ::CreatePenIndirect(lpLogPen));
}

int CPen::GetLogPen(LOGPEN* pLogPen)
{
    return GetObject(sizeof(LOGPEN), pLogPen);
}

int CPen::GetExtLogPen(EXTLOGPEN* pLogPen)
{
    const int nSize = GetObject(0, nullptr);
    if (!pLogPen || nSize <= 0) {
        return 0;
    }
    // A cosmetic pen's dash list makes the description longer than the structure.
    std::vector<BYTE> data(nSize);
    const int nGot = GetObject(nSize, data.data());
    const int nCopy = (std::min)(nGot, static_cast<int>(sizeof(EXTLOGPEN)));
    memcpy(pLogPen, data.data(), nCopy);
    return nCopy;
}

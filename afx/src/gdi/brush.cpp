#include "core/adopt.h"
#include "handles.h"

#include <afxwin.h>

IMPLEMENT_DYNAMIC(CBrush, CGdiObject)

namespace
{
/** Holds global memory in its place. */
class LockedMemory
{
  public:
    explicit LockedMemory(HGLOBAL hMemory) : m_hMemory(hMemory), m_p(hMemory ? ::GlobalLock(hMemory) : nullptr) {}
    ~LockedMemory()
    {
        if (m_p) {
            ::GlobalUnlock(m_hMemory);
        }
    }
    LockedMemory(const LockedMemory&) = delete;
    LockedMemory& operator=(const LockedMemory&) = delete;

    /** @return null when there is no such memory */
    const void* Get() const { return m_p; }

  private:
    HGLOBAL m_hMemory;
    void* m_p;
};
} // namespace

CBrush::CBrush(COLORREF crColor)
{
    if (!CreateSolidBrush(crColor)) {
        AfxThrowResourceException();
    }
}

CBrush::CBrush(int nIndex, COLORREF crColor)
{
    if (!CreateHatchBrush(nIndex, crColor)) {
        AfxThrowResourceException();
    }
}

CBrush::CBrush(CBitmap* pBitmap)
{
    if (!CreatePatternBrush(pBitmap)) {
        AfxThrowResourceException();
    }
}

CBrush* PASCAL CBrush::FromHandle(HBRUSH hBrush)
{
    return static_cast<CBrush*>(CGdiObject::FromHandle(hBrush));
}

CBrush::operator HBRUSH() const
{
    return static_cast<HBRUSH>(m_hObject);
}

BOOL CBrush::CreateSolidBrush(COLORREF crColor)
{
    return AfxAdopt(*this, ::CreateSolidBrush(crColor));
}

BOOL CBrush::CreateHatchBrush(int nIndex, COLORREF crColor)
{
    return AfxAdopt(*this, ::CreateHatchBrush(nIndex, crColor));
}

BOOL CBrush::CreateBrushIndirect(const LOGBRUSH* lpLogBrush)
{
    return lpLogBrush && AfxAdopt(*this, ::CreateBrushIndirect(lpLogBrush));
}

BOOL CBrush::CreatePatternBrush(CBitmap* pBitmap)
{
    HBITMAP hBitmap = static_cast<HBITMAP>(gdi::HandleOf(pBitmap));
    return hBitmap && AfxAdopt(*this, ::CreatePatternBrush(hBitmap));
}

BOOL CBrush::CreateDIBPatternBrush(HGLOBAL hPackedDIB, UINT nUsage)
{
    const LockedMemory dib(hPackedDIB);
    return CreateDIBPatternBrush(dib.Get(), nUsage);
}

BOOL CBrush::CreateDIBPatternBrush(const void* lpPackedDIB, UINT nUsage)
{
    return lpPackedDIB && AfxAdopt(*this, ::CreateDIBPatternBrushPt(lpPackedDIB, nUsage));
}

BOOL CBrush::CreateSysColorBrush(int nIndex)
{
    return Attach(::GetSysColorBrush(nIndex));
}

int CBrush::GetLogBrush(LOGBRUSH* pLogBrush)
{
    return GetObject(sizeof(LOGBRUSH), pLogBrush);
}

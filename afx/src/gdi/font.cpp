#include "core/adopt.h"

#include <common/Owner.h>

#include <afxwin.h>

IMPLEMENT_DYNAMIC(CFont, CGdiObject)

namespace
{
constexpr int kDecipointsPerInch = 720;
} // namespace

CFont* PASCAL CFont::FromHandle(HFONT hFont)
{
    return static_cast<CFont*>(CGdiObject::FromHandle(hFont));
}

CFont::operator HFONT() const
{
    return static_cast<HFONT>(m_hObject);
}

BOOL CFont::CreateFontIndirect(const LOGFONT* lpLogFont)
{
    return lpLogFont && AfxAdopt(*this, ::CreateFontIndirect(lpLogFont));
}

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                       BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                       BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename)
{
    return AfxAdopt(*this,
                    ::CreateFont(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic, bUnderline, cStrikeOut,
                                 nCharSet, nOutPrecision, nClipPrecision, nQuality, nPitchAndFamily, lpszFacename));
}

BOOL CFont::CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC)
{
    LOGFONT logFont = {};
    logFont.lfHeight = nPointSize;
    logFont.lfCharSet = DEFAULT_CHARSET;
    if (lpszFaceName) {
        lstrcpyn(logFont.lfFaceName, lpszFaceName, LF_FACESIZE);
    }
    return CreatePointFontIndirect(&logFont, pDC);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC)
{
    if (!lpLogFont) {
        return FALSE;
    }
    const own::DisplayDc screen(pDC ? nullptr : ::GetDC(nullptr));
    HDC hDC = pDC ? pDC->m_hAttribDC : screen.Get();
    // Through logical units, so that a mapping mode of the caller's device counts.
    POINT size = {0, ::MulDiv(::GetDeviceCaps(hDC, LOGPIXELSY), lpLogFont->lfHeight, kDecipointsPerInch)};
    POINT origin = {0, 0};
    ::DPtoLP(hDC, &size, 1);
    ::DPtoLP(hDC, &origin, 1);
    LOGFONT logFont = *lpLogFont;
    logFont.lfHeight = -abs(size.y - origin.y);
    return CreateFontIndirect(&logFont);
}

int CFont::GetLogFont(LOGFONT* pLogFont)
{
    return GetObject(sizeof(LOGFONT), pLogFont);
}

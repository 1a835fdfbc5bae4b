#include "bothcontexts.h"
#include "handles.h"

#include <afxwin.h>

#include <string>

namespace
{
CSize SizeFromLong(DWORD dwSize)
{
    return CSize(LOWORD(dwSize), HIWORD(dwSize));
}

CSize ExtentOn(HDC hDC, LPCTSTR lpszString, int nCount)
{
    SIZE size = {};
    if (hDC && lpszString) {
        ::GetTextExtentPoint32(hDC, lpszString, nCount, &size);
    }
    return size;
}

std::wstring ModifiableText(const CString& str)
{
    // DT_MODIFYSTRING may add up to four characters.
    std::wstring text(str.GetString(), str.GetLength());
    text.append(5, L'\0');
    return text;
}
} // namespace

BOOL CDC::TextOut(int x, int y, LPCTSTR lpszString, int nCount)
{
    return ::TextOut(m_hDC, x, y, lpszString, nCount);
}

BOOL CDC::TextOut(int x, int y, const CString& str)
{
    return TextOut(x, y, str.GetString(), str.GetLength());
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount, LPINT lpDxWidths)
{
    return ::ExtTextOut(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str, LPINT lpDxWidths)
{
    return ExtTextOut(x, y, nOptions, lpRect, str.GetString(), str.GetLength(), lpDxWidths);
}

CSize CDC::TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions, LPINT lpnTabStopPositions,
                         int nTabOrigin)
{
    return SizeFromLong(
        ::TabbedTextOut(m_hDC, x, y, lpszString, nCount, nTabPositions, lpnTabStopPositions, nTabOrigin));
}

CSize CDC::TabbedTextOut(int x, int y, const CString& str, int nTabPositions, LPINT lpnTabStopPositions, int nTabOrigin)
{
    return TabbedTextOut(x, y, str.GetString(), str.GetLength(), nTabPositions, lpnTabStopPositions, nTabOrigin);
}

int CDC::DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat)
{
    if (!m_hDC || !lpszString || !lpRect) {
        return 0;
    }
    return ::DrawText(m_hDC, lpszString, nCount, lpRect, nFormat);
}

int CDC::DrawText(const CString& str, LPRECT lpRect, UINT nFormat)
{
    if (!(nFormat & DT_MODIFYSTRING)) {
        return DrawText(str.GetString(), str.GetLength(), lpRect, nFormat);
    }
    std::wstring text = ModifiableText(str);
    return DrawText(text.c_str(), str.GetLength(), lpRect, nFormat);
}

int CDC::DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams)
{
    if (!m_hDC || !lpszString || !lpRect) {
        return 0;
    }
    return ::DrawTextEx(m_hDC, lpszString, nCount, lpRect, nFormat, lpDTParams);
}

int CDC::DrawTextEx(const CString& str, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams)
{
    std::wstring text = ModifiableText(str);
    return DrawTextEx(text.data(), str.GetLength(), lpRect, nFormat, lpDTParams);
}

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const
{
    return ExtentOn(m_hAttribDC, lpszString, nCount);
}

CSize CDC::GetTextExtent(const CString& str) const
{
    return ExtentOn(m_hAttribDC, str.GetString(), str.GetLength());
}

CSize CDC::GetOutputTextExtent(LPCTSTR lpszString, int nCount) const
{
    return ExtentOn(m_hDC, lpszString, nCount);
}

CSize CDC::GetOutputTextExtent(const CString& str) const
{
    return ExtentOn(m_hDC, str.GetString(), str.GetLength());
}

CSize CDC::GetTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions, LPINT lpnTabStopPositions) const
{
    return SizeFromLong(::GetTabbedTextExtent(m_hAttribDC, lpszString, nCount, nTabPositions, lpnTabStopPositions));
}

CSize CDC::GetTabbedTextExtent(const CString& str, int nTabPositions, LPINT lpnTabStopPositions) const
{
    return GetTabbedTextExtent(str.GetString(), str.GetLength(), nTabPositions, lpnTabStopPositions);
}

CSize CDC::GetOutputTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions, LPINT lpnTabStopPositions) const
{
    return SizeFromLong(::GetTabbedTextExtent(m_hDC, lpszString, nCount, nTabPositions, lpnTabStopPositions));
}

CSize CDC::GetOutputTabbedTextExtent(const CString& str, int nTabPositions, LPINT lpnTabStopPositions) const
{
    return GetOutputTabbedTextExtent(str.GetString(), str.GetLength(), nTabPositions, lpnTabStopPositions);
}

BOOL CDC::GrayString(CBrush* pBrush, BOOL(CALLBACK* lpfnOutput)(HDC, LPARAM, int), LPARAM lpData, int nCount, int x,
                     int y, int nWidth, int nHeight)
{
    return ::GrayString(m_hDC, gdi::BrushOf(pBrush), lpfnOutput, lpData, nCount, x, y, nWidth, nHeight);
}

UINT CDC::GetTextAlign() const
{
    return ::GetTextAlign(m_hAttribDC);
}

UINT CDC::SetTextAlign(UINT nFlags)
{
    return gdi::OnBoth(*this, UINT{GDI_ERROR}, [=](HDC hDC) { return ::SetTextAlign(hDC, nFlags); });
}

int CDC::SetTextJustification(int nBreakExtra, int nBreakCount)
{
    return gdi::OnBoth(*this, FALSE, [=](HDC hDC) { return ::SetTextJustification(hDC, nBreakExtra, nBreakCount); });
}

int CDC::GetTextCharacterExtra() const
{
    return ::GetTextCharacterExtra(m_hAttribDC);
}

int CDC::SetTextCharacterExtra(int nCharExtra)
{
    return gdi::OnBoth(*this, int(0x80000000), [=](HDC hDC) { return ::SetTextCharacterExtra(hDC, nCharExtra); });
}

DWORD CDC::GetCharacterPlacement(LPCTSTR lpString, int nCount, int nMaxExtent, LPGCP_RESULTS lpResults,
                                 DWORD dwFlags) const
{
    return ::GetCharacterPlacement(m_hDC, lpString, nCount, nMaxExtent, lpResults, dwFlags);
}

BOOL CDC::GetTextExtentExPointI(LPWORD pgiIn, int cgi, int nMaxExtent, LPINT lpnFit, LPINT alpDx, LPSIZE lpSize) const
{
    return ::GetTextExtentExPointI(m_hDC, pgiIn, cgi, nMaxExtent, lpnFit, alpDx, lpSize);
}

BOOL CDC::GetTextExtentPointI(LPWORD pgiIn, int cgi, LPSIZE lpSize) const
{
    return ::GetTextExtentPointI(m_hDC, pgiIn, cgi, lpSize);
}

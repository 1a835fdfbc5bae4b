#include "QorStatusBar.h"

#include <QorUI/app/base/Invalidate.h>
#include <QorUI/app/draw/GdiSavers.h>
#include <QorUI/app/look/Palette.h>

BEGIN_MESSAGE_MAP(CQorStatusBar, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

namespace
{

constexpr COLORREF kSeparatorDark = RGB(140, 172, 213);
constexpr COLORREF kSeparatorLight = RGB(230, 239, 251);
constexpr COLORREF kText = QorLook::kBlack;
constexpr int kEdge = 2;
constexpr int kTextLeft = 6;
constexpr int kTextSpace = 12;
constexpr UINT kTextFormat = DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS;

void DrawPartText(CDC& dc, const CString& text, CRect rect)
{
    rect.left += kTextLeft;
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(kText);
    dc.DrawText(text, &rect, kTextFormat);
}

} // namespace

CQorStatusBar::CQorStatusBar() = default;

BOOL CQorStatusBar::SetParts(int parts, int* widths)
{
    m_arrParts.RemoveAll();
    for (int i = 0; i < parts; ++i) {
        STATUSPART part;
        part.nWidth = widths ? widths[i] : 0;
        m_arrParts.Add(part);
    }
    QorInvalidate(*this);
    return TRUE;
}

BOOL CQorStatusBar::SetText(int part, LPCWSTR text)
{
    if (part >= m_arrParts.GetCount()) {
        return FALSE;
    }
    ENSURE_ARG(part >= 0);
    m_arrParts[part].strText = text;
    QorInvalidate(*this);
    return TRUE;
}

int CQorStatusBar::GetTextExtent(LPCWSTR text)
{
    CClientDC dc(m_hWnd ? this : nullptr); // without a window the screen's
    const SelectSaver font(dc, ::GetStockObject(DEFAULT_GUI_FONT));
    return dc.GetTextExtent(CString(text)).cx + kTextSpace;
}

void CQorStatusBar::OnPaint()
{
    CPaintDC dc(this);
    CRect bar;
    GetClientRect(&bar);
    dc.FillSolidRect(&bar, QorLook::kFrameBack);
    const DcStateSaver saver(dc);
    bar.DeflateRect(0, kEdge);
    ENSURE_ARG(!m_arrParts.IsEmpty());
    if (bar.IsRectEmpty()) {
        return; // GDI would turn the rectangle round and draw over the edges
    }
    dc.SelectStockObject(DEFAULT_GUI_FONT);
    int right = bar.right;
    for (INT_PTR i = m_arrParts.GetUpperBound(); i >= 1; --i) {
        right = DrawPart(dc, bar, i, right);
    }
    DrawPartText(dc, m_arrParts[0].strText, CRect(0, bar.top, right, bar.bottom));
}

/** @param right where the part ends. @return where the part before it ends. */
int CQorStatusBar::DrawPart(CDC& dc, const CRect& bar, INT_PTR part, int right) const
{
    const int left = right - m_arrParts[part].nWidth;
    dc.FillSolidRect(left, bar.top, 1, bar.Height(), kSeparatorDark);
    dc.FillSolidRect(left + 1, bar.top, 1, bar.Height(), kSeparatorLight);
    DrawPartText(dc, m_arrParts[part].strText, CRect(left, bar.top, right, bar.bottom));
    return left;
}

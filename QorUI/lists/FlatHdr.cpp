#include "FlatHdr.h"

#include "HdrLayout.h"

#include <QorUI/app/base/Invalidate.h>
#include <QorUI/app/draw/BufferedPaint.h>
#include <QorUI/app/draw/GdiSavers.h>
#include <QorUI/app/draw/Triangle.h>
#include <QorUI/app/look/Palette.h>

#include <array>

BEGIN_MESSAGE_MAP(CFlatHdr, CHeaderCtrl)
    ON_WM_PAINT()
END_MESSAGE_MAP()

namespace
{

constexpr COLORREF kBack = QorLook::kPaleGrey;
constexpr COLORREF kLine = RGB(213, 213, 213);
constexpr size_t kMaxText = 260;

} // namespace

CFlatHdr::CFlatHdr() : m_nSortColumn(-1), m_nSortDirection(1), m_rcLast(0, 0, 0, 0), m_clrBack(kBack), m_clrLine(kLine)
{
}

void CFlatHdr::SetColor(COLORREF background, COLORREF line)
{
    m_clrBack = background;
    m_clrLine = line;
    QorInvalidate(*this);
}

void CFlatHdr::SetOwnerDraw()
{
    const int count = m_hWnd ? GetItemCount() : 0;
    for (int i = 0; i < count; ++i) {
        SetOwnerDraw(i);
    }
}

void CFlatHdr::SetOwnerDraw(int index)
{
    HDITEMW item = {};
    item.mask = HDI_FORMAT;
    if (m_hWnd && GetItem(index, &item)) {
        item.fmt |= HDF_OWNERDRAW;
        SetItem(index, &item);
    }
}

int CFlatHdr::GetSortColumn(int* direction) const
{
    if (direction) {
        *direction = m_nSortDirection;
    }
    return m_nSortColumn;
}

int CFlatHdr::SetSortColumn(int column, int direction)
{
    const int former = m_nSortColumn;
    m_nSortColumn = column;
    m_nSortDirection = direction;
    QorInvalidate(*this);
    return former;
}

DWORD_PTR CFlatHdr::GetItemData(int item) const
{
    HDITEMW data = {};
    data.mask = HDI_LPARAM;
    return m_hWnd && GetItem(item, &data) ? static_cast<DWORD_PTR>(data.lParam) : 0;
}

BOOL CFlatHdr::SetItemData(int item, DWORD_PTR data)
{
    HDITEMW changed = {};
    changed.mask = HDI_LPARAM;
    changed.lParam = static_cast<LPARAM>(data);
    return m_hWnd && SetItem(item, &changed);
}

void CFlatHdr::DrawItem(LPDRAWITEMSTRUCT draw)
{
    if (!draw || !draw->hDC) {
        return;
    }
    const DcStateSaver saver(draw->hDC);
    CDC* dc = CDC::FromHandle(draw->hDC);
    dc->FillSolidRect(&draw->rcItem, m_clrBack);
    dc->SetBkMode(TRANSPARENT);
    const bool sorted = m_nSortColumn >= 0 && draw->itemID == static_cast<UINT>(m_nSortColumn);
    DrawItemText(draw->hDC, *draw, sorted);
    if (sorted) {
        QorDrawTriangle(dc, QorHdr::ArrowRect(draw->rcItem), m_nSortDirection ? kTriangleUp : kTriangleDown, m_clrLine);
    }
    m_rcLast = draw->rcItem;
    DrawItemLines(draw->hDC, draw->rcItem);
}

void CFlatHdr::DrawItemText(HDC dc, const DRAWITEMSTRUCT& draw, bool sorted) const
{
    std::array<wchar_t, kMaxText> text = {};
    HDITEMW item = {};
    item.mask = HDI_TEXT | HDI_FORMAT;
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    if (!m_hWnd || !GetItem(static_cast<int>(draw.itemID), &item)) {
        return;
    }
    RECT rect = QorHdr::TextRect(draw.rcItem, draw.itemState == ODS_SELECTED, sorted);
    if (rect.right > rect.left) {
        const SelectSaver font(dc, reinterpret_cast<HGDIOBJ>(::SendMessageW(m_hWnd, WM_GETFONT, 0, 0)));
        // The control may answer with a text of its own instead of filling the buffer.
        ::DrawTextW(dc, item.pszText ? item.pszText : L"", -1, &rect, QorHdr::TextFormat(item.fmt));
    }
}

void CFlatHdr::DrawItemLines(HDC dc, const RECT& rect) const
{
    const SelectSaver select(dc, ::GetStockObject(DC_PEN));
    ::SetDCPenColor(dc, m_clrLine);
    ::MoveToEx(dc, rect.right - 1, rect.top, nullptr);
    ::LineTo(dc, rect.right - 1, rect.bottom - 1);
    ::LineTo(dc, rect.left - 1, rect.bottom - 1);
}

void CFlatHdr::OnPaint()
{
    CPaintDC dc(this);
    BufferedPaint paint(dc, dc.m_ps.rcPaint);
    PaintInto(paint.Dc());
}

void CFlatHdr::PaintInto(CDC& dc)
{
    DefWindowProc(WM_PAINT, reinterpret_cast<WPARAM>(dc.m_hDC), 0);
    FillRest(dc);
}

void CFlatHdr::FillRest(CDC& dc) const
{
    CRect client;
    GetClientRect(&client);
    CRect end(0, 0, 0, 0);
    GetItemRect(OrderToIndex(GetItemCount() - 1), &end);
    // An item without width is not drawn, so what was drawn last may be long gone.
    const CRect last = end.right > 0 ? m_rcLast : CRect(0, 0, 0, client.bottom);
    const CRect rest(last.right, last.top, client.right, last.bottom);
    if (rest.right > rest.left) {
        dc.FillSolidRect(&rest, m_clrBack);
    }
    const SelectSaver select(dc, ::GetStockObject(DC_PEN));
    ::SetDCPenColor(dc, m_clrLine);
    dc.MoveTo(rest.left - 1, rest.bottom - 1);
    dc.LineTo(rest.right, rest.bottom - 1);
}

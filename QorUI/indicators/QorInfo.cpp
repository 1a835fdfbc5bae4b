#include "QorInfo.h"

#include <QorUI/app/base/Invalidate.h>
#include <QorUI/app/base/OwnStatic.h>
#include <QorUI/app/draw/GdiSavers.h>
#include <QorUI/app/look/Palette.h>

#include <algorithm>

BEGIN_MESSAGE_MAP(CQorInfo, CStatic)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

namespace
{

constexpr int kRowHeight = 16;
constexpr int kGap = 6;
constexpr UINT kLineFormat = DT_SINGLELINE | DT_END_ELLIPSIS;
constexpr UINT kLastFormat = DT_WORDBREAK | DT_EDITCONTROL | DT_END_ELLIPSIS;

int RowTop(INT_PTR row)
{
    return kRowHeight * static_cast<int>(row);
}

} // namespace

CQorInfo::CQorInfo() = default;

void CQorInfo::AddItem(LPCWSTR label, LPCWSTR value)
{
    UINFOITEM item;
    item.strLabel = label;
    if (!item.strLabel.IsEmpty()) {
        item.strLabel += L":";
    }
    item.strValue = value;
    m_arrItems.Add(item);
    QorInvalidate(*this);
}

void CQorInfo::RemoveAll()
{
    m_arrItems.RemoveAll();
    QorInvalidate(*this);
}

LRESULT CQorInfo::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND wnd = m_hWnd;
    const LRESULT result = CStatic::WindowProc(message, wParam, lParam);
    QorRepaintStatic(wnd, message);
    return result;
}

BOOL CQorInfo::OnEraseBkgnd(CDC* /*dc*/)
{
    return TRUE;
}

void CQorInfo::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, QorLook::kDlgBody);
    if (m_arrItems.IsEmpty()) {
        return;
    }
    dc.SetBkMode(TRANSPARENT);
    const SelectSaver font(dc, ::GetStockObject(DEFAULT_GUI_FONT));
    DrawValues(dc, client, DrawLabels(dc) + kGap);
}

/** @return width of the widest label. */
int CQorInfo::DrawLabels(CDC& dc) const
{
    int widest = 0;
    for (INT_PTR i = 0; i < m_arrItems.GetCount(); ++i) {
        const CString& label = m_arrItems[i].strLabel;
        const int width = dc.GetTextExtent(label).cx;
        CRect rect(0, RowTop(i), width, RowTop(i + 1));
        dc.DrawText(label, &rect, kLineFormat);
        widest = (std::max)(widest, width);
    }
    return widest;
}

void CQorInfo::DrawValues(CDC& dc, const CRect& client, int left) const
{
    const INT_PTR last = m_arrItems.GetUpperBound();
    for (INT_PTR i = 0; i < last; ++i) {
        CRect rect(left, RowTop(i), client.right, RowTop(i + 1));
        dc.DrawText(m_arrItems[i].strValue, &rect, kLineFormat);
    }
    CRect rect(left, RowTop(last), client.right, client.bottom);
    dc.DrawText(m_arrItems[last].strValue, &rect, kLastFormat);
}

#include "FlatCombo.h"

#include "ComboLook.h"

#include <QorUI/app/draw/GdiSavers.h>
#include <QorUI/app/look/Palette.h>
#include <QorUI/app/look/SysLook.h>

BEGIN_MESSAGE_MAP(CFlatCombo, CComboBox)
    ON_WM_PAINT()
END_MESSAGE_MAP()

namespace
{

constexpr UINT kFieldHeight = 15;
constexpr int kSelectionField = -1;
constexpr COLORREF kInnerFrame = QorLook::kWhite;
constexpr COLORREF kArrow = QorLook::kBlack;

/** Draws the two lines around a part. */
void DrawFrames(HDC dc, RECT rect)
{
    const auto brush = static_cast<HBRUSH>(::GetStockObject(DC_BRUSH));
    ::SetDCBrushColor(dc, QorLook::kFlatBorder);
    ::FrameRect(dc, &rect, brush);
    ::InflateRect(&rect, -1, -1);
    ::SetDCBrushColor(dc, kInnerFrame);
    ::FrameRect(dc, &rect, brush);
}

void DrawArrow(HDC dc, const QorComboParts& parts, COLORREF colour)
{
    const SelectSaver brush(dc, ::GetStockObject(DC_BRUSH));
    const SelectSaver pen(dc, ::GetStockObject(DC_PEN));
    ::SetDCBrushColor(dc, colour);
    ::SetDCPenColor(dc, colour);
    ::SetPolyFillMode(dc, WINDING);
    ::Polygon(dc, parts.corner.data(), static_cast<int>(parts.corner.size()));
}

} // namespace

int CFlatCombo::FindItem(DWORD_PTR data)
{
    const int count = GetCount();
    for (int i = 0; i < count; ++i) {
        if (GetItemData(i) == data) {
            return i;
        }
    }
    return -1;
}

int CFlatCombo::RemoveItem(DWORD_PTR data)
{
    const int index = FindItem(data);
    return index == -1 ? -1 : DeleteString(static_cast<UINT>(index));
}

int CFlatCombo::SelectItem(DWORD_PTR data)
{
    const int index = FindItem(data);
    return index == -1 ? -1 : SetCurSel(index);
}

DWORD_PTR CFlatCombo::GetCurSelData(DWORD_PTR fallback)
{
    const int index = m_hWnd ? GetCurSel() : CB_ERR;
    return index == CB_ERR ? fallback : GetItemData(index);
}

void CFlatCombo::PreSubclassWindow()
{
    SetItemHeight(kSelectionField, kFieldHeight);
    CComboBox::PreSubclassWindow();
}

void CFlatCombo::OnPaint()
{
    Default();
    CRect client;
    GetClientRect(&client);
    const QorComboParts parts = QorComboLayout(client, ::GetSystemMetrics(SM_CXHTHUMB));
    CClientDC dc(this);
    const DcStateSaver saver(dc.m_hDC);
    DrawFrames(dc.m_hDC, parts.text);
    DrawFrames(dc.m_hDC, parts.button);
    dc.FillSolidRect(&parts.face, QorSysLook.m_clrBtnFace);
    DrawArrow(dc.m_hDC, parts, IsWindowEnabled() ? kArrow : QorSysLook.m_clrGrayText);
}

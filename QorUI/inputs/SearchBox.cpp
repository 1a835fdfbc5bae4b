#include "SearchBox.h"

#include <QorUI/app/draw/BitmapPart.h>
#include <QorUI/app/look/Palette.h>
#include <QorUI/app/module/QorUIApp.h>
#include <QorUI/res/resource.h>

BEGIN_MESSAGE_MAP(CSearchBox, CComboBox)
    ON_WM_CREATE()
    ON_WM_PAINT()
END_MESSAGE_MAP()

namespace
{

constexpr int kMaxText = 260;
constexpr COLORREF kOuterFrame = RGB(203, 203, 203);
constexpr COLORREF kInnerFrame = QorLook::kWhite;
constexpr int kGlyphWidth = 16;
constexpr int kGlyphHeight = 17;
constexpr int kCentredHeight = 16; ///< what stands in the middle: all rows of the glyph but the last
constexpr int kGlyphRight = 17;    ///< from the inner frame's right end to the glyph's left edge

void DrawGlyph(HDC dc, int x, int y)
{
    CBitmap bitmap;
    bitmap.Attach(::LoadBitmapW(g_QorUIApp.m_hInstance, MAKEINTRESOURCEW(IDB_SEARCH)));
    QorDrawBitmapPart(dc, {x, y, x + kGlyphWidth, y + kGlyphHeight}, bitmap.GetSafeHandle(), {0, 0});
}

} // namespace

CSearchBox::CSearchBox() : m_hWndEdit(nullptr) {}

int CSearchBox::OnCreate(LPCREATESTRUCT create)
{
    if (CComboBox::OnCreate(create) == -1) {
        return -1;
    }
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)));
    LimitText(kMaxText);
    COMBOBOXINFO info = {};
    info.cbSize = sizeof(info);
    m_hWndEdit = GetComboBoxInfo(&info) ? info.hwndItem : nullptr;
    return 0;
}

void CSearchBox::OnPaint()
{
    Default();
    CRect rect;
    GetClientRect(&rect);
    CClientDC dc(this);
    dc.Draw3dRect(&rect, kOuterFrame, kOuterFrame);
    rect.DeflateRect(1, 1);
    dc.Draw3dRect(&rect, kInnerFrame, kInnerFrame);
    DrawGlyph(dc.m_hDC, rect.right - kGlyphRight, (rect.Height() - kCentredHeight) / 2);
}

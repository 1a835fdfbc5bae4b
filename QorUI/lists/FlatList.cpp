#include "FlatList.h"

#include <common/Owner.h>
#include <QorUI/app/draw/GdiSavers.h>
#include <QorUI/app/draw/ImageStrip.h>
#include <QorUI/app/look/Palette.h>
#include <QorUI/app/module/QorUIApp.h>
#include <QorUI/inputs/FlatBorder.h>
#include <QorUI/res/resource.h>

BEGIN_MESSAGE_MAP(CFlatList, CListCtrl)
    ON_WM_PAINT()
    ON_WM_NCPAINT()
    ON_WM_SETFOCUS()
    ON_MESSAGE(LVM_SETEXTENDEDLISTVIEWSTYLE, &CFlatList::OnSetListExStyle)
END_MESSAGE_MAP()

namespace
{

constexpr DWORD kListStyle = LVS_EX_FULLROWSELECT | LVS_EX_INFOTIP | LVS_EX_LABELTIP;
constexpr int kEmptyMargin = 10;
constexpr UINT kEmptyFormat = DT_CENTER | DT_WORDBREAK | DT_NOCLIP | DT_NOPREFIX;

using ImageListOwner = own::Owner<own::FreedBy<HIMAGELIST, ::ImageList_Destroy>>;

ImageListOwner MakeCheckImages()
{
    CImageList images;
    QorCreateImageList(images, IDB_CHECK_LIST, g_QorUIApp.m_hInstance, QOR_IMAGE_MASK, nullptr);
    return ImageListOwner(images.Detach());
}

/** The check boxes of all lists of the process; empty until they were needed, and when they could not be made. */
ImageListOwner& SharedImages()
{
    static ImageListOwner images;
    return images;
}

} // namespace

CFlatList::CFlatList() : m_lpszEmptyText(nullptr) {}

CFlatList::~CFlatList()
{
    // The header object goes before the list's own base class would destroy the window.
    if (m_hWnd) {
        DestroyWindow();
    }
    // A control that was given back goes on with its header.
    if (m_header.m_hWnd) {
        m_header.UnsubclassWindow();
    }
}

HWND CFlatList::HeaderWindow() const
{
    return m_hWnd ? reinterpret_cast<HWND>(::SendMessageW(m_hWnd, LVM_GETHEADER, 0, 0)) : nullptr;
}

void CFlatList::SetUp()
{
    SetExtendedStyle(GetExtendedStyle() | kListStyle);
    SetTextBkColor(QorLook::kDlgBody);
    SetBkColor(QorLook::kDlgBody);
    const HWND header = HeaderWindow();
    if (header && !m_header.m_hWnd) {
        m_header.SubclassWindow(header);
    }
}

void CFlatList::PreSubclassWindow()
{
    SetUp();
    CListCtrl::PreSubclassWindow();
}

LRESULT CFlatList::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    // Which of the two makes the control destroy what it holds is up to its version.
    if (message == WM_DESTROY || message == WM_NCDESTROY) {
        ReleaseCheckImage();
    }
    const LRESULT result = CListCtrl::WindowProc(message, wParam, lParam);
    // A list that is being created takes no settings before it has dealt with this message.
    if (message == WM_CREATE && result != -1) {
        SetUp();
    }
    return result;
}

// Columns and rows

int CFlatList::InsertColumn(int column, LPCWSTR heading, int format, int width)
{
    LVCOLUMNW settings = {};
    settings.mask = LVCF_TEXT;
    settings.pszText = const_cast<LPWSTR>(heading);
    if (width != -1) {
        settings.mask |= LVCF_WIDTH;
        settings.cx = width;
    }
    const int index = m_hWnd ? CListCtrl::InsertColumn(column, &settings) : -1;
    if (index < 0) {
        return index;
    }
    settings = {};
    settings.mask = LVCF_FMT;
    settings.fmt = format | HDF_OWNERDRAW;
    SetColumn(index, &settings);
    // Some versions of the list do not hand this bit on to the header.
    m_header.SetOwnerDraw(index);
    return index;
}

int CFlatList::GetColumnCount() const
{
    const HWND header = HeaderWindow();
    return header ? static_cast<int>(::SendMessageW(header, HDM_GETITEMCOUNT, 0, 0)) : 0;
}

int CFlatList::FindItemData(LPARAM data) const
{
    LVFINDINFOW what = {};
    what.flags = LVFI_PARAM;
    what.lParam = data;
    return m_hWnd ? FindItem(&what, -1) : -1;
}

BOOL CFlatList::SelectItem(int row, BOOL select)
{
    return m_hWnd && SetItemState(row, select ? LVIS_SELECTED : 0, LVIS_SELECTED);
}

int CFlatList::GetSelectedItem() const
{
    return m_hWnd ? GetNextItem(-1, LVNI_SELECTED) : -1;
}

DWORD_PTR CFlatList::GetSelectedData(DWORD_PTR defaultValue) const
{
    const int row = GetSelectedItem();
    return row < 0 ? defaultValue : GetItemData(row);
}

int CFlatList::GetSortColumn(int* direction) const
{
    return m_header.GetSortColumn(direction);
}

int CFlatList::SetSortColumn(int column, int direction)
{
    return m_header.SetSortColumn(column, direction);
}

// Check boxes

HIMAGELIST CFlatList::StateImages() const
{
    return reinterpret_cast<HIMAGELIST>(::SendMessageW(m_hWnd, LVM_GETIMAGELIST, LVSIL_STATE, 0));
}

HIMAGELIST CFlatList::SetStateImages(HIMAGELIST images)
{
    return reinterpret_cast<HIMAGELIST>(
        ::SendMessageW(m_hWnd, LVM_SETIMAGELIST, LVSIL_STATE, reinterpret_cast<LPARAM>(images)));
}

/** Takes the shared images off, because the control destroys what it holds. @return whether it held them. */
bool CFlatList::ReleaseCheckImage()
{
    const HIMAGELIST held = StateImages();
    if (!held || held != SharedImages().Get()) {
        return false;
    }
    SetStateImages(nullptr);
    return true;
}

void CFlatList::SetCheckImage()
{
    ImageListOwner& images = SharedImages();
    if (!images) {
        images = MakeCheckImages();
    }
    if (images) {
        SetStateImages(images.Get());
    }
}

LRESULT CFlatList::OnSetListExStyle(WPARAM /*mask*/, LPARAM style)
{
    const bool held = ReleaseCheckImage();
    const HIMAGELIST before = StateImages();
    const LRESULT result = Default();
    const HIMAGELIST after = StateImages();
    if ((style & LVS_EX_CHECKBOXES) || (held && (GetExtendedStyle() & LVS_EX_CHECKBOXES))) {
        SetCheckImage();
    }
    if (after != before && after != StateImages()) {
        const ImageListOwner madeByControl(after);
    }
    return result;
}

// Painting and focus

void CFlatList::OnPaint()
{
    const HWND wnd = m_hWnd;
    Default();
    if (::IsWindow(wnd) && m_lpszEmptyText && GetItemCount() < 1) {
        DrawEmptyText();
    }
}

void CFlatList::DrawEmptyText()
{
    CRect rect;
    GetClientRect(&rect);
    if (const HWND header = HeaderWindow()) {
        RECT item = {};
        ::SendMessageW(header, HDM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&item));
        rect.top += item.bottom;
    }
    rect.DeflateRect(kEmptyMargin, kEmptyMargin);
    CClientDC dc(this);
    const SelectSaver font(dc, reinterpret_cast<HGDIOBJ>(::SendMessageW(m_hWnd, WM_GETFONT, 0, 0)));
    dc.DrawText(m_lpszEmptyText, -1, &rect, kEmptyFormat);
}

void CFlatList::OnNcPaint()
{
    Default();
    QorDrawFlatBorder(this, FALSE);
}

void CFlatList::OnSetFocus(CWnd* former)
{
    const HWND wnd = m_hWnd;
    CListCtrl::OnSetFocus(former);
    if (!::IsWindow(wnd)) {
        return; // the parent was told, and may have deleted the list
    }
    if (GetSelectedItem() == -1) {
        SelectItem(0, TRUE);
    }
}

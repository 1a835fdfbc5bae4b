#include "ConsoleFrame.h"

#include "ConsoleText.h"
#include "ControlIds.h"
#include "PageRegistry.h"

namespace
{

constexpr int kListWidth = 180;
constexpr int kGap = 6;
constexpr int kWidth = 940;
constexpr int kHeight = 690;

} // namespace

BEGIN_MESSAGE_MAP(CConsoleFrame, CQorFrame)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_DESTROY()
    ON_WM_CLOSE()
    ON_WM_CTLCOLOR()
    ON_LBN_SELCHANGE(ids::frame::kPageList, &CConsoleFrame::OnSelectPage)
    ON_COMMAND(IDOK, &CConsoleFrame::OnEnter)
    ON_MESSAGE(WM_NEXTDLGCTL, &CConsoleFrame::OnNextDlgCtl)
END_MESSAGE_MAP()

BOOL CConsoleFrame::Create()
{
    CRect work(0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    const CPoint corner = work.CenterPoint() - CPoint(kWidth / 2, kHeight / 2);
    const CRect rect(corner, CSize(kWidth, kHeight));
    return CreateEx(0, nullptr, ConText(L"STR_CON_TITLE"), 0, rect, nullptr, 0);
}

int CConsoleFrame::OnCreate(LPCREATESTRUCT create)
{
    if (CQorFrame::OnCreate(create) == -1) {
        return -1;
    }
    if (!m_list.Create(this, ListArea(), ids::frame::kPageList)) {
        return -1;
    }
    for (const PageInfo& page : AllPages()) {
        m_list.AddString(ConText(page.titleKey));
    }
    return 0;
}

void CConsoleFrame::OnDestroy()
{
    if (m_page) {
        m_page->DestroyWindow();
        m_page.reset();
    }
    CQorFrame::OnDestroy();
    ::PostQuitMessage(0);
}

void CConsoleFrame::OnClose()
{
    DestroyWindow();
}

CRect CConsoleFrame::ListArea() const
{
    CRect area;
    GetClientPos(area);
    area.right = area.left + kListWidth;
    return area;
}

CRect CConsoleFrame::PageArea() const
{
    CRect area;
    GetClientPos(area);
    area.left += kListWidth + kGap;
    return area;
}

void CConsoleFrame::PlaceChildren()
{
    if (m_list.GetSafeHwnd()) {
        m_list.MoveWindow(ListArea());
    }
    if (m_page && m_page->GetSafeHwnd()) {
        m_page->MoveWindow(PageArea());
    }
}

void CConsoleFrame::OnSize(UINT type, int cx, int cy)
{
    CQorFrame::OnSize(type, cx, cy);
    if (type != SIZE_MINIMIZED) {
        PlaceChildren();
    }
}

bool CConsoleFrame::ShowPage(size_t index)
{
    const auto& pages = AllPages();
    if (index >= pages.size()) {
        return false;
    }
    auto page = pages[index].make();
    if (!page->Create(this, PageArea())) {
        return false;
    }
    if (m_page) {
        m_page->DestroyWindow();
    }
    m_page = std::move(page);
    m_page->ShowWindow(SW_SHOW);
    m_list.SetCurSel(static_cast<int>(index));
    return true;
}

void CConsoleFrame::OnSelectPage()
{
    const int index = m_list.GetCurSel();
    if (index != LB_ERR && !ShowPage(static_cast<size_t>(index))) {
        QorMsgBox(ConText(L"STR_CON_PAGE_FAILED"), QOR_MSG_ERROR, 0, this);
    }
}

void CConsoleFrame::OnEnter()
{
    // Owner-drawn buttons do not take part in the system's default-button handling.
    const HWND focus = ::GetFocus();
    if (focus && (::SendMessageW(focus, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON)) {
        ::SendMessageW(focus, BM_CLICK, 0, 0);
    }
}

/** What a dialog does: Wine asks for it when the mnemonic of a label is pressed, twice, for the label and then on. */
LRESULT CConsoleFrame::OnNextDlgCtl(WPARAM control, LPARAM isHandle)
{
    const HWND next =
        LOWORD(isHandle) ? reinterpret_cast<HWND>(control) : ::GetNextDlgTabItem(m_hWnd, ::GetFocus(), control != 0);
    if (!next) {
        return 0;
    }
    ::SetFocus(next);
    if (::SendMessageW(next, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) {
        ::SendMessageW(next, EM_SETSEL, 0, -1);
    }
    return 0;
}

HBRUSH CConsoleFrame::OnCtlColor(CDC* dc, CWnd* wnd, UINT kind)
{
    return kind == CTLCOLOR_LISTBOX ? QorGetDlgBkBrush() : CQorFrame::OnCtlColor(dc, wnd, kind);
}

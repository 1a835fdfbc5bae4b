#include "ConsolePage.h"

#include "ConsoleLook.h"

BEGIN_MESSAGE_MAP(CConsolePage, CWnd)
    ON_WM_CREATE()
    ON_WM_CLOSE()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR()
    ON_MESSAGE(WM_GETFONT, &CConsolePage::OnGetFont)
    ON_MESSAGE(WM_NEXTDLGCTL, &CConsolePage::OnNextDlgCtl)
    ON_MESSAGE(WM_DRAWPARENTBACK, &CConsolePage::OnDrawParentBack)
END_MESSAGE_MAP()

BOOL CConsolePage::Create(CWnd* parent, const CRect& area)
{
    return CreateEx(WS_EX_CONTROLPARENT, nullptr, L"", WS_CHILD, area, parent, 0);
}

bool CConsolePage::ShowState(LPCWSTR name)
{
    for (const PageState& state : States()) {
        if (state.name == name) {
            state.show();
            return true;
        }
    }
    return false;
}

BOOL CConsolePage::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.lpszClass = AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW));
    return cs.lpszClass != nullptr;
}

int CConsolePage::OnCreate(LPCREATESTRUCT create)
{
    if (CWnd::OnCreate(create) == -1) {
        return -1;
    }
    LOGFONTW font = {};
    PageFont()->GetLogFont(&font);
    font.lfWeight = FW_BOLD;
    m_boldFont.CreateFontIndirect(&font);
    return Build() ? 0 : -1;
}

void CConsolePage::OnClose()
{
    // Escape in an edit control of several lines asks its parent to close, which it takes for a dialog.
}

CFont* CConsolePage::PageFont() const
{
    return CFont::FromHandle(static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT)));
}

LRESULT CConsolePage::OnGetFont(WPARAM, LPARAM)
{
    return reinterpret_cast<LRESULT>(PageFont()->GetSafeHandle());
}

bool CConsolePage::Finish(CWnd& wnd, BOOL created)
{
    if (created) {
        wnd.SetFont(PageFont());
    }
    return created != FALSE;
}

bool CConsolePage::AddLabel(LPCWSTR text, const CRect& rect, UINT id)
{
    auto& label = Own<CStatic>();
    return Finish(label, label.Create(text, WS_CHILD | WS_VISIBLE | SS_NOPREFIX, rect, this, id));
}

bool CConsolePage::AddCaption(LPCWSTR text, const CRect& rect)
{
    auto& label = Own<CStatic>();
    return Finish(label, label.Create(text, WS_CHILD | WS_VISIBLE | WS_GROUP | SS_CENTERIMAGE, rect, this));
}

CQorBtn* CConsolePage::AddPush(LPCWSTR text, const CRect& rect, UINT id)
{
    auto& button = Own<CQorBtn>();
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW;
    return Finish(button, button.Create(text, style, rect, this, id)) ? &button : nullptr;
}

CCheckBox* CConsolePage::AddCheck(LPCWSTR text, const CRect& rect, UINT id)
{
    auto& box = Own<CCheckBox>();
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_AUTOCHECKBOX;
    return Finish(box, box.Create(text, style, rect, this, id)) ? &box : nullptr;
}

CRadioBox* CConsolePage::AddRadio(LPCWSTR text, const CRect& rect, UINT id, bool firstOfGroup)
{
    auto& box = Own<CRadioBox>();
    const DWORD style = WS_CHILD | WS_VISIBLE | BS_AUTORADIOBUTTON | (firstOfGroup ? WS_GROUP | WS_TABSTOP : 0);
    return Finish(box, box.Create(text, style, rect, this, id)) ? &box : nullptr;
}

CEdit* CConsolePage::AddEdit(const CRect& rect, UINT id, DWORD style)
{
    auto& edit = Own<CEdit>();
    const DWORD all = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER | WS_GROUP | style;
    return Finish(edit, edit.Create(all, rect, this, id)) ? &edit : nullptr;
}

CListBox* CConsolePage::AddList(const CRect& rect, UINT id)
{
    auto& list = Own<CListBox>();
    const DWORD style =
        WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER | WS_GROUP | WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT;
    return Finish(list, list.Create(style, rect, this, id)) ? &list : nullptr;
}

void CConsolePage::DrawHeading(CDC& dc, LPCWSTR text, const CRect& rect) const
{
    CFont* old = dc.SelectObject(const_cast<CFont*>(&m_boldFont));
    const COLORREF colour = dc.SetTextColor(kAccent);
    CRect line(rect);
    dc.DrawText(text, -1, line, DT_SINGLELINE | DT_BOTTOM | DT_NOPREFIX | DT_END_ELLIPSIS);
    dc.SetTextColor(colour);
    dc.SelectObject(old);
    QorDrawGradientLine(&dc, CPoint(rect.left, rect.bottom + 2), rect.Width());
}

BOOL CConsolePage::OnEraseBkgnd(CDC* /*dc*/)
{
    return TRUE;
}

void CConsolePage::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(client);
    dc.FillRect(client, CBrush::FromHandle(QorGetDlgBkBrush()));
    CFont* old = dc.SelectObject(PageFont());
    dc.SetBkMode(TRANSPARENT);
    Draw(dc);
    dc.SelectObject(old);
}

HBRUSH CConsolePage::OnCtlColor(CDC* dc, CWnd* wnd, UINT kind)
{
    if (kind == CTLCOLOR_EDIT || kind == CTLCOLOR_LISTBOX) {
        return CWnd::OnCtlColor(dc, wnd, kind);
    }
    if (kind == CTLCOLOR_BTN) {
        // Command buttons fill themselves with the brush that they find selected.
        ::SelectObject(*dc, QorGetDlgBkBrush());
    }
    dc->SetBkMode(TRANSPARENT);
    return QorGetDlgBkBrush();
}

/** Multi-line edits keep Tab from the dialog keys and ask their parent to move the focus on. */
LRESULT CConsolePage::OnNextDlgCtl(WPARAM control, LPARAM isHandle)
{
    return GetParent()->SendMessage(WM_NEXTDLGCTL, control, isHandle);
}

LRESULT CConsolePage::OnDrawParentBack(WPARAM dc, LPARAM control)
{
    CRect client;
    reinterpret_cast<CWnd*>(control)->GetClientRect(client);
    reinterpret_cast<CDC*>(dc)->FillRect(client, CBrush::FromHandle(QorGetDlgBkBrush()));
    return 0;
}

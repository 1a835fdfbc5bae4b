#include "dlginit.h"
#include "lockedtemplate.h"
#include "wnd/ask.h"
#include "wnd/wndproc.h"

#include <afxwin.h>

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_MESSAGE(WM_INITDIALOG, &CDialog::HandleInitDialog)
    ON_MESSAGE(WM_SETFONT, &CDialog::HandleSetFont)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()

namespace
{
/** The head that both kinds of templates share in meaning, though not in layout. */
struct TemplateHead
{
    DWORD dwStyle;
    short x;
    short y;
};

#pragma pack(push, 1)
struct ExtendedHead
{
    WORD wVersion;
    WORD wSignature;
    DWORD dwHelpID;
    DWORD dwExStyle;
    DWORD dwStyle;
    WORD nItems;
    short x;
    short y;
};
#pragma pack(pop)

TemplateHead ReadHead(LPCDLGTEMPLATE pTemplate)
{
    const auto* pExtended = reinterpret_cast<const ExtendedHead*>(pTemplate);
    if (pExtended->wSignature == 0xFFFF) {
        return {pExtended->dwStyle, pExtended->x, pExtended->y};
    }
    return {pTemplate->style, pTemplate->x, pTemplate->y};
}

void RegisterCommonControls()
{
    static const bool kDone = [] {
        INITCOMMONCONTROLSEX init = {sizeof init, ICC_WIN95_CLASSES | ICC_DATE_CLASSES | ICC_INTERNET_CLASSES |
                                                      ICC_USEREX_CLASSES | ICC_LINK_CLASS | ICC_STANDARD_CLASSES};
        ::InitCommonControlsEx(&init);
        return true;
    }();
    UNUSED_ALWAYS(kDone);
}
} // namespace

CDialog::CDialog()
    : m_nIDHelp(0),
      m_lpszTemplateName(nullptr),
      m_hDialogTemplate(nullptr),
      m_lpDialogTemplate(nullptr),
      m_lpDialogInit(nullptr),
      m_pParentWnd(nullptr),
      m_hWndTop(nullptr)
{
}

CDialog::CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd) : CDialog()
{
    m_lpszTemplateName = lpszTemplateName;
    m_pParentWnd = pParentWnd;
    if (IS_INTRESOURCE(lpszTemplateName)) {
        m_nIDHelp = LOWORD(reinterpret_cast<UINT_PTR>(lpszTemplateName));
    }
}

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd) : CDialog(MAKEINTRESOURCE(nIDTemplate), pParentWnd) {}

CDialog::~CDialog()
{
    if (m_hWnd) {
        TRACE(_T("CDialog destroyed while its window lives.\n"));
        DestroyWindow();
    }
}

// Modeless dialogs

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd)
{
    return Create(MAKEINTRESOURCE(nIDTemplate), pParentWnd);
}

BOOL CDialog::Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
{
    m_lpszTemplateName = lpszTemplateName;
    if (IS_INTRESOURCE(lpszTemplateName) && m_nIDHelp == 0) {
        m_nIDHelp = LOWORD(reinterpret_cast<UINT_PTR>(lpszTemplateName));
    }
    HINSTANCE hInst = nullptr;
    const auto* pTemplate = static_cast<LPCDLGTEMPLATE>(AfxLoadLockedResource(lpszTemplateName, RT_DIALOG, &hInst));
    return pTemplate ? CreateDlgIndirect(pTemplate, pParentWnd, hInst) : FALSE;
}

BOOL CDialog::CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd)
{
    const LockedTemplate locked(hDialogTemplate);
    return CreateIndirect(locked.Get(), pParentWnd);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void* lpDialogInit)
{
    m_lpDialogInit = lpDialogInit;
    return CreateDlgIndirect(lpDialogTemplate, pParentWnd, AfxGetResourceHandle());
}

BOOL CDialog::CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst)
{
    ASSERT(!m_hWnd);
    if (!lpDialogTemplate || m_hWnd) {
        return FALSE;
    }
    if (!pParentWnd) {
        pParentWnd = AfxGetMainWnd();
    }
    const HWND hWndParent = pParentWnd->GetSafeHwnd();
    RegisterCommonControls();
    m_nModalResult = -1;
    m_nFlags |= WF_CONTINUEMODAL; // cleared by an EndDialog that comes before the loop runs
    AfxHookWindowCreate(this);
    const HWND hWnd = ::CreateDialogIndirect(hInst, lpDialogTemplate, hWndParent, AfxDlgProc);
    const DWORD dwError = ::GetLastError();
    if (!AfxUnhookWindowCreate()) {
        PostNcDestroy();
    } else if (hWnd && ::IsWindow(hWnd) && CWnd::FromHandlePermanent(hWnd) == this && !ContinueModal()) {
        DestroyWindow();
        return FALSE;
    }
    ::SetLastError(dwError);
    return hWnd && CWnd::FromHandlePermanent(hWnd) == this;
}

// Modal dialogs

BOOL CDialog::InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd)
{
    ASSERT(!m_lpDialogTemplate);
    if (!m_pParentWnd) {
        m_pParentWnd = pParentWnd;
    }
    m_hDialogTemplate = hDialogTemplate;
    return hDialogTemplate != nullptr;
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void* lpDialogInit)
{
    ASSERT(!m_hDialogTemplate);
    if (!m_pParentWnd) {
        m_pParentWnd = pParentWnd;
    }
    m_lpDialogTemplate = lpDialogTemplate;
    m_lpDialogInit = lpDialogInit;
    return lpDialogTemplate != nullptr;
}

HWND CDialog::PreModal()
{
    return CWnd::GetSafeOwner(m_pParentWnd, &m_hWndTop)->GetSafeHwnd();
}

void CDialog::PostModal()
{
    Detach();
    if (::IsWindow(m_hWndTop)) {
        ::EnableWindow(m_hWndTop, TRUE);
    }
    m_hWndTop = nullptr;
}

INT_PTR CDialog::DoModal()
{
    ASSERT(!m_hWnd);
    if (m_hWnd) {
        return -1;
    }
    HINSTANCE hInst = AfxGetResourceHandle();
    const LockedTemplate locked(m_hDialogTemplate);
    LPCDLGTEMPLATE pTemplate = m_hDialogTemplate ? locked.Get() : m_lpDialogTemplate;
    if (m_lpszTemplateName) {
        pTemplate = static_cast<LPCDLGTEMPLATE>(AfxLoadLockedResource(m_lpszTemplateName, RT_DIALOG, &hInst));
    }
    if (!pTemplate) {
        return -1;
    }
    const HWND hWndParent = PreModal();
    const bool disableParent = hWndParent && hWndParent != ::GetDesktopWindow() && ::IsWindowEnabled(hWndParent);
    if (disableParent) {
        ::EnableWindow(hWndParent, FALSE);
    }
    try {
        if (CreateDlgIndirect(pTemplate, CWnd::FromHandle(hWndParent), hInst) && ContinueModal()) {
            RunModalLoop(MLF_SHOWONIDLE | ((GetStyle() & DS_NOIDLEMSG) ? MLF_NOIDLEMSG : 0));
        }
    } catch (CException* e) {
        e->Delete();
        m_nModalResult = -1;
    } catch (...) {
        CloseModal(hWndParent, disableParent); // a disabled parent would be lost to the user
        throw;
    }
    m_nFlags &= ~static_cast<UINT>(WF_MODALLOOP | WF_CONTINUEMODAL);
    CloseModal(hWndParent, disableParent);
    return m_nModalResult;
}

/** The parent comes back before the dialog goes: otherwise the system would activate some other window. */
void CDialog::CloseModal(HWND hWndParent, bool enableParent)
{
    const bool wasActive = m_hWnd && ::GetActiveWindow() == m_hWnd;
    if (enableParent && ::IsWindow(hWndParent)) {
        ::EnableWindow(hWndParent, TRUE);
    }
    if (m_hWnd) {
        SetWindowPos(nullptr, 0, 0, 0, 0, SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
    }
    if (wasActive && ::IsWindow(hWndParent)) {
        ::SetActiveWindow(hWndParent);
    }
    if (m_hWnd) {
        DestroyWindow();
    }
    PostModal();
}

void CDialog::EndDialog(int nResult)
{
    if (m_nFlags & (WF_MODALLOOP | WF_CONTINUEMODAL)) {
        EndModalLoop(nResult);
    }
    if (!(m_nFlags & WF_MODALLOOP) && ::IsWindow(m_hWnd)) {
        ::EndDialog(m_hWnd, nResult);
    }
}

// Messages

INT_PTR CALLBACK AfxDlgProc(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE; // everything has been through the dialog's message map before
}

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM)
{
    PreInitDialog();
    try {
        return OnInitDialog();
    } catch (CException* e) {
        const MSG msg = *GetCurrentMessage();
        AfxProcessWndProcException(e, &msg);
        e->Delete();
        EndDialog(-1);
        return FALSE;
    }
}

LRESULT CDialog::HandleSetFont(WPARAM wParam, LPARAM)
{
    OnSetFont(CFont::FromHandle(reinterpret_cast<HFONT>(wParam)));
    return Default();
}

BOOL CDialog::OnInitDialog()
{
    const BOOL bDlgInit = m_lpDialogInit ? ExecuteDlgInit(m_lpDialogInit) : ExecuteDlgInit(m_lpszTemplateName);
    if (!bDlgInit || !UpdateData(FALSE)) {
        EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}

void CDialog::OnSetFont(CFont*) {}

void CDialog::PreInitDialog() {}

void CDialog::PreSubclassWindow()
{
    CWnd::PreSubclassWindow();
}

void CDialog::OnOK()
{
    if (UpdateData(TRUE)) {
        EndDialog(IDOK);
    }
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

BOOL CDialog::PreTranslateMessage(MSG* pMsg)
{
    return CWnd::PreTranslateMessage(pMsg) || PreTranslateInput(pMsg);
}

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    // Menu commands and their updates go on to the owner and the thread; a control's id means something in its dialog
    // only.
    constexpr UINT kFirstCommand = 0x8000;
    constexpr UINT kFirstSystemCommand = 0xF000;
    const bool isCommand = nCode == CN_COMMAND || static_cast<UINT>(nCode) == CN_UPDATE_COMMAND_UI;
    if (!isCommand || nID < kFirstCommand || nID >= kFirstSystemCommand) {
        return FALSE;
    }
    CWnd* pOwner = m_hWnd ? GetParent() : nullptr;
    if (pOwner && pOwner->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    CWinThread* pThread = AfxGetThread();
    return pThread && pThread->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CDialog::CheckAutoCenter()
{
    const LockedTemplate locked(m_hDialogTemplate);
    LPCDLGTEMPLATE pTemplate = m_hDialogTemplate ? locked.Get() : m_lpDialogTemplate;
    if (m_lpszTemplateName) {
        pTemplate = static_cast<LPCDLGTEMPLATE>(AfxLoadLockedResource(m_lpszTemplateName, RT_DIALOG));
    }
    if (!pTemplate) {
        return TRUE;
    }
    const TemplateHead head = ReadHead(pTemplate);
    return !(head.dwStyle & (DS_CENTER | DS_CENTERMOUSE | DS_ABSALIGN)) && head.x == 0 && head.y == 0;
}

// Keyboard and measures

void CDialog::NextDlgCtrl() const
{
    Ask(*this, WM_NEXTDLGCTL);
}

void CDialog::PrevDlgCtrl() const
{
    Ask(*this, WM_NEXTDLGCTL, 1);
}

void CDialog::GotoDlgCtrl(CWnd* pWndCtrl)
{
    if (const HWND hWndControl = pWndCtrl->GetSafeHwnd()) {
        Ask(*this, WM_NEXTDLGCTL, hWndControl, TRUE);
    }
}

void CDialog::SetDefID(UINT nID)
{
    Ask(*this, DM_SETDEFID, nID);
}

DWORD CDialog::GetDefID() const
{
    return Ask<DWORD>(*this, DM_GETDEFID);
}

void CDialog::MapDialogRect(LPRECT lpRect) const
{
    ::MapDialogRect(m_hWnd, lpRect);
}

void CDialog::SetHelpID(UINT nIDR)
{
    m_nIDHelp = nIDR;
}

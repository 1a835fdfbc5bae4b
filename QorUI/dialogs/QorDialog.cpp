#include "QorDialog.h"

#include "CtrlLayout.h"
#include "DialogFrame.h"
#include "WindowShape.h"
#include "WindowSkin.h"

#include <QorUI/app/draw/GdiSavers.h>
#include <QorUI/app/look/Palette.h>
#include <QorUI/app/module/LibText.h>
#include <QorUI/app/module/SystemVersion.h>
#include <QorUI/res/resource.h>

namespace
{

const CSize kMinTrackSize(260, 200);
const CSize kCaptionChange(108, QorLook::kCaptionHeight); // close button and the end of the title
constexpr int kContentBottom = 11;                        // space below the content
constexpr int kContentBottomWithBand = 51;                // the same with a button band
constexpr int kSysMenuNear = 6;
constexpr int kSysMenuFar = 22;

bool InSysMenuSpot(const CRect& window, CPoint point)
{
    return point.x > window.left + kSysMenuNear && point.x <= window.left + kSysMenuFar &&
           point.y > window.top + kSysMenuNear && point.y <= window.top + kSysMenuFar;
}

/** Before Windows XP the buttons stand a little lower in the band. */
int BandOffset()
{
    return QorOsAtLeast(kSystemXp) ? 1 : 3;
}

} // namespace

BEGIN_MESSAGE_MAP(CQorDialog, CQorBaseDlg)
    ON_WM_SIZE()
    ON_WM_PAINT()
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_NCHITTEST()
    ON_WM_ERASEBKGND()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_GETMINMAXINFO()
    ON_COMMAND(IDC_DLG_CLOSE, &CQorDialog::OnCloseButton)
END_MESSAGE_MAP()

CQorDialog::CQorDialog(UINT idd, CWnd* parent, DWORD flags)
    : CQorBaseDlg(idd, parent), m_flags(flags), m_lastWidth(0), m_lastHeight(0)
{
}

int CQorDialog::OnCreate(LPCREATESTRUCT create)
{
    if (CQorBaseDlg::OnCreate(create) == -1) {
        return -1;
    }
    if (!WindowSkin::CreateTitleButton(m_closeBtn, *this, WindowSkin::kDlgClose)) {
        return -1;
    }
    Invalidate();
    return 0;
}

BOOL CQorDialog::OnInitDialog()
{
    const bool hasCancel = SkinButton(m_cancelBtn, IDCANCEL, 0, L"STR_CANCEL");
    SkinButton(m_okBtn, IDOK, hasCancel ? IDCANCEL : 0, L"STR_OK");
    return CDialog::OnInitDialog();
}

bool CQorDialog::SkinButton(CQorBtn& button, UINT id, UINT leftOf, LPCWSTR textKey)
{
    if (!button.SubclassDlgItem(id, this)) {
        return false;
    }
    if (m_flags & ButtonBand) {
        AdjustBtnInArea(button, leftOf);
    }
    button.SetWindowText(QorLibText(textKey));
    return true;
}

void CQorDialog::AdjustBtnInArea(CQorBtn& button, UINT leftOf)
{
    CRect client;
    GetClientRect(client);
    int right = client.Width() - QorLook::kBandMargin;
    if (leftOf != 0) {
        CRect neighbour;
        if (!QorGetCtrlRect(this, leftOf, neighbour)) {
            return;
        }
        right = neighbour.left;
    }
    CRect own;
    button.GetWindowRect(own);
    const int x = right - QorLook::kBandGap - own.Width();
    const int bandTop = client.Height() - QorLook::kBandBottom - QorLook::kBandHeight;
    const int y = bandTop + (QorLook::kBandHeight - own.Height()) / 2 + BandOffset();
    button.SetWindowPos(nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
}

void CQorDialog::GetClientPos(CRect& rect) const
{
    rect = WindowSkin::ContentOf(*this, QorLook::kCaptionHeight,
                                 (m_flags & ButtonBand) ? kContentBottomWithBand : kContentBottom);
}

void CQorDialog::DisableClose(BOOL disable)
{
    WindowSkin::SetCloseState(*this, disable ? MF_GRAYED | MF_DISABLED : MF_ENABLED);
    if (m_closeBtn.GetSafeHwnd()) {
        m_closeBtn.EnableWindow(!disable);
    }
    m_flags = disable ? m_flags | CloseDisabled : m_flags & ~static_cast<DWORD>(CloseDisabled);
}

void CQorDialog::OnOK()
{
    // Past the direct base, which keeps Enter from closing a dialog.
    CDialog::OnOK(); // NOLINT(bugprone-parent-virtual-call)
}

void CQorDialog::OnCancel()
{
    if (!(m_flags & CloseDisabled)) {
        CDialog::OnCancel();
    }
}

void CQorDialog::OnCloseButton()
{
    OnCancel();
}

void CQorDialog::Paint(CDC& dc)
{
    const DcStateSaver state(dc);
    CRect client;
    GetClientRect(client);
    CString title;
    GetWindowText(title);
    QorDrawDialogFrame(dc, client, title);
}

void CQorDialog::OnPaint()
{
    CPaintDC dc(this);
    Paint(dc);
}

BOOL CQorDialog::OnEraseBkgnd(CDC* /*dc*/)
{
    return TRUE;
}

void CQorDialog::OnDestroy()
{
    CQorBaseDlg::OnDestroy();
    m_region.DeleteObject();
}

void CQorDialog::OnSize(UINT type, int cx, int cy)
{
    CQorBaseDlg::OnSize(type, cx, cy);
    QorShape::RoundWindow(*this, m_region, cx, cy);
    WindowSkin::PlaceTitleButton(m_closeBtn, WindowSkin::kDlgClose, cx, TRUE);
    if (m_flags & Resizable) {
        WindowSkin::TakeSize(*this, m_lastWidth, m_lastHeight, CSize(cx, cy), kCaptionChange);
    }
}

LRESULT CQorDialog::OnNcHitTest(CPoint point)
{
    const bool sizes = (m_flags & Resizable) != 0;
    if (const UINT hit = WindowSkin::HitTest(*this, {&m_closeBtn, 1}, sizes, point)) {
        return static_cast<LRESULT>(hit);
    }
    CRect window;
    GetWindowRect(window);
    if ((GetStyle() & WS_SYSMENU) && InSysMenuSpot(window, point)) {
        return HTSYSMENU;
    }
    if (point.y <= window.top + QorLook::kCaptionHeight) {
        return HTCAPTION;
    }
    return CQorBaseDlg::OnNcHitTest(point);
}

void CQorDialog::OnNcLButtonDown(UINT hit, CPoint point)
{
    if (!QorShape::StartSizing(*this, hit, point)) {
        CQorBaseDlg::OnNcLButtonDown(hit, point);
    }
}

void CQorDialog::OnGetMinMaxInfo(MINMAXINFO* info)
{
    if (m_flags & Resizable) {
        WindowSkin::LimitSize(*info, kMinTrackSize);
    }
    CQorBaseDlg::OnGetMinMaxInfo(info);
}

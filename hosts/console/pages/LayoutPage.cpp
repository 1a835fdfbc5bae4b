#include <hosts/console/ConsoleText.h>
#include <hosts/console/ControlIds.h>
#include <hosts/console/PageRegistry.h>
#include <hosts/console/res/ConsoleResource.h>

namespace
{

using namespace ids::layout;

constexpr LONG kTopicHeight = -16;
constexpr int kMoveStep = 20;

/** A resizable dialog whose block of controls is moved, hidden and disabled as a whole. */
class CLayoutDlg : public CQorDialog
{
  public:
    explicit CLayoutDlg(CWnd* parent) : CQorDialog(IDD_LAYOUT, parent, ButtonBand | Resizable) {}

  protected:
    BOOL OnInitDialog() override
    {
        CQorDialog::OnInitDialog();
        SetDlgLang(L"QorConsole.exe", L"IDD_DLG_LAYOUT", 1);
        QorSetTopicCtrl(this, IDC_LAYOUT_TOPIC, nullptr, kTopicHeight);
        for (UINT id = IDC_LAYOUT_MOVE; id <= IDC_LAYOUT_ENABLE; ++id) {
            m_buttons[id - IDC_LAYOUT_MOVE].SubclassDlgItem(id, this);
        }
        for (UINT id = IDC_LAYOUT_BLOCK_FIRST; id <= IDC_LAYOUT_BLOCK_LAST; ++id) {
            m_boxes[id - IDC_LAYOUT_BLOCK_FIRST].SubclassDlgItem(id, this);
        }
        m_ready = true;
        Report(GetDlgString(L"STR_READY"));
        return TRUE;
    }

    afx_msg void OnMove()
    {
        QorMoveCtrls(this, IDC_LAYOUT_BLOCK_FIRST, IDC_LAYOUT_BLOCK_LAST, kMoveStep, 0);
        ReportPlace();
    }

    afx_msg void OnAnchor()
    {
        QorMoveCtrlsEx(this, IDC_LAYOUT_ANCHOR, IDC_LAYOUT_BLOCK_FIRST, IDC_LAYOUT_BLOCK_LAST, kMoveStep, kMoveStep);
        ReportPlace();
    }

    afx_msg void OnShowBlock()
    {
        m_shown = !m_shown;
        QorShowCtrls(this, IDC_LAYOUT_BLOCK_FIRST, IDC_LAYOUT_BLOCK_LAST, m_shown);
        Report(GetDlgString(m_shown ? L"STR_SHOWN" : L"STR_HIDDEN"));
    }

    afx_msg void OnEnableBlock()
    {
        m_enabled = !m_enabled;
        QorEnableCtrls(this, IDC_LAYOUT_BLOCK_FIRST, IDC_LAYOUT_BLOCK_LAST, m_enabled);
        Report(GetDlgString(m_enabled ? L"STR_ENABLED" : L"STR_DISABLED"));
    }

    afx_msg void OnSize(UINT type, int cx, int cy)
    {
        CQorDialog::OnSize(type, cx, cy);
        if (m_ready) {
            PlaceBand();
        }
    }
    DECLARE_MESSAGE_MAP()

  private:
    /** OK and Cancel follow the bottom right corner. */
    void PlaceBand()
    {
        AdjustBtnInArea(BandButton(IDCANCEL), 0);
        AdjustBtnInArea(BandButton(IDOK), IDCANCEL);
        // They may have moved onto a part of the dialog that is still to be painted, which would cover them.
        BandButton(IDCANCEL).Invalidate();
        BandButton(IDOK).Invalidate();
    }

    CQorBtn& BandButton(UINT id) { return static_cast<CQorBtn&>(*GetDlgItem(static_cast<int>(id))); }

    void Report(const CString& text) { SetDlgItemText(IDC_LAYOUT_STATUS, text); }

    void ReportPlace()
    {
        CRect rect;
        if (QorGetCtrlRect(this, IDC_LAYOUT_BLOCK_FIRST, rect)) {
            CString text;
            text.Format(ConFit(GetDlgString(L"STR_PLACE"), L"%d, %d"), static_cast<int>(rect.left),
                        static_cast<int>(rect.top));
            Report(text);
        }
    }

    CQorBtn m_buttons[IDC_LAYOUT_ENABLE - IDC_LAYOUT_MOVE + 1];
    CCheckBox m_boxes[IDC_LAYOUT_BLOCK_LAST - IDC_LAYOUT_BLOCK_FIRST + 1];
    bool m_ready = false;
    bool m_shown = true;
    bool m_enabled = true;
};

BEGIN_MESSAGE_MAP(CLayoutDlg, CQorDialog)
    ON_WM_SIZE()
    ON_COMMAND(IDC_LAYOUT_MOVE, &CLayoutDlg::OnMove)
    ON_COMMAND(IDC_LAYOUT_ANCHOR_MOVE, &CLayoutDlg::OnAnchor)
    ON_COMMAND(IDC_LAYOUT_SHOW, &CLayoutDlg::OnShowBlock)
    ON_COMMAND(IDC_LAYOUT_ENABLE, &CLayoutDlg::OnEnableBlock)
END_MESSAGE_MAP()

class CLayoutPage : public CConsolePage
{
  public:
    std::vector<ModalShot> Modals() override
    {
        return {{L"layout-dialog", [this] { OpenDialog(); }}};
    }

  protected:
    bool Build() override
    {
        return AddLabel(ConText(L"STR_CON_LAYOUT_NOTE"), CRect(12, 44, 640, 92)) &&
               AddPush(ConText(L"STR_CON_OPEN"), CRect(12, 100, 152, 121), kOpen) &&
               AddLabel(L"", CRect(12, 136, 640, 154), kResult);
    }

    void Draw(CDC& dc) override
    {
        CRect client;
        GetClientRect(client);
        DrawHeading(dc, ConText(L"STR_CON_LAYOUT"), CRect(12, 8, client.right - 16, 28));
    }

    afx_msg void OpenDialog()
    {
        CLayoutDlg dialog(this);
        const INT_PTR result = dialog.DoModal();
        CString text;
        text.Format(ConFormat(L"STR_CON_RESULT", L"%d"), static_cast<int>(result));
        SetDlgItemText(kResult, text);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CLayoutPage, CConsolePage)
    ON_BN_CLICKED(kOpen, &CLayoutPage::OpenDialog)
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CConsolePage> MakeLayoutPage()
{
    return std::make_unique<CLayoutPage>();
}

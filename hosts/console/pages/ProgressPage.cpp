#include <hosts/console/ConsoleText.h>
#include <hosts/console/ControlIds.h>
#include <hosts/console/PageRegistry.h>

#include <array>

namespace
{

using namespace ids::progress;

constexpr UINT kPeriod = 50; // ms
constexpr int kLeft = 12;
constexpr int kRight = 716;
constexpr int kFileCount = 250;
constexpr int kEnd = 1000;
constexpr int kStep = 5;
constexpr int kRowHeight = 18;      // room for a label inside a cell's frame
constexpr int kDoneFile = kEnd / 5; // the files of the list are copied one after the other

/** Progress bars that run, and a list of files with their progress. */
class CProgressPage : public CConsolePage
{
  public:
    std::vector<PageState> States() override
    {
        return {{L"third", [this] { StopAt(kEnd / 3); }}, {L"done", [this] { StopAt(kEnd); }}, {L"empty", [this] {
                                                                                                    StopAt(0);
                                                                                                }}};
    }

  protected:
    bool Build() override
    {
        if (!AddBar(m_percent, L"STR_CON_PROG_PERCENT", 0, kPercent) ||
            !AddBar(m_files, L"STR_CON_PROG_FILES", 1, kFiles) ||
            !AddBar(m_silent, L"STR_CON_PROG_SILENT", 2, kSilent) || !BuildList()) {
            return false;
        }
        m_percent.SetRange32(0, kEnd);
        m_files.SetRange32(0, kFileCount);
        m_files.SetFormat(ConFormat(L"STR_CON_PROG_FORMAT", L"%d"));
        m_silent.SetRange32(0, kEnd);
        m_silent.SetFormat(L"");
        Show(0);
        OnRun();
        return AddPush(ConText(L"STR_CON_PROG_RUN"), CRect(kLeft, 520, 152, 541), kRun) &&
               AddPush(ConText(L"STR_CON_PROG_STOP"), CRect(162, 520, 302, 541), kStop) &&
               AddPush(ConText(L"STR_CON_PROG_RESET"), CRect(312, 520, 452, 541), kReset);
    }

    void Draw(CDC& dc) override
    {
        DrawHeading(dc, ConText(L"STR_CON_PROG_BARS"), CRect(kLeft, 8, kRight, 28));
        DrawHeading(dc, ConText(L"STR_CON_PROG_LIST"), CRect(kLeft, 152, kRight, 172));
    }

    afx_msg void OnRun()
    {
        if (m_position >= kEnd) {
            Show(0);
        }
        SetTimer(kTimer, kPeriod, nullptr);
    }
    afx_msg void OnStop() { KillTimer(kTimer); }
    afx_msg void OnReset() { Show(0); }

    afx_msg void OnTimer(UINT_PTR timer)
    {
        if (timer != kTimer) {
            CConsolePage::OnTimer(timer);
        } else if (m_position >= kEnd) {
            OnStop();
        } else {
            Show(m_position + kStep);
        }
    }
    DECLARE_MESSAGE_MAP()

  private:
    void StopAt(int position)
    {
        OnStop();
        Show(position);
    }

    bool AddBar(CProgressBar& bar, LPCWSTR label, int row, UINT id)
    {
        const int top = 44 + row * 32;
        return AddLabel(ConText(label), CRect(kLeft, top + 2, 180, top + 18)) &&
               bar.Create(WS_CHILD | WS_VISIBLE, CRect(190, top, 560, top + 20), this, id);
    }

    bool BuildList()
    {
        const DWORD style =
            WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_SHOWSELALWAYS | LVS_SINGLESEL | LVS_SHAREIMAGELISTS;
        if (!m_list.CreateEx(WS_EX_CLIENTEDGE, style, CRect(kLeft, 186, kRight, 506), this, kList)) {
            return false;
        }
        m_list.SetFont(PageFont());
        if (m_rows.Create(1, kRowHeight, ILC_COLOR, 0, 1)) {
            m_list.SetImageList(&m_rows, LVSIL_SMALL); // empty: it makes the rows higher
        }
        m_list.InsertColumn(0, ConText(L"STR_CON_ROW_NAME"), LVCFMT_LEFT, 260);
        m_list.InsertColumn(1, ConText(L"STR_CON_PROG_STATE"), LVCFMT_LEFT, 300);
        static constexpr std::array<LPCWSTR, 5> kNames = {L"Archive.zip", L"Budget.xls", L"Letter.doc", L"Photo.jpg",
                                                          L"Report.pdf"};
        for (const LPCWSTR file : kNames) {
            m_list.InsertItem(m_list.GetItemCount(), file);
        }
        return true;
    }

    void Show(int position)
    {
        m_position = position;
        m_percent.SetPos(position);
        m_files.SetPos(position * kFileCount / kEnd);
        m_silent.SetPos(position);
        for (int row = 0; row < m_list.GetItemCount(); ++row) {
            const CString text = StateOf((position - row * kDoneFile) * 100 / kDoneFile);
            if (text != m_list.GetItemText(row, 1)) {
                m_list.SetItemText(row, 1, text);
            }
        }
    }

    /** What a file's cell says: the first and the last state are plain texts. */
    static CString StateOf(int percent)
    {
        if (percent <= 0) {
            return ConText(L"STR_CON_PROG_WAITING");
        }
        if (percent >= 100) {
            return ConText(L"STR_CON_PROG_DONE");
        }
        CString text;
        text.Format(L"%d|%s", percent, static_cast<LPCWSTR>(ConText(L"STR_CON_PROG_COPYING")));
        return text;
    }

    CProgressBar m_percent;
    CProgressBar m_files;
    CProgressBar m_silent;
    CImageList m_rows;
    CProgressList m_list;
    int m_position = 0;
};

BEGIN_MESSAGE_MAP(CProgressPage, CConsolePage)
    ON_WM_TIMER()
    ON_BN_CLICKED(kRun, &CProgressPage::OnRun)
    ON_BN_CLICKED(kStop, &CProgressPage::OnStop)
    ON_BN_CLICKED(kReset, &CProgressPage::OnReset)
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CConsolePage> MakeProgressPage()
{
    return std::make_unique<CProgressPage>();
}

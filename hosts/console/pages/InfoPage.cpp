#include <common/Owner.h>
#include <hosts/console/ConsoleText.h>
#include <hosts/console/ControlIds.h>
#include <hosts/console/PageRegistry.h>
#include <QorApi/QorApi.h>

#include <array>
#include <span>

namespace
{

using namespace ids::info;

constexpr int kLeft = 12;
constexpr int kRight = 716;
constexpr int kChartBottom = 264;
constexpr int kInfoTop = 314;
constexpr ULONGLONG kMegabyte = 1024ULL * 1024;

/** A chart of the store's snapshots and what is known about each of them. */
class CInfoPage : public CConsolePage
{
  public:
    std::vector<PageState> States() override
    {
        return {{L"ring", [this] { Show(QOR_CHART_RING, 0); }},
                {L"bars", [this] { Show(QOR_CHART_BARS, 0); }},
                {L"nothing-chosen", [this] { Show(QOR_CHART_RING, -1); }}};
    }

    std::vector<PopupShot> Popups() override
    {
        return {{L"info-desktop",
                 [this] {
                     OnTip();
                     return m_tip.m_hWnd;
                 },
                 [this] { OnTip(); }}};
    }

  protected:
    bool Build() override
    {
        const CRect chart(kLeft, 44, 440, kChartBottom);
        if (!m_chart.Create(ConText(L"STR_CON_SNAP_SIZES"), WS_CHILD | WS_VISIBLE, chart, this, kChart) ||
            !AddRadio(ConText(L"STR_CON_RING"), CRect(460, 48, 700, 65), kRing, true) ||
            !AddRadio(ConText(L"STR_CON_BARS"), CRect(460, 72, 700, 89), kBars, false) || !BuildInfo()) {
            return false;
        }
        m_chart.SetFont(PageFont());
        CheckRadioButton(kRing, kBars, kRing);
        ReadSnapshots();
        m_choice->SetCurSel(0);
        OnChoice();
        return AddPush(ConText(L"STR_CON_TIP"), CRect(kLeft, 520, 212, 541), kTip);
    }

    void Draw(CDC& dc) override
    {
        DrawHeading(dc, ConText(L"STR_CON_SNAP_CHART"), CRect(kLeft, 8, kRight, 28));
        DrawHeading(dc, ConText(L"STR_CON_SNAP_INFO"), CRect(kLeft, kInfoTop - 36, kRight, kInfoTop - 16));
    }

    afx_msg void OnRing() { m_chart.SetType(QOR_CHART_RING); }
    afx_msg void OnBars() { m_chart.SetType(QOR_CHART_BARS); }

    afx_msg void OnChoice()
    {
        m_info.RemoveAll();
        const int choice = m_choice->GetCurSel();
        m_status.SetText(0, choice < 0 ? ConText(L"STR_CON_SNAP_NONE") : m_snapshots.at(Index(choice)).szName);
        if (choice >= 0) {
            ShowSnapshot(m_snapshots.at(Index(choice)));
        }
    }

    afx_msg void OnTip()
    {
        if (!m_tip.m_hWnd && !m_tip.Create()) {
            return;
        }
        m_tip.SetTipText(m_tip.IsWindowVisible() ? L"" : ConText(L"STR_CON_TIP_TEXT"));
    }

    afx_msg void OnDestroy()
    {
        if (m_tip.m_hWnd) {
            m_tip.DestroyWindow();
        }
        CConsolePage::OnDestroy();
    }
    DECLARE_MESSAGE_MAP()

  private:
    void Show(int chart, int choice)
    {
        CheckRadioButton(kRing, kBars, chart == QOR_CHART_BARS ? kBars : kRing);
        m_chart.SetType(chart);
        m_choice->SetCurSel(choice);
        OnChoice();
    }

    static size_t Index(int choice) { return static_cast<size_t>(choice); }

    bool BuildInfo()
    {
        m_choice = AddList(CRect(kLeft, kInfoTop, 212, 470), kSnapshots);
        const CRect info(222, kInfoTop, kRight, 470);
        if (!m_choice || !m_info.Create(L"", WS_CHILD | WS_VISIBLE, info, this, kInfo) ||
            !m_status.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(kLeft, 484, kRight, 506), this, kStatus)) {
            return false;
        }
        std::array<int, 3> widths = {0, 0, 0};
        widths[1] = m_status.GetTextExtent(CountText(999));
        widths[2] = m_status.GetTextExtent(SizeText(999999 * kMegabyte));
        m_status.SetParts(static_cast<int>(widths.size()), widths.data());
        return true;
    }

    static CString CountText(int count)
    {
        CString text;
        text.Format(ConFormat(L"STR_CON_SNAP_COUNT", L"%d"), count);
        return text;
    }

    static CString SizeText(ULONGLONG bytes)
    {
        CString text;
        text.Format(L"%u MB", static_cast<UINT>(bytes / kMegabyte));
        return text;
    }

    void ReadSnapshots()
    {
        int count = 0;
        const own::TaskMemory list(QorGetAllInfo(QORLIST_SNAPSHOTS, sizeof(_QORVEX_SNAP), &count, 0));
        if (!list) {
            count = 0;
        }
        ULONGLONG sum = 0;
        for (const auto& snapshot : std::span(static_cast<const _QORVEX_SNAP*>(list.Get()), Index(count))) {
            m_snapshots.push_back(snapshot);
            m_chart.AddItem(snapshot.szName, static_cast<UINT>(snapshot.nSize / kMegabyte));
            m_choice->AddString(snapshot.szName);
            sum += snapshot.nSize;
        }
        m_status.SetText(1, CountText(count));
        m_status.SetText(2, SizeText(sum));
    }

    void ShowSnapshot(const _QORVEX_SNAP& snapshot)
    {
        CString number;
        number.Format(L"%u", static_cast<UINT>(snapshot.wNumber));
        m_info.AddItem(ConText(L"STR_CON_SNAP_NUMBER"), number);
        SYSTEMTIME taken = {};
        QorTime2SysTime(snapshot.time, taken);
        m_info.AddItem(ConText(L"STR_CON_SNAP_TAKEN"), COleDateTime(taken).Format(L"%Y-%m-%d %H:%M"));
        m_info.AddItem(ConText(L"STR_CON_SNAP_SIZE"), SizeText(snapshot.nSize));
        const bool locked = (snapshot.wFlags & QORSNAP_LOCKED) != 0;
        m_info.AddItem(ConText(L"STR_CON_SNAP_STATE"), ConText(locked ? L"STR_CON_SNAP_LOCKED" : L"STR_CON_SNAP_FREE"));
    }

    CChartCtrl m_chart;
    CQorInfo m_info;
    CQorStatusBar m_status;
    CDesktopTip m_tip;
    CListBox* m_choice = nullptr;
    std::vector<_QORVEX_SNAP> m_snapshots;
};

BEGIN_MESSAGE_MAP(CInfoPage, CConsolePage)
    ON_WM_DESTROY()
    ON_BN_CLICKED(kRing, &CInfoPage::OnRing)
    ON_BN_CLICKED(kBars, &CInfoPage::OnBars)
    ON_BN_CLICKED(kTip, &CInfoPage::OnTip)
    ON_LBN_SELCHANGE(kSnapshots, &CInfoPage::OnChoice)
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CConsolePage> MakeInfoPage()
{
    return std::make_unique<CInfoPage>();
}

#include <hosts/console/ConsoleLook.h>
#include <hosts/console/ConsoleText.h>
#include <hosts/console/ControlIds.h>
#include <hosts/console/PageRegistry.h>
#include <hosts/console/res/ConsoleResource.h>

namespace
{

using namespace ids::clock;

constexpr UINT_PTR kRefresh = 7;
constexpr UINT kRefreshPeriod = 100; // ms
constexpr int kLeft = 12;
constexpr int kTop = 44;
constexpr int kSide = 220;

class CClockPage : public CConsolePage
{
  public:
    std::vector<PageState> States() override
    {
        return {{L"early", [this] { Show(1, 30); }}, {L"afternoon", [this] { Show(15, 50); }}, {L"noon", [this] {
                                                                                                    Show(12, 0);
                                                                                                }}};
    }

  protected:
    bool Build() override
    {
        if (!m_clock.Create(IDB_DIAL, this, kClock, QorLook::kDlgBody)) {
            return false;
        }
        m_clock.SetWindowPos(nullptr, kLeft, kTop, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        if (!BuildInputs() || !BuildButtons() || !AddList(CRect(kLeft, 270, 460, 400), kLog)) {
            return false;
        }
        SetTimer(kRefresh, kRefreshPeriod, nullptr);
        ShowTime();
        return true;
    }

    void Draw(CDC& dc) override
    {
        CRect client;
        GetClientRect(client);
        DrawHeading(dc, ConText(L"STR_CON_CLOCK"), CRect(kLeft, 8, client.right - 16, 28));
        DrawHeading(dc, ConText(L"STR_CON_CLK_EVENTS"), CRect(kLeft, 238, client.right - 16, 258));
    }

    afx_msg void OnSet() { m_clock.SetTime(GetDlgItemInt(kHour), GetDlgItemInt(kMinute)); }
    afx_msg void OnForward() { m_clock.SetTimeAnimate(GetDlgItemInt(kHour), GetDlgItemInt(kMinute), TRUE); }
    afx_msg void OnBackward() { m_clock.SetTimeAnimate(GetDlgItemInt(kHour), GetDlgItemInt(kMinute), FALSE); }

    afx_msg void OnNow()
    {
        const COleDateTime now = COleDateTime::GetCurrentTime();
        m_clock.SetTimeAnimate(static_cast<UINT>(now.GetHour()), static_cast<UINT>(now.GetMinute()), TRUE);
    }

    afx_msg void OnBeginDrag(NMHDR* /*header*/, LRESULT* result)
    {
        AddEvent(L"STR_CON_CLK_BEGIN");
        *result = 0;
    }

    afx_msg void OnEndDrag(NMHDR* /*header*/, LRESULT* result)
    {
        AddEvent(L"STR_CON_CLK_END");
        *result = 0;
    }

    afx_msg void OnTimer(UINT_PTR timer)
    {
        if (timer == kRefresh) {
            ShowTime();
        }
    }
    DECLARE_MESSAGE_MAP()

  private:
    bool BuildInputs()
    {
        return AddLabel(L"", CRect(kSide, kTop, kSide + 240, kTop + 18), kTime) &&
               AddCaption(ConText(L"STR_CON_CLK_HOUR"), CRect(kSide, kTop + 30, kSide + 70, kTop + 46)) &&
               AddNumber(CRect(kSide + 74, kTop + 30, kSide + 114, kTop + 50), kHour, 23, 9) &&
               AddCaption(ConText(L"STR_CON_CLK_MINUTE"), CRect(kSide + 126, kTop + 30, kSide + 196, kTop + 46)) &&
               AddNumber(CRect(kSide + 200, kTop + 30, kSide + 240, kTop + 50), kMinute, 59, 15);
    }

    bool AddNumber(const CRect& rect, UINT id, int maximum, int value)
    {
        auto& number = Own<CIntEdit>();
        const DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_GROUP;
        if (!number.CreateEx(WS_EX_CLIENTEDGE, WC_EDITW, L"", style, rect, this, id)) {
            return false;
        }
        number.SetFont(PageFont());
        number.SetRange(0, maximum, value);
        return true;
    }

    bool BuildButtons()
    {
        const CRect first(kSide, kTop + 66, kSide + 116, kTop + 87);
        return AddPush(ConText(L"STR_CON_CLK_SET"), first, kSet) &&
               AddPush(ConText(L"STR_CON_CLK_NOW"), first + CPoint(124, 0), kNow) &&
               AddPush(ConText(L"STR_CON_CLK_FORWARD"), first + CPoint(0, 30), kForward) &&
               AddPush(ConText(L"STR_CON_CLK_BACKWARD"), first + CPoint(124, 30), kBackward);
    }

    CString TimeText() { return COleDateTime(2000, 1, 1, Hour(), Minute(), 0).Format(L"%H:%M"); }
    int Hour() { return static_cast<int>(m_clock.GetHour()); }
    int Minute() { return static_cast<int>(m_clock.GetMinute()); }

    void Show(UINT hour, UINT minute)
    {
        m_clock.SetTime(hour, minute);
        ShowTime();
    }

    void ShowTime()
    {
        CString text;
        text.Format(ConFormat(L"STR_CON_CLK_TIME", L"%s"), TimeText().GetString());
        CString shown;
        GetDlgItemText(kTime, shown);
        if (text != shown) {
            SetDlgItemText(kTime, text);
        }
    }

    void AddEvent(LPCWSTR key)
    {
        CString text;
        text.Format(ConFormat(key, L"%s"), TimeText().GetString());
        auto* list = static_cast<CListBox*>(GetDlgItem(kLog));
        list->SetCurSel(list->AddString(text));
        ShowTime();
    }

    CQorClock m_clock;
};

BEGIN_MESSAGE_MAP(CClockPage, CConsolePage)
    ON_WM_TIMER()
    ON_BN_CLICKED(kSet, &CClockPage::OnSet)
    ON_BN_CLICKED(kForward, &CClockPage::OnForward)
    ON_BN_CLICKED(kBackward, &CClockPage::OnBackward)
    ON_BN_CLICKED(kNow, &CClockPage::OnNow)
    ON_NOTIFY(QCN_BEGINDRAG, kClock, &CClockPage::OnBeginDrag)
    ON_NOTIFY(QCN_ENDDRAG, kClock, &CClockPage::OnEndDrag)
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CConsolePage> MakeClockPage()
{
    return std::make_unique<CClockPage>();
}

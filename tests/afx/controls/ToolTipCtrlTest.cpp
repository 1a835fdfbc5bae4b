#include "resource.h"

#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

#include <afxcmn.h>
#include <afxwin.h>

#include <algorithm>
#include <array>

namespace
{
/** Tips of a host window with one button. */
class ToolTip : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_button.Create(TEXT("x"), WS_CHILD | WS_VISIBLE, CRect(10, 10, 60, 40), &m_host, 5));
        ASSERT_TRUE(m_tip.Create(&m_host, TTS_ALWAYSTIP));
    }

    CString TextOf(CWnd* wnd, UINT_PTR id = 0)
    {
        CString text(TEXT("before"));
        m_tip.GetText(text, wnd, id);
        return text;
    }

    ts::AfxHost m_host;
    CButton m_button;
    CToolTipCtrl m_tip;
};
} // namespace

TEST_F(ToolTip, ToolsAreAddedAndDeleted)
{
    EXPECT_TRUE(m_tip.AddTool(&m_button, TEXT("A button")));
    EXPECT_TRUE(m_tip.AddTool(&m_host, TEXT("An area"), CRect(100, 100, 120, 120), 9));
    EXPECT_EQ(m_tip.GetToolCount(), 2);
    EXPECT_STREQ(TextOf(&m_button), TEXT("A button"));
    EXPECT_STREQ(TextOf(&m_host, 9), TEXT("An area"));
    m_tip.DelTool(&m_button);
    EXPECT_EQ(m_tip.GetToolCount(), 1);
    EXPECT_TRUE(TextOf(&m_button).IsEmpty());
}

TEST_F(ToolTip, TextComesFromTheResources)
{
    EXPECT_TRUE(m_tip.AddTool(&m_button, IDS_TIP));
    EXPECT_STREQ(TextOf(&m_button), TEXT("Tip from a resource"));
}

TEST_F(ToolTip, TextIsChanged)
{
    m_tip.AddTool(&m_button, TEXT("Old"));
    m_tip.UpdateTipText(TEXT("New"), &m_button);
    EXPECT_STREQ(TextOf(&m_button), TEXT("New"));
    m_tip.UpdateTipText(IDS_TIP, &m_button);
    EXPECT_STREQ(TextOf(&m_button), TEXT("Tip from a resource"));
}

TEST_F(ToolTip, AreaIsMovedAndFound)
{
    m_tip.AddTool(&m_host, TEXT("An area"), CRect(100, 100, 120, 120), 9);
    m_tip.SetToolRect(&m_host, 9, CRect(200, 200, 220, 220));
    CToolInfo info;
    ASSERT_TRUE(m_tip.GetToolInfo(info, &m_host, 9));
    EXPECT_EQ(CRect(info.rect), CRect(200, 200, 220, 220));
    EXPECT_EQ(info.hwnd, m_host.m_hWnd);
    TOOLINFO found = {};
    EXPECT_TRUE(m_tip.HitTest(&m_host, CPoint(210, 210), &found));
    EXPECT_EQ(found.uId, 9u);
    EXPECT_FALSE(m_tip.HitTest(&m_host, CPoint(5, 5), &found));
}

TEST_F(ToolTip, LongTextIsCutToTheSpaceThatThereIs)
{
    struct
    {
        CToolInfo info;
        std::array<TCHAR, 1024> behind;
    } guarded;
    guarded.behind.fill(TEXT('#'));
    const CString text(TEXT('x'), 1000);
    m_tip.AddTool(&m_button, text);
    ASSERT_TRUE(m_tip.GetToolInfo(guarded.info, &m_button));
    EXPECT_EQ(guarded.info.lpszText, guarded.info.szText);
    EXPECT_STREQ(guarded.info.szText, text.Left(255));
    EXPECT_EQ(std::count(guarded.behind.begin(), guarded.behind.end(), TEXT('#')), 1024);
}

TEST_F(ToolTip, TextThatIsAskedForIsGivenAsItIs)
{
    m_tip.AddTool(&m_button, LPSTR_TEXTCALLBACK);
    CToolInfo info;
    ASSERT_TRUE(m_tip.GetToolInfo(info, &m_button));
    EXPECT_EQ(info.lpszText, LPSTR_TEXTCALLBACK);
}

TEST_F(ToolTip, ToolIsChangedAsAWhole)
{
    m_tip.AddTool(&m_host, TEXT("Old"), CRect(100, 100, 120, 120), 9);
    CToolInfo info;
    ASSERT_TRUE(m_tip.GetToolInfo(info, &m_host, 9));
    EXPECT_STREQ(info.szText, TEXT("Old"));
    info.lpszText = const_cast<LPTSTR>(TEXT("New"));
    info.lParam = 42;
    m_tip.SetToolInfo(&info);
    EXPECT_STREQ(TextOf(&m_host, 9), TEXT("New"));
    CToolInfo read;
    ASSERT_TRUE(m_tip.GetToolInfo(read, &m_host, 9));
    EXPECT_EQ(read.lParam, 42);
    EXPECT_EQ(m_tip.GetToolCount(), 1);
}

/** What not every version of the control answers is looked at on its way there. */
TEST_F(ToolTip, IsAskedForByItsMessages)
{
    ts::MessageRecorder recorder(m_tip);
    recorder.RecordOnly({TTM_POPUP, TTM_UPDATE, TTM_GETTITLE, TTM_ADJUSTRECT});
    recorder.Answer(TTM_GETTITLE, [](const ts::Message& message) -> std::optional<LRESULT> {
        reinterpret_cast<TTGETTITLE*>(message.lParam)->uTitleBitmap = TTI_WARNING;
        return 0;
    });
    recorder.Answer(TTM_ADJUSTRECT, [](const ts::Message& message) -> std::optional<LRESULT> {
        const int grow = message.wParam ? 4 : -4;
        return ::InflateRect(reinterpret_cast<RECT*>(message.lParam), grow, grow);
    });
    const CRect text(100, 100, 200, 120);
    CRect rect = text;
    EXPECT_TRUE(m_tip.AdjustRect(&rect));
    EXPECT_EQ(rect, CRect(96, 96, 204, 124));
    EXPECT_TRUE(m_tip.AdjustRect(&rect, FALSE));
    EXPECT_EQ(rect, text);
    recorder.Clear();
    TTGETTITLE title = {};
    title.dwSize = sizeof(title);
    m_tip.GetTitle(&title);
    EXPECT_EQ(title.uTitleBitmap, static_cast<UINT>(TTI_WARNING));
    m_tip.Popup();
    m_tip.Update();
    EXPECT_TRUE(recorder.Is({ts::Msg(TTM_GETTITLE, 0, reinterpret_cast<LPARAM>(&title)), ts::Msg(TTM_POPUP, 0, 0),
                             ts::Msg(TTM_UPDATE, 0, 0)}));
}

TEST_F(ToolTip, TimesWidthAndColoursAreKept)
{
    m_tip.SetDelayTime(TTDT_INITIAL, 123);
    EXPECT_EQ(m_tip.GetDelayTime(TTDT_INITIAL), 123);
    m_tip.SetDelayTime(200u);
    EXPECT_EQ(m_tip.GetDelayTime(TTDT_INITIAL), 200);
    EXPECT_EQ(m_tip.SetMaxTipWidth(150), -1);
    EXPECT_EQ(m_tip.GetMaxTipWidth(), 150);
    m_tip.SetTipBkColor(RGB(1, 2, 3));
    EXPECT_EQ(m_tip.GetTipBkColor(), RGB(1, 2, 3));
    m_tip.SetTipTextColor(RGB(4, 5, 6));
    EXPECT_EQ(m_tip.GetTipTextColor(), RGB(4, 5, 6));
    RECT margin = {1, 2, 3, 4};
    m_tip.SetMargin(&margin);
    RECT read = {};
    m_tip.GetMargin(&read);
    EXPECT_EQ(read.bottom, 4);
    EXPECT_TRUE(m_tip.SetTitle(TTI_INFO, TEXT("Title")));
}

TEST_F(ToolTip, RelayedMouseShowsTheTip)
{
    m_tip.AddTool(&m_button, TEXT("A button"));
    m_tip.SetDelayTime(TTDT_INITIAL, 1);
    m_tip.Activate(TRUE);
    ts::SetPreTranslate([&](MSG& message) {
        m_tip.RelayEvent(&message);
        return false;
    });
    ts::MoveMouse(m_button, 10, 10);
    EXPECT_TRUE(ts::PumpUntil([&] { return m_tip.IsWindowVisible(); }));
    TOOLINFO current = {};
    current.cbSize = TTTOOLINFOW_V2_SIZE;
    EXPECT_TRUE(m_tip.GetCurrentTool(&current));
    EXPECT_EQ(current.uId, reinterpret_cast<UINT_PTR>(m_button.m_hWnd));
    m_tip.Pop();
    EXPECT_FALSE(m_tip.IsWindowVisible());
}

TEST_F(ToolTip, TrackedTipStandsWhereItIsPut)
{
    TOOLINFO info = {};
    ASSERT_TRUE(CToolTipCtrl::FillInToolInfo(info, &m_host, 3));
    info.uFlags |= TTF_TRACK | TTF_ABSOLUTE;
    info.lpszText = const_cast<LPTSTR>(TEXT("Tracked"));
    ASSERT_TRUE(m_tip.SendMessage(TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&info)));
    m_tip.TrackPosition(CPoint(150, 160));
    m_tip.TrackActivate(&info, TRUE);
    EXPECT_TRUE(m_tip.IsWindowVisible());
    CRect place;
    m_tip.GetWindowRect(&place);
    // The frame of the tip may stand outside.
    EXPECT_NEAR(place.left, 150, 2);
    EXPECT_NEAR(place.top, 160, 2);
    EXPECT_GT(m_tip.GetBubbleSize(&info).cx, 5);
    m_tip.TrackActivate(&info, FALSE);
    EXPECT_FALSE(m_tip.IsWindowVisible());
}

TEST_F(ToolTip, MissingWindowsAreRefused)
{
    CWnd none;
    EXPECT_FALSE(m_tip.AddTool(nullptr, TEXT("x")));
    EXPECT_FALSE(m_tip.AddTool(&none, TEXT("x")));
    EXPECT_FALSE(m_tip.AddTool(nullptr, IDS_TIP));
    m_tip.DelTool(nullptr);
    m_tip.UpdateTipText(TEXT("x"), nullptr);
    m_tip.SetToolRect(&m_host, 1, nullptr);
    EXPECT_TRUE(TextOf(nullptr).IsEmpty());
    EXPECT_EQ(m_tip.GetToolCount(), 0);
    CToolTipCtrl empty;
    EXPECT_FALSE(empty.AddTool(&m_button, TEXT("x")));
    EXPECT_EQ(empty.GetToolCount(), 0);
}

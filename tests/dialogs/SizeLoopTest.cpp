#include "TestDialogs.h"

#include <QorUI/dialogs/SizeLoop.h>

#include <array>

namespace
{

const CSize kSmallest(100, 80);
const CSize kLargest(1000, 900);
constexpr int kExitCode = 7;

/** A frame that keeps the sizing messages it gets. */
class CSizedFrame : public CQorFrame
{
  public:
    ~CSizedFrame() override
    {
        if (m_hWnd) {
            DestroyWindow();
        }
    }

    bool Open()
    {
        if (!CreateEx(0, nullptr, L"Frame", 0, CRect(100, 50, 700, 450), nullptr, 0)) {
            return false;
        }
        ShowWindow(SW_SHOW);
        return ts::BringToFront(m_hWnd);
    }

    CRect WindowRect() const
    {
        CRect rect;
        GetWindowRect(rect);
        return rect;
    }

    std::vector<UINT> m_messages;
    WPARAM m_edge = 0;
    bool m_keepSizeCommand = false; // from its default processing

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_ENTERSIZEMOVE || message == WM_EXITSIZEMOVE || message == WM_SIZING) {
            if (m_messages.empty() || m_messages.back() != message) {
                m_messages.push_back(message);
            }
            m_edge = message == WM_SIZING ? wParam : m_edge;
        }
        if (message == WM_SYSCOMMAND && m_keepSizeCommand) {
            return 0;
        }
        return CQorFrame::WindowProc(message, wParam, lParam);
    }
};

/** Drags from one place of a window to others, by real input, inside the sizing loop. */
void DragBorder(CSizedFrame& frame, POINT from, std::initializer_list<POINT> ways, WORD lastKey = 0)
{
    ts::ModalDriver driver;
    const CPoint corner = frame.WindowRect().TopLeft();
    const auto sizing = [&] { return ::GetCapture() == frame.m_hWnd; };
    for (const POINT way : ways) {
        driver.When("the sizing loop", sizing, [corner, from, way, &frame] {
            const CPoint window = frame.WindowRect().TopLeft(); // the pointer is moved from the client area's corner
            ts::MoveMouse(frame.m_hWnd, corner.x - window.x + from.x + way.x, corner.y - window.y + from.y + way.y);
        });
    }
    driver.Then([lastKey] {
        if (lastKey != 0) {
            ts::Key(lastKey);
        }
        ts::MouseUp();
    });
    ts::MoveMouse(frame.m_hWnd, from.x, from.y);
    ts::MouseDown();
    EXPECT_TRUE(driver.Finished());
}

TEST(Sizing, EachBorderMovesAloneAndTheOppositeOnesStay)
{
    const CRect start(100, 100, 500, 400);
    const struct
    {
        UINT hit;
        CRect expected;
    } borders[] = {
        {HTLEFT, {110, 100, 500, 400}},       {HTRIGHT, {100, 100, 510, 400}},       {HTTOP, {100, 120, 500, 400}},
        {HTBOTTOM, {100, 100, 500, 420}},     {HTTOPLEFT, {110, 120, 500, 400}},     {HTTOPRIGHT, {100, 120, 510, 400}},
        {HTBOTTOMLEFT, {110, 100, 500, 420}}, {HTBOTTOMRIGHT, {100, 100, 510, 420}},
    };
    for (const auto& [hit, expected] : borders) {
        EXPECT_EQ(expected, QorShape::SizedRect(start, hit, CSize(10, 20), kSmallest, kLargest)) << hit;
    }
}

TEST(Sizing, TheSizeStaysWithinItsLimits)
{
    const CRect start(100, 100, 500, 400);
    EXPECT_EQ(CRect(400, 320, 500, 400), QorShape::SizedRect(start, HTTOPLEFT, CSize(5000, 5000), kSmallest, kLargest));
    EXPECT_EQ(CRect(100, 100, 1100, 1000),
              QorShape::SizedRect(start, HTBOTTOMRIGHT, CSize(5000, 5000), kSmallest, kLargest));
    EXPECT_EQ(CRect(100, 100, 200, 180),
              QorShape::SizedRect(start, HTBOTTOMRIGHT, CSize(-5000, -5000), kSmallest, kLargest));
}

TEST(Sizing, DraggedCornerSizesTheFrame)
{
    CSizedFrame frame;
    ASSERT_TRUE(frame.Open());
    DragBorder(frame, {595, 395}, {{-20, -10}, {-60, -40}});
    EXPECT_EQ(CRect(100, 50, 640, 410), frame.WindowRect());
    EXPECT_EQ((std::vector<UINT>{WM_ENTERSIZEMOVE, WM_SIZING, WM_EXITSIZEMOVE}), frame.m_messages);
    EXPECT_EQ(static_cast<WPARAM>(WMSZ_BOTTOMRIGHT), frame.m_edge);
    EXPECT_EQ(nullptr, ::GetCapture());
}

TEST(Sizing, DraggedLeftBorderLeavesTheRightOneInPlace)
{
    CSizedFrame frame;
    ASSERT_TRUE(frame.Open());
    DragBorder(frame, {1, 200}, {{30, 5}});
    EXPECT_EQ(CRect(130, 50, 700, 450), frame.WindowRect());
    EXPECT_EQ(static_cast<WPARAM>(WMSZ_LEFT), frame.m_edge);
}

TEST(Sizing, FrameIsNotSizedBelowItsSmallestSize)
{
    CSizedFrame frame;
    ASSERT_TRUE(frame.Open());
    DragBorder(frame, {595, 395}, {{-500, -390}});
    EXPECT_EQ(CSize(360, 260), frame.WindowRect().Size());
}

TEST(Sizing, EscapeTakesTheSizeBack)
{
    CSizedFrame frame;
    ASSERT_TRUE(frame.Open());
    DragBorder(frame, {595, 395}, {{-60, -40}}, VK_ESCAPE);
    EXPECT_EQ(CRect(100, 50, 700, 450), frame.WindowRect());
}

/** Whether a pull at the left border leaves the window as it is. Should it be sized all the same, this ends it too. */
testing::AssertionResult StaysWhenPulled(CSizedFrame& frame)
{
    const CRect before = frame.WindowRect();
    ts::MoveMouse(frame.m_hWnd, 1, 200);
    ts::ModalDriver driver;
    driver.When(
        "the button is down", [] { return ::GetKeyState(VK_LBUTTON) < 0; },
        [&frame] { ts::MoveMouse(frame.m_hWnd, 80, 200); });
    driver.Then([] { ts::MouseUp(); });
    ts::MouseDown();
    EXPECT_TRUE(ts::PumpUntil([&driver] { return driver.Finished(); }));
    if (frame.WindowRect() == before && frame.m_messages.empty()) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << frame.m_messages.size() << " sizing messages, left "
                                       << frame.WindowRect().left << " after " << before.left;
}

TEST(Sizing, AMaximizedFrameIsNotSized)
{
    CSizedFrame frame;
    ASSERT_TRUE(frame.Open());
    frame.SendMessage(WM_SYSCOMMAND, SC_MAXIMIZE);
    ASSERT_TRUE(frame.IsZoomed());
    EXPECT_TRUE(StaysWhenPulled(frame));
    EXPECT_TRUE(frame.IsZoomed());
}

TEST(Sizing, AFrameThatKeepsTheCommandToItselfIsNotSized)
{
    CSizedFrame frame;
    ASSERT_TRUE(frame.Open());
    frame.m_keepSizeCommand = true;
    EXPECT_TRUE(StaysWhenPulled(frame));
}

TEST(Sizing, AnEndOfTheProgramEndsItAndIsPassedOn)
{
    CSizedFrame frame;
    ASSERT_TRUE(frame.Open());
    frame.SetFocus();
    ts::MoveMouse(frame.m_hWnd, 595, 395);
    ::PostQuitMessage(kExitCode);
    QorShape::TrackSize(frame, HTBOTTOMRIGHT, CPoint(695, 445));
    EXPECT_EQ(nullptr, ::GetCapture());
    MSG message = {};
    ASSERT_TRUE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(WPARAM{kExitCode}, message.wParam);
}

TEST(Sizing, ResizableDialogIsSizedToo)
{
    CTestDialog dialog(IDD_PLAIN, kSizable);
    ASSERT_TRUE(dialog.Open());
    ASSERT_TRUE(ts::BringToFront(dialog.m_hWnd));
    CRect before;
    dialog.GetWindowRect(before);
    ts::ModalDriver driver;
    driver.When(
        "the sizing loop", [&] { return ::GetCapture() == dialog.m_hWnd; },
        [&] { ts::MoveMouse(dialog.m_hWnd, before.Width() + 35, before.Height() + 25); });
    driver.Then([] { ts::MouseUp(); });
    ts::MoveMouse(dialog.m_hWnd, before.Width() - 5, before.Height() - 5);
    ts::MouseDown();
    EXPECT_TRUE(driver.Finished());
    CRect after;
    dialog.GetWindowRect(after);
    EXPECT_EQ(CSize(before.Width() + 40, before.Height() + 30), after.Size());
    dialog.DestroyWindow();
}

} // namespace

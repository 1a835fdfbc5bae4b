#include "TextPart.h"

#include <QorUI/app/look/SysLook.h>
#include <QorUI/QorUI.h>
#include <QorUI/res/resource.h>
#include <tests/support/OtherColours.h>
#include <tests/support/Refusals.h>
#include <tests/support/Resources.h>
#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>
#include <tests/support/ui/Control.h>
#include <tests/support/ui/Drawn.h>
#include <tests/support/ui/Look.h>

#include <algorithm>
#include <functional>

namespace
{

constexpr COLORREF kOuter = RGB(128, 128, 128);
constexpr COLORREF kWhite = RGB(255, 255, 255);

HBITMAP WINAPI TallPattern(HINSTANCE /*module*/, LPCWSTR /*name*/)
{
    return ::CreateBitmap(8, 25, 1, 32, nullptr);
}

class ProgressBar : public testing::Test
{
  protected:
    void SetUp() override
    {
        m_host.Log().Answer(WM_GETFONT, [](const ts::Message& /*message*/) -> std::optional<LRESULT> {
            return reinterpret_cast<LRESULT>(ts::GuiFont());
        });
        ASSERT_TRUE(m_bar.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 210, 60), &m_host, ts::kControlId));
        m_bar.SetRange32(0, 200);
    }

    static int Height(const CWnd& wnd)
    {
        CRect rect;
        wnd.GetWindowRect(rect);
        return rect.Height();
    }

    ts::Picture Bar(int position)
    {
        m_bar.SetPos(position);
        return ts::LookOf(m_bar);
    }

    /** What the pattern looks like at a place of the bar. */
    static ts::Picture Pattern() { return ts::ResourcePicture(ts::Library(), IDB_PROGRESS); }

    /** What the bar should look like, drawn by GDI. @param filled width of the fill in pixels. */
    static ts::Picture Expected(int filled, const wchar_t* text)
    {
        CBitmap bitmap;
        bitmap.Attach(::LoadBitmapW(ts::Library(), MAKEINTRESOURCEW(IDB_PROGRESS)));
        CBrush pattern(&bitmap);
        return ts::DrawTo(200, 20, [&](HDC dc) {
            CDC* const to = CDC::FromHandle(dc);
            to->Draw3dRect(0, 0, 200, 20, kOuter, kOuter);
            to->Draw3dRect(1, 1, 198, 18, kWhite, kWhite);
            const CRect whole(2, 2, 198, 18);
            const CRect fill(2, 2, 2 + filled, 18);
            const CRect rest(2 + filled, 2, 198, 18);
            ::FillRect(dc, &fill, pattern);
            ::FillRect(dc, &rest, ::GetSysColorBrush(COLOR_WINDOW));
            ::SelectObject(dc, ts::GuiFont());
            ::SetBkMode(dc, TRANSPARENT);
            DrawTextPart(dc, fill, whole, text, ::GetSysColor(COLOR_WINDOW));
            DrawTextPart(dc, rest, whole, text, ::GetSysColor(COLOR_HIGHLIGHT));
        });
    }

    ts::AfxHost m_host{240, 100};
    CProgressBar m_bar;
};

TEST_F(ProgressBar, LooksAsItShouldAtEveryPosition)
{
    EXPECT_TRUE(ts::SamePicture(Expected(0, L"0%"), Bar(0)));
    EXPECT_TRUE(ts::SamePicture(Expected(98, L"50%"), Bar(100)));
    EXPECT_TRUE(ts::SamePicture(Expected(91, L"46%"), Bar(93)));   // 91.14 pixels
    EXPECT_TRUE(ts::SamePicture(Expected(195, L"99%"), Bar(199))); // 195.02 pixels
    EXPECT_TRUE(ts::SamePicture(Expected(196, L"100%"), Bar(200)));
    m_bar.SetFormat(L"%d files");
    EXPECT_TRUE(ts::SamePicture(Expected(98, L"100 files"), Bar(100)));
}

TEST_F(ProgressBar, StaysInItsPlace)
{
    CRect rect;
    m_bar.GetWindowRect(rect);
    m_host.ScreenToClient(rect);
    EXPECT_EQ(CRect(10, 10, 210, 30), rect);
    const HWND stock = ::CreateWindowExW(0, PROGRESS_CLASSW, L"", WS_CHILD | WS_VISIBLE, 30, 40, 50, 9, m_host.m_hWnd,
                                         nullptr, nullptr, nullptr);
    ::SetWindowPos(stock, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    CProgressBar taken;
    ASSERT_TRUE(taken.SubclassWindow(stock));
    EXPECT_EQ(stock, ::GetWindow(m_bar, GW_HWNDNEXT)); // not raised
    taken.GetWindowRect(rect);
    m_host.ScreenToClient(rect);
    EXPECT_EQ(CRect(30, 40, 80, 60), rect);
    taken.DestroyWindow();
}

TEST_F(ProgressBar, WithoutItsPatternIsAsHighAndFilled)
{
    const ts::ImportRedirection failing({ts::ImportRedirection::Of(&::LoadBitmapW, &ts::NoBitmapResource)});
    CProgressBar bar;
    ASSERT_TRUE(bar.Create(WS_CHILD | WS_VISIBLE, CRect(10, 50, 110, 90), &m_host, ts::kOtherId));
    EXPECT_EQ(20, Height(bar));
    bar.SetFormat(L"");
    bar.SetPos(50);
    const ts::Picture look = ts::LookOf(bar);
    EXPECT_TRUE(ts::AreaIs(look, CRect(2, 2, 50, 18), ::GetSysColor(COLOR_HIGHLIGHT)));
    EXPECT_TRUE(ts::AreaIs(look, CRect(50, 2, 98, 18), ::GetSysColor(COLOR_WINDOW)));
    bar.DestroyWindow();
}

TEST_F(ProgressBar, PatternGoesWithTheWindow)
{
    CProgressBar bar;
    const ts::HandleCounts before = ts::CountHandles();
    ASSERT_TRUE(bar.Create(WS_CHILD | WS_VISIBLE, CRect(10, 50, 110, 90), &m_host, ts::kOtherId));
    EXPECT_EQ(1, ts::Difference(before, ts::CountHandles())["brush"]);
    bar.DestroyWindow();
    EXPECT_EQ(0, ts::Difference(before, ts::CountHandles())["brush"]);
}

TEST_F(ProgressBar, NeedsNoParent)
{
    CProgressBar bar;
    ASSERT_TRUE(bar.CWnd::CreateEx(0, PROGRESS_CLASSW, L"", WS_POPUP | WS_VISIBLE, CRect(0, 0, 200, 40), nullptr, 0));
    bar.SetFormat(L"");
    EXPECT_TRUE(ts::SamePicture(Expected(0, L""), ts::LookOf(bar)));
    bar.SetFormat(nullptr);
    EXPECT_GT(ts::LookOf(bar).Count(::GetSysColor(COLOR_HIGHLIGHT)), 5);
    bar.DestroyWindow();
}

TEST_F(ProgressBar, HugeTextIsCutAtTheFrames)
{
    const CString huge(L'W', 20000);
    m_bar.SetFormat(huge);
    const ts::Picture look = Bar(100);
    EXPECT_TRUE(ts::FrameIs(look, CRect(0, 0, 200, 20), kOuter));
    EXPECT_TRUE(ts::FrameIs(look, CRect(1, 1, 199, 19), kWhite));
}

TEST_F(ProgressBar, FormatIsNotCopied)
{
    CString format(L"one");
    m_bar.SetFormat(format.GetBuffer());
    EXPECT_TRUE(ts::SamePicture(Expected(98, L"one"), Bar(100)));
    format.SetAt(0, L'O');
    EXPECT_TRUE(ts::SamePicture(Expected(98, L"One"), Bar(100)));
}

TEST_F(ProgressBar, SurvivesTheEndOfTheGdiObjects)
{
    m_bar.SetPos(100);
    EXPECT_TRUE(ts::SurvivesGdiShortage(m_bar));
}

TEST_F(ProgressBar, DrawsNoFrameOfTheSystem)
{
    m_bar.ModifyStyleEx(0, WS_EX_CLIENTEDGE, SWP_FRAMECHANGED);
    ts::Settle();
    {
        CWindowDC dc(&m_bar);
        dc.FillSolidRect(0, 0, 200, 20, RGB(255, 0, 255));
    }
    ::RedrawWindow(m_bar, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_UPDATENOW);
    EXPECT_TRUE(ts::FrameIs(ts::CaptureFrame(m_bar), CRect(0, 0, 200, 20), RGB(255, 0, 255)));
}

TEST_F(ProgressBar, TakesItsHeightFromThePattern)
{
    EXPECT_EQ(18, Pattern().Height());
    EXPECT_EQ(20, Height(m_bar));
    CRect rect;
    m_bar.GetWindowRect(rect);
    EXPECT_EQ(200, rect.Width());
}

TEST_F(ProgressBar, HasTheHeightOfEveryPatternThatCanBeRead)
{
    const auto heightWith = [this](const ts::ImportRedirection::Function& function) {
        const ts::ImportRedirection redirection({function});
        CProgressBar bar;
        EXPECT_TRUE(bar.Create(WS_CHILD | WS_VISIBLE, CRect(10, 50, 110, 90), &m_host, ts::kOtherId));
        const int height = Height(bar);
        bar.DestroyWindow();
        return height;
    };
    EXPECT_EQ(25 + 2, heightWith(ts::ImportRedirection::Of(&::LoadBitmapW, &TallPattern)));
    EXPECT_EQ(18 + 2, heightWith(ts::ImportRedirection::Of(&::GetObjectW, &ts::NothingKnown)));
}

TEST_F(ProgressBar, TakesItsHeightWhenItTakesABarOver)
{
    const HWND window = ::CreateWindowExW(0, PROGRESS_CLASSW, L"", WS_CHILD | WS_VISIBLE, 10, 50, 120, 40,
                                          m_host.m_hWnd, nullptr, nullptr, nullptr);
    CProgressBar bar;
    ASSERT_TRUE(bar.SubclassWindow(window));
    EXPECT_EQ(20, Height(bar));
    bar.DestroyWindow();
}

TEST_F(ProgressBar, HasTwoFrames)
{
    const ts::Picture look = Bar(50);
    EXPECT_TRUE(ts::FrameIs(look, CRect(0, 0, 200, 20), kOuter));
    EXPECT_TRUE(ts::FrameIs(look, CRect(1, 1, 199, 19), kWhite));
}

TEST_F(ProgressBar, FillsWithThePatternAndTheRestWithTheWindowColour)
{
    m_bar.SetFormat(L"");
    const ts::Picture look = Bar(50); // a quarter of 196 pixels
    const ts::Picture pattern = Pattern();
    for (int y = 2; y < 18; ++y) {
        ASSERT_TRUE(ts::PixelIs(look, 2, y, pattern.At(2, y))) << y;
        ASSERT_TRUE(ts::PixelIs(look, 50, y, pattern.At(50 % pattern.Width(), y))) << y;
    }
    EXPECT_TRUE(ts::AreaIs(look, CRect(51, 2, 198, 18), ::GetSysColor(COLOR_WINDOW)));
}

TEST_F(ProgressBar, HasTheColoursOfTheSystemAndNotOfTheLook)
{
    const COLORREF odd = RGB(255, 0, 255);
    const ts::OtherColours colours({{&QorSysLook.m_clrWindow, odd}, {&QorSysLook.m_clrHighlight, odd}});
    EXPECT_TRUE(ts::SamePicture(Expected(98, L"50%"), Bar(100)));
    EXPECT_EQ(0, Bar(100).Count(odd));
}

TEST_F(ProgressBar, TextHasTwoColours)
{
    const ts::Picture empty = Bar(0);
    EXPECT_GT(empty.Count(::GetSysColor(COLOR_HIGHLIGHT)), 5);
    const ts::Picture full = Bar(200);
    EXPECT_EQ(0, full.Count(::GetSysColor(COLOR_HIGHLIGHT)));
    m_bar.SetFormat(L"");
    EXPECT_FALSE(ts::SamePicture(full, Bar(200)));
}

TEST_F(ProgressBar, TextIsThePercentageCutOff)
{
    const ts::Picture percent = Bar(67); // 33.5
    m_bar.SetFormat(L"33%%");
    EXPECT_TRUE(ts::SamePicture(percent, Bar(67)));
    m_bar.SetFormat(L"34%%");
    EXPECT_FALSE(ts::SamePicture(percent, Bar(67)));
    m_bar.SetFormat(nullptr);
    EXPECT_TRUE(ts::SamePicture(percent, Bar(67)));
}

TEST_F(ProgressBar, FormatGetsTheRawPosition)
{
    m_bar.SetFormat(L"%d files");
    const ts::Picture formatted = Bar(67);
    m_bar.SetFormat(L"67 files");
    EXPECT_TRUE(ts::SamePicture(formatted, Bar(67)));
}

TEST_F(ProgressBar, EmptyFormatMeansNoText)
{
    m_bar.SetFormat(L"");
    EXPECT_TRUE(ts::AreaIs(Bar(0), CRect(2, 2, 198, 18), ::GetSysColor(COLOR_WINDOW)));
}

TEST_F(ProgressBar, SetPosGivesTheFormerPosition)
{
    EXPECT_EQ(0, m_bar.SetPos(30));
    EXPECT_EQ(30, m_bar.SetPos(200));
    EXPECT_EQ(200, m_bar.GetPos());
}

TEST_F(ProgressBar, EveryStepRepaintsTheWholeBar)
{
    const auto expectWhole = [this](const char* what) {
        CRect update;
        ASSERT_TRUE(::GetUpdateRect(m_bar, &update, FALSE)) << what;
        EXPECT_EQ(CRect(0, 0, 200, 20), update) << what;
        ::ValidateRect(m_bar, nullptr);
    };
    ts::LookOf(m_bar);
    m_bar.SetPos(200);
    expectWhole("the end");
    m_bar.SetPos(20);
    expectWhole("a position");
    m_bar.OffsetPos(5);
    expectWhole("an offset");
    m_bar.StepIt();
    expectWhole("a step");
}

TEST_F(ProgressBar, OnlyReachingTheEndErasesBeforePainting)
{
    ts::LookOf(m_bar);
    ts::MessageRecorder log(m_bar);
    log.RecordOnly({WM_ERASEBKGND});
    const auto erasings = [this, &log](const std::function<void()>& move) {
        log.Clear();
        move();
        m_bar.UpdateWindow();
        return log.Messages().size();
    };
    const size_t stock = erasings([this] { m_bar.CProgressCtrl::SetPos(50); });
    EXPECT_EQ(stock, erasings([this] { m_bar.SetPos(100); }));
    EXPECT_EQ(stock, erasings([this] { m_bar.SetPos(199); }));
    EXPECT_EQ(stock + 1, erasings([this] { m_bar.SetPos(200); }));
}

TEST_F(ProgressBar, EndIsInvalidatedBeforeTheControlGetsItsPosition)
{
    ts::LookOf(m_bar);
    std::vector<std::pair<int, bool>> invalid;
    ts::MessageRecorder log(m_bar);
    log.Answer(PBM_SETPOS, [&](const ts::Message& message) -> std::optional<LRESULT> {
        invalid.emplace_back(static_cast<int>(message.wParam), ::GetUpdateRect(m_bar, nullptr, FALSE) != FALSE);
        return std::nullopt;
    });
    for (const int position : {199, 200}) {
        m_bar.SetPos(position);
        m_bar.UpdateWindow();
    }
    EXPECT_EQ((std::vector<std::pair<int, bool>>{{199, false}, {200, true}}), invalid);
}

TEST_F(ProgressBar, CalculatesWithItsRange)
{
    m_bar.SetRange32(-50, 50);
    EXPECT_DOUBLE_EQ(0.5, m_bar.CalcFraction(0));
    EXPECT_DOUBLE_EQ(1.0, m_bar.CalcFraction(50));
    EXPECT_DOUBLE_EQ(1.1, m_bar.CalcFraction(60));
}

TEST_F(ProgressBar, RangeMayRunBackwards)
{
    m_bar.SetRange32(200, 0);
    EXPECT_DOUBLE_EQ(0.0, m_bar.CalcFraction(200));
    EXPECT_DOUBLE_EQ(0.75, m_bar.CalcFraction(50));
    EXPECT_DOUBLE_EQ(1.0, m_bar.CalcFraction(0));
    for (const int position : {-50, 0, 50, 200, 250}) {
        const ts::Picture look = Bar(position);
        EXPECT_TRUE(ts::FrameIs(look, CRect(0, 0, 200, 20), kOuter)) << position;
        EXPECT_TRUE(ts::FrameIs(look, CRect(1, 1, 199, 19), kWhite)) << position;
    }
}

TEST_F(ProgressBar, FramesStandHoweverSmallTheBarIs)
{
    const COLORREF other = RGB(255, 0, 255);
    const int index = COLOR_WINDOW;
    const COLORREF window = ::GetSysColor(index);
    m_bar.SetFormat(L"");
    ASSERT_TRUE(::SetSysColors(1, &index, &other));
    for (int cx = 0; cx <= 5; ++cx) {
        for (int cy = 0; cy <= 5; ++cy) {
            m_bar.SetWindowPos(nullptr, 0, 0, cx, cy, SWP_NOMOVE | SWP_NOZORDER);
            ts::PaintNow(m_bar);
            EXPECT_FALSE(::GetUpdateRect(m_bar, nullptr, FALSE)) << cx << " x " << cy;
            if (cx > 0 && cy > 0) {
                const ts::Picture expected = ts::DrawTo(cx, cy, [&](HDC dc) {
                    CDC* const to = CDC::FromHandle(dc);
                    to->FillSolidRect(0, 0, cx, cy, kOuter);
                    to->FillSolidRect(CRect(1, 1, (std::max)(cx - 1, 1), (std::max)(cy - 1, 1)), kWhite);
                    to->FillSolidRect(CRect(2, 2, (std::max)(cx - 2, 2), (std::max)(cy - 2, 2)), other);
                });
                EXPECT_TRUE(ts::SamePicture(expected, ts::CaptureWindow(m_bar))) << cx << " x " << cy;
            }
        }
    }
    ::SetSysColors(1, &index, &window);
}

TEST_F(ProgressBar, RangeWithoutWidthIsPainted)
{
    m_bar.SetRange32(5, 5);
    EXPECT_DOUBLE_EQ(0.0, m_bar.CalcFraction(5));
    EXPECT_TRUE(ts::SamePicture(Expected(0, L"0%"), Bar(5)));
}

TEST_F(ProgressBar, VerticalBarPaintsNothing)
{
    m_bar.ModifyStyle(0, PBS_VERTICAL);
    {
        CClientDC dc(&m_bar);
        dc.FillSolidRect(0, 0, 200, 20, RGB(255, 0, 255));
    }
    const ts::Picture look = Bar(100);
    EXPECT_TRUE(ts::AreaIs(look, CRect(0, 0, 200, 20), RGB(255, 0, 255)));
    EXPECT_FALSE(::GetUpdateRect(m_bar, nullptr, FALSE));
}

TEST_F(ProgressBar, ErasesNothing)
{
    EXPECT_EQ(TRUE, m_bar.SendMessage(WM_ERASEBKGND, 0));
}

TEST_F(ProgressBar, CanBeCreatedAgain)
{
    m_bar.DestroyWindow();
    ASSERT_TRUE(m_bar.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 210, 60), &m_host, ts::kControlId));
    m_bar.SetFormat(L"");
    m_bar.SetRange32(0, 200);
    EXPECT_TRUE(ts::PixelIs(Bar(200), 100, 9, Pattern().At(100 % Pattern().Width(), 9)));
}

TEST(ProgressBarAlone, ChildNeedsAParent)
{
    CProgressBar bar;
    EXPECT_FALSE(bar.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), nullptr, 1));
    EXPECT_EQ(nullptr, bar.m_hWnd);
}

TEST(ProgressBarAlone, WorksWithoutAWindow)
{
    CProgressBar bar;
    EXPECT_EQ(0, bar.SetPos(5));
    EXPECT_DOUBLE_EQ(0.0, bar.CalcFraction(5));
}

TEST_F(ProgressBar, LeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([this] {
        CProgressBar bar;
        bar.Create(WS_CHILD | WS_VISIBLE, CRect(10, 50, 210, 90), &m_host, ts::kOtherId);
        bar.SetPos(40);
        bar.UpdateWindow();
        bar.DestroyWindow();
    }));
}

} // namespace

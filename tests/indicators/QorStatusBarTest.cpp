#include <QorUI/QorUI.h>
#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>
#include <tests/support/ui/Control.h>
#include <tests/support/ui/Look.h>

#include <algorithm>
#include <array>

namespace
{

constexpr COLORREF kBack = RGB(186, 210, 234);
constexpr COLORREF kDark = RGB(140, 172, 213);
constexpr COLORREF kLight = RGB(230, 239, 251);
constexpr COLORREF kInk = RGB(0, 0, 0);

/** Lets a debug build go on after a failed check, with the exception that it throws in any build. */
class QuietAsserts
{
  public:
    QuietAsserts() : m_former(AfxSetAssertHook([](LPCSTR, int) -> BOOL { return FALSE; })) {}
    ~QuietAsserts() { AfxSetAssertHook(m_former); }
    QuietAsserts(const QuietAsserts&) = delete;
    QuietAsserts& operator=(const QuietAsserts&) = delete;

  private:
    AFX_ASSERT_HOOK m_former;
};

class CTestBar : public CQorStatusBar
{
  public:
    using CQorStatusBar::OnPaint;
};

class StatusBar : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_bar.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 400, 22), &m_host, ts::kControlId));
    }

    void SetThree()
    {
        std::array<int, 3> widths = {0, 120, 80};
        EXPECT_TRUE(m_bar.SetParts(3, widths.data()));
    }

    static ts::Picture Text(const CRect& rect, const wchar_t* text)
    {
        return ts::DrawTo(
            400, 22,
            [&](HDC dc) {
                ::SelectObject(dc, ts::GuiFont());
                ::SetBkMode(dc, TRANSPARENT);
                CRect place(rect);
                ::DrawTextW(dc, text, -1, &place, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS);
            },
            kBack);
    }

    ts::AfxHost m_host{420, 60};
    CTestBar m_bar;
};

TEST_F(StatusBar, PartsAreLaidOutFromTheRight)
{
    SetThree();
    const ts::Picture look = ts::LookOf(m_bar);
    for (const int left : {320, 200}) {
        EXPECT_TRUE(ts::AreaIs(look, CRect(left, 2, left + 1, 20), kDark)) << left;
        EXPECT_TRUE(ts::AreaIs(look, CRect(left + 1, 2, left + 2, 20), kLight)) << left;
    }
    EXPECT_TRUE(ts::AreaIs(look, CRect(0, 0, 400, 2), kBack));
    EXPECT_TRUE(ts::AreaIs(look, CRect(0, 20, 400, 22), kBack));
    EXPECT_EQ(2 * 18, look.Count(kDark));
    EXPECT_EQ(2 * 18, look.Count(kLight));
}

TEST_F(StatusBar, LowBarHasNoSeparators)
{
    SetThree();
    m_bar.SetText(1, L"Text");
    for (int height = 0; height <= 5; ++height) {
        m_bar.SetWindowPos(nullptr, 0, 0, 400, height, SWP_NOMOVE | SWP_NOZORDER);
        ts::PaintNow(m_bar);
        EXPECT_FALSE(::GetUpdateRect(m_bar, nullptr, FALSE)) << height;
        if (height > 0) {
            const ts::Picture look = ts::CaptureWindow(m_bar);
            EXPECT_EQ(height == 5 ? 2 : 0, look.Count(kDark)) << height;
            EXPECT_EQ(height == 5 ? 2 : 0, look.Count(kLight)) << height;
            EXPECT_TRUE(ts::AreaIs(look, CRect(0, 0, 400, (std::min)(height, 2)), kBack)) << height;
        }
    }
    for (int width = 1; width <= 5; ++width) {
        m_bar.SetWindowPos(nullptr, 0, 0, width, 22, SWP_NOMOVE | SWP_NOZORDER);
        EXPECT_TRUE(ts::AreaIs(ts::LookOf(m_bar), CRect(0, 0, width, 22), kBack)) << width;
    }
}

TEST_F(StatusBar, TextsStandSixPixelsInsideTheirParts)
{
    SetThree();
    const std::array<CRect, 3> places = {CRect(6, 2, 200, 20), CRect(206, 2, 320, 20), CRect(326, 2, 400, 20)};
    for (int part = 0; part < 3; ++part) {
        SetThree();
        EXPECT_TRUE(m_bar.SetText(part, L"Text"));
        const CRect inside = places.at(static_cast<size_t>(part));
        EXPECT_TRUE(ts::SamePicture(Text(inside, L"Text").Crop(inside), ts::LookOf(m_bar).Crop(inside))) << part;
    }
}

TEST_F(StatusBar, LooksAsItShould)
{
    SetThree();
    m_bar.SetText(0, L"&One");
    m_bar.SetText(1, CString(L'W', 100));
    m_bar.SetText(2, L"Three");
    const CString wide(L'W', 100);
    const ts::Picture expected = ts::DrawTo(
        400, 22,
        [&wide](HDC dc) {
            CDC* const to = CDC::FromHandle(dc);
            for (const int left : {320, 200}) {
                to->FillSolidRect(left, 2, 1, 18, kDark);
                to->FillSolidRect(left + 1, 2, 1, 18, kLight);
            }
            ::SelectObject(dc, ts::GuiFont());
            ::SetBkMode(dc, TRANSPARENT);
            ::SetTextColor(dc, kInk);
            const std::array<std::pair<CRect, CString>, 3> texts = {
                {{CRect(6, 2, 200, 20), L"&One"}, {CRect(206, 2, 320, 20), wide}, {CRect(326, 2, 400, 20), L"Three"}}};
            for (auto [rect, text] : texts) {
                ::DrawTextW(dc, text, -1, &rect, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS);
            }
        },
        kBack);
    EXPECT_TRUE(ts::SamePicture(expected, ts::LookOf(m_bar)));
}

TEST_F(StatusBar, PaintingLeavesTheDeviceContextAsItWas)
{
    SetThree();
    CQorStatusBar bar; // with a device context that it keeps
    const LPCWSTR name = AfxRegisterWndClass(CS_OWNDC);
    ASSERT_TRUE(bar.Create(name, L"", WS_CHILD | WS_VISIBLE, CRect(0, 30, 400, 52), &m_host, ts::kOtherId));
    std::array<int, 2> widths = {0, 100};
    bar.SetParts(2, widths.data());
    bar.SetText(0, L"Text");
    const HDC dc = ::GetDC(bar);
    ::SetTextColor(dc, RGB(1, 2, 3));
    ::SetBkMode(dc, OPAQUE);
    const HGDIOBJ font = ::GetCurrentObject(dc, OBJ_FONT);
    ts::PaintNow(bar);
    EXPECT_EQ(RGB(1, 2, 3), ::GetTextColor(dc));
    EXPECT_EQ(OPAQUE, ::GetBkMode(dc));
    EXPECT_EQ(font, ::GetCurrentObject(dc, OBJ_FONT));
    const ts::Picture look = ts::CaptureWindow(bar);
    EXPECT_GT(look.Count(kInk), 5);
    EXPECT_EQ(0, look.Count(RGB(1, 2, 3)));
    ::ReleaseDC(bar, dc);
    bar.DestroyWindow();
}

TEST_F(StatusBar, SurvivesTheEndOfTheGdiObjects)
{
    SetThree();
    m_bar.SetText(1, L"Text");
    EXPECT_TRUE(ts::SurvivesGdiShortage(m_bar));
}

TEST_F(StatusBar, PartsWiderThanTheBarAreNoHarm)
{
    std::array<int, 3> widths = {0, 5000, 100};
    m_bar.SetParts(3, widths.data());
    m_bar.SetText(0, CString(L'W', 20000));
    m_bar.SetText(1, L"");
    const ts::Picture look = ts::LookOf(m_bar);
    EXPECT_TRUE(ts::AreaIs(look, CRect(300, 2, 301, 20), kDark));
    EXPECT_EQ(0, look.Count(kInk));
}

TEST_F(StatusBar, WidthOfTheFirstPartIsIgnored)
{
    std::array<int, 2> widths = {500, 100};
    m_bar.SetParts(2, widths.data());
    m_bar.SetText(0, L"Text");
    const CRect inside(6, 2, 300, 20);
    EXPECT_TRUE(ts::SamePicture(Text(inside, L"Text").Crop(inside), ts::LookOf(m_bar).Crop(inside)));
}

TEST_F(StatusBar, LongTextIsCutInItsPart)
{
    SetThree();
    m_bar.SetText(1, CString(L'W', 200));
    const ts::Picture look = ts::LookOf(m_bar);
    EXPECT_EQ(0, look.Crop(CRect(322, 0, 400, 22)).Count(kInk));
    EXPECT_GT(look.Crop(CRect(206, 0, 320, 22)).Count(kInk), 0);
}

TEST_F(StatusBar, SetPartsReplacesAllTexts)
{
    SetThree();
    m_bar.SetText(0, L"Text");
    SetThree();
    EXPECT_EQ(0, ts::LookOf(m_bar).Count(kInk));
}

TEST_F(StatusBar, ChangesRepaint)
{
    SetThree();
    m_bar.UpdateWindow();
    EXPECT_FALSE(::GetUpdateRect(m_bar, nullptr, FALSE));
    SetThree();
    EXPECT_TRUE(::GetUpdateRect(m_bar, nullptr, FALSE));
    ::ValidateRect(m_bar, nullptr);
    m_bar.SetText(0, L"Text");
    EXPECT_TRUE(::GetUpdateRect(m_bar, nullptr, FALSE));
}

TEST_F(StatusBar, PartsThatAreNotThereAreRefused)
{
    SetThree();
    EXPECT_FALSE(m_bar.SetText(3, L"x"));
    EXPECT_FALSE(m_bar.SetText(INT_MAX, L"x"));
    const QuietAsserts quiet;
    bool thrown = false;
    try {
        m_bar.SetText(-1, L"x");
    } catch (CInvalidArgException* error) {
        thrown = true;
        error->Delete();
    }
    EXPECT_TRUE(thrown);
}

TEST_F(StatusBar, PaintingWithoutPartsThrows)
{
    const QuietAsserts quiet;
    bool thrown = false;
    try {
        m_bar.OnPaint();
    } catch (CInvalidArgException* error) {
        thrown = true;
        error->Delete();
    }
    EXPECT_TRUE(thrown);
    ::ValidateRect(m_bar, nullptr);
    SetThree();
    EXPECT_TRUE(ts::PixelIs(ts::LookOf(m_bar), 1, 1, kBack));
}

TEST_F(StatusBar, TextNeedsItsWidthAndTwelvePixels)
{
    CClientDC dc(&m_bar);
    const HGDIOBJ old = ::SelectObject(dc, ts::GuiFont());
    const int width = dc.GetTextExtent(L"Some text", 9).cx;
    ::SelectObject(dc, old);
    EXPECT_EQ(width + 12, m_bar.GetTextExtent(L"Some text"));
    EXPECT_EQ(12, m_bar.GetTextExtent(L""));
    EXPECT_EQ(12, m_bar.GetTextExtent(nullptr));
}

TEST(StatusBarAlone, MeasuresWithoutAWindow)
{
    CQorStatusBar bar;
    CClientDC screen(nullptr);
    const HGDIOBJ old = ::SelectObject(screen, ts::GuiFont());
    const int width = screen.GetTextExtent(L"Some text", 9).cx;
    ::SelectObject(screen, old);
    EXPECT_EQ(width + 12, bar.GetTextExtent(L"Some text"));
}

TEST_F(StatusBar, BadCountsAreNoHarm)
{
    EXPECT_TRUE(m_bar.SetParts(-5, nullptr));
    EXPECT_FALSE(m_bar.SetText(0, L"x"));
    EXPECT_TRUE(m_bar.SetParts(2, nullptr));
    EXPECT_TRUE(m_bar.SetText(1, nullptr));
    EXPECT_TRUE(ts::PixelIs(ts::LookOf(m_bar), 1, 1, kBack));
}

TEST_F(StatusBar, LeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([this] {
        CQorStatusBar bar;
        bar.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 30, 400, 52), &m_host, ts::kOtherId);
        std::array<int, 2> widths = {0, 100};
        bar.SetParts(2, widths.data());
        bar.SetText(1, L"Text");
        bar.GetTextExtent(L"Text");
        bar.UpdateWindow();
        bar.DestroyWindow();
    }));
}

} // namespace

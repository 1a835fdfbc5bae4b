#include <QorUI/app/draw/GdiPlusFlat.h>
#include <QorUI/QorUI.h>
#include <tests/support/FaultCounter.h>
#include <tests/support/Imports.h>
#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>
#include <tests/support/ui/Control.h>
#include <tests/support/ui/Look.h>

#include <algorithm>
#include <array>
#include <memory>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

namespace
{

using namespace Gdiplus::DllExports;

constexpr std::array<COLORREF, 5> kSeries = {RGB(47, 162, 244), RGB(250, 160, 90), RGB(248, 194, 57), RGB(247, 101, 43),
                                             RGB(130, 205, 195)};
constexpr COLORREF kWhite = RGB(255, 255, 255);

/** What a chart of 300 x 200 should look like, drawn by GDI+ in a window. */
class ExpectedChart
{
  public:
    /** @param values of the items "Name". */
    ExpectedChart(bool bars, std::vector<UINT> values, CString title = L"")
        : m_bars(bars), m_values(std::move(values)), m_title(std::move(title))
    {
    }

    /** Writes the legend in the font that is selected in the window's device context. */
    void TakeLegendFontOfTheDc() { m_legend = Legend::Dc; }

    void TakeLegendFontOfTheTitle() { m_legend = Legend::Title; }

    /** @param window of that size. */
    ts::Picture DrawIn(CWnd& window)
    {
        ts::Settle();
        {
            CClientDC dc(&window);
            dc.FillSolidRect(0, 0, 300, 200, kWhite);
            m_graphics = QorGdip::GraphicsOn(dc);
            GdipSetSmoothingMode(m_graphics.Get(), Gdiplus::SmoothingModeHighQuality);
            DrawTitle(dc);
            DrawItems(dc);
            m_graphics.Reset();
        }
        return ts::CaptureWindow(window);
    }

  private:
    enum class Legend
    {
        Gui,
        Dc,
        Title
    };

    static Gdiplus::GpFont* FontOf(HDC dc, HGDIOBJ object)
    {
        LOGFONTW logFont = {};
        ::GetObjectW(object, sizeof(logFont), &logFont);
        Gdiplus::GpFont* font = nullptr;
        GdipCreateFontFromLogfontW(dc, &logFont, &font);
        return font;
    }

    static Gdiplus::GpFont* TitleFont(HDC dc)
    {
        CFont arial;
        arial.CreatePointFont(100, L"Arial");
        Gdiplus::GpFont* near10 = FontOf(dc, arial);
        Gdiplus::GpFontFamily* family = nullptr;
        Gdiplus::GpFont* font = nullptr;
        GdipGetFamily(near10, &family);
        GdipCreateFont(family, 10, Gdiplus::FontStyleRegular, Gdiplus::UnitPoint, &font);
        GdipDeleteFontFamily(family);
        GdipDeleteFont(near10);
        return font;
    }

    void DrawTitle(HDC dc)
    {
        Gdiplus::GpFont* font = TitleFont(dc);
        Gdiplus::GpStringFormat* format = nullptr;
        GdipCreateStringFormat(0, LANG_NEUTRAL, &format);
        GdipSetStringFormatLineAlign(format, Gdiplus::StringAlignmentCenter);
        const Gdiplus::RectF place(8, 0, 292, 30);
        GdipDrawString(m_graphics.Get(), m_title, m_title.GetLength(), font, &place, format,
                       QorGdip::Solid(0xFF000000).Get());
        GdipDeleteStringFormat(format);
        GdipDeleteFont(font);
    }

    void DrawItems(HDC dc)
    {
        switch (m_legend) {
        case Legend::Gui:
            m_font = FontOf(dc, ts::GuiFont());
            break;
        case Legend::Dc:
            GdipCreateFontFromDC(dc, &m_font);
            break;
        case Legend::Title:
            m_font = TitleFont(dc);
            break;
        }
        float angle = 0;
        int y = 33;
        for (size_t i = 0; i < m_values.size(); ++i, y += 20) {
            const Gdiplus::ARGB colour = QorGdip::Opaque(kSeries.at(i % 5));
            const QorGdip::Pen pen = QorGdip::SolidPen(colour, 8);
            GdipSetPenStartCap(pen.Get(), Gdiplus::LineCapRound);
            GdipSetPenEndCap(pen.Get(), Gdiplus::LineCapRound);
            if (m_bars) {
                DrawBar(pen.Get(), y, static_cast<int>(m_values[i] * 90 / Most()), colour);
            } else {
                const float sweep = static_cast<float>(m_values[i]) * 360 / static_cast<float>(Sum());
                GdipDrawArc(m_graphics.Get(), pen.Get(), 13, 30, 90, 90, angle, sweep);
                angle += sweep;
            }
            DrawLegend(y, m_values[i], colour);
        }
        GdipDeleteFont(m_font);
    }

    void DrawBar(Gdiplus::GpPen* pen, int y, int length, Gdiplus::ARGB colour)
    {
        if (length > 0) {
            GdipDrawLine(m_graphics.Get(), pen, 13, static_cast<float>(y), static_cast<float>(13 + length),
                         static_cast<float>(y));
        } else {
            GdipFillEllipse(m_graphics.Get(), QorGdip::Solid(colour).Get(), 9, static_cast<float>(y - 4), 8, 8);
        }
    }

    void DrawLegend(int y, UINT value, Gdiplus::ARGB colour)
    {
        const QorGdip::SolidBrush brush = QorGdip::Solid(colour);
        GdipFillRectangle(m_graphics.Get(), brush.Get(), 118, static_cast<float>(y - 3), 8, 8);
        CString text;
        text.Format(L"Name (%u)", value);
        const Gdiplus::RectF place(134, static_cast<float>(y - 6), 0, 0);
        GdipDrawString(m_graphics.Get(), text, text.GetLength(), m_font, &place, nullptr, brush.Get());
    }

    UINT Most() const { return *std::max_element(m_values.begin(), m_values.end()); }
    UINT Sum() const { return std::accumulate(m_values.begin(), m_values.end(), 0u); }

    bool m_bars;
    std::vector<UINT> m_values;
    CString m_title;
    QorGdip::Graphics m_graphics;
    Gdiplus::GpFont* m_font = nullptr;
    Legend m_legend = Legend::Gui;
};

Gdiplus::SmoothingMode g_smoothing = Gdiplus::SmoothingModeInvalid;

Gdiplus::GpStatus WINGDIPAPI NoteSmoothing(Gdiplus::GpGraphics* graphics, Gdiplus::SmoothingMode mode)
{
    g_smoothing = mode;
    return GdipSetSmoothingMode(graphics, mode);
}

class Chart : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_chart.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &m_host, ts::kControlId));
        ::SendMessageW(m_chart, WM_SETFONT, reinterpret_cast<WPARAM>(ts::GuiFont()), FALSE);
    }

    void Add(int count)
    {
        for (int i = 0; i < count; ++i) {
            m_chart.AddItem(L"Name", 1);
        }
    }

    /** The chart with items "Name" of these values. */
    ts::Picture Look(int type, const std::vector<UINT>& values, const wchar_t* title = L"")
    {
        m_chart.RemoveAll();
        m_chart.SetType(type);
        m_chart.SetWindowText(title);
        for (const UINT value : values) {
            m_chart.AddItem(L"Name", value);
        }
        return ts::LookOf(m_chart).Crop(CRect(0, 0, 299, 199));
    }

    ts::Picture Expected(int type, const std::vector<UINT>& values, const wchar_t* title = L"")
    {
        CStatic canvas;
        EXPECT_TRUE(canvas.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 210, 300, 410), &m_host, ts::kOtherId));
        const ts::Picture picture = ExpectedChart(type == 1, values, title).DrawIn(canvas);
        canvas.DestroyWindow();
        return picture.Crop(CRect(0, 0, 299, 199));
    }

    /** Colour of the swatch of a row. */
    static COLORREF Swatch(const ts::Picture& look, int row) { return look.At(121, 33 + 20 * row); }

    ts::AfxHost m_host{320, 420};
    CChartCtrl m_chart;
};

TEST_F(Chart, WithoutItemsIsWhite)
{
    EXPECT_TRUE(ts::AreaIs(ts::LookOf(m_chart), CRect(0, 0, 299, 199), kWhite));
}

TEST_F(Chart, LooksAsItShould)
{
    EXPECT_TRUE(ts::SamePicture(Expected(2, {}, L"A title"), Look(2, {}, L"A title")));
    EXPECT_TRUE(ts::SamePicture(Expected(2, {1, 2, 4}, L"A title"), Look(2, {1, 2, 4}, L"A title")));
    EXPECT_TRUE(ts::SamePicture(Expected(1, {7, 0, 3, 5, 1, 2}), Look(1, {7, 0, 3, 5, 1, 2})));
}

TEST_F(Chart, ItemsWithoutAnyValueShowNothing)
{
    m_chart.AddItem(L"Nothing", 0);
    m_chart.AddItem(L"Nothing", 0);
    EXPECT_TRUE(ts::AreaIs(ts::LookOf(m_chart), CRect(0, 0, 299, 199), kWhite));
}

TEST_F(Chart, TitleIsTheTrimmedWindowText)
{
    m_chart.SetWindowText(L"  Title ");
    const ts::Picture look = ts::LookOf(m_chart);
    const CRect text = look.Crop(CRect(0, 0, 299, 199)).BoundsOfOthers(kWhite);
    EXPECT_GE(text.left, 8);
    EXPECT_LE(text.left, 14);
    EXPECT_LE(text.bottom, 30);
    EXPECT_NEAR(15, text.CenterPoint().y, 3);
    m_chart.SetWindowText(L"Title");
    EXPECT_TRUE(ts::SamePicture(look, ts::LookOf(m_chart)));
    m_chart.SetWindowText(L"   ");
    EXPECT_TRUE(ts::AreaIs(ts::LookOf(m_chart), CRect(0, 0, 299, 199), kWhite));
}

TEST_F(Chart, ColoursAreUsedInTurn)
{
    Add(6);
    const ts::Picture look = ts::LookOf(m_chart);
    for (int row = 0; row < 6; ++row) {
        EXPECT_EQ(kSeries.at(static_cast<size_t>(row) % 5), Swatch(look, row)) << row;
    }
}

TEST_F(Chart, SwatchesAreEightPixelsWide)
{
    Add(1);
    const ts::Picture look = ts::LookOf(m_chart);
    EXPECT_TRUE(ts::AreaIs(look, CRect(118, 30, 126, 38), kSeries[0]));
    EXPECT_TRUE(ts::PixelIs(look, 117, 33, kWhite));
    EXPECT_TRUE(ts::PixelIs(look, 127, 33, kWhite));
    EXPECT_TRUE(ts::PixelIs(look, 121, 29, kWhite));
    EXPECT_TRUE(ts::PixelIs(look, 121, 39, kWhite));
}

TEST_F(Chart, LegendTextBeginsRightOfTheSwatch)
{
    Add(1);
    const CRect text = ts::LookOf(m_chart).Crop(CRect(127, 0, 299, 199)).BoundsOfOthers(kWhite);
    EXPECT_GE(text.left + 127, 134);
    EXPECT_LE(text.left + 127, 140);
    EXPECT_GE(text.top, 27);
    EXPECT_LE(text.bottom, 45);
}

TEST_F(Chart, LegendShowsNameAndValue)
{
    m_chart.AddItem(L"Name (7)", 1);
    const ts::Picture one = ts::LookOf(m_chart).Crop(CRect(128, 20, 299, 50));
    m_chart.RemoveAll();
    m_chart.AddItem(L"Name", 7);
    const ts::Picture other = ts::LookOf(m_chart).Crop(CRect(128, 20, 299, 50));
    EXPECT_FALSE(ts::SamePicture(one, other));
    EXPECT_GT(one.BoundsOfOthers(kWhite).right, other.BoundsOfOthers(kWhite).right);
}

TEST_F(Chart, LegendIsNameAndUnsignedValueInParentheses)
{
    m_chart.AddItem(L"Name", 4000000000);
    const CRect legend(128, 20, 299, 50);
    const ts::Picture one = ts::LookOf(m_chart).Crop(legend);
    m_chart.RemoveAll();
    m_chart.AddItem(L"Name (4000000000)", 1); // the same beginning
    CRect shown = one.BoundsOfOthers(kWhite);
    shown.right -= 1;
    EXPECT_GT(shown.Width(), 60);
    EXPECT_TRUE(ts::SamePicture(one.Crop(shown), ts::LookOf(m_chart).Crop(legend).Crop(shown)));
}

TEST_F(Chart, LeavesTheLastRowAndColumn)
{
    CClientDC(&m_chart).FillSolidRect(0, 0, 300, 200, RGB(255, 0, 255));
    const ts::Picture look = ts::LookOf(m_chart);
    EXPECT_TRUE(ts::AreaIs(look, CRect(0, 0, 299, 199), kWhite));
    EXPECT_TRUE(ts::AreaIs(look, CRect(299, 0, 300, 200), RGB(255, 0, 255)));
    EXPECT_TRUE(ts::AreaIs(look, CRect(0, 199, 300, 200), RGB(255, 0, 255)));
}

TEST_F(Chart, SingleItemIsAFullRing)
{
    Add(1);
    const ts::Picture look = ts::LookOf(m_chart);
    for (const CPoint point : {CPoint(103, 75), CPoint(58, 120), CPoint(13, 75), CPoint(58, 30)}) {
        EXPECT_TRUE(ts::PixelIs(look, point.x, point.y, kSeries[0])) << point.x << "," << point.y;
    }
    EXPECT_TRUE(ts::PixelIs(look, 58, 75, kWhite));
    const CRect ring = look.Crop(CRect(0, 0, 112, 199)).BoundsOfOthers(kWhite);
    EXPECT_NEAR(9, ring.left, 1);
    EXPECT_NEAR(107, ring.right, 1);
    EXPECT_NEAR(26, ring.top, 1);
    EXPECT_NEAR(124, ring.bottom, 1);
}

TEST_F(Chart, RingRunsClockwiseFromTheRight)
{
    Add(4);
    const ts::Picture look = ts::LookOf(m_chart);
    EXPECT_TRUE(ts::PixelIs(look, 58 + 32, 75 + 32, kSeries[0]));
    EXPECT_TRUE(ts::PixelIs(look, 58 - 32, 75 + 32, kSeries[1]));
    EXPECT_TRUE(ts::PixelIs(look, 58 - 32, 75 - 32, kSeries[2]));
    EXPECT_TRUE(ts::PixelIs(look, 58 + 32, 75 - 32, kSeries[3]));
}

TEST_F(Chart, LongestBarIsNinetyPixelsAndItsCaps)
{
    ASSERT_TRUE(m_chart.SetType(1));
    m_chart.AddItem(L"All", 300);
    m_chart.AddItem(L"Third", 100);
    const ts::Picture look = ts::LookOf(m_chart);
    const CRect all = look.Crop(CRect(0, 0, 115, 50)).BoundsOf(kSeries[0]);
    EXPECT_NEAR(9, all.left, 1);
    EXPECT_NEAR(107, all.right, 1);
    EXPECT_NEAR(29, all.top, 1);
    EXPECT_NEAR(37, all.bottom, 1);
    const CRect third = look.Crop(CRect(0, 0, 115, 70)).BoundsOf(kSeries[1]);
    EXPECT_NEAR(13 + 30 + 4, third.right, 1);
    EXPECT_NEAR(53, third.CenterPoint().y, 1);
}

TEST_F(Chart, BarWithoutValueIsADot)
{
    m_chart.SetType(1);
    m_chart.AddItem(L"One", 1);
    m_chart.AddItem(L"None", 0);
    const CRect dot = ts::LookOf(m_chart).Crop(CRect(0, 0, 115, 70)).BoundsOf(kSeries[1]);
    EXPECT_NEAR(13, dot.CenterPoint().x, 1);
    EXPECT_NEAR(8, dot.Width(), 2);
    EXPECT_NEAR(8, dot.Height(), 2);
}

TEST_F(Chart, HugeValuesDoNotOverflow)
{
    m_chart.SetType(1);
    m_chart.AddItem(L"Much", UINT_MAX);
    m_chart.AddItem(L"Much", UINT_MAX);
    const CRect bar = ts::LookOf(m_chart).Crop(CRect(0, 0, 115, 50)).BoundsOf(kSeries[0]);
    EXPECT_NEAR(107, bar.right, 1);
    m_chart.RemoveAll();
    m_chart.AddItem(L"Much", 0x80000000);
    m_chart.AddItem(L"Much", 0x80000000);
    m_chart.SetType(2);
    const ts::Picture ring = ts::LookOf(m_chart);
    EXPECT_TRUE(ts::PixelIs(ring, 58, 120, kSeries[0]));
    EXPECT_TRUE(ts::PixelIs(ring, 58, 30, kSeries[1]));
}

TEST_F(Chart, OnlyTheTwoTypesAreTaken)
{
    Add(1);
    const ts::Picture ring = ts::LookOf(m_chart);
    ::ValidateRect(m_chart, nullptr);
    for (const int type : {0, 3, -1}) {
        EXPECT_FALSE(m_chart.SetType(type)) << type;
    }
    EXPECT_FALSE(::GetUpdateRect(m_chart, nullptr, FALSE));
    EXPECT_TRUE(ts::SamePicture(ring, ts::LookOf(m_chart)));
    EXPECT_TRUE(m_chart.SetType(1));
    EXPECT_TRUE(::GetUpdateRect(m_chart, nullptr, FALSE));
    EXPECT_FALSE(ts::SamePicture(ring, ts::LookOf(m_chart)));
    EXPECT_TRUE(m_chart.SetType(2));
    EXPECT_TRUE(ts::SamePicture(ring, ts::LookOf(m_chart)));
}

TEST_F(Chart, ChangesOfTheItemsRepaint)
{
    ::ValidateRect(m_chart, nullptr);
    Add(1);
    EXPECT_TRUE(::GetUpdateRect(m_chart, nullptr, FALSE));
    ::ValidateRect(m_chart, nullptr);
    m_chart.RemoveAll();
    EXPECT_TRUE(::GetUpdateRect(m_chart, nullptr, FALSE));
    EXPECT_TRUE(ts::AreaIs(ts::LookOf(m_chart), CRect(0, 0, 299, 199), kWhite));
}

TEST_F(Chart, NewItemsAskForErasing)
{
    m_chart.UpdateWindow();
    ts::MessageRecorder log(m_chart);
    log.RecordOnly({WM_ERASEBKGND});
    Add(1);
    m_chart.UpdateWindow();
    EXPECT_EQ(1u, log.Messages().size());
}

TEST_F(Chart, ErasesNothing)
{
    EXPECT_EQ(TRUE, m_chart.SendMessage(WM_ERASEBKGND, 0));
}

TEST_F(Chart, WithoutAFontHasALegendAllTheSame)
{
    ::SendMessageW(m_chart, WM_SETFONT, 0, FALSE);
    Add(1);
    EXPECT_GT(ts::LookOf(m_chart).Crop(CRect(134, 20, 299, 50)).Count(kSeries[0]), 5);
}

TEST_F(Chart, WithoutAFontHasTheLegendInTheDeviceContextsOne)
{
    const LPCWSTR name = AfxRegisterWndClass(CS_OWNDC);
    CChartCtrl chart; // no font of its own, and a device context that it keeps
    CWnd canvas;
    ASSERT_TRUE(chart.CWnd::Create(name, L"", WS_CHILD | WS_VISIBLE, CRect(0, 210, 300, 410), &m_host, ts::kOtherId));
    ASSERT_TRUE(canvas.Create(name, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &m_host, ts::kControlId));
    ::SetWindowPos(canvas, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(160, L"Tahoma"));
    for (const CWnd* wnd : {static_cast<CWnd*>(&chart), &canvas}) {
        ::SelectObject(::GetDC(*wnd), font.GetSafeHandle());
    }
    chart.AddItem(L"Name", 1);
    ExpectedChart expected(false, {1});
    expected.TakeLegendFontOfTheDc();
    const CRect painted(0, 0, 299, 199);
    const ts::Picture look = expected.DrawIn(canvas).Crop(painted);
    EXPECT_GT(CRect(look.Crop(CRect(134, 0, 299, 199)).BoundsOf(kSeries[0])).Height(), 16);
    EXPECT_TRUE(ts::SamePicture(look, ts::LookOf(chart).Crop(painted)));
    chart.DestroyWindow();
    canvas.DestroyWindow();
}

TEST_F(Chart, IsSmoothed)
{
    const ts::ReplacedImport noting(L"QorUI.dll", "GdipSetSmoothingMode", &NoteSmoothing);
    Add(3);
    ts::LookOf(m_chart);
    EXPECT_EQ(Gdiplus::SmoothingModeHighQuality, g_smoothing);
}

TEST_F(Chart, IsPaintedAgainWhenTheSystemHasDrawnOverIt)
{
    const CRect painted(0, 0, 299, 199);
    Add(3);
    m_chart.SetWindowText(L"Title");
    ts::LookOf(m_chart);
    m_chart.SetWindowText(L"Another title");
    const ts::Picture retitled = ts::CaptureWindow(m_chart).Crop(painted);
    EXPECT_TRUE(ts::SamePicture(ts::LookOf(m_chart).Crop(painted), retitled));
    m_chart.EnableWindow(FALSE);
    EXPECT_TRUE(ts::SamePicture(retitled, ts::CaptureWindow(m_chart).Crop(painted)));
}

TEST_F(Chart, LegendHasTheControlsFont)
{
    Add(1);
    const ts::Picture small = ts::LookOf(m_chart);
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(160, L"Tahoma"));
    ::SendMessageW(m_chart, WM_SETFONT, reinterpret_cast<WPARAM>(font.m_hObject), FALSE);
    const CRect legend(127, 0, 299, 199);
    const CRect one = small.Crop(legend).BoundsOf(kSeries[0]);
    const CRect other = ts::LookOf(m_chart).Crop(legend).BoundsOf(kSeries[0]);
    EXPECT_GT(other.Height(), one.Height() * 3 / 2);
    EXPECT_GT(other.Width(), one.Width() * 3 / 2);
}

TEST_F(Chart, TitleWrapsAtTheRightEdge)
{
    CString title(L"MMMM MMMM MMMM MMMM ");
    bool wrapped = false;
    while (!wrapped && title.GetLength() < 80) {
        title += L"i"; // a few pixels more of the last word
        m_chart.SetWindowText(title);
        const CRect text = ts::LookOf(m_chart).Crop(CRect(0, 0, 299, 199)).BoundsOfOthers(kWhite);
        EXPECT_LT(text.right, 296) << title.GetLength();
        wrapped = text.Height() > 16;
    }
    EXPECT_TRUE(wrapped);
}

TEST_F(Chart, SurvivesTheEndOfTheGdiObjects)
{
    m_chart.SetWindowText(L"Title");
    Add(3);
    EXPECT_TRUE(ts::SurvivesGdiShortage(m_chart));
}

TEST_F(Chart, ExtremeTextsAndCountsAreNoHarm)
{
    m_chart.AddItem(nullptr, 1);
    m_chart.AddItem(CString(L'x', 5000), 2);
    Add(500);
    m_chart.SetWindowText(CString(L'y', 5000));
    EXPECT_EQ(kSeries[0], Swatch(ts::LookOf(m_chart), 0));
}

TEST(ChartAlone, ChildNeedsAParent)
{
    CChartCtrl chart;
    EXPECT_FALSE(chart.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), nullptr, 1));
    EXPECT_EQ(nullptr, chart.m_hWnd);
}

TEST_F(Chart, TakesItemsBeforeItHasAWindow)
{
    const ts::Picture look = Look(1, {1, 2});
    m_chart.DestroyWindow();
    CChartCtrl chart;
    chart.AddItem(L"Gone", 5);
    chart.RemoveAll();
    chart.AddItem(L"Name", 1);
    chart.AddItem(L"Name", 2);
    EXPECT_TRUE(chart.SetType(1));
    ASSERT_TRUE(chart.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &m_host, ts::kControlId));
    ::SendMessageW(chart, WM_SETFONT, reinterpret_cast<WPARAM>(ts::GuiFont()), FALSE);
    EXPECT_TRUE(ts::SamePicture(look, ts::LookOf(chart).Crop(CRect(0, 0, 299, 199))));
    chart.DestroyWindow();
}

TEST_F(Chart, LeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([this] {
        for (const int type : {1, 2}) {
            CChartCtrl chart;
            chart.Create(L"Title", WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &m_host, ts::kOtherId);
            chart.SetType(type);
            chart.AddItem(L"Name", 1);
            chart.AddItem(L"Name", 0);
            chart.UpdateWindow();
            chart.DestroyWindow();
        }
    }));
}

/** How many of the library's GDI+ objects are not deleted yet. */
int g_objects = 0;
int g_mostObjects = 0;
std::vector<int> g_objectsAtEnd;

/** A function of GDI+ that makes or deletes an object, counted. */
template <auto Function, int Change>
struct Counting;
template <class... Arguments, Gdiplus::GpStatus(WINGDIPAPI* Function)(Arguments...), int Change>
struct Counting<Function, Change>
{
    static Gdiplus::GpStatus WINGDIPAPI Call(Arguments... arguments)
    {
        const Gdiplus::GpStatus status = Function(arguments...);
        g_objects += status == Gdiplus::Ok ? Change : 0;
        g_mostObjects = (std::max)(g_mostObjects, g_objects);
        return status;
    }
};

template <auto Function>
ts::ReplacedImport Making(const char* name)
{
    return {L"QorUI.dll", name, &Counting<Function, 1>::Call};
}

template <auto Function>
ts::ReplacedImport Deleting(const char* name)
{
    return {L"QorUI.dll", name, &Counting<Function, -1>::Call};
}

BOOL WINAPI NoteEndPaint(HWND wnd, const PAINTSTRUCT* paint)
{
    g_objectsAtEnd.push_back(g_objects);
    return ::EndPaint(wnd, paint);
}

TEST_F(Chart, EveryGdiPlusObjectIsDeletedBeforeThePaintingEnds)
{
    m_chart.SetWindowText(L"Title");
    Add(3);
    const auto graphics = Making<GdipCreateFromHDC>("GdipCreateFromHDC");
    const auto brush = Making<GdipCreateSolidFill>("GdipCreateSolidFill");
    const auto pen = Making<GdipCreatePen1>("GdipCreatePen1");
    const auto font = Making<GdipCreateFont>("GdipCreateFont");
    const auto logFont = Making<GdipCreateFontFromLogfontW>("GdipCreateFontFromLogfontW");
    const auto dcFont = Making<GdipCreateFontFromDC>("GdipCreateFontFromDC");
    const auto family = Making<GdipGetFamily>("GdipGetFamily");
    const auto format = Making<GdipCreateStringFormat>("GdipCreateStringFormat");
    const auto noGraphics = Deleting<GdipDeleteGraphics>("GdipDeleteGraphics");
    const auto noBrush = Deleting<GdipDeleteBrush>("GdipDeleteBrush");
    const auto noPen = Deleting<GdipDeletePen>("GdipDeletePen");
    const auto noFont = Deleting<GdipDeleteFont>("GdipDeleteFont");
    const auto noFamily = Deleting<GdipDeleteFontFamily>("GdipDeleteFontFamily");
    const auto noFormat = Deleting<GdipDeleteStringFormat>("GdipDeleteStringFormat");
    const ts::ReplacedImport end(L"afx.dll", "EndPaint", &NoteEndPaint);
    for (const HGDIOBJ own : {ts::GuiFont(), HGDIOBJ()}) {
        ::SendMessageW(m_chart, WM_SETFONT, reinterpret_cast<WPARAM>(own), FALSE);
        ts::Settle();
        g_objects = 0;
        g_mostObjects = 0;
        g_objectsAtEnd.clear();
        ts::PaintNow(m_chart);
        EXPECT_GT(g_mostObjects, 3);
        EXPECT_EQ(std::vector<int>(1, 0), g_objectsAtEnd);
    }
}

int g_failedCalls = 0;

/** Stands for a function of GDI+ and fails. */
template <auto Function>
struct Failing;
template <class... Arguments, Gdiplus::GpStatus(WINGDIPAPI* Function)(Arguments...)>
struct Failing<Function>
{
    static Gdiplus::GpStatus WINGDIPAPI Call(Arguments... /*arguments*/)
    {
        ++g_failedCalls;
        return Gdiplus::OutOfMemory;
    }
};

template <auto Function>
constexpr std::unique_ptr<ts::ReplacedImport> (*kFail)(const char*) =
    [](const char* name) { return std::make_unique<ts::ReplacedImport>(L"QorUI.dll", name, &Failing<Function>::Call); };

using FailingCall = std::pair<const char*, std::unique_ptr<ts::ReplacedImport> (*)(const char*)>;

class ChartFailure : public Chart, public testing::WithParamInterface<FailingCall>
{
};

TEST_P(ChartFailure, LeavesThePaintingWholeAndTheNextOneRight)
{
    ::SendMessageW(m_chart, WM_SETFONT, 0, FALSE); // the legend has the device context's one
    m_chart.SetWindowText(L"Title");
    Add(3);
    const CRect painted(0, 0, 299, 199);
    const ts::Picture look = ts::LookOf(m_chart).Crop(painted);
    {
        const auto& [name, fail] = GetParam();
        const auto failing = fail(name);
        const ts::FaultCounter faults;
        g_failedCalls = 0;
        ts::PaintNow(m_chart);
        EXPECT_GT(g_failedCalls, 0);
        EXPECT_FALSE(::GetUpdateRect(m_chart, nullptr, FALSE));
        EXPECT_EQ(0, faults.Count());
    }
    EXPECT_TRUE(ts::SamePicture(look, ts::LookOf(m_chart).Crop(painted)));
}

INSTANTIATE_TEST_SUITE_P(All, ChartFailure,
                         testing::Values(FailingCall("GdipCreateFromHDC", kFail<GdipCreateFromHDC>),
                                         FailingCall("GdipCreateSolidFill", kFail<GdipCreateSolidFill>),
                                         FailingCall("GdipCreatePen1", kFail<GdipCreatePen1>),
                                         FailingCall("GdipCreateFont", kFail<GdipCreateFont>),
                                         FailingCall("GdipGetFamily", kFail<GdipGetFamily>),
                                         FailingCall("GdipCreateFontFromLogfontW", kFail<GdipCreateFontFromLogfontW>),
                                         FailingCall("GdipCreateFontFromDC", kFail<GdipCreateFontFromDC>),
                                         FailingCall("GdipCreateStringFormat", kFail<GdipCreateStringFormat>)),
                         [](const testing::TestParamInfo<FailingCall>& failure) {
                             return std::string(failure.param.first);
                         });

TEST_F(Chart, WithoutAUsableFontHasItsLegendInTheTitlesOne)
{
    ::SendMessageW(m_chart, WM_SETFONT, 0, FALSE);
    const ts::ReplacedImport failing(L"QorUI.dll", "GdipCreateFontFromDC", &Failing<GdipCreateFontFromDC>::Call);
    ExpectedChart expected(false, {1, 2});
    expected.TakeLegendFontOfTheTitle();
    CStatic canvas;
    ASSERT_TRUE(canvas.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 210, 300, 410), &m_host, ts::kOtherId));
    const ts::Picture look = expected.DrawIn(canvas).Crop(CRect(0, 0, 299, 199));
    canvas.DestroyWindow();
    EXPECT_TRUE(ts::SamePicture(look, Look(2, {1, 2})));
    EXPECT_GT(look.Crop(CRect(134, 20, 299, 50)).Count(kSeries[0]), 5);
}

TEST_F(Chart, WithoutATitleFontHasEverythingElse)
{
    ::SendMessageW(m_chart, WM_SETFONT, 0, FALSE); // the legend has the device context's one
    const ts::Picture look = Look(2, {1, 2});
    const ts::ReplacedImport failing(L"QorUI.dll", "GdipCreateFontFromLogfontW",
                                     &Failing<GdipCreateFontFromLogfontW>::Call);
    EXPECT_TRUE(ts::SamePicture(look, Look(2, {1, 2}, L"Title")));
}

} // namespace

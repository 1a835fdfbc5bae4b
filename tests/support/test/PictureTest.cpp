#include <tests/support/Support.h>

#include <gtest/gtest-spi.h>

namespace
{
constexpr COLORREF kRed = RGB(200, 10, 20);
constexpr COLORREF kBlue = RGB(10, 20, 200);
constexpr COLORREF kGreen = RGB(10, 200, 20);
constexpr COLORREF kWhite = RGB(255, 255, 255);

void Fill(HDC dc, const RECT& rect, COLORREF colour)
{
    const HBRUSH brush = CreateSolidBrush(colour);
    FillRect(dc, &rect, brush);
    DeleteObject(brush);
}

/** A child window that is red with a blue square; it draws for WM_PAINT and WM_PRINTCLIENT alike. */
LRESULT CALLBACK PainterProcedure(HWND window, UINT id, WPARAM wParam, LPARAM lParam)
{
    const auto draw = [window](HDC dc) {
        RECT client;
        GetClientRect(window, &client);
        Fill(dc, client, kRed);
        Fill(dc, {2, 3, 12, 13}, kBlue);
    };
    if (id == WM_PAINT) {
        PAINTSTRUCT paint;
        draw(BeginPaint(window, &paint));
        EndPaint(window, &paint);
        return 0;
    }
    if (id == WM_PRINTCLIENT) {
        draw(reinterpret_cast<HDC>(wParam));
        return 0;
    }
    return DefWindowProcW(window, id, wParam, lParam);
}

const wchar_t* PainterClass()
{
    static const ATOM atom = [] {
        WNDCLASSW info = {};
        info.lpfnWndProc = PainterProcedure;
        info.hInstance = GetModuleHandleW(nullptr);
        info.lpszClassName = L"QorTestPainter";
        return RegisterClassW(&info);
    }();
    return MAKEINTATOM(atom);
}

void ExpectPainterAt50x20(const ts::Picture& picture)
{
    EXPECT_TRUE(ts::PixelIs(picture, 49, 19, kGreen));
    EXPECT_TRUE(ts::FrameIs(picture, {50, 20, 90, 50}, kRed));
    EXPECT_TRUE(ts::AreaIs(picture, {52, 23, 62, 33}, kBlue));
    EXPECT_TRUE(ts::PixelIs(picture, 62, 33, kRed));
    EXPECT_TRUE(ts::PixelIs(picture, 90, 50, kGreen));
    EXPECT_EQ(100, picture.Count(kBlue));
    EXPECT_EQ(40 * 30 - 100, picture.Count(kRed));
}

TEST(Picture, OfAVisibleWindowShowsWhatTheChildrenPainted)
{
    ts::HostWindow host(200, 100, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN | WS_VISIBLE, kGreen);
    ASSERT_TRUE(host.Add(PainterClass(), L"", 0, 50, 20, 40, 30, 1));
    ExpectPainterAt50x20(ts::CaptureWindow(host.Hwnd()));
}

TEST(Picture, OfAHiddenWindowShowsWhatTheChildrenPaint)
{
    ts::HostWindow host(200, 100, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, kGreen);
    ASSERT_TRUE(host.Add(PainterClass(), L"", 0, 50, 20, 40, 30, 1));
    ExpectPainterAt50x20(ts::CaptureWindow(host.Hwnd()));
}

TEST(Picture, OfACoveredWindowShowsTheWindow)
{
    ts::HostWindow host(200, 100, WS_POPUP | WS_CLIPCHILDREN | WS_VISIBLE, kGreen);
    ASSERT_TRUE(host.Add(PainterClass(), L"", 0, 50, 20, 40, 30, 1));
    const ts::HostWindow cover(300, 200, WS_POPUP | WS_VISIBLE, kWhite);
    ExpectPainterAt50x20(ts::CaptureWindow(host.Hwnd()));
}

TEST(Picture, OfAFrameHasTheCaption)
{
    const ts::HostWindow host(120, 80, WS_OVERLAPPED | WS_CAPTION | WS_VISIBLE, kGreen);
    RECT bounds = {};
    GetWindowRect(host.Hwnd(), &bounds);
    const ts::Picture picture = ts::CaptureFrame(host.Hwnd());
    EXPECT_EQ(bounds.right - bounds.left, picture.Width());
    EXPECT_EQ(bounds.bottom - bounds.top, picture.Height());
    const RECT client = picture.BoundsOf(kGreen);
    EXPECT_EQ(120, client.right - client.left);
    EXPECT_EQ(80, client.bottom - client.top);
    EXPECT_GE(client.top, GetSystemMetrics(SM_CYCAPTION));
}

TEST(Picture, DrawnInMemoryHasThePixels)
{
    const ts::Picture picture = ts::DrawTo(20, 10, [](HDC dc) { SetPixel(dc, 19, 9, kRed); });
    EXPECT_EQ(20, picture.Width());
    EXPECT_EQ(10, picture.Height());
    EXPECT_EQ(kRed, picture.At(19, 9));
    EXPECT_EQ(kWhite, picture.At(18, 9));
    EXPECT_EQ(1, picture.Count(kRed));
}

TEST(Picture, OfABitmapHasItsPixels)
{
    const DWORD bits[] = {0x00C80A14, 0x000A14C8};
    const HBITMAP bitmap = CreateBitmap(2, 1, 1, 32, bits);
    const ts::Picture picture = ts::PictureOf(bitmap);
    DeleteObject(bitmap);
    EXPECT_TRUE(ts::PixelIs(picture, 0, 0, kRed));
    EXPECT_TRUE(ts::PixelIs(picture, 1, 0, kBlue));
}

TEST(Picture, FindsBoundsOfAColour)
{
    const ts::Picture picture = ts::DrawTo(30, 30, [](HDC dc) { Fill(dc, {4, 5, 20, 11}, kRed); });
    const RECT wanted = {4, 5, 20, 11};
    const RECT red = picture.BoundsOf(kRed);
    const RECT notWhite = picture.BoundsOfOthers(kWhite);
    const RECT blue = picture.BoundsOf(kBlue);
    EXPECT_TRUE(EqualRect(&wanted, &red));
    EXPECT_TRUE(EqualRect(&wanted, &notWhite));
    EXPECT_TRUE(IsRectEmpty(&blue));
}

TEST(Picture, NamesTheFirstDifference)
{
    const ts::Picture one = ts::DrawTo(10, 10, [](HDC) {});
    const ts::Picture other = ts::DrawTo(10, 10, [](HDC dc) {
        SetPixel(dc, 1, 7, kRed);
        SetPixel(dc, 3, 6, kRed);
    });
    const std::optional<POINT> at = ts::FirstDifference(one, other);
    ASSERT_TRUE(at);
    EXPECT_EQ(3, at->x);
    EXPECT_EQ(6, at->y);
    EXPECT_FALSE(ts::SamePicture(one, other));
    EXPECT_TRUE(ts::SamePicture(one, ts::DrawTo(10, 10, [](HDC) {})));
}

TEST(Picture, ChecksRefuseWrongPixels)
{
    const ts::Picture picture = ts::DrawTo(10, 10, [](HDC dc) { SetPixel(dc, 5, 5, kRed); });
    EXPECT_FALSE(ts::PixelIs(picture, 5, 5, kWhite));
    EXPECT_FALSE(ts::AreaIs(picture, {0, 0, 10, 10}, kWhite));
    EXPECT_TRUE(ts::AreaIs(picture, {0, 0, 10, 5}, kWhite));
    EXPECT_FALSE(ts::FrameIs(picture, {2, 2, 6, 6}, kWhite));
    EXPECT_TRUE(ts::FrameIs(picture, {2, 2, 7, 7}, kWhite));
    EXPECT_FALSE(ts::AreaIs(picture, {3, 3, 3, 9}, kWhite));
}

TEST(Picture, ToleranceIsTheLargestDifferenceOfAChannel)
{
    const ts::Picture picture = ts::DrawTo(
        1, 1, [](HDC) {}, RGB(100, 100, 100));
    EXPECT_TRUE(ts::PixelIs(picture, 0, 0, RGB(98, 102, 100), 2));
    EXPECT_FALSE(ts::PixelIs(picture, 0, 0, RGB(97, 100, 100), 2));
}

TEST(Picture, PixelOutsideFails)
{
    const ts::Picture picture = ts::DrawTo(3, 3, [](HDC) {});
    EXPECT_FALSE(ts::PixelIs(picture, 3, 0, kWhite));
    EXPECT_NONFATAL_FAILURE(picture.At(0, -1), "outside");
}

TEST(Picture, TextShowsLettersAndColours)
{
    const ts::Picture picture = ts::DrawTo(3, 2, [](HDC dc) { SetPixel(dc, 1, 1, kRed); });
    EXPECT_EQ("...\n.#.\n# = (200, 10, 20)\n. = (255, 255, 255)\n", picture.Text());
}

} // namespace

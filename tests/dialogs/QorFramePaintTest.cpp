#include "TestFrame.h"

#include <QorUI/app/draw/GdiPlusFlat.h>
#include <tests/support/Imports.h>
#include <tests/support/Resources.h>

#include <memory>

namespace
{

constexpr COLORREF kBack = RGB(186, 210, 234);
constexpr COLORREF kOutline = RGB(189, 189, 189);

TEST(Frame, OutlineIsRoundedByTwelve)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    const ts::Picture expected = ts::DrawTo(
        600, 400,
        [](HDC dc) {
            ::SelectObject(dc, ::GetStockObject(DC_BRUSH));
            ::SetDCBrushColor(dc, kBack);
            ::SelectObject(dc, ::GetStockObject(DC_PEN));
            ::SetDCPenColor(dc, kOutline);
            ::RoundRect(dc, 0, 0, 599, 399, 12, 12);
        },
        RGB(1, 2, 3));
    const ts::Picture shown = ts::CaptureWindow(frame);
    for (int i = 0; i < 81; ++i) { // the banner starts at (9, 9)
        const int x = i % 9;
        const int y = i / 9;
        EXPECT_TRUE(!InShape(frame, x, y) || ts::PixelIs(shown, x, y, expected.At(x, y))) << x << ", " << y;
    }
}

TEST(Frame, BackgroundAndOutlineHaveTheirColours)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    const ts::Picture picture = ts::CaptureWindow(frame);
    EXPECT_TRUE(ts::AreaIs(picture, CRect(20, 120, 580, 390), kBack));
    EXPECT_TRUE(ts::PixelIs(picture, 300, 0, kOutline));
    EXPECT_TRUE(ts::PixelIs(picture, 0, 200, kOutline));
    EXPECT_TRUE(ts::PixelIs(picture, 598, 200, kOutline));
    EXPECT_TRUE(ts::PixelIs(picture, 300, 398, kOutline));
    EXPECT_TRUE(ts::PixelIs(picture, 597, 200, kBack));
    EXPECT_TRUE(ts::PixelIs(picture, 300, 397, kBack));
}

/** A picture of the library's resources. */
std::unique_ptr<Gdiplus::Image> LibraryPicture(UINT id)
{
    auto* image = static_cast<const Gdiplus::Image*>(QorImageFromResource(ts::Library(), MAKEINTRESOURCEW(id), L"PNG"));
    return std::unique_ptr<Gdiplus::Image>(const_cast<Gdiplus::Image*>(image));
}

/** The frame's area left of its buttons, with that flag of the application icon. */
ts::Picture BannerArea(BOOL flag)
{
    QorSetAppIcon(nullptr, flag);
    CTestFrame frame;
    const bool opened = frame.Open();
    const ts::Picture picture = ts::CaptureWindow(frame);
    QorSetAppIcon(nullptr, FALSE);
    EXPECT_TRUE(opened);
    return picture.Crop(CRect(2, 2, 490, 200));
}

void ExpectBannerAtNineNine(UINT id, BOOL flag)
{
    const std::unique_ptr<Gdiplus::Image> banner = LibraryPicture(id);
    ASSERT_NE(nullptr, banner);
    const auto width = static_cast<int>(banner->GetWidth());
    const auto height = static_cast<int>(banner->GetHeight());
    const ts::Picture expected = ts::DrawTo(
        600, 400, [&](HDC dc) { Gdiplus::Graphics(dc).DrawImage(banner.get(), 9, 9, width, height); }, kBack);
    const ts::Picture shown = BannerArea(flag);
    EXPECT_TRUE(ts::SamePicture(expected.Crop(CRect(2, 2, 490, 200)), shown));
    EXPECT_FALSE(CRect(shown.BoundsOfOthers(kBack)).IsRectEmpty());
}

TEST(Frame, DrawsTheHighBannerWithoutTheFlag)
{
    ExpectBannerAtNineNine(IDR_PNG_BANNER, FALSE);
}

TEST(Frame, DrawsTheLowBannerWithTheFlag)
{
    ExpectBannerAtNineNine(IDR_PNG_BANNER2, TRUE);
}

int g_freedImages = 0;

Gdiplus::GpStatus WINGDIPAPI CountFreed(Gdiplus::GpImage* image)
{
    ++g_freedImages;
    return Gdiplus::DllExports::GdipDisposeImage(image);
}

TEST(Frame, FreesTheBannerAfterEachPaint)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    const ts::ReplacedImport hook(L"QorUI.dll", "GdipDisposeImage", &CountFreed);
    g_freedImages = 0;
    for (int i = 0; i < 3; ++i) {
        frame.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    }
    EXPECT_EQ(3, g_freedImages);
}

HRSRC WINAPI NoResource(HMODULE, LPCWSTR, LPCWSTR)
{
    return nullptr;
}

TEST(Frame, WithoutItsPictureTheBannerIsEmpty)
{
    const ts::ReplacedImport hook(L"QorPub.dll", "FindResourceW", &NoResource);
    EXPECT_TRUE(ts::AreaIs(BannerArea(FALSE), CRect(0, 0, 488, 198), kBack));
}

} // namespace

#include <QorUI/app/draw/GrayCopy.h>
#include <tests/app/res/resource.h>
#include <tests/support/Imports.h>
#include <tests/support/Resources.h>
#include <tests/support/ui/Drawn.h>

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

/** A bitmap of the screen's depth with one pixel of each colour. */
class ColourRow
{
  public:
    explicit ColourRow(std::initializer_list<COLORREF> colours)
    {
        CClientDC screen(nullptr);
        m_bitmap.CreateCompatibleBitmap(&screen, static_cast<int>(colours.size()), 1);
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        const HGDIOBJ old = ::SelectObject(dc.m_hDC, m_bitmap.GetSafeHandle());
        int x = 0;
        for (const COLORREF colour : colours) {
            ::SetPixel(dc.m_hDC, x++, 0, colour);
        }
        ::SelectObject(dc.m_hDC, old);
    }
    HBITMAP Handle() { return m_bitmap; }

  private:
    CBitmap m_bitmap;
};

std::vector<COLORREF> PixelsOf(HBITMAP bitmap)
{
    const ts::Picture picture = ts::PictureOf(bitmap);
    std::vector<COLORREF> pixels;
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            pixels.push_back(picture.At(x, y));
        }
    }
    return pixels;
}

TEST(GrayBmp, WeighsTheColoursAndCutsOff)
{
    ColourRow source({RGB(255, 255, 255), RGB(255, 0, 0), RGB(250, 0, 0), RGB(0, 250, 0), RGB(0, 0, 250)});
    CBitmap gray;
    ASSERT_TRUE(gray.Attach(QorCreateGrayBmp(source.Handle())));
    const std::vector<COLORREF> expected = {RGB(255, 255, 255), RGB(76, 76, 76), RGB(74, 74, 74), RGB(146, 146, 146),
                                            RGB(28, 28, 28)};
    EXPECT_EQ(expected, PixelsOf(gray));
}

TEST(GrayBmp, BlackStaysBlack)
{
    ColourRow source({0, RGB(255, 0, 0), 0});
    CBitmap gray;
    ASSERT_TRUE(gray.Attach(QorCreateGrayBmp(source.Handle())));
    EXPECT_EQ((std::vector<COLORREF>{0, RGB(76, 76, 76), 0}), PixelsOf(gray));
}

TEST(GrayBmp, HasTheSizeAndDepthOfTheSourceAndLeavesItAlone)
{
    ColourRow source({RGB(255, 0, 0), RGB(0, 255, 0)});
    CBitmap gray;
    ASSERT_TRUE(gray.Attach(QorCreateGrayBmp(source.Handle())));
    BITMAP of = {};
    BITMAP copy = {};
    ::GetObjectW(source.Handle(), sizeof(of), &of);
    gray.GetBitmap(&copy);
    EXPECT_EQ(of.bmWidth, copy.bmWidth);
    EXPECT_EQ(of.bmHeight, copy.bmHeight);
    EXPECT_EQ(of.bmPlanes, copy.bmPlanes);
    EXPECT_EQ(of.bmBitsPixel, copy.bmBitsPixel);
    EXPECT_EQ((std::vector<COLORREF>{RGB(255, 0, 0), RGB(0, 255, 0)}), PixelsOf(source.Handle()));
}

TEST(GrayBmp, CopyOfABlackAndWhiteBitmapIsTheSame)
{
    const WORD bits[] = {0x00A0, 0x0060}; // of each row, the first byte's upper bits
    CBitmap source;
    ASSERT_TRUE(source.CreateBitmap(3, 2, 1, 1, bits));
    CBitmap gray;
    ASSERT_TRUE(gray.Attach(QorCreateGrayBmp(source)));
    BITMAP copy = {};
    gray.GetBitmap(&copy);
    EXPECT_EQ(3, copy.bmWidth);
    EXPECT_EQ(2, copy.bmHeight);
    EXPECT_EQ(1, copy.bmPlanes);
    EXPECT_EQ(1, copy.bmBitsPixel);
    const COLORREF white = RGB(255, 255, 255);
    EXPECT_EQ((std::vector<COLORREF>{white, 0, white, 0, white, white}), PixelsOf(gray));
}

TEST(GrayBmp, NoBitmapGivesNull)
{
    EXPECT_EQ(nullptr, QorCreateGrayBmp(nullptr));
    EXPECT_EQ(nullptr, QorCreateGrayBmp(static_cast<HBITMAP>(::GetStockObject(WHITE_BRUSH))));
}

TEST(GrayBmp, LeavesNothingBehind)
{
    ColourRow source({RGB(255, 0, 0), 0});
    EXPECT_TRUE(ts::NoLeak([&] {
        CBitmap gray;
        EXPECT_TRUE(gray.Attach(QorCreateGrayBmp(source.Handle())));
        EXPECT_EQ(nullptr, QorCreateGrayBmp(nullptr));
    }));
}

TEST(GrayBmp, BitmapThatIsInUseGivesNullAndLeavesNothingBehind)
{
    ColourRow source({RGB(255, 0, 0), 0});
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    const HGDIOBJ old = ::SelectObject(dc.m_hDC, source.Handle());
    EXPECT_TRUE(ts::NoLeak([&] { EXPECT_EQ(nullptr, QorCreateGrayBmp(source.Handle())); }));
    ::SelectObject(dc.m_hDC, old);
}

int g_dcsLeft = 0;

HDC WINAPI FewMemoryDcs(HDC like)
{
    return g_dcsLeft-- > 0 ? ::CreateCompatibleDC(like) : nullptr;
}

TEST(GrayBmp, WithoutADeviceContextGivesNullAndReleasesTheOthers)
{
    ColourRow source({RGB(255, 0, 0), 0});
    const ts::ReplacedImport few(L"QorUI.dll", "CreateCompatibleDC", &FewMemoryDcs);
    for (const int left : {0, 1}) {
        EXPECT_TRUE(ts::NoLeak([&] {
            g_dcsLeft = left;
            EXPECT_EQ(nullptr, QorCreateGrayBmp(source.Handle()));
        })) << left;
    }
}

int g_screenDcs = 0;

HDC WINAPI TakeScreenDc(HWND wnd)
{
    ++g_screenDcs;
    return ::GetDC(wnd);
}

HDC WINAPI NoScreenDc(HWND)
{
    return nullptr;
}

int WINAPI GiveBackScreenDc(HWND wnd, HDC dc)
{
    --g_screenDcs;
    return ::ReleaseDC(wnd, dc);
}

TEST(GrayBmp, GivesTheScreenBack)
{
    ColourRow source({RGB(255, 0, 0), 0});
    const ts::ReplacedImport take(L"QorUI.dll", "GetDC", &TakeScreenDc);
    const ts::ReplacedImport giveBack(L"QorUI.dll", "ReleaseDC", &GiveBackScreenDc);
    g_screenDcs = 0;
    CBitmap gray;
    EXPECT_TRUE(gray.Attach(QorCreateGrayBmp(source.Handle())));
    EXPECT_EQ(0, g_screenDcs);
    const ts::ReplacedImport few(L"QorUI.dll", "CreateCompatibleDC", &FewMemoryDcs);
    g_dcsLeft = 1;
    EXPECT_EQ(nullptr, QorCreateGrayBmp(source.Handle()));
    EXPECT_EQ(0, g_screenDcs);
}

TEST(GrayBmp, WithoutScreenGivesNull)
{
    ColourRow source({RGB(255, 0, 0), 0});
    const ts::ReplacedImport none(L"QorUI.dll", "GetDC", &NoScreenDc);
    EXPECT_EQ(nullptr, QorCreateGrayBmp(source.Handle()));
}

TEST(GrayIcon, IsDrawnGreyWithTheSameMask)
{
    const HICON icon = ::LoadIconW(ts::Program(), MAKEINTRESOURCEW(IDI_SQUARE));
    const HICON gray = QorCreateGrayIcon(icon);
    ASSERT_NE(nullptr, gray);
    ICONINFO info = {};
    ASSERT_TRUE(::GetIconInfo(gray, &info));
    CBitmap mask;
    mask.Attach(info.hbmMask);
    CBitmap colour;
    colour.Attach(info.hbmColor);
    const std::vector<COLORREF> pixels = PixelsOf(colour);
    ASSERT_EQ(1024u, pixels.size());
    EXPECT_EQ(RGB(76, 76, 76), pixels[0]);
    EXPECT_EQ(RGB(255, 255, 255), pixels[31]);
    EXPECT_EQ(0u, pixels[992]);
    EXPECT_EQ(1024u, PixelsOf(mask).size());
    EXPECT_EQ(0u, PixelsOf(mask)[0]);
    ::DestroyIcon(gray);
    ICONINFO still = {};
    EXPECT_TRUE(::GetIconInfo(icon, &still)) << "the source icon lives on";
    ::DeleteObject(still.hbmColor);
    ::DeleteObject(still.hbmMask);
}

/** A black icon of the screen's depth. */
HICON IconWithMask(const std::vector<BYTE>& mask)
{
    CBitmap colours;
    CClientDC screen(nullptr);
    colours.CreateCompatibleBitmap(&screen, 32, 32);
    CBitmap shape;
    shape.CreateBitmap(32, 32, 1, 1, mask.data());
    ICONINFO info = {TRUE, 0, 0, shape, colours};
    return ::CreateIconIndirect(&info);
}

std::vector<COLORREF> MaskOf(HICON icon)
{
    ICONINFO info = {};
    EXPECT_TRUE(::GetIconInfo(icon, &info));
    CBitmap mask;
    mask.Attach(info.hbmMask);
    CBitmap colour;
    colour.Attach(info.hbmColor);
    return PixelsOf(mask);
}

TEST(GrayIcon, HasTheWholeMaskOfTheIcon)
{
    std::vector<BYTE> mask;
    for (int row = 0; row < 32; ++row) {
        mask.insert(mask.end(), {0x00, 0x00, 0xFF, static_cast<BYTE>(row < 16 ? 0xF0 : 0x0F)});
    }
    const HICON icon = IconWithMask(mask);
    ASSERT_NE(nullptr, icon);
    const HICON gray = QorCreateGrayIcon(icon);
    const std::vector<COLORREF> expected = MaskOf(icon);
    EXPECT_EQ(32 * 12, std::count(expected.begin(), expected.end(), RGB(255, 255, 255)));
    EXPECT_EQ(expected, MaskOf(gray));
    ::DestroyIcon(gray);
    ::DestroyIcon(icon);
}

HICON WINAPI NoIcon(ICONINFO*)
{
    return nullptr;
}

TEST(GrayIcon, ThatCannotBeMadeGivesNullAndLeavesNothingBehind)
{
    const HICON icon = ::LoadIconW(ts::Program(), MAKEINTRESOURCEW(IDI_SQUARE));
    const ts::ReplacedImport none(L"QorUI.dll", "CreateIconIndirect", &NoIcon);
    EXPECT_TRUE(ts::NoLeak([=] { EXPECT_EQ(nullptr, QorCreateGrayIcon(icon)); }));
}

TEST(GrayIcon, NoIconGivesNull)
{
    EXPECT_EQ(nullptr, QorCreateGrayIcon(nullptr));
}

TEST(GrayIcon, BitmapsAreFreedOnEveryPath)
{
    const HICON colours = ::LoadIconW(ts::Program(), MAKEINTRESOURCEW(IDI_SQUARE));
    EXPECT_TRUE(ts::NoLeak([=] {
        const HICON gray = QorCreateGrayIcon(colours);
        EXPECT_NE(nullptr, gray);
        ::DestroyIcon(gray);
    }));
    const HICON monochrome = ::LoadIconW(ts::Program(), MAKEINTRESOURCEW(IDI_MONO));
    ASSERT_NE(nullptr, monochrome);
    EXPECT_TRUE(ts::NoLeak([=] { EXPECT_EQ(nullptr, QorCreateGrayIcon(monochrome)); }));
}

TEST(GrayCopy, WithoutGdiHandlesIsRefused)
{
    ColourRow source({RGB(255, 0, 0), 0});
    const HICON icon = ::LoadIconW(ts::Program(), MAKEINTRESOURCEW(IDI_SQUARE));
    const ts::GdiShortage shortage;
    EXPECT_EQ(nullptr, QorCreateGrayBmp(source.Handle()));
    EXPECT_EQ(nullptr, QorCreateGrayIcon(icon));
}

} // namespace

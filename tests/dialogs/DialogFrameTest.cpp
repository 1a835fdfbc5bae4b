#include "TestDialogs.h"

#include <tests/support/Imports.h>

#include <algorithm>
#include <array>

namespace
{

constexpr COLORREF kCaption = RGB(255, 255, 255);
constexpr COLORREF kBody = RGB(236, 245, 250);
constexpr COLORREF kOutline = RGB(189, 189, 189);

ts::Picture PaintOf(CTestDialog& dialog)
{
    const CSize size = dialog.ClientSize();
    return ts::DrawTo(
        size.cx, size.cy,
        [&dialog](HDC dc) {
            ::SetBkColor(dc, RGB(3, 2, 1));
            dialog.Paint(*CDC::FromHandle(dc));
        },
        RGB(1, 2, 3));
}

TEST(DialogFrame, CaptionIsWhiteAndTheBodyPaleBlue)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    const CSize size = dialog.ClientSize();
    const ts::Picture picture = PaintOf(dialog);
    EXPECT_TRUE(ts::AreaIs(picture, CRect(12, 1, size.cx - 12, 32), kCaption));
    EXPECT_TRUE(ts::AreaIs(picture, CRect(12, 32, size.cx - 12, size.cy - 12), kBody));
}

TEST(DialogFrame, OutlineEndsTwoPixelsBeforeTheRightAndBottom)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    const CSize size = dialog.ClientSize();
    const ts::Picture picture = PaintOf(dialog);
    const int midX = size.cx / 2;
    const int midY = size.cy / 2;
    EXPECT_TRUE(ts::PixelIs(picture, midX, 0, kOutline));
    EXPECT_TRUE(ts::PixelIs(picture, 0, midY, kOutline));
    EXPECT_TRUE(ts::PixelIs(picture, size.cx - 2, midY, kOutline));
    EXPECT_TRUE(ts::PixelIs(picture, midX, size.cy - 2, kOutline));
    EXPECT_TRUE(ts::PixelIs(picture, size.cx - 1, midY, kBody));
    EXPECT_TRUE(ts::PixelIs(picture, midX, size.cy - 1, kBody));
    EXPECT_TRUE(ts::PixelIs(picture, size.cx - 3, midY, kBody));
    EXPECT_TRUE(ts::PixelIs(picture, midX, size.cy - 3, kBody));
    EXPECT_FALSE(ts::PixelIs(picture, 0, 0, kOutline));
}

TEST(DialogFrame, OutlineIsRoundedByTwelve)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    const CSize size = dialog.ClientSize();
    const ts::Picture expected = ts::DrawTo(
        size.cx, size.cy,
        [size](HDC dc) {
            ::SelectObject(dc, ::GetStockObject(NULL_BRUSH));
            ::SelectObject(dc, ::GetStockObject(DC_PEN));
            ::SetDCPenColor(dc, kOutline);
            ::RoundRect(dc, 0, 0, size.cx - 1, size.cy - 1, 12, 12);
        },
        kCaption);
    EXPECT_TRUE(ts::SamePicture(expected.Crop({0, 0, 8, 8}), PaintOf(dialog).Crop({0, 0, 8, 8})));
}

/** The caption without the outline and its corners, as it should look with a title. */
ts::Picture ExpectedTitle(CSize size, LPCWSTR title)
{
    const ts::Picture whole = ts::DrawTo(
        size.cx, 32,
        [=](HDC dc) {
            ::SelectObject(dc, ::GetStockObject(DEFAULT_GUI_FONT));
            ::SetBkMode(dc, TRANSPARENT);
            ::SetTextColor(dc, RGB(0, 0, 0));
            RECT text = {32, 0, size.cx - 58, 32};
            ::DrawTextW(dc, title, -1, &text, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_HIDEPREFIX);
        },
        kCaption);
    return whole.Crop(CRect(8, 8, size.cx - 8, 32));
}

TEST(DialogFrame, TitleStandsBetweenTheIconAndTheCloseButton)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    const CSize size = dialog.ClientSize();
    for (const LPCWSTR title : {L"Title", L"T&itle", L"WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW"}) {
        dialog.SetWindowText(title);
        const ts::Picture caption = PaintOf(dialog).Crop(CRect(8, 8, size.cx - 8, 32));
        EXPECT_TRUE(ts::SamePicture(ExpectedTitle(size, title), caption)) << ts::ToUtf8(title);
        EXPECT_GT(caption.Count(RGB(0, 0, 0)), 0);
        EXPECT_LE(caption.BoundsOfOthers(kCaption).right + 8, size.cx - 58);
    }
}

CRect g_titlePlace;
UINT g_titleFormat = 0;

int WINAPI RecordDrawText(HDC, LPCWSTR, int, RECT* place, UINT format)
{
    g_titlePlace = *place;
    g_titleFormat = format;
    return 0;
}

TEST(DialogFrame, TitleIsOneLineWithoutPrefixEndingInAnEllipsis)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    dialog.SetWindowText(L"Title");
    const ts::ReplacedImport hook(L"afx.dll", "DrawTextW", &RecordDrawText);
    PaintOf(dialog);
    EXPECT_EQ(CRect(32, 0, dialog.ClientSize().cx - 58, 32), g_titlePlace);
    EXPECT_EQ(static_cast<UINT>(DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_HIDEPREFIX), g_titleFormat);
}

TEST(DialogFrame, EmptyTitleLeavesTheCaptionEmpty)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    dialog.SetWindowText(L"");
    EXPECT_TRUE(ts::AreaIs(PaintOf(dialog), CRect(12, 1, dialog.ClientSize().cx - 12, 32), kCaption));
}

/** A red icon of 16 x 16 that is transparent in its upper half. */
HICON HalfTransparentIcon()
{
    std::array<BYTE, 32> mask = {};
    std::fill_n(mask.begin(), 16, BYTE{0xFF});
    std::array<DWORD, 256> colours = {};
    std::fill_n(colours.begin() + 128, 128, 0xFF0000);
    return ::CreateIcon(nullptr, 16, 16, 1, 32, mask.data(), reinterpret_cast<const BYTE*>(colours.data()));
}

TEST(DialogFrame, ApplicationIconLetsThroughTheCaption)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    const HICON icon = HalfTransparentIcon();
    QorSetAppIcon(icon, FALSE);
    const ts::Picture picture = PaintOf(dialog);
    QorSetAppIcon(nullptr, FALSE);
    ::DestroyIcon(icon);
    EXPECT_TRUE(ts::AreaIs(picture, CRect(8, 8, 24, 16), kCaption));
    EXPECT_TRUE(ts::AreaIs(picture, CRect(8, 16, 24, 24), RGB(255, 0, 0)));
}

TEST(DialogFrame, ApplicationIconStandsAtEightEight)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    dialog.SetWindowText(L"");
    const HICON icon = ::LoadIconW(nullptr, IDI_HAND);
    EXPECT_TRUE(QorSetAppIcon(icon, FALSE));
    const ts::Picture picture = PaintOf(dialog);
    EXPECT_TRUE(QorSetAppIcon(nullptr, 0));
    const ts::Picture expected = ts::DrawTo(
        16, 16, [icon](HDC dc) { ::DrawIconEx(dc, 0, 0, icon, 16, 16, 0, nullptr, DI_NORMAL); }, kCaption);
    EXPECT_TRUE(ts::SamePicture(expected, picture.Crop(CRect(8, 8, 24, 24))));
    const ts::Picture none = PaintOf(dialog);
    EXPECT_TRUE(ts::AreaIs(none, CRect(8, 8, 24, 24), kCaption));
}

TEST(DialogFrame, WindowShowsWhatIsPainted)
{
    CTestDialog dialog(IDD_OK_ONLY, kBand);
    ASSERT_TRUE(dialog.Open());
    const ts::Picture shown = ts::CaptureWindow(dialog);
    EXPECT_TRUE(ts::PixelIs(shown, 60, 10, kCaption));
    EXPECT_TRUE(ts::PixelIs(shown, 60, 60, kBody));
}

TEST(DialogFrame, PaintingRestoresTheDeviceContext)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    dialog.SetWindowText(L"Title");
    CClientDC dc(&dialog);
    dc.SetTextColor(RGB(1, 2, 3));
    dc.SetBkColor(RGB(4, 5, 6));
    const HGDIOBJ font = ::GetCurrentObject(dc, OBJ_FONT);
    dialog.Paint(dc);
    EXPECT_EQ(RGB(1, 2, 3), dc.GetTextColor());
    EXPECT_EQ(RGB(4, 5, 6), dc.GetBkColor());
    EXPECT_EQ(font, ::GetCurrentObject(dc, OBJ_FONT));
}

TEST(DialogFrame, ErasesNothing)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    const ts::Picture picture = ts::DrawTo(
        10, 10, [&dialog](HDC dc) { EXPECT_EQ(TRUE, dialog.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc))); },
        RGB(9, 8, 7));
    EXPECT_TRUE(ts::AreaIs(picture, CRect(0, 0, 10, 10), RGB(9, 8, 7)));
}

} // namespace

#include <tests/afx/TestWindows.h>

#include <afxdialogex.h>

namespace
{
constexpr COLORREF kGreen = RGB(10, 200, 30);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr int kImageSize = 8;

HBITMAP MakeImage()
{
    CClientDC screen(nullptr);
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    const HBITMAP image = ::CreateCompatibleBitmap(screen, kImageSize, kImageSize);
    const HGDIOBJ former = ::SelectObject(memory, image);
    memory.FillSolidRect(0, 0, kImageSize, kImageSize, kBlue);
    ::SelectObject(memory, former);
    return image;
}

/** A visible dialog with a background. */
class DialogEx : public testing::Test
{
  protected:
    void SetUp() override { ASSERT_TRUE(m_dialog.Create(IDD_SIMPLE)); }

    ts::Picture Shown()
    {
        ts::Settle();
        return ts::CaptureWindow(m_dialog);
    }

    CDialogEx m_dialog;
};
} // namespace

TEST_F(DialogEx, FillsItselfWithItsColourAndGoesBackToTheSystems)
{
    const COLORREF before = Shown().At(1, 1);
    m_dialog.SetBackgroundColor(kGreen);
    EXPECT_EQ(Shown().At(1, 1), kGreen);
    m_dialog.SetBackgroundColor(static_cast<COLORREF>(-1));
    EXPECT_EQ(Shown().At(1, 1), before);
}

TEST_F(DialogEx, TilesItsPicture)
{
    m_dialog.SetBackgroundImage(MakeImage());
    const ts::Picture shown = Shown();
    EXPECT_EQ(shown.At(0, 0), kBlue);
    EXPECT_EQ(shown.At(shown.Width() - 1, shown.Height() - 1), kBlue);
}

TEST_F(DialogEx, ShowsItsPictureInACorner)
{
    m_dialog.SetBackgroundColor(kGreen, FALSE);
    m_dialog.SetBackgroundImage(MakeImage(), CDialogEx::BACKGR_BOTTOMRIGHT);
    const ts::Picture shown = Shown();
    const int right = shown.Width();
    const int bottom = shown.Height();
    EXPECT_TRUE(ts::AreaIs(shown, {right - kImageSize, bottom - kImageSize, right, bottom}, kBlue));
    EXPECT_EQ(shown.At(right - kImageSize - 1, bottom - 1), kGreen);
    m_dialog.SetBackgroundImage(MakeImage(), CDialogEx::BACKGR_TOPLEFT);
    const ts::Picture moved = Shown();
    EXPECT_TRUE(ts::AreaIs(moved, {0, 0, kImageSize, kImageSize}, kBlue));
    EXPECT_EQ(moved.At(right - 1, bottom - 1), kGreen);
}

TEST_F(DialogEx, OwnsItsPictureOnlyWhenItIsTold)
{
    const HBITMAP image = MakeImage();
    m_dialog.SetBackgroundImage(image, CDialogEx::BACKGR_TILE, FALSE);
    m_dialog.SetBackgroundImage(nullptr);
    EXPECT_EQ(::GetObjectType(image), static_cast<DWORD>(OBJ_BITMAP));
    m_dialog.SetBackgroundImage(image, CDialogEx::BACKGR_TILE, TRUE);
    m_dialog.SetBackgroundImage(nullptr);
    EXPECT_EQ(::GetObjectType(image), 0u);
}

TEST_F(DialogEx, MissingPictureIsRefused)
{
    EXPECT_FALSE(m_dialog.SetBackgroundImage(4711));
}

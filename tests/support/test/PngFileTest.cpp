#include <tests/support/Support.h>

#include <objidl.h>

#include <gdiplus.h>

namespace
{

constexpr COLORREF kGreen = RGB(10, 200, 20);

TEST(Picture, PngFileOpensAsTheSamePicture)
{
    const ts::TempFolder folder;
    // More rows than one stored block holds.
    const ts::Picture picture = ts::DrawTo(
        200, 150,
        [](HDC dc) {
            const RECT inside = {20, 20, 180, 140};
            FillRect(dc, &inside, static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH)));
        },
        kGreen);
    picture.SavePng(folder.File(L"p.png"));
    const std::string bytes = ts::ReadBytes(folder.File(L"p.png"));
    EXPECT_EQ(0u, bytes.find("\x89PNG"));

    // An independent reader.
    Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    ASSERT_EQ(Gdiplus::Ok, Gdiplus::GdiplusStartup(&token, &input, nullptr));
    {
        Gdiplus::Bitmap image(folder.File(L"p.png").c_str());
        HBITMAP bitmap = nullptr;
        EXPECT_EQ(Gdiplus::Ok, image.GetHBITMAP(Gdiplus::Color(), &bitmap));
        EXPECT_TRUE(ts::SamePicture(picture, ts::PictureOf(bitmap)));
        DeleteObject(bitmap);
    }
    Gdiplus::GdiplusShutdown(token);
}

} // namespace

#include <QorUI/app/draw/QorBmp.h>
#include <tests/app/Blocks.h>
#include <tests/app/res/resource.h>
#include <tests/support/Resources.h>
#include <tests/support/ui/Drawn.h>

#include <gtest/gtest.h>

namespace
{

bool IsBitmap(HBITMAP bitmap)
{
    BITMAP header = {};
    return ::GetObjectW(bitmap, sizeof(header), &header) != 0;
}

COLORREF PixelOf(HBITMAP bitmap, int x, int y)
{
    return ts::PictureOf(bitmap).At(x, y);
}

TEST(QorBmp, StartsEmpty)
{
    CQorBmp bitmap;
    EXPECT_EQ(nullptr, bitmap.GetSafeHandle());
    EXPECT_FALSE(bitmap.Render(CClientDC(nullptr), 0, 0, 4, 4));
}

TEST(QorBmp, LoadsAPictureOfAResource)
{
    CQorBmp bitmap;
    ASSERT_TRUE(bitmap.Load(ts::Program(), IDR_FRAMES, L"PNG"));
    BITMAP header = {};
    ASSERT_NE(0, bitmap.GetBitmap(&header));
    EXPECT_EQ(80, header.bmWidth);
    EXPECT_EQ(10, header.bmHeight);
    EXPECT_EQ(RGB(255, 0, 0), PixelOf(bitmap, 0, 0));
    EXPECT_EQ(RGB(255, 255, 0), PixelOf(bitmap, 79, 9));
}

TEST(QorBmp, MissingResourceIsRefusedAndKeepsThePicture)
{
    CQorBmp bitmap;
    ASSERT_TRUE(bitmap.Load(ts::Program(), IDR_FRAMES, L"PNG"));
    const HGDIOBJ held = bitmap.GetSafeHandle();
    EXPECT_FALSE(bitmap.Load(ts::Program(), IDB_MISSING, L"PNG"));
    EXPECT_FALSE(bitmap.Load(ts::Program(), IDR_FRAMES, L"JPG"));
    EXPECT_EQ(held, bitmap.GetSafeHandle());
}

TEST(QorBmp, DamagedPictureIsRefusedAndLeavesTheObjectEmpty)
{
    CQorBmp bitmap;
    ASSERT_TRUE(bitmap.Load(ts::Program(), IDR_FRAMES, L"PNG"));
    EXPECT_FALSE(bitmap.Load(ts::Program(), IDR_DAMAGED, L"PNG"));
    EXPECT_EQ(nullptr, bitmap.GetSafeHandle());
    EXPECT_TRUE(bitmap.Load(ts::Program(), IDR_FRAMES, L"PNG")) << "and it can be used again";
}

TEST(QorBmp, SecondPictureFreesTheFirst)
{
    CQorBmp bitmap;
    ASSERT_TRUE(bitmap.Load(ts::Program(), IDR_FRAMES, L"PNG"));
    const HBITMAP first = bitmap;
    ASSERT_TRUE(bitmap.Load(ts::Program(), IDR_UPRIGHT, L"PNG"));
    EXPECT_TRUE(first == static_cast<HBITMAP>(bitmap) || !IsBitmap(first));
    EXPECT_EQ(RGB(0, 0, 255), PixelOf(bitmap, 0, 3));
}

TEST(QorBmp, LoadingOverAndOverLeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([] {
        CQorBmp bitmap;
        ASSERT_TRUE(bitmap.Load(ts::Program(), IDR_FRAMES, L"PNG"));
        ASSERT_TRUE(bitmap.Load(ts::Program(), IDR_UPRIGHT, L"PNG"));
        ASSERT_FALSE(bitmap.Load(ts::Program(), IDR_DAMAGED, L"PNG"));
    }));
}

TEST(QorBmp, AttachedBitmapIsDeletedWithTheObject)
{
    HBITMAP handle = nullptr;
    {
        CQorBmp bitmap;
        handle = ::LoadBitmapW(ts::Program(), MAKEINTRESOURCEW(IDB_FRAMES));
        ASSERT_TRUE(bitmap.Attach(handle));
        EXPECT_TRUE(IsBitmap(handle));
    }
    EXPECT_FALSE(IsBitmap(handle));
}

TEST(QorBmp, AttachedBitmapIsDeletedWhenAPictureIsLoaded)
{
    CQorBmp bitmap;
    const HBITMAP handle = ::LoadBitmapW(ts::Program(), MAKEINTRESOURCEW(IDB_FRAMES));
    ASSERT_TRUE(bitmap.Attach(handle));
    ASSERT_TRUE(bitmap.Load(ts::Program(), IDR_UPRIGHT, L"PNG"));
    EXPECT_TRUE(handle == static_cast<HBITMAP>(bitmap) || !IsBitmap(handle));
}

TEST(QorBmp, AttachedBitmapIsNotRendered)
{
    CQorBmp bitmap;
    ASSERT_TRUE(bitmap.Attach(::LoadBitmapW(ts::Program(), MAKEINTRESOURCEW(IDB_FRAMES))));
    const ts::Picture picture = ts::Drawn(80, 10, [&](CDC& dc) { EXPECT_FALSE(bitmap.Render(dc, 0, 0, 80, 10)); });
    EXPECT_EQ(800, picture.Count(ts::kPaper));
}

TEST(QorBmp, DeleteObjectEmptiesBothKinds)
{
    CQorBmp bitmap;
    EXPECT_FALSE(bitmap.DeleteObject());
    ASSERT_TRUE(bitmap.Load(ts::Program(), IDR_FRAMES, L"PNG"));
    EXPECT_TRUE(bitmap.DeleteObject());
    EXPECT_EQ(nullptr, bitmap.GetSafeHandle());
    const HBITMAP handle = ::LoadBitmapW(ts::Program(), MAKEINTRESOURCEW(IDB_FRAMES));
    ASSERT_TRUE(bitmap.Attach(handle));
    EXPECT_TRUE(bitmap.DeleteObject());
    EXPECT_FALSE(IsBitmap(handle));
}

TEST(QorBmp, RendersUprightAndStretched)
{
    CQorBmp bitmap;
    ASSERT_TRUE(bitmap.Load(ts::Program(), IDR_UPRIGHT, L"PNG"));
    const ts::Picture picture = ts::Drawn(50, 40, [&](CDC& dc) { EXPECT_TRUE(bitmap.Render(dc, 10, 4, 32, 24)); });
    EXPECT_EQ(CRect(10, 4, 42, 28), CRect(picture.BoundsOfOthers(ts::kPaper)));
    EXPECT_EQ(RGB(255, 0, 0), picture.At(14, 8));
    EXPECT_EQ(RGB(0, 255, 0), picture.At(38, 8));
    EXPECT_EQ(RGB(0, 0, 255), picture.At(14, 24));
    EXPECT_EQ(RGB(255, 255, 255), picture.At(38, 24));
}

TEST(QorBmp, RenderNeedsADeviceContext)
{
    CQorBmp bitmap;
    ASSERT_TRUE(bitmap.Load(ts::Program(), IDR_UPRIGHT, L"PNG"));
    EXPECT_FALSE(bitmap.Render(nullptr, 0, 0, 4, 4));
}

TEST(QorBmp, LoadsAPictureOfAFile)
{
    const ts::TempFolder folder;
    CQorBmp bitmap;
    ASSERT_TRUE(bitmap.Load(ts::FileOf(folder, IDR_UPRIGHT, L"picture.png").c_str()));
    EXPECT_EQ(RGB(255, 0, 0), PixelOf(bitmap, 0, 0));
    EXPECT_EQ(RGB(255, 255, 255), PixelOf(bitmap, 3, 3));
}

/** Opens a file as another program does that reads it, or writes it. */
HANDLE OpenAsOther(const std::wstring& path, DWORD access, DWORD share)
{
    return ::CreateFileW(path.c_str(), access, share, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
}

TEST(QorBmp, FileThatOthersReadIsLoaded)
{
    const ts::TempFolder folder;
    const std::wstring path = ts::FileOf(folder, IDR_UPRIGHT, L"picture.png");
    const HANDLE reader = OpenAsOther(path, GENERIC_READ, FILE_SHARE_READ);
    ASSERT_NE(INVALID_HANDLE_VALUE, reader);
    CQorBmp bitmap;
    EXPECT_TRUE(bitmap.Load(path.c_str()));
    ::CloseHandle(reader);
}

TEST(QorBmp, FileThatIsBeingWrittenIsRefused)
{
    const ts::TempFolder folder;
    const std::wstring path = ts::FileOf(folder, IDR_UPRIGHT, L"picture.png");
    const HANDLE writer = OpenAsOther(path, GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE);
    ASSERT_NE(INVALID_HANDLE_VALUE, writer);
    CQorBmp bitmap;
    EXPECT_FALSE(bitmap.Load(path.c_str()));
    ::CloseHandle(writer);
    EXPECT_TRUE(bitmap.Load(path.c_str()));
}

TEST(QorBmp, FileIsClosedOnEveryPath)
{
    const ts::TempFolder folder;
    const std::wstring picture = ts::FileOf(folder, IDR_UPRIGHT, L"picture.png");
    const std::wstring text = folder.File(L"text.png");
    const std::wstring empty = folder.File(L"empty.png");
    ts::WriteBytes(text, "this is no picture");
    ts::WriteBytes(empty, "");
    EXPECT_TRUE(ts::NoLeak([&] {
        CQorBmp bitmap;
        EXPECT_TRUE(bitmap.Load(picture.c_str()));
        EXPECT_FALSE(bitmap.Load(text.c_str()));
        EXPECT_FALSE(bitmap.Load(empty.c_str()));
        EXPECT_FALSE(bitmap.Load(folder.File(L"missing.png").c_str()));
    }));
    for (const std::wstring& path : {picture, text, empty}) {
        EXPECT_TRUE(::DeleteFileW(path.c_str()));
    }
}

TEST(QorBmp, MissingFileIsRefusedAndKeepsThePicture)
{
    const ts::TempFolder folder;
    CQorBmp bitmap;
    ASSERT_TRUE(bitmap.Load(ts::Program(), IDR_UPRIGHT, L"PNG"));
    const HGDIOBJ held = bitmap.GetSafeHandle();
    EXPECT_FALSE(bitmap.Load(folder.File(L"missing.png").c_str()));
    EXPECT_FALSE(bitmap.Load(static_cast<LPCWSTR>(nullptr)));
    EXPECT_EQ(held, bitmap.GetSafeHandle());
}

void ExpectNoPictureIn(std::string_view bytes)
{
    const ts::TempFolder folder;
    ts::WriteBytes(folder.File(L"file.png"), bytes);
    CQorBmp bitmap;
    EXPECT_FALSE(bitmap.Load(folder.File(L"file.png").c_str()));
    EXPECT_EQ(nullptr, bitmap.GetSafeHandle());
}

TEST(QorBmp, EmptyFileIsRefused)
{
    ExpectNoPictureIn("");
}

TEST(QorBmp, FileWithoutPictureIsRefused)
{
    ExpectNoPictureIn("this is no picture");
}

TEST(QorBmp, StreamIsReleasedOnEveryPath)
{
    CQorBmp bitmap;
    ExpectNoBlocksLeft([&] {
        EXPECT_TRUE(bitmap.Load(ts::Program(), IDR_FRAMES, L"PNG"));
        EXPECT_FALSE(bitmap.Load(ts::Program(), IDR_DAMAGED, L"PNG"));
    });
}

} // namespace

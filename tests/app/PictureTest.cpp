#include <QorUI/app/draw/GdiPlusFlat.h>
#include <QorUI/app/draw/Picture.h>
#include <QorUI/app/draw/QorBmp.h>
#include <QorUI/app/look/Shared.h>
#include <tests/app/Drawn.h>
#include <tests/app/OwnResources.h>
#include <tests/app/res/resource.h>

#include <gtest/gtest.h>

#include <malloc.h>

#include <functional>
#include <memory>

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
    ASSERT_TRUE(bitmap.Load(Program(), IDR_FRAMES, L"PNG"));
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
    ASSERT_TRUE(bitmap.Load(Program(), IDR_FRAMES, L"PNG"));
    const HGDIOBJ held = bitmap.GetSafeHandle();
    EXPECT_FALSE(bitmap.Load(Program(), IDB_MISSING, L"PNG"));
    EXPECT_FALSE(bitmap.Load(Program(), IDR_FRAMES, L"JPG"));
    EXPECT_EQ(held, bitmap.GetSafeHandle());
}

TEST(QorBmp, DamagedPictureIsRefusedAndLeavesTheObjectEmpty)
{
    CQorBmp bitmap;
    ASSERT_TRUE(bitmap.Load(Program(), IDR_FRAMES, L"PNG"));
    EXPECT_FALSE(bitmap.Load(Program(), IDR_DAMAGED, L"PNG"));
    EXPECT_EQ(nullptr, bitmap.GetSafeHandle());
    EXPECT_TRUE(bitmap.Load(Program(), IDR_FRAMES, L"PNG")) << "and it can be used again";
}

TEST(QorBmp, SecondPictureFreesTheFirst)
{
    CQorBmp bitmap;
    ASSERT_TRUE(bitmap.Load(Program(), IDR_FRAMES, L"PNG"));
    const HBITMAP first = bitmap;
    ASSERT_TRUE(bitmap.Load(Program(), IDR_UPRIGHT, L"PNG"));
    EXPECT_TRUE(first == static_cast<HBITMAP>(bitmap) || !IsBitmap(first));
    EXPECT_EQ(RGB(0, 0, 255), PixelOf(bitmap, 0, 3));
}

TEST(QorBmp, LoadingOverAndOverLeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([] {
        CQorBmp bitmap;
        ASSERT_TRUE(bitmap.Load(Program(), IDR_FRAMES, L"PNG"));
        ASSERT_TRUE(bitmap.Load(Program(), IDR_UPRIGHT, L"PNG"));
        ASSERT_FALSE(bitmap.Load(Program(), IDR_DAMAGED, L"PNG"));
    }));
}

TEST(QorBmp, AttachedBitmapIsDeletedWithTheObject)
{
    HBITMAP handle = nullptr;
    {
        CQorBmp bitmap;
        handle = ::LoadBitmapW(Program(), MAKEINTRESOURCEW(IDB_FRAMES));
        ASSERT_TRUE(bitmap.Attach(handle));
        EXPECT_TRUE(IsBitmap(handle));
    }
    EXPECT_FALSE(IsBitmap(handle));
}

TEST(QorBmp, AttachedBitmapIsDeletedWhenAPictureIsLoaded)
{
    CQorBmp bitmap;
    const HBITMAP handle = ::LoadBitmapW(Program(), MAKEINTRESOURCEW(IDB_FRAMES));
    ASSERT_TRUE(bitmap.Attach(handle));
    ASSERT_TRUE(bitmap.Load(Program(), IDR_UPRIGHT, L"PNG"));
    EXPECT_TRUE(handle == static_cast<HBITMAP>(bitmap) || !IsBitmap(handle));
}

TEST(QorBmp, AttachedBitmapIsNotRendered)
{
    CQorBmp bitmap;
    ASSERT_TRUE(bitmap.Attach(::LoadBitmapW(Program(), MAKEINTRESOURCEW(IDB_FRAMES))));
    const ts::Picture picture = Drawn(80, 10, [&](CDC& dc) { EXPECT_FALSE(bitmap.Render(dc, 0, 0, 80, 10)); });
    EXPECT_EQ(800, picture.Count(kPaper));
}

TEST(QorBmp, DeleteObjectEmptiesBothKinds)
{
    CQorBmp bitmap;
    EXPECT_FALSE(bitmap.DeleteObject());
    ASSERT_TRUE(bitmap.Load(Program(), IDR_FRAMES, L"PNG"));
    EXPECT_TRUE(bitmap.DeleteObject());
    EXPECT_EQ(nullptr, bitmap.GetSafeHandle());
    const HBITMAP handle = ::LoadBitmapW(Program(), MAKEINTRESOURCEW(IDB_FRAMES));
    ASSERT_TRUE(bitmap.Attach(handle));
    EXPECT_TRUE(bitmap.DeleteObject());
    EXPECT_FALSE(IsBitmap(handle));
}

TEST(QorBmp, RendersUprightAndStretched)
{
    CQorBmp bitmap;
    ASSERT_TRUE(bitmap.Load(Program(), IDR_UPRIGHT, L"PNG"));
    const ts::Picture picture = Drawn(50, 40, [&](CDC& dc) { EXPECT_TRUE(bitmap.Render(dc, 10, 4, 32, 24)); });
    EXPECT_EQ(CRect(10, 4, 42, 28), CRect(picture.BoundsOfOthers(kPaper)));
    EXPECT_EQ(RGB(255, 0, 0), picture.At(14, 8));
    EXPECT_EQ(RGB(0, 255, 0), picture.At(38, 8));
    EXPECT_EQ(RGB(0, 0, 255), picture.At(14, 24));
    EXPECT_EQ(RGB(255, 255, 255), picture.At(38, 24));
}

TEST(QorBmp, RenderNeedsADeviceContext)
{
    CQorBmp bitmap;
    ASSERT_TRUE(bitmap.Load(Program(), IDR_UPRIGHT, L"PNG"));
    EXPECT_FALSE(bitmap.Render(nullptr, 0, 0, 4, 4));
}

TEST(QorBmp, LoadsAPictureOfAFile)
{
    const ts::TempFolder folder;
    CQorBmp bitmap;
    ASSERT_TRUE(bitmap.Load(FileOf(folder, IDR_UPRIGHT, L"picture.png").c_str()));
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
    const std::wstring path = FileOf(folder, IDR_UPRIGHT, L"picture.png");
    const HANDLE reader = OpenAsOther(path, GENERIC_READ, FILE_SHARE_READ);
    ASSERT_NE(INVALID_HANDLE_VALUE, reader);
    CQorBmp bitmap;
    EXPECT_TRUE(bitmap.Load(path.c_str()));
    ::CloseHandle(reader);
}

TEST(QorBmp, FileThatIsBeingWrittenIsRefused)
{
    const ts::TempFolder folder;
    const std::wstring path = FileOf(folder, IDR_UPRIGHT, L"picture.png");
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
    const std::wstring picture = FileOf(folder, IDR_UPRIGHT, L"picture.png");
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
    ASSERT_TRUE(bitmap.Load(Program(), IDR_UPRIGHT, L"PNG"));
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

std::unique_ptr<Gdiplus::Image> ImageOf(UINT id)
{
    const void* image = QorImageFromResource(Program(), MAKEINTRESOURCEW(id), L"PNG");
    return std::unique_ptr<Gdiplus::Image>(static_cast<Gdiplus::Image*>(const_cast<void*>(image)));
}

TEST(ImageFromResource, DecodesThePicture)
{
    const auto image = ImageOf(IDR_FRAMES);
    ASSERT_NE(nullptr, image);
    EXPECT_EQ(80u, image->GetWidth());
    EXPECT_EQ(10u, image->GetHeight());
    EXPECT_EQ(Gdiplus::Ok, image->GetLastStatus());
}

TEST(ImageFromResource, MissingResourceGivesNull)
{
    EXPECT_EQ(nullptr, ImageOf(IDB_MISSING));
    EXPECT_EQ(nullptr, QorImageFromResource(Program(), MAKEINTRESOURCEW(IDR_FRAMES), L"GIF"));
}

TEST(ImageFromResource, DamagedPictureGivesAnImageWithABadStatus)
{
    const auto image = ImageOf(IDR_DAMAGED);
    ASSERT_NE(nullptr, image);
    image->GetWidth();
    EXPECT_NE(Gdiplus::Ok, image->GetLastStatus());
}

TEST(ImageFromResource, LeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([] {
        ImageOf(IDR_FRAMES);
        ImageOf(IDR_DAMAGED);
    }));
}

/** Blocks in use in the run-time library's heap. */
int HeapBlocks()
{
    int blocks = 0;
    _HEAPINFO entry = {};
    while (::_heapwalk(&entry) == _HEAPOK) {
        blocks += entry._useflag == _USEDENTRY;
    }
    return blocks;
}

/** Expects fewer blocks to stay behind than one in each second cycle. */
void ExpectNoBlocksLeft(const std::function<void()>& cycle)
{
    constexpr int kCycles = 200;
    cycle();
    const int before = HeapBlocks();
    for (int i = 0; i < kCycles; ++i) {
        cycle();
    }
    EXPECT_LT(HeapBlocks() - before, kCycles / 2);
}

TEST(ImageFromResource, StreamIsReleased)
{
    ExpectNoBlocksLeft([] {
        ImageOf(IDR_FRAMES);
        ImageOf(IDR_DAMAGED);
    });
}

TEST(QorBmp, StreamIsReleasedOnEveryPath)
{
    CQorBmp bitmap;
    ExpectNoBlocksLeft([&] {
        EXPECT_TRUE(bitmap.Load(Program(), IDR_FRAMES, L"PNG"));
        EXPECT_FALSE(bitmap.Load(Program(), IDR_DAMAGED, L"PNG"));
    });
}

constexpr GUID kNoEncoder = {1, 2, 3, {4, 5, 6, 7, 8, 9, 10, 11}};
// {557CF406-1A04-11D3-9A73-0000F81EF32E}
constexpr GUID kPngEncoder = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
// {557CF401-1A04-11D3-9A73-0000F81EF32E}
constexpr GUID kJpegEncoder = {0x557CF401, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

TEST(ImageEncoder, IsFoundByMimeType)
{
    GUID clsid = kNoEncoder;
    EXPECT_EQ(TRUE, QorGetImageEncoder(L"image/png", clsid));
    EXPECT_TRUE(clsid == kPngEncoder);
    EXPECT_EQ(TRUE, QorGetImageEncoder(L"image/jpeg", clsid));
    EXPECT_TRUE(clsid == kJpegEncoder);
}

TEST(ImageEncoder, CaseDoesNotMatter)
{
    GUID clsid = kNoEncoder;
    EXPECT_EQ(TRUE, QorGetImageEncoder(L"IMAGE/PNG", clsid));
    EXPECT_TRUE(clsid == kPngEncoder);
}

TEST(ImageEncoder, UnknownTypeIsRefusedAndLeavesTheIdAlone)
{
    GUID clsid = kNoEncoder;
    EXPECT_EQ(FALSE, QorGetImageEncoder(L"image/none", clsid));
    EXPECT_EQ(FALSE, QorGetImageEncoder(L"", clsid));
    EXPECT_EQ(FALSE, QorGetImageEncoder(nullptr, clsid));
    EXPECT_TRUE(clsid == kNoEncoder);
}

TEST(Shared, DialogBrushHasTheBodyColour)
{
    LOGBRUSH brush = {};
    ASSERT_NE(0, ::GetObjectW(QorGetDlgBkBrush(), sizeof(brush), &brush));
    EXPECT_EQ(UINT{BS_SOLID}, brush.lbStyle);
    EXPECT_EQ(RGB(236, 245, 250), brush.lbColor);
}

TEST(Shared, SetAppIconReturnsTrue)
{
    EXPECT_EQ(TRUE, QorSetAppIcon(::LoadIconW(nullptr, IDI_APPLICATION), TRUE));
    EXPECT_EQ(TRUE, QorSetAppIcon(nullptr, 0));
}

} // namespace

#include <QorPub/QorPub.h>
#include <QorUI/app/draw/GdiPlusFlat.h>
#include <QorUI/app/draw/Picture.h>
#include <tests/app/Blocks.h>
#include <tests/app/res/resource.h>
#include <tests/support/Imports.h>
#include <tests/support/Resources.h>

#include <gtest/gtest.h>

#include <memory>

namespace
{

std::unique_ptr<Gdiplus::Image> ImageOf(UINT id)
{
    const void* image = QorImageFromResource(ts::Program(), MAKEINTRESOURCEW(id), L"PNG");
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
    EXPECT_EQ(nullptr, QorImageFromResource(ts::Program(), MAKEINTRESOURCEW(IDR_FRAMES), L"GIF"));
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

TEST(ImageFromResource, StreamIsReleased)
{
    ExpectNoBlocksLeft([] {
        ImageOf(IDR_FRAMES);
        ImageOf(IDR_DAMAGED);
    });
}

TEST(ImageFromResource, WithoutStreamGivesNull)
{
    const StreamShortage shortage;
    EXPECT_EQ(nullptr, QorImageFromResource(ts::Program(), MAKEINTRESOURCEW(IDR_FRAMES), L"PNG"));
}

IStream* g_stream = nullptr;

/** Makes the stream with a second reference that the test keeps. */
IStream* SharedStream(DWORD flags, const void* data, DWORD size)
{
    g_stream = QorCreateReadOnlyMemStream(flags, data, size);
    g_stream->AddRef();
    return g_stream;
}

void* WINGDIPAPI NoMemory(SIZE_T)
{
    return nullptr;
}

TEST(ImageFromResource, WithoutMemoryGivesNullAndReleasesTheStream)
{
    const ts::ReplacedImport stream(L"QorUI.dll", "_Z26QorCreateReadOnlyMemStreammPKvm", &SharedStream);
    const ts::ReplacedImport none(L"QorUI.dll", "GdipAlloc", &NoMemory);
    EXPECT_EQ(nullptr, QorImageFromResource(ts::Program(), MAKEINTRESOURCEW(IDR_FRAMES), L"PNG"));
    EXPECT_EQ(0u, g_stream->Release());
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

Gdiplus::GpStatus WINGDIPAPI SizeAndFail(UINT* count, UINT* size)
{
    Gdiplus::DllExports::GdipGetImageEncodersSize(count, size);
    return Gdiplus::GenericError;
}

Gdiplus::GpStatus WINGDIPAPI NoEncoders(UINT* count, UINT* size)
{
    const auto status = Gdiplus::DllExports::GdipGetImageEncodersSize(count, size);
    *count = 0;
    return status;
}

Gdiplus::GpStatus WINGDIPAPI EncodersWithoutSize(UINT* count, UINT* size)
{
    const auto status = Gdiplus::DllExports::GdipGetImageEncodersSize(count, size);
    *size = 0;
    return status;
}

int g_lists = 0;

Gdiplus::GpStatus WINGDIPAPI CountList(UINT count, UINT size, Gdiplus::ImageCodecInfo* encoders)
{
    ++g_lists;
    return Gdiplus::DllExports::GdipGetImageEncoders(count, size, encoders);
}

Gdiplus::GpStatus WINGDIPAPI ListAndFail(UINT count, UINT size, Gdiplus::ImageCodecInfo* encoders)
{
    CountList(count, size, encoders);
    return Gdiplus::GenericError;
}

/** The search for an encoder, with the library's memory counted. */
class EncoderSearch : public testing::Test
{
  protected:
    void ExpectFound(LPCWSTR type, BOOL found)
    {
        GUID clsid = kNoEncoder;
        EXPECT_EQ(found, QorGetImageEncoder(type, clsid));
        EXPECT_TRUE(clsid == (found ? kPngEncoder : kNoEncoder));
        EXPECT_EQ(0, LocalBlocks::Held());
    }

    void ExpectNoneOf(decltype(&NoEncoders) sizes)
    {
        const ts::ReplacedImport replaced(L"QorUI.dll", "GdipGetImageEncodersSize", sizes);
        ExpectFound(L"image/png", FALSE);
        EXPECT_EQ(0, LocalBlocks::Asked());
    }

    LocalBlocks m_blocks;
};

TEST_F(EncoderSearch, FreesTheListWhetherOrNotItFinds)
{
    ExpectFound(L"image/png", TRUE);
    ExpectFound(L"image/none", FALSE);
    EXPECT_EQ(2, LocalBlocks::Asked());
}

TEST_F(EncoderSearch, AsksForABlockOfTheWholeSize)
{
    UINT count = 0;
    UINT size = 0;
    ASSERT_EQ(Gdiplus::Ok, Gdiplus::DllExports::GdipGetImageEncodersSize(&count, &size));
    ExpectFound(L"image/png", TRUE);
    EXPECT_EQ(SIZE_T{size}, LocalBlocks::Size());
}

std::vector<std::pair<std::wstring, GUID>> g_encoders;

Gdiplus::GpStatus WINGDIPAPI SizeOfEncoders(UINT* count, UINT* size)
{
    *count = static_cast<UINT>(g_encoders.size());
    *size = *count * sizeof(Gdiplus::ImageCodecInfo);
    return Gdiplus::Ok;
}

Gdiplus::GpStatus WINGDIPAPI ListEncoders(UINT count, UINT, Gdiplus::ImageCodecInfo* encoders)
{
    for (UINT i = 0; i < count; ++i) {
        encoders[i].Clsid = g_encoders[i].second;
        encoders[i].MimeType = g_encoders[i].first.data();
    }
    return Gdiplus::Ok;
}

TEST_F(EncoderSearch, FindsTheFirstOfSeveralWithTheWholeType)
{
    g_encoders = {{L"image/pn", kNoEncoder},
                  {L"image/png2", kNoEncoder},
                  {L"Image/PNG", kPngEncoder},
                  {L"image/png", kNoEncoder}};
    const ts::ReplacedImport size(L"QorUI.dll", "GdipGetImageEncodersSize", &SizeOfEncoders);
    const ts::ReplacedImport list(L"QorUI.dll", "GdipGetImageEncoders", &ListEncoders);
    ExpectFound(L"image/png", TRUE);
}

TEST_F(EncoderSearch, FindsNothingWhenTheSizeIsRefused)
{
    ExpectNoneOf(&SizeAndFail);
}

TEST_F(EncoderSearch, FindsNothingAmongNoEncoders)
{
    ExpectNoneOf(&NoEncoders);
}

TEST_F(EncoderSearch, FindsNothingInAListWithoutSize)
{
    ExpectNoneOf(&EncodersWithoutSize);
}

TEST_F(EncoderSearch, FindsNothingWithoutMemory)
{
    g_lists = 0;
    const ts::ReplacedImport list(L"QorUI.dll", "GdipGetImageEncoders", &CountList);
    LocalBlocks::Refuse();
    ExpectFound(L"image/png", FALSE);
    EXPECT_EQ(1, LocalBlocks::Asked());
    EXPECT_EQ(0, g_lists);
}

TEST_F(EncoderSearch, FindsNothingWhenTheListIsRefused)
{
    const ts::ReplacedImport list(L"QorUI.dll", "GdipGetImageEncoders", &ListAndFail);
    ExpectFound(L"image/png", FALSE);
    EXPECT_EQ(1, LocalBlocks::Asked());
}

} // namespace

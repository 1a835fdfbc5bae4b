#include <QorPub/QorPub.h>
#include <QorUI/app/draw/GdiPlusFlat.h>
#include <QorUI/app/draw/Picture.h>
#include <QorUI/app/draw/QorBmp.h>
#include <tests/app/OwnResources.h>
#include <tests/app/res/resource.h>
#include <tests/support/Imports.h>

#include <gtest/gtest.h>

/** @file
 * What becomes of pictures and encoders when the system or a library below refuses.
 */

namespace
{

/** The library's blocks of local memory while one lives. */
class LocalBlocks
{
  public:
    LocalBlocks()
    {
        s_asked = s_held = 0;
        s_size = 0;
        s_refuse = false;
    }

    static void Refuse() { s_refuse = true; }
    /** How many the library asked for, and how large the last one was to be. */
    static int Asked() { return s_asked; }
    static SIZE_T Size() { return s_size; }
    /** How many it has not given back. */
    static int Held() { return s_held; }

  private:
    static HLOCAL WINAPI Take(UINT flags, SIZE_T size)
    {
        ++s_asked;
        s_size = size;
        const HLOCAL block = s_refuse ? nullptr : ::LocalAlloc(flags, size);
        s_held += block != nullptr;
        return block;
    }
    static HLOCAL WINAPI GiveBack(HLOCAL block)
    {
        s_held -= block != nullptr;
        return ::LocalFree(block);
    }

    static inline int s_asked, s_held;
    static inline SIZE_T s_size;
    static inline bool s_refuse;
    ts::ReplacedImport m_take{L"QorUI.dll", "LocalAlloc", &Take};
    ts::ReplacedImport m_giveBack{L"QorUI.dll", "LocalFree", &GiveBack};
};

/** A loaded picture and a file with another one. */
class PictureFile : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_bitmap.Load(Program(), IDR_FRAMES, L"PNG"));
        m_held = m_bitmap.GetSafeHandle();
        s_reads = 0;
        s_readSize = 0;
    }

    /** Expects that the file is refused, the former picture kept, the memory freed and the file closed. */
    void ExpectRefused()
    {
        EXPECT_FALSE(m_bitmap.Load(m_path.c_str()));
        EXPECT_EQ(m_held, m_bitmap.GetSafeHandle());
        EXPECT_EQ(0, LocalBlocks::Held());
        EXPECT_TRUE(::DeleteFileW(m_path.c_str())) << "the file is open";
    }

    static DWORD WINAPI NoSize(HANDLE, DWORD*) { return INVALID_FILE_SIZE; }
    static BOOL WINAPI Read(HANDLE file, void* buffer, DWORD size, DWORD* read, OVERLAPPED* overlapped)
    {
        ++s_reads;
        s_readSize = size;
        return ::ReadFile(file, buffer, size, read, overlapped);
    }
    static BOOL WINAPI ReadAndFail(HANDLE file, void* buffer, DWORD size, DWORD* read, OVERLAPPED* overlapped)
    {
        Read(file, buffer, size, read, overlapped);
        return FALSE;
    }
    static BOOL WINAPI ReadOneLess(HANDLE file, void* buffer, DWORD size, DWORD* read, OVERLAPPED* overlapped)
    {
        const BOOL result = Read(file, buffer, size, read, overlapped);
        --*read;
        return result;
    }

    static inline int s_reads;
    static inline DWORD s_readSize;
    ts::TempFolder m_folder;
    std::wstring m_path = FileOf(m_folder, IDR_UPRIGHT, L"picture.png");
    CQorBmp m_bitmap;
    HGDIOBJ m_held = nullptr;
    LocalBlocks m_blocks;
};

TEST_F(PictureFile, IsReadAtOnceIntoABlockOfItsSize)
{
    const ts::ReplacedImport read(L"QorUI.dll", "ReadFile", &Read);
    EXPECT_TRUE(m_bitmap.Load(m_path.c_str()));
    EXPECT_EQ(1, LocalBlocks::Asked());
    EXPECT_EQ(PictureBytes(IDR_UPRIGHT).size(), LocalBlocks::Size());
    EXPECT_EQ(1, s_reads);
    EXPECT_EQ(PictureBytes(IDR_UPRIGHT).size(), s_readSize);
    EXPECT_EQ(0, LocalBlocks::Held());
}

TEST_F(PictureFile, OfUnknownSizeIsRefused)
{
    const ts::ReplacedImport size(L"QorUI.dll", "GetFileSize", &NoSize);
    ExpectRefused();
    EXPECT_EQ(0, LocalBlocks::Asked());
}

TEST_F(PictureFile, WithoutMemoryIsRefused)
{
    const ts::ReplacedImport read(L"QorUI.dll", "ReadFile", &Read);
    LocalBlocks::Refuse();
    ExpectRefused();
    EXPECT_EQ(1, LocalBlocks::Asked());
    EXPECT_EQ(0, s_reads);
}

TEST_F(PictureFile, ThatCannotBeReadIsRefused)
{
    const ts::ReplacedImport read(L"QorUI.dll", "ReadFile", &ReadAndFail);
    ExpectRefused();
    EXPECT_EQ(1, s_reads);
}

TEST_F(PictureFile, ReadInPartIsRefused)
{
    const ts::ReplacedImport read(L"QorUI.dll", "ReadFile", &ReadOneLess);
    ExpectRefused();
    EXPECT_EQ(1, s_reads);
}

struct Opening
{
    DWORD access, share, disposition, flags;
    bool operator==(const Opening&) const = default;
};

std::vector<Opening> g_openings;

HANDLE WINAPI RecordOpening(LPCWSTR path, DWORD access, DWORD share, SECURITY_ATTRIBUTES* security, DWORD disposition,
                            DWORD flags, HANDLE like)
{
    g_openings.push_back({access, share, disposition, flags});
    return ::CreateFileW(path, access, share, security, disposition, flags, like);
}

TEST_F(PictureFile, IsOpenedForReading)
{
    g_openings.clear();
    const ts::ReplacedImport open(L"QorUI.dll", "CreateFileW", &RecordOpening);
    EXPECT_TRUE(m_bitmap.Load(m_path.c_str()));
    EXPECT_EQ((std::vector<Opening>{{GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL}}),
              g_openings);
}

int g_streamsAsked = 0;

IStream* NoStream(DWORD flags, const void*, DWORD)
{
    EXPECT_EQ(0u, flags);
    ++g_streamsAsked;
    return nullptr;
}

/** The library without streams on memory while one lives. */
class StreamShortage
{
  public:
    StreamShortage() { g_streamsAsked = 0; }
    ~StreamShortage() { EXPECT_EQ(1, g_streamsAsked); }
    StreamShortage(const StreamShortage&) = delete;
    StreamShortage& operator=(const StreamShortage&) = delete;

  private:
    ts::ReplacedImport m_none{L"QorUI.dll", "_Z26QorCreateReadOnlyMemStreammPKvm", &NoStream};
};

TEST_F(PictureFile, WithoutStreamIsRefused)
{
    const StreamShortage shortage;
    ExpectRefused();
}

TEST_F(PictureFile, ResourceWithoutStreamIsRefusedAndKeepsThePicture)
{
    const StreamShortage shortage;
    EXPECT_FALSE(m_bitmap.Load(Program(), IDR_UPRIGHT, L"PNG"));
    EXPECT_EQ(m_held, m_bitmap.GetSafeHandle());
}

TEST(ImageFromResource, WithoutStreamGivesNull)
{
    const StreamShortage shortage;
    EXPECT_EQ(nullptr, QorImageFromResource(Program(), MAKEINTRESOURCEW(IDR_FRAMES), L"PNG"));
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
    EXPECT_EQ(nullptr, QorImageFromResource(Program(), MAKEINTRESOURCEW(IDR_FRAMES), L"PNG"));
    EXPECT_EQ(0u, g_stream->Release());
}

constexpr GUID kNoEncoder = {1, 2, 3, {4, 5, 6, 7, 8, 9, 10, 11}};
constexpr GUID kPngEncoder = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

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

#include <QorUI/app/draw/QorBmp.h>
#include <tests/app/Blocks.h>
#include <tests/app/res/resource.h>
#include <tests/support/Imports.h>
#include <tests/support/Resources.h>

#include <gtest/gtest.h>

/** @file
 * What becomes of pictures when the system or a library below refuses.
 */

namespace
{

/** A loaded picture and a file with another one. */
class PictureFile : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_bitmap.Load(ts::Program(), IDR_FRAMES, L"PNG"));
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
    std::wstring m_path = ts::FileOf(m_folder, IDR_UPRIGHT, L"picture.png");
    CQorBmp m_bitmap;
    HGDIOBJ m_held = nullptr;
    LocalBlocks m_blocks;
};

TEST_F(PictureFile, IsReadAtOnceIntoABlockOfItsSize)
{
    const ts::ReplacedImport read(L"QorUI.dll", "ReadFile", &Read);
    EXPECT_TRUE(m_bitmap.Load(m_path.c_str()));
    EXPECT_EQ(1, LocalBlocks::Asked());
    EXPECT_EQ(ts::PictureBytes(IDR_UPRIGHT).size(), LocalBlocks::Size());
    EXPECT_EQ(1, s_reads);
    EXPECT_EQ(ts::PictureBytes(IDR_UPRIGHT).size(), s_readSize);
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

TEST_F(PictureFile, WithoutStreamIsRefused)
{
    const StreamShortage shortage;
    ExpectRefused();
}

TEST_F(PictureFile, ResourceWithoutStreamIsRefusedAndKeepsThePicture)
{
    const StreamShortage shortage;
    EXPECT_FALSE(m_bitmap.Load(ts::Program(), IDR_UPRIGHT, L"PNG"));
    EXPECT_EQ(m_held, m_bitmap.GetSafeHandle());
}

} // namespace

#include "resource.h"

#include <QorPub/QorPub.h>

#include <gtest/gtest.h>

#include <ocidl.h>
#include <olectl.h>

namespace
{

const char g_data[] = "0123456789";
constexpr DWORD kDataSize = 10;

class MemStream : public testing::Test
{
  protected:
    void SetUp() override
    {
        m_stream = QorCreateReadOnlyMemStream(0, g_data, kDataSize);
        ASSERT_NE(nullptr, m_stream);
    }
    void TearDown() override { EXPECT_EQ(0u, m_stream->Release()); }

    std::string Read(ULONG size)
    {
        char buffer[32] = {};
        ULONG got = 99;
        EXPECT_EQ(S_OK, m_stream->Read(buffer, size, &got));
        return std::string(buffer, got);
    }

    HRESULT Seek(LONGLONG move, DWORD origin, ULONGLONG* pos = nullptr)
    {
        LARGE_INTEGER distance;
        distance.QuadPart = move;
        ULARGE_INTEGER reached = {};
        HRESULT result = m_stream->Seek(distance, origin, &reached);
        if (pos) {
            *pos = reached.QuadPart;
        }
        return result;
    }

    IStream* m_stream = nullptr;
};

} // namespace

TEST_F(MemStream, ReadsInPiecesUpToTheEnd)
{
    EXPECT_EQ("0123", Read(4));
    EXPECT_EQ("456789", Read(20));
    EXPECT_EQ("", Read(1));
}

TEST_F(MemStream, ReadsWithoutACount)
{
    char buffer[2] = {};
    EXPECT_EQ(S_OK, m_stream->Read(buffer, 2, nullptr));
    EXPECT_EQ('1', buffer[1]);
    EXPECT_EQ(STG_E_INVALIDPOINTER, m_stream->Read(nullptr, 2, nullptr));
}

TEST_F(MemStream, SeeksFromStartPositionAndEnd)
{
    ULONGLONG pos = 0;
    EXPECT_EQ(S_OK, Seek(3, STREAM_SEEK_SET, &pos));
    EXPECT_EQ(3u, pos);
    EXPECT_EQ(S_OK, Seek(2, STREAM_SEEK_CUR, &pos));
    EXPECT_EQ(5u, pos);
    EXPECT_EQ(S_OK, Seek(-1, STREAM_SEEK_END, &pos));
    EXPECT_EQ("9", Read(5));
}

TEST_F(MemStream, SeekBehindTheEndReadsNothing)
{
    ULONGLONG pos = 0;
    EXPECT_EQ(S_OK, Seek(0x200000000LL, STREAM_SEEK_SET, &pos));
    EXPECT_EQ(0x200000000ULL, pos);
    EXPECT_EQ("", Read(4));
    EXPECT_EQ(S_OK, Seek(0, STREAM_SEEK_SET));
    EXPECT_EQ("0", Read(1));
}

TEST_F(MemStream, SeekBeforeTheStartIsRefusedAndKeepsThePosition)
{
    Seek(4, STREAM_SEEK_SET);
    EXPECT_EQ(STG_E_INVALIDFUNCTION, Seek(-5, STREAM_SEEK_CUR));
    EXPECT_EQ(STG_E_INVALIDFUNCTION, Seek(-11, STREAM_SEEK_END));
    EXPECT_EQ(STG_E_INVALIDFUNCTION, Seek(MAXLONGLONG, STREAM_SEEK_CUR));
    EXPECT_EQ(STG_E_INVALIDFUNCTION, Seek(0, 3));
    EXPECT_EQ("4", Read(1));
}

TEST_F(MemStream, RefusesEveryChange)
{
    EXPECT_EQ(STG_E_ACCESSDENIED, m_stream->Write("x", 1, nullptr));
    EXPECT_EQ(STG_E_ACCESSDENIED, m_stream->SetSize({}));
    EXPECT_EQ(S_OK, m_stream->Commit(0));
    EXPECT_EQ(S_OK, m_stream->Revert());
    EXPECT_EQ(STG_E_INVALIDFUNCTION, m_stream->LockRegion({}, {}, 0));
    EXPECT_EQ("0123456789", Read(20));
}

TEST_F(MemStream, StatTellsSizeAndMode)
{
    STATSTG stat;
    memset(&stat, 0xCC, sizeof(stat));
    ASSERT_EQ(S_OK, m_stream->Stat(&stat, STATFLAG_DEFAULT));
    EXPECT_EQ(10u, stat.cbSize.QuadPart);
    EXPECT_EQ(static_cast<DWORD>(STGTY_STREAM), stat.type);
    EXPECT_EQ(static_cast<DWORD>(STGM_READ), stat.grfMode);
    EXPECT_EQ(nullptr, stat.pwcsName);
    EXPECT_EQ(STG_E_INVALIDPOINTER, m_stream->Stat(nullptr, 0));
}

TEST_F(MemStream, CloneReadsOnAtItsOwnPosition)
{
    Seek(7, STREAM_SEEK_SET);
    IStream* clone = nullptr;
    ASSERT_EQ(S_OK, m_stream->Clone(&clone));
    char buffer[8] = {};
    ULONG got = 0;
    EXPECT_EQ(S_OK, clone->Read(buffer, 8, &got));
    EXPECT_STREQ("789", buffer);
    EXPECT_EQ("7", Read(1));
    EXPECT_EQ(0u, clone->Release());
}

TEST_F(MemStream, CopiesTheRestToAnotherStream)
{
    IStream* other = nullptr;
    ASSERT_EQ(S_OK, CreateStreamOnHGlobal(nullptr, TRUE, &other));
    Seek(6, STREAM_SEEK_SET);
    ULARGE_INTEGER all;
    all.QuadPart = ~0ULL;
    ULARGE_INTEGER read = {};
    ULARGE_INTEGER written = {};
    EXPECT_EQ(S_OK, m_stream->CopyTo(other, all, &read, &written));
    EXPECT_EQ(4u, read.QuadPart);
    EXPECT_EQ(4u, written.QuadPart);
    EXPECT_EQ(STG_E_INVALIDPOINTER, m_stream->CopyTo(nullptr, all, nullptr, nullptr));
    other->Release();
}

TEST_F(MemStream, KnowsItsInterfaces)
{
    for (const IID* iid : {&IID_IUnknown, &IID_ISequentialStream, &IID_IStream}) {
        void* found = nullptr;
        EXPECT_EQ(S_OK, m_stream->QueryInterface(*iid, &found));
        ASSERT_NE(nullptr, found);
        static_cast<IUnknown*>(found)->Release();
    }
    void* other = &other;
    EXPECT_EQ(E_NOINTERFACE, m_stream->QueryInterface(IID_IStorage, &other));
    EXPECT_EQ(nullptr, other);
}

TEST_F(MemStream, ReadsTheBlockItselfAndNoCopy)
{
    char block[] = "abc";
    IStream* stream = QorCreateReadOnlyMemStream(0, block, 3);
    block[0] = 'X';
    char read[4] = {};
    stream->Read(read, 3, nullptr);
    EXPECT_STREQ("Xbc", read);
    stream->Release();
}

TEST(QorCreateReadOnlyMemStream, NullDataGivesNull)
{
    EXPECT_EQ(nullptr, QorCreateReadOnlyMemStream(0, nullptr, 0));
    EXPECT_EQ(nullptr, QorCreateReadOnlyMemStream(0, nullptr, 5));
}

TEST(QorCreateReadOnlyMemStream, AnEmptyBlockGivesAnEmptyStream)
{
    IStream* stream = QorCreateReadOnlyMemStream(0, "", 0);
    ASSERT_NE(nullptr, stream);
    char byte = 0;
    ULONG got = 9;
    EXPECT_EQ(S_OK, stream->Read(&byte, 1, &got));
    EXPECT_EQ(0u, got);
    stream->Release();
}

TEST(QorCreateReadOnlyMemStream, ThePictureLoaderTakesIt)
{
    // A bitmap file of one white pixel.
    const BYTE bmp[] = {'B', 'M', 58, 0, 0, 0, 0, 0, 0,  0, 54, 0, 0, 0, 40,  0,   0,   0, 1, 0,
                        0,   0,   1,  0, 0, 0, 1, 0, 24, 0, 0,  0, 0, 0, 4,   0,   0,   0, 0, 0,
                        0,   0,   0,  0, 0, 0, 0, 0, 0,  0, 0,  0, 0, 0, 255, 255, 255, 0};
    IStream* stream = QorCreateReadOnlyMemStream(0, bmp, sizeof(bmp));
    IPicture* picture = nullptr;
    EXPECT_EQ(S_OK, OleLoadPicture(stream, sizeof(bmp), FALSE, IID_IPicture, reinterpret_cast<void**>(&picture)));
    ASSERT_NE(nullptr, picture);
    picture->Release();
    EXPECT_EQ(0u, stream->Release());
}

TEST(QorLoadResource, FindsResourcesByIdAndName)
{
    DWORD size = 0;
    const void* data = QorLoadResource(nullptr, MAKEINTRESOURCEW(IDR_SAMPLE), L"SAMPLE", size);
    ASSERT_NE(nullptr, data);
    ASSERT_EQ(12u, size);
    EXPECT_EQ(0, memcmp("sample bytes", data, 12));
    data = QorLoadResource(GetModuleHandleW(nullptr), L"NAMED", L"SAMPLE", size);
    ASSERT_NE(nullptr, data);
    EXPECT_EQ(7u, size);
}

TEST(QorLoadResource, MissingOnesGiveNullAndNoSize)
{
    DWORD size = 5;
    EXPECT_EQ(nullptr, QorLoadResource(nullptr, MAKEINTRESOURCEW(999), L"SAMPLE", size));
    EXPECT_EQ(0u, size);
    size = 5;
    EXPECT_EQ(nullptr, QorLoadResource(nullptr, nullptr, L"SAMPLE", size));
    EXPECT_EQ(0u, size);
    EXPECT_EQ(nullptr, QorLoadResource(nullptr, MAKEINTRESOURCEW(IDR_SAMPLE), nullptr, size));
    EXPECT_EQ(nullptr, QorLoadResource(nullptr, MAKEINTRESOURCEW(IDR_SAMPLE), L"OTHER", size));
}

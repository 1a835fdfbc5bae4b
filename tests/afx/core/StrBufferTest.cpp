#include "Checks.h"

#include <thread>
#include <vector>

TEST(CStringBuffer, CopiesShareOneBuffer)
{
    const CString str(L"shared");
    const CString copy(str); // NOLINT(performance-unnecessary-copy-initialization): the copy is what is tested
    CString assigned;
    assigned = str;
    EXPECT_EQ(str.GetString(), copy.GetString());
    EXPECT_EQ(str.GetString(), assigned.GetString());
}

TEST(CStringBuffer, FirstChangeMakesTheBufferOwn)
{
    const CString str(L"shared");
    CString copy(str);
    copy.SetAt(0, L'S');
    EXPECT_STREQ(L"shared", str);
    EXPECT_STREQ(L"Shared", copy);
    CString upper(str);
    upper.MakeUpper();
    CString appended(str);
    appended += L"!";
    EXPECT_STREQ(L"shared", str);
    EXPECT_STREQ(L"SHARED", upper);
    EXPECT_STREQ(L"shared!", appended);
}

TEST(CStringBuffer, SelfAssignmentKeepsTheString)
{
    CString str(L"self");
    const CString& alias = str;
    str = alias;
    EXPECT_STREQ(L"self", str);
    CString& sameString = str;
    str = std::move(sameString);
    EXPECT_STREQ(L"self", str);
    str = str.GetString();
    EXPECT_STREQ(L"self", str);
    str = str.GetString() + 2;
    EXPECT_STREQ(L"lf", str);
}

TEST(CStringBuffer, AppendingItselfDoublesTheString)
{
    CString str(L"ab");
    for (int i = 0; i < 6; ++i) {
        str += str;
    }
    EXPECT_EQ(128, str.GetLength());
    EXPECT_EQ(CString(L"ab"), str.Right(2));
    CString tail(L"xyz");
    tail.Append(tail.GetString() + 1, 2);
    EXPECT_STREQ(L"xyzyz", tail);
}

TEST(CStringBuffer, AppendingItselfReadsNoFreedBuffer)
{
    /* The memory of a buffer of this size is given back to the system at once. */
    CString str(L'x', 4000000);
    str += str;
    EXPECT_EQ(8000000, str.GetLength());
    EXPECT_EQ(L'x', str[7999999]);
}

TEST(CStringBuffer, InsertingItselfDoublesTheString)
{
    CString str(L"abc");
    EXPECT_EQ(6, str.Insert(0, str));
    EXPECT_STREQ(L"abcabc", str);
    EXPECT_EQ(8, str.Insert(3, str.GetString() + 4));
    EXPECT_STREQ(L"abcbcabc", str);
}

TEST(CStringBuffer, FormattingIntoAnArgumentKeepsTheArgument)
{
    CString str(L"in");
    str.Format(L"%s-%s", str.GetString(), str.GetString());
    EXPECT_STREQ(L"in-in", str);
    str = L"100%%";
    str.Format(str.GetString());
    EXPECT_STREQ(L"100%", str);
    str.AppendFormat(L"<%s>", str.GetString());
    EXPECT_STREQ(L"100%<100%>", str);
}

TEST(CStringBuffer, ReplacingWithPartsOfItself)
{
    CString str(L"a-b");
    EXPECT_EQ(1, str.Replace(L"-", str));
    EXPECT_STREQ(L"aa-bb", str);
}

TEST(CStringBuffer, MoveLeavesTheSourceEmpty)
{
    CString str(L"move");
    const wchar_t* const psz = str.GetString();
    const CString moved(std::move(str));
    EXPECT_EQ(psz, moved.GetString());
    EXPECT_TRUE(str.IsEmpty()); // NOLINT(bugprone-use-after-move): the state after a move is defined
}

TEST(CStringBuffer, GetBufferGivesRoomAndReleaseFindsTheEnd)
{
    CString str(L"ab");
    wchar_t* const psz = str.GetBuffer(100);
    EXPECT_STREQ(L"ab", psz);
    wcscpy(psz, L"a longer text");
    str.ReleaseBuffer();
    EXPECT_EQ(13, str.GetLength());
    str.GetBuffer(50)[5] = 0;
    str.ReleaseBuffer(3);
    EXPECT_STREQ(L"a l", str);
}

TEST(CStringBuffer, ReleaseBufferStopsAtTheEndOfAFullBuffer)
{
    CString str;
    wchar_t* const psz = str.GetBuffer(4);
    const int nRoom = str.GetAllocLength();
    for (int i = 0; i < nRoom; ++i) {
        psz[i] = L'x';
    }
    str.ReleaseBuffer();
    EXPECT_EQ(nRoom, str.GetLength());
}

TEST(CStringBuffer, GetBufferDoesNotChangeCopies)
{
    const CString str(L"abc");
    CString copy(str);
    copy.GetBuffer()[0] = L'X';
    copy.ReleaseBuffer();
    EXPECT_STREQ(L"abc", str);
    EXPECT_STREQ(L"Xbc", copy);
}

TEST(CStringBuffer, SetLengthVariants)
{
    CString str(L"abc");
    wcscpy(str.GetBufferSetLength(5), L"12345");
    EXPECT_EQ(5, str.GetLength());
    EXPECT_STREQ(L"12345", str);
    str.ReleaseBufferSetLength(2);
    EXPECT_STREQ(L"12", str);
    str.Truncate(1);
    EXPECT_STREQ(L"1", str);
    str.Truncate(10);
    EXPECT_STREQ(L"1", str);
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { str.GetBuffer(-1); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { str.ReleaseBufferSetLength(100000); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { str.Truncate(-1); }));
}

TEST(CStringBuffer, LockedBufferIsNotShared)
{
    CString str(L"locked");
    const wchar_t* const psz = str.LockBuffer();
    const CString copy(str);
    EXPECT_NE(psz, copy.GetString());
    EXPECT_STREQ(L"locked", copy);
    str = copy;
    EXPECT_NE(str.GetString(), copy.GetString());
    str.UnlockBuffer();
    const CString later(str);
    EXPECT_EQ(str.GetString(), later.GetString());
}

TEST(CStringBuffer, PreallocateAndFreeExtraKeepTheText)
{
    CString str(L"abc");
    str.Preallocate(500);
    EXPECT_GE(str.GetAllocLength(), 500);
    EXPECT_STREQ(L"abc", str);
    str.FreeExtra();
    EXPECT_EQ(3, str.GetAllocLength());
    EXPECT_STREQ(L"abc", str);
}

TEST(CStringBuffer, EmptyGivesUpTheBuffer)
{
    CString str(L"abc");
    str.Empty();
    EXPECT_TRUE(str.IsEmpty());
    EXPECT_EQ(CString().GetString(), str.GetString());
}

TEST(CStringBuffer, EmbeddedTerminatorsCountAsCharacters)
{
    CString str(L"a\0b", 3);
    str += L"c";
    EXPECT_EQ(4, str.GetLength());
    EXPECT_EQ(L'b', str[2]);
    str.Insert(1, L'\0');
    EXPECT_EQ(5, str.GetLength());
    EXPECT_EQ(L'\0', str[1]);
}

TEST(CStringBuffer, CopyCharsCopiesAtMostTheRoom)
{
    wchar_t szDest[4] = L"___";
    CString::CopyChars(szDest, L"ab", 2);
    EXPECT_STREQ(L"ab_", szDest);
    CString::CopyChars(szDest, 3, L"vwxyz", 5);
    EXPECT_STREQ(L"vwx", szDest);
    CString::CopyCharsOverlapped(szDest + 1, szDest, 2);
    EXPECT_STREQ(L"vvw", szDest);
}

TEST(CStringBuffer, CopiesOnManyThreadsKeepTheCount)
{
    AFX_TRACE_HOOK const pfnOld = AfxSetTraceHook([](LPCWSTR) {});
    const BOOL bOld = AfxEnableMemoryTracking(TRUE);
    CMemoryState before;
    CMemoryState after;
    CMemoryState difference;
    before.Checkpoint();
    {
        const CString str(L"counted by all");
        std::vector<std::thread> threads;
        threads.reserve(4);
        for (int i = 0; i < 4; ++i) {
            threads.emplace_back([&str] {
                for (int n = 0; n < 20000; ++n) {
                    CString copy(str);
                    if (n % 100 == 0) {
                        copy += L"!";
                    }
                }
            });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
        EXPECT_STREQ(L"counted by all", str);
    }
    after.Checkpoint();
    AfxEnableMemoryTracking(bOld);
    AfxSetTraceHook(pfnOld);
    EXPECT_FALSE(difference.Difference(before, after));
}

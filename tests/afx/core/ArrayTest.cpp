#include "Checks.h"

#include <afxtempl.h>

#include <string>

namespace
{
/** Counts its living objects. */
struct Counted
{
    static int s_nAlive;
    int n = 0;

    Counted() { ++s_nAlive; }
    explicit Counted(int value) : n(value) { ++s_nAlive; }
    Counted(const Counted& other) : n(other.n) { ++s_nAlive; }
    Counted& operator=(const Counted&) = default;
    ~Counted() { --s_nAlive; }
};
int Counted::s_nAlive = 0;

CArray<int, int>& Fill(CArray<int, int>& array, int nCount)
{
    array.RemoveAll();
    for (int i = 0; i < nCount; ++i) {
        array.Add(i);
    }
    return array;
}
} // namespace

TEST(CArray, StartsEmpty)
{
    const CArray<int, int> array;
    EXPECT_TRUE(array.IsEmpty());
    EXPECT_EQ(0, array.GetSize());
    EXPECT_EQ(-1, array.GetUpperBound());
    EXPECT_EQ(nullptr, array.GetData());
}

TEST(CArray, AddGivesTheIndexAndGrows)
{
    CArray<int, int> array;
    for (int i = 0; i < 1000; ++i) {
        ASSERT_EQ(i, array.Add(i * 2));
    }
    EXPECT_EQ(1000, array.GetCount());
    EXPECT_EQ(999, array.GetUpperBound());
    for (int i = 0; i < 1000; ++i) {
        ASSERT_EQ(i * 2, array[i]);
    }
    EXPECT_EQ(&array[0], array.GetData());
}

TEST(CArray, BadIndexIsRefused)
{
    CArray<int, int> array;
    Fill(array, 2);
    const CArray<int, int>& constant = array;
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { array[2] = 1; }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { array[-1] = 1; }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { static_cast<void>(constant[2]); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { static_cast<void>(array.GetAt(2)); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { array.SetAt(2, 1); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { array.ElementAt(-1) = 1; }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { array.SetAtGrow(-1, 1); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { array.SetSize(-1); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { array.InsertAt(-1, 1); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { array.InsertAt(0, 1, 0); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { array.RemoveAt(1, 2); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { array.RemoveAt(-1); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { array.RemoveAt(0, -1); }));
    EXPECT_EQ(2, array.GetSize());
}

TEST(CArray, SetSizeInitialisesAndCuts)
{
    CArray<int, int> array;
    array.SetSize(3);
    EXPECT_EQ(0, array[0] + array[1] + array[2]);
    array[0] = 7;
    array.SetSize(1);
    array.SetSize(2);
    EXPECT_EQ(7, array[0]);
    EXPECT_EQ(0, array[1]);
    array.SetSize(0);
    EXPECT_EQ(nullptr, array.GetData());
}

TEST(CArray, SetAtGrowFillsTheGapWithDefaults)
{
    CArray<int, int> array;
    array.SetAtGrow(3, 9);
    EXPECT_EQ(4, array.GetSize());
    EXPECT_EQ(0, array[2]);
    EXPECT_EQ(9, array[3]);
    array.SetAtGrow(0, 5);
    EXPECT_EQ(4, array.GetSize());
    EXPECT_EQ(5, array[0]);
}

TEST(CArray, InsertAtMovesTheRest)
{
    CArray<int, int> array;
    Fill(array, 3);
    array.InsertAt(1, 9, 2);
    const int expected[] = {0, 9, 9, 1, 2};
    ASSERT_EQ(5, array.GetSize());
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(expected[i], array[i]);
    }
    array.InsertAt(7, 4);
    EXPECT_EQ(8, array.GetSize());
    EXPECT_EQ(0, array[6]);
    EXPECT_EQ(4, array[7]);
}

TEST(CArray, InsertAtTakesAnotherArrayAndItself)
{
    CArray<int, int> array;
    CArray<int, int> other;
    Fill(array, 2);
    Fill(other, 3);
    array.InsertAt(1, &other);
    const int expected[] = {0, 0, 1, 2, 1};
    ASSERT_EQ(5, array.GetSize());
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(expected[i], array[i]);
    }
    other.InsertAt(0, &other);
    EXPECT_EQ(6, other.GetSize());
    EXPECT_EQ(2, other[2]);
    EXPECT_EQ(0, other[3]);
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { array.InsertAt(0, static_cast<CArray<int, int>*>(nullptr)); }));
}

TEST(CArray, RemoveAtClosesTheGap)
{
    CArray<int, int> array;
    Fill(array, 5);
    array.RemoveAt(1, 2);
    EXPECT_EQ(3, array.GetSize());
    EXPECT_EQ(3, array[1]);
    array.RemoveAt(2);
    EXPECT_EQ(2, array.GetSize());
    array.RemoveAt(2, 0);
    EXPECT_EQ(2, array.GetSize());
}

TEST(CArray, AppendAndCopyWorkWithItself)
{
    CArray<CString, const CString&> array;
    array.Add(L"a");
    array.Add(L"b");
    EXPECT_EQ(2, array.Append(array));
    EXPECT_EQ(4, array.GetSize());
    EXPECT_STREQ(L"b", array[3]);
    array.Copy(array);
    EXPECT_EQ(4, array.GetSize());
    CArray<CString, const CString&> copy;
    copy.Add(L"old");
    copy.Copy(array);
    EXPECT_EQ(4, copy.GetSize());
    EXPECT_STREQ(L"a", copy[0]);
}

TEST(CArray, OwnElementsMayBeAddedWhileItGrows)
{
    CArray<CString, const CString&> array;
    array.Add(L"a string that lives on the heap");
    for (int i = 0; i < 100; ++i) {
        array.Add(array[0]);
    }
    EXPECT_STREQ(array[0], array[100]);
    array.InsertAt(0, array[50], 3);
    array[0] = L"changed";
    EXPECT_STREQ(L"a string that lives on the heap", array[1]);
}

TEST(CArray, MovesObjectsThatPointIntoThemselves)
{
    CArray<std::string> array;
    for (int i = 0; i < 100; ++i) {
        array.Add("short" + std::to_string(i));
    }
    array.InsertAt(50, std::string("middle"));
    EXPECT_EQ("short0", array[0]);
    EXPECT_EQ("middle", array[50]);
    EXPECT_EQ("short99", array[100]);
}

TEST(CArray, FreeExtraAndGrowByKeepTheContent)
{
    CArray<int, int> array;
    array.SetSize(0, 100);
    Fill(array, 5);
    array.FreeExtra();
    array.Add(5);
    EXPECT_EQ(6, array.GetSize());
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(i, array[i]);
    }
}

TEST(CArray, DestroysEveryElementOnce)
{
    {
        CArray<Counted> array;
        array.SetSize(5);
        EXPECT_EQ(5, Counted::s_nAlive);
        array.Add(Counted(3));
        array.InsertAt(2, Counted(4), 3);
        EXPECT_EQ(9, Counted::s_nAlive);
        EXPECT_EQ(4, array[4].n);
        array.RemoveAt(0, 4);
        EXPECT_EQ(5, Counted::s_nAlive);
        array.SetSize(2);
        EXPECT_EQ(2, Counted::s_nAlive);
    }
    EXPECT_EQ(0, Counted::s_nAlive);
}

TEST(CArray, TooLargeASizeRaisesMemoryException)
{
    CArray<CString, const CString&> array;
    EXPECT_TRUE(Raises<CMemoryException>([&] { array.SetSize((std::numeric_limits<INT_PTR>::max)() / 2); }));
    EXPECT_EQ(0, array.GetSize());
}

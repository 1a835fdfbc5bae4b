#include "Checks.h"

#include <afxtempl.h>

#include <string>

namespace
{
template <class LIST>
std::string Text(const LIST& list)
{
    std::string text;
    for (POSITION pos = list.GetHeadPosition(); pos;) {
        text += std::to_string(list.GetNext(pos)) + " ";
    }
    return text;
}

template <class LIST>
std::string Backwards(const LIST& list)
{
    std::string text;
    for (POSITION pos = list.GetTailPosition(); pos;) {
        text += std::to_string(list.GetPrev(pos)) + " ";
    }
    return text;
}
typedef CList<int, int> IntList;
} // namespace

TEST(CList, AddsAtBothEnds)
{
    IntList list;
    EXPECT_TRUE(list.IsEmpty());
    list.AddTail(2);
    list.AddHead(1);
    list.AddTail(3);
    EXPECT_EQ("1 2 3 ", Text(list));
    EXPECT_EQ("3 2 1 ", Backwards(list));
    EXPECT_EQ(3, list.GetCount());
    EXPECT_EQ(3, list.GetSize());
    EXPECT_EQ(1, list.GetHead());
    EXPECT_EQ(3, list.GetTail());
}

TEST(CList, RemovesAtBothEnds)
{
    IntList list;
    list.AddTail(1);
    list.AddTail(2);
    list.AddTail(3);
    EXPECT_EQ(1, list.RemoveHead());
    EXPECT_EQ(3, list.RemoveTail());
    EXPECT_EQ(2, list.RemoveTail());
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(nullptr, list.GetHeadPosition());
    EXPECT_EQ(nullptr, list.GetTailPosition());
}

TEST(CList, EmptyListAndNullPositionAreRefused)
{
    IntList list;
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { list.GetHead() = 1; }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { list.GetTail() = 1; }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { list.RemoveHead(); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { list.RemoveTail(); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { list.GetAt(nullptr) = 1; }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { list.RemoveAt(nullptr); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { list.SetAt(nullptr, 1); }));
    POSITION pos = nullptr;
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { list.GetNext(pos) = 1; }));
}

TEST(CList, InsertsAroundAPosition)
{
    IntList list;
    const POSITION pos = list.AddTail(5);
    list.InsertBefore(pos, 4);
    list.InsertAfter(pos, 6);
    list.InsertBefore(nullptr, 0);
    list.InsertAfter(nullptr, 9);
    EXPECT_EQ("0 4 5 6 9 ", Text(list));
    EXPECT_EQ("9 6 5 4 0 ", Backwards(list));
    list.RemoveAt(pos);
    EXPECT_EQ("0 4 6 9 ", Text(list));
    EXPECT_EQ("9 6 4 0 ", Backwards(list));
}

TEST(CList, FindsValuesAndIndexes)
{
    IntList list;
    for (const int n : {1, 2, 1, 3}) {
        list.AddTail(n);
    }
    const POSITION first = list.Find(1);
    EXPECT_EQ(list.GetHeadPosition(), first);
    const POSITION second = list.Find(1, first);
    EXPECT_EQ(list.FindIndex(2), second);
    EXPECT_EQ(nullptr, list.Find(1, second));
    EXPECT_EQ(nullptr, list.Find(8));
    EXPECT_EQ(nullptr, list.FindIndex(4));
    EXPECT_EQ(nullptr, list.FindIndex(-1));
    list.SetAt(second, 7);
    EXPECT_EQ("1 2 7 3 ", Text(list));
}

TEST(CList, AddsOtherListsInTheirOrder)
{
    IntList list;
    IntList other;
    list.AddTail(5);
    other.AddTail(1);
    other.AddTail(2);
    list.AddHead(&other);
    list.AddTail(&other);
    EXPECT_EQ("1 2 5 1 2 ", Text(list));
    other.AddTail(&other);
    EXPECT_EQ("1 2 1 2 ", Text(other));
    other.RemoveAll();
    EXPECT_TRUE(other.IsEmpty());
}

TEST(CList, ElementsCanBeChangedInPlace)
{
    CList<CString> list;
    list.AddTail(L"a");
    list.GetHead() += L"b";
    POSITION pos = list.GetHeadPosition();
    list.GetNext(pos) += L"c";
    EXPECT_STREQ(L"abc", list.GetTail());
    EXPECT_EQ(nullptr, pos);
    EXPECT_NE(nullptr, list.Find(L"abc"));
}

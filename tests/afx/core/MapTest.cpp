#include "Checks.h"

#include <afxtempl.h>

#include <set>

namespace
{
typedef CMap<int, int, CString, LPCTSTR> NumberNames;

struct Pair
{
    int a;
    int b;
    bool operator==(const Pair& other) const { return a == other.a && b == other.b; }
};
} // namespace

template <>
UINT AFXAPI HashKey<const Pair&>(const Pair& key)
{
    return static_cast<UINT>(key.a * 31 + key.b);
}

TEST(CMap, StoresAndLooksUp)
{
    NumberNames map;
    CString str(L"kept");
    EXPECT_FALSE(map.Lookup(1, str));
    EXPECT_STREQ(L"kept", str);
    map.SetAt(1, L"one");
    map[2] = L"two";
    EXPECT_TRUE(map.Lookup(1, str));
    EXPECT_STREQ(L"one", str);
    EXPECT_EQ(2, map.GetCount());
    map.SetAt(1, L"ONE");
    EXPECT_EQ(2, map.GetSize());
    EXPECT_STREQ(L"ONE", map[1]);
    EXPECT_STREQ(L"", map[3]);
    EXPECT_EQ(3, map.GetCount());
}

TEST(CMap, RemovesKeys)
{
    NumberNames map;
    map[1] = L"one";
    EXPECT_TRUE(map.RemoveKey(1));
    EXPECT_FALSE(map.RemoveKey(1));
    EXPECT_TRUE(map.IsEmpty());
    map[1] = L"one";
    map.RemoveAll();
    EXPECT_TRUE(map.IsEmpty());
    EXPECT_EQ(nullptr, map.GetStartPosition());
    map[1] = L"again";
    EXPECT_STREQ(L"again", map[1]);
}

TEST(CMap, WalksEveryAssociationOnce)
{
    CMap<int, int, int, int> map;
    for (int i = 0; i < 500; ++i) {
        map[i] = i * i;
    }
    std::set<int> seen;
    for (POSITION pos = map.GetStartPosition(); pos;) {
        int nKey = 0;
        int nValue = 0;
        map.GetNextAssoc(pos, nKey, nValue);
        EXPECT_EQ(nKey * nKey, nValue);
        seen.insert(nKey);
    }
    EXPECT_EQ(500U, seen.size());
    size_t nPairs = 0;
    for (const auto* pPair = map.PGetFirstAssoc(); pPair; pPair = map.PGetNextAssoc(pPair)) {
        nPairs += seen.count(pPair->key);
    }
    EXPECT_EQ(500U, nPairs);
}

TEST(CMap, ReturnedAssociationMayBeRemovedWhileWalking)
{
    CMap<int, int, int, int> map;
    for (int i = 0; i < 100; ++i) {
        map[i] = i;
    }
    int nVisited = 0;
    for (POSITION pos = map.GetStartPosition(); pos; ++nVisited) {
        int nKey = 0;
        int nValue = 0;
        map.GetNextAssoc(pos, nKey, nValue);
        EXPECT_TRUE(map.RemoveKey(nKey));
    }
    EXPECT_EQ(100, nVisited);
    EXPECT_TRUE(map.IsEmpty());
}

TEST(CMap, PLookupGivesTheAssociationItself)
{
    NumberNames map;
    map[5] = L"five";
    NumberNames::CPair* const pPair = map.PLookup(5);
    ASSERT_NE(nullptr, pPair);
    pPair->value = L"FIVE";
    EXPECT_STREQ(L"FIVE", map[5]);
    EXPECT_EQ(nullptr, map.PLookup(6));
}

TEST(CMap, HashTableSizeCanBeSetAndKeepsTheContent)
{
    CMap<int, int, int, int> map;
    EXPECT_EQ(17U, map.GetHashTableSize());
    map.InitHashTable(101);
    EXPECT_EQ(101U, map.GetHashTableSize());
    for (int i = 0; i < 50; ++i) {
        map[i] = i;
    }
    map.InitHashTable(3);
    for (int i = 0; i < 50; ++i) {
        EXPECT_EQ(i, map[i]);
    }
    EXPECT_EQ(50, map.GetCount());
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { map.InitHashTable(0); }));
}

TEST(CMap, NullPositionIsRefused)
{
    CMap<int, int, int, int> map;
    POSITION pos = nullptr;
    int nKey = 0;
    int nValue = 0;
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { map.GetNextAssoc(pos, nKey, nValue); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { map.PGetNextAssoc(nullptr); }));
    EXPECT_EQ(nullptr, map.PGetFirstAssoc());
}

TEST(CMap, StringKeysAreComparedByText)
{
    CMap<CString, LPCTSTR, int, int> map;
    map[L"alpha"] = 1;
    const CString strKey(L"alpha");
    int nValue = 0;
    EXPECT_TRUE(map.Lookup(strKey, nValue));
    EXPECT_EQ(1, nValue);
    EXPECT_FALSE(map.Lookup(L"Alpha", nValue));
    CMap<CString, const CString&, int, int> byReference;
    byReference[CString(L"x")] = 3;
    EXPECT_TRUE(byReference.Lookup(CString(L"x"), nValue));
    EXPECT_EQ(3, nValue);
}

TEST(CMap, OwnKeyTypesUseOwnHash)
{
    CMap<Pair, const Pair&, int, int> map;
    map[Pair{1, 2}] = 12;
    map[Pair{2, 1}] = 21;
    EXPECT_EQ(12, (map[Pair{1, 2}]));
    EXPECT_EQ(2, map.GetCount());
}

TEST(CMap, GuidAndEnumerationKeys)
{
    CMap<GUID, const GUID&, int, int> guids;
    guids[GUID{1, 2, 3, {4}}] = 5;
    EXPECT_EQ(5, (guids[GUID{1, 2, 3, {4}}]));
    enum class Colour
    {
        Red,
        Green
    };
    CMap<Colour, Colour, int, int> colours;
    colours[Colour::Green] = 2;
    EXPECT_EQ(0, colours[Colour::Red]);
    EXPECT_EQ(2, colours[Colour::Green]);
}

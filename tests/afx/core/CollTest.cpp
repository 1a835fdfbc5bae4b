#include "Checks.h"

#include <afxtempl.h>

namespace
{
class CThing : public CObject
{
  public:
    explicit CThing(int n) : m_n(n) {}
    int m_n;
};
} // namespace

TEST(Collections, NumberArraysKeepTheirValues)
{
    CByteArray bytes;
    CWordArray words;
    CDWordArray dwords;
    CUIntArray uints;
    bytes.Add(255);
    words.Add(65535);
    dwords.Add(0xFFFFFFFF);
    uints.Add(7);
    EXPECT_EQ(255, bytes[0]);
    EXPECT_EQ(65535, words[0]);
    EXPECT_EQ(0xFFFFFFFFUL, dwords[0]);
    EXPECT_EQ(7U, uints[0]);
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { static_cast<void>(bytes[1]); }));
}

TEST(Collections, KnowTheirRuntimeClass)
{
    CPtrArray array;
    EXPECT_STREQ("CPtrArray", array.GetRuntimeClass()->m_lpszClassName);
    EXPECT_TRUE(array.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_EQ(RUNTIME_CLASS(CStringArray), CRuntimeClass::FromName("CStringArray"));
    EXPECT_EQ(RUNTIME_CLASS(CMapStringToString), CRuntimeClass::FromName(L"CMapStringToString"));
}

TEST(Collections, StringArrayTakesLiteralsAndStrings)
{
    CStringArray array;
    const CString str(L"shared");
    array.Add(L"literal");
    array.Add(str);
    array.InsertAt(0, L"first");
    EXPECT_STREQ(L"first", array[0]);
    EXPECT_STREQ(L"literal", array.GetAt(1));
    EXPECT_EQ(str.GetString(), array[2].GetString());
    CStringArray copy;
    copy.Copy(array);
    copy.Append(array);
    EXPECT_EQ(6, copy.GetSize());
}

TEST(Collections, StringListFindsByText)
{
    CStringList list;
    list.AddTail(L"a");
    list.AddTail(L"b");
    EXPECT_NE(nullptr, list.Find(L"b"));
    EXPECT_EQ(nullptr, list.Find(L"c"));
    EXPECT_EQ(CString(L"a"), list.RemoveHead());
}

TEST(Collections, PointerAndObjectListsKeepPointers)
{
    int n = 0;
    CThing thing(1);
    CPtrList pointers;
    CObList objects;
    pointers.AddTail(&n);
    objects.AddTail(&thing);
    EXPECT_EQ(&n, pointers.GetHead());
    EXPECT_EQ(&thing, objects.GetTail());
    EXPECT_NE(nullptr, pointers.Find(&n));
}

TEST(Collections, WordAndPointerMaps)
{
    int n = 0;
    CThing thing(1);
    CMapWordToPtr wordToPtr;
    CMapPtrToWord ptrToWord;
    CMapPtrToPtr ptrToPtr;
    CMapWordToOb wordToOb;
    wordToPtr.SetAt(5, &n);
    ptrToWord.SetAt(&n, 5);
    ptrToPtr.SetAt(&n, &thing);
    wordToOb.SetAt(5, &thing);
    void* p = nullptr;
    EXPECT_TRUE(wordToPtr.Lookup(5, p));
    EXPECT_EQ(&n, p);
    WORD w = 0;
    EXPECT_TRUE(ptrToWord.Lookup(&n, w));
    EXPECT_EQ(5, w);
    EXPECT_TRUE(ptrToPtr.Lookup(&n, p));
    EXPECT_EQ(&thing, p);
    EXPECT_EQ(&thing, wordToOb[5]);
    EXPECT_FALSE(ptrToPtr.Lookup(nullptr, p));
}

TEST(Collections, StringMapsGiveTheirKey)
{
    CThing thing(1);
    CMapStringToOb toOb;
    CMapStringToPtr toPtr;
    CMapStringToString toString;
    toOb.SetAt(L"k", &thing);
    toPtr[L"k"] = &thing;
    toString[L"k"] = L"v";
    EXPECT_EQ(&thing, toOb[L"k"]);
    EXPECT_EQ(&thing, toPtr[L"k"]);
    CString strValue;
    EXPECT_TRUE(toString.Lookup(L"k", strValue));
    EXPECT_STREQ(L"v", strValue);
    const CString strKey(L"k");
    LPCTSTR lpszKey = nullptr;
    EXPECT_TRUE(toString.LookupKey(strKey, lpszKey));
    EXPECT_STREQ(L"k", lpszKey);
    EXPECT_NE(strKey.GetString(), lpszKey);
    EXPECT_FALSE(toString.LookupKey(L"x", lpszKey));
}

TEST(TypedCollections, ArrayOfPointers)
{
    CThing one(1);
    CThing two(2);
    CTypedPtrArray<CObArray, CThing*> array;
    array.Add(&one);
    array.InsertAt(0, &two);
    EXPECT_EQ(2, array[0]->m_n);
    array[0] = &one;
    array.ElementAt(1) = &two;
    array.SetAtGrow(2, &one);
    EXPECT_EQ(1, array.GetAt(0)->m_n);
    EXPECT_EQ(2, array.GetAt(1)->m_n);
    CTypedPtrArray<CObArray, CThing*> copy;
    copy.Copy(array);
    EXPECT_EQ(3, copy.Append(array));
    EXPECT_EQ(6, copy.GetSize());
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { array.SetAt(3, &one); }));
}

TEST(TypedCollections, ListOfPointers)
{
    CThing one(1);
    CThing two(2);
    CTypedPtrList<CPtrList, CThing*> list;
    list.AddTail(&two);
    list.AddHead(&one);
    EXPECT_EQ(1, list.GetHead()->m_n);
    EXPECT_EQ(2, list.GetTail()->m_n);
    POSITION pos = list.GetHeadPosition();
    EXPECT_EQ(1, list.GetNext(pos)->m_n);
    list.SetAt(pos, &one);
    EXPECT_EQ(1, list.GetAt(pos)->m_n);
    EXPECT_EQ(&one, list.RemoveTail());
}

TEST(TypedCollections, MapOfPointers)
{
    CThing one(1);
    CTypedPtrMap<CMapStringToOb, CString, CThing*> map;
    map.SetAt(L"one", &one);
    CThing* pThing = nullptr;
    EXPECT_TRUE(map.Lookup(L"one", pThing));
    EXPECT_EQ(1, pThing->m_n);
    EXPECT_EQ(&one, map[L"one"]);
    CString strKey;
    POSITION pos = map.GetStartPosition();
    map.GetNextAssoc(pos, strKey, pThing);
    EXPECT_STREQ(L"one", strKey);
    EXPECT_TRUE(map.RemoveKey(L"one"));
}

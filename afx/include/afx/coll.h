#pragma once

/** @file
 *  The ready-made collections of numbers, pointers, objects and strings. None of them owns what its pointers name. */

#include <afx/templ.h>

class AFX_LIB CByteArray : public CArray<BYTE, BYTE>
{
    DECLARE_DYNAMIC(CByteArray)
};

class AFX_LIB CWordArray : public CArray<WORD, WORD>
{
    DECLARE_DYNAMIC(CWordArray)
};

class AFX_LIB CDWordArray : public CArray<DWORD, DWORD>
{
    DECLARE_DYNAMIC(CDWordArray)
};

class AFX_LIB CUIntArray : public CArray<UINT, UINT>
{
    DECLARE_DYNAMIC(CUIntArray)
};

class AFX_LIB CPtrArray : public CArray<void*, void*>
{
    DECLARE_DYNAMIC(CPtrArray)
};

class AFX_LIB CObArray : public CArray<CObject*, CObject*>
{
    DECLARE_DYNAMIC(CObArray)
};

class AFX_LIB CStringArray : public CArray<CString, const CString&>
{
    DECLARE_DYNAMIC(CStringArray)
};

class AFX_LIB CPtrList : public CList<void*, void*>
{
    DECLARE_DYNAMIC(CPtrList)

  public:
    explicit CPtrList(INT_PTR nBlockSize = 10) : CList(nBlockSize) {}
};

class AFX_LIB CObList : public CList<CObject*, CObject*>
{
    DECLARE_DYNAMIC(CObList)

  public:
    explicit CObList(INT_PTR nBlockSize = 10) : CList(nBlockSize) {}
};

class AFX_LIB CStringList : public CList<CString, const CString&>
{
    DECLARE_DYNAMIC(CStringList)

  public:
    explicit CStringList(INT_PTR nBlockSize = 10) : CList(nBlockSize) {}
};

/** Names the types of a ready-made map for CTypedPtrMap. */
#define AFX_MAP_TYPES(key, arg_key, value, arg_value)                                                                  \
    typedef key BASE_KEY;                                                                                              \
    typedef arg_key BASE_ARG_KEY;                                                                                      \
    typedef value BASE_VALUE;                                                                                          \
    typedef arg_value BASE_ARG_VALUE;

class AFX_LIB CMapWordToPtr : public CMap<WORD, WORD, void*, void*>
{
    DECLARE_DYNAMIC(CMapWordToPtr)

  public:
    AFX_MAP_TYPES(WORD, WORD, void*, void*)
    explicit CMapWordToPtr(INT_PTR nBlockSize = 10) : CMap(nBlockSize) {}
};

class AFX_LIB CMapPtrToWord : public CMap<void*, void*, WORD, WORD>
{
    DECLARE_DYNAMIC(CMapPtrToWord)

  public:
    AFX_MAP_TYPES(void*, void*, WORD, WORD)
    explicit CMapPtrToWord(INT_PTR nBlockSize = 10) : CMap(nBlockSize) {}
};

class AFX_LIB CMapPtrToPtr : public CMap<void*, void*, void*, void*>
{
    DECLARE_DYNAMIC(CMapPtrToPtr)

  public:
    AFX_MAP_TYPES(void*, void*, void*, void*)
    explicit CMapPtrToPtr(INT_PTR nBlockSize = 10) : CMap(nBlockSize) {}
};

class AFX_LIB CMapWordToOb : public CMap<WORD, WORD, CObject*, CObject*>
{
    DECLARE_DYNAMIC(CMapWordToOb)

  public:
    AFX_MAP_TYPES(WORD, WORD, CObject*, CObject*)
    explicit CMapWordToOb(INT_PTR nBlockSize = 10) : CMap(nBlockSize) {}
};

/** Base of the maps with string keys: also gives the stored key of an association. */
template <class VALUE, class ARG_VALUE>
class CMapStringTo : public CMap<CString, LPCTSTR, VALUE, ARG_VALUE>
{
  public:
    explicit CMapStringTo(INT_PTR nBlockSize = 10) : CMap<CString, LPCTSTR, VALUE, ARG_VALUE>(nBlockSize) {}
    /** @param rKey receives the map's own copy of the key, valid while the association stays */
    BOOL LookupKey(LPCTSTR key, LPCTSTR& rKey) const
    {
        const auto* const pPair = this->PLookup(key);
        if (pPair) {
            rKey = pPair->key;
        }
        return pPair ? TRUE : FALSE;
    }
};

class AFX_LIB CMapStringToPtr : public CMapStringTo<void*, void*>
{
    DECLARE_DYNAMIC(CMapStringToPtr)

  public:
    AFX_MAP_TYPES(CString, LPCTSTR, void*, void*)
    explicit CMapStringToPtr(INT_PTR nBlockSize = 10) : CMapStringTo(nBlockSize) {}
};

class AFX_LIB CMapStringToOb : public CMapStringTo<CObject*, CObject*>
{
    DECLARE_DYNAMIC(CMapStringToOb)

  public:
    AFX_MAP_TYPES(CString, LPCTSTR, CObject*, CObject*)
    explicit CMapStringToOb(INT_PTR nBlockSize = 10) : CMapStringTo(nBlockSize) {}
};

class AFX_LIB CMapStringToString : public CMapStringTo<CString, LPCTSTR>
{
    DECLARE_DYNAMIC(CMapStringToString)

  public:
    AFX_MAP_TYPES(CString, LPCTSTR, CString, LPCTSTR)
    explicit CMapStringToString(INT_PTR nBlockSize = 10) : CMapStringTo(nBlockSize) {}
};

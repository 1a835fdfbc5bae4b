#pragma once

/** @file
 *  Collection templates: CArray, CList, CMap and the typed wrappers of the pointer collections. */

#include <afx/except.h>
#include <afx/str.h>

#include <cmath>
#include <limits>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

/** Tells whether two elements are equal; specialise it for an own meaning. */
template <class TYPE, class ARG_TYPE>
BOOL AFXAPI CompareElements(const TYPE* pElement1, const ARG_TYPE* pElement2)
{
    return *pElement1 == *pElement2;
}

/** Copies elements between two arrays; specialise it for an own meaning. */
template <class TYPE>
void AFXAPI CopyElements(TYPE* pDest, const TYPE* pSrc, INT_PTR nCount)
{
    for (INT_PTR i = 0; i < nCount; ++i) {
        pDest[i] = pSrc[i];
    }
}

/** Hash of a string's characters. */
template <typename XCHAR>
UINT AfxHashString(const XCHAR* psz)
{
    UINT nHash = 2166136261U;
    for (; psz && *psz; ++psz) {
        nHash = (nHash ^
                 static_cast<UINT>(
                     static_cast<std::make_unsigned_t<std::conditional_t<sizeof(XCHAR) == 1, char, short>>>(*psz))) *
                16777619U;
    }
    return nHash;
}

/** Hash of a map key; specialise it for key types that are neither numbers, pointers nor strings. */
template <class ARG_KEY>
UINT AFXAPI HashKey(ARG_KEY key)
{
    typedef std::remove_cv_t<std::remove_reference_t<ARG_KEY>> KEY_TYPE;
    if constexpr (std::is_convertible_v<ARG_KEY, LPCWSTR> && !std::is_null_pointer_v<KEY_TYPE>) {
        return AfxHashString<wchar_t>(key);
    } else if constexpr (std::is_convertible_v<ARG_KEY, LPCSTR> && !std::is_null_pointer_v<KEY_TYPE>) {
        return AfxHashString<char>(key);
    } else {
        const ULONGLONG n = (ULONGLONG)(key); // pointers, numbers and enumerations alike
        return static_cast<UINT>((n ^ (n >> 32)) * 2654435761U >> 4);
    }
}

template <>
inline UINT AFXAPI HashKey<const GUID&>(const GUID& key)
{
    UINT nHash = static_cast<UINT>(key.Data1) ^ key.Data2 ^ (static_cast<UINT>(key.Data3) << 16);
    for (const BYTE by : key.Data4) {
        nHash = nHash * 31 + by;
    }
    return nHash;
}

/** Array that grows as needed. An index or count outside the array raises CInvalidArgException. */
template <class TYPE, class ARG_TYPE = const TYPE&>
class CArray : public CObject
{
  public:
    CArray() = default;
    ~CArray() override { Free(); }

    INT_PTR GetSize() const { return m_nSize; }
    INT_PTR GetCount() const { return m_nSize; }
    BOOL IsEmpty() const { return m_nSize == 0; }
    INT_PTR GetUpperBound() const { return m_nSize - 1; }

    /** Sets the number of elements; new ones are value-initialised.
     *  @param nGrowBy elements to add room for at each growth; -1 keeps the present value, 0 chooses by size */
    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1);
    /** Gives back room that no element uses. */
    void FreeExtra()
    {
        if (m_nMaxSize != m_nSize) {
            Reallocate(m_nSize);
        }
    }
    void RemoveAll() { SetSize(0); }

    const TYPE& GetAt(INT_PTR nIndex) const { return m_pData[Checked(nIndex)]; }
    TYPE& GetAt(INT_PTR nIndex) { return m_pData[Checked(nIndex)]; }
    void SetAt(INT_PTR nIndex, ARG_TYPE newElement) { m_pData[Checked(nIndex)] = newElement; }
    const TYPE& ElementAt(INT_PTR nIndex) const { return m_pData[Checked(nIndex)]; }
    TYPE& ElementAt(INT_PTR nIndex) { return m_pData[Checked(nIndex)]; }
    const TYPE& operator[](INT_PTR nIndex) const { return m_pData[Checked(nIndex)]; }
    TYPE& operator[](INT_PTR nIndex) { return m_pData[Checked(nIndex)]; }

    /** First element; null while nothing was ever stored. Valid until the array grows. */
    const TYPE* GetData() const { return m_pData; }
    TYPE* GetData() { return m_pData; }

    /** Sets an element and makes the array longer when needed. */
    void SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement);
    /** @return index of the new element */
    INT_PTR Add(ARG_TYPE newElement)
    {
        const INT_PTR nIndex = m_nSize;
        SetAtGrow(nIndex, newElement);
        return nIndex;
    }
    /** @return index of the first appended element */
    INT_PTR Append(const CArray& src);
    void Copy(const CArray& src);

    /** Inserts copies of an element; an index behind the end makes the array longer first. */
    void InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount = 1);
    void InsertAt(INT_PTR nStartIndex, const CArray* pNewArray);
    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1);

    void AssertValid() const override { ASSERT(m_nSize >= 0 && m_nSize <= m_nMaxSize); }

  protected:
    TYPE* m_pData = nullptr;
    INT_PTR m_nSize = 0;
    INT_PTR m_nMaxSize = 0;
    INT_PTR m_nGrowBy = 0;

  private:
    static constexpr size_t ELEMENT_SIZE = sizeof(TYPE); // NOLINT(bugprone-sizeof-expression): TYPE may be a pointer

    INT_PTR Checked(INT_PTR nIndex) const
    {
        if (nIndex < 0 || nIndex >= m_nSize) {
            AfxThrowInvalidArgException();
        }
        return nIndex;
    }
    static void CheckArgument(bool bValid)
    {
        if (!bValid) {
            AfxThrowInvalidArgException();
        }
    }
    /** An argument that is one of the array's own elements would not survive a growth. */
    bool IsOwnElement(const void* p) const
    {
        const auto n = reinterpret_cast<UINT_PTR>(p);
        return n >= reinterpret_cast<UINT_PTR>(m_pData) && n < reinterpret_cast<UINT_PTR>(m_pData + m_nSize);
    }
    void Grow(INT_PTR nNeeded);
    void Reallocate(INT_PTR nMaxSize);
    void OpenGap(INT_PTR nIndex, INT_PTR nCount);
    void Free();
};

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Reallocate(INT_PTR nMaxSize)
{
    TYPE* pNew = nullptr;
    if (nMaxSize > 0) {
        if (static_cast<size_t>(nMaxSize) > static_cast<size_t>((std::numeric_limits<INT_PTR>::max)()) / ELEMENT_SIZE) {
            AfxThrowMemoryException();
        }
        pNew = static_cast<TYPE*>(::operator new(static_cast<size_t>(nMaxSize) * ELEMENT_SIZE, std::nothrow));
        if (!pNew) {
            AfxThrowMemoryException();
        }
        std::uninitialized_move_n(m_pData, m_nSize, pNew);
    }
    std::destroy_n(m_pData, m_nSize);
    ::operator delete(m_pData);
    m_pData = pNew;
    m_nMaxSize = nMaxSize;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Free()
{
    std::destroy_n(m_pData, m_nSize);
    ::operator delete(m_pData);
    m_pData = nullptr;
    m_nSize = m_nMaxSize = 0;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Grow(INT_PTR nNeeded)
{
    if (nNeeded <= m_nMaxSize) {
        return;
    }
    const INT_PTR nGrowBy = m_nGrowBy > 0 ? m_nGrowBy : (std::max)(m_nSize / 2, static_cast<INT_PTR>(4));
    Reallocate(m_nMaxSize == 0 && m_nGrowBy == 0 ? nNeeded : (std::max)(nNeeded, m_nMaxSize + nGrowBy));
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::SetSize(INT_PTR nNewSize, INT_PTR nGrowBy)
{
    CheckArgument(nNewSize >= 0);
    if (nGrowBy >= 0) {
        m_nGrowBy = nGrowBy;
    }
    if (nNewSize == 0) {
        Free();
        return;
    }
    Grow(nNewSize);
    if (nNewSize > m_nSize) {
        std::uninitialized_value_construct_n(m_pData + m_nSize, nNewSize - m_nSize);
    } else {
        std::destroy_n(m_pData + nNewSize, m_nSize - nNewSize);
    }
    m_nSize = nNewSize;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement)
{
    CheckArgument(nIndex >= 0);
    if constexpr (std::is_reference_v<ARG_TYPE> && std::is_copy_constructible_v<TYPE>) {
        if (nIndex >= m_nMaxSize && IsOwnElement(std::addressof(newElement))) {
            TYPE copy(newElement);
            SetSize(nIndex + 1);
            m_pData[nIndex] = std::move(copy);
            return;
        }
    }
    if (nIndex >= m_nSize) {
        SetSize(nIndex + 1);
    }
    m_pData[nIndex] = newElement;
}

template <class TYPE, class ARG_TYPE>
INT_PTR CArray<TYPE, ARG_TYPE>::Append(const CArray& src)
{
    const INT_PTR nOldSize = m_nSize;
    const INT_PTR nCount = src.m_nSize;
    if (nCount > 0) {
        SetSize(nOldSize + nCount);
        CopyElements<TYPE>(m_pData + nOldSize, src.m_pData, nCount);
    }
    return nOldSize;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Copy(const CArray& src)
{
    if (this == &src) {
        return;
    }
    SetSize(src.m_nSize);
    if (m_nSize > 0) {
        CopyElements<TYPE>(m_pData, src.m_pData, m_nSize);
    }
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::OpenGap(INT_PTR nIndex, INT_PTR nCount)
{
    const INT_PTR nOldSize = m_nSize;
    SetSize((std::max)(nOldSize, nIndex) + nCount);
    if (nIndex >= nOldSize) {
        return;
    }
    std::move_backward(m_pData + nIndex, m_pData + nOldSize, m_pData + m_nSize);
    for (INT_PTR i = 0; i < nCount; ++i) {
        m_pData[nIndex + i] = TYPE();
    }
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount)
{
    CheckArgument(nIndex >= 0 && nCount > 0);
    if constexpr (std::is_reference_v<ARG_TYPE> && std::is_copy_constructible_v<TYPE>) {
        if (IsOwnElement(std::addressof(newElement))) {
            TYPE copy(newElement);
            OpenGap(nIndex, nCount);
            for (INT_PTR i = 0; i < nCount; ++i) {
                m_pData[nIndex + i] = copy;
            }
            return;
        }
    }
    OpenGap(nIndex, nCount);
    for (INT_PTR i = 0; i < nCount; ++i) {
        m_pData[nIndex + i] = newElement;
    }
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::InsertAt(INT_PTR nStartIndex, const CArray* pNewArray)
{
    CheckArgument(pNewArray != nullptr && nStartIndex >= 0);
    if (pNewArray == this) {
        CArray copy;
        copy.Copy(*this);
        InsertAt(nStartIndex, &copy);
        return;
    }
    const INT_PTR nCount = pNewArray->m_nSize;
    if (nCount == 0) {
        return;
    }
    OpenGap(nStartIndex, nCount);
    CopyElements<TYPE>(m_pData + nStartIndex, pNewArray->m_pData, nCount);
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::RemoveAt(INT_PTR nIndex, INT_PTR nCount)
{
    CheckArgument(nIndex >= 0 && nCount >= 0 && nIndex <= m_nSize && nCount <= m_nSize - nIndex);
    if (nCount == 0) {
        return;
    }
    std::move(m_pData + nIndex + nCount, m_pData + m_nSize, m_pData + nIndex);
    std::destroy_n(m_pData + m_nSize - nCount, nCount);
    m_nSize -= nCount;
}

/** Doubly linked list. A null or foreign position raises CInvalidArgException where it can be told. */
template <class TYPE, class ARG_TYPE = const TYPE&>
class CList : public CObject
{
  protected:
    struct CNode : __POSITION
    {
        explicit CNode(ARG_TYPE value) : data(value) {}
        CNode* pNext = nullptr;
        CNode* pPrev = nullptr;
        TYPE data;
    };

  public:
    /** @param nBlockSize accepted for compatibility; nodes are allocated one by one */
    explicit CList(INT_PTR nBlockSize = 10) { UNREFERENCED_PARAMETER(nBlockSize); }
    ~CList() override { RemoveAll(); }

    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    TYPE& GetHead() { return Node(m_pNodeHead)->data; }
    const TYPE& GetHead() const { return Node(m_pNodeHead)->data; }
    TYPE& GetTail() { return Node(m_pNodeTail)->data; }
    const TYPE& GetTail() const { return Node(m_pNodeTail)->data; }
    TYPE RemoveHead() { return Take(Node(m_pNodeHead)); }
    TYPE RemoveTail() { return Take(Node(m_pNodeTail)); }

    POSITION AddHead(ARG_TYPE newElement) { return Link(new CNode(newElement), nullptr, m_pNodeHead); }
    POSITION AddTail(ARG_TYPE newElement) { return Link(new CNode(newElement), m_pNodeTail, nullptr); }
    /** Adds the elements of another list in their order. */
    void AddHead(CList* pNewList);
    void AddTail(CList* pNewList);
    void RemoveAll();

    POSITION GetHeadPosition() const { return m_pNodeHead; }
    POSITION GetTailPosition() const { return m_pNodeTail; }
    /** Gives the element and moves the position on; it is null behind the last one. */
    TYPE& GetNext(POSITION& rPosition) { return Step(rPosition, &CNode::pNext)->data; }
    const TYPE& GetNext(POSITION& rPosition) const { return Step(rPosition, &CNode::pNext)->data; }
    TYPE& GetPrev(POSITION& rPosition) { return Step(rPosition, &CNode::pPrev)->data; }
    const TYPE& GetPrev(POSITION& rPosition) const { return Step(rPosition, &CNode::pPrev)->data; }

    TYPE& GetAt(POSITION position) { return Node(position)->data; }
    const TYPE& GetAt(POSITION position) const { return Node(position)->data; }
    void SetAt(POSITION pos, ARG_TYPE newElement) { Node(pos)->data = newElement; }
    void RemoveAt(POSITION position) { Unlink(Node(position)); }

    /** A null position inserts at the head (before) or the tail (after). */
    POSITION InsertBefore(POSITION position, ARG_TYPE newElement);
    POSITION InsertAfter(POSITION position, ARG_TYPE newElement);

    /** @param startAfter position to begin behind; null begins at the head */
    POSITION Find(ARG_TYPE searchValue, POSITION startAfter = nullptr) const;
    /** @return position of the element with that index from 0; null when there is none */
    POSITION FindIndex(INT_PTR nIndex) const;

    void AssertValid() const override { ASSERT((m_nCount == 0) == (m_pNodeHead == nullptr)); }

  protected:
    CNode* m_pNodeHead = nullptr;
    CNode* m_pNodeTail = nullptr;
    INT_PTR m_nCount = 0;

  private:
    static CNode* Node(POSITION position)
    {
        if (!position) {
            AfxThrowInvalidArgException();
        }
        return static_cast<CNode*>(position);
    }
    static CNode* Step(POSITION& rPosition, CNode* CNode::*pLink)
    {
        CNode* const pNode = Node(rPosition);
        rPosition = pNode->*pLink;
        return pNode;
    }
    /** Makes two nodes neighbours; null stands for the end of the list. */
    void Connect(CNode* pPrev, CNode* pNext)
    {
        if (pPrev) {
            pPrev->pNext = pNext;
        } else {
            m_pNodeHead = pNext;
        }
        if (pNext) {
            pNext->pPrev = pPrev;
        } else {
            m_pNodeTail = pPrev;
        }
    }
    POSITION Link(CNode* pNode, CNode* pPrev, CNode* pNext)
    {
        Connect(pPrev, pNode);
        Connect(pNode, pNext);
        ++m_nCount;
        return pNode;
    }
    void Unlink(CNode* pNode)
    {
        Connect(pNode->pPrev, pNode->pNext);
        --m_nCount;
        delete pNode;
    }
    TYPE Take(CNode* pNode)
    {
        TYPE value(std::move(pNode->data));
        Unlink(pNode);
        return value;
    }
};

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::AddHead(CList* pNewList)
{
    POSITION pos = pNewList->GetTailPosition();
    for (INT_PTR n = pNewList->GetCount(); n > 0; --n) {
        AddHead(pNewList->GetPrev(pos));
    }
}

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::AddTail(CList* pNewList)
{
    POSITION pos = pNewList->GetHeadPosition();
    for (INT_PTR n = pNewList->GetCount(); n > 0; --n) {
        AddTail(pNewList->GetNext(pos));
    }
}

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::RemoveAll()
{
    CNode* pNode = m_pNodeHead;
    m_pNodeHead = m_pNodeTail = nullptr;
    m_nCount = 0;
    while (pNode) {
        // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDelete): loses track of the nodes at calls into other modules
        CNode* const pNext = pNode->pNext;
        delete pNode;
        pNode = pNext;
    }
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::InsertBefore(POSITION position, ARG_TYPE newElement)
{
    if (!position) {
        return AddHead(newElement);
    }
    CNode* const pAt = Node(position);
    return Link(new CNode(newElement), pAt->pPrev, pAt);
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::InsertAfter(POSITION position, ARG_TYPE newElement)
{
    if (!position) {
        return AddTail(newElement);
    }
    CNode* const pAt = Node(position);
    return Link(new CNode(newElement), pAt, pAt->pNext);
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::Find(ARG_TYPE searchValue, POSITION startAfter) const
{
    CNode* pNode = startAfter ? Node(startAfter)->pNext : m_pNodeHead;
    while (pNode && !CompareElements<TYPE, std::remove_reference_t<ARG_TYPE>>(&pNode->data, &searchValue)) {
        pNode = pNode->pNext;
    }
    return pNode;
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::FindIndex(INT_PTR nIndex) const
{
    if (nIndex < 0 || nIndex >= m_nCount) {
        return nullptr;
    }
    CNode* pNode = m_pNodeHead;
    while (nIndex-- > 0) {
        pNode = pNode->pNext;
    }
    return pNode;
}

/** Hash table. Its order is arbitrary; the returned association may be removed while the table is walked. */
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class CMap : public CObject
{
  public:
    /** A key with its value. */
    struct CPair
    {
        const KEY key;
        VALUE value;

      protected:
        explicit CPair(ARG_KEY keyval) : key(keyval), value() {}
    };

  protected:
    struct CAssoc : CPair, __POSITION
    {
        CAssoc(ARG_KEY key, UINT nHash) : CPair(key), nHashValue(nHash) {}
        CAssoc* pNext = nullptr;
        UINT nHashValue;
    };

  public:
    /** @param nBlockSize accepted for compatibility; associations are allocated one by one */
    explicit CMap(INT_PTR nBlockSize = 10) { UNREFERENCED_PARAMETER(nBlockSize); }
    ~CMap() override { RemoveAll(); }

    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    BOOL Lookup(ARG_KEY key, VALUE& rValue) const;
    /** @return the association, owned by the map; null when the key is absent */
    const CPair* PLookup(ARG_KEY key) const { return FindAssoc(key, HashKey<ARG_KEY>(key)); }
    CPair* PLookup(ARG_KEY key) { return FindAssoc(key, HashKey<ARG_KEY>(key)); }
    /** Gives the value of a key; an absent key is added with a value-initialised value. */
    VALUE& operator[](ARG_KEY key);
    void SetAt(ARG_KEY key, ARG_VALUE newValue) { (*this)[key] = newValue; }
    /** @return FALSE when the key was absent */
    BOOL RemoveKey(ARG_KEY key);
    void RemoveAll();

    POSITION GetStartPosition() const { return FirstFrom(0); }
    /** Gives one association and moves the position on; it is null behind the last one. */
    void GetNextAssoc(POSITION& rNextPosition, KEY& rKey, VALUE& rValue) const;
    const CPair* PGetFirstAssoc() const { return FirstFrom(0); }
    CPair* PGetFirstAssoc() { return FirstFrom(0); }
    const CPair* PGetNextAssoc(const CPair* pAssocRet) const { return NextOf(pAssocRet); }
    CPair* PGetNextAssoc(const CPair* pAssocRet) { return NextOf(pAssocRet); }

    UINT GetHashTableSize() const { return m_nHashTableSize; }
    /** Sets the number of hash chains, best a prime 20 % above the expected count. The content is kept. */
    void InitHashTable(UINT hashSize, BOOL bAllocNow = TRUE);

    void AssertValid() const override { ASSERT(m_nHashTableSize > 0); }

  protected:
    std::unique_ptr<CAssoc*[]> m_pHashTable;
    UINT m_nHashTableSize = 17;
    INT_PTR m_nCount = 0;

  private:
    CAssoc* FindAssoc(ARG_KEY key, UINT nHash) const;
    CAssoc* FirstFrom(UINT nBucket) const;
    CAssoc* NextOf(const CPair* pAssoc) const
    {
        if (!pAssoc) {
            AfxThrowInvalidArgException();
        }
        const auto* const p = static_cast<const CAssoc*>(pAssoc);
        return p->pNext ? p->pNext : FirstFrom(p->nHashValue % m_nHashTableSize + 1);
    }
    void AllocateTable() { m_pHashTable = std::make_unique<CAssoc*[]>(m_nHashTableSize); }
};

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
typename CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::CAssoc* CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::FindAssoc(ARG_KEY key,
                                                                                                       UINT nHash) const
{
    if (!m_pHashTable) {
        return nullptr;
    }
    CAssoc* pAssoc = m_pHashTable[nHash % m_nHashTableSize];
    while (pAssoc && !(pAssoc->nHashValue == nHash &&
                       CompareElements<KEY, std::remove_reference_t<ARG_KEY>>(&pAssoc->key, &key))) {
        pAssoc = pAssoc->pNext;
    }
    return pAssoc;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
typename CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::CAssoc*
CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::FirstFrom(UINT nBucket) const
{
    if (m_pHashTable) {
        for (; nBucket < m_nHashTableSize; ++nBucket) {
            if (m_pHashTable[nBucket]) {
                return m_pHashTable[nBucket];
            }
        }
    }
    return nullptr;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
BOOL CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::Lookup(ARG_KEY key, VALUE& rValue) const
{
    const CAssoc* const pAssoc = FindAssoc(key, HashKey<ARG_KEY>(key));
    if (!pAssoc) {
        return FALSE;
    }
    rValue = pAssoc->value;
    return TRUE;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
VALUE& CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::operator[](ARG_KEY key)
{
    const UINT nHash = HashKey<ARG_KEY>(key);
    CAssoc* pAssoc = FindAssoc(key, nHash);
    if (!pAssoc) {
        if (!m_pHashTable) {
            AllocateTable();
        }
        pAssoc = new CAssoc(key, nHash);
        CAssoc*& rpHead = m_pHashTable[nHash % m_nHashTableSize];
        pAssoc->pNext = rpHead;
        rpHead = pAssoc;
        ++m_nCount;
    }
    return pAssoc->value;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
BOOL CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::RemoveKey(ARG_KEY key)
{
    CAssoc* const pAssoc = FindAssoc(key, HashKey<ARG_KEY>(key));
    if (!pAssoc) {
        return FALSE;
    }
    CAssoc** ppLink = &m_pHashTable[pAssoc->nHashValue % m_nHashTableSize];
    while (*ppLink != pAssoc) {
        ppLink = &(*ppLink)->pNext;
    }
    *ppLink = pAssoc->pNext;
    --m_nCount;
    delete pAssoc;
    return TRUE;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::RemoveAll()
{
    const auto pTable = std::move(m_pHashTable);
    m_nCount = 0;
    for (UINT i = 0; pTable && i < m_nHashTableSize; ++i) {
        for (CAssoc* pAssoc = pTable[i]; pAssoc;) {
            CAssoc* const pNext = pAssoc->pNext;
            delete pAssoc;
            pAssoc = pNext;
        }
    }
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::GetNextAssoc(POSITION& rNextPosition, KEY& rKey, VALUE& rValue) const
{
    if (!rNextPosition) {
        AfxThrowInvalidArgException();
    }
    CAssoc* const pAssoc = static_cast<CAssoc*>(rNextPosition);
    rNextPosition = NextOf(pAssoc);
    rKey = pAssoc->key;
    rValue = pAssoc->value;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::InitHashTable(UINT hashSize, BOOL bAllocNow)
{
    if (hashSize == 0) {
        AfxThrowInvalidArgException();
    }
    const auto pOld = std::move(m_pHashTable);
    const UINT nOldSize = m_nHashTableSize;
    m_nHashTableSize = hashSize;
    if (bAllocNow || m_nCount > 0) {
        AllocateTable();
    }
    for (UINT i = 0; pOld && i < nOldSize; ++i) {
        while (CAssoc* const pAssoc = pOld[i]) {
            pOld[i] = pAssoc->pNext;
            CAssoc*& rpHead = m_pHashTable[pAssoc->nHashValue % hashSize];
            pAssoc->pNext = rpHead;
            rpHead = pAssoc;
        }
    }
}

/** CPtrArray or CObArray whose elements are pointers of one type. */
template <class BASE_CLASS, class TYPE>
class CTypedPtrArray : public BASE_CLASS
{
  public:
    TYPE GetAt(INT_PTR nIndex) const { return (TYPE)BASE_CLASS::GetAt(nIndex); }
    TYPE& ElementAt(INT_PTR nIndex) { return (TYPE&)BASE_CLASS::ElementAt(nIndex); }
    void SetAt(INT_PTR nIndex, TYPE ptr) { BASE_CLASS::SetAt(nIndex, ptr); }
    void SetAtGrow(INT_PTR nIndex, TYPE newElement) { BASE_CLASS::SetAtGrow(nIndex, newElement); }
    INT_PTR Add(TYPE newElement) { return BASE_CLASS::Add(newElement); }
    INT_PTR Append(const CTypedPtrArray& src) { return BASE_CLASS::Append(src); }
    void Copy(const CTypedPtrArray& src) { BASE_CLASS::Copy(src); }
    void InsertAt(INT_PTR nIndex, TYPE newElement, INT_PTR nCount = 1)
    {
        BASE_CLASS::InsertAt(nIndex, newElement, nCount);
    }
    void InsertAt(INT_PTR nStartIndex, const CTypedPtrArray* pNewArray)
    {
        BASE_CLASS::InsertAt(nStartIndex, pNewArray);
    }
    TYPE operator[](INT_PTR nIndex) const { return (TYPE)BASE_CLASS::GetAt(nIndex); }
    TYPE& operator[](INT_PTR nIndex) { return (TYPE&)BASE_CLASS::ElementAt(nIndex); }
};

/** CPtrList or CObList whose elements are pointers of one type. */
template <class BASE_CLASS, class TYPE>
class CTypedPtrList : public BASE_CLASS
{
  public:
    explicit CTypedPtrList(INT_PTR nBlockSize = 10) : BASE_CLASS(nBlockSize) {}

    TYPE& GetHead() { return (TYPE&)BASE_CLASS::GetHead(); }
    TYPE GetHead() const { return (TYPE)BASE_CLASS::GetHead(); }
    TYPE& GetTail() { return (TYPE&)BASE_CLASS::GetTail(); }
    TYPE GetTail() const { return (TYPE)BASE_CLASS::GetTail(); }
    TYPE RemoveHead() { return (TYPE)BASE_CLASS::RemoveHead(); }
    TYPE RemoveTail() { return (TYPE)BASE_CLASS::RemoveTail(); }
    POSITION AddHead(TYPE newElement) { return BASE_CLASS::AddHead(newElement); }
    POSITION AddTail(TYPE newElement) { return BASE_CLASS::AddTail(newElement); }
    void AddHead(CTypedPtrList* pNewList) { BASE_CLASS::AddHead(pNewList); }
    void AddTail(CTypedPtrList* pNewList) { BASE_CLASS::AddTail(pNewList); }
    TYPE& GetNext(POSITION& rPosition) { return (TYPE&)BASE_CLASS::GetNext(rPosition); }
    TYPE GetNext(POSITION& rPosition) const { return (TYPE)BASE_CLASS::GetNext(rPosition); }
    TYPE& GetPrev(POSITION& rPosition) { return (TYPE&)BASE_CLASS::GetPrev(rPosition); }
    TYPE GetPrev(POSITION& rPosition) const { return (TYPE)BASE_CLASS::GetPrev(rPosition); }
    TYPE& GetAt(POSITION position) { return (TYPE&)BASE_CLASS::GetAt(position); }
    TYPE GetAt(POSITION position) const { return (TYPE)BASE_CLASS::GetAt(position); }
    void SetAt(POSITION pos, TYPE newElement) { BASE_CLASS::SetAt(pos, newElement); }
};

/** CMapPtrToPtr, CMapStringToPtr, ... whose keys and values have types of their own. */
template <class BASE_CLASS, class KEY, class VALUE>
class CTypedPtrMap : public BASE_CLASS
{
  public:
    explicit CTypedPtrMap(INT_PTR nBlockSize = 10) : BASE_CLASS(nBlockSize) {}

    BOOL Lookup(typename BASE_CLASS::BASE_ARG_KEY key, VALUE& rValue) const
    {
        typename BASE_CLASS::BASE_VALUE value;
        const BOOL bFound = BASE_CLASS::Lookup(key, value);
        if (bFound) {
            rValue = (VALUE)value;
        }
        return bFound;
    }
    VALUE& operator[](typename BASE_CLASS::BASE_ARG_KEY key) { return (VALUE&)BASE_CLASS::operator[](key); }
    void SetAt(KEY key, VALUE newValue) { BASE_CLASS::SetAt((typename BASE_CLASS::BASE_ARG_KEY)key, newValue); }
    BOOL RemoveKey(KEY key) { return BASE_CLASS::RemoveKey((typename BASE_CLASS::BASE_ARG_KEY)key); }
    void GetNextAssoc(POSITION& rPosition, KEY& rKey, VALUE& rValue) const
    {
        typename BASE_CLASS::BASE_KEY key;
        typename BASE_CLASS::BASE_VALUE value;
        BASE_CLASS::GetNextAssoc(rPosition, key, value);
        rKey = (KEY)key;
        rValue = (VALUE)value;
    }
};

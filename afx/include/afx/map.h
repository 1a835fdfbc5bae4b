#pragma once

/** @file
 *  CMap, the hash table. */

#include <afx/elements.h>
#include <afx/except.h>

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
    CAssoc** m_pHashTable = nullptr;
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
    void AllocateTable() { m_pHashTable = new CAssoc*[m_nHashTableSize](); }
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
    CAssoc** const pTable = m_pHashTable;
    m_pHashTable = nullptr;
    m_nCount = 0;
    for (UINT i = 0; pTable && i < m_nHashTableSize; ++i) {
        for (CAssoc* pAssoc = pTable[i]; pAssoc;) {
            CAssoc* const pNext = pAssoc->pNext;
            delete pAssoc;
            pAssoc = pNext;
        }
    }
    delete[] pTable;
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
    CAssoc** const pNew = bAllocNow || m_nCount > 0 ? new CAssoc*[hashSize]() : nullptr;
    CAssoc** const pOld = m_pHashTable;
    const UINT nOldSize = m_nHashTableSize;
    m_pHashTable = pNew;
    m_nHashTableSize = hashSize;
    for (UINT i = 0; pOld && i < nOldSize; ++i) {
        while (CAssoc* const pAssoc = pOld[i]) {
            pOld[i] = pAssoc->pNext;
            CAssoc*& rpHead = m_pHashTable[pAssoc->nHashValue % hashSize];
            pAssoc->pNext = rpHead;
            rpHead = pAssoc;
        }
    }
    delete[] pOld;
}

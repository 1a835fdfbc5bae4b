#pragma once

/** @file
 *  CArray, the array that grows. */

#include <afx/elements.h>
#include <afx/except.h>

#include <new>
#include <type_traits>

/** Destroys elements; their memory stays. */
template <class TYPE>
void AfxDestroyElements(TYPE* pElements, INT_PTR nCount)
{
    for (INT_PTR i = 0; i < nCount; ++i) {
        pElements[i].~TYPE();
    }
}

/** Makes elements one behind the other; when one of them throws, those before it are destroyed. */
template <class TYPE>
class AfxElementMaker
{
  public:
    explicit AfxElementMaker(TYPE* pFirst) : m_pFirst(pFirst) {}
    ~AfxElementMaker() { AfxDestroyElements(m_pFirst, m_nMade); }
    AfxElementMaker(const AfxElementMaker&) = delete;
    AfxElementMaker& operator=(const AfxElementMaker&) = delete;

    template <class... Args>
    void Make(Args&&... args)
    {
        ::new (static_cast<void*>(m_pFirst + m_nMade)) TYPE(static_cast<Args&&>(args)...);
        ++m_nMade;
    }
    /** The elements stay. */
    void Keep() { m_nMade = 0; }

  private:
    TYPE* m_pFirst;
    INT_PTR m_nMade = 0;
};

/** Moves elements to memory where there are none yet. */
template <class TYPE>
void AfxMoveToEmpty(TYPE* pDest, TYPE* pSrc, INT_PTR nCount)
{
    if constexpr (std::is_trivially_copyable_v<TYPE>) {
        if (nCount > 0) {
            memcpy(static_cast<void*>(pDest), pSrc, static_cast<size_t>(nCount) * sizeof(*pDest));
        }
    } else {
        AfxElementMaker<TYPE> maker(pDest);
        for (INT_PTR i = 0; i < nCount; ++i) {
            maker.Make(static_cast<TYPE&&>(pSrc[i]));
        }
        maker.Keep();
    }
}

/** Moves elements to where others are; the ranges may overlap. */
template <class TYPE>
void AfxMoveElements(TYPE* pDest, TYPE* pSrc, INT_PTR nCount)
{
    if constexpr (std::is_trivially_copyable_v<TYPE>) {
        if (nCount > 0) {
            memmove(static_cast<void*>(pDest), pSrc, static_cast<size_t>(nCount) * sizeof(*pDest));
        }
    } else if (pDest < pSrc) {
        for (INT_PTR i = 0; i < nCount; ++i) {
            pDest[i] = static_cast<TYPE&&>(pSrc[i]);
        }
    } else {
        for (INT_PTR i = nCount; i > 0; --i) {
            pDest[i - 1] = static_cast<TYPE&&>(pSrc[i - 1]);
        }
    }
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
            m_nSize > 0 ? Reallocate(m_nSize) : Free();
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
    static constexpr size_t kElementSize = sizeof(TYPE); // NOLINT(bugprone-sizeof-expression): TYPE may be a pointer

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
    bool IsOwnElement(const volatile void* p) const
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
    // At or below zero is a size that has run over.
    if (nMaxSize <= 0 || static_cast<size_t>(nMaxSize) > static_cast<size_t>(PTRDIFF_MAX) / kElementSize) {
        AfxThrowMemoryException();
    }
    auto* pNew = static_cast<TYPE*>(::operator new(static_cast<size_t>(nMaxSize) * kElementSize, std::nothrow));
    if (!pNew) {
        AfxThrowMemoryException();
    }
    AfxMoveToEmpty(pNew, m_pData, m_nSize);
    AfxDestroyElements(m_pData, m_nSize);
    ::operator delete(m_pData);
    m_pData = pNew;
    m_nMaxSize = nMaxSize;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Free()
{
    AfxDestroyElements(m_pData, m_nSize);
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
    constexpr INT_PTR kLeastGrowth = 4;
    const INT_PTR nHalf = m_nSize / 2 > kLeastGrowth ? m_nSize / 2 : kLeastGrowth;
    const INT_PTR nGrown = m_nMaxSize + (m_nGrowBy > 0 ? m_nGrowBy : nHalf);
    const bool isFirst = m_nMaxSize == 0 && m_nGrowBy == 0;
    Reallocate(!isFirst && nGrown > nNeeded ? nGrown : nNeeded);
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
        AfxElementMaker<TYPE> maker(m_pData + m_nSize);
        for (INT_PTR i = m_nSize; i < nNewSize; ++i) {
            maker.Make();
        }
        maker.Keep();
    } else {
        AfxDestroyElements(m_pData + nNewSize, m_nSize - nNewSize);
    }
    m_nSize = nNewSize;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement)
{
    CheckArgument(nIndex >= 0);
    if constexpr (std::is_reference_v<ARG_TYPE> && std::is_copy_constructible_v<TYPE>) {
        if (nIndex >= m_nMaxSize && IsOwnElement(&reinterpret_cast<const volatile BYTE&>(newElement))) {
            TYPE copy(newElement);
            SetSize(nIndex + 1);
            m_pData[nIndex] = static_cast<TYPE&&>(copy);
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
    SetSize((nIndex > nOldSize ? nIndex : nOldSize) + nCount);
    if (nIndex >= nOldSize) {
        return;
    }
    AfxMoveElements(m_pData + nIndex + nCount, m_pData + nIndex, nOldSize - nIndex);
    for (INT_PTR i = 0; i < nCount; ++i) {
        m_pData[nIndex + i] = TYPE();
    }
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount)
{
    CheckArgument(nIndex >= 0 && nCount > 0);
    if constexpr (std::is_reference_v<ARG_TYPE> && std::is_copy_constructible_v<TYPE>) {
        if (IsOwnElement(&reinterpret_cast<const volatile BYTE&>(newElement))) {
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
    CheckArgument(pNewArray && nStartIndex >= 0);
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
    AfxMoveElements(m_pData + nIndex, m_pData + nIndex + nCount, m_nSize - nIndex - nCount);
    AfxDestroyElements(m_pData + m_nSize - nCount, nCount);
    m_nSize -= nCount;
}

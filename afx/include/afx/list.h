#pragma once

/** @file
 *  CList, the doubly linked list. */

#include <afx/elements.h>
#include <afx/except.h>

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

    void AssertValid() const override { ASSERT((m_nCount == 0) == !m_pNodeHead); }

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
        TYPE value(static_cast<TYPE&&>(pNode->data));
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

#pragma once

#include "afx.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

/// Containers over any type. TYPE is what is kept, ARG_TYPE how it is handed in (TYPE or const TYPE&).
/// Positions count from 0. A position out of range throws CInvalidArgException, in every build; memory
/// that cannot be had throws CMemoryException. Containers are not copied, see Copy and AddTail.

/// A place in a list or map; null means none.
struct __POSITION;
using POSITION = __POSITION*;
inline const POSITION BEFORE_START_POSITION = reinterpret_cast<POSITION>(static_cast<INT_PTR>(-1));

/// Equality as CList::Find and CMap see it; programs specialise it for types without operator==.
template <class TYPE, class ARG_TYPE>
BOOL CompareElements(const TYPE* pElement1, const ARG_TYPE* pElement2)
{
    return *pElement1 == *pElement2;
}

/// A hash of a map's key: of the characters for texts, of the value for numbers and pointers. Programs
/// specialise it for keys of other types.
template <class ARG_KEY>
UINT HashKey(ARG_KEY key)
{
    using K = std::remove_cvref_t<ARG_KEY>;
    if constexpr (std::is_convertible_v<const K&, LPCWSTR> || std::is_convertible_v<const K&, LPCSTR>)
    {
        using P = std::conditional_t<std::is_convertible_v<const K&, LPCWSTR>, LPCWSTR, LPCSTR>;
        UINT nHash = 2166136261u;
        for (P p = key; *p != 0; ++p)
            nHash = (nHash ^ static_cast<UINT>(*p)) * 16777619u;
        return nHash;
    }
    else
    {
        std::uint64_t n = 0;
        if constexpr (std::is_pointer_v<K>)
            n = reinterpret_cast<std::uintptr_t>(key);
        else
            n = static_cast<std::uint64_t>(key);
        n *= 0x9E3779B97F4A7C15u;
        return static_cast<UINT>(n >> 32);
    }
}

/// Elements side by side in memory, with a size that grows.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CArray : public CObject
{
public:
    CArray() = default;
    ~CArray() override { RemoveAll(); }

    INT_PTR GetSize() const { return m_nSize; }
    INT_PTR GetCount() const { return m_nSize; }
    BOOL IsEmpty() const { return m_nSize == 0; }
    /// The last position, -1 in an empty array.
    INT_PTR GetUpperBound() const { return m_nSize - 1; }
    /// New elements are made by TYPE() (0 for numbers). \p nGrowBy is how many elements room is made for
    /// at a time; 0 grows by half of the size, -1 leaves it as it was.
    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1);
    void FreeExtra();
    void RemoveAll() { SetSize(0); }

    const TYPE& GetAt(INT_PTR nIndex) const { return m_pData[Checked(nIndex)]; }
    TYPE& GetAt(INT_PTR nIndex) { return m_pData[Checked(nIndex)]; }
    void SetAt(INT_PTR nIndex, ARG_TYPE newElement) { m_pData[Checked(nIndex)] = newElement; }
    const TYPE& ElementAt(INT_PTR nIndex) const { return GetAt(nIndex); }
    TYPE& ElementAt(INT_PTR nIndex) { return GetAt(nIndex); }
    const TYPE& operator[](INT_PTR nIndex) const { return GetAt(nIndex); }
    TYPE& operator[](INT_PTR nIndex) { return GetAt(nIndex); }
    /// Null while the array never held anything.
    const TYPE* GetData() const { return m_pData; }
    TYPE* GetData() { return m_pData; }

    /// Sets an element, making the array larger when it must be.
    void SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement);
    /// The position of the new element.
    INT_PTR Add(ARG_TYPE newElement)
    {
        SetAtGrow(m_nSize, newElement);
        return m_nSize - 1;
    }
    /// The position of the first appended element.
    INT_PTR Append(const CArray& src);
    void Copy(const CArray& src);
    /// A position behind the end makes the array larger first.
    void InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount = 1);
    void InsertAt(INT_PTR nStartIndex, const CArray* pNewArray);
    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1);

private:
    INT_PTR Checked(INT_PTR nIndex) const
    {
        if (nIndex < 0 || nIndex >= m_nSize)
            AfxThrowInvalidArgException();
        return nIndex;
    }
    void Reserve(INT_PTR nRoom);
    void Reallocate(INT_PTR nRoom);

    TYPE* m_pData = nullptr;
    INT_PTR m_nSize = 0;
    INT_PTR m_nMaxSize = 0;
    INT_PTR m_nGrowBy = 0;
};

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Reallocate(INT_PTR nRoom)
{
    if (nRoom > PTRDIFF_MAX / static_cast<INT_PTR>(sizeof(TYPE)))
        AfxThrowMemoryException();
    void* p = nRoom == 0 ? nullptr
                         : ::operator new(static_cast<std::size_t>(nRoom) * sizeof(TYPE),
                                          std::align_val_t(alignof(TYPE)), std::nothrow);
    if (p == nullptr && nRoom != 0)
        AfxThrowMemoryException();
    auto* pNew = static_cast<TYPE*>(p);
    std::uninitialized_move(m_pData, m_pData + m_nSize, pNew);
    std::destroy(m_pData, m_pData + m_nSize);
    ::operator delete(static_cast<void*>(m_pData), std::align_val_t(alignof(TYPE)));
    m_pData = pNew;
    m_nMaxSize = nRoom;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Reserve(INT_PTR nRoom)
{
    if (nRoom <= m_nMaxSize)
        return;
    const INT_PTR nGrowBy = m_nGrowBy > 0 ? m_nGrowBy : std::max<INT_PTR>(4, m_nMaxSize / 2);
    Reallocate(std::max(nRoom, m_nMaxSize == 0 && m_nGrowBy <= 0 ? nRoom : m_nMaxSize + nGrowBy));
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::SetSize(INT_PTR nNewSize, INT_PTR nGrowBy)
{
    if (nNewSize < 0)
        AfxThrowInvalidArgException();
    if (nGrowBy >= 0)
        m_nGrowBy = nGrowBy;
    if (nNewSize < m_nSize)
    {
        std::destroy(m_pData + nNewSize, m_pData + m_nSize);
        m_nSize = nNewSize;
    }
    if (nNewSize == 0)
    {
        Reallocate(0);
        return;
    }
    Reserve(nNewSize);
    std::uninitialized_value_construct(m_pData + m_nSize, m_pData + nNewSize);
    m_nSize = nNewSize;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::FreeExtra()
{
    if (m_nMaxSize != m_nSize)
        Reallocate(m_nSize);
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement)
{
    if (nIndex >= m_nSize && nIndex >= m_nMaxSize)
    {
        TYPE element(newElement); // it may stand in the memory that is given back
        SetSize(nIndex + 1);
        m_pData[nIndex] = std::move(element);
        return;
    }
    if (nIndex >= m_nSize)
        SetSize(nIndex + 1);
    m_pData[Checked(nIndex)] = newElement;
}

template <class TYPE, class ARG_TYPE>
INT_PTR CArray<TYPE, ARG_TYPE>::Append(const CArray& src)
{
    const INT_PTR nOld = m_nSize;
    const INT_PTR nAdded = src.m_nSize;
    SetSize(nOld + nAdded);
    std::copy_n(src.m_pData, nAdded, m_pData + nOld);
    return nOld;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Copy(const CArray& src)
{
    if (this == &src)
        return;
    SetSize(src.m_nSize);
    std::copy_n(src.m_pData, src.m_nSize, m_pData);
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount)
{
    if (nIndex < 0 || nCount < 0)
        AfxThrowInvalidArgException();
    const TYPE element(newElement); // it may stand in the memory that moves
    const INT_PTR nOld = m_nSize;
    SetSize(std::max(nIndex, nOld) + nCount);
    if (nIndex < nOld)
        std::move_backward(m_pData + nIndex, m_pData + nOld, m_pData + m_nSize);
    std::fill_n(m_pData + nIndex, nCount, element);
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::InsertAt(INT_PTR nStartIndex, const CArray* pNewArray)
{
    if (nStartIndex < 0 || pNewArray == nullptr || pNewArray == this)
        AfxThrowInvalidArgException();
    if (pNewArray->IsEmpty())
        return;
    InsertAt(nStartIndex, pNewArray->GetAt(0), pNewArray->m_nSize);
    std::copy_n(pNewArray->m_pData, pNewArray->m_nSize, m_pData + nStartIndex);
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::RemoveAt(INT_PTR nIndex, INT_PTR nCount)
{
    if (nIndex < 0 || nCount < 0 || nCount > m_nSize - nIndex)
        AfxThrowInvalidArgException();
    if (nCount == 0)
        return;
    std::move(m_pData + nIndex + nCount, m_pData + m_nSize, m_pData + nIndex);
    std::destroy(m_pData + m_nSize - nCount, m_pData + m_nSize);
    m_nSize -= nCount; // the room stays, for what is added next
}

/// Elements in a row that can be inserted and removed anywhere without moving others. A POSITION stays
/// good until its own element is removed.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CList : public CObject
{
public:
    /// \p nBlockSize is a hint of other builds of the framework and has no effect.
    explicit CList(INT_PTR nBlockSize = 10) { static_cast<void>(nBlockSize); }
    ~CList() override { RemoveAll(); }

    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    /// The ends of a list that is not empty; an empty one throws CInvalidArgException.
    TYPE& GetHead() { return Node(GetHeadPosition())->data; }
    const TYPE& GetHead() const { return Node(GetHeadPosition())->data; }
    TYPE& GetTail() { return Node(GetTailPosition())->data; }
    const TYPE& GetTail() const { return Node(GetTailPosition())->data; }
    TYPE RemoveHead() { return Take(GetHeadPosition()); }
    TYPE RemoveTail() { return Take(GetTailPosition()); }

    POSITION AddHead(ARG_TYPE newElement) { return Link(newElement, nullptr, m_pHead); }
    POSITION AddTail(ARG_TYPE newElement) { return Link(newElement, m_pTail, nullptr); }
    /// Adds the elements of another list, in their order.
    void AddHead(CList* pNewList);
    void AddTail(CList* pNewList);
    void RemoveAll();

    POSITION GetHeadPosition() const { return ToPosition(m_pHead); }
    POSITION GetTailPosition() const { return ToPosition(m_pTail); }
    /// The element at \p rPosition, which moves on to the next one, or becomes null behind the last.
    TYPE& GetNext(POSITION& rPosition);
    const TYPE& GetNext(POSITION& rPosition) const { return const_cast<CList*>(this)->GetNext(rPosition); }
    TYPE& GetPrev(POSITION& rPosition);
    const TYPE& GetPrev(POSITION& rPosition) const { return const_cast<CList*>(this)->GetPrev(rPosition); }
    TYPE& GetAt(POSITION position) { return Node(position)->data; }
    const TYPE& GetAt(POSITION position) const { return Node(position)->data; }
    void SetAt(POSITION position, ARG_TYPE newElement) { Node(position)->data = newElement; }
    void RemoveAt(POSITION position) { Take(position); }
    /// Before or after \p position; null means the head or the tail.
    POSITION InsertBefore(POSITION position, ARG_TYPE newElement);
    POSITION InsertAfter(POSITION position, ARG_TYPE newElement);

    /// The first equal element behind \p startAfter, or from the head on; null when there is none.
    POSITION Find(ARG_TYPE searchValue, POSITION startAfter = nullptr) const;
    /// Null when the list is shorter.
    POSITION FindIndex(INT_PTR nIndex) const;

private:
    struct CNode
    {
        CNode* pPrev;
        CNode* pNext;
        TYPE data;
    };
    static POSITION ToPosition(CNode* pNode) { return reinterpret_cast<POSITION>(pNode); }
    static CNode* Node(POSITION position)
    {
        if (position == nullptr)
            AfxThrowInvalidArgException();
        return reinterpret_cast<CNode*>(position);
    }
    POSITION Link(ARG_TYPE newElement, CNode* pPrev, CNode* pNext);
    TYPE Take(POSITION position);

    CNode* m_pHead = nullptr;
    CNode* m_pTail = nullptr;
    INT_PTR m_nCount = 0;
};

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::Link(ARG_TYPE newElement, CNode* pPrev, CNode* pNext)
{
    auto* pNode = new (std::nothrow) CNode{pPrev, pNext, newElement};
    if (pNode == nullptr)
        AfxThrowMemoryException();
    (pPrev != nullptr ? pPrev->pNext : m_pHead) = pNode;
    (pNext != nullptr ? pNext->pPrev : m_pTail) = pNode;
    ++m_nCount;
    return ToPosition(pNode);
}

template <class TYPE, class ARG_TYPE>
TYPE CList<TYPE, ARG_TYPE>::Take(POSITION position)
{
    const std::unique_ptr<CNode> pNode(Node(position));
    (pNode->pPrev != nullptr ? pNode->pPrev->pNext : m_pHead) = pNode->pNext;
    (pNode->pNext != nullptr ? pNode->pNext->pPrev : m_pTail) = pNode->pPrev;
    --m_nCount;
    return std::move(pNode->data);
}

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::AddHead(CList* pNewList)
{
    const CNode* pFirst = m_pHead;
    const CNode* pStop = nullptr;
    // Its own elements are added once: those that stand in front by now are not visited.
    for (const CNode* p = pNewList->m_pTail; p != pStop; p = p == pFirst ? nullptr : p->pPrev)
        AddHead(p->data);
}

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::AddTail(CList* pNewList)
{
    const CNode* pLast = pNewList->m_pTail;
    for (const CNode* p = pNewList->m_pHead; p != nullptr; p = p == pLast ? nullptr : p->pNext)
        AddTail(p->data);
}

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::RemoveAll()
{
    while (m_pHead != nullptr)
        Take(GetHeadPosition());
}

template <class TYPE, class ARG_TYPE>
TYPE& CList<TYPE, ARG_TYPE>::GetNext(POSITION& rPosition)
{
    CNode* pNode = Node(rPosition);
    rPosition = ToPosition(pNode->pNext);
    return pNode->data;
}

template <class TYPE, class ARG_TYPE>
TYPE& CList<TYPE, ARG_TYPE>::GetPrev(POSITION& rPosition)
{
    CNode* pNode = Node(rPosition);
    rPosition = ToPosition(pNode->pPrev);
    return pNode->data;
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::InsertBefore(POSITION position, ARG_TYPE newElement)
{
    if (position == nullptr)
        return AddHead(newElement);
    CNode* pNext = Node(position);
    return Link(newElement, pNext->pPrev, pNext);
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::InsertAfter(POSITION position, ARG_TYPE newElement)
{
    if (position == nullptr)
        return AddTail(newElement);
    CNode* pPrev = Node(position);
    return Link(newElement, pPrev, pPrev->pNext);
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::Find(ARG_TYPE searchValue, POSITION startAfter) const
{
    using A = std::remove_cvref_t<ARG_TYPE>;
    for (CNode* p = startAfter != nullptr ? Node(startAfter)->pNext : m_pHead; p != nullptr; p = p->pNext)
        if (CompareElements<TYPE, A>(&p->data, &searchValue))
            return ToPosition(p);
    return nullptr;
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::FindIndex(INT_PTR nIndex) const
{
    if (nIndex < 0 || nIndex >= m_nCount)
        return nullptr;
    CNode* p = m_pHead;
    while (nIndex-- > 0)
        p = p->pNext;
    return ToPosition(p);
}

/// Values by key, in no order. Keys are found by HashKey and CompareElements.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class CMap : public CObject
{
public:
    struct CPair
    {
        const KEY key;
        VALUE value;

    protected:
        explicit CPair(ARG_KEY k) : key(k), value() {}
    };

    /// \p nBlockSize is a hint of other builds of the framework and has no effect.
    explicit CMap(INT_PTR nBlockSize = 10) { static_cast<void>(nBlockSize); }
    ~CMap() override { RemoveAll(); }

    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    /// FALSE, and \p rValue untouched, when the key is not there.
    BOOL Lookup(ARG_KEY key, VALUE& rValue) const;
    const CPair* PLookup(ARG_KEY key) const { return const_cast<CMap*>(this)->PLookup(key); }
    CPair* PLookup(ARG_KEY key);
    /// The value of \p key, made by VALUE() when it was not there.
    VALUE& operator[](ARG_KEY key);
    void SetAt(ARG_KEY key, ARG_VALUE newValue) { (*this)[key] = newValue; }
    BOOL RemoveKey(ARG_KEY key);
    void RemoveAll();

    /// Every pair once: `for (POSITION pos = map.GetStartPosition(); pos;) map.GetNextAssoc(pos, k, v);`
    /// The pair just given may be removed on the way; nothing may be added.
    POSITION GetStartPosition() const { return m_nCount == 0 ? nullptr : BEFORE_START_POSITION; }
    void GetNextAssoc(POSITION& rNextPosition, KEY& rKey, VALUE& rValue) const;
    const CPair* PGetFirstAssoc() const { return First(); }
    CPair* PGetFirstAssoc() { return First(); }
    const CPair* PGetNextAssoc(const CPair* pAssoc) const { return Next(static_cast<const CAssoc*>(pAssoc)); }
    CPair* PGetNextAssoc(const CPair* pAssoc) { return Next(static_cast<const CAssoc*>(pAssoc)); }

    UINT GetHashTableSize() const { return m_nTableSize; }
    /// Sets the number of slots of an empty map; it grows by itself as the map fills.
    void InitHashTable(UINT nHashSize, BOOL bAllocNow = TRUE);

private:
    struct CAssoc : CPair
    {
        CAssoc(ARG_KEY k, UINT nHashValue) : CPair(k), nHash(nHashValue) {}
        CAssoc* pNext = nullptr;
        UINT nHash;
    };

    CAssoc*& Slot(UINT nHash) const { return m_pTable[nHash % m_nTableSize]; }
    CAssoc** Find(ARG_KEY key, UINT nHash) const;
    CAssoc* First() const { return m_nCount == 0 ? nullptr : FirstFrom(0); }
    CAssoc* FirstFrom(UINT nSlot) const;
    CAssoc* Next(const CAssoc* p) const
    {
        return p->pNext != nullptr ? p->pNext : FirstFrom(p->nHash % m_nTableSize + 1);
    }
    void Rehash(UINT nSize);

    std::unique_ptr<CAssoc*[]> m_pTable;
    UINT m_nTableSize = 17;
    INT_PTR m_nCount = 0;
};

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
auto CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::Find(ARG_KEY key, UINT nHash) const -> CAssoc**
{
    using A = std::remove_cvref_t<ARG_KEY>;
    CAssoc** pp = &Slot(nHash);
    while (*pp != nullptr && ((*pp)->nHash != nHash || !CompareElements<KEY, A>(&(*pp)->key, &key)))
        pp = &(*pp)->pNext;
    return pp;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
auto CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::FirstFrom(UINT nSlot) const -> CAssoc*
{
    for (; nSlot < m_nTableSize; ++nSlot)
        if (m_pTable[nSlot] != nullptr)
            return m_pTable[nSlot];
    return nullptr;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
BOOL CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::Lookup(ARG_KEY key, VALUE& rValue) const
{
    const CPair* p = PLookup(key);
    if (p == nullptr)
        return FALSE;
    rValue = p->value;
    return TRUE;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
auto CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::PLookup(ARG_KEY key) -> CPair*
{
    return m_nCount == 0 ? nullptr : *Find(key, HashKey<ARG_KEY>(key));
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
VALUE& CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::operator[](ARG_KEY key)
{
    const UINT nHash = HashKey<ARG_KEY>(key);
    if (m_pTable == nullptr)
        Rehash(m_nTableSize);
    CAssoc** pp = Find(key, nHash);
    if (*pp != nullptr)
        return (*pp)->value;
    auto* pNew = new (std::nothrow) CAssoc(key, nHash);
    if (pNew == nullptr)
        AfxThrowMemoryException();
    *pp = pNew;
    if (++m_nCount > m_nTableSize && m_nTableSize < 0x40000000)
        Rehash(m_nTableSize * 2 + 1);
    return pNew->value;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
BOOL CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::RemoveKey(ARG_KEY key)
{
    CAssoc** pp = m_nCount == 0 ? nullptr : Find(key, HashKey<ARG_KEY>(key));
    if (pp == nullptr || *pp == nullptr)
        return FALSE;
    const std::unique_ptr<CAssoc> p(*pp);
    *pp = p->pNext;
    --m_nCount;
    return TRUE;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::RemoveAll()
{
    for (CAssoc* p = First(); p != nullptr;)
    {
        const std::unique_ptr<CAssoc> pOld(p);
        p = Next(p);
    }
    m_pTable.reset();
    m_nCount = 0;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::GetNextAssoc(POSITION& rNextPosition, KEY& rKey,
                                                        VALUE& rValue) const
{
    const CAssoc* p =
        rNextPosition == BEFORE_START_POSITION ? First() : reinterpret_cast<const CAssoc*>(rNextPosition);
    if (p == nullptr)
        AfxThrowInvalidArgException();
    rNextPosition = reinterpret_cast<POSITION>(Next(p));
    rKey = p->key;
    rValue = p->value;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::InitHashTable(UINT nHashSize, BOOL bAllocNow)
{
    if (m_nCount != 0 || nHashSize == 0)
        AfxThrowInvalidArgException();
    m_pTable.reset();
    m_nTableSize = nHashSize;
    if (bAllocNow)
        Rehash(nHashSize);
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::Rehash(UINT nSize)
{
    auto pTable = std::make_unique<CAssoc*[]>(nSize);
    for (CAssoc* p = First(); p != nullptr;)
    {
        CAssoc* pThis = p;
        p = Next(p);
        // A moved pair must not be met again through the old table.
        m_pTable[pThis->nHash % m_nTableSize] = pThis->pNext;
        pThis->pNext = std::exchange(pTable[pThis->nHash % nSize], pThis);
    }
    m_pTable = std::move(pTable);
    m_nTableSize = nSize;
}

/// An array of pointers kept as BASE_CLASS's (CPtrArray or CObArray) and handed out as TYPE.
template <class BASE_CLASS, class TYPE>
class CTypedPtrArray : public BASE_CLASS
{
public:
    TYPE GetAt(INT_PTR nIndex) const { return static_cast<TYPE>(BASE_CLASS::GetAt(nIndex)); }
    TYPE operator[](INT_PTR nIndex) const { return GetAt(nIndex); }
    void SetAt(INT_PTR nIndex, TYPE p) { BASE_CLASS::SetAt(nIndex, p); }
    void SetAtGrow(INT_PTR nIndex, TYPE p) { BASE_CLASS::SetAtGrow(nIndex, p); }
    INT_PTR Add(TYPE p) { return BASE_CLASS::Add(p); }
    void InsertAt(INT_PTR nIndex, TYPE p, INT_PTR nCount = 1) { BASE_CLASS::InsertAt(nIndex, p, nCount); }
};

/// A list of pointers kept as BASE_CLASS's (CPtrList or CObList) and handed out as TYPE.
template <class BASE_CLASS, class TYPE>
class CTypedPtrList : public BASE_CLASS
{
public:
    TYPE GetHead() const { return static_cast<TYPE>(BASE_CLASS::GetHead()); }
    TYPE GetTail() const { return static_cast<TYPE>(BASE_CLASS::GetTail()); }
    TYPE RemoveHead() { return static_cast<TYPE>(BASE_CLASS::RemoveHead()); }
    TYPE RemoveTail() { return static_cast<TYPE>(BASE_CLASS::RemoveTail()); }
    TYPE GetNext(POSITION& rPosition) const { return static_cast<TYPE>(BASE_CLASS::GetNext(rPosition)); }
    TYPE GetPrev(POSITION& rPosition) const { return static_cast<TYPE>(BASE_CLASS::GetPrev(rPosition)); }
    TYPE GetAt(POSITION position) const { return static_cast<TYPE>(BASE_CLASS::GetAt(position)); }
    POSITION AddHead(TYPE p) { return BASE_CLASS::AddHead(p); }
    POSITION AddTail(TYPE p) { return BASE_CLASS::AddTail(p); }
};

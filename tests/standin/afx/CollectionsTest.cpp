#include <afxcoll.h>
#include <afxtempl.h>

#include "tests/standin/afx/Thrown.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{
std::vector<int> all(const CArray<int, int>& a) { return {a.GetData(), a.GetData() + a.GetSize()}; }

template <class L>
std::vector<int> all_of_list(const L& list)
{
    std::vector<int> v;
    for (POSITION pos = list.GetHeadPosition(); pos != nullptr;)
        v.push_back(list.GetNext(pos));
    return v;
}

using Ints = std::vector<int>;

template <class F>
bool throws_invalid_arg(F f)
{
    return thrown_by(f) == L"CInvalidArgException";
}
} // namespace

TEST(CArray, NewElementsAreZeroAndTheUpperBoundIsOneLess)
{
    CArray<int, int> a;
    EXPECT_EQ(a.GetUpperBound(), -1);
    EXPECT_TRUE(a.IsEmpty());
    a.SetSize(3);
    EXPECT_EQ(all(a), (Ints{0, 0, 0}));
    EXPECT_EQ(a.GetUpperBound(), 2);
}

TEST(CArray, AddInsertAndRemoveKeepTheOrderOfTheOthers)
{
    CArray<int, int> a;
    EXPECT_EQ(a.Add(1), 0);
    EXPECT_EQ(a.Add(5), 1);
    a.InsertAt(1, 3, 2);
    EXPECT_EQ(all(a), (Ints{1, 3, 3, 5}));
    a.InsertAt(6, 9);
    EXPECT_EQ(all(a), (Ints{1, 3, 3, 5, 0, 0, 9}));
    a.RemoveAt(1, 2);
    EXPECT_EQ(all(a), (Ints{1, 5, 0, 0, 9}));
    a.SetAtGrow(6, 7);
    EXPECT_EQ(all(a), (Ints{1, 5, 0, 0, 9, 0, 7}));
    a.RemoveAll();
    EXPECT_EQ(a.GetSize(), 0);
}

TEST(CArray, AppendCopyAndInsertTakeTheElementsOfAnotherArray)
{
    CArray<int, int> a;
    CArray<int, int> b;
    a.Add(1);
    a.Add(2);
    b.Add(8);
    b.Add(9);
    EXPECT_EQ(a.Append(b), 2);
    EXPECT_EQ(all(a), (Ints{1, 2, 8, 9}));
    a.Append(a);
    EXPECT_EQ(all(a), (Ints{1, 2, 8, 9, 1, 2, 8, 9}));
    a.InsertAt(1, &b);
    EXPECT_EQ(all(a), (Ints{1, 8, 9, 2, 8, 9, 1, 2, 8, 9}));
    a.Copy(b);
    EXPECT_EQ(all(a), (Ints{8, 9}));
    a.Copy(a);
    EXPECT_EQ(all(a), (Ints{8, 9}));
}

TEST(CArray, TakesItsOwnElementsWhileItMovesThem)
{
    CArray<CString, const CString&> a;
    a.Add(L"first");
    for (int i = 0; i < 100; ++i)
        a.Add(a[0]);
    a.InsertAt(0, a[100], 50);
    for (int i = 0; i < 151; ++i)
        EXPECT_EQ(a[i], L"first");
}

TEST(CArray, PositionOutOfRangeThrows)
{
    CArray<int, int> a;
    a.Add(1);
    EXPECT_TRUE(throws_invalid_arg([&] { a.GetAt(1); }));
    EXPECT_TRUE(throws_invalid_arg([&] { a[-1] = 0; }));
    EXPECT_TRUE(throws_invalid_arg([&] { a.SetAt(1, 0); }));
    EXPECT_TRUE(throws_invalid_arg([&] { a.SetAtGrow(-1, 0); }));
    EXPECT_TRUE(throws_invalid_arg([&] { a.RemoveAt(0, 2); }));
    EXPECT_TRUE(throws_invalid_arg([&] { a.InsertAt(-1, 0); }));
    EXPECT_TRUE(throws_invalid_arg([&] { a.InsertAt(0, &a); }));
    EXPECT_TRUE(throws_invalid_arg([&] { a.SetSize(-1); }));
    EXPECT_FALSE(throws_invalid_arg([&] { a.RemoveAt(1, 0); }));
}

TEST(CArray, SizeBeyondTheAddressSpaceThrowsAndKeepsTheElements)
{
    CArray<int, int> a;
    a.Add(4);
    EXPECT_EQ(thrown_by([&] { a.SetSize(PTRDIFF_MAX); }), L"CMemoryException");
    EXPECT_EQ(all(a), (Ints{4}));
}

TEST(CArray, FreeExtraLeavesTheElementsWhereTheyAre)
{
    CArray<int, int> a;
    a.SetSize(1, 1000);
    a.Add(2);
    a.FreeExtra();
    EXPECT_EQ(all(a), (Ints{0, 2}));
}

TEST(CStringArray, TakesTextsAndIsMadeByItsClass)
{
    CStringArray a;
    a.Add(L"one");
    a.Add(CString(L"two"));
    a.SetAt(0, L"ONE");
    EXPECT_EQ(a.GetAt(0), L"ONE");
    EXPECT_EQ(a.ElementAt(1), L"two");
    EXPECT_TRUE(a.IsKindOf(RUNTIME_CLASS(CStringArray)));
    const std::unique_ptr<CObject> p(RUNTIME_CLASS(CUIntArray)->CreateObject());
    EXPECT_NE(DYNAMIC_DOWNCAST(CUIntArray, p.get()), nullptr);
}

TEST(CList, KeepsTheOrderOfWhatIsAddedAtEitherEnd)
{
    CList<int, int> list;
    list.AddTail(2);
    list.AddTail(3);
    list.AddHead(1);
    EXPECT_EQ(all_of_list(list), (Ints{1, 2, 3}));
    EXPECT_EQ(list.GetHead(), 1);
    EXPECT_EQ(list.GetTail(), 3);
    Ints back;
    for (POSITION pos = list.GetTailPosition(); pos != nullptr;)
        back.push_back(list.GetPrev(pos));
    EXPECT_EQ(back, (Ints{3, 2, 1}));
}

TEST(CList, InsertsAndRemovesAtAPosition)
{
    CList<int, int> list;
    const POSITION pos = list.AddTail(5);
    list.InsertBefore(pos, 4);
    list.InsertAfter(pos, 6);
    list.InsertBefore(nullptr, 1);
    list.InsertAfter(nullptr, 9);
    list.SetAt(pos, 50);
    EXPECT_EQ(all_of_list(list), (Ints{1, 4, 50, 6, 9}));
    EXPECT_EQ(list.GetAt(list.FindIndex(3)), 6);
    EXPECT_EQ(list.FindIndex(5), nullptr);
    EXPECT_EQ(list.FindIndex(-1), nullptr);
    list.RemoveAt(pos);
    EXPECT_EQ(list.RemoveHead(), 1);
    EXPECT_EQ(list.RemoveTail(), 9);
    EXPECT_EQ(all_of_list(list), (Ints{4, 6}));
    EXPECT_EQ(list.GetCount(), 2);
}

TEST(CList, FindGoesOnBehindTheGivenPosition)
{
    CStringList list;
    list.AddTail(L"a");
    list.AddTail(L"b");
    list.AddTail(L"a");
    const POSITION first = list.Find(L"a");
    EXPECT_EQ(first, list.GetHeadPosition());
    EXPECT_EQ(list.Find(L"a", first), list.GetTailPosition());
    EXPECT_EQ(list.Find(L"a", list.GetTailPosition()), nullptr);
    EXPECT_EQ(list.Find(L"c"), nullptr);
}

TEST(CList, AddsAnotherListOrItselfInOrder)
{
    CList<int, int> a;
    CList<int, int> b;
    a.AddTail(1);
    a.AddTail(2);
    b.AddTail(8);
    b.AddTail(9);
    a.AddHead(&b);
    EXPECT_EQ(all_of_list(a), (Ints{8, 9, 1, 2}));
    b.AddTail(&b);
    EXPECT_EQ(all_of_list(b), (Ints{8, 9, 8, 9}));
    a.AddHead(&a);
    EXPECT_EQ(all_of_list(a), (Ints{8, 9, 1, 2, 8, 9, 1, 2}));
    CList<int, int> empty;
    a.RemoveAll();
    a.AddTail(&empty);
    a.AddHead(&empty);
    EXPECT_TRUE(a.IsEmpty());
}

TEST(CList, EndsOfAnEmptyListThrow)
{
    CList<int, int> list;
    EXPECT_TRUE(throws_invalid_arg([&] { list.GetHead(); }));
    EXPECT_TRUE(throws_invalid_arg([&] { list.RemoveTail(); }));
    POSITION pos = nullptr;
    EXPECT_TRUE(throws_invalid_arg([&] { list.GetNext(pos); }));
}

TEST(CMap, FindsEveryKeyAmongThousandsAndNoOther)
{
    CMap<CString, LPCTSTR, int, int> map;
    CString key;
    for (int i = 0; i < 5000; ++i)
    {
        key.Format(L"IDC_KEY_%d", i);
        map.SetAt(key, i);
    }
    EXPECT_EQ(map.GetCount(), 5000);
    for (int i = 0; i < 5000; ++i)
    {
        key.Format(L"IDC_KEY_%d", i);
        int n = -1;
        EXPECT_TRUE(map.Lookup(key, n));
        EXPECT_EQ(n, i);
    }
    int n = -1;
    EXPECT_FALSE(map.Lookup(L"IDC_KEY_5000", n));
    EXPECT_EQ(n, -1);
    EXPECT_EQ(map.PLookup(L"nothing"), nullptr);
}

TEST(CMap, IterationGivesEachPairOnceAndAllowsItsRemoval)
{
    CMap<int, int, int, int> map;
    for (int i = 0; i < 100; ++i)
        map[i] = i * i;
    std::vector<bool> seen(100);
    for (POSITION pos = map.GetStartPosition(); pos != nullptr;)
    {
        int k = 0;
        int v = 0;
        map.GetNextAssoc(pos, k, v);
        EXPECT_EQ(v, k * k);
        EXPECT_FALSE(seen[static_cast<std::size_t>(k)]);
        seen[static_cast<std::size_t>(k)] = true;
        EXPECT_TRUE(map.RemoveKey(k));
    }
    EXPECT_EQ(std::count(seen.begin(), seen.end(), true), 100);
    EXPECT_TRUE(map.IsEmpty());
    EXPECT_EQ(map.GetStartPosition(), nullptr);
    EXPECT_FALSE(map.RemoveKey(3));
}

TEST(CMap, PairsAreReachedByPointerToo)
{
    CMap<int, int, CString, LPCTSTR> map;
    EXPECT_EQ(map.PGetFirstAssoc(), nullptr);
    map.SetAt(1, L"one");
    map.SetAt(2, L"two");
    int sum = 0;
    for (const auto* p = map.PGetFirstAssoc(); p != nullptr; p = map.PGetNextAssoc(p))
        sum += p->key;
    EXPECT_EQ(sum, 3);
    map.PLookup(2)->value = L"zwei";
    EXPECT_EQ(map[2], L"zwei");
    EXPECT_EQ(map[3], L"");
    EXPECT_EQ(map.GetCount(), 3);
}

TEST(CMap, TableSizeIsSetOnlyWhileTheMapIsEmpty)
{
    CMap<int, int, int, int> map;
    EXPECT_EQ(map.GetHashTableSize(), 17u);
    map.InitHashTable(101);
    EXPECT_EQ(map.GetHashTableSize(), 101u);
    map.InitHashTable(7, FALSE);
    map[1] = 1;
    EXPECT_EQ(map.GetHashTableSize(), 7u);
    EXPECT_TRUE(throws_invalid_arg([&] { map.InitHashTable(5); }));
    POSITION pos = nullptr;
    int k = 0;
    EXPECT_TRUE(throws_invalid_arg([&] { map.GetNextAssoc(pos, k, k); }));
}

TEST(CMapStringToString, GivesValuesAndItsOwnCopyOfTheKey)
{
    CMapStringToString map;
    const CString key(L"IDC_NAME");
    map.SetAt(key, L"Name");
    CString value;
    EXPECT_TRUE(map.Lookup(L"IDC_NAME", value));
    EXPECT_EQ(value, L"Name");
    LPCTSTR kept = nullptr;
    EXPECT_TRUE(map.LookupKey(L"IDC_NAME", kept));
    EXPECT_STREQ(kept, L"IDC_NAME");
    EXPECT_FALSE(map.LookupKey(L"IDC_OTHER", kept));
    map[L"IDC_OTHER"] = L"Other";
    EXPECT_EQ(map.GetCount(), 2);
}

TEST(CTypedPtrList, HandsOutTheTypeThatWasPutIn)
{
    CStringArray array;
    CTypedPtrList<CObList, CStringArray*> list;
    list.AddTail(&array);
    EXPECT_EQ(list.GetHead(), &array);
    POSITION pos = list.GetHeadPosition();
    list.GetNext(pos)->Add(L"x");
    EXPECT_EQ(array.GetSize(), 1);
    EXPECT_EQ(list.RemoveHead(), &array);

    CTypedPtrArray<CPtrArray, CStringArray*> pointers;
    pointers.Add(&array);
    EXPECT_EQ(pointers[0]->GetAt(0), L"x");
}

TEST(HashKey, OfATextDependsOnItsCharactersOnly)
{
    const CString a(L"key");
    const CString b(a + L"");
    EXPECT_EQ(HashKey<LPCTSTR>(a), HashKey<const CString&>(b));
    EXPECT_NE(HashKey<LPCTSTR>(L"key"), HashKey<LPCTSTR>(L"kez"));
}

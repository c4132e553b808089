#include <afx.h>

#include "tests/standin/afx/Thrown.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

#include <map>
#include <thread>
#include <vector>

TEST(CString, IsOnePointer) { EXPECT_EQ(sizeof(CString), sizeof(void*)); }

TEST(CString, CopySharesTheTextUntilOneIsChanged)
{
    const CString a(L"one text");
    CString b = a;
    CString c;
    c = b;
    EXPECT_EQ(a.GetString(), b.GetString());
    EXPECT_EQ(a.GetString(), c.GetString());
    b.SetAt(0, L'O');
    EXPECT_NE(a.GetString(), b.GetString());
    EXPECT_EQ(a.GetString(), c.GetString());
    EXPECT_EQ(a, L"one text");
    EXPECT_EQ(b, L"One text");
}

TEST(CString, PartThatIsTheWholeSharesTheText)
{
    const CString a(L"whole");
    EXPECT_EQ(a.Left(9).GetString(), a.GetString());
    EXPECT_EQ(a.Mid(0).GetString(), a.GetString());
    EXPECT_EQ(a.SpanExcluding(L"xyz").GetString(), a.GetString());
}

TEST(CString, EmptyStringsShareOneTextThatIsNeverWritten)
{
    const CString a;
    CString b(L"");
    CString c(L"text");
    c.Empty();
    EXPECT_EQ(a.GetString(), b.GetString());
    EXPECT_EQ(a.GetString(), c.GetString());
    EXPECT_TRUE(a.IsEmpty());
    EXPECT_EQ(a.GetLength(), 0);
    b.GetBuffer()[0] = 0;
    b.ReleaseBuffer();
    EXPECT_NE(a.GetString(), b.GetString());
    c.ReleaseBuffer();
    EXPECT_EQ(c, L"");
}

TEST(CString, IsMadeFromCharactersLengthsAndNull)
{
    EXPECT_EQ(CString(L'x', 3), L"xxx");
    EXPECT_EQ(CString(L'x', 0), L"");
    EXPECT_EQ(CString(L'x', -1), L"");
    EXPECT_EQ(CString(L"abcdef", 3), L"abc");
    EXPECT_EQ(CString(L"a\0b", 3).GetLength(), 3);
    EXPECT_EQ(CString(static_cast<const wchar_t*>(nullptr)), L"");
    EXPECT_EQ(CString(static_cast<const char*>(nullptr)), L"");
    EXPECT_EQ(CString("ascii"), L"ascii");
    EXPECT_EQ(CStringA(L"ascii"), "ascii");
    EXPECT_EQ(thrown_by([] { CString(L"abc", -1); }), L"CInvalidArgException");
    EXPECT_EQ(thrown_by([] { CString(static_cast<const wchar_t*>(nullptr), 1); }), L"CInvalidArgException");
    EXPECT_EQ(thrown_by([] { CString("abc", -1); }), L"CInvalidArgException");
}

TEST(CString, MovedTextLeavesAnEmptyOne)
{
    CString a(L"moved");
    const wchar_t* text = a.GetString();
    CString b(std::move(a));
    EXPECT_EQ(b.GetString(), text);
    EXPECT_EQ(a, L""); // NOLINT(bugprone-use-after-move): the state is documented
    a = std::move(b);
    EXPECT_EQ(a.GetString(), text);
}

TEST(CString, TakesEveryKindOfText)
{
    CString s;
    s = L"wide";
    s = "narrow";
    EXPECT_EQ(s, L"narrow");
    s = L'c';
    s += L'd';
    s += "e";
    s += L"f";
    s += CString(L"g");
    s.AppendChar(L'h');
    s.Append(L"ijk", 2);
    EXPECT_EQ(s, L"cdefghij");
    EXPECT_EQ(L"<" + s.Left(1) + L">" + L'!', L"<c>!");
    EXPECT_EQ(L'(' + s.Left(1) + CString(L")"), L"(c)");
    s = CStringA("eight bit");
    EXPECT_EQ(s, L"eight bit");
}

TEST(CString, AssigningItselfOrAPartOfItselfKeepsTheText)
{
    CString s(L"abcdef");
    const CString& self = s;
    s = self;
    s = s.GetString();
    EXPECT_EQ(s, L"abcdef");
    s = s.GetString() + 2;
    EXPECT_EQ(s, L"cdef");
    CString shared = s;
    s.SetString(s.GetString() + 1, 2);
    EXPECT_EQ(s, L"de");
    EXPECT_EQ(shared, L"cdef");
    s = s.Mid(1);
    EXPECT_EQ(s, L"e");
}

TEST(CString, AppendingItselfDoublesTheText)
{
    CString s(L"ab");
    s += s;
    s += s.GetString() + 1;
    EXPECT_EQ(s, L"ababbab");
    CString shared = s;
    s.Append(s.GetString(), 3);
    EXPECT_EQ(s, L"ababbababa");
    EXPECT_EQ(shared, L"ababbab");
    for (int i = 0; i < 12; ++i)
        s += s;
    EXPECT_EQ(s.GetLength(), 10 << 12);
}

TEST(CString, AppendingToAnEmptyStringSharesTheOther)
{
    const CString other(L"text");
    CString s;
    s += other;
    EXPECT_EQ(s.GetString(), other.GetString());
}

TEST(CString, IndexOutsideTheTextThrows)
{
    CString s(L"ab");
    EXPECT_EQ(s.GetAt(1), L'b');
    EXPECT_EQ(s[2], 0);
    EXPECT_EQ(thrown_by([&] { s.GetAt(3); }), L"CInvalidArgException");
    EXPECT_EQ(thrown_by([&] { s.GetAt(-1); }), L"CInvalidArgException");
    EXPECT_EQ(thrown_by([&] { s.SetAt(2, L'c'); }), L"CInvalidArgException");
    EXPECT_EQ(thrown_by([&] { s.SetAt(-1, L'c'); }), L"CInvalidArgException");
    EXPECT_EQ(thrown_by([&] { s.Truncate(-1); }), L"CInvalidArgException");
    EXPECT_EQ(thrown_by([&] { s.GetBufferSetLength(-1); }), L"CInvalidArgException");
    EXPECT_EQ(thrown_by([&] { s.ReleaseBuffer(1000); }), L"CInvalidArgException");
    EXPECT_EQ(s, L"ab");
}

TEST(CString, LengthBeyondTheLargestThrowsAndKeepsTheText)
{
    CString s(L"ab");
    EXPECT_EQ(thrown_by([&] { s.Preallocate(INT_MAX); }), L"CMemoryException");
    EXPECT_EQ(thrown_by([&] { s.GetBuffer(INT_MAX - 10); }), L"CMemoryException");
    EXPECT_EQ(thrown_by([&] { s.Append(L"x", INT_MAX - 2); }), L"CMemoryException");
    EXPECT_EQ(s, L"ab");
}

TEST(CString, LengthsCountUnitsAlsoInsideACharacterPair)
{
    CString s(L"\xD83D\xDE00!");
    EXPECT_EQ(s.GetLength(), 3);
    EXPECT_EQ(s.Left(1), L"\xD83D");
    EXPECT_EQ(s.Find(L'!'), 2);
    EXPECT_EQ(s.MakeUpper(), L"\xD83D\xDE00!");
}

TEST(CString, ComparisonGoesByUnitWithoutSign)
{
    EXPECT_EQ(CString(L"a").Compare(L"a"), 0);
    EXPECT_LT(CString(L"a").Compare(L"b"), 0);
    EXPECT_GT(CString(L"b").Compare(L"a"), 0);
    EXPECT_LT(CString(L"a").Compare(L"ab"), 0);
    EXPECT_GT(CString(L"\xFFFD").Compare(L"a"), 0);
    EXPECT_GT(CStringA("\xFF").Compare("a"), 0);
    EXPECT_EQ(CString().Compare(nullptr), 0);
    EXPECT_GT(CString(L"a").Compare(nullptr), 0);
    EXPECT_EQ(CString(L"a\0b", 3).Compare(L"a"), 0);
}

TEST(CString, OperatorsCompareStringsAndPointersEitherWay)
{
    const CString a(L"a");
    const CString b(L"b");
    EXPECT_TRUE(a == a && a == L"a" && L"a" == a);
    EXPECT_TRUE(a != b && a != L"b" && L"b" != a);
    EXPECT_TRUE(a < b && a < L"b" && L"a" < b);
    EXPECT_TRUE(b > a && b > L"a" && L"b" > a);
    EXPECT_TRUE(a <= a && a <= L"a" && L"a" <= a);
    EXPECT_TRUE(b >= a && b >= L"b" && L"b" >= b);
    EXPECT_FALSE(a == b || a != a || b < a || a > b || b <= a || a >= b);
}

TEST(CString, IsAKeyOfAMap)
{
    std::map<CString, int> m;
    m[L"b"] = 2;
    m[L"a"] = 1;
    m[L"b"] = 3;
    EXPECT_EQ(m.size(), 2u);
    EXPECT_EQ(m.begin()->first, L"a");
    EXPECT_EQ(m[L"b"], 3);
}

TEST(CString, ComparisonWithoutCaseOrdersBySmallLetters)
{
    EXPECT_EQ(CString(L"STRASSE \xC4").CompareNoCase(L"strasse \xE4"), 0);
    EXPECT_EQ(CString(L"\x0411\x0430\x043B\x043A\x0430").CompareNoCase(L"\x0431\x0410\x041B\x041A\x0410"), 0);
    EXPECT_LT(CString(L"_").CompareNoCase(L"A"), 0);
    EXPECT_GT(CString(L"Z").CompareNoCase(L"a"), 0);
    EXPECT_LT(CString(L"abc").CompareNoCase(L"ABCD"), 0);
    EXPECT_NE(CString(L"\x0131").CompareNoCase(L"I"), 0);
    EXPECT_EQ(CString().CompareNoCase(nullptr), 0);
    EXPECT_EQ(CStringA("Abc").CompareNoCase("aBC"), 0);
}

TEST(CString, BufferIsItsOwnAndTakesALength)
{
    const CString shared(L"shared");
    CString s(shared);
    wchar_t* p = s.GetBuffer(20);
    EXPECT_NE(p, shared.GetString());
    EXPECT_EQ(CString(p), L"shared");
    p[0] = L'S';
    p[3] = 0;
    s.ReleaseBuffer();
    EXPECT_EQ(s, L"Sha");
    p = s.GetBufferSetLength(5);
    EXPECT_EQ(s.GetLength(), 5);
    p[3] = L'x';
    p[4] = L'y';
    EXPECT_EQ(s, L"Shaxy");
    s.GetBuffer();
    s.ReleaseBufferSetLength(2);
    EXPECT_EQ(s, L"Sh");
    s.GetBuffer(3);
    s.ReleaseBuffer(1);
    EXPECT_EQ(s, L"S");
    EXPECT_EQ(shared, L"shared");
}

TEST(CString, BufferFilledToItsLastCharacterIsReleasedWhole)
{
    CString s;
    s.GetBuffer(40);
    const int n = s.GetAllocLength();
    for (int i = 0; i < n; ++i)
        s.GetBuffer()[i] = L'x';
    s.ReleaseBuffer();
    EXPECT_EQ(s.GetLength(), n);
}

TEST(CString, LockedBufferIsNotShared)
{
    CString s(L"text");
    s.LockBuffer();
    CString copy(s);
    EXPECT_NE(copy.GetString(), s.GetString());
    EXPECT_EQ(copy, L"text");
    s.UnlockBuffer();
    CString second(s);
    EXPECT_EQ(second.GetString(), s.GetString());
    s.Empty();
    s.UnlockBuffer();
    EXPECT_EQ(second, L"text");
    CString gone(L"locked to the end");
    gone.LockBuffer();
}

TEST(CString, RoomIsMadeAheadAndGivenBack)
{
    CString s(L"ab");
    s.Preallocate(100);
    EXPECT_GE(s.GetAllocLength(), 100);
    const wchar_t* p = s.GetString();
    s.Append(L"0123456789012345678901234567890123456789");
    EXPECT_EQ(s.GetString(), p);
    s.Truncate(3);
    s.Truncate(50);
    EXPECT_EQ(s, L"ab0");
    s.FreeExtra();
    EXPECT_LT(s.GetAllocLength(), 10);
    EXPECT_EQ(s, L"ab0");
    s.Truncate(0);
    s.FreeExtra();
    EXPECT_EQ(s.GetAllocLength(), 0);
}

TEST(CString, CopiesOfOneTextLiveInManyThreads)
{
    const CString text(L"shared by all");
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&text] {
            for (int n = 0; n < 20000; ++n)
            {
                CString copy(text);
                CString second = copy;
                second.SetAt(0, L'S');
            }
        });
    for (std::thread& t : threads)
        t.join();
    EXPECT_EQ(text, L"shared by all");
    CString last(text);
    EXPECT_EQ(last.GetString(), text.GetString());
}

TEST(CString, ResourceStringThatIsMissingLeavesAnEmptyText)
{
    CString s(L"former");
    EXPECT_FALSE(s.LoadString(60000));
    EXPECT_EQ(s, L"");
    s = L"former";
    EXPECT_FALSE(s.LoadString(nullptr, 60000));
    EXPECT_EQ(s, L"");
    EXPECT_EQ(thrown_by([&] { s.Format(60000u, 1); }), L"CInvalidArgException");
    EXPECT_EQ(thrown_by([&] { s.AppendFormat(60000u, 1); }), L"CInvalidArgException");
}

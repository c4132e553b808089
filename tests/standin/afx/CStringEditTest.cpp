#include <afx.h>

#include "tests/standin/afx/Thrown.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

#include <climits>
#include <vector>

TEST(CString, FindsCharactersAndTexts)
{
    const CString s(L"abcabc");
    EXPECT_EQ(s.Find(L'b'), 1);
    EXPECT_EQ(s.Find(L'b', 2), 4);
    EXPECT_EQ(s.Find(L'x'), -1);
    EXPECT_EQ(s.Find(L'a', 6), -1);
    EXPECT_EQ(s.Find(L'a', -1), -1);
    EXPECT_EQ(s.Find(L"ca"), 2);
    EXPECT_EQ(s.Find(L"abc", 1), 3);
    EXPECT_EQ(s.Find(L"abcd"), -1);
    EXPECT_EQ(s.Find(L"", 6), 6);
    EXPECT_EQ(s.Find(L"", 7), -1);
    EXPECT_EQ(s.Find(nullptr, 2), 2);
    EXPECT_EQ(s.ReverseFind(L'a'), 3);
    EXPECT_EQ(s.ReverseFind(L'x'), -1);
    EXPECT_EQ(s.FindOneOf(L"xcb"), 1);
    EXPECT_EQ(s.FindOneOf(L"xyz"), -1);
    EXPECT_EQ(s.FindOneOf(nullptr), -1);
    EXPECT_EQ(CString(L"a\0b", 3).Find(L'b'), 2);
}

TEST(CString, PartsAreDrawnInToTheBounds)
{
    const CString s(L"abcdef");
    EXPECT_EQ(s.Mid(2), L"cdef");
    EXPECT_EQ(s.Mid(2, 2), L"cd");
    EXPECT_EQ(s.Mid(-3, 2), L"ab");
    EXPECT_EQ(s.Mid(4, 100), L"ef");
    EXPECT_EQ(s.Mid(1, INT_MAX), L"bcdef");
    EXPECT_EQ(s.Mid(7), L"");
    EXPECT_EQ(s.Mid(2, -1), L"");
    EXPECT_EQ(s.Left(2), L"ab");
    EXPECT_EQ(s.Left(-1), L"");
    EXPECT_EQ(s.Left(99), L"abcdef");
    EXPECT_EQ(s.Right(2), L"ef");
    EXPECT_EQ(s.Right(-1), L"");
    EXPECT_EQ(s.Right(99), L"abcdef");
    EXPECT_EQ(s.SpanIncluding(L"cba"), L"abc");
    EXPECT_EQ(s.SpanIncluding(L"x"), L"");
    EXPECT_EQ(s.SpanIncluding(nullptr), L"");
    EXPECT_EQ(s.SpanExcluding(L"ed"), L"abc");
    EXPECT_EQ(s.SpanExcluding(nullptr), L"abcdef");
}

TEST(CString, TokensComeOneByOne)
{
    const CString s(L"%First Second#Third%%");
    std::vector<CString> tokens;
    std::vector<int> positions;
    int at = 0;
    for (CString t = s.Tokenize(L"% #", at); at != -1; t = s.Tokenize(L"% #", at))
    {
        tokens.push_back(t);
        positions.push_back(at);
    }
    EXPECT_EQ(tokens, (std::vector<CString>{L"First", L"Second", L"Third"}));
    EXPECT_EQ(positions, (std::vector<int>{7, 14, 20}));
    EXPECT_EQ(thrown_by([&] { s.Tokenize(L"%", at); }), L"CInvalidArgException");
}

TEST(CString, WithoutDelimitersTheRestIsOneToken)
{
    const CString s(L"a b");
    int at = 1;
    EXPECT_EQ(s.Tokenize(nullptr, at), L" b");
    EXPECT_EQ(at, 3);
    EXPECT_EQ(s.Tokenize(L"", at), L"");
    EXPECT_EQ(at, -1);
    at = 99;
    EXPECT_EQ(s.Tokenize(L" ", at), L"");
    EXPECT_EQ(at, -1);
}

TEST(CString, TrimsWhiteSpaceCharactersAndSets)
{
    EXPECT_EQ(CString(L" \t\r\n a b \x3000\xA0").Trim(), L"a b");
    EXPECT_EQ(CString(L"  a ").TrimLeft(), L"a ");
    EXPECT_EQ(CString(L" a  ").TrimRight(), L" a");
    EXPECT_EQ(CString(L" \n ").Trim(), L"");
    EXPECT_EQ(CString(L"xxaxx").Trim(L'x'), L"a");
    EXPECT_EQ(CString(L"xxaxx").TrimLeft(L'x'), L"axx");
    EXPECT_EQ(CString(L"xxaxx").TrimRight(L'x'), L"xxa");
    EXPECT_EQ(CString(L"xyayx").Trim(L"xy"), L"a");
    EXPECT_EQ(CString(L"xyayx").TrimLeft(L"xy"), L"ayx");
    EXPECT_EQ(CString(L"xyayx").TrimRight(L"xy"), L"xya");
    EXPECT_EQ(CString(L" a ").Trim(L""), L"a");
    EXPECT_EQ(CString(L" a ").TrimLeft(nullptr), L"a ");
    EXPECT_EQ(CStringA(" \xA0 ").Trim(), "\xA0");
}

TEST(CString, TrimmingByAPartOfItselfReadsThePartFirst)
{
    CString s(L"ab--ba");
    s.Trim(s.GetString() + 4);
    EXPECT_EQ(s, L"--");
    CString shared(L"  x");
    const CString copy(shared);
    shared.Trim();
    EXPECT_EQ(copy, L"  x");
    CString whole(L"kept");
    const wchar_t* p = whole.GetString();
    const CString other(whole);
    whole.Trim();
    EXPECT_EQ(whole.GetString(), p) << "nothing to trim, nothing copied";
}

TEST(CString, ReversesAndChangesCase)
{
    EXPECT_EQ(CString(L"abc").MakeReverse(), L"cba");
    EXPECT_EQ(CString().MakeReverse(), L"");
    EXPECT_EQ(CString(L"Beam \xDF \xE9 \x03C9").MakeUpper(), L"BEAM \xDF \xC9 \x03A9");
    EXPECT_EQ(CString(L"BEAM \x0416").MakeLower(), L"beam \x0436");
    EXPECT_EQ(CString().MakeUpper(), L"");
    EXPECT_EQ(CStringA("Beam").MakeUpper(), "BEAM");
    const CString shared(L"abc");
    CString s(shared);
    s.MakeUpper();
    EXPECT_EQ(shared, L"abc");
}

TEST(CString, ReplacesCharactersAndTexts)
{
    CString s(L"a-b-c");
    EXPECT_EQ(s.Replace(L'-', L'+'), 2);
    EXPECT_EQ(s, L"a+b+c");
    EXPECT_EQ(s.Replace(L'x', L'y'), 0);
    EXPECT_EQ(s.Replace(L'+', L'+'), 0);
    EXPECT_EQ(s.Replace(L"+", L" and "), 2);
    EXPECT_EQ(s, L"a and b and c");
    EXPECT_EQ(s.Replace(L" and ", L""), 2);
    EXPECT_EQ(s, L"abc");
    EXPECT_EQ(s.Replace(L"abc", nullptr), 1);
    EXPECT_EQ(s, L"");
    s = L"aaaa";
    EXPECT_EQ(s.Replace(L"aa", L"a"), 2) << "what was put in is not searched again";
    EXPECT_EQ(s, L"aa");
    EXPECT_EQ(s.Replace(L"", L"x"), 0);
    EXPECT_EQ(s.Replace(nullptr, L"x"), 0);
    EXPECT_EQ(s.Replace(L"b", L"x"), 0);
}

TEST(CString, ReplacesWithPartsOfItself)
{
    CString s(L"abc-abc");
    EXPECT_EQ(s.Replace(s.GetString() + 3, s), 1);
    EXPECT_EQ(s, L"abcabc-abc");
    EXPECT_EQ(s.Replace(s, s.GetString() + 6), 1);
    EXPECT_EQ(s, L"-abc");
}

TEST(CString, InsertsDeletesAndRemoves)
{
    CString s(L"ad");
    EXPECT_EQ(s.Insert(1, L"bc"), 4);
    EXPECT_EQ(s, L"abcd");
    EXPECT_EQ(s.Insert(-5, L'<'), 5);
    EXPECT_EQ(s.Insert(99, L'>'), 6);
    EXPECT_EQ(s, L"<abcd>");
    EXPECT_EQ(s.Insert(0, nullptr), 6);
    EXPECT_EQ(s.Delete(0), 5);
    EXPECT_EQ(s.Delete(4, 99), 4);
    EXPECT_EQ(s.Delete(9), 4);
    EXPECT_EQ(s.Delete(0, -1), 4);
    EXPECT_EQ(s.Delete(-1), 3);
    EXPECT_EQ(s, L"bcd");
    s = L"banana";
    EXPECT_EQ(s.Remove(L'a'), 3);
    EXPECT_EQ(s, L"bnn");
    EXPECT_EQ(s.Remove(L'x'), 0);
    s = L"aa";
    EXPECT_EQ(s.Remove(L'a'), 2);
    EXPECT_EQ(s, L"");
}

TEST(CString, InsertsItself)
{
    CString s(L"ab");
    s.Insert(1, s);
    EXPECT_EQ(s, L"aabb");
    s.Preallocate(100);
    s.Insert(0, s.GetString() + 2);
    EXPECT_EQ(s, L"bbaabb");
    const CString shared(s);
    s.Insert(6, s);
    s.Delete(0, 6);
    EXPECT_EQ(s, L"bbaabb");
    EXPECT_EQ(shared, L"bbaabb");
}

TEST(CString, EditingKeepsTheTextOfACopy)
{
    const CString original(L"a-b");
    CString s;
    (s = original).Replace(L'-', L'+');
    (s = original).Remove(L'-');
    (s = original).Delete(0);
    (s = original).Insert(0, L"x");
    (s = original).Truncate(1);
    (s = original).MakeReverse();
    EXPECT_EQ(original, L"a-b");
}

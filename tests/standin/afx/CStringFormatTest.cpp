#include <afx.h>

#include "tests/standin/afx/Thrown.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

namespace
{
template <class... A>
CString format(const wchar_t* text, A... args)
{
    CString s;
    s.Format(text, args...);
    return s;
}

template <class... A>
CStringA format_a(const char* text, A... args)
{
    CStringA s;
    s.Format(text, args...);
    return s;
}

constexpr double inf = std::numeric_limits<double>::infinity();
} // namespace

TEST(CStringFormat, TextIsWideUnlessTheConversionSaysNarrow)
{
    EXPECT_EQ(format(L"%s|%ls|%ws|%S|%hs|%hS", L"a", L"b", L"c", "d", "e", "f"), L"a|b|c|d|e|f");
    EXPECT_EQ(format_a("%s|%hs|%S|%ls", "a", "b", L"c", L"d"), "a|b|c|d");
    EXPECT_EQ(format(L"[%5s|%-5s|%.2s|%5.1s|%*s]", L"ab", L"ab", L"abc", L"abc", -3, L"x"),
              L"[   ab|ab   |ab|    a|x  ]");
    EXPECT_EQ(format(L"%s %S %.3s", nullptr, nullptr, nullptr), L"(null) (null) (nu");
    EXPECT_EQ(format(L"%.3S|%.0S|%4.1S", "abcdef", "abc", "xyz"), L"abc||   x");
    const wchar_t unterminated[2] = {L'a', L'b'};
    EXPECT_EQ(format(L"%.2s|%.*s", unterminated, 1, unterminated), L"ab|a");
    EXPECT_EQ(format(L"%.*s", -1, L"all of it"), L"all of it");
}

TEST(CStringFormat, CharactersAreUnitsAndMayBeNul)
{
    EXPECT_EQ(format(L"%c%C%hc%lc%3c|%-3c|", L'a', 'b', 'c', L'\xAC00', L'd', L'e'), L"abc\xAC00  d|e  |");
    EXPECT_EQ(format_a("%c%C", 'a', L'b'), "ab");
    const CString s = format(L"a%cb", 0);
    EXPECT_EQ(s.GetLength(), 3);
    EXPECT_EQ(s[2], L'b');
}

TEST(CStringFormat, IntegersHaveTheSizesOfTheSystem)
{
    EXPECT_EQ(format(L"%d %i %u", -1, 42, -1), L"-1 42 4294967295");
    EXPECT_EQ(format(L"%hd %hu %hhd %hhu", 70000, 70000, 200, 511), L"4464 4464 -56 255");
    EXPECT_EQ(format(L"%ld %lu %lX", -1L, 4294967295uL, 255uL), L"-1 4294967295 FF");
    EXPECT_EQ(format(L"%lld %I64d %I64u %jd", INT64_MIN, INT64_MAX, UINT64_MAX, static_cast<std::int64_t>(5)),
              L"-9223372036854775808 9223372036854775807 18446744073709551615 5");
    EXPECT_EQ(
        format(L"%I32d %Id %zu %td", -7, static_cast<INT_PTR>(-1), sizeof(int), static_cast<INT_PTR>(9)),
        L"-7 -1 4 9");
    EXPECT_EQ(format(L"%x %X %#x %#X %o %#o %#x", 0xABCu, 0xABCu, 0xAu, 0xAu, 8u, 8u, 0u),
              L"abc ABC 0xa 0XA 10 010 0");
}

TEST(CStringFormat, FlagsWidthAndPrecisionPlaceTheDigits)
{
    EXPECT_EQ(format(L"[%5d|%-5d|%05d|%+d|% d|%+5d]", 42, 42, 42, 42, 42, -42),
              L"[   42|42   |00042|+42| 42|  -42]");
    EXPECT_EQ(format(L"[%.3d|%5.3d|%-6.3d|%05.3d|%.0d|%.0d]", 7, 7, 7, 7, 0, 1),
              L"[007|  007|007   |  007||1]");
    EXPECT_EQ(format(L"[%08X|%#06x|%-05d|%.2x]", 0xBEEF, 0xBE, 3, 0xABC), L"[0000BEEF|0x00be|3    |abc]");
    EXPECT_EQ(format(L"[%*d|%-*d|%*d|%.*d|%.*d]", 4, 1, 4, 2, -4, 3, 2, 4, -1, 5), L"[   1|2   |3   |04|5]");
    EXPECT_EQ(format(L"[%05s]", L"ab"), L"[000ab]");
    EXPECT_EQ(format(L"[%#o|%#.2o|%#.0o]", 0u, 8u, 0u), L"[0|010|0]"); // no second zero in front of one
}

TEST(CStringFormat, NumbersWithAPointAreTheSameEverywhere)
{
    EXPECT_EQ(format(L"%f %.2f %.0f %10.3f|%-10.1f|%010.2f", 3.14159, 2.005, 2.5, 3.14159, 1.25, -3.5),
              L"3.141590 2.00 2      3.142|1.2       |-000003.50");
    EXPECT_EQ(format(L"%e %.2E %.0e", 12345.678, 0.00012, 5.0), L"1.234568e+04 1.20E-04 5e+00");
    EXPECT_EQ(format(L"%g %g %g %G %.3g", 100000.0, 1000000.0, 0.0001, 1e-10, 1234.5),
              L"100000 1e+06 0.0001 1E-10 1.23e+03");
    EXPECT_EQ(format(L"%+f % .1f %+.1f", 1.0, 1.0, -1.0), L"+1.000000  1.0 -1.0");
    EXPECT_EQ(format(L"%#.0f %#g %#.3g %#.2e %#.0e %#g", 2.0, 1.0, 1e7, 5.0, 5.0, 1e-5),
              L"2. 1.00000 1.00e+07 5.00e+00 5.e+00 1.00000e-05");
    EXPECT_EQ(format(L"%a %.1A %.0a", 1.5, 1.5, 1.0), L"0x1.8000000000000p+0 0X1.8P+0 0x1p+0");
    EXPECT_EQ(format(L"%5f|%-5F|%05f|%+e", inf, -inf, inf, inf), L"  inf|-INF |  inf|+inf");
    EXPECT_EQ(format(L"%f %G", std::nan(""), std::nan("")), L"nan NAN");
    EXPECT_EQ(format(L"%.1Lf|%.1La", 2.25L, 3.0L), L"2.2|0x1.8p+1");
    EXPECT_EQ(format(L"%.0f", 1e300).GetLength(), 301);
    EXPECT_EQ(format(L"%.400f", 1.0).GetLength(), 402);
}

TEST(CStringFormat, PointersShowEveryDigit)
{
    EXPECT_EQ(format(L"%p", reinterpret_cast<void*>(static_cast<UINT_PTR>(0xBEEF))), L"000000000000BEEF");
    EXPECT_EQ(format(L"[%18p]", static_cast<void*>(nullptr)), L"[  0000000000000000]");
}

TEST(CStringFormat, WhatIsNoConversionStandsAsItIsWritten)
{
    EXPECT_EQ(format(L"100%% %d%%", 5), L"100% 5%");
    EXPECT_EQ(format(L"%y %d", 1), L"%y 1");
    EXPECT_EQ(format(L"50%"), L"50%");
    EXPECT_EQ(format(L"50%-0"), L"50%-0");
    EXPECT_EQ(format(L""), L"");
    int written = 7;
    EXPECT_EQ(format(L"a%nb%d", &written, 3), L"ab3");
    EXPECT_EQ(written, 7);
}

TEST(CStringFormat, ResultsMayBeLongAndArgumentsTheTextItself)
{
    const CString longText(L'x', 100000);
    EXPECT_EQ(format(L"<%s>", longText.GetString()).GetLength(), 100002);
    EXPECT_EQ(format(L"%70000d", 1).GetLength(), 70000);
    CString s(L"ab");
    s.Format(L"%s-%s", s.GetString(), s.GetString());
    EXPECT_EQ(s, L"ab-ab");
    s.AppendFormat(L"/%s/%d", s.GetString(), 7);
    EXPECT_EQ(s, L"ab-ab/ab-ab/7");
    CString f(L"%d");
    f.Format(f, 5);
    EXPECT_EQ(f, L"5");
    EXPECT_EQ(thrown_by([&] { f.Format(static_cast<const wchar_t*>(nullptr)); }), L"CInvalidArgException");
    EXPECT_EQ(thrown_by([&] { f.AppendFormat(static_cast<const wchar_t*>(nullptr)); }),
              L"CInvalidArgException");
}

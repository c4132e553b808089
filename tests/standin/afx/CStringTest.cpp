#include <afxstr.h>

#include "tests/support/print.h"

#include <gtest/gtest.h>

TEST(CString, CopySharesTheTextUntilOneIsChanged)
{
    const CString a(L"one text");
    CString b = a;
    EXPECT_EQ(a.GetString(), b.GetString());
    b.SetAt(0, L'O');
    EXPECT_NE(a.GetString(), b.GetString());
    EXPECT_EQ(a, L"one text");
    EXPECT_EQ(b, L"One text");
}

TEST(CString, AppendingItselfDoublesTheText)
{
    CString s(L"ab");
    s += s;
    s += s.GetString() + 1;
    EXPECT_EQ(s, L"ababbab");
}

TEST(CString, FormatsAsTheWideFunctionsOfWindowsDo)
{
    CString s;
    s.Format(L"%s %S %5.2f %04X %I64d %c", L"wide", "narrow", 3.14159, 0xABCu, 1LL << 40, L'z');
    EXPECT_EQ(s, L"wide narrow  3.14 0ABC 1099511627776 z");
}

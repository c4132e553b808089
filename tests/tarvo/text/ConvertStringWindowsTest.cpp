#include "tarvo/text/ConvertString.h"

#include "tests/support/print.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <windows.h>

// The system's own functions give the same.
TEST(CConvertString, NumbersAreThoseOfTheCLibrary)
{
    const wchar_t* const texts[] = {L"12abc",    L"",           L"abc",         L" 12",
                                    L"+5",       L"--5",        L"- 5",         L"010",
                                    L"0x10",     L"1.5",        L".5",          L"-.5e1",
                                    L"1e",       L"1e+",        L"1e5x",        L"1d5",
                                    L"1D-2",     L"inf",        L"nan",         L"0x1p3",
                                    L"1,5",      L"1.2.3",      L".",           L"-",
                                    L"5.",       L"1e400",      L"-1e400",      L"1e-400",
                                    L"4.9e-324", L"2147483648", L"-2147483649", L"99999999999999999999",
                                    L"0.1"};
    for (const wchar_t* text : texts)
    {
        const CString str(text);
        EXPECT_EQ(CConvertString::CStringToInteger(str), _wtoi(text)) << testing::PrintToString(str);
        EXPECT_EQ(CConvertString::CStringToLong(str), _wtol(text)) << testing::PrintToString(str);
        EXPECT_EQ(CConvertString::CStringToDouble(str), _wtof(text)) << testing::PrintToString(str);
    }
}

TEST(CConvertString, EveryUnitIsTheDigitOrBlankThatItIsInTheCLibrary)
{
    for (unsigned unit = 1; unit < 0x10000; ++unit)
    {
        if (unit == 0x85) // white space in the library, not for Wine
            continue;
        const wchar_t text[] = {static_cast<wchar_t>(unit), L'7', 0};
        EXPECT_EQ(CConvertString::CStringToInteger(text), _wtoi(text)) << unit;
    }
}

TEST(CConvertString, ConversionIsThatOfTheSystem)
{
    const char* const texts[] = {"",         "a",        "a\xB0",    "\xB0\xA1", "\xE3",
                                 "\xE3\x81", "\xE3\x41", "\xB0\x41", "\xFF\x80"};
    for (const unsigned page : {949u, 932u, 936u, 950u, 1251u, 1252u, 65001u})
        for (const char* text : texts)
            for (const int length : {-1, static_cast<int>(std::strlen(text))})
            {
                wchar_t buffer[16];
                int n = MultiByteToWideChar(page, 0, text, length, buffer, 16);
                n -= length < 0 ? 1 : 0;
                EXPECT_EQ(CConvertString::MultiToWide(text, length, page), std::wstring(buffer, n))
                    << page << " " << length;
            }
}

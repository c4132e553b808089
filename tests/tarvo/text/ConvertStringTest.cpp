#include "tarvo/text/ConvertString.h"

#include "tests/support/print.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

using namespace std::string_literals;

namespace
{
CString with_commas(ULONGLONG value)
{
    CString text(L"left over");
    EXPECT_EQ(CConvertString::AddCommaToNumber(value, text), 1);
    return text;
}

constexpr double inf = std::numeric_limits<double>::infinity();
} // namespace

TEST(CConvertString, LengthOfMinusOneEndsAtTheNullAndDropsIt)
{
    EXPECT_EQ(CConvertString::MultiToWide("a\xB0\xA1", -1, 949), L"a가"s);
    EXPECT_EQ(CConvertString::MultiToWide("ab\0cd", -1, 949), L"ab"s);
    EXPECT_EQ(CConvertString::MultiToWide("", -1, 949), L""s);
    EXPECT_EQ(CConvertString::WideToMulti(L"a가", -1, 949), "a\xB0\xA1"s);
    EXPECT_EQ(CConvertString::WideToMulti(L"ab\0cd", -1, 949), "ab"s);
    EXPECT_EQ(CConvertString::WideToMulti(L"", -1, 949), ""s);
}

TEST(CConvertString, ExplicitLengthGivesExactlyItsCharactersNullsIncluded)
{
    EXPECT_EQ(CConvertString::MultiToWide("ab\0cd", 5, 949), L"ab\0cd"s);
    EXPECT_EQ(CConvertString::MultiToWide("ab\0", 3, 949), L"ab\0"s);
    EXPECT_EQ(CConvertString::MultiToWide("abcd", 2, 949), L"ab"s);
    EXPECT_EQ(CConvertString::MultiToWide("\0", 1, 65001), L"\0"s);
    EXPECT_EQ(CConvertString::WideToMulti(L"ab\0cd", 5, 949), "ab\0cd"s);
    EXPECT_EQ(CConvertString::WideToMulti(L"abcd", 2, 949), "ab"s);
}

TEST(CConvertString, NothingToConvertGivesAnEmptyText)
{
    EXPECT_EQ(CConvertString::MultiToWide("ab", 0, 949), L""s);
    EXPECT_EQ(CConvertString::MultiToWide(nullptr, -1, 949), L""s);
    EXPECT_EQ(CConvertString::MultiToWide(nullptr, 3, 949), L""s);
    EXPECT_EQ(CConvertString::WideToMulti(L"ab", 0, 949), ""s);
    EXPECT_EQ(CConvertString::WideToMulti(nullptr, -1, 949), ""s);
}

TEST(CConvertString, PageThatTheSystemHasNotGivesAnEmptyText)
{
    EXPECT_EQ(CConvertString::MultiToWide("ab", -1, 12345), L""s);
    EXPECT_EQ(CConvertString::MultiToWide("ab", 2, 12345), L""s);
    EXPECT_EQ(CConvertString::WideToMulti(L"ab", -1, 12345), ""s);
    EXPECT_EQ(CConvertString::WideToMulti(L"ab", 2, 0xFFFFFFFFu), ""s);
}

TEST(CConvertString, OtherNegativeLengthsEndAtTheNullToo)
{
    EXPECT_EQ(CConvertString::MultiToWide("ab", -2, 949), L"ab"s);
    EXPECT_EQ(CConvertString::WideToMulti(L"ab", -2, 949), "ab"s);
}

TEST(CConvertString, EveryPageReadsItsOwnBytes)
{
    EXPECT_EQ(CConvertString::MultiToWide("\x88\x9F\xB1", -1, 932), L"亜ｱ"s);
    EXPECT_EQ(CConvertString::MultiToWide("\xB0\xA1", -1, 936), L"啊"s);
    EXPECT_EQ(CConvertString::MultiToWide("\xA4\x40", -1, 950), L"一"s);
    EXPECT_EQ(CConvertString::MultiToWide("\xC6", -1, 1251), L"Ж"s);
    EXPECT_EQ(CConvertString::MultiToWide("\xE9", -1, 1252), L"é"s);
    EXPECT_EQ(CConvertString::MultiToWide("\xEA\xB0\x80", -1, 65001), L"가"s);
    EXPECT_EQ(CConvertString::MultiToWide("\xF0\x9F\x98\x80", -1, 65001), L"\xD83D\xDE00"s);
    EXPECT_EQ(CConvertString::WideToMulti(L"\xD83D\xDE00", 2, 65001), "\xF0\x9F\x98\x80"s);
    EXPECT_EQ(CConvertString::WideToMulti(L"\xD83D", 1, 65001), "\xEF\xBF\xBD"s) << "half a pair";
    EXPECT_EQ(CConvertString::WideToMulti(L"Ж가", 2, 1251), "\xC6?"s) << "no such character";
    EXPECT_EQ(CConvertString::WideToMulti(L"Ａ", 1, 1252), "A"s) << "best fit";
}

TEST(CConvertString, CharacterCutByTheEndIsTheDefaultCharacter)
{
    EXPECT_EQ(CConvertString::MultiToWide("a\xB0", -1, 949), L"a?"s);
    EXPECT_EQ(CConvertString::MultiToWide("a\xB0", 2, 949), L"a?"s);
    EXPECT_EQ(CConvertString::MultiToWide("\xB0\xA1\xB0\xA1", 3, 949), L"가?"s);
    EXPECT_EQ(CConvertString::MultiToWide("\xE3\x81", -1, 65001), L"\xFFFD"s);
    EXPECT_EQ(CConvertString::MultiToWide("\xE3\x41", -1, 65001), L"\xFFFD\x41"s);
    EXPECT_EQ(CConvertString::MultiToWide("\xE3\x41", 2, 65001), L"\xFFFD"s) << "as the system has it";
}

TEST(CConvertString, LongTextsComeWhole)
{
    std::string bytes;
    std::wstring units;
    for (int i = 0; i < 100000; ++i)
    {
        bytes += i % 2 ? "\xB0\xA1" : "a";
        units += i % 2 ? L'가' : L'a';
    }
    EXPECT_EQ(CConvertString::MultiToWide(bytes.c_str(), -1, 949), units);
    EXPECT_EQ(CConvertString::WideToMulti(units.c_str(), -1, 949), bytes);
}

TEST(CConvertString, FrameworkStringHoldsTheSame)
{
    EXPECT_EQ(CConvertString::MultiToWideCSting("\xB0\xA1", -1, 949), L"가");
    const CString withNull = CConvertString::MultiToWideCSting("a\0b", 3, 949);
    ASSERT_EQ(withNull.GetLength(), 3);
    EXPECT_EQ(withNull[2], L'b');
    EXPECT_TRUE(CConvertString::MultiToWideCSting(nullptr, -1, 949).IsEmpty());
}

TEST(CConvertString, IntegerIsTheNumberAtTheFront)
{
    const struct
    {
        const wchar_t* text;
        int value;
    } rows[] = {
        {L"12abc", 12},
        {L"abc", 0},
        {L"", 0},
        {L" \t\r\n\v\f12", 12},
        {L"\x3000\xA0\x2003"
         L"12",
         12},
        {L"+5", 5},
        {L"-5", -5},
        {L"--5", 0},
        {L"+-5", 0},
        {L"- 5", 0},
        {L"-", 0},
        {L"010", 10},
        {L"0x10", 0},
        {L"1.9", 1},
        {L"1,234", 1},
        {L"2147483647", 2147483647},
        {L"2147483648", 2147483647},
        {L"-2147483648", INT32_MIN},
        {L"-2147483649", INT32_MIN},
        {L"4294967296", 2147483647},
        {L"-99999999999999999999999999", INT32_MIN},
        {L"\xFF11\xFF12", 12},
        {L"1\x0662", 12},
        {L"\x0967\x0E52", 12},
        {L"\x0BE7", 0},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(CConvertString::CStringToInteger(row.text), row.value)
            << testing::PrintToString(CString(row.text));
        EXPECT_EQ(CConvertString::CStringToLong(row.text), row.value)
            << testing::PrintToString(CString(row.text));
    }
    static_assert(std::is_same_v<decltype(CConvertString::CStringToLong(CString())), long>);
    EXPECT_EQ(CConvertString::CStringToInteger(CString(L"1\0"
                                                       L"2",
                                                       3)),
              1)
        << "a text ends at its null";
}

TEST(CConvertString, DoubleIsTheNumberAtTheFront)
{
    const struct
    {
        const wchar_t* text;
        double value;
    } rows[] = {
        {L"", 0},
        {L"abc", 0},
        {L"12abc", 12},
        {L" \x3000"
         L"1.5",
         1.5},
        {L".5", 0.5},
        {L"5.", 5},
        {L".", 0},
        {L"-.5e1", -5},
        {L"+2.5E-1", 0.25},
        {L"1e", 1},
        {L"1e+", 1},
        {L"1e5x", 100000},
        {L"1d5", 100000},
        {L"1D-2", 0.01},
        {L"1,5", 1},
        {L"1.2.3", 1.2},
        {L"inf", 0},
        {L"-infinity", 0},
        {L"nan", 0},
        {L"0x1p3", 0},
        {L"\xFF11", 0},
        {L"0e5", 0},
        {L"0.1000000000000000055511151231257827021181583404541015625", 0.1},
        {L"123456789012345678901234567890", 1.2345678901234568e29},
        {L"4.9e-324", 4.9406564584124654e-324},
        {L"2e-324", 0},
        {L"1e-400", 0},
        {L"1e400", inf},
        {L"-1e400", -inf},
        {L"1e99999999999999999999", inf},
        {L"1e-99999999999999999999", 0},
        {L"1.7976931348623157e308", std::numeric_limits<double>::max()},
    };
    for (const auto& row : rows)
        EXPECT_EQ(CConvertString::CStringToDouble(row.text), row.value)
            << testing::PrintToString(CString(row.text));
    EXPECT_TRUE(std::signbit(CConvertString::CStringToDouble(L"-0")));
    EXPECT_FALSE(std::signbit(CConvertString::CStringToDouble(L"-")));
}

TEST(CConvertString, DoubleWithThousandsOfDigitsIsStillItsValue)
{
    const CString zeros(L'0', 5000);
    EXPECT_EQ(CConvertString::CStringToDouble(L"1" + zeros + L"e-5000"), 1);
    EXPECT_EQ(CConvertString::CStringToDouble(L"0." + zeros + L"1e5001"), 1);
    EXPECT_EQ(CConvertString::CStringToDouble(L"1" + zeros), inf);
    EXPECT_EQ(CConvertString::CStringToDouble(L"0." + zeros + L"1"), 0);
}

TEST(CConvertString, ThousandsAreSetOffByCommas)
{
    EXPECT_EQ(with_commas(0), L"0");
    EXPECT_EQ(with_commas(7), L"7");
    EXPECT_EQ(with_commas(999), L"999");
    EXPECT_EQ(with_commas(1000), L"1,000");
    EXPECT_EQ(with_commas(999999), L"999,999");
    EXPECT_EQ(with_commas(1000000), L"1,000,000");
    EXPECT_EQ(with_commas(1234567), L"1,234,567");
    EXPECT_EQ(with_commas(1001001), L"1,001,001");
    EXPECT_EQ(with_commas(999999999999ull), L"999,999,999,999");
    EXPECT_EQ(with_commas(1000000000000000ull), L"1,000,000,000,000,000");
    EXPECT_EQ(with_commas(1000000000000000000ull), L"1,000,000,000,000,000,000");
    EXPECT_EQ(with_commas(9999999999999999999ull), L"9,999,999,999,999,999,999");
    EXPECT_EQ(with_commas(18446744073709551615ull), L"18,446,744,073,709,551,615");
}

TEST(CConvertString, ValueWhoseLogarithmRoundsUpGetsOneGroupMore)
{
    EXPECT_EQ(with_commas(999999999999999999ull), L"0,999,999,999,999,999,999");
    EXPECT_EQ(with_commas(999999999999996032ull), L"0,999,999,999,999,996,032");
    EXPECT_EQ(with_commas(999999999999991808ull), L"999,999,999,999,991,808");
    EXPECT_EQ(with_commas(999999999999999ull), L"0,999,999,999,999,999");
    EXPECT_EQ(with_commas(999999999999998ull), L"0,999,999,999,999,998");
    EXPECT_EQ(with_commas(999999999999997ull), L"999,999,999,999,997");
}

TEST(CConvertString, GroupsAreThoseOfTheLogarithm)
{
    // Away from the last bit, where C libraries differ (999999999999995904), the library's own says the same.
    for (ULONGLONG power = 1000; power <= 1000000000000000000ull; power *= 1000)
        for (const ULONGLONG value : {power - 1, power, power + 1, power * 9, power - power / 100})
        {
            const int groups = static_cast<int>(std::log10(static_cast<double>(value))) / 3;
            EXPECT_EQ(CString(with_commas(value)).Remove(L','), groups) << value;
            if (power == 1000000000000000000ull)
                break;
        }
}

TEST(CConvertString, ObjectsCanBeMadeCopiedAndInherited)
{
    struct Derived : CConvertString
    {
    };
    Derived a;
    const Derived b(a);
    a = b;
    EXPECT_TRUE(std::has_virtual_destructor_v<CConvertString>);
}

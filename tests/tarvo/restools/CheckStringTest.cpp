#include "tarvo/restools/CheckString.h"

#include "script.h"

#include <gtest/gtest.h>

namespace
{
std::string Check(const char* text1, const char* text2, StringCheck mode)
{
    return Utf8(CheckString(Utf16(text1), Utf16(text2), mode));
}

std::string Percent(const char* text1, const char* text2)
{
    return Check(text1, text2, StringCheck::Percent);
}
std::string Backslash(const char* text1, const char* text2)
{
    return Check(text1, text2, StringCheck::Backslash);
}
} // namespace

TEST(CheckString, FindsNothingWhenItChecksNothing)
{
    EXPECT_EQ(Check("%d", "\\n", StringCheck::None), "");
    EXPECT_EQ(Check("a", "b", static_cast<StringCheck>(5)), "");
    EXPECT_EQ(Check("a", "b", static_cast<StringCheck>(-1)), "");
}

TEST(CheckString, ModesHaveTheNumbersOfTheChoice)
{
    EXPECT_EQ(static_cast<int>(StringCheck::None), 0);
    EXPECT_EQ(static_cast<int>(StringCheck::Percent), 1);
    EXPECT_EQ(static_cast<int>(StringCheck::Backslash), 2);
    EXPECT_EQ(static_cast<int>(StringCheck::Both), 3);
    EXPECT_EQ(static_cast<int>(StringCheck::FullString), 4);
}

TEST(CheckString, CountsPercentSigns)
{
    EXPECT_EQ(Percent("%d of %s", "%d"), "Different number of %-signs ('%d of %s', '%d')");
    EXPECT_EQ(Percent("", "%"), "Different number of %-signs ('', '%')");
    EXPECT_EQ(Percent("", ""), "");
    EXPECT_EQ(Percent("open", "열기"), "");
}

TEST(CheckString, ComparesPercentWordsInTheirOrder)
{
    EXPECT_EQ(Percent("%d of %s", "%s of %d"), "Different %-words (%d and %s)");
    EXPECT_EQ(Percent("Value %d%%", "Wert %d %%"), "");
    EXPECT_EQ(Percent("%d", "%s"), "Different %-words (%d and %s)");
    EXPECT_EQ(Percent("%5.2f", "%5.3f"), "") << "a word ends at the point";
    EXPECT_EQ(Percent("%5.2f", "%6.2f"), "Different %-words (%5 and %6)");
    EXPECT_EQ(Percent("50 % of", "50 %"), "") << "a sign by itself is a word";
    EXPECT_EQ(Percent("%d%", "%d %"), "");
    EXPECT_EQ(Percent("a %d b %d c %x", "a %d b %d c %X"), "Different %-words (%x and %X)");
    EXPECT_EQ(Percent("%%d", "%%"), "Different %-words (%%d and %%)");
    EXPECT_EQ(Percent("%% %", "% %%"), "Different %-words (%% and %)");
    EXPECT_EQ(Percent("%%%", "%%%"), "");
    EXPECT_EQ(Percent("%%%d", "%% %"), "Different %-words (%d and %)");
}

TEST(CheckString, TakesOnlyAsciiLettersAndDigitsIntoAPercentWord)
{
    EXPECT_EQ(Percent("%d files", "%d개"), "");
    EXPECT_EQ(Percent("%dé", "%d"), "");
    EXPECT_EQ(Percent("%d_", "%d"), "");
    EXPECT_EQ(Percent("%1azAZ09", "%1azAZ0"), "Different %-words (%1azAZ09 and %1azAZ0)");
}

TEST(CheckString, SeesDifferentNumbersOfWordsBehindEqualCounts)
{
    EXPECT_EQ(Percent("%%", "% %"), "Different %-words (%% and %)");
    EXPECT_EQ(Percent("%d %%", "%d % %x"), "Different %-words (%% and %)") << "three signs each";
    EXPECT_EQ(Percent("% %", "%%"), "Different %-words (% and %%)");
}

TEST(CheckString, CountsBackslashes)
{
    EXPECT_EQ(Backslash("a\\n", "a"), "Different number of \\-signs ('a\\n', 'a')");
    EXPECT_EQ(Backslash("a", "a\\n"), "Different number of \\-signs ('a', 'a\\n')");
}

TEST(CheckString, ComparesEachBackslashWithTheUnitBehindIt)
{
    EXPECT_EQ(Backslash("a\\nb", "x\\ny"), "");
    EXPECT_EQ(Backslash("a\\n", "a\\t"), "Different \\-characters (\\n and \\t)");
    EXPECT_EQ(Backslash("\\\\n", "\\\\t"), "") << "two backslashes are one word";
    EXPECT_EQ(Backslash("a\\", "a\\n"), "Different \\-characters (\\ and \\n)");
    EXPECT_EQ(Backslash("\\가", "\\나"), "Different \\-characters (\\가 and \\나)");
    EXPECT_EQ(Backslash("\\\\ \\", "\\ \\\\"), "Different \\-characters (\\\\ and \\ )");
    EXPECT_EQ(Backslash("%d", "%s"), "");
}

TEST(CheckString, JoinsBothProblems)
{
    EXPECT_EQ(Check("a", "a", StringCheck::Both), "");
    EXPECT_EQ(Check("%d", "%s", StringCheck::Both), "Different %-words (%d and %s)");
    EXPECT_EQ(Check("\\n", "\\t", StringCheck::Both), "Different \\-characters (\\n and \\t)");
    EXPECT_EQ(Check("%d\\n", "%s", StringCheck::Both),
              "Different %-words (%d and %s), Different number of \\-signs ('%d\\n', '%s')");
}

TEST(CheckString, ComparesWholeTexts)
{
    EXPECT_EQ(Check("a", "b", StringCheck::FullString), "Strings doesn't match: 1: 'a', 2: 'b')");
    EXPECT_EQ(Check("a", "A", StringCheck::FullString), "Strings doesn't match: 1: 'a', 2: 'A')");
    EXPECT_EQ(Check("a", "a", StringCheck::FullString), "");
    EXPECT_EQ(Check("", "", StringCheck::FullString), "");
}

TEST(CheckString, TakesTextsOfTheFrameworkAsWell)
{
    EXPECT_STREQ(CheckString(L"%d", L"%s", StringCheck::Percent), L"Different %-words (%d and %s)");
    EXPECT_STREQ(CheckString(nullptr, L"", StringCheck::FullString), L"");
}

#include "tarvo/msg/MessageText.h"

#include "tests/support/print.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
struct Row
{
    const char16_t* line;
    const wchar_t* entry; ///< "key|text"; null for a line without an entry
};

CString text_of(units::view value)
{
    std::u16string text(value);
    text.resize(msgtext::Unescape(text.data(), text.size()));
    return units::to_string(text);
}

void check(const Row& row)
{
    SCOPED_TRACE(testing::PrintToString(std::u16string(row.line)));
    units::view key, value;
    ASSERT_EQ(msgtext::ParseEntry(row.line, textline::MarkLine(row.line), key, value), row.entry != nullptr);
    if (row.entry)
    {
        EXPECT_EQ(units::to_string(key) + L"|" + text_of(value), row.entry);
    }
}

/// The escapes as they are stated: one replacement after the other, each over the whole text.
CString replaced(const std::u16string& value)
{
    CString text = units::to_string(value);
    text.Replace(L"\\n", L"\n");
    text.Replace(L"\\t", L"\t");
    text.Replace(L"\\r", L"\r");
    text.Replace(L"\"\"", L"\"");
    text.Replace(L"\\\\", L"\\");
    return text;
}

CString font_after(std::initializer_list<units::view> lines)
{
    CString name(L"Old");
    int size = 9;
    for (const units::view line : lines)
        msgtext::ReadFontLine(line, name, size);
    CString text;
    text.Format(L"%s/%d", name.GetString(), size);
    return text;
}
} // namespace

TEST(MessageText, EveryLineThatIsNoCommentAndNoSectionHasAnEntry)
{
    const Row rows[] = {
        {u"", nullptr},
        {u" \t\x3000", nullptr},
        {u"; KEY=\"x\"", nullptr},
        {u"  ;KEY=\"x\"", nullptr},
        {u"[KEY]", nullptr},
        {u"[KEY=\"x\"", nullptr},
        {u"  [KEY]", nullptr},
        {u"/KEY=x", L"/KEY|x"},
        {u"KEY", L"KEY|"},
        {u"=", L"|"},
        {u"=x", L"|x"},
        {u"KEY=", L"KEY|"},
        {u"  KEY=\"x\"  ", L"KEY|x"},
        {u"\x3000KEY=\"x\"\x00A0", L"KEY|x"},
        {u"A=x=y", L"A|x=y"},
    };
    for (const Row& row : rows)
        check(row);
}

TEST(MessageText, TheValueIsCountedFromTheEndOfTheLine)
{
    const Row rows[] = {
        {u"A=x", L"A|x"},
        {u"A = x", L"A|= x"},
        {u"A =x", L"A|=x"},
        {u"A= x", L"A| x"},
        {u"A = \"x\"", L"A|x"},
        {u"  A  =x", L"A| =x"},
        {u"Note/**/A=x", L"A|te/**/A=x"},
        {u"Note/**/ABC", L"ABC|/**/ABC"},
    };
    for (const Row& row : rows)
        check(row);
}

TEST(MessageText, ARemarkBeforeTheKeyIsCutOff)
{
    const Row rows[] = {
        {u"/**/OK_BUTTON = \"OK\"", L"OK_BUTTON|OK"},
        {u"Note/**/KEY=\"x\"", L"KEY|x"},
        {u"a/**/b/**/KEY=\"x\"", L"b/**/KEY|x"},
        {u"; no remark/**/KEY=\"x\"", nullptr},
        {u"KEY/**/=\"x\"", L"|x"},
        {u"KEY/*/=\"x\"", L"KEY/*/|x"},
        {u"KEY=\"a/**/b\"", L"KEY|a/**/b"},
        {u"a=b/**/KEY=\"x\"", L"a|x"},
        {u"\"q\"/**/KEY=\"x\"", L"KEY|x"},
    };
    for (const Row& row : rows)
        check(row);
}

TEST(MessageText, TheTextLiesBetweenTheFirstAndTheLastQuote)
{
    const Row rows[] = {
        {u"KEY=\"He said \"\"hi\"\"\"", L"KEY|He said \"hi\""},
        {u"A=\"x", L"A|x"},
        {u"A=x\"", L"A|"},
        {u"A=x\"y", L"A|y"},
        {u"A=\"\"", L"A|"},
        {u"A=\"", L"A|"},
        {u"A=\"a\" rest \"b\" end", L"A|a\" rest \"b"},
        {u"A=\"a\" ; comment", L"A|a"},
        {u"A=\" x \"", L"A| x "},
        {u"A=\"x\"\"", L"A|x\""},
        {u"A=\"\"\"\"\"", L"A|\"\""},
        {u"A=x\"\"y", L"A|"},
    };
    for (const Row& row : rows)
        check(row);
}

TEST(MessageText, EscapesAreReplacedInTheirOrder)
{
    const Row rows[] = {
        {u"A=\"1\\n2\\t3\\r4\\\\5\"", L"A|1\n2\t3\r4\\5"},
        {u"A=\"\\\\n\"", L"A|\\\n"},
        {u"A=\"C:\\\\temp\\\\new\"", L"A|C:\\\temp\\\new"},
        {u"A=\"\\\\\\\\n\"", L"A|\\\\\n"},
        {u"A=\"\\\\\\n\"", L"A|\\\n"},
        {u"A=\"\\x\\\"", L"A|\\x\\"},
        {u"A=\"\\\"\"n\"", L"A|\\\"n"},
        {u"A=\"\"\"\\\\\"\"\"", L"A|\"\\\""},
        {u"A=\\n", L"A|\n"},
        {u"\\n=x", L"\\n|x"},
    };
    for (const Row& row : rows)
        check(row);
}

TEST(MessageText, EveryOrderOfEscapesGivesWhatOneReplacementAfterTheOtherGives)
{
    constexpr std::u16string_view kUnits = u"\\ntr\"x";
    std::u16string text;
    for (int length = 0; length <= 6; ++length)
    {
        int count = 1;
        for (int i = 0; i < length; ++i)
            count *= static_cast<int>(kUnits.size());
        for (int number = 0; number < count; ++number)
        {
            text.clear();
            for (int i = 0, rest = number; i < length; ++i, rest /= static_cast<int>(kUnits.size()))
                text += kUnits[static_cast<std::size_t>(rest) % kUnits.size()];
            ASSERT_EQ(text_of(text), replaced(text)) << testing::PrintToString(text);
            ASSERT_TRUE(msgtext::HasEscapes(text) || text_of(text) == units::to_string(text));
        }
    }
}

TEST(MessageText, AFontLineIsTakenAsItStands)
{
    EXPECT_EQ(font_after({u"FONT=Arial", u"SIZE=10"}), L"Arial/10");
    EXPECT_EQ(font_after({u"font=Arial", u"Size=10"}), L"Arial/10");
    EXPECT_EQ(font_after({u"FONT = Arial", u"SIZE =10", u" FONT=Arial", u" SIZE=10"}), L"Old/9");
    EXPECT_EQ(font_after({u"FONT= Arial "}), L" Arial /9");
    EXPECT_EQ(font_after({u"FONT=\"Arial\""}), L"\"Arial\"/9");
    EXPECT_EQ(font_after({u"FONT=a=b"}), L"a=b/9");
    EXPECT_EQ(font_after({u"FONT="}), L"/9");
    EXPECT_EQ(font_after({u"FONT", u"SIZE", u"", u"=x", u"FONTS=x", u"NAME=x"}), L"Old/9");
    EXPECT_EQ(font_after({u";FONT=a", u"/FONT=a", u"[FONT=a", u"//SIZE=1"}), L"Old/9");
    EXPECT_EQ(font_after({u"FONT=A", u"SIZE=1", u"FONT=B", u"SIZE=2"}), L"B/2");
}

TEST(MessageText, AFontSizeIsTheNumberAtTheFront)
{
    EXPECT_EQ(font_after({u"SIZE= 12pt"}), L"Old/12");
    EXPECT_EQ(font_after({u"SIZE=-3"}), L"Old/-3");
    EXPECT_EQ(font_after({u"SIZE=large"}), L"Old/0");
    EXPECT_EQ(font_after({u"SIZE="}), L"Old/0");
    EXPECT_EQ(font_after({u"SIZE=99999999999"}), L"Old/2147483647");
    EXPECT_EQ(font_after({u"SIZE=-99999999999"}), L"Old/-2147483648");
    EXPECT_EQ(font_after({u"SIZE=9.5"}), L"Old/9");
}

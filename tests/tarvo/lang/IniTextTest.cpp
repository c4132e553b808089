#include "tarvo/lang/IniText.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

using namespace initext;

namespace
{
std::vector<std::u16string> lines_of(const std::u16string& text)
{
    CLineReader reader(text);
    std::vector<std::u16string> lines;
    LineMarks marks;
    for (units::view line; reader.ReadALine(line, marks);)
        lines.emplace_back(line);
    return lines;
}
using Lines = std::vector<std::u16string>;
} // namespace

TEST(IniLines, EndAtLineFeedsAndLoseReturnsAndOuterWhiteSpace)
{
    EXPECT_EQ(lines_of(u""), Lines{});
    EXPECT_EQ(lines_of(u"\n"), Lines{u""});
    EXPECT_EQ(lines_of(u"a\nb"), (Lines{u"a", u"b"}));
    EXPECT_EQ(lines_of(u"a\r\nb\r\n"), (Lines{u"a", u"b"}));
    EXPECT_EQ(lines_of(u"\ra\rb\r\r\n\rc"), (Lines{u"ab", u"c"}));
    EXPECT_EQ(lines_of(u"\r"), Lines{}) << "nothing collected, no line feed";
    EXPECT_EQ(lines_of(u"  a\tb \t\u3000\nlast  "), (Lines{u"a\tb", u"last"}));
    EXPECT_EQ(lines_of(u"long enough for words\rof four units\x01 and more\n\n"),
              (Lines{u"long enough for wordsof four units\x01 and more", u""}));
}

TEST(IniLines, EndAtANulWhateverFollows)
{
    using namespace std::string_literals;
    EXPECT_EQ(lines_of(u"a\nb\0c\nd"s), (Lines{u"a", u"b"}));
    EXPECT_EQ(lines_of(u"\0a"s), Lines{});
}

TEST(IniLines, AreClassifiedInTheOrderBlankSectionCommentDataOther)
{
    const struct
    {
        units::view line;
        LINE_TYPE type;
    } rows[] = {
        {u"", LINE_BLANK},       {u"[a]", LINE_SECTION}, {u"[a=b]", LINE_SECTION}, {u"[]", LINE_SECTION},
        {u";x=y", LINE_COMMENT}, {u";", LINE_COMMENT},   {u";]", LINE_COMMENT},    {u"x=y", LINE_DATA},
        {u"=", LINE_DATA},       {u"[a=b", LINE_DATA},   {u"name", LINE_OTHER},    {u"[", LINE_OTHER},
        {u"]", LINE_OTHER},      {u"[a", LINE_OTHER},    {u"a]", LINE_OTHER},      {u"a;", LINE_OTHER},
    };
    for (const auto& row : rows)
        EXPECT_EQ(GetLineType(row.line, MarkLine(row.line)), row.type)
            << testing::PrintToString(std::u16string(row.line));
    EXPECT_EQ(LINE_SECTION, 0);
    EXPECT_EQ(LINE_DATA, 1);
    EXPECT_EQ(LINE_COMMENT, 2);
    EXPECT_EQ(LINE_BLANK, 3);
    EXPECT_EQ(LINE_OTHER, 4);
}

TEST(IniLines, NameASectionByWhatStandsBetweenTheBrackets)
{
    EXPECT_EQ(ParseSection(u"[a b]"), u"a b");
    EXPECT_EQ(ParseSection(u"[ \ta ]"), u"a");
    EXPECT_EQ(ParseSection(u"[[a]]"), u"[a]");
    EXPECT_EQ(ParseSection(u"[]"), u"");
    EXPECT_EQ(ParseSection(u"[  ]"), u"");
    EXPECT_EQ(ParseSection(u"["), u"");
}

TEST(IniLines, SplitIntoKeyAndValue)
{
    const struct
    {
        units::view line, key, value;
    } rows[] = {
        {u"key=abc", u"key", u"abc"},
        {u"key = abc", u"key", u"= abc"},
        {u"key= abc", u"key", u" abc"},
        {u"key  =abc", u"key", u" =abc"},
        {u"key=\"x", u"key", u"x"},
        {u"key=a\"x", u"key", u"x"},
        {u"key=\"\"", u"key", u""},
        {u"key=\"", u"key", u""},
        {u"key = \"a \"b\" c\"", u"key", u"a \"b\" c"},
        {u"key = \"  spaces stay  \"", u"key", u"  spaces stay  "},
        {u"key=\"v\" trailing", u"key", u"v"},
        {u"key=a=b", u"key", u"a=b"},
        {u"=x", u"", u"x"},
        {u" =x", u"", u"=x"},
        {u"=", u"", u""},
        {u"key=", u"key", u""},
        {u"rem/**/key=\"v\"", u"key", u"v"},
        {u"rem/**/ key =\"v\"", u"key", u"v"},
        {u"a/**/b/**/c=\"v\"", u"b/**/c", u"v"},
        {u"rem/**/key=v", u"key", u"**/key=v"}, // counted from the end by the key's length
        {u"a/*/b=v", u"a/*/b", u"v"},
        {u"/**/=v", u"", u"**/=v"},
        {u"k=x/**/y", u"k", u"x/**/y"},
        {u"q\"k\"=v", u"q\"k\"", u"v"},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(testing::PrintToString(std::u16string(row.line)));
        units::view key, value;
        ASSERT_TRUE(ParseData(row.line, MarkLine(row.line), key, value));
        EXPECT_EQ(std::u16string(key), std::u16string(row.key));
        EXPECT_EQ(std::u16string(value), std::u16string(row.value));
    }
}

TEST(IniLines, ThatAreNoDataAreRefused)
{
    units::view key, value;
    for (const units::view line :
         {units::view(), units::view(u";a=b"), units::view(u"[a=b"), units::view(u"word")})
        EXPECT_FALSE(ParseData(line, MarkLine(line), key, value))
            << testing::PrintToString(std::u16string(line));
}

TEST(IniLines, SkipBlanksAndTabsOnly)
{
    EXPECT_STREQ(SkipWhiteSpace(L" \t x"), L"x");
    EXPECT_STREQ(SkipWhiteSpace(L"\r x"), L"\r x");
    EXPECT_STREQ(SkipWhiteSpace(L""), L"");
}

TEST(IniBytes, AreUtf16OnlyWithTheLittleEndianMark)
{
    using namespace std::string_view_literals;
    EXPECT_TRUE(IsUnicodeFileHeader("\xFF\xFE"sv));
    EXPECT_TRUE(IsUnicodeFileHeader("\xFF\xFE\0\0"sv));
    EXPECT_FALSE(IsUnicodeFileHeader("\xFE\xFF"sv));
    EXPECT_FALSE(IsUnicodeFileHeader("\xEF\xBB\xBF"sv));
    EXPECT_FALSE(IsUnicodeFileHeader("\xFF"sv));
    EXPECT_FALSE(IsUnicodeFileHeader(""sv));
}

TEST(IniBytes, EncodeWithTheTerminatorCounted)
{
    int size = 0;
    const auto bytes = Unicode2Ascii(L"\xAC00z", 949, size);
    ASSERT_TRUE(bytes);
    EXPECT_EQ(size, 4);
    EXPECT_STREQ(bytes.get(), "\xB0\xA1z");
    const auto empty = Unicode2Ascii(nullptr, 949, size);
    ASSERT_TRUE(empty);
    EXPECT_EQ(size, 1);
    EXPECT_STREQ(empty.get(), "");
}

TEST(IniBytes, AreNotEncodedWhereTwoBytesACharacterDoNotSuffice)
{
    int size = -1;
    EXPECT_FALSE(Unicode2Ascii(L"\xAC00\xAC00\xAC00", 65001, size));
    EXPECT_FALSE(Unicode2Ascii(L"a", 12345, size));
    EXPECT_EQ(size, -1);
    EXPECT_TRUE(Unicode2Ascii(L"\xAC00", 65001, size)) << "three bytes and the NUL fill the room exactly";
    EXPECT_EQ(size, 4);
}

TEST(IniNumbers, AreReadAsIn32Bits)
{
    const struct
    {
        const wchar_t* text;
        int radix;
        unsigned number;
    } rows[] = {
        {L"949", 10, 949},
        {L" \t949x", 10, 949},
        {L"+7", 10, 7},
        {L"-1", 10, 0xFFFFFFFF},
        {L"-2147483648", 10, 0x80000000},
        {L"4294967295", 10, 0xFFFFFFFF},
        {L"4294967296", 10, 0xFFFFFFFF},
        {L"-4294967296", 10, 0xFFFFFFFF},
        {L"99999999999", 10, 0xFFFFFFFF},
        {L"", 10, 0},
        {L"x", 10, 0},
        {L"-", 10, 0},
        {L"- 1", 10, 0},
        {L"0x3E9", 0, 1001},
        {L"0X3e9", 16, 1001},
        {L"0x3E9", 10, 0},
        {L"0x", 0, 0},
        {L"0xg", 16, 0},
        {L"017", 0, 15},
        {L"017", 10, 17},
        {L"08", 0, 0},
        {L"17", 0, 17},
        {L"zZ", 36, 35 * 36 + 35},
        {L"102", 2, 2},
        {L"12", 1, 0},
        {L"12", 37, 0},
        {L"12", -1, 0},
        {nullptr, 10, 0},
        {L"ff", 16, 255},
        {L"-0x10", 0, 0xFFFFFFF0},
    };
    for (const auto& row : rows)
        EXPECT_EQ(ToUnsigned(row.text, row.radix), row.number)
            << (row.text ? testing::PrintToString(std::wstring(row.text)) : "null") << " radix " << row.radix;
}

TEST(IniLines, AreMarkedTheSameHoweverLongTheyAre)
{
    std::mt19937 random(1234);
    for (int round = 0; round < 4000; ++round)
    {
        std::u16string text(random() % 200, u'x');
        for (char16_t& unit : text)
            if (random() % 24 == 0)
                unit = u"=\"/\t\u043D\u3D3D\u2222\n\r"[random() % 9];
        const std::size_t end = std::min(text.find_first_of(u"\t\n\r"), text.size());
        const units::view line = units::view(text).substr(0, end);
        const auto at = [&line](std::size_t found) {
            return found == units::view::npos ? nullptr : line.data() + found;
        };
        LineMarks marks;
        const char16_t* const last = text.data() + text.size();
        ASSERT_EQ(textline::CLineMarker(text).Mark(text.data(), last, marks), text.data() + end);
        ASSERT_EQ(marks.equals, at(line.find(u'=')));
        ASSERT_EQ(marks.quote, at(line.find(u'"')));
        ASSERT_EQ(marks.lastQuote, at(line.rfind(u'"')));
        ASSERT_EQ(marks.slash, line.find(u'/') != units::view::npos);
    }
}

TEST(IniLines, OfALongTextAreMarkedAsEachAlone)
{
    std::mt19937 random(99);
    std::u16string text;
    while (text.size() < 20000)
    {
        const bool isDense = random() % 16 == 0;
        for (std::size_t i = random() % (random() % 9 == 0 ? 3000 : 90); i != 0; --i)
            text += random() % (isDense ? 2 : 20) == 0 ? u"=\"/\t\u3D3D"[random() % 5] : u'x';
        text += u'\n';
    }
    CLineReader reader(text);
    std::size_t begin = 0;
    units::view line;
    for (LineMarks marks; reader.ReadALine(line, marks);)
    {
        const std::size_t end = text.find(u'\n', begin);
        ASSERT_EQ(line, units::trim(units::view(text).substr(begin, end - begin)));
        const LineMarks alone = MarkLine(units::view(text).substr(begin, end - begin));
        ASSERT_EQ(marks.equals, alone.equals);
        ASSERT_EQ(marks.quote, alone.quote);
        ASSERT_EQ(marks.lastQuote, alone.lastQuote);
        ASSERT_EQ(marks.slash, alone.slash);
        begin = end + 1;
    }
    EXPECT_EQ(begin, text.size());
}

#include "tarvo/text/TextDecode.h"

#include "platform/codepage.h"
#include "tests/tarvo/text/AnsiPage.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

using namespace std::string_literals;

namespace
{
std::u16string Decoded(std::string_view bytes)
{
    const CTextMark mark = FindTextMark(bytes);
    bytes.remove_prefix(mark.length);
    std::u16string units(bytes.size(), u'?');
    units.resize(DecodeTextPart(mark.encoding, bytes, units.data()));
    return units;
}
} // namespace

TEST(TextMark, IsTwoOrThreeBytesAndTellsTheEncoding)
{
    const struct
    {
        std::string bytes;
        TextEncoding encoding;
        std::size_t length;
    } rows[] = {
        {"\xFF\xFE", TextEncoding::Utf16LittleEndian, 2},
        {"\xFE\xFF", TextEncoding::Utf16BigEndian, 2},
        {"\xEF\xBB\xBF", TextEncoding::Utf8, 3},
        {"\xEF\xBB\xBE", TextEncoding::Ansi, 0},
        {"\xEF\xBB", TextEncoding::Ansi, 0},
        {"\xFF", TextEncoding::Ansi, 0},
        {"\xFE\xFE", TextEncoding::Ansi, 0},
        {"text", TextEncoding::Ansi, 0},
        {"", TextEncoding::Ansi, 0},
    };
    for (const auto& row : rows)
    {
        const CTextMark mark = FindTextMark(row.bytes);
        EXPECT_EQ(mark.encoding, row.encoding) << testing::PrintToString(row.bytes);
        EXPECT_EQ(mark.length, row.length) << testing::PrintToString(row.bytes);
    }
    EXPECT_EQ(static_cast<int>(TextEncoding::Ansi), 0);
    EXPECT_EQ(static_cast<int>(TextEncoding::Utf16BigEndian), 1);
    EXPECT_EQ(static_cast<int>(TextEncoding::Utf16LittleEndian), 2);
    EXPECT_EQ(static_cast<int>(TextEncoding::Utf8), 3);
}

TEST(DecodeText, DropsTheMarkAndKeepsTheBreaks)
{
    EXPECT_EQ(Decoded("\xFF\xFE"s), u"");
    EXPECT_EQ(Decoded("\xFF\xFE\x0A\0\x00\xAC"s), u"\n가");
    EXPECT_EQ(Decoded("\xFE\xFF\0\x0D\0\x0A\xAC\x00"s), u"\r\n가");
    EXPECT_EQ(Decoded("\xEF\xBB\xBF"
                      "a\r\n\xEA\xB0\x80"s),
              u"a\r\n가");
    EXPECT_EQ(Decoded(""), u"");
}

TEST(DecodeText, LeavesTheOddLastByteOfWideText)
{
    EXPECT_EQ(Decoded("\xFF\xFE"
                      "a\0b"s),
              u"a");
    EXPECT_EQ(Decoded("\xFE\xFF\0"s), u"");
}

TEST(DecodeText, KeepsLoneSurrogatesOfWideText)
{
    EXPECT_EQ(Decoded("\xFF\xFE\x00\xD8"s), std::u16string(1, 0xD800));
}

TEST(DecodeText, ReadsUtf8WithoutAMarkInTheAnsiPage)
{
    const AnsiPage page(1252);
    EXPECT_EQ(Decoded("\xC3\xA4"s), u"Ã¤");
    EXPECT_EQ(Decoded("\xEF\xBB?"s), u"ï»?") << "no byte of the half mark is lost";
}

TEST(DecodeText, NeverTakesALineBreakForTheSecondHalfOfACharacter)
{
    const AnsiPage page(949);
    EXPECT_EQ(Decoded("\xB0\xA1\n\xB0\xA1\r\n\xB0\xA1"s), u"가\n가\r\n가");
    for (const std::string broken : {"\n", "\r", "\r\n", "\n\n", "\r\r\n"})
    {
        const auto half = platform::codepage::decode(949, "\xB0");
        const std::u16string marker(half->begin(), half->end());
        const std::u16string breaks(broken.begin(), broken.end());
        EXPECT_EQ(Decoded("a\xB0" + broken + "b\xB0"), u"a" + marker + breaks + u"b" + marker);
    }
}

TEST(DecodeText, NeverDoesSoWhereverInALongTextTheBreakStands)
{
    for (const auto& [page, half] : {std::pair(949, "\xB0"), std::pair(65001, "\xEA\xB0")})
    {
        const AnsiPage ansi(page);
        const auto marker = platform::codepage::decode(page, half);
        for (std::size_t before = 0; before < 200; ++before)
        {
            const std::string plain(before, 'a'), rest(100, 'b');
            std::u16string wanted(before, u'a');
            wanted.append(marker->begin(), marker->end()).append(u"\n").append(100, u'b');
            ASSERT_EQ(Decoded(plain + half + "\n" + rest), wanted) << page << ' ' << before;
        }
    }
}

// The pieces that the decoder makes are an optimisation: line by line is the rule.
TEST(DecodeText, GivesForAnyBytesWhatDecodingEachLineGives)
{
    std::mt19937 random(7);
    for (const int number : {949, 932, 936, 1251, 65001})
    {
        const AnsiPage page(number);
        for (int round = 0; round < 400; ++round)
        {
            std::string bytes = "x";
            for (unsigned length = random() % 200; length != 0; --length)
                bytes += random() % 6 == 0 ? "\r\n"[random() % 2] : static_cast<char>(random() % 255 + 1);
            std::u16string wanted;
            for (std::size_t at = 0; at < bytes.size();)
            {
                const std::size_t end = std::min(bytes.find_first_of("\r\n", at), bytes.size());
                const auto line = platform::codepage::decode(number, bytes.substr(at, end - at));
                wanted.append(line->begin(), line->end());
                if (end < bytes.size())
                    wanted += static_cast<char16_t>(bytes[end]);
                at = end + 1;
            }
            ASSERT_EQ(Decoded(bytes), wanted) << number << ' ' << testing::PrintToString(bytes);
        }
    }
}

TEST(DecodeLenientUtf8, TakesTheCountOfLeadingOneBitsAndChecksNothingElse)
{
    const struct
    {
        std::string bytes;
        std::u16string text;
    } rows[] = {
        {"\xC3\xA4", u"ä"},
        {"\xEA\xB0\x80", u"가"},
        {"\xC3"
         "A",
         u"\u00C1"}, // no continuation byte, taken all the same
        {"\xEA"
         "AB",
         u"\xA042"},
        {"\xC0\x80", std::u16string(1, 0)}, // more bytes than needed
        {"\xED\xA0\x80", std::u16string(1, 0xD800)},
        {"\xF0\x9F\x98\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"\x80x", u"\uFFFDx"},
        {"\xFF\xFE", u"\uFFFD\uFFFD"},
        {"a\xC3", u"a"}, // cut off by the end
        {"a\xEA\xB0", u"a"},
        {std::string(70, 'a') + "\xC3\xA4" + std::string(70, 'b'),
         std::u16string(70, u'a') + u"ä" + std::u16string(70, u'b')},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(Decoded("\xEF\xBB\xBF" + row.bytes), row.text) << testing::PrintToString(row.bytes);
        std::u16string out(row.bytes.size(), u'?');
        out.resize(DecodeLenientUtf8(row.bytes, out.data()));
        EXPECT_EQ(out, row.text) << testing::PrintToString(row.bytes);
    }
}

// Well-formed text goes another way; where the two meet nothing may show.
TEST(DecodeLenientUtf8, GivesTheSameForLongTextsHoweverTheyAreMixed)
{
    const std::string parts[] = {"abc\n",
                                 "가나다",
                                 "\xC3\n",
                                 "\xE0\x80\x80",
                                 "\xF0\x9F\x98\x80",
                                 "\xEF\xBF\xBD",
                                 "\xED\xA0\x80",
                                 std::string(300, 'x') + '\n',
                                 "\x80",
                                 "é"};
    std::mt19937 random(3);
    for (int round = 0; round < 60; ++round)
    {
        std::string bytes;
        std::u16string wanted;
        const unsigned kinds = round % 2 == 0 ? 10 : 2;
        while (bytes.size() < 30000)
        {
            std::string part = parts[random() % kinds];
            if (part == "\xC3\n" && kinds == 10)
                part += random() % 2 == 0 ? "y" : "\n";
            bytes += part;
        }
        bytes.resize(bytes.size() - random() % 3);
        for (std::size_t at = 0; at < bytes.size();)
        {
            std::u16string one(4, u'?');
            for (std::size_t length = 1; length <= 3 && at + length <= bytes.size(); ++length)
                if (one.resize(DecodeLenientUtf8(bytes.substr(at, length), one.data())), !one.empty())
                {
                    wanted += one;
                    at += length;
                    break;
                }
                else
                    one.assign(4, u'?');
            if (one.size() == 4)
                break;
        }
        std::u16string out(bytes.size(), u'?');
        out.resize(DecodeLenientUtf8(bytes, out.data()));
        ASSERT_EQ(out.size(), wanted.size());
        ASSERT_TRUE(out == wanted);
    }
}

#include "platform/codepage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace codepage = platform::codepage;

namespace
{
/// Takes the override of the ANSI page back when a test ends.
struct AnsiPage : testing::Test
{
    ~AnsiPage() override { codepage::set_ansi_page(codepage::ansi); }
};

/// Text that no block boundary fits: rows of ASCII and of \p character, both of changing length.
template <class String>
String rows_of(const String& character, int rows)
{
    String text;
    for (int row = 0; row < rows; ++row)
    {
        text.append(static_cast<std::size_t>(row % 67), 'a');
        for (int i = 0; i < row % 41; ++i)
            text += character;
    }
    return text;
}
} // namespace

TEST(Codepage, EncodedBoundCoversThreeBytesForEachUnit) { EXPECT_EQ(codepage::encoded_bound(7), 21u); }

TEST(Codepage, EmptyInputGivesEmptyOutputOnEveryPage)
{
    for (const int page : {0, 949, 932, 936, 950, 437, 874, 1250, 1258, 65001})
    {
        char16_t units[1];
        char bytes[1];
        EXPECT_EQ(codepage::decode(page, ""), L"");
        EXPECT_EQ(codepage::encode(page, L""), "");
        EXPECT_EQ(codepage::decode(page, std::string_view(), units), 0u);
        EXPECT_EQ(codepage::encode(page, std::u16string_view(), bytes), 0u);
    }
}

TEST(Codepage, Utf8GoesBothWaysWithSurrogatePairsJoinedAndNulsKept)
{
    const std::string bytes("a\0\xC3\xA9\xED\x95\x9C\xF0\x9F\x98\x80z", 12);
    const std::wstring text{L'a', L'\0', 0xE9, 0xD55C, 0xD83D, 0xDE00, L'z'};
    EXPECT_EQ(codepage::decode(codepage::utf8, bytes), text);
    EXPECT_EQ(codepage::encode(codepage::utf8, text), bytes);
}

TEST(Codepage, LoneSurrogateBecomesTheReplacementCharacterInUtf8)
{
    EXPECT_EQ(codepage::encode(codepage::utf8, std::wstring{L'a', 0xD83D, L'b', 0xDE00}), "a\xEF\xBF\xBD"
                                                                                          "b\xEF\xBF\xBD");
}

TEST(Codepage, SurrogatesAreUnmappableInAPageOneForEachUnit)
{
    EXPECT_EQ(codepage::encode(949, std::wstring{0xAC00, 0xD83D, 0xDE00, 0xD800, L'x'}), "\xB0\xA1???x");
    EXPECT_EQ(codepage::encode(1252, std::wstring{0xE9, 0xD83D, 0xDE00, L'x'}), "\xE9??x");
}

TEST(Codepage, BrokenUtf8BecomesReplacementCharactersByTheSystemsRules)
{
    const struct
    {
        const char* rule;
        std::string bytes;
        std::wstring text;
    } rows[] = {
        {"trail byte alone", "\x80\xBFz", L"\xFFFD\xFFFDz"},
        {"bytes that begin nothing", "\xC0\xC1\xF5\xFFz", L"\xFFFD\xFFFD\xFFFD\xFFFDz"},
        {"two bytes cut short", "\xC3z", L"\xFFFDz"},
        {"three bytes cut short after one", "\xE3zz", L"\xFFFDzz"},
        {"three bytes cut short after two", "\xE3\x81z", L"\xFFFDz"},
        {"four bytes cut short after three", "\xF0\x9F\x98z", L"\xFFFDz"},
        {"too long a form takes its first trail byte in", "\xE0\x80\x80z", L"\xFFFD\xFFFDz"},
        {"surrogate likewise", "\xED\xA0\x80z", L"\xFFFD\xFFFDz"},
        {"above U+10FFFF likewise", "\xF4\x90\x80\x80z", L"\xFFFD\xFFFD\xFFFDz"},
        {"last characters that are right", "\xED\x9F\xBF\xEE\x80\x80\xF4\x8F\xBF\xBF",
         L"\xD7FF\xE000\xDBFF\xDFFF"},
        {"NUL is a byte like others", std::string("\xE3\0\0z", 4), std::wstring(L"\xFFFD\0\0z", 4)},
    };
    // Alone, and between characters that are decoded in blocks.
    const std::wstring around(100, L'\xAC00');
    const std::string around_bytes = codepage::encode(codepage::utf8, around).value();
    for (const auto& row : rows)
    {
        EXPECT_EQ(codepage::decode(codepage::utf8, row.bytes), row.text) << row.rule;
        EXPECT_EQ(codepage::decode(codepage::utf8, around_bytes + row.bytes + around_bytes),
                  around + row.text + around)
            << row.rule;
    }
}

TEST(Codepage, LeadByteOfUtf8WithTooFewBytesBehindItTakesTheRestIn)
{
    for (const std::size_t before : {0, 1, 61, 62, 63, 64, 65, 200, 0x2000 - 1})
    {
        const std::string bytes(before, 'a');
        const std::wstring text(before, L'a');
        EXPECT_EQ(codepage::decode(codepage::utf8, bytes + "\xF0\x9F\x98"), text + L"\xFFFD");
        EXPECT_EQ(codepage::decode(codepage::utf8, bytes + "\xF0zz"), text + L"\xFFFD");
        EXPECT_EQ(codepage::decode(codepage::utf8, bytes + "\xE1\xC3"), text + L"\xFFFD");
        EXPECT_EQ(codepage::decode(codepage::utf8, bytes + "\xF0zzz"), text + L"\xFFFDzzz");
    }
}

TEST(Codepage, NothingPastTheInputIsReadOrPastTheRoomWritten)
{
    // Blocks of exactly the size that each call may touch; the sanitizer watches their ends.
    for (const int page : {949, 932, 1251, 65001})
        for (std::size_t size = 0; size < 150; ++size)
            for (const char fill : {'a', '\xB0', '\xC7', '\xED', '\xF0'})
            {
                const auto bytes = std::make_unique<char[]>(size);
                std::fill_n(bytes.get(), size, fill);
                const auto units = std::make_unique<char16_t[]>(size);
                EXPECT_LE(codepage::decode(page, {bytes.get(), size}, units.get()), size);
            }
    for (const int page : {949, 932, 1251, 65001})
        for (std::size_t size = 0; size < 150; ++size)
            for (const char16_t fill : {u'a', u'\x0416', u'\xAC00', u'\xD800'})
            {
                const auto units = std::make_unique<char16_t[]>(size);
                std::fill_n(units.get(), size, fill);
                const auto bytes = std::make_unique<char[]>(codepage::encoded_bound(size));
                EXPECT_LE(codepage::encode(page, {units.get(), size}, bytes.get()),
                          codepage::encoded_bound(size));
            }
}

TEST(Codepage, LeadByteTakesAnyNextByteWithItButNul)
{
    EXPECT_EQ(codepage::decode(949, "\xB0\xA1\xB0\nz"), L"\xAC00?z");
    EXPECT_EQ(codepage::decode(949, std::string("\xB0\0z", 3)), std::wstring(L"?\0z", 3));
    EXPECT_EQ(codepage::decode(932, "\x82\xA0\x81\x20z"), L"\x3042\x30FBz");
}

TEST(Codepage, LeadByteAtTheEndBecomesTheDefaultCharacter)
{
    EXPECT_EQ(codepage::decode(949, "a\xB0"), L"a?");
    EXPECT_EQ(codepage::decode(936, "a\xB0"), L"a?");
    EXPECT_EQ(codepage::decode(950, "a\xB0"), L"a?");
    EXPECT_EQ(codepage::decode(932, "a\x82"), L"a\x30FB");
    for (std::size_t size = 60; size < 70; ++size)
        EXPECT_EQ(codepage::decode(949, std::string(size, 'a') + '\xB0'), std::wstring(size, L'a') + L'?');
}

TEST(Codepage, NulsInTheMiddleOfALongTextAreKept)
{
    for (std::size_t nul = 0; nul < 200; ++nul)
    {
        // A row of lead bytes: the NUL leaves its half of a character alone, and the pairs start anew.
        std::string bytes(200, '\xB0');
        bytes[nul] = '\0';
        const auto row = [](std::size_t size) {
            return std::wstring(size / 2, L'\xAC19') + std::wstring(size % 2, L'?');
        };
        EXPECT_EQ(codepage::decode(949, bytes), row(nul) + L'\0' + row(199 - nul)) << nul;
    }
}

TEST(Codepage, UnmappableTextBecomesItsBestFitOrAQuestionMark)
{
    EXPECT_EQ(codepage::encode(1252, L"\x0100\x2212\xFF21\xAC00"), "A-A?");
    EXPECT_EQ(codepage::encode(949, L"\x00C0\x0416\x0E01"), "A\xAC\xA8?");
}

TEST(Codepage, LongTextsOfEveryWidthGoBothWays)
{
    const struct
    {
        int page;
        std::string bytes;
        std::wstring units;
    } characters[] = {{949, "\xC7\xD1", L"\xD55C"},       {949, "\x81\x41", L"\xAC02"},
                      {932, "\x82\xA0", L"\x3042"},       {932, "\xB1", L"\xFF71"},
                      {936, "\xD6\xD0", L"\x4E2D"},       {936, "\x80", L"\x20AC"},
                      {950, "\xA4\xA4", L"\x4E2D"},       {1251, "\xC6", L"\x0416"},
                      {437, "\xE3", L"\x03C0"},           {65001, "\xC3\xA9", L"\x00E9"},
                      {65001, "\xED\x95\x9C", L"\xD55C"}, {65001, "\xF0\x9F\x98\x80", L"\xD83D\xDE00"}};
    for (const auto& character : characters)
        for (const int rows : {5, 300, 2000})
        {
            const std::string bytes = rows_of(character.bytes, rows);
            const std::wstring text = rows_of(character.units, rows);
            EXPECT_TRUE(codepage::decode(character.page, bytes) == text) << character.page;
            EXPECT_TRUE(codepage::encode(character.page, text) == bytes) << character.page;

            std::u16string units(bytes.size(), u'\0');
            units.resize(codepage::decode(character.page, bytes, units.data()).value());
            EXPECT_TRUE(std::wstring(units.begin(), units.end()) == text) << character.page;
            std::string back(codepage::encoded_bound(units.size()), '\0');
            back.resize(codepage::encode(character.page, units, back.data()).value());
            EXPECT_TRUE(back == bytes) << character.page;
        }
}

TEST(Codepage, PairAcrossTheEndOfAPieceIsStillAPair)
{
    // Long conversions into a string go by pieces; a pair is put at every place near their ends.
    for (std::size_t before = 0x2000 - 20; before < 0x2000 + 3; ++before)
    {
        const std::wstring text = std::wstring(before, L'\xAC00') + L"\xD83D\xDE00z";
        const std::string bytes = codepage::encode(codepage::utf8, text).value();
        EXPECT_EQ(bytes.substr(3 * before), "\xF0\x9F\x98\x80z");
        EXPECT_EQ(codepage::decode(codepage::utf8, bytes), text);
        const std::string shifted = std::string(before, 'a') + "\xF0\x9F\x98\x80\xED\x95\x9C";
        EXPECT_EQ(codepage::decode(codepage::utf8, shifted),
                  std::wstring(before, L'a') + L"\xD83D\xDE00\xD55C");
        EXPECT_EQ(codepage::decode(949, std::string(before, 'a') + "\xC7\xD1z"),
                  std::wstring(before, L'a') + L"\xD55Cz");
    }
}

TEST(Codepage, Utf16LittleEndianKeepsLoneSurrogatesAndDropsAnOddByte)
{
    const std::wstring text{L'a', L'\0', 0xD83D, 0xFFFF};
    const std::string bytes("a\0\0\0\x3D\xD8\xFF\xFF", 8);
    EXPECT_EQ(codepage::from_utf16le(bytes), text);
    EXPECT_EQ(codepage::from_utf16le(bytes + "x"), text);
    EXPECT_EQ(codepage::to_utf16le(text), bytes);
    EXPECT_EQ(codepage::from_utf16le(""), L"");
    EXPECT_EQ(codepage::from_utf16le("x"), L"");
    EXPECT_EQ(codepage::to_utf16le(L""), "");
}

TEST(Codepage, UnknownPageGivesNothing)
{
    char16_t units[3];
    char bytes[3];
    EXPECT_FALSE(codepage::known(54321));
    EXPECT_FALSE(codepage::known(-1));
    EXPECT_EQ(codepage::decode(54321, "abc"), std::nullopt);
    EXPECT_EQ(codepage::decode(54321, "", units), std::nullopt);
    EXPECT_EQ(codepage::encode(54321, L"abc"), std::nullopt);
    EXPECT_EQ(codepage::encode(54321, u"", bytes), std::nullopt);
}

TEST(Codepage, PageNumbersWithASpecialMeaningToTheSystemAreUnknown)
{
    for (const int page : {1, 2, 3, 42})
    {
        EXPECT_FALSE(codepage::known(page)) << page;
        EXPECT_EQ(codepage::decode(page, "a"), std::nullopt) << page;
    }
}

TEST_F(AnsiPage, StandsForPageZeroUntilItIsTakenBack)
{
    const int system = codepage::ansi_page();
    ASSERT_TRUE(codepage::set_ansi_page(949));
    EXPECT_EQ(codepage::ansi_page(), 949);
    EXPECT_EQ(codepage::decode(codepage::ansi, "\xC7\xD1"), L"\xD55C");
    EXPECT_EQ(codepage::encode(codepage::ansi, L"\xD55C"), "\xC7\xD1");
    ASSERT_TRUE(codepage::set_ansi_page(1251));
    EXPECT_EQ(codepage::decode(codepage::ansi, "\xC6"), L"\x0416");
    ASSERT_TRUE(codepage::set_ansi_page(codepage::utf8));
    EXPECT_EQ(codepage::decode(codepage::ansi, "\xD0\x96"), L"\x0416");
    ASSERT_TRUE(codepage::set_ansi_page(codepage::ansi));
    EXPECT_EQ(codepage::ansi_page(), system);
}

TEST_F(AnsiPage, UnknownPageIsRefusedAndChangesNothing)
{
    ASSERT_TRUE(codepage::set_ansi_page(932));
    EXPECT_FALSE(codepage::set_ansi_page(54321));
    EXPECT_FALSE(codepage::set_ansi_page(-1));
    EXPECT_EQ(codepage::ansi_page(), 932);
}

TEST_F(AnsiPage, IsKnown) { EXPECT_TRUE(codepage::known(codepage::ansi)); }

#include "platform/codepage.h"

#include <gtest/gtest.h>

namespace codepage = platform::codepage;

TEST(Codepage, EncodedBoundCoversThreeBytesForEachUnit) { EXPECT_EQ(codepage::encoded_bound(7), 21u); }

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

#include "tarvo/text/Units.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

TEST(Units, AreCopiedWholeAtEveryLengthAndNothingBehindThem)
{
    for (std::size_t length = 0; length < 300; ++length)
    {
        std::vector<char16_t> text(length), out(length + 8, u'#');
        for (std::size_t i = 0; i < length; ++i)
            text[i] = static_cast<char16_t>(0x4E00 + i);
        EXPECT_EQ(units::copy({text.data(), length}, out.data()), out.data() + length);
        EXPECT_EQ(units::view(out.data(), length), units::view(text.data(), length)) << length;
        EXPECT_EQ(units::view(out.data() + length, 8), u"########") << length;
    }
}

TEST(Units, PairsAreFoundWhereverTheyStand)
{
    std::mt19937 random(11);
    for (int round = 0; round < 20000; ++round)
    {
        std::u16string text(random() % 40, u'x');
        for (char16_t& unit : text)
            if (random() % 4 == 0)
                unit = u"ID_\u4944"[random() % 4];
        const std::vector<char16_t> exact(text.begin(), text.end()); // reading past its end is found
        const char16_t* const end = exact.data() + exact.size();
        const std::size_t found = text.find(u"ID");
        ASSERT_EQ(units::find_pair(exact.data(), end, u'I', u'D'),
                  found == std::u16string::npos ? end : exact.data() + found)
            << testing::PrintToString(text);
    }
}

namespace
{
/// Differs from every other of its length.
std::u16string text_of(std::size_t length)
{
    std::u16string text(length, u'\0');
    for (std::size_t i = 0; i < length; ++i)
        text[i] = static_cast<char16_t>(0xFFF0 - i * 977);
    return text;
}

std::wstring wide_of(const std::u16string& text) { return std::wstring(text.begin(), text.end()); }
} // namespace

TEST(Units, EqualTheWideTextThatIsAskedForAndNoOtherOfAnyLength)
{
    for (std::size_t length = 0; length < 70; ++length)
    {
        const std::u16string text = text_of(length);
        std::wstring asked = wide_of(text);
        EXPECT_TRUE(units::equal(text, units::asked(asked))) << length;
        EXPECT_EQ(units::hash(units::asked(asked)), units::hash(text)) << length;
        EXPECT_FALSE(units::equal(text, units::asked(asked + L'\0'))) << length;
        for (std::size_t i = 0; i < length; ++i)
        {
            ++asked[i];
            EXPECT_FALSE(units::equal(text, units::asked(asked))) << length << " " << i;
            EXPECT_NE(units::hash(units::asked(asked)), units::hash(text)) << length << " " << i;
            --asked[i];
        }
    }
}

TEST(Units, ThatFitAreKeptAsBytesAndEqualTheSameTextsAndNoOthers)
{
    for (std::size_t length = 0; length < 70; ++length)
    {
        std::u16string text(length, u'\0');
        for (std::size_t i = 0; i < length; ++i)
            text[i] = static_cast<char16_t>(0xFF - i);
        ASSERT_TRUE(units::are_bytes(text)) << length;
        std::vector<std::uint8_t> bytes(length + 8, 0x23);
        units::to_bytes(text.data(), length, bytes.data());
        EXPECT_EQ(std::u16string(bytes.begin(), bytes.end()), text + u"########") << length;
        std::wstring asked = wide_of(text);
        EXPECT_TRUE(units::same(bytes.data(), text.data(), length)) << length;
        EXPECT_TRUE(units::same(bytes.data(), asked.data(), length)) << length;
        for (std::size_t i = 0; i < length; ++i)
        {
            text[i] ^= 0x100; // the byte is the same
            asked[i] ^= 0x100;
            EXPECT_FALSE(units::are_bytes(text)) << length << " " << i;
            EXPECT_FALSE(units::same(bytes.data(), text.data(), length)) << length << " " << i;
            EXPECT_FALSE(units::same(bytes.data(), asked.data(), length)) << length << " " << i;
            text[i] ^= 0x100;
            asked[i] ^= 0x100;
        }
    }
}

TEST(Units, HaveOtherHashesWhenTwoOfThemChangePlaces)
{
    for (std::size_t length = 2; length < 40; ++length)
        for (std::size_t i = 0; i + 1 < length; ++i)
        {
            std::u16string other = text_of(length);
            std::swap(other[i], other[i + 1]);
            EXPECT_NE(units::hash(other), units::hash(text_of(length))) << length << " " << i;
        }
}

TEST(Units, EqualTheWideTextWithoutRegardToCase)
{
    for (const auto& [text, asked, expected] :
         {std::tuple(u"IDD_ABOUT", L"idd_about", true), std::tuple(u"IDD_ABOUT", L"IDD_ABOUS", false),
          std::tuple(u"IDD_ABOUT", L"IDD_ABOU", false), std::tuple(u"", L"", true),
          std::tuple(u"\u0416\u00C9", L"\u0436\u00E9", true)})
    {
        EXPECT_EQ(units::equal_no_case(text, units::asked(asked)), expected) << asked;
        EXPECT_EQ(units::equal_no_case(text, units::view(u"IDD_ABOUT")),
                  units::equal_no_case(u"IDD_ABOUT", units::view(text)));
    }
}

TEST(Units, BecomeStringsOfTheFrameworkAtEveryLength)
{
    for (std::size_t length = 0; length < 130; ++length)
    {
        const std::u16string text = text_of(length);
        const CString string = units::to_string(text);
        EXPECT_EQ(std::wstring(string.GetString(), static_cast<std::size_t>(string.GetLength())),
                  wide_of(text));
        EXPECT_EQ(string.GetString()[length], L'\0');
        std::vector<wchar_t> out(length + 8, L'#');
        units::widen(text.data(), length, out.data());
        EXPECT_EQ(std::wstring(out.begin(), out.end()), wide_of(text) + L"########") << length;
        std::vector<char16_t> back(length + 8, u'#');
        units::narrow(out.data(), length, back.data());
        EXPECT_EQ(std::u16string(back.begin(), back.end()), text + u"########") << length;
    }
}

TEST(Units, OfBytesThatLieOddlyAreTheSame)
{
    const std::u16string text = u"\uAC00 text";
    const std::string bytes(reinterpret_cast<const char*>(text.data()), 2 * text.size());
    for (const std::size_t at : {0u, 1u})
    {
        const std::string here = std::string(at, 'x') + bytes;
        const CAlignedUnits units(here.data() + at, text.size());
        EXPECT_EQ(units::view(units), text) << at;
    }
}

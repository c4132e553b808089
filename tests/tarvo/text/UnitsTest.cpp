#include "tarvo/text/Units.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
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

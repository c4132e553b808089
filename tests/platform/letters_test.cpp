#include "platform/letters.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace letters = platform::letters;

namespace
{
struct Pair
{
    wchar_t capital;
    wchar_t small;
};
constexpr Pair pairs[] = {
    {L'A', L'a'},           {L'Z', L'z'},           {L'\xC0', L'\xE0'},     {L'\xDE', L'\xFE'},
    {L'\x0178', L'\xFF'},   {L'\x0100', L'\x0101'}, {L'\x017D', L'\x017E'}, {L'\x0391', L'\x03B1'},
    {L'\x0386', L'\x03AC'}, {L'\x0401', L'\x0451'}, {L'\x0410', L'\x0430'}, {L'\x042F', L'\x044F'},
    {L'\x04D8', L'\x04D9'}, {L'\x0531', L'\x0561'}, {L'\x1E00', L'\x1E01'}, {L'\x1F08', L'\x1F00'},
    {L'\x1F88', L'\x1F80'}, {L'\x2160', L'\x2170'}, {L'\x24B6', L'\x24D0'}, {L'\xFF21', L'\xFF41'},
};

constexpr wchar_t caseless[] = {0,      L'0',   L'[',   L'`',   L'{',   0xB5,   0xD7,   0xDF,
                                0xF7,   0x0131, 0x0130, 0x017F, 0x01C5, 0x03C2, 0x05D0, 0x2126,
                                0x212A, 0x212B, 0x3042, 0xAC00, 0xD83D, 0xDE00, 0xE000, 0xFFFF};

// FNV-1a over the low 16 bits of every unit's mapping.
template <class F>
std::uint32_t fingerprint(F map)
{
    std::uint32_t h = 2166136261u;
    for (std::uint32_t c = 0; c < 0x10000; ++c)
        h = (h ^ static_cast<std::uint32_t>(map(static_cast<wchar_t>(c)))) * 16777619u;
    return h;
}
} // namespace

TEST(letters, EachLetterOfAPairBecomesTheOther)
{
    for (const Pair& p : pairs)
    {
        EXPECT_EQ(letters::upper(p.small), p.capital);
        EXPECT_EQ(letters::lower(p.capital), p.small);
        EXPECT_EQ(letters::upper(p.capital), p.capital);
        EXPECT_EQ(letters::lower(p.small), p.small);
        EXPECT_EQ(letters::fold(p.capital), letters::fold(p.small));
    }
}

TEST(letters, OtherUnitsKeepTheirForm)
{
    for (const wchar_t c : caseless)
    {
        EXPECT_EQ(letters::upper(c), c);
        EXPECT_EQ(letters::lower(c), c);
    }
}

TEST(letters, EveryMappingLeadsBack)
{
    int n = 0;
    for (unsigned i = 0; i < 0x10000; ++i)
    {
        const auto c = static_cast<wchar_t>(i);
        if (letters::upper(c) != c)
        {
            ++n;
            EXPECT_EQ(letters::lower(letters::upper(c)), c);
        }
        EXPECT_EQ(letters::fold(c), letters::lower(c));
    }
    EXPECT_EQ(n, 1163);
}

TEST(letters, AllUnitsMapAlikeOnEveryPlatform)
{
    EXPECT_EQ(fingerprint(letters::upper), 3433678092u);
    EXPECT_EQ(fingerprint(letters::lower), 29889594u);
}

TEST(letters, WhiteSpaceIsTheseTwentyFiveUnits)
{
    std::vector<unsigned> found;
    for (unsigned i = 0; i < 0x10000; ++i)
        if (letters::is_space(static_cast<wchar_t>(i)))
            found.push_back(i);
    EXPECT_EQ(found,
              (std::vector<unsigned>{0x9,    0xA,    0xB,    0xC,    0xD,    0x20,   0x85,   0xA0,   0x1680,
                                     0x2000, 0x2001, 0x2002, 0x2003, 0x2004, 0x2005, 0x2006, 0x2007, 0x2008,
                                     0x2009, 0x200A, 0x2028, 0x2029, 0x202F, 0x205F, 0x3000}));
}

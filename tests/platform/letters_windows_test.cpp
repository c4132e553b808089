#include "platform/letters.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace letters = platform::letters;

namespace
{
// Blocks whose letters have not changed since before the oldest system that the library runs on.
struct Block
{
    unsigned first;
    unsigned last;
};
constexpr Block blocks[] = {{0x0000, 0x0236}, {0x0370, 0x0376}, {0x0380, 0x03F2}, {0x0400, 0x0523},
                            {0x0530, 0x0590}, {0x1E00, 0x1FFF}, {0x2000, 0x218F}, {0xFF00, 0xFFFF}};
} // namespace

TEST(letters, AgreesWithTheSystemsOwnLetters)
{
    for (const Block& b : blocks)
        for (unsigned i = b.first; i <= b.last; ++i)
        {
            const auto c = static_cast<wchar_t>(i);
            wchar_t upper[] = {c, 0};
            wchar_t lower[] = {c, 0};
            CharUpperBuffW(upper, 1);
            CharLowerBuffW(lower, 1);
            EXPECT_EQ(letters::upper(c), upper[0]) << std::hex << i;
            EXPECT_EQ(letters::lower(c), lower[0]) << std::hex << i;
            const wchar_t folded = letters::fold(c);
            EXPECT_EQ(CompareStringOrdinal(&c, 1, &folded, 1, TRUE), CSTR_EQUAL) << std::hex << i;
        }
}

TEST(letters, WhiteSpaceAgreesWithTheSystem)
{
    for (unsigned i = 0; i < 0x10000; ++i)
    {
        const auto c = static_cast<wchar_t>(i);
        WORD type = 0;
        GetStringTypeW(CT_CTYPE1, &c, 1, &type);
        EXPECT_EQ(letters::is_space(c), (type & C1_SPACE) != 0) << std::hex << i;
    }
}

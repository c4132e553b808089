#include "platform/codepage_utf8.h"
#include "platform/codepage_utf8_blocks.h"

#include <gtest/gtest.h>

#include <ostream>
#include <random>
#include <string>
#include <vector>

namespace codepage = platform::codepage;

namespace
{
using Text = std::vector<std::uint8_t>;

struct Decoded
{
    std::ptrdiff_t bytes; ///< how far it came
    std::u16string units;
    bool operator==(const Decoded&) const = default;
};

void PrintTo(const Decoded& decoded, std::ostream* out)
{
    *out << decoded.bytes << " bytes, " << decoded.units.size() << " units";
}

template <class Unit>
Decoded decoded(codepage::Utf8BlockDecoder<Unit> decode, const Text& text)
{
    std::vector<Unit> units(text.size());
    const auto* const end = text.data() + text.size();
    const auto at = decode({text.data(), units.data()}, end, end);
    return {at.in - text.data(), std::u16string(units.data(), at.out)};
}

template <class Unit>
void expect_all_versions_alike(const Text& text)
{
    const auto versions = codepage::utf8_block_decoders<Unit>();
    const Decoded best = decoded(versions.front(), text);
    const Text read(text.begin(), text.begin() + best.bytes);
    ASSERT_EQ(decoded<Unit>(codepage::decode_utf8, read), best);
    for (const auto& version : versions.first(versions.size() - 1))
        ASSERT_EQ(decoded<Unit>(version, text), best);
    const Decoded ascii = decoded(versions.back(), text);
    ASSERT_LE(ascii.bytes, best.bytes);
    ASSERT_EQ(ascii.units, best.units.substr(0, ascii.units.size()));
}

std::string utf8(char16_t c)
{
    const auto byte = [](int value) { return std::string(1, static_cast<char>(value)); };
    if (c < 0x80)
        return byte(c);
    if (c < 0x800)
        return byte(0xC0 | c >> 6) + byte(0x80 | (c & 0x3F));
    return byte(0xE0 | c >> 12) + byte(0x80 | (c >> 6 & 0x3F)) + byte(0x80 | (c & 0x3F));
}

/// 320 bytes or a little more of characters at the borders of what one, two and three bytes hold.
Text characters(std::mt19937& random)
{
    static constexpr char16_t borders[] = {0,      u'a',   0x7F,   0x80,   0x7FF,  0x800,
                                           0xD7FF, 0xE000, 0xFFFF, 0xAC00, 0x1000, 0xCFFF};
    std::string bytes;
    const unsigned kinds = 1 + random() % std::size(borders);
    while (bytes.size() < 320)
        bytes += utf8(borders[random() % kinds]);
    return {bytes.begin(), bytes.end()};
}
} // namespace

TEST(CodepageUtf8Blocks, AllVersionsReadRightTextAlikeAndTakeAllButTheLastBlock)
{
    std::mt19937 random(1);
    for (int round = 0; round < 2000; ++round)
    {
        const Text text = characters(random);
        expect_all_versions_alike<char16_t>(text);
        expect_all_versions_alike<wchar_t>(text);
        const auto versions = codepage::utf8_block_decoders<char16_t>();
        if (versions.size() > 1)
        {
            EXPECT_LT(std::ssize(text) - decoded(versions.front(), text).bytes, codepage::block_size + 2);
        }
    }
}

TEST(CodepageUtf8Blocks, AllVersionsStopAtTheSameWrongByte)
{
    std::mt19937 random(2);
    static constexpr std::uint8_t wrong[] = {0x00, 0x7F, 0x80, 0x9F, 0xA0, 0xBF, 0xC0, 0xC1, 0xC2, 0xDF,
                                             0xE0, 0xE1, 0xED, 0xEE, 0xEF, 0xF0, 0xF4, 0xF5, 0xFF};
    for (int round = 0; round < 20000; ++round)
    {
        Text text = characters(random);
        text[random() % text.size()] = wrong[random() % std::size(wrong)];
        expect_all_versions_alike<char16_t>(text);
    }
}

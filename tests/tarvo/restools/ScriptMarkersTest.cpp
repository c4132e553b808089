#include "tarvo/restools/ScriptMarkers.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace
{
constexpr std::size_t kBlock = CScriptMarks::Block;

/// The marks of each kind, one after the other.
using Marks = std::vector<std::uint64_t>;

Marks MarksBy(ScriptMarker marker, const std::vector<char16_t>& units)
{
    const std::size_t count = units.size() / kBlock;
    Marks marks(4 * count);
    std::uint64_t* const words = marks.data();
    marker(units.data(), count, {words, words + count, words + 2 * count, words + 3 * count});
    return marks;
}

Marks MarksOneByOne(const std::vector<char16_t>& units)
{
    const std::size_t count = units.size() / kBlock;
    Marks marks(4 * count);
    for (std::size_t i = 0; i < units.size(); ++i)
    {
        const char16_t unit = units[i];
        const bool kinds[] = {unit == u'\n' || unit == u'\r', unit == u'"', unit == u',',
                              unit == u',' || unit == u' ' || unit == u'\t'};
        for (std::size_t kind = 0; kind < 4; ++kind)
            marks[kind * count + i / kBlock] |= std::uint64_t{kinds[kind]} << i % kBlock;
    }
    return marks;
}
} // namespace

TEST(ScriptMarkers, AllGiveTheSameForEveryUnit)
{
    std::vector<char16_t> units(0x10000);
    for (std::size_t i = 0; i < units.size(); ++i)
        units[i] = static_cast<char16_t>(i);
    for (const ScriptMarker marker : ScriptMarkers())
        EXPECT_EQ(MarksBy(marker, units), MarksOneByOne(units));
}

TEST(ScriptMarkers, AllGiveTheSameWhereverTheUnitsStand)
{
    std::mt19937 random(5);
    const std::u16string_view some = u"\n\r\",, \ta\u0100\u220A\u2C22\uFF22\uAC00";
    for (int round = 0; round < 2000; ++round)
    {
        std::vector<char16_t> units(kBlock * (random() % 4));
        for (char16_t& unit : units)
            unit = some[random() % some.size()];
        for (const ScriptMarker marker : ScriptMarkers())
            ASSERT_EQ(MarksBy(marker, units), MarksOneByOne(units));
    }
}

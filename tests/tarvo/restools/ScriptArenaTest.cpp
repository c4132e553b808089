#include "tarvo/restools/ScriptArena.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <numeric>
#include <utility>
#include <vector>

TEST(ScriptArena, GivesEachItsOwnAlignedMemory)
{
    CScriptArena arena;
    std::vector<std::pair<char*, std::size_t>> pieces;
    for (std::size_t size = 1; size < 200000; size += size / 3 + 1)
        for (int i = 0; i < 20; ++i)
        {
            auto* const piece = static_cast<char*>(arena.Take(size, alignof(std::max_align_t)));
            EXPECT_EQ(reinterpret_cast<std::uintptr_t>(piece) % alignof(std::max_align_t), 0u);
            std::memset(piece, static_cast<int>(pieces.size() % 251), size);
            pieces.emplace_back(piece, size);
        }
    std::size_t all = 0;
    for (std::size_t i = 0; i < pieces.size(); ++i)
    {
        const auto [piece, size] = pieces[i];
        EXPECT_EQ(std::vector<char>(piece, piece + size), std::vector<char>(size, static_cast<char>(i % 251)))
            << i;
        all += size;
    }
    EXPECT_GE(arena.GetMemory(), all);
    EXPECT_LT(arena.GetMemory(), 3 * all);
}

TEST(ScriptArena, PutsTextsEndToEndAndRecordsWhereTheyMayStand)
{
    CScriptArena arena;
    const std::u16string_view one = arena.Copy(u"one"), two = arena.Copy(u"two");
    EXPECT_EQ(one, u"one");
    EXPECT_EQ(two.data(), one.data() + 3);
    auto* const record =
        static_cast<std::uint64_t*>(arena.Take(sizeof(std::uint64_t), alignof(std::uint64_t)));
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(record) % alignof(std::uint64_t), 0u);
    EXPECT_GE(reinterpret_cast<const char16_t*>(record), two.data() + two.size());
    EXPECT_TRUE(arena.Copy({}).empty());
    const std::u16string large(3000000, u'x');
    EXPECT_EQ(arena.Copy(large), large);
    EXPECT_EQ(two, u"two");
}

TEST(ScriptArena, SmallScriptsTakeLittle)
{
    CScriptArena arena;
    EXPECT_EQ(arena.GetMemory(), 0u);
    arena.Take(1, 1);
    EXPECT_LE(arena.GetMemory(), 4096u);
}

TEST(ScriptArena, ListsInItCanBeMovedAndReplacedByListsElsewhere)
{
    using List = std::vector<int, CScriptAllocator<int>>;
    CScriptArena arena;
    const auto filled = [&](CScriptArena* where) {
        List list(1000, 0, CScriptAllocator<int>(where));
        std::iota(list.begin(), list.end(), 1);
        return list;
    };
    List inside = filled(&arena), outside = filled(nullptr);
    const int* const place = inside.data();
    List moved = std::move(inside);
    EXPECT_EQ(moved.data(), place);
    moved = std::move(outside);
    moved.push_back(1001);
    EXPECT_EQ(std::accumulate(moved.begin(), moved.end(), 0), 1001 * 1002 / 2);
    const List copy = filled(&arena);
    moved = copy;
    EXPECT_EQ(moved, copy);
    EXPECT_NE(moved.data(), copy.data());
}

#include "tarvo/text/RecordArena.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>

namespace
{
struct Filled
{
    char* memory;
    std::string bytes;
};

/// Records of all sizes, some of them larger than a block, by their numbers.
std::map<CRecordArena::Ref, Filled> fill(CRecordArena& arena, int count)
{
    std::mt19937 random(7);
    std::map<CRecordArena::Ref, Filled> records;
    for (int i = 0; i < count; ++i)
    {
        const std::size_t most = i % 50 == 0 ? 400000 : i % 7 == 0 ? 5000 : 200;
        const std::string bytes(CRecordArena::RoundUp(random() % most), static_cast<char>(i));
        CRecordArena::Ref ref;
        char* const room = arena.Take(bytes.size(), ref);
        bytes.copy(room, bytes.size());
        if (!bytes.empty() && !records.try_emplace(ref, Filled{room, bytes}).second)
            ADD_FAILURE() << "two records with one number";
    }
    return records;
}
} // namespace

TEST(RecordArena, EachRecordIsFoundByItsNumberAndStaysWhereItIs)
{
    CRecordArena arena;
    for (const auto& [ref, record] : fill(arena, 1000))
    {
        ASSERT_EQ(arena.At(ref), record.memory);
        ASSERT_EQ(std::string(record.memory, record.bytes.size()), record.bytes);
        ASSERT_LE(ref, arena.GetMost());
    }
}

TEST(RecordArena, ItsBlocksHoldTheRecordsInTheOrderOfTaking)
{
    CRecordArena arena;
    std::string expected, held;
    for (const auto& [ref, record] : fill(arena, 300))
        expected += record.bytes;
    arena.ForEachBlock([&](const char* first, const char* last, CRecordArena::Ref ref) {
        EXPECT_EQ(arena.At(ref), first);
        held.append(first, last);
    });
    EXPECT_TRUE(held == expected);
}

TEST(RecordArena, AClearedOneUsesItsMemoryAgainAndATrimmedOneGivesBackTheRest)
{
    CRecordArena arena;
    EXPECT_EQ(arena.GetMemory(), 0u);
    EXPECT_EQ(arena.GetMost(), 0u);
    fill(arena, 500);
    const std::size_t full = arena.GetMemory();
    arena.Clear();
    fill(arena, 500);
    EXPECT_EQ(arena.GetMemory(), full);
    arena.Clear();
    fill(arena, 1);
    arena.Trim();
    EXPECT_LT(arena.GetMemory(), full);
    arena.Clear();
    arena.Trim();
    int blocks = 0;
    arena.ForEachBlock([&blocks](const char*, const char*, CRecordArena::Ref) { ++blocks; });
    EXPECT_EQ(blocks, 0);
}

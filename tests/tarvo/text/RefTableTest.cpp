#include "tarvo/text/RefTable.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <vector>

namespace
{
/// The numbers of the records that a search for \p hash looks at.
std::vector<std::uint32_t> looked_at(const CRefTable& table, std::uint32_t hash)
{
    std::vector<std::uint32_t> refs;
    table.Find(hash, [&refs](std::uint32_t ref) {
        refs.push_back(ref);
        return false;
    });
    return refs;
}
} // namespace

TEST(RefTable, HasNoRoomBeforeItsFirstReset)
{
    CRefTable table;
    EXPECT_FALSE(table.HasRoom(1));
    EXPECT_EQ(table.GetMemory(), 0u);
    table.Prefetch(1);
}

TEST(RefTable, HoldsAsManyRecordsAsItWasMadeFor)
{
    for (const std::size_t count : {0u, 1u, 7u, 12u, 13u, 102u, 103u, 1000u, 12345u})
        for (const std::uint32_t most : {0u, 1u << 20, 0xFFFEFFFFu})
        {
            CRefTable table;
            table.Reset(count, most);
            ASSERT_TRUE(table.HasRoom(count)) << count;
            ASSERT_TRUE(table.HasRoomFor(most));
            std::mt19937 random(5);
            // One in three has a hash of nothing but zeros or ones.
            std::multimap<std::uint32_t, std::uint32_t> records;
            for (std::size_t i = 0; i < count; ++i)
            {
                const std::uint32_t kind = random() % 6;
                const auto hash = static_cast<std::uint32_t>(kind == 0   ? 0
                                                             : kind == 1 ? 0xFFFFFFFF
                                                                         : random());
                const auto ref = static_cast<std::uint32_t>(most - std::min<std::size_t>(i, most));
                table.Add(hash, ref);
                records.emplace(hash, ref);
            }
            for (const auto& [hash, ref] : records)
            {
                const std::size_t slot =
                    table.Find(hash, [wanted = ref](std::uint32_t found) { return found == wanted; });
                ASSERT_FALSE(table.IsFree(slot)) << count;
                ASSERT_EQ(table.At(slot), ref);
            }
            table.Clear();
            ASSERT_TRUE(looked_at(table, 0).empty());
            ASSERT_TRUE(table.HasRoom(count));
        }
}

TEST(RefTable, LooksAtHardlyAnyRecordButTheOneAskedFor)
{
    CRefTable table;
    table.Reset(60000, 60000);
    std::mt19937 random(3);
    for (std::uint32_t ref = 0; ref < 60000; ++ref)
        table.Add(random(), ref);
    std::size_t others = 0;
    for (int i = 0; i < 60000; ++i)
        others += looked_at(table, random()).size();
    EXPECT_LT(others, 3000u);
}

TEST(RefTable, ARecordCanTakeAnothersPlace)
{
    CRefTable table;
    table.Reset(4, 100);
    table.Add(77, 1);
    const auto is = [](std::uint32_t wanted) {
        return [wanted](std::uint32_t ref) { return ref == wanted; };
    };
    table.Put(table.Find(77, is(1)), 77, 100);
    EXPECT_EQ(looked_at(table, 77), std::vector<std::uint32_t>{100});
}

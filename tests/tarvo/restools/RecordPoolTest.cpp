#include "tarvo/restools/RecordPool.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <numeric>
#include <utility>
#include <vector>

TEST(RecordPool, GivesEachItsOwnAlignedMemory)
{
    CRecordPool pool;
    std::vector<std::pair<char*, std::size_t>> pieces;
    for (std::size_t size = 1; size < 200000; size += size / 3 + 1)
        for (int i = 0; i < 20; ++i)
        {
            auto* const piece = static_cast<char*>(pool.Take(size));
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
    EXPECT_GE(pool.GetMemory(), all);
    EXPECT_LT(pool.GetMemory(), 3 * all);
}

TEST(RecordPool, SmallScriptsTakeLittle)
{
    CRecordPool pool;
    EXPECT_EQ(pool.GetMemory(), 0u);
    pool.Take(1);
    EXPECT_LE(pool.GetMemory(), 4096u);
}

TEST(RecordPool, ListsInItCanBeMovedAndReplacedByListsElsewhere)
{
    using List = std::vector<int, CRecordAllocator<int>>;
    CRecordPool pool;
    const auto filled = [&](CRecordPool* where) {
        List list(1000, 0, CRecordAllocator<int>(where));
        std::iota(list.begin(), list.end(), 1);
        return list;
    };
    List inPool = filled(&pool), outside = filled(nullptr);
    const int* const place = inPool.data();
    List moved = std::move(inPool);
    EXPECT_EQ(moved.data(), place);
    moved = std::move(outside);
    moved.push_back(1001);
    EXPECT_EQ(std::accumulate(moved.begin(), moved.end(), 0), 1001 * 1002 / 2);
    const List copy = filled(&pool);
    moved = copy;
    EXPECT_EQ(moved, copy);
    EXPECT_NE(moved.data(), copy.data());
}

#include "platform/memory.h"
#include "platform/spare_ranges_posix.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <random>
#include <sys/mman.h>
#include <vector>

using platform::memory::give_back;
using platform::memory::SpareRanges;
using platform::memory::take;
using platform::memory::taken_outside_heap;

namespace
{
constexpr std::size_t kGrain = std::size_t{64} << 10;
constexpr std::size_t kLargePage = std::size_t{2} << 20;

bool is_mapped(char* memory) { return ::msync(memory, 1, MS_ASYNC) == 0 || errno != ENOMEM; }
} // namespace

TEST(MemoryOutsideTheHeap, IsOfLargePagesAndGoesBackToTheSystemWhereItIsMoreThanIsKept)
{
    constexpr std::size_t kHuge = std::size_t{200} << 20;
    char* const memory = take(kHuge);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(memory) % kLargePage, 0u);
    EXPECT_TRUE(is_mapped(memory));
    give_back(memory, kHuge);
    EXPECT_FALSE(is_mapped(memory));
}

TEST(MemoryOutsideTheHeap, IsCounted)
{
    const std::size_t before = taken_outside_heap();
    char* const small = take(kGrain - 1);
    EXPECT_EQ(taken_outside_heap(), before) << "the heap's own";
    char* const large = take(10 * kGrain - 1);
    EXPECT_EQ(taken_outside_heap(), before + 10 * kGrain);
    give_back(large, 10 * kGrain - 1);
    give_back(small, kGrain - 1);
    EXPECT_EQ(taken_outside_heap(), before);
}

TEST(MemoryOutsideTheHeap, StaysApartHoweverItIsTakenAndGivenBack)
{
    struct Piece
    {
        std::size_t size;
        char* memory;
        char with;
    };
    std::mt19937 random(11);
    std::vector<Piece> pieces;
    const auto drop = [&pieces](std::size_t at) {
        const Piece piece = pieces[at];
        EXPECT_EQ(std::count(piece.memory, piece.memory + piece.size, piece.with),
                  static_cast<std::ptrdiff_t>(piece.size));
        give_back(piece.memory, piece.size);
        pieces.erase(pieces.begin() + static_cast<std::ptrdiff_t>(at));
    };
    const std::size_t before = taken_outside_heap();
    for (int step = 0; step < 2000; ++step)
    {
        // Long enough in one direction that there are more gaps than are kept.
        if (pieces.empty() || random() % 16 < (step / 300 % 2 == 0 ? 12u : 4u))
        {
            const std::size_t size = kGrain + random() % (step % 50 == 0 ? 3 * kLargePage : 3 * kGrain);
            pieces.push_back({size, take(size), static_cast<char>(step)});
            std::fill_n(pieces.back().memory, size, pieces.back().with);
        }
        else
            drop(random() % pieces.size());
    }
    while (!pieces.empty())
        drop(random() % pieces.size());
    EXPECT_EQ(taken_outside_heap(), before);
}

TEST(SpareRanges, GiveTheFrontOfTheFirstThatIsLargeEnough)
{
    char memory[100];
    SpareRanges spare(1000);
    EXPECT_EQ(spare.take(1), nullptr);
    EXPECT_TRUE(spare.keep(memory, 20));
    EXPECT_TRUE(spare.keep(memory + 40, 40));
    EXPECT_EQ(spare.take(30), memory + 40);
    EXPECT_EQ(spare.take(15), memory);
    EXPECT_EQ(spare.take(11), nullptr);
    EXPECT_EQ(spare.take(10), memory + 70);
    EXPECT_EQ(spare.take(5), memory + 15);
    EXPECT_EQ(spare.take(1), nullptr);
}

TEST(SpareRanges, ThatLieSideBySideAreOne)
{
    char memory[100];
    for (const bool isFrontFirst : {true, false})
    {
        SpareRanges spare(1000);
        EXPECT_TRUE(spare.keep(memory + (isFrontFirst ? 0 : 60), 40));
        EXPECT_TRUE(spare.keep(memory + (isFrontFirst ? 60 : 0), 40));
        EXPECT_EQ(spare.take(41), nullptr);
        EXPECT_TRUE(spare.keep(memory + 40, 20));
        EXPECT_EQ(spare.take(100), memory);
    }
}

TEST(SpareRanges, KeepNoMoreThanTheyWereToldTo)
{
    char memory[100];
    SpareRanges spare(50);
    EXPECT_TRUE(spare.keep(memory, 40));
    EXPECT_FALSE(spare.keep(memory + 50, 11));
    EXPECT_TRUE(spare.keep(memory + 50, 10));
    EXPECT_EQ(spare.take(40), memory);
    EXPECT_TRUE(spare.keep(memory, 40)) << "what was taken counts no more";
}

TEST(SpareRanges, KeepAsManyPiecesAsThereIsRoomFor)
{
    char memory[200];
    SpareRanges spare(1000);
    int kept = 0;
    while (kept < 100 && spare.keep(memory + 2 * kept, 1))
        ++kept;
    EXPECT_EQ(kept, 64);
    EXPECT_EQ(spare.take(1), memory);
    EXPECT_TRUE(spare.keep(memory + 3, 1)) << "joins two";
    EXPECT_EQ(spare.take(3), memory + 2);
}

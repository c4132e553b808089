#include "platform/memory.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <new>
#include <string_view>
#include <thread>
#include <vector>

using platform::memory::kBlock;

namespace
{
struct Piece
{
    char* memory;
    std::size_t size;
};

Piece take_filled(std::size_t size, char with)
{
    char* const memory = platform::memory::take(size);
    std::memset(memory, with, size);
    return {memory, size};
}

bool holds(const Piece& piece, char what)
{
    return std::string_view(piece.memory, piece.size).find_first_not_of(what) == std::string_view::npos;
}
} // namespace

TEST(Memory, OfAnySizeIsAlignedAndNobodyElses)
{
    for (int round = 0; round < 3; ++round)
    {
        std::vector<Piece> pieces;
        for (const std::size_t size : {std::size_t{1}, std::size_t{4096}, kBlock - 1, kBlock, kBlock + 1,
                                       3 * kBlock, 8 * kBlock, 8 * kBlock + 1, 20 * kBlock - 1})
            for (int i = 0; i < 10; ++i)
                pieces.push_back(take_filled(size, static_cast<char>(pieces.size())));
        for (std::size_t i = 0; i < pieces.size(); ++i)
        {
            EXPECT_EQ(reinterpret_cast<std::uintptr_t>(pieces[i].memory) % alignof(std::max_align_t), 0u);
            EXPECT_TRUE(holds(pieces[i], static_cast<char>(i))) << i;
            platform::memory::give_back(pieces[i].memory, pieces[i].size);
        }
    }
}

TEST(Memory, NothingCanBeGivenBack)
{
    platform::memory::give_back(nullptr, kBlock);
    const Piece piece = take_filled(kBlock, 'x');
    EXPECT_TRUE(piece.memory);
    platform::memory::give_back(piece.memory, piece.size);
}

TEST(Memory, ThatNobodyHasIsRefused)
{
    for (const std::size_t size : {SIZE_MAX, SIZE_MAX - 5, SIZE_MAX / 2, SIZE_MAX / 4})
        EXPECT_THROW(platform::memory::take(size), std::bad_alloc) << size;
}

TEST(Memory, ManyThreadsMayTakeAndGiveBack)
{
    const auto work = [](char with) {
        for (int round = 0; round < 200; ++round)
        {
            const Piece a = take_filled(kBlock, with), b = take_filled(kBlock, with);
            EXPECT_TRUE(holds(a, with) && holds(b, with));
            platform::memory::give_back(b.memory, b.size);
            platform::memory::give_back(a.memory, a.size);
        }
    };
    std::thread other(work, 'o');
    work('t');
    other.join();
}

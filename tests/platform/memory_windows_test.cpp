#include "platform/memory.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <algorithm>
#include <vector>

using platform::memory::kBlock;

TEST(Memory, BlocksThatWereGivenBackAreTakenAgain)
{
    std::vector<char*> first(20), second(20);
    std::generate(first.begin(), first.end(), [] { return platform::memory::take(kBlock); });
    for (char* const block : first)
        platform::memory::give_back(block, kBlock);
    std::generate(second.begin(), second.end(), [] { return platform::memory::take(kBlock); });
    EXPECT_TRUE(std::is_permutation(first.begin(), first.end(), second.begin()));
    for (char* const block : second)
        platform::memory::give_back(block, kBlock);
}

TEST(Memory, OnlySomeMegabytesAreKept)
{
    const auto committed = [] {
        std::size_t bytes = 0;
        MEMORY_BASIC_INFORMATION info;
        for (char* at = nullptr; VirtualQuery(at, &info, sizeof info) == sizeof info;
             at = static_cast<char*>(info.BaseAddress) + info.RegionSize)
            bytes += info.State == MEM_COMMIT && info.Type == MEM_PRIVATE ? info.RegionSize : 0;
        return bytes;
    };
    const std::size_t before = committed();
    std::vector<char*> blocks(400);
    std::generate(blocks.begin(), blocks.end(), [] { return platform::memory::take(kBlock); });
    EXPECT_GE(committed(), before + 300 * kBlock);
    for (char* const block : blocks)
        platform::memory::give_back(block, kBlock);
    EXPECT_LE(committed(), before + 100 * kBlock);
}

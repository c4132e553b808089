// A pair with a known ratio: what bench.sh prints for it shows whether the chain measures at all.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <numeric>
#include <vector>

namespace
{
void turn_round(benchmark::State& state, int times)
{
    std::vector<int> numbers(20000);
    std::iota(numbers.begin(), numbers.end(), 0);
    for (auto _ : state)
        for (int i = 0; i < times; ++i)
        {
            std::reverse(numbers.begin(), numbers.end());
            benchmark::DoNotOptimize(numbers.data());
            benchmark::ClobberMemory();
        }
}

void reverse_once(benchmark::State& state) { turn_round(state, 1); }
void reverse_twice(benchmark::State& state) { turn_round(state, 2); }
BENCHMARK(reverse_once);
BENCHMARK(reverse_twice);
} // namespace

// What a loaded catalogue takes from the system.
#include "bench/messages_inputs.h"
#include "bench/support/allocations.h"
#include "tarvo/msg/MSGFunction.h"

#include <benchmark/benchmark.h>

#include <cwchar>

namespace
{
void messages_held(benchmark::State& state)
{
    const auto& keys = bench::wide_message_keys();
    for (auto _ : state)
    {
        CMSGFunction::Reset();
        CMSGFunction::LoadFile(); // without files: gives back what the last round took
        const double before = bench::allocated_bytes();
        const long allocationsBefore = bench::allocations();
        bench::load_catalogue();
        state.counters["allocations_per_message"] =
            static_cast<double>(bench::allocations() - allocationsBefore) / static_cast<double>(keys.size());
        double units = 0;
        for (std::size_t i = 0; i < keys.size(); ++i)
            units += static_cast<double>(std::wcslen(keys[i])) + CMSGFunction::GetValue(keys[i]).GetLength();
        // After every message was asked for: what look-ups would keep counts as well.
        state.counters["held_of_text"] = (bench::allocated_bytes() - before) / (units * sizeof(char16_t));
    }
}

BENCHMARK(messages_held);
} // namespace

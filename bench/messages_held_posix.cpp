// What a loaded catalogue takes from the system.
#include "bench/messages_inputs.h"
#include "tarvo/msg/MSGFunction.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <atomic>
#include <cstdlib>
#include <new>

namespace
{
std::atomic<long> allocations;

double allocated()
{
    const struct mallinfo2 now = mallinfo2();
    return static_cast<double>(now.uordblks + now.hblkhd);
}
} // namespace

// Counted for the catalogue's own allocations; nothing else runs while they are.
[[gnu::noinline]] void* operator new(std::size_t size)
{
    allocations.fetch_add(1, std::memory_order_relaxed);
    if (void* const p = std::malloc(size != 0 ? size : 1))
        return p;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* p) noexcept { std::free(p); }
[[gnu::noinline]] void operator delete(void* p, std::size_t) noexcept { std::free(p); }

namespace
{
void messages_held(benchmark::State& state)
{
    const auto& keys = bench::wide_message_keys();
    for (auto _ : state)
    {
        CMSGFunction::Reset();
        CMSGFunction::LoadFile(); // without files: gives back what the last round took
        const double before = allocated();
        const long allocationsBefore = allocations;
        bench::load_catalogue();
        state.counters["allocations_per_message"] =
            static_cast<double>(allocations - allocationsBefore) / static_cast<double>(keys.size());
        double units = 0;
        for (const std::wstring& key : keys)
            units += static_cast<double>(key.size()) + CMSGFunction::GetValue(key.c_str()).GetLength();
        // After every message was asked for: what look-ups would keep counts as well.
        state.counters["held_of_text"] = (allocated() - before) / (units * sizeof(char16_t));
    }
}

BENCHMARK(messages_held);
} // namespace

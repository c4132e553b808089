#pragma once

/// The part of Google Benchmark's interface that our programs use, for the Windows build, where Debian
/// has no package of the library: registration, the timed loop, counters, and the options and the JSON
/// output that scripts/bench-report.py reads. Natively the same #include finds the library itself.

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace benchmark
{
/// A user counter. Only plain values; the library's rates are not offered.
struct Counter
{
    double value = 0;
    Counter() = default;
    Counter(double number) : value(number) {}
};

/// One timed run: `for (auto _ : state) work();` repeats the work as often as this run shall.
class State
{
public:
    explicit State(std::int64_t iterations) : m_nIterations(iterations) {}

    /// Stops and restarts the clock around preparations within the loop.
    void PauseTiming() { m_elapsed += std::chrono::steady_clock::now() - m_start; }
    void ResumeTiming() { m_start = std::chrono::steady_clock::now(); }

    void SetBytesProcessed(std::int64_t bytes) { counters["bytes_processed"] = static_cast<double>(bytes); }
    void SetItemsProcessed(std::int64_t items) { counters["items_processed"] = static_cast<double>(items); }
    /// The run has failed: the report says so and the program's exit code is 1.
    void SkipWithError(const char* message)
    {
        error = message;
        m_nIterations = 0;
    }
    std::int64_t iterations() const { return m_nIterations; }
    double seconds() const { return std::chrono::duration<double>(m_elapsed).count(); }

    struct [[maybe_unused]] Tick
    {
    };
    struct Iterator
    {
        State* state;
        std::int64_t left;
        bool operator!=(const Iterator&)
        {
            if (left > 0 && state->error.empty())
                return true;
            state->PauseTiming();
            return false;
        }
        Iterator& operator++()
        {
            --left;
            return *this;
        }
        Tick operator*() const { return {}; }
    };
    Iterator begin()
    {
        ResumeTiming();
        return {this, m_nIterations};
    }
    Iterator end() { return {this, 0}; }

    std::map<std::string, Counter> counters;
    std::string error;

private:
    std::int64_t m_nIterations;
    std::chrono::steady_clock::time_point m_start;
    std::chrono::steady_clock::duration m_elapsed{};
};

/// Adds a benchmark under its name. \p run must outlive the program's main.
void* RegisterBenchmark(const char* name, std::function<void(State&)> run);

/// Takes --benchmark_filter=REGEX, --benchmark_repetitions=N, --benchmark_min_time=SECONDS,
/// --benchmark_out=FILE and --benchmark_list_tests; other options of the family are taken and ignored.
void Initialize(int* argc, char** argv);

/// Runs what the filter leaves, repetition by repetition (a b a b ...), writes the JSON and prints a
/// line for each benchmark. Returns how many ran.
std::size_t RunSpecifiedBenchmarks();

inline void Shutdown() {}

/// Keeps the compiler from leaving out a computation whose result nobody reads.
template <class T>
inline void DoNotOptimize(const T& value)
{
    asm volatile("" : : "r,m"(value) : "memory");
}
inline void ClobberMemory() { asm volatile("" : : : "memory"); }
} // namespace benchmark

#define TARVO_BENCH_JOIN2(a, b) a##b
#define TARVO_BENCH_JOIN(a, b) TARVO_BENCH_JOIN2(a, b)
#define BENCHMARK(function)                                                                                  \
    [[maybe_unused]] static void* TARVO_BENCH_JOIN(g_benchmark_, __LINE__) =                                 \
        benchmark::RegisterBenchmark(#function, function)

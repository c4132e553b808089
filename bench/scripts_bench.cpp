// Resource scripts: reading, comparing and listing, in several encodings and sizes.
#include "bench/support/data.h"
#include "tarvo/restools/CompareResources.h"
#include "tarvo/restools/WritePairs.h"
#include "tarvo/restools/WriteTree.h"
#include "tarvo/text/AnsiPage.h"

#include <benchmark/benchmark.h>

namespace
{
void read(CResources& resources, const char* name)
{
    const std::string path = bench::data_path(name);
    CString log;
    CStringArray languages;
    if (!resources.Read(std::wstring(path.begin(), path.end()).c_str(), log, L"", languages))
        std::abort();
}

void run_read(benchmark::State& state, const char* name)
{
    SetAnsiCodePage(949);
    for (auto _ : state)
    {
        CResources resources;
        read(resources, name);
        benchmark::DoNotOptimize(resources.Strings().GetCount());
    }
}

/// Reads two scripts and writes a text about both, as the program does.
template <class Write>
void run_both(benchmark::State& state, const char* name1, const char* name2, Write write)
{
    for (auto _ : state)
    {
        CResources one, two;
        read(one, name1);
        read(two, name2);
        CString text;
        write(one, two, text);
        benchmark::DoNotOptimize(text.GetLength());
    }
}

void run_compare(benchmark::State& state, const char* name1, const char* name2)
{
    run_both(state, name1, name2, [](const CResources& one, const CResources& two, CString& text) {
        CompareResources(one, two, text, StringCheck::Both);
    });
}

void run_pairs(benchmark::State& state, const char* name)
{
    run_both(state, name, name, [](const CResources& one, const CResources& two, CString& text) {
        WritePairs(one, two, text, false);
    });
}

void run_tree(benchmark::State& state, const char* name)
{
    CResources resources;
    read(resources, name);
    for (auto _ : state)
    {
        CString text;
        WriteTree(resources, text, false);
        benchmark::DoNotOptimize(text.GetLength());
    }
}

void script_utf8(benchmark::State& state) { run_read(state, "script.utf8.rc"); }
void script_utf16(benchmark::State& state) { run_read(state, "script.utf16.rc"); }
void script_cp949(benchmark::State& state) { run_read(state, "script.cp949.rc"); }
void script_half(benchmark::State& state) { run_read(state, "script.half.rc"); }
void script_small(benchmark::State& state) { run_read(state, "script.small.rc"); }
void script_numbers(benchmark::State& state) { run_read(state, "script.numbers.rc"); }
void script_compare(benchmark::State& state) { run_compare(state, "script.utf8.rc", "script.edited.rc"); }
void script_compare_half(benchmark::State& state) { run_compare(state, "script.half.rc", "script.half.rc"); }
void script_compare_same(benchmark::State& state) { run_compare(state, "script.utf8.rc", "script.utf8.rc"); }
void script_pairs(benchmark::State& state) { run_pairs(state, "script.utf8.rc"); }
void script_pairs_half(benchmark::State& state) { run_pairs(state, "script.half.rc"); }
void script_tree(benchmark::State& state) { run_tree(state, "script.utf8.rc"); }
void script_tree_half(benchmark::State& state) { run_tree(state, "script.half.rc"); }

void script_held(benchmark::State& state)
{
    for (auto _ : state)
    {
        CResources resources;
        read(resources, "script.utf8.rc");
        state.counters["held_of_text"] =
            static_cast<double>(resources.MemoryBytes()) / static_cast<double>(resources.TextBytes());
    }
}

BENCHMARK(script_utf8);
BENCHMARK(script_utf16);
BENCHMARK(script_cp949);
BENCHMARK(script_half);
BENCHMARK(script_small);
BENCHMARK(script_numbers);
BENCHMARK(script_compare);
BENCHMARK(script_compare_half);
BENCHMARK(script_compare_same);
BENCHMARK(script_pairs);
BENCHMARK(script_pairs_half);
BENCHMARK(script_tree);
BENCHMARK(script_tree_half);
BENCHMARK(script_held);
} // namespace

// What resource scripts are measured against: other programs, started once for each reading as a build does.
#include "bench/support/data.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>

namespace
{
/// The exit status says nothing of use: diff's is 1 for files that differ.
void run(benchmark::State& state, const std::string& command)
{
    for (auto _ : state)
        if (const int status = std::system((command + " >/dev/null 2>&1").c_str());
            status == -1 || status == 127 << 8)
            state.SkipWithError("a peer is not installed");
}

std::string quoted(const char* name) { return " '" + bench::data_path(name) + "'"; }

void llvm_rc(benchmark::State& state)
{
    run(state, "llvm-rc /no-preprocess /dry-run" + quoted("script.numbers.rc"));
}
void llvm_rc_small(benchmark::State& state)
{
    run(state, "llvm-rc /no-preprocess /dry-run" + quoted("script.small.numbers.rc"));
}
void windres(benchmark::State& state)
{
    run(state,
        "x86_64-w64-mingw32-windres --preprocessor=cat -O res -o /dev/null" + quoted("script.numbers.rc"));
}
// It writes what it has read; to a file, as it may remove what it was told to write.
std::string wrc_command(const char* name)
{
    return "wrc -O res -o '" + bench::data_path(name) + ".wrc.res'" + quoted(name);
}
void wrc(benchmark::State& state) { run(state, wrc_command("script.numbers.rc")); }
void wrc_small(benchmark::State& state) { run(state, wrc_command("script.small.numbers.rc")); }
void gnu_diff(benchmark::State& state)
{
    run(state, "diff" + quoted("script.utf8.rc") + quoted("script.edited.rc"));
}

BENCHMARK(llvm_rc)->UseRealTime();
BENCHMARK(llvm_rc_small)->UseRealTime();
BENCHMARK(windres)->UseRealTime();
BENCHMARK(wrc)->UseRealTime();
BENCHMARK(wrc_small)->UseRealTime();
BENCHMARK(gnu_diff)->UseRealTime();
} // namespace

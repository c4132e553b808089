// What INI documents are measured against on Windows: the system's own profile functions.
#include "bench/ini_inputs.h"
#include "bench/support/data.h"

#include <benchmark/benchmark.h>

#include <windows.h>

#include <string>

namespace
{
// The system wants a full path; a relative one would be looked for in its own folder.
std::wstring full_path(const char* name)
{
    const std::string path = bench::data_path(name);
    wchar_t full[4096];
    GetFullPathNameW(std::wstring(path.begin(), path.end()).c_str(), 4096, full, nullptr);
    return full;
}

void ask(const std::wstring& file, const bench::KeyNames<wchar_t>::Pair& key, benchmark::State& state)
{
    wchar_t value[1024];
    if (GetPrivateProfileStringW(key.section, key.key, L"", value, 1024, file.c_str()) == 0)
        state.SkipWithError("the system does not find a key that is there");
    benchmark::DoNotOptimize(value[0]);
}

// The system reads the whole file for the first question after its memory of the file was dropped.
void profile_load(benchmark::State& state)
{
    const std::wstring file = full_path("lang.utf16.ini");
    for (auto _ : state)
    {
        WritePrivateProfileStringW(nullptr, nullptr, nullptr, file.c_str());
        ask(file, bench::key_names<wchar_t>("lang.keys.tsv")[0], state);
    }
}

void profile_look_up(benchmark::State& state)
{
    const std::wstring file = full_path("lang.utf16.ini");
    const auto& keys = bench::key_names<wchar_t>("lang.keys.tsv");
    std::size_t at = 0;
    for (auto _ : state)
    {
        ask(file, keys[at], state);
        at = at + 1 == keys.size() ? 0 : at + 1;
    }
}

BENCHMARK(profile_load);
BENCHMARK(profile_look_up);
} // namespace

// INI documents: loading, looking up and saving.
#include "bench/ini_inputs.h"
#include "bench/support/data.h"
#include "tarvo/lang/XIni.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <string>

namespace
{
constexpr int utf8 = 65001;

void load(benchmark::State& state, const char* name, int page)
{
    const std::string bytes = bench::data_bytes(name);
    for (auto _ : state)
    {
        XIni ini;
        ini.SetCodePage(page);
        ini.OpenMemory(reinterpret_cast<const unsigned char*>(bytes.data()), static_cast<int>(bytes.size()));
        benchmark::DoNotOptimize(ini.GetSectionCount());
    }
}

void ini_load_utf16(benchmark::State& state) { load(state, "lang.utf16.ini", 0); }
void ini_load_utf8(benchmark::State& state) { load(state, "lang.utf8.ini", utf8); }
void ini_load_cp949(benchmark::State& state) { load(state, "lang.cp949.ini", 949); }

XIni& document(const char* name)
{
    static std::unique_ptr<XIni> known[2];
    std::unique_ptr<XIni>& ini = known[std::string(name) == "lang.utf16.ini" ? 0 : 1];
    if (!ini)
    {
        const std::string bytes = bench::data_bytes(name);
        ini = std::make_unique<XIni>();
        ini->OpenMemory(reinterpret_cast<const unsigned char*>(bytes.data()), static_cast<int>(bytes.size()));
    }
    return *ini;
}

// One iteration is one look-up of an existing key in random order, the returned text included.
void look_up(benchmark::State& state, const char* file, const char* names)
{
    XIni& ini = document(file);
    const auto& keys = bench::key_names<wchar_t>(names);
    std::size_t at = 0;
    for (auto _ : state)
    {
        const auto [section, key] = keys[at];
        benchmark::DoNotOptimize(ini.GetStr(section, key, L""));
        at = at + 1 == keys.size() ? 0 : at + 1;
    }
}

void ini_look_up(benchmark::State& state) { look_up(state, "lang.utf16.ini", "lang.keys.tsv"); }
void ini_look_up_ten_times_the_sections(benchmark::State& state)
{
    look_up(state, "wide.utf16.ini", "wide.keys.tsv");
}

void ini_save(benchmark::State& state)
{
    const XIni& ini = document("lang.utf16.ini");
    for (auto _ : state)
        if (ini.SaveAs(L"ini_bench.saved.ini") == 0)
            state.SkipWithError("the folder at hand cannot be written");
}

BENCHMARK(ini_load_utf16);
BENCHMARK(ini_load_utf8);
BENCHMARK(ini_load_cp949);
BENCHMARK(ini_look_up);
BENCHMARK(ini_look_up_ten_times_the_sections);
BENCHMARK(ini_save);
} // namespace

// What INI documents are measured against natively: GLib's key files and the standard hash table.
#include "bench/ini_inputs.h"
#include "bench/support/allocations.h"
#include "bench/support/data.h"
#include "tarvo/lang/XIni.h"

#include <benchmark/benchmark.h>
#include <glib.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <unordered_map>

namespace
{
struct FreeKeyFile
{
    void operator()(GKeyFile* file) const { g_key_file_free(file); }
};
using KeyFile = std::unique_ptr<GKeyFile, FreeKeyFile>;

KeyFile load_key_file(const std::string& text)
{
    KeyFile file(g_key_file_new());
    if (!g_key_file_load_from_data(file.get(), text.data(), text.size(), G_KEY_FILE_NONE, nullptr))
    {
        std::fputs("GLib does not read the generated language file\n", stderr);
        std::exit(1);
    }
    return file;
}

void glib_load_utf8(benchmark::State& state)
{
    const std::string text = bench::data_bytes("lang.utf8.ini");
    for (auto _ : state)
        benchmark::DoNotOptimize(load_key_file(text).get());
}

void glib_load_cp949(benchmark::State& state)
{
    const std::string bytes = bench::data_bytes("lang.cp949.ini");
    for (auto _ : state)
    {
        gsize size = 0;
        const std::unique_ptr<char, decltype(&g_free)> text(
            g_convert(bytes.data(), static_cast<gssize>(bytes.size()), "UTF-8", "CP949", nullptr, &size,
                      nullptr),
            g_free);
        KeyFile file(g_key_file_new());
        if (!text || !g_key_file_load_from_data(file.get(), text.get(), size, G_KEY_FILE_NONE, nullptr))
            state.SkipWithError("iconv or GLib refused the file");
    }
}

void glib_look_up(benchmark::State& state)
{
    const KeyFile file = load_key_file(bench::data_bytes("lang.utf8.ini"));
    const auto& keys = bench::key_names<char>("lang.keys.tsv");
    std::size_t at = 0;
    for (auto _ : state)
    {
        const auto [section, key] = keys[at];
        char* const value = g_key_file_get_value(file.get(), section, key, nullptr);
        benchmark::DoNotOptimize(value);
        g_free(value);
        at = at + 1 == keys.size() ? 0 : at + 1;
    }
}

// The hash table gets its keys ready made, section and key in one text.
void hash_look_up(benchmark::State& state)
{
    XIni ini;
    const std::string bytes = bench::data_bytes("lang.utf16.ini");
    ini.OpenMemory(reinterpret_cast<const unsigned char*>(bytes.data()), static_cast<int>(bytes.size()));
    std::unordered_map<std::wstring, std::wstring> table;
    std::vector<std::wstring> names;
    const auto& keys = bench::key_names<wchar_t>("lang.keys.tsv");
    for (std::size_t i = 0; i < keys.size(); ++i)
    {
        names.push_back(std::wstring(keys[i].section) + L'\n' + keys[i].key);
        table[names.back()] = ini.GetStr(keys[i].section, keys[i].key, L"").GetString();
    }
    std::size_t at = 0;
    for (auto _ : state)
    {
        const std::wstring value = table.find(names[at])->second;
        benchmark::DoNotOptimize(value.data());
        at = at + 1 == names.size() ? 0 : at + 1;
    }
}

void glib_save(benchmark::State& state)
{
    const KeyFile file = load_key_file(bench::data_bytes("lang.utf8.ini"));
    for (auto _ : state)
    {
        gsize size = 0;
        char* const text = g_key_file_to_data(file.get(), &size, nullptr);
        std::FILE* const out = std::fopen("ini_bench.saved.glib.ini", "wb");
        if (out == nullptr || std::fwrite(text, 1, size, out) != size)
            state.SkipWithError("the folder at hand cannot be written");
        if (out != nullptr)
            std::fclose(out);
        g_free(text);
    }
}

// What one loaded document holds, as a share of its decoded text, and the allocations for each key.
void ini_held(benchmark::State& state)
{
    const std::string bytes = bench::data_bytes("lang.utf16.ini");
    for (auto _ : state)
    {
        const long allocationsBefore = bench::allocations();
        const double before = bench::allocated_bytes();
        XIni ini;
        ini.OpenMemory(reinterpret_cast<const unsigned char*>(bytes.data()), static_cast<int>(bytes.size()));
        state.counters["held_of_text"] =
            (bench::allocated_bytes() - before) / static_cast<double>(bytes.size() - 2);
        state.counters["allocations_per_key"] =
            static_cast<double>(bench::allocations() - allocationsBefore) /
            static_cast<double>(bench::key_names<char>("lang.keys.tsv").size());
    }
}

BENCHMARK(glib_load_utf8);
BENCHMARK(glib_load_cp949);
BENCHMARK(glib_look_up);
BENCHMARK(hash_look_up);
BENCHMARK(glib_save);
BENCHMARK(ini_held);
} // namespace

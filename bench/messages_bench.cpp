// The message catalogue: loading 17 files of 60,000 messages, asking for all of them, one look-up.
#include "bench/messages_inputs.h"
#include "tarvo/msg/MSGFunction.h"

#include <benchmark/benchmark.h>

#include <afxstr.h>

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace
{
void messages_load(benchmark::State& state)
{
    for (auto _ : state)
        bench::load_catalogue();
}

void messages_load_cp949(benchmark::State& state)
{
    for (auto _ : state)
        bench::load_catalogue("_kr.cp949.ini");
}

void messages_load_and_ask_all(benchmark::State& state)
{
    const auto& keys = bench::wide_message_keys();
    int units = 0;
    for (auto _ : state)
    {
        bench::load_catalogue();
        for (std::size_t i = 0; i < keys.size(); ++i)
            units += CMSGFunction::GetValue(keys[i]).GetLength();
    }
    benchmark::DoNotOptimize(units);
}

/// Asks one key after the other for as long as the run lasts.
template <class LookUp>
void ask_in_turn(benchmark::State& state, LookUp look_up)
{
    const std::size_t count = bench::message_keys().size();
    std::size_t at = 0;
    for (auto _ : state)
    {
        look_up(at);
        at = at + 1 == count ? 0 : at + 1;
    }
}

void messages_look_up(benchmark::State& state)
{
    bench::load_catalogue();
    const auto& keys = bench::wide_message_keys();
    ask_in_turn(state, [&](std::size_t at) {
        const CString text = CMSGFunction::GetValue(keys[at]);
        benchmark::DoNotOptimize(text.GetString());
    });
}

struct Hash
{
    std::size_t operator()(const CString& text) const
    {
        return std::hash<std::wstring_view>()({text, static_cast<std::size_t>(text.GetLength())});
    }
};

// The standard's table with the same string type. It gets its keys ready made, shares its texts, and is
// filled in the order of the files, as the catalogue is: in the order of the look-ups its memory would be
// read in sequence.
void hash_look_up(benchmark::State& state)
{
    bench::load_catalogue();
    std::vector<CString> keys;
    for (std::size_t i = 0; i < bench::wide_message_keys().size(); ++i)
        keys.emplace_back(bench::wide_message_keys()[i]);
    std::vector<CString> filed = keys;
    std::sort(filed.begin(), filed.end(),
              [](const CString& a, const CString& b) { return a.Right(5).Compare(b.Right(5)) < 0; });
    std::unordered_map<CString, CString, Hash> table;
    for (const CString& key : filed)
        table[CString(key.GetString())] = CMSGFunction::GetValue(key);
    ask_in_turn(state, [&](std::size_t at) {
        const CString text = table.find(keys[at])->second;
        benchmark::DoNotOptimize(text.GetString());
    });
}

BENCHMARK(messages_load);
BENCHMARK(messages_load_cp949);
BENCHMARK(messages_load_and_ask_all);
BENCHMARK(messages_look_up);
BENCHMARK(hash_look_up);
} // namespace

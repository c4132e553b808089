// Reading a module's resource header, against a copy of its text.
#include "bench/support/data.h"
#include "platform/codepage.h"
#include "tarvo/lang/ResourceHeader.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstring>
#include <string>

namespace
{
const std::string& header_text()
{
    static const std::string text =
        platform::codepage::to_utf16le(*platform::codepage::decode(1252, bench::data_bytes("resource.h")));
    return text;
}

void header_load(benchmark::State& state)
{
    const std::string& text = header_text();
    for (auto _ : state)
    {
        CResourceHeader header;
        header.LoadMemory(reinterpret_cast<const unsigned char*>(text.data()),
                          static_cast<int>(text.size() / 2));
        benchmark::DoNotOptimize(header.Has(CResourceHeader::All, L"1001"));
    }
    state.counters["lines"] = static_cast<double>(std::count(text.begin(), text.end(), '\n'));
}

void header_copy(benchmark::State& state)
{
    const std::string& text = header_text();
    std::string copy(text.size(), '\0');
    for (auto _ : state)
    {
        std::memcpy(copy.data(), text.data(), text.size());
        benchmark::DoNotOptimize(copy.data());
        benchmark::ClobberMemory();
    }
}

BENCHMARK(header_load);
BENCHMARK(header_copy);
} // namespace

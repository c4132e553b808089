#include "benchmark/benchmark.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <regex>

namespace
{
struct Entry
{
    std::string name;
    std::function<void(benchmark::State&)> run;
};

struct Run
{
    std::string name;
    int repetition;
    std::int64_t iterations;
    double nanoseconds; // for one iteration
    std::map<std::string, benchmark::Counter> counters;
    std::string error;
};

struct Options
{
    std::string filter = ".*";
    std::string out;
    int repetitions = 1;
    double min_time = 0.2;
    bool list = false;
};

std::vector<Entry>& entries()
{
    static std::vector<Entry> all;
    return all;
}

Options g_options;

Run time_once(const Entry& entry, std::int64_t iterations, int repetition)
{
    benchmark::State state(iterations);
    entry.run(state);
    return {entry.name,     repetition, iterations, state.seconds() * 1e9 / static_cast<double>(iterations),
            state.counters, state.error};
}

// How many iterations fill the asked time: grows tenfold at most until a run is long enough to judge.
std::int64_t calibrate(const Entry& entry)
{
    std::int64_t iterations = 1;
    for (;;)
    {
        const Run run = time_once(entry, iterations, 0);
        const double seconds = run.nanoseconds * static_cast<double>(iterations) / 1e9;
        if (!run.error.empty() || seconds >= g_options.min_time || iterations >= 1000000000)
            return iterations;
        const double growth = seconds > 0 ? std::min(10.0, 1.2 * g_options.min_time / seconds) : 10.0;
        iterations =
            std::max(iterations + 1, static_cast<std::int64_t>(static_cast<double>(iterations) * growth));
    }
}

void write_json(const std::vector<Run>& runs)
{
    std::FILE* file = std::fopen(g_options.out.c_str(), "wb");
    if (!file)
    {
        std::fprintf(stderr, "cannot write %s\n", g_options.out.c_str());
        std::exit(1);
    }
    std::fputs("{\n  \"benchmarks\": [\n", file);
    for (std::size_t i = 0; i < runs.size(); ++i)
    {
        const Run& run = runs[i];
        std::fprintf(
            file,
            "    {\"name\": \"%s\", \"run_name\": \"%s\", \"run_type\": \"iteration\", "
            "\"repetition_index\": %d, \"iterations\": %lld, \"real_time\": %.6f, \"time_unit\": \"ns\"",
            run.name.c_str(), run.name.c_str(), run.repetition, static_cast<long long>(run.iterations),
            run.nanoseconds);
        if (!run.error.empty())
            std::fprintf(file, ", \"error_occurred\": true, \"error_message\": \"%s\"", run.error.c_str());
        for (const auto& [name, counter] : run.counters)
            std::fprintf(file, ", \"%s\": %.6f", name.c_str(), counter.value);
        std::fprintf(file, "}%s\n", i + 1 < runs.size() ? "," : "");
    }
    std::fputs("  ]\n}\n", file);
    std::fclose(file);
}
} // namespace

namespace benchmark
{
void* RegisterBenchmark(const char* name, std::function<void(State&)> run)
{
    entries().push_back({name, std::move(run)});
    return &entries();
}

void Initialize(int* argc, char** argv)
{
    const auto value = [](const char* argument, const char* option) -> const char* {
        const std::size_t length = std::strlen(option);
        return std::strncmp(argument, option, length) == 0 ? argument + length : nullptr;
    };
    for (int i = 1; i < *argc; ++i)
    {
        if (const char* filter = value(argv[i], "--benchmark_filter="))
            g_options.filter = filter;
        else if (const char* out = value(argv[i], "--benchmark_out="))
            g_options.out = out;
        else if (const char* repetitions = value(argv[i], "--benchmark_repetitions="))
            g_options.repetitions = std::max(1, std::atoi(repetitions));
        else if (const char* seconds = value(argv[i], "--benchmark_min_time="))
            g_options.min_time = std::atof(seconds);
        else if (value(argv[i], "--benchmark_list_tests"))
            g_options.list = true;
    }
}

std::size_t RunSpecifiedBenchmarks()
{
    const std::regex filter(g_options.filter);
    std::vector<std::pair<const Entry*, std::int64_t>> chosen;
    for (const Entry& entry : entries())
        if (std::regex_search(entry.name, filter))
            chosen.emplace_back(&entry, 0);
    if (g_options.list)
    {
        for (const auto& [entry, iterations] : chosen)
            std::printf("%s\n", entry->name.c_str());
        return chosen.size();
    }
    for (auto& [entry, iterations] : chosen)
        iterations = calibrate(*entry);
    std::vector<Run> runs;
    bool failed = false;
    for (int repetition = 0; repetition < g_options.repetitions; ++repetition)
    {
        for (const auto& [entry, iterations] : chosen)
        {
            runs.push_back(time_once(*entry, iterations, repetition));
            const Run& run = runs.back();
            std::printf("%-40s %14.0f ns %12lld%s%s\n", run.name.c_str(), run.nanoseconds,
                        static_cast<long long>(run.iterations), run.error.empty() ? "" : " ERROR ",
                        run.error.c_str());
            failed = failed || !run.error.empty();
        }
    }
    if (!g_options.out.empty())
        write_json(runs);
    if (failed)
        std::exit(1);
    return chosen.size();
}
} // namespace benchmark

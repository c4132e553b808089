#include "bench/support/data.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace bench
{
namespace
{
[[noreturn]] void give_up(const std::string& path)
{
    std::fprintf(stderr, "cannot read %s: scripts/bench.sh writes the inputs and sets TARVO_BENCH_DATA\n",
                 path.c_str());
    std::exit(1);
}
} // namespace

std::string data_path(const char* name)
{
    const char* folder = std::getenv("TARVO_BENCH_DATA");
    const std::string path = std::string(folder ? folder : "build/bench-data") + "/" + name;
    if (!std::ifstream(path, std::ios::binary))
        give_up(path);
    return path;
}

std::string data_bytes(const char* name)
{
    std::ifstream file(data_path(name), std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(file), {}};
    if (bytes.empty())
        give_up(name);
    return bytes;
}

std::vector<std::pair<std::string, std::string>> data_pairs(const char* name)
{
    std::vector<std::pair<std::string, std::string>> pairs;
    std::ifstream file(data_path(name), std::ios::binary);
    for (std::string line; std::getline(file, line);)
    {
        const std::size_t tab = line.find('\t');
        pairs.emplace_back(line.substr(0, tab), line.substr(tab + 1));
    }
    if (pairs.empty())
        give_up(name);
    return pairs;
}
} // namespace bench

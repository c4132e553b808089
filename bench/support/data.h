#pragma once

#include <string>
#include <utility>
#include <vector>

namespace bench
{
/// Path of an input that bench/gen.py wrote, such as "lang.utf16.ini", below the folder that
/// scripts/bench.sh names in TARVO_BENCH_DATA. Ends the program with a message when it is not there:
/// a benchmark of an empty input would look fast.
std::string data_path(const char* name);

/// The whole bytes of that input.
std::string data_bytes(const char* name);

/// The pairs of a tab-separated input, such as "lang.keys.tsv".
std::vector<std::pair<std::string, std::string>> data_pairs(const char* name);
} // namespace bench

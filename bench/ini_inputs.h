#pragma once

#include <string>
#include <utility>
#include <vector>

/// The language files of bench/gen.py as the INI benchmarks look them up: shuffled names of sections and
/// keys, wide, so that a measured look-up does nothing but look up.
namespace bench
{
using WideKey = std::pair<std::wstring, std::wstring>;

/// The pairs of "lang.keys.tsv" or "wide.keys.tsv".
const std::vector<WideKey>& wide_keys(const char* name);
} // namespace bench

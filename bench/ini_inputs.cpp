#include "bench/ini_inputs.h"

#include "bench/support/data.h"

#include <map>

namespace bench
{
const std::vector<WideKey>& wide_keys(const char* name)
{
    static std::map<std::string, std::vector<WideKey>> known;
    std::vector<WideKey>& keys = known[name];
    if (keys.empty())
        for (const auto& [section, key] : data_pairs(name))
            keys.emplace_back(std::wstring(section.begin(), section.end()),
                              std::wstring(key.begin(), key.end()));
    return keys;
}
} // namespace bench

#include "bench/ini_inputs.h"

#include "bench/support/data.h"

#include <map>
#include <string>

namespace bench
{
template <class Char>
KeyNames<Char>::KeyNames(const char* name)
{
    for (const auto& [section, key] : data_pairs(name))
    {
        m_texts.add(section);
        m_texts.add(key);
    }
}

template <class Char>
const KeyNames<Char>& key_names(const char* name)
{
    static std::map<std::string, KeyNames<Char>> known;
    return known.try_emplace(name, name).first->second;
}

template const KeyNames<char>& key_names(const char*);
template const KeyNames<wchar_t>& key_names(const char*);
} // namespace bench

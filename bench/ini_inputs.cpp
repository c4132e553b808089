#include "bench/ini_inputs.h"

#include "bench/support/data.h"

#include <map>

namespace bench
{
template <class Char>
KeyNames<Char>::KeyNames(const char* name)
{
    const auto add = [this](const std::string& text) {
        m_starts.push_back(static_cast<std::uint32_t>(m_texts.size()));
        m_texts.insert(m_texts.end(), text.begin(), text.end());
        m_texts.push_back(0);
    };
    for (const auto& [section, key] : data_pairs(name))
    {
        add(section);
        add(key);
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

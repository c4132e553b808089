#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// The language files of bench/gen.py as the INI benchmarks look them up: shuffled names of sections and
/// keys, ready made, so that a measured look-up does nothing but look up.
namespace bench
{
/// They stand end to end in the order in which they are asked for: what the names take of the processor's
/// cache is not what is measured.
template <class Char>
class KeyNames
{
public:
    struct Pair
    {
        const Char* section;
        const Char* key;
    };

    /// The pairs of "lang.keys.tsv" or "wide.keys.tsv".
    explicit KeyNames(const char* name);
    std::size_t size() const { return m_starts.size() / 2; }
    Pair operator[](std::size_t index) const
    {
        return {&m_texts[m_starts[2 * index]], &m_texts[m_starts[2 * index + 1]]};
    }

private:
    std::vector<Char> m_texts;
    std::vector<std::uint32_t> m_starts;
};

/// The names of \p name, read once.
template <class Char>
const KeyNames<Char>& key_names(const char* name);
} // namespace bench

#pragma once

#include "bench/support/texts.h"

/// The language files of bench/gen.py as the INI benchmarks look them up: shuffled names of sections and
/// keys, ready made, so that a measured look-up does nothing but look up.
namespace bench
{
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
    std::size_t size() const { return m_texts.size() / 2; }
    Pair operator[](std::size_t index) const { return {m_texts[2 * index], m_texts[2 * index + 1]}; }

private:
    Texts<Char> m_texts;
};

/// The names of \p name, read once.
template <class Char>
const KeyNames<Char>& key_names(const char* name);
} // namespace bench

#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace bench
{
/// Texts that are asked for, end to end in the order in which they are: what they take of the processor's
/// cache is not what is measured.
template <class Char>
class Texts
{
public:
    /// Adds ASCII text.
    void add(std::string_view text)
    {
        m_starts.push_back(static_cast<std::uint32_t>(m_characters.size()));
        m_characters.insert(m_characters.end(), text.begin(), text.end());
        m_characters.push_back(0);
    }
    std::size_t size() const { return m_starts.size(); }
    /// Number \p index, ending with a NUL.
    const Char* operator[](std::size_t index) const { return &m_characters[m_starts[index]]; }

private:
    std::vector<Char> m_characters;
    std::vector<std::uint32_t> m_starts;
};
} // namespace bench

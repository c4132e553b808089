#include "tarvo/lang/HeaderWords.h"

#include <afxcase.h>

#include <algorithm>

namespace
{
/// UTF-16LE bytes as units.
struct WideUnits
{
    const unsigned char* data;
    wchar_t operator[](std::size_t at) const
    {
        return static_cast<wchar_t>(data[2 * at] | static_cast<unsigned>(data[2 * at + 1]) << 8);
    }
};

/// Bytes as units of the same value.
struct ByteUnits
{
    std::string_view bytes;
    wchar_t operator[](std::size_t at) const { return static_cast<unsigned char>(bytes[at]); }
};

constexpr char endOfTextFile = 0x1A;
} // namespace

template <class Units>
int CThreeWords::ReadWords(const Units& units, std::size_t at, std::size_t count)
{
    for (int number = 0; number < 3; ++number)
    {
        std::wstring& word = m_words[number];
        word.clear();
        while (at < count && afxIsSpace(units[at]))
            ++at;
        if (at >= count || units[at] == L'\0')
            return number;
        for (wchar_t c; at < count && (c = units[at]) != L'\0' && !afxIsSpace(c); ++at)
            if (word.size() < m_most)
                word += c;
    }
    return 3;
}

int CHeaderWords::Read() { return m_read = ReadWords(WideUnits{m_data}, m_at, m_count); }

bool CHeaderWords::SkipToDirective()
{
    const WideUnits units{m_data};
    m_at = std::min(m_at + static_cast<std::size_t>(m_read), m_count);
    while (m_at < m_count && units[m_at] != L'#')
        ++m_at;
    return m_at < m_count;
}

bool CHeaderLines::Next()
{
    if (m_bytes.empty() || m_bytes.front() == endOfTextFile)
        return false;
    std::string_view rest = m_bytes.substr(0, m_most);
    const std::size_t end = rest.find_first_of(std::string_view("\n\x1A", 2));
    const bool isFed = end != std::string_view::npos && rest[end] == '\n';
    m_line = rest.substr(0, end);
    m_bytes.remove_prefix(m_line.size() + (isFed ? 1 : 0));
    return true;
}

int CHeaderLines::Read() { return ReadWords(ByteUnits{m_line}, 0, m_line.size()); }

#include "tarvo/lang/HeaderWords.h"

#include "platform/letters.h"

#include <algorithm>

namespace headertext
{
namespace
{
bool EndsWord(char16_t unit)
{
    // Letters, digits and signs are told by one comparison.
    if (unit - 0x21u < 0x5Eu)
        return false;
    return unit == u'\0' || platform::letters::is_space(static_cast<wchar_t>(unit));
}
} // namespace

Words ReadWords(units::view text)
{
    Words words;
    const char16_t* at = text.data();
    const char16_t* const end = at + text.size();
    for (units::view& word : words.word)
    {
        while (at != end && *at != u'\0' && EndsWord(*at))
            ++at;
        if (at == end || *at == u'\0')
            break;
        const char16_t* const begin = at;
        while (at != end && !EndsWord(*at))
            ++at;
        word = {begin, std::min(static_cast<std::size_t>(at - begin), kMostWord)};
        ++words.count;
    }
    return words;
}

bool CDirectives::Next(Words& words)
{
    if (m_bAtEnd)
        return false;
    words = ReadWords(m_text);
    const char16_t* const end = m_text.data() + m_text.size();
    const char16_t* const from = std::min(m_text.data() + words.count, end);
    const char16_t* const sign = units::find(from, end, u'#');
    m_text = {sign, static_cast<std::size_t>(end - sign)};
    m_bAtEnd = sign == end;
    return true;
}

bool CHeaderLines::Next(units::view& line)
{
    constexpr char kEndOfText = 0x1A;
    if (m_bytes.empty() || m_bytes.front() == kEndOfText)
        return false;
    const std::string_view piece = m_bytes.substr(0, kMostWord);
    const std::size_t end = std::min(piece.find_first_of("\n\x1A"), piece.size());
    m_line.resize(end);
    std::transform(piece.begin(), piece.begin() + static_cast<std::ptrdiff_t>(end), m_line.begin(),
                   [](char byte) { return static_cast<unsigned char>(byte); });
    const bool isFed = end < piece.size() && piece[end] == '\n';
    m_bytes.remove_prefix(end + (isFed ? 1 : 0));
    line = m_line;
    return true;
}
} // namespace headertext

#include "tarvo/lang/HeaderWords.h"

#include "platform/letters.h"
#include "tarvo/text/UnitBlock.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

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

constexpr std::uint64_t kOnes = 0x0001000100010001;

std::uint64_t FourUnits(const char16_t* at)
{
    std::uint64_t four;
    std::memcpy(&four, at, sizeof four);
    return four;
}

// The end of the blanks at \p at; headers align their values with many, so four spaces go in one step.
const char16_t* PassBlanks(const char16_t* at, const char16_t* end)
{
    while (end - at >= 4 && FourUnits(at) == kOnes * u' ')
        at += 4;
    while (at != end && *at != u'\0' && EndsWord(*at))
        ++at;
    return at;
}

// The end of the word at \p at: four units in one step while none is below '!' or above 0x7F.
const char16_t* PassWord(const char16_t* at, const char16_t* end)
{
    for (; end - at >= 4; at += 4)
    {
        const std::uint64_t four = FourUnits(at);
        const std::uint64_t below = (four - kOnes * u'!') & ~four & kOnes * 0x8000;
        if ((below | (four & kOnes * 0xFF80)) != 0)
            break;
    }
    while (at != end && !EndsWord(*at))
        ++at;
    return at;
}
} // namespace

Words ReadWords(units::view text)
{
    Words words;
    const char16_t* at = text.data();
    const char16_t* const end = at + text.size();
    for (units::view& word : words.word)
    {
        at = PassBlanks(at, end);
        if (at == end || *at == u'\0')
            break;
        const char16_t* const begin = at;
        at = PassWord(at, end);
        word = {begin, std::min(static_cast<std::size_t>(at - begin), kMostWord)};
        ++words.count;
    }
    return words;
}

namespace
{
std::uint64_t From(int at) { return ~std::uint64_t{0} << at; }

/// Reads three words of a text that holds 64 units at least, and finds the '#' behind its third unit. False,
/// and nothing done, when they do not lie among these, each with a blank behind it, or when there is
/// something else than ASCII among them.
bool ReadBlock(const char16_t* text, Words& words, const char16_t*& sign)
{
    const CUnitBlock block(text);
    const std::uint64_t blanks = block.Equal(u' ') | block.Between(u'\t', u'\r');
    const std::uint64_t signs = block.Equal(u'#') & From(3);
    const std::uint64_t letters = block.Between(u'!', u'~');
    int at = 0;
    for (units::view& word : words.word)
    {
        const int begin = std::countr_zero(letters & From(at));
        if (begin == 64 || (at = std::countr_zero(~letters & From(begin))) == 64)
            return false;
        word = {text + begin, static_cast<std::size_t>(at - begin)};
    }
    // The blank behind the last word is looked at too: another unit would be part of it.
    if (signs == 0 || ((letters | blanks) | From(at) << 1) != From(0))
        return false;
    words.count = 3;
    sign = text + std::countr_zero(signs);
    return true;
}
} // namespace

bool CDirectives::Next(Words& words)
{
    if (m_bAtEnd)
        return false;
    const char16_t* const end = m_text.data() + m_text.size();
    const char16_t* sign = end;
    if (m_text.size() < CUnitBlock::kCount || !ReadBlock(m_text.data(), words, sign))
    {
        words = ReadWords(m_text);
        sign = units::find(std::min(m_text.data() + words.count, end), end, u'#');
    }
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

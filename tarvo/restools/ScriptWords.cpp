#include "tarvo/restools/ScriptWords.h"

#include <initializer_list>

namespace
{
constexpr std::u16string_view emptyLiteral = u"\\\"";

constexpr std::uint64_t Bits(std::initializer_list<char16_t> units)
{
    std::uint64_t bits = 0;
    for (const char16_t c : units)
        bits |= std::uint64_t{1} << c;
    return bits;
}

constexpr std::uint64_t standardBits = Bits({u' ', u',', u'\t'});
constexpr std::uint64_t commaBits = Bits({u','});
constexpr std::uint64_t quoteBit = Bits({u'"'});
} // namespace

CScriptWords::CScriptWords(std::u16string_view line, WordSeparators separators, CTextArena& keep)
    : m_begin(line.data()), m_at(m_begin), m_end(m_begin + line.size()), m_keep(&keep)
{
    EndWordsAt(separators);
}

void CScriptWords::EndWordsAt(WordSeparators separators)
{
    m_separators = separators == WordSeparators::Standard ? standardBits : commaBits;
}

// Moves to the first unit of the next word. \p isEmpty tells that a span was closed without one, which is
// a word too.
bool CScriptWords::FindWord(bool& isEmpty)
{
    const char16_t* at = m_at;
    const char16_t* const end = m_end;
    bool found = true;
    while (true)
    {
        while (at != end && IsSeparator(*at))
            ++at;
        found = at != end;
        if (!found || *at != u'"' || IsPair(at) || IsEscaped(at))
            break;
        ++at;
        isEmpty = m_inSpan;
        m_inSpan = !m_inSpan;
        if (isEmpty)
            break;
    }
    m_at = at;
    return found;
}

// The end of the plain text that begins at \p at: a quote, or outside of a span a separator.
const char16_t* CScriptWords::FindStop(const char16_t* at) const
{
    const char16_t* const end = m_end;
    if (m_inSpan)
        while (at != end && *at != u'"')
            ++at;
    else
        for (const std::uint64_t stops = m_separators | quoteBit; at != end; ++at)
            if (*at < 64 && (stops >> *at & 1) != 0)
                break;
    return at;
}

bool CScriptWords::Scan(Raw& raw)
{
    bool isEmpty = false;
    if (!FindWord(isEmpty))
        return false;
    const char16_t* at = m_at;
    raw.first = raw.last = at;
    if (isEmpty)
        return true;
    while (true)
    {
        raw.last = at = FindStop(at);
        if (at == m_end)
            break;
        if (*at != u'"') // a separator
        {
            ++at;
            break;
        }
        // A pair is told before anything else: pairs are replaced before words are looked for.
        if (IsPair(at))
        {
            raw.isPlain = false;
            at += 2;
        }
        else if (IsEscaped(at))
            ++at;
        else if (m_inSpan)
        {
            m_inSpan = false;
            ++at;
            break;
        }
        else // a span that opens inside a word
        {
            raw.isPlain = false;
            m_inSpan = true;
            ++at;
        }
    }
    m_at = at;
    return true;
}

std::u16string_view CScriptWords::Compose(const Raw& raw)
{
    char16_t* const begin = m_keep->Add(static_cast<std::size_t>(raw.last - raw.first));
    char16_t* out = begin;
    for (const char16_t* in = raw.first; in != raw.last;)
    {
        const bool isQuote = *in == u'"';
        if (isQuote && IsPair(in))
        {
            *out++ = u'\\';
            *out++ = u'"';
            in += 2;
            continue;
        }
        if (!isQuote || IsEscaped(in))
            *out++ = *in;
        ++in;
    }
    return {begin, static_cast<std::size_t>(out - begin)};
}

bool CScriptWords::Next(std::u16string_view& word)
{
    Raw raw;
    if (!Scan(raw))
    {
        word = {};
        return false;
    }
    word = {raw.first, static_cast<std::size_t>(raw.last - raw.first)};
    if (word == u"\"\"") // by far the most frequent pair, and no copy of it is needed
        word = {};
    else if (!raw.isPlain)
        word = Compose(raw);
    if (word == emptyLiteral)
        word = {};
    return true;
}

std::u16string_view CScriptWords::Next()
{
    std::u16string_view word;
    Next(word);
    return word;
}

void CScriptWords::Skip(std::size_t count)
{
    Raw raw;
    while (count-- != 0 && Scan(raw))
    {
    }
}

std::u16string ScriptWord(std::u16string_view line, std::size_t number, WordSeparators separators)
{
    CTextArena keep;
    CScriptWords words(line, separators, keep);
    words.Skip(number);
    return std::u16string(words.Next());
}

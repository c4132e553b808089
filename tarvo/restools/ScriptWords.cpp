#include "tarvo/restools/ScriptWords.h"

#include <algorithm>
#include <bit>

namespace
{
std::uint32_t Place(std::size_t place) { return static_cast<std::uint32_t>(place); }
} // namespace

void CScriptWords::EndWordsAt(WordSeparators separators)
{
    m_blanksSeparate = separators == WordSeparators::Standard;
}

CScriptWords CScriptWords::FieldsFrom(std::size_t at) const
{
    CScriptWords words = *this;
    words.m_at = static_cast<std::uint32_t>(at);
    words.m_inSpan = false;
    words.EndWordsAt(WordSeparators::Comma);
    return words;
}

// Moves to the first unit of the next word. \p isEmpty tells that a span was closed without one, which is
// a word too.
bool CScriptWords::FindWord(bool& isEmpty)
{
    while (true)
    {
        m_at = Place(m_marks->Find(m_at, m_end, [this](const auto& seen) { return ~Separators(seen); }));
        if (m_at == m_end)
            return false;
        if (Text()[m_at] != u'"' || IsPair(m_at) || IsEscaped(m_at))
            return true;
        ++m_at;
        isEmpty = m_inSpan;
        m_inSpan = !m_inSpan;
        if (isEmpty)
            return true;
    }
}

bool CScriptWords::Scan(Raw& raw)
{
    bool isEmpty = false;
    if (!FindWord(isEmpty))
        return false;
    std::size_t at = m_at;
    raw = {at, at, true};
    if (isEmpty)
        return true;
    while (true)
    {
        // Plain text ends at a quote, or outside of a span at a separator.
        const std::uint64_t outside = m_inSpan ? 0 : ~std::uint64_t{0};
        raw.last = at = m_marks->Find(
            at, m_end, [=, this](const auto& seen) { return seen.quotes | (Separators(seen) & outside); });
        if (at == m_end)
            break;
        if (Text()[at] != u'"') // a separator
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
    m_at = Place(at);
    return true;
}

std::u16string_view CScriptWords::Compose(const Raw& raw)
{
    char16_t* const begin = m_keep->Add(raw.last - raw.first);
    char16_t* out = begin;
    for (std::size_t at = raw.first; at != raw.last; ++at)
    {
        const bool isQuote = Text()[at] == u'"';
        if (isQuote && IsPair(at))
        {
            *out++ = u'\\';
            *out++ = u'"';
            ++at;
        }
        else if (!isQuote || IsEscaped(at))
            *out++ = Text()[at];
    }
    return {begin, static_cast<std::size_t>(out - begin)};
}

bool CScriptWords::NextOfAll(std::u16string_view& word)
{
    Raw raw;
    if (!Scan(raw))
    {
        word = {};
        return false;
    }
    word = {Text() + raw.first, raw.last - raw.first};
    if (word == u"\"\"") // by far the most frequent pair, and no copy of it is needed
        word = {};
    else if (!raw.isPlain)
        word = Compose(raw);
    if (word == u"\\\"") // an empty literal
        word = {};
    return true;
}

void CScriptWords::Skip(std::size_t count)
{
    Raw raw;
    while (count != 0)
        if (const std::size_t skipped = SkipPlain(count))
            count -= skipped;
        else if (!Scan(raw))
            break;
        else
            --count;
}

// Passes over at most \p count words that end among the next units, before a quote; gives how many.
std::size_t CScriptWords::SkipPlain(std::size_t count)
{
    if (m_inSpan || m_at >= m_end)
        return 0;
    const CScriptMarks::Seen seen = m_marks->At(m_at);
    const std::size_t left = m_end - m_at;
    std::uint64_t separators = Separators(seen), quotes = seen.quotes;
    if (left < CScriptMarks::Count) // a word ends at the line's end too
    {
        const std::uint64_t end = std::uint64_t{1} << left;
        separators = (separators & (end - 1)) | end;
        quotes &= end - 1;
    }
    separators &= quotes ^ (quotes - 1); // up to the first quote; without one all of them
    // Of each run the first, except that no word ends where none has begun.
    std::uint64_t ends = separators & ~(separators << 1) & ~std::uint64_t{1};
    std::size_t skipped = 0;
    std::size_t last = 0;
    for (; skipped < count && ends != 0; ++skipped, ends &= ends - 1)
        last = static_cast<std::size_t>(std::countr_zero(ends)) + 1;
    m_at = std::min(Place(m_at + last), m_end);
    return skipped;
}

bool CScriptWords::IsAtEnd() const
{
    // Nearly always there is a unit that can only be part of a word.
    const auto letters = [](const auto& seen) { return ~(seen.separators | seen.quotes); };
    std::u16string_view word;
    return m_marks->Find(m_at, m_end, letters) == m_end && !CScriptWords(*this).Next(word);
}

std::u16string_view CScriptWords::FromQuote() const
{
    const std::size_t quote = m_marks->Find(m_begin, m_end, [](const auto& seen) { return seen.quotes; });
    return {Text() + quote, m_end - quote};
}

std::u16string ScriptWord(std::u16string_view line, std::size_t number, WordSeparators separators)
{
    CScriptArena keep;
    const CScriptMarks marks(line);
    CScriptWords words(marks, 0, line.size(), keep);
    words.EndWordsAt(separators);
    words.Skip(number);
    return std::u16string(words.Next());
}

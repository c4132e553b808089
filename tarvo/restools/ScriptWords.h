#pragma once

#include "tarvo/export.h"
#include "tarvo/restools/ScriptArena.h"
#include "tarvo/restools/ScriptMarks.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// What ends a word of a script line.
enum class WordSeparators
{
    Standard, ///< space, comma and tab
    Comma     ///< comma alone: blanks belong to the word
};

/// Walks over the words of one script line: the one tokenizer that every reader of a script uses.
///
/// Every pair of adjacent quotes is taken, from the left, as a backslash and a quote. A quote without a
/// backslash before it opens or closes a quoted span. Outside a span a separator ends a word and a run of
/// separators counts as one; inside a span a separator belongs to the word once the word has begun, and
/// those right after the opening quote are passed over. Quotes that open or close are not part of the
/// word, and the closing one ends it. A word that is nothing but backslash and quote is an empty literal
/// and comes back empty; so does a span that holds nothing but separators.
///
/// A word is a view into the line. Only where pairs had to be replaced or quotes dropped it is a copy, in
/// the arena. Text, marks and arena must outlive the words.
class TARVO_API CScriptWords
{
public:
    CScriptWords() = default;
    /// The words of the units from \p begin to \p end of the text that has these marks. Where they say that
    /// its breaks separate, a break stands for a blank.
    CScriptWords(const CScriptMarks& marks, std::size_t begin, std::size_t end, CScriptArena& keep)
        : m_marks(&marks), m_keep(&keep), m_begin(static_cast<std::uint32_t>(begin)), m_at(m_begin),
          m_end(static_cast<std::uint32_t>(end))
    {
    }

    /// Gives the next word; false, and an empty word, past the last.
    bool Next(std::u16string_view& word)
    {
        word = {};
        return m_at != m_end && (NextSimple(word) || NextOfAll(word));
    }
    /// The next word; empty past the last.
    std::u16string_view Next()
    {
        std::u16string_view word;
        Next(word);
        return word;
    }
    /// Passes over words.
    void Skip(std::size_t count);
    /// From here on words end at \p separators; at first at the standard ones.
    void EndWordsAt(WordSeparators separators);
    /// The words that commas alone separate, from \p at on, where none has begun.
    CScriptWords FieldsFrom(std::size_t at) const;

    const CScriptMarks& Marks() const { return *m_marks; }
    const char16_t* Text() const { return m_marks->Text(); }
    /// The places in the text where the line begins and ends, and where this walk stands.
    std::size_t Begin() const { return m_begin; }
    std::size_t End() const { return m_end; }
    std::size_t At() const { return m_at; }

    std::u16string_view Line() const { return {Text() + m_begin, End() - m_begin}; }
    /// True when no word follows.
    bool IsAtEnd() const;
    /// Everything from the line's first quote on; empty when there is none.
    std::u16string_view FromQuote() const;

private:
    /// A word as the line writes it: places in the text.
    struct Raw
    {
        std::size_t first;
        std::size_t last;
        bool isPlain; ///< no pair and no span's quote inside
    };

    bool IsPair(std::size_t quote) const { return quote + 1 < m_end && Text()[quote + 1] == u'"'; }
    bool IsEscaped(std::size_t quote) const { return quote != m_begin && Text()[quote - 1] == u'\\'; }
    std::uint64_t Separators(const CScriptMarks::Seen& seen) const
    {
        return m_blanksSeparate ? seen.separators : seen.commas;
    }
    inline bool NextSimple(std::u16string_view& word);
    bool NextOfAll(std::u16string_view& word);
    bool FindWord(bool& isEmpty);
    bool Scan(Raw& raw);
    std::size_t SkipPlain(std::size_t count);
    std::u16string_view Compose(const Raw& raw);

    const CScriptMarks* m_marks = nullptr;
    CScriptArena* m_keep = nullptr;
    std::uint32_t m_begin = 0; // of a script's 64 Mi units at most
    std::uint32_t m_at = 0;
    std::uint32_t m_end = 0;
    bool m_blanksSeparate = true;
    bool m_inSpan = false;
};

// Takes the words that nearly all are, by what one look at Count units tells: one without any quote that a
// separator ends, or one in quotes that begins with no separator and holds neither backslash nor quote at its
// end. False, and nothing is done, for every other.
inline bool CScriptWords::NextSimple(std::u16string_view& word)
{
    if (m_inSpan)
        return false;
    const std::size_t at = m_at;
    const CScriptMarks::Seen seen = m_marks->At(at);
    const std::uint64_t separators = Separators(seen), quotes = seen.quotes;
    const std::size_t first = static_cast<std::size_t>(std::countr_zero(~separators));
    if (first >= CScriptMarks::Count)
        return false;
    const std::uint64_t behind = ~std::uint64_t{1} << first; // the units behind the first one
    const bool isQuoted = (quotes >> first & 1) != 0;
    const std::uint64_t stops = (isQuoted ? quotes : quotes | separators) & behind;
    if (stops == 0)
        return false;
    const std::size_t last = static_cast<std::size_t>(std::countr_zero(stops));
    const char16_t* const text = Text() + at;
    if (!isQuoted)
    {
        if ((quotes >> last & 1) != 0 || at + last > m_end)
            return false;
        word = {text + first, last - first};
        m_at = std::min(static_cast<std::uint32_t>(at + last + 1), m_end);
        return true;
    }
    const std::uint64_t odd = (separators | quotes) >> 1 >> first | quotes >> 1 >> last;
    if ((odd & 1) != 0 || last >= CScriptMarks::Count - 1 || at + last >= m_end || text[last - 1] == u'\\' ||
        IsEscaped(at + first))
        return false;
    word = {text + first + 1, last - first - 1};
    m_at = static_cast<std::uint32_t>(at + last + 1);
    return true;
}

/// Word number \p number, from 0, of a line; empty past the last.
TARVO_API std::u16string ScriptWord(std::u16string_view line, std::size_t number, WordSeparators separators);

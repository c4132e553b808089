#pragma once

#include "tarvo/export.h"
#include "tarvo/text/TextArena.h"

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
/// the arena. Line and arena must outlive the words.
class TARVO_API CScriptWords
{
public:
    CScriptWords() = default;
    CScriptWords(std::u16string_view line, WordSeparators separators, CTextArena& keep);

    /// Gives the next word; false, and an empty word, past the last.
    bool Next(std::u16string_view& word);
    /// The next word; empty past the last.
    std::u16string_view Next();
    /// Passes over words.
    void Skip(std::size_t count);
    /// From here on words end at \p separators.
    void EndWordsAt(WordSeparators separators);

private:
    /// A word as the line writes it.
    struct Raw
    {
        const char16_t* first = nullptr;
        const char16_t* last = nullptr;
        bool isPlain = true; ///< no pair and no span's quote inside
    };

    bool IsSeparator(char16_t c) const { return c < 64 && (m_separators >> c & 1) != 0; }
    bool IsPair(const char16_t* quote) const { return quote + 1 != m_end && quote[1] == u'"'; }
    bool IsEscaped(const char16_t* quote) const { return quote != m_begin && quote[-1] == u'\\'; }
    bool FindWord(bool& isEmpty);
    const char16_t* FindStop(const char16_t* at) const;
    bool Scan(Raw& raw);
    std::u16string_view Compose(const Raw& raw);

    const char16_t* m_begin = nullptr;
    const char16_t* m_at = nullptr;
    const char16_t* m_end = nullptr;
    CTextArena* m_keep = nullptr;
    std::uint64_t m_separators = 0; ///< bit c for the unit c
    bool m_inSpan = false;
};

/// Word number \p number, from 0, of a line; empty past the last.
TARVO_API std::u16string ScriptWord(std::u16string_view line, std::size_t number, WordSeparators separators);

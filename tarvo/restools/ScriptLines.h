#pragma once

#include "tarvo/restools/ScriptKeywords.h"
#include "tarvo/restools/ScriptText.h"
#include "tarvo/restools/ScriptWords.h"

#include <cstddef>
#include <string_view>

/// One line of a script, with its first word found.
struct CScriptLine
{
    std::size_t number = 0; ///< from 1, as an editor counts
    std::u16string_view first;
    ScriptKeyword keyword = ScriptKeyword::None; ///< what the first word is
    /// They stand behind the first word, at the standard separators, and are good until the next Peek.
    CScriptWords words;
};

inline bool IsScriptBreak(char16_t c) { return c == u'\n' || c == u'\r'; }

/// The lines of a script one after the other. Blank lines are passed over: they belong to no rule.
class CScriptLines
{
public:
    CScriptLines(CScriptText& text, CScriptArena& keep) : m_text(text), m_keep(keep) {}

    /// True while there is a line; At is that line until Take.
    bool Peek() { return m_hasLine || FindLine(m_end); }
    const CScriptLine& At() const { return m_lines[m_current]; }
    void Take() { m_hasLine = false; }

    /// Takes the line at hand and all that follow up to one that begins with one of \p beginnings, and gives
    /// them as one, its words good until the next statement. Between two lines there is a space, or still the
    /// break, which separates words as a space does.
    const CScriptLine& TakeStatement(CScriptKeywords beginnings);

private:
    bool FindLine(std::size_t needed);
    bool NextLine(std::size_t needed);
    bool EndsOutsideSpan(std::size_t begin, std::size_t end) const;

    CScriptText& m_text;
    CScriptArena& m_keep;
    CScriptLine m_lines[2];    ///< the line at hand and the statement before it
    std::size_t m_current = 0; ///< which one the line is
    std::size_t m_begin = 0;   ///< where the line last found begins
    std::size_t m_end = 0;     ///< and where its break is
    std::size_t m_number = 1;
    bool m_hasLine = false;
    CScriptMarks m_joined; ///< of a statement that could not stay where it is
};

#pragma once

#include "tarvo/restools/ScriptWords.h"
#include "tarvo/text/TextDecode.h"

#include <cstddef>
#include <string_view>

/// One line of a script, with its first word found.
struct CScriptLine
{
    std::u16string_view text;
    std::size_t number = 0; ///< from 1, as an editor counts
    std::u16string_view first;
    CScriptWords words; ///< stands behind the first word, at the standard separators
};

/// The lines of a decoded script one after the other. Blank lines are passed over: they belong to no rule.
class CScriptLines
{
public:
    CScriptLines(std::u16string_view text, CTextArena& keep) : m_lines(text), m_keep(keep) {}

    /// True while there is a line; At is that line until Take.
    bool Peek();
    const CScriptLine& At() const { return m_line; }
    void Take() { m_hasLine = false; }

    CTextArena& Keep() { return m_keep; }

private:
    CTextLines m_lines;
    CTextArena& m_keep;
    CScriptLine m_line;
    bool m_hasLine = false;
};

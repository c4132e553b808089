#include "tarvo/restools/ScriptLines.h"

namespace
{
bool IsBlank(std::u16string_view text) { return text.find_first_not_of(u" \t") == std::u16string_view::npos; }
} // namespace

bool CScriptLines::Peek()
{
    while (!m_hasLine && m_lines.Next(m_line.text))
        m_hasLine = !IsBlank(m_line.text);
    if (!m_hasLine)
        return false;
    if (const std::size_t number = m_lines.LineNumber(); m_line.number != number)
    {
        m_line.number = number;
        m_line.words = CScriptWords(m_line.text, WordSeparators::Standard, m_keep);
        m_line.first = m_line.words.Next();
    }
    return true;
}

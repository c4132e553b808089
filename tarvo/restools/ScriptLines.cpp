#include "tarvo/restools/ScriptLines.h"

#include <algorithm>
#include <string>

// Passes over one line feed, one carriage return or one pair of both, then finds the next line, which ends
// before the next of them. False at the end. Marks from \p needed on are kept.
bool CScriptLines::NextLine(std::size_t needed)
{
    const auto breaks = [](const auto& seen) { return seen.breaks; };
    const auto ahead = [this] { return m_text.GetLength() - m_end; };
    while (ahead() <= 2 && m_text.Grow(needed))
    {
    }
    const char16_t* const behind = m_text.Units() + m_end; // zeros at the end of the text
    const bool isReturn = behind[0] == u'\r';
    m_begin = m_end + isReturn + ((isReturn ? behind[1] : behind[0]) == u'\n');
    m_number += m_begin != m_end;
    m_end = m_text.Marks().Find(m_begin, m_text.GetLength(), breaks);
    while (ahead() == 0 && m_text.Grow(needed))
        m_end = m_text.Marks().Find(m_end, m_text.GetLength(), breaks);
    return m_begin != m_text.GetLength();
}

bool CScriptLines::FindLine(std::size_t needed)
{
    CScriptLine& line = m_lines[m_current];
    for (bool isBlank = true; isBlank;)
    {
        if (!NextLine(needed))
            return false;
        line.words = CScriptWords(m_text.Marks(), m_begin, m_end, m_keep);
        // A line without a word may still hold commas or a quote.
        isBlank = !line.words.Next(line.first) &&
                  line.words.Line().find_first_not_of(u" \t") == std::u16string_view::npos;
    }
    line.number = m_number;
    line.keyword = FindScriptKeyword(line.first);
    m_hasLine = true;
    return true;
}

// True when no quoted span is open at the end of these lines. Said of those without a quote behind a
// backslash alone; pairs of quotes change nothing.
bool CScriptLines::EndsOutsideSpan(std::size_t begin, std::size_t end) const
{
    const auto quotes = [](const auto& seen) { return seen.quotes; };
    bool isOutside = true;
    for (std::size_t at = begin; (at = m_text.Marks().Find(at, end, quotes)) != end; ++at)
    {
        if (at != begin && m_text.Units()[at - 1] == u'\\')
            return false;
        isOutside = !isOutside;
    }
    return isOutside;
}

// Lines stay where they are as long as the breaks between them can stand for spaces.
const CScriptLine& CScriptLines::TakeStatement(CScriptKeywords beginnings)
{
    CScriptLine& statement = m_lines[m_current];
    m_current = 1 - m_current;
    const std::size_t begin = m_begin;
    std::size_t last = begin; // where the last line that stays begins
    std::size_t end = m_end;  // and where it ends
    std::u16string joined;    // all lines, from the first one on that cannot stay
    for (Take(); FindLine(begin) && !beginnings.Hold(At().keyword); Take())
    {
        const bool isNext = m_begin - end <= 2; // not even a blank between
        if (joined.empty() && isNext && EndsOutsideSpan(last, end))
        {
            last = m_begin;
            end = m_end;
            continue;
        }
        if (joined.empty())
        {
            joined.assign(m_text.Units() + begin, end - begin);
            std::replace_if(joined.begin(), joined.end(), IsScriptBreak, u' ');
        }
        joined.append(u" ").append(At().words.Line());
    }
    if (joined.empty() && last == begin)
        return statement;
    if (joined.empty())
        statement.words = CScriptWords(m_text.Marks(), begin, end, m_keep);
    else
    {
        m_joined = CScriptMarks(m_keep.Copy(joined));
        statement.words = CScriptWords(m_joined, 0, joined.size(), m_keep);
    }
    statement.first = statement.words.Next();
    return statement;
}

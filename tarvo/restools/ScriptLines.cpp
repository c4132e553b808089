#include "tarvo/restools/ScriptLines.h"

#include <algorithm>
#include <string>

// Passes over one line feed, one carriage return or one pair of both, then finds the next line, which ends
// before the next of them. False at the end. Marks from \p needed on are kept.
bool CScriptLines::NextLine(std::size_t needed)
{
    const auto breaks = [](const auto& block) { return block.breaks; };
    const auto ahead = [this] { return m_text.GetLength() - m_end; };
    while (ahead() <= 2 && m_text.Grow(needed))
    {
    }
    m_begin = m_end;
    m_begin += m_text.Units()[m_begin] == u'\r'; // what stands behind the end of the text is neither
    m_begin += m_text.Units()[m_begin] == u'\n';
    m_number += m_begin != m_end;
    m_end = m_text.Marks().Find(m_begin, m_text.GetLength(), breaks);
    while (ahead() == 0 && m_text.Grow(needed))
        m_end = m_text.Marks().Find(m_end, m_text.GetLength(), breaks);
    return m_begin != m_text.GetLength();
}

bool CScriptLines::FindLine(std::size_t needed)
{
    for (bool isBlank = true; isBlank;)
    {
        if (!NextLine(needed))
            return false;
        m_line.words = CScriptWords(m_text.Units(), m_text.Marks(), m_begin, m_end, m_keep);
        m_line.text = {m_text.Units() + m_begin, m_end - m_begin};
        // A line without a word may still hold commas or a quote.
        isBlank = !m_line.words.Next(m_line.first) &&
                  m_line.text.find_first_not_of(u" \t") == std::u16string_view::npos;
    }
    m_line.number = m_number;
    m_line.keyword = FindScriptKeyword(m_line.first);
    m_hasLine = true;
    return true;
}

// True when no quoted span is open at the end of these lines. Said of those without a quote behind a
// backslash alone; pairs of quotes change nothing.
bool CScriptLines::EndsOutsideSpan(std::size_t begin, std::size_t end) const
{
    const auto quotes = [](const auto& block) { return block.quotes; };
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
CScriptLine CScriptLines::TakeStatement(CScriptKeywords beginnings)
{
    CScriptLine statement = m_line;
    const std::size_t begin = m_begin;
    std::size_t last = begin; // where the last line that stays begins
    std::size_t end = m_end;  // and where it ends
    std::u16string joined;    // all lines, from the first one on that cannot stay
    for (Take(); FindLine(begin) && !beginnings.Hold(m_line.keyword); Take())
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
        joined.append(u" ").append(m_line.text);
    }
    if (!joined.empty())
    {
        statement.text = m_keep.Copy(joined);
        m_joined = CScriptMarks(statement.text);
        statement.words = CScriptWords(statement.text.data(), m_joined, 0, joined.size(), m_keep);
        statement.first = statement.words.Next();
    }
    else if (last != begin)
    {
        statement.text = {m_text.Units() + begin, end - begin};
        statement.words = CScriptWords(m_text.Units(), m_text.Marks(), begin, end, m_keep);
        statement.first = statement.words.Next();
    }
    return statement;
}

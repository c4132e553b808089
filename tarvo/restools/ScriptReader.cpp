#include "tarvo/restools/ScriptReader.h"

#include "tarvo/text/Units.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

CScriptReader::CScriptReader(CResources& resources, std::u16string& log, bool all,
                             std::function<bool(std::u16string_view)> isWanted)
    : m_resources(resources), m_log(log), m_isWanted(std::move(isWanted)),
      m_lines(resources.m_text, *resources.m_keep), m_wanted(all)
{
}

// script ::= { language | resource | any other line }
void CScriptReader::Read()
{
    while (m_lines.Peek())
    {
        if (m_lines.At().keyword == ScriptKeyword::Language)
            ReadLanguage();
        else if (!m_wanted || !ReadResource())
            m_lines.Take();
    }
}

// Passes over everything up to and with the line that begins with BEGIN; false at the end of the script.
bool CScriptReader::SkipToBegin()
{
    bool found = false;
    for (; !found && m_lines.Peek(); m_lines.Take())
        found = m_lines.At().keyword == ScriptKeyword::Begin;
    return found;
}

// What stands between the lines of a statement counts as a space.
CResText CScriptReader::WithoutSpaces(CResText text)
{
    const auto isSpace = [](char16_t c) { return c == u' ' || IsScriptBreak(c); };
    if (text.empty())
        return text;
    Stripped& known = m_stripped[(text.front() + text.back() + text.size()) % m_stripped.size()];
    if (units::equal(known.text, text))
        return known.withoutSpaces;
    known.text = text;
    std::u16string stripped;
    std::remove_copy_if(text.begin(), text.end(), std::back_inserter(stripped), isSpace);
    known.withoutSpaces = stripped.size() == text.size() ? text : Keep().Copy(stripped);
    return known.withoutSpaces;
}

CResText CScriptReader::Numbered(std::u16string_view prefix, unsigned number)
{
    const std::string digits = std::to_string(number);
    char16_t* const kept = Keep().Add(prefix.size() + digits.size());
    std::copy(digits.begin(), digits.end(), std::copy(prefix.begin(), prefix.end(), kept));
    return {kept, prefix.size() + digits.size()};
}

void CScriptReader::Log(std::u16string_view what, std::u16string_view line)
{
    m_log += what;
    m_log += line;
    m_log += u"\r\n";
}

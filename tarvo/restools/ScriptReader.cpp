#include "tarvo/restools/ScriptReader.h"

#include <algorithm>
#include <string>
#include <utility>

CScriptReader::CScriptReader(CResources& resources, std::u16string& log, bool all,
                             std::function<bool(std::u16string_view)> isWanted)
    : m_resources(resources), m_log(log), m_isWanted(std::move(isWanted)),
      m_lines(resources.m_text.View(), resources.m_keep), m_wanted(all)
{
}

// script ::= { language | resource | any other line }
void CScriptReader::Read()
{
    while (m_lines.Peek())
    {
        if (m_lines.At().first == u"LANGUAGE")
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
        found = m_lines.At().first == u"BEGIN";
    return found;
}

CResText CScriptReader::WithoutSpaces(std::u16string_view text)
{
    while (!text.empty() && text.front() == u' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == u' ')
        text.remove_suffix(1);
    const auto spaces = std::count(text.begin(), text.end(), u' ');
    if (spaces == 0)
        return text;
    const std::size_t length = text.size() - static_cast<std::size_t>(spaces);
    char16_t* const kept = Keep().Add(length);
    std::remove_copy(text.begin(), text.end(), kept, u' ');
    return {kept, length};
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

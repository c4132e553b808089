#include "tarvo/msg/msg_parser2.h"

#include "tarvo/msg/MessageEntries.h"
#include "tarvo/msg/MessageLines.h"

bool msg_parser2::set_value(const wchar_t* key, const wchar_t* value)
{
    m_store.Set(CUnits(key), CUnits(value));
    return true;
}

std::size_t msg_parser2::add_entries(const std::string& bytes)
{
    CStdioLines lines(bytes, m_nCodePage);
    const auto next = [&](units::view& line, textline::LineMarks& marks) { return lines.Next(line, marks); };
    return msgtext::AddEntries(next, m_store);
}

void msg_parser2::read_font(const std::string& bytes)
{
    CStdioLines lines(bytes, m_nCodePage);
    const auto next = [&](units::view& line, textline::LineMarks& marks) { return lines.Next(line, marks); };
    msgtext::ReadFont(next, m_strFont, m_nFontSize);
}

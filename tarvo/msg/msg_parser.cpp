#include "tarvo/msg/msg_parser.h"

#include "tarvo/msg/MessageEntries.h"

std::size_t msg_parser::add_entries(const std::string& bytes)
{
    CByteLines stream(bytes, m_nCodePage);
    const auto next = [&stream](units::view& line, textline::LineMarks& marks) {
        const bool more = getline(stream, line);
        marks = more ? textline::MarkLine(line) : textline::LineMarks();
        return more;
    };
    return msgtext::AddEntries(next, m_store);
}

void msg_parser::read_font(const std::string& bytes)
{
    CByteLines stream(bytes, m_nCodePage);
    const auto next = [&stream](units::view& line, textline::LineMarks&) { return getline(stream, line); };
    msgtext::ReadFont(next, m_strFont, m_nFontSize);
}

bool msg_parser::getline(CByteLines& stream, units::view& line) { return stream.Next(line); }

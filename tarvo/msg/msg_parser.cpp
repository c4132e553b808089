#include "tarvo/msg/msg_parser.h"

#include "tarvo/msg/MessageEntries.h"

void msg_parser::add_entries(const std::string& bytes)
{
    msgtext::AddEntries(CByteLines(bytes, m_nCodePage), m_store);
}

void msg_parser::read_font(const std::string& bytes)
{
    msgtext::ReadFont(CByteLines(bytes, m_nCodePage), m_strFont, m_nFontSize);
}

bool msg_parser::getline(CByteLines& stream, units::view& line) { return stream.Next(line); }

#include "tarvo/msg/msg_parser2.h"

#include "tarvo/msg/MessageEntries.h"
#include "tarvo/msg/MessageLines.h"

bool msg_parser2::set_value(const wchar_t* key, const wchar_t* value)
{
    m_store.Set(CUnits(key), CUnits(value));
    return true;
}

void msg_parser2::add_entries(const std::string& bytes)
{
    msgtext::AddEntries(CStdioLines(bytes, m_nCodePage), m_store);
}

void msg_parser2::read_font(const std::string& bytes)
{
    msgtext::ReadFont(CStdioLines(bytes, m_nCodePage), m_strFont, m_nFontSize);
}

#include "cli/json.h"

#include "cli/text.h"

#include <utility>

namespace cli
{
namespace
{
constexpr bool high_surrogate(wchar_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
constexpr bool low_surrogate(wchar_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

void append_escape(std::string& out, wchar_t unit)
{
    switch (unit)
    {
    case L'"':
        out += "\\\"";
        return;
    case L'\\':
        out += "\\\\";
        return;
    case L'\n':
        out += "\\n";
        return;
    case L'\r':
        out += "\\r";
        return;
    case L'\t':
        out += "\\t";
        return;
    default:
        break;
    }
    constexpr char digits[] = "0123456789abcdef";
    out += "\\u";
    for (int shift = 12; shift >= 0; shift -= 4)
        out += digits[(static_cast<unsigned>(unit) >> shift) & 0xF];
}

/// How many units at \p at stand as they are: 1, 2 for a surrogate pair, 0 when an escape is needed.
std::size_t plain_units(std::wstring_view text, std::size_t at)
{
    const wchar_t unit = text[at];
    if (high_surrogate(unit))
        return at + 1 < text.size() && low_surrogate(text[at + 1]) ? 2 : 0;
    return unit < 0x20 || unit == L'"' || unit == L'\\' || low_surrogate(unit) ? 0 : 1;
}
} // namespace

void JsonWriter::separate()
{
    if (m_comma)
        m_text += ',';
    m_comma = true;
}

JsonWriter& JsonWriter::open(char bracket)
{
    separate();
    m_text += bracket;
    m_comma = false;
    return *this;
}

JsonWriter& JsonWriter::close(char bracket)
{
    m_text += bracket;
    m_comma = true;
    return *this;
}

JsonWriter& JsonWriter::word(std::string_view value)
{
    separate();
    m_text += value;
    return *this;
}

JsonWriter& JsonWriter::key(std::string_view name)
{
    separate();
    m_text.append("\"").append(name).append("\":");
    m_comma = false;
    return *this;
}

JsonWriter& JsonWriter::text(std::wstring_view value)
{
    separate();
    m_text += '"';
    std::size_t done = 0;
    for (std::size_t at = 0; at < value.size();)
    {
        if (const std::size_t plain = plain_units(value, at))
        {
            at += plain;
            continue;
        }
        append_utf8(m_text, value.substr(done, at - done));
        append_escape(m_text, value[at]);
        done = ++at;
    }
    append_utf8(m_text, value.substr(done));
    m_text += '"';
    return *this;
}

std::string JsonWriter::take()
{
    m_comma = false;
    m_text += '\n';
    return std::exchange(m_text, {});
}
} // namespace cli

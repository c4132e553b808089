#include "tarvo/msg/MessageText.h"

#include "tarvo/text/ConvertString.h"

#include <algorithm>

namespace msgtext
{
namespace
{
/// What follows the marker that ends a remark, or all of \p key.
units::view CutRemark(units::view key)
{
    constexpr units::view kMarker = u"/**/";
    const char16_t* const end = key.data() + key.size();
    if (units::find(key.data(), end, u'/') == end)
        return key;
    const std::size_t marker = key.find(kMarker);
    return marker == units::view::npos ? key : key.substr(marker + kMarker.size());
}

/// The text between the quotes of a value's field.
units::view Unquoted(units::view field)
{
    const char16_t* const end = field.data() + field.size();
    const std::size_t first = static_cast<std::size_t>(units::find(field.data(), end, u'"') - field.data());
    if (first == field.size())
        return field;
    const std::size_t last = field.rfind(u'"');
    return field.substr(first + 1, last == first ? units::view::npos : last - first - 1);
}

char16_t ControlOf(char16_t letter)
{
    switch (letter)
    {
    case u'n':
        return u'\n';
    case u't':
        return u'\t';
    case u'r':
        return u'\r';
    default:
        return 0;
    }
}
} // namespace

bool ParseEntry(units::view line, units::view& key, units::view& value)
{
    line = units::trim(line);
    if (line.empty() || line.front() == u';' || line.front() == u'[')
        return false;
    const char16_t* const end = line.data() + line.size();
    const units::view raw(line.data(),
                          static_cast<std::size_t>(units::find(line.data(), end, u'=') - line.data()));
    key = units::trim(CutRemark(raw));
    value = Unquoted(line.substr(std::min(key.size() + 1, line.size())));
    return true;
}

bool HasEscapes(units::view value)
{
    return value.find(u'\\') != units::view::npos || value.find(u"\"\"") != units::view::npos;
}

std::size_t Unescape(char16_t* text, std::size_t count)
{
    const char16_t* in = text;
    const char16_t* const end = text + count;
    const auto at = [&](std::ptrdiff_t ahead) { return end - in > ahead ? in[ahead] : u'\0'; };
    char16_t* out = text;
    while (in != end)
    {
        const bool pair = *in == u'\\' && at(1) == u'\\' && !ControlOf(at(2));
        const char16_t control = *in == u'\\' ? ControlOf(at(1)) : u'\0';
        *out++ = control ? control : *in;
        in += control || pair || (*in == u'"' && at(1) == u'"') ? 2 : 1;
    }
    return static_cast<std::size_t>(out - text);
}

void ReadFontLine(units::view line, CString& fontName, int& fontSize)
{
    if (line.empty() || line.front() == u';' || line.front() == u'/' || line.front() == u'[')
        return;
    const std::size_t equals = line.find(u'=');
    if (equals == units::view::npos)
        return;
    const units::view key = line.substr(0, equals);
    const units::view value = line.substr(equals + 1);
    if (units::equal_no_case(key, u"FONT"))
        fontName = units::to_string(value);
    else if (units::equal_no_case(key, u"SIZE"))
        fontSize = CConvertString::CStringToInteger(units::to_string(value));
}
} // namespace msgtext

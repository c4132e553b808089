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
    const std::size_t marker = key.find(kMarker);
    return marker == units::view::npos ? key : key.substr(marker + kMarker.size());
}

/// The text between the quotes of a value's field, which reaches to the end of the line.
units::view Unquoted(units::view field, const textline::LineMarks& marks)
{
    const char16_t* const begin = field.data();
    const char16_t* const end = begin + field.size();
    if (!marks.lastQuote || marks.lastQuote < begin)
        return field;
    // The line's first quote may stand in the key or in a remark.
    const char16_t* const first = marks.quote < begin ? units::find(begin, end, u'"') : marks.quote;
    const char16_t* const last = first == marks.lastQuote ? end : marks.lastQuote;
    return units::view(first + 1, static_cast<std::size_t>(last - first - 1));
}

bool Holds(units::view text, char16_t unit)
{
    const char16_t* const end = text.data() + text.size();
    return units::find(text.data(), end, unit) != end;
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

bool ParseEntry(units::view line, const textline::LineMarks& marks, units::view& key, units::view& value)
{
    line = units::trim(line);
    if (line.empty() || line.front() == u';' || line.front() == u'[')
        return false;
    const units::view raw =
        marks.equals ? line.substr(0, static_cast<std::size_t>(marks.equals - line.data())) : line;
    key = units::trim(marks.slash ? CutRemark(raw) : raw);
    value = Unquoted(line.substr(std::min(key.size() + 1, line.size())), marks);
    return true;
}

bool HasEscapes(units::view value) { return Holds(value, u'\\') || Holds(value, u'"'); }

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

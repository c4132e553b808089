#include "tarvo/lang/IniText.h"

#include "platform/codepage.h"
#include "platform/letters.h"

#include <cstring>
#include <limits>

namespace initext
{
bool CLineReader::ReadALine(units::view& line, LineMarks& marks)
{
    marks = {};
    const char16_t* const begin = m_p;
    const char16_t* stop = m_marker.Mark(begin, m_pEnd, marks);
    while (stop != m_pEnd && *stop != u'\n' && *stop != u'\r' && *stop != u'\0')
        stop = m_marker.Mark(stop + 1, m_pEnd, marks);
    const bool returned = m_pEnd - stop >= 2 && stop[0] == u'\r' && stop[1] == u'\n';
    if (stop != m_pEnd && *stop == u'\r' && !returned)
    {
        const bool more = CloseUp(line);
        marks = MarkLine(line);
        return more;
    }
    const bool fed = returned || (stop != m_pEnd && *stop == u'\n');
    line = units::trim({begin, static_cast<std::size_t>(stop - begin)});
    m_p = stop + returned + fed;
    return fed || stop != begin;
}

/// Puts a line with carriage returns inside together without them.
bool CLineReader::CloseUp(units::view& line)
{
    m_strClosed.clear();
    bool fed = false;
    while (!fed && m_p != m_pEnd && *m_p != u'\0')
    {
        const char16_t unit = *m_p++;
        fed = unit == u'\n';
        if (!fed && unit != u'\r')
            m_strClosed += unit;
    }
    line = units::trim(m_strClosed);
    return fed || !m_strClosed.empty();
}

LINE_TYPE GetLineType(const units::view& line, const LineMarks& marks)
{
    if (line.empty())
        return LINE_BLANK;
    if (line.front() == u'[' && line.back() == u']')
        return LINE_SECTION;
    if (line.front() == u';')
        return LINE_COMMENT;
    return marks.equals ? LINE_DATA : LINE_OTHER;
}

units::view ParseSection(units::view line)
{
    return line.size() < 2 ? units::view() : units::trim(line.substr(1, line.size() - 2));
}

namespace
{
/// What follows the marker that ends a remark, or all of \p key.
units::view CutRemark(units::view key)
{
    constexpr units::view kMarker = u"/**/";
    const std::size_t marker = key.find(kMarker);
    return marker == units::view::npos ? key : key.substr(marker + kMarker.size());
}
} // namespace

bool ParseData(const units::view& line, const LineMarks& marks, units::view& key, units::view& value)
{
    if (line.empty() || line.front() == u';' || line.front() == u'[' || !marks.equals)
        return false;
    key = line.substr(0, static_cast<std::size_t>(marks.equals - line.data()));
    key = units::trim(marks.slash ? CutRemark(key) : key);
    value = line.substr(key.size() + 1);
    if (!marks.lastQuote || marks.lastQuote < value.data())
        return true;
    // A quote can stand in front of the field, in the key or in a remark.
    const char16_t* const end = line.data() + line.size();
    const char16_t* const first =
        marks.quote < value.data() ? units::find(value.data(), end, u'"') : marks.quote;
    const char16_t* const last = first == marks.lastQuote ? end : marks.lastQuote;
    value = {first + 1, static_cast<std::size_t>(last - first - 1)};
    return true;
}

const wchar_t* SkipWhiteSpace(const wchar_t* psz)
{
    while (*psz == L' ' || *psz == L'\t')
        ++psz;
    return psz;
}

bool IsUnicodeFileHeader(std::string_view bytes) { return bytes.substr(0, 2) == "\xFF\xFE"; }

std::unique_ptr<char[]> Unicode2Ascii(const wchar_t* text, int codePage, int& size)
{
    const std::wstring_view whole = text ? text : L"";
    const auto bytes = platform::codepage::encode(codePage, whole);
    const std::size_t room = 2 * (whole.size() + 1);
    if (!bytes || bytes->size() + 1 > room)
        return nullptr;
    auto buffer = std::make_unique<char[]>(room);
    std::memcpy(buffer.get(), bytes->data(), bytes->size());
    size = static_cast<int>(bytes->size()) + 1;
    return buffer;
}

namespace
{
/// The value of a digit in bases up to 36; 36 for anything else.
unsigned DigitOf(wchar_t ch)
{
    if (ch >= L'0' && ch <= L'9')
        return static_cast<unsigned>(ch - L'0');
    const wchar_t lower = static_cast<wchar_t>(ch | 0x20);
    return lower >= L'a' && lower <= L'z' ? static_cast<unsigned>(lower - L'a') + 10 : 36;
}

/// The radix that a prefix stands for (0x hexadecimal, 0 octal), stepping over "0x".
unsigned TakePrefix(const wchar_t*& p, unsigned radix)
{
    const bool hex = p[0] == L'0' && (p[1] == L'x' || p[1] == L'X') && DigitOf(p[2]) < 16;
    if (hex && (radix == 0 || radix == 16))
    {
        p += 2;
        return 16;
    }
    return radix != 0 ? radix : p[0] == L'0' ? 8 : 10;
}
} // namespace

unsigned ToUnsigned(const wchar_t* psz, int radix)
{
    constexpr unsigned kMost = std::numeric_limits<unsigned>::max();
    if (!psz || radix < 0 || radix == 1 || radix > 36)
        return 0;
    const wchar_t* p = psz;
    while (platform::letters::is_space(*p))
        ++p;
    const bool negative = *p == L'-';
    if (negative || *p == L'+')
        ++p;
    const unsigned base = TakePrefix(p, static_cast<unsigned>(radix));
    unsigned number = 0;
    for (unsigned digit = DigitOf(*p); digit < base; digit = DigitOf(*++p))
    {
        if (number > (kMost - digit) / base)
            return kMost;
        number = number * base + digit;
    }
    return negative ? 0 - number : number;
}
} // namespace initext

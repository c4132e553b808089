#include "tarvo/msg/MessageLines.h"

#include "platform/codepage.h"
#include "tarvo/text/PageRules.h"

#include <algorithm>
#include <utility>

namespace
{
constexpr char kTextEnd = 0x1A;

std::string_view UpToTextEnd(std::string_view bytes) { return bytes.substr(0, bytes.find(kTextEnd)); }

void RemoveReturn(std::string_view& text)
{
    if (text.ends_with('\r'))
        text.remove_suffix(1);
}

/// Takes the next line off the front of \p rest, without its line end.
std::string_view TakeLine(std::string_view& rest)
{
    const std::size_t feed = rest.find('\n');
    if (feed == std::string_view::npos)
        return std::exchange(rest, {});
    std::string_view line = rest.substr(0, feed);
    rest.remove_prefix(feed + 1);
    RemoveReturn(line);
    return line;
}
} // namespace

units::view CLineBuffers::Decode(int codePage, std::string_view bytes)
{
    m_bSecond = !m_bSecond;
    char16_t* const units = m_pUnits.get() + (m_bSecond ? m_nMost : 0);
    return units::view(units, platform::codepage::decode(codePage, bytes, units).value_or(0));
}

CByteLines::CByteLines(std::string_view bytes, int codePage)
    : m_rest(UpToTextEnd(bytes)), m_codePage(codePage), m_buffers(kMost)
{
}

bool CByteLines::Next(units::view& line)
{
    if (m_line.empty())
    {
        if (m_rest.empty())
            return false;
        m_line = TakeLine(m_rest);
    }
    const std::string_view piece = m_line.substr(0, kMost);
    m_line.remove_prefix(piece.size());
    const std::string_view text = piece.substr(0, piece.find('\0'));
    line = m_buffers.Decode(m_codePage, text);
    return true;
}

CStdioLines::CStdioLines(std::string_view bytes, int codePage)
    : m_bWide(bytes.starts_with("\xFF\xFE")), m_codePage(codePage), m_buffers(kMost)
{
    if (m_bWide)
    {
        const std::size_t count = bytes.size() / sizeof(char16_t);
        m_wide = units::view(reinterpret_cast<const char16_t*>(bytes.data()), count).substr(1);
        m_marker = textline::CLineMarker(m_wide);
        return;
    }
    // The mark of UTF-8 is passed over unseen, so that a file without one loses three bytes.
    const std::size_t mark = codePage == platform::codepage::utf8 ? 3 : 0;
    m_bytes = UpToTextEnd(bytes.substr(std::min(mark, bytes.size())));
}

bool CStdioLines::Next(units::view& line, textline::LineMarks& marks)
{
    if (m_bWide)
        return NextWide(line, marks);
    if (!NextBytes(line))
        return false;
    marks = textline::MarkLine(line);
    return true;
}

bool CStdioLines::NextWide(units::view& line, textline::LineMarks& marks)
{
    if (m_wide.empty())
        return false;
    marks = {};
    const char16_t* const begin = m_wide.data();
    // A line that has no break within two units of its most is cut.
    const char16_t* const end = begin + std::min(kMost + 2, m_wide.size());
    const char16_t* stop = m_marker.Mark(begin, end, marks);
    while (stop != end && *stop != u'\n')
        stop = stop[0] == u'\r' && end - stop > 1 && stop[1] == u'\n' ? stop + 1
                                                                      : m_marker.Mark(stop + 1, end, marks);
    line = units::view(begin, static_cast<std::size_t>(stop - begin));
    if (line.ends_with(u'\r'))
        line.remove_suffix(1);
    std::size_t taken = static_cast<std::size_t>(stop - begin) + (stop != end);
    if (line.size() > kMost)
    {
        const bool pair = (line[kMost - 1] & 0xFC00) == 0xD800 && (line[kMost] & 0xFC00) == 0xDC00;
        taken = pair ? kMost - 1 : kMost;
        line = line.substr(0, taken);
        marks = textline::MarkLine(line);
        m_marker = textline::CLineMarker(m_wide.substr(taken)); // it may have gone further
    }
    m_wide.remove_prefix(taken);
    return true;
}

bool CStdioLines::NextBytes(units::view& line)
{
    if (m_bytes.empty())
        return false;
    std::string_view text = m_bytes.substr(0, kMost + 3);
    const std::size_t feed = text.find('\n');
    std::size_t taken = text.size();
    if (feed != std::string_view::npos)
    {
        taken = feed + 1;
        text = text.substr(0, feed);
        RemoveReturn(text); // part of the break; one more is dropped in any line
    }
    RemoveReturn(text);
    if (text.size() > kMost)
    {
        taken = page_rules::whole_characters(m_codePage, text, kMost);
        text = text.substr(0, taken);
    }
    m_bytes.remove_prefix(taken);
    line = m_buffers.Decode(m_codePage, text);
    return true;
}

#include "tarvo/msg/MessageLines.h"

#include "platform/codepage.h"

#include <algorithm>
#include <cstring>

namespace
{
constexpr char kTextEnd = 0x1A;

std::string_view UpToTextEnd(std::string_view bytes) { return bytes.substr(0, bytes.find(kTextEnd)); }

/// Takes the next line off the front of \p rest, without its line end.
std::string_view TakeLine(std::string_view& rest)
{
    const std::size_t feed = rest.find('\n');
    if (feed == std::string_view::npos)
        return std::exchange(rest, {});
    const std::string_view line = rest.substr(0, feed);
    rest.remove_prefix(feed + 1);
    return line.ends_with('\r') ? line.substr(0, feed - 1) : line;
}
} // namespace

CByteLines::CByteLines(std::string_view bytes, int codePage)
    : m_rest(UpToTextEnd(bytes)), m_codePage(codePage),
      m_pUnits(std::make_unique_for_overwrite<char16_t[]>(kMost))
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
    const auto count = platform::codepage::decode(m_codePage, text, m_pUnits.get());
    line = units::view(m_pUnits.get(), count.value_or(0));
    return true;
}

CStdioLines::CStdioLines(std::string_view bytes, int codePage)
    : m_bWide(bytes.starts_with("\xFF\xFE")), m_codePage(codePage)
{
    if (m_bWide)
    {
        const std::size_t count = bytes.size() / sizeof(char16_t);
        m_wide = units::view(reinterpret_cast<const char16_t*>(bytes.data()), count).substr(1);
        m_wide = m_wide.substr(0, m_wide.find(char16_t{kTextEnd}));
        return;
    }
    // The mark of UTF-8 is passed over unseen, so that three bytes of a file without one are lost.
    m_bytes = UpToTextEnd(bytes);
    m_bytes.remove_prefix(codePage == platform::codepage::utf8 ? std::min<std::size_t>(3, m_bytes.size())
                                                               : 0);
    m_pUnits = std::make_unique_for_overwrite<char16_t[]>(kMost);
}

bool CStdioLines::Next(units::view& line) { return m_bWide ? NextWide(line) : NextBytes(line); }

bool CStdioLines::NextWide(units::view& line)
{
    if (m_wide.empty())
        return false;
    const char16_t* const begin = m_wide.data();
    const std::size_t most = std::min(kMost, m_wide.size());
    const std::size_t feed = static_cast<std::size_t>(units::find(begin, begin + most, u'\n') - begin);
    m_wide.remove_prefix(std::min(feed + 1, most));
    line = units::view(begin, feed);
    if (line.ends_with(u'\r'))
        line.remove_suffix(1);
    return true;
}

bool CStdioLines::NextBytes(units::view& line)
{
    if (m_bytes.empty())
        return false;
    const std::size_t most = std::min(kMost, m_bytes.size());
    const std::size_t feed = std::min(m_bytes.substr(0, most).find('\n'), most);
    std::string_view text = m_bytes.substr(0, feed);
    m_bytes.remove_prefix(std::min(feed + 1, most));
    if (text.ends_with('\r'))
        text.remove_suffix(1);
    line =
        units::view(m_pUnits.get(), platform::codepage::decode(m_codePage, text, m_pUnits.get()).value_or(0));
    return true;
}

#include "demo/host/MessageLog.h"

#include <algorithm>

std::size_t CMessageLog::Add(MessageKind kind, const std::wstring& text)
{
    std::size_t from = 0;
    for (std::size_t end = text.find(L'\n'); end != std::wstring::npos; end = text.find(L'\n', from))
    {
        const std::size_t length = end - from - (end > from && text[end - 1] == L'\r');
        m_lines.push_back({text.substr(from, length), kind});
        from = end + 1;
    }
    m_lines.push_back({text.substr(from), kind});
    const std::size_t lost = m_lines.size() > kMost ? m_lines.size() - kMost : 0;
    m_lines.erase(m_lines.begin(), m_lines.begin() + static_cast<std::ptrdiff_t>(lost));
    return lost;
}

std::size_t CMessageLog::Replace(MessageKind kind, const std::wstring& text)
{
    if (!m_lines.empty())
        m_lines.pop_back();
    return Add(kind, text);
}

std::size_t CMessageLog::Count(MessageKind kind) const
{
    return static_cast<std::size_t>(std::count_if(m_lines.begin(), m_lines.end(),
                                                  [kind](const Line& line) { return line.kind == kind; }));
}

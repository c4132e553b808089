#pragma once
#include <string>
#include <vector>

enum class MessageKind
{
    plain,
    warning,
    error
};

/// The lines of one page of the message pane.
class CMessageLog
{
public:
    struct Line
    {
        std::wstring text;
        MessageKind kind;
    };
    /// A longer session drops its oldest lines.
    static constexpr std::size_t kMost = 5000;

    /// Adds a line. A text of several lines becomes as many, all of one kind. Returns how many lines the
    /// page lost at its top.
    std::size_t Add(MessageKind kind, const std::wstring& text);
    /// Writes over the last line; adds one when there is none.
    std::size_t Replace(MessageKind kind, const std::wstring& text);
    void Clear() { m_lines.clear(); }

    const std::vector<Line>& GetLines() const { return m_lines; }
    std::size_t Count(MessageKind kind) const;

private:
    std::vector<Line> m_lines;
};

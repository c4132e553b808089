#pragma once

#include "platform/codepage.h"

#include <string>
#include <string_view>
#include <vector>

/// Text files read the slow way, one byte after the other, as the rules are told: what the reader is held
/// against. The ANSI page is named: on Windows the library's own is not seen here.
class PlainTextReader
{
public:
    PlainTextReader(std::string_view bytes, int ansiPage) : m_bytes(bytes), m_ansiPage(ansiPage)
    {
        if (bytes.substr(0, 2) == "\xFF\xFE")
            Begin(2, 2);
        else if (bytes.substr(0, 2) == "\xFE\xFF")
            Begin(1, 2);
        else if (bytes.substr(0, 3) == "\xEF\xBB\xBF")
            Begin(3, 3);
    }

    /// 0 ANSI, 1 UTF-16 with the high byte first, 2 with the low byte first, 3 UTF-8.
    int Encoding() const { return m_encoding; }
    bool IsEndOfFile() const { return m_end; }

    bool ReadLine(std::wstring& line)
    {
        line.clear();
        unsigned ch = Character();
        if (ch == '\r')
            ch = Character();
        if (ch == '\n')
            ch = Character();
        if (m_end)
            return false;
        for (; ch != '\r' && ch != '\n' && !m_end; ch = Character())
            line += static_cast<wchar_t>(ch);
        m_pushed = true;
        m_pushedBack = ch;
        if (m_encoding == 0)
            line = *platform::codepage::decode(m_ansiPage, std::string(line.begin(), line.end()));
        return true;
    }

private:
    void Begin(int encoding, std::size_t mark)
    {
        m_encoding = encoding;
        m_at = mark;
    }

    unsigned Byte()
    {
        m_end = m_end || m_at == m_bytes.size();
        return m_end ? 0 : static_cast<unsigned char>(m_bytes[m_at++]);
    }

    unsigned Character()
    {
        if (m_pushed)
        {
            m_pushed = false;
            return m_pushedBack;
        }
        const unsigned first = Byte();
        if (m_encoding == 0)
            return first;
        if (m_encoding == 1)
            return first << 8 | Byte();
        if (m_encoding == 2)
            return first | Byte() << 8;
        if (first < 0x80)
            return first;
        if (first >= 0xC0 && first < 0xE0)
            return (first & 0x1F) << 6 | (Byte() & 0x3F);
        if (first >= 0xE0 && first < 0xF0)
        {
            const unsigned second = (first << 6 | (Byte() & 0x3F)) & 0xFFFF;
            return (second << 6 | (Byte() & 0x3F)) & 0xFFFF;
        }
        return 0xFFFD;
    }

    std::string_view m_bytes;
    int m_ansiPage;
    std::size_t m_at = 0;
    int m_encoding = 0;
    bool m_end = false;
    bool m_pushed = false;
    unsigned m_pushedBack = 0;
};

inline std::vector<std::wstring> PlainLines(std::string_view bytes, int ansiPage)
{
    std::vector<std::wstring> lines;
    PlainTextReader reader(bytes, ansiPage);
    for (std::wstring line; reader.ReadLine(line);)
        lines.push_back(line);
    return lines;
}

#include "tarvo/restools/ScriptText.h"

#include <algorithm>

namespace
{
constexpr std::size_t pieceSize = 16384;
} // namespace

bool CScriptText::Open(std::string_view bytes)
{
    const CTextMark mark = FindTextMark(bytes);
    m_bytes = bytes.substr(mark.length);
    m_encoding = mark.encoding;
    m_length = 0;
    m_marks = CScriptMarks();
    const bool isWide =
        m_encoding == TextEncoding::Utf16LittleEndian || m_encoding == TextEncoding::Utf16BigEndian;
    m_room =
        (isWide ? m_bytes.size() / 2 : m_bytes.size()) + CScriptMarks::Count; // no encoding gives more units
    m_units.reset(static_cast<char16_t*>(std::malloc(m_room * sizeof(char16_t))));
    if (m_units)
        Grow(0);
    return m_units != nullptr;
}

// In the ANSI code page a piece is whole lines: characters are told apart from each line's beginning.
std::string_view CScriptText::NextPiece() const
{
    std::string_view piece = m_bytes.substr(0, pieceSize);
    if (m_encoding != TextEncoding::Ansi || piece.size() == m_bytes.size())
        return piece;
    std::size_t lineBreak = piece.find_last_of("\r\n");
    if (lineBreak == std::string_view::npos)
        lineBreak = std::min(m_bytes.find_first_of("\r\n", pieceSize), m_bytes.size() - 1);
    return m_bytes.substr(0, lineBreak + 1);
}

bool CScriptText::Grow(std::size_t needed)
{
    const std::string_view piece = NextPiece();
    std::string_view rest = piece;
    const std::size_t count = DecodeTextPart(m_encoding, rest, m_units.get() + m_length);
    m_length += count;
    std::fill_n(m_units.get() + m_length, CScriptMarks::Count, u'\0');
    m_marks.Grow(m_units.get(), m_length, needed);
    // Without a unit, what is left is a character that the end of the file has cut off.
    m_bytes.remove_prefix(count == 0 ? m_bytes.size() : piece.size() - rest.size());
    return count != 0;
}

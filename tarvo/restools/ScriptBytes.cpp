#include "tarvo/restools/ScriptBytes.h"

#include <algorithm>

namespace
{
constexpr std::size_t pieceSize = 16384;
constexpr std::size_t readAtOnce = 4 * pieceSize;
} // namespace

CScriptBytes::CScriptBytes(std::string_view bytes) : m_bytes(bytes) { PassOverMark(); }

CScriptBytes::CScriptBytes(platform::file::input& file) : m_file(&file), m_unread(file.size())
{
    Provide(pieceSize);
    PassOverMark();
}

void CScriptBytes::PassOverMark()
{
    const CTextMark mark = FindTextMark(m_bytes);
    m_encoding = mark.encoding;
    Take(mark.length);
}

// Reads on until there are \p count bytes at hand, or all.
void CScriptBytes::Provide(std::size_t count)
{
    if (m_bytes.size() >= count || m_unread == 0)
        return;
    const std::size_t kept = m_bytes.size();
    platform::memory::Piece wider;
    if (m_buffer.get_deleter().size < count + readAtOnce)
        wider = platform::memory::take_piece(count + readAtOnce);
    std::copy(m_bytes.begin(), m_bytes.end(), wider ? wider.get() : m_buffer.get());
    if (wider)
        m_buffer.swap(wider);
    const auto read =
        static_cast<std::size_t>(std::min<std::uint64_t>(m_buffer.get_deleter().size - kept, m_unread));
    m_hasFailed = !m_file->read(m_buffer.get() + kept, read);
    m_bytes = {m_buffer.get(), kept + (m_hasFailed ? 0 : read)};
    m_unread = m_hasFailed ? 0 : m_unread - read;
}

std::string_view CScriptBytes::Peek()
{
    for (std::size_t size = pieceSize;; size *= 2)
    {
        Provide(size);
        const std::string_view piece = m_bytes.substr(0, size);
        if (m_encoding != TextEncoding::Ansi || piece.size() == GetLeft())
            return piece;
        if (const std::size_t last = piece.find_last_of("\r\n"); last != std::string_view::npos)
            return piece.substr(0, last + 1);
    }
}

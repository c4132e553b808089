#pragma once

#include "platform/file.h"
#include "platform/memory.h"
#include "tarvo/text/TextDecode.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

/// Gives the bytes of a script in pieces that can be decoded one by one: in the ANSI code page whole lines,
/// as characters are told apart from each line's beginning.
class CScriptBytes
{
public:
    /// \p bytes, and the file, must outlive this.
    explicit CScriptBytes(std::string_view bytes);
    explicit CScriptBytes(platform::file::input& file);

    /// What the mark says; it is not among the bytes.
    TextEncoding GetEncoding() const { return m_encoding; }
    /// Bytes that are still to be given.
    std::uint64_t GetLeft() const { return m_bytes.size() + m_unread; }
    /// The next piece; empty at the end.
    std::string_view Peek();
    /// Passes over that many bytes of the piece.
    void Take(std::size_t count) { m_bytes.remove_prefix(count); }
    /// True when the file could not be read to its end.
    bool HasFailed() const { return m_hasFailed; }

private:
    void PassOverMark();
    void Provide(std::size_t count);

    std::string_view m_bytes; ///< what is at hand
    platform::file::input* m_file = nullptr;
    platform::memory::Piece m_buffer; ///< of a file
    std::uint64_t m_unread = 0;       ///< bytes of the file that have not been read yet
    TextEncoding m_encoding = TextEncoding::Ansi;
    bool m_hasFailed = false;
};

#pragma once

#include "tarvo/export.h"
#include "tarvo/text/LineMarks.h"
#include "tarvo/text/Units.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

/// The lines of a message file in memory, one class for each reader. What is given is valid until the line
/// after the next one is asked for.

/// Room for two decoded lines in turn.
class CLineBuffers
{
public:
    explicit CLineBuffers(std::size_t most)
        : m_pUnits(std::make_unique_for_overwrite<char16_t[]>(2 * most)), m_nMost(most)
    {
    }
    /// Decodes \p bytes, at most as many as there is room for; empty for a page that the system has not.
    units::view Decode(int codePage, std::string_view bytes);

private:
    std::unique_ptr<char16_t[]> m_pUnits;
    std::size_t m_nMost;
    bool m_bSecond = false;
};

/// 8-bit text, at most 1,023 bytes a line. What is longer comes as further lines; a double-byte character
/// that is cut there becomes two broken ones. A line ends at a line feed; a carriage return before it is
/// dropped, and the text ends at the first Ctrl+Z, as in every text file of the system.
class TARVO_API CByteLines
{
public:
    static constexpr std::size_t kMost = 1023; ///< bytes

    CByteLines(std::string_view bytes, int codePage);
    /// False at the end of the text. A NUL ends the line it stands in, and the rest of it is passed over. A
    /// page that the system has not gives empty lines.
    bool Next(units::view& line);

private:
    std::string_view m_rest;
    std::string_view m_line; ///< what is left of a line that is longer
    int m_codePage;
    CLineBuffers m_buffers;
};

/// The lines that CStdioFileEx::ReadString gives one after the other for a file opened as text: UTF-16LE
/// behind its mark, else 8-bit text, at most 4,096 units or bytes at a time. Here they are taken straight
/// from the bytes; that both give the same is held by tests and by a fuzz target.
class TARVO_API CStdioLines
{
public:
    static constexpr std::size_t kMost = 4096;

    CStdioLines(std::string_view bytes, int codePage);
    /// False at the end of the text. \p marks is where the characters stand that take an entry apart.
    bool Next(units::view& line, textline::LineMarks& marks);

private:
    bool NextWide(units::view& line, textline::LineMarks& marks);
    bool NextBytes(units::view& line);

    units::view m_wide;
    textline::CLineMarker m_marker; ///< of m_wide
    std::string_view m_bytes;
    bool m_bWide;
    int m_codePage;
    CLineBuffers m_buffers;
};

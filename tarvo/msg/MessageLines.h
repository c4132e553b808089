#pragma once

#include "tarvo/export.h"
#include "tarvo/text/Units.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

/// The lines of a message file in memory, one class for each reader. A line ends at a line feed; a carriage
/// return before it is dropped, and the text ends at the first Ctrl+Z, as in every text file of the system.
/// What a line gives is valid until the next one is asked for.

/// 8-bit text, at most 1,023 bytes a line. What is longer comes as further lines; a double-byte character
/// that is cut there becomes two broken ones.
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
    std::unique_ptr<char16_t[]> m_pUnits;
};

/// The lines that CStdioFileEx reads from a text file: UTF-16LE behind its mark, else 8-bit text, at most
/// 4,096 units at a time.
class TARVO_API CStdioLines
{
public:
    static constexpr std::size_t kMost = 4096; ///< units

    CStdioLines(std::string_view bytes, int codePage);
    bool Next(units::view& line);

private:
    bool NextWide(units::view& line);
    bool NextBytes(units::view& line);

    units::view m_wide;
    std::string_view m_bytes;
    bool m_bWide;
    int m_codePage;
    std::unique_ptr<char16_t[]> m_pUnits;
};

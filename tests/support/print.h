#pragma once

#include <afxstr.h>

#include <cstdio>
#include <ostream>

/// Shows a text in a failed expectation: printable ASCII as it is, every other unit as \xXXXX.
inline void PrintTo(const CString& text, std::ostream* os)
{
    *os << "L\"";
    for (int i = 0; i < text.GetLength(); ++i)
    {
        const auto unit = static_cast<unsigned>(text[i]);
        char escaped[16];
        if (unit >= 0x20 && unit < 0x7F)
            std::snprintf(escaped, sizeof escaped, "%c", static_cast<int>(unit));
        else
            std::snprintf(escaped, sizeof escaped, "\\x%04X", unit);
        *os << escaped;
    }
    *os << '"';
}

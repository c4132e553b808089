#pragma once

#include "tarvo/export.h"

#include <afxstr.h>

#include <string>

/// The library's small text conversions: 8-bit text and UTF-16, text to numbers, a number with thousands
/// separators. All operations are static. A text that cannot be converted gives an empty one; nothing throws
/// but what says that memory ran out.
class TARVO_API CConvertString
{
public:
    CConvertString() = default;
    CConvertString(const CConvertString&) = default;
    CConvertString& operator=(const CConvertString&) = default;
    virtual ~CConvertString() = default;

    /// \p length bytes of \p text, NULs among them included, from the page \p codePage (0 is the system's
    /// ANSI page) to UTF-16 units. -1, like any length below zero, says that the text ends before its first
    /// NUL. Bytes that are no character become the page's default character (platform/codepage.h). Empty for
    /// a null text, no bytes and a page that the system has not; the system's other stand-in numbers (1 to 3)
    /// are none.
    static std::wstring MultiToWide(const char* text, int length, unsigned int codePage);
    /// The same as the framework's string. The name is part of the interface as it is spelled.
    static CString MultiToWideCSting(const char* text, int length, unsigned int codePage);
    /// The other direction. A unit that the page has not becomes its best fit or '?'.
    static std::string WideToMulti(const wchar_t* text, int length, unsigned int codePage);

    /// The number that \p text begins with behind white space, 0 if none; what follows is not looked at. The
    /// decimal point is '.' in every locale, an exponent begins with e, E, d or D. A number too large is an
    /// infinity, one too small 0; words and hexadecimal digits are none.
    static double CStringToDouble(const CString& text);
    /// The whole number that \p text begins with, in decimal and in the digits of any script that its
    /// machine's C library knows (full-width ones among them). Beyond 32 bits it is the nearest value that
    /// has them, on every platform.
    static int CStringToInteger(const CString& text);
    static long CStringToLong(const CString& text);

    /// "1,234,567" for 1234567, whatever the user's locale. Returns 1.
    ///
    /// The groups are counted by the logarithm in double precision, and callers rely on the texts that come
    /// of it: a value so little below 10^15 or 10^18 that its logarithm rounds up gets one group more, which
    /// is a single 0: "0,999,999,999,999,999,999".
    static int AddCommaToNumber(ULONGLONG value, CString& text);
};

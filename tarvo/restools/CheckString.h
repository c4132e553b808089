#pragma once

#include "tarvo/export.h"

#include <afxstr.h>

#include <string>
#include <string_view>

/// How strictly the texts of two scripts are held against each other; the numbers are the user's choice.
enum class StringCheck
{
    None = 0,      ///< "None"
    Percent = 1,   ///< "%-words"
    Backslash = 2, ///< "\-characters"
    Both = 3,      ///< "%- and \-problems"
    FullString = 4 ///< "Full string"
};

/// What a translator broke between \p text1 and \p text2, or an empty text when they agree.
///
/// A %-word is a percent sign with the ASCII letters and digits behind it; a second sign directly behind
/// the first belongs to it, so `%d`, `%%` and the `%5` of `%5.2f` are words. A \-character is a backslash
/// with the one unit behind it. First the signs are counted, then the words compared in order. A number
/// outside the five modes checks nothing.
TARVO_API std::u16string CheckString(std::u16string_view text1, std::u16string_view text2, StringCheck mode);
/// The same over texts of the framework; null is an empty text.
TARVO_API CString CheckString(const wchar_t* psz1, const wchar_t* psz2, StringCheck mode);

#pragma once

#include "tarvo/export.h"

/// What goes with a language number of the product: 0 English, 1 Korean, 2 Japanese, 3 Chinese, 4 Russian,
/// 5 Global. Any other number has what English has.
namespace languages
{
inline constexpr int english = 0;
inline constexpr int fallback = 1; ///< Korean: its files stand behind those of every language

struct Row
{
    const wchar_t* folder; ///< below "Language" beside the program, without a separator
    const wchar_t* suffix; ///< what the names of its files end with, before ".ini"
    int codePage;          ///< of its 8-bit files when the host asks for it; 0 is the system's ANSI page
};

inline constexpr int count = 6; ///< numbers from 0 on
TARVO_API const Row& of(int language);
} // namespace languages

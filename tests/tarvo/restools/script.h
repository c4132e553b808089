#pragma once

#include "tarvo/restools/Resources.h"

#include <string>
#include <string_view>
#include <vector>

/// A script that a test reads, and what reading it left behind.
struct Script
{
    CResources resources;
    std::string log; ///< a line feed for each line end
    std::vector<std::string> languages;
    bool isRead = false;
};

/// Reads a script given as UTF-8 text.
Script ReadScript(std::string_view text, const wchar_t* language = L"");

/// The bytes of a script with the mark of UTF-8 before them.
std::string Marked(std::string_view text);

/// The units as UTF-8, a lone surrogate as U+FFFD.
std::string Utf8(std::u16string_view text);
std::string Utf8(const CString& text);
std::u16string Utf16(std::string_view text);

/// Everything that was read, one resource a line, in brackets what a script may leave out:
/// `menu M { "text" ID [style]; ... }`, `toolbar T { BUTTON ID; ... }`,
/// `DIALOGEX D [style] [exstyle] "caption" { TYPE ID "text" [style] [exstyle] [help] number; ... }`,
/// `string ID "text"`, `bitmap B "file"`.
std::string Dump(const CResources& resources);

#pragma once
#include <optional>
#include <string>
#include <vector>

/// What the program was asked to do.
struct CommandLine
{
    bool help = false;
    std::wstring picturesFolder; ///< empty: an ordinary program with a main window
    std::optional<int> language; ///< a number of the language table; absent: all, or the stored choice
    std::wstring error;          ///< not empty: the arguments were wrong, one line
};

extern const wchar_t* const kUsage;

/// Reads the arguments that follow the program's name.
CommandLine read_command_line(const std::vector<std::wstring>& arguments);

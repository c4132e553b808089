#pragma once

#include "cli/command.h"

namespace cli
{
struct Request
{
    const Group* group = nullptr;     ///< null when only help or the version is wanted
    const Command* command = nullptr; ///< likewise
    bool help = false;
    bool version = false;
    Call call;
};

/// Reads the arguments after the program's name, UTF-8. Throws Failure with Status::usage.
Request parse(const std::vector<std::string>& arguments);

/// The last --color of \p arguments, empty without one; known before parsing, so that the errors of
/// parsing obey it too.
std::string color_choice(const std::vector<std::string>& arguments);
} // namespace cli

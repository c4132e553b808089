#pragma once

#include "cli/command.h"

namespace cli
{
/// The help of the program (no group), of a group (no command) or of a command.
std::string help(const Group* group, const Command* command);
} // namespace cli

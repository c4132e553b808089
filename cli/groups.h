#pragma once

#include "cli/command.h"

/// One file per group: each gives its rows of the command table.
namespace cli
{
std::span<const Command> ini_commands();
std::span<const Command> header_commands();
std::span<const Command> rc_commands();
std::span<const Command> messages_commands();
std::span<const Command> text_commands();
} // namespace cli

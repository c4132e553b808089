#pragma once

#include <string>

namespace cli
{
/// The completion script for bash, made from the command table. It needs no other script.
std::string bash_completion();
} // namespace cli

#pragma once

#include <string>
#include <vector>

namespace cli
{
/// Runs the program with the arguments after its name, UTF-8, and gives its exit status. Nothing is thrown.
int run(const std::vector<std::string>& arguments) noexcept;

/// Prints an error line for arguments that are no text, and gives the exit status.
int refuse_arguments() noexcept;
} // namespace cli

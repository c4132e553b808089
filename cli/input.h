#pragma once

#include <cstdint>
#include <string>

namespace cli
{
/// All bytes of the file \p name, UTF-8; "-" is standard input. Throws Failure with
/// Status::unreadable when it cannot be read or holds more than \p most bytes.
std::string read_input(const std::string& name, std::uint64_t most);

/// Throws Failure with Status::unreadable unless \p name is a regular file or "-": a pipe or device that is
/// opened by its name could block.
void require_regular(const std::string& name);

/// Says why a file that the library could not read is unreadable. Throws Failure always.
[[noreturn]] void unreadable(const std::string& name, std::uint64_t most);
} // namespace cli

#pragma once

#include <string>
#include <string_view>

namespace cli
{
/// Writes all of \p bytes to the file \p target, UTF-8; "-" is standard output. A regular file is
/// replaced whole or stays as it was; a device or pipe is written to. Throws Failure with
/// Status::unwritten.
void deliver(const std::string& target, std::string_view bytes);
} // namespace cli

#pragma once

#include <string>

namespace cli
{
/// The manual page tarvo(1) in the man macros of roff, made from the command table.
std::string manual_page();
} // namespace cli

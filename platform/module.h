#pragma once

#include "platform/handles.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>

/// Programs, loaded modules and the data inside them.
namespace platform::module
{
/// The full path of a module's file; null stands for the running program. Cut at \p most - 1
/// characters as the system cuts it. Empty on failure, and natively for any handle but null.
std::wstring path(HINSTANCE which, std::size_t most);

/// The bytes of a resource by number and type name (or number, as the system's headers pass one),
/// owned by the module; null stands for the running program. Nothing when it is missing, and always
/// nothing where modules carry no resources.
std::optional<std::span<const unsigned char>> resource(HINSTANCE which, int id, const wchar_t* type);
} // namespace platform::module

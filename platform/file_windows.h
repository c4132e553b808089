#pragma once

#include <string>

namespace platform::file::windows
{
/// The path as the system takes it at any length: beyond the classic limit it must be a full path
/// behind the prefix that turns the limit off. Short paths stay as they are, device names too.
std::wstring long_path(const wchar_t* path);
} // namespace platform::file::windows

#include "platform/module.h"

#include <algorithm>
#include <windows.h>

namespace platform::module
{
std::wstring path(HINSTANCE which, std::size_t most)
{
    constexpr std::size_t longest_path = 0x8000;
    std::wstring text(std::min(most, longest_path), L'\0');
    const DWORD size = ::GetModuleFileNameW(which, text.data(), static_cast<DWORD>(text.size()));
    // A cut text fills the buffer, its last character the null.
    text.resize(size == text.size() && size > 0 ? size - 1 : size);
    return text;
}

std::optional<std::span<const unsigned char>> resource(HINSTANCE which, int id, const wchar_t* type)
{
    const HRSRC found = ::FindResourceW(which, MAKEINTRESOURCEW(id), type);
    const HGLOBAL loaded = found ? ::LoadResource(which, found) : nullptr;
    const void* data = loaded ? ::LockResource(loaded) : nullptr;
    if (!data)
        return std::nullopt;
    return std::span(static_cast<const unsigned char*>(data), ::SizeofResource(which, found));
}
} // namespace platform::module

#pragma once

#include "platform/handles.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

/// The system registry, key by key. On Windows the calls go straight to the system. Elsewhere the
/// registry is one text file of the user's configuration folder (`TARVO_REGISTRY` names another),
/// written whole and renamed into place under a lock, so that two programs writing at once lose
/// nothing. Key and value names are compared without regard to case. Keys are non-volatile.
namespace platform::registry
{
enum class Root : std::uint32_t
{
    classes_root = 0x80000000u,
    current_user = 0x80000001u,
    local_machine = 0x80000002u,
    users = 0x80000003u,
    current_config = 0x80000005u
};

inline constexpr std::uint32_t type_string = 1;
inline constexpr std::uint32_t type_binary = 3;
inline constexpr std::uint32_t type_dword = 4;

/// A predefined key: never needs closing, closing it is harmless.
HKEY root(Root which);

/// Opens \p name below \p parent for reading; an empty name opens the same key again. Null on failure.
HKEY open(HKEY parent, const wchar_t* name);
/// Opens \p name below \p parent for reading and writing, creating it when missing. Null on failure.
HKEY create(HKEY parent, const wchar_t* name);
void close(HKEY key);

/// Copies at most \p size bytes of a value and sets \p size to the value's byte count. False when the
/// value is missing or, with non-null \p data, does not fit. Null \p data asks for the size only.
/// Text data are UTF-16LE bytes on every platform.
bool query(HKEY key, const wchar_t* value, void* data, std::size_t& size, std::uint32_t* type = nullptr);
bool set(HKEY key, const wchar_t* value, std::uint32_t type, const void* data, std::size_t size);
bool remove_value(HKEY key, const wchar_t* value);
/// Removes \p name below \p parent with everything under it.
bool remove_tree(HKEY parent, const wchar_t* name);
} // namespace platform::registry

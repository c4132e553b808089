#pragma once

#include "platform/handles.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

/// The system registry, key by key. On Windows the calls go straight to the system; elsewhere they
/// work on one text file (platform/registry_text.h describes it): the environment's `TARVO_REGISTRY`
/// names it, else it is `tarvo/registry` in `$XDG_CONFIG_HOME` or in `~/.config`. Every operation
/// looks at the newest file, and every change is made on it under a lock, written whole and renamed into
/// place; so two programs see each other's writes and lose none. A file that cannot be
/// read is never written over.
///
/// Key and value names are compared without regard to case and keep their first spelling. Keys are
/// non-volatile. A key name has 1 to 255 characters, a value name 0 to 16,383; other names fail, and
/// natively those with a control character or half a surrogate pair in a key name. Nothing throws but
/// std::bad_alloc.
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

struct RootName
{
    Root root;
    std::wstring_view name;
};

inline constexpr RootName root_names[] = {
    {Root::classes_root, L"HKEY_CLASSES_ROOT"},     {Root::current_user, L"HKEY_CURRENT_USER"},
    {Root::local_machine, L"HKEY_LOCAL_MACHINE"},   {Root::users, L"HKEY_USERS"},
    {Root::current_config, L"HKEY_CURRENT_CONFIG"},
};

/// The root of a name, in any letter case; nothing for any other text, abbreviations included.
std::optional<Root> root_by_name(std::wstring_view name);

inline constexpr std::uint32_t type_string = 1;
inline constexpr std::uint32_t type_binary = 3;
inline constexpr std::uint32_t type_dword = 4;

/// A predefined key: never needs closing, closing it is harmless.
HKEY root(Root which);

/// Opens \p name below \p parent for reading; an empty or null name opens the same key again, a name
/// with backslashes a key further down. Null on failure.
HKEY open(HKEY parent, const wchar_t* name);
/// Opens \p name below \p parent for reading and writing, creating it when missing. Null on failure.
HKEY create(HKEY parent, const wchar_t* name);
/// Closes what open or create gave; null is harmless.
void close(HKEY key);

/// Copies a value of at most \p size bytes to \p data and sets \p size to the value's byte count. False
/// when the value is missing or, with non-null \p data, does not fit. Null \p data asks for the size
/// only. A null or empty \p value is the key's unnamed value. Text data are UTF-16LE bytes on every
/// platform.
bool query(HKEY key, const wchar_t* value, void* data, std::size_t& size, std::uint32_t* type = nullptr);
/// False for a key that was opened for reading only or has been removed, or when the write failed.
bool set(HKEY key, const wchar_t* value, std::uint32_t type, const void* data, std::size_t size);
/// False when the value was not there, or as for set.
bool remove_value(HKEY key, const wchar_t* value);
/// Removes \p name below \p parent with everything under it. False when it was not there.
bool remove_tree(HKEY parent, const wchar_t* name);
} // namespace platform::registry

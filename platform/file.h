#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// Whole files and streams by wide path. A path is UTF-16 text; natively it is encoded as UTF-8 and
/// both '/' and '\' stand in it as they are written (no translation). Nothing throws but std::bad_alloc.
namespace platform::file
{
/// The separator that joins folder names on this platform.
extern const wchar_t separator;

/// Reads a whole regular file of at most \p most bytes. Nothing when it is missing, unreadable, a
/// folder, larger, or comes up short; an empty file gives empty bytes.
std::optional<std::string> read_whole(const wchar_t* path, std::uint64_t most);

enum class Written
{
    ok,
    not_opened, ///< the target could not be created; nothing was changed
    not_written ///< the target was opened, but not all bytes reached it
};

/// Creates or truncates \p path and writes \p bytes.
Written write_whole(const wchar_t* path, std::string_view bytes);

/// Writes \p bytes beside \p path and renames the result over it, so that a failure leaves the old
/// file as it was.
Written replace_whole(const wchar_t* path, std::string_view bytes);

bool exists(const wchar_t* path);
bool remove(const wchar_t* path);

struct closer
{
    void operator()(std::FILE* f) const { std::fclose(f); }
};
using stream = std::unique_ptr<std::FILE, closer>;

/// `fopen` by wide path; \p mode as in the C library ("rb", "wb", "r+b", "ab"). Null on failure and for
/// a folder.
stream open(const wchar_t* path, const char* mode);
} // namespace platform::file

#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// Whole files and streams by wide path. A path is UTF-16 text. On Windows paths longer than the
/// classic 260 characters work as well; natively a path is encoded as UTF-8, and both '/' and '\'
/// stand in it as they are written (no translation). A null, empty or over-long path is a failure like
/// that of a missing file. Nothing throws but std::bad_alloc.
namespace platform::file
{
/// The separator that joins folder names on this platform.
extern const wchar_t separator;

/// Reads a whole regular file of at most \p most bytes. Nothing when it is missing, unreadable, a
/// folder or a device, larger, or comes up short; an empty file gives empty bytes.
std::optional<std::string> read_whole(const wchar_t* path, std::uint64_t most);

/// A regular file that is read piece by piece, for those who take it apart on the way.
class input
{
public:
    /// Opens what read_whole would read.
    static std::optional<input> open(const wchar_t* path, std::uint64_t most);

    /// Bytes of the file when it was opened.
    std::uint64_t size() const;
    /// Reads the next \p count bytes. False when the file has fewer by now or cannot be read.
    bool read(char* to, std::size_t count);

private:
    struct state;
    struct closer
    {
        void operator()(state* opened) const;
    };
    explicit input(state* opened) : m_state(opened) {}

    std::unique_ptr<state, closer> m_state;
};

enum class Written
{
    ok,
    not_opened, ///< the target could not be created or may not be written; nothing was changed
    not_written ///< the target was opened, but not all bytes reached it
};

/// Creates or truncates \p path and writes \p bytes.
Written write_whole(const wchar_t* path, std::string_view bytes);

/// Writes \p bytes to a new file in the folder of \p path, flushes it to the disk and renames it over
/// \p path, so that a failure (either kind) leaves the old file as it was and a reader sees either the
/// old bytes or the new. A file that this user may not write is refused, although its folder would
/// allow the renaming. A device or pipe cannot be replaced and is written in place. Natively the new
/// file has the permissions of the old one, and a symbolic link stays while its target is replaced.
Written replace_whole(const wchar_t* path, std::string_view bytes);

/// True for a file, a folder or anything else that stands at \p path.
bool exists(const wchar_t* path);

/// Removes a file; a folder is refused.
bool remove(const wchar_t* path);

struct closer
{
    void operator()(std::FILE* f) const { std::fclose(f); }
};
using stream = std::unique_ptr<std::FILE, closer>;

/// `fopen` by wide path; \p mode as in the C library ("rb", "wb", "r+b", "ab"). Null on failure and for
/// a folder. Natively programs that this one starts do not inherit the stream.
stream open(const wchar_t* path, const char* mode);
} // namespace platform::file

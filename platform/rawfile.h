#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

/// Open files with a position, and what can be asked of files by name. Paths as in platform/file.h.
/// Every failure gives a kind and the system's own error number; nothing throws but std::bad_alloc.
namespace platform::rawfile
{
/// The system's handle: a HANDLE on Windows, a descriptor elsewhere.
using handle = std::intptr_t;
inline constexpr handle none = -1;

enum class Failure
{
    no_failure,
    other,
    not_found,
    bad_path,
    too_many_open,
    access_denied,
    bad_handle,
    bad_seek,
    hardware,
    sharing,
    locked,
    disk_full,
    directory_full,
    current_directory,
    already_there
};

/// Success until something failed.
struct Error
{
    Failure failure = Failure::no_failure;
    long number = 0; ///< GetLastError or errno

    explicit operator bool() const { return failure != Failure::no_failure; }
};

/// The kind of a system error number; Failure::other for those without one.
Failure failure_of(long number);

struct Mode
{
    bool read = true;
    bool write = false;
    bool create = false;     ///< makes the file when it is missing...
    bool keep = false;       ///< ...and keeps an existing one as it is; without this it becomes empty
    bool share_read = true;  ///< others may read meanwhile. Sharing is enforced on Windows only.
    bool share_write = true; ///< others may write meanwhile
    bool inherit = false;    ///< child processes get the handle
    bool write_through = false;
};

handle open(const wchar_t* path, const Mode& mode, Error& error);
/// False when bytes that the system held back could not be written. The handle is gone in any case.
bool close(handle h, Error& error);
/// A second handle with the same position.
handle duplicate(handle h, Error& error);

/// Reads up to \p size bytes, fewer only at the end.
std::size_t read(handle h, void* to, std::size_t size, Error& error);
bool write(handle h, const void* from, std::size_t size, Error& error);

enum class From
{
    begin,
    current,
    end
};
/// The new position from the start; a position before the start is a bad_seek.
std::uint64_t seek(handle h, std::int64_t offset, From from, Error& error);
/// Cuts the file or lengthens it with zero bytes. The position is then the new end.
bool set_length(handle h, std::uint64_t length, Error& error);
std::uint64_t length(handle h, Error& error);
/// Waits until what was written is on the disk.
bool flush(handle h, Error& error);

bool lock(handle h, std::uint64_t offset, std::uint64_t count, Error& error);
bool unlock(handle h, std::uint64_t offset, std::uint64_t count, Error& error);

/// Renames a file; an existing \p to is already_there.
bool rename(const wchar_t* from, const wchar_t* to, Error& error);
bool remove(const wchar_t* path, Error& error);

struct Status
{
    std::uint64_t length = 0;
    bool folder = false;
    bool read_only = false;
};
std::optional<Status> status(const wchar_t* path);

/// The path from the root, without "." and "..". Empty when it cannot be told.
std::wstring full_path(const wchar_t* path);
} // namespace platform::rawfile

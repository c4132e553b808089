#include "platform/rawfile.h"

#include "platform/file_windows.h"

#include <algorithm>
#include <windows.h>

namespace platform::rawfile
{
namespace
{
using file::windows::long_path;

HANDLE system_handle(handle h) { return reinterpret_cast<HANDLE>(h); }

Error failed(long number) { return {failure_of(number), number}; }

bool checked(BOOL succeeded, Error& error)
{
    if (!succeeded)
        error = failed(static_cast<long>(::GetLastError()));
    return succeeded != FALSE;
}

// One call moves at most this many bytes.
constexpr std::size_t piece = 1u << 30;

LARGE_INTEGER large(std::uint64_t n)
{
    LARGE_INTEGER l;
    l.QuadPart = static_cast<LONGLONG>(n);
    return l;
}
} // namespace

Failure failure_of(long number)
{
    switch (number)
    {
    case NO_ERROR:
        return Failure::no_failure;
    case ERROR_FILE_NOT_FOUND:
    case ERROR_BAD_UNIT:
        return Failure::not_found;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_PATHNAME:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_FILENAME_EXCED_RANGE:
    case ERROR_DIRECTORY:
        return Failure::bad_path;
    case ERROR_TOO_MANY_OPEN_FILES:
        return Failure::too_many_open;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
    case ERROR_INVALID_ACCESS:
    case ERROR_NETWORK_ACCESS_DENIED:
        return Failure::access_denied;
    case ERROR_INVALID_HANDLE:
        return Failure::bad_handle;
    case ERROR_SEEK:
    case ERROR_NEGATIVE_SEEK:
        return Failure::bad_seek;
    case ERROR_CRC:
    case ERROR_NOT_READY:
    case ERROR_SECTOR_NOT_FOUND:
    case ERROR_WRITE_FAULT:
    case ERROR_READ_FAULT:
    case ERROR_GEN_FAILURE:
    case ERROR_IO_DEVICE:
        return Failure::hardware;
    case ERROR_SHARING_VIOLATION:
        return Failure::sharing;
    case ERROR_LOCK_VIOLATION:
    case ERROR_LOCK_FAILED:
    case ERROR_NOT_LOCKED:
        return Failure::locked;
    case ERROR_HANDLE_DISK_FULL:
    case ERROR_DISK_FULL:
        return Failure::disk_full;
    case ERROR_CANNOT_MAKE:
        return Failure::directory_full;
    case ERROR_CURRENT_DIRECTORY:
        return Failure::current_directory;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
        return Failure::already_there;
    default:
        return Failure::other;
    }
}

handle open(const wchar_t* path, const Mode& mode, Error& error)
{
    const DWORD access = (mode.read ? GENERIC_READ : 0u) | (mode.write ? GENERIC_WRITE : 0u);
    const DWORD share = (mode.share_read ? FILE_SHARE_READ : 0u) | (mode.share_write ? FILE_SHARE_WRITE : 0u);
    const DWORD disposition = !mode.create ? OPEN_EXISTING : mode.keep ? OPEN_ALWAYS : CREATE_ALWAYS;
    SECURITY_ATTRIBUTES security = {sizeof security, nullptr, mode.inherit};
    const HANDLE h =
        ::CreateFileW(long_path(path).c_str(), access, share, &security, disposition,
                      FILE_ATTRIBUTE_NORMAL | (mode.write_through ? FILE_FLAG_WRITE_THROUGH : 0), nullptr);
    if (!checked(h != INVALID_HANDLE_VALUE, error))
        return none;
    return reinterpret_cast<handle>(h);
}

bool close(handle h, Error& error) { return checked(::CloseHandle(system_handle(h)), error); }

handle duplicate(handle h, Error& error)
{
    HANDLE second = nullptr;
    const HANDLE process = ::GetCurrentProcess();
    if (!checked(
            ::DuplicateHandle(process, system_handle(h), process, &second, 0, FALSE, DUPLICATE_SAME_ACCESS),
            error))
        return none;
    return reinterpret_cast<handle>(second);
}

std::size_t read(handle h, void* to, std::size_t size, Error& error)
{
    auto* p = static_cast<char*>(to);
    std::size_t done = 0;
    while (done < size)
    {
        DWORD n = 0;
        const auto wanted = static_cast<DWORD>(std::min(size - done, piece));
        if (!checked(::ReadFile(system_handle(h), p + done, wanted, &n, nullptr), error) || n == 0)
            break;
        done += n;
    }
    return done;
}

bool write(handle h, const void* from, std::size_t size, Error& error)
{
    const auto* p = static_cast<const char*>(from);
    while (size != 0)
    {
        DWORD n = 0;
        const auto wanted = static_cast<DWORD>(std::min(size, piece));
        if (!checked(::WriteFile(system_handle(h), p, wanted, &n, nullptr), error))
            return false;
        if (n == 0)
        {
            error = failed(ERROR_DISK_FULL);
            return false;
        }
        p += n;
        size -= n;
    }
    return true;
}

std::uint64_t seek(handle h, std::int64_t offset, From from, Error& error)
{
    LARGE_INTEGER position = {};
    const DWORD method = from == From::begin ? FILE_BEGIN : from == From::current ? FILE_CURRENT : FILE_END;
    checked(
        ::SetFilePointerEx(system_handle(h), large(static_cast<std::uint64_t>(offset)), &position, method),
        error);
    // Some systems answer a position before the start with a general complaint.
    if (error.number == ERROR_INVALID_PARAMETER)
        error.failure = Failure::bad_seek;
    return static_cast<std::uint64_t>(position.QuadPart);
}

bool set_length(handle h, std::uint64_t length, Error& error)
{
    return checked(::SetFilePointerEx(system_handle(h), large(length), nullptr, FILE_BEGIN), error) &&
           checked(::SetEndOfFile(system_handle(h)), error);
}

std::uint64_t length(handle h, Error& error)
{
    LARGE_INTEGER size = {};
    checked(::GetFileSizeEx(system_handle(h), &size), error);
    return static_cast<std::uint64_t>(size.QuadPart);
}

bool flush(handle h, Error& error) { return checked(::FlushFileBuffers(system_handle(h)), error); }

bool lock(handle h, std::uint64_t offset, std::uint64_t count, Error& error)
{
    return checked(::LockFile(system_handle(h), static_cast<DWORD>(offset), static_cast<DWORD>(offset >> 32),
                              static_cast<DWORD>(count), static_cast<DWORD>(count >> 32)),
                   error);
}

bool unlock(handle h, std::uint64_t offset, std::uint64_t count, Error& error)
{
    return checked(::UnlockFile(system_handle(h), static_cast<DWORD>(offset),
                                static_cast<DWORD>(offset >> 32), static_cast<DWORD>(count),
                                static_cast<DWORD>(count >> 32)),
                   error);
}

bool rename(const wchar_t* from, const wchar_t* to, Error& error)
{
    return checked(::MoveFileW(long_path(from).c_str(), long_path(to).c_str()), error);
}

bool remove(const wchar_t* path, Error& error)
{
    return checked(::DeleteFileW(long_path(path).c_str()), error);
}

std::optional<Status> status(const wchar_t* path)
{
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!::GetFileAttributesExW(long_path(path).c_str(), GetFileExInfoStandard, &data))
        return std::nullopt;
    Status s;
    s.length = (static_cast<std::uint64_t>(data.nFileSizeHigh) << 32) | data.nFileSizeLow;
    s.folder = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    s.read_only = (data.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
    return s;
}

std::wstring full_path(const wchar_t* path)
{
    const DWORD size = ::GetFullPathNameW(path, 0, nullptr, nullptr);
    std::wstring full(size, L'\0');
    const DWORD n = size != 0 ? ::GetFullPathNameW(path, size, full.data(), nullptr) : 0;
    full.resize(n < size ? n : 0);
    return full;
}
} // namespace platform::rawfile

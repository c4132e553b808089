#include "platform/rawfile.h"

#include "platform/codepage.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform::rawfile
{
namespace
{
std::string bytes_of(const wchar_t* path)
{
    return codepage::encode(codepage::utf8, path != nullptr ? path : L"").value_or(std::string());
}

Error failed(long number) { return {failure_of(number), number}; }

bool checked(bool succeeded, Error& error)
{
    if (!succeeded)
        error = failed(errno);
    return succeeded;
}

int descriptor(handle h) { return static_cast<int>(h); }

struct flock range(short type, std::uint64_t offset, std::uint64_t count)
{
    struct flock r = {};
    r.l_type = type;
    r.l_whence = SEEK_SET;
    r.l_start = static_cast<off_t>(offset);
    r.l_len = static_cast<off_t>(count);
    return r;
}
} // namespace

Failure failure_of(long number)
{
    switch (number)
    {
    case 0:
        return Failure::no_failure;
    case ENOENT:
        return Failure::not_found;
    case ENOTDIR:
    case ENAMETOOLONG:
    case ELOOP:
        return Failure::bad_path;
    case EMFILE:
    case ENFILE:
        return Failure::too_many_open;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case ETXTBSY:
        return Failure::access_denied;
    case EBADF:
        return Failure::bad_handle;
    case EINVAL:
    case ESPIPE:
        return Failure::bad_seek;
    case EIO:
        return Failure::hardware;
    case EBUSY:
        return Failure::sharing;
    case EAGAIN:
    case EDEADLK:
    case ENOLCK:
        return Failure::locked;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return Failure::disk_full;
    case EEXIST:
    case ENOTEMPTY:
        return Failure::already_there;
    default:
        return Failure::other;
    }
}

handle open(const wchar_t* path, const Mode& mode, Error& error)
{
    const int flags = (mode.read && mode.write ? O_RDWR
                       : mode.write            ? O_WRONLY
                                               : O_RDONLY) |
                      (mode.create ? O_CREAT | (mode.keep ? 0 : O_TRUNC) : 0) |
                      (mode.inherit ? 0 : O_CLOEXEC) | (mode.write_through ? O_DSYNC : 0);
    const int fd = ::open(bytes_of(path).c_str(), flags, 0666);
    struct stat info;
    if (!checked(fd >= 0, error))
        return none;
    // A folder can be opened for reading here, but it has no bytes.
    if (::fstat(fd, &info) == 0 && S_ISDIR(info.st_mode))
    {
        ::close(fd);
        error = failed(EISDIR);
        return none;
    }
    return fd;
}

bool close(handle h, Error& error) { return checked(::close(descriptor(h)) == 0, error); }

handle duplicate(handle h, Error& error)
{
    const int fd = ::fcntl(descriptor(h), F_DUPFD_CLOEXEC, 0);
    return checked(fd >= 0, error) ? fd : none;
}

std::size_t read(handle h, void* to, std::size_t size, Error& error)
{
    auto* p = static_cast<char*>(to);
    std::size_t done = 0;
    while (done < size)
    {
        const ssize_t n = ::read(descriptor(h), p + done, size - done);
        if (n < 0 && errno == EINTR)
            continue;
        if (!checked(n >= 0, error) || n == 0)
            break;
        done += static_cast<std::size_t>(n);
    }
    return done;
}

bool write(handle h, const void* from, std::size_t size, Error& error)
{
    const auto* p = static_cast<const char*>(from);
    while (size != 0)
    {
        const ssize_t n = ::write(descriptor(h), p, size);
        if (n < 0 && errno == EINTR)
            continue;
        if (!checked(n >= 0, error))
            return false;
        p += n;
        size -= static_cast<std::size_t>(n);
    }
    return true;
}

std::uint64_t seek(handle h, std::int64_t offset, From from, Error& error)
{
    const int whence = from == From::begin ? SEEK_SET : from == From::current ? SEEK_CUR : SEEK_END;
    const off_t position = ::lseek(descriptor(h), offset, whence);
    return checked(position >= 0, error) ? static_cast<std::uint64_t>(position) : 0;
}

bool set_length(handle h, std::uint64_t length, Error& error)
{
    return checked(::ftruncate(descriptor(h), static_cast<off_t>(length)) == 0, error) &&
           checked(::lseek(descriptor(h), static_cast<off_t>(length), SEEK_SET) >= 0, error);
}

std::uint64_t length(handle h, Error& error)
{
    struct stat info;
    return checked(::fstat(descriptor(h), &info) == 0, error) ? static_cast<std::uint64_t>(info.st_size) : 0;
}

bool flush(handle h, Error& error) { return checked(::fsync(descriptor(h)) == 0, error); }

bool lock(handle h, std::uint64_t offset, std::uint64_t count, Error& error)
{
    struct flock r = range(F_WRLCK, offset, count);
    return checked(::fcntl(descriptor(h), F_OFD_SETLK, &r) == 0, error);
}

bool unlock(handle h, std::uint64_t offset, std::uint64_t count, Error& error)
{
    struct flock r = range(F_UNLCK, offset, count);
    return checked(::fcntl(descriptor(h), F_OFD_SETLK, &r) == 0, error);
}

bool rename(const wchar_t* from, const wchar_t* to, Error& error)
{
    const std::string source = bytes_of(from);
    const std::string target = bytes_of(to);
    return checked(::renameat2(AT_FDCWD, source.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE) == 0,
                   error);
}

bool remove(const wchar_t* path, Error& error)
{
    return checked(::unlink(bytes_of(path).c_str()) == 0, error);
}

std::optional<Status> status(const wchar_t* path)
{
    struct stat info;
    if (::stat(bytes_of(path).c_str(), &info) != 0)
        return std::nullopt;
    Status s;
    s.length = static_cast<std::uint64_t>(info.st_size);
    s.folder = S_ISDIR(info.st_mode);
    s.read_only = (info.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0;
    return s;
}

std::wstring full_path(const wchar_t* path)
{
    std::error_code error;
    const auto full = std::filesystem::absolute(bytes_of(path), error).lexically_normal();
    return error ? std::wstring() : codepage::decode(codepage::utf8, full.native()).value_or(std::wstring());
}
} // namespace platform::rawfile

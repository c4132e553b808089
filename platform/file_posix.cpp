#include "platform/file_posix.h"

#include "platform/codepage.h"

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform::file
{
const wchar_t separator = L'/';

namespace posix
{
int Descriptor::release()
{
    const int fd = m_fd;
    m_fd = -1;
    return fd;
}

bool Descriptor::close()
{
    const int fd = release();
    return fd < 0 || ::close(fd) == 0;
}

namespace
{
struct free_closer
{
    void operator()(char* p) const { std::free(p); }
};

bool write_all(int fd, std::string_view bytes)
{
    while (!bytes.empty())
    {
        const ssize_t n = ::write(fd, bytes.data(), bytes.size());
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(n));
    }
    return true;
}

/// The folder part of a path, its last slash included; empty for a bare name.
std::string folder_of(const std::string& path)
{
    return path.substr(0, path.rfind('/') + 1); // npos + 1 is 0
}

/// A rename is on the disk once its folder is. Not every file system can say so, hence no result.
void flush_folder(const std::string& folder)
{
    Descriptor fd(::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (fd)
        ::fsync(fd.get());
}

/// Gives the new file what people set on the old one. The owner first: changing it clears mode bits.
bool take_over(int fd, const struct stat& old)
{
    if ((old.st_uid != ::geteuid() || old.st_gid != ::getegid()) && ::fchown(fd, old.st_uid, old.st_gid) != 0)
        errno = 0; // only root may give files away; the right to write was checked before
    return ::fchmod(fd, old.st_mode & 07777) == 0;
}

/// A new empty file in \p folder, whose path \p name receives. A name of its own, not the target's with
/// a suffix, which could be too long.
Descriptor create_in(const std::string& folder, mode_t mode, std::string& name)
{
    static std::atomic<unsigned> count{0};
    for (int attempt = 0; attempt < 100; ++attempt)
    {
        name = folder + ".tarvo-" + std::to_string(::getpid()) + "-" + std::to_string(count++);
        const int fd = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        if (fd >= 0 || errno != EEXIST)
            return Descriptor(fd);
    }
    return Descriptor();
}

/// Replaces the regular file \p path (no symbolic link), or makes it when \p old is null.
Written replace_regular(const std::string& path, const struct stat* old, std::string_view bytes)
{
    const std::string folder = folder_of(path);
    std::string temporary;
    Descriptor fd = create_in(folder, old ? 0600 : 0666, temporary);
    if (!fd)
        return Written::not_opened;
    Written result = Written::ok;
    if ((old && !take_over(fd.get(), *old)) || !write_all(fd.get(), bytes) || ::fsync(fd.get()) != 0 ||
        !fd.close())
        result = Written::not_written;
    else if (::rename(temporary.c_str(), path.c_str()) != 0)
        result = Written::not_opened;
    if (result != Written::ok)
        ::unlink(temporary.c_str());
    else
        flush_folder(folder);
    return result;
}
} // namespace

bool read_all(int fd, char* to, std::size_t count)
{
    while (count != 0)
    {
        const ssize_t n = ::read(fd, to, count);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        to += n;
        count -= static_cast<std::size_t>(n);
    }
    return true;
}

namespace
{
/// Nothing for what is no regular file, and for one of more than \p most bytes.
Descriptor open_regular(const char* path, std::uint64_t most, std::uint64_t& size)
{
    // Without O_NONBLOCK a pipe without a writer would hold the caller for ever.
    Descriptor fd(::open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat info;
    if (!fd || ::fstat(fd.get(), &info) != 0 || !S_ISREG(info.st_mode) ||
        static_cast<std::uint64_t>(info.st_size) > most)
        return Descriptor();
    size = static_cast<std::uint64_t>(info.st_size);
    return fd;
}
} // namespace

std::optional<std::string> read_whole(const char* path, std::uint64_t most)
{
    std::uint64_t size = 0;
    const Descriptor fd = open_regular(path, most, size);
    if (!fd)
        return std::nullopt;
    std::string bytes(static_cast<std::size_t>(size), '\0');
    if (!read_all(fd.get(), bytes.data(), bytes.size()))
        return std::nullopt;
    return bytes;
}

Written write_whole(const char* path, std::string_view bytes)
{
    Descriptor fd(::open(path, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
    if (!fd)
        return Written::not_opened;
    const bool written = write_all(fd.get(), bytes);
    return fd.close() && written ? Written::ok : Written::not_written;
}

Written replace_whole(const char* path, std::string_view bytes)
{
    struct stat old;
    if (::stat(path, &old) != 0)
    {
        // A link to a file that is still to be made: there is no old file to protect.
        if (errno == ENOENT && ::lstat(path, &old) == 0)
            return write_whole(path, bytes);
        return errno == ENOENT && *path ? replace_regular(path, nullptr, bytes) : Written::not_opened;
    }
    if (!S_ISREG(old.st_mode))
        return S_ISDIR(old.st_mode) ? Written::not_opened : write_whole(path, bytes);
    std::unique_ptr<char, free_closer> target(::realpath(path, nullptr));
    if (!target || ::faccessat(AT_FDCWD, target.get(), W_OK, AT_EACCESS) != 0)
        return Written::not_opened;
    return replace_regular(target.get(), &old, bytes);
}
} // namespace posix

namespace
{
/// A null path becomes the empty path, which names no file.
std::string path_bytes(const wchar_t* path)
{
    return path ? codepage::encode(codepage::utf8, path).value_or(std::string()) : std::string();
}
} // namespace

std::optional<std::string> read_whole(const wchar_t* path, std::uint64_t most)
{
    return posix::read_whole(path_bytes(path).c_str(), most);
}

struct input::state
{
    posix::Descriptor fd;
    std::uint64_t size;
};

void input::closer::operator()(state* opened) const { delete opened; }

std::optional<input> input::open(const wchar_t* path, std::uint64_t most)
{
    std::uint64_t size = 0;
    posix::Descriptor fd = posix::open_regular(path_bytes(path).c_str(), most, size);
    if (!fd)
        return std::nullopt;
    return input(new state{std::move(fd), size});
}

std::uint64_t input::size() const { return m_state->size; }

bool input::read(char* to, std::size_t count) { return posix::read_all(m_state->fd.get(), to, count); }

Written write_whole(const wchar_t* path, std::string_view bytes)
{
    return posix::write_whole(path_bytes(path).c_str(), bytes);
}

Written replace_whole(const wchar_t* path, std::string_view bytes)
{
    return posix::replace_whole(path_bytes(path).c_str(), bytes);
}

bool exists(const wchar_t* path)
{
    struct stat info;
    return ::stat(path_bytes(path).c_str(), &info) == 0;
}

bool remove(const wchar_t* path) { return ::unlink(path_bytes(path).c_str()) == 0; }

stream open(const wchar_t* path, const char* mode)
{
    const std::string closed_in_children = std::string(mode) + "e";
    stream file(std::fopen(path_bytes(path).c_str(), closed_in_children.c_str()));
    struct stat info;
    if (file && (::fstat(::fileno(file.get()), &info) != 0 || S_ISDIR(info.st_mode)))
        file.reset();
    return file;
}
} // namespace platform::file

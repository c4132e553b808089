#pragma once

#include "platform/file.h"

/// The native half of platform/file.h over byte paths, for callers whose paths come as bytes from the
/// environment.
namespace platform::file::posix
{
/// Owns a file descriptor.
class Descriptor
{
public:
    explicit Descriptor(int fd = -1) : m_fd(fd) {}
    Descriptor(Descriptor&& other) noexcept : m_fd(other.release()) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor& operator=(Descriptor&&) = delete;
    ~Descriptor() { close(); }

    int get() const { return m_fd; }
    explicit operator bool() const { return m_fd >= 0; }
    int release();
    /// False when the system reports that earlier writes did not reach the file.
    bool close();

private:
    int m_fd;
};

/// Reads \p count bytes from the file's position on. False when the file ends before.
bool read_all(int fd, char* to, std::size_t count);

std::optional<std::string> read_whole(const char* path, std::uint64_t most);
Written write_whole(const char* path, std::string_view bytes);
Written replace_whole(const char* path, std::string_view bytes);
} // namespace platform::file::posix

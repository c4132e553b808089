#include "platform/file_windows.h"

#include "platform/file.h"

#include <algorithm>
#include <windows.h>

namespace platform::file
{
namespace windows
{
std::wstring long_path(const wchar_t* path)
{
    constexpr std::size_t classic_limit = 240; // room for a temporary name beside the file
    std::wstring text(path ? path : L"");
    if (text.size() < classic_limit || text.starts_with(LR"(\\?\)") || text.starts_with(LR"(\\.\)"))
        return text;
    const DWORD size = ::GetFullPathNameW(text.c_str(), 0, nullptr, nullptr);
    std::wstring full(size, L'\0');
    const DWORD length = size ? ::GetFullPathNameW(text.c_str(), size, full.data(), nullptr) : 0;
    if (length == 0 || length >= size)
        return text;
    full.resize(length);
    if (full.starts_with(LR"(\\)"))
        return LR"(\\?\UNC)" + full.substr(1);
    return LR"(\\?\)" + full;
}
} // namespace windows

using windows::long_path;

const wchar_t separator = L'\\';

namespace
{
struct handle_closer
{
    using pointer = HANDLE;
    void operator()(HANDLE h) const { ::CloseHandle(h); }
};
using handle = std::unique_ptr<HANDLE, handle_closer>;

constexpr DWORD share_all = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

handle open_handle(const std::wstring& path, DWORD access, DWORD disposition, DWORD flags = 0)
{
    const HANDLE h = ::CreateFileW(path.c_str(), access, share_all, nullptr, disposition,
                                   FILE_ATTRIBUTE_NORMAL | flags, nullptr);
    return handle(h == INVALID_HANDLE_VALUE ? nullptr : h);
}

bool write_all(HANDLE file, std::string_view bytes)
{
    constexpr std::size_t piece = 1u << 30;
    while (!bytes.empty())
    {
        DWORD n = 0;
        const DWORD wanted = static_cast<DWORD>(std::min(bytes.size(), piece));
        if (!::WriteFile(file, bytes.data(), wanted, &n, nullptr) || n == 0)
            return false;
        bytes.remove_prefix(n);
    }
    return true;
}

bool read_all(HANDLE file, char* to, std::size_t count)
{
    constexpr std::size_t piece = 1u << 30;
    while (count != 0)
    {
        DWORD n = 0;
        const DWORD wanted = static_cast<DWORD>(std::min(count, piece));
        if (!::ReadFile(file, to, wanted, &n, nullptr) || n == 0)
            return false;
        to += n;
        count -= n;
    }
    return true;
}

bool is_folder(const std::wstring& path)
{
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

/// Marked read-only. The system refuses such a file by itself, but not where the user may do anything.
bool is_protected(const std::wstring& path)
{
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY);
}

Written write_and_close(handle file, std::string_view bytes, bool flushed)
{
    if (!file)
        return Written::not_opened;
    const bool written = write_all(file.get(), bytes) && (!flushed || ::FlushFileBuffers(file.get()));
    return written ? Written::ok : Written::not_written;
}

/// A new file in the folder of \p path, empty and open for writing; \p name receives its path.
handle create_beside(const std::wstring& path, std::wstring& name)
{
    const std::wstring folder = path.substr(0, path.find_last_of(L"\\/:") + 1); // npos + 1 is 0
    DWORD number = ::GetTickCount() ^ (::GetCurrentProcessId() << 16);
    for (int attempt = 0; attempt < 100; ++attempt, number = number * 1664525u + 1013904223u)
    {
        name = folder + L".tarvo-" + std::to_wstring(number);
        handle file = open_handle(name, GENERIC_WRITE, CREATE_NEW);
        if (file || ::GetLastError() != ERROR_FILE_EXISTS)
            return file;
    }
    return nullptr;
}
} // namespace

struct input::state
{
    handle file;
    std::uint64_t size;
};

void input::closer::operator()(state* opened) const { delete opened; }

std::optional<input> input::open(const wchar_t* path, std::uint64_t most)
{
    handle file = open_handle(long_path(path), GENERIC_READ, OPEN_EXISTING);
    LARGE_INTEGER size;
    if (!file || ::GetFileType(file.get()) != FILE_TYPE_DISK || !::GetFileSizeEx(file.get(), &size) ||
        static_cast<std::uint64_t>(size.QuadPart) > most)
        return std::nullopt;
    return input(new state{std::move(file), static_cast<std::uint64_t>(size.QuadPart)});
}

std::uint64_t input::size() const { return m_state->size; }

bool input::read(char* to, std::size_t count) { return read_all(m_state->file.get(), to, count); }

std::optional<std::string> read_whole(const wchar_t* path, std::uint64_t most)
{
    std::optional<input> file = input::open(path, most);
    if (!file)
        return std::nullopt;
    std::string bytes(static_cast<std::size_t>(file->size()), '\0');
    if (!file->read(bytes.data(), bytes.size()))
        return std::nullopt;
    return bytes;
}

Written write_whole(const wchar_t* path, std::string_view bytes)
{
    const std::wstring target = long_path(path);
    if (is_protected(target))
        return Written::not_opened;
    return write_and_close(open_handle(target, GENERIC_WRITE, CREATE_ALWAYS), bytes, false);
}

Written replace_whole(const wchar_t* path, std::string_view bytes)
{
    const std::wstring target = long_path(path);
    handle old = open_handle(target, GENERIC_WRITE, OPEN_EXISTING);
    if (old && ::GetFileType(old.get()) != FILE_TYPE_DISK)
        return write_and_close(std::move(old), bytes, false);
    const bool there = ::GetFileAttributesW(target.c_str()) != INVALID_FILE_ATTRIBUTES;
    if (target.empty() || (there && !old) || is_protected(target))
        return Written::not_opened;
    old.reset(); // an open file cannot be renamed over
    std::wstring temporary;
    Written result = write_and_close(create_beside(target, temporary), bytes, true);
    if (result == Written::not_opened)
        return result;
    constexpr DWORD flags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    if (result == Written::ok && !::MoveFileExW(temporary.c_str(), target.c_str(), flags))
        result = Written::not_opened;
    if (result != Written::ok)
        ::DeleteFileW(temporary.c_str());
    return result;
}

bool exists(const wchar_t* path)
{
    return ::GetFileAttributesW(long_path(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool remove(const wchar_t* path) { return ::DeleteFileW(long_path(path).c_str()) != FALSE; }

stream open(const wchar_t* path, const char* mode)
{
    const std::wstring target = long_path(path);
    if (target.empty() || is_folder(target))
        return nullptr;
    const std::wstring letters(mode, mode + std::char_traits<char>::length(mode));
    return stream(::_wfopen(target.c_str(), letters.c_str()));
}
} // namespace platform::file

#include "cli/output.h"

#include "cli/command.h"
#include "cli/text.h"
#include "platform/file.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>

namespace cli
{
namespace fs = std::filesystem;
namespace
{
[[noreturn]] void unwritten(std::string subject, std::string what)
{
    throw Failure{Status::unwritten, std::move(subject), "cannot be written: " + std::move(what)};
}

void to_standard_output(std::string_view bytes)
{
    errno = 0;
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size();
    if (!written || std::fflush(stdout) != 0)
        unwritten("standard output", std::strerror(errno));
}

// Write protection that everybody has agreed on holds for the administrator too, whom the system lets
// pass, and for a replacement by renaming, which asks the folder only.
bool write_protected(const fs::file_status& status)
{
    constexpr fs::perms any_write = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    return fs::is_regular_file(status) && (status.permissions() & any_write) == fs::perms::none;
}

const char* why_not_opened(const fs::path& path, const fs::file_status& status)
{
    std::error_code error;
    if (fs::is_directory(status))
        return "it is a folder";
    if (path.has_parent_path() && !fs::exists(path.parent_path(), error))
        return "its folder does not exist";
    return fs::exists(status) ? "no permission" : "it cannot be created";
}
} // namespace

void deliver(const std::string& target, std::string_view bytes)
{
    if (target == "-")
        return to_standard_output(bytes);
    std::error_code error;
    const fs::path path(std::u8string(target.begin(), target.end()));
    const fs::file_status status = fs::status(path, error);
    if (write_protected(status))
        unwritten(target, "it is read-only");
    switch (platform::file::replace_whole(to_wide(target).c_str(), bytes))
    {
    case platform::file::Written::ok:
        return;
    case platform::file::Written::not_opened:
        unwritten(target, why_not_opened(path, status));
    case platform::file::Written::not_written:
        unwritten(target, fs::is_regular_file(status)
                              ? "not all bytes reached the disk; the old file is unchanged"
                              : "not all bytes reached it");
    }
}
} // namespace cli

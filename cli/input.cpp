#include "cli/input.h"

#include "cli/command.h"
#include "cli/text.h"
#include "platform/file.h"

#include <cstdio>
#include <filesystem>
#include <limits>

namespace cli
{
namespace fs = std::filesystem;
namespace
{
std::string too_large(std::uint64_t most) { return "larger than " + std::to_string(most) + " bytes"; }

std::string read_standard_input(std::uint64_t most)
{
    std::string bytes;
    char piece[1 << 16];
    while (const std::size_t n = std::fread(piece, 1, sizeof piece, stdin))
    {
        bytes.append(piece, n);
        if (bytes.size() > most)
            throw Failure{Status::unreadable, "-", "standard input is " + too_large(most)};
    }
    if (std::ferror(stdin) != 0)
        throw Failure{Status::unreadable, "-", "standard input cannot be read"};
    return bytes;
}

std::string why_unreadable(const fs::path& path, std::uint64_t most)
{
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found)
        return "no such file";
    if (!fs::status_known(status))
        return "cannot be read: " + error.message();
    if (fs::is_directory(status))
        return "is a folder, not a file";
    if (!fs::is_regular_file(status))
        return "is not a regular file; use - to read it through standard input";
    if (const std::uintmax_t size = fs::file_size(path, error); !error && size > most)
        return too_large(most);
    return "cannot be read";
}
} // namespace

void unreadable(const std::string& name, std::uint64_t most)
{
    throw Failure{Status::unreadable, name, why_unreadable(std::u8string(name.begin(), name.end()), most)};
}

void require_regular(const std::string& name)
{
    std::error_code error;
    if (name != "-" && !fs::is_regular_file(fs::path(std::u8string(name.begin(), name.end())), error))
        unreadable(name, std::numeric_limits<std::uint64_t>::max());
}

std::string read_input(const std::string& name, std::uint64_t most)
{
    if (name == "-")
        return read_standard_input(most);
    std::optional<std::string> bytes = platform::file::read_whole(to_wide(name).c_str(), most);
    if (!bytes)
        unreadable(name, most);
    return *std::move(bytes);
}
} // namespace cli

#include "platform/module.h"

#include "platform/codepage.h"

#include <climits>
#include <string_view>
#include <unistd.h>

namespace platform::module
{
std::wstring path(HINSTANCE which, std::size_t most)
{
    char bytes[PATH_MAX];
    const ssize_t size = which || most == 0 ? -1 : ::readlink("/proc/self/exe", bytes, sizeof bytes);
    if (size <= 0)
        return std::wstring();
    const std::string_view name(bytes, static_cast<std::size_t>(size));
    return codepage::decode(codepage::utf8, name).value_or(std::wstring()).substr(0, most - 1);
}

std::optional<std::span<const unsigned char>> resource(HINSTANCE, int, const wchar_t*)
{
    return std::nullopt;
}
} // namespace platform::module

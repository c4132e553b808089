#include "platform/registry.h"

#include <algorithm>

namespace platform::registry
{
namespace
{
/// The ASCII letters of root names, nothing else, have another case.
bool is_name(std::wstring_view text, std::wstring_view name)
{
    return std::equal(text.begin(), text.end(), name.begin(), name.end(), [](wchar_t a, wchar_t b) {
        return (a >= L'a' && a <= L'z' ? static_cast<wchar_t>(a - 0x20) : a) == b;
    });
}
} // namespace

std::optional<Root> root_by_name(std::wstring_view name)
{
    for (const RootName& row : root_names)
        if (is_name(name, row.name))
            return row.root;
    return std::nullopt;
}
} // namespace platform::registry

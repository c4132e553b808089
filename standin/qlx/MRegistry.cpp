#include "qlx/MRegistry.h"

#include "platform/codepage.h"
#include "platform/registry.h"
#include "qlx/HostKey.h"

#include <memory>
#include <string>
#include <type_traits>

namespace registry = platform::registry;

namespace qlx::lib
{
namespace
{
struct key_closer
{
    void operator()(HKEY key) const { registry::close(key); }
};
using unique_key = std::unique_ptr<std::remove_pointer_t<HKEY>, key_closer>;

CString& registered_key()
{
    static CString key;
    return key;
}

unique_key open_path(const std::wstring& path)
{
    const std::size_t cut = path.find(L'\\');
    const auto root = registry::root_by_name(path.substr(0, cut));
    if (!root || cut == std::wstring::npos)
        return nullptr;
    return unique_key(registry::open(registry::root(*root), path.c_str() + cut + 1));
}
} // namespace

CString MRegistry::MyGetRegistryKey()
{
    return registered_key().IsEmpty() ? application_key() : registered_key();
}

int MRegistry::MyGetProfileString(const wchar_t* path, const wchar_t* valueName, CString& text)
{
    const unique_key key = open_path(path ? path : L"");
    std::size_t size = 0;
    if (!key || !registry::query(key.get(), valueName, nullptr, size))
        return 0;
    std::string bytes(size + 1, '\0'); // one more: a pointer to nothing would ask for the size again
    if (!registry::query(key.get(), valueName, bytes.data(), size))
        return 0;
    bytes.resize(size);
    text = platform::codepage::from_utf16le(bytes).c_str();
    return 1;
}

void MRegistry::SetRegistryKey(const wchar_t* key)
{
    CString& registered = registered_key();
    registered = key;
    if (!registered.IsEmpty() && registered[registered.GetLength() - 1] != L'\\')
        registered += L'\\';
}
} // namespace qlx::lib

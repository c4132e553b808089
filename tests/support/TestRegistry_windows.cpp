#include "tests/support/TestRegistry.h"

#include <stdexcept>
#include <vector>
#include <windows.h>

namespace
{
struct Value
{
    std::wstring name;
    DWORD type;
    std::vector<BYTE> data;
};

/// A copy of a key and of all below it.
struct Branch
{
    std::wstring name;
    std::vector<Value> values;
    std::vector<Branch> branches;
};

Branch read_branch(HKEY key, const std::wstring& name)
{
    Branch branch{name, {}, {}};
    std::wstring text(16384, L'\0');
    DWORD size = static_cast<DWORD>(text.size()), type = 0, bytes = 0;
    for (DWORD i = 0; ::RegEnumValueW(key, i, text.data(), &size, nullptr, &type, nullptr, &bytes) == 0; ++i)
    {
        Value value{text.substr(0, size), type, std::vector<BYTE>(bytes)};
        ::RegQueryValueExW(key, value.name.c_str(), nullptr, nullptr, value.data.data(), &bytes);
        branch.values.push_back(value);
        size = static_cast<DWORD>(text.size());
        bytes = 0;
    }
    size = static_cast<DWORD>(text.size());
    for (DWORD i = 0; ::RegEnumKeyExW(key, i, text.data(), &size, nullptr, nullptr, nullptr, nullptr) == 0;
         ++i)
    {
        HKEY below = nullptr;
        if (::RegOpenKeyExW(key, text.c_str(), 0, KEY_READ, &below) == 0)
        {
            branch.branches.push_back(read_branch(below, text.substr(0, size)));
            ::RegCloseKey(below);
        }
        size = static_cast<DWORD>(text.size());
    }
    return branch;
}

void write_branch(HKEY parent, const Branch& branch)
{
    HKEY key = nullptr;
    if (::RegCreateKeyExW(parent, branch.name.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr) != 0)
        return;
    for (const Value& value : branch.values)
        ::RegSetValueExW(key, value.name.c_str(), 0, value.type, value.data.data(),
                         static_cast<DWORD>(value.data.size()));
    for (const Branch& below : branch.branches)
        write_branch(key, below);
    ::RegCloseKey(key);
}

struct Borrowed
{
    HKEY root;
    std::wstring path;
    bool was_there;
    Branch content;
};

std::wstring fresh_name()
{
    static int count = 0;
    return L"TarvoTest-" + std::to_wstring(::GetCurrentProcessId()) + L"-" + std::to_wstring(++count);
}
} // namespace

struct TestRegistry::State
{
    std::vector<Borrowed> borrowed;
};

TestRegistry::TestRegistry() : m_strName(fresh_name()), m_pState(new State)
{
    HKEY key = nullptr;
    if (::RegOpenKeyExW(HKEY_CURRENT_USER, (L"Software\\" + m_strName).c_str(), 0, KEY_READ, &key) == 0)
    {
        ::RegCloseKey(key);
        throw std::runtime_error("the test's key is there already");
    }
}

TestRegistry::~TestRegistry()
{
    // Its own keys, also where an application path puts them below the local machine.
    for (const HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE})
        ::RegDeleteTreeW(root, (L"Software\\" + m_strName).c_str());
    // NOLINTNEXTLINE(modernize-loop-convert): backwards
    for (auto it = m_pState->borrowed.rbegin(); it != m_pState->borrowed.rend(); ++it)
    {
        ::RegDeleteTreeW(it->root, it->path.c_str());
        if (it->was_there)
            write_branch(it->root, it->content);
    }
}

void TestRegistry::borrow(const std::wstring& path)
{
    const std::size_t cut = path.find(L'\\');
    const bool machine = path.substr(0, cut) == L"HKEY_LOCAL_MACHINE";
    if (cut == std::wstring::npos || (!machine && path.substr(0, cut) != L"HKEY_CURRENT_USER"))
        throw std::invalid_argument("borrow takes a full key path");
    Borrowed entry{machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER, path.substr(cut + 1), false, {}};
    HKEY key = nullptr;
    if (::RegOpenKeyExW(entry.root, entry.path.c_str(), 0, KEY_READ, &key) == 0)
    {
        entry.was_there = true;
        entry.content = read_branch(key, entry.path);
        ::RegCloseKey(key);
        ::RegDeleteTreeW(entry.root, entry.path.c_str());
    }
    m_pState->borrowed.push_back(std::move(entry));
}

#pragma once

#include <memory>
#include <string>

/// A registry for one test, in which nothing of the user's is touched. Natively it is a new file; on
/// Windows it is the system's, where the test uses a key of its own and borrows the fixed keys that it
/// cannot choose.
class TestRegistry
{
public:
    TestRegistry();
    ~TestRegistry();
    TestRegistry(const TestRegistry&) = delete;
    TestRegistry& operator=(const TestRegistry&) = delete;

    /// A name that no other test uses at the same time ("TarvoTest-412-1").
    std::wstring name() const { return m_strName; }
    /// "HKEY_CURRENT_USER\Software\" and the name. Not created; removed at the end with all below.
    std::wstring key() const { return L"HKEY_CURRENT_USER\\Software\\" + m_strName; }

    /// Makes the key of this full path missing until the object goes, which puts back what was there.
    void borrow(const std::wstring& path);

private:
    struct State;
    std::wstring m_strName;
    std::unique_ptr<State> m_pState;
};

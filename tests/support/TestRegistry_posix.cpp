#include "tests/support/TestRegistry.h"

#include "tests/support/TempFolder.h"

#include <cstdlib>
#include <optional>
#include <unistd.h>

struct TestRegistry::State
{
    TempFolder folder;
    std::optional<std::string> before;
};

TestRegistry::TestRegistry() : m_strName(L"TarvoTest-" + std::to_wstring(::getpid())), m_pState(new State)
{
    if (const char* value = std::getenv("TARVO_REGISTRY"))
        m_pState->before = value;
    ::setenv("TARVO_REGISTRY", narrow(m_pState->folder / L"registry").c_str(), 1);
}

TestRegistry::~TestRegistry()
{
    if (m_pState->before)
        ::setenv("TARVO_REGISTRY", m_pState->before->c_str(), 1);
    else
        ::unsetenv("TARVO_REGISTRY");
}

void TestRegistry::borrow(const std::wstring&) {}

#include "tarvo/settings/Registry.h"

#include "platform/file.h"
#include "tests/support/Child.h"
#include "tests/support/TestHost.h"
#include "tests/support/TestRegistry.h"

#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

TEST(RegistryPosixTest, FailedWriteUnderTheMachineDoesNotMatter)
{
    TestRegistry own;
    const TestHost host(L"Company", L"Program");
    ASSERT_EQ(CRegistry::WriteProfileInt(CRegistry::GetRegistryAppPath(0) + L"\\Sec", L"n", 1), 1);
    struct stat info = {};
    ASSERT_EQ(::stat(std::getenv("TARVO_REGISTRY"), &info), 0);
    const int nResult = in_child([&] {
        // The file may not grow: no key of the machine can be made, but the user's number can change.
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{static_cast<rlim_t>(info.st_size), static_cast<rlim_t>(info.st_size)};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        return CRegistry::AppWriteProfileInt(L"Sec", L"n", 2);
    });
    EXPECT_EQ(nResult, 1);
    int nValue = 0;
    EXPECT_EQ(CRegistry::AppGetProfileInt(L"Sec", L"n", 42), 2);
    EXPECT_EQ(CRegistry::GetProfileIntW(CRegistry::GetRegistryAppPath(1) + L"\\Sec", L"n", nValue), 0);
}

TEST(RegistryPosixTest, FailedWriteUnderTheUserIsTheResult)
{
    TestRegistry own;
    const TestHost host(L"Company", L"Program");
    ::mkdir(std::getenv("TARVO_REGISTRY"), 0755); // nothing can be kept
    EXPECT_EQ(CRegistry::AppWriteProfileInt(L"Sec", L"n", 2), 0);
    EXPECT_EQ(CRegistry::AppWriteProfileString(L"Sec", L"s", L"x", 0), 0);
    EXPECT_EQ(CRegistry::AppGetProfileInt(L"Sec", L"n", 42), 42);
    EXPECT_EQ(CRegistry::AppGetProfileString(L"Sec", L"s", L"default", 0), L"default");
}

#include "tests/support/Self.h"

#include "tests/support/Child.h"

#include <cstdlib>
#include <string>

int run_self(const char* filter)
{
    const std::string argument = std::string("--gtest_filter=") + filter;
    return in_child([&] {
        ::setenv("TARVO_TEST_CHILD", "1", 1);
        ::execl("/proc/self/exe", "test", argument.c_str(), "--gtest_brief=1", static_cast<char*>(nullptr));
        return 255;
    });
}

bool is_run_by_self() { return std::getenv("TARVO_TEST_CHILD") != nullptr; }

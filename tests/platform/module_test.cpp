#include "platform/module.h"

#include "platform/file.h"

#include <gtest/gtest.h>

namespace module = platform::module;

TEST(Module, PathOfTheProgramNamesThisTest)
{
    const std::wstring path = module::path(nullptr, 1024);
    EXPECT_NE(path.find(L"platform_test"), std::wstring::npos);
    EXPECT_TRUE(platform::file::exists(path.c_str()));
}

TEST(Module, PathIsCutOneBelowTheRoomGiven)
{
    const std::wstring path = module::path(nullptr, 1024);
    EXPECT_EQ(module::path(nullptr, path.size() + 1), path);
    EXPECT_EQ(module::path(nullptr, path.size()), path.substr(0, path.size() - 1));
    EXPECT_EQ(module::path(nullptr, 4), path.substr(0, 3));
    EXPECT_EQ(module::path(nullptr, 1), L"");
    EXPECT_EQ(module::path(nullptr, 0), L"");
}

TEST(Module, UnknownModuleHasNeitherPathNorResources)
{
    int nothing = 0;
    const auto unknown = reinterpret_cast<HINSTANCE>(&nothing);
    EXPECT_EQ(module::path(unknown, 1024), L"");
    EXPECT_EQ(module::resource(nullptr, 4711, L"NOSUCHTYPE").has_value(), false);
}

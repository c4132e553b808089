#include "platform/file.h"

#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace file = platform::file;
using file::Written;

TEST(FileWindows, PathBeyondTheClassicLimitWorksInEveryOperation)
{
    const TempFolder folder;
    std::wstring deep = LR"(\\?\)" + folder.path();
    for (int i = 0; i < 6; ++i)
    {
        deep += L"\\" + std::wstring(100, static_cast<wchar_t>(L'a' + i));
        ASSERT_TRUE(::CreateDirectoryW(deep.c_str(), nullptr));
    }
    const std::wstring path = deep.substr(4) + L"\\file.txt";
    ASSERT_GT(path.size(), 600u);
    EXPECT_EQ(file::write_whole(path.c_str(), "one"), Written::ok);
    EXPECT_EQ(file::replace_whole(path.c_str(), "two"), Written::ok);
    EXPECT_TRUE(file::exists(path.c_str()));
    EXPECT_EQ(file::read_whole(path.c_str(), 9), "two");
    EXPECT_NE(file::open(path.c_str(), "rb"), nullptr);
    EXPECT_TRUE(file::remove(path.c_str()));
    for (; deep.size() > folder.path().size() + 4; deep.resize(deep.size() - 101))
        EXPECT_TRUE(::RemoveDirectoryW(deep.c_str()));
}

TEST(FileWindows, ReadOnlyFileIsRefusedAndKept)
{
    const TempFolder folder;
    const std::wstring path = folder / L"a";
    ASSERT_EQ(file::write_whole(path.c_str(), "old"), Written::ok);
    ASSERT_TRUE(::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY));
    EXPECT_EQ(file::write_whole(path.c_str(), "new"), Written::not_opened);
    EXPECT_EQ(file::replace_whole(path.c_str(), "new"), Written::not_opened);
    EXPECT_EQ(file::read_whole(path.c_str(), 9), "old");
    EXPECT_EQ(folder.count(), 1);
    ::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST(FileWindows, DeviceIsWrittenInPlaceAndNotRead)
{
    EXPECT_EQ(file::write_whole(L"NUL", "x"), Written::ok);
    EXPECT_EQ(file::replace_whole(L"NUL", "x"), Written::ok);
    EXPECT_EQ(file::read_whole(L"NUL", 9), std::nullopt);
}

TEST(FileWindows, FileThatAnotherProgramHoldsIsReadWhenItShares)
{
    const TempFolder folder;
    const std::wstring path = folder / L"a";
    const file::stream writer = file::open(path.c_str(), "wb");
    std::fputs("text", writer.get());
    std::fflush(writer.get());
    EXPECT_EQ(file::read_whole(path.c_str(), 9), "text");
}

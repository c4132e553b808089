#include "platform/rawfile.h"

#include "platform/file.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <string>

namespace rawfile = platform::rawfile;

TEST(rawfile, MissingFileIsNotFoundAndAMissingFolderToo)
{
    const TempFolder folder;
    rawfile::Error error;
    EXPECT_EQ(rawfile::open((folder / L"missing").c_str(), {}, error), rawfile::none);
    EXPECT_EQ(error.failure, rawfile::Failure::not_found);
    EXPECT_TRUE(error);
    EXPECT_FALSE(rawfile::status((folder / L"missing").c_str()));
}

TEST(rawfile, PositionBehindTheEndIsFilledWithZeros)
{
    const TempFolder folder;
    const std::wstring path = folder / L"gap";
    rawfile::Mode mode;
    mode.write = mode.create = true;
    rawfile::Error error;
    const rawfile::handle h = rawfile::open(path.c_str(), mode, error);
    EXPECT_EQ(rawfile::seek(h, 3, rawfile::From::begin, error), 3u);
    EXPECT_TRUE(rawfile::write(h, "x", 1, error));
    EXPECT_EQ(rawfile::length(h, error), 4u);
    EXPECT_TRUE(rawfile::flush(h, error));
    EXPECT_FALSE(error);
    rawfile::seek(h, -5, rawfile::From::current, error);
    EXPECT_EQ(error.failure, rawfile::Failure::bad_seek);
    error = {};
    EXPECT_TRUE(rawfile::close(h, error));
    EXPECT_EQ(platform::file::read_whole(path.c_str(), 10), std::string("\0\0\0x", 4));
}

TEST(rawfile, RenamingOntoAFileIsRefused)
{
    const TempFolder folder;
    const std::wstring a = folder / L"a";
    const std::wstring b = folder / L"b";
    platform::file::write_whole(a.c_str(), "a");
    platform::file::write_whole(b.c_str(), "b");
    rawfile::Error error;
    EXPECT_FALSE(rawfile::rename(a.c_str(), b.c_str(), error));
    EXPECT_EQ(error.failure, rawfile::Failure::already_there);
    EXPECT_EQ(platform::file::read_whole(b.c_str(), 10), "b");
}

TEST(rawfile, FullPathLeavesNoDots)
{
    const TempFolder folder;
    const std::wstring dots = folder / L"x";
    EXPECT_EQ(
        rawfile::full_path((folder.path() + platform::file::separator + L"." + platform::file::separator +
                            L"y" + platform::file::separator + L".." + platform::file::separator + L"x")
                               .c_str()),
        dots);
}

TEST(rawfile, PathLongerThanTheClassicLimitIsOpened)
{
    const TempFolder folder;
    const std::wstring path = folder / std::wstring(220, L'n');
    ASSERT_EQ(platform::file::write_whole(path.c_str(), "long"), platform::file::Written::ok);
    rawfile::Error error;
    const rawfile::handle h = rawfile::open(path.c_str(), {}, error);
    ASSERT_NE(h, rawfile::none);
    rawfile::close(h, error);
    ASSERT_TRUE(rawfile::status(path.c_str()));
    EXPECT_EQ(rawfile::status(path.c_str())->length, 4u);
    EXPECT_TRUE(rawfile::remove(path.c_str(), error));
    EXPECT_FALSE(error);
}

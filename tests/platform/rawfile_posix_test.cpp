#include "platform/rawfile.h"

#include <gtest/gtest.h>

#include <cerrno>

using platform::rawfile::Failure;

TEST(rawfile, ErrorNumbersOfTheSystemHaveKinds)
{
    const struct
    {
        int number;
        Failure failure;
    } rows[] = {
        {0, Failure::no_failure},          {ENOENT, Failure::not_found},     {ENOTDIR, Failure::bad_path},
        {ENAMETOOLONG, Failure::bad_path}, {EMFILE, Failure::too_many_open}, {EACCES, Failure::access_denied},
        {EROFS, Failure::access_denied},   {EISDIR, Failure::access_denied}, {EBADF, Failure::bad_handle},
        {EINVAL, Failure::bad_seek},       {EIO, Failure::hardware},         {EBUSY, Failure::sharing},
        {EAGAIN, Failure::locked},         {ENOSPC, Failure::disk_full},     {EEXIST, Failure::already_there},
        {ENOMEM, Failure::other},
    };
    for (const auto& row : rows)
        EXPECT_EQ(platform::rawfile::failure_of(row.number), row.failure) << row.number;
}

TEST(rawfile, FullDiskIsToldWhenTheBytesAreWritten)
{
    platform::rawfile::Error error;
    platform::rawfile::Mode mode;
    mode.read = false;
    mode.write = true;
    const auto h = platform::rawfile::open(L"/dev/full", mode, error);
    ASSERT_NE(h, platform::rawfile::none);
    EXPECT_FALSE(platform::rawfile::write(h, "x", 1, error));
    EXPECT_EQ(error.failure, Failure::disk_full);
    platform::rawfile::close(h, error);
}

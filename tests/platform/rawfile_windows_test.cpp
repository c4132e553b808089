#include "platform/rawfile.h"

#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <windows.h>

using platform::rawfile::Failure;

TEST(rawfile, ErrorNumbersOfTheSystemHaveKinds)
{
    const struct
    {
        long number;
        Failure failure;
    } rows[] = {
        {NO_ERROR, Failure::no_failure},
        {ERROR_FILE_NOT_FOUND, Failure::not_found},
        {ERROR_PATH_NOT_FOUND, Failure::bad_path},
        {ERROR_INVALID_NAME, Failure::bad_path},
        {ERROR_TOO_MANY_OPEN_FILES, Failure::too_many_open},
        {ERROR_ACCESS_DENIED, Failure::access_denied},
        {ERROR_INVALID_HANDLE, Failure::bad_handle},
        {ERROR_NEGATIVE_SEEK, Failure::bad_seek},
        {ERROR_CRC, Failure::hardware},
        {ERROR_SHARING_VIOLATION, Failure::sharing},
        {ERROR_LOCK_VIOLATION, Failure::locked},
        {ERROR_DISK_FULL, Failure::disk_full},
        {ERROR_CANNOT_MAKE, Failure::directory_full},
        {ERROR_CURRENT_DIRECTORY, Failure::current_directory},
        {ERROR_FILE_EXISTS, Failure::already_there},
        {ERROR_OUTOFMEMORY, Failure::other},
    };
    for (const auto& row : rows)
        EXPECT_EQ(platform::rawfile::failure_of(row.number), row.failure) << row.number;
}

TEST(rawfile, SharingIsEnforced)
{
    const TempFolder folder;
    const std::wstring path = folder / L"one";
    platform::rawfile::Error error;
    platform::rawfile::Mode mode;
    mode.write = mode.create = true;
    mode.share_write = false;
    const auto first = platform::rawfile::open(path.c_str(), mode, error);
    ASSERT_NE(first, platform::rawfile::none);
    EXPECT_EQ(platform::rawfile::open(path.c_str(), mode, error), platform::rawfile::none);
    EXPECT_EQ(error.failure, Failure::sharing);
    platform::rawfile::close(first, error);
}

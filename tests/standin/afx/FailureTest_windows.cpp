#include <afx.h>

#include <gtest/gtest.h>

namespace
{
const struct
{
    LONG number;
    int cause;
} error_numbers[] = {
    {ERROR_FILE_NOT_FOUND, CFileException::fileNotFound},
    {ERROR_PATH_NOT_FOUND, CFileException::badPath},
    {ERROR_TOO_MANY_OPEN_FILES, CFileException::tooManyOpenFiles},
    {ERROR_ACCESS_DENIED, CFileException::accessDenied},
    {ERROR_FILE_EXISTS, CFileException::accessDenied},
    {ERROR_INVALID_HANDLE, CFileException::invalidFile},
    {ERROR_CURRENT_DIRECTORY, CFileException::removeCurrentDir},
    {ERROR_CANNOT_MAKE, CFileException::directoryFull},
    {ERROR_SEEK, CFileException::badSeek},
    {ERROR_CRC, CFileException::hardIO},
    {ERROR_SHARING_VIOLATION, CFileException::sharingViolation},
    {ERROR_LOCK_VIOLATION, CFileException::lockViolation},
    {ERROR_DISK_FULL, CFileException::diskFull},
    {ERROR_OUTOFMEMORY, CFileException::genericException},
};
} // namespace

TEST(CFileException, SystemErrorsHaveCauses)
{
    for (const auto& row : error_numbers)
        EXPECT_EQ(CFileException::OsErrorToException(row.number), row.cause) << row.number;
}

#include <afx.h>

#include "tests/standin/afx/Thrown.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace
{
const struct
{
    int number;
    int cause;
} error_numbers[] = {
    {ENOENT, CFileException::fileNotFound},     {ENOTDIR, CFileException::badPath},
    {EMFILE, CFileException::tooManyOpenFiles}, {EACCES, CFileException::accessDenied},
    {EEXIST, CFileException::accessDenied},     {EBADF, CFileException::invalidFile},
    {EINVAL, CFileException::badSeek},          {EIO, CFileException::hardIO},
    {EBUSY, CFileException::sharingViolation},  {EAGAIN, CFileException::lockViolation},
    {ENOSPC, CFileException::diskFull},         {ENOMEM, CFileException::genericException},
};

struct FullDisk : testing::Test
{
    FullDisk() { EXPECT_TRUE(file.Open(L"/dev/full", CFile::modeWrite)); }
    CStdioFile file;
};
} // namespace

TEST(CFileException, SystemErrorsHaveCauses)
{
    for (const auto& row : error_numbers)
        EXPECT_EQ(CFileException::OsErrorToException(row.number), row.cause) << row.number;
}

TEST_F(FullDisk, IsToldWhenTheHeldBackTextIsWrittenAndTheFileIsClosedAllTheSame)
{
    file.WriteString(L"text");
    EXPECT_EQ(thrown_by([&] { file.Close(); }), L"CFileException");
    EXPECT_EQ(file.m_hFile, CFile::hFileNull);
}

TEST_F(FullDisk, IsNotToldByTheDestructor) { file.WriteString(L"text"); }

TEST_F(FullDisk, IsToldOnceForTheSameText)
{
    file.WriteString(L"text");
    EXPECT_EQ(thrown_by([&] { file.Flush(); }), L"CFileException");
    EXPECT_EQ(thrown_by([&] { file.Close(); }), L"nothing");
}

TEST_F(FullDisk, LongTextIsWrittenAtOnce)
{
    EXPECT_EQ(thrown_by([&] { file.WriteString(CString(L'x', 5000)); }), L"CFileException");
}

TEST(CStdioFile, ReadingWhatCannotBeReadThrows)
{
    CStdioFile file;
    ASSERT_TRUE(file.Open(L"/proc/self/mem", CFile::modeRead)); // nothing is mapped at its start
    CString line;
    EXPECT_EQ(thrown_by([&] { file.ReadString(line); }), L"CFileException");
    wchar_t one[1];
    EXPECT_EQ(thrown_by([&] { file.ReadString(one, 0); }), L"CInvalidArgException");
}

TEST(Assert, FailureNamesFileAndLineAndEndsTheProgram)
{
    EXPECT_DEATH(AfxAssertFailedLine("beam.cpp", 42), "Assertion failed: beam.cpp, line 42");
}

TEST(Trace, WritesFormattedTextToTheErrorStream)
{
    testing::internal::CaptureStderr();
    AfxTrace(L"%s %d\n", L"\xAC00", 7);
    AfxTrace("%s\n", "narrow");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "\xEA\xB0\x80 7\nnarrow\n");
}

#include <afx.h>

#include "platform/file.h"
#include "tests/standin/afx/Thrown.h"
#include "tests/support/TempFolder.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using namespace std::string_literals;

namespace
{
/// The cause of the CFileException that \p f throws, or CFileException::none.
template <class F>
int cause_of(F f)
{
    try
    {
        f();
    }
    catch (CFileException* e)
    {
        const int cause = e->m_cause;
        e->Delete();
        return cause;
    }
    return CFileException::none;
}

/// One file in a folder of its own.
struct CFileTest : testing::Test
{
    void Put(const std::string& bytes) { platform::file::write_whole(path, bytes); }
    std::string Bytes() { return platform::file::read_whole(path, 1 << 20).value_or("(no file)"); }

    TempFolder folder;
    CString path = (folder / L"lines.v1.txt").c_str();
};

struct CStdioFileTest : CFileTest
{
};
} // namespace

TEST_F(CFileTest, CreatesWritesSeeksAndReadsBack)
{
    CFile file(path, CFile::modeCreate | CFile::modeReadWrite);
    file.Write("0123456789", 10);
    EXPECT_EQ(file.GetPosition(), 10u);
    EXPECT_EQ(file.Seek(-3, CFile::end), 7u);
    EXPECT_EQ(file.Seek(-5, CFile::current), 2u);
    char bytes[4] = {};
    EXPECT_EQ(file.Read(bytes, 3), 3u);
    EXPECT_STREQ(bytes, "234");
    EXPECT_EQ(file.SeekToEnd(), 10u);
    EXPECT_EQ(file.Read(bytes, 3), 0u);
    file.SeekToBegin();
    file.Write("ab", 2);
    file.Flush();
    EXPECT_EQ(file.GetLength(), 10u);
    file.Close();
    file.Close();
    EXPECT_EQ(file.m_hFile, CFile::hFileNull);
    EXPECT_EQ(Bytes(), "ab23456789");
}

TEST_F(CFileTest, SetLengthCutsAndLengthensWithZeros)
{
    Put("0123456789");
    CFile file(path, CFile::modeReadWrite);
    file.SetLength(3);
    EXPECT_EQ(file.GetPosition(), 3u);
    file.SetLength(5);
    file.Write("x", 1);
    file.Close();
    EXPECT_EQ(Bytes(), "012\0\0x"s);
}

TEST_F(CFileTest, CreationEmptiesAFileUnlessItIsToBeKept)
{
    Put("old");
    CFile(path, CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite).Close();
    EXPECT_EQ(Bytes(), "old");
    CFile(path, CFile::modeCreate | CFile::modeWrite).Close();
    EXPECT_EQ(Bytes(), "");
}

TEST_F(CFileTest, NameHasAPathATitleAndAnExtension)
{
    CFile file(path, CFile::modeCreate | CFile::modeWrite);
    EXPECT_EQ(file.GetFilePath(), path);
    EXPECT_EQ(file.GetFileName(), L"lines.v1.txt");
    EXPECT_EQ(file.GetFileTitle(), L"lines.v1");
    file.SetFilePath(L"x/.profile");
    EXPECT_EQ(file.GetFileTitle(), L".profile");
}

TEST_F(CFileTest, MissingFileIsAnAnswerOfOpenAndAnExceptionOfTheConstructor)
{
    CFile file;
    CFileException e;
    EXPECT_FALSE(file.Open(path, CFile::modeRead, &e));
    EXPECT_EQ(e.m_cause, CFileException::fileNotFound);
    EXPECT_EQ(e.m_strFileName, path);
    wchar_t text[256];
    EXPECT_TRUE(e.GetErrorMessage(text, 256));
    EXPECT_EQ(CString(text), path + L" was not found.");
    wchar_t cut[4];
    UINT help = 7;
    EXPECT_TRUE(e.GetErrorMessage(cut, 4, &help));
    EXPECT_EQ(CString(cut), path.Left(3));
    EXPECT_EQ(help, 0u);
    EXPECT_FALSE(file.Open(path, CFile::modeRead));
    EXPECT_EQ(cause_of([&] { CFile f(path, CFile::modeRead); }), CFileException::fileNotFound);
    EXPECT_EQ(cause_of([&] { CFile f(folder.path().c_str(), CFile::modeRead); }),
              CFileException::accessDenied);
}

TEST_F(CFileTest, WritingToAFileOpenedForReadingFails)
{
    Put("x");
    CFile file(path, CFile::modeRead | CFile::shareDenyNone);
    EXPECT_NE(cause_of([&] { file.Write("y", 1); }), CFileException::none);
    EXPECT_EQ(cause_of([&] { file.Seek(-1, CFile::begin); }), CFileException::badSeek);
    EXPECT_EQ(Bytes(), "x");
}

TEST_F(CFileTest, ClosedFileHasNoHandleToWorkWith)
{
    CFile file;
    char ch = 0;
    EXPECT_EQ(cause_of([&] { file.Read(&ch, 1); }), CFileException::invalidFile);
    EXPECT_EQ(cause_of([&] { file.GetLength(); }), CFileException::invalidFile);
    file.Flush();
    file.Abort();
}

TEST_F(CFileTest, DuplicateSharesThePosition)
{
    Put("abcd");
    CFile file(path, CFile::modeRead);
    const std::unique_ptr<CFile> second(file.Duplicate());
    char ch = 0;
    file.Read(&ch, 1);
    second->Read(&ch, 1);
    EXPECT_EQ(ch, 'b');
    EXPECT_EQ(second->GetFilePath(), path);
}

TEST_F(CFileTest, StatusRenameAndRemoveWorkByName)
{
    Put("12345");
    const CString other = (folder / L"other").c_str();
    CFileStatus status;
    EXPECT_TRUE(CFile::GetStatus(path, status));
    EXPECT_EQ(status.m_size, 5u);
    EXPECT_EQ(status.m_szFullName, path);
    EXPECT_EQ(status.m_attribute & CFile::directory, 0);
    EXPECT_TRUE(CFile::GetStatus(folder.path().c_str(), status));
    EXPECT_EQ(status.m_attribute & CFile::directory, CFile::directory);
    CFile::Rename(path, other);
    EXPECT_FALSE(CFile::GetStatus(path, status));
    Put("new");
    EXPECT_NE(cause_of([&] { CFile::Rename(path, other); }), CFileException::none);
    EXPECT_EQ(Bytes(), "new");
    CFile::Remove(other);
    EXPECT_EQ(cause_of([&] { CFile::Remove(other); }), CFileException::fileNotFound);
    CFile file(path, CFile::modeRead);
    EXPECT_TRUE(file.GetStatus(status));
    EXPECT_EQ(status.m_size, 3u);
}

TEST_F(CFileTest, LockedRangeIsRefusedToAnotherHandle)
{
    Put("0123456789");
    CFile first(path, CFile::modeReadWrite | CFile::shareDenyNone);
    CFile second(path, CFile::modeReadWrite | CFile::shareDenyNone);
    first.LockRange(2, 3);
    EXPECT_EQ(cause_of([&] { second.LockRange(4, 1); }), CFileException::lockViolation);
    first.UnlockRange(2, 3);
    second.LockRange(4, 1);
    second.UnlockRange(4, 1);
}

TEST_F(CStdioFileTest, TextLinesEndWithOneCharacterInTheProgramAndTwoInTheFile)
{
    CStdioFile file(path, CFile::modeCreate | CFile::modeWrite);
    file.WriteString(L"first\nsecond\n");
    file.Write("third\n", 6);
    EXPECT_EQ(file.GetPosition(), 22u);
    EXPECT_EQ(file.GetLength(), 22u);
    file.Close();
    EXPECT_EQ(Bytes(), "first\r\nsecond\r\nthird\r\n");

    CStdioFile back(path, CFile::modeRead);
    wchar_t line[100];
    EXPECT_EQ(back.ReadString(line, 100), line);
    EXPECT_EQ(CString(line), L"first\n");
    EXPECT_EQ(back.GetPosition(), 7u);
    CString str;
    EXPECT_TRUE(back.ReadString(str));
    EXPECT_EQ(str, L"second");
    char bytes[100] = {};
    EXPECT_EQ(back.Read(bytes, 100), 6u);
    EXPECT_STREQ(bytes, "third\n");
    EXPECT_FALSE(back.ReadString(str));
    EXPECT_EQ(str, L"");
    EXPECT_EQ(back.ReadString(line, 100), nullptr);
}

namespace
{
struct LineCase
{
    const char* name;
    UINT flags;
    std::string bytes;
    std::vector<CString> lines;
};
const LineCase line_cases[] = {
    {"empty file", 0, "", {}},
    {"no end at the last line", 0, "a\r\nb", {L"a", L"b"}},
    {"empty lines", 0, "\r\n\n", {L"", L""}},
    {"lone CR stays", 0, "a\rb\r\r\nc\r", {L"a\rb\r", L"c\r"}},
    {"text ends at Ctrl+Z",
     0,
     "a\nb\x1A"
     "c\n",
     {L"a", L"b"}},
    {"binary keeps CR and Ctrl+Z", CFile::typeBinary, "a\r\nb\x1A\n", {L"a\r", L"b\x1A"}},
    {"UTF-16", CFile::typeUnicode, "a\0\r\0\n\0\x0A\x0D\n\0b\0"s, {L"a", L"\x0D0A", L"b"}},
    {"UTF-16 binary", CFile::typeUnicode | CFile::typeBinary, "a\0\r\0\n\0b\0"s, {L"a\r", L"b"}},
};
} // namespace

TEST_F(CStdioFileTest, LinesComeAsTheModeSays)
{
    for (const LineCase& c : line_cases)
    {
        SCOPED_TRACE(c.name);
        Put(c.bytes);
        CStdioFile file(path, CFile::modeRead | c.flags);
        std::vector<CString> lines;
        for (CString str; file.ReadString(str);)
            lines.push_back(str);
        EXPECT_EQ(lines, c.lines);
    }
}

TEST_F(CStdioFileTest, LineOfAnyLengthComesWholeOrInParts)
{
    const std::string a(100000, 'a');
    Put(a + "\r\nb\r\n");
    CStdioFile file(path, CFile::modeRead);
    CString str;
    EXPECT_TRUE(file.ReadString(str));
    EXPECT_EQ(str.GetLength(), 100000);
    EXPECT_TRUE(file.ReadString(str));
    EXPECT_EQ(str, L"b");
    file.SeekToBegin();
    std::vector<wchar_t> part(60001);
    EXPECT_NE(file.ReadString(part.data(), 60001), nullptr);
    EXPECT_EQ(CString(part.data()).GetLength(), 60000);
    EXPECT_NE(file.ReadString(part.data(), 60001), nullptr);
    EXPECT_EQ(CString(part.data()).GetLength(), 40001);
    EXPECT_NE(file.ReadString(part.data(), 2), nullptr);
    EXPECT_EQ(CString(part.data()), L"b");
    EXPECT_NE(file.ReadString(part.data(), 2), nullptr);
    EXPECT_EQ(CString(part.data()), L"\n");
    EXPECT_EQ(file.ReadString(part.data(), 2), nullptr);
}

TEST_F(CStdioFileTest, WideTextIsWrittenAsUtf16WithoutAMark)
{
    CStdioFile file(path, CFile::modeCreate | CFile::modeWrite | CFile::typeUnicode);
    file.WriteString(L"\xAC00\n");
    file.Close();
    EXPECT_EQ(Bytes(), "\x00\xAC\r\0\n\0"s);
}

TEST_F(CStdioFileTest, ReadingAndWritingTakeTurnsAtOnePosition)
{
    Put("one\r\ntwo\r\nthree\r\n");
    CStdioFile file(path, CFile::modeReadWrite | CFile::shareDenyNone);
    CString str;
    EXPECT_TRUE(file.ReadString(str));
    EXPECT_EQ(file.GetPosition(), 5u);
    file.WriteString(L"TWO");
    file.SeekToBegin();
    file.ReadString(str);
    file.ReadString(str);
    EXPECT_EQ(str, L"TWO");
    file.SetLength(3);
    file.WriteString(L"!");
    file.Flush();
    EXPECT_EQ(Bytes(), "one!");
}

TEST_F(CStdioFileTest, DestructionWritesWhatWasHeldBackAndAbortDropsIt)
{
    {
        CStdioFile file(path, CFile::modeCreate | CFile::modeWrite);
        file.WriteString(L"kept");
    }
    EXPECT_EQ(Bytes(), "kept");
    CStdioFile file(path, CFile::modeCreate | CFile::modeWrite);
    file.WriteString(L"dropped");
    file.Abort();
    EXPECT_EQ(Bytes(), "");
}

TEST_F(CStdioFileTest, RefusesWhatBufferedFilesCannotDo)
{
    CStdioFile file(path, CFile::modeCreate | CFile::modeWrite);
    EXPECT_EQ(thrown_by([&] { static_cast<void>(file.Duplicate()); }), L"CNotSupportedException");
    EXPECT_EQ(thrown_by([&] { file.LockRange(0, 1); }), L"CNotSupportedException");
    EXPECT_EQ(thrown_by([&] { file.UnlockRange(0, 1); }), L"CNotSupportedException");
    EXPECT_EQ(cause_of([&] { CStdioFile missing(path + L"x", CFile::modeRead); }),
              CFileException::fileNotFound);
    EXPECT_EQ(thrown_by([&] { file.WriteString(nullptr); }), L"CInvalidArgException");
}

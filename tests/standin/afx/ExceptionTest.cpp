#include <afx.h>

#include "tests/standin/afx/Thrown.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

namespace
{
template <class F>
CString text_of(F f)
{
    wchar_t text[200] = L"before";
    try
    {
        f();
    }
    catch (CException* e)
    {
        const BOOL bText = e->GetErrorMessage(text, 200);
        EXPECT_EQ(bText != FALSE, *text != 0);
        EXPECT_FALSE(e->GetErrorMessage(nullptr, 200));
        EXPECT_FALSE(e->GetErrorMessage(text, 0));
        e->Delete();
    }
    return text;
}

const struct
{
    int cause;
    const wchar_t* text;
} file_causes[] = {
    {CFileException::none, L"No error occurred."},
    {CFileException::genericException, L"An unspecified error occurred while accessing a.txt."},
    {CFileException::fileNotFound, L"a.txt was not found."},
    {CFileException::badPath, L"a.txt contains an invalid path."},
    {CFileException::tooManyOpenFiles, L"a.txt could not be opened because there are too many open files."},
    {CFileException::accessDenied, L"Access to a.txt was denied."},
    {CFileException::invalidFile, L"An invalid file handle was associated with a.txt."},
    {CFileException::removeCurrentDir, L"a.txt could not be removed because it is the current directory."},
    {CFileException::directoryFull, L"a.txt could not be created because the directory is full."},
    {CFileException::badSeek, L"Seek failed on a.txt."},
    {CFileException::hardIO, L"A hardware I/O error was reported while accessing a.txt."},
    {CFileException::sharingViolation, L"A sharing violation occurred while accessing a.txt."},
    {CFileException::lockViolation, L"A locking violation occurred while accessing a.txt."},
    {CFileException::diskFull, L"Disk full while accessing a.txt."},
    {CFileException::endOfFile, L"An attempt was made to access a.txt past its end."},
    {99, L""},
};
} // namespace

TEST(CException, EachKindHasItsText)
{
    EXPECT_EQ(text_of(AfxThrowMemoryException), L"Out of memory.");
    EXPECT_EQ(text_of(AfxThrowNotSupportedException), L"The operation is not supported.");
    EXPECT_EQ(text_of(AfxThrowInvalidArgException), L"An argument is not valid.");
    EXPECT_EQ(text_of(AfxThrowResourceException), L"A required resource is not available.");
    EXPECT_EQ(text_of(AfxThrowUserException), L"");
}

TEST(CException, EachKindIsKnownByItsClass)
{
    EXPECT_EQ(thrown_by(AfxThrowMemoryException), L"CMemoryException");
    EXPECT_EQ(thrown_by(AfxThrowNotSupportedException), L"CNotSupportedException");
    EXPECT_EQ(thrown_by(AfxThrowResourceException), L"CResourceException");
    EXPECT_EQ(thrown_by(AfxThrowUserException), L"CUserException");
    EXPECT_EQ(thrown_by([] { ENSURE(1 + 1 == 3); }), L"CInvalidArgException");
    EXPECT_EQ(thrown_by([] { ENSURE(1 + 1 == 2); }), L"nothing");
}

TEST(CFileException, EachCauseNamesTheFile)
{
    for (const auto& row : file_causes)
        EXPECT_EQ(text_of([&] { AfxThrowFileException(row.cause, -1, L"a.txt"); }), row.text);
    EXPECT_EQ(text_of([] { AfxThrowFileException(CFileException::badSeek); }),
              L"Seek failed on an unnamed file.");
}

TEST(CFileException, KeepsTheSystemsNumber)
{
    try
    {
        CFileException::ThrowOsError(0, L"a.txt");
        FAIL();
    }
    catch (CFileException* e)
    {
        EXPECT_EQ(e->m_cause, CFileException::none);
        EXPECT_EQ(e->m_lOsError, 0);
        EXPECT_EQ(e->m_strFileName, L"a.txt");
        e->Delete();
    }
}

TEST(Downcast, GivesTheObjectOfItsKindAndNullOfAnother)
{
    CFileException e(CFileException::none);
    CObject* p = &e;
    EXPECT_EQ(DYNAMIC_DOWNCAST(CException, p), &e);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CMemoryException, p), nullptr);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CException, static_cast<CObject*>(nullptr)), nullptr);
    EXPECT_EQ(STATIC_DOWNCAST(CFileException, p), &e);
    EXPECT_FALSE(e.IsSerializable());
    ASSERT_VALID(p);
    int n = 0;
    VERIFY(++n == 1);
    EXPECT_EQ(n, 1) << "VERIFY evaluates in every build";
}

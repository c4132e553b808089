#include "afxfile.h"

#include "platform/rawfile.h"

using platform::rawfile::Failure;

IMPLEMENT_DYNAMIC(CFileException, CException)

namespace
{
struct Cause
{
    int cause;
    const wchar_t* text; // %s is the file
};

constexpr Cause causes[] = {
    {CFileException::none, L"No error occurred."},
    {CFileException::genericException, L"An unspecified error occurred while accessing %s."},
    {CFileException::fileNotFound, L"%s was not found."},
    {CFileException::badPath, L"%s contains an invalid path."},
    {CFileException::tooManyOpenFiles, L"%s could not be opened because there are too many open files."},
    {CFileException::accessDenied, L"Access to %s was denied."},
    {CFileException::invalidFile, L"An invalid file handle was associated with %s."},
    {CFileException::removeCurrentDir, L"%s could not be removed because it is the current directory."},
    {CFileException::directoryFull, L"%s could not be created because the directory is full."},
    {CFileException::badSeek, L"Seek failed on %s."},
    {CFileException::hardIO, L"A hardware I/O error was reported while accessing %s."},
    {CFileException::sharingViolation, L"A sharing violation occurred while accessing %s."},
    {CFileException::lockViolation, L"A locking violation occurred while accessing %s."},
    {CFileException::diskFull, L"Disk full while accessing %s."},
    {CFileException::endOfFile, L"An attempt was made to access %s past its end."},
};
} // namespace

CFileException::CFileException(int cause, LONG lOsError, LPCTSTR lpszArchiveName)
    : m_cause(cause), m_lOsError(lOsError), m_strFileName(lpszArchiveName)
{
}

int CFileException::OsErrorToException(LONG lOsError)
{
    switch (platform::rawfile::failure_of(lOsError))
    {
    case Failure::no_failure:
        return none;
    case Failure::not_found:
        return fileNotFound;
    case Failure::bad_path:
        return badPath;
    case Failure::too_many_open:
        return tooManyOpenFiles;
    case Failure::already_there:
    case Failure::access_denied:
        return accessDenied;
    case Failure::bad_handle:
        return invalidFile;
    case Failure::bad_seek:
        return badSeek;
    case Failure::hardware:
        return hardIO;
    case Failure::sharing:
        return sharingViolation;
    case Failure::locked:
        return lockViolation;
    case Failure::disk_full:
        return diskFull;
    case Failure::directory_full:
        return directoryFull;
    case Failure::current_directory:
        return removeCurrentDir;
    case Failure::other:
        break;
    }
    return genericException;
}

void CFileException::ThrowOsError(LONG lOsError, LPCTSTR lpszFileName)
{
    AfxThrowFileException(OsErrorToException(lOsError), lOsError, lpszFileName);
}

CString CFileException::ErrorText() const
{
    CString str;
    for (const Cause& row : causes)
        if (row.cause == m_cause)
            str.Format(row.text, m_strFileName.IsEmpty() ? L"an unnamed file" : m_strFileName.GetString());
    return str;
}

void AfxThrowFileException(int cause, LONG lOsError, LPCTSTR lpszFileName)
{
    throw new CFileException(cause, lOsError, lpszFileName);
}

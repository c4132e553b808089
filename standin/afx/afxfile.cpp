#include "afxfile.h"

#include "platform/rawfile.h"

#include <memory>
#include <utility>

namespace rawfile = platform::rawfile;

IMPLEMENT_DYNAMIC(CFile, CObject)

const HANDLE CFile::hFileNull = reinterpret_cast<HANDLE>(rawfile::none);

namespace
{
rawfile::handle raw(HANDLE h) { return reinterpret_cast<rawfile::handle>(h); }

void throw_if(const rawfile::Error& error, LPCTSTR file)
{
    if (error.failure == rawfile::Failure::bad_seek)
        AfxThrowFileException(CFileException::badSeek, static_cast<LONG>(error.number), file);
    if (error)
        CFileException::ThrowOsError(static_cast<LONG>(error.number), file);
}

rawfile::Mode mode_of(UINT flags)
{
    rawfile::Mode mode;
    const UINT access = flags & (CFile::modeWrite | CFile::modeReadWrite);
    mode.read = access != CFile::modeWrite;
    mode.write = access != CFile::modeRead;
    const UINT share = flags & 0x70;
    mode.share_read = share == CFile::shareDenyWrite || share == CFile::shareDenyNone;
    mode.share_write = share == CFile::shareDenyRead || share == CFile::shareDenyNone;
    mode.inherit = (flags & CFile::modeNoInherit) == 0;
    mode.create = (flags & CFile::modeCreate) != 0;
    mode.keep = (flags & CFile::modeNoTruncate) != 0;
    mode.write_through = (flags & CFile::osWriteThrough) != 0;
    return mode;
}

bool is_separator(wchar_t ch) { return ch == L'\\' || ch == L'/' || ch == L':'; }

CString name_of(const CString& path)
{
    int i = path.GetLength();
    while (i > 0 && !is_separator(path[i - 1]))
        --i;
    return path.Mid(i);
}

BYTE attributes(const rawfile::Status& s)
{
    return static_cast<BYTE>((s.read_only ? CFile::readOnly : CFile::normal) |
                             (s.folder ? CFile::directory : CFile::normal));
}
} // namespace

CFile::CFile(LPCTSTR lpszFileName, UINT nOpenFlags)
{
    CFileException e;
    if (!CFile::Open(lpszFileName, nOpenFlags, &e))
        AfxThrowFileException(e.m_cause, e.m_lOsError, e.m_strFileName);
}

CFile::~CFile()
{
    if (m_hFile != hFileNull && m_bCloseOnDelete)
        CFile::Abort();
}

BOOL CFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError)
{
    rawfile::Error error;
    const rawfile::handle h = rawfile::open(lpszFileName, mode_of(nOpenFlags), error);
    if (h == rawfile::none)
    {
        if (pError != nullptr)
        {
            pError->m_lOsError = static_cast<LONG>(error.number);
            pError->m_cause = CFileException::OsErrorToException(pError->m_lOsError);
            pError->m_strFileName = lpszFileName;
        }
        return FALSE;
    }
    m_hFile = reinterpret_cast<HANDLE>(h);
    m_bCloseOnDelete = TRUE;
    const std::wstring full = rawfile::full_path(lpszFileName);
    m_strFileName = full.empty() ? lpszFileName : full.c_str();
    return TRUE;
}

void CFile::Close()
{
    if (m_hFile == hFileNull)
        return;
    rawfile::Error error;
    rawfile::close(raw(std::exchange(m_hFile, hFileNull)), error);
    const CString strName = std::exchange(m_strFileName, CString());
    m_bCloseOnDelete = FALSE;
    throw_if(error, strName);
}

void CFile::Abort()
{
    if (m_hFile == hFileNull)
        return;
    rawfile::Error error;
    rawfile::close(raw(std::exchange(m_hFile, hFileNull)), error);
    m_strFileName.Empty();
    m_bCloseOnDelete = FALSE;
}

CFile* CFile::Duplicate() const
{
    rawfile::Error error;
    auto pFile = std::make_unique<CFile>();
    const rawfile::handle h = rawfile::duplicate(raw(m_hFile), error);
    throw_if(error, m_strFileName);
    pFile->m_hFile = reinterpret_cast<HANDLE>(h);
    pFile->m_bCloseOnDelete = TRUE;
    pFile->m_strFileName = m_strFileName;
    return pFile.release();
}

UINT CFile::Read(void* lpBuf, UINT nCount)
{
    rawfile::Error error;
    const std::size_t n = rawfile::read(raw(m_hFile), lpBuf, nCount, error);
    throw_if(error, m_strFileName);
    return static_cast<UINT>(n);
}

void CFile::Write(const void* lpBuf, UINT nCount)
{
    rawfile::Error error;
    rawfile::write(raw(m_hFile), lpBuf, nCount, error);
    throw_if(error, m_strFileName);
}

void CFile::Flush()
{
    if (m_hFile == hFileNull)
        return;
    rawfile::Error error;
    rawfile::flush(raw(m_hFile), error);
    throw_if(error, m_strFileName);
}

ULONGLONG CFile::Seek(LONGLONG lOff, UINT nFrom)
{
    if (nFrom > end)
        AfxThrowInvalidArgException();
    rawfile::Error error;
    const auto n = rawfile::seek(raw(m_hFile), lOff, static_cast<rawfile::From>(nFrom), error);
    throw_if(error, m_strFileName);
    return n;
}

ULONGLONG CFile::GetPosition() const
{
    rawfile::Error error;
    const auto n = rawfile::seek(raw(m_hFile), 0, rawfile::From::current, error);
    throw_if(error, m_strFileName);
    return n;
}

ULONGLONG CFile::GetLength() const
{
    rawfile::Error error;
    const auto n = rawfile::length(raw(m_hFile), error);
    throw_if(error, m_strFileName);
    return n;
}

void CFile::SetLength(ULONGLONG dwNewLen)
{
    rawfile::Error error;
    rawfile::set_length(raw(m_hFile), dwNewLen, error);
    throw_if(error, m_strFileName);
}

void CFile::LockRange(ULONGLONG dwPos, ULONGLONG dwCount)
{
    rawfile::Error error;
    rawfile::lock(raw(m_hFile), dwPos, dwCount, error);
    throw_if(error, m_strFileName);
}

void CFile::UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount)
{
    rawfile::Error error;
    rawfile::unlock(raw(m_hFile), dwPos, dwCount, error);
    throw_if(error, m_strFileName);
}

CString CFile::GetFileName() const { return name_of(GetFilePath()); }

CString CFile::GetFileTitle() const
{
    const CString strName = GetFileName();
    const int iDot = strName.ReverseFind(L'.');
    return iDot > 0 ? strName.Left(iDot) : strName;
}

BOOL CFile::GetStatus(CFileStatus& rStatus) const
{
    rStatus = CFileStatus();
    rawfile::Error error;
    rStatus.m_size = rawfile::length(raw(m_hFile), error);
    rStatus.m_szFullName = m_strFileName;
    if (const auto s = rawfile::status(m_strFileName))
        rStatus.m_attribute = attributes(*s);
    return !error;
}

BOOL CFile::GetStatus(LPCTSTR lpszFileName, CFileStatus& rStatus)
{
    rStatus = CFileStatus();
    const auto s = rawfile::status(lpszFileName);
    if (!s)
        return FALSE;
    rStatus.m_size = s->length;
    rStatus.m_attribute = attributes(*s);
    rStatus.m_szFullName = rawfile::full_path(lpszFileName).c_str();
    return TRUE;
}

void CFile::Rename(LPCTSTR lpszOldName, LPCTSTR lpszNewName)
{
    rawfile::Error error;
    rawfile::rename(lpszOldName, lpszNewName, error);
    throw_if(error, lpszOldName);
}

void CFile::Remove(LPCTSTR lpszFileName)
{
    rawfile::Error error;
    rawfile::remove(lpszFileName, error);
    throw_if(error, lpszFileName);
}

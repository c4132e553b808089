#include "afxfile.h"

#include "platform/codepage.h"

#include <algorithm>
#include <cwchar>

IMPLEMENT_DYNAMIC(CStdioFile, CFile)

namespace
{
constexpr UINT piece = 4096;
constexpr char text_end = 0x1A;
} // namespace

CStdioFile::CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags)
{
    CFileException e;
    if (!CStdioFile::Open(lpszFileName, nOpenFlags, &e))
        AfxThrowFileException(e.m_cause, e.m_lOsError, e.m_strFileName);
}

CStdioFile::~CStdioFile()
{
    try
    {
        if (m_bCloseOnDelete)
            CStdioFile::Close();
    }
    catch (CException* e) // a destructor has nobody to tell
    {
        e->Delete();
    }
}

BOOL CStdioFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError)
{
    m_bText = (nOpenFlags & typeBinary) == 0;
    m_bUnicode = (nOpenFlags & typeUnicode) != 0;
    m_strAhead.clear();
    m_nTaken = 0;
    m_strHeldBack.clear();
    return CFile::Open(lpszFileName, nOpenFlags, pError);
}

void CStdioFile::Close()
{
    try
    {
        WriteHeldBack();
    }
    catch (CException*) // the handle must not stay open
    {
        Abort();
        throw;
    }
    m_strAhead.clear();
    m_nTaken = 0;
    CFile::Close();
}

void CStdioFile::Abort()
{
    m_strHeldBack.clear();
    m_strAhead.clear();
    m_nTaken = 0;
    CFile::Abort();
}

CFile* CStdioFile::Duplicate() const { AfxThrowNotSupportedException(); }
void CStdioFile::LockRange(ULONGLONG, ULONGLONG) { AfxThrowNotSupportedException(); }
void CStdioFile::UnlockRange(ULONGLONG, ULONGLONG) { AfxThrowNotSupportedException(); }

// ---- the two buffers, of which at most one holds anything

void CStdioFile::WriteHeldBack()
{
    if (m_strHeldBack.empty())
        return;
    // Dropped first: bytes that could not be written are not tried again.
    const std::string bytes = std::exchange(m_strHeldBack, std::string());
    CFile::Write(bytes.data(), static_cast<UINT>(bytes.size()));
}

void CStdioFile::PrepareToRead() { WriteHeldBack(); }

void CStdioFile::PrepareToWrite()
{
    const auto nAhead = static_cast<LONGLONG>(Ahead().size());
    if (nAhead != 0)
        CFile::Seek(-nAhead, current);
    m_strAhead.clear();
    m_nTaken = 0;
}

// Reads more bytes ahead. False when there are none.
bool CStdioFile::Fill()
{
    m_strAhead.erase(0, std::exchange(m_nTaken, 0));
    const std::size_t nOld = m_strAhead.size();
    // Long lines are read in ever larger pieces.
    m_strAhead.resize(nOld + std::max<std::size_t>(piece, nOld));
    UINT n = 0;
    try
    {
        n = CFile::Read(m_strAhead.data() + nOld, static_cast<UINT>(m_strAhead.size() - nOld));
    }
    catch (CException*)
    {
        m_strAhead.resize(nOld);
        throw;
    }
    m_strAhead.resize(nOld + n);
    return n != 0;
}

// The bytes of the next line as they stand in the file, with the line end. Text ends before a Ctrl+Z.
std::string_view CStdioFile::NextLine()
{
    const std::size_t nUnit = m_bUnicode ? 2 : 1;
    const auto is_unit = [&](std::size_t at, char ch) {
        return m_strAhead[at] == ch && (!m_bUnicode || m_strAhead[at + 1] == 0);
    };
    for (std::size_t n = 0;; n += nUnit)
    {
        while (Ahead().size() < n + nUnit)
            if (!Fill())
                return Ahead().substr(0, n);
        if (m_bText && is_unit(m_nTaken + n, text_end))
            return Ahead().substr(0, n);
        if (is_unit(m_nTaken + n, '\n'))
            return Ahead().substr(0, n + nUnit);
    }
}

// ---- bytes

UINT CStdioFile::Read(void* lpBuf, UINT nCount)
{
    PrepareToRead();
    auto* pTo = static_cast<char*>(lpBuf);
    UINT nDone = 0;
    while (nDone < nCount && (!Ahead().empty() || Fill()))
    {
        if (m_bText && !m_bUnicode)
        {
            const char ch = m_strAhead[m_nTaken];
            if (ch == text_end)
                break;
            const bool bMaybeLineEnd = ch == '\r' && (Ahead().size() > 1 || Fill());
            ++m_nTaken;
            if (!bMaybeLineEnd || m_strAhead[m_nTaken] != '\n')
                pTo[nDone++] = ch;
        }
        else
        {
            const std::string_view part = Ahead().substr(0, nCount - nDone);
            std::copy(part.begin(), part.end(), pTo + nDone);
            nDone += static_cast<UINT>(part.size());
            m_nTaken += part.size();
        }
    }
    return nDone;
}

void CStdioFile::Write(const void* lpBuf, UINT nCount)
{
    PrepareToWrite();
    const std::string_view bytes(static_cast<const char*>(lpBuf), nCount);
    if (m_bText && !m_bUnicode)
        for (const char ch : bytes)
            ch == '\n' ? m_strHeldBack.append("\r\n") : m_strHeldBack.append(1, ch);
    else
        m_strHeldBack += bytes;
    if (m_strHeldBack.size() >= piece)
        WriteHeldBack();
}

void CStdioFile::Flush()
{
    WriteHeldBack();
    CFile::Flush();
}

ULONGLONG CStdioFile::Seek(LONGLONG lOff, UINT nFrom)
{
    WriteHeldBack();
    PrepareToWrite();
    return CFile::Seek(lOff, nFrom);
}

ULONGLONG CStdioFile::GetPosition() const
{
    return CFile::GetPosition() - Ahead().size() + m_strHeldBack.size();
}

ULONGLONG CStdioFile::GetLength() const
{
    const ULONGLONG nLength = CFile::GetLength();
    return m_strHeldBack.empty() ? nLength : std::max(nLength, GetPosition());
}

void CStdioFile::SetLength(ULONGLONG dwNewLen)
{
    WriteHeldBack();
    PrepareToWrite();
    CFile::SetLength(dwNewLen);
}

// ---- text

CString CStdioFile::Decoded(std::string_view bytes) const
{
    if (!m_bUnicode)
        return CString(bytes.data(), static_cast<int>(bytes.size()));
    const std::wstring text = platform::codepage::from_utf16le(bytes);
    return CString(text.data(), static_cast<int>(text.size()));
}

// The most bytes from the front that make no more than nUnits characters.
std::size_t CStdioFile::BytesOfUnits(std::string_view bytes, int nUnits) const
{
    // A longer front never makes fewer characters, and a cut one makes at least one for what it cuts.
    std::size_t nFits = 0;
    std::size_t nTooMany = bytes.size() + 1;
    while (nTooMany - nFits > 1)
    {
        const std::size_t n = nFits + (nTooMany - nFits) / 2;
        (Decoded(bytes.substr(0, n)).GetLength() <= nUnits ? nFits : nTooMany) = n;
    }
    return nFits;
}

LPTSTR CStdioFile::ReadString(LPTSTR lpsz, UINT nMax)
{
    PrepareToRead();
    if (lpsz == nullptr || nMax == 0)
        AfxThrowInvalidArgException();
    const std::string_view raw = NextLine();
    if (raw.empty())
        return nullptr;
    CString str = Decoded(raw);
    if (m_bText && str.Right(2) == L"\r\n")
        str.Delete(str.GetLength() - 2);
    std::size_t nTaken = raw.size();
    const int nMost = static_cast<int>(std::min<UINT>(nMax - 1, 0x7FFFFFFF));
    if (str.GetLength() > nMost)
    {
        nTaken = BytesOfUnits(raw, nMost);
        str = Decoded(raw.substr(0, nTaken));
    }
    m_nTaken += nTaken;
    std::wmemcpy(lpsz, str, static_cast<std::size_t>(str.GetLength()) + 1);
    return lpsz;
}

BOOL CStdioFile::ReadString(CString& rString)
{
    PrepareToRead();
    const std::string_view raw = NextLine();
    rString = Decoded(raw);
    if (rString.Right(1) == L"\n")
        rString.Truncate(rString.GetLength() - (m_bText && rString.Right(2) == L"\r\n" ? 2 : 1));
    m_nTaken += raw.size();
    return !raw.empty();
}

void CStdioFile::WriteString(LPCTSTR lpsz)
{
    if (lpsz == nullptr)
        AfxThrowInvalidArgException();
    if (!m_bUnicode)
    {
        const CStringA str(lpsz);
        Write(str.GetString(), static_cast<UINT>(str.GetLength()));
        return;
    }
    CString str(lpsz);
    if (m_bText)
        str.Replace(L"\n", L"\r\n");
    const std::string bytes =
        platform::codepage::to_utf16le(std::wstring_view(str, static_cast<std::size_t>(str.GetLength())));
    Write(bytes.data(), static_cast<UINT>(bytes.size()));
}

#include "tarvo/text/StdioFileEx.h"

#include "platform/codepage.h"
#include "tarvo/text/PageRules.h"
#include "tarvo/text/Units.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace codepage = platform::codepage;

IMPLEMENT_DYNAMIC(CStdioFileEx, CStdioFile)

namespace
{
constexpr std::size_t piece = 16384;
constexpr char text_end = 0x1A;

void RemoveSuffix(std::string_view& text, std::string_view suffix)
{
    if (text.ends_with(suffix))
        text.remove_suffix(suffix.size());
}

constexpr std::string_view line_feed[] = {"\n", std::string_view("\n\0", 2)};
constexpr std::string_view carriage_return[] = {"\r", std::string_view("\r\0", 2)};
} // namespace

CStdioFileEx::CStdioFileEx(LPCTSTR lpszFileName, UINT nOpenFlags)
{
    CFileException e;
    if (!CStdioFileEx::Open(lpszFileName, nOpenFlags, &e))
        AfxThrowFileException(e.m_cause, e.m_lOsError, e.m_strFileName);
}

BOOL CStdioFileEx::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError)
{
    Forget();
    m_bBaseAtWork = false;
    m_bUnicodeText = false;
    m_bText = (nOpenFlags & typeBinary) == 0;
    m_bNothingRead = false;
    if (!CStdioFile::Open(lpszFileName, nOpenFlags, pError))
        return FALSE;
    if ((nOpenFlags & (modeCreate | modeWrite)) == 0)
    {
        // What was read to look at stays ahead: the position is the start.
        Fill();
        m_bUnicodeText = Ahead().starts_with("\xFF\xFE");
        m_bNothingRead = true;
    }
    return TRUE;
}

// NOLINTBEGIN(bugprone-parent-virtual-call): past the base is where the bytes are as the file has them

// ---- what was read ahead, past the base, which would take UTF-16 for bytes of text

// False when there is nothing more to read.
bool CStdioFileEx::Fill()
{
    m_strAhead.erase(0, std::exchange(m_nTaken, 0));
    const std::size_t nOld = m_strAhead.size();
    m_strAhead.resize(nOld + piece);
    UINT n = 0;
    try
    {
        n = CFile::Read(m_strAhead.data() + nOld, static_cast<UINT>(piece));
    }
    catch (CException* e)
    {
        e->Delete();
    }
    m_strAhead.resize(nOld + n);
    return n != 0;
}

void CStdioFileEx::Forget()
{
    m_strAhead.clear();
    m_nTaken = 0;
}

// The base goes on where this object's reader stands.
void CStdioFileEx::GiveBack()
{
    const auto nAhead = static_cast<LONGLONG>(Ahead().size());
    Forget();
    m_bBaseAtWork = true;
    if (nAhead != 0)
        CFile::Seek(-nAhead, current);
}

// And the other way round.
void CStdioFileEx::TakeOver()
{
    if (std::exchange(m_bBaseAtWork, false))
        CStdioFile::Seek(0, current);
}

// ---- lines

bool CStdioFileEx::IsAtStart() const
{
    try
    {
        return GetPosition() == 0;
    }
    catch (CException* e) // a pipe has no position; it starts once
    {
        e->Delete();
        return true;
    }
}

void CStdioFileEx::PassOverMark()
{
    const std::size_t nMark = m_bUnicodeText ? 2 : m_nCodePage == codepage::utf8 ? 3 : 0;
    while (Ahead().size() < nMark && Fill())
        ;
    m_nTaken += std::min(nMark, Ahead().size());
}

// The place of the line feed from the position on; the end of what is ahead when there is none, or none as
// near as a line may be long.
std::size_t CStdioFileEx::FindLineFeed()
{
    const std::size_t nUnit = UnitSize();
    for (std::size_t at = 0;;)
    {
        const std::string_view ahead = Ahead();
        const std::size_t nFound = ahead.find(line_feed[nUnit - 1], at);
        if (nFound == std::string_view::npos)
        {
            // Enough that a cut line is longer than its most without the CRs before a break.
            if (ahead.size() >= (kLineMost + 4) * nUnit || !Fill())
                return ahead.size();
            at = ahead.size() / nUnit * nUnit;
        }
        else if (nFound % nUnit == 0)
            return nFound;
        else
            at = nFound + 1; // the halves of two units
    }
}

// The bytes of the next line without its break; nTaken is how many to pass over with it, 0 at the end.
std::string_view CStdioFileEx::NextLine(std::size_t& nTaken)
{
    const std::size_t nUnit = UnitSize();
    const std::size_t nFeed = FindLineFeed();
    std::string_view line = Ahead().substr(0, nFeed);
    nTaken = std::min(nFeed + nUnit, Ahead().size());
    if (IsTranslated())
    {
        if (const std::size_t nEnd = line.find(text_end); nEnd != std::string_view::npos)
        {
            line = line.substr(0, nEnd);
            nTaken = nEnd;
        }
        else if (nFeed < Ahead().size())
            RemoveSuffix(line, "\r"); // part of the break, as the base has it
    }
    if (m_bUnicodeText)
    {
        line = line.substr(0, line.size() / 2 * 2);
        nTaken = nTaken / 2 * 2; // half a unit is the end
    }
    std::string_view text = line;
    RemoveSuffix(text, carriage_return[nUnit - 1]);
    if (text.size() > kLineMost * nUnit)
    {
        text = text.substr(0, CutLength(text));
        nTaken = text.size();
    }
    return text;
}

// At most kLineMost units, no character cut.
std::size_t CStdioFileEx::CutLength(std::string_view text) const
{
    if (!m_bUnicodeText)
        return page_rules::whole_characters(static_cast<int>(m_nCodePage), text, kLineMost);
    const auto high_byte = [text](std::size_t unit) {
        return static_cast<unsigned char>(text[2 * unit + 1]);
    };
    const bool bPair = (high_byte(kLineMost - 1) & 0xFC) == 0xD8 && (high_byte(kLineMost) & 0xFC) == 0xDC;
    return 2 * (bPair ? kLineMost - 1 : kLineMost);
}

BOOL CStdioFileEx::ReadString(CString& rString)
{
    rString.Empty();
    if (m_hFile == hFileNull)
        return FALSE;
    TakeOver();
    if (std::exchange(m_bNothingRead, false) && IsAtStart())
        PassOverMark();
    std::size_t nTaken = 0;
    const std::string_view line = NextLine(nTaken);
    char16_t units[kLineMost];
    std::size_t nUnits = line.size() / 2;
    if (!m_bUnicodeText)
        nUnits = codepage::decode(static_cast<int>(m_nCodePage), line, units).value_or(0);
    else if (nUnits != 0)
        std::memcpy(units, line.data(), 2 * nUnits);
    rString = units::to_string({units, nUnits});
    m_nTaken += nTaken;
    return nTaken != 0;
}

void CStdioFileEx::WriteString(LPCTSTR lpsz)
{
    if (lpsz == nullptr || m_hFile == hFileNull)
        return;
    const std::wstring_view text(lpsz);
    const auto bytes = m_bUnicodeText
                           ? codepage::to_utf16le(text)
                           : page_rules::encode(static_cast<int>(m_nCodePage), m_dwConversionFlags, text);
    if (bytes && !bytes->empty())
        Write(bytes->data(), static_cast<UINT>(bytes->size()));
}

// ---- the base's operations

void CStdioFileEx::Close()
{
    Forget();
    CStdioFile::Close();
}

void CStdioFileEx::Abort()
{
    Forget();
    CStdioFile::Abort();
}

UINT CStdioFileEx::Read(void* lpBuf, UINT nCount)
{
    GiveBack();
    m_bNothingRead = false;
    if (!m_bUnicodeText)
        return CStdioFile::Read(lpBuf, nCount);
    TakeOver();
    return CFile::Read(lpBuf, nCount);
}

LPTSTR CStdioFileEx::ReadString(LPTSTR lpsz, UINT nMax)
{
    GiveBack();
    m_bNothingRead = false;
    return CStdioFile::ReadString(lpsz, nMax);
}

void CStdioFileEx::Write(const void* lpBuf, UINT nCount)
{
    GiveBack();
    if (!m_bUnicodeText)
        return CStdioFile::Write(lpBuf, nCount);
    TakeOver();
    CFile::Write(lpBuf, nCount);
}

ULONGLONG CStdioFileEx::Seek(LONGLONG lOff, UINT nFrom)
{
    GiveBack();
    return CStdioFile::Seek(lOff, nFrom);
}

ULONGLONG CStdioFileEx::GetPosition() const { return CStdioFile::GetPosition() - Ahead().size(); }

void CStdioFileEx::SetLength(ULONGLONG dwNewLen)
{
    GiveBack();
    CStdioFile::SetLength(dwNewLen);
}

// NOLINTEND(bugprone-parent-virtual-call)

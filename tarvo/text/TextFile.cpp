#include "tarvo/text/TextFile.h"

#include "platform/codepage.h"
#include "tarvo/text/Units.h"

#include <algorithm>
#include <cstring>

namespace
{
namespace codepage = platform::codepage;

// Fill a line run by run; the first one finds the line's old text and writes over it.

void Put(CString& line, int length, const char16_t* run, std::size_t count)
{
    // A line that its reader kept shares its characters: memory for the new one is had without copying them.
    if (length == 0)
        line.Empty();
    if (count != 0)
        units::widen(run, count, line.GetBufferSetLength(length + static_cast<int>(count)) + length);
}

void Put(std::wstring& line, int length, const char16_t* run, std::size_t count)
{
    const auto before = static_cast<std::size_t>(length);
    line.resize(before + count);
    units::widen(run, count, line.data() + before);
}

// No page gives more units than bytes.
template <class Line>
void Decode(std::string_view bytes, Line& line)
{
    char16_t few[256];
    std::unique_ptr<char16_t[]> many;
    char16_t* units = few;
    if (bytes.size() > std::size(few))
        units = (many = std::make_unique_for_overwrite<char16_t[]>(bytes.size())).get();
    Put(line, 0, units, codepage::decode(codepage::ansi, bytes, units).value_or(0));
}

const char* FindBreak(const char* first, const char* last)
{
    const auto find = [first](char ch, const char* end) {
        const void* p = std::memchr(first, ch, static_cast<std::size_t>(end - first));
        return p != nullptr ? static_cast<const char*>(p) : end;
    };
    return find('\r', find('\n', last));
}

const char16_t* FindBreak(const char16_t* first, const char16_t* last)
{
    return units::find_break(first, last);
}

std::unique_ptr<CFile> OpenForReading(LPCTSTR lpszFileName)
{
    auto pFile = std::make_unique<CFile>();
    if (!pFile->Open(lpszFileName, CFile::modeRead | CFile::shareDenyWrite))
        return nullptr;
    return pFile;
}

// 0 when nothing can be read, for whatever reason.
UINT Read(CFile& file, void* to, std::size_t count)
{
    try
    {
        return file.Read(to, static_cast<UINT>(count));
    }
    catch (CException* e)
    {
        e->Delete();
        return 0;
    }
}
} // namespace

CTextFileBase::CTextFileBase(CFile& file) : m_pFile(&file), m_bOwnFile(false) { DetectEncoding(); }

CTextFileBase::CTextFileBase(std::unique_ptr<CFile> pFile)
    : m_pFile(pFile.release()), m_bOwnFile(true), m_bEndOfFile(m_pFile == nullptr)
{
    if (m_pFile != nullptr)
        DetectEncoding();
}

CTextFileBase::~CTextFileBase() { Close(); }

void CTextFileBase::Close()
{
    if (m_bOwnFile)
        delete m_pFile;
    m_pFile = nullptr;
    m_bEndOfFile = true;
    m_bytesAhead.at = m_bytesAhead.end;
    m_unitsAhead.at = m_unitsAhead.end;
}

// What was read and is no mark is the text's beginning. It stays in the buffer, so that a file that cannot be
// positioned back, a pipe, loses nothing either.
void CTextFileBase::DetectEncoding()
{
    m_bytes = std::make_unique_for_overwrite<char[]>(kMostCut + kBuffer);
    char* const bytes = m_bytes.get();
    std::size_t count = Read(*m_pFile, bytes, 2);
    if (std::string_view(bytes, count) == "\xEF\xBB")
        count += Read(*m_pFile, bytes + 2, 1);
    const CTextMark mark = FindTextMark(std::string_view(bytes, count));
    m_encoding = mark.encoding;
    m_bytesAhead = {bytes + mark.length, bytes + count};
    if (m_encoding != TextEncoding::Ansi)
        m_units = std::make_unique_for_overwrite<char16_t[]>(kMostCut + kBuffer);
}

// Reads bytes behind the first \p kept of the buffer. False, and the flag is set, when there are none.
bool CTextFileBase::Refill(std::size_t kept)
{
    const UINT count = Read(*m_pFile, m_bytes.get() + kept, kBuffer);
    m_bytesAhead = {m_bytes.get(), m_bytes.get() + kept + count};
    m_bEndOfFile = count == 0;
    return count != 0;
}

bool CTextFileBase::Provide(Window<char>& ahead)
{
    return ahead.at != ahead.end || (!m_bEndOfFile && Refill(0));
}

bool CTextFileBase::Provide(Window<char16_t>& ahead)
{
    while (ahead.at == ahead.end)
    {
        if (m_bEndOfFile)
            return false;
        const std::size_t kept = m_bytesAhead.Size();
        std::copy(m_bytesAhead.at, m_bytesAhead.end, m_bytes.get());
        if (!Refill(kept))
            return false;
        std::string_view bytes(m_bytesAhead.at, m_bytesAhead.Size());
        ahead = {m_units.get(), m_units.get() + DecodeTextPart(m_encoding, bytes, m_units.get())};
        m_bytesAhead.at = m_bytesAhead.end - bytes.size();
    }
    return true;
}

// Passes over what the line before left of its break. False at the end.
template <class Unit>
bool CTextFileBase::PassOverBreak(Window<Unit>& ahead)
{
    constexpr auto cr = static_cast<Unit>('\r');
    constexpr auto lf = static_cast<Unit>('\n');
    if (ahead.Size() > 2)
    {
        ahead.at += *ahead.at == cr ? 1 : 0;
        ahead.at += *ahead.at == lf ? 1 : 0;
        return true;
    }
    for (const Unit lineBreak : {cr, lf})
    {
        if (!Provide(ahead))
            return false;
        ahead.at += *ahead.at == lineBreak ? 1 : 0;
    }
    return Provide(ahead);
}

// Gives the next line away in runs.
template <class Unit, class Give>
bool CTextFileBase::ReadRuns(Window<Unit>& ahead, Give give)
{
    if (!PassOverBreak(ahead))
        return false;
    do
    {
        const Unit* const stop = FindBreak(ahead.at, ahead.end);
        give(ahead.at, static_cast<std::size_t>(stop - ahead.at));
        ahead.at = stop;
    } while (ahead.at == ahead.end && Provide(ahead));
    return true;
}

template <class Line>
bool CTextFileBase::ReadLineInto(Line& line)
{
    if (m_encoding != TextEncoding::Ansi)
    {
        int length = 0;
        const bool found = ReadRuns(m_unitsAhead, [&](const char16_t* run, std::size_t count) {
            Put(line, length, run, count);
            length += static_cast<int>(count);
        });
        if (!found)
            Put(line, 0, nullptr, 0);
        return found;
    }
    // Decoded whole: a double-byte character may stand across two runs.
    m_ansiLine.clear();
    const bool found =
        ReadRuns(m_bytesAhead, [&](const char* run, std::size_t count) { m_ansiLine.append(run, count); });
    Decode(m_ansiLine, line);
    return found;
}

bool CTextFileBase::ReadLine(CString& line) { return ReadLineInto(line); }

bool CTextFileBase::ReadLine(std::wstring& line) { return ReadLineInto(line); }

CTextFileRead::CTextFileRead(LPCTSTR lpszFileName) : CTextFileBase(OpenForReading(lpszFileName)) {}

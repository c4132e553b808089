#pragma once

#include "tarvo/export.h"
#include "tarvo/text/TextDecode.h"

#include <afx.h>

#include <memory>
#include <string>

/// Reads a text file line by line in the encoding that its byte-order mark names; a file without a mark is in
/// the system's ANSI code page, UTF-8 too. What cannot be read counts as the end of the file: nothing throws
/// but what says that memory ran out, and malformed text gives U+FFFD.
///
/// A line ends before CR, LF or CR LF. LF CR are two breaks, a break at the end of the file begins no further
/// line, and one that the file begins with is passed over. Lines have any length and may hold NULs; a
/// character cut off by the end of the file is dropped. UTF-8 is decoded as DecodeLenientUtf8 says: nothing
/// above U+FFFF comes out of it.
class TARVO_API CTextFileBase
{
public:
    /// Reads \p file, which is open, from its position on. It stays the caller's, who closes it.
    explicit CTextFileBase(CFile& file);
    CTextFileBase(const CTextFileBase&) = delete;
    CTextFileBase& operator=(const CTextFileBase&) = delete;
    virtual ~CTextFileBase();

    /// False for a file that could not be opened, and after Close.
    bool IsOpen() const { return m_pFile != nullptr; }
    /// True once reading found no further byte: after the last line when it has no break, else after the
    /// ReadLine that failed. It stays true; what a growing file gains later is not seen.
    bool IsEndOfFile() const { return m_bEndOfFile; }
    /// What the file began with; Ansi for a file that could not be opened.
    TextEncoding GetEncoding() const { return m_encoding; }
    /// Ends the reading; a file that this object opened is closed.
    void Close();

    /// The next line without its break. False at the end, and \p line is empty.
    bool ReadLine(CString& line);
    bool ReadLine(std::wstring& line);

protected:
    /// Takes over \p pFile; null is a file that could not be opened.
    explicit CTextFileBase(std::unique_ptr<CFile> pFile);

private:
    static constexpr std::size_t kBuffer = 16384; // a call of the system for each of these
    static constexpr std::size_t kMostCut = 2;    // bytes of a character whose rest is still to be read

    // What is still to be given of a buffer.
    template <class Unit>
    struct Window
    {
        const Unit* at;
        const Unit* end;

        std::size_t Size() const { return static_cast<std::size_t>(end - at); }
    };

    template <class Line>
    bool ReadLineInto(Line& line);
    template <class Unit>
    bool PassOverBreak(Window<Unit>& ahead);
    template <class Unit, class Give>
    bool ReadRuns(Window<Unit>& ahead, Give give);
    bool Provide(Window<char>& ahead);
    bool Provide(Window<char16_t>& ahead);
    bool Refill(std::size_t kept);
    void DetectEncoding();

    TextEncoding m_encoding = TextEncoding::Ansi;
    CFile* m_pFile;
    bool m_bOwnFile;
    bool m_bEndOfFile = false;
    // The bytes last read, behind those of a cut character. In ANSI they are the text, else decoded at once.
    std::unique_ptr<char[]> m_bytes;
    Window<char> m_bytesAhead = {};
    std::string m_ansiLine;
    std::unique_ptr<char16_t[]> m_units;
    Window<char16_t> m_unitsAhead = {};
};

/// A text file opened by name, for reading; others may read it meanwhile, but not write. A file that cannot
/// be opened reads as an empty one, and IsOpen tells.
class TARVO_API CTextFileRead : public CTextFileBase
{
public:
    explicit CTextFileRead(LPCTSTR lpszFileName);
};

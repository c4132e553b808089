#pragma once

#include "tarvo/export.h"

#include <afx.h>

#include <string>
#include <string_view>

/// A file of text lines in UTF-16 or in a code page. Which of the two is told by the first two bytes when the
/// file is opened: FF FE is UTF-16 text, everything else multibyte text in the code page of the object.
///
/// Lines end with LF or CR LF. Opened as text (without CFile::typeBinary) multibyte text ends at the first
/// Ctrl+Z and a CR before each LF comes and goes, as in CStdioFile; UTF-16 text is read as it stands.
///
/// The operations of CStdioFile work on the same position: what ReadString has not given yet is read by Read,
/// and Seek and GetPosition count the bytes of the file.
class TARVO_API CStdioFileEx : public CStdioFile
{
    DECLARE_DYNAMIC(CStdioFileEx)

public:
    /// The most that one ReadString gives: units of UTF-16 text, bytes of multibyte text.
    static constexpr int kLineMost = 4096;

    CStdioFileEx() = default;
    /// Opens at once; failure throws, as in the base.
    CStdioFileEx(LPCTSTR lpszFileName, UINT nOpenFlags);

    /// Looks for the mark unless CFile::modeCreate or CFile::modeWrite is given. FALSE, and the reason in \p
    /// pError when given, if the file could not be opened.
    BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr) override;
    /// True when the open file began with the mark of UTF-16.
    bool IsUnicodeText() const { return m_bUnicodeText; }

    /// The page of multibyte text, for lines read and texts written from now on: 0, as at first, is the
    /// system's ANSI page. With a page that the system has not, lines read as empty ones and nothing is
    /// written.
    void SetCodePage(UINT nCodePage) { m_nCodePage = nCodePage; }
    UINT GetCodePage() const { return m_nCodePage; }
    /// The flags of the conversion in WriteString, as WideCharToMultiByte takes them: 0, as at first, or
    /// WC_NO_BEST_FIT_CHARS (0x400), in UTF-8 WC_ERR_INVALID_CHARS (0x80).
    void SetConversionFlags(DWORD dwFlags) { m_dwConversionFlags = dwFlags; }
    DWORD GetConversionFlags() const { return m_dwConversionFlags; }

    using CStdioFile::ReadString;
    /// Reads one line without its break. FALSE at the end, with an empty text, and for a file that is not
    /// open or cannot be read. A file that grew meanwhile can be read on.
    ///
    /// The first call after Open at the position 0 passes over the mark: two bytes of UTF-16 text, three of
    /// the page 65001. Those three are not looked at, so UTF-8 without a mark loses its first three bytes.
    /// A line longer than kLineMost comes in pieces, each by a call, cut between two characters.
    BOOL ReadString(CString& rString) override;
    /// Writes the characters before the first NUL; no line end and no mark is added. The text goes through
    /// the page and the flags of the object, and nothing is written when that gives nothing. In UTF-16 text
    /// (opened with CFile::modeReadWrite) the units are written as they stand. A failed write throws, as in
    /// the base; on a file that is not open nothing happens.
    void WriteString(LPCTSTR lpsz) override;

    void Close() override;
    void Abort() override;
    UINT Read(void* lpBuf, UINT nCount) override;
    void Write(const void* lpBuf, UINT nCount) override;
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    ULONGLONG GetPosition() const override;
    void SetLength(ULONGLONG dwNewLen) override;
    LPTSTR ReadString(LPTSTR lpsz, UINT nMax) override;

private:
    std::size_t UnitSize() const { return m_bUnicodeText ? 2 : 1; }
    // Ctrl+Z and CR LF mean what they mean in the base.
    bool IsTranslated() const { return m_bText && !m_bUnicodeText; }
    std::string_view Ahead() const { return std::string_view(m_strAhead).substr(m_nTaken); }
    bool Fill();
    void Forget();
    void GiveBack();
    void TakeOver();
    bool IsAtStart() const;
    void PassOverMark();
    std::size_t FindLineFeed();
    std::string_view NextLine(std::size_t& nTaken);
    std::size_t CutLength(std::string_view text) const;

    UINT m_nCodePage = 0;
    DWORD m_dwConversionFlags = 0;
    bool m_bUnicodeText = false;
    bool m_bText = true;
    bool m_bNothingRead = false;
    bool m_bBaseAtWork = false; // it may hold bytes ahead or back
    std::string m_strAhead;     // bytes of the file that were read, of which the first m_nTaken are used up
    std::size_t m_nTaken = 0;
};

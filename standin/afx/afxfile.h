#pragma once

#include "afxexception.h"

#include <cstddef>
#include <string>
#include <string_view>

/// A failed file operation.
class AFX_API CFileException : public CException
{
    DECLARE_DYNAMIC(CFileException)

public:
    enum
    {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };

    explicit CFileException(int cause = none, LONG lOsError = -1, LPCTSTR lpszArchiveName = nullptr);

    /// The cause of a system error number (GetLastError on Windows, errno elsewhere).
    static int OsErrorToException(LONG lOsError);
    [[noreturn]] static void ThrowOsError(LONG lOsError, LPCTSTR lpszFileName = nullptr);

    int m_cause;
    LONG m_lOsError;
    CString m_strFileName;

protected:
    CString ErrorText() const override;
};

[[noreturn]] AFX_API void AfxThrowFileException(int cause, LONG lOsError = -1,
                                                LPCTSTR lpszFileName = nullptr);

/// What CFile::GetStatus tells about a file.
struct CFileStatus
{
    ULONGLONG m_size = 0;
    BYTE m_attribute = 0; ///< CFile::Attribute values
    CString m_szFullName;
};

/// A file of bytes with a position. What fails throws CFileException, except Open, which answers.
class AFX_API CFile : public CObject
{
    DECLARE_DYNAMIC(CFile)

public:
    /// One access mode, one share mode and what else is wanted, joined by |. Without a share mode nobody
    /// else may open the file. Share modes hold against every program on Windows and are not enforced
    /// elsewhere.
    enum OpenFlags
    {
        modeRead = 0x00000,
        modeWrite = 0x00001,
        modeReadWrite = 0x00002,
        shareCompat = 0x00000,
        shareExclusive = 0x00010,
        shareDenyWrite = 0x00020,
        shareDenyRead = 0x00030,
        shareDenyNone = 0x00040,
        modeNoInherit = 0x00080,
        typeUnicode = 0x00400,
        modeCreate = 0x01000,     ///< a missing file is made, an existing one becomes empty...
        modeNoTruncate = 0x02000, ///< ...or keeps its bytes
        typeText = 0x04000,
        typeBinary = 0x08000,
        osNoBuffer = 0x10000,      ///< a hint without effect
        osWriteThrough = 0x20000,  ///< each write reaches the disk before it returns
        osRandomAccess = 0x40000,  ///< a hint without effect
        osSequentialScan = 0x80000 ///< a hint without effect
    };
    enum Attribute
    {
        normal = 0x00,
        readOnly = 0x01,
        hidden = 0x02,
        system = 0x04,
        volume = 0x08,
        directory = 0x10,
        archive = 0x20
    };
    enum SeekPosition
    {
        begin,
        current,
        end
    };

    /// A file that is still to be opened.
    CFile() = default;
    /// Takes over an open handle, which Close closes and the destructor does not.
    explicit CFile(HANDLE hFile) : m_hFile(hFile) {}
    /// Opens at once; failure throws.
    CFile(LPCTSTR lpszFileName, UINT nOpenFlags);
    /// Closes a file that this object opened; failure is not told.
    ~CFile() override;

    /// FALSE, and the reason in \p pError when given, if the file could not be opened.
    virtual BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr);
    /// Closes the file; closing again does nothing.
    virtual void Close();
    /// Closes the file, drops what is not yet written and tells no failure.
    virtual void Abort();
    /// A second object for the same open file, owned by the caller.
    virtual CFile* Duplicate() const;

    /// Reads up to \p nCount bytes; fewer only at the end.
    virtual UINT Read(void* lpBuf, UINT nCount);
    virtual void Write(const void* lpBuf, UINT nCount);
    virtual void Flush();

    /// Moves the position and returns it, in bytes from the start. It may lie behind the end, where a write
    /// fills the gap with zeros; before the start is a badSeek.
    virtual ULONGLONG Seek(LONGLONG lOff, UINT nFrom);
    void SeekToBegin() { Seek(0, begin); }
    ULONGLONG SeekToEnd() { return Seek(0, end); }
    virtual ULONGLONG GetPosition() const;
    virtual ULONGLONG GetLength() const;
    /// Cuts or lengthens the file. The position is then the new end.
    virtual void SetLength(ULONGLONG dwNewLen);

    virtual void LockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    virtual void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount);

    /// "C:\work\beam.txt": the full path, "beam.txt" and "beam". Empty for a file that was not opened by
    /// name.
    virtual CString GetFilePath() const { return m_strFileName; }
    virtual CString GetFileName() const;
    virtual CString GetFileTitle() const;
    virtual void SetFilePath(LPCTSTR lpszNewName) { m_strFileName = lpszNewName; }
    /// FALSE when the file cannot be asked; nothing is thrown.
    BOOL GetStatus(CFileStatus& rStatus) const;

    static void Rename(LPCTSTR lpszOldName, LPCTSTR lpszNewName);
    static void Remove(LPCTSTR lpszFileName);
    static BOOL GetStatus(LPCTSTR lpszFileName, CFileStatus& rStatus);

    /// What m_hFile is while no file is open.
    static const HANDLE hFileNull;
    /// The system's handle; natively the descriptor.
    HANDLE m_hFile = hFileNull;

protected:
    CString m_strFileName;
    BOOL m_bCloseOnDelete = FALSE;
};

/// A file of text lines, opened as text unless CFile::typeBinary is given.
///
/// In text a line ends with CR LF in the file and with "\n" for the program, on every platform: reading
/// drops the CR before an LF and stops at the first Ctrl+Z (0x1A), writing puts a CR before each LF. Bytes
/// are in the system's ANSI page, or UTF-16LE with typeUnicode; no mark is read or written. Read and
/// Write move the bytes of a typeUnicode file as they are.
///
/// What is written is held back until Flush, Close, Seek or a read.
class AFX_API CStdioFile : public CFile
{
    DECLARE_DYNAMIC(CStdioFile)

public:
    CStdioFile() = default;
    CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags);
    ~CStdioFile() override;

    BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr) override;
    void Close() override;
    void Abort() override;
    /// Throws CNotSupportedException: two objects would hold back bytes of one file.
    CFile* Duplicate() const override;

    UINT Read(void* lpBuf, UINT nCount) override;
    void Write(const void* lpBuf, UINT nCount) override;
    void Flush() override;
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    ULONGLONG GetPosition() const override;
    ULONGLONG GetLength() const override;
    void SetLength(ULONGLONG dwNewLen) override;
    /// Throw CNotSupportedException.
    void LockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;

    /// Reads one line with its "\n", or as much of it as \p nMax - 1 characters hold. Null at the end.
    virtual LPTSTR ReadString(LPTSTR lpsz, UINT nMax);
    /// Reads one line without its "\n". FALSE at the end, with an empty text.
    virtual BOOL ReadString(CString& rString);
    /// Writes the characters before the first NUL; no line end is added.
    virtual void WriteString(LPCTSTR lpsz);

private:
    std::string_view Ahead() const { return std::string_view(m_strAhead).substr(m_nTaken); }
    bool Fill();
    std::string_view NextLine();
    CString Decoded(std::string_view bytes) const;
    std::size_t BytesOfUnits(std::string_view bytes, int nUnits) const;
    void WriteHeldBack();
    void PrepareToRead();
    void PrepareToWrite();

    bool m_bText = false;
    bool m_bUnicode = false;
    std::string m_strAhead; // bytes read from the file, of which the first m_nTaken are used up
    std::size_t m_nTaken = 0;
    std::string m_strHeldBack; // bytes still to be written
};

#pragma once

#include "afxexport.h"
#include "afxtypes.h"

#include <atomic>
#include <cstdarg>
#include <new>
#include <type_traits>
#include <utility>

/// What stands before the characters of a string, in the same piece of memory.
struct CStringData
{
    int nDataLength;  ///< characters in use, without the terminating NUL
    int nAllocLength; ///< characters that fit, without the terminating NUL; 0 only in the shared empty text
    std::atomic<long> nRefs; ///< strings that share the text; below zero while a buffer is locked
};

/// What every empty string points to: never counted, written or freed.
struct CStringNil
{
    CStringData data;
    wchar_t szText[2];
};
extern AFX_API CStringNil afxStringNil;

/// Text of any length, held as one pointer to shared, reference-counted characters. Copying allocates
/// nothing; the first change to a shared text makes a copy of its own. The count is atomic, so copies
/// of one text may live in different threads; one CString object may not be used by two at once.
///
/// Positions and lengths count characters of type \p XCHAR (UTF-16 units in the wide string, on every
/// platform; bytes in the 8-bit one). A NUL may stand inside the text; operations that take a pointer
/// without a length end at the first one. A pointer argument may be null (an empty text) and may
/// point into the string itself.
///
/// An index out of range where a character is named throws CInvalidArgException, memory that cannot be
/// had throws CMemoryException; nothing else throws. Lengths reach INT_MAX - 64.
///
/// \p XCHAR is wchar_t (CString, CStringW) or char (CStringA, bytes of the system's ANSI page: searches
/// compare bytes, letter case follows the page).
template <class T>
class AFX_API CStringT
{
public:
    using XCHAR = T;
    using PXSTR = T*;
    using PCXSTR = const T*;
    using YCHAR = std::conditional_t<std::is_same_v<T, wchar_t>, char, wchar_t>;
    using PYSTR = YCHAR*;
    using PCYSTR = const YCHAR*;

    CStringT() noexcept : m_pszData(Nil()) {}
    CStringT(const CStringT& strSrc) : m_pszData(Share(strSrc.m_pszData)) {}
    CStringT(CStringT&& strSrc) noexcept : m_pszData(std::exchange(strSrc.m_pszData, Nil())) {}
    CStringT(PCXSTR pszSrc) : CStringT() { SetString(pszSrc); }
    CStringT(PCXSTR pch, int nLength) : CStringT() { SetString(pch, nLength); }
    CStringT(XCHAR ch, int nLength = 1);
    /// Converts between 8-bit text in the system's ANSI page and wide text.
    CStringT(PCYSTR pszSrc);
    CStringT(PCYSTR pch, int nLength);
    CStringT(const CStringT<YCHAR>& strSrc);
    ~CStringT() { Release(m_pszData); }

    CStringT& operator=(const CStringT& strSrc)
    {
        if (m_pszData != strSrc.m_pszData)
            Release(std::exchange(m_pszData, Share(strSrc.m_pszData)));
        return *this;
    }
    CStringT& operator=(CStringT&& strSrc) noexcept
    {
        std::swap(m_pszData, strSrc.m_pszData);
        return *this;
    }
    CStringT& operator=(PCXSTR pszSrc)
    {
        SetString(pszSrc);
        return *this;
    }
    CStringT& operator=(PCYSTR pszSrc) { return *this = CStringT(pszSrc); }
    CStringT& operator=(const CStringT<YCHAR>& strSrc) { return *this = CStringT(strSrc); }
    CStringT& operator=(XCHAR ch)
    {
        SetString(&ch, 1);
        return *this;
    }

    int GetLength() const noexcept { return GetData(m_pszData)->nDataLength; }
    bool IsEmpty() const noexcept { return GetLength() == 0; }
    /// The characters that fit without a new allocation.
    int GetAllocLength() const noexcept { return GetData(m_pszData)->nAllocLength; }
    /// Makes the text empty and gives its memory back.
    void Empty() noexcept { Release(std::exchange(m_pszData, Nil())); }

    operator PCXSTR() const noexcept { return m_pszData; }
    /// The text with its terminating NUL; valid until the string is changed or destroyed.
    PCXSTR GetString() const noexcept { return m_pszData; }
    /// The character at \p iChar, 0 to GetLength() (which names the terminating NUL).
    XCHAR GetAt(int iChar) const
    {
        if (iChar < 0 || iChar > GetLength())
            ThrowInvalidArg();
        return m_pszData[iChar];
    }
    XCHAR operator[](int iChar) const { return GetAt(iChar); }
    /// Replaces the character at \p iChar, 0 to GetLength() - 1.
    void SetAt(int iChar, XCHAR ch);

    void SetString(PCXSTR pszSrc) { SetString(pszSrc, StringLength(pszSrc)); }
    /// Copies \p nLength characters; one allocation when the present memory does not serve.
    void SetString(PCXSTR pszSrc, int nLength);

    void Append(PCXSTR pszSrc) { Append(pszSrc, StringLength(pszSrc)); }
    void Append(PCXSTR pszSrc, int nLength);
    void Append(const CStringT& strSrc);
    void AppendChar(XCHAR ch) { Append(&ch, 1); }

    CStringT& operator+=(const CStringT& strSrc)
    {
        Append(strSrc);
        return *this;
    }
    CStringT& operator+=(PCXSTR pszSrc)
    {
        Append(pszSrc);
        return *this;
    }
    CStringT& operator+=(PCYSTR pszSrc) { return *this += CStringT(pszSrc); }
    CStringT& operator+=(XCHAR ch)
    {
        AppendChar(ch);
        return *this;
    }

    /// Formats as the Windows wide functions do, on every platform: %s is text of this string's own
    /// character type and %S of the other, %hs 8-bit and %ls wide; %c %C likewise. %l integers have 32
    /// bits, %ll, %I64 and %j 64, %I, %z and %t a pointer's. %Lf is a double like %f, and %a has thirteen
    /// digits unless it says how many. %p gives all hexadecimal digits in capitals. A null text is "(null)";
    /// %n stores nothing; an unknown conversion stands as it is written. Arguments may be texts of this
    /// string itself.
    void Format(PCXSTR pszFormat, ...);
    /// With the resource string \p nFormatID as the format; throws CInvalidArgException when it is missing.
    void Format(UINT nFormatID, ...);
    void FormatV(PCXSTR pszFormat, std::va_list args);
    void AppendFormat(PCXSTR pszFormat, ...);
    void AppendFormat(UINT nFormatID, ...);
    void AppendFormatV(PCXSTR pszFormat, std::va_list args);

    /// Below, equal to or above zero, as the first differing character is (compared without sign); the
    /// comparison ends at the first NUL. Null is an empty text.
    int Compare(PCXSTR psz) const noexcept;
    /// The same after platform::letters::fold of each character.
    int CompareNoCase(PCXSTR psz) const;

    /// The first position at or after \p iStart, -1 when there is none. An empty text is found at iStart.
    int Find(XCHAR ch, int iStart = 0) const noexcept;
    int Find(PCXSTR pszSub, int iStart = 0) const noexcept;
    int FindOneOf(PCXSTR pszCharSet) const noexcept;
    int ReverseFind(XCHAR ch) const noexcept;

    /// Parts of the text. Positions and counts outside it are drawn in to its bounds.
    CStringT Mid(int iFirst) const;
    CStringT Mid(int iFirst, int nCount) const;
    CStringT Left(int nCount) const;
    CStringT Right(int nCount) const;
    CStringT SpanIncluding(PCXSTR pszCharSet) const;
    CStringT SpanExcluding(PCXSTR pszCharSet) const;
    /// The next run of characters that are not in \p pszTokens, from \p iStart on. iStart then stands
    /// behind the character that ended the run; at the end it becomes -1 and the result is empty. Without
    /// delimiters the rest of the text is one run. A negative iStart throws CInvalidArgException.
    CStringT Tokenize(PCXSTR pszTokens, int& iStart) const;

    /// White space is what platform::letters::is_space says.
    CStringT& Trim() { return TrimRight().TrimLeft(); }
    CStringT& Trim(XCHAR chTarget) { return TrimRight(chTarget).TrimLeft(chTarget); }
    CStringT& Trim(PCXSTR pszTargets);
    CStringT& TrimLeft();
    CStringT& TrimLeft(XCHAR chTarget);
    CStringT& TrimLeft(PCXSTR pszTargets);
    CStringT& TrimRight();
    CStringT& TrimRight(XCHAR chTarget);
    CStringT& TrimRight(PCXSTR pszTargets);

    CStringT& MakeUpper();
    CStringT& MakeLower();
    CStringT& MakeReverse();

    /// Replaces every occurrence from left to right and returns how many there were.
    int Replace(XCHAR chOld, XCHAR chNew);
    int Replace(PCXSTR pszOld, PCXSTR pszNew);
    /// Takes out every \p chRemove and returns how many there were.
    int Remove(XCHAR chRemove);
    /// Inserts before \p iIndex (drawn in to the text's bounds) and returns the new length.
    int Insert(int iIndex, XCHAR ch);
    int Insert(int iIndex, PCXSTR psz);
    /// Takes out \p nCount characters, or as many as there are, and returns the new length.
    int Delete(int iIndex, int nCount = 1);

    /// A writable buffer of the text, not shared with any other string. After writing, ReleaseBuffer
    /// sets the length before anything else is called.
    PXSTR GetBuffer();
    /// The same with room for \p nMinBufferLength characters besides the NUL.
    PXSTR GetBuffer(int nMinBufferLength);
    /// The same with the length set at once: for callers that fill exactly \p nLength characters.
    PXSTR GetBufferSetLength(int nLength);
    /// Sets the length: \p nNewLength, or up to the first NUL with -1.
    void ReleaseBuffer(int nNewLength = -1);
    void ReleaseBufferSetLength(int nNewLength);
    /// A buffer that stays this string's own: copies made before UnlockBuffer get memory of theirs.
    PXSTR LockBuffer();
    void UnlockBuffer() noexcept;
    /// Makes room for \p nLength characters.
    void Preallocate(int nLength);
    /// Gives back the memory behind the text's end.
    void FreeExtra();
    /// Shortens the text to \p nNewLength characters; longer does nothing.
    void Truncate(int nNewLength);

    /// The resource string \p nID, from the module that holds the program's resources or \p hInstance.
    /// FALSE, with an empty text, when there is none, and always where modules carry no resources.
    BOOL LoadString(UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID);

    /// Characters before the first NUL; 0 for null.
    static int StringLength(PCXSTR psz) noexcept;

    friend CStringT operator+(const CStringT& a, const CStringT& b)
    {
        return Join(a, a.GetLength(), b, b.GetLength());
    }
    friend CStringT operator+(const CStringT& a, PCXSTR b)
    {
        return Join(a, a.GetLength(), b, StringLength(b));
    }
    friend CStringT operator+(PCXSTR a, const CStringT& b)
    {
        return Join(a, StringLength(a), b, b.GetLength());
    }
    friend CStringT operator+(const CStringT& a, XCHAR b) { return Join(a, a.GetLength(), &b, 1); }
    friend CStringT operator+(XCHAR a, const CStringT& b) { return Join(&a, 1, b, b.GetLength()); }

    friend bool operator==(const CStringT& a, const CStringT& b) noexcept { return a.Compare(b) == 0; }
    friend bool operator==(const CStringT& a, PCXSTR b) noexcept { return a.Compare(b) == 0; }
    friend bool operator==(PCXSTR a, const CStringT& b) noexcept { return b.Compare(a) == 0; }
    friend bool operator!=(const CStringT& a, const CStringT& b) noexcept { return a.Compare(b) != 0; }
    friend bool operator!=(const CStringT& a, PCXSTR b) noexcept { return a.Compare(b) != 0; }
    friend bool operator!=(PCXSTR a, const CStringT& b) noexcept { return b.Compare(a) != 0; }
    friend bool operator<(const CStringT& a, const CStringT& b) noexcept { return a.Compare(b) < 0; }
    friend bool operator<(const CStringT& a, PCXSTR b) noexcept { return a.Compare(b) < 0; }
    friend bool operator<(PCXSTR a, const CStringT& b) noexcept { return b.Compare(a) > 0; }
    friend bool operator>(const CStringT& a, const CStringT& b) noexcept { return a.Compare(b) > 0; }
    friend bool operator>(const CStringT& a, PCXSTR b) noexcept { return a.Compare(b) > 0; }
    friend bool operator>(PCXSTR a, const CStringT& b) noexcept { return b.Compare(a) < 0; }
    friend bool operator<=(const CStringT& a, const CStringT& b) noexcept { return a.Compare(b) <= 0; }
    friend bool operator<=(const CStringT& a, PCXSTR b) noexcept { return a.Compare(b) <= 0; }
    friend bool operator<=(PCXSTR a, const CStringT& b) noexcept { return b.Compare(a) >= 0; }
    friend bool operator>=(const CStringT& a, const CStringT& b) noexcept { return a.Compare(b) >= 0; }
    friend bool operator>=(const CStringT& a, PCXSTR b) noexcept { return a.Compare(b) >= 0; }
    friend bool operator>=(PCXSTR a, const CStringT& b) noexcept { return b.Compare(a) <= 0; }

private:
    static PXSTR Nil() noexcept { return reinterpret_cast<PXSTR>(afxStringNil.szText); }
    static CStringData* GetData(PCXSTR psz) noexcept
    {
        return reinterpret_cast<CStringData*>(const_cast<PXSTR>(psz)) - 1;
    }
    static PXSTR Share(PXSTR psz)
    {
        CStringData* pData = GetData(psz);
        if (pData->nAllocLength == 0)
            return psz;
        if (pData->nRefs.load(std::memory_order_relaxed) < 0)
            return Duplicate(psz);
        pData->nRefs.fetch_add(1, std::memory_order_relaxed);
        return psz;
    }
    static void Release(PXSTR psz) noexcept
    {
        CStringData* pData = GetData(psz);
        // The only owner need not count: nobody else is there who could share the text meanwhile.
        if (pData->nAllocLength != 0 && (pData->nRefs.load(std::memory_order_acquire) == 1 ||
                                         pData->nRefs.fetch_sub(1, std::memory_order_acq_rel) <= 1))
            Free(pData);
    }
    static PXSTR Allocate(int nLength);
    static PXSTR Duplicate(PCXSTR psz);
    static void Free(CStringData* pData) noexcept;
    static CStringT Join(PCXSTR a, int nA, PCXSTR b, int nB);
    [[noreturn]] static void ThrowInvalidArg();

    bool IsShared() const noexcept { return GetData(m_pszData)->nRefs.load(std::memory_order_acquire) > 1; }
    bool Holds(PCXSTR psz) const noexcept;
    void Prepare(int nLength, bool bKeep);
    void SetLength(int nLength) noexcept;
    CStringT& TrimRightTo(int nLength);
    CStringT& TrimLeftTo(int iFirst);
    void Splice(int iIndex, int nOld, PCXSTR pszNew, int nNew);

    PXSTR m_pszData;
};

using CStringW = CStringT<wchar_t>;
using CStringA = CStringT<char>;
using CString = CStringW;

static_assert(sizeof(CString) == sizeof(void*), "a string is one pointer");

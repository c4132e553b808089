#include "afxstr.h"

#include "afxexception.h"

#include "platform/codepage.h"
#include "platform/letters.h"

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace
{
template <class T>
using traits = std::char_traits<T>;

constexpr int max_length = INT_MAX - 64;

template <class T>
bool is_one_of(T ch, const T* set)
{
    for (; *set != 0; ++set)
        if (*set == ch)
            return true;
    return false;
}

template <class T>
const T* or_empty(const T* psz)
{
    static constexpr T empty[1] = {};
    return psz != nullptr ? psz : empty;
}

template <class T>
bool is_ascii(const T* pch, int nLength)
{
    std::uint32_t bits = 0;
    for (int i = 0; i < nLength; ++i)
        bits |= static_cast<std::uint32_t>(pch[i]);
    return bits < 0x80;
}

bool is_space(wchar_t ch) { return platform::letters::is_space(ch); }
// Bytes above 0x7F may be halves of a double-byte character.
bool is_space(char ch)
{
    return static_cast<unsigned char>(ch) < 0x80 && platform::letters::is_space(static_cast<wchar_t>(ch));
}

std::wstring wide(std::string_view bytes)
{
    return platform::codepage::decode(platform::codepage::ansi, bytes).value_or(std::wstring());
}

std::string narrow(std::wstring_view text)
{
    return platform::codepage::encode(platform::codepage::ansi, text).value_or(std::string());
}

int checked_length(std::size_t n)
{
    if (n > static_cast<std::size_t>(max_length))
        AfxThrowMemoryException();
    return static_cast<int>(n);
}
} // namespace

constinit CStringNil afxStringNil = {{0, 0, 1}, {}};

template <class T>
void CStringT<T>::ThrowInvalidArg()
{
    AfxThrowInvalidArgException();
}

template <class T>
int CStringT<T>::StringLength(PCXSTR psz) noexcept
{
    return psz == nullptr ? 0 : static_cast<int>(std::min<std::size_t>(traits<T>::length(psz), INT_MAX));
}

// ---- memory

template <class T>
typename CStringT<T>::PXSTR CStringT<T>::Allocate(int nLength)
{
    if (nLength < 0 || nLength > max_length)
        AfxThrowMemoryException();
    // Rounded up: a few appended characters need no second allocation.
    const int nRoom = std::max(nLength, 1) | 7;
    void* p =
        ::operator new(sizeof(CStringData) + (static_cast<std::size_t>(nRoom) + 1) * sizeof(T), std::nothrow);
    if (p == nullptr)
        AfxThrowMemoryException();
    auto* pData = new (p) CStringData{0, nRoom, 1};
    auto* psz = reinterpret_cast<PXSTR>(pData + 1);
    psz[0] = 0;
    return psz;
}

template <class T>
void CStringT<T>::Free(CStringData* pData) noexcept
{
    pData->~CStringData();
    ::operator delete(static_cast<void*>(pData));
}

template <class T>
typename CStringT<T>::PXSTR CStringT<T>::Duplicate(PCXSTR psz)
{
    const int n = GetData(psz)->nDataLength;
    PXSTR pszNew = Allocate(n);
    traits<T>::copy(pszNew, psz, static_cast<std::size_t>(n) + 1);
    GetData(pszNew)->nDataLength = n;
    return pszNew;
}

template <class T>
bool CStringT<T>::Holds(PCXSTR psz) const noexcept
{
    return !std::less<PCXSTR>()(psz, m_pszData) && !std::less<PCXSTR>()(m_pszData + GetLength(), psz);
}

// Makes the buffer this string's own with room for nLength characters. With bKeep the text stays (cut
// to nothing when only room is wanted).
template <class T>
void CStringT<T>::Prepare(int nLength, bool bKeep)
{
    const CStringData* pData = GetData(m_pszData);
    if (pData->nAllocLength == 0) // the shared empty text
    {
        m_pszData = Allocate(nLength);
        return;
    }
    if (!IsShared() && nLength <= pData->nAllocLength)
        return;
    int nRoom = std::max(nLength, bKeep ? pData->nDataLength : 0);
    // A text that grows will grow again: half as much more keeps the cost of appending linear.
    if (bKeep && nLength > pData->nAllocLength)
        nRoom = std::max(nRoom, std::min(max_length, pData->nAllocLength + pData->nAllocLength / 2));
    PXSTR pszNew = Allocate(nRoom);
    if (bKeep)
    {
        traits<T>::copy(pszNew, m_pszData, static_cast<std::size_t>(pData->nDataLength) + 1);
        GetData(pszNew)->nDataLength = pData->nDataLength;
    }
    Release(std::exchange(m_pszData, pszNew));
}

template <class T>
void CStringT<T>::SetLength(int nLength) noexcept
{
    GetData(m_pszData)->nDataLength = nLength;
    m_pszData[nLength] = 0;
}

template <class T>
CStringT<T> CStringT<T>::Join(PCXSTR a, int nA, PCXSTR b, int nB)
{
    CStringT str;
    if (nA > max_length - nB)
        AfxThrowMemoryException();
    if (nA + nB == 0)
        return str;
    str.Prepare(nA + nB, false);
    traits<T>::copy(str.m_pszData, a, static_cast<std::size_t>(nA));
    traits<T>::copy(str.m_pszData + nA, b, static_cast<std::size_t>(nB));
    str.SetLength(nA + nB);
    return str;
}

// ---- construction and assignment

template <class T>
CStringT<T>::CStringT(XCHAR ch, int nLength) : CStringT()
{
    if (nLength <= 0)
        return;
    Prepare(nLength, false);
    traits<T>::assign(m_pszData, static_cast<std::size_t>(nLength), ch);
    SetLength(nLength);
}

template <class T>
CStringT<T>::CStringT(PCYSTR pszSrc) : CStringT(pszSrc, CStringT<YCHAR>::StringLength(pszSrc))
{
}

template <class T>
CStringT<T>::CStringT(PCYSTR pch, int nLength) : CStringT()
{
    if (nLength < 0 || (pch == nullptr && nLength != 0))
        ThrowInvalidArg();
    if (nLength == 0)
        return;
    const std::basic_string_view<YCHAR> source(pch, static_cast<std::size_t>(nLength));
    // ASCII is the same in every page.
    if (is_ascii(pch, nLength))
    {
        Prepare(nLength, false);
        std::transform(pch, pch + nLength, m_pszData, [](YCHAR ch) { return static_cast<T>(ch); });
        SetLength(nLength);
        return;
    }
    if constexpr (std::is_same_v<T, char>)
    {
        const std::string text = narrow(source);
        SetString(text.data(), checked_length(text.size()));
    }
    else
    {
        const std::wstring text = wide(source);
        SetString(text.data(), checked_length(text.size()));
    }
}

template <class T>
CStringT<T>::CStringT(const CStringT<YCHAR>& strSrc) : CStringT(strSrc.GetString(), strSrc.GetLength())
{
}

template <class T>
void CStringT<T>::SetString(PCXSTR pszSrc, int nLength)
{
    if (nLength < 0 || (pszSrc == nullptr && nLength != 0))
        ThrowInvalidArg();
    if (nLength == 0)
    {
        Empty();
        return;
    }
    if (Holds(pszSrc))
    {
        const CStringT strKeep(*this); // the part stays alive while it is copied
        const auto nOffset = pszSrc - m_pszData;
        Prepare(nLength, true);
        traits<T>::move(m_pszData, strKeep.m_pszData + nOffset, static_cast<std::size_t>(nLength));
    }
    else
    {
        Prepare(nLength, false);
        traits<T>::copy(m_pszData, pszSrc, static_cast<std::size_t>(nLength));
    }
    SetLength(nLength);
}

template <class T>
void CStringT<T>::SetAt(int iChar, XCHAR ch)
{
    const int nLength = GetLength();
    if (iChar < 0 || iChar >= nLength)
        ThrowInvalidArg();
    Prepare(nLength, true);
    m_pszData[iChar] = ch;
}

template <class T>
void CStringT<T>::Append(PCXSTR pszSrc, int nLength)
{
    const int nOld = GetLength();
    if (nLength < 0 || (pszSrc == nullptr && nLength != 0))
        ThrowInvalidArg();
    if (nLength == 0)
        return;
    if (nLength > max_length - nOld)
        AfxThrowMemoryException();
    // A source inside this text moves with it when the buffer is exchanged.
    const bool bOwn = Holds(pszSrc);
    const auto nOffset = bOwn ? pszSrc - m_pszData : 0;
    Prepare(nOld + nLength, true);
    traits<T>::move(m_pszData + nOld, bOwn ? m_pszData + nOffset : pszSrc, static_cast<std::size_t>(nLength));
    SetLength(nOld + nLength);
}

template <class T>
void CStringT<T>::Append(const CStringT& strSrc)
{
    if (IsEmpty() && GetAllocLength() == 0)
        *this = strSrc;
    else
        Append(strSrc.m_pszData, strSrc.GetLength());
}

// ---- comparing and finding

template <class T>
int CStringT<T>::Compare(PCXSTR psz) const noexcept
{
    PCXSTR a = m_pszData;
    if (a == psz)
        return 0;
    PCXSTR b = or_empty(psz);
    while (*a == *b && *a != 0)
        ++a, ++b;
    using U = std::make_unsigned_t<std::conditional_t<std::is_same_v<T, char>, char, int>>;
    const auto ua = static_cast<U>(*a);
    const auto ub = static_cast<U>(*b);
    return ua == ub ? 0 : ua < ub ? -1 : 1;
}

template <class T>
int CStringT<T>::CompareNoCase(PCXSTR psz) const
{
    PCXSTR b = or_empty(psz);
    if constexpr (std::is_same_v<T, char>)
        return CStringT<wchar_t>(m_pszData).CompareNoCase(CStringT<wchar_t>(b));
    else
    {
        for (PCXSTR a = m_pszData;; ++a, ++b)
        {
            const auto ca = static_cast<unsigned>(*a == *b ? *a : platform::letters::fold(*a));
            const auto cb = static_cast<unsigned>(*a == *b ? *a : platform::letters::fold(*b));
            if (ca != cb)
                return ca < cb ? -1 : 1;
            if (*a == 0)
                return 0;
        }
    }
}

template <class T>
int CStringT<T>::Find(XCHAR ch, int iStart) const noexcept
{
    const int nLength = GetLength();
    if (iStart < 0 || iStart >= nLength)
        return -1;
    PCXSTR p = traits<T>::find(m_pszData + iStart, static_cast<std::size_t>(nLength - iStart), ch);
    return p == nullptr ? -1 : static_cast<int>(p - m_pszData);
}

template <class T>
int CStringT<T>::Find(PCXSTR pszSub, int iStart) const noexcept
{
    const int nLength = GetLength();
    if (iStart < 0 || iStart > nLength)
        return -1;
    const std::basic_string_view<T> text(m_pszData, static_cast<std::size_t>(nLength));
    const auto at = text.find(or_empty(pszSub), static_cast<std::size_t>(iStart));
    return at == std::basic_string_view<T>::npos ? -1 : static_cast<int>(at);
}

template <class T>
int CStringT<T>::FindOneOf(PCXSTR pszCharSet) const noexcept
{
    PCXSTR set = or_empty(pszCharSet);
    for (int i = 0; i < GetLength(); ++i)
        if (is_one_of(m_pszData[i], set))
            return i;
    return -1;
}

template <class T>
int CStringT<T>::ReverseFind(XCHAR ch) const noexcept
{
    int i = GetLength() - 1;
    while (i >= 0 && m_pszData[i] != ch)
        --i;
    return i;
}

// ---- parts

template <class T>
CStringT<T> CStringT<T>::Mid(int iFirst) const
{
    return Mid(iFirst, INT_MAX);
}

template <class T>
CStringT<T> CStringT<T>::Mid(int iFirst, int nCount) const
{
    const int nLength = GetLength();
    const int iFrom = std::clamp(iFirst, 0, nLength);
    const int nPart = std::clamp(nCount, 0, nLength - iFrom);
    return nPart == nLength ? *this : CStringT(m_pszData + iFrom, nPart);
}

template <class T>
CStringT<T> CStringT<T>::Left(int nCount) const
{
    return Mid(0, nCount);
}

template <class T>
CStringT<T> CStringT<T>::Right(int nCount) const
{
    const int nLength = GetLength();
    return Mid(nLength - std::clamp(nCount, 0, nLength));
}

template <class T>
CStringT<T> CStringT<T>::SpanIncluding(PCXSTR pszCharSet) const
{
    PCXSTR set = or_empty(pszCharSet);
    int n = 0;
    while (n < GetLength() && is_one_of(m_pszData[n], set))
        ++n;
    return Left(n);
}

template <class T>
CStringT<T> CStringT<T>::SpanExcluding(PCXSTR pszCharSet) const
{
    const int n = FindOneOf(pszCharSet);
    return n < 0 ? *this : Left(n);
}

template <class T>
CStringT<T> CStringT<T>::Tokenize(PCXSTR pszTokens, int& iStart) const
{
    if (iStart < 0)
        ThrowInvalidArg();
    PCXSTR set = or_empty(pszTokens);
    const int nLength = GetLength();
    int iFirst = std::min(iStart, nLength);
    while (iFirst < nLength && is_one_of(m_pszData[iFirst], set))
        ++iFirst;
    if (iFirst == nLength)
    {
        iStart = -1;
        return CStringT();
    }
    int iEnd = iFirst;
    while (iEnd < nLength && !is_one_of(m_pszData[iEnd], set))
        ++iEnd;
    iStart = std::min(iEnd + 1, nLength);
    return Mid(iFirst, iEnd - iFirst);
}

// ---- trimming

template <class T>
CStringT<T>& CStringT<T>::TrimRightTo(int nLength)
{
    if (nLength < GetLength())
    {
        if (nLength == 0)
            Empty();
        else
        {
            Prepare(GetLength(), true);
            SetLength(nLength);
        }
    }
    return *this;
}

template <class T>
CStringT<T>& CStringT<T>::TrimLeftTo(int iFirst)
{
    if (iFirst > 0)
        Delete(0, iFirst);
    return *this;
}

template <class T>
CStringT<T>& CStringT<T>::TrimRight()
{
    int n = GetLength();
    while (n > 0 && is_space(m_pszData[n - 1]))
        --n;
    return TrimRightTo(n);
}

template <class T>
CStringT<T>& CStringT<T>::TrimRight(XCHAR chTarget)
{
    int n = GetLength();
    while (n > 0 && m_pszData[n - 1] == chTarget)
        --n;
    return TrimRightTo(n);
}

template <class T>
CStringT<T>& CStringT<T>::TrimRight(PCXSTR pszTargets)
{
    PCXSTR set = or_empty(pszTargets);
    if (*set == 0)
        return TrimRight();
    int n = GetLength();
    while (n > 0 && is_one_of(m_pszData[n - 1], set))
        --n;
    return TrimRightTo(n);
}

template <class T>
CStringT<T>& CStringT<T>::TrimLeft()
{
    int i = 0;
    while (i < GetLength() && is_space(m_pszData[i]))
        ++i;
    return TrimLeftTo(i);
}

template <class T>
CStringT<T>& CStringT<T>::TrimLeft(XCHAR chTarget)
{
    int i = 0;
    while (i < GetLength() && m_pszData[i] == chTarget)
        ++i;
    return TrimLeftTo(i);
}

template <class T>
CStringT<T>& CStringT<T>::TrimLeft(PCXSTR pszTargets)
{
    PCXSTR set = or_empty(pszTargets);
    if (*set == 0)
        return TrimLeft();
    int i = 0;
    while (i < GetLength() && is_one_of(m_pszData[i], set))
        ++i;
    return TrimLeftTo(i);
}

template <class T>
CStringT<T>& CStringT<T>::Trim(PCXSTR pszTargets)
{
    const CStringT strTargets(pszTargets); // may be a part of the text that is trimmed
    return TrimRight(strTargets).TrimLeft(strTargets);
}

// ---- case

template <class T>
CStringT<T>& CStringT<T>::MakeUpper()
{
    if constexpr (std::is_same_v<T, char>)
        *this = CStringT<wchar_t>(*this).MakeUpper();
    else if (!IsEmpty())
    {
        Prepare(GetLength(), true);
        std::transform(m_pszData, m_pszData + GetLength(), m_pszData, platform::letters::upper);
    }
    return *this;
}

template <class T>
CStringT<T>& CStringT<T>::MakeLower()
{
    if constexpr (std::is_same_v<T, char>)
        *this = CStringT<wchar_t>(*this).MakeLower();
    else if (!IsEmpty())
    {
        Prepare(GetLength(), true);
        std::transform(m_pszData, m_pszData + GetLength(), m_pszData, platform::letters::lower);
    }
    return *this;
}

template <class T>
CStringT<T>& CStringT<T>::MakeReverse()
{
    if (!IsEmpty())
    {
        Prepare(GetLength(), true);
        std::reverse(m_pszData, m_pszData + GetLength());
    }
    return *this;
}

// ---- editing

template <class T>
int CStringT<T>::Replace(XCHAR chOld, XCHAR chNew)
{
    if (chOld == chNew || Find(chOld) < 0)
        return 0;
    Prepare(GetLength(), true);
    int nCount = 0;
    for (int i = 0; i < GetLength(); ++i)
        if (m_pszData[i] == chOld)
        {
            m_pszData[i] = chNew;
            ++nCount;
        }
    return nCount;
}

template <class T>
int CStringT<T>::Replace(PCXSTR pszOld, PCXSTR pszNew)
{
    const int nOld = StringLength(pszOld);
    const int nNew = StringLength(pszNew);
    if (nOld == 0)
        return 0;
    int nCount = 0;
    for (int i = Find(pszOld); i >= 0; i = Find(pszOld, i + nOld))
        ++nCount;
    if (nCount == 0)
        return 0;
    const long long nResult = GetLength() + static_cast<long long>(nNew - nOld) * nCount;
    if (nResult > max_length)
        AfxThrowMemoryException();
    CStringT strResult;
    strResult.Prepare(static_cast<int>(nResult), false);
    int iFrom = 0;
    PXSTR pTo = strResult.m_pszData;
    const auto append = [&pTo](PCXSTR p, int n) {
        traits<T>::copy(pTo, p, static_cast<std::size_t>(n));
        pTo += n;
    };
    for (int i = Find(pszOld); i >= 0; i = Find(pszOld, iFrom))
    {
        append(m_pszData + iFrom, i - iFrom);
        append(pszNew, nNew);
        iFrom = i + nOld;
    }
    append(m_pszData + iFrom, GetLength() - iFrom);
    strResult.SetLength(static_cast<int>(nResult));
    *this = std::move(strResult);
    return nCount;
}

template <class T>
int CStringT<T>::Remove(XCHAR chRemove)
{
    if (Find(chRemove) < 0)
        return 0;
    Prepare(GetLength(), true);
    const int nOld = GetLength();
    SetLength(static_cast<int>(std::remove(m_pszData, m_pszData + nOld, chRemove) - m_pszData));
    return nOld - GetLength();
}

// Replaces nOld characters at iIndex by nNew others; all arguments lie within the text's bounds.
template <class T>
void CStringT<T>::Splice(int iIndex, int nOld, PCXSTR pszNew, int nNew)
{
    const int nLength = GetLength();
    if (nNew > max_length - (nLength - nOld))
        AfxThrowMemoryException();
    const CStringT strKeep = Holds(pszNew) ? CStringT(pszNew, nNew) : CStringT();
    PCXSTR pszFrom = strKeep.IsEmpty() ? pszNew : strKeep.m_pszData;
    Prepare(std::max(nLength, nLength - nOld + nNew), true);
    PXSTR pAt = m_pszData + iIndex;
    traits<T>::move(pAt + nNew, pAt + nOld, static_cast<std::size_t>(nLength - iIndex - nOld));
    traits<T>::copy(pAt, pszFrom, static_cast<std::size_t>(nNew));
    SetLength(nLength - nOld + nNew);
}

template <class T>
int CStringT<T>::Insert(int iIndex, XCHAR ch)
{
    Splice(std::clamp(iIndex, 0, GetLength()), 0, &ch, 1);
    return GetLength();
}

template <class T>
int CStringT<T>::Insert(int iIndex, PCXSTR psz)
{
    const int n = StringLength(psz);
    if (n > 0)
        Splice(std::clamp(iIndex, 0, GetLength()), 0, psz, n);
    return GetLength();
}

template <class T>
int CStringT<T>::Delete(int iIndex, int nCount)
{
    const int nLength = GetLength();
    const int iFrom = std::max(iIndex, 0);
    if (iFrom < nLength && nCount > 0)
        Splice(iFrom, std::min(nCount, nLength - iFrom), Nil(), 0);
    return GetLength();
}

// ---- buffers

template <class T>
typename CStringT<T>::PXSTR CStringT<T>::GetBuffer()
{
    return GetBuffer(GetLength());
}

template <class T>
typename CStringT<T>::PXSTR CStringT<T>::GetBuffer(int nMinBufferLength)
{
    Prepare(std::max(nMinBufferLength, GetLength()), true);
    return m_pszData;
}

template <class T>
typename CStringT<T>::PXSTR CStringT<T>::GetBufferSetLength(int nLength)
{
    if (nLength < 0)
        ThrowInvalidArg();
    Prepare(nLength, true);
    SetLength(nLength);
    return m_pszData;
}

template <class T>
void CStringT<T>::ReleaseBuffer(int nNewLength)
{
    if (nNewLength == -1)
    {
        PCXSTR pEnd = traits<T>::find(m_pszData, static_cast<std::size_t>(GetAllocLength()), T());
        nNewLength = pEnd == nullptr ? GetAllocLength() : static_cast<int>(pEnd - m_pszData);
    }
    ReleaseBufferSetLength(nNewLength);
}

template <class T>
void CStringT<T>::ReleaseBufferSetLength(int nNewLength)
{
    if (nNewLength < 0 || nNewLength > GetAllocLength())
        ThrowInvalidArg();
    if (GetAllocLength() != 0)
        SetLength(nNewLength);
}

template <class T>
typename CStringT<T>::PXSTR CStringT<T>::LockBuffer()
{
    GetBuffer();
    GetData(m_pszData)->nRefs.store(-1, std::memory_order_relaxed);
    return m_pszData;
}

template <class T>
void CStringT<T>::UnlockBuffer() noexcept
{
    if (GetAllocLength() != 0)
        GetData(m_pszData)->nRefs.store(1, std::memory_order_relaxed);
}

template <class T>
void CStringT<T>::Preallocate(int nLength)
{
    Prepare(std::max(nLength, GetLength()), true);
}

template <class T>
void CStringT<T>::FreeExtra()
{
    if (IsEmpty())
        Empty();
    else if (GetAllocLength() > (GetLength() | 7))
        Release(std::exchange(m_pszData, Duplicate(m_pszData)));
}

template <class T>
void CStringT<T>::Truncate(int nNewLength)
{
    if (nNewLength < 0)
        ThrowInvalidArg();
    TrimRightTo(nNewLength);
}

template class CStringT<wchar_t>;
template class CStringT<char>;

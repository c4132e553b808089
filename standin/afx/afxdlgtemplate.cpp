#include "afxpriv.h"
#include "afxstate.h"

#include <cstring>

// template ::= head menu class title [font] item*       each item begins at a multiple of four
// menu, class ::= 0 | 0xFFFF ordinal | text NUL          title ::= text NUL
// font ::= size:WORD [weight:WORD italic:BYTE charset:BYTE] text NUL     in brackets: extended form only
// item ::= head class title extra:WORD byte*             title may be an ordinal here

namespace
{
struct ExtendedHead
{
    WORD dlgVer;
    WORD signature;
    DWORD helpID;
    DWORD exStyle;
    DWORD style;
    WORD cDlgItems;
    short x;
    short y;
    short cx;
    short cy;
};
constexpr UINT EXTENDED_HEAD = 26; // the structure above without its padding
constexpr UINT PLAIN_HEAD = 18;
constexpr UINT EXTENDED_ITEM_HEAD = 24;
constexpr UINT PLAIN_ITEM_HEAD = 18;

/// A place in a template, read and skipped piece by piece.
class Walker
{
public:
    explicit Walker(const DLGTEMPLATE* pTemplate)
        : m_pBegin(reinterpret_cast<const BYTE*>(pTemplate)), m_p(m_pBegin)
    {
    }

    UINT Offset() const { return static_cast<UINT>(m_p - m_pBegin); }
    const BYTE* Place() const { return m_p; }
    WORD Word() const
    {
        WORD w;
        std::memcpy(&w, m_p, sizeof(w));
        return w;
    }
    LPCWSTR Text() const { return reinterpret_cast<LPCWSTR>(m_p); }
    void Skip(UINT nBytes) { m_p += nBytes; }
    void SkipText() { Skip(static_cast<UINT>((::wcslen(Text()) + 1) * sizeof(WCHAR))); }
    void SkipNameOrOrdinal()
    {
        if (Word() == 0xFFFF)
            Skip(2 * sizeof(WORD));
        else
            SkipText();
    }
    void Align() { m_p = m_pBegin + ((Offset() + 3) & ~3u); }

private:
    const BYTE* m_pBegin;
    const BYTE* m_p;
};

bool IsExtended(const DLGTEMPLATE* p)
{
    return reinterpret_cast<const ExtendedHead*>(p)->signature == 0xFFFF;
}

} // namespace

DWORD AfxTemplateStyle(const DLGTEMPLATE* p)
{
    return IsExtended(p) ? reinterpret_cast<const ExtendedHead*>(p)->style : p->style;
}

CPoint AfxTemplatePlace(const DLGTEMPLATE* p)
{
    if (!IsExtended(p))
        return CPoint(p->x, p->y);
    const auto* pExtended = reinterpret_cast<const ExtendedHead*>(p);
    return CPoint(pExtended->x, pExtended->y);
}

void AfxSetTemplateStyle(DLGTEMPLATE* p, DWORD dwStyle, DWORD dwExStyle)
{
    if (IsExtended(p))
    {
        auto* pExtended = reinterpret_cast<ExtendedHead*>(p);
        pExtended->style = dwStyle;
        pExtended->exStyle = dwExStyle;
        return;
    }
    p->style = dwStyle;
    p->dwExtendedStyle = dwExStyle;
}

namespace
{
WORD ItemCount(const DLGTEMPLATE* p)
{
    return IsExtended(p) ? reinterpret_cast<const ExtendedHead*>(p)->cDlgItems : p->cdit;
}

bool NamesFont(const DLGTEMPLATE* p) { return (AfxTemplateStyle(p) & DS_SETFONT) != 0; }

/// Size, and in the extended form weight, italic and character set: what stands before the face name.
UINT FontHead(const DLGTEMPLATE* p) { return IsExtended(p) ? 3 * sizeof(WORD) : sizeof(WORD); }

Walker AtFont(const DLGTEMPLATE* p)
{
    Walker walker(p);
    walker.Skip(IsExtended(p) ? EXTENDED_HEAD : PLAIN_HEAD);
    walker.SkipNameOrOrdinal(); // menu
    walker.SkipNameOrOrdinal(); // class
    walker.SkipText();          // title
    return walker;
}

Walker AtFirstItem(const DLGTEMPLATE* p)
{
    Walker walker = AtFont(p);
    if (NamesFont(p))
    {
        walker.Skip(FontHead(p));
        walker.SkipText();
    }
    walker.Align();
    return walker;
}

const DLGTEMPLATE* Locked(HGLOBAL hTemplate)
{
    return static_cast<const DLGTEMPLATE*>(::GlobalLock(hTemplate));
}

/// The memory stays locked while the object lives.
class Lock
{
public:
    explicit Lock(HGLOBAL hTemplate) : m_hTemplate(hTemplate), p(hTemplate ? Locked(hTemplate) : nullptr) {}
    ~Lock()
    {
        if (p)
            ::GlobalUnlock(m_hTemplate);
    }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

private:
    HGLOBAL m_hTemplate;

public:
    const DLGTEMPLATE* const p;
};
} // namespace

CDialogTemplate::CDialogTemplate(const DLGTEMPLATE* pTemplate)
{
    if (pTemplate)
        SetTemplate(pTemplate, GetTemplateSize(pTemplate));
}

CDialogTemplate::CDialogTemplate(HGLOBAL hGlobal) : m_hTemplate(hGlobal)
{
    const Lock lock(hGlobal);
    if (!lock.p)
        return;
    m_dwTemplateSize = GetTemplateSize(lock.p);
    m_bSystemFont = !NamesFont(lock.p);
}

CDialogTemplate::~CDialogTemplate()
{
    if (m_hTemplate)
        ::GlobalFree(m_hTemplate);
}

UINT CDialogTemplate::GetTemplateSize(const DLGTEMPLATE* pTemplate)
{
    Walker walker = AtFirstItem(pTemplate);
    const bool bExtended = IsExtended(pTemplate);
    UINT nEnd = walker.Offset();
    for (WORD i = 0; i < ItemCount(pTemplate); ++i)
    {
        walker.Align();
        walker.Skip(bExtended ? EXTENDED_ITEM_HEAD : PLAIN_ITEM_HEAD);
        walker.SkipNameOrOrdinal(); // class
        walker.SkipNameOrOrdinal(); // title
        const WORD wExtra = walker.Word();
        walker.Skip(sizeof(WORD));
        // In the older form the count includes its own word.
        walker.Skip(bExtended || wExtra == 0 ? wExtra : wExtra - static_cast<UINT>(sizeof(WORD)));
        nEnd = walker.Offset();
    }
    return nEnd;
}

BOOL CDialogTemplate::SetTemplate(const DLGTEMPLATE* pTemplate, UINT cb)
{
    HGLOBAL hCopy = ::GlobalAlloc(GPTR, cb);
    if (!hCopy)
        return FALSE;
    std::memcpy(hCopy, pTemplate, cb); // fixed memory: the handle is its address, for those who do not lock
    if (m_hTemplate)
        ::GlobalFree(m_hTemplate);
    m_hTemplate = hCopy;
    m_dwTemplateSize = cb;
    m_bSystemFont = !NamesFont(pTemplate);
    return TRUE;
}

BOOL CDialogTemplate::Load(LPCTSTR lpDialogTemplateID)
{
    const HINSTANCE hInst = AfxFindResourceHandle(lpDialogTemplateID, RT_DIALOG);
    const HRSRC hResource = ::FindResourceW(hInst, lpDialogTemplateID, RT_DIALOG);
    const HGLOBAL hLoaded = hResource ? ::LoadResource(hInst, hResource) : nullptr;
    const auto* pTemplate = static_cast<const DLGTEMPLATE*>(hLoaded ? ::LockResource(hLoaded) : nullptr);
    return pTemplate && SetTemplate(pTemplate, ::SizeofResource(hInst, hResource));
}

HGLOBAL CDialogTemplate::Detach()
{
    m_dwTemplateSize = 0;
    return std::exchange(m_hTemplate, nullptr);
}

BOOL CDialogTemplate::HasFont() const
{
    const Lock lock(m_hTemplate);
    return lock.p && NamesFont(lock.p);
}

BOOL CDialogTemplate::GetFont(CString& strFaceName, WORD& nFontSize) const
{
    const Lock lock(m_hTemplate);
    return GetFont(lock.p, strFaceName, nFontSize);
}

BOOL CDialogTemplate::GetFont(const DLGTEMPLATE* pTemplate, CString& strFaceName, WORD& nFontSize)
{
    nFontSize = 0;
    if (!pTemplate || !NamesFont(pTemplate))
        return FALSE;
    Walker walker = AtFont(pTemplate);
    nFontSize = walker.Word();
    walker.Skip(FontHead(pTemplate));
    strFaceName = walker.Text();
    return TRUE;
}

namespace
{
constexpr UINT MAX_FONT_BYTES = 3 * sizeof(WORD) + LF_FACESIZE * sizeof(WCHAR);

/// The bytes of a font entry; \p pOld gives weight and character set when there was one.
UINT MakeFontEntry(BYTE* pEntry, const DLGTEMPLATE* pTemplate, const BYTE* pOld, LPCTSTR lpFaceName,
                   WORD nFontSize)
{
    const UINT nHead = FontHead(pTemplate);
    std::memcpy(pEntry, &nFontSize, sizeof(nFontSize));
    if (nHead > sizeof(WORD) && pOld)
        std::memcpy(pEntry + sizeof(WORD), pOld + sizeof(WORD), nHead - sizeof(WORD));
    else if (nHead > sizeof(WORD))
    {
        const WORD wWeight = FW_NORMAL;
        std::memcpy(pEntry + sizeof(WORD), &wWeight, sizeof(wWeight));
        pEntry[2 * sizeof(WORD)] = FALSE;
        pEntry[2 * sizeof(WORD) + 1] = DEFAULT_CHARSET;
    }
    WCHAR szFace[LF_FACESIZE];
    ::lstrcpynW(szFace, lpFaceName, LF_FACESIZE); // a longer name is no font's
    const UINT nText = static_cast<UINT>((::wcslen(szFace) + 1) * sizeof(WCHAR));
    std::memcpy(pEntry + nHead, szFace, nText);
    return nHead + nText;
}

/// The old template's bytes with the new font; the items behind it move. Answers the new length.
UINT CopyWithFont(BYTE* pNew, const DLGTEMPLATE* pOld, UINT nOldSize, LPCTSTR lpFaceName, WORD nFontSize)
{
    const auto* pOldBytes = reinterpret_cast<const BYTE*>(pOld);
    const UINT nFont = AtFont(pOld).Offset();
    const UINT nItemsOld = AtFirstItem(pOld).Offset();
    const UINT nItems = ItemCount(pOld) > 0 && nOldSize > nItemsOld ? nOldSize - nItemsOld : 0;
    std::memcpy(pNew, pOldBytes, nFont);
    const UINT nEntry = MakeFontEntry(pNew + nFont, pOld, NamesFont(pOld) ? pOldBytes + nFont : nullptr,
                                      lpFaceName, nFontSize);
    const UINT nItemsNew = (nFont + nEntry + 3) & ~3u;
    std::memcpy(pNew + nItemsNew, pOldBytes + nItemsOld, nItems);
    if (IsExtended(pOld))
        reinterpret_cast<ExtendedHead*>(pNew)->style |= DS_SETFONT;
    else
        reinterpret_cast<DLGTEMPLATE*>(pNew)->style |= DS_SETFONT;
    return nItemsNew + nItems;
}
} // namespace

BOOL CDialogTemplate::SetFont(LPCTSTR lpFaceName, WORD nFontSize)
{
    if (m_dwTemplateSize == 0 || !m_hTemplate)
        return FALSE;
    const HGLOBAL hNew = ::GlobalAlloc(GPTR, m_dwTemplateSize + MAX_FONT_BYTES + 4);
    if (!hNew)
        return FALSE;
    {
        const Lock old(m_hTemplate);
        m_dwTemplateSize =
            CopyWithFont(static_cast<BYTE*>(hNew), old.p, m_dwTemplateSize, lpFaceName, nFontSize);
    }
    ::GlobalFree(std::exchange(m_hTemplate, hNew));
    m_bSystemFont = FALSE;
    return TRUE;
}

BOOL CDialogTemplate::SetSystemFont(WORD nFontSize)
{
    LOGFONTW font{};
    if (::GetObjectW(::GetStockObject(DEFAULT_GUI_FONT), sizeof(font), &font) == 0)
        return FALSE;
    if (nFontSize == 0)
    {
        const HDC hScreen = ::GetDC(nullptr);
        const int nHeight = font.lfHeight < 0 ? -font.lfHeight : font.lfHeight;
        nFontSize = static_cast<WORD>(::MulDiv(nHeight, 72, ::GetDeviceCaps(hScreen, LOGPIXELSY)));
        ::ReleaseDC(nullptr, hScreen);
    }
    return SetFont(font.lfFaceName, nFontSize);
}

void CDialogTemplate::GetSizeInDialogUnits(SIZE* pSize) const
{
    *pSize = {0, 0};
    const Lock lock(m_hTemplate);
    if (!lock.p)
        return;
    if (IsExtended(lock.p))
    {
        const auto* pHead = reinterpret_cast<const ExtendedHead*>(lock.p);
        *pSize = {pHead->cx, pHead->cy};
    }
    else
        *pSize = {lock.p->cx, lock.p->cy};
}

void CDialogTemplate::GetSizeInPixels(SIZE* pSize) const
{
    GetSizeInDialogUnits(pSize);
    LOGFONTW font{};
    ::GetObjectW(::GetStockObject(SYSTEM_FONT), sizeof(font), &font);
    CString strFace;
    WORD wPoints = 0;
    const HDC hScreen = ::GetDC(nullptr);
    if (GetFont(strFace, wPoints))
    {
        font = {};
        font.lfHeight = -::MulDiv(wPoints, ::GetDeviceCaps(hScreen, LOGPIXELSY), 72);
        font.lfCharSet = DEFAULT_CHARSET;
        font.lfWeight = FW_NORMAL;
        ::lstrcpynW(font.lfFaceName, strFace, LF_FACESIZE);
    }
    CFont text;
    text.CreateFontIndirect(&font);
    const HGDIOBJ hFormer = ::SelectObject(hScreen, text);
    // A dialog unit is a quarter of the average character's width and an eighth of its height.
    constexpr wchar_t szLetters[] = L"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
    SIZE extent{};
    ::GetTextExtentPoint32W(hScreen, szLetters, 52, &extent);
    TEXTMETRICW metrics{};
    ::GetTextMetricsW(hScreen, &metrics);
    ::SelectObject(hScreen, hFormer);
    ::ReleaseDC(nullptr, hScreen);
    const int nAverage = (extent.cx / 26 + 1) / 2;
    *pSize = {::MulDiv(pSize->cx, nAverage, 4), ::MulDiv(pSize->cy, metrics.tmHeight, 8)};
}

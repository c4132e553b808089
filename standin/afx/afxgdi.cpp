#include "afxstate.h"

IMPLEMENT_DYNAMIC(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

CGdiObject::~CGdiObject() { DeleteObject(); }

CGdiObject* PASCAL CGdiObject::FromHandle(HGDIOBJ hObject)
{
    return AfxThreadState().objects.FromHandle(hObject);
}

BOOL CGdiObject::Attach(HGDIOBJ hObject)
{
    if (!hObject)
        return FALSE;
    Detach();
    m_hObject = hObject;
    AfxThreadState().objects.SetPermanent(hObject, this);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach()
{
    if (m_hObject)
        AfxThreadState().objects.Remove(m_hObject, this);
    return std::exchange(m_hObject, nullptr);
}

BOOL CGdiObject::DeleteObject() { return m_hObject ? ::DeleteObject(Detach()) : FALSE; }

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor)
{
    if (!CreatePen(nPenStyle, nWidth, crColor))
        AfxThrowResourceException();
}

CBrush::CBrush(COLORREF crColor)
{
    if (!CreateSolidBrush(crColor))
        AfxThrowResourceException();
}

BOOL CBrush::CreatePatternBrush(CBitmap* pBitmap) { return Attach(::CreatePatternBrush(*pBitmap)); }

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                       BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision,
                       BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename)
{
    return Attach(::CreateFontW(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic, bUnderline,
                                cStrikeOut, nCharSet, nOutPrecision, nClipPrecision, nQuality,
                                nPitchAndFamily, lpszFacename));
}

BOOL CFont::CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC)
{
    LOGFONTW font{};
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfHeight = nPointSize;
    ::lstrcpynW(font.lfFaceName, lpszFaceName, LF_FACESIZE);
    return CreatePointFontIndirect(&font, pDC);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC)
{
    const HDC hScreen = pDC ? nullptr : ::GetDC(nullptr);
    const HDC hDC = pDC ? pDC->m_hAttribDC : hScreen;
    LOGFONTW font = *lpLogFont;
    // 720 tenths of a point make an inch; the origin matters where the context is mapped.
    POINT size{0, ::MulDiv(::GetDeviceCaps(hDC, LOGPIXELSY), font.lfHeight, 720)};
    POINT origin{0, 0};
    ::DPtoLP(hDC, &size, 1);
    ::DPtoLP(hDC, &origin, 1);
    font.lfHeight = -std::abs(size.y - origin.y);
    if (hScreen)
        ::ReleaseDC(nullptr, hScreen);
    return CreateFontIndirect(&font);
}

BOOL CBitmap::LoadBitmap(LPCTSTR lpszResourceName)
{
    return Attach(::LoadBitmapW(AfxFindResourceHandle(lpszResourceName, RT_BITMAP), lpszResourceName));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight)
{
    return Attach(::CreateCompatibleBitmap(pDC->m_hDC, nWidth, nHeight));
}

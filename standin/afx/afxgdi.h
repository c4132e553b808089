#pragma once

#include "afxrect.h"

class CDC;

/// Base of the drawing objects: owner of one GDI handle. The destructor deletes the handle; Detach gives it
/// up. An object from FromHandle that nobody attached is temporary: it does not own its handle, and it
/// is gone after the application's next idle time.
class AFX_API CGdiObject : public CObject
{
    DECLARE_DYNAMIC(CGdiObject)

public:
    CGdiObject() = default;
    ~CGdiObject() override;
    CGdiObject(const CGdiObject&) = delete;
    CGdiObject& operator=(const CGdiObject&) = delete;

    HGDIOBJ m_hObject = nullptr; ///< first and only data member: temporary objects are seen as any kind

    operator HGDIOBJ() const { return m_hObject; }
    /// The handle, also of a null object pointer.
    HGDIOBJ GetSafeHandle() const { return HandleOf(AfxOpaque(this)); }

    /// The object attached to the handle or a temporary one; null for a null handle.
    static CGdiObject* PASCAL FromHandle(HGDIOBJ hObject);
    /// FALSE for a null handle. A handle already held is given up, not deleted.
    BOOL Attach(HGDIOBJ hObject);
    HGDIOBJ Detach();
    /// FALSE when there is no handle or it is selected somewhere.
    BOOL DeleteObject();

    int GetObject(int nCount, LPVOID lpObject) const { return ::GetObjectW(m_hObject, nCount, lpObject); }
    UINT GetObjectType() const { return ::GetObjectType(m_hObject); }
    BOOL CreateStockObject(int nIndex) { return Attach(::GetStockObject(nIndex)); }
    BOOL UnrealizeObject() { return ::UnrealizeObject(m_hObject); }
    bool operator==(const CGdiObject& obj) const { return obj.m_hObject == m_hObject; }
    bool operator!=(const CGdiObject& obj) const { return obj.m_hObject != m_hObject; }

private:
    static HGDIOBJ HandleOf(const CGdiObject* pObject) { return pObject ? pObject->m_hObject : nullptr; }
};

class AFX_API CPen : public CGdiObject
{
    DECLARE_DYNAMIC(CPen)

public:
    CPen() = default;
    /// Throws CResourceException when no pen can be made.
    CPen(int nPenStyle, int nWidth, COLORREF crColor);
    operator HPEN() const { return static_cast<HPEN>(m_hObject); }
    static CPen* PASCAL FromHandle(HPEN hPen) { return static_cast<CPen*>(CGdiObject::FromHandle(hPen)); }
    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor)
    {
        return Attach(::CreatePen(nPenStyle, nWidth, crColor));
    }
    BOOL CreatePenIndirect(LPLOGPEN lpLogPen) { return Attach(::CreatePenIndirect(lpLogPen)); }
    int GetLogPen(LOGPEN* pLogPen) { return GetObject(sizeof(LOGPEN), pLogPen); }
};

class AFX_API CBrush : public CGdiObject
{
    DECLARE_DYNAMIC(CBrush)

public:
    CBrush() = default;
    /// Throws CResourceException when no brush can be made.
    explicit CBrush(COLORREF crColor);
    operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }
    static CBrush* PASCAL FromHandle(HBRUSH hBrush)
    {
        return static_cast<CBrush*>(CGdiObject::FromHandle(hBrush));
    }
    BOOL CreateSolidBrush(COLORREF crColor) { return Attach(::CreateSolidBrush(crColor)); }
    BOOL CreateHatchBrush(int nIndex, COLORREF crColor)
    {
        return Attach(::CreateHatchBrush(nIndex, crColor));
    }
    BOOL CreateBrushIndirect(const LOGBRUSH* lpLogBrush) { return Attach(::CreateBrushIndirect(lpLogBrush)); }
    BOOL CreatePatternBrush(class CBitmap* pBitmap);
    BOOL CreateSysColorBrush(int nIndex) { return Attach(::GetSysColorBrush(nIndex)); }
    int GetLogBrush(LOGBRUSH* pLogBrush) { return GetObject(sizeof(LOGBRUSH), pLogBrush); }
};

class AFX_API CFont : public CGdiObject
{
    DECLARE_DYNAMIC(CFont)

public:
    operator HFONT() const { return static_cast<HFONT>(m_hObject); }
    static CFont* PASCAL FromHandle(HFONT hFont)
    {
        return static_cast<CFont*>(CGdiObject::FromHandle(hFont));
    }
    BOOL CreateFontIndirect(const LOGFONT* lpLogFont) { return Attach(::CreateFontIndirectW(lpLogFont)); }
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                    BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                    BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename);
    /// \p nPointSize in tenths of a point; \p pDC gives the resolution, the screen when null.
    BOOL CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC = nullptr);
    /// The same with the size in lfHeight.
    BOOL CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC = nullptr);
    int GetLogFont(LOGFONT* pLogFont) { return GetObject(sizeof(LOGFONT), pLogFont); }
};

class AFX_API CBitmap : public CGdiObject
{
    DECLARE_DYNAMIC(CBitmap)

public:
    operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }
    static CBitmap* PASCAL FromHandle(HBITMAP hBitmap)
    {
        return static_cast<CBitmap*>(CGdiObject::FromHandle(hBitmap));
    }
    /// From the module that AfxFindResourceHandle names.
    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    BOOL LoadBitmap(UINT nIDResource) { return LoadBitmap(MAKEINTRESOURCEW(nIDResource)); }
    BOOL LoadOEMBitmap(UINT nIDBitmap) { return Attach(::LoadBitmapW(nullptr, MAKEINTRESOURCEW(nIDBitmap))); }
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits)
    {
        return Attach(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
    }
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    int GetBitmap(BITMAP* pBitMap) { return GetObject(sizeof(BITMAP), pBitMap); }
};

class AFX_API CRgn : public CGdiObject
{
    DECLARE_DYNAMIC(CRgn)

public:
    operator HRGN() const { return static_cast<HRGN>(m_hObject); }
    static CRgn* PASCAL FromHandle(HRGN hRgn) { return static_cast<CRgn*>(CGdiObject::FromHandle(hRgn)); }
    BOOL CreateRectRgn(int x1, int y1, int x2, int y2) { return Attach(::CreateRectRgn(x1, y1, x2, y2)); }
    BOOL CreateRectRgnIndirect(LPCRECT lpRect) { return Attach(::CreateRectRgnIndirect(lpRect)); }
    int CombineRgn(CRgn* pRgn1, CRgn* pRgn2, int nCombineMode)
    {
        return ::CombineRgn(*this, *pRgn1, *pRgn2, nCombineMode);
    }
    int GetRgnBox(LPRECT lpRect) const { return ::GetRgnBox(*this, lpRect); }
    BOOL PtInRegion(POINT point) const { return ::PtInRegion(*this, point.x, point.y); }
};

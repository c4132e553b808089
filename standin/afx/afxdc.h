#pragma once

#include "afxgdi.h"

class CWnd;

/// A device context. The destructor deletes the context it owns; the window's contexts below release
/// theirs. An object from FromHandle is temporary, as CGdiObject's.
///
/// Text functions take CString or a pointer and a length (-1 up to the NUL). Select functions return what
/// was selected before, null on failure; select it back before the new object is deleted.
class AFX_API CDC : public CObject
{
    DECLARE_DYNCREATE(CDC)

public:
    CDC() = default;
    ~CDC() override;
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;

    HDC m_hDC = nullptr;       ///< where output goes
    HDC m_hAttribDC = nullptr; ///< where questions go; the same context unless set otherwise

    operator HDC() const { return m_hDC; }
    HDC GetSafeHdc() const { return HandleOf(AfxOpaque(this)); }
    static CDC* PASCAL FromHandle(HDC hDC);
    BOOL Attach(HDC hDC);
    HDC Detach();
    void SetAttribDC(HDC hDC) { m_hAttribDC = hDC; }
    void ReleaseAttribDC() { m_hAttribDC = nullptr; }
    /// The window that the context draws on, null for a memory context.
    CWnd* GetWindow() const;

    BOOL CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData)
    {
        return Attach(::CreateDCW(lpszDriverName, lpszDeviceName, lpszOutput,
                                  static_cast<const DEVMODEW*>(lpInitData)));
    }
    /// A memory context like \p pDC, or like the screen when null.
    BOOL CreateCompatibleDC(CDC* pDC) { return Attach(::CreateCompatibleDC(HandleOf(pDC))); }
    BOOL DeleteDC();
    int SaveDC() { return ::SaveDC(m_hDC); }
    BOOL RestoreDC(int nSavedDC) { return ::RestoreDC(m_hDC, nSavedDC); }
    int GetDeviceCaps(int nIndex) const { return ::GetDeviceCaps(m_hAttribDC, nIndex); }

    CGdiObject* SelectStockObject(int nIndex)
    {
        return CGdiObject::FromHandle(::SelectObject(m_hDC, ::GetStockObject(nIndex)));
    }
    CPen* SelectObject(CPen* pPen) { return static_cast<CPen*>(Select(pPen)); }
    CBrush* SelectObject(CBrush* pBrush) { return static_cast<CBrush*>(Select(pBrush)); }
    CFont* SelectObject(CFont* pFont) { return static_cast<CFont*>(Select(pFont)); }
    CBitmap* SelectObject(CBitmap* pBitmap) { return static_cast<CBitmap*>(Select(pBitmap)); }
    /// The complexity of the region (a number), not the former region.
    int SelectObject(CRgn* pRgn) { return ::SelectClipRgn(m_hDC, *pRgn); }
    CGdiObject* SelectObject(CGdiObject* pObject) { return Select(pObject); }
    HGDIOBJ SelectObject(HGDIOBJ hObject) { return ::SelectObject(m_hDC, hObject); }
    CFont* GetCurrentFont() const
    {
        return CFont::FromHandle(static_cast<HFONT>(::GetCurrentObject(m_hDC, OBJ_FONT)));
    }
    CBitmap* GetCurrentBitmap() const
    {
        return CBitmap::FromHandle(static_cast<HBITMAP>(::GetCurrentObject(m_hDC, OBJ_BITMAP)));
    }

    COLORREF GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
    COLORREF GetTextColor() const { return ::GetTextColor(m_hAttribDC); }
    int GetBkMode() const { return ::GetBkMode(m_hAttribDC); }
    int GetROP2() const { return ::GetROP2(m_hAttribDC); }
    UINT GetTextAlign() const { return ::GetTextAlign(m_hAttribDC); }
    COLORREF SetBkColor(COLORREF crColor) { return ::SetBkColor(m_hDC, crColor); }
    COLORREF SetTextColor(COLORREF crColor) { return ::SetTextColor(m_hDC, crColor); }
    int SetBkMode(int nBkMode) { return ::SetBkMode(m_hDC, nBkMode); }
    int SetROP2(int nDrawMode) { return ::SetROP2(m_hDC, nDrawMode); }
    UINT SetTextAlign(UINT nFlags) { return ::SetTextAlign(m_hDC, nFlags); }
    int SetStretchBltMode(int nStretchMode) { return ::SetStretchBltMode(m_hDC, nStretchMode); }
    int SetMapMode(int nMapMode) { return ::SetMapMode(m_hDC, nMapMode); }
    int GetMapMode() const { return ::GetMapMode(m_hAttribDC); }
    CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT point) { return SetViewportOrg(point.x, point.y); }
    CPoint SetWindowOrg(int x, int y);
    CPoint SetBrushOrg(int x, int y);
    void LPtoDP(LPPOINT lpPoints, int nCount = 1) const { ::LPtoDP(m_hAttribDC, lpPoints, nCount); }
    void DPtoLP(LPPOINT lpPoints, int nCount = 1) const { ::DPtoLP(m_hAttribDC, lpPoints, nCount); }

    int GetClipBox(LPRECT lpRect) const { return ::GetClipBox(m_hDC, lpRect); }
    BOOL PtVisible(int x, int y) const { return ::PtVisible(m_hDC, x, y); }
    BOOL RectVisible(LPCRECT lpRect) const { return ::RectVisible(m_hDC, lpRect); }
    int SelectClipRgn(CRgn* pRgn)
    {
        return ::SelectClipRgn(m_hDC, pRgn ? static_cast<HRGN>(*pRgn) : nullptr);
    }
    int ExcludeClipRect(LPCRECT lpRect)
    {
        return ::ExcludeClipRect(m_hDC, lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    int IntersectClipRect(LPCRECT lpRect)
    {
        return ::IntersectClipRect(m_hDC, lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }

    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y) { return ::LineTo(m_hDC, x, y); }
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    BOOL Polyline(const POINT* lpPoints, int nCount) { return ::Polyline(m_hDC, lpPoints, nCount); }
    BOOL Polygon(const POINT* lpPoints, int nCount) { return ::Polygon(m_hDC, lpPoints, nCount); }
    BOOL Rectangle(int x1, int y1, int x2, int y2) { return ::Rectangle(m_hDC, x1, y1, x2, y2); }
    BOOL Rectangle(LPCRECT lpRect)
    {
        return Rectangle(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    BOOL RoundRect(LPCRECT lpRect, POINT point)
    {
        return ::RoundRect(m_hDC, lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, point.x, point.y);
    }
    BOOL Ellipse(LPCRECT lpRect)
    {
        return ::Ellipse(m_hDC, lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    COLORREF SetPixel(int x, int y, COLORREF crColor) { return ::SetPixel(m_hDC, x, y, crColor); }

    void FillRect(LPCRECT lpRect, CBrush* pBrush) { ::FillRect(m_hDC, lpRect, *pBrush); }
    void FrameRect(LPCRECT lpRect, CBrush* pBrush) { ::FrameRect(m_hDC, lpRect, *pBrush); }
    void InvertRect(LPCRECT lpRect) { ::InvertRect(m_hDC, lpRect); }
    /// Fills with the colour; the background colour is then that colour.
    void FillSolidRect(LPCRECT lpRect, COLORREF clr);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr)
    {
        FillSolidRect(CRect(x, y, x + cx, y + cy), clr);
    }
    /// A frame of one pixel, left and top in one colour, right and bottom in the other.
    void Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight);
    BOOL DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags) { return ::DrawEdge(m_hDC, lpRect, nEdge, nFlags); }
    BOOL DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState)
    {
        return ::DrawFrameControl(m_hDC, lpRect, nType, nState);
    }
    void DrawFocusRect(LPCRECT lpRect) { ::DrawFocusRect(m_hDC, lpRect); }
    BOOL DrawIcon(int x, int y, HICON hIcon) { return ::DrawIcon(m_hDC, x, y, hIcon); }
    BOOL DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText = TRUE,
                   int nTextLen = 0, HBRUSH hBrush = nullptr);
    BOOL PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop)
    {
        return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
    }
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop)
    {
        return ::BitBlt(m_hDC, x, y, nWidth, nHeight, HandleOf(pSrcDC), xSrc, ySrc, dwRop);
    }
    BOOL StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                    int nSrcHeight, DWORD dwRop)
    {
        return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, HandleOf(pSrcDC), xSrc, ySrc, nSrcWidth, nSrcHeight,
                            dwRop);
    }
    BOOL GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nMeshElements, DWORD dwMode)
    {
        return ::GradientFill(m_hDC, pVertices, nVertices, pMesh, nMeshElements, dwMode);
    }

    BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount)
    {
        return ::TextOutW(m_hDC, x, y, lpszString, nCount);
    }
    BOOL TextOut(int x, int y, const CString& str) { return TextOut(x, y, str, str.GetLength()); }
    BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                    LPINT lpDxWidths)
    {
        return ::ExtTextOutW(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
    }
    BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str, LPINT lpDxWidths)
    {
        return ExtTextOut(x, y, nOptions, lpRect, str, static_cast<UINT>(str.GetLength()), lpDxWidths);
    }
    int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat)
    {
        return ::DrawTextW(m_hDC, lpszString, nCount, lpRect, nFormat);
    }
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat)
    {
        return DrawText(str, str.GetLength(), lpRect, nFormat);
    }
    CSize GetTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetTextExtent(const CString& str) const { return GetTextExtent(str, str.GetLength()); }
    CSize GetOutputTextExtent(const CString& str) const;
    BOOL GetTextMetrics(TEXTMETRIC* lpMetrics) const { return ::GetTextMetricsW(m_hAttribDC, lpMetrics); }
    int GetTextFace(CString& rString) const;

private:
    static HDC HandleOf(const CDC* pDC) { return pDC ? pDC->m_hDC : nullptr; }
    CGdiObject* Select(CGdiObject* pObject);
};

/// The context of one BeginPaint and EndPaint; for use in a handler of WM_PAINT only. Like the two below
/// the constructor throws CResourceException when there is no context.
class AFX_API CPaintDC : public CDC
{
    DECLARE_DYNAMIC(CPaintDC)

public:
    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;
    PAINTSTRUCT m_ps{};

protected:
    HWND m_hWnd;
};

/// The client area of a window, or the screen for null.
class AFX_API CClientDC : public CDC
{
    DECLARE_DYNAMIC(CClientDC)

public:
    explicit CClientDC(CWnd* pWnd);
    ~CClientDC() override;

protected:
    HWND m_hWnd;
};

/// A whole window with its frame, or the screen for null.
class AFX_API CWindowDC : public CDC
{
    DECLARE_DYNAMIC(CWindowDC)

public:
    explicit CWindowDC(CWnd* pWnd);
    ~CWindowDC() override;

protected:
    HWND m_hWnd;
};

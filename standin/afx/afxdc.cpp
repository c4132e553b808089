#include "afxstate.h"

IMPLEMENT_DYNCREATE(CDC, CObject)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)

CDC::~CDC() { DeleteDC(); }

CDC* PASCAL CDC::FromHandle(HDC hDC)
{
    CDC* pDC = AfxThreadState().contexts.FromHandle(hDC);
    if (pDC && !pDC->m_hAttribDC)
        pDC->m_hAttribDC = hDC;
    return pDC;
}

BOOL CDC::Attach(HDC hDC)
{
    if (!hDC)
        return FALSE;
    Detach();
    m_hDC = m_hAttribDC = hDC;
    AfxThreadState().contexts.SetPermanent(hDC, this);
    return TRUE;
}

HDC CDC::Detach()
{
    if (m_hDC)
        AfxThreadState().contexts.Remove(m_hDC, this);
    m_hAttribDC = nullptr;
    return std::exchange(m_hDC, nullptr);
}

BOOL CDC::DeleteDC() { return m_hDC ? ::DeleteDC(Detach()) : FALSE; }

CWnd* CDC::GetWindow() const { return CWnd::FromHandle(::WindowFromDC(m_hDC)); }

CGdiObject* CDC::Select(CGdiObject* pObject)
{
    return CGdiObject::FromHandle(::SelectObject(m_hDC, pObject ? pObject->m_hObject : nullptr));
}

CPoint CDC::SetViewportOrg(int x, int y)
{
    CPoint former;
    ::SetViewportOrgEx(m_hDC, x, y, &former);
    return former;
}

CPoint CDC::SetWindowOrg(int x, int y)
{
    CPoint former;
    ::SetWindowOrgEx(m_hDC, x, y, &former);
    return former;
}

CPoint CDC::SetBrushOrg(int x, int y)
{
    CPoint former;
    ::SetBrushOrgEx(m_hDC, x, y, &former);
    return former;
}

CPoint CDC::MoveTo(int x, int y)
{
    CPoint former;
    ::MoveToEx(m_hDC, x, y, &former);
    return former;
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr)
{
    ::SetBkColor(m_hDC, clr);
    ::ExtTextOutW(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
}

void CDC::Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    const CRect r(lpRect);
    FillSolidRect(r.left, r.top, r.Width() - 1, 1, clrTopLeft);
    FillSolidRect(r.left, r.top, 1, r.Height() - 1, clrTopLeft);
    FillSolidRect(r.right - 1, r.top, 1, r.Height(), clrBottomRight);
    FillSolidRect(r.left, r.bottom - 1, r.Width(), 1, clrBottomRight);
}

BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText, int nTextLen,
                    HBRUSH hBrush)
{
    return ::DrawStateW(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(lpszText),
                        static_cast<WPARAM>(nTextLen), pt.x, pt.y, size.cx, size.cy,
                        nFlags | (bPrefixText ? DST_PREFIXTEXT : DST_TEXT));
}

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const
{
    CSize size;
    ::GetTextExtentPoint32W(m_hAttribDC, lpszString, nCount, &size);
    return size;
}

CSize CDC::GetOutputTextExtent(const CString& str) const
{
    CSize size;
    ::GetTextExtentPoint32W(m_hDC, str, str.GetLength(), &size);
    return size;
}

int CDC::GetTextFace(CString& rString) const
{
    WCHAR szFace[LF_FACESIZE * 2] = {};
    ::GetTextFaceW(m_hAttribDC, static_cast<int>(std::size(szFace)), szFace);
    rString = szFace;
    return rString.GetLength();
}

CPaintDC::CPaintDC(CWnd* pWnd) : m_hWnd(pWnd->m_hWnd)
{
    if (!Attach(::BeginPaint(m_hWnd, &m_ps)))
        AfxThrowResourceException();
}

CPaintDC::~CPaintDC()
{
    Detach();
    ::EndPaint(m_hWnd, &m_ps);
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(CWnd::SafeHandle(pWnd))
{
    if (!Attach(::GetDC(m_hWnd)))
        AfxThrowResourceException();
}

CClientDC::~CClientDC() { ::ReleaseDC(m_hWnd, Detach()); }

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(CWnd::SafeHandle(pWnd))
{
    if (!Attach(::GetWindowDC(m_hWnd)))
        AfxThrowResourceException();
}

CWindowDC::~CWindowDC() { ::ReleaseDC(m_hWnd, Detach()); }

#pragma once

#include <afxtempl.h>
#include <afxwin.h>

#include "bcgpexport.h"

#include <set>

/// The background and the text colour of one of the toolkit's windows: the visual manager's while the style
/// is on, a colour of its own when it has one, else the system's. Part of each of them; not for programs.
class BCGP_API CBCGPWindowStyle
{
public:
    explicit CBCGPWindowStyle(CWnd* pWnd) : m_pWnd(pWnd) {}
    ~CBCGPWindowStyle();
    CBCGPWindowStyle(const CBCGPWindowStyle&) = delete;
    CBCGPWindowStyle& operator=(const CBCGPWindowStyle&) = delete;

    void Enable(BOOL bEnable, BOOL bNCArea, const CList<UINT, UINT>* plstPlain);
    BOOL IsEnabled() const { return m_bEnabled; }
    BOOL IsNCArea() const { return m_bEnabled && m_bNCArea; }
    /// CLR_INVALID takes the window's own colour away.
    void SetBackground(COLORREF color, BOOL bRepaint);

    /// WM_ERASEBKGND: FALSE when the background is the system's.
    BOOL Erase(CDC* pDC);
    /// WM_CTLCOLOR: the control's own handler first; null when the colours are the system's.
    HBRUSH Colour(CDC* pDC, CWnd* pCtl, UINT nCtlColor);
    void OnSystemColours();

    static void RedrawAll();

private:
    void Redraw() const;
    BOOL IsColoured(CWnd* pCtl, UINT nCtlColor) const;

    CWnd* m_pWnd;
    BOOL m_bEnabled = FALSE;
    BOOL m_bNCArea = FALSE;
    std::set<int> m_plain; // controls that keep the system's colours
    COLORREF m_clrOwn = CLR_INVALID;
    CBrush m_brOwn;
};

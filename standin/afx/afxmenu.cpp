#include "afxstate.h"

IMPLEMENT_DYNCREATE(CMenu, CObject)

CMenu::~CMenu() { DestroyMenu(); }

CMenu* PASCAL CMenu::FromHandle(HMENU hMenu) { return AfxThreadState().menus.FromHandle(hMenu); }

BOOL CMenu::Attach(HMENU hMenu)
{
    if (!hMenu)
        return FALSE;
    Detach();
    m_hMenu = hMenu;
    AfxThreadState().menus.SetPermanent(hMenu, this);
    return TRUE;
}

HMENU CMenu::Detach()
{
    if (m_hMenu)
        AfxThreadState().menus.Remove(m_hMenu, this);
    return std::exchange(m_hMenu, nullptr);
}

BOOL CMenu::DestroyMenu() { return m_hMenu ? ::DestroyMenu(Detach()) : FALSE; }

BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName)
{
    return Attach(::LoadMenuW(AfxFindResourceHandle(lpszResourceName, RT_MENU), lpszResourceName));
}

int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const
{
    const int nLength = ::GetMenuStringW(m_hMenu, nIDItem, nullptr, 0, nFlags);
    if (nLength <= 0)
    {
        rString.Empty();
        return 0;
    }
    ::GetMenuStringW(m_hMenu, nIDItem, rString.GetBuffer(nLength), nLength + 1, nFlags);
    rString.ReleaseBuffer();
    return rString.GetLength();
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect)
{
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, CWnd::SafeHandle(pWnd), lpRect);
}

BOOL CMenu::TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm)
{
    return ::TrackPopupMenuEx(m_hMenu, fuFlags, x, y, CWnd::SafeHandle(pWnd), lptpm);
}

void CMenu::DrawItem(LPDRAWITEMSTRUCT) {}
void CMenu::MeasureItem(LPMEASUREITEMSTRUCT) {}

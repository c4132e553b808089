#pragma once

/// What dialogs and property sheets share. Not for users of the framework.

#include "afxstate.h"

/// Which window a modal dialog belongs to and which windows it keeps from the user while it runs.
class AfxModalOwner
{
public:
    explicit AfxModalOwner(HWND hParent)
    {
        const bool bGiven = hParent != nullptr;
        if (!bGiven)
            hParent = CWnd::SafeHandle(AfxGetMainWnd());
        while (hParent && (::GetWindowLongPtrW(hParent, GWL_STYLE) & WS_CHILD))
            hParent = ::GetParent(hParent);
        HWND hTop = hParent;
        for (HWND hWnd = hParent; hWnd; hWnd = ::GetParent(hWnd))
            hTop = hWnd;
        if (!bGiven && hParent)
            hParent = ::GetLastActivePopup(hParent);
        m_hOwner = hParent;
        Disable(m_bOwner, hParent);
        m_hTop = hTop != hParent ? hTop : nullptr;
        Disable(m_bTop, m_hTop);
    }
    ~AfxModalOwner() { Release(); }
    AfxModalOwner(const AfxModalOwner&) = delete;
    AfxModalOwner& operator=(const AfxModalOwner&) = delete;

    HWND Handle() const { return m_hOwner; }
    void Release()
    {
        if (std::exchange(m_bOwner, false))
            ::EnableWindow(m_hOwner, TRUE);
        if (std::exchange(m_bTop, false))
            ::EnableWindow(m_hTop, TRUE);
    }

private:
    static void Disable(bool& bDone, HWND hWnd)
    {
        bDone = hWnd && hWnd != ::GetDesktopWindow() && ::IsWindowEnabled(hWnd);
        if (bDone)
            ::EnableWindow(hWnd, FALSE);
    }

    HWND m_hOwner;
    HWND m_hTop;
    bool m_bOwner = false; // disabled by this object
    bool m_bTop = false;
};

/// A menu's command that a dialog does not handle goes to its owner and to the application.
BOOL AfxRouteToOwner(CWnd* pWnd, UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);
/// The dialog procedure of windows that have an object: OnInitDialog, and else nothing.
INT_PTR CALLBACK AfxDlgProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

#include "afxmsgmap.h"
#include "afxstate.h"

#include <algorithm>

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
ON_WM_NCDESTROY()
ON_WM_CTLCOLOR()
ON_WM_HSCROLL()
ON_WM_VSCROLL()
ON_WM_DRAWITEM()
ON_WM_MEASUREITEM()
ON_WM_COMPAREITEM()
ON_WM_DELETEITEM()
ON_WM_PARENTNOTIFY()
END_MESSAGE_MAP()

CWnd::~CWnd()
{
    if (m_hWnd && FromHandlePermanent(m_hWnd) == this)
        CWnd::DestroyWindow();
    AfxLifeLine::Cut(this);
}

CWnd* PASCAL CWnd::FromHandle(HWND hWnd) { return AfxThreadState().windows.FromHandle(hWnd); }
CWnd* PASCAL CWnd::FromHandlePermanent(HWND hWnd) { return AfxThreadState().windows.LookupPermanent(hWnd); }

BOOL CWnd::Attach(HWND hWndNew)
{
    if (!hWndNew)
        return FALSE;
    Detach();
    m_hWnd = hWndNew;
    AfxThreadState().windows.SetPermanent(hWndNew, this);
    return TRUE;
}

HWND CWnd::Detach()
{
    if (m_hWnd)
        AfxThreadState().windows.Remove(m_hWnd, this);
    return std::exchange(m_hWnd, nullptr);
}

namespace
{
WNDPROC SetProcedure(HWND hWnd, WNDPROC pfn)
{
    return reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(pfn)));
}
} // namespace

void AfxWndAccess::Adopt(CWnd* pWnd, HWND hWnd)
{
    pWnd->Attach(hWnd);
    pWnd->PreSubclassWindow();
    if (pWnd->m_hWnd != hWnd)
        return; // the object did not want it
    const WNDPROC pfnFormer = SetProcedure(hWnd, AfxWndProc);
    WNDPROC* ppfnShared = pWnd->GetSuperWndProcAddr();
    if (pfnFormer != AfxWndProc)
        pWnd->m_pfnSuper = pfnFormer;
    if (ppfnShared && !*ppfnShared)
        *ppfnShared = pWnd->m_pfnSuper;
}

BOOL CWnd::SubclassWindow(HWND hWnd)
{
    if (!::IsWindow(hWnd) || FromHandlePermanent(hWnd))
        return FALSE;
    AfxWndAccess::Adopt(this, hWnd);
    return m_hWnd == hWnd;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent)
{
    const HWND hWnd = ::GetDlgItem(SafeHandle(pParent), static_cast<int>(nID));
    return hWnd ? SubclassWindow(hWnd) : FALSE;
}

HWND CWnd::UnsubclassWindow()
{
    if (!m_hWnd)
        return nullptr;
    if (m_pfnSuper)
        SetProcedure(m_hWnd, m_pfnSuper);
    m_pfnSuper = nullptr;
    return Detach();
}

BOOL CWnd::DestroyWindow()
{
    const HWND hWnd = m_hWnd;
    if (!hWnd)
        return FALSE;
    const BOOL bDone = ::DestroyWindow(hWnd);
    // The object may be gone by now. A window that was only attached has told it nothing.
    if (bDone && FromHandlePermanent(hWnd) == this)
        Detach();
    return bDone;
}

void CWnd::OnNcDestroy()
{
    if (CWinThread* pThread = AfxGetThread())
    {
        if (pThread->m_pMainWnd == this)
        {
            pThread->m_pMainWnd = nullptr;
            AfxPostQuitMessage(0);
        }
        if (pThread->m_pActiveWnd == this)
            pThread->m_pActiveWnd = nullptr;
    }
    Default();
    if (m_pfnSuper && reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(m_hWnd, GWLP_WNDPROC)) == AfxWndProc)
        SetProcedure(m_hWnd, m_pfnSuper);
    m_pfnSuper = nullptr;
    Detach();
    EndModalLoops();
    PostNcDestroy();
}

CWnd* CWnd::GetOwner() const { return FromHandle(m_hWndOwner ? m_hWndOwner : ::GetParent(m_hWnd)); }

CWnd* CWnd::GetTopLevelParent() const
{
    HWND hWnd = m_hWnd;
    while (const HWND hParent = ::GetParent(hWnd)) // parent of a child, owner of a popup
        hWnd = hParent;
    return FromHandle(hWnd);
}

CWnd* CWnd::GetTopLevelOwner() const
{
    HWND hWnd = m_hWnd;
    while (const HWND hOwner = ::GetWindow(hWnd, GW_OWNER))
        hWnd = hOwner;
    return FromHandle(hWnd);
}

CWnd* CWnd::GetParentOwner() const
{
    HWND hWnd = m_hWnd;
    while (hWnd && (::GetWindowLongPtrW(hWnd, GWL_STYLE) & WS_CHILD))
        hWnd = ::GetParent(hWnd);
    return FromHandle(hWnd);
}

CWnd* PASCAL CWnd::GetDescendantWindow(HWND hWnd, int nID, BOOL bOnlyPerm)
{
    // Direct children first, as the usual case; then their children.
    if (const HWND hItem = ::GetDlgItem(hWnd, nID))
    {
        if (::GetTopWindow(hItem))
            if (CWnd* pInner = GetDescendantWindow(hItem, nID, bOnlyPerm))
                return pInner;
        if (CWnd* pWnd = bOnlyPerm ? FromHandlePermanent(hItem) : FromHandle(hItem))
            return pWnd;
    }
    for (HWND hChild = ::GetTopWindow(hWnd); hChild; hChild = ::GetWindow(hChild, GW_HWNDNEXT))
        if (CWnd* pWnd = GetDescendantWindow(hChild, nID, bOnlyPerm))
            return pWnd;
    return nullptr;
}

void PASCAL CWnd::SendMessageToDescendants(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep,
                                           BOOL bOnlyPerm)
{
    HWND hNext = nullptr;
    for (HWND hChild = ::GetTopWindow(hWnd); hChild; hChild = hNext)
    {
        if (!bOnlyPerm || FromHandlePermanent(hChild))
            ::SendMessageW(hChild, message, wParam, lParam);
        if (bDeep && ::GetTopWindow(hChild))
            SendMessageToDescendants(hChild, message, wParam, lParam, bDeep, bOnlyPerm);
        hNext = ::GetWindow(hChild, GW_HWNDNEXT);
    }
}

void CWnd::GetWindowText(CString& rString) const
{
    const int nLength = ::GetWindowTextLengthW(m_hWnd);
    const int nRead = ::GetWindowTextW(m_hWnd, rString.GetBuffer(nLength), nLength + 1);
    rString.ReleaseBuffer(nRead);
}

int CWnd::GetDlgItemText(int nID, CString& rString) const
{
    rString.Empty();
    if (const HWND hItem = ::GetDlgItem(m_hWnd, nID))
        FromHandle(hItem)->GetWindowText(rString);
    return rString.GetLength();
}

BOOL CWnd::ModifyStyle(HWND hWnd, int nIndex, DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    const DWORD dwOld = static_cast<DWORD>(::GetWindowLongPtrW(hWnd, nIndex));
    const DWORD dwNew = (dwOld & ~dwRemove) | dwAdd;
    if (dwOld == dwNew)
        return FALSE;
    ::SetWindowLongPtrW(hWnd, nIndex, static_cast<LONG_PTR>(dwNew));
    if (nFlags != 0)
        ::SetWindowPos(hWnd, nullptr, 0, 0, 0, 0,
                       SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED | nFlags);
    return TRUE;
}

BOOL CWnd::GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const
{
    lpwndpl->length = sizeof(*lpwndpl);
    return ::GetWindowPlacement(m_hWnd, lpwndpl);
}

BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask)
{
    lpScrollInfo->cbSize = sizeof(*lpScrollInfo);
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(m_hWnd, nBar, lpScrollInfo);
}

BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw)
{
    lpScrollInfo->cbSize = sizeof(*lpScrollInfo);
    ::SetScrollInfo(m_hWnd, nBar, lpScrollInfo, bRedraw);
    return TRUE;
}

int CWnd::GetCheckedRadioButton(int nIDFirst, int nIDLast) const
{
    for (int nID = nIDFirst; nID <= nIDLast; ++nID)
        if (::IsDlgButtonChecked(m_hWnd, nID))
            return nID;
    return 0;
}

void CWnd::CalcWindowRect(LPRECT lpClientRect, UINT)
{
    ::AdjustWindowRectEx(lpClientRect, GetStyle(), ::GetMenu(m_hWnd) != nullptr && !(GetStyle() & WS_CHILD),
                         GetExStyle());
}

namespace
{
CRect WorkAreaAt(HWND hWnd)
{
    MONITORINFO info{};
    info.cbSize = sizeof(info);
    ::GetMonitorInfoW(::MonitorFromWindow(hWnd, MONITOR_DEFAULTTOPRIMARY), &info);
    return info.rcWork;
}

/// [from, from + size) moved into [low, high); the low edge wins when it does not fit.
int Within(int from, int size, int low, int high) { return std::max(low, std::min(from, high - size)); }
} // namespace

void CWnd::CenterWindow(CWnd* pAlternateOwner)
{
    const bool bChild = (GetStyle() & WS_CHILD) != 0;
    HWND hCenter = SafeHandle(pAlternateOwner);
    if (!hCenter)
        hCenter = bChild ? ::GetParent(m_hWnd) : ::GetWindow(m_hWnd, GW_OWNER);
    CRect window;
    GetWindowRect(window);
    CRect center;
    CRect bounds;
    if (bChild)
    {
        const HWND hParent = ::GetParent(m_hWnd);
        ::GetClientRect(hParent, bounds);
        ::GetClientRect(hCenter, center);
        MapRect(hCenter, hParent, center);
    }
    else
    {
        // A hidden or minimized owner shows nothing to be in the middle of.
        const bool bOwner = hCenter && ::IsWindowVisible(hCenter) && !::IsIconic(hCenter);
        bounds = WorkAreaAt(bOwner ? hCenter : m_hWnd);
        center = bounds;
        if (bOwner)
            ::GetWindowRect(hCenter, center);
    }
    const CPoint middle = center.CenterPoint();
    const int x = Within(middle.x - window.Width() / 2, window.Width(), bounds.left, bounds.right);
    const int y = Within(middle.y - window.Height() / 2, window.Height(), bounds.top, bounds.bottom);
    SetWindowPos(nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

int CWnd::MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption, UINT nType)
{
    return ::MessageBoxW(m_hWnd, lpszText, lpszCaption ? lpszCaption : AfxGetAppName(), nType);
}

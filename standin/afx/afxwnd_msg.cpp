#include "afxmsgmap.h"
#include "afxroute.h"
#include "afxstate.h"

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    CWnd* pWnd = CWnd::FromHandlePermanent(hWnd);
    if (!pWnd)
        return ::DefWindowProcW(hWnd, nMsg, wParam, lParam);
    return AfxWndAccess::Call(pWnd, MSG{hWnd, nMsg, wParam, lParam, 0, {}});
}

LRESULT AfxWndAccess::Call(CWnd* pWnd, const MSG& msg)
{
    AFX_THREAD_STATE& state = AfxThreadState();
    const AfxStateScope module(pWnd->m_pModuleState);
    const MSG former = std::exchange(state.lastSentMsg, msg);
    const LRESULT lResult =
        AfxGuardedCall(msg, [&] { return pWnd->WindowProc(msg.message, msg.wParam, msg.lParam); });
    state.lastSentMsg = former; // the object may be gone by now
    return lResult;
}

const MSG* PASCAL CWnd::GetCurrentMessage()
{
    AFX_THREAD_STATE& state = AfxThreadState();
    state.lastSentMsg.time = static_cast<DWORD>(::GetMessageTime());
    state.lastSentMsg.pt = CPoint(static_cast<LPARAM>(::GetMessagePos()));
    return &state.lastSentMsg;
}

LRESULT CWnd::Default()
{
    const MSG msg = AfxThreadState().lastSentMsg;
    return DefWindowProc(msg.message, msg.wParam, msg.lParam);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_pfnSuper)
        return ::CallWindowProcW(m_pfnSuper, m_hWnd, message, wParam, lParam);
    return ::DefWindowProcW(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT lResult = 0;
    if (!OnWndMsg(message, wParam, lParam, &lResult))
        lResult = DefWindowProc(message, wParam, lParam);
    return lResult;
}

namespace
{
constexpr UINT FIRST_REGISTERED_MESSAGE = 0xC000;

bool IsControlColour(UINT message) { return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC; }

bool FitsMessage(const AFX_MSGMAP_ENTRY& entry, const AfxRouteKey& key)
{
    if (entry.pnRegistered)
        return key.nMessage >= FIRST_REGISTERED_MESSAGE && *entry.pnRegistered == key.nMessage;
    return entry.nMessage == key.nMessage || (key.nCode != 0 && entry.nMessage == key.nCode);
}

/// The control colour messages also have a number that stands for all of them.
UINT SharedNumber(UINT message)
{
    if (IsControlColour(message))
        return WM_CTLCOLOR;
    return IsControlColour(message - WM_REFLECT_BASE) ? WM_REFLECT_BASE + WM_CTLCOLOR : 0;
}
} // namespace

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    LRESULT lResult = 0;
    BOOL bHandled = FALSE;
    if (message == WM_COMMAND)
    {
        bHandled = OnCommand(wParam, lParam);
        lResult = bHandled;
    }
    else if (message == WM_NOTIFY)
    {
        const auto* pNMHDR = reinterpret_cast<NMHDR*>(lParam);
        bHandled = pNMHDR->hwndFrom && OnNotify(wParam, lParam, &lResult);
    }
    else if (const AFX_MSGMAP_ENTRY* pEntry =
                 AfxFindEntry(GetMessageMap(), FitsMessage, {message, SharedNumber(message), 0}))
    {
        const bool bReflected = message >= WM_REFLECT_BASE && message < FIRST_REGISTERED_MESSAGE;
        AFX_MSGCALL call{bReflected ? message - WM_REFLECT_BASE : message,
                         wParam,
                         lParam,
                         0,
                         0,
                         nullptr,
                         nullptr,
                         nullptr,
                         TRUE};
        pEntry->pfnCall(this, call);
        bHandled = call.bHandled;
        lResult = call.lResult;
    }
    if (bHandled && pResult)
        *pResult = lResult;
    return bHandled;
}

namespace
{
/// Asks whether a command is enabled without touching any item.
class CTestCmdUI : public CCmdUI
{
public:
    BOOL m_bEnabled = TRUE; // enabled unless a handler says otherwise
    void Enable(BOOL bOn) override
    {
        m_bEnabled = bOn;
        m_bEnableChanged = TRUE;
    }
    void SetCheck(int) override {}
    void SetRadio(BOOL) override {}
    void SetText(LPCTSTR) override {}
};
} // namespace

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const UINT nID = LOWORD(wParam);
    const HWND hWndCtrl = reinterpret_cast<HWND>(lParam);
    int nCode = HIWORD(wParam);
    if (!hWndCtrl)
    {
        if (nID == 0)
            return FALSE;
        // The menu may show a state that no longer holds, and accelerators have no menu.
        CTestCmdUI state;
        state.m_nID = nID;
        OnCmdMsg(nID, CN_UPDATE_COMMAND_UI, &state, nullptr);
        if (!state.m_bEnabled)
            return TRUE;
        nCode = CN_COMMAND;
    }
    else
    {
        if (AfxThreadState().hLockoutNotifyWindow == m_hWnd)
            return TRUE;
        if (ReflectLastMsg(hWndCtrl))
            return TRUE;
        if (nID == 0)
            return FALSE;
    }
    return OnCmdMsg(nID, nCode, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult)
{
    auto* pNMHDR = reinterpret_cast<NMHDR*>(lParam);
    const HWND hWndCtrl = pNMHDR->hwndFrom;
    const UINT nID = static_cast<UINT>(::GetDlgCtrlID(hWndCtrl));
    if (AfxThreadState().hLockoutNotifyWindow == m_hWnd)
        return TRUE;
    if (ReflectLastMsg(hWndCtrl, pResult))
        return TRUE;
    AFX_NOTIFY notify{pResult, pNMHDR};
    return OnCmdMsg(nID, static_cast<int>(MAKELONG(pNMHDR->code, WM_NOTIFY)), &notify, nullptr);
}

BOOL PASCAL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult)
{
    CWnd* pWnd = FromHandlePermanent(hWndChild);
    return pWnd ? pWnd->SendChildNotifyLastMsg(pResult) : FALSE;
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult)
{
    const MSG msg = AfxThreadState().lastSentMsg;
    return OnChildNotify(msg.message, msg.wParam, msg.lParam, pResult);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    return ReflectChildNotify(message, wParam, lParam, pLResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    switch (message)
    {
    case WM_COMMAND: {
        const BOOL bHandled = OnCmdMsg(
            0, static_cast<int>(MAKELONG(HIWORD(wParam), WM_REFLECT_BASE + WM_COMMAND)), nullptr, nullptr);
        if (bHandled && pResult)
            *pResult = 1;
        return bHandled;
    }
    case WM_NOTIFY: {
        LRESULT lUnwanted = 0;
        auto* pNMHDR = reinterpret_cast<NMHDR*>(lParam);
        AFX_NOTIFY notify{pResult ? pResult : &lUnwanted, pNMHDR};
        return OnCmdMsg(0, static_cast<int>(MAKELONG(pNMHDR->code, WM_REFLECT_BASE + WM_NOTIFY)), &notify,
                        nullptr);
    }
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_PARENTNOTIFY:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
        return OnWndMsg(WM_REFLECT_BASE + message, wParam, lParam, pResult);
    default:
        return IsControlColour(message) && OnWndMsg(WM_REFLECT_BASE + message, wParam, lParam, pResult);
    }
}

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* pWnd, UINT)
{
    LRESULT lResult = 0;
    if (pWnd && pWnd->SendChildNotifyLastMsg(&lResult))
        return reinterpret_cast<HBRUSH>(lResult);
    return reinterpret_cast<HBRUSH>(Default());
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar*)
{
    if (!ReflectLastMsg(reinterpret_cast<HWND>(AfxThreadState().lastSentMsg.lParam)))
        Default();
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar*)
{
    if (!ReflectLastMsg(reinterpret_cast<HWND>(AfxThreadState().lastSentMsg.lParam)))
        Default();
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    if (lpDrawItemStruct->CtlType == ODT_MENU)
    {
        if (CMenu* pMenu =
                AfxThreadState().menus.LookupPermanent(reinterpret_cast<HMENU>(lpDrawItemStruct->hwndItem)))
        {
            pMenu->DrawItem(lpDrawItemStruct);
            return;
        }
    }
    else if (ReflectLastMsg(lpDrawItemStruct->hwndItem))
        return;
    Default();
}

void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    if (lpMeasureItemStruct->CtlType != ODT_MENU &&
        ReflectLastMsg(::GetDlgItem(m_hWnd, static_cast<int>(lpMeasureItemStruct->CtlID))))
        return;
    Default();
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT lpCompareItemStruct)
{
    LRESULT lResult = 0;
    return static_cast<int>(ReflectLastMsg(lpCompareItemStruct->hwndItem, &lResult) ? lResult : Default());
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT lpDeleteItemStruct)
{
    if (!ReflectLastMsg(lpDeleteItemStruct->hwndItem))
        Default();
}

void CWnd::OnParentNotify(UINT message, LPARAM lParam)
{
    // Mouse buttons name a point, not a child.
    const bool bNamesChild = LOWORD(message) == WM_CREATE || LOWORD(message) == WM_DESTROY;
    if (!bNamesChild || !ReflectLastMsg(reinterpret_cast<HWND>(lParam)))
        Default();
}

#include "afxstate.h"

namespace
{
constexpr UINT WM_SYSTIMER = 0x0118; // the caret's: comes all the time and means nothing

struct Popup
{
    CWnd* pWnd;
    HWND hWnd;
    bool bShow;
};

void ShowNow(Popup& popup)
{
    popup.bShow = false;
    popup.pWnd->ShowWindow(SW_SHOWNORMAL);
    if (::IsWindow(popup.hWnd))
        ::UpdateWindow(popup.hWnd);
}
} // namespace

int CWnd::RunModalLoop(DWORD dwFlags)
{
    const AfxLifeLine life(this);
    const HWND hWnd = m_hWnd;
    const HWND hWndParent = ::GetParent(hWnd);
    Popup popup{this, hWnd, (dwFlags & MLF_SHOWONIDLE) && !(GetStyle() & WS_VISIBLE)};
    m_nFlags |= WF_MODALLOOP | WF_CONTINUEMODAL;
    m_nModalResult = -1;
    MSG next;
    bool bIdle = true;
    for (LONG lIdleCount = 0;;)
    {
        while (bIdle && life.IsAlive() && !::PeekMessageW(&next, nullptr, 0, 0, PM_NOREMOVE))
        {
            if (popup.bShow)
                ShowNow(popup);
            if (life.IsAlive() && !(dwFlags & MLF_NOIDLEMSG) && hWndParent && lIdleCount == 0)
                ::SendMessageW(hWndParent, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(hWnd));
            bIdle = life.IsAlive() && !(dwFlags & MLF_NOKICKIDLE) &&
                    ::SendMessageW(hWnd, WM_KICKIDLE, MSGF_DIALOGBOX, lIdleCount++);
        }
        if (!life.IsAlive())
            return -1;
        if (!ContinueModal()) // ended while idle
            break;
        if (!AfxPumpMessage())
        {
            // The program ends: the outer loops must see it too.
            const CWinThread* pThread = AfxGetThread();
            AfxPostQuitMessage(pThread ? static_cast<int>(pThread->m_msgCur.wParam) : 0);
            if (life.IsAlive())
                m_nModalResult = -1;
            break;
        }
        if (!life.IsAlive())
            return -1;
        MSG* pMsg = AfxCurrentMessage();
        if (popup.bShow && (pMsg->message == WM_SYSTIMER || pMsg->message == WM_SYSKEYDOWN) && m_hWnd)
            ShowNow(popup);
        if (!life.IsAlive())
            return -1;
        if (!ContinueModal())
            break;
        if (AfxIsIdleMessage(pMsg))
        {
            bIdle = true;
            lIdleCount = 0;
        }
    }
    if (!life.IsAlive())
        return -1;
    m_nFlags &= ~(WF_MODALLOOP | WF_CONTINUEMODAL);
    return m_nModalResult;
}

BOOL CWnd::ContinueModal() { return (m_nFlags & WF_CONTINUEMODAL) != 0; }

void CWnd::EndModalLoop(int nResult)
{
    m_nModalResult = nResult;
    if (m_nFlags & WF_CONTINUEMODAL)
    {
        m_nFlags &= ~WF_CONTINUEMODAL;
        PostMessage(WM_NULL); // the loop looks after each message
    }
}

void CWnd::EndModalLoops()
{
    if (!(m_nFlags & WF_CONTINUEMODAL))
        return;
    m_nFlags &= ~WF_CONTINUEMODAL;
    ::PostThreadMessageW(::GetCurrentThreadId(), WM_NULL, 0, 0);
}

BOOL CWnd::PreTranslateMessage(MSG*) { return FALSE; }

BOOL PASCAL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg)
{
    for (HWND hWnd = pMsg->hwnd; hWnd; hWnd = ::GetParent(hWnd))
    {
        if (CWnd* pWnd = FromHandlePermanent(hWnd))
        {
            const AfxStateScope module(pWnd->m_pModuleState);
            if (pWnd->PreTranslateMessage(pMsg))
                return TRUE;
        }
        if (hWnd == hWndStop)
            break;
    }
    return FALSE;
}

BOOL CWnd::PreTranslateInput(LPMSG lpMsg)
{
    const bool bKey = lpMsg->message >= WM_KEYFIRST && lpMsg->message <= WM_KEYLAST;
    const bool bMouse = lpMsg->message >= WM_MOUSEFIRST && lpMsg->message <= WM_MOUSELAST;
    return (bKey || bMouse) && ::IsDialogMessageW(m_hWnd, lpMsg);
}

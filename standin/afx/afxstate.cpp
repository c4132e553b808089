#include "afxstate.h"

namespace
{
void CALLBACK FreeState(void* pState) { delete static_cast<AFX_THREAD_STATE*>(pState); }
} // namespace

AFX_THREAD_STATE& AfxThreadState()
{
    static const DWORD slot = ::FlsAlloc(FreeState);
    auto* pState = static_cast<AFX_THREAD_STATE*>(::FlsGetValue(slot));
    if (!pState)
    {
        pState = new AFX_THREAD_STATE;
        ::FlsSetValue(slot, pState);
    }
    return *pState;
}

AfxLifeLine::AfxLifeLine(CWnd* pWnd)
    : m_pWnd(pWnd), m_pOuter(std::exchange(AfxThreadState().pLifeLines, this))
{
}

AfxLifeLine::~AfxLifeLine() { AfxThreadState().pLifeLines = m_pOuter; }

void AfxLifeLine::Cut(const CWnd* pWnd)
{
    for (AfxLifeLine* pLine = AfxThreadState().pLifeLines; pLine; pLine = pLine->m_pOuter)
        if (pLine->m_pWnd == pWnd)
            pLine->m_pWnd = nullptr;
}

LRESULT AfxProcessException(CException* e, const MSG& msg)
{
    LRESULT lResult = msg.message == WM_CREATE ? -1 : 0;
    if (CWinThread* pThread = e ? AfxGetThread() : nullptr)
        lResult = pThread->ProcessWndProcException(e, &msg);
    else if (msg.message == WM_PAINT)
        ::ValidateRect(msg.hwnd, nullptr);
    if (e)
        e->Delete();
    else
        TRACE(L"A C++ exception was stopped in the window procedure, message 0x%04X\n", msg.message);
    return lResult;
}

void AfxLockTempMaps() { ++AfxThreadState().nTempMapLock; }

BOOL AfxUnlockTempMaps(BOOL bDeleteTemps)
{
    AFX_THREAD_STATE& state = AfxThreadState();
    if (state.nTempMapLock != 0 && --state.nTempMapLock != 0)
        return TRUE;
    if (bDeleteTemps)
    {
        state.windows.DeleteTemporary();
        state.menus.DeleteTemporary();
        state.contexts.DeleteTemporary();
        state.objects.DeleteTemporary();
        state.imageLists.DeleteTemporary();
    }
    return FALSE;
}

void PASCAL CWnd::DeleteTempMap() { AfxThreadState().windows.DeleteTemporary(); }

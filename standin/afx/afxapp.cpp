#include "afxmsgmap.h"
#include "afxstate.h"

#include <algorithm>
#include <cstdlib>

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)
IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

namespace
{
/// The loop's message where the thread has no object of its own.
MSG s_msgWithoutThread{};

BOOL PumpOne(CWinThread* pThread, MSG& msg)
{
    if (!::GetMessageW(&msg, nullptr, 0, 0))
        return FALSE;
    if (msg.message != WM_KICKIDLE &&
        !(pThread ? pThread->PreTranslateMessage(&msg) : CWnd::WalkPreTranslateTree(nullptr, &msg)))
    {
        ::TranslateMessage(&msg);
        ::DispatchMessageW(&msg);
    }
    return TRUE;
}

LPTSTR Duplicate(const CString& str) { return ::_wcsdup(str); }

CString ModuleFileName(HINSTANCE hModule)
{
    CString strPath;
    DWORD dwRoom = MAX_PATH;
    while (true)
    {
        const DWORD dwLength =
            ::GetModuleFileNameW(hModule, strPath.GetBuffer(static_cast<int>(dwRoom)), dwRoom);
        strPath.ReleaseBufferSetLength(static_cast<int>(dwLength < dwRoom ? dwLength : 0));
        if (dwLength < dwRoom)
            return strPath;
        dwRoom *= 2;
    }
}
} // namespace

MSG* AfxCurrentMessage()
{
    CWinThread* pThread = AfxGetThread();
    return pThread ? &pThread->m_msgCur : &s_msgWithoutThread;
}

BOOL AfxPumpMessage()
{
    CWinThread* pThread = AfxGetThread();
    return pThread ? pThread->PumpMessage() : PumpOne(nullptr, s_msgWithoutThread);
}

BOOL AfxIsIdleMessage(MSG* pMsg)
{
    CWinThread* pThread = AfxGetThread();
    return pThread ? pThread->IsIdleMessage(pMsg) : pMsg->message != WM_PAINT;
}

BOOL AfxPreTranslateMessage(MSG* pMsg)
{
    CWinThread* pThread = AfxGetThread();
    return pThread ? pThread->PreTranslateMessage(pMsg) : CWnd::WalkPreTranslateTree(nullptr, pMsg);
}

void AfxPostQuitMessage(int nExitCode) { ::PostQuitMessage(nExitCode); }

BOOL CWinThread::PumpMessage() { return PumpOne(this, m_msgCur); }

BOOL CWinThread::PreTranslateMessage(MSG* pMsg)
{
    CWnd* pMainWnd = AfxGetMainWnd();
    const HWND hMainWnd = CWnd::SafeHandle(pMainWnd);
    if (CWnd::WalkPreTranslateTree(hMainWnd, pMsg))
        return TRUE;
    // Modeless windows that the main window does not own leave the main window's shortcuts a last chance.
    HWND hTop = pMsg->hwnd;
    for (HWND hWnd = hTop; hWnd && hWnd != hMainWnd; hWnd = ::GetParent(hWnd))
        hTop = ::GetParent(hWnd);
    if (pMainWnd && pMsg->hwnd && hTop != hMainWnd && hMainWnd)
        return pMainWnd->PreTranslateMessage(pMsg);
    return FALSE;
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg)
{
    if (pMsg->message == WM_PAINT || pMsg->message == 0x0118) // the caret's timer
        return FALSE;
    if (pMsg->message != WM_MOUSEMOVE && pMsg->message != WM_NCMOUSEMOVE)
        return TRUE;
    // The system repeats the mouse's place when windows come and go.
    if (pMsg->pt.x == m_ptLastMouse.x && pMsg->pt.y == m_ptLastMouse.y &&
        pMsg->message == m_nLastMouseMessage)
        return FALSE;
    m_ptLastMouse = pMsg->pt;
    m_nLastMouseMessage = pMsg->message;
    return TRUE;
}

BOOL CWinThread::OnIdle(LONG lCount)
{
    if (lCount <= 0)
    {
        const HWND hWnd = CWnd::SafeHandle(m_pMainWnd);
        if (hWnd && ::IsWindowVisible(hWnd))
        {
            ::SendMessageW(hWnd, WM_IDLEUPDATECMDUI, TRUE, 0);
            CWnd::SendMessageToDescendants(hWnd, WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
        }
        return TRUE;
    }
    AfxLockTempMaps();
    AfxUnlockTempMaps(TRUE);
    return FALSE;
}

int CWinThread::Run()
{
    bool bIdle = true;
    LONG lIdleCount = 0;
    MSG next;
    while (true)
    {
        while (bIdle && !::PeekMessageW(&next, nullptr, 0, 0, PM_NOREMOVE))
            bIdle = OnIdle(lIdleCount++);
        do
        {
            if (!PumpMessage())
                return ExitInstance();
            if (IsIdleMessage(&m_msgCur))
            {
                bIdle = true;
                lIdleCount = 0;
            }
        } while (::PeekMessageW(&next, nullptr, 0, 0, PM_NOREMOVE));
    }
}

int CWinThread::ExitInstance() { return static_cast<int>(m_msgCur.wParam); }

CWnd* CWinThread::GetMainWnd() { return m_pActiveWnd ? m_pActiveWnd : m_pMainWnd; }

LRESULT CWinThread::ProcessWndProcException(CException*, const MSG* pMsg)
{
    if (pMsg->message == WM_CREATE)
        return -1;
    if (pMsg->message == WM_PAINT)
        ::ValidateRect(pMsg->hwnd, nullptr); // or it would come again at once
    return 0;
}

CWinApp::CWinApp(LPCTSTR lpszAppName, AFX_MODULE_STATE* pModuleState)
    : m_hInstance(pModuleState->m_hCurrentInstanceHandle),
      m_pszAppName(lpszAppName ? ::_wcsdup(lpszAppName) : nullptr)
{
    m_pModuleState = pModuleState;
    pModuleState->m_pCurrentWinApp = this;
    m_nThreadID = ::GetCurrentThreadId();
    if (m_hInstance == ::GetModuleHandleW(nullptr))
        AfxSetAppModuleState(pModuleState);
}

CWinApp::~CWinApp()
{
    if (m_pModuleState->m_pCurrentWinApp == this)
    {
        m_pModuleState->m_pCurrentWinApp = nullptr;
        m_pModuleState->m_lpszCurrentAppName = nullptr;
    }
    if (AfxThreadState().pThread == this)
        AfxThreadState().pThread = nullptr;
    for (LPCTSTR psz : {m_pszAppName, m_pszExeName, m_pszRegistryKey, m_pszProfileName})
        std::free(const_cast<LPTSTR>(psz));
}

void CWinApp::SetCurrentHandles(HINSTANCE hInstance, LPTSTR lpCmdLine, int nCmdShow)
{
    m_hInstance = hInstance;
    m_lpCmdLine = lpCmdLine;
    m_nCmdShow = nCmdShow;
    AFX_MODULE_STATE* pState = m_pModuleState;
    pState->m_hCurrentInstanceHandle = hInstance;
    if (!pState->m_hCurrentResourceHandle)
        pState->m_hCurrentResourceHandle = hInstance;
    CString strName = ModuleFileName(hInstance);
    strName = strName.Mid(strName.ReverseFind(L'\\') + 1);
    if (const int iDot = strName.ReverseFind(L'.'); iDot > 0)
        strName = strName.Left(iDot);
    if (!m_pszExeName)
        m_pszExeName = Duplicate(strName);
    if (!m_pszAppName)
    {
        CString strTitle;
        m_pszAppName = strTitle.LoadString(AFX_IDS_APP_TITLE) ? Duplicate(strTitle) : ::_wcsdup(m_pszExeName);
    }
    if (!m_pszProfileName)
        m_pszProfileName = Duplicate(strName + L".INI");
    pState->m_lpszCurrentAppName = m_pszAppName;
}

int CWinApp::Run() { return CWinThread::Run(); }
int CWinApp::ExitInstance() { return CWinThread::ExitInstance(); }

LRESULT CWinApp::ProcessWndProcException(CException* e, const MSG* pMsg)
{
    WCHAR szText[512] = {};
    // Commands are what the user asked for; a user exception has already been shown.
    if (pMsg->message == WM_COMMAND && !e->IsKindOf(RUNTIME_CLASS(CUserException)) &&
        e->GetErrorMessage(szText, static_cast<UINT>(std::size(szText))))
        DoMessageBox(szText, MB_OK | MB_ICONSTOP, 0);
    return CWinThread::ProcessWndProcException(e, pMsg);
}

int CWinApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT)
{
    CWnd* pOwner = GetMainWnd();
    const HWND hOwner = pOwner ? ::GetLastActivePopup(pOwner->m_hWnd) : ::GetActiveWindow();
    return ::MessageBoxW(hOwner, lpszPrompt, m_pszAppName, nType);
}

void CWinApp::DoWaitCursor(int nCode)
{
    const HCURSOR hWait = ::LoadCursorW(nullptr, IDC_WAIT);
    m_nWaitCursorCount = std::max(0, m_nWaitCursorCount + nCode);
    if (m_nWaitCursorCount == 0)
    {
        ::SetCursor(m_hcurWaitCursorRestore);
        return;
    }
    const HCURSOR hFormer = ::SetCursor(hWait);
    if (nCode > 0 && m_nWaitCursorCount == 1)
        m_hcurWaitCursorRestore = hFormer;
}

HCURSOR CWinApp::LoadCursor(LPCTSTR lpszResourceName) const
{
    return ::LoadCursorW(AfxFindResourceHandle(lpszResourceName, RT_GROUP_CURSOR), lpszResourceName);
}

HICON CWinApp::LoadIcon(LPCTSTR lpszResourceName) const
{
    return ::LoadIconW(AfxFindResourceHandle(lpszResourceName, RT_GROUP_ICON), lpszResourceName);
}

void CWinApp::OnAppExit()
{
    if (m_pMainWnd)
        m_pMainWnd->SendMessage(WM_CLOSE);
}

BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE, LPTSTR lpCmdLine, int nCmdShow)
{
    CWinApp* pApp = AfxGetAppModuleState()->m_pCurrentWinApp;
    if (!pApp)
        return TRUE;
    AfxThreadState().pThread = pApp;
    pApp->m_nThreadID = ::GetCurrentThreadId();
    pApp->SetCurrentHandles(hInstance, lpCmdLine, nCmdShow);
    return TRUE;
}

int AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow)
{
    if (!AfxWinInit(hInstance, hPrevInstance, lpCmdLine, nCmdShow))
        return -1;
    CWinApp* pApp = AfxGetAppModuleState()->m_pCurrentWinApp;
    if (!pApp || !pApp->InitApplication())
        return -1;
    int nResult = -1;
    if (pApp->InitInstance())
        nResult = pApp->Run();
    else
    {
        // A program whose only window was a dialog says no and is done.
        if (pApp->m_pMainWnd)
            pApp->m_pMainWnd->DestroyWindow();
        nResult = pApp->ExitInstance();
    }
    return nResult;
}

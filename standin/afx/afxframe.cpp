#include "afxframe.h"
#include "afxmsgmap.h"
#include "afxstate.h"

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
ON_WM_CREATE()
ON_WM_SIZE()
ON_WM_SETFOCUS()
ON_WM_ACTIVATE()
ON_WM_CLOSE()
ON_WM_INITMENUPOPUP()
END_MESSAGE_MAP()

BOOL CFrameWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                       CWnd* pParentWnd, LPCTSTR lpszMenuName, DWORD dwExStyle, CCreateContext* pContext)
{
    HMENU hMenu = nullptr;
    if (lpszMenuName && !(hMenu = ::LoadMenuW(AfxFindResourceHandle(lpszMenuName, RT_MENU), lpszMenuName)))
    {
        PostNcDestroy(); // as for any window that cannot be made
        return FALSE;
    }
    m_strTitle = lpszWindowName;
    const bool bDefault = rect.left == CW_USEDEFAULT;
    if (CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                 bDefault ? CW_USEDEFAULT : rect.right - rect.left, bDefault ? 0 : rect.bottom - rect.top,
                 SafeHandle(pParentWnd), hMenu, pContext))
        return TRUE;
    if (hMenu)
        ::DestroyMenu(hMenu);
    return FALSE;
}

BOOL CFrameWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd, CCreateContext* pContext)
{
    CString strFull;
    CString strTitle;
    if (strFull.LoadString(nIDResource))
        AfxExtractSubString(strTitle, strFull, 0);
    const LPCTSTR lpszResource = MAKEINTRESOURCEW(nIDResource);
    const HICON hIcon = ::LoadIconW(AfxFindResourceHandle(lpszResource, RT_GROUP_ICON), lpszResource);
    const LPCTSTR lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                                                  reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1), hIcon);
    if (!Create(lpszClass, strTitle, dwDefaultStyle, rectDefault, pParentWnd, lpszResource, 0, pContext))
        return FALSE;
    m_hMenuDefault = ::GetMenu(m_hWnd);
    LoadAccelTable(lpszResource);
    return TRUE;
}

BOOL CFrameWnd::LoadAccelTable(LPCTSTR lpszResourceName)
{
    m_hAccelTable =
        ::LoadAcceleratorsW(AfxFindResourceHandle(lpszResourceName, RT_ACCELERATOR), lpszResourceName);
    return m_hAccelTable != nullptr;
}

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!cs.lpszClass)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    return TRUE;
}

BOOL CFrameWnd::PreTranslateMessage(MSG* pMsg)
{
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    const bool bKey = pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST;
    return bKey && m_hAccelTable && ::TranslateAcceleratorW(m_hWnd, m_hAccelTable, pMsg);
}

BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    const AfxLifeLine life(this);
    if (m_pViewActive && m_pViewActive->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    if (!life.IsAlive())
        return FALSE;
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    CWinApp* pApp = AfxGetApp();
    return pApp && pApp->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

void CFrameWnd::ActivateFrame(int nCmdShow)
{
    if (nCmdShow == -1)
        nCmdShow = IsIconic() ? SW_RESTORE : SW_SHOW;
    ShowWindow(nCmdShow);
    BringWindowToTop();
}

void CFrameWnd::OnClose()
{
    CDocument* pDocument = GetActiveDocument();
    if (!pDocument || pDocument->CanCloseFrame(this))
        DestroyWindow();
}

void CFrameWnd::OnInitMenuPopup(CMenu* pMenu, UINT, BOOL bSysMenu)
{
    if (!bSysMenu)
        CCmdUI::UpdateMenu(pMenu, this, m_bAutoMenuEnable);
}

CFrameWnd* CWnd::GetParentFrame() const
{
    for (HWND hWnd = ::GetParent(m_hWnd); hWnd; hWnd = ::GetParent(hWnd))
    {
        CWnd* pWnd = FromHandlePermanent(hWnd);
        if (pWnd && pWnd->IsFrameWnd())
            return static_cast<CFrameWnd*>(pWnd);
    }
    return nullptr;
}

CFrameWnd* CWnd::GetTopLevelFrame() const
{
    CFrameWnd* pFrame = IsFrameWnd() ? static_cast<CFrameWnd*>(const_cast<CWnd*>(this)) : GetParentFrame();
    while (CFrameWnd* pOuter = pFrame ? pFrame->GetParentFrame() : nullptr)
        pFrame = pOuter;
    return pFrame;
}

#include "afxdlg.h"
#include "afxmodal.h"
#include "afxmsgmap.h"
#include "afxstate.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
ON_COMMAND(IDOK, &CDialog::OnOK)
ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()

CDialog::CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd) : m_pParentWnd(pParentWnd)
{
    SetTemplateName(lpszTemplateName);
}

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd) : m_nIDHelp(nIDTemplate), m_pParentWnd(pParentWnd)
{
    SetTemplateName(MAKEINTRESOURCEW(nIDTemplate));
}

CDialog::~CDialog()
{
    if (m_hWnd && FromHandlePermanent(m_hWnd) == this)
        CDialog::DestroyWindow();
}

void CDialog::SetTemplateName(LPCTSTR lpszTemplateName)
{
    if (IS_INTRESOURCE(lpszTemplateName))
    {
        m_lpszTemplateName = lpszTemplateName;
        m_strTemplateName.Empty();
        return;
    }
    m_strTemplateName = lpszTemplateName;
    m_lpszTemplateName = m_strTemplateName;
}

namespace
{
/// Where a template lies whose handle is of global memory, movable or fixed, or of a loaded resource. The
/// system moves no memory by itself any more, so no lock is kept.
LPCDLGTEMPLATE TemplateAt(HGLOBAL hTemplate)
{
    if (!hTemplate)
        return nullptr;
    const void* p = ::GlobalLock(hTemplate);
    if (p)
        ::GlobalUnlock(hTemplate);
    else
        p = ::LockResource(hTemplate);
    return static_cast<LPCDLGTEMPLATE>(p);
}
} // namespace

BOOL CDialog::Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
{
    SetTemplateName(lpszTemplateName);
    if (IS_INTRESOURCE(m_lpszTemplateName) && m_nIDHelp == 0)
        m_nIDHelp = LOWORD(m_lpszTemplateName);
    return CreateDlg(m_lpszTemplateName, pParentWnd ? pParentWnd : AfxGetMainWnd());
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void* lpDialogInit)
{
    m_lpDialogInit = lpDialogInit;
    return CreateDlgIndirect(lpDialogTemplate, pParentWnd ? pParentWnd : AfxGetMainWnd(),
                             AfxGetInstanceHandle());
}

BOOL CDialog::CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd)
{
    const LPCDLGTEMPLATE pTemplate = TemplateAt(hDialogTemplate);
    return pTemplate ? CreateIndirect(pTemplate, pParentWnd) : FALSE;
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void* lpDialogInit)
{
    if (!m_pParentWnd)
        m_pParentWnd = pParentWnd;
    m_lpDialogTemplate = lpDialogTemplate;
    m_lpDialogInit = lpDialogInit;
    return TRUE;
}

BOOL CDialog::InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd)
{
    if (!m_pParentWnd)
        m_pParentWnd = pParentWnd;
    m_hDialogTemplate = hDialogTemplate;
    return TRUE;
}

LPCDLGTEMPLATE CDialog::LockTemplate(HINSTANCE& hInst)
{
    hInst = AfxGetResourceHandle();
    if (m_lpDialogTemplate)
        return m_lpDialogTemplate;
    HGLOBAL hTemplate = m_hDialogTemplate;
    if (!hTemplate && m_lpszTemplateName)
    {
        hInst = AfxFindResourceHandle(m_lpszTemplateName, RT_DIALOG);
        const HRSRC hResource = ::FindResourceW(hInst, m_lpszTemplateName, RT_DIALOG);
        hTemplate = hResource ? ::LoadResource(hInst, hResource) : nullptr;
    }
    return TemplateAt(hTemplate);
}

INT_PTR CDialog::DoModal()
{
    HINSTANCE hInst = nullptr;
    const LPCDLGTEMPLATE pTemplate = LockTemplate(hInst);
    if (!pTemplate)
        return -1;
    const AfxLifeLine life(this);
    AfxModalOwner owner(SafeHandle(m_pParentWnd));
    m_nModalResult = -1;
    int nResult = -1;
    if (!CreateDlgIndirect(pTemplate, FromHandle(owner.Handle()), hInst))
        return life.IsAlive() ? m_nModalResult : -1;
    nResult = RunModalLoop((GetStyle() & DS_NOIDLEMSG) ? MLF_SHOWONIDLE | MLF_NOIDLEMSG : MLF_SHOWONIDLE);
    if (!life.IsAlive())
        return nResult;
    // Hidden first and the owner enabled before it goes: else the system activates another program.
    if (m_hWnd)
        SetWindowPos(nullptr, 0, 0, 0, 0,
                     SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
    owner.Release();
    if (m_hWnd && owner.Handle() && ::GetActiveWindow() == m_hWnd)
        ::SetActiveWindow(owner.Handle());
    DestroyWindow();
    return nResult;
}

INT_PTR AfxWndAccess::InitDialog(CWnd* pWnd, const MSG& msg)
{
    auto* pDlg = DYNAMIC_DOWNCAST(CDialog, pWnd);
    if (!pDlg)
        return TRUE;
    const AfxLifeLine life(pDlg);
    CRect before;
    pDlg->GetWindowRect(before);
    bool bDone = false;
    const LRESULT lResult = AfxGuardedCall(msg, [&]() -> LRESULT {
        pDlg->PreInitDialog();
        const BOOL bFocus = pDlg->OnInitDialog();
        bDone = true;
        return bFocus;
    });
    if (!life.IsAlive() || pDlg->m_hWnd != msg.hwnd)
        return FALSE;
    if (!bDone) // half a dialog helps nobody
    {
        pDlg->EndModalLoop(-1);
        return FALSE;
    }
    CRect after;
    pDlg->GetWindowRect(after);
    if (before == after && !(pDlg->GetStyle() & (WS_VISIBLE | WS_CHILD)) && pDlg->CheckAutoCenter())
        pDlg->CenterWindow();
    return lResult;
}

BOOL CDialog::CheckAutoCenter()
{
    HINSTANCE hInst = nullptr;
    const LPCDLGTEMPLATE pTemplate = LockTemplate(hInst);
    if (!pTemplate)
        return TRUE;
    const DWORD dwStyle = AfxTemplateStyle(pTemplate);
    return !(dwStyle & (DS_CENTER | DS_CENTERMOUSE | DS_ABSALIGN)) &&
           AfxTemplatePlace(pTemplate) == CPoint(0, 0);
}

BOOL CDialog::OnInitDialog()
{
    BOOL bFilled = TRUE;
    if (m_lpDialogInit)
        bFilled = ExecuteDlgInit(m_lpDialogInit, UINT_MAX);
    else if (m_lpszTemplateName)
        bFilled = ExecuteDlgInit(m_lpszTemplateName);
    if (!bFilled || !UpdateData(FALSE))
    {
        EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}

void CDialog::EndDialog(int nResult)
{
    if (!m_hWnd)
        return;
    if (!(m_nFlags & (WF_MODALLOOP | WF_CONTINUEMODAL)))
    {
        ::EndDialog(m_hWnd, nResult); // in a loop of the system's own
        return;
    }
    // The system's function would enable the owner while dialogs further in still keep it disabled.
    const bool bModal = (m_nFlags & WF_MODALLOOP) != 0;
    EndModalLoop(nResult);
    if (!bModal)
        ShowWindow(SW_HIDE);
}

void CDialog::OnOK()
{
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel() { EndDialog(IDCANCEL); }

BOOL CDialog::PreTranslateMessage(MSG* pMsg)
{
    return CWnd::PreTranslateMessage(pMsg) || PreTranslateInput(pMsg);
}

namespace
{
/// Commands of menus; below are the controls' own numbers, and from 0xF000 the system's.
bool IsMenuCommand(UINT nID) { return (nID & 0x8000) != 0 && nID < 0xF000; }
} // namespace

BOOL AfxRouteToOwner(CWnd* pWnd, UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    if ((nCode != CN_COMMAND && nCode != CN_UPDATE_COMMAND_UI) || !IsMenuCommand(nID))
        return FALSE;
    CWnd* pOwner = pWnd->GetParent();
    if (pOwner && pOwner->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    CWinThread* pThread = AfxGetThread();
    return pThread && pThread->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    const AfxLifeLine life(this);
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    return life.IsAlive() && AfxRouteToOwner(this, nID, nCode, pExtra, pHandlerInfo);
}

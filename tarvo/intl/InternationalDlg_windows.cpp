#include "tarvo/intl/InternationalDlg.h"

#include "tarvo/intl/DialogMemory_windows.h"

IMPLEMENT_DYNCREATE(CInternationalDlg, CBCGPDialog)

BEGIN_MESSAGE_MAP(CInternationalDlg, CBCGPDialog)
ON_WM_CTLCOLOR()
ON_REGISTERED_MESSAGE(WM_QORVEL_RC_STRING_EXTRACT, &CInternationalDlg::OnRcStringExtract)
END_MESSAGE_MAP()

CInternationalDlg::CInternationalDlg(CWnd* pParent) : CLanguageWindow(SKIN_WINDOW::Dialog)
{
    m_pParentWnd = pParent;
}

CInternationalDlg::CInternationalDlg(UINT nIDTemplate, CWnd* pParent)
    : CBCGPDialog(nIDTemplate, pParent), CLanguageWindow(SKIN_WINDOW::Dialog)
{
    m_nDlgResID = nIDTemplate;
}

CInternationalDlg::CInternationalDlg(LPCTSTR lpszTemplateName, CWnd* pParent)
    : CBCGPDialog(lpszTemplateName, pParent), CLanguageWindow(SKIN_WINDOW::Dialog)
{
    if (IS_INTRESOURCE(lpszTemplateName))
        m_nDlgResID = LOWORD(lpszTemplateName);
    else
        m_strTemplate = lpszTemplateName;
}

CInternationalDlg::~CInternationalDlg()
{
    // While this is still a dialog of this class: its window must not outlive its font.
    if (m_hWnd && FromHandlePermanent(m_hWnd) == this)
        CDialog::DestroyWindow();
    if (m_pGone)
        *m_pGone = true;
}

LPCTSTR CInternationalDlg::TemplateResource() const
{
    if (m_nDlgResID != 0)
        return MAKEINTRESOURCEW(m_nDlgResID);
    return m_strTemplate.IsEmpty() ? m_lpszTemplateName : m_strTemplate.GetString();
}

void CInternationalDlg::SetDlgResID_o(UINT nID, LPCTSTR lpszSymbol) { SetResource(nID, lpszSymbol); }

int CInternationalDlg::ChangeDlgFont(CDialogTemplate& memory, const CString& face, int points)
{
    if (!LoadWithFont(memory, TemplateResource(), {face, points}))
        return 0;
    m_lpDialogTemplate = static_cast<LPCDLGTEMPLATE>(::GlobalLock(memory.m_hTemplate));
    return 1;
}

/// Runs what shows the dialog, with its template in memory for as long. The dialog may delete itself in it.
template <class Show>
auto CInternationalDlg::ShowFromMemory(CDialogTemplate& memory, Show show)
{
    bool gone = false;
    m_pGone = &gone;
    const auto result = show();
    ::GlobalUnlock(memory.m_hTemplate);
    if (gone)
        return result;
    m_pGone = nullptr;
    m_lpDialogTemplate = nullptr;
    return result;
}

INT_PTR CInternationalDlg::DoModal()
{
    if (m_lpDialogTemplate || m_hDialogTemplate)
        return CBCGPDialog::DoModal();
    const CResourceModule module(AfxFindResourceHandle(TemplateResource(), RT_DIALOG));
    CDialogTemplate memory;
    const TemplateFont font = GetDialogFont();
    if (!ChangeDlgFont(memory, font.face, font.points))
        return -1;
    MadeFrom(TemplateResource(), font);
    return ShowFromMemory(memory, [this] { return CBCGPDialog::DoModal(); });
}

BOOL CInternationalDlg::Create(UINT nIDTemplate, CWnd* pParentWnd)
{
    return CreateFrom(MAKEINTRESOURCEW(nIDTemplate), pParentWnd);
}

BOOL CInternationalDlg::Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
{
    return CreateFrom(lpszTemplateName, pParentWnd);
}

BOOL CInternationalDlg::CreateFrom(LPCTSTR resource, CWnd* pParentWnd)
{
    if (!IS_INTRESOURCE(resource))
        m_strTemplate = resource;
    else if (m_nDlgResID == 0)
        m_nDlgResID = LOWORD(resource);
    m_lpszTemplateName = IS_INTRESOURCE(resource) ? resource : m_strTemplate.GetString();
    if (m_nIDHelp == 0)
        m_nIDHelp = m_nDlgResID;
    const CResourceModule module(AfxFindResourceHandle(m_lpszTemplateName, RT_DIALOG));
    CDialogTemplate memory;
    const TemplateFont font = GetDialogFont();
    if (!LoadWithFont(memory, m_lpszTemplateName, font))
        return FALSE;
    MadeFrom(m_lpszTemplateName, font);
    m_lpDialogTemplate = static_cast<LPCDLGTEMPLATE>(::GlobalLock(memory.m_hTemplate));
    return ShowFromMemory(memory, [&] { return CreateIndirect(m_lpDialogTemplate, pParentWnd); });
}

BOOL CInternationalDlg::OnInitDialog()
{
    OpenWindow(this);
    EnableVisualManagerStyle(ISkinFunc::Instance()->UsesVisualManager(this, GetSkinKind()) != 0);
    // The base finds the lines of its lists by the template's name, which otherwise is no longer needed: the
    // template is in memory.
    m_lpszTemplateName = m_lpszTemplateName ? m_lpszTemplateName : TemplateResource();
    CBCGPDialog::OnInitDialog();
    m_lpszTemplateName = nullptr;
    if (m_hWnd)
        PutTextFont();
    return TRUE;
}

LRESULT CInternationalDlg::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_GETFONT && GetDialogFontNow())
        return reinterpret_cast<LRESULT>(GetDialogFontNow());
    const HWND window = m_hWnd;
    const LRESULT result = CBCGPDialog::WindowProc(message, wParam, lParam);
    // The object may have gone with its window; it is looked at only when it still has it.
    if (message == WM_INITDIALOG && FromHandlePermanent(window) == this && IsOpen(this))
        FinishStart();
    return result;
}

BOOL CInternationalDlg::PreTranslateMessage(MSG* pMsg)
{
    if (IsChangerKey(*pMsg))
        PostMessage(WM_QORVEL_RC_STRING_EXTRACT);
    return CBCGPDialog::PreTranslateMessage(pMsg);
}

LRESULT CInternationalDlg::OnRcStringExtract(WPARAM, LPARAM)
{
    OpenChanger(this);
    return 0;
}

HBRUSH CInternationalDlg::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    const HBRUSH brush = GetSkinBackground(*pDC, *pWnd, nCtlColor);
    return brush ? brush : CBCGPDialog::OnCtlColor(pDC, pWnd, nCtlColor);
}

void CInternationalDlg::PostNcDestroy()
{
    CloseWindow();
    CBCGPDialog::PostNcDestroy();
}

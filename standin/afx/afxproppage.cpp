#include "afxmodal.h"
#include "afxpriv.h"
#include "afxpropsheet.h"

IMPLEMENT_DYNAMIC(CPropertyPage, CDialog)

CPropertyPage::CPropertyPage() { Construct(static_cast<LPCTSTR>(nullptr)); }

CPropertyPage::CPropertyPage(UINT nIDTemplate, UINT nIDCaption, DWORD dwSize)
{
    Construct(nIDTemplate, nIDCaption, dwSize);
}

CPropertyPage::CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption, DWORD dwSize)
{
    Construct(lpszTemplateName, nIDCaption, dwSize);
}

CPropertyPage::CPropertyPage(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle,
                             DWORD dwSize)
{
    Construct(nIDTemplate, nIDCaption, dwSize);
    if (nIDHeaderTitle != 0)
        m_strHeaderTitle.LoadString(nIDHeaderTitle);
    if (nIDHeaderSubTitle != 0)
        m_strHeaderSubTitle.LoadString(nIDHeaderSubTitle);
}

CPropertyPage::~CPropertyPage()
{
    if (m_hWnd && FromHandlePermanent(m_hWnd) == this)
        CDialog::DestroyWindow();
    if (m_hOwnTemplate)
        ::GlobalFree(m_hOwnTemplate);
}

void CPropertyPage::Construct(UINT nIDTemplate, UINT nIDCaption, DWORD dwSize)
{
    Construct(MAKEINTRESOURCEW(nIDTemplate), nIDCaption, dwSize);
    m_nIDHelp = nIDTemplate;
}

void CPropertyPage::Construct(LPCTSTR lpszTemplateName, UINT nIDCaption, DWORD dwSize)
{
    SetTemplateName(lpszTemplateName);
    m_psp = {};
    m_psp.dwSize = dwSize;
    m_psp.dwFlags = PSP_USECALLBACK;
    m_psp.pszTemplate = m_lpszTemplateName;
    m_psp.pfnDlgProc = PageProc;
    m_psp.pfnCallback = PageCallback;
    m_psp.lParam = reinterpret_cast<LPARAM>(this);
    if (nIDCaption != 0)
    {
        m_strCaption.LoadString(nIDCaption);
        m_psp.dwFlags |= PSP_USETITLE;
    }
}

void* CPropertyPage::OwnTemplate(LPCDLGTEMPLATE pTemplate)
{
    CDialogTemplate copy(pTemplate);
    if (m_hOwnTemplate)
        ::GlobalFree(m_hOwnTemplate);
    m_hOwnTemplate = copy.Detach();
    return m_hOwnTemplate; // fixed memory: the handle is its address
}

void CPropertyPage::PreProcessPageTemplate(PROPSHEETPAGE& psp, BOOL)
{
    const void* pTemplate = (psp.dwFlags & PSP_DLGINDIRECT) ? psp.pResource : nullptr;
    psp.hInstance = psp.hInstance ? psp.hInstance : AfxGetResourceHandle();
    if (!(psp.dwFlags & PSP_DLGINDIRECT) && psp.pszTemplate)
    {
        psp.hInstance = AfxFindResourceHandle(psp.pszTemplate, RT_DIALOG);
        const HRSRC hResource = ::FindResourceW(psp.hInstance, psp.pszTemplate, RT_DIALOG);
        const HGLOBAL hLoaded = hResource ? ::LoadResource(psp.hInstance, hResource) : nullptr;
        pTemplate = hLoaded ? ::LockResource(hLoaded) : nullptr;
    }
    psp.dwFlags |= PSP_DLGINDIRECT;
    psp.pResource = static_cast<PROPSHEETPAGE_RESOURCE>(
        pTemplate ? OwnTemplate(static_cast<LPCDLGTEMPLATE>(pTemplate)) : nullptr);
    if ((psp.dwFlags & PSP_USETITLE) && !psp.pszTitle)
        psp.pszTitle = m_strCaption;
    if (psp.dwSize >= PROPSHEETPAGEW_V2_SIZE && !m_strHeaderTitle.IsEmpty())
    {
        psp.dwFlags |= PSP_USEHEADERTITLE;
        psp.pszHeaderTitle = m_strHeaderTitle;
    }
    if (psp.dwSize >= PROPSHEETPAGEW_V2_SIZE && !m_strHeaderSubTitle.IsEmpty())
    {
        psp.dwFlags |= PSP_USEHEADERSUBTITLE;
        psp.pszHeaderSubTitle = m_strHeaderSubTitle;
    }
}

UINT CALLBACK CPropertyPage::PageCallback(HWND, UINT message, LPPROPSHEETPAGEW pPage)
{
    // Only now is it certain that the object still is there: a page may be released long after it.
    if (message != PSPCB_CREATE)
        return 0;
    auto* pThis = reinterpret_cast<CPropertyPage*>(pPage->lParam);
    pThis->m_bFirstSetActive = TRUE;
    if (pThis->m_pSheet && pThis->m_pSheet->m_hWnd)
    {
        AfxHookWindowCreate(pThis);
        AfxThreadState().hWndInitParent = pThis->m_pSheet->m_hWnd;
    }
    return TRUE;
}

INT_PTR CALLBACK CPropertyPage::PageProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG)
    {
        AfxUnhookWindowCreate();
        const auto* pPage = reinterpret_cast<const PROPSHEETPAGEW*>(lParam);
        if (pPage && !FromHandlePermanent(hWnd))
            AfxWndAccess::Adopt(reinterpret_cast<CPropertyPage*>(pPage->lParam), hWnd);
    }
    return AfxDlgProc(hWnd, message, wParam, lParam);
}

BOOL CPropertyPage::PreTranslateMessage(MSG* pMsg)
{
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): the dialog's keys are the sheet's
    return CWnd::PreTranslateMessage(pMsg);
}

void CPropertyPage::CancelToClose()
{
    if (m_hWnd)
        ::SendMessageW(::GetParent(m_hWnd), PSM_CANCELTOCLOSE, 0, 0);
}

void CPropertyPage::SetModified(BOOL bChanged)
{
    if (m_hWnd)
        ::SendMessageW(::GetParent(m_hWnd), bChanged ? PSM_CHANGED : PSM_UNCHANGED,
                       reinterpret_cast<WPARAM>(m_hWnd), 0);
}

LRESULT CPropertyPage::QuerySiblings(WPARAM wParam, LPARAM lParam)
{
    return m_hWnd ? ::SendMessageW(::GetParent(m_hWnd), PSM_QUERYSIBLINGS, wParam, lParam) : 0;
}

void CPropertyPage::EndDialog(int nEndID)
{
    if (CPropertySheet* pSheet = GetParentSheet())
        pSheet->EndDialog(nEndID);
}

BOOL CPropertyPage::IsButtonEnabled(int iButton)
{
    static constexpr UINT ids[] = {ID_WIZBACK,   ID_WIZNEXT, ID_WIZFINISH, IDOK,
                                   ID_APPLY_NOW, IDCANCEL,   IDHELP};
    if (!m_hWnd || iButton < 0 || iButton >= static_cast<int>(std::size(ids)))
        return FALSE;
    const HWND hButton = ::GetDlgItem(::GetParent(m_hWnd), static_cast<int>(ids[iButton]));
    return hButton && ::IsWindowEnabled(hButton);
}

BOOL CPropertyPage::OnApply()
{
    OnOK();
    return TRUE;
}

void CPropertyPage::OnReset() { OnCancel(); }

BOOL CPropertyPage::OnSetActive()
{
    if (!std::exchange(m_bFirstSetActive, FALSE))
        UpdateData(FALSE);
    return TRUE;
}

BOOL CPropertyPage::OnKillActive() { return UpdateData(TRUE); }

BOOL CPropertyPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    const AfxLifeLine life(this);
    if (CDialog::OnNotify(wParam, lParam, pResult))
        return TRUE;
    const auto& notify = *reinterpret_cast<const PSHNOTIFY*>(lParam);
    if (!life.IsAlive() || !m_hWnd || notify.hdr.hwndFrom != ::GetParent(m_hWnd))
        return FALSE;
    LRESULT lResult = 0;
    const BOOL bHandled = OnSheetNotify(notify, lResult);
    if (bHandled && pResult)
        *pResult = lResult;
    return bHandled;
}

/// Takes the functions' answers into the sheet's terms.
BOOL CPropertyPage::OnSheetNotify(const PSHNOTIFY& notify, LRESULT& lResult)
{
    CPropertySheet* pSheet = GetParentSheet();
    const auto ended = [pSheet](int nID) {
        if (pSheet)
            pSheet->m_nEndID = nID;
    };
    switch (notify.hdr.code)
    {
    case PSN_SETACTIVE:
        lResult = OnSetActive() ? 0 : -1;
        return TRUE;
    case PSN_KILLACTIVE:
        lResult = OnKillActive() ? FALSE : TRUE;
        return TRUE;
    case PSN_APPLY:
        if (notify.lParam)
            ended(IDOK); // it ends if no other page refuses
        lResult = OnApply() ? PSNRET_NOERROR : PSNRET_INVALID_NOCHANGEPAGE;
        return TRUE;
    case PSN_RESET:
        ended(IDCANCEL);
        OnReset();
        return TRUE;
    case PSN_QUERYCANCEL:
        lResult = OnQueryCancel() ? FALSE : TRUE;
        return TRUE;
    case PSN_WIZBACK:
        lResult = MapWizardResult(OnWizardBack());
        return TRUE;
    case PSN_WIZNEXT:
        lResult = MapWizardResult(OnWizardNext());
        return TRUE;
    case PSN_WIZFINISH:
        ended(ID_WIZFINISH);
        lResult = OnWizardFinish() ? FALSE : TRUE;
        return TRUE;
    case PSN_HELP:
        SendMessage(WM_COMMAND, ID_HELP);
        return TRUE;
    default:
        return FALSE;
    }
}

LRESULT CPropertyPage::MapWizardResult(LRESULT lToMap)
{
    CPropertySheet* pSheet = GetParentSheet();
    if (lToMap == 0 || lToMap == -1 || !pSheet)
        return lToMap;
    // The system knows a page by where its template lies.
    for (int i = 0; i < pSheet->GetPageCount(); ++i)
        if (const CPropertyPage* pPage = pSheet->GetPage(i);
            pPage->m_lpszTemplateName == reinterpret_cast<LPCTSTR>(lToMap))
            return reinterpret_cast<LRESULT>(pPage->m_pBuiltTemplate);
    return lToMap;
}

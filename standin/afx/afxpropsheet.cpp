#include "afxpropsheet.h"
#include "afxmodal.h"
#include "afxmsgmap.h"

#include <cstring>

IMPLEMENT_DYNAMIC(CPropertySheet, CWnd)

BEGIN_MESSAGE_MAP(CPropertySheet, CWnd)
ON_MESSAGE(WM_INITDIALOG, &CPropertySheet::OnInitDialogMessage)
END_MESSAGE_MAP()

CPropertySheet::CPropertySheet() { Construct(L""); }
CPropertySheet::CPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
{
    Construct(nIDCaption, pParentWnd, iSelectPage);
}
CPropertySheet::CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage)
{
    Construct(pszCaption, pParentWnd, iSelectPage);
}

CPropertySheet::~CPropertySheet()
{
    if (m_hWnd && FromHandlePermanent(m_hWnd) == this)
        CWnd::DestroyWindow();
}

void CPropertySheet::Construct(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
{
    CString strCaption;
    strCaption.LoadString(nIDCaption);
    Construct(strCaption, pParentWnd, iSelectPage);
}

void CPropertySheet::Construct(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage)
{
    m_strCaption = pszCaption;
    m_pParentWnd = pParentWnd;
    m_psh = {};
    m_psh.dwSize = sizeof(m_psh);
    m_psh.dwFlags = PSH_PROPSHEETPAGE;
    m_psh.nStartPage = iSelectPage;
}

CPropertyPage* CPropertySheet::GetPage(int nPage) const
{
    return nPage >= 0 && nPage < GetPageCount() ? static_cast<CPropertyPage*>(m_pages[nPage]) : nullptr;
}

int CPropertySheet::GetPageIndex(CPropertyPage* pPage) const
{
    for (int i = 0; i < GetPageCount(); ++i)
        if (GetPage(i) == pPage)
            return i;
    return -1;
}

CPropertyPage* CPropertySheet::GetActivePage() const
{
    if (!m_hWnd)
        return GetPage(static_cast<int>(m_psh.nStartPage));
    return static_cast<CPropertyPage*>(
        FromHandlePermanent(reinterpret_cast<HWND>(SendMessage(PSM_GETCURRENTPAGEHWND))));
}

int CPropertySheet::GetActiveIndex() const
{
    return m_hWnd ? GetPageIndex(GetActivePage()) : static_cast<int>(m_psh.nStartPage);
}

BOOL CPropertySheet::SetActivePage(int nPage)
{
    if (nPage < 0 || nPage >= GetPageCount())
        return FALSE;
    if (m_hWnd)
        return static_cast<BOOL>(SendMessage(PSM_SETCURSEL, static_cast<WPARAM>(nPage)));
    m_psh.nStartPage = static_cast<UINT>(nPage);
    return TRUE;
}

BOOL CPropertySheet::SetActivePage(CPropertyPage* pPage) { return SetActivePage(GetPageIndex(pPage)); }

void CPropertySheet::AddPage(CPropertyPage* pPage)
{
    m_pages.Add(pPage);
    if (!m_hWnd)
        return;
    PROPSHEETPAGE psp = pPage->m_psp;
    pPage->PreProcessPageTemplate(psp, IsWizard());
    pPage->WasBuilt(this, psp.pResource);
    const HPROPSHEETPAGE hPage = psp.pResource ? ::CreatePropertySheetPageW(&psp) : nullptr;
    if (hPage && SendMessage(PSM_ADDPAGE, 0, reinterpret_cast<LPARAM>(hPage)))
        return;
    if (hPage)
        ::DestroyPropertySheetPage(hPage);
    m_pages.RemoveAt(GetPageIndex(pPage));
}

void CPropertySheet::RemovePage(CPropertyPage* pPage) { RemovePage(GetPageIndex(pPage)); }

void CPropertySheet::RemovePage(int nPage)
{
    if (nPage < 0 || nPage >= GetPageCount())
        return;
    if (m_hWnd)
        SendMessage(PSM_REMOVEPAGE, static_cast<WPARAM>(nPage));
    m_pages.RemoveAt(nPage);
}

void CPropertySheet::SetTitle(LPCTSTR lpszText, UINT nStyle)
{
    if (m_hWnd)
    {
        SendMessage(PSM_SETTITLEW, nStyle, reinterpret_cast<LPARAM>(lpszText));
        return;
    }
    m_strCaption = lpszText;
    m_psh.dwFlags = (m_psh.dwFlags & ~static_cast<DWORD>(PSH_PROPTITLE)) | nStyle;
}

void CPropertySheet::SetWizardButtons(DWORD dwFlags)
{
    if (m_hWnd)
        PostMessage(PSM_SETWIZBUTTONS, 0, static_cast<LPARAM>(dwFlags)); // the page is not yet in front
}

void CPropertySheet::SetFinishText(LPCTSTR lpszText)
{
    if (m_hWnd)
        SendMessage(PSM_SETFINISHTEXTW, 0, reinterpret_cast<LPARAM>(lpszText));
}

BOOL CPropertySheet::PressButton(int nButton)
{
    if (!m_hWnd || nButton < 0 || nButton > PSBTN_MAX)
        return FALSE;
    SendMessage(PSM_PRESSBUTTON, static_cast<WPARAM>(nButton));
    return TRUE;
}

CTabCtrl* CPropertySheet::GetTabControl() const
{
    return reinterpret_cast<CTabCtrl*>(FromHandle(reinterpret_cast<HWND>(SendMessage(PSM_GETTABCONTROL))));
}

void CPropertySheet::BuildPropPageArray()
{
    std::size_t nBytes = 0;
    for (int i = 0; i < GetPageCount(); ++i)
        nBytes += GetPage(i)->m_psp.dwSize;
    m_pageBytes.assign(nBytes, 0);
    BYTE* p = m_pageBytes.data();
    for (int i = 0; i < GetPageCount(); ++i)
    {
        CPropertyPage* pPage = GetPage(i);
        std::memcpy(p, &pPage->m_psp, pPage->m_psp.dwSize);
        pPage->PreProcessPageTemplate(*reinterpret_cast<PROPSHEETPAGE*>(p), IsWizard());
        p += pPage->m_psp.dwSize;
    }
    m_psh.ppsp = reinterpret_cast<LPCPROPSHEETPAGEW>(m_pageBytes.data());
    m_psh.nPages = static_cast<UINT>(GetPageCount());
}

BOOL CPropertySheet::PreTranslateMessage(MSG* pMsg)
{
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    const bool bInput = (pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST) ||
                        (pMsg->message >= WM_MOUSEFIRST && pMsg->message <= WM_MOUSELAST);
    return bInput && SendMessage(PSM_ISDIALOGMESSAGE, 0, reinterpret_cast<LPARAM>(pMsg)) != 0;
}

BOOL CPropertySheet::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    const AfxLifeLine life(this);
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    return life.IsAlive() && AfxRouteToOwner(this, nID, nCode, pExtra, pHandlerInfo);
}

CPropertySheet* CPropertyPage::GetParentSheet()
{
    if (m_hWnd)
        return DYNAMIC_DOWNCAST(CPropertySheet, FromHandlePermanent(::GetParent(m_hWnd)));
    return nullptr;
}

#include "tarvo/intl/InternationalPropertyPage.h"

#include "tarvo/intl/DialogMemory_windows.h"
#include "tarvo/intl/InternationalPropertySheet.h"
#include "tarvo/intl/ModuleTable_windows.h"

IMPLEMENT_DYNCREATE(CInternationalPropertyPage, CBCGPPropertyPage)

BEGIN_MESSAGE_MAP(CInternationalPropertyPage, CBCGPPropertyPage)
ON_WM_ACTIVATE()
ON_WM_CTLCOLOR()
ON_WM_WINDOWPOSCHANGING()
ON_REGISTERED_MESSAGE(WM_QORVEL_RC_STRING_EXTRACT, &CInternationalPropertyPage::OnRcStringExtract)
END_MESSAGE_MAP()

CInternationalPropertyPage::CInternationalPropertyPage()
    : CLanguageWindow(SKIN_WINDOW::PropertyPage), m_pTemplate(new CDialogTemplate), m_pFont(new TemplateFont)
{
}

CInternationalPropertyPage::CInternationalPropertyPage(UINT nIDTemplate, UINT nIDCaption)
    : CBCGPPropertyPage(nIDTemplate, nIDCaption), CLanguageWindow(SKIN_WINDOW::PropertyPage),
      m_pTemplate(new CDialogTemplate), m_pFont(new TemplateFont)
{
    m_nDlgResID = nIDTemplate;
}

CInternationalPropertyPage::~CInternationalPropertyPage() = default;

LPCTSTR CInternationalPropertyPage::TemplateResource() const
{
    return m_nDlgResID != 0 ? MAKEINTRESOURCEW(m_nDlgResID) : m_lpszTemplateName;
}

void CInternationalPropertyPage::SetDlgResID_o(UINT nID, LPCTSTR lpszSymbol) { SetResource(nID, lpszSymbol); }

void CInternationalPropertyPage::PreProcessPageTemplateInternational(PROPSHEETPAGE& psp, BOOL bWizard)
{
    PreProcessPageTemplate(psp, bWizard);
    const TemplateFont font = GetDialogFont();
    if (!LoadWithFont(*m_pTemplate, TemplateResource(), font))
        return;
    *m_pFont = font;
    MadeFrom(TemplateResource(), font);
    psp.dwFlags |= PSP_DLGINDIRECT;
    psp.pResource = static_cast<PROPSHEETPAGE_RESOURCE>(::GlobalLock(m_pTemplate->m_hTemplate));
    const bool given = (psp.dwFlags & PSP_USETITLE) && psp.pszTitle;
    m_strTabCaption = !given                         ? CaptionOf(*m_pTemplate)
                      : IS_INTRESOURCE(psp.pszTitle) ? m_strCaption
                                                     : CString(psp.pszTitle);
    m_strBuiltText = GetTabCaption();
    m_strTabText = m_strBuiltText;
    psp.dwFlags |= PSP_USETITLE;
    psp.pszTitle = m_strBuiltText;
}

/// The system has the template's address. It makes the page from it when the page first comes to the front.
void CInternationalPropertyPage::RenewTemplate()
{
    const TemplateFont font = GetDialogFont();
    if (font == *m_pFont || !FollowsLanguage() || !ReplaceFont(*m_pTemplate, TemplateResource(), font))
        return;
    *m_pFont = font;
    if (!m_hWnd)
        MadeFrom(TemplateResource(), font);
}

ModuleTable CInternationalPropertyPage::FindTable() const
{
    return TableOfModule(AfxFindResourceHandle(TemplateResource(), RT_DIALOG));
}

CString CInternationalPropertyPage::GetTabCaption() const
{
    const ModuleTable found = FindTable();
    CString text = m_strTabCaption;
    if (found.pTable && found.pTable->SelectDlgTexts(m_nDlgResID, found.strProject))
        found.pTable->GetDlgCaptionText(m_strTabCaption, text);
    return text;
}

BOOL CInternationalPropertyPage::OnInitDialog()
{
    OpenWindow(this);
    const LPCTSTR name = m_lpszTemplateName;
    m_lpszTemplateName = TemplateResource();
    CBCGPPropertyPage::OnInitDialog(); // which also takes over the sheet's style and header
    m_lpszTemplateName = name;
    if (!m_hWnd)
        return TRUE;
    if (ISkinFunc::Instance()->UsesVisualManager(this, GetSkinKind()))
        EnableVisualManagerStyle();
    PutTextFont();
    return TRUE;
}

LRESULT CInternationalPropertyPage::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_GETFONT && GetDialogFontNow())
        return reinterpret_cast<LRESULT>(GetDialogFontNow());
    const HWND window = m_hWnd;
    const LRESULT result = CBCGPPropertyPage::WindowProc(message, wParam, lParam);
    // The object may have gone with its window.
    if (message == WM_INITDIALOG && FromHandlePermanent(window) == this && IsOpen(this))
        FinishStart();
    return result;
}

BOOL CInternationalPropertyPage::OnSetActive() { return CBCGPPropertyPage::OnSetActive(); }

void CInternationalPropertyPage::OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized)
{
    CBCGPPropertyPage::OnActivate(nState, pWndOther, bMinimized);
}

/// The system puts every page where it was when the sheet was made.
void CInternationalPropertyPage::OnWindowPosChanging(WINDOWPOS* pPlace)
{
    CBCGPPropertyPage::OnWindowPosChanging(pPlace);
    if (const auto* const sheet = DYNAMIC_DOWNCAST(CInternationalPropertySheet, GetParentSheet()))
        sheet->PutPage(*pPlace);
}

int CInternationalPropertyPage::TranslateStringToINI() { return TranslateByTable(m_nDlgResID); }

BOOL CInternationalPropertyPage::PreTranslateMessage(MSG* pMsg)
{
    if (IsChangerKey(*pMsg))
        PostMessage(WM_QORVEL_RC_STRING_EXTRACT);
    return CBCGPPropertyPage::PreTranslateMessage(pMsg);
}

LRESULT CInternationalPropertyPage::OnRcStringExtract(WPARAM, LPARAM)
{
    OpenChanger(this);
    return 0;
}

HBRUSH CInternationalPropertyPage::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    const HBRUSH brush = GetSkinBackground(*pDC, *pWnd, nCtlColor);
    return brush ? brush : CBCGPPropertyPage::OnCtlColor(pDC, pWnd, nCtlColor);
}

void CInternationalPropertyPage::PostNcDestroy()
{
    CloseWindow();
    CBCGPPropertyPage::PostNcDestroy();
}

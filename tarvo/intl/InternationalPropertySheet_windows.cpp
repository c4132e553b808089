#include "tarvo/intl/InternationalPropertySheet.h"

#include "tarvo/intl/DialogMemory_windows.h"
#include "tarvo/intl/ModuleTable_windows.h"
#include "tarvo/intl/WindowText_windows.h"

#include "qlx/qlx_lib.h"

#include <afxcmn.h>

#include <utility>

IMPLEMENT_DYNCREATE(CInternationalPropertySheet, CBCGPPropertySheet)

BEGIN_MESSAGE_MAP(CInternationalPropertySheet, CBCGPPropertySheet)
ON_WM_SIZE()
ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

namespace
{
/// The resizable sheet that the system is about to make: its first call names no window.
CInternationalPropertySheet* g_making = nullptr;

/// A template's style, of either form.
DWORD& StyleIn(void* dialogTemplate)
{
    auto* const words = static_cast<WORD*>(dialogTemplate);
    const bool extended = words[0] == 1 && words[1] == 0xFFFF;
    return *reinterpret_cast<DWORD*>(words + (extended ? 6 : 0));
}
} // namespace

CInternationalPropertySheet::CInternationalPropertySheet() : CLanguageWindow(SKIN_WINDOW::PropertySheet)
{
    Init(0);
}

CInternationalPropertySheet::CInternationalPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CBCGPPropertySheet(nIDCaption, pParentWnd, iSelectPage), CLanguageWindow(SKIN_WINDOW::PropertySheet)
{
    Init(iSelectPage);
}

CInternationalPropertySheet::CInternationalPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd,
                                                         UINT iSelectPage)
    : CBCGPPropertySheet(pszCaption, pParentWnd, iSelectPage), CLanguageWindow(SKIN_WINDOW::PropertySheet)
{
    Init(iSelectPage);
}

CInternationalPropertySheet::~CInternationalPropertySheet()
{
    if (g_making == this)
        g_making = nullptr;
}

void CInternationalPropertySheet::Init(UINT iSelectPage)
{
    m_nFirstPage = iSelectPage;
    m_strFirstCaption = m_strCaption;
    m_strLastCaption = m_strCaption;
}

INT_PTR CInternationalPropertySheet::DoModal() { return CBCGPPropertySheet::DoModal(); }

BOOL CInternationalPropertySheet::Create(CWnd* pParentWnd, DWORD dwStyle, DWORD dwExStyle)
{
    return CBCGPPropertySheet::Create(pParentWnd, dwStyle, dwExStyle);
}

void CInternationalPropertySheet::BuildPropPageArray() { BuildPropPageArrayInternational(); }

void CInternationalPropertySheet::BuildPropPageArrayInternational()
{
    m_bStarted = false;
    m_parts.clear();
    m_templates.clear();
    CBCGPPropertySheet::BuildPropPageArray();
    auto* bytes = reinterpret_cast<BYTE*>(const_cast<PROPSHEETPAGE*>(m_psh.ppsp));
    for (int i = 0; i < GetPageCount(); ++i)
    {
        auto& psp = *reinterpret_cast<PROPSHEETPAGE*>(bytes);
        bytes += psp.dwSize;
        if (auto* const page = DYNAMIC_DOWNCAST(CInternationalPropertyPage, GetPage(i)))
        {
            page->PreProcessPageTemplateInternational(psp, IsWizard());
            continue;
        }
        auto memory = std::make_unique<CDialogTemplate>();
        if (!LoadWithFont(*memory, GetPage(i)->m_psp.pszTemplate, GetDialogFont()))
            continue;
        psp.pResource = static_cast<PROPSHEETPAGE_RESOURCE>(::GlobalLock(memory->m_hTemplate));
        m_templates.push_back(std::move(memory));
    }
    if (m_strCaption == m_strLastCaption) // not one that the program has set since
        m_strCaption = m_strLastCaption = TranslatedCaption();
    if (!m_bResizable || (m_psh.dwFlags & PSH_USECALLBACK && m_psh.pfnCallback != PropSheetProc))
        return;
    m_psh.dwFlags |= PSH_USECALLBACK;
    m_psh.pfnCallback = PropSheetProc;
    g_making = this;
}

int CALLBACK CInternationalPropertySheet::PropSheetProc(HWND, UINT message, LPARAM lParam)
{
    if (message == PSCB_PRECREATE && std::exchange(g_making, nullptr))
    {
        DWORD& style = StyleIn(reinterpret_cast<void*>(lParam));
        style = (style & ~static_cast<DWORD>(DS_MODALFRAME)) | WS_THICKFRAME;
    }
    return 0;
}

BOOL CInternationalPropertySheet::OnInitDialog()
{
    const BOOL focus = CBCGPPropertySheet::OnInitDialog();
    if (m_hWnd)
        __OnInitDialog();
    return focus;
}

void CInternationalPropertySheet::__OnInitDialog()
{
    OpenWindow(this);
    if (ISkinFunc::Instance()->UsesVisualManager(this, GetSkinKind()))
        EnableVisualManagerStyle();
    TranslateCaptionAndButtons();
    PutTextFont();
    FitPages();
}

LRESULT CInternationalPropertySheet::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND window = m_hWnd;
    CString title;
    if (message == WM_SETTEXT && IsOpen(this) && FindWizardTitle(reinterpret_cast<LPCTSTR>(lParam), title))
        lParam = reinterpret_cast<LPARAM>(title.GetString());
    const LRESULT result = CBCGPPropertySheet::WindowProc(message, wParam, lParam);
    // The object may have gone with its window.
    if (message != WM_INITDIALOG || FromHandlePermanent(window) != this || !IsOpen(this))
        return result;
    StartFromHere();
    FinishStart();
    return result;
}

// Texts.

/// The first page of the library's; what is said about it names the sheet's texts, too.
const CInternationalPropertyPage* CInternationalPropertySheet::FindNamingPage() const
{
    for (int i = 0; i < GetPageCount(); ++i)
        if (const auto* const page = DYNAMIC_DOWNCAST(CInternationalPropertyPage, GetPage(i)))
            return page;
    return nullptr;
}

CString CInternationalPropertySheet::TranslatedCaption() const
{
    const CInternationalPropertyPage* const page = FindNamingPage();
    const ModuleTable found = page ? page->FindTable() : ModuleTable();
    if (!found.pTable || !found.pTable->SelectDlgTexts(page->GetDlgResID(), found.strProject))
        return m_strFirstCaption;
    const CString key = L"IDS_" + found.pTable->GetCurrentDlg() + L"_SHEET";
    const int project = qlx::lib::TranslateUtil::GetMSGPROJbyName(found.strProject);
    return qlx::lib::MMSGFunction::GetValueByDefault(key, m_strFirstCaption, project, 1);
}

CString CInternationalPropertySheet::TranslatedButton(XMultiLang* table, UINT id,
                                                      const CString& original) const
{
    const wchar_t* const name = SheetLayout::ButtonName(id);
    if (!name || original.IsEmpty())
        return original;
    CString text;
    if (!table || !table->FindSharedText(name, text))
        text = original;
    return qlx::lib::MMSGFunction::GetValueByDefault(CString(L"IDS_DIALOG_") + name, text,
                                                     qlx::lib::no_project, 1);
}

void CInternationalPropertySheet::TranslateCaptionAndButtons()
{
    const CInternationalPropertyPage* const page = FindNamingPage();
    XMultiLang* const table = page ? page->FindTable().pTable : nullptr;
    TranslateBy([&](HWND window, const CString& original) {
        if (window != m_hWnd)
            return TranslatedButton(table, static_cast<UINT>(::GetDlgCtrlID(window)), original);
        if (IsWizard() || (m_psh.dwFlags & PSH_PROPTITLE)) // the system writes these
            return WindowText(window);
        return m_strLastCaption = TranslatedCaption();
    });
}

void CInternationalPropertySheet::TranslateTabs()
{
    CTabCtrl* const tabs = IsWizard() ? nullptr : GetTabControl();
    for (int i = 0; tabs && i < GetPageCount(); ++i)
    {
        auto* const page = DYNAMIC_DOWNCAST(CInternationalPropertyPage, GetPage(i));
        wchar_t buffer[260] = {};
        TCITEMW item = {};
        item.mask = TCIF_TEXT;
        item.pszText = buffer;
        item.cchTextMax = 260;
        if (!page || !tabs->GetItem(i, &item) || page->m_strTabText != buffer)
            continue;
        page->m_strTabText = page->GetTabCaption();
        item.pszText = page->m_strTabText.GetBuffer();
        if (page->m_strTabText != buffer)
            tabs->SetItem(i, &item);
    }
}

/// A wizard's caption is that of the page in front. The system puts the one there that it was told when the
/// wizard was built; this is the one in the language in force.
bool CInternationalPropertySheet::FindWizardTitle(const CString& told, CString& title)
{
    for (int i = 0; IsWizard() && i < GetPageCount(); ++i)
    {
        auto* const page = DYNAMIC_DOWNCAST(CInternationalPropertyPage, GetPage(i));
        if (!page || (told != page->m_strBuiltText && told != page->m_strTabText))
            continue;
        title = page->m_strTabText = page->GetTabCaption();
        return true;
    }
    return false;
}

void CInternationalPropertySheet::TranslateWizardTitle()
{
    CString title;
    const CString shown = WindowText(m_hWnd);
    if (FindWizardTitle(shown, title) && title != shown)
        SetWindowText(title);
}

void CInternationalPropertySheet::ChangeOwnTexts()
{
    TranslateCaptionAndButtons();
    TranslateTabs();
    TranslateWizardTitle();
}

bool CInternationalPropertySheet::IsPage(HWND window)
{
    return DYNAMIC_DOWNCAST(CPropertyPage, CWnd::FromHandlePermanent(window)) != nullptr;
}

std::vector<HWND> CInternationalPropertySheet::GetFontTargets() const
{
    std::vector<HWND> targets = ChildrenOf(m_hWnd);
    std::erase_if(targets, IsPage); // they have fonts of their own
    return targets;
}

BOOL CInternationalPropertySheet::OnCommand(WPARAM wParam, LPARAM lParam)
{
    CPropertyPage* const page = SheetLayout::IsRouted(LOWORD(wParam)) ? GetActivePage() : nullptr;
    if (page && HIWORD(wParam) == BN_CLICKED && page->OnCmdMsg(LOWORD(wParam), CN_COMMAND, nullptr, nullptr))
        return TRUE;
    return CBCGPPropertySheet::OnCommand(wParam, lParam);
}

HBRUSH CInternationalPropertySheet::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    const HBRUSH brush = GetSkinBackground(*pDC, *pWnd, nCtlColor);
    return brush ? brush : CBCGPPropertySheet::OnCtlColor(pDC, pWnd, nCtlColor);
}

void CInternationalPropertySheet::PostNcDestroy()
{
    m_bStarted = false;
    CloseWindow();
    CBCGPPropertySheet::PostNcDestroy();
}

#include "demo/common/TranslatedDialog.h"

#include "demo/common/ModuleText.h"
#include "tarvo/lang/INIResourceManager.h"

namespace
{
// The same in every module of the demonstration: the Help button and the text that it shows.
constexpr UINT IDC_OPEN_HELP = 1001;
constexpr UINT IDS_COUNTS = 3002;
} // namespace

BEGIN_MESSAGE_MAP(CTranslatedDialog, CDialog)
ON_BN_CLICKED(IDC_OPEN_HELP, &CTranslatedDialog::OnOpenHelp)
END_MESSAGE_MAP()

CTranslatedDialog::CTranslatedDialog(UINT id, CWnd* parent)
    : CDialog(id, parent), m_module(AfxGetInstanceHandle()), m_id(id)
{
}

BOOL CTranslatedDialog::Open()
{
    AFX_MANAGE_STATE(m_pModuleState);
    return Create(m_id, m_pParentWnd);
}

INT_PTR CTranslatedDialog::DoModal()
{
    AFX_MANAGE_STATE(m_pModuleState);
    return CDialog::DoModal();
}

BOOL CTranslatedDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    if (XMultiLang* table = INIResourceManager::GetXMultiLang(project_name(m_module)))
    {
        UseFace(table->GetXIni().GetStr(L"GENERAL", L"FONT", L""));
        m_count = table->TranslateDialog(m_hWnd, m_id);
    }
    FillControls();
    return TRUE;
}

void CTranslatedDialog::UseFace(const CString& face)
{
    LOGFONTW description{};
    if (face.IsEmpty() || GetFont()->GetLogFont(&description) == 0)
        return;
    ::lstrcpynW(description.lfFaceName, face, LF_FACESIZE);
    m_font.CreateFontIndirect(&description);
    SendMessageToDescendants(WM_SETFONT, reinterpret_cast<WPARAM>(m_font.m_hObject), FALSE);
}

void CTranslatedDialog::FillCombo(int id, const std::initializer_list<CString>& texts, int selected)
{
    SendDlgItemMessage(id, CB_RESETCONTENT);
    for (const CString& text : texts)
        SendDlgItemMessage(id, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(static_cast<const wchar_t*>(text)));
    SendDlgItemMessage(id, CB_SETCURSEL, static_cast<WPARAM>(selected));
}

void CTranslatedDialog::OnOpenHelp()
{
    CString caption;
    CString text;
    GetWindowText(caption);
    text.Format(MODULE_TEXT(m_module, IDS_COUNTS), m_count.nTranslated, m_count.nFallback, m_count.nMissing);
    MessageBox(text, caption, MB_OK | MB_ICONINFORMATION);
}

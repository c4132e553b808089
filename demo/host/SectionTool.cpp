#include "demo/host/SectionTool.h"

#include "demo/host/Catalogue.h"
#include "tarvo/msg/MsgOut.h"

#include <algorithm>
#include <iterator>

namespace
{
constexpr int kRatios[] = {200, 250, 300, 500}; // in the order of the list
}

BEGIN_MESSAGE_MAP(CSectionTool, CInternationalDlg)
ON_BN_CLICKED(IDC_ST_CALCULATE, &CSectionTool::OnCalculate)
END_MESSAGE_MAP()

BOOL CSectionTool::Open(CWnd* parent)
{
    if (!m_hWnd && !Create(IDD_SECTION_TOOL, parent))
        return FALSE;
    ShowWindow(SW_SHOW);
    SetActiveWindow();
    return TRUE;
}

BOOL CSectionTool::OnInitDialog()
{
    CInternationalDlg::OnInitDialog();
    for (const auto& [edit, text] : {std::pair{IDC_ST_WIDTH, L"160"},
                                     {IDC_ST_DEPTH, L"330"},
                                     {IDC_ST_FLANGE, L"11.5"},
                                     {IDC_ST_WEB, L"7.5"}})
        SetDlgItemText(edit, text);
    OnCalculate();
    return TRUE;
}

void CSectionTool::OnCalculate()
{
    const ISection section{entered_number(*this, IDC_ST_WIDTH), entered_number(*this, IDC_ST_DEPTH),
                           entered_number(*this, IDC_ST_FLANGE), entered_number(*this, IDC_ST_WEB)};
    if (!section.IsPossible())
    {
        for (const int value : {IDC_ST_AREA, IDC_ST_INERTIA, IDC_ST_MODULUS})
            SetDlgItemText(value, L"-");
        nsMsgOutError(catalogue_text(L"SECTION_BAD_SIZE"));
        return;
    }
    show_number(*this, IDC_ST_AREA, section.Area(), 1);
    show_number(*this, IDC_ST_INERTIA, section.Inertia(), 0);
    show_number(*this, IDC_ST_MODULUS, section.Modulus(), 0);
}

BOOL CLimitsDlg::OnInitDialog()
{
    CInternationalDlg::OnInitDialog();
    show_number(*this, IDC_LM_UTILISATION, m_model.utilisationLimit, 2);
    show_number(*this, IDC_LM_CRACK, m_model.crackLimit, 2);
    CheckDlgButton(IDC_LM_WARN, m_model.warnsNearLimit ? BST_CHECKED : BST_UNCHECKED);
    CheckDlgButton(IDC_LM_ONCE, m_model.listsEachOnce ? BST_CHECKED : BST_UNCHECKED);
    return TRUE;
}

void CLimitsDlg::SetText()
{
    const bool first = SendDlgItemMessage(IDC_LM_DEFLECTION, CB_GETCOUNT) == 0;
    fill_with_texts(*this, IDC_LM_DEFLECTION, {L"L/200", L"L/250", L"L/300", L"L/500"});
    const auto* const chosen = std::find(std::begin(kRatios), std::end(kRatios), m_model.deflectionRatio);
    if (first && chosen != std::end(kRatios))
        SendDlgItemMessage(IDC_LM_DEFLECTION, CB_SETCURSEL, static_cast<WPARAM>(chosen - kRatios));
}

void CLimitsDlg::OnOK()
{
    m_model.utilisationLimit = entered_number(*this, IDC_LM_UTILISATION);
    const LRESULT chosen = SendDlgItemMessage(IDC_LM_DEFLECTION, CB_GETCURSEL);
    m_model.deflectionRatio = chosen == CB_ERR ? m_model.deflectionRatio : kRatios[chosen];
    m_model.crackLimit = entered_number(*this, IDC_LM_CRACK);
    m_model.listsEachOnce = IsDlgButtonChecked(IDC_LM_ONCE) == BST_CHECKED;
    m_model.warnsNearLimit = IsDlgButtonChecked(IDC_LM_WARN) == BST_CHECKED;
    CInternationalDlg::OnOK();
}

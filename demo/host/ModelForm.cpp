#include "demo/host/ModelForm.h"

#include "demo/host/Catalogue.h"

BEGIN_MESSAGE_MAP(CModelForm, CInternationalFormView)
ON_BN_CLICKED(IDC_MF_CHECK, &CModelForm::OnCheckModel)
ON_BN_CLICKED(IDC_MF_RUN, &CModelForm::OnRunAnalysis)
END_MESSAGE_MAP()

void CModelForm::OnInitialUpdate()
{
    CInternationalFormView::OnInitialUpdate();
    CheckRadioButton(IDC_MF_LINEAR, IDC_MF_BUCKLING, IDC_MF_LINEAR);
    ShowModel();
}

void CModelForm::SetText()
{
    // The program calculates plane frames; the other types belong to a structure that is imported.
    fill_from_catalogue(*this, IDC_MF_TYPE, {L"FRAME_TYPE_PLANE", L"FRAME_TYPE_SPACE", L"FRAME_TYPE_TRUSS"});
    fill_from_catalogue(*this, IDC_MF_MATERIAL,
                        {L"MATERIAL_STEEL", L"MATERIAL_CONCRETE", L"MATERIAL_TIMBER"});
}

void CModelForm::ShowModel()
{
    show_number(*this, IDC_MF_SPAN, m_model.span, 2);
    show_number(*this, IDC_MF_HEIGHT, m_model.height, 2);
    CheckDlgButton(IDC_MF_WEIGHT, m_model.selfWeight ? BST_CHECKED : BST_UNCHECKED);
    SendDlgItemMessage(IDC_MF_MATERIAL, CB_SETCURSEL, static_cast<WPARAM>(m_model.material));
}

void CModelForm::TakeModel()
{
    m_model.span = entered_number(*this, IDC_MF_SPAN);
    m_model.height = entered_number(*this, IDC_MF_HEIGHT);
    m_model.selfWeight = IsDlgButtonChecked(IDC_MF_WEIGHT) == BST_CHECKED;
    m_model.material = static_cast<FrameMaterial>(SendDlgItemMessage(IDC_MF_MATERIAL, CB_GETCURSEL));
}

FrameAnalysis CModelForm::GetAnalysis() const
{
    const int chosen = GetCheckedRadioButton(IDC_MF_LINEAR, IDC_MF_BUCKLING);
    return static_cast<FrameAnalysis>(chosen - IDC_MF_LINEAR);
}

void CModelForm::OnCheckModel() { GetParentFrame()->SendMessage(WM_COMMAND, ID_ANALYSIS_CHECK); }
void CModelForm::OnRunAnalysis() { GetParentFrame()->SendMessage(WM_COMMAND, ID_ANALYSIS_RUN); }

#include "demo/common/ModuleText.h"
#include "demo/section/SectionDialogs.h"
#include "demo/section/Sections.h"
#include "demo/section/resource.h"

namespace
{
class CMemberPropertiesDlg : public CTranslatedDialog
{
public:
    explicit CMemberPropertiesDlg(CWnd* parent) : CTranslatedDialog(IDD_MEMBER_PROPERTIES, parent) {}

protected:
    void FillControls() override;
    afx_msg void OnPickSection();
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CMemberPropertiesDlg, CTranslatedDialog)
ON_BN_CLICKED(IDC_MP_SECTION_PICK, &CMemberPropertiesDlg::OnPickSection)
END_MESSAGE_MAP()

void CMemberPropertiesDlg::FillControls()
{
    const HINSTANCE module = GetModule();
    for (const Section& section : sections())
        SendDlgItemMessage(IDC_MP_SECTION, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(section.name));
    SendDlgItemMessage(IDC_MP_SECTION, CB_SETCURSEL, 4);
    FillCombo(IDC_MP_MATERIAL,
              {MODULE_TEXT(module, IDS_MATERIAL_STEEL), MODULE_TEXT(module, IDS_MATERIAL_STAINLESS),
               MODULE_TEXT(module, IDS_MATERIAL_CONCRETE), MODULE_TEXT(module, IDS_MATERIAL_TIMBER),
               MODULE_TEXT(module, IDS_MATERIAL_ALUMINIUM)},
              0);
    SetDlgItemInt(IDC_MP_NUMBER, 12);
    SetDlgItemText(IDC_MP_ROTATION, L"0.0");
    SetDlgItemText(IDC_MP_LENGTH_Y, L"1.00");
    SetDlgItemText(IDC_MP_LENGTH_Z, L"0.70");
    CheckDlgButton(IDC_MP_COLUMN, BST_CHECKED);
    CheckDlgButton(IDC_MP_END_MZ, BST_CHECKED);
}

void CMemberPropertiesDlg::OnPickSection()
{
    AFX_MANAGE_STATE(m_pModuleState);
    make_section_library(this)->DoModal();
}
} // namespace

std::unique_ptr<CTranslatedDialog> make_member_properties(CWnd* parent)
{
    return std::make_unique<CMemberPropertiesDlg>(parent);
}

#include "demo/host/HostModule.h"
#include "demo/host/resource.h"

namespace
{
class CUnitsDlg : public CTranslatedDialog
{
public:
    explicit CUnitsDlg(CWnd* parent) : CTranslatedDialog(IDD_UNITS, parent) {}

protected:
    void FillControls() override;
    afx_msg void OnSystem(UINT id);
    afx_msg void OnDefaults();
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CUnitsDlg, CTranslatedDialog)
ON_COMMAND_RANGE(IDC_UN_SI, IDC_UN_US, &CUnitsDlg::OnSystem)
ON_BN_CLICKED(IDC_UN_DEFAULTS, &CUnitsDlg::OnDefaults)
END_MESSAGE_MAP()

void CUnitsDlg::FillControls()
{
    // Each list holds the unit of the SI, the metric and the US system in this order.
    FillCombo(IDC_UN_LENGTH, {L"m", L"m", L"ft"}, 0);
    FillCombo(IDC_UN_SECTION, {L"mm", L"cm", L"in"}, 0);
    FillCombo(IDC_UN_FORCE, {L"kN", L"tf", L"kip"}, 0);
    FillCombo(IDC_UN_MOMENT, {L"kN\u00B7m", L"tf\u00B7m", L"kip\u00B7ft"}, 0);
    FillCombo(IDC_UN_STRESS, {L"MPa", L"kgf/cm\u00B2", L"ksi"}, 0);
    FillCombo(IDC_UN_TEMPERATURE, {L"\u00B0C", L"\u00B0C", L"\u00B0F"}, 0);
    OnDefaults();
}

void CUnitsDlg::OnSystem(UINT id)
{
    for (const int combo :
         {IDC_UN_LENGTH, IDC_UN_SECTION, IDC_UN_FORCE, IDC_UN_MOMENT, IDC_UN_STRESS, IDC_UN_TEMPERATURE})
        SendDlgItemMessage(combo, CB_SETCURSEL, id - IDC_UN_SI);
}

void CUnitsDlg::OnDefaults()
{
    CheckRadioButton(IDC_UN_SI, IDC_UN_CUSTOM, IDC_UN_SI);
    OnSystem(IDC_UN_SI);
    SetDlgItemInt(IDC_UN_DECIMALS, 3);
    CheckDlgButton(IDC_UN_THOUSANDS, BST_CHECKED);
    CheckDlgButton(IDC_UN_EXPONENT, BST_UNCHECKED);
}
} // namespace

std::unique_ptr<CTranslatedDialog> make_units(CWnd* parent) { return std::make_unique<CUnitsDlg>(parent); }

#include "demo/common/ModuleText.h"
#include "demo/host/HostModule.h"
#include "demo/host/resource.h"

namespace
{
class CProjectSettingsDlg : public CTranslatedDialog
{
public:
    explicit CProjectSettingsDlg(CWnd* parent) : CTranslatedDialog(IDD_PROJECT_SETTINGS, parent) {}

protected:
    void FillControls() override
    {
        const HINSTANCE module = GetModule();
        SetDlgItemText(IDC_PS_NAME, MODULE_TEXT(module, IDS_SAMPLE_PROJECT));
        SetDlgItemText(IDC_PS_NUMBER, L"2024-117");
        SetDlgItemText(IDC_PS_ENGINEER, MODULE_TEXT(module, IDS_SAMPLE_ENGINEER));
        FillCombo(IDC_PS_CODE,
                  {L"EN 1993-1-1", L"ANSI/AISC 360-22", L"KDS 14 31", L"AIJ 2019", L"GB 50017-2017",
                   L"SP 16.13330.2017"},
                  0);
        CheckDlgButton(IDC_PS_SPACE_FRAME, BST_CHECKED);
        CheckDlgButton(IDC_PS_SELF_WEIGHT, BST_CHECKED);
        CheckDlgButton(IDC_PS_SECOND_ORDER, BST_CHECKED);
        CheckDlgButton(IDC_PS_BACKUP, BST_CHECKED);
        SetDlgItemInt(IDC_PS_BACKUP_TIME, 15);
    }
};
} // namespace

std::unique_ptr<CTranslatedDialog> make_project_settings(CWnd* parent)
{
    return std::make_unique<CProjectSettingsDlg>(parent);
}

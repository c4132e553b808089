#include "demo/common/ModuleText.h"
#include "demo/host/HostModule.h"
#include "demo/host/resource.h"

#include <shellapi.h>

namespace
{
class CAboutDlg : public CTranslatedDialog
{
public:
    explicit CAboutDlg(CWnd* parent) : CTranslatedDialog(IDD_ABOUT, parent) {}

protected:
    void FillControls() override
    {
        const HINSTANCE module = GetModule();
        SetDlgItemText(IDC_AB_HOLDER, MODULE_TEXT(module, IDS_SAMPLE_HOLDER));
        SetDlgItemText(IDC_AB_EDITION, MODULE_TEXT(module, IDS_SAMPLE_EDITION));
    }
    afx_msg void OnSystemInformation()
    {
        ::ShellExecuteW(m_hWnd, nullptr, L"msinfo32.exe", nullptr, nullptr, SW_SHOWNORMAL);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CAboutDlg, CTranslatedDialog)
ON_BN_CLICKED(IDC_AB_SYSTEM, &CAboutDlg::OnSystemInformation)
END_MESSAGE_MAP()
} // namespace

std::unique_ptr<CTranslatedDialog> make_about(CWnd* parent) { return std::make_unique<CAboutDlg>(parent); }

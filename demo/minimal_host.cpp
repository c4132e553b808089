// The first lines of a host: a language table, and a dialog that comes up in Japanese.
#include "demo/host/resource.h"
#include "tarvo/lang/INIResourceManager.h"
#include "tarvo/lang/XMultiLang.h"

#include <afxwin.h>

class CSettingsDlg : public CDialog
{
public:
    CSettingsDlg() : CDialog(IDD_PROJECT_SETTINGS) {}
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        INIResourceManager::GetXMultiLang(L"TarvoDemo")->TranslateDialog(m_hWnd, IDD_PROJECT_SETTINGS);
        return TRUE;
    }
};

class CHost : public CWinApp
{
    BOOL InitInstance() override
    {
        auto* table = new XMultiLang; // the registry deletes it
        table->LoadResourceHeaderByDLL(IDR_RESOURCE_HEADER, L"RESOURCE_HEADER", AfxGetInstanceHandle());
        INIResourceManager::AppendMap(L"TarvoDemo", table);
        table->Create(L"Language\\Japanese\\ctrl_TarvoDemo_jp.ini",
                      L"Language\\Global\\ctrl_TarvoDemo_gb.ini");
        CSettingsDlg().DoModal();
        INIResourceManager::DeleteINIResource();
        return FALSE; // nothing more to run
    }
} theHost;

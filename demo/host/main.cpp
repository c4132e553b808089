#include "demo/host/Catalogue.h"
#include "demo/host/CommandLine.h"
#include "demo/host/HostModule.h"
#include "demo/host/LanguageTables.h"
#include "demo/host/Languages.h"
#include "demo/host/MainWindow.h"
#include "demo/host/PictureRun.h"
#include "demo/section/SectionModule.h"
#include "tarvo/lang/INIResourceManager.h"

#include <commctrl.h>
#include <cstdio>
#include <numeric>
#include <shellapi.h>

namespace
{
std::vector<std::wstring> arguments()
{
    int count = 0;
    wchar_t** words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    std::vector<std::wstring> result(words + 1, words + count);
    ::LocalFree(words);
    return result;
}

/// A window program has no console of its own: its lines go to the one that it was started from, unless
/// they are redirected already.
void join_console()
{
    const HANDLE output = ::GetStdHandle(STD_OUTPUT_HANDLE);
    if ((output == nullptr || output == INVALID_HANDLE_VALUE) && ::AttachConsole(ATTACH_PARENT_PROCESS))
        static_cast<void>(std::freopen("CONOUT$", "w", stdout)); // without one the lines go nowhere
}

class CDemoApp : public CWinApp
{
public:
    BOOL InitInstance() override;
    int ExitInstance() override
    {
        INIResourceManager::DeleteINIResource();
        return m_exitCode;
    }

private:
    void Start(const CommandLine& commandLine);

    std::unique_ptr<CMSGInfoImpl> m_messages;
    int m_exitCode = 0;
};

BOOL CDemoApp::InitInstance()
{
    ::InitCommonControls();
    SetRegistryKey(L"TarvoDemo");
    join_console();
    const CommandLine commandLine = read_command_line(arguments());
    if (!commandLine.error.empty())
    {
        print_line(L"TarvoDemo: " + commandLine.error);
        m_exitCode = 2;
    }
    else if (commandLine.help)
    {
        print_line(kUsage);
    }
    else
    {
        Start(commandLine);
    }
    return m_pMainWnd != nullptr;
}

void CDemoApp::Start(const CommandLine& commandLine)
{
    const std::vector<DemoModule> modules{HostModule(), SectionModule()};
    register_language_tables(modules);
    m_messages = start_messages();
    if (!commandLine.picturesFolder.empty())
    {
        std::vector<int> languages(kLanguages.size());
        std::iota(languages.begin(), languages.end(), 0);
        if (commandLine.language)
            languages = {*commandLine.language};
        m_exitCode = run_pictures(modules, commandLine.picturesFolder, languages);
        return;
    }
    const int stored = IMSGInfo::Instance()->GetCurrentLang();
    const bool known = stored >= 0 && stored < static_cast<int>(kLanguages.size());
    auto* const window = new CMainWindow(modules, commandLine.language.value_or(known ? stored : kEnglish));
    if (!window->Open())
    {
        m_exitCode = 1;
        return;
    }
    m_pMainWnd = window; // deletes itself
    window->ShowWindow(m_nCmdShow);
    window->UpdateWindow();
}

CDemoApp theApp;
} // namespace

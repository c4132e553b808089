// Opens the dialogs of a real program in the languages of its translations, which the program tarvo made into
// language files, and holds what the windows show against the scripts of the translations.
#include "demo/host/IndexPage.h"
#include "demo/host/Languages.h"
#include "demo/host/Png.h"
#include "demo/host/ReportFile.h"
#include "demo/host/WindowPicture.h"
#include "demo/real/RealDialog.h"
#include "demo/real/ScriptTexts.h"
#include "tarvo/lang/INIResourceManager.h"
#include "tarvo/restools/Resources.h"

#include <commctrl.h>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <shellapi.h>

namespace
{
namespace fs = std::filesystem;

constexpr const wchar_t* kProject = L"RealDialogs";
constexpr int kHeaderResource = 60001;

std::wstring text_of(HWND window)
{
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(
        static_cast<std::size_t>(::GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

CResources read_script(const fs::path& file)
{
    CResources resources;
    CString log;
    CStringArray languages;
    resources.Read(file.c_str(), log, L"", languages);
    return resources;
}

std::wstring read_header(const fs::path& file)
{
    std::ifstream stream(file);
    const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    return {bytes.begin(), bytes.end()};
}

class CRealDialogs : public CWinApp
{
public:
    BOOL InitInstance() override;
    int ExitInstance() override { return m_failed ? 1 : 0; }

private:
    void Language(int language);
    void Dialog(const ScriptDialog& expected, int language);
    void Show(CRealDialog& dialog, const ScriptDialog& expected, WindowReport& report);
    int Differences(CWnd& dialog, const ScriptDialog& expected);
    void Line(const std::wstring& line) const { std::puts(to_utf8(line).c_str()); }

    fs::path m_folder;   ///< of the module, the scripts and the language files
    fs::path m_pictures; ///< empty: none are written
    HINSTANCE m_module = nullptr;
    XMultiLang* m_table = nullptr; ///< the registry's
    std::vector<WindowReport> m_reports;
    int m_alike = 0; ///< texts of the language
    bool m_failed = false;
};

BOOL CRealDialogs::InitInstance()
{
    INITCOMMONCONTROLSEX classes{sizeof classes, ICC_WIN95_CLASSES | ICC_LINK_CLASS};
    ::InitCommonControlsEx(&classes);
    int count = 0;
    wchar_t** const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    m_folder = count > 1 ? words[1] : L".";
    m_pictures = count > 2 ? words[2] : L"";
    ::LocalFree(words);

    m_module = ::LoadLibraryW((m_folder / L"RealDialogs.dll").c_str());
    m_table = new XMultiLang;
    m_failed = !m_module || !m_table->LoadResourceHeaderByDLL(kHeaderResource, L"RESOURCE_HEADER", m_module);
    INIResourceManager::AppendMap(kProject, m_table);
    for (int language = 0; language < static_cast<int>(kLanguages.size()); ++language)
    {
        if (fs::exists(m_folder / L"Language" / (std::wstring(kLanguages[language].name) + L".ini")))
            Language(language);
    }
    INIResourceManager::DeleteINIResource();
    if (!m_pictures.empty())
        m_failed = !write_reports(m_pictures / kReportFile, m_reports) || m_failed;
    m_failed = m_failed || m_reports.empty();
    return FALSE;
}

void CRealDialogs::Language(int language)
{
    const std::wstring name = kLanguages[language].name;
    INIResourceManager::ReloadINIResource([&](const CString&) {
        const fs::path file = m_folder / L"Language" / (name + L".ini");
        return CLanguageFiles{file.c_str(), L"", kLanguages[language].codePage};
    });
    const std::vector<ScriptDialog> dialogs =
        dialogs_of(read_script(m_folder / L"English.rc"), read_script(m_folder / (name + L".rc")),
                   read_header(m_folder / L"resource.h"));
    m_alike = 0;
    for (const ScriptDialog& dialog : dialogs)
        Dialog(dialog, language);
    Line(name + L": " + std::to_wstring(dialogs.size()) + L" dialogs, " + std::to_wstring(m_alike) +
         L" texts as in the script of the translation");
    m_failed = m_failed || m_alike == 0;
}

void CRealDialogs::Dialog(const ScriptDialog& expected, int language)
{
    CWnd frame; // around pages
    frame.CreateEx(0, L"STATIC", L"", WS_POPUP | WS_CAPTION | WS_SYSMENU, CRect(40, 40, 140, 140), nullptr,
                   0);
    WindowReport report;
    report.window =
        std::wstring(kProject) + L"/" + expected.symbol; // the page shows other programs' windows too
    report.language = language;
    CRealDialog dialog(*m_table, m_module, static_cast<UINT>(expected.id), &frame);
    report.opened = dialog.Open();
    if (report.opened)
        Show(dialog, expected, report);
    else
        Line(report_line(report));
    m_failed = m_failed || !report.opened;
    m_reports.push_back(report);
    if (dialog.m_hWnd)
        dialog.DestroyWindow();
    frame.DestroyWindow();
}

void CRealDialogs::Show(CRealDialog& dialog, const ScriptDialog& expected, WindowReport& report)
{
    report.translated = dialog.GetCount().nTranslated;
    report.fallback = dialog.GetCount().nFallback;
    report.missing = dialog.GetCount().nMissing;
    m_failed = Differences(dialog, expected) != 0 || m_failed;
    if (m_pictures.empty())
        return;
    report.file = L"REAL_" + expected.symbol + L"_" + kLanguages[report.language].name + L".png";
    const HWND shown = dialog.GetStyle() & WS_CHILD ? dialog.GetParent()->m_hWnd : dialog.m_hWnd;
    m_failed = !write_bytes(m_pictures / report.file, encode_png(take_picture({shown}))) || m_failed;
}

int CRealDialogs::Differences(CWnd& dialog, const ScriptDialog& expected)
{
    int differences = 0;
    const auto compare = [&](const std::wstring& name, const std::wstring& shown, const std::wstring& text) {
        if (shown == text)
        {
            ++m_alike;
            return;
        }
        Line(L"          " + expected.symbol + L" " + name + L" shows \"" + shown + L"\", not \"" + text +
             L"\"");
        ++differences;
    };
    if (!expected.caption.empty())
        compare(L"caption", text_of(dialog.m_hWnd), expected.caption);
    for (const ScriptControl& control : expected.controls)
        compare(control.symbol, text_of(::GetDlgItem(dialog.m_hWnd, control.id)), control.text);
    return differences;
}

CRealDialogs theApp;
} // namespace

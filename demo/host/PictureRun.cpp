#include "demo/host/PictureRun.h"

#include "demo/host/IndexPage.h"
#include "demo/host/Languages.h"
#include "demo/host/ReportFile.h"
#include "demo/host/SwitchCheck.h"
#include "demo/host/TextCount.h"
#include "demo/host/WindowPicture.h"
#include "tarvo/intl/InternationalUtil.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>

namespace
{
constexpr int kModelMenu = 1;             // its place in the menu bar
constexpr const wchar_t* kSpan = L"7.30"; // some beams are too weak then, and some nearly

class CPictureRun
{
public:
    CPictureRun(const std::vector<DemoModule>& modules, std::filesystem::path folder)
        : m_modules(modules), m_folder(std::move(folder))
    {
    }

    void Language(int language)
    {
        LanguageReport report;
        report.language = language;
        const int former =
            (language + static_cast<int>(kLanguages.size()) - 1) % static_cast<int>(kLanguages.size());
        const WindowShots switched = Switched(former, language, report);
        const WindowShots opened = Opened(language);
        for (const DemoModule& module : m_modules)
        {
            for (const DialogEntry& entry : module.dialogs)
                Dialog(entry, language);
        }
        Compare(opened, switched, report);
    }

    int Finish()
    {
        AddReportsOfOthers();
        const std::string page = index_page(m_reports, m_languages);
        const bool written = write_bytes(m_folder / L"index.html", {page.begin(), page.end()});
        if (!written)
            print_line(L"index.html could not be written");
        return written && !m_failed ? 0 : 1;
    }

private:
    /// All windows open in one language, then switched to the other.
    WindowShots Switched(int former, int language, LanguageReport& report)
    {
        WindowShots after;
        CMainWindow* const main = OpenMain(former);
        const bool shown =
            main && with_all_windows(*main, [&](const std::vector<OpenedWindow>& windows) {
                const WindowShots before = take_all_controls(*main, windows);
                report.before = Write(L"SWITCH_BEFORE", language, take_picture(visible_windows()));
                main->SetLanguage(language);
                after = take_all_controls(*main, windows);
                report.after = Write(L"SWITCH_AFTER", language, take_picture(visible_windows()));
                report.controls = static_cast<int>(after.controls.size());
                report.changed = count_changed_texts(before.controls, after.controls);
                report.former = former;
                report.font = wanted_font();
                report.mapped = mapped_font(::GetDlgItem(main->GetForm().m_hWnd, IDC_MF_NOTE));
                report.dialogFont = CInternationalUtil::GetDlgFontName().GetString();
                report.dialogMapped = mapped_font(main->GetTool().m_hWnd); // its template's
            });
        if (main)
            main->DestroyWindow();
        report.opened = shown;
        return after;
    }

    /// All windows opened in the language, with a picture of each.
    WindowShots Opened(int language)
    {
        WindowShots shots;
        CMainWindow* const main = OpenMain(language);
        WindowReport report;
        report.window = L"IDR_MAINFRAME";
        report.language = language;
        report.opened = main != nullptr;
        if (main)
        {
            Count(report, main->GetCount());
            Picture picture;
            main->ShowPopup(
                kModelMenu, [](void* to) { *static_cast<Picture*>(to) = take_picture(visible_windows()); },
                &picture);
            Keep(report, picture);
        }
        Add(report);
        if (!main)
            return shots;
        const bool shown = with_all_windows(*main, [&](const std::vector<OpenedWindow>& windows) {
            for (const OpenedWindow& window : windows)
                International(window, language);
            shots = take_all_controls(*main, windows);
        });
        main->DestroyWindow();
        m_failed = m_failed || !shown;
        return shots;
    }

    CMainWindow* OpenMain(int language)
    {
        auto* const main = new CMainWindow(m_modules, language); // deletes itself
        if (!main->Open())
            return nullptr;
        main->ShowWindow(SW_SHOW);
        Settle(*main);
        Calculate(*main);
        return main;
    }

    /// A structure that has messages of every kind.
    static void Calculate(CMainWindow& main)
    {
        main.GetForm().SetDlgItemText(IDC_MF_SPAN, kSpan);
        main.SendMessage(WM_COMMAND, ID_ANALYSIS_RUN);
    }

    void International(const OpenedWindow& opened, int language)
    {
        opened.bringToFront();
        WindowReport report;
        report.window = opened.symbol;
        report.language = language;
        report.opened = opened.window != nullptr;
        if (report.opened)
        {
            Count(report, count_catalogue_texts(opened.window, opened.dialog).count);
            report.cutTexts = find_cut_texts(opened.window);
            if (opened.frame != opened.window)
            {
                for (const std::wstring& text : find_cut_texts(opened.frame))
                    report.cutTexts.push_back(text);
            }
            Keep(report, take_picture({opened.frame}));
        }
        Add(report);
    }

    /// What was switched must look as what was opened in the language.
    void Compare(const WindowShots& opened, const WindowShots& switched, LanguageReport& report)
    {
        report.left = compare_controls(opened.controls, switched.controls);
        report.left.insert(report.left.end(), switched.wrong.begin(), switched.wrong.end());
        report.left.insert(report.left.end(), opened.wrong.begin(), opened.wrong.end());
        for (const std::wstring& line : language_lines(report))
            print_line(line);
        m_failed = m_failed || !report.opened || !report.left.empty() || report.changed == 0;
        m_languages.push_back(report);
    }

    static std::wstring wanted_font()
    {
        CString text;
        text.Format(L"%s, %d pt", CInternationalUtil::GetDlgTextFontName().GetString(),
                    CInternationalUtil::GetDlgTextFontSize());
        return text.GetString();
    }

    void Dialog(const DialogEntry& entry, int language)
    {
        WindowReport report;
        report.window = entry.symbol;
        report.language = language;
        const std::unique_ptr<CTranslatedDialog> dialog = entry.make(nullptr);
        report.opened = dialog->Open();
        if (report.opened)
        {
            dialog->ShowWindow(SW_SHOW);
            Settle(*dialog);
            Count(report, dialog->GetCount());
            report.cutTexts = find_cut_texts(dialog->m_hWnd);
            Keep(report, take_picture({dialog->m_hWnd}));
            dialog->DestroyWindow();
        }
        Add(report);
    }

    /// Activates the window and handles what is queued, so that it has its focus and its active caption.
    static void Settle(CWnd& window)
    {
        window.SetForegroundWindow();
        window.SetActiveWindow();
        MSG message;
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        {
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
        }
        window.UpdateWindow();
    }

    static void Count(WindowReport& report, const CTranslateCount& count)
    {
        report.translated = count.nTranslated;
        report.fallback = count.nFallback;
        report.missing = count.nMissing;
    }

    void Keep(WindowReport& report, const Picture& picture)
    {
        report.file = Write(report.window, report.language, picture);
    }

    /// Writes a picture; the name of its file.
    std::wstring Write(const std::wstring& window, int language, const Picture& picture)
    {
        std::wstring file = window + L"_" + kLanguages[language].name + L".png";
        if (picture.pixels.empty() || !write_bytes(m_folder / file, encode_png(picture)))
        {
            print_line(file + L" could not be written");
            m_failed = true;
        }
        return file;
    }

    void AddReportsOfOthers()
    {
        for (const WindowReport& report : read_reports(m_folder / kReportFile))
        {
            if (std::any_of(m_languages.begin(), m_languages.end(),
                            [&](const LanguageReport& shown) { return shown.language == report.language; }))
                m_reports.push_back(report);
        }
    }

    void Add(const WindowReport& report)
    {
        print_line(report_line(report));
        for (const std::wstring& text : report.cutTexts)
            print_line(L"          cut off: " + text);
        m_failed = m_failed || !report.opened;
        m_reports.push_back(report);
    }

    const std::vector<DemoModule>& m_modules;
    std::filesystem::path m_folder;
    std::vector<WindowReport> m_reports;
    std::vector<LanguageReport> m_languages;
    bool m_failed = false;
};
} // namespace

int run_pictures(const std::vector<DemoModule>& modules, const std::wstring& folder,
                 const std::vector<int>& languages)
{
    std::error_code failure;
    std::filesystem::create_directories(folder, failure);
    // The program's choice of language is the user's and no matter of the pictures.
    const UINT stored = AfxGetApp()->GetProfileInt(L"LANGUAGE", L"LANGUAGE", kEnglish);
    CPictureRun run(modules, folder);
    for (const int language : languages)
        run.Language(language);
    AfxGetApp()->WriteProfileInt(L"LANGUAGE", L"LANGUAGE", static_cast<int>(stored));
    return run.Finish();
}

void print_line(const std::wstring& line)
{
    std::puts(to_utf8(line).c_str());
    std::fflush(stdout);
}

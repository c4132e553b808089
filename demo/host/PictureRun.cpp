#include "demo/host/PictureRun.h"

#include "demo/host/IndexPage.h"
#include "demo/host/LanguageTables.h"
#include "demo/host/Languages.h"
#include "demo/host/MainWindow.h"
#include "demo/host/WindowPicture.h"

#include <cstdio>
#include <filesystem>

namespace
{
constexpr int kModelMenu = 1; // its place in the menu bar

class CPictureRun
{
public:
    CPictureRun(const std::vector<DemoModule>& modules, std::filesystem::path folder)
        : m_modules(modules), m_folder(std::move(folder))
    {
    }

    void Language(int language)
    {
        CMainWindow mainWindow(m_modules, language);
        Main(mainWindow);
        for (const DemoModule& module : m_modules)
        {
            for (const DialogEntry& entry : module.dialogs)
                Dialog(entry, language);
        }
    }

    int Finish()
    {
        const std::string page = index_page(m_reports);
        const bool written = write_bytes(m_folder / L"index.html", {page.begin(), page.end()});
        if (!written)
            print_line(L"index.html could not be written");
        return written && !m_failed ? 0 : 1;
    }

private:
    void Main(CMainWindow& window)
    {
        WindowReport report;
        report.window = L"IDR_MAINFRAME";
        report.language = window.GetLanguage();
        report.opened = window.Open();
        if (report.opened)
        {
            window.ShowWindow(SW_SHOW);
            Settle(window);
            Count(report, window.GetCount());
            Picture picture;
            window.ShowPopup(
                kModelMenu, [](void* to) { *static_cast<Picture*>(to) = take_picture(visible_windows()); },
                &picture);
            Keep(report, picture);
            window.ShowWindow(SW_HIDE);
        }
        Add(report);
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
        report.file = report.window + L"_" + kLanguages[report.language].name + L".png";
        if (picture.pixels.empty() || !write_bytes(m_folder / report.file, encode_png(picture)))
        {
            print_line(report.file + L" could not be written");
            m_failed = true;
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
    bool m_failed = false;
};
} // namespace

int run_pictures(const std::vector<DemoModule>& modules, const std::wstring& folder,
                 const std::vector<int>& languages)
{
    std::error_code failure;
    std::filesystem::create_directories(folder, failure);
    CPictureRun run(modules, folder);
    for (const int language : languages)
        run.Language(language);
    return run.Finish();
}

void print_line(const std::wstring& line)
{
    std::puts(to_utf8(line).c_str());
    std::fflush(stdout);
}

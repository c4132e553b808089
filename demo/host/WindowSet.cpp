#include "demo/host/WindowSet.h"

#include "demo/host/AnalysisControl.h"
#include "demo/host/StructureWizard.h"

#include <iterator>

namespace
{
struct Page
{
    const wchar_t* symbol;
    UINT dialog;
};
constexpr Page kControlPages[] = {{L"IDD_AC_SOLVER", IDD_AC_SOLVER},
                                  {L"IDD_AC_DYNAMICS", IDD_AC_DYNAMICS},
                                  {L"IDD_AC_OUTPUT", IDD_AC_OUTPUT}};
constexpr Page kWizardPages[] = {{L"IDD_WZ_GEOMETRY", IDD_WZ_GEOMETRY},
                                 {L"IDD_WZ_SECTIONS", IDD_WZ_SECTIONS},
                                 {L"IDD_WZ_LOADS", IDD_WZ_LOADS},
                                 {L"IDD_WZ_SUMMARY", IDD_WZ_SUMMARY}};

void place(CWnd& window, int x, int y)
{
    window.SetWindowPos(nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

/// A wizard's buttons follow by a message that is queued.
void bring_to_front(CShownSheet& sheet, int page)
{
    sheet.SetActivePage(page);
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
    {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
}

template <std::size_t count>
void add_pages(std::vector<OpenedWindow>& windows, CShownSheet& sheet, const Page (&pages)[count])
{
    for (int i = static_cast<int>(count); i-- > 0;)
        bring_to_front(sheet, i); // makes its window
    for (std::size_t i = 0; i < count; ++i)
    {
        const int number = static_cast<int>(i);
        windows.push_back({pages[i].symbol, pages[i].dialog, sheet.GetPage(number)->m_hWnd, sheet.m_hWnd,
                           [&sheet, number] { bring_to_front(sheet, number); }});
    }
}
} // namespace

bool with_all_windows(CMainWindow& main, const std::function<void(const std::vector<OpenedWindow>&)>& use)
{
    const auto alone = [] {};
    CLimitsDlg limits(main.GetModel(), &main);
    CSectionTool& tool = main.GetTool();
    if (!tool.Open(&main) || !limits.Create(IDD_LIMITS, &main))
        return false;
    limits.ShowWindow(SW_SHOW);
    place(tool, 620, 20);
    place(limits, 600, 420);
    std::vector<OpenedWindow> windows{
        {L"IDD_MODEL_FORM", IDD_MODEL_FORM, main.GetForm().m_hWnd, main.GetForm().m_hWnd, alone},
        {L"IDD_MESSAGE_PANE", IDD_MESSAGE_PANE, main.GetPane().m_hWnd, main.GetPane().m_hWnd, alone},
        {L"IDD_SECTION_TOOL", IDD_SECTION_TOOL, tool.m_hWnd, tool.m_hWnd, alone},
        {L"IDD_LIMITS", IDD_LIMITS, limits.m_hWnd, limits.m_hWnd, alone}};

    bool used = false;
    CAnalysisControl control(main.GetSettings(), &main);
    CStructureWizard wizard(&main);
    const bool shown = control.ShowTo([&] {
        place(control, 40, 385);
        add_pages(windows, control, kControlPages);
        used = wizard.ShowTo([&] {
            place(wizard, 190, 70);
            add_pages(windows, wizard, kWizardPages);
            use(windows);
        });
    });
    limits.DestroyWindow();
    tool.DestroyWindow();
    return shown && used;
}

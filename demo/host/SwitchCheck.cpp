#include "demo/host/SwitchCheck.h"

#include "demo/host/TextCount.h"

namespace
{
std::vector<std::wstring> texts_of(CMenu& menu)
{
    std::vector<std::wstring> texts;
    for (UINT i = 0; i < menu.GetMenuItemCount(); ++i)
    {
        CString text;
        menu.GetMenuString(i, text, MF_BYPOSITION);
        texts.emplace_back(text.GetString());
    }
    return texts;
}

/// A menu that is loaded when it is shown has the texts of the one that has been open all the time.
void check_picture_menu(CMainWindow& main, WindowShots& shots)
{
    CMenu bar, loaded;
    bar.Attach(::GetMenu(main.m_hWnd));
    CMenu* const view = main.LoadPictureMenu(loaded);
    const std::vector<std::wstring> texts = view ? texts_of(*view) : std::vector<std::wstring>();
    if (texts.empty() || texts != texts_of(*bar.GetSubMenu(CMainWindow::kViewMenu)))
        shots.wrong.push_back(L"the menu of the picture");
    bar.Detach();
}
} // namespace

WindowShots take_all_controls(CMainWindow& main, const std::vector<OpenedWindow>& windows)
{
    for (const CMessagePane::PAGE page : {CMessagePane::Analysis, CMessagePane::History})
    {
        main.GetPane().Activate(page);
        main.GetPane().Clear();
    }
    WindowShots shots;
    check_picture_menu(main, shots);
    shots.controls = take_controls(L"IDR_MAINFRAME", main.m_hWnd);
    for (const OpenedWindow& opened : windows)
    {
        opened.bringToFront();
        for (ControlShot& shot : take_controls(opened.symbol, opened.frame))
            shots.controls.push_back(std::move(shot));
        for (const CString& text : count_catalogue_texts(opened.window, opened.dialog).wrong)
            shots.wrong.push_back(std::wstring(text.GetString()));
    }
    return shots;
}

#include "demo/host/SwitchCheck.h"

#include "demo/host/TextCount.h"

WindowShots take_all_controls(CMainWindow& main, const std::vector<OpenedWindow>& windows)
{
    for (const CMessagePane::PAGE page : {CMessagePane::Analysis, CMessagePane::History})
    {
        main.GetPane().Activate(page);
        main.GetPane().Clear();
    }
    WindowShots shots;
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

#pragma once
#include "demo/host/MainWindow.h"

#include <functional>
#include <vector>

/// One of the windows of the international bases that are open. Pages share the window of their sheet.
struct OpenedWindow
{
    const wchar_t* symbol;
    UINT dialog;
    HWND window;                        ///< of the dialog resource
    HWND frame;                         ///< what a picture shows
    std::function<void()> bringToFront; ///< makes it the page in front
};

/// Opens the tool window, the limits, the analysis control and the wizard beside the main window, shows every
/// page once and calls \p use with all of them, the main window's form first. False when one did not come up.
bool with_all_windows(CMainWindow& main, const std::function<void(const std::vector<OpenedWindow>&)>& use);

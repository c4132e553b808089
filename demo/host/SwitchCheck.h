#pragma once
#include "demo/host/ControlShots.h"
#include "demo/host/WindowSet.h"

/// What the windows show, control by control.
struct WindowShots
{
    std::vector<ControlShot> controls;
    std::vector<std::wstring> wrong; ///< texts that the catalogue has and that are not shown
};

/// Of the main window and of each of the others, with every page in front once. The message pane is emptied
/// before: its lines stay in the language in which they were written.
WindowShots take_all_controls(CMainWindow& main, const std::vector<OpenedWindow>& windows);

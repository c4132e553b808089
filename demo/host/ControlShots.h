#pragma once
#include "demo/host/Png.h"

#include <string>
#include <vector>
#include <windows.h>

/// One control of a window as a user sees it.
struct ControlShot
{
    std::wstring key;  ///< the window's name and the identifiers on the way to the control
    std::wstring text; ///< with the lines of a combo box and the captions of tabs
    std::wstring font; ///< face and height as they are mapped
    Picture picture;
};

/// The window itself and all of its descendants that can be seen, in their order. Focus and caret are taken
/// away for it, since they blink.
std::vector<ControlShot> take_controls(const std::wstring& name, HWND window);

/// What of \p wanted is not in \p found or differs there, one line each.
std::vector<std::wstring> compare_controls(const std::vector<ControlShot>& wanted,
                                           const std::vector<ControlShot>& found);
/// How many controls of both have another text.
int count_changed_texts(const std::vector<ControlShot>& before, const std::vector<ControlShot>& after);

/// Face and height in pixels of the font that the system takes for the window's texts.
std::wstring mapped_font(HWND window);

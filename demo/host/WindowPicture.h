#pragma once
#include "demo/host/Png.h"

#include <string>
#include <vector>
#include <windows.h>

/// The visible top-level windows of this thread, bottom-most first: what lies on the screen of ours.
std::vector<HWND> visible_windows();

/// A picture of the windows as they lie over each other, cut to their common bounding rectangle; the
/// first is bottom-most. It is read from each window's own surface after it has painted, so that it works
/// without a display. Empty when no window has a size.
Picture take_picture(const std::vector<HWND>& windows);

/// The texts of labels and buttons of the dialog that need more room than their control has, and of controls
/// that lie partly outside the dialog, each as "id: text". Measured with the control's own font.
std::vector<std::wstring> find_cut_texts(HWND dialog);

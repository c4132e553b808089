#pragma once

#include "tarvo/intl/SheetLayout.h"

#include <afxwin.h>

inline SheetLayout::Rect RectOf(const CRect& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

/// The part of the screen that a window is on without what is always in front.
inline SheetLayout::Rect WorkArea(HWND window)
{
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfoW(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
    return RectOf(monitor.rcWork);
}

/// Makes a window of the screen larger or smaller, within the screen (SheetLayout::Grow).
inline void GrowWindow(HWND window, const SheetLayout::Size& by)
{
    CRect place;
    ::GetWindowRect(window, place);
    const SheetLayout::Rect grown = SheetLayout::Grow(RectOf(place), by, WorkArea(window));
    ::SetWindowPos(window, nullptr, grown.left, grown.top, grown.right - grown.left, grown.bottom - grown.top,
                   SWP_NOZORDER | SWP_NOACTIVATE);
}

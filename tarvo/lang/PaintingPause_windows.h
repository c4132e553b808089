#pragma once

#include <afxwin.h>

/// Holds back a visible window's painting, which then happens once instead of for every text.
class CPaintingPause
{
public:
    explicit CPaintingPause(HWND window) : m_window(::IsWindowVisible(window) ? window : nullptr)
    {
        if (m_window)
            ::SendMessageW(m_window, WM_SETREDRAW, FALSE, 0);
    }
    ~CPaintingPause()
    {
        if (!::IsWindow(m_window))
            return;
        ::SendMessageW(m_window, WM_SETREDRAW, TRUE, 0);
        ::RedrawWindow(m_window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
    }
    CPaintingPause(const CPaintingPause&) = delete;
    CPaintingPause& operator=(const CPaintingPause&) = delete;

private:
    HWND m_window;
};

#include "demo/host/SheetShown.h"

#include <utility>

namespace
{
constexpr UINT kShown = WM_APP + 1;
}

bool CShownSheet::ShowTo(const std::function<void()>& shown)
{
    m_shown = shown;
    m_bShown = false;
    DoModal();
    m_shown = nullptr;
    return m_bShown;
}

BOOL CShownSheet::OnInitDialog()
{
    const BOOL focus = CInternationalPropertySheet::OnInitDialog();
    if (m_shown)
        PostMessage(kShown); // handled when the window is visible
    return focus;
}

LRESULT CShownSheet::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != kShown || !m_shown)
        return CInternationalPropertySheet::WindowProc(message, wParam, lParam);
    m_bShown = true;
    ShowWindow(SW_SHOW);
    std::exchange(m_shown, nullptr)();
    PressButton(PSBTN_CANCEL);
    return 0;
}

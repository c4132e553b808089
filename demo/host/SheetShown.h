#pragma once
#include "tarvo/intl/InternationalPropertySheet.h"

#include <functional>

/// A sheet or wizard that can be shown to a program instead of a user: the pictures of the demonstration are
/// taken from the sheet as users get it, which is modal.
class CShownSheet : public CInternationalPropertySheet
{
public:
    using CInternationalPropertySheet::CInternationalPropertySheet;

    /// Runs the sheet modally and calls \p shown when it is on the screen; cancels it then. False when it did
    /// not come up.
    bool ShowTo(const std::function<void()>& shown);

protected:
    BOOL OnInitDialog() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    std::function<void()> m_shown;
    bool m_bShown = false;
};

#pragma once

#include "tarvo/intl/InternationalPropertySheet.h"

#include <functional>
#include <utility>

/// A sheet whose behaviour each test gives: once it is initialised, and when its texts are set for the first
/// time.
class CTestSheet : public CInternationalPropertySheet
{
public:
    using CInternationalPropertySheet::CInternationalPropertySheet;
    BOOL OnInitDialog() override
    {
        const BOOL focus = CInternationalPropertySheet::OnInitDialog();
        if (onInit)
            onInit();
        return focus;
    }
    void SetText() override
    {
        if (const auto once = std::exchange(onText, nullptr))
            once();
    }
    std::function<void()> onInit, onText;
};

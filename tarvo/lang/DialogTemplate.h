#pragma once

#include "tarvo/export.h"

#include <afxstr.h>

#include <span>
#include <vector>

/// What a compiled dialog resource says about texts.
struct DialogTexts
{
    struct Control
    {
        int id;
        CString text;
    };
    CString caption;
    std::vector<Control> controls; ///< in the template's order; controls whose text is a number are left out
};

/// Reads a dialog template, plain or extended. A template that ends early gives what stands before its end.
TARVO_API DialogTexts ReadDialogTemplate(std::span<const unsigned char> bytes);

#pragma once

#include "tarvo/export.h"

#include <string_view>

/// Whose a control's text is.
namespace TextOwner
{
/// What decides it.
struct Control
{
    std::wstring_view className; ///< as the system tells it
    bool takesSelection = false; ///< it answers WM_GETDLGCODE with DLGC_HASSETSEL, as edit controls do
    unsigned style = 0;
};

/// True when a control's text is what the user entered or chose, or may be: edit controls of any kind,
/// combo and list boxes, dates, addresses and keys. No translation touches those.
TARVO_API bool IsEntry(const Control& control);
/// True for entries that the user cannot type into: read-only edit controls. Their text is the program's,
/// which may set it.
TARVO_API bool IsReadOnlyEntry(const Control& control);
} // namespace TextOwner

#pragma once

#include "tarvo/export.h"

/// Where the parts of a property sheet stand when the sheet is another size.
namespace SheetLayout
{
struct Size
{
    int cx = 0;
    int cy = 0;
    friend bool operator==(const Size&, const Size&) = default;
};

struct Rect
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    friend bool operator==(const Rect&, const Rect&) = default;
};

enum class PART
{
    Fill,   ///< the tab control and the pages: grow with the sheet
    Button, ///< keeps its distance from the lower right corner
    Line,   ///< a wizard's line above the buttons: grows in width, keeps its distance from the lower edge
    Other   ///< stays
};

/// The part that a child of the sheet is, by its identifier; \p isPage for a page's window.
TARVO_API PART PartOf(unsigned id, bool isPage);

/// Where a part that stood at \p place when the sheet's client area was \p then stands when that is \p now.
/// A part that grows is never turned inside out: its width and height end at 0.
TARVO_API Rect Place(PART part, const Rect& place, const Size& then, const Size& now);

/// How much larger a sheet becomes whose pages want more room than the system gave them; never smaller.
TARVO_API Size Growth(const Size& wanted, const Size& given);
/// A window made larger within an area of the screen: it grows to the right and downwards, is moved back as
/// far as needed, and is never made larger than the area, so that its buttons can be reached. Negative sizes
/// make it smaller.
TARVO_API Rect Grow(const Rect& window, const Size& by, const Rect& area);

/// True for the sheet's buttons that it offers to its pages first: Apply, Help and those of a wizard.
TARVO_API bool IsRouted(unsigned id);
/// The name of a sheet's button in language files («IDOK», «ID_APPLY_NOW»); null for other identifiers.
TARVO_API const wchar_t* ButtonName(unsigned id);
} // namespace SheetLayout

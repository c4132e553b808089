#pragma once

#include "tarvo/export.h"

#include <afxstr.h>

/// The rules of CInternationalUtil over given values.
namespace FontRules
{
/// What a font description takes for a size in points: the characters' height in pixels as a negative
/// number, rounded half away from zero. It is 1 where the product does not fit 32 bits, as the system's
/// arithmetic has it.
TARVO_API int Height(int points, int dotsPerInch);

/// A size setting as a number: its leading decimal integer, 0 when it holds none. Numbers beyond 32 bits
/// are the nearest that fits.
TARVO_API int ToSize(const CString& setting);
/// The same for the text font, which is 9 points high when the setting is below 1.
TARVO_API int ToTextSize(const CString& setting);

/// True for the styles of statics that show bitmaps and metafiles: all three bits 0x0E set.
TARVO_API bool IsPicture(unsigned style);

/// The height that a label with a text needs: a label that is at most 12 pixels high becomes 13 pixels
/// high, one of several lines (it holds a line feed) at most 24 pixels high 26. Every other height, and
/// that of an empty label, stays.
TARVO_API int LabelHeight(int height, const CString& text);
} // namespace FontRules

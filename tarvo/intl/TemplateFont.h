#pragma once

#include "tarvo/export.h"

#include <afxstr.h>

#include <span>
#include <vector>

/// The font that a dialog template names.
struct TemplateFont
{
    CString face;
    int points = 0;
    friend bool operator==(const TemplateFont&, const TemplateFont&) = default;
};

/// The font of a template, plain or extended, in its bytes. False when it names none or ends before it.
TARVO_API bool GetTemplateFont(std::span<const unsigned char> bytes, TemplateFont& font);

/// Copies a template with another font. Its controls move behind the font, and DS_SETFONT is set. Weight
/// and italic of an extended template stay; its character set becomes the default one, since it belongs to
/// the face that was there. The face is cut to the 31 characters that a font's name may have.
///
/// What \p font leaves open stays as the template has it: an empty face, and a size outside 1 to 127
/// points, which is no setting but the lack of one, or damage. A template that names no font then gets
/// "MS Shell Dlg", 9 points.
///
/// False, with \p result empty, for bytes that end before the first control.
TARVO_API bool SetTemplateFont(std::span<const unsigned char> bytes, const TemplateFont& font,
                               std::vector<unsigned char>& result);

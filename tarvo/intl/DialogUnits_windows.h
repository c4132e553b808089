#pragma once

#include "tarvo/intl/TemplateLayout.h"

#include <afxwin.h>

#include <optional>
#include <span>

/// What a dialog has from the font of its template.
struct DialogMeasure
{
    DialogUnits units;
    LOGFONTW font = {};
};

/// Learns it from the system, by a window that is made for it and is gone again; a template in the font of
/// the one before costs nothing. Nothing when the template names no font or no window can be made.
std::optional<DialogMeasure> MeasureTemplate(std::span<const unsigned char> bytes);

/// The units of a dialog's window: those of the font that it was made in.
DialogUnits UnitsOf(HWND dialog);

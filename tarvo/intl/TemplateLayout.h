#pragma once

#include "tarvo/export.h"

#include <span>
#include <vector>

/// Where a dialog template puts its window's parts, in dialog units. How many pixels these are is decided by
/// the template's font.
struct TemplateLayout
{
    struct Place
    {
        int x = 0;
        int y = 0;
        int cx = 0;
        int cy = 0;
        friend bool operator==(const Place&, const Place&) = default;
    };
    struct Control
    {
        int id = 0;
        Place place;
    };
    Place window; ///< the size is that of the client area
    std::vector<Control> controls;
};

/// Reads a template, plain or extended. False, with \p layout empty, for bytes that end before the last
/// control.
TARVO_API bool ReadTemplateLayout(std::span<const unsigned char> bytes, TemplateLayout& layout);

/// A template of the same form and font for a window that shows nothing: what a dialog of that font measures
/// can be learnt from it. Empty when \p bytes name no font.
TARVO_API std::vector<unsigned char> MakeMeasuringTemplate(std::span<const unsigned char> bytes);

/// What 4 horizontal and 8 vertical dialog units are in pixels.
struct DialogUnits
{
    int x = 0;
    int y = 0;
    friend bool operator==(const DialogUnits&, const DialogUnits&) = default;
};

/// A place in pixels, rounded as the system does when it makes a dialog: each of the four numbers by itself.
TARVO_API TemplateLayout::Place ToPixels(const TemplateLayout::Place& place, const DialogUnits& units);

/// How large a window has to be, in pixels, for all that lies inside its template to lie inside it: the
/// rounding of a control's place and size may take it a pixel further than the window's. Only width and
/// height are given.
TARVO_API TemplateLayout::Place Extent(const TemplateLayout& layout, const DialogUnits& units);

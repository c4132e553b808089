#include "tarvo/intl/TemplateLayout.h"

#include "tarvo/lang/TemplateReader.h"

#include <algorithm>
#include <cstdint>

namespace
{
constexpr unsigned kPopup = 0x80000000; // WS_POPUP
constexpr unsigned kSetFont = 0x40;     // DS_SETFONT

int ReadSigned(TemplateReader& reader) { return static_cast<std::int16_t>(reader.word()); }

TemplateLayout::Place ReadPlace(TemplateReader& reader)
{
    TemplateLayout::Place place;
    place.x = ReadSigned(reader);
    place.y = ReadSigned(reader);
    place.cx = ReadSigned(reader);
    place.cy = ReadSigned(reader);
    return place;
}

TemplateLayout::Control ReadControl(TemplateReader& reader, bool extended)
{
    reader.align();
    reader.skip(extended ? 12 : 8); // help identifier, styles
    TemplateLayout::Control control;
    control.place = ReadPlace(reader);
    control.id = static_cast<int>(extended ? reader.dword() : reader.word());
    CString windowClass, text;
    reader.text_or_number(windowClass);
    reader.text_or_number(text);
    reader.skip(reader.word()); // creation data
    return control;
}

void PutWord(std::vector<unsigned char>& bytes, unsigned value)
{
    bytes.push_back(static_cast<unsigned char>(value));
    bytes.push_back(static_cast<unsigned char>(value >> 8));
}

void PutDword(std::vector<unsigned char>& bytes, unsigned value)
{
    PutWord(bytes, value);
    PutWord(bytes, value >> 16);
}

/// value * numerator / denominator, rounded half away from zero.
int Scale(int value, int numerator, int denominator)
{
    const std::int64_t product = static_cast<std::int64_t>(value) * numerator;
    const std::int64_t half = product < 0 ? -denominator / 2 : denominator / 2;
    return static_cast<int>((product + half) / denominator);
}
} // namespace

bool ReadTemplateLayout(std::span<const unsigned char> bytes, TemplateLayout& layout)
{
    layout = {};
    TemplateReader reader(bytes);
    const TemplateHead head = ReadTemplateHead(reader, bytes);
    TemplateReader place(bytes);
    place.skip(head.styleAt + (head.extended ? 4 : 8) + 2); // styles, number of controls
    TemplateLayout read;
    read.window = ReadPlace(place);
    for (unsigned i = 0; i < head.controls && reader.ok(); ++i)
        read.controls.push_back(ReadControl(reader, head.extended));
    if (!reader.ok())
        return false;
    layout = std::move(read);
    return true;
}

std::vector<unsigned char> MakeMeasuringTemplate(std::span<const unsigned char> bytes)
{
    TemplateReader reader(bytes);
    const TemplateHead head = ReadTemplateHead(reader, bytes);
    std::vector<unsigned char> made;
    if (!reader.ok() || !head.hasFont)
        return made;
    if (head.extended)
        for (const unsigned value : {1u, 0xFFFFu, 0u, 0u, 0u, 0u})
            PutWord(made, value);
    PutDword(made, kPopup | kSetFont);
    if (!head.extended)
        PutDword(made, 0);
    for (int zero = 0; zero < 8; ++zero) // controls, place, menu, class, caption
        PutWord(made, 0);
    made.insert(made.end(), bytes.begin() + static_cast<std::ptrdiff_t>(head.fontAt),
                bytes.begin() + static_cast<std::ptrdiff_t>(reader.at()));
    return made;
}

TemplateLayout::Place ToPixels(const TemplateLayout::Place& place, const DialogUnits& units)
{
    return {Scale(place.x, units.x, 4), Scale(place.y, units.y, 8), Scale(place.cx, units.x, 4),
            Scale(place.cy, units.y, 8)};
}

TemplateLayout::Place Extent(const TemplateLayout& layout, const DialogUnits& units)
{
    const TemplateLayout::Place& window = layout.window;
    const TemplateLayout::Place pixels = ToPixels(window, units);
    TemplateLayout::Place extent{0, 0, pixels.cx, pixels.cy};
    for (const TemplateLayout::Control& control : layout.controls)
    {
        const TemplateLayout::Place place = ToPixels(control.place, units);
        if (control.place.x + control.place.cx <= window.cx)
            extent.cx = std::max(extent.cx, place.x + place.cx);
        if (control.place.y + control.place.cy <= window.cy)
            extent.cy = std::max(extent.cy, place.y + place.cy);
    }
    return extent;
}

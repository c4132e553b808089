#pragma once
#include <span>

/// Shapes in the order of the dialog's radio buttons.
enum class SectionShape
{
    i_section,
    channel,
    angle,
    box,
    pipe
};

/// A rolled or hollow section of the European tables. Lengths in mm, the rest in powers of cm, mass in kg/m.
struct Section
{
    SectionShape shape;
    const wchar_t* name;
    double depth, width, web, flange;
    double area, mass;
    double iy, iz, wy;
};

std::span<const Section> sections();

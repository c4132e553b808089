#include "tarvo/intl/SheetLayout.h"

#include <algorithm>
#include <iterator>

namespace
{
// The system's identifiers of a sheet's parts.
constexpr unsigned kTab = 0x3020;
constexpr unsigned kLine = 0x3026;

struct ButtonRow
{
    unsigned id;
    const wchar_t* name;
    bool routed;
};

constexpr ButtonRow kButtons[] = {
    {1, L"IDOK", false},
    {2, L"IDCANCEL", false},
    {9, L"IDHELP", true},
    {0x3021, L"ID_APPLY_NOW", true},
    {0x3023, L"ID_WIZBACK", true},
    {0x3024, L"ID_WIZNEXT", true},
    {0x3025, L"ID_WIZFINISH", true},
};

const ButtonRow* FindButton(unsigned id)
{
    const auto* found = std::find_if(std::begin(kButtons), std::end(kButtons),
                                     [id](const ButtonRow& row) { return row.id == id; });
    return found == std::end(kButtons) ? nullptr : found;
}

/// One direction of Grow. What was larger than the area, or outside of it, is not the growth's fault.
void GrowSide(int& from, int& to, int by, int areaFrom, int areaTo)
{
    const int length = to - from;
    const int most = std::max(length, areaTo - areaFrom);
    const int grown = by > 0 ? std::min(length + by, most) : std::max(length + by, 0);
    if (by > 0 && from + grown > areaTo)
        from = std::min(from, std::max(areaFrom, areaTo - grown));
    to = from + grown;
}
} // namespace

namespace SheetLayout
{
PART PartOf(unsigned id, bool isPage)
{
    if (isPage || id == kTab)
        return PART::Fill;
    if (id == kLine)
        return PART::Line;
    return FindButton(id) ? PART::Button : PART::Other;
}

Rect Place(PART part, const Rect& place, const Size& then, const Size& now)
{
    const int wider = now.cx - then.cx;
    const int higher = now.cy - then.cy;
    Rect result = place;
    const bool moves = part == PART::Button;
    if (moves)
        result.left += wider;
    if (moves || part == PART::Line)
        result.top += higher;
    if (part != PART::Other)
    {
        result.right += wider;
        result.bottom += higher;
    }
    result.right = std::max(result.right, result.left);
    result.bottom = std::max(result.bottom, result.top);
    return result;
}

Size Growth(const Size& wanted, const Size& given)
{
    return {std::max(wanted.cx - given.cx, 0), std::max(wanted.cy - given.cy, 0)};
}

Rect Grow(const Rect& window, const Size& by, const Rect& area)
{
    Rect result = window;
    GrowSide(result.left, result.right, by.cx, area.left, area.right);
    GrowSide(result.top, result.bottom, by.cy, area.top, area.bottom);
    return result;
}

bool IsRouted(unsigned id)
{
    const ButtonRow* const row = FindButton(id);
    return row && row->routed;
}

const wchar_t* ButtonName(unsigned id)
{
    const ButtonRow* const row = FindButton(id);
    return row ? row->name : nullptr;
}
} // namespace SheetLayout

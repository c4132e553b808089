#include "tarvo/intl/DialogUnits_windows.h"

namespace
{
INT_PTR CALLBACK NoProc(HWND, UINT, WPARAM, LPARAM) { return FALSE; }

std::optional<DialogMeasure> Measure(const std::vector<unsigned char>& bytes)
{
    const HWND window = ::CreateDialogIndirectParamW(
        AfxGetInstanceHandle(), reinterpret_cast<LPCDLGTEMPLATE>(bytes.data()), nullptr, NoProc, 0);
    if (!window)
        return {};
    DialogMeasure measure{UnitsOf(window), {}};
    const auto font = reinterpret_cast<HFONT>(::SendMessageW(window, WM_GETFONT, 0, 0));
    const bool known = ::GetObjectW(font, sizeof measure.font, &measure.font) != 0;
    ::DestroyWindow(window);
    return known ? std::optional(measure) : std::nullopt;
}
} // namespace

DialogUnits UnitsOf(HWND dialog)
{
    RECT units{0, 0, 4, 8};
    ::MapDialogRect(dialog, &units);
    return {units.right, units.bottom};
}

std::optional<DialogMeasure> MeasureTemplate(std::span<const unsigned char> bytes)
{
    static std::vector<unsigned char> last;
    static std::optional<DialogMeasure> measured;
    std::vector<unsigned char> made = MakeMeasuringTemplate(bytes);
    if (made.empty())
        return {};
    if (!measured || made != last)
    {
        measured = Measure(made);
        last = std::move(made);
    }
    return measured;
}

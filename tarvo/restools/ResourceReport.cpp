#include "tarvo/restools/ResourceReport.h"

#include <array>
#include <new>
#include <utility>

namespace
{
constexpr std::array<CResRule, static_cast<std::size_t>(ResRule::Count)> rules = {{
    {"menu-count", "The scripts have different numbers of menus."},
    {"menu-missing", "A menu is missing in the second script."},
    {"menu-item-missing", "An item of a menu is missing in the second script."},
    {"menu-item-style", "The options of a menu item differ."},
    {"menu-item-text", "The text of a menu item has lost or changed placeholders or escapes."},
    {"menu-item-count", "A menu has different numbers of items."},
    {"menu-structure", "The items of a menu stand in another order."},
    {"toolbar-count", "The scripts have different numbers of toolbars."},
    {"toolbar-missing", "A toolbar is missing in the second script."},
    {"toolbar-item-missing", "An item of a toolbar is missing in the second script."},
    {"toolbar-item-count", "A toolbar has different numbers of items."},
    {"toolbar-structure", "The items of a toolbar stand in another order."},
    {"dialog-count", "The scripts have different numbers of dialogs."},
    {"dialog-missing", "A dialog is missing in the second script."},
    {"dialog-type", "A dialog is written with another keyword."},
    {"dialog-style", "The style of a dialog differs."},
    {"dialog-exstyle", "The extended style of a dialog differs."},
    {"dialog-caption", "The caption of a dialog has lost or changed placeholders or escapes."},
    {"control-missing", "A control of a dialog is missing in the second script."},
    {"control-type", "A control is of another type."},
    {"control-style", "The style of a control differs."},
    {"control-exstyle", "The extended style of a control differs."},
    {"control-help-id", "The help ID of a control differs."},
    {"control-text", "The text of a control has lost or changed placeholders or escapes."},
    {"control-count", "A dialog has different numbers of controls."},
    {"tab-order", "The controls of a dialog stand in another order."},
    {"string-missing", "A string is missing in the second script."},
    {"string-text", "A string has lost or changed placeholders or escapes."},
    {"bitmap-missing", "A bitmap is missing in the second script."},
    {"icon-missing", "An icon is missing in the second script."},
    {"cursor-missing", "A cursor is missing in the second script."},
}};
} // namespace

const CResRule& ResourceRule(ResRule rule) { return rules[static_cast<std::size_t>(rule)]; }

void CResReport::Line(Parts parts)
{
    for (const CResText part : parts)
        m_text += part;
    m_text += u"\r\n";
    if (m_text.size() > m_most)
        throw std::bad_alloc();
}

void CResReport::Finding(ResRule rule, const CResPlace& place, Parts parts)
{
    const std::size_t start = m_text.size();
    Line(parts);
    if (m_findings == nullptr)
        return;
    CResText text = CResText(m_text).substr(start, m_text.size() - start - 2);
    text.remove_prefix(text.find_first_not_of(u'\t'));
    m_findings->push_back({rule, std::u16string(text), place.resource, place.item, place.line1, place.line2});
}

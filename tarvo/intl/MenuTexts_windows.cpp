#include "tarvo/intl/MenuTexts_windows.h"

#include "tarvo/lang/MenuText_windows.h"

#include <algorithm>
#include <utility>

const CMenuTexts::Item* CMenuTexts::Find(HMENU menu, HMENU popup, UINT id) const
{
    const auto found = std::find_if(m_items.begin(), m_items.end(), [&](const Item& item) {
        return item.menu == menu && item.popup == popup && (popup || item.id == id);
    });
    return found == m_items.end() ? nullptr : &*found;
}

namespace
{
int SetText(HMENU menu, UINT position, CString text)
{
    MENUITEMINFOW item = {};
    item.cbSize = sizeof item;
    item.fMask = MIIM_STRING;
    item.dwTypeData = text.GetBuffer();
    return ::SetMenuItemInfoW(menu, position, TRUE, &item) ? 1 : 0;
}
} // namespace

int CMenuTexts::Translate(HMENU menu, XMultiLang* table)
{
    int count = 0;
    std::vector<Item> met; // what is no longer in the menu is forgotten: its handles may come again
    ForEachMenuText(menu, [&](HMENU owner, UINT position, UINT id, bool isPopup) {
        const HMENU popup = isPopup ? ::GetSubMenu(owner, static_cast<int>(position)) : nullptr;
        const CString shown = MenuItemText(owner, position);
        const Item* const known = Find(owner, popup, id);
        Item item = known ? *known : Item{owner, popup, id, shown, shown};
        if (shown == item.left)
        {
            CString text;
            if (!table || !table->FindMenuText(id, isPopup, item.original, text))
                text = item.original;
            if (text != shown)
                count += SetText(owner, position, text);
            item.left = text;
        }
        met.push_back(item);
    });
    m_items = std::move(met);
    return count;
}

#pragma once

#include <afxwin.h>

/// A menu item's text, whole; empty when it has none.
CString MenuItemText(HMENU menu, UINT position);

/// Calls \p visit(menu, position, identifier, is popup) for each item of a menu and its popups at any
/// depth that has a text of its own: no separators, bitmaps and items that their owner draws.
template <class Visit>
void ForEachMenuText(HMENU menu, Visit visit)
{
    const int items = ::IsMenu(menu) ? ::GetMenuItemCount(menu) : 0;
    for (UINT position = 0; static_cast<int>(position) < items; ++position)
    {
        MENUITEMINFOW item = {};
        item.cbSize = sizeof item;
        item.fMask = MIIM_FTYPE | MIIM_ID | MIIM_SUBMENU;
        if (!::GetMenuItemInfoW(menu, position, TRUE, &item))
            continue;
        if (!(item.fType & (MFT_SEPARATOR | MFT_OWNERDRAW | MFT_BITMAP)))
            visit(menu, position, item.wID, item.hSubMenu != nullptr);
        if (item.hSubMenu)
            ForEachMenuText(item.hSubMenu, visit);
    }
}

#pragma once

#include "tarvo/lang/XMultiLang.h"

#include <afxwin.h>

#include <vector>

/// The texts that a menu has from its resource, under which its translations are found, also when it shows
/// another language's.
class CMenuTexts
{
public:
    /// Translates the menu and its popups at any depth, each text from its original; without a table the
    /// originals are shown. An item that is met for the first time shows its original. One whose text is not
    /// the one that was left is the program's and stays. Returns how many texts were set.
    int Translate(HMENU menu, XMultiLang* table);

private:
    struct Item
    {
        HMENU menu;  ///< which the item is in
        HMENU popup; ///< which it opens
        UINT id;
        CString original;
        CString left;
    };
    const Item* Find(HMENU menu, HMENU popup, UINT id) const;

    std::vector<Item> m_items;
};

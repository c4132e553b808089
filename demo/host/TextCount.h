#pragma once
#include "tarvo/lang/XMultiLang.h"

#include <afxwin.h>
#include <vector>

/// Where the translations of a menu resource of the program come from in the language in force, its popups at
/// any depth included.
CTranslateCount count_menu_texts(UINT menuId);

/// The same for a window of the international bases, whose texts come from the message catalogue, and what is
/// wrong with it.
struct CatalogueCount
{
    CTranslateCount count;
    /// Texts that have an entry and do not show it, as "symbol: text".
    std::vector<CString> wrong;
};
CatalogueCount count_catalogue_texts(HWND window, UINT dialogId);

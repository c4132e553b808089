#include "tarvo/lang/INIResourceManager.h"

#include "tarvo/lang/MenuText_windows.h"

#include <memory>
#include <type_traits>

namespace
{
struct MenuCloser
{
    void operator()(HMENU menu) const { ::DestroyMenu(menu); }
};
using unique_menu = std::unique_ptr<std::remove_pointer_t<HMENU>, MenuCloser>;

struct Search
{
    XMultiLang* pTable;
    XIni* pMissing;
    int nCount;
};

/// The first key of an item goes to the list when the files have none of its keys.
void AddMissingItem(const Search& search, HMENU menu, UINT position, UINT id, bool isPopup, int& count)
{
    const CString text = MenuItemText(menu, position);
    CStringArray keys;
    search.pTable->GetMenuKeys(id, isPopup, text, keys);
    if (text.IsEmpty() || keys.IsEmpty())
        return;
    for (INT_PTR i = 0; i < keys.GetSize(); ++i)
        if (search.pTable->HasKey(L"MENUSTR", keys[i]))
            return;
    count += search.pMissing->SetStr(L"MENUSTR", keys[0], L"#Need to Copy..#");
}

BOOL CALLBACK AddMissingMenu(HMODULE module, LPCWSTR, LPWSTR name, LONG_PTR param)
{
    Search& search = *reinterpret_cast<Search*>(param);
    const unique_menu menu(::LoadMenuW(module, name));
    ForEachMenuText(menu.get(), [&](HMENU owner, UINT position, UINT id, bool isPopup) {
        AddMissingItem(search, owner, position, id, isPopup, search.nCount);
    });
    return TRUE;
}
} // namespace

int INIResourceManager::LoadMenuToINITranslate(CString project, HMENU menu)
{
    XMultiLang* const table = GetXMultiLang(project);
    return table ? table->TranslateMenuStringSub(menu) : 0;
}

int INIResourceManager::FindCtrl_MenuINIResource(XMultiLang& table, XIni& missing)
{
    if (!table.GetHeaderModule())
        return 0;
    Search search{&table, &missing, 0};
    ::EnumResourceNamesW(*table.GetHeaderModule(), RT_MENU, AddMissingMenu,
                         reinterpret_cast<LONG_PTR>(&search));
    return search.nCount;
}

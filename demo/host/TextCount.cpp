#include "demo/host/TextCount.h"

#include "demo/common/ModuleText.h"
#include "demo/host/resource.h"
#include "tarvo/lang/DialogTemplate.h"
#include "tarvo/lang/INIResourceManager.h"
#include "tarvo/msg/MSGFunction.h"

#include <span>
#include <string>

namespace
{
XMultiLang* host_table() { return INIResourceManager::GetXMultiLang(project_name(AfxGetInstanceHandle())); }

void count_menu(XMultiLang& table, HMENU menu, CTranslateCount& count)
{
    for (int position = 0; position < ::GetMenuItemCount(menu); ++position)
    {
        wchar_t text[256] = L"";
        MENUITEMINFOW item{};
        item.cbSize = sizeof item;
        item.fMask = MIIM_ID | MIIM_STRING | MIIM_SUBMENU;
        item.dwTypeData = text;
        item.cch = 256;
        ::GetMenuItemInfoW(menu, static_cast<UINT>(position), TRUE, &item);
        // The languages stand under their own names whatever the language is.
        if (text[0] == 0 || (item.wID >= ID_LANGUAGE_FIRST && item.wID <= ID_LANGUAGE_LAST))
            continue;
        const CString key =
            table.GetResourceHeader().FindFirst(CResourceHeader::Menu, std::to_wstring(item.wID).c_str());
        CString translated;
        if (!table.GetXIni().GetStr(L"MENUSTR", key, L"").IsEmpty())
            ++count.nTranslated;
        else if (table.FindMenuText(item.wID, item.hSubMenu != nullptr, text, translated))
            ++count.nFallback;
        else
            ++count.nMissing;
        if (item.hSubMenu)
            count_menu(table, item.hSubMenu, count);
    }
}

DialogTexts texts_of(UINT dialogId)
{
    const HINSTANCE module = AfxGetInstanceHandle();
    const HRSRC found = ::FindResourceW(module, MAKEINTRESOURCEW(dialogId), RT_DIALOG);
    if (!found)
        return {};
    const auto* bytes = static_cast<const unsigned char*>(::LockResource(::LoadResource(module, found)));
    return ReadDialogTemplate(std::span(bytes, ::SizeofResource(module, found)));
}

void count_text(CatalogueCount& result, const CString& key, HWND window)
{
    CString wanted;
    CString shown;
    if (!CMSGFunction::Find(key, wanted))
    {
        ++result.count.nMissing;
        return;
    }
    ++result.count.nTranslated;
    CWnd::FromHandle(window)->GetWindowText(shown);
    if (shown != wanted)
        result.wrong.push_back(key + L": " + shown);
}
} // namespace

CTranslateCount count_menu_texts(UINT menuId)
{
    CTranslateCount count;
    CMenu menu;
    if (menu.LoadMenu(menuId))
        count_menu(*host_table(), menu.m_hMenu, count);
    return count;
}

CatalogueCount count_catalogue_texts(HWND window, UINT dialogId)
{
    CatalogueCount result;
    const CResourceHeader& header = host_table()->GetResourceHeader();
    const CString prefix =
        L"IDS_" + header.FindFirst(CResourceHeader::Dialog, std::to_wstring(dialogId).c_str()) + L"_";
    const DialogTexts texts = texts_of(dialogId);
    // A page's caption is its tab's; a wizard's stands above.
    if (!texts.caption.IsEmpty() && !(::GetWindowLongPtrW(window, GWL_STYLE) & WS_CHILD))
        count_text(result, prefix + prefix.Mid(4, prefix.GetLength() - 5), window);
    for (const DialogTexts::Control& control : texts.controls)
    {
        if (!control.text.IsEmpty())
            count_text(result,
                       prefix + header.FindFirst(CResourceHeader::All, std::to_wstring(control.id).c_str()),
                       ::GetDlgItem(window, control.id));
    }
    return result;
}

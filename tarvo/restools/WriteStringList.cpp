#include "tarvo/restools/WriteStringList.h"

#include "tarvo/text/Units.h"

#include <string>

namespace
{
void AddLine(std::u16string& text, CResText id, CResText value)
{
    text.append(id).append(u"\t").append(value).append(u"\r\n");
}

void AddHeading(std::u16string& text, CResText kind, CResText name)
{
    text.append(kind).append(name).append(u"\r\n");
}

template <class Item>
void AddItems(std::u16string& text, const CResBaseclass<Item>& items)
{
    for (const Item& item : items)
        if (!item.m_strText.empty())
            AddLine(text, item.m_strID, item.m_strText);
}
} // namespace

void WriteStringList(const CResources& resources, CString& strText, bool bClean)
{
    std::u16string text;
    for (const CResMenu& menu : resources.Menus())
    {
        AddHeading(text, u"Menu: ", menu.m_strName);
        AddItems(text, menu.m_items);
    }
    for (const CResDialog& dialog : resources.Dialogs())
    {
        AddHeading(text, u"Dialog: ", dialog.m_strName);
        if (!dialog.m_strCaption.empty())
            AddLine(text, u"CAPTION", dialog.m_strCaption);
        AddItems(text, dialog.m_items);
    }
    AddHeading(text, u"Strings: ", {});
    for (const CResString& string : resources.Strings())
        AddLine(text, string.m_strID, string.m_strText);

    CString list = units::to_string(text);
    if (bClean)
        CleanStringList(list);
    strText += list;
}

void CleanStringList(CString& strText)
{
    strText.Remove(L'&');
    strText.Replace(L"\\n", L" ");
    strText.Replace(L"\\t", L" ");
    strText.Replace(L"\\r", L" ");
    strText.Replace(L"\\\"", L"\"");
}

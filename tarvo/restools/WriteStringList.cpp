#include "tarvo/restools/WriteStringList.h"

#include "tarvo/restools/TextOut.h"

namespace
{
template <class Out>
class List
{
public:
    explicit List(Out& out) : m_out(out) {}

    void Heading(CResText kind, CResText name)
    {
        m_out.Put(kind);
        m_out.Put(name);
        m_out.Put(u"\r\n");
    }

    void Line(CResText id, CResText text)
    {
        m_out.Put(id);
        m_out.Put(u"\t");
        m_out.Put(text);
        m_out.Put(u"\r\n");
    }

    template <class Item>
    void Items(const CResBaseclass<Item>& items)
    {
        for (const Item& item : items)
            if (!item.m_strText.empty())
                Line(item.m_strID, item.m_strText);
    }

private:
    Out& m_out;
};

template <class Out>
void WriteList(const CResources& resources, Out& out)
{
    List list(out);
    for (const CResMenu& menu : resources.Menus())
    {
        list.Heading(u"Menu: ", menu.m_strName);
        list.Items(menu.m_items);
    }
    for (const CResDialog& dialog : resources.Dialogs())
    {
        list.Heading(u"Dialog: ", dialog.m_strName);
        if (!dialog.m_strCaption.empty())
            list.Line(u"CAPTION", dialog.m_strCaption);
        list.Items(dialog.m_items);
    }
    list.Heading(u"Strings: ", {});
    for (const CResString& string : resources.Strings())
        list.Line(string.m_strID, string.m_strText);
}
} // namespace

void WriteStringList(const CResources& resources, CString& strText, bool bClean)
{
    CString list;
    AppendText(bClean ? list : strText, [&](auto& out) { WriteList(resources, out); });
    if (bClean)
    {
        CleanStringList(list);
        strText += list;
    }
}

void CleanStringList(CString& strText)
{
    strText.Remove(L'&');
    strText.Replace(L"\\n", L" ");
    strText.Replace(L"\\t", L" ");
    strText.Replace(L"\\r", L" ");
    strText.Replace(L"\\\"", L"\"");
}

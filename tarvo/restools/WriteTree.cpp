#include "tarvo/restools/WriteTree.h"

#include "tarvo/text/Units.h"

#include <string>

namespace
{
CResText TextOf(const CResMenuItem& item) { return item.m_strText; }
CResText TextOf(const CResDialogControl& item) { return item.m_strText; }
CResText TextOf(const CResToolbarItem& item) { return item.m_strKeyword; }

class Tree
{
public:
    explicit Tree(bool idsOnly) : m_idsOnly(idsOnly) {}

    template <class T>
    void Nested(CResText heading, const CResBaseclass<T>& list)
    {
        m_text.append(heading).append(u"\r\n");
        for (const T& one : list)
        {
            m_text.append(u"  ").append(one.m_strName).append(u"\r\n");
            for (const auto& item : one.m_items)
                WithText(u"    ", item.m_strID, TextOf(item));
        }
    }

    void Strings(CResText heading, const CResBaseclass<CResString>& list)
    {
        m_text.append(heading).append(u"\r\n");
        for (const CResString& one : list)
            WithText(u"  ", one.m_strID, one.m_strText);
    }

    void Files(CResText heading, const CResBaseclass<CResSimple>& list)
    {
        m_text.append(heading).append(u"\r\n");
        for (const CResSimple& one : list)
            m_text.append(u"  ").append(one.m_strName).append(u"\r\n");
    }

    CResText Text() const { return m_text; }

private:
    void WithText(CResText indent, CResText id, CResText text)
    {
        m_text.append(indent).append(id);
        if (!m_idsOnly)
            m_text.append(u"\t").append(text);
        m_text.append(u"\r\n");
    }

    std::u16string m_text;
    bool m_idsOnly;
};
} // namespace

void WriteTree(const CResources& resources, CString& strText, bool bIDsOnly)
{
    Tree tree(bIDsOnly);
    tree.Nested(u"Menus:", resources.Menus());
    tree.Nested(u"Toobars:", resources.Toolbars()); // so spelled in every tree that was ever written
    tree.Nested(u"Dialogs:", resources.Dialogs());
    tree.Strings(u"Strings:", resources.Strings());
    tree.Files(u"Bitmaps:", resources.Bitmaps());
    tree.Files(u"PNGs:", resources.PNGs());
    tree.Files(u"Icons:", resources.Icons());
    tree.Files(u"Cursors:", resources.Cursors());
    strText += units::to_string(tree.Text());
}

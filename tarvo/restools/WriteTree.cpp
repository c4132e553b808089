#include "tarvo/restools/WriteTree.h"

#include "tarvo/restools/TextOut.h"

namespace
{
CResText TextOf(const CResMenuItem& item) { return item.m_strText; }
CResText TextOf(const CResDialogControl& item) { return item.m_strText; }
CResText TextOf(const CResToolbarItem& item) { return item.m_strKeyword; }

template <class Out>
class Tree
{
public:
    Tree(Out& out, bool idsOnly) : m_out(out), m_idsOnly(idsOnly) {}

    template <class T>
    void Nested(CResText heading, const CResBaseclass<T>& list)
    {
        Line({}, heading);
        for (const T& one : list)
        {
            Line(u"  ", one.m_strName);
            for (const auto& item : one.m_items)
                WithText(u"    ", item.m_strID, TextOf(item));
        }
    }

    void Strings(CResText heading, const CResBaseclass<CResString>& list)
    {
        Line({}, heading);
        for (const CResString& one : list)
            WithText(u"  ", one.m_strID, one.m_strText);
    }

    void Files(CResText heading, const CResBaseclass<CResSimple>& list)
    {
        Line({}, heading);
        for (const CResSimple& one : list)
            Line(u"  ", one.m_strName);
    }

private:
    void Line(CResText indent, CResText name)
    {
        m_out.Put(indent);
        m_out.Put(name);
        m_out.Put(u"\r\n");
    }
    void WithText(CResText indent, CResText id, CResText text)
    {
        m_out.Put(indent);
        m_out.Put(id);
        if (!m_idsOnly)
        {
            m_out.Put(u"\t");
            m_out.Put(text);
        }
        m_out.Put(u"\r\n");
    }

    Out& m_out;
    bool m_idsOnly;
};
} // namespace

void WriteTree(const CResources& resources, CString& strText, bool bIDsOnly)
{
    AppendText(strText, [&](auto& out) {
        Tree tree(out, bIDsOnly);
        tree.Nested(u"Menus:", resources.Menus());
        tree.Nested(u"Toobars:", resources.Toolbars()); // so spelled in every tree that was ever written
        tree.Nested(u"Dialogs:", resources.Dialogs());
        tree.Strings(u"Strings:", resources.Strings());
        tree.Files(u"Bitmaps:", resources.Bitmaps());
        tree.Files(u"PNGs:", resources.PNGs());
        tree.Files(u"Icons:", resources.Icons());
        tree.Files(u"Cursors:", resources.Cursors());
    });
}

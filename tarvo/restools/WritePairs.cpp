#include "tarvo/restools/WritePairs.h"

#include "tarvo/text/Units.h"

#include <string>
#include <unordered_set>

namespace
{
struct TextPair
{
    CResText id;
    CResText text1;
    CResText text2;

    bool operator==(const TextPair&) const = default;
};

struct PairHash
{
    std::size_t operator()(const TextPair& pair) const
    {
        return (units::hash(pair.id) * std::size_t{31} + units::hash(pair.text1)) * 31 +
               units::hash(pair.text2);
    }
};

/// One section of the table while it is written.
class Section
{
public:
    Section(std::u16string& text, CResText head, bool quoted) : m_text(text), m_quoted(quoted)
    {
        m_text.append(head).append(u"\r\n");
    }

    // The items of two lists, paired by ID and rank.
    template <class T>
    void AddItems(const CResBaseclass<T>& list1, const CResBaseclass<T>& list2)
    {
        for (std::size_t i = 0; i < list1.GetCount(); ++i)
        {
            const T& one = list1.GetAt(i);
            if (const int partner = list2.Find(one.m_strID, list1.RankOf(i)); partner >= 0)
                Add({one.m_strID, one.m_strText, list2.GetAt(static_cast<std::size_t>(partner)).m_strText});
        }
    }

    // The items of a resource and of the one with its name in the other script.
    template <class T>
    void AddResource(const T& one, const CResBaseclass<T>& list2)
    {
        if (const int partner = list2.Find(one.m_strName); partner >= 0)
            AddItems(one.m_items, list2.GetAt(static_cast<std::size_t>(partner)).m_items);
    }

    void AddStrings(const CResBaseclass<CResString>& list1, const CResBaseclass<CResString>& list2)
    {
        for (const CResString& one : list1)
            if (const int partner = list2.Find(one.m_strID); partner >= 0)
                Add({one.m_strID, one.m_strText, list2.GetAt(static_cast<std::size_t>(partner)).m_strText});
    }

private:
    void Add(const TextPair& pair)
    {
        if ((pair.text1.empty() && pair.text2.empty()) || !m_written.insert(pair).second)
            return;
        if (m_quoted)
            m_text.append(u"\"").append(pair.text1).append(u"\"=\"").append(pair.text2).append(u"\"\r\n");
        else
            m_text.append(pair.id)
                .append(u"\t")
                .append(pair.text1)
                .append(u"\t")
                .append(pair.text2)
                .append(u"\r\n");
    }

    std::u16string& m_text;
    std::unordered_set<TextPair, PairHash> m_written;
    bool m_quoted;
};

void WriteDialogs(const CResources& resources1, const CResources& resources2, CResText type, Section section)
{
    for (const CResDialog& dialog : resources1.Dialogs())
        if (dialog.m_strType == type)
            section.AddResource(dialog, resources2.Dialogs());
}

void WriteMenus(const CResources& resources1, const CResources& resources2, Section section)
{
    for (const CResMenu& menu : resources1.Menus())
        section.AddResource(menu, resources2.Menus());
}
} // namespace

void WritePairs(const CResources& resources1, const CResources& resources2, CString& strText, bool bQuoted)
{
    std::u16string text;
    WriteDialogs(resources1, resources2, u"DIALOG", Section(text, u"[DIALOG]", bQuoted));
    WriteDialogs(resources1, resources2, u"DIALOGEX", Section(text, u"[DIALOGEX]", bQuoted));
    WriteMenus(resources1, resources2, Section(text, u"[MENU]", bQuoted));
    Section(text, u"[STRINGTABLE]", bQuoted).AddStrings(resources1.Strings(), resources2.Strings());
    strText += units::to_string(text);
}

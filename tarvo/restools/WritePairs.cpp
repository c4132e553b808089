#include "tarvo/restools/WritePairs.h"

#include "tarvo/restools/ResourcePairs.h"
#include "tarvo/restools/TextOut.h"
#include "tarvo/text/RefTable.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace
{
struct TextPair
{
    CResText id;
    CResText text1;
    CResText text2;

    bool operator==(const TextPair& other) const
    {
        return units::equal(id, other.id) && units::equal(text1, other.text1) &&
               units::equal(text2, other.text2);
    }
};

std::uint32_t HashOf(const TextPair& pair)
{
    return (units::hash(pair.id) * 31 + units::hash(pair.text1)) * 31 + units::hash(pair.text2);
}

/// The pairs of one section, each once, in their order.
class Section
{
public:
    /// At most \p most pairs.
    Section(CResText head, std::size_t most) : m_head(head)
    {
        m_pairs.reserve(most);
        m_table.Reset(most, static_cast<CRefTable::Ref>(most));
    }

    // The items of a resource and of the one with its name in the other script, paired by ID and rank.
    template <class T>
    void AddResource(const T& one, const CResBaseclass<T>& list2)
    {
        const int position = list2.Find(one.m_strName);
        if (position < 0)
            return;
        const CResPairs pairs(one.m_items, list2.GetAt(static_cast<std::size_t>(position)).m_items);
        for (std::size_t i = 0; i < one.m_items.GetCount(); ++i)
            Add(one.m_items.GetAt(i), pairs.PartnerOf(i));
    }

    void AddStrings(const CResBaseclass<CResString>& list1, const CResBaseclass<CResString>& list2)
    {
        const CResPairs pairs(list1, list2);
        for (std::size_t i = 0; i < list1.GetCount(); ++i)
            Add(list1.GetAt(i), pairs.FirstOf(i));
    }

    template <class Out>
    void WriteTo(Out& out, bool quoted) const
    {
        out.Put(m_head);
        out.Put(u"\r\n");
        for (const TextPair& pair : m_pairs)
        {
            out.Put(quoted ? CResText(u"\"") : pair.id);
            out.Put(quoted ? CResText() : u"\t");
            out.Put(pair.text1);
            out.Put(quoted ? CResText(u"\"=\"") : u"\t");
            out.Put(pair.text2);
            out.Put(quoted ? CResText(u"\"\r\n") : u"\r\n");
        }
    }

private:
    template <class Item>
    void Add(const Item& one, const Item* two)
    {
        if (two == nullptr || (one.m_strText.empty() && two->m_strText.empty()))
            return;
        const TextPair pair = {one.m_strID, one.m_strText, two->m_strText};
        const std::uint32_t hash = HashOf(pair);
        const std::size_t slot =
            m_table.Find(hash, [&](CRefTable::Ref position) { return m_pairs[position] == pair; });
        if (!m_table.IsFree(slot))
            return;
        m_table.Put(slot, hash, static_cast<CRefTable::Ref>(m_pairs.size()));
        m_pairs.push_back(pair);
    }

    CResText m_head;
    std::vector<TextPair> m_pairs;
    CRefTable m_table; ///< their positions
};

template <class T, class IsWanted>
Section ItemPairs(CResText head, const CResBaseclass<T>& list1, const CResBaseclass<T>& list2,
                  IsWanted isWanted)
{
    std::size_t most = 0;
    for (const T& one : list1)
        most += isWanted(one) ? one.m_items.GetCount() : 0;
    Section section(head, most);
    for (const T& one : list1)
        if (isWanted(one))
            section.AddResource(one, list2);
    return section;
}

Section DialogPairs(CResText head, CResText type, const CResources& resources1, const CResources& resources2)
{
    return ItemPairs(head, resources1.Dialogs(), resources2.Dialogs(),
                     [type](const CResDialog& dialog) { return dialog.m_strType == type; });
}

Section MenuPairs(const CResources& resources1, const CResources& resources2)
{
    return ItemPairs(u"[MENU]", resources1.Menus(), resources2.Menus(), [](const CResMenu&) { return true; });
}

Section StringPairs(const CResources& resources1, const CResources& resources2)
{
    Section section(u"[STRINGTABLE]", resources1.Strings().GetCount());
    section.AddStrings(resources1.Strings(), resources2.Strings());
    return section;
}
} // namespace

void WritePairs(const CResources& resources1, const CResources& resources2, CString& strText, bool bQuoted)
{
    const Section sections[] = {DialogPairs(u"[DIALOG]", u"DIALOG", resources1, resources2),
                                DialogPairs(u"[DIALOGEX]", u"DIALOGEX", resources1, resources2),
                                MenuPairs(resources1, resources2), StringPairs(resources1, resources2)};
    AppendText(strText, [&](auto& out) {
        for (const Section& section : sections)
            section.WriteTo(out, bQuoted);
    });
}

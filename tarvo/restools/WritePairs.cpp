#include "tarvo/restools/WritePairs.h"

#include "tarvo/restools/ResourcePairs.h"
#include "tarvo/restools/TextOut.h"

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
    explicit Section(CResText head) : m_head(head), m_slots(64, none) {}

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
        std::uint64_t& slot = m_slots[SlotOf(pair, hash)];
        if (slot != none)
            return;
        slot = std::uint64_t{hash} << 32 | m_pairs.size();
        m_pairs.push_back(pair);
        if (m_pairs.size() * 2 > m_slots.size())
            Widen();
    }

    std::size_t SlotOf(const TextPair& pair, std::uint32_t hash) const
    {
        const std::size_t mask = m_slots.size() - 1;
        std::size_t slot = hash & mask;
        while (m_slots[slot] != none &&
               (m_slots[slot] >> 32 != hash || !(m_pairs[static_cast<std::uint32_t>(m_slots[slot])] == pair)))
            slot = (slot + 1) & mask;
        return slot;
    }

    void Widen()
    {
        std::vector<std::uint64_t> wider(m_slots.size() * 4, none);
        for (const std::uint64_t entry : m_slots)
            if (entry != none)
            {
                std::size_t slot = (entry >> 32) & (wider.size() - 1);
                while (wider[slot] != none)
                    slot = (slot + 1) & (wider.size() - 1);
                wider[slot] = entry;
            }
        m_slots = std::move(wider);
    }

    static constexpr std::uint64_t none = ~std::uint64_t{0};

    CResText m_head;
    std::vector<TextPair> m_pairs;
    std::vector<std::uint64_t>
        m_slots; ///< open addressing: a pair's hash in the upper half, below its position
};

Section DialogPairs(const CResources& resources1, const CResources& resources2, CResText type, CResText head)
{
    Section section(head);
    for (const CResDialog& dialog : resources1.Dialogs())
        if (dialog.m_strType == type)
            section.AddResource(dialog, resources2.Dialogs());
    return section;
}

Section MenuPairs(const CResources& resources1, const CResources& resources2)
{
    Section section(u"[MENU]");
    for (const CResMenu& menu : resources1.Menus())
        section.AddResource(menu, resources2.Menus());
    return section;
}

Section StringPairs(const CResources& resources1, const CResources& resources2)
{
    Section section(u"[STRINGTABLE]");
    section.AddStrings(resources1.Strings(), resources2.Strings());
    return section;
}
} // namespace

void WritePairs(const CResources& resources1, const CResources& resources2, CString& strText, bool bQuoted)
{
    const Section sections[] = {DialogPairs(resources1, resources2, u"DIALOG", u"[DIALOG]"),
                                DialogPairs(resources1, resources2, u"DIALOGEX", u"[DIALOGEX]"),
                                MenuPairs(resources1, resources2), StringPairs(resources1, resources2)};
    AppendText(strText, [&](auto& out) {
        for (const Section& section : sections)
            section.WriteTo(out, bQuoted);
    });
}

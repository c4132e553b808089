#include "tarvo/lang/ResourceHeader.h"

#include "platform/file.h"

#include <algorithm>

namespace
{
constexpr std::uint32_t none = 0xFFFFFFFFu;
constexpr std::uint64_t largestFile = 256u * 1024 * 1024;
constexpr units::view defineWord = u"#define";

/// "ID", a letter where there is one, and an underscore.
struct Mark
{
    char16_t letter; ///< 0 for none
    CResourceHeader::Kind kind;
    bool inFiles; ///< IDM_ names of a header file are passed over
};

/// In the order in which they are looked for.
constexpr Mark marks[] = {
    {u'C', CResourceHeader::Control, true},  {u'D', CResourceHeader::Dialog, true},
    {u'R', CResourceHeader::Resource, true}, {u'\0', CResourceHeader::Menu, true},
    {u'M', CResourceHeader::Menu, false},
};

struct StandardButton
{
    units::view name;
    units::view value;
};

constexpr StandardButton standardButtons[] = {{u"IDOK", u"1"}, {u"IDCANCEL", u"2"}, {u"IDCLOSE", u"8"}};

/// The mark that the "ID" at \p at begins, when it comes before \p best in the list; otherwise that.
const Mark* MarkAt(const char16_t* at, const char16_t* end, bool fromFile, const Mark* best)
{
    const bool isPlain = end - at > 2 && at[2] == u'_';
    if (!isPlain && (end - at <= 3 || at[3] != u'_'))
        return best;
    const char16_t letter = isPlain ? u'\0' : at[2];
    return std::find_if(std::begin(marks), best, [&](const Mark& mark) {
        return mark.letter == letter && (mark.inFiles || !fromFile);
    });
}

/// The mark that comes first in the list, wherever it stands in the name; null when there is none.
const Mark* FindMark(units::view name, bool fromFile)
{
    const char16_t* const end = name.data() + name.size();
    const Mark* best = std::end(marks);
    for (const char16_t* at = name.data(); best != marks; ++at)
    {
        // Nearly all names begin with their mark.
        if (at != name.data() || !name.starts_with(u"ID"))
            at = units::find_pair(at, end, u'I', u'D');
        if (at == end)
            break;
        best = MarkAt(at, end, fromFile, best);
    }
    return best == std::end(marks) ? nullptr : best;
}

/// Neighbours in number are neighbours in the table, 16 in a row: a header counts its values up, so most of
/// them are found where the one before was.
std::uint32_t HashOf(units::view value)
{
    std::uint32_t number = 0;
    if (value.size() > 9)
        return units::hash(value);
    for (const char16_t digit : value)
    {
        const unsigned n = static_cast<unsigned>(digit) - u'0';
        if (n > 9)
            return units::hash(value);
        number = number * 10 + n;
    }
    return ((number >> 4) * 0x9E3779B1u >> 10 << 4) | (number & 15);
}
} // namespace

int CResourceHeader::LoadMemory(const unsigned char* pData, int nChars)
{
    if (pData == nullptr)
        return 0;
    for (const StandardButton& button : standardButtons)
        Record(All, button.name, button.value);

    const CAlignedUnits text(pData, static_cast<std::size_t>(std::max(nChars, 0)));
    headertext::CDirectives directives(text);
    for (headertext::Words words; directives.Next(words);)
        TakeDefinition(words, false);
    return 1;
}

int CResourceHeader::LoadFile(const wchar_t* pszPath)
{
    if (pszPath == nullptr || *pszPath == L'\0')
        return 0;
    const auto bytes = platform::file::read_whole(pszPath, largestFile);
    if (!bytes)
        return 0;
    headertext::CHeaderLines lines(*bytes);
    for (units::view line; lines.Next(line);)
        TakeDefinition(headertext::ReadWords(line), true);
    return 1;
}

CString CResourceHeader::FirstWord(const unsigned char* pData, int nChars)
{
    if (pData == nullptr)
        return {};
    const CAlignedUnits text(pData, static_cast<std::size_t>(std::max(nChars, 0)));
    return units::to_string(headertext::ReadWords(text).word[0]);
}

void CResourceHeader::TakeDefinition(const headertext::Words& words, bool fromFile)
{
    const units::view name = words.word[1];
    // The underscore drops the bookkeeping of resource editors, "_APS_NEXT_CONTROL_VALUE".
    if (words.count != 3 || !words.word[0].starts_with(defineWord) || name.starts_with(u'_'))
        return;
    if (const Mark* const mark = FindMark(name, fromFile))
        Record(mark->kind, name, words.word[2]);
}

void CResourceHeader::Record(Kind kind, units::view name, units::view value)
{
    if (m_values.size() * 2 >= m_slots.size())
        MakeSlots(std::max<std::size_t>(64, m_slots.size() * 4));
    const std::uint32_t hash = HashOf(value);
    std::uint32_t& slot = m_slots[SlotOf(value, hash)];
    const auto definition = static_cast<std::uint32_t>(m_definitions.size());
    if (slot == none)
    {
        slot = static_cast<std::uint32_t>(m_values.size());
        m_values.push_back(
            {Keep(value), static_cast<std::uint32_t>(value.size()), hash, definition, definition});
    }
    else
    {
        m_definitions[m_values[slot].nLast].nNext = definition;
        m_values[slot].nLast = definition;
    }
    m_definitions.push_back({Keep(name), static_cast<std::uint32_t>(name.size()), none, kind});
}

std::uint32_t CResourceHeader::Keep(units::view text)
{
    const auto at = static_cast<std::uint32_t>(m_text.size());
    m_text += text;
    return at;
}

units::view CResourceHeader::TextOf(const Value& value) const
{
    return units::view(m_text).substr(value.nText, value.nTextLength);
}

CString CResourceHeader::NameOf(const Definition& definition) const
{
    return units::to_string(units::view(m_text).substr(definition.nName, definition.nNameLength));
}

std::size_t CResourceHeader::SlotOf(units::view value, std::uint32_t hash) const
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t slot = hash & mask;
    for (; m_slots[slot] != none; slot = (slot + 1) & mask)
    {
        const Value& found = m_values[m_slots[slot]];
        if (found.nHash == hash && TextOf(found) == value)
            break;
    }
    return slot;
}

void CResourceHeader::MakeSlots(std::size_t count)
{
    m_slots.assign(count, none);
    for (std::size_t i = 0; i < m_values.size(); ++i)
        m_slots[SlotOf(TextOf(m_values[i]), m_values[i].nHash)] = static_cast<std::uint32_t>(i);
}

// The definition itself or the next of its value that belongs to the table; none behind the last.
std::uint32_t CResourceHeader::NextOfKind(std::uint32_t definition, Kind kind) const
{
    while (definition != none && kind != All && m_definitions[definition].kind != kind)
        definition = m_definitions[definition].nNext;
    return definition;
}

std::uint32_t CResourceHeader::FirstOfKind(const wchar_t* pszValue, Kind kind) const
{
    if (pszValue == nullptr || m_slots.empty())
        return none;
    const CUnits value(pszValue);
    const std::uint32_t found = m_slots[SlotOf(value, HashOf(value))];
    return found == none ? none : NextOfKind(m_values[found].nFirst, kind);
}

CString CResourceHeader::FindFirst(Kind kind, const wchar_t* pszValue) const
{
    const std::uint32_t first = FirstOfKind(pszValue, kind);
    return first == none ? CString() : NameOf(m_definitions[first]);
}

void CResourceHeader::FindNames(Kind kind, const wchar_t* pszValue, CStringArray& arrNames) const
{
    for (std::uint32_t at = FirstOfKind(pszValue, kind); at != none;
         at = NextOfKind(m_definitions[at].nNext, kind))
        arrNames.Add(NameOf(m_definitions[at]));
}

bool CResourceHeader::Has(Kind kind, const wchar_t* pszValue) const
{
    return FirstOfKind(pszValue, kind) != none;
}

std::vector<CResourceHeader::Entry> CResourceHeader::GetTable(Kind kind) const
{
    std::vector<Entry> table;
    for (const Value& value : m_values)
    {
        Entry entry;
        for (std::uint32_t at = NextOfKind(value.nFirst, kind); at != none;
             at = NextOfKind(m_definitions[at].nNext, kind))
            entry.arrNames.push_back(NameOf(m_definitions[at]));
        if (entry.arrNames.empty())
            continue;
        entry.strValue = units::to_string(TextOf(value));
        table.push_back(std::move(entry));
    }
    std::sort(table.begin(), table.end(),
              [](const Entry& a, const Entry& b) { return a.strValue.Compare(b.strValue) < 0; });
    return table;
}

#include "tarvo/lang/ResourceHeader.h"

#include "platform/file.h"
#include "tarvo/lang/HeaderWords.h"

#include <algorithm>

namespace
{
constexpr std::uint32_t none = 0xFFFFFFFFu;
constexpr std::uint64_t largestFile = 256u * 1024 * 1024;
constexpr std::wstring_view defineWord = L"#define";

struct Mark
{
    std::wstring_view text;
    CResourceHeader::Kind kind;
    bool inFiles; ///< header files never had menus of their own kind; their readers pass IDM_ over
};

constexpr Mark marks[] = {
    {L"IDC_", CResourceHeader::Control, true},  {L"IDD_", CResourceHeader::Dialog, true},
    {L"IDR_", CResourceHeader::Resource, true}, {L"ID_", CResourceHeader::Menu, true},
    {L"IDM_", CResourceHeader::Menu, false},
};

struct StandardButton
{
    std::wstring_view name;
    std::wstring_view value;
};

constexpr StandardButton standardButtons[] = {{L"IDOK", L"1"}, {L"IDCANCEL", L"2"}, {L"IDCLOSE", L"8"}};

std::size_t HashOf(std::wstring_view text)
{
    std::uint64_t hash = 0xCBF29CE484222325u;
    for (const wchar_t c : text)
        hash = (hash ^ static_cast<std::uint64_t>(c)) * 0x100000001B3u;
    return static_cast<std::size_t>(hash ^ (hash >> 32));
}

CString ToCString(std::wstring_view text) { return {text.data(), static_cast<int>(text.size())}; }
} // namespace

int CResourceHeader::LoadMemory(const unsigned char* pData, int nChars)
{
    if (pData == nullptr)
        return 0;
    for (const StandardButton& button : standardButtons)
        Record(All, button.name, button.value);

    CHeaderWords words(pData, static_cast<std::size_t>(std::max(nChars, 0)), MaxWord);
    do
    {
        if (words.Read() == 3)
            TakeDefinition(words.Word(0), words.Word(1), words.Word(2), false);
    } while (words.SkipToDirective());
    return 1;
}

int CResourceHeader::LoadFile(const wchar_t* pszPath)
{
    if (pszPath == nullptr || *pszPath == L'\0')
        return 0;
    const auto bytes = platform::file::read_whole(pszPath, largestFile);
    if (!bytes)
        return 0;
    CHeaderLines lines(*bytes, MaxWord);
    while (lines.Next())
        if (lines.Read() == 3)
            TakeDefinition(lines.Word(0), lines.Word(1), lines.Word(2), true);
    return 1;
}

CString CResourceHeader::FirstWord(const unsigned char* pData, int nChars)
{
    if (pData == nullptr)
        return {};
    CHeaderWords words(pData, static_cast<std::size_t>(std::max(nChars, 0)), MaxWord);
    return words.Read() == 0 ? CString() : ToCString(words.Word(0));
}

void CResourceHeader::TakeDefinition(std::wstring_view directive, std::wstring_view name,
                                     std::wstring_view value, bool fromFile)
{
    // The underscore drops the bookkeeping of resource editors, "_APS_NEXT_CONTROL_VALUE".
    if (!directive.starts_with(defineWord) || name.starts_with(L'_'))
        return;
    for (const Mark& mark : marks)
        if ((mark.inFiles || !fromFile) && name.find(mark.text) != std::wstring_view::npos)
            return Record(mark.kind, name, value);
}

void CResourceHeader::Record(Kind kind, std::wstring_view name, std::wstring_view value)
{
    if (m_values.size() * 2 >= m_slots.size())
        GrowSlots();
    std::uint32_t& slot = m_slots[SlotOf(value)];
    const auto definition = static_cast<std::uint32_t>(m_definitions.size());
    if (slot == none)
    {
        slot = static_cast<std::uint32_t>(m_values.size());
        m_values.push_back({Keep(value), static_cast<std::uint32_t>(value.size()), definition, definition});
    }
    else
    {
        m_definitions[m_values[slot].nLast].nNext = definition;
        m_values[slot].nLast = definition;
    }
    m_definitions.push_back({Keep(name), static_cast<std::uint32_t>(name.size()), none, kind});
}

std::uint32_t CResourceHeader::Keep(std::wstring_view text)
{
    const auto at = static_cast<std::uint32_t>(m_text.size());
    m_text += text;
    return at;
}

std::wstring_view CResourceHeader::TextOf(const Value& value) const
{
    return std::wstring_view(m_text).substr(value.nText, value.nTextLength);
}

CString CResourceHeader::NameOf(const Definition& definition) const
{
    return ToCString(std::wstring_view(m_text).substr(definition.nName, definition.nNameLength));
}

std::size_t CResourceHeader::SlotOf(std::wstring_view value) const
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t slot = HashOf(value) & mask;
    while (m_slots[slot] != none && TextOf(m_values[m_slots[slot]]) != value)
        slot = (slot + 1) & mask;
    return slot;
}

void CResourceHeader::GrowSlots()
{
    m_slots.assign(std::max<std::size_t>(64, m_slots.size() * 2), none);
    for (std::size_t i = 0; i < m_values.size(); ++i)
        m_slots[SlotOf(TextOf(m_values[i]))] = static_cast<std::uint32_t>(i);
}

const CResourceHeader::Value* CResourceHeader::FindValue(const wchar_t* pszValue) const
{
    if (pszValue == nullptr || m_slots.empty())
        return nullptr;
    const std::uint32_t found = m_slots[SlotOf(pszValue)];
    return found == none ? nullptr : &m_values[found];
}

// Calls \p visit with each name of the kind, in order, until it answers false.
template <class Visitor>
void CResourceHeader::ForEachName(const Value& value, Kind kind, Visitor visit) const
{
    for (std::uint32_t at = value.nFirst; at != none; at = m_definitions[at].nNext)
        if ((kind == All || m_definitions[at].kind == kind) && !visit(m_definitions[at]))
            return;
}

CString CResourceHeader::FindFirst(Kind kind, const wchar_t* pszValue) const
{
    CString name;
    if (const Value* const value = FindValue(pszValue))
        ForEachName(*value, kind, [&](const Definition& definition) {
            name = NameOf(definition);
            return false;
        });
    return name;
}

void CResourceHeader::FindNames(Kind kind, const wchar_t* pszValue, CStringArray& arrNames) const
{
    if (const Value* const value = FindValue(pszValue))
        ForEachName(*value, kind, [&](const Definition& definition) {
            arrNames.Add(NameOf(definition));
            return true;
        });
}

bool CResourceHeader::Has(Kind kind, const wchar_t* pszValue) const
{
    bool found = false;
    if (const Value* const value = FindValue(pszValue))
        ForEachName(*value, kind, [&](const Definition&) {
            found = true;
            return false;
        });
    return found;
}

std::vector<CResourceHeader::Entry> CResourceHeader::GetTable(Kind kind) const
{
    std::vector<Entry> table;
    for (const Value& value : m_values)
    {
        Entry entry;
        ForEachName(value, kind, [&](const Definition& definition) {
            entry.arrNames.push_back(NameOf(definition));
            return true;
        });
        if (entry.arrNames.empty())
            continue;
        entry.strValue = ToCString(TextOf(value));
        table.push_back(std::move(entry));
    }
    std::sort(table.begin(), table.end(),
              [](const Entry& a, const Entry& b) { return a.strValue.Compare(b.strValue) < 0; });
    return table;
}

#include "cli/ini_document.h"

#include "cli/input.h"
#include "cli/text.h"
#include "platform/codepage.h"

#include <algorithm>

namespace cli
{
namespace
{
/// Where the first NUL stands, a unit of two bytes in UTF-16LE; the size without one.
std::size_t text_end(std::string_view bytes)
{
    if (!bytes.starts_with("\xFF\xFE"))
        return std::min(bytes.find('\0'), bytes.size());
    for (std::size_t at = 2; at + 1 < bytes.size(); at += 2)
        if (bytes[at] == '\0' && bytes[at + 1] == '\0')
            return at;
    return bytes.size();
}

/// What a file's bytes say about why it does not read as its author meant; empty for nothing.
std::string odd_bytes(std::string_view bytes, int page)
{
    const std::string shown =
        page == 0 ? "the ANSI code page (" + std::to_string(platform::codepage::ansi_page()) + ")"
                  : "code page " + std::to_string(page);
    if (bytes.starts_with("\xEF\xBB\xBF"))
        return "begins with a UTF-8 mark, which is read as text in " + shown +
               "; save it without the mark and give --code-page 65001, or save it as UTF-16LE";
    if (bytes.starts_with("\xFE\xFF"))
        return "begins with a UTF-16BE mark and is read as 8-bit text in " + shown + "; save it as UTF-16LE";
    if (bytes.size() == 1)
        return "holds one byte, which is no text";
    if (const std::size_t end = text_end(bytes); end < bytes.size())
        return "a NUL ends the text after " + std::to_string(end) + " of " + std::to_string(bytes.size()) +
               " bytes; what follows is not read";
    return {};
}

std::string spelled(const Section& section, const CString& key)
{
    return "[" + to_utf8(view(section.name)) + "] " + to_utf8(view(key));
}

/// The row of [\p at, \p end) called \p name; \p at moves to where the next larger name can be.
template <class Row>
const Row* twin(const Row*& at, const Row* end, const CString& name, const CString& (*name_of)(const Row&))
{
    while (at != end && name_of(*at).Compare(name) < 0)
        ++at;
    return at != end && name_of(*at) == name ? at : nullptr;
}

/// The first entry of \p before that \p after lacks or holds otherwise, and how many there are. Both are in
/// the library's order, so one walk serves.
struct Lost
{
    std::string first;
    std::size_t count = 0;
};

Lost lost(const Document& before, const Document& after)
{
    using Entry = std::pair<CString, CString>;
    const auto section_name = [](const Section& section) -> const CString& { return section.name; };
    const auto entry_name = [](const Entry& entry) -> const CString& { return entry.first; };
    Lost found;
    const Section* section_at = after.sections.data();
    const Section* const section_end = section_at + after.sections.size();
    for (const Section& section : before.sections)
    {
        const Section* const same = twin<Section>(section_at, section_end, section.name, section_name);
        const Entry* entry_at = same != nullptr ? same->entries.data() : nullptr;
        const Entry* const entry_end = same != nullptr ? entry_at + same->entries.size() : nullptr;
        for (const Entry& entry : section.entries)
        {
            const Entry* const kept = twin<Entry>(entry_at, entry_end, entry.first, entry_name);
            if ((kept == nullptr || kept->second != entry.second) && found.count++ == 0)
                found.first = spelled(section, entry.first);
        }
    }
    return found;
}

std::string quoted(const std::optional<CString>& name)
{
    return name ? "[" + to_utf8(view(*name)) + "]" : "none";
}

} // namespace

Document contents(XIni& ini)
{
    Document document;
    if (const CKeyTable* const table = ini.GetSection(nullptr))
        document.default_section = table->GetName();
    const int sections = ini.GetSectionCount();
    document.sections.resize(static_cast<std::size_t>(sections));
    for (int at = 0; at < sections; ++at)
    {
        const CKeyTable& table = ini.GetSectionAt(at);
        Section& section = document.sections[static_cast<std::size_t>(at)];
        section.name = table.GetName();
        section.entries.resize(static_cast<std::size_t>(table.GetCount()));
        for (int entry = 0; entry < table.GetCount(); ++entry)
            table.GetAt(entry, section.entries[static_cast<std::size_t>(entry)].first,
                        section.entries[static_cast<std::size_t>(entry)].second);
    }
    return document;
}

void open(XIni& ini, const Call& call)
{
    const std::string& file = call.operands[0];
    const int page = call.page("code-page");
    const std::string bytes = read_input(file, XIni::kMostBytes);
    ini.SetCodePage(page);
    if (file != "-")
    {
        if (!ini.Open(to_wide(file).c_str()))
            unreadable(file, XIni::kMostBytes);
    }
    else if (!bytes.empty())
        ini.OpenMemory(reinterpret_cast<const unsigned char*>(bytes.data()), static_cast<int>(bytes.size()));
    if (!ini.IsOpened() && bytes.size() >= 2)
        throw Failure{Status::unreadable, file, "cannot be converted from code page " + std::to_string(page)};
    if (const std::string odd = odd_bytes(bytes, page); !odd.empty())
        call.note(file, odd);
}

void note_losses(XIni& ini, XIni& again, const Call& call)
{
    const Document before = contents(ini);
    const Document after = contents(again);
    const std::string& file = call.operands[0];
    if (const Lost found = lost(before, after); found.count > 0)
        call.note(file, std::to_string(found.count) +
                            " of its entries cannot be written so that they are read back, the first is " +
                            found.first);
    if (before.default_section != after.default_section)
        call.note(file, "the default section was " + quoted(before.default_section) + " and is " +
                            quoted(after.default_section) + " in the sorted document");
}

SectionName::SectionName(const std::string& operand)
    : m_default(operand == "@default"), m_name(to_wide(operand))
{
}
} // namespace cli

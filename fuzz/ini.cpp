#include "tarvo/lang/XIni.h"

#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

// Any bytes load, and what is written and read again is equal, but for the keys that the format cannot
// carry: their written line would be taken for a comment, a section or a remark. (No key holds a line break
// or '=', since it came out of a line.)
namespace
{
using Section = std::map<std::u16string, std::u16string>;
using Document = std::map<std::u16string, Section>;

constexpr int pages[] = {0, 949, 932, 936, 1251, 65001};

bool CanBeWritten(units::view key)
{
    return !key.starts_with(u';') && !key.starts_with(u'[') && key.find(u"/**/") == units::view::npos;
}

template <class Visitor>
void ForEachEntry(const XIni& ini, Visitor visit)
{
    for (int i = 0; i < ini.GetSectionCount(); ++i)
    {
        const CKeyTable& table = ini.GetSectionAt(i);
        for (int k = 0; k < table.GetCount(); ++k)
            visit(table, table.Sorted(static_cast<std::size_t>(k)));
    }
}

// The document without the keys that cannot be written; every section stays.
XIni Writable(const XIni& ini)
{
    XIni writable;
    for (int i = 0; i < ini.GetSectionCount(); ++i)
        writable.GetOrMakeSection(ini.GetSectionAt(i).GetName());
    ForEachEntry(ini, [&](const CKeyTable& table, const IniEntry& entry) {
        if (CanBeWritten(entry.Key()))
            writable.SetStr(table.GetName(), units::to_string(entry.Key()), units::to_string(entry.Value()));
    });
    return writable;
}

Document DocumentOf(const XIni& ini)
{
    Document document;
    for (int i = 0; i < ini.GetSectionCount(); ++i)
        document[std::u16string(ini.GetSectionAt(i).Name())];
    ForEachEntry(ini, [&](const CKeyTable& table, const IniEntry& entry) {
        document[std::u16string(table.Name())][std::u16string(entry.Key())] = entry.Value();
    });
    return document;
}

void Require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    if (size == 0)
        return 0;
    XIni ini;
    ini.SetCodePage(pages[data[0] % std::size(pages)]);
    ini.OpenMemory(data + 1, static_cast<int>(size - 1));

    const XIni writable = Writable(ini);
    const std::string bytes = writable.Serialize();
    XIni again;
    Require(again.OpenMemory(reinterpret_cast<const unsigned char*>(bytes.data()),
                             static_cast<int>(bytes.size())) == 1,
            "what was written opens");
    Require(DocumentOf(again) == DocumentOf(writable), "what was written comes back");
    Require(again.Serialize() == bytes, "writing twice gives the same bytes");

    // Asked of the table itself: by its name in other letter case a section answers for another.
    ForEachEntry(again, [&](const CKeyTable& table, const IniEntry& entry) {
        CString value;
        Require(table.Lookup(units::to_string(entry.Key()), value) == 1 &&
                    value == units::to_string(entry.Value()),
                "every key that is listed is found");
    });
    // A second text merges: nothing of the first is lost.
    again.OpenMemory(data + 1, static_cast<int>(size - 1));
    Require(again.GetSectionCount() >= writable.GetSectionCount(), "merging keeps sections");
    return 0;
}

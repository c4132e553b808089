#include "platform/file.h"
#include "tarvo/lang/ResourceHeader.h"
#include "tests/tarvo/lang/HeaderModel.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <unistd.h>

// Both forms take any bytes. The memory form records what a plain reading of the rules gives; whatever was
// recorded is found again under its value, in the order that the table shows, and no word is longer than the
// buffer.
namespace
{
void Require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

void CheckTables(const CResourceHeader& header)
{
    for (const auto kind : {CResourceHeader::All, CResourceHeader::Control, CResourceHeader::Dialog,
                            CResourceHeader::Resource, CResourceHeader::Menu})
    {
        const CString* last = nullptr;
        const auto table = header.GetTable(kind);
        for (const auto& entry : table)
        {
            Require(last == nullptr || last->Compare(entry.strValue) < 0, "a table is in order");
            last = &entry.strValue;
            CStringArray names;
            header.FindNames(kind, entry.strValue, names);
            Require(names.GetSize() == static_cast<INT_PTR>(entry.arrNames.size()), "every name is found");
            for (INT_PTR i = 0; i < names.GetSize(); ++i)
            {
                Require(names[i] == entry.arrNames[static_cast<std::size_t>(i)], "names keep their order");
                Require(names[i].GetLength() <= CResourceHeader::MaxWord, "a word fits its buffer");
            }
            Require(header.FindFirst(kind, entry.strValue) == entry.arrNames.front(), "the first counts");
        }
    }
}

void CheckAgainstModel(const CResourceHeader& header, const unsigned char* data, std::size_t count)
{
    std::u16string text(count, u'\0');
    if (count != 0)
        std::memcpy(text.data(), data, count * sizeof(char16_t));
    CHeaderModel model(text);
    for (const auto kind : {CResourceHeader::All, CResourceHeader::Control, CResourceHeader::Dialog,
                            CResourceHeader::Resource, CResourceHeader::Menu})
        Require(data == nullptr || CHeaderModel::Told(header, kind) == model.Get(kind),
                "the tables are what the rules give unit by unit");
}

const std::wstring& ScratchPath()
{
    static const std::wstring path = [] {
        const std::string folder = std::filesystem::temp_directory_path().string();
        return std::wstring(folder.begin(), folder.end()) + L"/header_fuzz_" + std::to_wstring(getpid());
    }();
    return path;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    CResourceHeader memory;
    Require(memory.LoadMemory(data, static_cast<int>(size / 2)) == (data != nullptr), "any text loads");
    CheckTables(memory);
    CheckAgainstModel(memory, data, size / 2);
    CResourceHeader::FirstWord(data, static_cast<int>(size / 2));

    platform::file::write_whole(ScratchPath().c_str(), {reinterpret_cast<const char*>(data), size});
    CResourceHeader file;
    Require(file.LoadFile(ScratchPath().c_str()) == 1, "any file loads");
    CheckTables(file);
    platform::file::remove(ScratchPath().c_str());
    return 0;
}

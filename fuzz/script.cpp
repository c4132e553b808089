#include "fuzz/require.h"
#include "tarvo/restools/CompareResources.h"
#include "tarvo/restools/WritePairs.h"
#include "tarvo/restools/WriteStringList.h"
#include "tarvo/restools/WriteTree.h"

#include <vector>

// Any bytes are read, into memory and a log of at most a fixed multiple of their number; a script held
// against itself differs only where it repeats a name; pairs, tree and string list can always be written.
namespace
{
template <class T>
bool RepeatsAKey(const CResBaseclass<T>& list)
{
    for (std::size_t i = 0; i < list.GetCount(); ++i)
        if (list.RankOf(i) != 0)
            return true;
    return false;
}

template <class T>
void CheckLines(const CResBaseclass<T>& list, std::size_t most)
{
    std::size_t last = 0;
    for (const T& item : list)
    {
        Require(item.m_nLine >= last && item.m_nLine >= 1 && item.m_nLine <= most, "lines are in order");
        last = item.m_nLine;
    }
}

template <class T>
void CheckAllLines(const CResBaseclass<T>& list, std::size_t most)
{
    CheckLines(list, most);
    for (const T& one : list)
        CheckLines(one.m_items, most);
}

void CheckTexts(const CResources& resources)
{
    CString pairs, tree, list;
    WritePairs(resources, resources, pairs, true);
    WritePairs(resources, resources, pairs, false);
    WriteTree(resources, tree, false);
    WriteStringList(resources, list, true);
    Require(pairs.Find(L"[DIALOG]\r\n") == 0 && tree.Find(L"Menus:\r\n") == 0 && !list.IsEmpty(),
            "pairs, tree and list are written");
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    CResources resources;
    CString log;
    CStringArray languages;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    Require(resources.ReadMemory(bytes, log, L"", languages), "any script is read");
    Require(resources.MemoryBytes() <= 65536 + 128 * size, "memory is a multiple of the input");
    Require(static_cast<std::size_t>(log.GetLength()) <= 64 + 34 * size, "the log is too");
    CheckAllLines(resources.Menus(), size);
    CheckAllLines(resources.Toolbars(), size);
    CheckAllLines(resources.Dialogs(), size);
    CheckLines(resources.Strings(), size);

    CString report;
    std::vector<CResFinding> findings;
    CompareResources(resources, resources, report, StringCheck::FullString, &findings);
    Require(findings.empty() || RepeatsAKey(resources.Menus()) || RepeatsAKey(resources.Toolbars()) ||
                RepeatsAKey(resources.Dialogs()) || RepeatsAKey(resources.Strings()),
            "a script agrees with itself");
    CheckTexts(resources);

    CResources filtered;
    Require(filtered.ReadMemory(bytes, log, L"LANG_KOREAN", languages), "and with a language");
    return 0;
}

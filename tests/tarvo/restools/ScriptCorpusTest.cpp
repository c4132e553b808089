#include "script.h"

#include "tarvo/restools/CompareResources.h"
#include "tarvo/restools/WritePairs.h"
#include "tarvo/restools/WriteTree.h"
#include "tests/support/Corpus.h"

#include <gtest/gtest.h>

// Every real script is read to its end; held against itself it differs only where it repeats a name.
TEST(ScriptCorpus, RealScriptsAreReadComparedAndListed)
{
    const std::vector<CorpusFile> files = CorpusFiles(".rc");
    SKIP_WITHOUT_CORPUS(files);
    std::size_t dialogs = 0, menus = 0, strings = 0;
    for (const CorpusFile& file : files)
    {
        CResources resources;
        CString log, text;
        CStringArray languages;
        ASSERT_TRUE(resources.Read(file.path.c_str(), log, L"", languages)) << file.name;
        EXPECT_TRUE(Utf8(log).ends_with("Reading done\r\n")) << file.name;
        dialogs += resources.Dialogs().GetCount();
        menus += resources.Menus().GetCount();
        strings += resources.Strings().GetCount();
        CString report;
        CompareResources(resources, resources, report, StringCheck::FullString);
        WritePairs(resources, resources, text, true);
        WriteTree(resources, text, false);
        EXPECT_FALSE(text.IsEmpty()) << file.name;
    }
    EXPECT_GT(dialogs, 1000u);
    EXPECT_GT(menus, 100u);
    EXPECT_GT(strings, 15000u);
}

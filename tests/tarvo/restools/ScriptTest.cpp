#include "script.h"

#include <gtest/gtest.h>

namespace
{
std::string Read(std::string_view text) { return Dump(ReadScript(text).resources); }

std::string Menu(const std::string& lines) { return Read("M MENU\nBEGIN\n" + lines + "\nEND\n"); }
std::string Toolbar(const std::string& lines)
{
    return Read("T TOOLBAR 16, 15\nBEGIN\n" + lines + "\nEND\n");
}
std::string Table(const std::string& lines) { return Read("STRINGTABLE\nBEGIN\n" + lines + "\nEND\n"); }
} // namespace

TEST(MenuScript, ListsItsItemsInOneOrderHoweverDeep)
{
    EXPECT_EQ(
        Menu("    POPUP \"&File\"\n    BEGIN\n        MENUITEM \"&Open...\\tCtrl+O\", ID_OPEN\n"
             "        POPUP \"More\"\n        BEGIN\n            MENUITEM \"x\", 7\n        END\n    END\n"
             "    MENUITEM \"&Help\", ID_HELP"),
        "menu M { \"&File\" POPUP0 []; \"&Open...\\tCtrl+O\" ID_OPEN []; \"More\" POPUP1 []; \"x\" 7 []; "
        "\"&Help\" ID_HELP [] }\n");
}

TEST(MenuScript, NumbersSeparatorsAndPopupsEachFromZeroInEveryMenu)
{
    const std::string menu =
        " MENU\nBEGIN\nPOPUP \"a\"\nBEGIN\nMENUITEM SEPARATOR\nMENUITEM SEPARATOR\nPOPUP \"\"\n"
        "BEGIN\nMENUITEM SEPARATOR\nEND\nEND\nEND\n";
    const std::string items = " { \"a\" POPUP0 []; \"\" SEPARATOR0 []; \"\" SEPARATOR1 []; \"\" POPUP1 []; "
                              "\"\" SEPARATOR2 [] }\n";
    EXPECT_EQ(Read("A" + menu + "B DISCARDABLE\nB" + menu), "menu A" + items + "menu B" + items);
}

TEST(MenuScript, JoinsTheOptionsBehindTheID)
{
    EXPECT_EQ(Menu("MENUITEM \"a, b\", ID_A, GRAYED, CHECKED"),
              "menu M { \"a, b\" ID_A [GRAYED|CHECKED] }\n");
    EXPECT_EQ(Menu("MENUITEM \"a\" ID_A GRAYED"), "menu M { \"a\" ID_A [GRAYED] }\n");
    EXPECT_EQ(Menu("MENUITEM \"a\", ID_A, MFT_STRING | MFS_GRAYED , HELP"),
              "menu M { \"a\" ID_A [MFT_STRING|MFS_GRAYED|HELP] }\n");
    EXPECT_EQ(Menu("MENUITEM \"a\", ID_A, "), "menu M { \"a\" ID_A [] }\n");
}

TEST(MenuScript, ItemGoesOnOverLinesThatBeginNothingElse)
{
    EXPECT_EQ(Menu("MENUITEM \"a\",\n         ID_A,\n         GRAYED\nPOPUP\n   \"b\"\nBEGIN\nEND"),
              "menu M { \"a\" ID_A [GRAYED]; \"b\" POPUP0 [] }\n");
}

TEST(MenuScript, ItemIsTheSameWhereverItsLinesAreBroken)
{
    const std::string statement = R"(MENUITEM "a b", ID_X , GRAYED , INACTIVE | HELP)";
    const std::string wanted = "menu M { \"a b\" ID_X [GRAYED|INACTIVE|HELP] }\n";
    for (std::size_t at = 0; (at = statement.find(' ', at)) != std::string::npos; ++at)
        for (const std::string lineBreak : {"\n", "\r\n", "\n\n", "\n\t\n"})
        {
            std::string broken = statement;
            EXPECT_EQ(Menu(broken.replace(at, 1, lineBreak)), wanted) << broken;
        }
}

TEST(MenuScript, LogsLinesOutsideOfItems)
{
    const Script script =
        ReadScript("M MENU\nCHARACTERISTICS 7\nBEGIN\n// first\nMENUITEM \"a\", 1\nEND\nB BITMAP b\n");
    EXPECT_EQ(Dump(script.resources), "menu M { \"a\" 1 [] }\nbitmap B \"b\"\n");
    EXPECT_EQ(script.log,
              "Unkown line in menu section: CHARACTERISTICS 7\nUnkown line in menu section: // first\n"
              "Reading done\n");
}

TEST(MenuScript, IsCompleteWhenEveryBeginHasItsEnd)
{
    EXPECT_EQ(Read("M MENU\nBEGIN\nPOPUP \"a\"\nBEGIN\nEND\nMENUITEM \"b\", 1\nEND\nMENUITEM \"lost\", 2\n"),
              "menu M { \"a\" POPUP0 []; \"b\" 1 [] }\n");
    EXPECT_EQ(Read("M MENU\nEND\nMENUITEM \"lost\", 2\n"), "menu M { }\n") << "an END without any BEGIN";
}

TEST(ToolbarScript, ListsButtonsAndNumberedSeparators)
{
    EXPECT_EQ(Toolbar("    BUTTON      ID_NEW\n    SEPARATOR\n    BUTTON ID_CUT\n    SEPARATOR"),
              "toolbar T { BUTTON ID_NEW; SEPARATOR SEPARATOR0; BUTTON ID_CUT; SEPARATOR SEPARATOR1 }\n");
}

TEST(ToolbarScript, PassesOverWhatStandsBeforeBeginAndLogsWhatItDoesNotKnow)
{
    const Script script =
        ReadScript("T TOOLBAR DISCARDABLE 16, 15\nBUTTON before\nBEGIN\n// x\nBUTTON a\nEND\nBUTTON after\n");
    EXPECT_EQ(Dump(script.resources), "toolbar T { BUTTON a }\n");
    EXPECT_EQ(script.log, "Unkown toolbar line: // x\nReading done\n");
}

TEST(StringTableScript, TakesTheTextFromTheFirstQuoteOn)
{
    EXPECT_EQ(Table("    IDS_A,   \"One, two\"\nIDS_B \"Three\"\n57600\t\"Four\""),
              "string IDS_A \"One, two\"\nstring IDS_B \"Three\"\nstring 57600 \"Four\"\n");
    EXPECT_EQ(Table("IDS_A L\"wide\""), "string IDS_A \"wide\"\n");
    EXPECT_EQ(Table("IDS_A MACRO"), "string IDS_A \"\"\n") << "no quote, no text";
}

TEST(StringTableScript, KeepsPairsOfQuotesAsTheyAre)
{
    EXPECT_EQ(Table(R"(IDS_A "say ""hi"" \"now\"")"), "string IDS_A \"say \"\"hi\"\" \\\"now\\\"\"\n");
    EXPECT_EQ(Table(R"(IDS_A """all""")"), "string IDS_A \"\"\"all\"\"\"\n");
}

TEST(StringTableScript, KeepsTheTwoQuotesOfAnEmptyText)
{
    EXPECT_EQ(Table("IDS_A \"\"\nIDS_B \"x\""), "string IDS_A \"\"\"\"\nstring IDS_B \"x\"\n");
    EXPECT_EQ(Table("IDS_A\n\"\"\nIDS_B \"x\""), "string IDS_A \"\"\"\"\nstring IDS_B \"x\"\n");
    EXPECT_EQ(Table("IDS_A \" \""), "string IDS_A \" \"\n");
}

TEST(StringTableScript, DropsAQuoteAtTheEndAndOneAtTheStart)
{
    EXPECT_EQ(Table("IDS_A \"abc"), "string IDS_A \"abc\"\n");
    EXPECT_EQ(Table("IDS_A \"a\" // remark"), "string IDS_A \"a\" // remark\"\n") << "the end is the line's";
    EXPECT_EQ(Table("IDS_A \"a\" "), "string IDS_A \"a\" \"\n");
    EXPECT_EQ(Table("IDS_A \"a"), "string IDS_A \"\"a\"\n") << "two characters stay as they are";
    EXPECT_EQ(Table("IDS_A \"\"\""), "string IDS_A \"\"\"\n");
}

TEST(StringTableScript, TakesTheNextLineForAnIDThatStandsAlone)
{
    EXPECT_EQ(Table("IDS_A\n      \"text\" \t\nIDS_B \"b\""), "string IDS_A \"text\"\nstring IDS_B \"b\"\n");
    EXPECT_EQ(Table("IDS_A,\n\n  bare \n"), "string IDS_A \"bare\"\n") << "not from its first quote on";
    EXPECT_EQ(Table("IDS_A"), "string IDS_A \"\"\n") << "the end of the table is no text";
    EXPECT_EQ(Read("STRINGTABLE\nBEGIN\nIDS_A"), "string IDS_A \"\"\n");
}

TEST(StringTableScript, GivesAnEntryForEveryLine)
{
    EXPECT_EQ(Table("// a \"b\"\n#ifdef X\nIDS_A \"a\"\n#endif X"),
              "string // \"b\"\nstring #ifdef \"\"\nstring IDS_A \"a\"\nstring #endif \"\"\n");
}

TEST(StringTableScript, BeginsBehindBeginAndIsToldByTheFirstWord)
{
    EXPECT_EQ(Read("STRINGTABLE DISCARDABLE \nLANGUAGE 9, 1\nIDS_X \"before\"\nBEGIN\nIDS_A "
                   "\"a\"\nEND\nIDS_B \"b\"\n"),
              "string IDS_A \"a\"\n");
    EXPECT_EQ(Read("STRINGTABLE\nBEGIN\nIDS_A \"a\"\nEND\nSTRINGTABLE\nBEGIN\nIDS_B \"b\"\nEND\n"),
              "string IDS_A \"a\"\nstring IDS_B \"b\"\n");
}

TEST(FileScript, HasNameAndFile)
{
    EXPECT_EQ(Read("IDB_X   BITMAP  \"res\\\\x y.bmp\"\nIDP_X PNG x.png\nIDI_X ICON \"x.ico\"\nIDC_X CURSOR "
                   "\"x.cur\"\n"),
              "bitmap IDB_X \"res\\\\x y.bmp\"\npng IDP_X \"x.png\"\nicon IDI_X \"x.ico\"\ncursor IDC_X "
              "\"x.cur\"\n");
    EXPECT_EQ(Read("IDI_X ICON DISCARDABLE \"x.ico\"\n"), "icon IDI_X \"DISCARDABLE\"\n") << "the third word";
    EXPECT_EQ(Read("IDB_X BITMAP\n"), "bitmap IDB_X \"\"\n");
}

TEST(Script, IsReadWithEveryLanguageWhenNoneIsAskedFor)
{
    const Script script = ReadScript("A BITMAP a\nLANGUAGE LANG_KOREAN, SUBLANG_DEFAULT\nB BITMAP b\n"
                                     "LANGUAGE 9, 1\nC BITMAP c\n");
    EXPECT_TRUE(script.isRead);
    EXPECT_EQ(Dump(script.resources), "bitmap A \"a\"\nbitmap B \"b\"\nbitmap C \"c\"\n");
    EXPECT_EQ(script.languages, (std::vector<std::string>{"LANG_KOREAN", "9"}));
    EXPECT_EQ(script.log, "Find language: LANG_KOREAN\nFind language: 9\nReading done\n");
}

TEST(Script, IsReadOnlyBehindTheLanguageThatIsAskedFor)
{
    const std::string text =
        "A BITMAP a\nLANGUAGE LANG_KOREAN, SUBLANG_DEFAULT\nB BITMAP b\nLANGUAGE LANG_ENGLISH, 1\n"
        "C BITMAP c\nM MENU\nBEGIN\nBEGIN\nEND\nLANGUAGE LANG_KOREAN, 2\nD BITMAP d\n";
    for (const wchar_t* language : {L"LANG_KOREAN", L"lang_Korean"})
    {
        const Script script = ReadScript(text, language);
        EXPECT_EQ(Dump(script.resources), "bitmap B \"b\"\nbitmap D \"d\"\n");
        EXPECT_EQ(script.languages, (std::vector<std::string>{"LANG_KOREAN", "LANG_ENGLISH", "LANG_KOREAN"}));
        EXPECT_EQ(script.log,
                  "Find language: LANG_KOREAN\nFind language: LANG_ENGLISH\nFind language: LANG_KOREAN\n"
                  "Reading done\n");
    }
    EXPECT_EQ(Dump(ReadScript(text, L"LANG_FRENCH").resources), "");
}

TEST(Script, LanguageInsideAQuotedLineIsNone)
{
    EXPECT_EQ(ReadScript("3 TEXTINCLUDE\nBEGIN\n    \"LANGUAGE 9, 1\\r\\n\"\nEND\n").log, "Reading done\n");
}

TEST(Script, PassesOverOtherLinesWithoutALine)
{
    const Script script =
        ReadScript("// remark\n#include \"x.h\"\n1 VERSIONINFO\nBEGIN\nEND\n1 RT_MANIFEST x.manifest\n");
    EXPECT_EQ(Dump(script.resources), "");
    EXPECT_EQ(script.log, "Reading done\n");
}

TEST(Script, KeepsTheLineWhereEverythingBegan)
{
    const Script script =
        ReadScript("\nLANGUAGE 9, 1\n\nM MENU\nBEGIN\n  POPUP \"p\"\n  BEGIN\n    MENUITEM \"a\",\n      1\n"
                   "    MENUITEM SEPARATOR\n  END\nEND\nT TOOLBAR 1\nBEGIN\n  BUTTON 1\n\n  SEPARATOR\nEND\n"
                   "D DIALOG 1\nSTYLE A |\n B\nBEGIN\n  LTEXT \"x\",\n    1\n  EDITTEXT 2\nEND\n"
                   "STRINGTABLE\nBEGIN\n  A\n    \"a\"\n  B \"b\"\nEND\nI ICON i\n");
    const CResources& all = script.resources;
    const CResMenu& menu = all.Menus().GetAt(0);
    EXPECT_EQ(menu.m_nLine, 4u);
    EXPECT_EQ(menu.m_items.GetAt(0).m_nLine, 6u);
    EXPECT_EQ(menu.m_items.GetAt(1).m_nLine, 8u);
    EXPECT_EQ(menu.m_items.GetAt(2).m_nLine, 10u);
    EXPECT_EQ(all.Toolbars().GetAt(0).m_nLine, 13u);
    EXPECT_EQ(all.Toolbars().GetAt(0).m_items.GetAt(0).m_nLine, 15u);
    EXPECT_EQ(all.Toolbars().GetAt(0).m_items.GetAt(1).m_nLine, 17u);
    EXPECT_EQ(all.Dialogs().GetAt(0).m_nLine, 19u);
    EXPECT_EQ(all.Dialogs().GetAt(0).m_items.GetAt(0).m_nLine, 23u);
    EXPECT_EQ(all.Dialogs().GetAt(0).m_items.GetAt(1).m_nLine, 25u);
    EXPECT_EQ(all.Strings().GetAt(0).m_nLine, 29u);
    EXPECT_EQ(all.Strings().GetAt(1).m_nLine, 31u);
    EXPECT_EQ(all.Icons().GetAt(0).m_nLine, 33u);
}

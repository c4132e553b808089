#include "tarvo/restools/CompareResources.h"

#include "script.h"

#include <gtest/gtest.h>

#include <new>

namespace
{
std::string Report(std::string_view text1, std::string_view text2, StringCheck mode = StringCheck::Both)
{
    const Script one = ReadScript(text1), two = ReadScript(text2);
    CString report;
    CompareResources(one.resources, two.resources, report, mode);
    EXPECT_EQ(report.Replace(L"\n", L"\n"), report.Replace(L"\r\n", L"\n"))
        << "every line end has both characters";
    return Utf8(report);
}

const std::string emptyReport =
    "Comparing menus:\n\nComparing toolbars:\n\nComparing dialogs:\n\n"
    "Comparing strings:\n\nComparing bitmaps:\nComparing icons:\nComparing cursors:\n";

/// The report of scripts that differ in one kind of resource alone: what stands below its heading.
std::string Part(const std::string& kind, std::string_view text1, std::string_view text2,
                 StringCheck mode = StringCheck::Both)
{
    const std::string report = Report(text1, text2, mode);
    const std::string heading = "Comparing " + kind + ":\n";
    const std::size_t start = report.find(heading) + heading.size();
    const std::size_t rest = emptyReport.size() - emptyReport.find(heading) - heading.size();
    EXPECT_EQ(report.substr(0, start), emptyReport.substr(0, emptyReport.find(heading) + heading.size()));
    EXPECT_EQ(report.substr(report.size() - rest), emptyReport.substr(emptyReport.size() - rest));
    return report.substr(start, report.size() - rest - start);
}

std::string Menu(const std::string& items) { return "M MENU\nBEGIN\n" + items + "\nEND\n"; }
std::string Toolbar(const std::string& items) { return "T TOOLBAR 1\nBEGIN\n" + items + "\nEND\n"; }
std::string Table(const std::string& entries) { return "STRINGTABLE\nBEGIN\n" + entries + "\nEND\n"; }

std::string MenuPart(const std::string& items1, const std::string& items2)
{
    const std::string part = Part("menus", Menu(items1), Menu(items2));
    const std::string line = "\tComparing menu resource: M\n";
    EXPECT_TRUE(part.starts_with(line)) << part;
    return part.substr(line.size());
}

std::string ToolbarPart(const std::string& items1, const std::string& items2)
{
    const std::string part = Part("toolbars", Toolbar(items1), Toolbar(items2));
    const std::string line = "\tComparing toolbar resource: T\n";
    EXPECT_TRUE(part.starts_with(line)) << part;
    return part.substr(line.size());
}
} // namespace

TEST(CompareResources, OfScriptsWithoutAnyResourceIsTheHeadingsAlone)
{
    EXPECT_EQ(Report("", ""), emptyReport);
}

TEST(CompareResources, OfTwoLikeScriptsNamesTheResourcesAndNothingElse)
{
    const std::string text = Menu("MENUITEM \"a\", 1") + Toolbar("BUTTON 1") +
                             "D DIALOG 0\nBEGIN\nLTEXT \"%d\\n\",1,2,3,4,5\nEND\n" + Table("A \"%s\"") +
                             "B BITMAP b\nP PNG p\nI ICON i\nC CURSOR c\n";
    EXPECT_EQ(Report(text, text),
              "Comparing menus:\n\tComparing menu resource: M\n\n"
              "Comparing toolbars:\n\tComparing toolbar resource: T\n\n"
              "Comparing dialogs:\n\tComparing dialog resource: D\n\n"
              "Comparing strings:\n\nComparing bitmaps:\nComparing icons:\nComparing cursors:\n");
}

TEST(CompareResources, AppendsToTheReport)
{
    const Script script = ReadScript("");
    CString report = L"before\r\n";
    CompareResources(script.resources, script.resources, report, StringCheck::None);
    EXPECT_TRUE(Utf8(report).starts_with("before\r\nComparing menus:\r\n\r\nComparing toolbars:\r\n"));
}

TEST(CompareResources, CountsAndMissesMenusToolbarsAndDialogs)
{
    EXPECT_EQ(Part("menus", "A MENU\nEND\nB MENU\nEND\n", "B MENU\nEND\n"),
              "Different number of menus, 2 menus in file 1, 1 menus in file 2.\n"
              "\tCouldn't find menu resource: A in file 2\n\tComparing menu resource: B\n");
    EXPECT_EQ(Part("toolbars", "A TOOLBAR 1\nBEGIN\nEND\n", ""),
              "Different number of toolbars, 1 toolbars in file 1, 0 toolbars in file 2.\n"
              "\tCouldn't find toolbar resource: A in file 2\n");
    EXPECT_EQ(Part("dialogs", "A DIALOG 1\nBEGIN\nEND\n", "a DIALOG 1\nBEGIN\nEND\nB DIALOG 1\nBEGIN\nEND\n"),
              "Different number of dialogs, 1 dialogs in file 1, 2 dialogs in file 2.\n"
              "\tCouldn't find dialog resource: A in file 2\n");
}

TEST(CompareResources, MissesFilesByNameAlone)
{
    EXPECT_EQ(Part("bitmaps", "A BITMAP a\nB BITMAP b\n", "A BITMAP other\n"),
              "\tCouldn't find bitmap: B in file 2\n");
    EXPECT_EQ(Part("icons", "A ICON a\n", "A BITMAP a\n"), "\tCouldn't find icon: A in file 2\n");
    EXPECT_EQ(Part("cursors", "A CURSOR a\n", "B CURSOR a\n"), "\tCouldn't find cursor: A in file 2\n");
    EXPECT_EQ(Report("A PNG a\n", ""), emptyReport) << "a translation need not have the same pictures";
    EXPECT_EQ(Report("", "A ICON a\nB BITMAP b\nC CURSOR c\n" + Table("A \"a\"")), emptyReport)
        << "what only file 2 has is no difference";
}

TEST(CompareResources, ChecksStringsByTheirID)
{
    EXPECT_EQ(Part("strings", Table("A \"%d\"\nB \"b\"\nC \"x\\n\""), Table("C \"y\"\nA \"%s\"")),
              "\tString error in A: Different %-words (%d and %s)\n"
              "\tCouldn't find string: B in file 2\n"
              "\tString error in C: Different number of \\-signs ('x\\n', 'y')\n");
    EXPECT_EQ(Part("strings", Table("A \"a\""), Table("A \"b\""), StringCheck::FullString),
              "\tString error in A: Strings doesn't match: 1: 'a', 2: 'b')\n");
    EXPECT_EQ(Part("strings", Table("A \"%d\""), Table("A \"x\""), StringCheck::None), "");
    EXPECT_EQ(Part("strings", Table("A \"%d\""), Table("A \"%d\"\nA \"x\"")), "")
        << "of equal IDs the first counts";
}

TEST(CompareResources, HoldsARepeatedStringAgainstTheFirstOfItsID)
{
    const std::string twice = Table("A \"a\"\nB \"b\"\nA \"%d\""), once = Table("A \"a\"\nB \"b\"\nC \"c\"");
    EXPECT_EQ(Part("strings", twice, twice),
              "\tString error in A: Different number of %-signs ('%d', 'a')\n");
    EXPECT_EQ(Part("strings", twice, once), "\tString error in A: Different number of %-signs ('%d', 'a')\n");
    EXPECT_EQ(Part("strings", once, twice), "\tCouldn't find string: C in file 2\n");
}

TEST(CompareMenus, ChecksStyleAndTextOfEachItem)
{
    EXPECT_EQ(MenuPart("MENUITEM \"%d\", 1, GRAYED\nMENUITEM \"b\", 2",
                       "MENUITEM \"x\", 1, CHECKED, HELP\nMENUITEM \"c\", 2"),
              "\t\tDifferent style in ID: 1 (1: GRAYED, 2: CHECKED|HELP)\n"
              "\t\tString error in 1: Different number of %-signs ('%d', 'x')\n");
}

TEST(CompareMenus, MissesItemsByIDAndPastTheOtherMenusEnd)
{
    EXPECT_EQ(MenuPart("MENUITEM \"a\", 1\nMENUITEM \"b\", 2\nMENUITEM \"c\", 3",
                       "MENUITEM \"a\", 1\nMENUITEM \"c\", 3"),
              "\t\tMissing menu item ID: 2 in file 2.\n\t\tMissing menu item in file 2\n"
              "\t\tDifferent items count (3 in 1, 2 in 2)\n"
              "\t\tDifferent menu structure. Item 2 is 2 in 1, and 3 in 2\n");
}

TEST(CompareMenus, PairsEqualIDsInTheirOrder)
{
    EXPECT_EQ(MenuPart("MENUITEM \"%d\", 1\nMENUITEM \"%s\", 1", "MENUITEM \"%d\", 1\nMENUITEM \"%x\", 1"),
              "\t\tString error in 1: Different %-words (%s and %x)\n");
    EXPECT_EQ(MenuPart("MENUITEM \"a\", 1\nMENUITEM \"b\", 1", "MENUITEM \"a\", 1\nMENUITEM \"b\", 2"),
              "\t\tMissing menu item ID: 1 in file 2.\n"
              "\t\tDifferent menu structure. Item 2 is 1 in 1, and 2 in 2\n");
}

TEST(CompareMenus, SeesSeparatorsAndPopupsByTheirRunningNumber)
{
    EXPECT_EQ(MenuPart("MENUITEM SEPARATOR\nPOPUP \"%d\"\nBEGIN\nEND",
                       "POPUP \"x\"\nBEGIN\nEND\nMENUITEM SEPARATOR"),
              "\t\tString error in POPUP0: Different number of %-signs ('%d', 'x')\n"
              "\t\tDifferent menu structure. Item 1 is SEPARATOR0 in 1, and POPUP0 in 2\n"
              "\t\tDifferent menu structure. Item 2 is POPUP0 in 1, and SEPARATOR0 in 2\n");
}

TEST(CompareToolbars, MissesItemsAndSeesCountAndOrder)
{
    EXPECT_EQ(ToolbarPart("BUTTON 1\nBUTTON 2\nSEPARATOR", "BUTTON 2\nBUTTON 3"),
              "\t\tCouldn't find ID: 1\n\t\tCouldn't find ID: SEPARATOR0\n"
              "\t\tDifferent items count (3 in 1, 2 in 2)\n"
              "\t\tDifferent toolbar structure. Item 1 is 1 in 1, and 2 in 2\n"
              "\t\tDifferent toolbar structure. Item 2 is 2 in 1, and 3 in 2\n");
    EXPECT_EQ(ToolbarPart("BUTTON 1\nBUTTON 1", "BUTTON 1\nBUTTON 2"),
              "\t\tDifferent toolbar structure. Item 2 is 1 in 1, and 2 in 2\n")
        << "a button is found whatever its rank";
}

TEST(ResourceReport, IsGivenUpWhenItBecomesTooLarge)
{
    CResReport report(nullptr, 9);
    report.Line({u"abc", u"defg"});
    EXPECT_EQ(report.Text(), u"abcdefg\r\n");
    EXPECT_THROW(report.Line({}), std::bad_alloc);
    EXPECT_THROW(report.Finding(ResRule::MenuCount, {}, {u"x"}), std::bad_alloc);
}

TEST(ResourceReport, NamesEveryRuleOnceInSmallLettersAndHyphens)
{
    std::vector<std::string> names;
    for (int i = 0; i < static_cast<int>(ResRule::Count); ++i)
    {
        const CResRule& rule = ResourceRule(static_cast<ResRule>(i));
        const std::string name = rule.m_pszName;
        EXPECT_EQ(name.find_first_not_of("abcdefghijklmnopqrstuvwxyz-"), std::string::npos) << name;
        EXPECT_TRUE(std::string(rule.m_pszHelp).ends_with('.')) << name;
        EXPECT_EQ(std::count(names.begin(), names.end(), name), 0) << name;
        names.push_back(name);
    }
    EXPECT_STREQ(ResourceRule(ResRule::MenuCount).m_pszName, "menu-count");
    EXPECT_STREQ(ResourceRule(ResRule::ControlMissing).m_pszName, "control-missing");
    EXPECT_STREQ(ResourceRule(ResRule::TabOrder).m_pszName, "tab-order");
    EXPECT_STREQ(ResourceRule(ResRule::StringText).m_pszName, "string-text");
    EXPECT_STREQ(ResourceRule(ResRule::CursorMissing).m_pszName, "cursor-missing");
}

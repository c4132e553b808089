#include "tarvo/restools/CompareResources.h"

#include "script.h"

#include <gtest/gtest.h>

namespace
{
struct Compared
{
    Script one, two;
    std::string text; ///< what the report says about dialog D
    std::vector<CResFinding> findings;
};

/// Compares two scripts that hold a dialog D alone.
Compared Compare(const std::string& dialog1, const std::string& dialog2, StringCheck mode = StringCheck::Both)
{
    Compared result{ReadScript(dialog1), ReadScript(dialog2), {}, {}};
    CString report;
    CompareResources(result.one.resources, result.two.resources, report, mode, &result.findings);
    report.Replace(L"\r\n", L"\n");
    const std::string before = "Comparing menus:\n\nComparing toolbars:\n\nComparing dialogs:\n"
                               "\tComparing dialog resource: D\n";
    const std::string behind =
        "\nComparing strings:\n\nComparing bitmaps:\nComparing icons:\nComparing cursors:\n";
    result.text = Utf8(report);
    EXPECT_TRUE(result.text.starts_with(before) && result.text.ends_with(behind)) << result.text;
    result.text = result.text.substr(before.size(), result.text.size() - before.size() - behind.size());
    return result;
}

std::string Dialog(const std::string& controls) { return "D DIALOG 0\nBEGIN\n" + controls + "\nEND\n"; }

std::string Controls(const std::string& controls1, const std::string& controls2)
{
    return Compare(Dialog(controls1), Dialog(controls2)).text;
}

/// Findings as "rule resource item line1 line2 text".
std::vector<std::string> Lines(const std::vector<CResFinding>& findings)
{
    std::vector<std::string> lines;
    for (const CResFinding& finding : findings)
        lines.push_back(ResourceRule(finding.m_rule).m_pszName + (' ' + Utf8(finding.m_strResource)) + ' ' +
                        Utf8(finding.m_strItem) + ' ' + std::to_string(finding.m_nLine1) + ' ' +
                        std::to_string(finding.m_nLine2) + ' ' + Utf8(finding.m_strText));
    return lines;
}
} // namespace

TEST(CompareDialogs, SeesOtherTypeStylesAndCaption)
{
    EXPECT_EQ(Compare("D DIALOG 0\nSTYLE A | B\nEXSTYLE X\nCAPTION \"%d\"\nBEGIN\nEND\n",
                      "D DIALOGEX 0\nSTYLE A\nCAPTION \"\\n\"\nBEGIN\nEND\n")
                  .text,
              "\t\tDialog m_type doesn't match (DIALOG, DIALOGEX)\n"
              "\t\tDialog style doesn't match (A|B, A)\n"
              "\t\tDialog exstyle doesn't match (X, )\n"
              "\tString error in caption: Different number of %-signs ('%d', '\\n'), "
              "Different number of \\-signs ('%d', '\\n')\n");
}

TEST(CompareDialogs, SeesEverySettingOfAControl)
{
    EXPECT_EQ(
        Controls("CONTROL \"%d\",1,\"Button\",A,1,2,3,4,X,H", "CONTROL \"%s\",1,\"Static\",B,9,9,9,9,Y,I"),
        "\t\tDifferent types on control ID: 1 (1: 'Button', 2: 'Static')\n"
        "\t\tDifferent style settings on control ID: 1 (1: 'A', 2: 'B')\n"
        "\t\tDifferent style settings on control ID: 1 (1: 'X', 2: 'Y')\n"
        "\t\tDifferent help ID setting on control ID: 1 (1: 'H', 2: 'I')\n"
        "\t\tString error in 1: Different %-words (%d and %s)\n");
    EXPECT_EQ(Controls("LTEXT \"a\",1,1,2,3,4", "LTEXT \"b\",1,9,9,9,9"), "")
        << "place and size are the translator's";
}

TEST(CompareDialogs, MissesControlsAndSeesTheirNumberAndOrder)
{
    EXPECT_EQ(Controls("EDITTEXT 1,0,0,0,0\nEDITTEXT 2,0,0,0,0\nEDITTEXT 3,0,0,0,0",
                       "EDITTEXT 3,0,0,0,0\nEDITTEXT 1,0,0,0,0"),
              "\t\tCouldn't find control ID: 2\n"
              "\t\tDifferent items count (3 in 1, 2 in 2)\n"
              "\t\tDifferent tab order. Item 1 is 1 in 1, and 3 in 2\n"
              "\t\tDifferent tab order. Item 2 is 2 in 1, and 1 in 2\n");
    EXPECT_EQ(Controls("", "EDITTEXT 1,0,0,0,0"), "\t\tDifferent items count (0 in 1, 1 in 2)\n");
}

TEST(CompareDialogs, PairsEqualIDsInTheirOrder)
{
    const std::string two =
        "LTEXT \"%d\",IDC_STATIC,1,2,3,4\nEDITTEXT 1,0,0,0,0\nLTEXT \"%s\",IDC_STATIC,1,2,3,4";
    EXPECT_EQ(Controls(two, two), "");
    EXPECT_EQ(
        Controls(two, "LTEXT \"%d\",IDC_STATIC,1,2,3,4\nEDITTEXT 1,0,0,0,0\nLTEXT \"%x\",IDC_STATIC,1,2,3,4"),
        "\t\tString error in IDC_STATIC: Different %-words (%s and %x)\n");
    EXPECT_EQ(Controls(two, "LTEXT \"%d\",IDC_STATIC,1,2,3,4\nEDITTEXT 1,0,0,0,0"),
              "\t\tCouldn't find control ID: IDC_STATIC\n\t\tDifferent items count (3 in 1, 2 in 2)\n");
}

TEST(CompareDialogs, ChecksTextsInTheModeThatIsAskedFor)
{
    const std::string one = Dialog("LTEXT \"a%d\\n\",1,1,2,3,4"), two = Dialog("LTEXT \"b%s\\t\",1,1,2,3,4");
    EXPECT_EQ(Compare(one, two, StringCheck::None).text, "");
    EXPECT_EQ(Compare(one, two, StringCheck::Percent).text,
              "\t\tString error in 1: Different %-words (%d and %s)\n");
    EXPECT_EQ(Compare(one, two, StringCheck::Backslash).text,
              "\t\tString error in 1: Different \\-characters (\\n and \\t)\n");
    EXPECT_EQ(Compare(one, two, StringCheck::FullString).text,
              "\t\tString error in 1: Strings doesn't match: 1: 'a%d\\n', 2: 'b%s\\t')\n");
}

TEST(CompareDialogs, ListsItsFindingsWithRuleAndLines)
{
    const Compared result =
        Compare("D DIALOG 0\nSTYLE A\nBEGIN\nLTEXT \"%d\",1,0,0,0,0\nEDITTEXT 2,0,0,0,0\nEND\n",
                "\nD DIALOG 0\nSTYLE B\nBEGIN\nLTEXT \"x\",1,0,0,0,0\nEND\n");
    EXPECT_EQ(Lines(result.findings),
              (std::vector<std::string>{
                  "dialog-style D  1 2 Dialog style doesn't match (A, B)",
                  "control-text D 1 4 5 String error in 1: Different number of %-signs ('%d', 'x')",
                  "control-missing D 2 5 2 Couldn't find control ID: 2",
                  "control-count D  1 2 Different items count (2 in 1, 1 in 2)"}));
}

TEST(CompareResources, ListsAFindingForEveryLineThatNamesADifference)
{
    const Script one = ReadScript(
        "M MENU\nBEGIN\nMENUITEM \"%d\", 1, A\nMENUITEM \"b\", 2\nMENUITEM \"b\", 3\nEND\nN MENU\nEND\n"
        "T TOOLBAR 1\nBEGIN\nBUTTON 1\nBUTTON 2\nEND\nU TOOLBAR 1\nBEGIN\nEND\n"
        "E DIALOG 0\nBEGIN\nEND\nD DIALOG 0\nSTYLE A\nEXSTYLE A\nCAPTION \"%d\"\nBEGIN\n"
        "CONTROL \"%d\",1,A,A,0,0,0,0,A,A\nEDITTEXT 2\nEDITTEXT 3\nEND\n"
        "STRINGTABLE\nBEGIN\nA \"%d\"\nB \"b\"\nEND\nB BITMAP b\nI ICON i\nC CURSOR c\n");
    const Script two =
        ReadScript("M MENU\nBEGIN\nMENUITEM \"x\", 1, B\nMENUITEM \"b\", 4\nEND\n"
                   "T TOOLBAR 1\nBEGIN\nBUTTON 3\nEND\n"
                   "D DIALOGEX 0\nSTYLE B\nEXSTYLE B\nCAPTION \"x\"\nBEGIN\n"
                   "CONTROL \"x\",1,B,B,0,0,0,0,B,B\nEDITTEXT 3\nEND\nSTRINGTABLE\nBEGIN\nA \"x\"\nEND\n");
    CString report;
    std::vector<CResFinding> findings;
    CompareResources(one.resources, two.resources, report, StringCheck::Both, &findings);

    std::vector<std::string> differences;
    std::string text = Utf8(report);
    for (std::size_t at = 0, end; (end = text.find("\r\n", at)) != std::string::npos; at = end + 2)
    {
        const std::string line = text.substr(at, end - at);
        const std::string trimmed = line.substr(std::min(line.find_first_not_of('\t'), line.size()));
        if (!trimmed.empty() && !trimmed.starts_with("Comparing "))
            differences.push_back(trimmed);
    }
    std::vector<std::string> found;
    std::vector<bool> seen(static_cast<std::size_t>(ResRule::Count));
    for (const CResFinding& finding : findings)
    {
        found.push_back(Utf8(finding.m_strText));
        seen[static_cast<std::size_t>(finding.m_rule)] = true;
    }
    EXPECT_EQ(found, differences);
    for (std::size_t rule = 0; rule < seen.size(); ++rule)
        EXPECT_TRUE(seen[rule]) << "no example of " << ResourceRule(static_cast<ResRule>(rule)).m_pszName;
}

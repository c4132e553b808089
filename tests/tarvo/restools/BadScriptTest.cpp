#include "tarvo/restools/CompareResources.h"
#include "tarvo/restools/WritePairs.h"
#include "tarvo/restools/WriteTree.h"

#include "platform/file.h"
#include "script.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

using namespace std::string_literals;

namespace
{
std::string Read(std::string_view text) { return Dump(ReadScript(text).resources); }

std::string Repeated(const std::string& text, int count)
{
    std::string all;
    for (int i = 0; i < count; ++i)
        all += text;
    return all;
}
} // namespace

TEST(BadScript, EndsItsOpenResourceAtTheEndOfTheFile)
{
    EXPECT_EQ(Read("STRINGTABLE"), "");
    EXPECT_EQ(Read("STRINGTABLE\nBEGIN\nA \"a\"\nB \"b"), "string A \"a\"\nstring B \"\"b\"\n");
    EXPECT_EQ(Read("D DIALOGEX"), "DIALOGEX D [] [] \"\" { }\n");
    EXPECT_EQ(Read("D DIALOGEX 0\nSTYLE A |"), "DIALOGEX D [A|] [] \"\" { }\n");
    EXPECT_EQ(Read("D DIALOGEX 0\nBEGIN\nLTEXT \"a\",1,\n2"),
              "DIALOGEX D [] [] \"\" { LTEXT 1 \"a\" [] [] [] 0 }\n");
    EXPECT_EQ(Read("D DIALOGEX 0\nBEGIN\nCONTROL"), "DIALOGEX D [] [] \"\" {   \"\" [] [] [] 0 }\n");
    EXPECT_EQ(Read("M MENU"), "menu M { }\n");
    EXPECT_EQ(Read("M MENU\nBEGIN\nPOPUP \"a\"\nBEGIN\nMENUITEM"), "menu M { \"a\" POPUP0 []; \"\"  [] }\n");
    EXPECT_EQ(Read("T TOOLBAR\nBEGIN\nBUTTON"), "toolbar T { BUTTON  }\n");
    EXPECT_EQ(Read("LANGUAGE"), "");
}

TEST(BadScript, OpenQuoteReachesToTheEndOfItsStatement)
{
    EXPECT_EQ(
        Read("D DIALOG 0\nBEGIN\nLTEXT \"open,1\nof two lines\nEDITTEXT 2\nEND\n"),
        "DIALOG D [] [] \"\" { LTEXT  \"open,1 of two lines\" [] [] [] 0; EDITTEXT 2 \"\" [] [] [] 0 }\n");
    EXPECT_EQ(Read("STRINGTABLE\nBEGIN\nA \"open\nEND \"\nEND\n"), "string A \"open\"\n");
}

TEST(BadScript, MayBeAnyBytes)
{
    std::string bytes;
    for (int i = 0; i < 4096; ++i)
        bytes += static_cast<char>(i * 7 + i / 256);
    for (const std::string mark : {"", "\xFF\xFE", "\xFE\xFF", "\xEF\xBB\xBF"})
    {
        CResources resources;
        CString log, text;
        CStringArray languages;
        EXPECT_TRUE(resources.ReadMemory(mark + bytes, log, L"", languages));
        EXPECT_TRUE(resources.ReadMemory(mark + "M MENU\nBEGIN\n" + bytes, log, L"", languages));
        WriteTree(resources, text, false);
        EXPECT_FALSE(text.IsEmpty());
    }
}

TEST(BadScript, MayHaveNulsInItsTexts)
{
    const Script script = ReadScript("STRINGTABLE\nBEGIN\nA \"a\0b\"\nEND\n"s);
    ASSERT_EQ(script.resources.Strings().GetCount(), 1u);
    EXPECT_EQ(script.resources.Strings().GetAt(0).m_strText, std::u16string_view(u"a\0b", 3));
    CString text;
    WriteTree(script.resources, text, false);
    EXPECT_NE(Utf8(text).find("  A\ta\0b\r\n"s), std::string::npos);
}

TEST(BadScript, MayHaveALineOfAMegabyte)
{
    const std::string word(1 << 20, 'x');
    const Script script = ReadScript("STRINGTABLE\nBEGIN\nA \"" + word + "\"\nEND\nD DIALOG 0\nCAPTION \"" +
                                     word + "\"\"\"\nBEGIN\nLTEXT \"" + word + "\",1\nEND\n");
    ASSERT_EQ(script.resources.Strings().GetCount(), 1u);
    EXPECT_EQ(script.resources.Strings().GetAt(0).m_strText.size(), word.size());
    ASSERT_EQ(script.resources.Dialogs().GetCount(), 1u);
    EXPECT_EQ(script.resources.Dialogs().GetAt(0).m_strCaption.size(), word.size() + 2);
    EXPECT_EQ(script.resources.Dialogs().GetAt(0).m_items.GetAt(0).m_strText.size(), word.size());
}

TEST(BadScript, MayHaveAStyleThatIsNothingButTheKeyword)
{
    const Script script = ReadScript("D DIALOG 0\nSTYLE " + Repeated("STYLE|", 100000) + "\nBEGIN\nEND\n");
    EXPECT_EQ(script.resources.Dialogs().GetAt(0).m_strStyle, u"STYLE");
}

TEST(BadScript, MayHaveAMillionStrings)
{
    std::string text = "STRINGTABLE\nBEGIN\n";
    for (int i = 0; i < 1000000; ++i)
        text += "S" + std::to_string(i) + " \"" + std::to_string(i) + "\"\n";
    const Script script = ReadScript(text + "END\n");
    ASSERT_EQ(script.resources.Strings().GetCount(), 1000000u);
    EXPECT_EQ(script.resources.Strings().Find(u"S999999"), 999999);
    CString report;
    std::vector<CResFinding> findings;
    CompareResources(script.resources, script.resources, report, StringCheck::Both, &findings);
    EXPECT_TRUE(findings.empty());
}

TEST(BadScript, MayRepeatOneIDAHundredThousandTimes)
{
    const Script script = ReadScript("D DIALOG 0\nBEGIN\n" + Repeated("LTEXT \"a\",-1\n", 100000) + "END\n");
    CString report;
    std::vector<CResFinding> findings;
    CompareResources(script.resources, script.resources, report, StringCheck::Both, &findings);
    EXPECT_TRUE(findings.empty());
}

// Each of them is compared with the first of the name, so that the report grows with the scripts and not with
// their product.
TEST(BadScript, MayRepeatOneNameTwentyThousandTimes)
{
    constexpr int count = 20000;
    const std::string dialog = "D DIALOG 0\nBEGIN\nLTEXT \"a\",1\n",
                      menu = "M MENU\nBEGIN\nMENUITEM \"a\", 1\nEND\n";
    const Script one = ReadScript(Repeated(dialog + "END\n", count) + Repeated(menu, count));
    const Script two = ReadScript(Repeated(dialog + "LTEXT \"b\",2\nEND\n", count) + Repeated(menu, count));
    CString report;
    CompareResources(one.resources, two.resources, report, StringCheck::FullString);
    report.Replace(L"\r\n", L"\n");
    EXPECT_EQ(
        Utf8(report),
        "Comparing menus:\n" + Repeated("\tComparing menu resource: M\n", count) +
            "\nComparing toolbars:\n\nComparing dialogs:\n" +
            Repeated("\tComparing dialog resource: D\n\t\tDifferent items count (1 in 1, 2 in 2)\n", count) +
            "\nComparing strings:\n\nComparing bitmaps:\nComparing icons:\nComparing cursors:\n");
    CString pairs;
    WritePairs(one.resources, two.resources, pairs, false);
    EXPECT_EQ(Utf8(pairs), "[DIALOG]\r\n1\ta\ta\r\n[DIALOGEX]\r\n[MENU]\r\n1\ta\ta\r\n[STRINGTABLE]\r\n");
}

TEST(BadScript, MayNestMenusTenThousandDeep)
{
    const Script script = ReadScript("M MENU\nBEGIN\n" + Repeated("POPUP \"a\"\nBEGIN\n", 10000) +
                                     Repeated("END\n", 10000) + "MENUITEM \"b\", 1\nEND\nI ICON i\n");
    ASSERT_EQ(script.resources.Menus().GetCount(), 1u);
    EXPECT_EQ(script.resources.Menus().GetAt(0).m_items.GetCount(), 10001u);
    EXPECT_EQ(script.resources.Icons().GetCount(), 1u);
}

TEST(BadScript, IsRefusedWhenItIsTooLarge)
{
    const TempFolder folder;
    const std::wstring path = folder / L"sparse.rc";
    {
        const auto file = platform::file::open(path.c_str(), "wb");
        ASSERT_TRUE(file);
        ASSERT_EQ(std::fseek(file.get(), (1 << 30) - 1, SEEK_SET), 0);
        ASSERT_EQ(std::fputc(0, file.get()), 0);
    }
    CResources resources;
    CString log;
    CStringArray languages;
    EXPECT_FALSE(resources.Read(path.c_str(), log, L"", languages));
    EXPECT_EQ(log, CString(L"Couldn't open ") + path.c_str() + L"\r\n");
}

TEST(BadScript, OfTheLargestSizeIsReadAndOfOneByteMoreIsNot)
{
    std::string bytes(CResources::MaxFileSize + 1, ' ');
    CResources resources;
    CString log;
    CStringArray languages;
    EXPECT_FALSE(resources.ReadMemory(bytes, log, L"", languages));
    bytes.pop_back();
    EXPECT_TRUE(resources.ReadMemory(bytes, log, L"", languages));
    EXPECT_EQ(log, L"Reading done\r\n");
}

#include "tarvo/restools/WritePairs.h"
#include "tarvo/restools/WriteStringList.h"
#include "tarvo/restools/WriteTree.h"

#include "script.h"

#include <gtest/gtest.h>

namespace
{
const std::string script1 =
    "M MENU\nBEGIN\nPOPUP \"&File\"\nBEGIN\nMENUITEM \"&Open\\tCtrl+O\", 1\nMENUITEM SEPARATOR\nEND\nEND\n"
    "T TOOLBAR 1\nBEGIN\nBUTTON 1\nSEPARATOR\nEND\n"
    "D DIALOG 0\nCAPTION \"About\"\nBEGIN\nLTEXT \"Name\",-1,0,0,0,0\nLTEXT \"Size\",-1,0,0,0,0\n"
    "EDITTEXT 2\nPUSHBUTTON \"OK\",IDOK\nEND\n"
    "E DIALOGEX 0\nBEGIN\nPUSHBUTTON \"OK\",IDOK\nEND\n"
    "F DIALOG 0\nBEGIN\nPUSHBUTTON \"OK\",IDOK\nPUSHBUTTON \"Cancel\",IDOK\nEND\n"
    "G DIALOG 0\nBEGIN\nLTEXT \"alone\",1\nEND\n"
    "STRINGTABLE\nBEGIN\nA \"a\"\nB \"b\"\nC \"\"\nA \"again\"\nEND\n"
    "B1 BITMAP b.bmp\nP1 PNG p.png\nI1 ICON i.ico\nC1 CURSOR c.cur\n";
const std::string script2 =
    "M MENU\nBEGIN\nPOPUP \"파일\"\nBEGIN\nMENUITEM \"열기\", 1\nMENUITEM SEPARATOR\nEND\nEND\n"
    "D DIALOG 0\nBEGIN\nLTEXT \"이름\",-1,0,0,0,0\nLTEXT \"크기\",-1,0,0,0,0\nEDITTEXT 2\n"
    "PUSHBUTTON \"확인\",IDOK\nEND\nE DIALOGEX 0\nBEGIN\nPUSHBUTTON \"확인\",IDOK\nEND\n"
    "F DIALOGEX 0\nBEGIN\nPUSHBUTTON \"확인\",IDOK\nEND\n"
    "STRINGTABLE\nBEGIN\nA \"가\"\nC \"\"\nD \"only here\"\nEND\n";

std::string Normal(CString text)
{
    text.Replace(L"\r\n", L"\n");
    return Utf8(text);
}

std::string Pairs(const std::string& text1, const std::string& text2, bool quoted)
{
    CString text;
    WritePairs(ReadScript(text1).resources, ReadScript(text2).resources, text, quoted);
    return Normal(text);
}

std::string Tree(const std::string& script, bool idsOnly)
{
    CString text;
    WriteTree(ReadScript(script).resources, text, idsOnly);
    return Normal(text);
}

std::string List(const std::string& script, bool clean)
{
    CString text;
    WriteStringList(ReadScript(script).resources, text, clean);
    return Normal(text);
}

std::string Cleaned(const wchar_t* text)
{
    CString list = text;
    CleanStringList(list);
    return Utf8(list);
}
} // namespace

TEST(WritePairs, ListsIDAndBothTextsOfWhatBothScriptsHave)
{
    EXPECT_EQ(Pairs(script1, script2, false), "[DIALOG]\n-1\tName\t이름\n-1\tSize\t크기\nIDOK\tOK\t확인\n"
                                              "[DIALOGEX]\nIDOK\tOK\t확인\n"
                                              "[MENU]\nPOPUP0\t&File\t파일\n1\t&Open\\tCtrl+O\t열기\n"
                                              "[STRINGTABLE]\nA\ta\t가\nC\t\"\"\t\"\"\nA\tagain\t가\n");
}

TEST(WritePairs, QuotesBothTextsInTheQuotedForm)
{
    EXPECT_EQ(Pairs(script1, script2, true),
              "[DIALOG]\n\"Name\"=\"이름\"\n\"Size\"=\"크기\"\n\"OK\"=\"확인\"\n[DIALOGEX]\n\"OK\"=\"확인\"\n"
              "[MENU]\n\"&File\"=\"파일\"\n\"&Open\\tCtrl+O\"=\"열기\"\n"
              "[STRINGTABLE]\n\"a\"=\"가\"\n\"\"\"\"=\"\"\"\"\n\"again\"=\"가\"\n");
}

TEST(WritePairs, LeavesOutPairsWithoutAnyTextAndRepeatedOnes)
{
    const std::string dialogs =
        "A DIALOG 0\nBEGIN\nLTEXT \"x\",1\nLTEXT \"x\",1\nLTEXT \"\",2\nLTEXT \"\",3\nEND\n"
        "B DIALOG 0\nBEGIN\nLTEXT \"x\",1\nLTEXT \"x\",4\nEND\n";
    const std::string other =
        "A DIALOG 0\nBEGIN\nLTEXT \"y\",1\nLTEXT \"y\",1\nLTEXT \"\",2\nLTEXT \"z\",3\nEND\n"
        "B DIALOG 0\nBEGIN\nLTEXT \"y\",1\nLTEXT \"y\",4\nEND\n";
    EXPECT_EQ(Pairs(dialogs, other, false),
              "[DIALOG]\n1\tx\ty\n3\t\tz\n4\tx\ty\n[DIALOGEX]\n[MENU]\n[STRINGTABLE]\n");
}

TEST(WritePairs, LeavesOutRepeatedOnesAmongManyAndKeepsTheOrder)
{
    std::string strings = "STRINGTABLE\nBEGIN\n", wanted;
    for (int round = 0; round < 2; ++round)
        for (int i = 0; i < 5000; ++i)
        {
            const std::string line = "S" + std::to_string(i % 1250) + " \"" + std::to_string(i) + "\"\n";
            strings += line;
            if (round == 0)
                wanted += "S" + std::to_string(i % 1250) + '\t' + std::to_string(i) + '\t' +
                          std::to_string(i % 1250) + '\n';
        }
    EXPECT_EQ(Pairs(strings + "END\n", strings + "END\n", false),
              "[DIALOG]\n[DIALOGEX]\n[MENU]\n[STRINGTABLE]\n" + wanted);
}

TEST(WritePairs, AppendsToTheTextWithTheHeadsOfEmptySections)
{
    CString text = L"before\r\n";
    const CResources none;
    WritePairs(none, none, text, true);
    EXPECT_EQ(text, L"before\r\n[DIALOG]\r\n[DIALOGEX]\r\n[MENU]\r\n[STRINGTABLE]\r\n");
}

TEST(WriteTree, ShowsEveryResourceWithItsItems)
{
    EXPECT_EQ(Tree(script1, false),
              "Menus:\n  M\n    POPUP0\t&File\n    1\t&Open\\tCtrl+O\n    SEPARATOR0\t\n"
              "Toobars:\n  T\n    1\tBUTTON\n    SEPARATOR0\tSEPARATOR\n"
              "Dialogs:\n  D\n    -1\tName\n    -1\tSize\n    2\t\n    IDOK\tOK\n"
              "  E\n    IDOK\tOK\n  F\n    IDOK\tOK\n    IDOK\tCancel\n  G\n    1\talone\n"
              "Strings:\n  A\ta\n  B\tb\n  C\t\"\"\n  A\tagain\n"
              "Bitmaps:\n  B1\nPNGs:\n  P1\nIcons:\n  I1\nCursors:\n  C1\n");
}

TEST(WriteTree, ShowsIDsAloneWhenAskedTo)
{
    EXPECT_EQ(Tree(script1, true),
              "Menus:\n  M\n    POPUP0\n    1\n    SEPARATOR0\nToobars:\n  T\n    1\n    SEPARATOR0\n"
              "Dialogs:\n  D\n    -1\n    -1\n    2\n    IDOK\n  E\n    IDOK\n  F\n    IDOK\n    IDOK\n"
              "  G\n    1\nStrings:\n  A\n  B\n  C\n  A\nBitmaps:\n  B1\nPNGs:\n  P1\nIcons:\n  I1\n"
              "Cursors:\n  C1\n");
}

TEST(WriteTree, ShowsTheHeadingsOfAnEmptyScriptAndAppends)
{
    CString text = L"before\r\n";
    WriteTree(CResources(), text, false);
    EXPECT_EQ(text, L"before\r\nMenus:\r\nToobars:\r\nDialogs:\r\nStrings:\r\nBitmaps:\r\nPNGs:\r\nIcons:"
                    L"\r\nCursors:\r\n");
}

TEST(WriteStringList, ListsMenusThenDialogsThenStrings)
{
    EXPECT_EQ(List(script1, false),
              "Menu: M\nPOPUP0\t&File\n1\t&Open\\tCtrl+O\n"
              "Dialog: D\nCAPTION\tAbout\n-1\tName\n-1\tSize\nIDOK\tOK\n"
              "Dialog: E\nIDOK\tOK\nDialog: F\nIDOK\tOK\nIDOK\tCancel\nDialog: G\n1\talone\n"
              "Strings: \nA\ta\nB\tb\nC\t\"\"\nA\tagain\n");
    EXPECT_EQ(List("", false), "Strings: \n");
}

TEST(WriteStringList, CleansTheFinishedListWhenAskedTo)
{
    EXPECT_EQ(List("M MENU\nBEGIN\nPOPUP \"&File && \"\"x\"\"\\tF1\"\nEND\nSTRINGTABLE\nBEGIN\nA&B "
                   "\"a\\nb\\rc\"\nEND\n",
                   true),
              "Menu: M\nPOPUP0\tFile  \"x\" F1\nStrings: \nAB\ta b c\n");
}

TEST(WriteStringList, LeavesAloneWhatStoodInTheTextBefore)
{
    CString text = L"R&D\r\n";
    WriteStringList(CResources(), text, true);
    EXPECT_EQ(text, L"R&D\r\nStrings: \r\n");
}

TEST(CleanStringList, RemovesAmpersandsFirst)
{
    EXPECT_EQ(Cleaned(L"&a&&b"), "ab");
    EXPECT_EQ(Cleaned(L"a\\&nb"), "a b") << "what is left may be an escape";
    EXPECT_EQ(Cleaned(L"a\\n\\t\\rb"), "a   b");
    EXPECT_EQ(Cleaned(L"\\\"a\\\""), "\"a\"");
    EXPECT_EQ(Cleaned(L"a\\\\nb\\x"), "a\\ b\\x");
    EXPECT_EQ(Cleaned(L""), "");
}

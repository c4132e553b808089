#include "program.h"

using RcTest = ProgramTest;

namespace
{
constexpr std::string_view english =
    "\xEF\xBB\xBFLANGUAGE LANG_ENGLISH, 1\r\n"
    "M MENU\r\nBEGIN\r\n  POPUP \"&File\"\r\n  BEGIN\r\n"
    "    MENUITEM \"&Open\\tCtrl+O\", ID_OPEN, GRAYED\r\n    MENUITEM SEPARATOR\r\n  END\r\nEND\r\n"
    "T TOOLBAR 16, 15\r\nBEGIN\r\n  BUTTON ID_OPEN\r\n  SEPARATOR\r\nEND\r\n"
    "D DIALOGEX 0, 0, 9, 9\r\nSTYLE A | B\r\nEXSTYLE X\r\nCAPTION \"Set \"\"up\"\"\"\r\nBEGIN\r\n"
    "  CONTROL 7,IDC_PIC,\"Static\",SS_BITMAP,1,2,3,4,E,H\r\n  LTEXT \"%d of %s\",-1,1,2,3,4\r\nEND\r\n"
    "STRINGTABLE\r\nBEGIN\r\n  IDS_A \"a && b\\n\"\r\nEND\r\n"
    "B1 BITMAP \"b.bmp\"\r\nP1 PNG p.png\r\nI1 ICON i.ico\r\nC1 CURSOR c.cur\r\n";
constexpr std::string_view korean =
    "\xEF\xBB\xBF"
    "M MENU\nBEGIN\n  POPUP \"파일\"\n  BEGIN\n    MENUITEM \"열기\", ID_OPEN, GRAYED\n    MENUITEM "
    "SEPARATOR\n"
    "  END\nEND\nT TOOLBAR 16, 15\nBEGIN\n  BUTTON ID_OPEN\n  SEPARATOR\nEND\n"
    "D DIALOGEX 0, 0, 9, 9\nSTYLE A | B\nEXSTYLE X\nCAPTION \"설정\"\nBEGIN\n"
    "  CONTROL 7,IDC_PIC,\"Static\",SS_BITMAP,1,2,3,4,E,H\n  LTEXT \"%s/%d\",-1,1,2,3,4\nEND\n"
    "STRINGTABLE\nBEGIN\n  IDS_A \"가\\n\"\nEND\n"
    "B1 BITMAP \"b.bmp\"\nP1 PNG p.png\nI1 ICON i.ico\nC1 CURSOR c.cur\n";

const std::string report =
    "Comparing menus:\n\tComparing menu resource: M\n"
    "\t\tString error in ID_OPEN: Different number of \\-signs ('&Open\\tCtrl+O', '열기')\n\n"
    "Comparing toolbars:\n\tComparing toolbar resource: T\n\n"
    "Comparing dialogs:\n\tComparing dialog resource: D\n"
    "\tString error in caption: Different number of \\-signs ('Set \\\"up\\\"', '설정')\n"
    "\t\tString error in -1: Different %-words (%d and %s)\n\n"
    "Comparing strings:\n\nComparing bitmaps:\nComparing icons:\nComparing cursors:\n";

std::string escaped(std::string text)
{
    std::string out;
    for (const char c : text)
        out += c == '\n'   ? std::string("\\r\\n")
               : c == '\t' ? std::string("\\t")
               : c == '"'  ? std::string("\\\"")
               : c == '\\' ? std::string("\\\\")
                           : std::string(1, c);
    return out;
}
} // namespace

TEST_F(RcTest, ShowPrintsTheModelInColumns)
{
    write("a.rc", english);
    const Outcome shown{
        0,
        "language\tLANG_ENGLISH\n"
        "menu\tM\tPOPUP0\t&File\t\nmenu\tM\tID_OPEN\t&Open\\tCtrl+O\tGRAYED\nmenu\tM\tSEPARATOR0\t\t\n"
        "toolbar\tT\tID_OPEN\tBUTTON\ntoolbar\tT\tSEPARATOR0\tSEPARATOR\n"
        "dialog\tD\tDIALOGEX\tSet \\\"up\\\"\tA|B\tX\n"
        "control\tD\tIDC_PIC\tStatic\t7\tSS_BITMAP\tE\tH\ncontrol\tD\t-1\tLTEXT\t%d of %s\t\t\t\n"
        "string\tIDS_A\ta && b\\n\n"
        "bitmap\tB1\tb.bmp\npng\tP1\tp.png\nicon\tI1\ti.ico\ncursor\tC1\tc.cur\n",
        ""};
    EXPECT_EQ(tarvo({"rc", "show", "a.rc"}), shown);
    EXPECT_EQ(tarvo({"rc", "show", "-"}, std::string(english)), tarvo({"rc", "show", "a.rc"}));
}

TEST_F(RcTest, ShowAsJsonIsTheWholeModel)
{
    write("a.rc", english);
    EXPECT_EQ(
        tarvo({"rc", "show", "a.rc", "--format", "json"}),
        (Outcome{
            0,
            "{\"read\":true,\"log\":\"Reading a.rc\\r\\nFind language: LANG_ENGLISH\\r\\nReading "
            "done\\r\\n\","
            "\"languages\":[\"LANG_ENGLISH\"],"
            "\"menus\":[{\"name\":\"M\",\"items\":[{\"text\":\"&File\",\"id\":\"POPUP0\",\"style\":\"\"},"
            "{\"text\":\"&Open\\\\tCtrl+O\",\"id\":\"ID_OPEN\",\"style\":\"GRAYED\"},"
            "{\"text\":\"\",\"id\":\"SEPARATOR0\",\"style\":\"\"}]}],"
            "\"toolbars\":[{\"name\":\"T\",\"items\":[{\"keyword\":\"BUTTON\",\"id\":\"ID_OPEN\"},"
            "{\"keyword\":\"SEPARATOR\",\"id\":\"SEPARATOR0\"}]}],"
            "\"dialogs\":[{\"name\":\"D\",\"type\":\"DIALOGEX\",\"style\":\"A|B\",\"exstyle\":\"X\","
            "\"caption\":\"Set \\\\\\\"up\\\\\\\"\",\"controls\":[{\"type\":\"Static\",\"id\":\"IDC_PIC\","
            "\"text\":\"7\",\"style\":\"SS_BITMAP\",\"exstyle\":\"E\",\"help_id\":\"H\",\"number\":7},"
            "{\"type\":\"LTEXT\",\"id\":\"-1\",\"text\":\"%d of %s\",\"style\":\"\",\"exstyle\":\"\","
            "\"help_id\":\"\",\"number\":0}]}],"
            "\"strings\":[{\"id\":\"IDS_A\",\"text\":\"a && b\\\\n\"}],"
            "\"bitmaps\":[{\"name\":\"B1\",\"file\":\"b.bmp\"}],\"pngs\":[{\"name\":\"P1\",\"file\":\"p."
            "png\"}],"
            "\"icons\":[{\"name\":\"I1\",\"file\":\"i.ico\"}],\"cursors\":[{\"name\":\"C1\",\"file\":\"c."
            "cur\"}]}\n",
            ""}));
    write("empty.rc", "");
    EXPECT_EQ(tarvo({"rc", "show", "empty.rc", "--format", "json"}),
              (Outcome{0,
                       "{\"read\":true,\"log\":\"Reading empty.rc\\r\\nReading "
                       "done\\r\\n\",\"languages\":[],\"menus\":[],"
                       "\"toolbars\":[],\"dialogs\":[],\"strings\":[],\"bitmaps\":[],\"pngs\":[],\"icons\":[]"
                       ",\"cursors\":[]}\n",
                       ""}));
}

TEST_F(RcTest, ShowReadsOneLanguageWhenAskedTo)
{
    write("a.rc", "LANGUAGE 9, 1\nA BITMAP a\nLANGUAGE 18, 1\nB BITMAP b\n");
    EXPECT_EQ(tarvo({"rc", "show", "a.rc", "--language", "18"}),
              (Outcome{0, "language\t9\nlanguage\t18\nbitmap\tB\tb\n", ""}));
}

TEST_F(RcTest, CompareReportsAndTellsByItsExitStatus)
{
    write("en.rc", english);
    write("ko.rc", korean);
    EXPECT_EQ(tarvo({"rc", "compare", "en.rc", "ko.rc"}), (Outcome{1, report, ""}));
    EXPECT_EQ(tarvo({"rc", "compare", "en.rc", "-"}, std::string(korean)), (Outcome{1, report, ""}));
    EXPECT_EQ(tarvo({"rc", "compare", "en.rc", "en.rc"}).status, 0);
    EXPECT_EQ(tarvo({"rc", "compare", "en.rc", "ko.rc", "--check", "none"}).status, 0);
    EXPECT_NE(tarvo({"rc", "compare", "en.rc", "ko.rc", "--check", "full"})
                  .out.find("\t\tString error in POPUP0: Strings doesn't match: 1: '&File', 2: '파일')\n"),
              std::string::npos);
}

TEST_F(RcTest, CompareAsJsonIsTheExactReportAndBothLogs)
{
    write("en.rc", english);
    write("ko.rc", korean);
    EXPECT_EQ(
        tarvo({"rc", "compare", "en.rc", "ko.rc", "--format", "json"}),
        (Outcome{1,
                 "{\"report\":\"" + escaped(report) +
                     "\",\"log\":\"Reading en.rc\\r\\nFind language: LANG_ENGLISH\\r\\nReading done\\r\\n"
                     "Reading ko.rc\\r\\nReading done\\r\\n\"}\n",
                 ""}));
}

TEST_F(RcTest, CompareTakesALanguageForEachScript)
{
    write("a.rc", "LANGUAGE 9, 1\nA BITMAP a\nLANGUAGE 18, 1\nB BITMAP b\n");
    EXPECT_EQ(
        tarvo({"rc", "compare", "a.rc", "a.rc", "--language1", "9", "--language2", "18"}).out.substr(79),
        "Comparing bitmaps:\n\tCouldn't find bitmap: A in file 2\nComparing icons:\nComparing cursors:\n");
}

TEST_F(RcTest, CheckPrintsTheProblemAlone)
{
    EXPECT_EQ(tarvo({"rc", "check", "%d", "%s"}), (Outcome{1, "Different %-words (%d and %s)\n", ""}));
    EXPECT_EQ(tarvo({"rc", "check", "%d", "%d개"}), (Outcome{0, "", ""}));
    EXPECT_EQ(tarvo({"rc", "check", "%d", "%s", "--check", "backslash"}), (Outcome{0, "", ""}));
    EXPECT_EQ(tarvo({"rc", "check", "a", "b", "--check", "full", "--format", "json"}),
              (Outcome{1, "\"Strings doesn't match: 1: 'a', 2: 'b')\"\n", ""}));
    EXPECT_EQ(tarvo({"rc", "check", "a", "b", "--format", "json"}), (Outcome{0, "\"\"\n", ""}));
}

TEST_F(RcTest, PairsAreListedPlainAndQuoted)
{
    write("en.rc", english);
    write("ko.rc", korean);
    const std::string plain = "[DIALOG]\n[DIALOGEX]\nIDC_PIC\t7\t7\n-1\t%d of %s\t%s/%d\n"
                              "[MENU]\nPOPUP0\t&File\t파일\nID_OPEN\t&Open\\tCtrl+O\t열기\n[STRINGTABLE]"
                              "\nIDS_A\ta && b\\n\t가\\n\n";
    EXPECT_EQ(tarvo({"rc", "pairs", "en.rc", "ko.rc"}), (Outcome{0, plain, ""}));
    EXPECT_EQ(
        tarvo({"rc", "pairs", "en.rc", "ko.rc", "--quoted"}),
        (Outcome{0,
                 "[DIALOG]\n[DIALOGEX]\n\"7\"=\"7\"\n\"%d of %s\"=\"%s/%d\"\n[MENU]\n\"&File\"=\"파일\"\n"
                 "\"&Open\\tCtrl+O\"=\"열기\"\n[STRINGTABLE]\n\"a && b\\n\"=\"가\\n\"\n",
                 ""}));
    EXPECT_EQ(tarvo({"rc", "pairs", "en.rc", "ko.rc", "--format", "json"}),
              (Outcome{0, "{\"text\":\"" + escaped(plain) + "\"}\n", ""}));
}

TEST_F(RcTest, StringsAreListedAsTheyAreAndCleaned)
{
    write("en.rc", english);
    const std::string list =
        "Menu: M\nPOPUP0\t&File\nID_OPEN\t&Open\\tCtrl+O\nDialog: D\nCAPTION\tSet \\\"up\\\"\n"
        "IDC_PIC\t7\n-1\t%d of %s\nStrings: \nIDS_A\ta && b\\n\n";
    EXPECT_EQ(tarvo({"rc", "strings", "en.rc"}), (Outcome{0, list, ""}));
    EXPECT_EQ(tarvo({"rc", "strings", "en.rc", "--clean"}),
              (Outcome{0,
                       "Menu: M\nPOPUP0\tFile\nID_OPEN\tOpen Ctrl+O\nDialog: D\nCAPTION\tSet \"up\"\n"
                       "IDC_PIC\t7\n-1\t%d of %s\nStrings: \nIDS_A\ta  b \n",
                       ""}));
    EXPECT_EQ(tarvo({"rc", "strings", "en.rc", "--format", "json"}),
              (Outcome{0, "{\"text\":\"" + escaped(list) + "\"}\n", ""}));
}

TEST_F(RcTest, TreeIsListedWithTextsAndWithout)
{
    write("en.rc", english);
    EXPECT_EQ(tarvo({"rc", "tree", "en.rc"}),
              (Outcome{0,
                       "Menus:\n  M\n    POPUP0\t&File\n    ID_OPEN\t&Open\\tCtrl+O\n    SEPARATOR0\t\n"
                       "Toobars:\n  T\n    ID_OPEN\tBUTTON\n    SEPARATOR0\tSEPARATOR\n"
                       "Dialogs:\n  D\n    IDC_PIC\t7\n    -1\t%d of %s\nStrings:\n  IDS_A\ta && b\\n\n"
                       "Bitmaps:\n  B1\nPNGs:\n  P1\nIcons:\n  I1\nCursors:\n  C1\n",
                       ""}));
    EXPECT_EQ(tarvo({"rc", "tree", "en.rc", "--ids-only"}).out.substr(0, 52),
              "Menus:\n  M\n    POPUP0\n    ID_OPEN\n    SEPARATOR0\nToo");
}

TEST_F(RcTest, AnsiScriptsAreReadInThePageThatIsAskedFor)
{
    write("a.rc", "STRINGTABLE\nBEGIN\nA \"\xb0\xa1\"\nEND\n");
    EXPECT_EQ(tarvo({"rc", "show", "a.rc", "--ansi", "949"}), (Outcome{0, "string\tA\t가\n", ""}));
    EXPECT_EQ(tarvo({"rc", "show", "a.rc", "--ansi", "1251"}), (Outcome{0, "string\tA\t°Ў\n", ""}));
}

TEST_F(RcTest, WhatIsNoReadableScriptIsStatusThree)
{
    write("a.rc", "");
    std::filesystem::create_directory(path("folder.rc"));
    const Outcome missing{3, "", "tarvo: missing.rc: no such file\n"};
    for (const std::string command : {"show", "strings", "tree"})
    {
        EXPECT_EQ(tarvo({"rc", command, "missing.rc"}), missing);
        EXPECT_EQ(tarvo({"rc", command, "folder.rc"}),
                  (Outcome{3, "", "tarvo: folder.rc: is a folder, not a file\n"}));
    }
    for (const std::string command : {"compare", "pairs"})
    {
        EXPECT_EQ(tarvo({"rc", command, "a.rc", "missing.rc"}), missing);
        EXPECT_EQ(tarvo({"rc", command, "missing.rc", "a.rc"}), missing);
        EXPECT_EQ(tarvo({"rc", command, "-", "-"}),
                  (Outcome{2, "", "tarvo: rc: standard input can be one script, not both\n"}));
    }
}

TEST_F(RcTest, AScriptAboveTheLimitIsRefusedBeforeItIsRead)
{
    write("sparse.rc", "");
    std::filesystem::resize_file(path("sparse.rc"), std::uintmax_t{1} << 30);
    EXPECT_EQ(tarvo({"rc", "show", "sparse.rc"}),
              (Outcome{3, "", "tarvo: sparse.rc: larger than 67108864 bytes\n"}));
}

TEST_F(RcTest, ExportIniWritesALanguageFileThatIniShowReads)
{
    write("en.rc", "IDD_A DIALOG 0\nCAPTION \"Setup\"\nBEGIN\nLTEXT \"Name\",IDC_NAME\nEND\n");
    write("ko.rc", "\xEF\xBB\xBFLANGUAGE LANG_KOREAN, 1\nIDD_A DIALOG 0\nCAPTION \"설정\"\nBEGIN\nLTEXT "
                   "\"이름\",IDC_NAME\nEND\n");
    EXPECT_EQ(tarvo({"rc", "export-ini", "en.rc", "ko.rc", "--project", "steel", "--output", "out.ini"}),
              (Outcome{0, "", ""}));
    EXPECT_EQ(tarvo({"ini", "show", "out.ini"}),
              (Outcome{0,
                       "[GENERAL] CODEPAGE = \"949\"\n[GENERAL] PROJECT = \"steel\"\n"
                       "[IDD_A] IDC_NAME = \"이름\"\n[IDD_A] IDD_A = \"설정\"\n",
                       ""}));
    tarvo(
        {"rc", "export-ini", "en.rc", "en.rc", "--project", "steel", "--code-page", "1251", "-o", "out.ini"});
    EXPECT_EQ(tarvo({"ini", "get", "out.ini", "GENERAL", "CODEPAGE"}), (Outcome{0, "1251\n", ""}));
    EXPECT_EQ(tarvo({"rc", "export-ini", "en.rc", "ko.rc"}),
              (Outcome{2, "", "tarvo: rc export-ini: --project NAME is missing\n"}));
}

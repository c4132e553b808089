#include "script.h"
#include "tarvo/restools/ScriptWords.h"

#include <gtest/gtest.h>

namespace
{
/// What a dialog with these lines in its body gives: its controls, and the log without its last line.
std::string Body(const std::string& lines)
{
    Script script = ReadScript("D DIALOG 0, 0, 9, 9\nBEGIN\n" + lines + "\nEND\n");
    const std::string done = "Reading done\n";
    EXPECT_TRUE(script.log.ends_with(done));
    std::string dump = Dump(script.resources) + script.log.substr(0, script.log.size() - done.size());
    const std::string head = "DIALOG D [] [] \"\" ";
    EXPECT_TRUE(dump.starts_with(head)) << dump;
    return dump.substr(head.size());
}

/// What a dialog with these lines before its body gives.
std::string Head(const std::string& lines)
{
    return Dump(ReadScript("D DIALOGEX 0, 0, 9, 9\n" + lines + "\nBEGIN\nEND\n").resources);
}
} // namespace

TEST(DialogScript, IsToldByItsSecondWordAndAsDialogByAThirdOne)
{
    EXPECT_EQ(Dump(ReadScript("IDD_X DIALOGEX 0, 0, 100, 50\nBEGIN\nEND").resources),
              "DIALOGEX IDD_X [] [] \"\" { }\n");
    EXPECT_EQ(Dump(ReadScript("IDD_X DIALOG 0, 0, 100, 50\nBEGIN\nEND").resources),
              "DIALOG IDD_X [] [] \"\" { }\n");
    EXPECT_EQ(Dump(ReadScript("IDD_X, DIALOG\nBEGIN\nEND").resources), "");
    EXPECT_EQ(Dump(ReadScript("IDD_X DIALOGEX\nBEGIN\nEND").resources), "DIALOGEX IDD_X [] [] \"\" { }\n");
    EXPECT_EQ(Dump(ReadScript("IDD_X DIALOG DISCARDABLE  0, 0, 9, 9\nBEGIN\nEND").resources),
              "DIALOG IDD_X [] [] \"\" { }\n");
    EXPECT_EQ(Dump(ReadScript("IDD_X dialog 0, 0, 9, 9\nBEGIN\nEND").resources), "")
        << "keywords are capitals";
    EXPECT_EQ(Dump(ReadScript("IDD_X AFX_DIALOG_LAYOUT\nBEGIN\n 0\nEND").resources), "");
}

TEST(DialogScript, OfDesignInformationIsNoDialog)
{
    EXPECT_EQ(
        Dump(ReadScript("GUIDELINES DESIGNINFO\nBEGIN\n    IDD_X, DIALOG\n    BEGIN\n        LEFTMARGIN, 7\n"
                        "    END\nEND\nIDB_X BITMAP \"x.bmp\"\n")
                 .resources),
        "bitmap IDB_X \"x.bmp\"\n");
}

TEST(DialogScript, StyleIsTheExpressionWithoutItsSpaces)
{
    EXPECT_EQ(Head("STYLE DS_SETFONT | WS_POPUP"), "DIALOGEX D [DS_SETFONT|WS_POPUP] [] \"\" { }\n");
    EXPECT_EQ(Head("EXSTYLE WS_EX_TOPMOST | WS_EX_TRANSPARENT"),
              "DIALOGEX D [] [WS_EX_TOPMOST|WS_EX_TRANSPARENT] \"\" { }\n");
    EXPECT_EQ(Head("STYLE 0x10CF0000"), "DIALOGEX D [0x10CF0000] [] \"\" { }\n");
    EXPECT_EQ(Head("STYLE NOT WS_VISIBLE | WS_POPUP"), "DIALOGEX D [NOTWS_VISIBLE|WS_POPUP] [] \"\" { }\n");
    EXPECT_EQ(Head("STYLE"), "DIALOGEX D [] [] \"\" { }\n");
}

TEST(DialogScript, StyleGoesOnOverLinesThatBeginNothingElse)
{
    EXPECT_EQ(
        Head("STYLE DS_SETFONT |\n    WS_POPUP |\n    WS_CAPTION\nEXSTYLE WS_EX_TOPMOST |\n  WS_EX_LEFT\n"
             "CAPTION \"Text\"\nFONT 8, \"MS Shell Dlg\""),
        "DIALOGEX D [DS_SETFONT|WS_POPUP|WS_CAPTION] [WS_EX_TOPMOST|WS_EX_LEFT] \"Text\" { }\n");
    EXPECT_EQ(Head("STYLE A\nMENU IDR_X\nFONT 8"), "DIALOGEX D [AMENUIDR_X] [] \"\" { }\n")
        << "a line that ends no style belongs to it";
    for (const std::string end : {"FONT 8, \"x\"", "CAPTION \"\"", "EXSTYLE", "BEGIN"})
        EXPECT_TRUE(Head("STYLE A |\nB\n" + end).starts_with("DIALOGEX D [A|B] [] \"\" {")) << end;
    EXPECT_EQ(Head("STYLE A\nSTYLE B"), "DIALOGEX D [B] [] \"\" { }\n") << "the last one counts";
}

// Wherever the keyword stands a comma is put behind it, and the value ends at a comma.
TEST(DialogScript, StyleEndsAtACommaAndBehindTheKeywordInsideAName)
{
    EXPECT_EQ(Head("STYLE A | B, C"), "DIALOGEX D [A|B] [] \"\" { }\n");
    EXPECT_EQ(Head("STYLE MY_STYLE | A"), "DIALOGEX D [MY_STYLE] [] \"\" { }\n");
}

TEST(DialogScript, CaptionIsTheSecondWord)
{
    EXPECT_EQ(Head("CAPTION \"Save, then close\""), "DIALOGEX D [] [] \"Save, then close\" { }\n");
    EXPECT_EQ(Head(R"(CAPTION "Say ""Hi""")"), "DIALOGEX D [] [] \"Say \\\"Hi\\\"\" { }\n");
    EXPECT_EQ(Head("CAPTION \"\""), "DIALOGEX D [] [] \"\" { }\n");
    EXPECT_EQ(Head("CAPTION TITLE"), "DIALOGEX D [] [] \"TITLE\" { }\n");
}

TEST(DialogScript, HeadPassesOverOtherLinesWithoutALine)
{
    const Script script =
        ReadScript("D DIALOGEX 0,0,9,9\nMENU IDR_X\nCLASS \"x\"\nLANGUAGE 9, 1\nBEGIN\nEND\n");
    EXPECT_EQ(script.log, "Reading done\n");
    EXPECT_TRUE(script.languages.empty());
}

TEST(DialogScript, TextControlsHaveTextAndIDAndTheirStyleBehindTheSize)
{
    for (const std::string keyword :
         {"LTEXT", "RTEXT", "CTEXT", "ICON", "GROUPBOX", "PUSHBUTTON", "DEFPUSHBUTTON"})
        EXPECT_EQ(
            Body(keyword +
                 "  \"Name, first\",IDC_NAME,7,7,50,8,SS_LEFT | NOT WS_GROUP, WS_EX_LEFT | 2 ,HIDC_NAME "),
            "{ " + keyword +
                " IDC_NAME \"Name, first\" [SS_LEFT|NOTWS_GROUP] [WS_EX_LEFT|2] [HIDC_NAME] 0 }\n");
    EXPECT_EQ(Body("LTEXT \"Name, first\",IDC_NAME,7,7,50,8"),
              "{ LTEXT IDC_NAME \"Name, first\" [] [] [] 0 }\n");
    EXPECT_EQ(Body("LTEXT \"\",-1,7,7,50,8,SS_LEFT"), "{ LTEXT -1 \"\" [SS_LEFT] [] [] 0 }\n");
    EXPECT_EQ(Body("ICON IDI_APP,IDC_STATIC,7,7,20,20,SS_REALSIZEIMAGE"),
              "{ ICON IDC_STATIC \"IDI_APP\" [SS_REALSIZEIMAGE] [] [] 0 }\n");
    EXPECT_EQ(Body("LTEXT \"12\",1,0,0,0,0"), "{ LTEXT 1 \"12\" [] [] [] 0 }\n")
        << "only CONTROL has a number";
}

TEST(DialogScript, ControlsWithoutTextHaveTheirIDFirst)
{
    for (const std::string keyword : {"EDITTEXT", "COMBOBOX", "LISTBOX", "SCROLLBAR"})
        EXPECT_EQ(Body(keyword + " IDC_X,7,7,50,8,ES_LEFT | WS_TABSTOP,WS_EX_LEFT,HIDC_X"),
                  "{ " + keyword + " IDC_X \"\" [ES_LEFT|WS_TABSTOP] [WS_EX_LEFT] [HIDC_X] 0 }\n");
    EXPECT_EQ(Body("EDITTEXT IDC_X,7,7,50,8"), "{ EDITTEXT IDC_X \"\" [] [] [] 0 }\n");
}

TEST(DialogScript, GeneralControlHasItsClassAsType)
{
    EXPECT_EQ(
        Body("CONTROL \"Check\",IDC_X,\"Button\",BS_AUTOCHECKBOX | WS_TABSTOP,7,8,90,10,WS_EX_LEFT,HIDC_X"),
        "{ Button IDC_X \"Check\" [BS_AUTOCHECKBOX|WS_TABSTOP] [WS_EX_LEFT] [HIDC_X] 0 }\n");
    EXPECT_EQ(Body("CONTROL \"\",IDC_L,\"SysListView32\",LVS_REPORT,7,8,90,10"),
              "{ SysListView32 IDC_L \"\" [LVS_REPORT] [] [] 0 }\n");
    EXPECT_EQ(Body("CONTROL \"a, b\", IDC_X , Static, SS_BITMAP, 1, 2, 3, 4"),
              "{ Static IDC_X \"a, b\" [SS_BITMAP] [] [] 0 }\n");
}

TEST(DialogScript, GeneralControlKeepsATextOfDigitsAsItsNumber)
{
    EXPECT_EQ(Body("CONTROL 133,IDC_PIC,\"Static\",SS_BITMAP,1,2,3,4"),
              "{ Static IDC_PIC \"133\" [SS_BITMAP] [] [] 133 }\n");
    EXPECT_EQ(Body("CONTROL \"007\",1,X,2,3,4,5,6"), "{ X 1 \"007\" [2] [] [] 7 }\n");
    EXPECT_EQ(Body("CONTROL 12a,1,X,2,3,4,5,6"), "{ X 1 \"12a\" [2] [] [] 0 }\n");
    EXPECT_EQ(Body("CONTROL -1,1,X,2,3,4,5,6"), "{ X 1 \"-1\" [2] [] [] 0 }\n");
    EXPECT_EQ(Body("CONTROL 99999999999999999999999999,1,X,2,3,4,5,6"),
              "{ X 1 \"99999999999999999999999999\" [2] [] [] 2147483647 }\n");
}

TEST(DialogScript, ControlGoesOnUntilTheNextOneBegins)
{
    EXPECT_EQ(Body("CONTROL \"Text\",IDC_X,\n    \"Button\",BS_AUTOCHECKBOX |\n\n    WS_TABSTOP,7,8,90,10\n"
                   "LTEXT \"a\",1,2,3,4,5"),
              "{ Button IDC_X \"Text\" [BS_AUTOCHECKBOX|WS_TABSTOP] [] [] 0; LTEXT 1 \"a\" [] [] [] 0 }\n");
    EXPECT_EQ(Body("LTEXT \"a\",1,2,3,4,5\nCHECKBOX \"b\",2,3,4,5,6"), "{ LTEXT 1 \"a\" [2] [3] [4] 0 }\n")
        << "a keyword that the rules do not name begins nothing";
}

// Inside a text too, and whatever quotes there are: a further line is put behind a space.
TEST(DialogScript, ControlIsTheSameWhereverItsLinesAreBroken)
{
    const std::string statements[] = {
        R"(CONTROL "a b",IDC_X, "Button c" ,A | NOT B ,1, 2,3,4 ,EX | 2, HIDC)",
        R"(LTEXT "say ""a b"" c", IDC_X, 1,2,3,4,A | B)",
        R"(LTEXT "say \"a b\" c", IDC_X, 1,2,3,4,A | B)",
        R"(LTEXT "odd \" a b", IDC_X , 1,2,3,4,A | B)",
        R"(LTEXT L"wide a", IDC_X, 1,2,3,4,"A B" | C, "D E")",
        R"(EDITTEXT IDC_X , 1, 2,3,4,A | B , C | D, E)",
    };
    for (const std::string& statement : statements)
        for (std::size_t one = 0; one < statement.size(); ++one)
            for (std::size_t two = one; two < statement.size(); ++two)
                for (const std::string lineBreak : {"\n", "\r\n", "\r", "\n\n", "\r\n\t \r\n", "\n\r"})
                {
                    if (statement[one] != ' ' || statement[two] != ' ')
                        continue;
                    std::string broken = statement;
                    if (two != one)
                        broken.replace(two, 1, lineBreak);
                    broken.replace(one, 1, lineBreak);
                    ASSERT_EQ(Body(broken), Body(statement)) << broken;
                }
}

// Nearly all statements are written alike and are taken apart in a quicker way, which must not show.
TEST(DialogScript, ControlHasTheWordsThatTheTokenizerGives)
{
    const std::string tails[] = {
        R"( "a, b",ID,"Button",A | B,1,2,3,4,E,H)",
        R"( "a",ID,1,2,3,4,A | B,E,H)",
        R"( ID,1,2,3,4,A | B,E,H)",
        R"( "",ID,"",A,1,2,3,4)",
        R"(, "a",ID,"B",A,1,2,3,4,E)",
        R"( "a" x,ID,"B",A,1,2)",
        R"( "a""b",ID,"B",A,1,2,3,4,E)",
        R"( "a\"b",ID,"B",A,1,2,3,4,E)",
        R"( L"a",ID,"B",A,1,2,3,4)",
        R"( a b,ID,B,A,1,2,3,4,E)",
        R"( " a",ID,"B",A,1,2,3,4,E)",
        R"( ",a",ID,"B",A,1,2,3)",
        R"( "a"ID,"B",A,1,2,3,4,E)",
        R"( \"a,ID,"B",A,1,2,3,4,E)",
        R"( "open,ID,"B",A,1,2,3)",
        R"( "a","ID","B",A,1,2,3,4,E)",
        R"( ,,a,,ID,,B,,A,1,2,3,4,E)",
        R"( "a\",ID,"B",A,1,2,3)",
        R"( "a",ID "B",A,1,2,3,4,E)",
        R"( "a",ID , "B" ,A,1,2,3,4,E)",
        R"( "a", ,ID,"B",A,1,2,3,4)",
        R"( "a",ID,"B"C,A,1,2,3,4,E)",
        R"( "a",ID,"B""C",A,1,2,3,4,E)",
        R"( "a",ID,"B\"",A,1,2,3,4)",
        R"( "a",ID," B",A,1,2,3,4,E)",
        R"( "a",ID,,"B",A,1,2,3,4,E)",
        R"( "a",ID,x "B",A,1,2,3,4)",
        R"( "a",ID)",
        R"( "a")",
        R"()",
        R"( "a",I"D",A)",
        R"( ID 1,2,3,4,5,6)",
        R"( ID ,1,2,3,4,5,6)",
        R"( "a"  ,  ID  ,  "B"  ,A,1,2)",
        R"( "a",ID,"B" x,A,1)",
        R"(,,)",
    };
    std::vector<std::string> statements;
    for (const std::string keyword : {"CONTROL", "LTEXT", "EDITTEXT"})
        for (const std::string& tail : tails)
            for (const std::size_t length : {0u, 1u, 20u, 40u, 60u, 64u, 100u})
                statements.push_back(std::string(length, ' ') + keyword + std::string(length / 2, ' ') +
                                     tail);
    for (const std::string& statement : statements)
    {
        const std::u16string line = Utf16(statement);
        const auto word = [&](std::size_t number) {
            return ScriptWord(line, number, WordSeparators::Standard);
        };
        const auto field = [&](std::size_t number) {
            std::u16string text = ScriptWord(line, number, WordSeparators::Comma);
            std::erase(text, u' ');
            return text;
        };
        const std::u16string keyword = word(0);
        const bool isGeneral = keyword == u"CONTROL", hasText = keyword != u"EDITTEXT";
        const std::size_t style = isGeneral ? 3 : hasText ? 6 : 5, more = isGeneral ? 8 : style + 1;
        const Script script = ReadScript("D DIALOG 0,0\nBEGIN\n" + statement + "\nEND\n");
        const CResDialogControl& control = script.resources.Dialogs().GetAt(0).m_items.GetAt(0);
        EXPECT_EQ(control.m_strText, hasText ? word(1) : u"") << statement;
        EXPECT_EQ(control.m_strID, word(hasText ? 2 : 1)) << statement;
        EXPECT_EQ(control.m_strType, isGeneral ? word(3) : keyword) << statement;
        EXPECT_EQ(control.m_strStyle, field(style)) << statement;
        EXPECT_EQ(control.m_strExStyle, field(more)) << statement;
        EXPECT_EQ(control.m_strHelpID, field(more + 1)) << statement;
    }
}

TEST(DialogScript, LogsLinesThatBelongToNoControl)
{
    EXPECT_EQ(
        Body("// remark\n#ifdef X\nLTEXT \"a\",1,2,3,4,5"),
        "{ LTEXT 1 \"a\" [] [] [] 0 }\nStrange dialog line: // remark\nStrange dialog line: #ifdef X\n");
}

TEST(DialogScript, EndsAtTheFirstEnd)
{
    const Script script = ReadScript("A DIALOGEX 0,0,1,1\nBEGIN\nEND // remark\nLTEXT \"lost\",1,2,3,4,5\n");
    EXPECT_EQ(Dump(script.resources), "DIALOGEX A [] [] \"\" { }\n");
    EXPECT_EQ(script.log, "Reading done\n");
}

#include "program.h"

using IniTest = ProgramTest;

namespace
{
constexpr std::string_view sample = "; a language file\r\n"
                                    "before=\"dropped\"\r\n"
                                    "[Text]\r\n"
                                    "Unit=\"kN\"\r\n"
                                    "Unit=\"N\"\r\n"
                                    "[IDD_SETUP]\r\n"
                                    "IDOK=\"OK\"\r\n"
                                    "remark/**/IDC_NAME=\"Say \"hello\"\"\r\n"
                                    "IDCANCEL = abc\r\n"
                                    "Bare\r\n"
                                    "[]\r\n"
                                    "lost=\"1\"\r\n"
                                    "[Empty]\r\n";
} // namespace

TEST_F(IniTest, ShowPrintsALineForEachEntryInTheLibrarysOrder)
{
    write("a.ini", sample);
    EXPECT_EQ(tarvo({"ini", "show", "a.ini"}), (Outcome{0,
                                                        "[Empty]\n"
                                                        "[IDD_SETUP] Bare = \"\"\n"
                                                        "[IDD_SETUP] IDCANCEL = \"= abc\"\n"
                                                        "[IDD_SETUP] IDC_NAME = \"Say \"hello\"\"\n"
                                                        "[IDD_SETUP] IDOK = \"OK\"\n"
                                                        "[Text] Unit = \"N\"\n",
                                                        ""}));
}

TEST_F(IniTest, ShowAsJsonIsTheWholeDocument)
{
    write("a.ini", sample);
    const std::string sections =
        "\"sections\":[{\"name\":\"Empty\",\"entries\":[]},"
        "{\"name\":\"IDD_SETUP\",\"entries\":[[\"Bare\",\"\"],[\"IDCANCEL\",\"= abc\"],"
        "[\"IDC_NAME\",\"Say \\\"hello\\\"\"],[\"IDOK\",\"OK\"]]},"
        "{\"name\":\"Text\",\"entries\":[[\"Unit\",\"N\"]]}]}\n";
    const std::string head = "\"open\":1,\"is_opened\":1,\"default_section\":\"Text\",";
    EXPECT_EQ(tarvo({"ini", "show", "a.ini", "--format", "json"}),
              (Outcome{0, "{\"file\":\"a.ini\"," + head + sections, ""}));
    EXPECT_EQ(tarvo({"ini", "show", "-", "--format", "json"}, std::string(sample)),
              (Outcome{0, "{\"file\":\"-\"," + head + sections, ""}));
}

TEST_F(IniTest, ShowTellsSectionsApartThatDifferInLetterCaseOnly)
{
    write("a.ini", "[Dlg]\r\nk=\"1\"\r\n[DLG]\r\nk=\"2\"\r\n[dlg]\r\nj=\"3\"\r\n");
    EXPECT_EQ(tarvo({"ini", "show", "a.ini"}),
              (Outcome{0, "[DLG] k = \"2\"\n[Dlg] k = \"1\"\n[dlg] j = \"3\"\n", ""}));
}

TEST_F(IniTest, ShowNamesTheFirstTextSectionAsTheDefault)
{
    write("a.ini", "[TeXT]\r\nk=\"1\"\r\n[TEXT]\r\nk=\"2\"\r\n");
    EXPECT_EQ(
        tarvo({"ini", "show", "a.ini", "--format", "json"}),
        (Outcome{
            0,
            "{\"file\":\"a.ini\",\"open\":1,\"is_opened\":1,\"default_section\":\"TeXT\",\"sections\":["
            "{\"name\":\"TEXT\",\"entries\":[[\"k\",\"2\"]]},{\"name\":\"TeXT\",\"entries\":[[\"k\",\"1\"]]}"
            "]}\n",
            ""}));
    write("b.ini", "[A]\r\nk=\"1\"\r\n");
    EXPECT_EQ(
        tarvo({"ini", "show", "b.ini", "--format", "json"}),
        (Outcome{0,
                 "{\"file\":\"b.ini\",\"open\":1,\"is_opened\":1,\"default_section\":null,\"sections\":["
                 "{\"name\":\"A\",\"entries\":[[\"k\",\"1\"]]}]}\n",
                 ""}));
}

TEST_F(IniTest, FilesInUtf16AndInCodePagesReadTheSame)
{
    const std::string shown = "[대화] 확인 = \"예\"\n";
    write("u.ini", utf16(L"[대화]\r\n확인=\"예\"\r\n"));
    write("949.ini", "[\xb4\xeb\xc8\xad]\r\n\xc8\xae\xc0\xce=\"\xbf\xb9\"\r\n");
    write("65001.ini", "[대화]\r\n확인=\"예\"\r\n");
    EXPECT_EQ(tarvo({"ini", "show", "u.ini"}), (Outcome{0, shown, ""}));
    EXPECT_EQ(tarvo({"ini", "show", "u.ini", "--code-page", "932"}), (Outcome{0, shown, ""}))
        << "a mark wins over the code page";
    EXPECT_EQ(tarvo({"ini", "show", "949.ini", "--code-page", "949"}), (Outcome{0, shown, ""}));
    EXPECT_EQ(tarvo({"ini", "show", "949.ini", "--ansi", "949"}), (Outcome{0, shown, ""}));
    EXPECT_EQ(tarvo({"ini", "show", "949.ini", "--ansi=949", "--code-page=0"}), (Outcome{0, shown, ""}));
    EXPECT_EQ(tarvo({"ini", "show", "65001.ini", "--code-page", "65001"}), (Outcome{0, shown, ""}));
    EXPECT_EQ(tarvo({"ini", "show", "949.ini", "--ansi", "1252"}),
              (Outcome{0, "[´ëÈ­] È®ÀÎ = \"¿¹\"\n", ""}));
}

TEST_F(IniTest, NamesBeyondAsciiWorkAsFileSectionKeyAndValue)
{
    write("언어 파일.ini", utf16(L"[대화]\r\n확인=\"예\"\r\n"));
    EXPECT_EQ(tarvo({"ini", "get", "언어 파일.ini", "대화", "확인"}), (Outcome{0, "예\n", ""}));
    EXPECT_EQ(tarvo({"ini", "set", "언어 파일.ini", "Диалог", "Имя", "名前 \"x\""}), (Outcome{0, "", ""}));
    EXPECT_EQ(read("언어 파일.ini"),
              utf16(L"[Диалог]\r\nИмя = \"名前 \"x\"\"\r\n\r\n[대화]\r\n확인 = \"예\"\r\n\r\n"));
    EXPECT_EQ(tarvo({"ini", "get", "없음.ini", "a", "b"}),
              (Outcome{3, "", "tarvo: 없음.ini: no such file\n"}));
}

TEST_F(IniTest, GetPrintsTheValueAsItStands)
{
    write("a.ini", "[A]\r\nblank=\"  two  \"\r\nquote=\"\"x\"\"\r\nempty=\"\"\r\nraw=abc\r\n");
    EXPECT_EQ(tarvo({"ini", "get", "a.ini", "A", "blank"}), (Outcome{0, "  two  \n", ""}));
    EXPECT_EQ(tarvo({"ini", "get", "a.ini", "A", "quote", "--format", "json"}),
              (Outcome{0, "\"\\\"x\\\"\"\n", ""}));
    EXPECT_EQ(tarvo({"ini", "get", "a.ini", "A", "empty"}), (Outcome{0, "\n", ""}));
    EXPECT_EQ(tarvo({"ini", "get", "a.ini", "A", "empty", "--default", "x"}), (Outcome{0, "\n", ""}));
    EXPECT_EQ(tarvo({"ini", "get", "a.ini", "A", "raw"}), (Outcome{0, "abc\n", ""}));
}

TEST_F(IniTest, GetReadsTheDefaultSectionByItsOwnName)
{
    write("a.ini", "[TEXT]\r\nUnit=\"kN\"\r\n[Text]\r\nUnit=\"N\"\r\n");
    EXPECT_EQ(tarvo({"ini", "get", "a.ini", "@default", "Unit"}), (Outcome{0, "kN\n", ""}));
    write("b.ini", "[A]\r\n");
    EXPECT_EQ(tarvo({"ini", "get", "b.ini", "@default", "Unit"}),
              (Outcome{1, "", "tarvo: b.ini: has no default section: no section is called Text\n"}));
}

TEST_F(IniTest, GetOfAMissingValueIsStatusOneOrTheDefault)
{
    write("a.ini", "[IDD_SETUP]\r\nIDOK=\"OK\"\r\n");
    EXPECT_EQ(tarvo({"ini", "get", "a.ini", "IDD_SETUP", "IDOKK"}),
              (Outcome{1, "", "tarvo: a.ini: no key IDOKK in section IDD_SETUP; did you mean IDOK?\n"}));
    EXPECT_EQ(tarvo({"ini", "get", "a.ini", "IDD_SETUP", "zebra"}),
              (Outcome{1, "", "tarvo: a.ini: no key zebra in section IDD_SETUP\n"}));
    EXPECT_EQ(tarvo({"ini", "get", "a.ini", "idd_setup", "IDOK"}),
              (Outcome{1, "", "tarvo: a.ini: no section idd_setup; did you mean IDD_SETUP?\n"}));
    EXPECT_EQ(tarvo({"ini", "get", "a.ini", "IDD_SETUP", "zebra", "--quiet"}), (Outcome{1, "", ""}));
    EXPECT_EQ(tarvo({"ini", "get", "a.ini", "IDD_SETUP", "zebra", "-q", "--format=json"}),
              (Outcome{1, "null\n", ""}));
    EXPECT_EQ(tarvo({"ini", "get", "a.ini", "IDD_SETUP", "zebra", "--default", "줄"}),
              (Outcome{0, "줄\n", ""}));
    EXPECT_EQ(tarvo({"ini", "get", "a.ini", "IDD_SETUP", "zebra", "--default", "줄", "--format", "json"}),
              (Outcome{0, "\"줄\"\n", ""}));
}

TEST_F(IniTest, GetOfAMissingValueTouchesNoOutputFile)
{
    write("a.ini", "[A]\r\n");
    write("out.txt", "before");
    EXPECT_EQ(tarvo({"ini", "get", "a.ini", "A", "k", "-q", "-o", "out.txt"}), (Outcome{1, "", ""}));
    EXPECT_EQ(read("out.txt"), "before");
}

TEST_F(IniTest, ConvertWritesUtf16SortedAndQuoted)
{
    write("a.ini", sample);
    const std::string converted = utf16(L"[Empty]\r\n\r\n"
                                        L"[IDD_SETUP]\r\nBare = \"\"\r\nIDCANCEL = \"= abc\"\r\n"
                                        L"IDC_NAME = \"Say \"hello\"\"\r\nIDOK = \"OK\"\r\n\r\n"
                                        L"[Text]\r\nUnit = \"N\"\r\n\r\n");
    EXPECT_EQ(tarvo({"ini", "convert", "a.ini", "--output", "b.ini"}), (Outcome{0, "", ""}));
    EXPECT_EQ(read("b.ini"), converted);
    EXPECT_EQ(read("a.ini"), sample);
    EXPECT_EQ(tarvo({"ini", "convert", "a.ini"}), (Outcome{0, converted, ""}));
    EXPECT_EQ(tarvo({"ini", "convert", "-", "--output=-"}, std::string(sample)), (Outcome{0, converted, ""}));
    EXPECT_EQ(tarvo({"ini", "convert", "b.ini", "--output", "b.ini"}), (Outcome{0, "", ""}));
    EXPECT_EQ(read("b.ini"), converted) << "converting again changes nothing";
}

TEST_F(IniTest, ConvertReportsWhatWouldNotReadBack)
{
    write("a.ini", "[A]\r\n[broken\r\nx/**/y\r\ngood=\"1\"\r\n");
    EXPECT_EQ(
        tarvo({"ini", "convert", "a.ini", "-o", "b.ini"}),
        (Outcome{0, "",
                 "tarvo: a.ini: 2 of its entries cannot be written so that they are read back, the first is "
                 "[A] [broken\n"}));
    EXPECT_EQ(read("b.ini"), utf16(L"[A]\r\n[broken = \"\"\r\ngood = \"1\"\r\nx/**/y = \"\"\r\n\r\n"));
    EXPECT_EQ(tarvo({"ini", "convert", "a.ini", "-o", "b.ini", "--quiet"}), (Outcome{0, "", ""}));
}

TEST_F(IniTest, ConvertReportsAnotherDefaultSection)
{
    write("a.ini", "[Text]\r\nk=\"1\"\r\n[TEXT]\r\nk=\"2\"\r\n");
    EXPECT_EQ(
        tarvo({"ini", "convert", "a.ini", "-o", "b.ini"}),
        (Outcome{0, "",
                 "tarvo: a.ini: the default section was [Text] and is [TEXT] in the sorted document\n"}));
}

#include "program.h"

using MessagesTest = ProgramTest;

namespace
{
constexpr std::string_view korean = "; messages\r\n"
                                    "[Steel]\r\n"
                                    "Save/**/IDS_SAVE = \"\xC0\xFA\xC0\xE5\"\r\n"
                                    "IDS_FAILED = \"a\\nb\\t\"\"c\"\"\\\\d\"\r\n"
                                    "IDS_SAVE = \"late\"\r\n";
} // namespace

TEST_F(MessagesTest, ShowPrintsALineForEachMessage)
{
    write("Steel_kr.ini", korean);
    EXPECT_EQ(tarvo({"messages", "show", "Steel_kr.ini", "--code-page", "949"}),
              (Outcome{0, "IDS_FAILED = \"a\\nb\\t\"\"c\"\"\\\\d\"\nIDS_SAVE = \"저장\"\n", ""}));
    EXPECT_EQ(tarvo({"messages", "show", "--ansi", "949", "--format", "json", "-"}, std::string(korean)),
              (Outcome{0,
                       "{\"entries\":[[\"IDS_FAILED\",\"a\\nb\\t\\\"c\\\"\\\\d\"],[\"IDS_SAVE\",\"저장\"]],"
                       "\"font\":\"\",\"font_size\":0}\n",
                       ""}));
}

TEST_F(MessagesTest, ShowLoadsTheFilesInTheirOrder)
{
    write("a.ini", "A=\"1\"\nB=\"1\"\n");
    write("b.ini", utf16(L"B=\"2\"\r\nC=\"\xAC00\"\r\n"));
    EXPECT_EQ(tarvo({"messages", "show", "a.ini", "b.ini"}),
              (Outcome{0, "A = \"1\"\nB = \"1\"\nC = \"가\"\n", ""}));
    EXPECT_EQ(tarvo({"messages", "show", "b.ini", "a.ini"}),
              (Outcome{0, "A = \"1\"\nB = \"2\"\nC = \"가\"\n", ""}));
}

TEST_F(MessagesTest, ShowTellsTheFont)
{
    write("a.ini", "A=\"1\"\n");
    write("Font_kr.ini", "; font\n//x\nfont=\xB1\xBC\xB8\xB2\nSIZE= 9pt\n");
    EXPECT_EQ(tarvo({"messages", "show", "a.ini", "--font", "Font_kr.ini", "--code-page", "949"}),
              (Outcome{0, "A = \"1\"\n; font \"굴림\" size 9\n", ""}));
    EXPECT_EQ(tarvo({"messages", "show", "a.ini", "--font", "Font_kr.ini", "--code-page", "949", "--format",
                     "json"}),
              (Outcome{0, "{\"entries\":[[\"A\",\"1\"]],\"font\":\"굴림\",\"font_size\":9}\n", ""}));
    write("Font_us.ini", "FONT = Arial\nSIZE = 99999999999\nSIZE=-99999999999\n");
    EXPECT_EQ(tarvo({"messages", "show", "a.ini", "--font", "Font_us.ini"}),
              (Outcome{0, "A = \"1\"\n; font \"\" size -2147483648\n", ""}));
}

TEST_F(MessagesTest, TheTwoReadersCutLinesWhereTheirBuffersEnd)
{
    write("long.ini", "A=" + std::string(1021, 'x') + "B\n");
    EXPECT_EQ(tarvo({"messages", "get", "B", "long.ini", "--reader", "fallback"}), (Outcome{0, "\n", ""}));
    EXPECT_EQ(tarvo({"messages", "get", "B", "long.ini", "--reader", "primary"}), (Outcome{1, "B :\n", ""}));
    EXPECT_EQ(tarvo({"messages", "get", "A", "long.ini"}), (Outcome{0, std::string(1021, 'x') + "B\n", ""}));
}

TEST_F(MessagesTest, GetPrintsTheTextOrTheKeyItself)
{
    write("a.ini", "A=\"1\\n2\"\nE=\"\"\n");
    EXPECT_EQ(tarvo({"messages", "get", "A", "a.ini"}), (Outcome{0, "1\n2\n", ""}));
    EXPECT_EQ(tarvo({"messages", "get", "E", "a.ini"}), (Outcome{0, "\n", ""}));
    EXPECT_EQ(tarvo({"messages", "get", "ABC", "a.ini"}), (Outcome{1, "ABC :\n", ""}));
    EXPECT_EQ(tarvo({"messages", "get", "a", "a.ini", "--format", "json"}), (Outcome{1, "\"a :\"\n", ""}));
}

TEST_F(MessagesTest, AnUnreadableFileIsNeverAnEmptyCatalogue)
{
    write("a.ini", "A=\"1\"\n");
    const Outcome missing{3, "", "tarvo: missing.ini: no such file\n"};
    EXPECT_EQ(tarvo({"messages", "show", "a.ini", "missing.ini"}), missing);
    EXPECT_EQ(tarvo({"messages", "show", "a.ini", "--font", "missing.ini"}), missing);
    EXPECT_EQ(tarvo({"messages", "get", "A", "missing.ini"}), missing);
    EXPECT_EQ(tarvo({"messages", "stats", "missing.ini"}), missing);
    EXPECT_EQ(tarvo({"messages", "show"}).status, 2);
    EXPECT_EQ(tarvo({"messages", "get", "A"}).status, 2);
    EXPECT_EQ(tarvo({"messages", "show", "a.ini", "--reader", "other"}).status, 2);
    EXPECT_EQ(tarvo({"messages", "show", "a.ini", "--code-page", "1"}).status, 2);
}

TEST_F(MessagesTest, StatsCountsFilesAndLanguagesAndListsWhatALanguageLacks)
{
    write("Steel_kr.ini", "A=\"1\"\nA=\"2\"\nB=\"3\"\n");
    write("Deck_KR.ini", "B=\"4\"\nC=\"5\"\n");
    write("Steel_us.ini", "A=\"6\"\nD=\"7\"\n");
    const std::vector<std::string> files = {"Steel_kr.ini", "Deck_KR.ini", "Steel_us.ini"};
    std::vector<std::string> call = {"messages", "stats"};
    call.insert(call.end(), files.begin(), files.end());
    EXPECT_EQ(tarvo(call), (Outcome{0,
                                    "file Steel_kr.ini language _kr keys 2 duplicates 1 bytes 18\n"
                                    "file Deck_KR.ini language _kr keys 2 duplicates 0 bytes 12\n"
                                    "file Steel_us.ini language _us keys 2 duplicates 0 bytes 12\n"
                                    "language _kr files 2 keys 3 duplicates 2\n"
                                    "language _us files 1 keys 2 duplicates 0\n"
                                    "partial B in _kr missing _us\n"
                                    "partial C in _kr missing _us\n"
                                    "partial D in _us missing _kr\n",
                                    ""}));
    call.insert(call.end(), {"--format", "json"});
    EXPECT_EQ(
        tarvo(call),
        (Outcome{0,
                 "{\"files\":["
                 "{\"file\":\"Steel_kr.ini\",\"language\":\"_kr\",\"keys\":2,\"duplicates\":1,\"bytes\":18},"
                 "{\"file\":\"Deck_KR.ini\",\"language\":\"_kr\",\"keys\":2,\"duplicates\":0,\"bytes\":12},"
                 "{\"file\":\"Steel_us.ini\",\"language\":\"_us\",\"keys\":2,\"duplicates\":0,\"bytes\":12}"
                 "],\"languages\":["
                 "{\"language\":\"_kr\",\"files\":2,\"keys\":3,\"duplicates\":2},"
                 "{\"language\":\"_us\",\"files\":1,\"keys\":2,\"duplicates\":0}"
                 "],\"partial\":["
                 "{\"key\":\"B\",\"in\":[\"_kr\"],\"missing\":[\"_us\"]},"
                 "{\"key\":\"C\",\"in\":[\"_kr\"],\"missing\":[\"_us\"]},"
                 "{\"key\":\"D\",\"in\":[\"_us\"],\"missing\":[\"_kr\"]}]}\n",
                 ""}));
}

TEST_F(MessagesTest, StatsTakesAFileWithoutALanguageForOneOfItsOwn)
{
    write("old.ini", "A=\"1\"\n");
    write("new.ini", "A=\"1\"\nB=\"2\"\n");
    EXPECT_EQ(tarvo({"messages", "stats", "old.ini", "new.ini"}),
              (Outcome{0,
                       "file old.ini language old.ini keys 1 duplicates 0 bytes 6\n"
                       "file new.ini language new.ini keys 2 duplicates 0 bytes 12\n"
                       "language old.ini files 1 keys 1 duplicates 0\n"
                       "language new.ini files 1 keys 2 duplicates 0\n"
                       "partial B in new.ini missing old.ini\n",
                       ""}));
    EXPECT_EQ(tarvo({"messages", "stats", "new.ini"}).out,
              "file new.ini language new.ini keys 2 duplicates 0 bytes "
              "12\nlanguage new.ini files 1 keys 2 duplicates 0\n");
}

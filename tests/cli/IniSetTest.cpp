#include "program.h"

using IniSetTest = ProgramTest;

TEST_F(IniSetTest, ChangesOneValueAndKeepsTheOthers)
{
    write("a.ini", "; remark\r\n[B]\r\nj=\"1\"\r\nk=\"2\"\r\n[A]\r\n");
    EXPECT_EQ(tarvo({"ini", "set", "a.ini", "B", "k", "new"}), (Outcome{0, "", ""}));
    EXPECT_EQ(read("a.ini"), utf16(L"[A]\r\n\r\n[B]\r\nj = \"1\"\r\nk = \"new\"\r\n\r\n"));
    EXPECT_EQ(names(), (std::vector<std::string>{"a.ini"})) << "nothing stays behind";
}

TEST_F(IniSetTest, MakesSectionAndKeyUnderTheirExactNames)
{
    write("a.ini", "[Dlg]\r\nk=\"1\"\r\n");
    EXPECT_EQ(tarvo({"ini", "set", "a.ini", "DLG", "K", "2"}), (Outcome{0, "", ""}));
    EXPECT_EQ(read("a.ini"), utf16(L"[DLG]\r\nK = \"2\"\r\n\r\n[Dlg]\r\nk = \"1\"\r\n\r\n"));
}

TEST_F(IniSetTest, AnEmptyFileIsANewDocument)
{
    write("a.ini", "");
    EXPECT_EQ(tarvo({"ini", "set", "a.ini", "A", "k", "v"}), (Outcome{0, "", ""}));
    EXPECT_EQ(read("a.ini"), utf16(L"[A]\r\nk = \"v\"\r\n\r\n"));
}

TEST_F(IniSetTest, WritesElsewhereWhenTold)
{
    write("a.ini", "[A]\r\nk=\"1\"\r\n");
    const std::string changed = utf16(L"[A]\r\nk = \"2\"\r\n\r\n");
    EXPECT_EQ(tarvo({"ini", "set", "a.ini", "A", "k", "2", "--output", "b.ini"}), (Outcome{0, "", ""}));
    EXPECT_EQ(read("b.ini"), changed);
    EXPECT_EQ(tarvo({"ini", "set", "a.ini", "A", "k", "2", "-o", "-"}), (Outcome{0, changed, ""}));
    EXPECT_EQ(tarvo({"ini", "set", "-", "A", "k", "2"}, "[A]\r\nk=\"1\"\r\n"), (Outcome{0, changed, ""}));
    EXPECT_EQ(read("a.ini"), "[A]\r\nk=\"1\"\r\n");
}

TEST_F(IniSetTest, ReadsACodePageAndWritesUtf16)
{
    write("a.ini", "[A]\r\nk=\"\xbf\xb9\"\r\n");
    EXPECT_EQ(tarvo({"ini", "set", "a.ini", "A", "n", "새", "--code-page", "949"}), (Outcome{0, "", ""}));
    EXPECT_EQ(read("a.ini"), utf16(L"[A]\r\nk = \"예\"\r\nn = \"새\"\r\n\r\n"));
}

TEST_F(IniSetTest, DefaultSectionIsTheFirstText)
{
    write("a.ini", "[TEXT]\r\nk=\"1\"\r\n");
    EXPECT_EQ(tarvo({"ini", "set", "a.ini", "@default", "k", "2"}), (Outcome{0, "", ""}));
    EXPECT_EQ(read("a.ini"), utf16(L"[TEXT]\r\nk = \"2\"\r\n\r\n"));
}

TEST_F(IniSetTest, WithoutADefaultSectionIsRefused)
{
    write("a.ini", "[A]\r\nk=\"1\"\r\n");
    EXPECT_EQ(
        tarvo({"ini", "set", "a.ini", "@default", "k", "2"}),
        (Outcome{2, "", "tarvo: a.ini: has no default section to write into: no section is called Text\n"}));
    EXPECT_EQ(read("a.ini"), "[A]\r\nk=\"1\"\r\n");
}

TEST_F(IniSetTest, RefusesADefaultSectionThatSortingWouldReplace)
{
    const std::string before = "[Text]\r\nk=\"1\"\r\n[TEXT]\r\nk=\"2\"\r\n";
    write("a.ini", before);
    EXPECT_EQ(
        tarvo({"ini", "set", "a.ini", "@default", "k", "3"}),
        (Outcome{
            2, "",
            "tarvo: a.ini: the sorted document would have another default section, without this value\n"}));
    EXPECT_EQ(read("a.ini"), before);
    EXPECT_EQ(
        tarvo({"ini", "set", "a.ini", "Text", "k", "3"}),
        (Outcome{0, "",
                 "tarvo: a.ini: the default section was [Text] and is [TEXT] in the sorted document\n"}));
}

TEST_F(IniSetTest, RefusesWhatAnotherEntryWouldHideOnReading)
{
    const std::string before = "[A]\r\nx/**/k\r\n";
    write("a.ini", before);
    EXPECT_EQ(
        tarvo({"ini", "set", "a.ini", "A", "k", "v"}),
        (Outcome{2, "", "tarvo: a.ini: SECTION, KEY and VALUE as given would not read back the same\n"}));
    EXPECT_EQ(read("a.ini"), before);
}

TEST_F(IniSetTest, KeepsEverythingThatReadsBack)
{
    const std::vector<std::vector<std::string>> entries = {
        {"A", "k", "  blanks  "},  {"A", "k", "\ttab\t"},  {"A", "k", "a \"b\" c"},
        {"A", "k", "\""},          {"A", "k", ""},         {"A", "k", "a=b"},
        {"A", "k", "; no"},        {"A", "k", "[no]"},     {"A", "k", "/**/"},
        {"A", "k", "\\n"},         {"A", "a\"b", "v"},     {"A", "", "v"},
        {"A", "two words", "v"},   {"A", "k]", "v"},       {"]", "k", "v"},
        {"[x]", "k", "v"},         {";x", "k", "v"},       {"a=b", "k", "v"},
        {"A", "/*", "v"},          {"A", "\"k\"", "v\"w"}, {"A", "k", "\xf0\x9f\x98\x80"},
        {"A", "k", "\xe2\x80\xa8"}};
    for (const auto& entry : entries)
    {
        write("a.ini", "[Old]\r\nkept=\"1\"\r\n");
        EXPECT_EQ(tarvo({"ini", "set", "--", "a.ini", entry[0], entry[1], entry[2]}), (Outcome{0, "", ""}))
            << testing::PrintToString(entry);
        EXPECT_EQ(tarvo({"ini", "get", "--", "a.ini", entry[0], entry[1]}), (Outcome{0, entry[2] + "\n", ""}))
            << testing::PrintToString(entry);
        EXPECT_EQ(tarvo({"ini", "get", "a.ini", "Old", "kept"}), (Outcome{0, "1\n", ""}));
    }
}

TEST_F(IniSetTest, RefusesWhatWouldNotReadBackAndTouchesNothing)
{
    const std::vector<std::vector<std::string>> entries = {
        {"A", "k", "a\nb", "VALUE holds a line break, which no INI line can hold"},
        {"A", "k", "a\r", "VALUE holds a line break, which no INI line can hold"},
        {"A", "k\n", "v", "KEY holds a line break, which no INI line can hold"},
        {"A\r\n", "k", "v", "SECTION holds a line break, which no INI line can hold"},
        {"", "k", "v", "SECTION is empty: the lines below [] are dropped on reading"},
        {"A", ";k", "v", "KEY begins with a semicolon and would be read as a comment"},
        {"A", "[k", "v", "KEY begins with a bracket and would be dropped on reading"},
        {"A", "[k]", "v", "KEY begins with a bracket and would be dropped on reading"},
        {"A", "a=b", "v", "KEY holds an equals sign, where a key ends on reading"},
        {"A", "a/**/b", "v", "KEY holds the mark /**/, before which everything is dropped on reading"},
        {"A", "/**/b", "v", "KEY holds the mark /**/, before which everything is dropped on reading"},
        {"A", " k", "v", "blanks around SECTION and KEY are dropped on reading"},
        {"A", "k\t", "v", "blanks around SECTION and KEY are dropped on reading"},
        {"A ", "k", "v", "blanks around SECTION and KEY are dropped on reading"},
        {" ", "k", "v", "blanks around SECTION and KEY are dropped on reading"}};
    for (const auto& entry : entries)
    {
        write("a.ini", "[Old]\r\nkept=\"1\"\r\n");
        EXPECT_EQ(tarvo({"ini", "set", "--", "a.ini", entry[0], entry[1], entry[2]}),
                  (Outcome{2, "", "tarvo: a.ini: " + entry[3] + "\n"}))
            << testing::PrintToString(entry);
        EXPECT_EQ(read("a.ini"), "[Old]\r\nkept=\"1\"\r\n");
    }
    EXPECT_EQ(tarvo({"ini", "set", "a.ini", "A", "k", "a\nb", "-o", "b.ini"}).status, 2);
    EXPECT_EQ(names(), (std::vector<std::string>{"a.ini"}));
}

TEST_F(IniSetTest, RefusesADocumentThatNoHostWouldOpen)
{
    // 8-bit text of 3 MB takes twice as much as UTF-16.
    const std::string file = "[A]\r\nk=\"" + std::string(3'000'000, 'x') + "\"\r\n";
    write("a.ini", file);
    EXPECT_EQ(
        tarvo({"ini", "set", "a.ini", "A", "j", "v"}),
        (Outcome{4, "",
                 "tarvo: a.ini: the document takes 6000050 bytes as UTF-16LE, and no host opens more than "
                 "5242880\n"}));
    EXPECT_EQ(read("a.ini"), file);
    EXPECT_EQ(
        tarvo({"ini", "convert", "a.ini", "-o", "b.ini"}),
        (Outcome{0, "",
                 "tarvo: a.ini: the document takes 6000032 bytes as UTF-16LE, and no host opens more than "
                 "5242880\n"}));
}

#include "program.h"

#include <filesystem>

using IniBadInputTest = ProgramTest;

namespace
{
std::string shown(int is_opened, const std::string& sections)
{
    return "{\"file\":\"a.ini\",\"open\":1,\"is_opened\":" + std::to_string(is_opened) +
           ",\"default_section\":null,\"sections\":[" + sections + "]}\n";
}
} // namespace

TEST_F(IniBadInputTest, EmptyFileIsADocumentWithoutSections)
{
    write("a.ini", "");
    EXPECT_EQ(tarvo({"ini", "show", "a.ini"}), (Outcome{0, "", ""}));
    EXPECT_EQ(tarvo({"ini", "show", "a.ini", "--format", "json"}), (Outcome{0, shown(0, ""), ""}));
    EXPECT_EQ(tarvo({"ini", "show", "-"}), (Outcome{0, "", ""}));
    EXPECT_EQ(tarvo({"ini", "convert", "a.ini"}), (Outcome{0, "\xFF\xFE", ""}));
}

TEST_F(IniBadInputTest, OneByteIsReportedAsNoText)
{
    write("a.ini", "[");
    EXPECT_EQ(tarvo({"ini", "show", "a.ini", "--format=json"}),
              (Outcome{0, shown(0, ""), "tarvo: a.ini: holds one byte, which is no text\n"}));
    EXPECT_EQ(tarvo({"ini", "show", "a.ini", "--format=json", "-q"}), (Outcome{0, shown(0, ""), ""}));
}

TEST_F(IniBadInputTest, OddByteAtTheEndOfUtf16IsNotRead)
{
    write("a.ini", utf16(L"[A]\r\nk=\"v\"") + "x");
    EXPECT_EQ(tarvo({"ini", "show", "a.ini"}), (Outcome{0, "[A] k = \"v\"\n", ""}));
    write("a.ini", "\xFF\xFE[");
    EXPECT_EQ(tarvo({"ini", "show", "a.ini", "--format=json"}), (Outcome{0, shown(1, ""), ""}));
}

TEST_F(IniBadInputTest, TheLargestFileIsReadAndOneByteMoreIsNot)
{
    std::string file = "[A]\r\nk=\"v\"\r\n;";
    file.append(5'242'880 - file.size(), 'x');
    write("a.ini", file);
    EXPECT_EQ(tarvo({"ini", "show", "a.ini"}), (Outcome{0, "[A] k = \"v\"\n", ""}));
    EXPECT_EQ(tarvo({"ini", "show", "-"}, file), (Outcome{0, "[A] k = \"v\"\n", ""}));
    file += 'x';
    write("a.ini", file);
    EXPECT_EQ(tarvo({"ini", "show", "a.ini"}), (Outcome{3, "", "tarvo: a.ini: larger than 5242880 bytes\n"}));
    EXPECT_EQ(tarvo({"ini", "show", "-"}, file),
              (Outcome{3, "", "tarvo: -: standard input is larger than 5242880 bytes\n"}));
    EXPECT_EQ(tarvo({"ini", "set", "a.ini", "A", "k", "w"}),
              (Outcome{3, "", "tarvo: a.ini: larger than 5242880 bytes\n"}));
    EXPECT_EQ(read("a.ini"), file);
}

TEST_F(IniBadInputTest, TextEndsAtANulAndThatIsSaid)
{
    using namespace std::string_literals;
    write("a.ini", "[A]\r\nk=\"v\"\r\n\0[B]\r\n"s);
    EXPECT_EQ(
        tarvo({"ini", "show", "a.ini"}),
        (Outcome{0, "[A] k = \"v\"\n",
                 "tarvo: a.ini: a NUL ends the text after 12 of 18 bytes; what follows is not read\n"}));
    write("a.ini", utf16(L"[A]\r\nk=\"v\"\r\n\0[B]\r\n"s));
    EXPECT_EQ(
        tarvo({"ini", "show", "a.ini"}),
        (Outcome{0, "[A] k = \"v\"\n",
                 "tarvo: a.ini: a NUL ends the text after 26 of 38 bytes; what follows is not read\n"}));
}

TEST_F(IniBadInputTest, LoneSurrogatesStayExactInJson)
{
    const std::wstring text = std::wstring(L"[A") + wchar_t{0xD83D} + L"]\r\nk" + wchar_t{0xDE00} + L"=\"" +
                              wchar_t{0xD83D} + wchar_t{0xDE00} + wchar_t{0xD800} + L"\"\r\n";
    write("a.ini", utf16(text));
    EXPECT_EQ(
        tarvo({"ini", "show", "a.ini", "--format", "json"}),
        (Outcome{0,
                 shown(1, "{\"name\":\"A\\ud83d\",\"entries\":[[\"k\\ude00\",\"\xf0\x9f\x98\x80\\ud800\"]]}"),
                 ""}));
    EXPECT_EQ(tarvo({"ini", "show", "a.ini"}),
              (Outcome{0, "[A\xef\xbf\xbd] k\xef\xbf\xbd = \"\xf0\x9f\x98\x80\xef\xbf\xbd\"\n", ""}));
    EXPECT_EQ(tarvo({"ini", "set", "a.ini", "B", "k", "v"}), (Outcome{0, "", ""}));
    EXPECT_EQ(
        tarvo({"ini", "show", "a.ini", "--format", "json"}),
        (Outcome{0,
                 shown(1, "{\"name\":\"A\\ud83d\",\"entries\":[[\"k\\ude00\",\"\xf0\x9f\x98\x80\\ud800\"]]},"
                          "{\"name\":\"B\",\"entries\":[[\"k\",\"v\"]]}"),
                 ""}));
}

TEST_F(IniBadInputTest, MarksThatTheLibraryDoesNotKnowAreExplained)
{
    write("a.ini", "\xEF\xBB\xBF[A]\r\nk=\"v\"\r\n[B]\r\nj=\"w\"\r\n");
    EXPECT_EQ(
        tarvo({"ini", "show", "a.ini", "--code-page", "65001"}),
        (Outcome{0, "[B] j = \"w\"\n",
                 "tarvo: a.ini: begins with a UTF-8 mark, which is read as text in code page 65001; save it "
                 "without the mark and give --code-page 65001, or save it as UTF-16LE\n"}));
    EXPECT_EQ(
        tarvo({"ini", "show", "a.ini", "--ansi", "1252"}),
        (Outcome{
            0, "[B] j = \"w\"\n",
            "tarvo: a.ini: begins with a UTF-8 mark, which is read as text in the ANSI code page (1252); "
            "save it without the mark and give --code-page 65001, or save it as UTF-16LE\n"}));
    using namespace std::string_literals;
    write("a.ini", "\xFE\xFF\0[\0A\0]"s);
    EXPECT_EQ(
        tarvo({"ini", "show", "a.ini", "--ansi", "1252"}),
        (Outcome{0, "",
                 "tarvo: a.ini: begins with a UTF-16BE mark and is read as 8-bit text in the ANSI code page "
                 "(1252); save it as UTF-16LE\n"}));
}

TEST_F(IniBadInputTest, LinesOfAMegabyteStayWhole)
{
    const std::string value(1'000'000, 'v');
    const std::string key(1'000'000, 'k');
    write("a.ini", "[A]\r\nx=\"" + value + "\"\r\n" + key + "=\"y\"\r\n");
    EXPECT_EQ(tarvo({"ini", "get", "a.ini", "A", "x"}), (Outcome{0, value + "\n", ""}));
    EXPECT_EQ(tarvo({"ini", "show", "a.ini"}),
              (Outcome{0, "[A] " + key + " = \"y\"\n[A] x = \"" + value + "\"\n", ""}));
}

TEST_F(IniBadInputTest, ManySectionsAndManyKeysStayWhole)
{
    std::string file;
    std::string expected;
    for (int at = 0; at < 60'000; ++at)
        file.append("[").append(std::to_string(1'000'000 + at)).append("]\r\n");
    for (int at = 0; at < 60'000; ++at)
        file.append(std::to_string(1'000'000 + at)).append("=\"x\"\r\n");
    for (int at = 0; at < 59'999; ++at)
        expected.append("[").append(std::to_string(1'000'000 + at)).append("]\n");
    for (int at = 0; at < 60'000; ++at)
        expected.append("[1059999] ").append(std::to_string(1'000'000 + at)).append(" = \"x\"\n");
    write("a.ini", file);
    const Outcome outcome = tarvo({"ini", "show", "a.ini"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.err, "");
    EXPECT_TRUE(outcome.out == expected);
    EXPECT_EQ(tarvo({"ini", "convert", "a.ini", "-o", "b.ini", "-q"}), (Outcome{0, "", ""}));
}

TEST_F(IniBadInputTest, WhatIsNoReadableFileIsStatusThree)
{
    std::filesystem::create_directory(path("folder.ini"));
    const std::vector<std::vector<std::string>> commands = {{"show"}, {"get"}, {"set"}, {"convert"}};
    const std::vector<std::vector<std::string>> rest = {{}, {"A", "k"}, {"A", "k", "v"}, {}};
    for (std::size_t at = 0; at < commands.size(); ++at)
        for (const auto& [name, what] :
             {std::pair<std::string, std::string>{"folder.ini", "is a folder, not a file"},
              {"missing.ini", "no such file"},
              {"missing/a.ini", "no such file"},
              {"", "no such file"}})
        {
            std::vector<std::string> arguments = {"ini", commands[at][0], name};
            arguments.insert(arguments.end(), rest[at].begin(), rest[at].end());
            EXPECT_EQ(tarvo(arguments), (Outcome{3, "", "tarvo: " + name + ": " + what + "\n"}))
                << testing::PrintToString(arguments);
        }
    EXPECT_EQ(names(), (std::vector<std::string>{"folder.ini"}));
}

TEST_F(IniBadInputTest, APathOf32000LettersIsOneErrorLine)
{
    std::string name;
    while (name.size() < 32'000)
        name += "folder/";
    name.resize(32'000, 'x');
    const Outcome outcome = tarvo({"ini", "show", name});
    EXPECT_EQ(outcome.status, 3);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err.substr(0, 7 + name.size() + 2), "tarvo: " + name + ": ");
    EXPECT_EQ(outcome.err.find('\n'), outcome.err.size() - 1);
    const Outcome written = tarvo({"ini", "convert", "-", "-o", name});
    EXPECT_EQ(written.status, 4);
    EXPECT_EQ(written.err.find('\n'), written.err.size() - 1);
}

#include "program.h"

#include "cli/command.h"

#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::StartsWith;
using UsageTest = ProgramTest;

namespace
{
struct Wrong
{
    std::vector<std::string> arguments;
    std::string line;
};
/// A help text with its folded synopses on one line each.
std::string unfolded(std::string text)
{
    const std::string fold = "\n           [";
    for (std::size_t at; (at = text.find(fold)) != std::string::npos;)
        text.replace(at, fold.size(), " [");
    return text;
}

} // namespace

TEST_F(UsageTest, EachWrongUseIsOneLineAndStatusTwo)
{
    write("a.ini", "[A]\r\nk=\"v\"\r\n");
    const Wrong table[] = {
        {{}, "tarvo: usage: tarvo GROUP COMMAND [OPTIONS] FILE...; see tarvo --help\n"},
        {{"--quiet"}, "tarvo: usage: tarvo GROUP COMMAND [OPTIONS] FILE...; see tarvo --help\n"},
        {{"ini"}, "tarvo: ini: a command is missing (show, get, set, convert); see tarvo ini --help\n"},
        {{"header"}, "tarvo: header: a command is missing (show); see tarvo header --help\n"},
        {{"inni", "show"},
         "tarvo: inni: no such group (ini, header, messages, text, rc); did you mean 'ini'?\n"},
        {{"zebra"}, "tarvo: zebra: no such group (ini, header, messages, text, rc)\n"},
        {{"convert", "a.ini"}, "tarvo: convert: a group comes first: tarvo ini convert\n"},
        {{"ini", "covnert", "a.ini"},
         "tarvo: ini covnert: no such command (show, get, set, convert); did you mean 'convert'?\n"},
        {{"ini", "show"}, "tarvo: ini show: FILE is missing; see tarvo ini show --help\n"},
        {{"ini", "get", "a.ini", "A"}, "tarvo: ini get: KEY is missing; see tarvo ini get --help\n"},
        {{"ini", "set", "a.ini", "A", "k"}, "tarvo: ini set: VALUE is missing; see tarvo ini set --help\n"},
        {{"ini", "show", "a.ini", "b.ini"}, "tarvo: ini show: one operand too many: b.ini\n"},
        {{"ini", "show", "--fromat", "json", "a.ini"},
         "tarvo: ini show: no such option: --fromat; did you mean '--format'?\n"},
        {{"ini", "show", "-x", "a.ini"}, "tarvo: ini show: no such option: -x\n"},
        {{"ini", "show", "--form", "file", "a.ini"},
         "tarvo: ini show: no such option: --form; did you mean '--format'?\n"},
        {{"ini", "show", "a.ini", "--format"}, "tarvo: ini show: --format needs a value\n"},
        {{"ini", "show", "a.ini", "--format", "xml"}, "tarvo: --format: 'xml' is none of text, json\n"},
        {{"ini", "show", "a.ini", "--format="}, "tarvo: --format: '' is none of text, json\n"},
        {{"ini", "show", "a.ini", "--format", "jso"},
         "tarvo: --format: 'jso' is none of text, json; did you mean 'json'?\n"},
        {{"ini", "show", "a.ini", "--color", "yes"},
         "tarvo: --color: 'yes' is none of auto, always, never\n"},
        {{"ini", "show", "a.ini", "--code-page", "12345"},
         "tarvo: --code-page: '12345' is not a known code page number\n"},
        {{"ini", "show", "a.ini", "--code-page", "949x"},
         "tarvo: --code-page: '949x' is not a known code page number\n"},
        {{"ini", "show", "a.ini", "--code-page", "-1"},
         "tarvo: --code-page: '-1' is not a known code page number\n"},
        {{"ini", "show", "a.ini", "--ansi", "utf8"},
         "tarvo: --ansi: 'utf8' is not a known code page number\n"},
        {{"ini", "show", "a.ini", "--quiet=no"}, "tarvo: ini show: --quiet takes no value\n"},
        {{"header", "show", "a.h", "--form", "mem"}, "tarvo: --form: 'mem' is none of memory, file\n"},
        {{"header", "show", "-", "--form", "file"},
         "tarvo: header show: --form file reads a file by its name, not standard input\n"},
    };
    for (const Wrong& wrong : table)
        EXPECT_EQ(tarvo(wrong.arguments), (Outcome{2, "", wrong.line}))
            << testing::PrintToString(wrong.arguments);
}

TEST_F(UsageTest, VersionIsOneLine)
{
    const Outcome version{0, "tarvo " + std::string(cli::program_version) + "\n", ""};
    EXPECT_EQ(tarvo({"--version"}), version);
    EXPECT_EQ(tarvo({"-V"}), version);
    EXPECT_EQ(tarvo({"ini", "show", "--version"}), version);
}

TEST_F(UsageTest, HelpAtEachLevelNamesWhatIsThere)
{
    const std::string program = tarvo({"--help"}).out;
    EXPECT_THAT(program, StartsWith("Usage: tarvo GROUP COMMAND [OPTIONS] FILE...\n"));
    for (const cli::Group& group : cli::groups())
    {
        const Outcome of_group = tarvo({std::string(group.name), "--help"});
        EXPECT_EQ(of_group.status, 0);
        EXPECT_EQ(of_group.err, "");
        for (const cli::Command& command : group.commands)
        {
            const std::string line = cli::synopsis(group, command);
            EXPECT_THAT(program, HasSubstr(std::string(group.name) + " " + std::string(command.name)));
            EXPECT_THAT(unfolded(of_group.out), HasSubstr(line + "\n"));
            const Outcome of_command = tarvo({std::string(group.name), std::string(command.name), "-h"});
            EXPECT_EQ(of_command.status, 0);
            EXPECT_EQ(of_command.err, "");
            EXPECT_THAT(unfolded(of_command.out), StartsWith("Usage: " + line + "\n"));
            for (const cli::Option* option : cli::accepted_options(&command))
                EXPECT_THAT(unfolded(of_command.out), HasSubstr("  " + cli::spelling(*option)));
            for (const cli::Operand& operand : command.operands)
                EXPECT_THAT(unfolded(of_command.out), HasSubstr("  " + std::string(operand.name) + " "));
        }
    }
}

TEST_F(UsageTest, HelpWinsOverEverythingElseThatIsWrong)
{
    const Outcome help = tarvo({"ini", "get", "--help"});
    EXPECT_EQ(tarvo({"--help", "ini", "get"}), help);
    EXPECT_EQ(tarvo({"ini", "-h", "get", "a", "b", "c", "d", "--format", "xml"}), help);
}

TEST_F(UsageTest, HelpFitsAnEightyColumnTerminal)
{
    for (const std::vector<std::string>& level : {std::vector<std::string>{"--help"},
                                                  {"ini", "--help"},
                                                  {"header", "--help"},
                                                  {"rc", "--help"},
                                                  {"rc", "compare", "--help"},
                                                  {"rc", "show", "--help"},

                                                  {"ini", "set", "--help"}})
    {
        std::size_t widest = 0;
        std::size_t width = 0;
        for (const char c : tarvo(level).out)
            if (c == '\n')
                widest = std::max(widest, std::exchange(width, 0));
            else
                width += (c & 0xC0) != 0x80;
        EXPECT_LE(widest, 80u) << testing::PrintToString(level);
    }
}

TEST_F(UsageTest, CommonOptionsStandBeforeBetweenAndAfter)
{
    write("a.ini", "[A]\r\nk=\"v\"\r\n");
    const Outcome value{0, "\"v\"\n", ""};
    EXPECT_EQ(tarvo({"--format", "json", "ini", "get", "a.ini", "A", "k"}), value);
    EXPECT_EQ(tarvo({"ini", "--format=json", "get", "a.ini", "A", "k"}), value);
    EXPECT_EQ(tarvo({"ini", "get", "--format", "json", "a.ini", "A", "k"}), value);
    EXPECT_EQ(tarvo({"ini", "get", "a.ini", "A", "k", "--format=json"}), value);
}

TEST_F(UsageTest, TheLastOfARepeatedOptionHolds)
{
    write("a.ini", "[A]\r\nk=\"v\"\r\n");
    EXPECT_EQ(tarvo({"ini", "get", "a.ini", "A", "k", "--format=json", "-q", "--format=text", "-q"}),
              (Outcome{0, "v\n", ""}));
}

TEST_F(UsageTest, OperandsMayLookLikeAnything)
{
    write("show",
          "[[x,y]]\r\n/"
          "quiet=\"slash\"\r\n-1=\"one\"\r\n--help=\"dashes\"\r\n[show]\r\n=\"empty\"\r\nget=\"word\"");
    EXPECT_EQ(tarvo({"ini", "get", "show", "[x,y]", "/quiet"}), (Outcome{0, "slash\n", ""}));
    EXPECT_EQ(tarvo({"ini", "get", "show", "[x,y]", "-1"}), (Outcome{0, "one\n", ""}));
    EXPECT_EQ(tarvo({"ini", "get", "--", "show", "[x,y]", "--help"}), (Outcome{0, "dashes\n", ""}));
    EXPECT_EQ(tarvo({"ini", "get", "show", "show", "get"}), (Outcome{0, "word\n", ""}));
    EXPECT_EQ(tarvo({"ini", "get", "show", "show", ""}), (Outcome{0, "empty\n", ""}));
    EXPECT_EQ(tarvo({"ini", "get", "show", "show", "none", "--default", "--quiet"}),
              (Outcome{0, "--quiet\n", ""}));
    EXPECT_EQ(tarvo({"ini", "get", "show", "show", "none", "--default=", "-q"}), (Outcome{0, "\n", ""}));
    EXPECT_EQ(tarvo({"ini", "get", "show", "show", "none", "--default=[a,b]"}), (Outcome{0, "[a,b]\n", ""}));
}

TEST_F(UsageTest, ColorsFollowTheOptionThenTheEnvironment)
{
    write("a.ini", "[A]\r\nk=\"v\"\r\n");
    const Outcome plain{0, "[A] k = \"v\"\n", ""};
    const Outcome colored{0, "\x1b[36m[A]\x1b[0m k = \"v\"\n", ""};
    EXPECT_EQ(tarvo({"ini", "show", "a.ini"}), plain);
    EXPECT_EQ(tarvo({"ini", "show", "a.ini", "--color", "never"}), plain);
    EXPECT_EQ(tarvo({"ini", "show", "a.ini", "--color=always"}), colored);
    EXPECT_EQ(tarvo({"ini", "show", "none", "--color", "always"}),
              (Outcome{3, "", "\x1b[1;31mtarvo:\x1b[0m none: no such file\n"}));
    EXPECT_EQ(
        tarvo({"--color", "always", "zebra"}),
        (Outcome{2, "", "\x1b[1;31mtarvo:\x1b[0m zebra: no such group (ini, header, messages, text, rc)\n"}));
    m_environment["NO_COLOR"] = "1";
    EXPECT_EQ(tarvo({"ini", "show", "a.ini"}), plain);
    EXPECT_EQ(tarvo({"ini", "show", "a.ini", "--color", "always"}), colored);
}

TEST_F(UsageTest, AnOutputFileIsNeverColored)
{
    write("a.ini", "[A]\r\nk=\"v\"\r\n");
    EXPECT_EQ(tarvo({"ini", "show", "a.ini", "--color", "always", "-o", "b.txt"}), (Outcome{0, "", ""}));
    EXPECT_EQ(read("b.txt"), "[A] k = \"v\"\n");
}

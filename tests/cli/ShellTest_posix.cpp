#include "program.h"

#include "cli/completion.h"
#include "cli/manual.h"

namespace
{
constexpr const char* bash = "/bin/bash";

/// What bash offers after the words, one per line; '=' is a word of its own, as it is on a terminal.
class CompletionTest : public ProgramTest
{
protected:
    std::string offers(const std::string& words)
    {
        write("tarvo.bash", cli::bash_completion());
        const Outcome outcome = run(bash, {"--norc", "-c",
                                           "source ./tarvo.bash; COMP_WORDS=(tarvo " + words +
                                               "); COMP_CWORD=$((${#COMP_WORDS[@]}-1)); _tarvo; "
                                               "printf '%s\\n' \"${COMPREPLY[@]}\""});
        EXPECT_EQ(outcome.err, "");
        return outcome.out;
    }
};
} // namespace

TEST_F(CompletionTest, OffersGroupsThenCommandsThenOperands)
{
    write("a.ini", "");
    write("b c.ini", "");
    EXPECT_EQ(offers("''"), "ini\nheader\nmessages\ntext\nrc\n");
    EXPECT_EQ(offers("he"), "header\n");
    EXPECT_EQ(offers("ini ''"), "show\nget\nset\nconvert\n");
    EXPECT_EQ(offers("--quiet ini s"), "show\nset\n");
    EXPECT_EQ(offers("ini show a"), "a.ini\n");
    EXPECT_EQ(offers("ini get b"), "b c.ini\n");
    EXPECT_EQ(offers("ini get a.ini a"), "\n") << "a section is no file";
}

TEST_F(CompletionTest, OffersOptionsOfTheCommandAndTheirValues)
{
    write("a.ini", "");
    EXPECT_EQ(offers("ini get --d"), "--default\n");
    EXPECT_EQ(offers("header show --fo"), "--form\n--format\n");
    EXPECT_EQ(offers("ini show --form"), "--format\n");
    EXPECT_EQ(offers("header show --form m"), "memory\n");
    EXPECT_EQ(offers("ini show --format ''"), "text\njson\n");
    EXPECT_EQ(offers("ini show --format = j"), "json\n");
    EXPECT_EQ(offers("ini show --format ="), "text\njson\n");
    EXPECT_EQ(offers("--format json ini sho"), "show\n");
    EXPECT_EQ(offers("--format = json ini sho"), "show\n");
    EXPECT_EQ(offers("ini show --code-page 94"), "949\n");
    EXPECT_EQ(offers("ini convert --output a"), "a.ini\n");
    EXPECT_EQ(offers("ini convert -o a"), "a.ini\n");
    EXPECT_EQ(offers("ini show --code-page 949 a"), "a.ini\n");
}

TEST_F(CompletionTest, InstalledScriptIsTheTables)
{
    write("tarvo.bash", cli::bash_completion());
    const std::filesystem::path built = tests_folder().parent_path() / "cli" / "tarvo.bash";
    EXPECT_EQ(run("/usr/bin/cmp", {built.string(), "tarvo.bash"}), (Outcome{0, "", ""}));
}

TEST_F(CompletionTest, ManualPageHasNoFaultThatTheTypesetterKnows)
{
    if (!std::filesystem::exists("/usr/bin/groff"))
        GTEST_SKIP() << "groff is not installed";
    write("tarvo.1", cli::manual_page());
    const Outcome page = run("/usr/bin/groff", {"-man", "-ww", "-Tutf8", "-P-cbou", "-rLL=80n", "tarvo.1"});
    EXPECT_EQ(page.status, 0);
    EXPECT_EQ(page.err, "");
    EXPECT_NE(page.out.find("tarvo ini get"), std::string::npos);
    const std::filesystem::path built = tests_folder().parent_path() / "cli" / "tarvo.1";
    EXPECT_EQ(run("/usr/bin/cmp", {built.string(), "tarvo.1"}), (Outcome{0, "", ""}));
}

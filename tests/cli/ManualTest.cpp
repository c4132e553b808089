#include "cli/manual.h"
#include "cli/command.h"
#include "cli/completion.h"

#include <gmock/gmock.h>

using testing::HasSubstr;

namespace
{
/// As roff spells what must come out with real dashes.
std::string dashed(std::string_view text)
{
    std::string out;
    for (const char c : text)
        out += c == '-' ? "\\-" : std::string(1, c);
    return out;
}
} // namespace

TEST(ManualPage, NamesEachCommandOperandOptionAndExitStatus)
{
    const std::string page = cli::manual_page();
    for (const cli::Group& group : cli::groups())
        for (const cli::Command& command : group.commands)
        {
            EXPECT_THAT(page, HasSubstr(".SS \"" + dashed(cli::synopsis(group, command)) + "\"\n"));
            for (const cli::Operand& operand : command.operands)
                EXPECT_THAT(page, HasSubstr(".TP\n\\fI" + std::string(operand.name) + "\\fR\n"));
        }
    for (const cli::Option& option : cli::common_options())
        EXPECT_THAT(page, HasSubstr("\\fB" + dashed("--" + std::string(option.name)) + "\\fR"));
    for (const cli::Group& group : cli::groups())
        for (const cli::Command& command : group.commands)
            for (const cli::Option& option : command.options)
                EXPECT_THAT(page, HasSubstr("\\fB" + dashed("--" + std::string(option.name)) + "\\fR" +
                                            (option.placeholder.empty() ? "\n" : " \\fI")));
    for (const cli::ExitStatus& exit : cli::exit_statuses())
        EXPECT_THAT(page, HasSubstr("\\fB" + std::to_string(static_cast<int>(exit.status)) + "\\fR\n"));
}

TEST(BashCompletion, NamesEachGroupCommandAndOption)
{
    const std::string script = cli::bash_completion();
    for (const cli::Group& group : cli::groups())
        for (const cli::Command& command : group.commands)
        {
            const std::string words =
                "'" + std::string(group.name) + " " + std::string(command.name) + "') options='";
            const auto at = script.find(words);
            ASSERT_NE(at, std::string::npos) << words;
            const std::string line = script.substr(at, script.find('\n', at) - at);
            for (const cli::Option* option : cli::accepted_options(&command))
                EXPECT_THAT(line, HasSubstr("--" + std::string(option->name)));
        }
}

TEST(CommandTable, IsFitForAllThatIsMadeFromIt)
{
    for (const cli::Group& group : cli::groups())
        for (const cli::Command& command : group.commands)
        {
            EXPECT_NE(command.run, nullptr);
            EXPECT_FALSE(command.summary.empty() || command.summary.ends_with('.')) << command.name;
            EXPECT_FALSE(command.description.empty() || command.text.empty()) << command.name;
            EXPECT_FALSE(command.examples.empty()) << command.name;
            for (const cli::Option& option : command.options)
                EXPECT_EQ(option.value == cli::Value::none, option.placeholder.empty()) << option.name;
            for (const cli::Operand& operand : command.operands)
                EXPECT_TRUE(!operand.repeats || &operand == &command.operands.back()) << operand.name;
        }
}

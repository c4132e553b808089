#include "cli/help.h"

#include "cli/text.h"

#include <algorithm>

namespace cli
{
namespace
{
struct Row
{
    std::string name;
    std::string_view meaning;
};

/// Names in one column, meanings wrapped in the next.
std::string table(std::string_view title, const std::vector<Row>& rows)
{
    if (rows.empty())
        return {};
    std::size_t widest = 0;
    for (const Row& row : rows)
        widest = std::max(widest, row.name.size());
    const std::size_t column = std::min<std::size_t>(widest + 4, 26);
    std::string text = std::string("\n").append(title).append(":\n");
    for (const Row& row : rows)
    {
        std::string meaning = wrapped(row.meaning, column);
        if (row.name.size() + 4 <= column)
            meaning.replace(0, row.name.size() + 2, "  " + row.name);
        else
            text.append("  ").append(row.name).append("\n");
        text += meaning;
    }
    return text;
}

std::string paragraph(std::string_view title, std::string_view text)
{
    return text.empty() ? std::string() : std::string("\n").append(title).append(":\n") + wrapped(text, 2);
}

std::string option_table(std::string_view title, std::span<const Option> options, const Command* shadowing)
{
    std::vector<Row> rows;
    for (const Option& option : options)
        if (shadowing == nullptr ||
            std::ranges::find(shadowing->options, option.name, &Option::name) == shadowing->options.end())
            rows.push_back({spelling(option), option.help});
    return table(title, rows);
}

std::string exit_table()
{
    std::vector<Row> rows;
    for (const ExitStatus& exit : exit_statuses())
        rows.push_back({std::to_string(static_cast<int>(exit.status)), exit.meaning});
    return table("Exit status", rows);
}

/// A synopsis behind \p lead, broken before an option where a line would be too long.
std::string usage(std::string_view lead, const std::string& synopsis)
{
    std::string text(lead);
    std::size_t width = text.size();
    for (std::size_t at = 0, end; at < synopsis.size(); at = end)
    {
        end = std::min(synopsis.find(" [", at + 1), synopsis.size());
        if (width + end - at > 80)
        {
            text.append("\n").append(lead.size() + 3, ' ');
            width = lead.size() + 3;
        }
        text.append(synopsis, at, end - at);
        width += end - at;
    }
    return text + "\n";
}

std::string program_help()
{
    std::string text = "Usage: tarvo GROUP COMMAND [OPTIONS] FILE...\n\n";
    text += wrapped(program_description, 0);
    for (const Group& group : groups())
    {
        std::vector<Row> rows;
        for (const Command& command : group.commands)
            rows.push_back({std::string(group.name).append(" ").append(command.name), command.summary});
        text += table(group.summary, rows);
    }
    text += option_table("Common options", common_options(), nullptr);
    text += exit_table();
    return text + "\nSee also: tarvo GROUP --help, tarvo GROUP COMMAND --help, man tarvo\n";
}

std::string group_help(const Group& group)
{
    std::string text;
    for (const Command& command : group.commands)
        text += usage(text.empty() ? "Usage: " : "       ", synopsis(group, command));
    text += "\n" + wrapped(group.summary, 0);
    std::vector<Row> rows;
    for (const Command& command : group.commands)
        rows.push_back({std::string(command.name), command.summary});
    text += table("Commands", rows);
    text += option_table("Common options", common_options(), nullptr);
    return text + "\nSee also: tarvo " + std::string(group.name) + " COMMAND --help\n";
}

std::string command_help(const Group& group, const Command& command)
{
    std::string text = usage("Usage: ", synopsis(group, command)) + "\n" + wrapped(command.description, 0);
    std::vector<Row> rows;
    for (const Operand& operand : command.operands)
        rows.push_back({std::string(operand.name), operand.help});
    text += table("Operands", rows);
    text += option_table("Options", command.options, nullptr);
    text += option_table("Common options", common_options(), &command);
    text += paragraph("Text format", command.text);
    text += paragraph("JSON format", command.json);
    for (const Example& example : command.examples)
    {
        text += &example == &command.examples.front() ? "\nExamples:\n" : "";
        text.append("  # ").append(example.purpose).append("\n  ").append(example.command).append("\n");
    }
    return text;
}
} // namespace

std::string help(const Group* group, const Command* command)
{
    if (group == nullptr)
        return program_help();
    return command == nullptr ? group_help(*group) : command_help(*group, *command);
}
} // namespace cli

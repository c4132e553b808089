#include "cli/groups.h"

#include <algorithm>
#include <charconv>

namespace cli
{
namespace
{
constexpr Option all_common_options[] = {
    {"format", '\0', Value::choice, "text|json",
     "how data is written: text (the default) is for reading and searching, json is exact"},
    {"output", 'o', Value::file, "FILE", "where data goes; - is standard output, the default"},
    {"ansi", '\0', Value::page, "N",
     "the code page that stands for the system's ANSI code page in this run; by default the system's on "
     "Windows, "
     "elsewhere the one that Windows has for the locale's language"},
    {"quiet", 'q', Value::none, "", "no hints and warnings on standard error, only errors"},
    {"color", '\0', Value::choice, "auto|always|never",
     "colours for names and errors; auto, the default, colours on a terminal only"},
    {"help", 'h', Value::none, "", "prints help for the program, the group or the command, and ends"},
    {"version", 'V', Value::none, "", "prints the version and ends"},
};

constexpr ExitStatus all_exit_statuses[] = {
    {Status::done, "done, and nothing found"},
    {Status::found, "done, and differences or findings exist, or a value asked for is missing"},
    {Status::usage, "wrong usage"},
    {Status::unreadable, "an input could not be read"},
    {Status::unwritten, "the output could not be written"},
};
} // namespace

const std::string_view program_description =
    "Works on the files of TarvoLib's hosts the way a host itself does, for build servers, translators and "
    "developers. A FILE named - is standard input. Standard output holds data only, in UTF-8 with line "
    "feeds; "
    "errors and warnings are single lines on standard error.\n"
    "Options stand anywhere after the command; the common ones also before it. Everything after -- is an "
    "operand, "
    "even when it begins with a dash.";

const std::string_view program_version = TARVO_VERSION;

std::span<const Group> groups()
{
    static const Group all[] = {
        {"ini", "INI documents: language files and other sections of keys and values", ini_commands()},
        {"header", "Resource headers: the names that a module gives its identifiers", header_commands()},
        {"messages", "Message files: the texts that a host finds by key", messages_commands()},
        {"text", "Text files of any encoding: what the library reads in them", text_commands()},
        {"rc", "Resource scripts: what they hold and what a translation lost", rc_commands()},
    };
    return all;
}

std::span<const Option> common_options() { return all_common_options; }
std::span<const ExitStatus> exit_statuses() { return all_exit_statuses; }

const Group* find_group(std::string_view name)
{
    const auto found = std::ranges::find(groups(), name, &Group::name);
    return found == groups().end() ? nullptr : &*found;
}

const Command* find_command(const Group& group, std::string_view name)
{
    const auto found = std::ranges::find(group.commands, name, &Command::name);
    return found == group.commands.end() ? nullptr : &*found;
}

std::vector<const Option*> accepted_options(const Command* command)
{
    std::vector<const Option*> accepted;
    if (command != nullptr)
        for (const Option& own : command->options)
            accepted.push_back(&own);
    for (const Option& common : all_common_options)
        if (std::ranges::find(accepted, common.name, &Option::name) == accepted.end())
            accepted.push_back(&common);
    return accepted;
}

std::string synopsis(const Group& group, const Command& command)
{
    std::string line = "tarvo ";
    line.append(group.name).append(" ").append(command.name);
    for (const Operand& operand : command.operands)
        line.append(" ").append(operand.name).append(operand.repeats ? "..." : "");
    for (const Option& option : command.options)
    {
        line.append(" [--").append(option.name);
        if (!option.placeholder.empty())
            line.append(" ").append(option.placeholder);
        line.append("]");
    }
    return line;
}

std::string spelling(const Option& option)
{
    std::string text = option.letter == '\0' ? std::string() : std::string{'-', option.letter, ',', ' '};
    text.append("--").append(option.name);
    if (!option.placeholder.empty())
        text.append(" ").append(option.placeholder);
    return text;
}

std::vector<std::string_view> choices(const Option& option)
{
    std::vector<std::string_view> words;
    if (option.value != Value::choice)
        return words;
    std::string_view rest = option.placeholder;
    for (auto bar = rest.find('|'); bar != std::string_view::npos; bar = rest.find('|'))
    {
        words.push_back(rest.substr(0, bar));
        rest.remove_prefix(bar + 1);
    }
    words.push_back(rest);
    return words;
}

const std::string* Call::option(std::string_view name) const
{
    const auto found = options.find(name);
    return found == options.end() ? nullptr : &found->second;
}

int Call::page(std::string_view name) const
{
    int number = 0;
    if (const std::string* text = option(name))
        std::from_chars(text->data(), text->data() + text->size(), number);
    return number;
}
} // namespace cli

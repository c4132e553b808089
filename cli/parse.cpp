#include "cli/parse.h"

#include "cli/text.h"
#include "platform/codepage.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <charconv>

namespace cli
{
namespace
{
[[noreturn]] void wrong(std::string subject, std::string what)
{
    throw Failure{Status::usage, std::move(subject), std::move(what)};
}

std::string meant(std::string_view word, const std::vector<std::string_view>& known)
{
    const std::string_view close = nearest(word, known);
    return close.empty() ? std::string() : std::string("; did you mean '").append(close).append("'?");
}

bool is_option(std::string_view word) { return word.size() > 1 && word.front() == '-'; }

/// The option of \p accepted that \p word ("--output", "--output=x", "-o", "-ox") names; null for none.
const Option* named_option(std::string_view word, const std::vector<const Option*>& accepted)
{
    const bool is_long = word.starts_with("--");
    const std::string_view name = is_long ? word.substr(2, word.find('=') - 2) : word.substr(1, 1);
    for (const Option* option : accepted)
        if (is_long ? option->name == name : option->letter == name.front())
            return option;
    return nullptr;
}

bool takes_next_word(std::string_view word, const Option& option)
{
    const bool attached = word.starts_with("--") ? word.find('=') != std::string_view::npos : word.size() > 2;
    return option.value != Value::none && !attached;
}

/// Takes the group and the command out of the words: the first two that are neither options nor the
/// values of common options. CLI11 sees what is left, as the arguments of one flat command: its own
/// subcommands would also take an operand that is spelled like a command.
struct Words
{
    std::vector<std::string> found;
    std::vector<std::string> rest;
};

Words split_words(const std::vector<std::string>& arguments)
{
    Words words;
    const std::vector<const Option*> common = accepted_options(nullptr);
    std::size_t at = 0;
    for (; at < arguments.size() && words.found.size() < 2 && arguments[at] != "--"; ++at)
    {
        const std::string& word = arguments[at];
        if (!is_option(word))
        {
            words.found.push_back(word);
            continue;
        }
        words.rest.push_back(word);
        const Option* option = named_option(word, common);
        if (option != nullptr && takes_next_word(word, *option) && at + 1 < arguments.size())
            words.rest.push_back(arguments[++at]);
    }
    words.rest.insert(words.rest.end(), arguments.begin() + static_cast<std::ptrdiff_t>(at), arguments.end());
    return words;
}

template <class Rows>
std::string listed(const Rows& rows)
{
    std::string text;
    for (const auto& row : rows)
        text.append(text.empty() ? "" : ", ").append(row.name);
    return text;
}

const Group& group_of(const std::string& word)
{
    if (const Group* group = find_group(word))
        return *group;
    std::vector<std::string_view> names;
    for (const Group& group : groups())
    {
        names.push_back(group.name);
        if (find_command(group, word) != nullptr)
            wrong(word,
                  std::string("a group comes first: tarvo ").append(group.name).append(" ").append(word));
    }
    wrong(word, "no such group (" + listed(groups()) + ")" + meant(word, names));
}

const Command& command_of(const Group& group, const std::string& word)
{
    if (const Command* command = find_command(group, word))
        return *command;
    std::vector<std::string_view> names;
    for (const Command& command : group.commands)
        names.push_back(command.name);
    wrong(std::string(group.name).append(" ").append(word),
          "no such command (" + listed(group.commands) + ")" + meant(word, names));
}

std::string subject_of(const Request& request)
{
    if (request.group == nullptr)
        return "usage";
    std::string subject(request.group->name);
    if (request.command != nullptr)
        subject.append(" ").append(request.command->name);
    return subject;
}

void check_value(const Option& option, const std::string& value)
{
    const std::string spelled = std::string("--").append(option.name);
    if (option.value == Value::choice)
    {
        const auto words = choices(option);
        if (std::ranges::find(words, value) == words.end())
        {
            std::string list;
            for (const auto word : words)
                list.append(list.empty() ? "" : ", ").append(word);
            wrong(spelled, "'" + value + "' is none of " + list + meant(value, words));
        }
    }
    else if (option.value == Value::page)
    {
        int page = 0;
        const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), page);
        if (error != std::errc() || end != value.data() + value.size() || page < 0 ||
            !platform::codepage::known(page))
            wrong(spelled, "'" + value + "' is not a known code page number");
    }
}

/// CLI11 gives "--name=" the next argument as its value; as two arguments the value stays empty. It also
/// takes "--switch=no", which no other program does.
std::vector<std::string> prepared(const std::vector<std::string>& words,
                                  const std::vector<const Option*>& accepted, const std::string& subject)
{
    std::vector<std::string> out;
    bool operands_only = false;
    for (const std::string& word : words)
    {
        operands_only = operands_only || word == "--";
        const auto equals = word.find('=');
        const bool attached = !operands_only && word.starts_with("--") && equals != std::string::npos;
        const Option* option = attached ? named_option(word, accepted) : nullptr;
        if (option != nullptr && option->value == Value::none)
            wrong(subject, word.substr(0, equals) + " takes no value");
        if (option != nullptr && equals + 1 == word.size())
            out.insert(out.end(), {word.substr(0, equals), std::string()});
        else
            out.push_back(word);
    }
    return out;
}

void declare(CLI::App& app, const std::vector<const Option*>& accepted, Call& call)
{
    for (const Option* option : accepted)
    {
        std::string names = std::string("--").append(option->name);
        if (option->letter != '\0')
            names.append(",-") += option->letter;
        const std::string_view key = option->name;
        if (option->value == Value::none)
            app.add_flag_callback(names, [&call, key] { call.options[key].clear(); });
        else
            app.add_option(names,
                           [&call, key](const CLI::results_t& values) {
                               call.options[key] = values.back();
                               return true;
                           })
                ->expected(1)
                ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    }
}

[[noreturn]] void unknown_option(const std::string& word, const std::string& subject,
                                 const std::vector<const Option*>& accepted)
{
    std::vector<std::string> spelled;
    spelled.reserve(accepted.size());
    for (const Option* option : accepted)
        spelled.push_back(std::string("--").append(option->name));
    wrong(subject, "no such option: " + word +
                       meant(word.substr(0, word.find('=')), {spelled.begin(), spelled.end()}));
}

/// What CLI11 left over: the operands, in order, and the options that nobody knows.
std::vector<std::string> operands_of(const std::vector<std::string>& left, const std::string& subject,
                                     const std::vector<const Option*>& accepted)
{
    std::vector<std::string> operands;
    bool operands_only = false;
    for (const std::string& word : left)
    {
        const bool number = word.size() > 1 && word[0] == '-' && word[1] >= '0' && word[1] <= '9';
        if (!operands_only && word == "--")
            operands_only = true;
        else if (operands_only || !is_option(word) || number)
            operands.push_back(word);
        else
            unknown_option(word, subject, accepted);
    }
    return operands;
}

void check_operands(const Command& command, const std::string& subject,
                    const std::vector<std::string>& operands)
{
    const auto& wanted = command.operands;
    if (operands.size() < wanted.size())
        wrong(subject,
              std::string(wanted[operands.size()].name) + " is missing; see tarvo " + subject + " --help");
    if (operands.size() > wanted.size() && !(!wanted.empty() && wanted.back().repeats))
        wrong(subject, "one operand too many: " + operands[wanted.size()]);
}

void read_options(Request& request, const std::vector<std::string>& words, const std::string& subject)
{
    const std::vector<const Option*> accepted = accepted_options(request.command);
    CLI::App app;
    app.set_help_flag();
    app.allow_windows_style_options(false);
    app.allow_extras();
    declare(app, accepted, request.call);
    try
    {
        std::vector<std::string> reversed = prepared(words, accepted, subject);
        std::ranges::reverse(reversed);
        app.parse(std::move(reversed));
    }
    catch (const CLI::ArgumentMismatch&)
    {
        wrong(subject, words.back() + " needs a value");
    }
    catch (const CLI::ParseError& error)
    {
        wrong(subject, error.what());
    }
    request.help = request.call.options.contains("help");
    request.version = request.call.options.contains("version");
    if (request.help || request.version)
        return;
    for (const Option* option : accepted)
        if (const std::string* value = request.call.option(option->name); value != nullptr)
            check_value(*option, *value);
    request.call.operands = operands_of(app.remaining(), subject, accepted);
}
} // namespace

Request parse(const std::vector<std::string>& arguments)
{
    Request request;
    const Words words = split_words(arguments);
    if (!words.found.empty())
        request.group = &group_of(words.found[0]);
    if (words.found.size() > 1)
        request.command = &command_of(*request.group, words.found[1]);
    const std::string subject = subject_of(request);
    read_options(request, words.rest, subject);
    if (request.help || request.version)
        return request;
    if (request.group == nullptr)
        wrong(subject, "tarvo GROUP COMMAND [OPTIONS] FILE...; see tarvo --help");
    if (request.command == nullptr)
        wrong(subject, "a command is missing (" + listed(request.group->commands) + "); see tarvo " +
                           subject + " --help");
    check_operands(*request.command, subject, request.call.operands);
    const std::string* format = request.call.option("format");
    request.call.format = format != nullptr && *format == "json" ? Format::json : Format::text;
    request.call.quiet = request.call.options.contains("quiet");
    return request;
}

std::string color_choice(const std::vector<std::string>& arguments)
{
    std::string choice;
    for (std::size_t at = 0; at < arguments.size() && arguments[at] != "--"; ++at)
        if (arguments[at] == "--color" && at + 1 < arguments.size())
            choice = arguments[at + 1];
        else if (arguments[at].starts_with("--color="))
            choice = arguments[at].substr(8);
    return choice;
}
} // namespace cli

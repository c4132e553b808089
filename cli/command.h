#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The program's commands as data. Parser, help, manual page and shell completion are all made from
/// the one table that groups() returns, so that none of them can miss a command or an option.
namespace cli
{
/// The program's exit status.
enum class Status
{
    done = 0,       ///< done, and nothing found
    found = 1,      ///< done, and differences or findings exist
    usage = 2,      ///< wrong usage; nothing was read or written
    unreadable = 3, ///< an input could not be read
    unwritten = 4   ///< the output could not be written
};

/// Ends a command early: the program prints "tarvo: subject: what" and leaves with the status.
struct Failure
{
    Status status;
    std::string subject;
    std::string what;
};

enum class Format
{
    text,
    json
};

enum class Value
{
    none,   ///< a switch
    choice, ///< one of the words of `placeholder`, which '|' separates
    page,   ///< a code page number that the library knows
    file,
    text
};

struct Option
{
    std::string_view name; ///< without the dashes
    char letter;           ///< '\0' for none
    Value value;
    std::string_view placeholder; ///< what stands after it in a synopsis; empty for a switch
    std::string_view help;        ///< one sentence without its full stop
};

struct Operand
{
    std::string_view name;
    Value value;
    std::string_view help;
    bool repeats = false; ///< one or more; only the last operand of a command
};

struct Example
{
    std::string_view purpose;
    std::string_view command;
};

/// One run of a command: what the user asked for, in UTF-8, already checked against the table.
struct Call
{
    std::vector<std::string> operands;
    std::map<std::string_view, std::string> options; ///< by Option::name; a switch that is given holds ""
    Format format = Format::text;
    bool quiet = false;
    bool color_data = false;
    bool color_talk = false;

    const std::string* option(std::string_view name) const;
    /// The number after a Value::page option, 0 (the ANSI code page) when it is not given.
    int page(std::string_view name) const;
    /// Prints "tarvo: subject: what" on standard error, nothing with --quiet.
    void note(std::string_view subject, std::string_view what) const;
};

/// What a command hands back. Without data nothing is written, and no file is touched.
struct Result
{
    Status status = Status::done;
    std::optional<std::string> data;
    std::string target = "-"; ///< where data goes when --output is not given
};

struct Command
{
    std::string_view name;
    std::string_view summary; ///< completes "tarvo ... ": one line, no full stop
    std::span<const Operand> operands;
    std::span<const Option> options; ///< its own; one that is also a common option replaces that one's help
    std::string_view description;    ///< paragraphs separated by line feeds
    std::string_view text;           ///< how the text format is laid out
    std::string_view json;           ///< how the JSON is laid out
    std::span<const Example> examples;
    Result (*run)(const Call& call);
};

struct Group
{
    std::string_view name;
    std::string_view summary;
    std::span<const Command> commands;
};

struct ExitStatus
{
    Status status;
    std::string_view meaning;
};

inline constexpr std::string_view program_summary =
    "language files, resource headers and scripts without a host";
extern const std::string_view program_description;
extern const std::string_view program_version;

std::span<const Group> groups();
std::span<const Option> common_options();
std::span<const ExitStatus> exit_statuses();

const Group* find_group(std::string_view name);
const Command* find_command(const Group& group, std::string_view name);
/// The options that \p command accepts, its own first; null gives those of the program and its groups.
std::vector<const Option*> accepted_options(const Command* command);
/// "tarvo ini get FILE SECTION KEY [--default TEXT] [--code-page N]"
std::string synopsis(const Group& group, const Command& command);
/// "-o, --output FILE"
std::string spelling(const Option& option);
/// The words of a Value::choice option.
std::vector<std::string_view> choices(const Option& option);
} // namespace cli

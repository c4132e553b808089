#include "cli/manual.h"

#include "cli/command.h"
#include "cli/text.h"

#include <cstdio>

namespace cli
{
namespace
{
/// \p text as roff prints it: dashes that can be copied, no line that looks like a request, and letters
/// beyond ASCII by their number.
std::string roff(std::string_view utf8)
{
    std::string out;
    bool line_start = true;
    for (const wchar_t c : to_wide(utf8))
    {
        if (line_start && (c == '.' || c == '\''))
            out += "\\&";
        if (c == '\\')
            out += "\\e";
        else if (c == '-')
            out += "\\-";
        else if (c == '\n')
            out += "\n.PP\n";
        else if (c < 0x80)
            out += static_cast<char>(c);
        else
        {
            char number[16];
            std::snprintf(number, sizeof number, "\\[u%04X]", static_cast<unsigned>(c));
            out += number;
        }
        line_start = c == '\n';
    }
    return out;
}

/// A layout without blanks may go on in the next line after each comma.
std::string breakable(std::string text)
{
    for (std::size_t at = text.find(','); at != std::string::npos; at = text.find(',', at + 1))
        text.insert(at + 1, "\\:");
    return text;
}

std::string bold(std::string_view text) { return "\\fB" + roff(text) + "\\fR"; }
std::string italic(std::string_view text) { return "\\fI" + roff(text) + "\\fR"; }

std::string option_name(const Option& option)
{
    std::string text = option.letter == '\0' ? std::string() : bold(std::string{'-', option.letter}) + ", ";
    text += bold(std::string("--").append(option.name));
    return option.placeholder.empty() ? text : text + " " + italic(option.placeholder);
}

std::string item(const std::string& name, std::string_view meaning)
{
    return ".TP\n" + name + "\n" + roff(meaning) + "\n";
}

std::string paragraph(std::string_view title, std::string_view text)
{
    return text.empty() ? std::string() : ".PP\n" + italic(title) + ": " + breakable(roff(text)) + "\n";
}

std::string command_section(const Group& group, const Command& command)
{
    std::string text = ".SS \"" + roff(synopsis(group, command)) + "\"\n" + roff(command.description) + "\n";
    for (const Operand& operand : command.operands)
        text += item(italic(operand.name), operand.help);
    for (const Option& option : command.options)
        text += item(option_name(option), option.help);
    text += paragraph("Text format", command.text);
    text += paragraph("JSON format", command.json);
    return text;
}

std::string examples()
{
    std::string text = ".SH EXAMPLES\n";
    for (const Group& group : groups())
        for (const Command& command : group.commands)
            for (const Example& example : command.examples)
                text += item(bold(example.command), example.purpose);
    return text;
}
} // namespace

std::string manual_page()
{
    std::string text = ".\\\" Made from the program's table of commands.\n";
    text += ".TH TARVO 1 \"\" \"tarvo " + roff(program_version) + "\" \"User Commands\"\n.nh\n.ad l\n";
    text += ".SH NAME\ntarvo \\- " + roff(program_summary) + "\n.SH SYNOPSIS\n";
    text += bold("tarvo") + " " + italic("GROUP COMMAND") + " [" + italic("OPTIONS") + "] " + italic("FILE") +
            "...\n";
    text += ".SH DESCRIPTION\n" + roff(program_description) + "\n.SH COMMANDS\n";
    for (const Group& group : groups())
        for (const Command& command : group.commands)
            text += command_section(group, command);
    text += ".SH \"COMMON OPTIONS\"\n";
    for (const Option& option : common_options())
        text += item(option_name(option), option.help);
    text += ".SH \"EXIT STATUS\"\n";
    for (const ExitStatus& exit : exit_statuses())
        text += item(bold(std::to_string(static_cast<int>(exit.status))), exit.meaning);
    text += ".SH ENVIRONMENT\n" +
            item(bold("NO_COLOR"), "when set and not empty, no colours unless --color always is given");
    text += item(bold("LC_ALL") + ", " + bold("LC_CTYPE") + ", " + bold("LANG"),
                 "outside Windows, the language that the ANSI code page is chosen by");
    return text + examples();
}
} // namespace cli

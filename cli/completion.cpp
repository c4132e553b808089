#include "cli/completion.h"

#include "cli/command.h"

#include <algorithm>

namespace cli
{
namespace
{
// The pages that every build knows; on Windows others work too but need no help in typing.
constexpr std::string_view pages =
    "437 874 932 936 949 950 1250 1251 1252 1253 1254 1255 1256 1257 1258 65001";

/// Words to choose from, or @file, or @text for what cannot be guessed.
std::string kind(Value value, const std::vector<std::string_view>& words)
{
    if (value == Value::file)
        return "@file";
    if (value == Value::page)
        return std::string(pages);
    if (value != Value::choice)
        return "@text";
    std::string text;
    for (const auto word : words)
        text.append(text.empty() ? "" : " ").append(word);
    return text;
}

/// One branch for the words "GROUP COMMAND OPTION"; \p before is the pattern up to the quote.
std::string kind_line(const std::string& before, const Option& option)
{
    if (option.value == Value::none)
        return {};
    std::string patterns = before + " --" + std::string(option.name) + "'";
    if (option.letter != '\0')
        patterns += " | " + before + " -" + option.letter + "'";
    return "    " + patterns + ") kind='" + kind(option.value, choices(option)) + "' ;;\n";
}

std::string option_words(const Command* command)
{
    std::string words;
    for (const Option* option : accepted_options(command))
    {
        words.append(words.empty() ? "--" : " --").append(option->name);
        if (option->letter != '\0')
            words.append(" -") += option->letter;
    }
    return words;
}

std::string operand_words(const Command& command)
{
    std::string words;
    for (const Operand& operand : command.operands)
        words.append(words.empty() ? "'" : " '").append(kind(operand.value, {})).append("'");
    return words;
}

template <class Rows>
std::string names(const Rows& rows)
{
    std::string text;
    for (const auto& row : rows)
        text.append(text.empty() ? "" : " ").append(row.name);
    return text;
}

constexpr std::string_view script_head =
    R"(# Completion of tarvo for bash, made from the program's table of commands.

# _tarvo_kind "GROUP COMMAND OPTION": sets kind to what stands after the option, to nothing for a switch.
_tarvo_kind()
{
    kind=
    case $1 in
)";

constexpr std::string_view script_middle = R"(    esac
}

# _tarvo_command "GROUP COMMAND": sets words to what may stand there, options and operands.
_tarvo_command()
{
    words= options= operands=()
    case $1 in
)";

constexpr std::string_view script_tail = R"(    esac
}

_tarvo()
{
    local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD-1]}
    local group= command= kind= words= options= operands=() count=0 i word
    COMPREPLY=()
    # --option=value arrives as three words.
    [[ $cur == = ]] && cur= && prev=${COMP_WORDS[COMP_CWORD-1]}
    [[ $prev == = ]] && prev=${COMP_WORDS[COMP_CWORD-2]}
    for ((i = 1; i < COMP_CWORD; i++)); do
        word=${COMP_WORDS[i]}
        if [[ $word == -?* ]]; then
            _tarvo_kind "$group $command $word"
            [[ ${COMP_WORDS[i+1]} == = ]] && ((i++))
            [[ -n $kind ]] && ((i++))
        elif [[ -z $group ]]; then group=$word
        elif [[ -z $command ]]; then command=$word
        else ((count++))
        fi
    done
    _tarvo_kind "$group $command $prev"
    if [[ -z $kind ]]; then
        _tarvo_command "$group $command"
        if [[ $cur == -* ]]; then kind=$options
        elif [[ -n $words ]]; then kind=$words
        else kind=${operands[count]}
        fi
    fi
    case $kind in
    @file) compopt -o filenames 2>/dev/null; mapfile -t COMPREPLY < <(compgen -f -- "$cur") ;;
    @text | '') ;;
    *) mapfile -t COMPREPLY < <(compgen -W "$kind" -- "$cur") ;;
    esac
}
complete -F _tarvo tarvo
)";
} // namespace

std::string bash_completion()
{
    std::string script(script_head);
    for (const Group& group : groups())
        for (const Command& command : group.commands)
            for (const Option& option : command.options)
                script += kind_line("'" + std::string(group.name) + " " + std::string(command.name), option);
    for (const Option& option : common_options())
        script += kind_line("*'", option);
    script += script_middle;
    script += "    ' ') words='" + names(groups()) + "' options='" + option_words(nullptr) + "' ;;\n";
    for (const Group& group : groups())
    {
        for (const Command& command : group.commands)
            script += "    '" + std::string(group.name) + " " + std::string(command.name) + "') options='" +
                      option_words(&command) + "' operands=(" + operand_words(command) + ") ;;\n";
        script += "    '" + std::string(group.name) + " ') words='" + names(group.commands) + "' options='" +
                  option_words(nullptr) + "' ;;\n";
    }
    return script + std::string(script_tail);
}
} // namespace cli

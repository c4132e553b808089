#include "cli/program.h"

#include "cli/help.h"
#include "cli/output.h"
#include "cli/parse.h"
#include "cli/terminal.h"
#include "cli/text.h"
#include "platform/codepage.h"
#include "tarvo/text/AnsiPage.h"

#include <algorithm>
#include <cstdio>
#include <new>

namespace cli
{
namespace
{
bool color_wanted(const std::string& choice, std::FILE* stream)
{
    if (choice == "always" || choice == "never")
        return choice == "always";
    return !terminal::no_color() && terminal::colors(stream);
}

/// One line, whatever a file name or a text of the user holds.
void print_line(bool color, Color kind, std::string_view subject, std::string_view what)
{
    std::string line = painted(color, kind, "tarvo:") + " ";
    line.append(subject).append(": ").append(what);
    std::ranges::replace_if(
        line, [](char c) { return c == '\n' || c == '\r'; }, ' ');
    line += '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
}

int perform(const std::vector<std::string>& arguments, const std::string& color)
{
    Request request = parse(arguments);
    if (request.help || request.version)
    {
        deliver("-", request.help ? help(request.group, request.command)
                                  : std::string("tarvo ").append(program_version).append("\n"));
        return static_cast<int>(Status::done);
    }
    Call& call = request.call;
    if (const int page = call.page("ansi"); page != 0)
    {
        // On Windows the program and the library's DLL each carry the platform layer.
        platform::codepage::set_ansi_page(page);
        SetAnsiCodePage(page);
    }
    const std::string* const output = call.option("output");
    call.color_data = color_wanted(color, stdout) && (output == nullptr || *output == "-");
    call.color_talk = color_wanted(color, stderr);
    const Result result = request.command->run(call);
    if (result.data)
        deliver(output != nullptr ? *output : result.target, *result.data);
    return static_cast<int>(result.status);
}
} // namespace

void Call::note(std::string_view subject, std::string_view what) const
{
    if (!quiet)
        print_line(color_talk, Color::name, subject, what);
}

int run(const std::vector<std::string>& arguments) noexcept
{
    std::string color;
    try
    {
        color = color_choice(arguments);
        return perform(arguments, color);
    }
    catch (const Failure& failure)
    {
        print_line(color_wanted(color, stderr), Color::error, failure.subject, failure.what);
        return static_cast<int>(failure.status);
    }
    catch (const std::bad_alloc&)
    {
        std::fputs("tarvo: input: too large for this machine's memory\n", stderr);
        return static_cast<int>(Status::unreadable);
    }
}

int refuse_arguments() noexcept
{
    std::fputs("tarvo: usage: an argument is not valid Unicode text\n", stderr);
    return static_cast<int>(Status::usage);
}
} // namespace cli

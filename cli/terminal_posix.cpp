#include "cli/terminal.h"

#include "platform/codepage.h"

#include <cstdlib>
#include <unistd.h>

namespace cli::terminal
{
namespace codepage = platform::codepage;

std::optional<std::vector<std::string>> arguments(int argc, char** argv)
{
    std::vector<std::string> words(argv + (argc > 0 ? 1 : 0), argv + argc);
    for (const std::string& word : words)
    {
        const auto wide = codepage::decode(codepage::utf8, word);
        if (!wide || codepage::encode(codepage::utf8, *wide) != word)
            return std::nullopt;
    }
    return words;
}

void prepare_streams() {}

bool interactive(std::FILE* stream) { return ::isatty(::fileno(stream)) != 0; }

bool colors(std::FILE* stream)
{
    const char* const kind = std::getenv("TERM");
    return interactive(stream) && kind != nullptr && std::string_view(kind) != "dumb";
}

bool no_color()
{
    const char* const value = std::getenv("NO_COLOR");
    return value != nullptr && *value != '\0';
}
} // namespace cli::terminal

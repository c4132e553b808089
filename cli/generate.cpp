#include "cli/completion.h"
#include "cli/manual.h"
#include "cli/output.h"

#include "cli/command.h"

#include <cstdio>
#include <string_view>

/// tarvo_generate man|bash FILE: writes what is installed beside the program.
int main(int argc, char** argv)
{
    try
    {
        const std::string_view what = argc == 3 ? argv[1] : "";
        if (what == "man")
            cli::deliver(argv[2], cli::manual_page());
        else if (what == "bash")
            cli::deliver(argv[2], cli::bash_completion());
        else
            return 2;
        return 0;
    }
    catch (const cli::Failure& failure)
    {
        std::fprintf(stderr, "%s: %s\n", failure.subject.c_str(), failure.what.c_str());
        return static_cast<int>(failure.status);
    }
}

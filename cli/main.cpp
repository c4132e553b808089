#include "cli/program.h"
#include "cli/terminal.h"

int main(int argc, char** argv)
{
    cli::terminal::prepare_streams();
    const auto arguments = cli::terminal::arguments(argc, argv);
    return arguments ? cli::run(*arguments) : cli::refuse_arguments();
}

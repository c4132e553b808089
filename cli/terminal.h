#pragma once

#include <cstdio>
#include <optional>
#include <string>
#include <vector>

/// The program's surroundings: arguments, streams, environment.
namespace cli::terminal
{
/// The arguments after the program's name as UTF-8. Nothing when one of them is not valid text, which
/// then could name neither a file nor a key.
std::optional<std::vector<std::string>> arguments(int argc, char** argv);

/// Makes the streams carry bytes as they are and a console show UTF-8.
void prepare_streams();

/// True when somebody sees what is written to \p stream as it is written.
bool interactive(std::FILE* stream);

/// True when \p stream shows colours.
bool colors(std::FILE* stream);

/// True when the environment asks for no colours.
bool no_color();
} // namespace cli::terminal

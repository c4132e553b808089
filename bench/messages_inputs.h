#pragma once

#include "bench/support/texts.h"

#include <string>

namespace bench
{
inline constexpr int modules = 17;

/// "Module07", as bench/gen.py names the files of a module.
std::string module_name(int number);

/// Every key of the generated messages in random order, as bytes and as wide text.
const Texts<char>& message_keys();
const Texts<wchar_t>& wide_message_keys();

/// Loads the message files of all modules into the catalogue. \p ending is what follows the module's name.
void load_catalogue(const char* ending = "_kr.ini");
} // namespace bench

#pragma once

#include "cli/command.h"
#include "cli/json.h"
#include "tarvo/restools/CheckString.h"
#include "tarvo/restools/Resources.h"

#include <string>
#include <vector>

namespace cli
{
/// A resource script and what reading it left behind.
struct Script
{
    CResources resources;
    CString log;
    std::vector<CString> languages;
};

/// Reads the script \p name, UTF-8; "-" is standard input. \p language is the value of a language option,
/// null for every language. Throws Failure with Status::unreadable.
Script read_script(const std::string& name, const std::string* language);

/// Both scripts of a command with two operands, of which at most one is standard input.
struct ScriptPair
{
    Script one, two;
};
ScriptPair read_scripts(const Call& call);

/// The value of --check; both kinds of words when the option is not given.
StringCheck check_mode(const Call& call);

std::string to_utf8(CResText text);
JsonWriter& add_text(JsonWriter& json, CResText text);

/// A text that the library wrote, as data: exact in JSON, below the key "text" or \p key; else with line
/// feeds alone.
std::string listing(const Call& call, const CString& text, std::string_view key = "text");
/// "\r\n" becomes "\n".
std::string with_line_feeds(const CString& text);

/// The model that `rc show` prints.
std::string script_json(const Script& script);
std::string script_text(const Script& script);

/// `rc compare`.
Result compare_scripts(const Call& call);
} // namespace cli

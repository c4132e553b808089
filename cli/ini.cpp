#include "cli/groups.h"
#include "cli/ini_document.h"
#include "cli/json.h"
#include "cli/text.h"

namespace cli
{
namespace
{
constexpr Operand file_operand = {"FILE", Value::file, "the INI file; - reads standard input"};
constexpr Operand section_operand = {
    "SECTION", Value::text,
    "the section's name, letter case included; @default names the document's default "
    "section, the first one called Text in any letter case"};
constexpr Operand key_operand = {"KEY", Value::text, "the key's name, letter case included"};
constexpr Option page_option = {
    "code-page", '\0', Value::page, "N",
    "the code page of FILE when it does not begin with a UTF-16LE mark; 0, the default, is "
    "the ANSI code page"};

constexpr Option show_options[] = {page_option};
constexpr Operand show_operands[] = {file_operand};
constexpr Example show_examples[] = {
    {"every entry of one section", "tarvo ini show ctrl_steel_kr.ini | grep '^\\[IDD_SETUP\\]'"},
    {"what two versions of a Korean language file say differently",
     "diff <(tarvo ini show --code-page 949 old.ini) <(tarvo ini show --code-page 949 new.ini)"},
};

constexpr Option get_options[] = {
    {"default", '\0', Value::text, "TEXT", "what is printed when the section or the key is missing"},
    page_option};
constexpr Operand get_operands[] = {file_operand, section_operand, key_operand};
constexpr Example get_examples[] = {
    {"one text", "tarvo ini get ctrl_steel_kr.ini IDD_SETUP IDOK"},
    {"a text of the default section, which look-ups without a section name use",
     "tarvo ini get ctrl_steel_kr.ini @default Unit --default kN"},
};

constexpr Option set_options[] = {
    {"output", 'o', Value::file, "OUT", "writes the document to OUT instead of FILE; - is standard output"},
    page_option};
constexpr Operand set_operands[] = {
    file_operand,
    section_operand,
    key_operand,
    {"VALUE", Value::text,
     "the new value, blanks and quotes as they stand; after -- it may begin with a dash"}};
constexpr Example set_examples[] = {
    {"changes one text in place", "tarvo ini set ctrl_steel_kr.ini IDD_SETUP IDOK '확인'"},
};

constexpr Option convert_options[] = {
    {"output", 'o', Value::file, "OUT", "where the document goes; - is standard output, the default"},
    page_option};
constexpr Example convert_examples[] = {
    {"a Japanese file in code page 932 becomes UTF-16LE",
     "tarvo ini convert ctrl_steel_jp.ini --code-page 932 --output utf16/ctrl_steel_jp.ini"},
};

std::string text_of(const Document& document, bool color)
{
    std::string text;
    for (const Section& section : document.sections)
    {
        const std::string name = painted(color, Color::section, "[" + to_utf8(view(section.name)) + "]");
        if (section.entries.empty())
            text.append(name).append("\n");
        for (const auto& [key, value] : section.entries)
        {
            text.append(name).append(" ");
            append_utf8(text, view(key));
            text += " = \"";
            append_utf8(text, view(value));
            text += "\"\n";
        }
    }
    return text;
}

std::string json_of(const std::string& file, XIni& ini, const Document& document)
{
    JsonWriter json;
    json.begin_object().key("file").text(to_wide(file)).key("open").number(1);
    json.key("is_opened").number(ini.IsOpened()).key("default_section");
    if (document.default_section)
        json.text(view(*document.default_section));
    else
        json.null();
    json.key("sections").begin_array();
    for (const Section& section : document.sections)
    {
        json.begin_object().key("name").text(view(section.name)).key("entries").begin_array();
        for (const auto& [key, value] : section.entries)
            json.begin_array().text(view(key)).text(view(value)).end_array();
        json.end_array().end_object();
    }
    return json.end_array().end_object().take();
}

Result show(const Call& call)
{
    XIni ini;
    open(ini, call);
    const Document document = contents(ini);
    return {Status::done, call.format == Format::json ? json_of(call.operands[0], ini, document)
                                                      : text_of(document, call.color_data)};
}

std::string hint(const std::string& wanted, const std::vector<std::string>& names)
{
    const std::string_view close = nearest(wanted, {names.begin(), names.end()});
    return close.empty() ? std::string() : std::string("; did you mean ").append(close).append("?");
}

/// Says which of the two names is missing, and the nearest one that is there.
std::string missing(const Document& document, const std::string& wanted_section,
                    const std::string& wanted_key)
{
    if (wanted_section == "@default" && !document.default_section)
        return "has no default section: no section is called Text";
    const std::wstring name = wanted_section == "@default" ? std::wstring(view(*document.default_section))
                                                           : to_wide(wanted_section);
    std::vector<std::string> names;
    for (const Section& section : document.sections)
    {
        names.push_back(to_utf8(view(section.name)));
        if (view(section.name) != name)
            continue;
        std::vector<std::string> keys;
        for (const auto& pair : section.entries)
            keys.push_back(to_utf8(view(pair.first)));
        return "no key " + wanted_key + " in section " + to_utf8(name) + hint(wanted_key, keys);
    }
    return "no section " + wanted_section + hint(wanted_section, names);
}

Result get(const Call& call)
{
    XIni ini;
    open(ini, call);
    const std::wstring key = to_wide(call.operands[2]);
    const std::string* const fallback = call.option("default");
    CString value;
    const bool found = ini.GetStr2(SectionName(call.operands[1]).get(), key.c_str(), value, L"") != 0;
    if (!found && fallback == nullptr)
    {
        call.note(call.operands[0], missing(contents(ini), call.operands[1], call.operands[2]));
        return {Status::found,
                call.format == Format::json ? std::optional(JsonWriter().null().take()) : std::nullopt};
    }
    const std::wstring text = found ? std::wstring(view(value)) : to_wide(*fallback);
    return {Status::done,
            call.format == Format::json ? JsonWriter().text(text).take() : to_utf8(text) + "\n"};
}

/// Why what was set is not what would be read.
std::string why_not_kept(const Call& call)
{
    const auto has = [](const std::string& text, std::string_view part) {
        return text.find(part) != std::string::npos;
    };
    const auto blank_ends = [](const std::string& text) {
        return text.find_first_of(" \t\v\f") == 0 || text.find_last_of(" \t\v\f") + 1 == text.size();
    };
    const std::string& section = call.operands[1];
    const std::string& key = call.operands[2];
    for (std::size_t at = 1; at < 4; ++at)
        if (has(call.operands[at], "\n") || has(call.operands[at], "\r"))
            return std::string(set_operands[at].name) + " holds a line break, which no INI line can hold";
    if (section.empty())
        return "SECTION is empty: the lines below [] are dropped on reading";
    if (key.starts_with(";"))
        return "KEY begins with a semicolon and would be read as a comment";
    if (key.starts_with("["))
        return "KEY begins with a bracket and would be dropped on reading";
    if (has(key, "="))
        return "KEY holds an equals sign, where a key ends on reading";
    if (has(key, "/**/"))
        return "KEY holds the mark /**/, before which everything is dropped on reading";
    if (section == "@default")
        return "the sorted document would have another default section, without this value";
    if (blank_ends(section) || blank_ends(key))
        return "blanks around SECTION and KEY are dropped on reading";
    return "SECTION, KEY and VALUE as given would not read back the same";
}

std::string too_large(std::size_t bytes)
{
    return "the document takes " + std::to_string(bytes) +
           " bytes as UTF-16LE, and no host opens more than " + std::to_string(XIni::kMostBytes);
}

XIni read_again(const std::string& bytes)
{
    XIni ini;
    ini.OpenMemory(reinterpret_cast<const unsigned char*>(bytes.data()), static_cast<int>(bytes.size()));
    return ini;
}

Result set(const Call& call)
{
    XIni ini;
    open(ini, call);
    const SectionName section(call.operands[1]);
    const std::wstring key = to_wide(call.operands[2]);
    const std::wstring value = to_wide(call.operands[3]);
    if (!ini.SetStr(section.get(), key.c_str(), value.c_str()))
        throw Failure{Status::usage, call.operands[0],
                      "has no default section to write into: no section is called Text"};
    std::string bytes = ini.Serialize();
    XIni again = read_again(bytes);
    CString kept;
    if (!again.GetStr2(section.get(), key.c_str(), kept, L"") || view(kept) != value)
        throw Failure{Status::usage, call.operands[0], why_not_kept(call)};
    if (bytes.size() > XIni::kMostBytes)
        throw Failure{Status::unwritten, call.operands[0], too_large(bytes.size())};
    note_losses(ini, again, call);
    return {Status::done, std::move(bytes), call.operands[0]};
}

Result convert(const Call& call)
{
    XIni ini;
    open(ini, call);
    std::string bytes = ini.Serialize();
    XIni again = read_again(bytes);
    note_losses(ini, again, call);
    if (bytes.size() > XIni::kMostBytes)
        call.note(call.operands[0], too_large(bytes.size()));
    return {Status::done, std::move(bytes)};
}

constexpr Command commands[] = {
    {"show", "prints every section, key and value of an INI document", show_operands, show_options,
     "Prints a document as a host reads it: sections and keys in ordinal order, the last of several values, "
     "comments "
     "left out. FILE is UTF-16LE with its byte-order mark, or 8-bit text in a code page, of at most 5242880 "
     "bytes.",
     "one line for each entry, [SECTION] KEY = \"VALUE\", and the line [SECTION] for a section without "
     "entries. "
     "Everything between the first and the last quote is the value as it stands.",
     "{\"file\":FILE,\"open\":1,\"is_opened\":1,\"default_section\":NAME or null,"
     "\"sections\":[{\"name\":NAME,\"entries\":[[KEY,VALUE],...]},...]}; is_opened is 0 for a file of fewer "
     "than two "
     "bytes, which holds no text.",
     show_examples, show},
    {"get", "prints the value of one key", get_operands, get_options,
     "Prints one value as a host's look-up gives it. Without --default a missing value is no output and exit "
     "status 1.",
     "the value and a line feed.", "the value as one JSON text; null for a missing one.", get_examples, get},
    {"set", "changes or adds one value and writes the document back", set_operands, set_options,
     "Sets one value, making the section and the key when they are missing, and writes the whole document as "
     "a host "
     "saves it: UTF-16LE, sorted, values quoted, without comments. The file is replaced whole or not at all. "
     "A name or "
     "value that would not read back the same, such as one with a line break, is refused with exit status 2.",
     "the bytes of the document.", "", set_examples, set},
    {"convert", "rewrites a document as UTF-16LE, sorted and quoted", show_operands, convert_options,
     "Opens and saves a document as a host does. Comments, the order of the source and text before the first "
     "section "
     "are not kept; an entry that cannot be written so that it reads back is reported on standard error.",
     "the bytes of the document, whatever the format.", "", convert_examples, convert},
};
} // namespace

std::span<const Command> ini_commands() { return commands; }
} // namespace cli

#include "cli/groups.h"
#include "cli/json.h"
#include "cli/message_files.h"
#include "cli/message_stats.h"
#include "cli/text.h"
#include "tarvo/text/Units.h"

namespace cli
{
namespace
{
constexpr Operand files_operand = {
    "FILE", Value::file,
    "message files in the order in which a host loads them, the first text of a key counts; - reads standard "
    "input",
    true};
constexpr Operand key_operand = {"KEY", Value::text, "the key, letter case included"};
constexpr Option reader_option = {
    "reader", '\0', Value::choice, "primary|fallback",
    "primary, the default, reads UTF-16LE behind its mark and 8-bit text, in pieces of at most 4096 "
    "characters; fallback reads bytes, at most 1023 a line"};
constexpr Option page_option = {
    "code-page", '\0', Value::page, "N",
    "the code page of 8-bit files; 0, the default, is the ANSI code page, as for a host whose profile does "
    "not ask for the language's"};

constexpr Operand show_operands[] = {files_operand};
constexpr Option show_options[] = {
    reader_option, {"font", '\0', Value::file, "FILE", "a language's font file, shown as well"}, page_option};
constexpr Example show_examples[] = {
    {"what two versions of a Korean message file say differently",
     "diff <(tarvo messages show --code-page 949 old.ini) <(tarvo messages show --code-page 949 new.ini)"},
    {"a language as a host with two modules has it",
     "tarvo messages show Steel_kr.ini Deck_kr.ini --font Font_kr.ini"},
};

constexpr Operand get_operands[] = {key_operand, files_operand};
constexpr Option get_options[] = {reader_option, page_option};
constexpr Example get_examples[] = {
    {"one text", "tarvo messages get IDS_SAVE_FAILED Steel_kr.ini"},
};

constexpr Operand stats_operands[] = {files_operand};
constexpr Example stats_examples[] = {
    {"the keys that some language lacks", "tarvo messages stats Language/*/Steel_*.ini | grep '^partial'"},
};

std::unique_ptr<Catalogue> load(const Call& call, std::size_t first_file)
{
    std::unique_ptr<Catalogue> catalogue = Catalogue::open(call);
    if (const std::string* font = call.option("font"))
        catalogue->read_font(*font);
    for (std::size_t at = first_file; at < call.operands.size(); ++at)
        catalogue->add(call.operands[at]);
    return catalogue;
}

/// A text as a message file spells it, on one line.
CString spelled(units::view value)
{
    CString text = units::to_string(value);
    text.Replace(L"\\", L"\\\\");
    text.Replace(L"\"", L"\"\"");
    text.Replace(L"\n", L"\\n");
    text.Replace(L"\t", L"\\t");
    text.Replace(L"\r", L"\\r");
    return text;
}

std::string text_of(const Catalogue& catalogue, const Call& call)
{
    std::string text;
    for (const CMessageStore::Message& message : catalogue.store().Sorted())
    {
        text += painted(call.color_data, Color::name, to_utf8(view(units::to_string(message.key))));
        text += " = \"" + to_utf8(view(spelled(message.value))) + "\"\n";
    }
    if (call.option("font"))
        text += "; font \"" + to_utf8(view(catalogue.font())) + "\" size " +
                std::to_string(catalogue.font_size()) + "\n";
    return text;
}

std::string json_of(const Catalogue& catalogue)
{
    JsonWriter json;
    json.begin_object().key("entries").begin_array();
    for (const CMessageStore::Message& message : catalogue.store().Sorted())
        json.begin_array()
            .text(view(units::to_string(message.key)))
            .text(view(units::to_string(message.value)))
            .end_array();
    json.end_array().key("font").text(view(catalogue.font())).key("font_size").number(catalogue.font_size());
    return json.end_object().take();
}

Result show(const Call& call)
{
    const auto catalogue = load(call, 0);
    return {Status::done, call.format == Format::json ? json_of(*catalogue) : text_of(*catalogue, call)};
}

Result get(const Call& call)
{
    const auto catalogue = load(call, 1);
    const std::wstring key = to_wide(call.operands[0]);
    const auto value = catalogue->store().Find(units::asked(key));
    const std::wstring text = value ? std::wstring(view(units::to_string(*value))) : key + L" :";
    return {value ? Status::done : Status::found,
            call.format == Format::json ? JsonWriter().text(text).take() : to_utf8(text) + "\n"};
}

constexpr Command commands[] = {
    {"show", "prints the key and the text of every message", show_operands, show_options,
     "Prints the messages of the files as a host's catalogue holds them: keys in ordinal order, remarks, "
     "comments and sections left out, escapes replaced.",
     "one line for each message, KEY = \"TEXT\", the text spelled with the escapes of a message file; with "
     "--font a last line ; font \"NAME\" size N.",
     "{\"entries\":[[KEY,TEXT],...],\"font\":NAME,\"font_size\":N}; without --font the name is empty and the "
     "size 0.",
     show_examples, show},
    {"get", "prints the text of one key", get_operands, get_options,
     "Prints one text as a host shows it. An unknown key shows as itself, followed by a blank and a colon, "
     "with exit status 1.",
     "the text and a line feed.", "the text as one JSON text.", get_examples, get},
    {"stats", "counts keys and duplicates, and lists keys that some language lacks", stats_operands,
     get_options,
     "Counts what the files hold. The language of a file is the suffix of its name (Steel_kr.ini: _kr); one "
     "without such a suffix is a language of its own. All files of a language together have one set of keys, "
     "as in a host; a duplicate is a text of a key that has one already.",
     "for each file the line file NAME language L keys N duplicates N bytes N, for each language the line "
     "language L files N keys N duplicates N, and for each key that not all languages have partial KEY in "
     "L... missing L...",
     "{\"files\":[{\"file\":FILE,\"language\":L,\"keys\":N,\"duplicates\":N,\"bytes\":N},...],"
     "\"languages\":[{\"language\":L,\"files\":N,\"keys\":N,\"duplicates\":N},...],"
     "\"partial\":[{\"key\":KEY,\"in\":[L,...],\"missing\":[L,...]},...]}",
     stats_examples, message_stats},
};
} // namespace

std::span<const Command> messages_commands() { return commands; }
} // namespace cli

#include "cli/groups.h"
#include "cli/input.h"
#include "cli/json.h"
#include "cli/text.h"
#include "platform/codepage.h"
#include "tarvo/lang/ResourceHeader.h"

namespace cli
{
namespace
{
constexpr Operand show_operands[] = {
    {"FILE", Value::file, "the resource header; - reads standard input, in the memory form only"}};
constexpr Option show_options[] = {{"form", '\0', Value::choice, "memory|file",
                                    "memory, the default, reads the header as a host reads it from a "
                                    "module's resource: the text, by its mark "
                                    "(UTF-16LE, UTF-16BE or UTF-8) or else in the ANSI code page, is handed "
                                    "over as UTF-16; file reads it as a host "
                                    "reads a header file, byte by byte, without ID names that begin with "
                                    "IDM_ and without the standard buttons"}};
constexpr Example show_examples[] = {
    {"the names that share the value 1001", "tarvo header show resource.h | grep ' 1001 '"},
    {"a header in Japanese comments, read on an English machine", "tarvo header show --ansi 932 resource.h"},
};

struct Table
{
    std::string_view name;
    CResourceHeader::Kind kind;
};
constexpr Table tables[] = {{"all", CResourceHeader::All},
                            {"control", CResourceHeader::Control},
                            {"dialog", CResourceHeader::Dialog},
                            {"resource", CResourceHeader::Resource},
                            {"menu", CResourceHeader::Menu}};

/// The library's own bound for a header file.
constexpr std::uint64_t most_bytes = 256u * 1024 * 1024;

/// The text of a header as an editor would show it: by its mark, else in the ANSI code page.
std::wstring decoded(std::string_view bytes)
{
    namespace codepage = platform::codepage;
    if (bytes.starts_with("\xFF\xFE"))
        return codepage::from_utf16le(bytes.substr(2));
    if (bytes.starts_with("\xFE\xFF"))
    {
        std::string swapped(bytes.substr(2));
        for (std::size_t at = 1; at < swapped.size(); at += 2)
            std::swap(swapped[at - 1], swapped[at]);
        return codepage::from_utf16le(swapped);
    }
    if (bytes.starts_with("\xEF\xBB\xBF"))
        return to_wide(bytes.substr(3));
    return codepage::decode(codepage::ansi, bytes).value_or(L"");
}

void load_memory(CResourceHeader& header, const std::string& file, const Call& call)
{
    const std::wstring text = decoded(read_input(file, most_bytes));
    const std::string units = platform::codepage::to_utf16le(text);
    header.LoadMemory(reinterpret_cast<const unsigned char*>(units.data()), static_cast<int>(text.size()));
    if (text.find(L'\0') != std::wstring::npos)
        call.note(file, "holds NULs, which end a definition; is it UTF-16 without its mark?");
}

void load_file(CResourceHeader& header, const std::string& file)
{
    if (file == "-")
        throw Failure{Status::usage, "header show",
                      "--form file reads a file by its name, not standard input"};
    if (!header.LoadFile(to_wide(file).c_str()))
        unreadable(file, most_bytes);
}

std::string json_of(const CResourceHeader& header)
{
    JsonWriter json;
    json.begin_object();
    for (const Table& table : tables)
    {
        json.key(table.name).begin_array();
        for (const CResourceHeader::Entry& entry : header.GetTable(table.kind))
        {
            json.begin_array().text(view(entry.strValue)).begin_array();
            for (const CString& name : entry.arrNames)
                json.text(view(name));
            json.end_array().end_array();
        }
        json.end_array();
    }
    return json.end_object().take();
}

std::string text_of(const CResourceHeader& header, bool color)
{
    std::string text;
    for (const Table& table : tables)
    {
        const std::string name = painted(color, Color::section, table.name);
        for (const CResourceHeader::Entry& entry : header.GetTable(table.kind))
        {
            text.append(name).append(" ");
            append_utf8(text, view(entry.strValue));
            for (const CString& symbol : entry.arrNames)
            {
                text += ' ';
                append_utf8(text, view(symbol));
            }
            text += '\n';
        }
    }
    return text;
}

Result show(const Call& call)
{
    CResourceHeader header;
    const std::string* const form = call.option("form");
    const std::string& file = call.operands[0];
    if (form != nullptr && *form == "file")
        load_file(header, file);
    else
        load_memory(header, file, call);
    return {Status::done, call.format == Format::json ? json_of(header) : text_of(header, call.color_data)};
}

constexpr Command commands[] = {
    {"show", "prints the five tables of a resource header", show_operands, show_options,
     "Prints the tables that a language table makes of a module's resource header: all names, and the names "
     "of "
     "controls (IDC_), dialogs (IDD_), resources (IDR_) and menus (ID_, IDM_). Values are the texts of the "
     "header in "
     "ordinal order; of several names with one value the first is used for translation.",
     "one line for each value, TABLE VALUE NAME..., TABLE being all, control, dialog, resource or menu.",
     "{\"all\":[[VALUE,[NAME,...]],...],\"control\":[...],\"dialog\":[...],\"resource\":[...],\"menu\":[...]"
     "}",
     show_examples, show},
};
} // namespace

std::span<const Command> header_commands() { return commands; }
} // namespace cli

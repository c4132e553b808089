#include "cli/rc_comparison.h"
#include "cli/text.h"

#include <utility>

namespace cli
{
namespace
{
/// A path as a relative URI reference: what is no plain character of one is escaped byte by byte.
std::string uri_of(std::string_view path)
{
    constexpr std::string_view plain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-._~/";
    constexpr char digits[] = "0123456789ABCDEF";
    std::string uri;
    for (const char c : path)
        if (c == '\\')
            uri += '/';
        else if (plain.find(c) != std::string_view::npos)
            uri += c;
        else
            uri.append({'%', digits[static_cast<unsigned char>(c) >> 4], digits[c & 0xF]});
    return uri;
}

void add_rule(JsonWriter& json, std::string_view id, std::string_view help)
{
    json.begin_object().key("id").text(to_wide(id)).key("shortDescription").begin_object();
    json.key("text").text(to_wide(help)).end_object().end_object();
}

void add_tool(JsonWriter& json)
{
    json.key("tool").begin_object().key("driver").begin_object().key("name").text(L"tarvo");
    json.key("version").text(to_wide(program_version)).key("rules").begin_array();
    for (int rule = 0; rule < static_cast<int>(ResRule::Count); ++rule)
        add_rule(json, ResourceRule(static_cast<ResRule>(rule)).m_pszName,
                 ResourceRule(static_cast<ResRule>(rule)).m_pszHelp);
    add_rule(json, missing_rule, missing_help);
    json.end_array().end_object().end_object();
}

void add_place(JsonWriter& json, const std::string& file, std::size_t line)
{
    json.key("physicalLocation").begin_object().key("artifactLocation").begin_object();
    json.key("uri").text(to_wide(uri_of(file))).end_object();
    if (line != 0)
        json.key("region").begin_object().key("startLine").number(static_cast<long long>(line)).end_object();
    json.end_object();
}

void add_name(JsonWriter& json, const FindingRow& row)
{
    if (row.resource.empty())
        return;
    json.key("logicalLocations").begin_array().begin_object();
    json.key("name").text(to_wide(row.item.empty() ? row.resource : row.item));
    json.key("fullyQualifiedName")
        .text(to_wide(row.item.empty() ? row.resource : row.resource + "/" + row.item));
    json.end_object().end_array();
}

void add_result(JsonWriter& json, const FindingRow& row)
{
    json.begin_object().key("ruleId").text(to_wide(row.rule)).key("level").text(L"warning");
    json.key("message").begin_object().key("text").text(to_wide(row.text)).end_object();
    // The translation is what has to be mended, so it is the place of the finding.
    json.key("locations").begin_array().begin_object();
    add_place(json, row.file2, row.line2);
    add_name(json, row);
    json.end_object().end_array();
    json.key("relatedLocations").begin_array().begin_object();
    add_place(json, row.file1, row.line1);
    json.key("message").begin_object().key("text").text(L"the original").end_object();
    json.end_object().end_array().end_object();
}
} // namespace

std::string sarif_of(std::span<const Comparison> comparisons)
{
    JsonWriter json;
    json.begin_object().key("$schema").text(L"https://json.schemastore.org/sarif-2.1.0.json");
    json.key("version").text(L"2.1.0").key("runs").begin_array().begin_object();
    add_tool(json);
    json.key("columnKind").text(L"utf16CodeUnits").key("results").begin_array();
    for (const Comparison& comparison : comparisons)
        for (const FindingRow& row : finding_rows(comparison))
            add_result(json, row);
    return json.end_array().end_object().end_array().end_object().take();
}
} // namespace cli

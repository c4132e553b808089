#include "cli/rc_comparison.h"
#include "cli/text.h"

#include <algorithm>

namespace cli
{
namespace
{

void add_findings(JsonWriter& json, const Comparison& comparison)
{
    json.key("findings").begin_array();
    for (const CResFinding& finding : comparison.findings)
    {
        json.begin_object().key("rule").text(to_wide(ResourceRule(finding.m_rule).m_pszName));
        add_text(json.key("resource"), finding.m_strResource);
        add_text(json.key("item"), finding.m_strItem);
        json.key("line1").number(static_cast<long long>(finding.m_nLine1));
        json.key("line2").number(static_cast<long long>(finding.m_nLine2));
        add_text(json.key("text"), finding.m_strText).end_object();
    }
    json.end_array();
}

void add_report(JsonWriter& json, const Comparison& comparison)
{
    json.key("report").text(view(comparison.report));
    json.key("log").text(view(comparison.one.log + comparison.two.log));
}

std::string folders_json(const std::vector<Comparison>& comparisons)
{
    JsonWriter json;
    json.begin_object().key("files").begin_array();
    for (const Comparison& comparison : comparisons)
        if (!comparison.is_missing)
        {
            json.begin_object().key("file").text(to_wide(comparison.name));
            add_report(json, comparison);
            add_findings(json, comparison);
            json.end_object();
        }
    json.end_array().key("missing").begin_array();
    for (const Comparison& comparison : comparisons)
        if (comparison.is_missing)
            json.text(to_wide(comparison.name));
    return json.end_array().end_object().take();
}

std::string folders_text(const std::vector<Comparison>& comparisons)
{
    std::string text;
    for (const Comparison& comparison : comparisons)
        if (comparison.is_missing)
            text += "Couldn't find script: " + comparison.name + " in folder 2\n\n";
        else
            text +=
                "Comparing scripts: " + comparison.name + '\n' + with_line_feeds(comparison.report) + '\n';
    return text;
}

std::string written(const std::vector<Comparison>& comparisons, bool are_folders, const std::string& format)
{
    if (format == "sarif")
        return sarif_of(comparisons);
    if (format == "junit")
        return junit_of(comparisons);
    if (format == "html")
        return html_of(comparisons);
    if (are_folders)
        return format == "json" ? folders_json(comparisons) : folders_text(comparisons);
    if (format != "json")
        return with_line_feeds(comparisons[0].report);
    JsonWriter json;
    add_report(json.begin_object(), comparisons[0]);
    return json.end_object().take();
}
} // namespace

void perform(Comparison& comparison, const Call& call)
{
    comparison.one = read_script(comparison.file1, call.option("language1"));
    comparison.two = read_script(comparison.file2, call.option("language2"));
    CompareResources(comparison.one.resources, comparison.two.resources, comparison.report, check_mode(call),
                     &comparison.findings);
}

std::vector<FindingRow> finding_rows(const Comparison& comparison)
{
    if (comparison.is_missing)
        return {{std::string(missing_rule),
                 comparison.file1,
                 comparison.file2,
                 {},
                 {},
                 0,
                 0,
                 "Couldn't find script: " + comparison.name + " in folder 2"}};
    std::vector<FindingRow> rows;
    for (const CResFinding& finding : comparison.findings)
        rows.push_back({ResourceRule(finding.m_rule).m_pszName, comparison.file1, comparison.file2,
                        to_utf8(finding.m_strResource), to_utf8(finding.m_strItem), finding.m_nLine1,
                        finding.m_nLine2, to_utf8(CResText(finding.m_strText))});
    return rows;
}

std::string marked_up(std::string_view text)
{
    std::string out;
    for (const char c : text)
        switch (c)
        {
        case '&':
            out += "&amp;";
            break;
        case '<':
            out += "&lt;";
            break;
        case '>':
            out += "&gt;";
            break;
        case '"':
            out += "&quot;";
            break;
        default:
            if (static_cast<unsigned char>(c) < 0x20 && c != '\t' && c != '\n' && c != '\r')
                out += "\xEF\xBF\xBD";
            else
                out += c;
        }
    return out;
}

Result compare_scripts(const Call& call)
{
    const bool are_folders = is_folder(call.operands[0]) && is_folder(call.operands[1]);
    if (call.operands[0] == "-" && call.operands[1] == "-")
        throw Failure{Status::usage, "rc", "standard input can be one script, not both"};
    std::vector<Comparison> comparisons;
    if (are_folders)
        comparisons = compare_folders(call);
    else
    {
        comparisons.emplace_back();
        comparisons[0].name = comparisons[0].file2 = call.operands[1];
        comparisons[0].file1 = call.operands[0];
        perform(comparisons[0], call);
    }
    const bool is_same = std::ranges::all_of(comparisons, [](const Comparison& comparison) {
        return !comparison.is_missing && comparison.findings.empty();
    });
    const std::string* const format = call.option("format");
    return {is_same ? Status::done : Status::found,
            written(comparisons, are_folders, format == nullptr ? "text" : *format)};
}
} // namespace cli

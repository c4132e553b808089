#include "cli/rc_comparison.h"

namespace cli
{
namespace
{
std::string attribute(std::string_view name, std::string_view value)
{
    return std::string(" ").append(name).append("=\"").append(marked_up(value)).append("\"");
}

std::string case_of(const Comparison& comparison, const FindingRow& row)
{
    std::string name = row.rule;
    for (const std::string* part : {&row.resource, &row.item})
        if (!part->empty())
            name += ' ' + *part;
    std::string text = "    <testcase" + attribute("classname", comparison.name) + attribute("name", name) +
                       attribute("file", row.file2);
    if (row.line2 != 0)
        text += attribute("line", std::to_string(row.line2));
    return text + ">\n      <failure" + attribute("type", row.rule) + attribute("message", row.text) + ">" +
           marked_up(row.file1) + ":" + std::to_string(row.line1) + "\n" + marked_up(row.file2) + ":" +
           std::to_string(row.line2) + "</failure>\n    </testcase>\n";
}
} // namespace

std::string junit_of(std::span<const Comparison> comparisons)
{
    std::string suites;
    std::size_t failures = 0, tests = 0;
    for (const Comparison& comparison : comparisons)
    {
        const std::vector<FindingRow> rows = finding_rows(comparison);
        // A suite without a test would look as if nothing had been compared.
        const std::size_t count = rows.empty() ? 1 : rows.size();
        suites += "  <testsuite" + attribute("name", comparison.name) +
                  attribute("tests", std::to_string(count)) +
                  attribute("failures", std::to_string(rows.size())) + ">\n";
        if (rows.empty())
            suites += "    <testcase" + attribute("classname", comparison.name) +
                      attribute("name", "comparison") + attribute("file", comparison.file2) + "/>\n";
        for (const FindingRow& row : rows)
            suites += case_of(comparison, row);
        suites += "  </testsuite>\n";
        failures += rows.size();
        tests += count;
    }
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuites" + attribute("name", "tarvo rc compare") +
           attribute("tests", std::to_string(tests)) + attribute("failures", std::to_string(failures)) +
           ">\n" + suites + "</testsuites>\n";
}
} // namespace cli

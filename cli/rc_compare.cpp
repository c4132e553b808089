#include "cli/rc_script.h"
#include "cli/text.h"
#include "tarvo/restools/CompareResources.h"

namespace cli
{
Result compare_scripts(const Call& call)
{
    const auto [one, two] = read_scripts(call);
    CString report;
    std::vector<CResFinding> findings;
    CompareResources(one.resources, two.resources, report, check_mode(call), &findings);
    const Status status = findings.empty() ? Status::done : Status::found;
    if (call.format != Format::json)
        return {status, with_line_feeds(report)};
    JsonWriter json;
    json.begin_object().key("report").text(view(report)).key("log").text(view(one.log + two.log));
    return {status, json.end_object().take()};
}
} // namespace cli

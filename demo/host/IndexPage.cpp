#include "demo/host/IndexPage.h"

#include "demo/host/Languages.h"

#include <algorithm>
#include <cwchar>
#include <windows.h>

namespace
{
constexpr const char* kHead = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>TarvoDemo: every window in every language</title>
<style>
:root { --width: 330px; color-scheme: light; }
body { margin: 0; font: 14px/1.5 "Segoe UI", "Noto Sans", "Noto Sans CJK SC", sans-serif; color: #1d2733; background: #eef1f5; }
header { padding: 20px 28px 14px; background: #17324d; color: #fff; }
h1 { margin: 0 0 4px; font-size: 22px; font-weight: 600; }
header p { margin: 0; max-width: 70em; color: #c9d6e4; }
header label { display: inline-block; margin-top: 10px; color: #c9d6e4; }
input { vertical-align: middle; width: 220px; }
table { border-collapse: separate; border-spacing: 0; margin: 16px 28px 28px; }
th, td { padding: 10px 12px; vertical-align: top; text-align: left; border-bottom: 1px solid #d5dce4; background: #fff; }
thead th { position: sticky; top: 0; z-index: 2; background: #dfe7f0; }
tbody th { position: sticky; left: 0; z-index: 1; font: 600 13px ui-monospace, Consolas, monospace; background: #f6f8fb; }
thead th:first-child { left: 0; z-index: 3; }
img { display: block; width: var(--width); height: auto; border: 1px solid #b9c4d0; box-shadow: 0 2px 6px #17324d26; }
.counts { margin-top: 6px; white-space: nowrap; font-size: 12px; }
.counts span { display: inline-block; margin-right: 4px; padding: 1px 8px; border-radius: 9px; }
.t { background: #d9f0de; color: #14532d; } .f { background: #fdeac1; color: #6b4a00; } .m { background: #fbd8d4; color: #7f1d12; }
.zero { opacity: .35; } .failed { color: #b42318; font-weight: 600; }
</style>
</head>
<body>
)";

constexpr const char* kFoot = R"(</table>
<script>
document.getElementById("size").addEventListener("input", event =>
    document.documentElement.style.setProperty("--width", event.target.value + "px"));
</script>
</body>
</html>
)";

std::string escaped(const std::wstring& text)
{
    std::string result;
    for (const char c : to_utf8(text))
    {
        switch (c)
        {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '"':
            result += "&quot;";
            break;
        default:
            result += c;
        }
    }
    return result;
}

/// The values of the member in the order in which they are first met.
template <class T>
std::vector<T> distinct(const std::vector<WindowReport>& reports, T WindowReport::*member)
{
    std::vector<T> values;
    for (const WindowReport& report : reports)
    {
        if (std::find(values.begin(), values.end(), report.*member) == values.end())
            values.push_back(report.*member);
    }
    return values;
}

std::string badge(const char* kind, int count, const char* what)
{
    return std::string("<span class=\"") + kind + (count == 0 ? " zero" : "") + "\">" +
           std::to_string(count) + " " + what + "</span>";
}

std::string cell(const WindowReport& report)
{
    if (!report.opened)
        return "<td class=\"failed\">did not come up</td>";
    const std::string file = escaped(report.file);
    std::string result = "<td><a href=\"" + file + "\"><img src=\"" + file + "\" alt=\"" +
                         escaped(report.window) + ", " + escaped(kLanguages[report.language].name) +
                         "\"></a><div class=\"counts\">" + badge("t", report.translated, "translated") +
                         badge("f", report.fallback, "fallback") + badge("m", report.missing, "missing") +
                         "</div>";
    for (const std::wstring& text : report.cutTexts)
        result += "<div class=\"failed\">cut off: " + escaped(text) + "</div>";
    return result + "</td>";
}

std::string picture(const std::wstring& file, const std::string& title)
{
    const std::string name = escaped(file);
    return "<div>" + title + "</div><a href=\"" + name + "\"><img src=\"" + name + "\" alt=\"" + title +
           "\"></a>";
}

std::string change_cell(const LanguageReport& report)
{
    if (!report.opened)
        return "<td class=\"failed\">did not come up</td>";
    std::string cell = "<td>" + picture(report.before, "before: " + escaped(kLanguages[report.former].name)) +
                       picture(report.after, "after: " + escaped(kLanguages[report.language].name)) +
                       "<div class=\"counts\">" + badge("t", report.changed, "changed") +
                       badge("m", static_cast<int>(report.left.size()), "left") + "of " +
                       std::to_string(report.controls) + " controls</div>";
    for (const std::wstring& text : report.left)
        cell += "<div class=\"failed\">" + escaped(text) + "</div>";
    return cell + "<div>" + escaped(report.font) + " &rarr; " + escaped(report.mapped) + "<br>" +
           escaped(report.dialogFont) + " &rarr; " + escaped(report.dialogMapped) + "</div></td>";
}
} // namespace

std::vector<std::wstring> language_lines(const LanguageReport& report)
{
    const std::wstring language = kLanguages[report.language].name;
    const std::wstring indent = language + std::wstring(10 - language.size(), L' ');
    if (!report.opened)
        return {indent + L"the windows to switch did not come up"};
    std::vector<std::wstring> lines{
        indent + L"font of texts          " + report.font + L" is " + report.mapped,
        indent + L"font of dialogs        " + report.dialogFont + L" is " + report.dialogMapped,
        indent + L"switched from " + kLanguages[report.former].name + L": " +
            std::to_wstring(report.controls) + L" controls, " + std::to_wstring(report.changed) +
            L" texts changed, " + std::to_wstring(report.left.size()) + L" left"};
    for (const std::wstring& text : report.left)
        lines.push_back(L"          left: " + text);
    return lines;
}

std::string to_utf8(const std::wstring& text)
{
    const int length = static_cast<int>(text.size());
    std::string result(static_cast<std::size_t>(length) * 3, '\0');
    result.resize(static_cast<std::size_t>(WideCharToMultiByte(
        CP_UTF8, 0, text.data(), length, result.data(), static_cast<int>(result.size()), nullptr, nullptr)));
    return result;
}

std::wstring report_line(const WindowReport& report)
{
    wchar_t line[256];
    if (report.opened)
        std::swprintf(line, 256, L"%-9ls %-22ls %3d translated %3d fallback %3d missing",
                      kLanguages[report.language].name, report.window.c_str(), report.translated,
                      report.fallback, report.missing);
    else
        std::swprintf(line, 256, L"%-9ls %-22ls did not come up", kLanguages[report.language].name,
                      report.window.c_str());
    return line;
}

std::string index_page(const std::vector<WindowReport>& reports, const std::vector<LanguageReport>& changes)
{
    const std::vector<std::wstring> windows = distinct(reports, &WindowReport::window);
    const std::vector<int> languages = distinct(reports, &WindowReport::language);
    std::string page = kHead;
    page +=
        "<header>\n<h1>TarvoDemo: every window in every language</h1>\n"
        "<p>Real windows, translated by the library from the language files. <b>Translated</b> texts come "
        "from the dialog's own section of the language's file, <b>fallback</b> texts from the section "
        "that dialogs share or from the file for Global, and <b>missing</b> ones stay as the resource has "
        "them; a few are missing on purpose.</p>\n"
        "<label>Picture size <input id=\"size\" type=\"range\" min=\"160\" max=\"700\" value=\"330\">"
        "</label>\n</header>\n<table>\n<thead><tr><th>Window</th>";
    for (const int language : languages)
    {
        const DemoLanguage& entry = kLanguages[language];
        const bool same = std::wstring(entry.name) == entry.ownName;
        page += "<th>" + escaped(entry.name) + (same ? "" : " &middot; " + escaped(entry.ownName)) + "</th>";
    }
    page += "</tr></thead>\n";
    for (const std::wstring& window : windows)
    {
        page += "<tr><th>" + escaped(window) + "</th>\n";
        for (const int language : languages)
        {
            const auto at = std::find_if(reports.begin(), reports.end(), [&](const WindowReport& report) {
                return report.window == window && report.language == language;
            });
            page += at == reports.end() ? std::string("<td></td>") : cell(*at);
            page += "\n";
        }
        page += "</tr>\n";
    }
    if (!changes.empty())
        page += "<tr><th>All open windows, when the language changes</th>\n";
    for (const LanguageReport& change : changes)
        page += change_cell(change) + "\n";
    return page + (changes.empty() ? "" : "</tr>\n") + kFoot;
}

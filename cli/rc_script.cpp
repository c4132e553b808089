#include "cli/rc_script.h"

#include "cli/input.h"
#include "cli/text.h"
#include "tarvo/text/Units.h"

#include <algorithm>
#include <array>
#include <new>

namespace cli
{
namespace
{
constexpr std::array<std::string_view, 5> mode_names = {"none", "percent", "backslash", "both", "full"};
}

Script read_script(const std::string& name, const std::string* language)
{
    Script script;
    CStringArray languages;
    const std::wstring filter = language == nullptr ? std::wstring() : to_wide(*language);
    if (name == "-")
    {
        const std::string bytes = read_input(name, CResources::MaxFileSize);
        script.log = L"Reading -\r\n";
        if (!script.resources.ReadMemory(bytes, script.log, filter.c_str(), languages))
            throw std::bad_alloc();
    }
    else if (!script.resources.Read(to_wide(name).c_str(), script.log, filter.c_str(), languages))
        unreadable(name, CResources::MaxFileSize);
    for (INT_PTR i = 0; i < languages.GetSize(); ++i)
        script.languages.push_back(languages[i]);
    return script;
}

ScriptPair read_scripts(const Call& call)
{
    if (call.operands[0] == "-" && call.operands[1] == "-")
        throw Failure{Status::usage, "rc", "standard input can be one script, not both"};
    return {read_script(call.operands[0], call.option("language1")),
            read_script(call.operands[1], call.option("language2"))};
}

StringCheck check_mode(const Call& call)
{
    const std::string* const name = call.option("check");
    if (name == nullptr)
        return StringCheck::Both;
    return static_cast<StringCheck>(std::ranges::find(mode_names, *name) - mode_names.begin());
}

std::string to_utf8(CResText text) { return to_utf8(std::wstring(text.begin(), text.end())); }

JsonWriter& add_text(JsonWriter& json, CResText text)
{
    return json.text(std::wstring(text.begin(), text.end()));
}

std::string with_line_feeds(const CString& text)
{
    CString lines = text;
    lines.Replace(L"\r\n", L"\n");
    return to_utf8(view(lines));
}

std::string listing(const Call& call, const CString& text, std::string_view key)
{
    if (call.format != Format::json)
        return with_line_feeds(text);
    return JsonWriter().begin_object().key(key).text(view(text)).end_object().take();
}
} // namespace cli

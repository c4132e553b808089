#include "tests/demo/MessageFiles.h"

#include "demo/host/MessageModules.h"
#include "platform/codepage.h"
#include "platform/file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <regex>

namespace message_files
{
namespace
{
std::vector<std::wstring> lines_of(const std::wstring& text)
{
    std::vector<std::wstring> lines;
    for (std::size_t at = 0; at < text.size();)
    {
        const std::size_t end = std::min(text.find(L'\n', at), text.size());
        lines.push_back(text.substr(at, end - at));
        if (lines.back().ends_with(L'\r'))
            lines.back().pop_back();
        at = end + 1;
    }
    return lines;
}

std::vector<std::pair<std::wstring, std::wstring>> read_entries(const wchar_t* module,
                                                                const Language& language)
{
    static const std::wregex entry(L"^(?:.*/\\*\\*/)?(\\w+) = \"(.*)\"$");
    const std::string bytes = read_bytes(language, std::wstring(module) + language.suffix + L".ini");
    const std::wstring text = bytes.starts_with("\xFF\xFE")
                                  ? platform::codepage::from_utf16le(bytes.substr(2))
                                  : platform::codepage::decode(language.codePage, bytes).value_or(L"");
    std::vector<std::pair<std::wstring, std::wstring>> entries;
    std::wsmatch match;
    for (const std::wstring& line : lines_of(text))
    {
        const bool other = line.empty() || line.starts_with(L';') || line.starts_with(L'[');
        if (std::regex_match(line, match, entry))
            entries.emplace_back(match[1], match[2]);
        else
            EXPECT_TRUE(other) << testing::PrintToString(line);
    }
    return entries;
}
} // namespace

std::wstring source_path(const std::wstring& path)
{
    const char* folder = std::getenv("TARVO_TEST_SOURCE_DIR");
    std::wstring whole =
        (folder ? *platform::codepage::decode(platform::codepage::utf8, folder) : L".") + L"/" + path;
    std::replace(whole.begin(), whole.end(), L'/', platform::file::separator);
    return whole;
}

std::string read_bytes(const Language& language, const std::wstring& file)
{
    const std::wstring path =
        source_path(std::wstring(L"demo/host/Language/") + language.folder + L"/" + file);
    const auto bytes = platform::file::read_whole(path.c_str(), 1 << 20);
    EXPECT_TRUE(bytes) << testing::PrintToString(path);
    return bytes.value_or("");
}

std::vector<std::wstring> read_keys(const wchar_t* module, const Language& language)
{
    std::vector<std::wstring> keys;
    for (const auto& [key, text] : read_entries(module, language))
        keys.push_back(key);
    return keys;
}

Texts load_module(const wchar_t* module, const Language& language)
{
    const auto entries = read_entries(module, language);
    return {entries.begin(), entries.end()};
}

Texts load_all(const Language& language)
{
    Texts all;
    for (const wchar_t* const module : kMessageModules)
        all.merge(load_module(module, language));
    return all;
}

Texts load_script()
{
    static const std::wregex dialogLine(L"^(IDD_\\w+) DIALOGEX.*");
    static const std::wregex captionLine(L"^CAPTION \"(.*)\"$");
    static const std::wregex controlLine(L"^\\s.*?\"([^\"]+)\", (ID\\w*).*");
    const auto bytes =
        platform::file::read_whole(source_path(L"demo/host/International.rc").c_str(), 1 << 20);
    static const std::wregex stringLine(L"^\\s+(IDS_\\w+) \"(.*)\"$");
    Texts texts;
    std::wstring dialog;
    std::wsmatch match;
    for (const std::wstring& line :
         lines_of(platform::codepage::decode(platform::codepage::utf8, bytes.value_or("")).value_or(L"")))
    {
        if (std::regex_match(line, match, dialogLine))
            dialog = match[1];
        else if (std::regex_match(line, match, captionLine))
            texts[L"IDS_" + dialog + L"_" + dialog] = match[1];
        else if (std::regex_match(line, match, stringLine))
            texts[match[1]] = match[2]; // a sheet's caption
        else if (std::regex_match(line, match, controlLine))
            texts[L"IDS_" + dialog + L"_" + match[2].str()] = match[1];
    }
    return texts;
}

std::wstring unescaped(std::wstring text)
{
    text = std::regex_replace(text, std::wregex(L"\\\\n"), L"\n");
    return std::regex_replace(text, std::wregex(L"\"\""), L"\"");
}

std::vector<std::wstring> placeholders(const std::wstring& text)
{
    static const std::wregex placeholder(L"%%|%[0-9.]*[a-zA-Z]|\\\\[nr]");
    std::vector<std::wstring> found;
    for (std::wsregex_iterator at(text.begin(), text.end(), placeholder), end; at != end; ++at)
        found.push_back(at->str());
    return found;
}

wchar_t access_key(const std::wstring& text)
{
    const std::size_t at = text.find(L'&');
    if (at == std::wstring::npos || at + 1 >= text.size())
        return 0;
    const wchar_t letter = text[at + 1];
    const bool lower = (letter >= L'a' && letter <= L'z') || (letter >= 0x430 && letter <= 0x44F);
    return lower ? static_cast<wchar_t>(letter - 0x20) : letter;
}
} // namespace message_files

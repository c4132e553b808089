// The language files that the demonstration host ships, against the scripts whose texts they translate.
#include "platform/codepage.h"
#include "platform/file.h"
#include "tarvo/lang/XIni.h"
#include "tests/support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace
{
using Keys = std::map<std::wstring, std::wstring>; // key to text
using Table = std::map<std::wstring, Keys>;        // section to keys

constexpr const wchar_t* kSharedKeys[] = {L"IDOK", L"IDCANCEL", L"IDCLOSE", L"IDC_APPLY", L"IDC_OPEN_HELP"};

struct Language
{
    const wchar_t* folder;
    const wchar_t* suffix;
    int codePage;
};
constexpr Language kLanguages[] = {{L"English", L"_us", 1252}, {L"Korean", L"_kr", 949},
                                   {L"Japanese", L"_jp", 932}, {L"Chinese", L"_ch", 936},
                                   {L"Russia", L"_rus", 1251}, {L"Global", L"_gb", 1252}};
constexpr const Language& kGlobal = kLanguages[5];

struct Module
{
    const wchar_t* folder;
    const wchar_t* project;
    std::set<std::wstring> eightBit;                     // languages whose file is text in a code page
    std::map<std::wstring, std::set<std::wstring>> gaps; // per language, what it lacks on purpose
};
// One text of each dialog and language stands only in the file for Global, and one in no file at all, so
// that every fallback is seen.
const Module kModules[] = {
    {L"host",
     L"TarvoDemo",
     {L"Korean", L"Chinese", L"Russia"},
     {{L"English", {L"IDD_PROJECT_SETTINGS/IDC_PS_SHARE_RESULTS", L"IDD_LOAD_CASES/IDC_LC_NOTE"}},
      {L"Korean", {L"IDD_PROJECT_SETTINGS/IDC_PS_SHARE_RESULTS", L"IDD_LOAD_CASES/IDC_LC_LOCKED"}},
      {L"Japanese",
       {L"IDD_PROJECT_SETTINGS/IDC_PS_SHARE_RESULTS", L"IDD_UNITS/IDC_UN_EXPONENT",
        L"MENUSTR/ID_IMPORT_IFC"}},
      {L"Chinese", {L"IDD_PROJECT_SETTINGS/IDC_PS_SHARE_RESULTS", L"IDD_PROJECT_SETTINGS/IDC_PS_CHECK_MESH"}},
      {L"Russia",
       {L"IDD_PROJECT_SETTINGS/IDC_PS_SHARE_RESULTS", L"IDD_PROJECT_SETTINGS/IDC_PS_SECOND_ORDER",
        L"TEXT/IDS_CASE_QUAKE"}},
      {L"Global", {L"IDD_PROJECT_SETTINGS/IDC_PS_SHARE_RESULTS"}}}},
    {L"section",
     L"SectionModule",
     {L"Korean", L"Japanese", L"Russia"},
     {{L"English", {L"IDD_SECTION_LIBRARY/IDC_SL_IMPORT", L"IDD_MEMBER_PROPERTIES/IDC_MP_SWAY"}},
      {L"Korean", {L"IDD_SECTION_LIBRARY/IDC_SL_IMPORT", L"IDD_SECTION_LIBRARY/IDC_SL_ONLY_USED"}},
      {L"Japanese", {L"IDD_SECTION_LIBRARY/IDC_SL_IMPORT", L"IDD_MEMBER_PROPERTIES/IDC_MP_SWAY"}},
      {L"Chinese", {L"IDD_SECTION_LIBRARY/IDC_SL_IMPORT", L"IDD_MEMBER_PROPERTIES/IDC_MP_TENSION"}},
      {L"Russia", {L"IDD_SECTION_LIBRARY/IDC_SL_IMPORT", L"IDD_MEMBER_PROPERTIES/IDC_MP_ALL_SELECTED"}},
      {L"Global", {L"IDD_SECTION_LIBRARY/IDC_SL_IMPORT"}}}}};

// Texts that are the same in every language: units, names of quantities and of the program.
const std::set<std::wstring> kNeutral{L"IDC_MP_SECTION_PICK", L"IDS_CAPTION", L"IDS_SL_DEPTH",
                                      L"IDS_SL_WIDTH",        L"IDS_SL_WEB",  L"IDS_SL_FLANGE",
                                      L"IDC_UN_SI",           L"IDOK"};

std::wstring source_folder()
{
    const char* folder = std::getenv("TARVO_TEST_SOURCE_DIR");
    return folder ? *platform::codepage::decode(platform::codepage::utf8, folder) : L".";
}

std::wstring module_path(const Module& module, const std::wstring& name)
{
    return source_folder() + L"/demo/" + module.folder + L"/" + name;
}

std::wstring language_path(const Module& module, const Language& language)
{
    return module_path(module, std::wstring(L"Language/") + language.folder + L"/ctrl_" + module.project +
                                   language.suffix + L".ini");
}

std::wstring read_utf8(const std::wstring& path)
{
    const auto bytes = platform::file::read_whole(path.c_str(), 1 << 20);
    EXPECT_TRUE(bytes);
    return bytes ? *platform::codepage::decode(platform::codepage::utf8, *bytes) : L"";
}

std::vector<std::wstring> lines_of(const std::wstring& text)
{
    std::vector<std::wstring> lines;
    for (std::size_t at = 0; at < text.size();)
    {
        const std::size_t end = std::min(text.find(L'\n', at), text.size());
        lines.push_back(text.substr(at, end - at));
        if (!lines.back().empty() && lines.back().back() == L'\r')
            lines.back().pop_back();
        at = end + 1;
    }
    return lines;
}

/// The file as the library reads it: loaded with the language's code page and written out again, since a
/// written file names every section and key.
Table load_language(const Module& module, const Language& language)
{
    const TempFolder folder;
    const std::wstring saved = folder / L"saved.ini";
    XIni ini;
    ini.SetCodePage(language.codePage);
    EXPECT_EQ(1, ini.Open(language_path(module, language).c_str()));
    EXPECT_EQ(1, ini.IsOpened());
    EXPECT_EQ(1, ini.SaveAs(saved.c_str()));
    const auto bytes = platform::file::read_whole(saved.c_str(), 1 << 20);
    EXPECT_TRUE(bytes);
    Table table;
    Keys* keys = nullptr;
    for (const std::wstring& line : lines_of(platform::codepage::from_utf16le(bytes->substr(2))))
    {
        const std::size_t separator = line.find(L" = \"");
        if (line.starts_with(L'['))
            keys = &table[line.substr(1, line.size() - 2)];
        else if (keys && separator != std::wstring::npos)
            (*keys)[line.substr(0, separator)] = line.substr(separator + 4, line.size() - separator - 5);
    }
    return table;
}

/// The texts of the script that a language file can translate, under the section that it uses for them.
Table load_script(const Module& module)
{
    static const std::wregex dialogLine(L"^(IDD_\\w+) DIALOGEX.*");
    static const std::wregex captionLine(L"^CAPTION \"(.*)\"$");
    static const std::wregex textThenSymbol(L"^\\s.*?\"([^\"]*)\", (ID\\w*).*");
    static const std::wregex symbolThenText(L"^\\s+(IDS_\\w+) \"([^\"]*)\"$");
    Table table;
    std::wstring section = L"MENUSTR";
    std::wsmatch match;
    for (const std::wstring& line :
         lines_of(read_utf8(module_path(module, std::wstring(module.project) + L".rc"))))
    {
        if (std::regex_match(line, match, dialogLine))
            section = match[1];
        else if (std::regex_match(line, match, captionLine))
            table[section][section] = match[1];
        else if (std::regex_match(line, match, symbolThenText))
            table[L"TEXT"][match[1]] = match[2];
        else if (std::regex_match(line, match, textThenSymbol) && match[1].length() > 0)
            table[section][match[2]] = match[1].str().substr(0, match[1].str().find(L"\\t"));
    }
    return table;
}

std::set<std::wstring> load_symbols(const Module& module)
{
    static const std::wregex definition(L"^#define (\\w+) (\\d+)$");
    std::set<std::wstring> symbols;
    std::set<std::wstring> numbers;
    std::wsmatch match;
    for (const std::wstring& line : lines_of(read_utf8(module_path(module, L"resource.h"))))
    {
        if (!std::regex_match(line, match, definition))
            continue;
        symbols.insert(match[1]);
        // Two names with one number would share the first one's translation.
        EXPECT_TRUE(numbers.insert(match[2]).second) << match[1].str().c_str();
    }
    return symbols;
}

bool is_shared(const std::wstring& key)
{
    return std::find(std::begin(kSharedKeys), std::end(kSharedKeys), key) != std::end(kSharedKeys);
}

/// Section and key of every text that a complete language file has.
std::set<std::wstring> expected_keys(const Table& script)
{
    std::set<std::wstring> keys;
    for (const auto& [section, texts] : script)
    {
        for (const auto& [key, text] : texts)
        {
            const bool languageName =
                key.starts_with(L"ID_LANGUAGE_"); // stands under its own name everywhere
            if (!languageName)
                keys.insert((is_shared(key) ? L"DIALOG" : section) + L"/" + key);
        }
    }
    return keys;
}

std::set<std::wstring> keys_of(const Table& table)
{
    std::set<std::wstring> keys;
    for (const auto& [section, texts] : table)
    {
        for (const auto& [key, text] : texts)
        {
            if (section != L"GENERAL")
                keys.insert(section + L"/" + key);
        }
    }
    return keys;
}

std::set<std::wstring> without(const std::set<std::wstring>& from, const std::set<std::wstring>& taken)
{
    std::set<std::wstring> rest;
    std::set_difference(from.begin(), from.end(), taken.begin(), taken.end(),
                        std::inserter(rest, rest.end()));
    return rest;
}

std::string name_of(const Module& module, const Language& language)
{
    return *platform::codepage::encode(platform::codepage::utf8,
                                       std::wstring(module.project) + L", " + language.folder);
}

const std::wstring* find_text(const Table& table, const std::wstring& section, const std::wstring& key)
{
    const auto keys = table.find(section);
    if (keys == table.end())
        return nullptr;
    const auto text = keys->second.find(key);
    return text == keys->second.end() ? nullptr : &text->second;
}

/// What the user sees: own file, fallback, the shared texts of both, the resource.
std::wstring shown_text(const Table& own, const Table& fallback, const std::wstring& section,
                        const std::wstring& key, const std::wstring& resourceText)
{
    for (const std::wstring& place : {section, std::wstring(L"DIALOG")})
    {
        for (const Table* table : {&own, &fallback})
        {
            if (const std::wstring* text = find_text(*table, place, key); text && !text->empty())
                return *text;
        }
    }
    return resourceText;
}

/// The access key of a text in upper case, 0 without one; a doubled ampersand is a plain one.
wchar_t access_key(const std::wstring& text)
{
    for (std::size_t at = text.find(L'&'); at != std::wstring::npos && at + 1 < text.size();
         at = text.find(L'&', at + 2))
    {
        const wchar_t letter = text[at + 1];
        if (letter == L'&')
            continue;
        const bool lower = (letter >= L'a' && letter <= L'z') || (letter >= 0x430 && letter <= 0x44F);
        return lower ? static_cast<wchar_t>(letter - 0x20) : letter;
    }
    return 0;
}

/// Conversion specifications and escapes in their order.
std::vector<std::wstring> placeholders(const std::wstring& text)
{
    static const std::wregex placeholder(L"%[0-9.]*[a-zA-Z]|\\\\[nr]");
    std::vector<std::wstring> found;
    for (std::wsregex_iterator at(text.begin(), text.end(), placeholder), end; at != end; ++at)
        found.push_back(at->str());
    return found;
}

template <class Check>
void for_each_file(Check check)
{
    for (const Module& module : kModules)
    {
        for (const Language& language : kLanguages)
        {
            SCOPED_TRACE(name_of(module, language));
            check(module, language);
        }
    }
}
} // namespace

TEST(DemoLanguageFiles, EveryFileHasTheTextsOfTheScriptButForTheGapsMadeOnPurpose)
{
    for_each_file([](const Module& module, const Language& language) {
        const std::set<std::wstring> expected = expected_keys(load_script(module));
        const std::set<std::wstring> found = keys_of(load_language(module, language));
        EXPECT_GT(expected.size(), 50u);
        EXPECT_EQ(module.gaps.at(language.folder), without(expected, found));
        EXPECT_EQ(std::set<std::wstring>(), without(found, expected));
    });
}

TEST(DemoLanguageFiles, EveryKeyIsASymbolOfTheResourceHeaderAndNoTwoShareANumber)
{
    for (const Module& module : kModules)
    {
        std::set<std::wstring> symbols = load_symbols(module);
        symbols.insert({L"IDOK", L"IDCANCEL", L"IDCLOSE"});
        for (const std::wstring& key : expected_keys(load_script(module)))
            EXPECT_TRUE(symbols.contains(key.substr(key.find(L'/') + 1))) << testing::PrintToString(key);
    }
}

TEST(DemoLanguageFiles, FilesAreUtf16OrTextInTheCodePageThatTheyName)
{
    for_each_file([](const Module& module, const Language& language) {
        const auto bytes = platform::file::read_whole(language_path(module, language).c_str(), 1 << 20);
        ASSERT_TRUE(bytes);
        EXPECT_EQ(module.eightBit.contains(language.folder), !bytes->starts_with("\xFF\xFE"));
        const Table table = load_language(module, language);
        EXPECT_EQ(std::to_wstring(language.codePage), table.at(L"GENERAL").at(L"CODEPAGE"));
        for (const std::wstring& key : keys_of(table))
        {
            const std::size_t slash = key.find(L'/');
            const std::wstring& text = table.at(key.substr(0, slash)).at(key.substr(slash + 1));
            EXPECT_EQ(std::wstring::npos, text.find(wchar_t(0xFFFD))) << testing::PrintToString(key);
        }
    });
}

TEST(DemoLanguageFiles, TextsOfOtherScriptsAreWrittenInThem)
{
    for_each_file([](const Module& module, const Language& language) {
        if (language.codePage == 1252)
            return;
        for (const auto& [section, texts] : load_language(module, language))
        {
            for (const auto& [key, text] : texts)
            {
                const bool foreign =
                    std::any_of(text.begin(), text.end(), [](wchar_t c) { return c >= 0x400; });
                EXPECT_TRUE(foreign || section == L"GENERAL" || kNeutral.contains(key))
                    << testing::PrintToString(key);
            }
        }
    });
}

TEST(DemoLanguageFiles, PlaceholdersAndLineBreaksAreThoseOfTheScript)
{
    for_each_file([](const Module& module, const Language& language) {
        const Table script = load_script(module);
        for (const auto& [section, texts] : load_language(module, language))
        {
            for (const auto& [key, text] : texts)
            {
                const std::wstring* source = find_text(script, section, key);
                if (source)
                {
                    EXPECT_EQ(placeholders(*source), placeholders(text)) << testing::PrintToString(key);
                }
            }
        }
    });
}

TEST(DemoLanguageFiles, AccessKeysStandWhereTheScriptHasThemAndAreUniqueInEachDialog)
{
    for_each_file([](const Module& module, const Language& language) {
        const Table own = load_language(module, language);
        const Table fallback = load_language(module, kGlobal);
        for (const auto& [section, texts] : load_script(module))
        {
            std::map<wchar_t, std::wstring> taken;
            for (const auto& [key, source] : texts)
            {
                const std::wstring shown = shown_text(own, fallback, section, key, source);
                const wchar_t letter = access_key(shown);
                EXPECT_EQ(access_key(source) != 0, letter != 0) << testing::PrintToString(key);
                // A menu's letters are unique per popup, not in the whole bar.
                if (letter == 0 || !section.starts_with(L"IDD_"))
                    continue;
                const auto [at, fresh] = taken.try_emplace(letter, key);
                EXPECT_TRUE(fresh) << testing::PrintToString(key) << " and "
                                   << testing::PrintToString(at->second);
            }
        }
    });
}

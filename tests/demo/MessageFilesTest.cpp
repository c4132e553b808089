// The message files that the demonstration host ships, as the library loads them and against the script whose
// windows they translate.
#include "tests/demo/MessageFiles.h"
#include "demo/host/MessageModules.h"
#include "platform/codepage.h"
#include "platform/file.h"
#include "tarvo/msg/MSGFunction.h"
#include "tarvo/msg/MSGInfoImpl.h"
#include "tests/support/TestHost.h"
#include "tests/support/TestRegistry.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace
{
using Names = std::set<std::wstring>;

// What a language lacks on purpose, so that both answers to a missing key are seen: a control keeps its
// resource's text, a message shows as its key.
const std::map<std::wstring, Names> kGaps{
    {L"English", {}},
    {L"Korean", {}},
    {L"Japanese", {L"EXCHANGE_SCHEMA", L"IDS_IDD_AC_OUTPUT_IDC_OU_REACTIONS"}},
    {L"Chinese", {L"EXCHANGE_SCHEMA", L"IDS_IDD_LIMITS_IDC_LM_ONCE"}},
    {L"Russia", {L"EXCHANGE_SCHEMA", L"TIMBER_BEARING"}},
    {L"Global", {L"EXCHANGE_SCHEMA", L"SECTION_THIN"}}};

// Files that are 8-bit text; the others are UTF-16LE with its mark.
const Names kEightBit{L"Timber_us.ini",     L"Font_us.ini",    L"Font_gb.ini",    L"Concrete_kr.ini",
                      L"Foundation_kr.ini", L"Seismic_jp.ini", L"Buckling_ch.ini"};

// Texts that are the same in every language.
const Names kNeutral{L"LOADING_DIRECTION_X", L"IDS_DIALOG_IDOK", L"IDS_IDD_LIMITS_IDOK"};

/// The library as the host sets it up, over the files in the source tree.
class CSourceInfo : public CMSGInfoImpl
{
public:
    CString GetProgramPath() override { return message_files::source_path(L"demo/host/").c_str(); }
};

class DemoMessageFiles : public testing::Test
{
protected:
    DemoMessageFiles() : host(own.name().c_str(), L"TarvoDemo")
    {
        IMSGInfo::m_pInstance = nullptr;
        CHostApp::WriteInt(L"LANGUAGE", L"LANGUAGECHECK", 1);
        CMSGDeployment deployment;
        for (const wchar_t* const name : kMessageModules)
            deployment.arrModule.push_back(name);
        deployment.strAlias = kAliasModule;
        deployment.strAliasModule = kAliasStandsFor;
        EXPECT_EQ(1, CMSGInfoImpl::SetDeployment(deployment));
    }
    ~DemoMessageFiles() override
    {
        CMSGFunction::Reset();
        IMSGInfo::m_pInstance = nullptr;
    }

    TestRegistry own;
    TestHost host;
};

template <class Check>
void for_each_language(Check check)
{
    for (int number = 0; number < static_cast<int>(std::size(message_files::kLanguages)); ++number)
    {
        SCOPED_TRACE(number);
        check(number, message_files::kLanguages[number]);
    }
}

Names without(const Names& from, const Names& taken)
{
    Names rest;
    std::set_difference(from.begin(), from.end(), taken.begin(), taken.end(),
                        std::inserter(rest, rest.end()));
    return rest;
}

Names keys_of(const message_files::Texts& texts)
{
    Names keys;
    for (const auto& [key, text] : texts)
        keys.insert(key);
    return keys;
}
} // namespace

TEST_F(DemoMessageFiles, EachOfTheSeventeenModulesHas8To25TextsInEveryLanguage)
{
    EXPECT_EQ(17u, std::size(kMessageModules));
    for_each_language([](int, const message_files::Language& language) {
        for (const wchar_t* const module : kMessageModules)
        {
            const auto texts = message_files::load_module(module, language);
            EXPECT_GE(texts.size(), 8u) << testing::PrintToString(std::wstring(module));
            EXPECT_LE(texts.size(), 25u) << testing::PrintToString(std::wstring(module));
        }
    });
}

TEST_F(DemoMessageFiles, EveryLanguageHasTheKeysOfKoreanButForTheGapsMadeOnPurpose)
{
    const Names all = keys_of(message_files::load_all(message_files::kLanguages[1]));
    EXPECT_GT(all.size(), 200u);
    for_each_language([&](int, const message_files::Language& language) {
        const Names keys = keys_of(message_files::load_all(language));
        EXPECT_EQ(kGaps.at(language.folder), without(all, keys));
        EXPECT_EQ(Names(), without(keys, all));
    });
}

TEST_F(DemoMessageFiles, NoKeyStandsInTwoModulesOrTwiceInOne)
{
    for_each_language([](int, const message_files::Language& language) {
        std::size_t count = 0;
        for (const wchar_t* const module : kMessageModules)
            count += message_files::read_keys(module, language).size();
        EXPECT_EQ(count, message_files::load_all(language).size());
    });
}

TEST_F(DemoMessageFiles, LibraryAnswersEveryKeyWithTheTextOfItsFile)
{
    CSourceInfo info;
    info.LoadMessage(5);
    for_each_language([&](int number, const message_files::Language& language) {
        info.LoadMessage(number);
        for (const auto& [key, text] : message_files::load_all(language))
            EXPECT_STREQ(message_files::unescaped(text).c_str(), CMSGFunction::GetValue(key.c_str()))
                << testing::PrintToString(key);
        for (const std::wstring& key : kGaps.at(language.folder))
            EXPECT_STREQ((key + L" :").c_str(), CMSGFunction::GetValue(key.c_str()));
    });
}

TEST_F(DemoMessageFiles, FontFileNamesTheFaceThatHasTheLanguagesLetters)
{
    CSourceInfo info;
    info.LoadMessage(5);
    const wchar_t* const faces[] = {L"Segoe UI",           L"Malgun Gothic", L"Meiryo UI",
                                    L"Microsoft YaHei UI", L"Segoe UI",      L"Tahoma"};
    for_each_language([&](int number, const message_files::Language&) {
        info.LoadMessage(number);
        EXPECT_STREQ(faces[number], CMSGFunction::GetFont());
        EXPECT_EQ(9, CMSGFunction::GetFontSize());
    });
}

TEST_F(DemoMessageFiles, AliasIsServedByTheFileOfTheModuleItStandsFor)
{
    CSourceInfo info;
    EXPECT_EQ(info.GetLanguageINIFilePath(1, L"Concrete", nullptr),
              info.GetLanguageINIFilePath(1, L"REBAR", nullptr));
}

TEST_F(DemoMessageFiles, FilesAreUtf16ButForThoseListed)
{
    for_each_language([](int, const message_files::Language& language) {
        Names files;
        for (const wchar_t* const module : kMessageModules)
            files.insert(std::wstring(module) + language.suffix + L".ini");
        files.insert(std::wstring(L"Font") + language.suffix + L".ini");
        for (const std::wstring& file : files)
        {
            const std::string bytes = message_files::read_bytes(language, file);
            EXPECT_EQ(kEightBit.contains(file), !bytes.starts_with("\xFF\xFE"))
                << testing::PrintToString(file);
        }
    });
}

TEST_F(DemoMessageFiles, TextsOfOtherScriptsAreWrittenInThem)
{
    for_each_language([](int number, const message_files::Language& language) {
        if (number == 0 || number == 5)
            return;
        for (const auto& [key, text] : message_files::load_all(language))
        {
            const bool foreign = std::any_of(text.begin(), text.end(), [](wchar_t c) { return c >= 0x400; });
            EXPECT_TRUE(foreign || kNeutral.contains(key)) << testing::PrintToString(key);
            EXPECT_EQ(std::wstring::npos, text.find(wchar_t(0xFFFD))) << testing::PrintToString(key);
        }
    });
}

TEST_F(DemoMessageFiles, PlaceholdersAndLineBreaksAreTheSameInEveryLanguage)
{
    const auto korean = message_files::load_all(message_files::kLanguages[1]);
    for_each_language([&](int, const message_files::Language& language) {
        for (const auto& [key, text] : message_files::load_all(language))
            EXPECT_EQ(message_files::placeholders(korean.at(key)), message_files::placeholders(text))
                << testing::PrintToString(key);
    });
}

TEST_F(DemoMessageFiles, EveryTextOfTheInternationalWindowsHasAKeyAndEveryKeyOfAWindowAText)
{
    const auto script = message_files::load_script();
    EXPECT_GT(script.size(), 60u);
    Names keys;
    for (const std::wstring& key : keys_of(message_files::load_all(message_files::kLanguages[1])))
    {
        if (key.starts_with(L"IDS_IDD_"))
            keys.insert(key);
    }
    EXPECT_EQ(Names(), without(keys_of(script), keys));
    EXPECT_EQ(Names(), without(keys, keys_of(script)));
}

TEST_F(DemoMessageFiles, EnglishSaysWhatTheScriptSays)
{
    const auto english = message_files::load_all(message_files::kLanguages[0]);
    for (const auto& [key, text] : message_files::load_script())
        EXPECT_EQ(text, english.at(key)) << testing::PrintToString(key);
}

TEST_F(DemoMessageFiles, AccessKeysStandWhereTheScriptHasThemAndAreUniqueInEachWindow)
{
    const auto script = message_files::load_script();
    for_each_language([&](int, const message_files::Language& language) {
        const auto own = message_files::load_all(language);
        std::map<std::pair<std::wstring, wchar_t>, std::wstring> taken;
        for (const auto& [key, source] : script)
        {
            const auto found = own.find(key);
            const wchar_t letter = message_files::access_key(found == own.end() ? source : found->second);
            EXPECT_EQ(message_files::access_key(source) != 0, letter != 0) << testing::PrintToString(key);
            if (letter == 0)
                continue;
            const std::wstring window = key.substr(0, key.find(L"_ID", 8));
            const auto [at, fresh] = taken.try_emplace({window, letter}, key);
            EXPECT_TRUE(fresh) << testing::PrintToString(key) << " and "
                               << testing::PrintToString(at->second);
        }
    });
}

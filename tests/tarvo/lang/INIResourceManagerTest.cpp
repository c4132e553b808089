#include "tarvo/lang/INIResourceManager.h"

#include "platform/codepage.h"
#include "platform/file.h"
#include "platform/module.h"
#include "tests/tarvo/lang/Dump.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace
{
constexpr wchar_t kNotFound[] = L"CaNNot Find szLangKey To Ini File";
constexpr wchar_t kNotLoaded[] = L"Can't load language file";

/// A table with a created document.
XMultiLang* make_table(const std::wstring& text)
{
    auto* const table = new XMultiLang;
    std::string bytes = "\xFF\xFE" + platform::codepage::to_utf16le(text);
    table->Create(reinterpret_cast<unsigned char*>(bytes.data()), static_cast<int>(bytes.size()));
    return table;
}

std::wstring program_folder()
{
    const std::wstring path = platform::module::path(nullptr, 4096);
    return path.substr(0, path.rfind(platform::file::separator));
}

class Registry : public testing::Test
{
protected:
    void SetUp() override
    {
        INIResourceManager::m_arrProjectName.RemoveAll();
        INIResourceManager::m_arrINIPath.RemoveAll();
    }
    void TearDown() override
    {
        INIResourceManager::DeleteINIResource();
        for (const std::wstring& file : files)
            platform::file::remove(file.c_str());
        XMultiLang::m_bIniFindMode = 0;
    }
    void write_korean(const std::wstring& project, const std::wstring& text)
    {
        const std::wstring slash(1, platform::file::separator);
        const std::wstring folder = program_folder() + slash + L"Language" + slash + L"Korean";
        // As units: wide paths go through the locale, which cannot name every folder that a clone stands in.
        std::filesystem::create_directories(std::u16string(folder.begin(), folder.end()));
        files.push_back(folder + slash + L"ctrl_" + project + L"_kr.ini");
        const std::string bytes = "\xFF\xFE" + platform::codepage::to_utf16le(text);
        EXPECT_EQ(platform::file::write_whole(files.back().c_str(), bytes), platform::file::Written::ok);
    }
    std::vector<std::wstring> files;
};
} // namespace

TEST_F(Registry, HoldsTablesUnderTheirExactNames)
{
    auto* const draw = new XMultiLang;
    EXPECT_EQ(INIResourceManager::AppendMap(L"Draw", draw), 1);
    EXPECT_EQ(INIResourceManager::GetXMultiLang(L"Draw"), draw);
    EXPECT_EQ(INIResourceManager::GetXMultiLang(L"draw"), nullptr);
    EXPECT_EQ(draw->GetProjectName(), L"Draw");
    EXPECT_EQ(INIResourceManager::GetMapCount(), 1);
    std::map<CString, XMultiLang*> copy = INIResourceManager::GetMultiLangMap();
    EXPECT_EQ(copy[L"Draw"], draw);
    copy.clear();
    EXPECT_EQ(INIResourceManager::GetMapCount(), 1);
}

TEST_F(Registry, ANameRegisteredTwiceHasOneTableAndIsListedTwice)
{
    auto* const first = new XMultiLang;
    auto* const second = new XMultiLang;
    INIResourceManager::AppendMap(L"Draw", first);
    INIResourceManager::AppendMap(L"Draw", second);
    INIResourceManager::AppendMap(L"Draw", second);
    EXPECT_EQ(INIResourceManager::GetMapCount(), 1);
    EXPECT_EQ(INIResourceManager::GetXMultiLang(L"Draw"), second);
    EXPECT_EQ(INIResourceManager::m_arrProjectName.GetSize(), 3);
    EXPECT_EQ(first->GetProjectName(), L"Draw") << "the table that was replaced lives on";
    INIResourceManager::AppendMap(L"Draw", first);
    INIResourceManager::AppendMap(L"Twin", first);
    EXPECT_EQ(INIResourceManager::DeleteINIResource(), 1) << "each table is deleted once";
}

TEST_F(Registry, DeletesAllTablesButKeepsTheLists)
{
    INIResourceManager::AppendMap(L"Draw", new XMultiLang);
    INIResourceManager::AppendMap(L"None", nullptr);
    EXPECT_EQ(INIResourceManager::GetMapCount(), 2);
    EXPECT_EQ(INIResourceManager::DeleteINIResource(), 1);
    EXPECT_EQ(INIResourceManager::GetMapCount(), 0);
    EXPECT_EQ(INIResourceManager::GetXMultiLang(L"Draw"), nullptr);
    EXPECT_EQ(INIResourceManager::m_arrProjectName.GetSize(), 2);
    EXPECT_EQ(INIResourceManager::DeleteINIResource(), 1);
}

TEST_F(Registry, LoadsTheKoreanFilesBesideTheProgram)
{
    write_korean(L"TarvoTestDraw", L"[S]\nk=\xAC00\n");
    auto* const draw = new XMultiLang;
    auto* const gone = new XMultiLang;
    INIResourceManager::AppendMap(L"TarvoTestDraw", draw);
    INIResourceManager::AppendMap(L"TarvoTestNoFile", gone);
    EXPECT_EQ(INIResourceManager::InitINIResourceMgr(), 1);
    EXPECT_EQ(draw->Lang(L"k", L"S"), L"\xAC00");
    EXPECT_EQ(draw->GetSecondaryXIni().GetStr(L"S", L"k", L""), L"\xAC00")
        << "the same file is the secondary one";
    EXPECT_EQ(gone->Lang(L"k", L"S"), kNotLoaded);
    EXPECT_EQ(INIResourceManager::GetMapCount(), 2);
    ASSERT_EQ(INIResourceManager::m_arrINIPath.GetSize(), 1);
    const std::wstring slash(1, platform::file::separator);
    const std::wstring path =
        program_folder() + slash + L"Language" + slash + L"Korean" + slash + L"ctrl_TarvoTestDraw_kr.ini";
    EXPECT_EQ(INIResourceManager::m_arrINIPath[0], path.c_str());
}

TEST_F(Registry, ANameListedTwiceLoadsItsFileTwiceIntoTheSecondTable)
{
    write_korean(L"TarvoTestTwice", L"[S]\nk=v\n");
    auto* const first = new XMultiLang;
    auto* const second = new XMultiLang;
    INIResourceManager::AppendMap(L"TarvoTestTwice", first);
    INIResourceManager::AppendMap(L"TarvoTestTwice", second);
    INIResourceManager::InitINIResourceMgr();
    EXPECT_EQ(INIResourceManager::m_arrINIPath.GetSize(), 2);
    EXPECT_EQ(first->Lang(L"k", L"S"), kNotLoaded);
    EXPECT_EQ(second->Lang(L"k", L"S"), L"v");
}

TEST_F(Registry, AnswersEmptyWithoutTables)
{
    EXPECT_STREQ(INIResourceManager::GetValue(L"k"), L"");
    INIResourceManager::AppendMap(L"None", nullptr);
    EXPECT_STREQ(INIResourceManager::GetValue(L"k"), L"");
}

TEST_F(Registry, TakesTheFirstTextThatSortsAfterTheMessages)
{
    const struct
    {
        const wchar_t *first, *second, *result;
    } rows[] = {
        {L"apply", L"second", L"apply"},
        {L"\xC801\xC6A9", L"second", L"\xC801\xC6A9"},
        {L"Apply", L"second", L"second"}, // sorts before the messages
        {L"Cab", L"second", L"second"},
        {L"Can't load language file", L"second", L"second"},
        {L"Can't load language filet", L"second", L"Can't load language filet"},
        {L"Candle", L"second", L"Candle"},
        {L"9", L"second", L"second"},
        {L"", L"second", L"second"},
        {L"Apply", L"Also", L"Also"}, // none is accepted: the last answer
        {L"Apply", L"", kNotFound},   // an empty text of both files is none
        {nullptr, nullptr, kNotFound},
        {nullptr, L"second", L"second"},
        {L"first", nullptr, L"first"},
        {L"Apply", nullptr, kNotFound},
    };
    for (const auto& row : rows)
    {
        const auto text = [](const wchar_t* value) {
            return value ? L"[Text]\nk=\"" + std::wstring(value) + L"\"\n[S]\nk=no\n" : L"[Text]\nother=1\n";
        };
        INIResourceManager::AppendMap(L"b", make_table(text(row.second)));
        INIResourceManager::AppendMap(L"A", make_table(text(row.first)));
        EXPECT_EQ(CString(INIResourceManager::GetValue(L"k")), row.result);
        INIResourceManager::DeleteINIResource();
    }
}

TEST_F(Registry, TheLastTableThatIsNotLoadedAnswersItsMessage)
{
    INIResourceManager::AppendMap(L"a", make_table(L"[TEXT]\nother=1\n"));
    INIResourceManager::AppendMap(L"b", new XMultiLang);
    EXPECT_STREQ(INIResourceManager::GetValue(L"k"), kNotLoaded);
    INIResourceManager::AppendMap(L"c", make_table(L"[TEXT]\nk=v\n"));
    EXPECT_STREQ(INIResourceManager::GetValue(L"k"), L"v");
}

TEST_F(Registry, TextsThatWereAnsweredStay)
{
    INIResourceManager::AppendMap(L"a", make_table(L"[TEXT]\nk=value k\nl=value l\n"));
    const wchar_t* const k = INIResourceManager::GetValue(L"k");
    const wchar_t* const l = INIResourceManager::GetValue(L"l");
    INIResourceManager::GetXMultiLang(L"a")->GetXIni().SetStr(nullptr, L"k", L"changed");
    EXPECT_STREQ(INIResourceManager::GetValue(L"k"), L"changed");
    EXPECT_STREQ(k, L"value k");
    EXPECT_STREQ(l, L"value l");
}

TEST_F(Registry, NotesAKeyThatNoTableHasWithTheLastOneAsked)
{
    INIResourceManager::AppendMap(L"a", make_table(L"[TEXT]\nk=v\nlow=Apply\nempty=\n"));
    INIResourceManager::AppendMap(L"b", make_table(L"[TEXT]\n"));
    XMultiLang::m_bIniFindMode = 1;
    for (const wchar_t* key : {L"k", L"low", L"empty", L"none", L"none"})
        INIResourceManager::GetValue(key);
    EXPECT_EQ(dump(INIResourceManager::GetXMultiLang(L"a")->GetMissingKeys()), L"");
    EXPECT_EQ(dump(INIResourceManager::GetXMultiLang(L"b")->GetMissingKeys()),
              L"[TEXT] none=#Need to Copy..#;");
}

TEST_F(Registry, ListsWhatADialogLacks)
{
    const std::unique_ptr<XMultiLang> table(
        make_table(L"[IDD_A]\nIDC_HAS=x\nIDC_EMPTY=\n[DIALOG]\nIDC_SHARED=x\n"));
    std::string header = platform::codepage::to_utf16le(
        L"#define IDC_HAS 1001\n#define IDC_EMPTY 1002\n#define IDC_SHARED 1003\n#define IDC_LACKS 1004\n"
        L"#define IDC_P,IDC_HAS 1005\n#define IDC_Q,IDC_R 1006\n");
    table->LoadResourceHeader(reinterpret_cast<unsigned char*>(header.data()),
                              static_cast<int>(header.size() / 2));
    DialogTexts texts;
    texts.caption = L"A";
    for (int id = 1001; id <= 1008; ++id)
        texts.controls.push_back({id, id == 1008 ? L"" : L"text"});
    texts.controls.push_back({2, L"Cancel"});
    XIni missing;
    EXPECT_EQ(INIResourceManager::AddMissingControls(*table, L"IDD_A", texts, missing), 4);
    EXPECT_EQ(dump(missing), L"[IDD_A] IDCANCEL=#Need to Copy..#; IDC_LACKS=#Need to Copy..#; "
                             L"IDC_Q=#Need to Copy..#; IDD_A=#Need to Copy..#;");
    texts.caption = L"";
    texts.controls.clear();
    EXPECT_EQ(INIResourceManager::AddMissingControls(*table, L"IDD_B", texts, missing), 0);
    EXPECT_EQ(INIResourceManager::FindCtrl_DialogINIResource(*table, missing), 0) << "no module";
    EXPECT_EQ(INIResourceManager::FindCtrl_MenuINIResource(*table, missing), 0);
}

TEST_F(Registry, WritesWhatIsMissingBesideTheProgram)
{
    files.push_back(program_folder() + platform::file::separator + L"MissingINIFile.ini");
    INIResourceManager::AppendMap(L"Draw", make_table(L"[S]\n"));
    INIResourceManager::AppendMap(L"Analysis", make_table(L"[S]\n"));
    INIResourceManager::AppendMap(L"Empty", nullptr);
    XMultiLang::m_bIniFindMode = 1;
    XMultiLang* const draw = INIResourceManager::GetXMultiLang(L"Draw");
    draw->Lang(L"z", L"S");
    draw->Lang(L"a", L"S");
    draw->Lang(L"\xAC00", L"B");
    EXPECT_EQ(INIResourceManager::WriteMissingCtrlINIFile(), 1);
    const std::wstring expected = L"=================== Analysis=================== \r\n"
                                  L"=================== Draw=================== \r\n"
                                  L"[B]\r\n"
                                  L"\xAC00\t=\t#Need to Copy..#\r\n"
                                  L"[S]\r\n"
                                  L"a\t=\t#Need to Copy..#\r\n"
                                  L"z\t=\t#Need to Copy..#\r\n"
                                  L"=================== Empty=================== \r\n";
    EXPECT_EQ(platform::file::read_whole(files.back().c_str(), 1 << 20),
              "\xFF\xFE" + platform::codepage::to_utf16le(expected));
    EXPECT_EQ(INIResourceManager::GetMissingText(), expected.c_str());
}

TEST_F(Registry, ReloadPutsTheFilesOfAnotherLanguageIntoEveryTable)
{
    auto* const draw = make_table(L"[TEXT]\nKEY=kept from before\nOLD=old\n");
    draw->GetSecondaryXIni().OpenMemory(L"[TEXT]\nGAP=old\n", 15);
    auto* const steel = make_table(L"[TEXT]\nKEY=old\n");
    INIResourceManager::AppendMap(L"Draw", draw);
    INIResourceManager::AppendMap(L"Steel", steel);
    INIResourceManager::AppendMap(L"Null", nullptr);
    write_korean(L"Draw", L"[TEXT]\nKEY=new\n");
    const auto rule = [](const CString& project) {
        return CLanguageFiles{INIResourceManager::GetLanguageFilePath(project, L"Korean", L"_kr"), L"", 949};
    };
    EXPECT_EQ(INIResourceManager::ReloadINIResource(rule), 1);
    EXPECT_EQ(draw->Lang(L"KEY", nullptr), L"new");
    EXPECT_EQ(draw->Lang(L"OLD", nullptr), kNotFound);
    EXPECT_EQ(draw->Lang(L"GAP", nullptr), kNotFound);
    EXPECT_EQ(steel->Lang(L"KEY", nullptr), kNotLoaded);
    ASSERT_EQ(INIResourceManager::m_arrINIPath.GetSize(), 1);
    EXPECT_EQ(INIResourceManager::m_arrINIPath[0], files.front().c_str());
}

TEST_F(Registry, LanguageFilePathIsBesideTheProgram)
{
    const std::wstring slash(1, platform::file::separator);
    const std::wstring path =
        program_folder() + slash + L"Language" + slash + L"Russia" + slash + L"ctrl_Draw_rus.ini";
    EXPECT_EQ(INIResourceManager::GetLanguageFilePath(L"Draw", L"Russia", L"_rus"), path.c_str());
}

#include "tarvo/msg/MSGInfoImpl.h"

#include "platform/file.h"
#include "platform/module.h"
#include "qlx/TranslateUtil.h"
#include "tarvo/msg/MSGFunction.h"
#include "tests/support/TempFolder.h"
#include "tests/support/TestHost.h"
#include "tests/support/TestRegistry.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>

namespace fs = std::filesystem;

namespace
{
/// The library's object, over files in a folder of the test's.
class CHere : public CMSGInfoImpl
{
public:
    explicit CHere(CString path) : m_strPath(std::move(path)) {}
    CString GetProgramPath() override { return m_strPath; }

private:
    CString m_strPath;
};

CMSGDeployment deployment(std::vector<CString> modules, const wchar_t* alias = L"",
                          const wchar_t* aliased = L"")
{
    return {std::move(modules), alias, aliased};
}

/// "Language/Korean/a" as this platform joins it.
CString joined(CString path)
{
    path.Replace(L'/', platform::file::separator);
    return path;
}

/// A host with settings of its own, and no catalogue and no instance of another test.
class MSGInfoImpl : public testing::Test
{
protected:
    MSGInfoImpl() : host(own.name().c_str(), L"Program")
    {
        IMSGInfo::m_pInstance = nullptr;
        CMSGFunction::Reset();
        EXPECT_EQ(
            CMSGInfoImpl::SetDeployment(deployment({L"MsgTestA", L"MsgTestB"}, L"MsgTestOld", L"MsgTestB")),
            1);
    }
    ~MSGInfoImpl() override
    {
        CMSGFunction::Reset();
        IMSGInfo::m_pInstance = nullptr;
    }

    void write(const wchar_t* language, const wchar_t* name, const std::string& bytes)
    {
        const fs::path path = fs::path(folder.path()) / L"Language" / language;
        fs::create_directories(path);
        EXPECT_EQ(platform::file::write_whole((path / name).wstring().c_str(), bytes),
                  platform::file::Written::ok);
    }
    CString here() const { return (folder / L"").c_str(); }
    static int profile(const wchar_t* entry) { return CHostApp::ReadInt(L"LANGUAGE", entry, -77); }
    static void set_profile(const wchar_t* entry, int value)
    {
        CHostApp::WriteInt(L"LANGUAGE", entry, value);
    }

    TempFolder folder;
    TestRegistry own;
    TestHost host;
};
} // namespace

TEST_F(MSGInfoImpl, TheFirstObjectIsTheInstanceAndStaysIt)
{
    EXPECT_EQ(IMSGInfo::Instance(), nullptr);
    IMSGInfo* first = nullptr;
    {
        CMSGInfoImpl info;
        first = &info;
        EXPECT_EQ(IMSGInfo::Instance(), first);
        const CMSGInfoImpl second;
        EXPECT_EQ(IMSGInfo::Instance(), first);
    }
    EXPECT_EQ(IMSGInfo::Instance(), first) << "also after its end";
    const CMSGInfoImpl third;
    EXPECT_EQ(IMSGInfo::Instance(), first);
}

TEST_F(MSGInfoImpl, ACopyIsNotTheInstanceAndGoesItsOwnWay)
{
    CHere info(here());
    IMSGInfo::m_pInstance = nullptr;
    CHere copy(info);
    EXPECT_EQ(IMSGInfo::Instance(), nullptr);
    copy.LoadMessage(3);
    EXPECT_EQ(info.GetCurrentLang(), 0);
    info = copy;
    EXPECT_EQ(info.GetCurrentLang(), 3);
}

TEST_F(MSGInfoImpl, AStartWithoutSettingsIsEnglish)
{
    CMSGInfoImpl info;
    EXPECT_EQ(info.GetCurrentLang(), 0);
    EXPECT_EQ(info.GetInstallLang(), 0);
    EXPECT_EQ(info.IsInstalledForForeignLang(), 1);
    EXPECT_EQ(profile(L"LANGUAGE"), 0) << "written back by the load";
    EXPECT_EQ(profile(L"InstallLanguage"), -77) << "never written";
    EXPECT_EQ(CMSGFunction::Get_TarvoH_dll_Name(), L"TarvoH_us.dll");
}

TEST_F(MSGInfoImpl, AStartComesUpInTheLanguageOfTheLastLoad)
{
    {
        CMSGInfoImpl info;
        info.LoadMessage(2);
    }
    CMSGInfoImpl info;
    EXPECT_EQ(info.GetCurrentLang(), 2);
    EXPECT_EQ(info.GetInstallLang(), 2) << "without an entry the language of the start";
    EXPECT_EQ(info.IsInstalledForForeignLang(), 0);
    EXPECT_EQ(CMSGFunction::Get_TarvoH_dll_Name(), L"TarvoH_jp.dll");
    info.LoadMessage(0);
    EXPECT_EQ(info.GetInstallLang(), 2) << "fixed at the start";
}

TEST_F(MSGInfoImpl, TheInstallLanguageIsTheProfilesOwnEntry)
{
    set_profile(L"LANGUAGE", 1);
    for (const int language : {0, 1, 5, 9})
    {
        set_profile(L"InstallLanguage", language);
        CMSGInfoImpl info;
        EXPECT_EQ(info.GetCurrentLang(), 1);
        EXPECT_EQ(info.GetInstallLang(), language);
        EXPECT_EQ(info.IsInstalledForForeignLang(), language == 0 ? 1 : 0);
    }
}

TEST_F(MSGInfoImpl, MinusOneInTheProfileLoadsNothingAtTheStart)
{
    CMSGFunction::SetValue(L"A", L"before");
    set_profile(L"LANGUAGE", -1);
    CMSGInfoImpl info;
    EXPECT_EQ(info.GetCurrentLang(), -1);
    EXPECT_EQ(CMSGFunction::GetValue(L"A"), L"before");
}

TEST_F(MSGInfoImpl, LoadsEveryModulesFileOfALanguageInTheirOrder)
{
    write(L"Korean", L"MsgTestA_kr.ini", "A=\"A of A\"\nB=\"B of A\"\n");
    write(L"Korean", L"MsgTestB_kr.ini", "B=\"B of B\"\nC=\"C of B\"\n");
    write(L"Korean", L"Font_kr.ini", "FONT=Gulim\nSIZE=9\n");
    write(L"Russia", L"MsgTestA_rus.ini", "A=\"russian\"\n");
    CHere info(here());
    info.LoadMessage(1);
    EXPECT_EQ(info.GetCurrentLang(), 1);
    EXPECT_EQ(CMSGFunction::GetValue(L"A") + CMSGFunction::GetValue(L"B") + CMSGFunction::GetValue(L"C"),
              L"A of AB of AC of B");
    EXPECT_EQ(CMSGFunction::GetFont(), L"Gulim");
    EXPECT_EQ(CMSGFunction::Get_TarvoH_dll_Name(), L"TarvoH_kr.dll");
    EXPECT_EQ(profile(L"LANGUAGE"), 1);
    info.LoadMessage(4);
    EXPECT_EQ(CMSGFunction::GetValue(L"A") + CMSGFunction::GetValue(L"B"), L"russianB :")
        << "the other language's texts are gone, and Korean is not asked for what is missing";
    EXPECT_EQ(CMSGFunction::GetFont(), L"Gulim") << "no font file here: the last one's font stays";
}

TEST_F(MSGInfoImpl, LoadingTheLanguageInForceDoesNothing)
{
    CHere info(here());
    info.LoadMessage(1);
    write(L"Korean", L"MsgTestA_kr.ini", "A=\"new\"\n");
    CMSGFunction::SetValue(L"B", L"mine");
    set_profile(L"LANGUAGE", 5);
    info.LoadMessage(1);
    EXPECT_EQ(CMSGFunction::GetValue(L"A"), L"A :");
    EXPECT_EQ(CMSGFunction::GetValue(L"B"), L"mine");
    EXPECT_EQ(profile(L"LANGUAGE"), 5);
}

TEST_F(MSGInfoImpl, AnUnknownNumberLoadsEnglishAndIsKept)
{
    write(L"English", L"MsgTestA_us.ini", "A=\"english\"\n");
    CHere info(here());
    for (const int language : {9, -3, 6})
    {
        info.LoadMessage(language);
        EXPECT_EQ(CMSGFunction::GetValue(L"A"), L"english");
        EXPECT_EQ(info.GetCurrentLang(), language);
        EXPECT_EQ(profile(L"LANGUAGE"), language);
        EXPECT_EQ(CMSGFunction::Get_TarvoH_dll_Name(), L"TarvoH_us.dll");
    }
}

TEST_F(MSGInfoImpl, FilesOfEachLanguageHaveTheirFolderAndSuffix)
{
    CHere info(joined(L"/p/"));
    const std::pair<int, const wchar_t*> rows[] = {
        {0, L"English/ _us"}, {1, L"Korean/ _kr"},  {2, L"Japanese/ _jp"},
        {3, L"Chinese/ _ch"}, {4, L"Russia/ _rus"}, {5, L"Global/ _gb"},
        {6, L"English/ _us"}, {9, L"English/ _us"}, {-1, L"English/ _us"}};
    for (const auto& [language, names] : rows)
    {
        CString folder = joined(names), suffix;
        const int blank = folder.Find(L' ');
        suffix = folder.Mid(blank + 1);
        folder = joined(L"/p/Language/") + folder.Left(blank);
        CString font(L"before");
        EXPECT_EQ(info.GetLanguageINIFilePath(language, L"Steel", &font),
                  folder + L"Steel" + suffix + L".ini");
        EXPECT_EQ(font, folder + L"Font" + suffix + L".ini");
        EXPECT_EQ(info.GetLanguageINIFilePath(language, L"Steel", nullptr),
                  folder + L"Steel" + suffix + L".ini");
    }
}

TEST_F(MSGInfoImpl, TheAliasStandsForItsModuleInAnyLetterCase)
{
    CHere info(L"");
    const CString path = joined(L"Language/Global/MsgTestB_gb.ini");
    for (const wchar_t* name : {L"MsgTestB", L"MsgTestOld", L"msgtestold", L"MSGTESTOLD"})
        EXPECT_EQ(info.GetLanguageINIFilePath(5, name, nullptr), path);
    EXPECT_EQ(info.GetLanguageINIFilePath(5, L"msgtestb", nullptr),
              joined(L"Language/Global/msgtestb_gb.ini"));
}

TEST_F(MSGInfoImpl, TheProgramPathEndsBehindItsLastSeparator)
{
    CMSGInfoImpl info;
    const CString whole = platform::module::path(nullptr, 260).c_str();
    const CString path = info.GetProgramPath();
    EXPECT_EQ(path, whole.Left(path.GetLength()));
    EXPECT_EQ(path.Right(1), CString(platform::file::separator));
    EXPECT_EQ(whole.Mid(path.GetLength()).Find(platform::file::separator), -1);
}

TEST_F(MSGInfoImpl, ALanguageDirectoryIsBuiltOnAnyProgramPath)
{
    CHere info(L"program");
    EXPECT_EQ(info.GetLanguageINIFilePath(2, L"M", nullptr), joined(L"programLanguage/Japanese/M_jp.ini"));
}

TEST_F(MSGInfoImpl, SwitchingLanguagesAgainAndAgainTakesNoMoreMemory)
{
    std::string bytes;
    for (int i = 0; i < 2000; ++i)
        bytes += "KEY" + std::to_string(i) + "=\"text\"\n";
    write(L"Korean", L"MsgTestA_kr.ini", bytes);
    write(L"English", L"MsgTestA_us.ini", "A=\"1\"\n");
    CHere info(here());
    for (int round = 0; round < 50; ++round)
    {
        info.LoadMessage(1);
        ASSERT_EQ(CMSGFunction::GetValue(L"KEY1999"), L"text");
        info.LoadMessage(0);
        ASSERT_EQ(CMSGFunction::GetValue(L"KEY1999"), L"KEY1999 :");
        ASSERT_EQ(CMSGFunction::GetValue(L"A"), L"1");
    }
}

// ---- the deployment

TEST_F(MSGInfoImpl, ObjectsKeepTheDeploymentOfTheirConstruction)
{
    write(L"Korean", L"MsgTestA_kr.ini", "A=\"a\"\n");
    write(L"Korean", L"MsgTestC_kr.ini", "C=\"c\"\n");
    CHere info(here());
    EXPECT_EQ(CMSGInfoImpl::SetDeployment(deployment({L"MsgTestC"})), 1);
    info.LoadMessage(1);
    EXPECT_EQ(CMSGFunction::GetValue(L"A") + CMSGFunction::GetValue(L"C"), L"aC :");
    CHere next(here());
    next.LoadMessage(0);
    next.LoadMessage(1);
    EXPECT_EQ(CMSGFunction::GetValue(L"A") + CMSGFunction::GetValue(L"C"), L"A :c");
}

TEST_F(MSGInfoImpl, ADeploymentThatCannotBeMeantIsRefusedWithTheReason)
{
    const std::pair<CMSGDeployment, const wchar_t*> rows[] = {
        {deployment({}), L"no module is named"},
        {deployment({L"A", L""}), L"module name 2 \"\" is empty"},
        {deployment({L"A\\B"}), L"module name 1 \"A\\B\" holds a character that no file name has"},
        {deployment({L"A/B"}), L"module name 1 \"A/B\" holds a character that no file name has"},
        {deployment({L"A", L"B", L"a"}), L"module name 3 \"a\" stands twice"},
        {deployment({L"A"}, L"B"), L"the module of the alias \"B\" is empty"},
        {deployment({L"A"}, L"", L"B"), L"the alias of \"B\" is empty"},
        {deployment({L"A"}, L"B", L"C:D"),
         L"the module of the alias \"B\" holds a character that no file name has"},
        {deployment({L"A"}, L"B", L"b"), L"the alias \"B\" stands for itself"},
    };
    for (const auto& [refused, reason] : rows)
    {
        CString error;
        EXPECT_EQ(CMSGInfoImpl::SetDeployment(refused, &error), 0);
        EXPECT_EQ(error, reason);
        EXPECT_EQ(CMSGInfoImpl::SetDeployment(refused), 0);
    }
    CHere info(L"");
    EXPECT_EQ(info.GetLanguageINIFilePath(0, L"MsgTestOld", nullptr),
              joined(L"Language/English/MsgTestB_us.ini"))
        << "what was handed over before is kept";
    CString error(L"before");
    EXPECT_EQ(CMSGInfoImpl::SetDeployment(deployment({L"A"}), &error), 1);
    EXPECT_EQ(error, L"");
}

TEST_F(MSGInfoImpl, ModulesAreProjectsNumberedInTheirOrder)
{
    using qlx::lib::TranslateUtil;
    TranslateUtil::RegisterProject(L"MsgTestOwn", 42);
    EXPECT_EQ(CMSGInfoImpl::SetDeployment(deployment({L"MsgTestFirst", L"msgtestown", L"MsgTestThird"})), 1);
    EXPECT_EQ(TranslateUtil::GetMSGPROJbyName(L"MsgTestFirst"), 0);
    EXPECT_EQ(TranslateUtil::GetMSGPROJbyName(L"MsgTestOwn"), 42) << "the host's own number stays";
    EXPECT_EQ(TranslateUtil::GetMSGPROJbyName(L"msgtestthird"), 2);
    for (const wchar_t* name : {L"MsgTestFirst", L"MsgTestOwn", L"MsgTestThird"})
        TranslateUtil::UnregisterProject(name);
}

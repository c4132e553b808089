#include "tarvo/settings/HostApp.h"

#include "qlx/MRegistry.h"
#include "tarvo/settings/Product.h"
#include "tarvo/settings/Registry.h"
#include "tests/support/TempFolder.h"
#include "tests/support/TestHost.h"
#include "tests/support/TestRegistry.h"
#include "tests/support/print.h"

#include <afxwin.h>
#include <cstdlib>
#include <gtest/gtest.h>

namespace
{
/// An application object whose settings are in the registry.
struct Application : CWinApp
{
    explicit Application(const std::wstring& company) : CWinApp(L"Program")
    {
        SetRegistryKey(company.c_str());
    }
};

/// One whose settings are in an INI file.
struct FileApplication : CWinApp
{
    explicit FileApplication(const std::wstring& path) : CWinApp(L"Program")
    {
        std::free(const_cast<wchar_t*>(m_pszProfileName));
        m_pszProfileName = ::_wcsdup(path.c_str());
    }
};
} // namespace

TEST(HostAppWindowsTest, ApplicationObjectIsTheHostWhileItLives)
{
    TestRegistry own;
    CString strCompany, strProfileName;
    EXPECT_FALSE(CHostApp::GetIdentity(strCompany, strProfileName));
    {
        Application app(own.name());
        EXPECT_TRUE(CHostApp::GetIdentity(strCompany, strProfileName));
        EXPECT_EQ(strCompany, own.name().c_str());
        EXPECT_EQ(strProfileName, L"Program");
        EXPECT_EQ(CRegistry::GetRegistryAppPath(0), (own.key() + L"\\Program").c_str());
        EXPECT_EQ(qlx::lib::MRegistry::MyGetRegistryKey(),
                  (L"Software\\" + own.name() + L"\\Program\\").c_str());
    }
    EXPECT_EQ(CRegistry::GetRegistryAppPath(0), L"");
    EXPECT_EQ(qlx::lib::MRegistry::MyGetRegistryKey(), L"");
}

TEST(HostAppWindowsTest, ProfileOfTheApplicationIsTheOneThatTheLibraryReads)
{
    TestRegistry own;
    Application app(own.name());
    EXPECT_EQ(CHostApp::ReadInt(L"LANGUAGE", L"LANGUAGECHECK", -1), -1);
    EXPECT_EQ(CHostApp::ReadText(L"LANGUAGE", L"s", L"default"), L"default");
    ASSERT_TRUE(app.WriteProfileInt(L"LANGUAGE", L"LANGUAGECHECK", 1));
    ASSERT_TRUE(app.WriteProfileString(L"ENV_GENERAL", L"DlgFontName_Eng", L"Consolas"));
    EXPECT_EQ(CHostApp::ReadInt(L"LANGUAGE", L"LANGUAGECHECK", -1), 1);
    EXPECT_EQ(CProduct::GetTestEnvValue(L"DlgFontName_Eng"), L"Consolas");
    EXPECT_EQ(CProduct::GetTestEnvValue(L"DlgFontSize_Eng"), L"8");
    EXPECT_EQ(CRegistry::AppGetProfileString(L"ENV_GENERAL", L"DlgFontName_Eng", L"", 0), L"Consolas");

    EXPECT_EQ(CRegistry::AppWriteProfileInt(L"S", L"n", 7), 1);
    EXPECT_EQ(app.GetProfileInt(L"S", L"n", -1), 7u);
    EXPECT_EQ(CHostApp::WriteInt(L"S", L"n", 8), 1);
    EXPECT_EQ(CHostApp::WriteText(L"S", L"s", L"text"), 1);
    EXPECT_EQ(CRegistry::AppGetProfileInt(L"S", L"n", -1), 8);
    EXPECT_EQ(app.GetProfileString(L"S", L"s"), L"text");
    EXPECT_EQ(CHostApp::WriteText(L"S", L"s", nullptr), 1);
    EXPECT_EQ(app.GetProfileString(L"S", L"s", L"gone"), L"gone");

    CString strValue;
    const CString strPath = L"HKEY_CURRENT_USER\\" + qlx::lib::MRegistry::MyGetRegistryKey() + L"ENV_GENERAL";
    EXPECT_EQ(qlx::lib::MRegistry::MyGetProfileString(strPath, L"DlgFontName_Eng", strValue), 1);
    EXPECT_EQ(strValue, L"Consolas");
}

TEST(HostAppWindowsTest, ApplicationWithoutACompanyHasAProfileAndNoRegistryPaths)
{
    const TempFolder folder;
    FileApplication app(folder / L"host.ini");
    CString strCompany, strProfileName;
    EXPECT_TRUE(CHostApp::GetIdentity(strCompany, strProfileName));
    EXPECT_EQ(strCompany, L"");
    EXPECT_EQ(CRegistry::GetRegistryCompanyPath(0), L"");
    EXPECT_EQ(CRegistry::GetRegistryAppPath(1), L"");
    EXPECT_EQ(qlx::lib::MRegistry::MyGetRegistryKey(), L"");
    EXPECT_EQ(CHostApp::WriteInt(L"S", L"n", 949), 1);
    EXPECT_EQ(CHostApp::ReadInt(L"S", L"n", -1), 949);
    EXPECT_EQ(CHostApp::WriteText(L"ENV_GENERAL", L"DlgFontSize_Std", L"11"), 1);
    EXPECT_EQ(CProduct::GetTestEnvValue(L"DlgFontSize_Std"), L"11");
    EXPECT_EQ(CRegistry::AppWriteProfileInt(L"S", L"n", 1), 0);
}

TEST(HostAppWindowsTest, RegisteredNamesWinOverTheApplicationObject)
{
    TestRegistry own;
    Application app(own.name());
    {
        const TestHost host(own.name().c_str(), L"Console");
        EXPECT_EQ(CRegistry::GetRegistryAppPath(0), (own.key() + L"\\Console").c_str());
        EXPECT_EQ(CHostApp::WriteInt(L"S", L"n", 3), 1);
        EXPECT_EQ(app.GetProfileInt(L"S", L"n", 5), 5u);
    }
    EXPECT_EQ(CRegistry::GetRegistryAppPath(0), (own.key() + L"\\Program").c_str());
}

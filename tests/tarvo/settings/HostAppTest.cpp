#include "tarvo/settings/HostApp.h"

#include "tarvo/settings/Registry.h"
#include "tests/support/TestHost.h"
#include "tests/support/TestRegistry.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

TEST(HostAppTest, WithoutAHostEverythingIsADefault)
{
    CString strCompany(L"x"), strProfileName(L"x");
    EXPECT_FALSE(CHostApp::GetIdentity(strCompany, strProfileName));
    EXPECT_EQ(strCompany + strProfileName, L"");
    EXPECT_EQ(CHostApp::ReadInt(L"S", L"n", -1), -1);
    EXPECT_EQ(CHostApp::ReadText(L"S", L"s", L"default"), L"default");
    EXPECT_EQ(CHostApp::ReadText(L"S", L"s", nullptr), L"");
    EXPECT_EQ(CHostApp::WriteInt(L"S", L"n", 1), 0);
    EXPECT_EQ(CHostApp::WriteText(L"S", L"s", L"x"), 0);
}

TEST(HostAppTest, RegisteredNamesAreTheHostUntilTheyAreTakenBack)
{
    CString strCompany, strProfileName;
    {
        const TestHost host(L"Company", L"Program");
        EXPECT_TRUE(CHostApp::GetIdentity(strCompany, strProfileName));
        EXPECT_EQ(strCompany + L"/" + strProfileName, L"Company/Program");
    }
    EXPECT_FALSE(CHostApp::GetIdentity(strCompany, strProfileName));
}

TEST(HostAppTest, ProfileIsKeptBelowTheCompanyAndTheProfileName)
{
    TestRegistry own;
    const TestHost host(own.name().c_str(), L"Program");
    EXPECT_EQ(CHostApp::ReadInt(L"S", L"n", -1), -1);
    EXPECT_EQ(CHostApp::WriteInt(L"S", L"n", 949), 1);
    EXPECT_EQ(CHostApp::WriteText(L"S", L"s", L"text"), 1);
    EXPECT_EQ(CHostApp::ReadInt(L"S", L"n", -1), 949);
    EXPECT_EQ(CHostApp::ReadText(L"S", L"s", L"default"), L"text");

    CString strValue;
    const std::wstring section = own.key() + L"\\Program\\S";
    EXPECT_EQ(CRegistry::GetProfileStringW(section.c_str(), L"s", strValue), 1);
    EXPECT_EQ(strValue, L"text");
    EXPECT_EQ(CHostApp::WriteText(L"S", L"s", nullptr), 1);
    EXPECT_EQ(CHostApp::ReadText(L"S", L"s", L"default"), L"default");
}

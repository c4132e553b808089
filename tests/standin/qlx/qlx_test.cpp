#include "qlx/qlx_lib.h"

#include "platform/registry.h"
#include "tests/support/TestRegistry.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>
#include <map>
#include <string>

using namespace qlx::lib;
namespace registry = platform::registry;

namespace
{
using Texts = std::map<std::wstring, CString>;

struct Provider : IMSGTextProvider
{
    explicit Provider(Texts known) : texts(std::move(known)) { MMSGFunction::RegisterProvider(this); }
    ~Provider() override { MMSGFunction::UnregisterProvider(this); }

    bool GetText(const wchar_t* key, int project, CString& text) override
    {
        last_project = project;
        const auto found = texts.find(key);
        if (found == texts.end())
            return false;
        text = found->second;
        return true;
    }

    Texts texts;
    int last_project = 0;
};
} // namespace

TEST(MMSGFunction, WithoutAProviderEveryKeyIsUnknown)
{
    EXPECT_EQ(MMSGFunction::GetValue(L"IDS_A"), L"Not Registered String [IDS_A]");
    EXPECT_EQ(MMSGFunction::GetValue(L"100% %s"), L"Not Registered String [100% %s]");
    EXPECT_EQ(MMSGFunction::GetValue(nullptr), L"Not Registered String []");
    EXPECT_EQ(MMSGFunction::GetValueByDefault(L"IDS_A", L"default", 3, 1), L"default");
    EXPECT_EQ(MMSGFunction::GetValueByDefault(L"IDS_A", L"default", 3, 0), L"Not Registered String [IDS_A]");
    EXPECT_EQ(MMSGFunction::GetValueByDefault(L"IDS_A", nullptr, 3, 1), L"");
}

TEST(MMSGFunction, ProviderAnswersTheKeysThatItKnows)
{
    Provider provider(Texts{{L"IDS_A", L"text"}, {L"IDS_EMPTY", L""}});
    EXPECT_EQ(MMSGFunction::GetValue(L"IDS_A"), L"text");
    EXPECT_EQ(provider.last_project, no_project);
    EXPECT_EQ(MMSGFunction::GetValue(L"IDS_A", 4), L"text");
    EXPECT_EQ(provider.last_project, 4);
    EXPECT_EQ(MMSGFunction::GetValueByDefault(L"IDS_A", L"default", 5, 1), L"text");
    EXPECT_EQ(provider.last_project, 5);
    EXPECT_EQ(MMSGFunction::GetValue(L"IDS_EMPTY"), L"");
    EXPECT_EQ(MMSGFunction::GetValueByDefault(L"IDS_EMPTY", L"default", 5, 1), L"") << "known, though empty";
    EXPECT_EQ(MMSGFunction::GetValue(L"ids_a"), L"Not Registered String [ids_a]");
}

TEST(MMSGFunction, LastProviderIsAskedFirstAndTheOthersAfterIt)
{
    Provider first(Texts{{L"A", L"first"}, {L"B", L"first"}});
    {
        Provider second(Texts{{L"A", L"second"}});
        EXPECT_EQ(MMSGFunction::GetValue(L"A"), L"second");
        EXPECT_EQ(MMSGFunction::GetValue(L"B"), L"first");
        MMSGFunction::RegisterProvider(&first);
        EXPECT_EQ(MMSGFunction::GetValue(L"A"), L"first") << "registered again, it is the last";
    }
    EXPECT_EQ(MMSGFunction::GetValue(L"A"), L"first");
    MMSGFunction::UnregisterProvider(&first);
    EXPECT_EQ(MMSGFunction::GetValue(L"A"), L"Not Registered String [A]") << "no second registration is left";
    MMSGFunction::UnregisterProvider(&first);
    MMSGFunction::RegisterProvider(nullptr);
    EXPECT_EQ(MMSGFunction::GetValue(L"A"), L"Not Registered String [A]");
}

TEST(TranslateUtil, ProjectHasTheLastNumberRegisteredForItsName)
{
    EXPECT_EQ(TranslateUtil::GetMSGPROJbyName(L"Frame"), no_project);
    TranslateUtil::RegisterProject(L"Frame", 3);
    TranslateUtil::RegisterProject(L"Bridge", 0);
    EXPECT_EQ(TranslateUtil::GetMSGPROJbyName(L"frame"), 3);
    EXPECT_EQ(TranslateUtil::GetMSGPROJbyName(L"BRIDGE"), 0);
    TranslateUtil::RegisterProject(L"FRAME", 7);
    EXPECT_EQ(TranslateUtil::GetMSGPROJbyName(L"Frame"), 7);
    TranslateUtil::UnregisterProject(L"frame");
    TranslateUtil::UnregisterProject(L"frame");
    EXPECT_EQ(TranslateUtil::GetMSGPROJbyName(L"Frame"), no_project);
    EXPECT_EQ(TranslateUtil::GetMSGPROJbyName(L"Bridge"), 0);
    EXPECT_EQ(TranslateUtil::GetMSGPROJbyName(nullptr), no_project);
    TranslateUtil::UnregisterProject(L"Bridge");
}

TEST(MRegistry, RegistryKeyEndsInABackslashAndTheLastRegistrationWins)
{
    EXPECT_EQ(MRegistry::MyGetRegistryKey(), L"");
    MRegistry::SetRegistryKey(L"Software\\Company\\Program");
    EXPECT_EQ(MRegistry::MyGetRegistryKey(), L"Software\\Company\\Program\\");
    MRegistry::SetRegistryKey(L"Software\\Other\\");
    EXPECT_EQ(MRegistry::MyGetRegistryKey(), L"Software\\Other\\");
    MRegistry::SetRegistryKey(L"");
    EXPECT_EQ(MRegistry::MyGetRegistryKey(), L"");
    MRegistry::SetRegistryKey(L"x");
    MRegistry::SetRegistryKey(nullptr);
    EXPECT_EQ(MRegistry::MyGetRegistryKey(), L"");
}

TEST(MRegistry, ProfileStringIsReadByTheFullPathOfItsKey)
{
    TestRegistry own;
    MRegistry::SetRegistryKey((L"Software\\" + own.name()).c_str());
    const CString path = L"HKEY_CURRENT_USER\\" + MRegistry::MyGetRegistryKey() + L"ENV_GENERAL";
    MRegistry::SetRegistryKey(nullptr);
    const HKEY key = registry::create(registry::root(registry::Root::current_user), path.GetString() + 18);
    ASSERT_NE(key, nullptr);
    ASSERT_TRUE(registry::set(key, L"DlgFontSize_Std", 1, "", 0));
    const std::string bytes("9\0"
                            "0\0\0\0x",
                            7);
    ASSERT_TRUE(registry::set(key, L"Size", 1, bytes.data(), bytes.size()));
    registry::close(key);

    CString text(L"untouched");
    EXPECT_EQ(MRegistry::MyGetProfileString(path, L"Missing", text), 0);
    EXPECT_EQ(MRegistry::MyGetProfileString(path + L"\\None", L"Size", text), 0);
    EXPECT_EQ(MRegistry::MyGetProfileString(L"HKCU\\Software", L"Size", text), 0);
    EXPECT_EQ(MRegistry::MyGetProfileString(L"HKEY_CURRENT_USER", L"Size", text), 0);
    EXPECT_EQ(MRegistry::MyGetProfileString(nullptr, L"Size", text), 0);
    EXPECT_EQ(text, L"untouched");
    EXPECT_EQ(MRegistry::MyGetProfileString(path, L"Size", text), 1);
    EXPECT_EQ(text, L"90");
    EXPECT_EQ(MRegistry::MyGetProfileString(path, L"DlgFontSize_Std", text), 1);
    EXPECT_EQ(text, L"");
}

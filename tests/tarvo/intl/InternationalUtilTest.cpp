#include "tarvo/intl/InternationalUtil.h"

#include "platform/file.h"
#include "tarvo/msg/MSGFunction.h"
#include "tarvo/settings/Registry.h"
#include "tests/support/TempFolder.h"
#include "tests/support/TestRegistry.h"
#include "tests/support/print.h"

#include "qlx/qlx_lib.h"

#include <gtest/gtest.h>

namespace
{
constexpr wchar_t kGulim[] = L"\xAD74\xB9BC";

/// A host whose registry key is the test's own.
class DialogFonts : public testing::Test
{
protected:
    void SetUp() override { qlx::lib::MRegistry::SetRegistryKey((L"Software\\" + registry.name()).c_str()); }
    void TearDown() override { qlx::lib::MRegistry::SetRegistryKey(nullptr); }
    void set(const wchar_t* name, const wchar_t* value)
    {
        EXPECT_EQ(CRegistry::WriteProfileStringW((registry.key() + L"\\ENV_GENERAL").c_str(), name, value),
                  1);
    }
    TestRegistry registry;
};

/// The catalogue's font is \p face.
void load_font(const TempFolder& folder, const std::string& face)
{
    const std::wstring path = folder / L"Font.ini";
    ASSERT_EQ(platform::file::write_whole(path.c_str(), "FONT=" + face + "\r\n"),
              platform::file::Written::ok);
    CMSGFunction::SetFontPath(path.c_str(), path.c_str());
    CMSGFunction::LoadFile();
}
} // namespace

TEST_F(DialogFonts, WithoutSettingsAreGulimOfNoSizeAndNinePointTexts)
{
    EXPECT_EQ(CInternationalUtil::GetDlgFontName(), kGulim);
    EXPECT_EQ(CInternationalUtil::GetDlgFontSize(), 0);
    EXPECT_EQ(CInternationalUtil::GetDlgTextFontSize(), 9);
}

TEST_F(DialogFonts, AreTheUsersSettingsAsTheyAreNow)
{
    set(L"DlgFontName_Std", L"Tahoma");
    set(L"DlgFontSize_Std", L"11");
    set(L"DlgFontSize_Eng", L"10");
    EXPECT_EQ(CInternationalUtil::GetDlgFontName(), L"Tahoma");
    EXPECT_EQ(CInternationalUtil::GetDlgFontSize(), 11);
    EXPECT_EQ(CInternationalUtil::GetDlgTextFontSize(), 10);
    set(L"DlgFontName_Std", L"Arial");
    EXPECT_EQ(CInternationalUtil::GetDlgFontName(), L"Arial");
}

TEST_F(DialogFonts, EmptyAndUnusableSettingsAreAsMissingOnes)
{
    set(L"DlgFontName_Std", L"");
    set(L"DlgFontSize_Std", L"");
    EXPECT_EQ(CInternationalUtil::GetDlgFontName(), kGulim);
    EXPECT_EQ(CInternationalUtil::GetDlgFontSize(), 0);
    for (const wchar_t* size : {L"", L"-3", L"0", L"big"})
    {
        set(L"DlgFontSize_Eng", size);
        EXPECT_EQ(CInternationalUtil::GetDlgTextFontSize(), 9);
    }
    set(L"DlgFontSize_Std", L"-3");
    EXPECT_EQ(CInternationalUtil::GetDlgFontSize(), -3);
}

TEST_F(DialogFonts, TextFontIsTheCataloguesWhateverTheSettingsSay)
{
    const TempFolder folder;
    set(L"DlgFontName_Eng", L"Arial");
    load_font(folder, "Lucida Console");
    EXPECT_EQ(CInternationalUtil::GetDlgTextFontName(), L"Lucida Console");
    load_font(folder, "Tahoma  ");
    EXPECT_EQ(CInternationalUtil::GetDlgTextFontName(), L"Tahoma  ");
    load_font(folder, "");
    EXPECT_EQ(CInternationalUtil::GetDlgTextFontName(), L"");
}

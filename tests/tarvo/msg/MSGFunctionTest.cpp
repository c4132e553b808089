#include "tarvo/msg/MSGFunction.h"

#include "platform/file.h"
#include "qlx/MMSGFunction.h"
#include "tests/support/TempFolder.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

#include <string>

using qlx::lib::MMSGFunction;

namespace
{
/// The catalogue is the process's: each test begins and ends with an empty one.
class MSGFunction : public testing::Test
{
protected:
    MSGFunction() { CMSGFunction::Reset(); }
    ~MSGFunction() override { CMSGFunction::Reset(); }

    std::wstring write(const std::wstring& name, const std::string& bytes)
    {
        const std::wstring path = folder / name;
        EXPECT_EQ(platform::file::write_whole(path.c_str(), bytes), platform::file::Written::ok);
        return path;
    }

    TempFolder folder;
};

/// Lays texts of its own over the catalogue.
class COver : public qlx::lib::IMSGTextProvider
{
public:
    COver() { MMSGFunction::RegisterProvider(this); }
    COver(const COver&) = delete;
    COver& operator=(const COver&) = delete;
    ~COver() override { MMSGFunction::UnregisterProvider(this); }
    bool GetText(const wchar_t* key, int, CString& text) override
    {
        if (std::wstring(key) != L"OVER")
            return false;
        text = L"over";
        return true;
    }
};
} // namespace

TEST_F(MSGFunction, AnswersTheTextsOfThePrimaryFiles)
{
    CMSGFunction::AddFile(write(L"1.ini", "A=\"1\"\nB=\"x\"\n").c_str(),
                          write(L"f.ini", "C=\"3\"\n").c_str());
    CMSGFunction::AddFile(write(L"2.ini", "A=\"late\"\nD=\"4\"\n").c_str(), L"");
    EXPECT_EQ(CMSGFunction::GetValue(L"A"), L"A :") << "nothing is read before LoadFile";
    EXPECT_TRUE(CMSGFunction::LoadFile());
    EXPECT_EQ(CMSGFunction::GetValue(L"A"), L"1");
    EXPECT_EQ(CMSGFunction::GetValue(L"D"), L"4");
    EXPECT_EQ(CMSGFunction::GetValue(L"C"), L"C :") << "the fallback catalogue is not loaded";
    EXPECT_EQ(CMSGFunction::GetValue(L"ABC"), L"ABC :");
}

TEST_F(MSGFunction, FindTellsAnUnknownKey)
{
    CMSGFunction::SetValue(L"A", L"");
    CString value(L"before");
    EXPECT_FALSE(CMSGFunction::Find(L"B", value));
    EXPECT_EQ(value, L"before");
    EXPECT_TRUE(CMSGFunction::Find(L"A", value));
    EXPECT_EQ(value, L"");
}

TEST_F(MSGFunction, SetValueAddsAndReplacesUntilReset)
{
    EXPECT_TRUE(CMSGFunction::SetValue(L"A", L"1"));
    EXPECT_TRUE(CMSGFunction::SetValue(L"A", L"a longer one"));
    EXPECT_EQ(CMSGFunction::GetValue(L"A"), L"a longer one");
    CMSGFunction::Reset();
    EXPECT_EQ(CMSGFunction::GetValue(L"A"), L"A :");
}

TEST_F(MSGFunction, ATextStaysWithItsOwnerWhenTheCatalogueIsEmptied)
{
    CMSGFunction::SetValue(L"A", L"kept");
    const CString text = CMSGFunction::GetValue(L"A");
    CMSGFunction::Reset();
    EXPECT_EQ(text, L"kept");
}

TEST_F(MSGFunction, ResetForgetsTheFilesAndKeepsFontAndDllNames)
{
    CMSGFunction::AddFile(write(L"1.ini", "A=\"1\"\n").c_str(), L"");
    CMSGFunction::SetFontPath(write(L"Font_kr.ini", "FONT=Batang\nSIZE=11\n").c_str(),
                              write(L"Font_us.ini", "FONT=Arial\nSIZE=8\n").c_str());
    CMSGFunction::SetHatchAndExcelTemplateFileNames(L"_kr");
    CMSGFunction::LoadFile();
    CMSGFunction::Reset();
    EXPECT_EQ(CMSGFunction::GetFont(), L"Batang");
    EXPECT_EQ(CMSGFunction::GetFontSize(), 11);
    EXPECT_EQ(CMSGFunction::Get_TarvoH_dll_Name(), L"TarvoH_kr.dll");
    EXPECT_TRUE(CMSGFunction::LoadFile()) << "the font file is read, no messages are";
    EXPECT_EQ(CMSGFunction::GetValue(L"A"), L"A :");
}

TEST_F(MSGFunction, RemovesSingleQuotesAroundAText)
{
    const wchar_t* const rows[][2] = {{L"'a'", L"a"},     {L"'", L"'"},          {L"''", L""},
                                      {L"", L""},         {L"\"a\"", L"\"a\""},  {L"'a", L"'a"},
                                      {L"a'", L"a'"},     {L"a", L"a"},          {L"'''", L"'"},
                                      {L"'a' ", L"'a' "}, {L"'\"a\"'", L"\"a\""}};
    for (const auto& row : rows)
        EXPECT_EQ(CMSGFunction::RemoveQuote(row[0]), row[1]);
}

TEST_F(MSGFunction, NamesTheDllsOfALanguage)
{
    CMSGFunction::SetHatchAndExcelTemplateFileNames(L"_us");
    EXPECT_EQ(CMSGFunction::Get_TarvoH_dll_Name(), L"TarvoH_us.dll");
    EXPECT_EQ(CMSGFunction::Get_TarvoBOMSource_RetWall_dll_Name(), L"\\TarvoBOMSource_RetWall_us.dll");
    EXPECT_EQ(CMSGFunction::Get_TarvoBOMSBHSource_dll_Name(), L"\\TarvoBOMSBHSource_us.dll");
    EXPECT_EQ(CMSGFunction::Get_TarvoBOMSource_dll_Name(), L"\\TarvoBOMSource_us.dll");
    EXPECT_EQ(CMSGFunction::Get_TarvoVHSectionSource_dll_Name(), L"\\TarvoVHSectionSource_us.dll");
    EXPECT_EQ(CMSGFunction::Get_TarvoStrutSource_dll_Name(), L"\\TarvoStrutSource_us.dll");
    EXPECT_EQ(CMSGFunction::Get_TarvoBreakDownSource_dll_Name(), L"\\TarvoBreakDownSource_us.dll");
    CMSGFunction::SetHatchAndExcelTemplateFileNames(nullptr);
    EXPECT_EQ(CMSGFunction::Get_TarvoH_dll_Name(), L"TarvoH.dll");
}

TEST_F(MSGFunction, IsAskedByTheCompanionLibrary)
{
    CMSGFunction::SetValue(L"A", L"1");
    EXPECT_EQ(MMSGFunction::GetValue(L"A"), L"1");
    EXPECT_EQ(MMSGFunction::GetValue(L"A", 12), L"1") << "one name space serves all projects";
    EXPECT_EQ(MMSGFunction::GetValueByDefault(L"A", L"default", 3, 1), L"1");
    EXPECT_GE(MMSGFunction::GetValue(L"B").Find(L"Not Registered String"), 0);
    EXPECT_EQ(MMSGFunction::GetValueByDefault(L"B", L"default", 3, 1), L"default");
}

TEST_F(MSGFunction, AHostLaysTextsOverTheCatalogue)
{
    CMSGFunction::SetValue(L"OVER", L"below");
    CMSGFunction::SetValue(L"A", L"1");
    {
        const COver over;
        EXPECT_EQ(MMSGFunction::GetValue(L"OVER"), L"over");
        EXPECT_EQ(MMSGFunction::GetValue(L"A"), L"1");
    }
    EXPECT_EQ(MMSGFunction::GetValue(L"OVER"), L"below");
}

#include "tarvo/restools/ExportIni.h"

#include "script.h"
#include "tarvo/lang/XMultiLang.h"

#include <gtest/gtest.h>

namespace
{
const std::string english =
    "M MENU\nBEGIN\nPOPUP \"&File\\tF1\"\nBEGIN\nMENUITEM \"&Open\\tCtrl+O\", ID_OPEN\nMENUITEM \"x\", 7\n"
    "MENUITEM SEPARATOR\nEND\nEND\n"
    "IDD_A DIALOG 0\nCAPTION \"Setup\"\nBEGIN\nLTEXT \"Name\",IDC_STATIC\nLTEXT \"Size\",IDC_STATIC\n"
    "LTEXT \"Own\",IDC_OWN\nLTEXT \"n\",1001\nPUSHBUTTON \"OK\",IDOK\nPUSHBUTTON \"Help\",IDC_HELP\n"
    "LTEXT \"gone\",IDC_GONE\nLTEXT \"empty\",IDC_EMPTY\nEND\n"
    "IDD_B DIALOGEX 0\nBEGIN\nPUSHBUTTON \"OK\",IDOK\nPUSHBUTTON \"Help\",IDC_HELP\nEND\n"
    "IDD_C DIALOG 0\nBEGIN\nPUSHBUTTON \"OK\",IDOK\nEND\n";
const std::string korean =
    "M MENU\nBEGIN\nPOPUP \"파일(&F)\"\nBEGIN\nMENUITEM \"열기\\tCtrl+O\", ID_OPEN\nMENUITEM \"y\", 7\n"
    "MENUITEM SEPARATOR\nEND\nEND\n"
    "IDD_A DIALOG 0\nCAPTION \"설정\"\nBEGIN\nLTEXT \"이름\",IDC_STATIC\nLTEXT \"크기\",IDC_STATIC\n"
    "LTEXT \"첫\\n\"\"둘\"\"\\\\끝\",IDC_OWN\nLTEXT \"n\",1001\nPUSHBUTTON \"확인\",IDOK\n"
    "PUSHBUTTON \"도움말\",IDC_HELP\nLTEXT \"\",IDC_EMPTY\nEND\n"
    "IDD_B DIALOGEX 0\nBEGIN\nPUSHBUTTON \"확인\",IDOK\nPUSHBUTTON \"도움\",IDC_HELP\nEND\n";

std::string Exported(const std::string& one, const std::string& two)
{
    XIni ini;
    ExportIni(ReadScript(one).resources, ReadScript(two).resources, L"steel", 949, ini);
    const std::string bytes = ini.Serialize();
    std::u16string text;
    for (std::size_t at = 2; at + 1 < bytes.size(); at += 2)
        text += static_cast<char16_t>(static_cast<unsigned char>(bytes[at]) |
                                      static_cast<unsigned char>(bytes[at + 1]) << 8);
    std::string utf8 = Utf8(text);
    std::erase(utf8, '\r');
    return utf8;
}
} // namespace

TEST(ExportIni, WritesSectionsByDialogAndWhatDialogsShareOnce)
{
    XIni ini;
    ExportIni(ReadScript(english).resources, ReadScript(korean).resources, L"steel", 949, ini);
    const auto get = [&](const wchar_t* section, const wchar_t* key) {
        return ini.GetStr(section, key, L"(none)");
    };
    EXPECT_EQ(get(L"GENERAL", L"CODEPAGE"), L"949");
    EXPECT_EQ(get(L"GENERAL", L"PROJECT"), L"steel");
    EXPECT_EQ(get(L"IDD_A", L"IDD_A"), L"설정") << "the caption";
    EXPECT_EQ(get(L"IDD_A", L"IDC_OWN"), L"첫\\n\"둘\"\\끝");
    EXPECT_EQ(get(L"DIALOG", L"IDOK"), L"확인");
    EXPECT_EQ(get(L"IDD_A", L"IDOK"), L"(none)");
    EXPECT_EQ(get(L"IDD_A", L"IDC_HELP"), L"도움말") << "two texts: each dialog has its own";
    EXPECT_EQ(get(L"IDD_B", L"IDC_HELP"), L"도움");
    EXPECT_EQ(get(L"DIALOG", L"IDC_HELP"), L"(none)");
    EXPECT_EQ(get(L"MENUSTR", L"ID_OPEN"), L"열기\tCtrl+O");
    EXPECT_EQ(get(L"MENUSTR", L"File"), L"파일(&F)");
    for (const wchar_t* key : {L"IDC_STATIC", L"1001", L"IDC_GONE", L"IDC_EMPTY"})
        EXPECT_EQ(get(L"IDD_A", key), L"(none)") << Utf8(CString(key));
    EXPECT_EQ(get(L"MENUSTR", L"7"), L"(none)");
    EXPECT_EQ(get(L"MENUSTR", L"SEPARATOR0"), L"(none)");
}

TEST(ExportIni, GivesWhatALanguageTableFinds)
{
    XIni ini;
    ExportIni(ReadScript(english).resources, ReadScript(korean).resources, L"steel", 949, ini);
    std::string bytes = ini.Serialize();
    XMultiLang table;
    ASSERT_EQ(table.Create(reinterpret_cast<unsigned char*>(bytes.data()), static_cast<int>(bytes.size())),
              1);
    EXPECT_EQ(table.GetCodePage(), 949);
    EXPECT_EQ(table.Lang(L"IDC_OWN", L"IDD_A"), L"첫\n\"둘\"\\끝");
    EXPECT_EQ(table.Lang(L"IDOK", L"DIALOG"), L"확인");
}

TEST(ExportIni, OfScriptsWithoutDialogsIsTheGeneralSection)
{
    EXPECT_EQ(Exported("", ""), Exported("A BITMAP a\n", "STRINGTABLE\nBEGIN\nA \"a\"\nEND\n"));
    EXPECT_NE(Exported("", "").find("[GENERAL]"), std::string::npos);
    EXPECT_EQ(Exported("", "").find("[DIALOG]"), std::string::npos);
}

TEST(ExportIni, TakesTheFirstOfTwoDialogsWithOneName)
{
    const std::string dialog = "IDD_A DIALOG 0\nBEGIN\nLTEXT \"";
    const std::string end = "\",IDC_X\nEND\n";
    EXPECT_EQ(Exported(dialog + "a" + end + dialog + "b" + end, dialog + "가" + end + dialog + "나" + end),
              Exported(dialog + "a" + end, dialog + "가" + end));
}

TEST(CodePageOfLanguage, KnowsWordsAndNumbers)
{
    EXPECT_EQ(CodePageOfLanguage(L"LANG_KOREAN"), 949);
    EXPECT_EQ(CodePageOfLanguage(L"lang_japanese"), 932);
    EXPECT_EQ(CodePageOfLanguage(L"25"), 1251);
    EXPECT_EQ(CodePageOfLanguage(L"0x12"), 1252);
    EXPECT_EQ(CodePageOfLanguage(L"LANG_ENGLISH"), 1252);
    EXPECT_EQ(CodePageOfLanguage(nullptr), 1252);
}

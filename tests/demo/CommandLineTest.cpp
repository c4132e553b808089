#include "demo/host/CommandLine.h"

#include "demo/host/Languages.h"

#include <gtest/gtest.h>

TEST(DemoCommandLine, WithoutArgumentsItIsAnOrdinaryProgramInTheStoredLanguage)
{
    const CommandLine line = read_command_line({});
    EXPECT_EQ(L"", line.picturesFolder);
    EXPECT_EQ(std::nullopt, line.language);
    EXPECT_FALSE(line.help);
    EXPECT_EQ(L"", line.error);
}

TEST(DemoCommandLine, FolderAndLanguageAreTakenInAnyOrderAndLetterCase)
{
    for (const auto& arguments :
         {std::vector<std::wstring>{L"--pictures", L"Z:\\a b", L"--language", L"Korean"},
          std::vector<std::wstring>{L"--language", L"kOREAN", L"--pictures", L"Z:\\a b"}})
    {
        const CommandLine line = read_command_line(arguments);
        EXPECT_EQ(L"Z:\\a b", line.picturesFolder);
        EXPECT_EQ(1, line.language);
        EXPECT_EQ(L"", line.error);
    }
}

TEST(DemoCommandLine, WrongArgumentsGiveOneLineThatNamesThem)
{
    const struct
    {
        std::vector<std::wstring> arguments;
        const wchar_t* error;
    } rows[] = {{{L"--picture", L"x"}, L"unknown argument: --picture"},
                {{L"x"}, L"unknown argument: x"},
                {{L"--pictures"}, L"--pictures needs a value"},
                {{L"--pictures", L""}, L"--pictures needs a value"},
                {{L"--language", L"Klingon"}, L"unknown language: Klingon"},
                {{L"--language", L"Russia"}, L"unknown language: Russia"}};
    for (const auto& row : rows)
        EXPECT_EQ(row.error, read_command_line(row.arguments).error);
}

TEST(DemoLanguages, EachHasItsNumberFolderSuffixAndCodePage)
{
    const struct
    {
        const wchar_t* name;
        int number;
        const wchar_t* file;
        int codePage;
    } rows[] = {{L"English", 0, L"C:\\App\\Language\\English\\ctrl_Draw_us.ini", 1252},
                {L"Korean", 1, L"C:\\App\\Language\\Korean\\ctrl_Draw_kr.ini", 949},
                {L"Japanese", 2, L"C:\\App\\Language\\Japanese\\ctrl_Draw_jp.ini", 932},
                {L"Chinese", 3, L"C:\\App\\Language\\Chinese\\ctrl_Draw_ch.ini", 936},
                {L"Russian", 4, L"C:\\App\\Language\\Russia\\ctrl_Draw_rus.ini", 1251},
                {L"Global", 5, L"C:\\App\\Language\\Global\\ctrl_Draw_gb.ini", 1252}};
    for (const auto& row : rows)
    {
        ASSERT_EQ(row.number, find_language(row.name));
        EXPECT_STREQ(row.file, language_file(L"C:\\App", L"Draw", row.number));
        EXPECT_EQ(row.codePage, kLanguages[row.number].codePage);
    }
    EXPECT_EQ(std::nullopt, find_language(L""));
}

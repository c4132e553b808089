#include "tarvo/intl/LocaleLib.h"

#include "tests/support/print.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

namespace
{
struct Row
{
    const char* machine;
    const wchar_t* language;
    int bKorean, bEnglish, bJapanese, bRussian;
};

constexpr Row rows[] = {
    {"ko_KR.UTF-8", L"0412", 1, 0, 0, 0}, {"ja_JP.UTF-8", L"0411", 0, 0, 1, 0},
    {"ru_RU.UTF-8", L"0419", 0, 0, 0, 1}, {"en_US.UTF-8", L"0409", 0, 1, 0, 0},
    {"de_DE.UTF-8", L"0407", 0, 0, 0, 0},
};
} // namespace

/// Runs under one locale after the other; the launcher or the native test chooses it.
TEST(LocaleAtLoad, ValuesFollowTheMachinesLanguage)
{
    EXPECT_EQ(CLocaleLib::csLocale, CLocaleLib::GetSystemLocale());
    EXPECT_EQ(CLocaleLib::bKorean, CLocaleLib::IsKorean());
    EXPECT_EQ(CLocaleLib::bKoreanUILanguage, CLocaleLib::GetUILanguage() == L"0412");
    const char* machine = std::getenv("WINE_TEST_LANG");
    if (!machine)
        return; // this machine's own language, whatever it is
    const Row* found = nullptr;
    for (const Row& row : rows)
        if (std::string(machine) == row.machine)
            found = &row;
    ASSERT_NE(found, nullptr) << machine;
    EXPECT_EQ(CLocaleLib::csLocale, found->language);
    EXPECT_EQ(CLocaleLib::GetUILanguage(), found->language);
    EXPECT_EQ(CLocaleLib::bKorean, found->bKorean);
    EXPECT_EQ(CLocaleLib::bKoreanUILanguage, found->bKorean);
    EXPECT_EQ(CLocaleLib::IsKorean(), found->bKorean);
    EXPECT_EQ(CLocaleLib::IsEnglish(), found->bEnglish);
    EXPECT_EQ(CLocaleLib::IsJapanese(), found->bJapanese);
    EXPECT_EQ(CLocaleLib::IsRussian(), found->bRussian);
}

#include "tarvo/intl/LocaleLib.h"

#include "tarvo/intl/LocaleRules.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

namespace
{
/// Puts another system locale in force for the life of the object.
struct SystemLocale
{
    explicit SystemLocale(const wchar_t* language) { CLocaleLib::csLocale = language; }
    ~SystemLocale() { CLocaleLib::csLocale = strBefore; }
    CString strBefore = CLocaleLib::csLocale;
};
} // namespace

TEST(CLocaleLib, PredicatesFollowTheSystemLocale)
{
    struct Row
    {
        const wchar_t* language;
        int bEnglish, bJapanese, bKorean, bRussian;
    };
    const Row rows[] = {
        {L"0409", 1, 0, 0, 0}, {L"0411", 0, 1, 0, 0}, {L"0412", 0, 0, 1, 0}, {L"0419", 0, 0, 0, 1},
        {L"0407", 0, 0, 0, 0}, {L"0809", 0, 0, 0, 0}, {L"", 0, 0, 0, 0},     {L"412", 0, 0, 0, 0},
    };
    for (const Row& row : rows)
    {
        const SystemLocale locale(row.language);
        EXPECT_EQ(CLocaleLib::IsEnglish(), row.bEnglish) << &row - rows;
        EXPECT_EQ(CLocaleLib::IsJapanese(), row.bJapanese) << &row - rows;
        EXPECT_EQ(CLocaleLib::IsKorean(), row.bKorean) << &row - rows;
        EXPECT_EQ(CLocaleLib::IsRussian(), row.bRussian) << &row - rows;
    }
}

TEST(CLocaleLib, InterfaceLanguageOfTheFourWinsAndEveryOtherFallsBackToTheSystemLocale)
{
    struct Row
    {
        unsigned short id;
        const wchar_t* language; ///< null: the system locale's
    };
    const Row rows[] = {
        {1042, L"0412"}, {1033, L"0409"}, {1041, L"0411"}, {1049, L"0419"},   {0, nullptr},
        {1031, nullptr}, {2057, nullptr}, {2052, nullptr}, {0xFFFF, nullptr},
    };
    for (const Row& row : rows)
        for (const wchar_t* system : {L"0409", L"0411", L"0412", L"0419", L"0407", L"0804", L""})
        {
            const CString strLanguage = LocaleRules::UILanguage(row.id, system);
            EXPECT_EQ(strLanguage, row.language ? row.language : system) << row.id;
            EXPECT_EQ(LocaleRules::IsKorean(strLanguage), strLanguage == L"0412");
        }
}

TEST(CLocaleLib, GermanInterfaceOnAKoreanSystemIsKorean)
{
    EXPECT_EQ(LocaleRules::UILanguage(1031, L"0412"), L"0412");
    EXPECT_EQ(LocaleRules::IsKorean(LocaleRules::UILanguage(1031, L"0412")), 1);
}

TEST(CLocaleLib, KoreanInterfaceOnAnEnglishSystemIsKoreanOnlyAsInterfaceLanguage)
{
    EXPECT_EQ(LocaleRules::IsKorean(L"0409"), 0);
    EXPECT_EQ(LocaleRules::IsKorean(LocaleRules::UILanguage(1042, L"0409")), 1);
}

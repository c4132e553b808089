#include "tarvo/intl/LocaleLib.h"

#include "tests/support/Child.h"
#include "tests/support/Self.h"
#include "tests/support/print.h"

#include <cstdlib>
#include <gtest/gtest.h>

TEST(LocaleAtLoadPosix, EveryLocaleOfTheEnvironmentGivesItsValues)
{
    for (const char* locale : {"ko_KR.UTF-8", "ja_JP.UTF-8", "ru_RU.UTF-8", "en_US.UTF-8", "de_DE.UTF-8"})
        EXPECT_EQ(in_child([&] {
                      ::setenv("LC_ALL", locale, 1);
                      ::setenv("WINE_TEST_LANG", locale, 1);
                      return run_self("LocaleAtLoad.ValuesFollowTheMachinesLanguage");
                  }),
                  0)
            << locale;
}

TEST(LocaleAtLoadPosix, MessagesInAnotherLanguageChangeOnlyTheInterface)
{
    if (is_run_by_self())
    {
        EXPECT_EQ(CLocaleLib::csLocale, std::getenv("LANG") == std::string("ko_KR") ? L"0412" : L"0409");
        EXPECT_EQ(CLocaleLib::bKoreanUILanguage, 1);
        return;
    }
    struct Row
    {
        const char* system;
        const char* messages;
    };
    for (const Row& row : {Row{"en_US", "ko_KR"}, Row{"ko_KR", "de_DE"}})
        EXPECT_EQ(in_child([&] {
                      ::unsetenv("LC_ALL");
                      ::unsetenv("LC_CTYPE");
                      ::setenv("LANG", row.system, 1);
                      ::setenv("LC_MESSAGES", row.messages, 1);
                      return run_self("LocaleAtLoadPosix.MessagesInAnotherLanguageChangeOnlyTheInterface");
                  }),
                  0)
            << row.system;
}

#include "platform/codepage.h"
#include "platform/codepage_system.h"
#include "platform/locale.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace codepage = platform::codepage;

TEST(CodepagePosix, AnsiPageGoesWithTheLanguageOfTheEnvironment)
{
    const struct
    {
        const char* name;
        int page;
    } rows[] = {{"ko_KR.UTF-8", 949}, {"ko", 949},          {"ja_JP.UTF-8", 932}, {"zh_CN.GB18030", 936},
                {"zh_SG", 936},       {"zh_TW.UTF-8", 950}, {"zh_HK", 950},       {"ru_RU.UTF-8", 1251},
                {"de_DE@euro", 1252}, {"kok_IN", 1252},     {"C", 1252},          {"", 1252}};
    const char* const old = std::getenv("LC_ALL");
    const std::string kept = old ? old : "";
    for (const auto& row : rows)
    {
        setenv("LC_ALL", row.name, 1);
        setenv("LC_CTYPE", "", 1);
        setenv("LANG", "", 1);
        EXPECT_EQ(codepage::page_of_language(platform::locale::system_language()), row.page) << row.name;
    }
    old ? setenv("LC_ALL", kept.c_str(), 1) : unsetenv("LC_ALL");
}

TEST(CodepagePosix, SystemsPageIsAskedOnceAndIsAKnownOne)
{
    const int page = codepage::ansi_page();
    setenv("LC_ALL", page == 949 ? "ja_JP" : "ko_KR", 1);
    EXPECT_EQ(codepage::ansi_page(), page);
    unsetenv("LC_ALL");
    EXPECT_TRUE(codepage::known(page));
}

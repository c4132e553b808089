#include "platform/locale.h"

#include "tests/support/Child.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace locale = platform::locale;

namespace
{
struct Row
{
    const char* all;
    const char* ctype;
    const char* messages;
    const char* lang;
    const wchar_t* system;
    std::uint16_t interface;
};

constexpr Row rows[] = {
    {nullptr, nullptr, nullptr, nullptr, L"0409", 0},
    {"ko_KR.UTF-8", "ja_JP", "ru_RU", "en_US", L"0412", 1042},
    {nullptr, "ja_JP", "ru_RU", "en_US", L"0411", 1049},
    {"", "", "", "ru_RU.UTF-8", L"0419", 1049},
    {nullptr, "ko_KR", nullptr, "de_DE", L"0412", 1031},
    {nullptr, nullptr, "ko_KR", "en_US", L"0409", 1042},
    {"C", "ko_KR", "ko_KR", "ko_KR", L"0409", 1033},
    {"xx_YY", nullptr, nullptr, "ko_KR", L"0409", 0},
    {nullptr, nullptr, nullptr, "zh_CN.GB18030", L"0804", 2052},
    {nullptr, nullptr, nullptr, "fr_FR", L"040c", 1036},
};

void put(const char* name, const char* value)
{
    if (value)
        ::setenv(name, value, 1);
    else
        ::unsetenv(name);
}
} // namespace

TEST(LocalePosix, FirstVariableThatIsNotEmptyDecides)
{
    for (const Row& row : rows)
    {
        const int wrong = in_child([&] {
            put("LC_ALL", row.all);
            put("LC_CTYPE", row.ctype);
            put("LC_MESSAGES", row.messages);
            put("LANG", row.lang);
            return (locale::system_language() != row.system) * 1 +
                   (locale::user_interface_language() != row.interface) * 2;
        });
        EXPECT_EQ(wrong, 0) << "row " << &row - rows << " (1 system, 2 interface)";
    }
}

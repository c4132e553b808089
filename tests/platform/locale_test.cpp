#include "platform/locale.h"

#include <gtest/gtest.h>

namespace locale = platform::locale;

TEST(Locale, NameGivesTheLanguageIdentifierOfItsTerritory)
{
    struct Row
    {
        const char* name;
        std::uint16_t id;
    };
    const Row rows[] = {
        {"en_US.UTF-8", 0x0409},
        {"en_GB", 0x0809},
        {"ja_JP.eucJP", 0x0411},
        {"ko_KR.UTF-8", 0x0412},
        {"ko", 0x0412},
        {"ru_RU.KOI8-R", 0x0419},
        {"de_DE@euro", 0x0407},
        {"de_AT.UTF-8@euro", 0x0c07},
        {"zh_CN", 0x0804},
        {"zh_TW.Big5", 0x0404},
        {"ca_ES@valencia", 0x0403},
        {"es_MX", 0x080a},
        {"ko_XX", 0x0412},
        {"C", 0x0409},
        {"C.UTF-8", 0x0409},
        {"POSIX", 0x0409},
        {"", 0},
        {"xx_YY", 0},
        {"_KR", 0},
        {"korean", 0},
        {"KO_KR", 0},
        {".UTF-8", 0},
        {"@", 0},
        {"k", 0},
    };
    for (const Row& row : rows)
        EXPECT_EQ(locale::language_by_name(row.name), row.id) << row.name;
}

TEST(Locale, SystemLanguageIsFourHexadecimalDigits)
{
    const std::wstring text = locale::system_language();
    EXPECT_EQ(text.size(), 4u);
    EXPECT_EQ(text.find_first_not_of(L"0123456789abcdefABCDEF"), std::wstring::npos);
}

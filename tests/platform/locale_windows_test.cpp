#include "platform/locale.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace locale = platform::locale;

TEST(LocaleWindows, EveryKnownNameAgreesWithTheSystemsOwnTable)
{
    int known = 0;
    const auto check = [&](const std::string& language, const std::string& territory) {
        // A territory that we do not list gives the language's main one, which the system may not.
        const std::uint16_t id = locale::language_by_name(language + "_" + territory);
        const std::wstring name(std::wstring(language.begin(), language.end()) + L"-" +
                                std::wstring(territory.begin(), territory.end()));
        wchar_t found[LOCALE_NAME_MAX_LENGTH] = L"";
        if (id == 0 || ::LCIDToLocaleName(id, found, LOCALE_NAME_MAX_LENGTH, 0) == 0 || name != found)
            return;
        ++known;
        EXPECT_EQ(::LocaleNameToLCID(name.c_str(), 0), id) << language << "_" << territory;
    };
    for (char a = 'a'; a <= 'z'; ++a)
        for (char b = 'a'; b <= 'z'; ++b)
            if (locale::language_by_name(std::string{a, b}))
                for (char c = 'A'; c <= 'Z'; ++c)
                    for (char d = 'A'; d <= 'Z'; ++d)
                        check(std::string{a, b}, std::string{c, d});
    EXPECT_GT(known, 80);
}

TEST(LocaleWindows, ValuesAreTheSystemsOwn)
{
    wchar_t digits[8] = L"";
    ASSERT_GT(::GetLocaleInfoW(LOCALE_SYSTEM_DEFAULT, LOCALE_ILANGUAGE, digits, 8), 0);
    EXPECT_EQ(locale::system_language(), digits);
    EXPECT_EQ(locale::user_interface_language(), ::GetUserDefaultUILanguage());
}

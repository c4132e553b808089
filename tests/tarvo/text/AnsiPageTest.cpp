#include "tarvo/text/AnsiPage.h"
#include "tarvo/lang/XIni.h"

#include <gtest/gtest.h>

namespace
{
constexpr unsigned char file[] = "[A]\nk=\"\xb0\xa1\"\n";

CString value(int codePage)
{
    XIni ini;
    ini.SetCodePage(codePage);
    ini.OpenMemory(file, sizeof file - 1);
    return ini.GetStr(L"A", L"k", L"missing");
}
} // namespace

TEST(AnsiPage, StandsForPageZeroInsideTheLibrary)
{
    EXPECT_EQ(SetAnsiCodePage(949), 1);
    EXPECT_STREQ(value(0), L"가");
    EXPECT_STREQ(value(936), L"啊") << "a page that is named stays what it is";
    EXPECT_EQ(SetAnsiCodePage(1251), 1);
    EXPECT_STREQ(value(0), L"°Ў");
    EXPECT_EQ(SetAnsiCodePage(0), 1);
}

TEST(AnsiPage, RefusesAnUnknownPageAndKeepsTheLast)
{
    EXPECT_EQ(SetAnsiCodePage(949), 1);
    EXPECT_EQ(SetAnsiCodePage(12345), 0);
    EXPECT_EQ(SetAnsiCodePage(-1), 0);
    EXPECT_STREQ(value(0), L"가");
    EXPECT_EQ(SetAnsiCodePage(0), 1);
}

#include "tarvo/lang/DialogTemplate.h"

#include "tests/tarvo/lang/TemplateBytes.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
std::wstring dump(const std::vector<unsigned char>& bytes)
{
    const DialogTexts texts = ReadDialogTemplate(bytes);
    std::wstring result = std::wstring(texts.caption);
    for (const DialogTexts::Control& control : texts.controls)
        result += L" " + std::to_wstring(control.id) + L":" + std::wstring(control.text);
    return result;
}
} // namespace

TEST(DialogTemplate, GivesCaptionAndControlTexts)
{
    for (const bool extended : {false, true})
        for (const bool font : {false, true})
            EXPECT_EQ(dump(TemplateBytes(extended, font)
                               .caption(L"Setup")
                               .control(1001, L"Name")
                               .control(1002, L"")
                               .control(1, L"OK!", L"Button", 3)
                               .icon(1003)
                               .control(1004, L"last")
                               .bytes()),
                      L"Setup 1001:Name 1002: 1:OK! 1004:last")
                << extended << font;
}

TEST(DialogTemplate, KeepsWideIdentifiersOfTheExtendedFormOnly)
{
    EXPECT_EQ(dump(TemplateBytes(true, true).caption(L"").control(-1, L"a").bytes()), L" -1:a");
    EXPECT_EQ(dump(TemplateBytes(false, true).caption(L"").control(-1, L"a").bytes()), L" 65535:a");
}

TEST(DialogTemplate, EndsWhereTheBytesEnd)
{
    const std::vector<unsigned char> whole =
        TemplateBytes(true, true).caption(L"Setup").control(1001, L"Name").control(1002, L"Size").bytes();
    std::size_t controls = 0;
    for (std::size_t size = 0; size <= whole.size(); ++size)
    {
        const std::vector<unsigned char> part(whole.begin(),
                                              whole.begin() + static_cast<std::ptrdiff_t>(size));
        const DialogTexts texts = ReadDialogTemplate(part);
        EXPECT_GE(texts.controls.size(), controls);
        controls = texts.controls.size();
    }
    EXPECT_EQ(controls, 2u);
    EXPECT_TRUE(ReadDialogTemplate(std::vector<unsigned char>(100, 0xFF)).controls.empty());
}

#include "tarvo/intl/FontRules.h"

#include <gtest/gtest.h>

TEST(FontRules, HeightIsThePointsOnTheDeviceRoundedHalfAwayFromZero)
{
    struct Row
    {
        int points, dotsPerInch, height;
    };
    for (const Row& row : {Row{9, 96, -12}, Row{8, 96, -11}, Row{10, 96, -13}, Row{9, 144, -18},
                           Row{9, 120, -15}, Row{3, 60, -3}, Row{0, 96, 0}, Row{-9, 96, 12}, Row{-3, 60, 3},
                           Row{2147483647, 96, 1}, Row{-2147483647, 96, 1}, Row{2147483647, 72, -2147483647}})
        EXPECT_EQ(FontRules::Height(row.points, row.dotsPerInch), row.height) << row.points;
}

TEST(FontRules, SizeSettingIsItsLeadingInteger)
{
    struct Row
    {
        const wchar_t* setting;
        int size, textSize;
    };
    for (const Row& row :
         {Row{L"", 0, 9}, Row{L"11", 11, 11}, Row{L" 12pt", 12, 12}, Row{L"-3", -3, 9}, Row{L"0", 0, 9},
          Row{L"big", 0, 9}, Row{L"1", 1, 1}, Row{L"99999999999999999999", 2147483647, 2147483647},
          Row{L"-99999999999999999999", -2147483647 - 1, 9}})
    {
        EXPECT_EQ(FontRules::ToSize(row.setting), row.size);
        EXPECT_EQ(FontRules::ToTextSize(row.setting), row.textSize);
    }
}

TEST(FontRules, PicturesAreStaticsWithAllThreeBitsOfTheirStyle)
{
    EXPECT_TRUE(FontRules::IsPicture(0x0E));        // a bitmap
    EXPECT_TRUE(FontRules::IsPicture(0x5000000Fu)); // a visible child with an enhanced metafile
    for (const unsigned style : {0x00u, 0x02u, 0x03u, 0x0Bu, 0x0Cu, 0x0Du, 0x50000000u})
        EXPECT_FALSE(FontRules::IsPicture(style)) << style;
}

TEST(FontRules, LabelIsRaisedToItsTextOnlyFromBelowTheThreshold)
{
    struct Row
    {
        int height;
        const wchar_t* text;
        int result;
    };
    for (const Row& row : {Row{12, L"one", 13}, Row{13, L"one", 13}, Row{14, L"one", 14}, Row{0, L"one", 13},
                           Row{12, L"", 12}, Row{24, L"one\ntwo", 26}, Row{25, L"one\ntwo", 25},
                           Row{26, L"one\ntwo", 26}, Row{5, L"\n", 26}, Row{20, L"one\rtwo", 20}})
        EXPECT_EQ(FontRules::LabelHeight(row.height, row.text), row.result) << row.height;
}

#include "tarvo/intl/TemplateLayout.h"

#include "tarvo/intl/TemplateFont.h"
#include "tests/tarvo/lang/TemplateBytes.h"

#include <gtest/gtest.h>

#include <ostream>

void PrintTo(const TemplateLayout::Place& place, std::ostream* os)
{
    *os << place.x << "," << place.y << " " << place.cx << "x" << place.cy;
}

namespace
{
using Place = TemplateLayout::Place;
using Bytes = std::vector<unsigned char>;

Bytes setup(bool extended, bool font)
{
    return SetupTemplate(extended, font).place(-1, -2, 300, 20000).control(1004, L"last").bytes();
}
} // namespace

TEST(TemplateLayout, GivesThePlaceOfTheWindowAndOfEveryControl)
{
    for (const bool extended : {false, true})
        for (const bool font : {false, true})
        {
            TemplateLayout layout;
            ASSERT_TRUE(ReadTemplateLayout(setup(extended, font), layout));
            EXPECT_EQ(layout.window, (Place{0, 0, 200, 100}));
            ASSERT_EQ(layout.controls.size(), 4u);
            for (std::size_t i = 0; i < 3; ++i)
                EXPECT_EQ(layout.controls[i].place, (Place{7, 7, 50, 14})) << i;
            EXPECT_EQ(layout.controls[3].place, (Place{-1, -2, 300, 20000})) << "places are signed";
            EXPECT_EQ(layout.controls[1].id, 1);
            EXPECT_EQ(layout.controls[2].id, 1003);
        }
}

TEST(TemplateLayout, CutTemplateIsRefusedWherever)
{
    for (const bool extended : {false, true})
    {
        const Bytes whole = setup(extended, true);
        for (std::size_t size = 0; size < whole.size(); ++size)
        {
            TemplateLayout layout;
            EXPECT_FALSE(ReadTemplateLayout({whole.data(), size}, layout)) << size;
            EXPECT_TRUE(layout.controls.empty()) << size;
        }
    }
}

TEST(TemplateLayout, MeasuringTemplateHasTheFontAndNothingElse)
{
    for (const bool extended : {false, true})
    {
        const Bytes measuring = MakeMeasuringTemplate(setup(extended, true));
        TemplateFont font;
        ASSERT_TRUE(GetTemplateFont(measuring, font));
        EXPECT_EQ(font.face, L"Tahoma");
        EXPECT_EQ(font.points, 9);
        TemplateLayout layout;
        ASSERT_TRUE(ReadTemplateLayout(measuring, layout));
        EXPECT_TRUE(layout.controls.empty());
        EXPECT_EQ(layout.window, Place());
        EXPECT_TRUE(MakeMeasuringTemplate(setup(extended, false)).empty()) << "names no font";
    }
    EXPECT_TRUE(MakeMeasuringTemplate({}).empty());
}

TEST(TemplateLayout, UnitsBecomePixelsRoundedHalfAwayFromZero)
{
    EXPECT_EQ(ToPixels({4, 8, 100, 80}, {6, 13}), (Place{6, 13, 150, 130}));
    EXPECT_EQ(ToPixels({1, 4, 3, 12}, {6, 13}), (Place{2, 7, 5, 20}));
    EXPECT_EQ(ToPixels({-1, -4, -3, -12}, {6, 13}), (Place{-2, -7, -5, -20}));
    EXPECT_EQ(ToPixels({32767, 32767, -32768, 0}, {40000, 40000}),
              (Place{327670000, 163835000, -327680000, 0}));
}

TEST(TemplateLayout, ExtentHoldsWhatRoundingTakesFurtherButNotWhatTheDesignHasOutside)
{
    TemplateLayout layout;
    layout.window = {0, 0, 100, 40};
    EXPECT_EQ(Extent(layout, {7, 15}), (Place{0, 0, 175, 75}));
    layout.controls.push_back({1, {31, 3, 69, 37}}); // 54 + 121 and 6 + 69
    EXPECT_EQ(Extent(layout, {7, 15}), (Place{0, 0, 175, 75}));
    layout.controls.push_back({2, {30, 5, 70, 35}}); // 53 + 123 and 9 + 66
    EXPECT_EQ(Extent(layout, {7, 15}), (Place{0, 0, 176, 75}));
    layout.controls.push_back({3, {90, 20, 60, 90}}); // a combo box with its list
    EXPECT_EQ(Extent(layout, {7, 15}), (Place{0, 0, 176, 75}));
}

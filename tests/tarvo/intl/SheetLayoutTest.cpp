#include "tarvo/intl/SheetLayout.h"

#include <gtest/gtest.h>

#include <string>

using namespace SheetLayout;

TEST(SheetLayout, PartsAreKnownByTheirIdentifiers)
{
    EXPECT_EQ(PartOf(0x3020, false), PART::Fill);
    EXPECT_EQ(PartOf(0, true), PART::Fill);
    EXPECT_EQ(PartOf(1, true), PART::Fill) << "a page may have any identifier";
    EXPECT_EQ(PartOf(0x3026, false), PART::Line);
    for (const unsigned id : {1u, 2u, 9u, 0x3021u, 0x3023u, 0x3024u, 0x3025u})
        EXPECT_EQ(PartOf(id, false), PART::Button) << id;
    for (const unsigned id : {0u, 3u, 0x3022u, 0x3027u, 1001u})
        EXPECT_EQ(PartOf(id, false), PART::Other) << id;
}

TEST(SheetLayout, PartsFollowTheSheetsSize)
{
    struct Row
    {
        PART part;
        Rect larger, smaller;
    };
    const Rect place{10, 20, 60, 50};
    const Size then{200, 100}, larger{230, 140}, smaller{190, 95};
    for (const Row& row :
         {Row{PART::Fill, {10, 20, 90, 90}, {10, 20, 50, 45}},
          Row{PART::Button, {40, 60, 90, 90}, {0, 15, 50, 45}},
          Row{PART::Line, {10, 60, 90, 90}, {10, 15, 50, 45}}, Row{PART::Other, place, place}})
    {
        EXPECT_TRUE(Place(row.part, place, then, larger) == row.larger);
        EXPECT_TRUE(Place(row.part, place, then, smaller) == row.smaller);
        EXPECT_TRUE(Place(row.part, place, then, then) == place);
    }
}

TEST(SheetLayout, PartThatGrowsIsNeverTurnedInsideOut)
{
    EXPECT_TRUE((Place(PART::Fill, {10, 20, 60, 50}, {200, 100}, {100, 10}) == Rect{10, 20, 10, 20}));
}

TEST(SheetLayout, ButtonsHaveNamesAndOnlySomeAreThePagesFirst)
{
    std::wstring all, routed;
    for (unsigned id = 0; id < 0x4000; ++id)
    {
        all += ButtonName(id) ? std::wstring(ButtonName(id)) + L" " : L"";
        routed += IsRouted(id) ? std::wstring(ButtonName(id)) + L" " : L"";
    }
    EXPECT_EQ(all, L"IDOK IDCANCEL IDHELP ID_APPLY_NOW ID_WIZBACK ID_WIZNEXT ID_WIZFINISH ");
    EXPECT_EQ(routed, L"IDHELP ID_APPLY_NOW ID_WIZBACK ID_WIZNEXT ID_WIZFINISH ");
}

TEST(SheetLayout, SheetGrowsByWhatItsPagesLack)
{
    EXPECT_TRUE((Growth({120, 90}, {100, 95}) == Size{20, 0}));
    EXPECT_TRUE((Growth({90, 90}, {100, 95}) == Size{0, 0}));
}

TEST(SheetLayout, WindowGrowsToTheRightAndDownwardsAsFarAsTheScreenAllows)
{
    struct Row
    {
        Rect window;
        Size by;
        Rect grown;
    };
    const Rect screen{0, 0, 1000, 700};
    for (const Row& row : {
             Row{{10, 20, 110, 120}, {30, 40}, {10, 20, 140, 160}},
             Row{{10, 20, 110, 120}, {0, 0}, {10, 20, 110, 120}},
             Row{{890, 590, 990, 690}, {30, 40}, {870, 560, 1000, 700}}, // moved back
             Row{{10, 20, 110, 120}, {2000, 2000}, {0, 0, 1000, 700}},   // never larger than the screen
             Row{{-50, 20, 1050, 120}, {10, 0}, {-50, 20, 1050, 120}},   // was larger before
             Row{{950, 20, 1050, 120}, {0, 10}, {950, 20, 1050, 130}},   // was outside before
             Row{{10, 20, 110, 120}, {-30, -40}, {10, 20, 80, 80}},      // made smaller
             Row{{10, 20, 110, 120}, {-300, -400}, {10, 20, 10, 20}},    // but never turned inside out
             Row{{890, 590, 990, 690}, {-30, 20}, {890, 580, 960, 700}},
         })
        EXPECT_TRUE(Grow(row.window, row.by, screen) == row.grown)
            << row.window.left << "," << row.window.top << " by " << row.by.cx << "," << row.by.cy;
}

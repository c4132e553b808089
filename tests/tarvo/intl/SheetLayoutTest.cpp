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

#include "demo/host/ControlShots.h"

#include <gtest/gtest.h>

namespace
{
ControlShot shot(const wchar_t* key, const wchar_t* text, std::uint32_t colour = 1)
{
    return {key, text, L"Tahoma, 14 px", Picture(2, 2, colour)};
}
} // namespace

TEST(DemoControls, EqualControlsDoNotDiffer)
{
    EXPECT_TRUE(
        compare_controls({shot(L"a", L"x"), shot(L"b", L"y")}, {shot(L"b", L"y"), shot(L"a", L"x")}).empty());
}

TEST(DemoControls, EachKindOfDifferenceIsNamed)
{
    ControlShot font = shot(L"c", L"z");
    font.font = L"Gulim, 15 px";
    const std::vector<std::wstring> expected{L"a is not there", L"b shows \"alt\", not \"neu\"",
                                             L"c has the font Gulim, 15 px, not Tahoma, 14 px",
                                             L"d looks different"};
    EXPECT_EQ(expected,
              compare_controls({shot(L"a", L"x"), shot(L"b", L"neu"), shot(L"c", L"z"), shot(L"d", L"w")},
                               {shot(L"b", L"alt"), font, shot(L"d", L"w", 2)}));
}

TEST(DemoControls, ChangedTextsAreCounted)
{
    EXPECT_EQ(1, count_changed_texts({shot(L"a", L"x"), shot(L"b", L"y"), shot(L"gone", L"z")},
                                     {shot(L"a", L"x"), shot(L"b", L"new")}));
}

TEST(DemoControls, WindowIsTakenWithItsVisibleControlsAndTheLinesOfACombo)
{
    const HWND window = CreateWindowExW(0, L"Static", L"Frame", WS_POPUP | WS_VISIBLE, 10, 10, 200, 200,
                                        nullptr, nullptr, nullptr, nullptr);
    CreateWindowExW(0, L"Button", L"Push", WS_CHILD | WS_VISIBLE, 0, 0, 80, 20, window,
                    reinterpret_cast<HMENU>(7), nullptr, nullptr);
    CreateWindowExW(0, L"Button", L"Hidden", WS_CHILD, 0, 0, 80, 20, window, reinterpret_cast<HMENU>(8),
                    nullptr, nullptr);
    const HWND combo = CreateWindowExW(0, L"ComboBox", L"", WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, 0, 30,
                                       80, 90, window, reinterpret_cast<HMENU>(9), nullptr, nullptr);
    for (const wchar_t* const line : {L"one", L"two"})
        SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line));
    SendMessageW(combo, CB_SETCURSEL, 1, 0);
    const std::vector<ControlShot> shots = take_controls(L"W", window);
    ASSERT_EQ(3u, shots.size());
    EXPECT_EQ(L"W", shots[0].key);
    EXPECT_EQ(L"Frame", shots[0].text);
    EXPECT_EQ(L"W/7", shots[1].key);
    EXPECT_EQ(L"Push", shots[1].text);
    EXPECT_EQ(80, shots[1].picture.width);
    EXPECT_EQ(L"W/9", shots[2].key);
    EXPECT_EQ(L"two | one | two", shots[2].text);
    DestroyWindow(window);
}

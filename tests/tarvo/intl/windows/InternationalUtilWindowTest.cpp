#include "tarvo/intl/InternationalUtil.h"

#include "tarvo/intl/GlobalFontMgr.h"
#include "tests/tarvo/intl/windows/IntlFixture.h"

#include <cstring>

namespace
{
/// A host window with children of given classes, texts and heights.
class ControlsOfADialog : public IntlWindows
{
protected:
    HWND Add(const wchar_t* className, const wchar_t* text, int height, DWORD style = 0)
    {
        const HWND window = ::CreateWindowExW(0, className, text, WS_CHILD | style, 30, 20, 60, height,
                                              host.m_hWnd, nullptr, nullptr, nullptr);
        EXPECT_TRUE(window);
        return window;
    }
    CHostWnd host;
};
} // namespace

TEST_F(ControlsOfADialog, LabelsAreRaisedToTheirTextFromTheirUpperLeftCorner)
{
    struct Row
    {
        const wchar_t* className;
        const wchar_t* text;
        int height;
        DWORD style;
        int result;
    };
    constexpr Row rows[] = {
        {L"Static", L"one", 12, 0, 13},
        {L"Static", L"one", 13, 0, 13},
        {L"Static", L"one", 5, SS_RIGHT, 13},
        {L"Static", L"", 12, 0, 12},
        {L"Static", L"one\ntwo", 24, 0, 26},
        {L"Static", L"one\ntwo", 25, 0, 25},
        {L"Static", L"one", 8, SS_BITMAP, 8},
        {L"Static", L"one", 8, SS_ENHMETAFILE, 8},
        {L"Button", L"one", 8, 0, 8},
        {L"Edit", L"one", 8, 0, 8},
        {L"Static", L"one", 8, SS_SUNKEN | SS_LEFT, 13},
    };
    std::vector<HWND> windows;
    for (const Row& row : rows)
        windows.push_back(Add(row.className, row.text, row.height, row.style));
    CInternationalUtil::AdjustStaticControlHeight(&host);
    for (std::size_t i = 0; i < std::size(rows); ++i)
    {
        CRect place;
        ::GetWindowRect(windows[i], place);
        host.ScreenToClient(place);
        EXPECT_EQ(place.TopLeft(), CPoint(30, 20)) << i;
        EXPECT_EQ(place.Height(), rows[i].result) << i;
        EXPECT_EQ(place.Width(), 60) << i;
    }
}

TEST_F(ControlsOfADialog, OnlyItsOwnChildrenAreRaised)
{
    const HWND box = Add(L"Static", L"", 100);
    const HWND inner =
        ::CreateWindowExW(0, L"Static", L"inner", WS_CHILD, 0, 0, 50, 8, box, nullptr, nullptr, nullptr);
    CInternationalUtil::AdjustStaticControlHeight(&host);
    EXPECT_EQ(HeightOf(inner), 8);
}

TEST_F(ControlsOfADialog, OnlyBrowseButtonsGetTheButtonFont)
{
    const HWND browse = Add(L"Button", L"...", 14);
    const HWND other = Add(L"Button", L"Browse", 14);
    const HWND longer = Add(L"Button", L"....", 14);
    const HWND label = Add(L"Static", L"...", 14);
    CInternationalUtil::ChangeButtonFont(&host, L"Arial", 12);
    EXPECT_EQ(FontOf(browse), L"Arial -16");
    for (const HWND window : {other, longer, label})
        EXPECT_EQ(FontOf(window), L"none");
    CInternationalUtil::ChangeButtonFont(&host, L"Arial", 12);
    EXPECT_EQ(CGlobalFontMgr::GetCount(), 1);
}

TEST_F(ControlsOfADialog, EveryEditControlGetsTheEditFont)
{
    const HWND edit = Add(L"Edit", L"", 14);
    const HWND lines = Add(L"Edit", L"a", 14, ES_MULTILINE);
    const HWND label = Add(L"Static", L"a", 14);
    CInternationalUtil::ChangeEditBoxFont(&host, L"Arial", 12);
    EXPECT_EQ(FontOf(edit), L"Arial -16");
    EXPECT_EQ(FontOf(lines), L"Arial -16");
    EXPECT_EQ(FontOf(label), L"none");
}

TEST_F(ControlsOfADialog, FontDescriptionFollowsTheWindowsDevice)
{
    LOGFONTW font;
    ASSERT_EQ(CInternationalUtil::GetLogFont(&host, L"Tahoma", 9, font), 1);
    const LOGFONTW wanted = CGlobalFontMgr::Describe(L"Tahoma", -12);
    EXPECT_EQ(std::memcmp(&font, &wanted, sizeof font), 0);
}

TEST_F(ControlsOfADialog, NullWindowAndOneWithoutHandleChangeNothing)
{
    CWnd none;
    LOGFONTW font;
    std::memset(&font, 0x55, sizeof font);
    const LOGFONTW before = font;
    for (CWnd* const window : {static_cast<CWnd*>(nullptr), &none})
    {
        EXPECT_EQ(CInternationalUtil::GetLogFont(window, L"Tahoma", 9, font), 0);
        EXPECT_EQ(std::memcmp(&font, &before, sizeof font), 0);
        CInternationalUtil::AdjustStaticControlHeight(window);
        CInternationalUtil::ChangeButtonFont(window, L"Tahoma", 9);
        CInternationalUtil::ChangeEditBoxFont(window, L"Tahoma", 9);
    }
    EXPECT_EQ(CGlobalFontMgr::GetCount(), 0);
}

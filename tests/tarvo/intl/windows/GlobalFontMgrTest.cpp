#include "tarvo/intl/GlobalFontMgr.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
class SharedFonts : public testing::Test
{
protected:
    void SetUp() override { CGlobalFontMgr::ReleaseAll(); }
    void TearDown() override { CGlobalFontMgr::ReleaseAll(); }
};

LOGFONTW description_of(HFONT font)
{
    LOGFONTW description = {};
    EXPECT_EQ(::GetObjectW(font, sizeof description, &description), static_cast<int>(sizeof description));
    return description;
}
} // namespace

TEST_F(SharedFonts, OneFontServesEachFaceSizeAndResolution)
{
    const HFONT font = CGlobalFontMgr::GetFont(L"Tahoma", 9, 96);
    ASSERT_TRUE(font);
    EXPECT_EQ(CGlobalFontMgr::GetFont(L"tahoma", 9, 96), font);
    EXPECT_EQ(CGlobalFontMgr::GetFont(CGlobalFontMgr::Describe(L"Tahoma", -12)), font);
    EXPECT_EQ(CGlobalFontMgr::GetCount(), 1);
    EXPECT_NE(CGlobalFontMgr::GetFont(L"Gulim", 9, 96), font);
    EXPECT_NE(CGlobalFontMgr::GetFont(L"Tahoma", 10, 96), font);
    EXPECT_NE(CGlobalFontMgr::GetFont(L"Tahoma", 9, 144), font);
    LOGFONTW bold = CGlobalFontMgr::Describe(L"Tahoma", -12);
    bold.lfWeight = FW_BOLD;
    EXPECT_NE(CGlobalFontMgr::GetFont(bold), font);
    EXPECT_EQ(CGlobalFontMgr::GetCount(), 5);
}

TEST_F(SharedFonts, HeightFollowsTheResolution)
{
    EXPECT_EQ(description_of(CGlobalFontMgr::GetFont(L"Tahoma", 9, 96)).lfHeight, -12);
    EXPECT_EQ(description_of(CGlobalFontMgr::GetFont(L"Tahoma", 9, 144)).lfHeight, -18);
    const HDC screen = ::GetDC(nullptr);
    const int dots = ::GetDeviceCaps(screen, LOGPIXELSY);
    ::ReleaseDC(nullptr, screen);
    EXPECT_EQ(CGlobalFontMgr::GetFont(L"Tahoma", 9), CGlobalFontMgr::GetFont(L"Tahoma", 9, dots));
}

TEST_F(SharedFonts, EveryTraitButFaceAndHeightIsTheDefaultOne)
{
    const LOGFONTW font = description_of(CGlobalFontMgr::GetFont(L"Tahoma", 9, 96));
    EXPECT_STREQ(font.lfFaceName, L"Tahoma");
    EXPECT_EQ(font.lfWeight, 400);
    EXPECT_EQ(font.lfCharSet, 1);
    EXPECT_EQ(font.lfOutPrecision, 4);
    EXPECT_EQ(font.lfPitchAndFamily, 2);
    EXPECT_EQ(font.lfWidth + font.lfEscapement + font.lfOrientation + font.lfItalic + font.lfUnderline +
                  font.lfStrikeOut + font.lfClipPrecision + font.lfQuality,
              0);
}

TEST_F(SharedFonts, FaceThatDoesNotExistAndOneThatIsTooLongGiveFontsAllTheSame)
{
    EXPECT_TRUE(CGlobalFontMgr::GetFont(L"No such face", 9));
    EXPECT_TRUE(CGlobalFontMgr::GetFont(nullptr, 9));
    const std::wstring face(50, L'x');
    EXPECT_EQ(description_of(CGlobalFontMgr::GetFont(face.c_str(), 9)).lfFaceName, face.substr(0, 31));
    LOGFONTW open = CGlobalFontMgr::Describe(L"", -12);
    for (wchar_t& unit : open.lfFaceName)
        unit = L'y'; // no null at its end
    EXPECT_EQ(description_of(CGlobalFontMgr::GetFont(open)).lfFaceName, std::wstring(31, L'y'));
}

TEST_F(SharedFonts, ReleasedFontsAreGoneAndAreMadeAnew)
{
    const HFONT font = CGlobalFontMgr::GetFont(L"Tahoma", 9);
    CGlobalFontMgr::ReleaseAll();
    EXPECT_EQ(CGlobalFontMgr::GetCount(), 0);
    EXPECT_EQ(::GetObjectType(font), 0u);
    EXPECT_TRUE(CGlobalFontMgr::GetFont(L"Tahoma", 9));
}

#include <afx.h>

#include "platform/codepage.h"
#include "platform/file.h"
#include "tests/support/TempFolder.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

namespace
{
/// The system's ANSI page is 949: on Windows by the locale that the program runs in.
struct Korean : testing::Test
{
    Korean()
    {
        if (platform::codepage::ansi_page() != 949)
            platform::codepage::set_ansi_page(949);
    }
    ~Korean() override { platform::codepage::set_ansi_page(0); }
};
} // namespace

TEST_F(Korean, CharactersOfTwoBytesAreNotCutInParts)
{
    const TempFolder folder;
    const CString path = (folder / L"k.txt").c_str();
    platform::file::write_whole(path, "\xB0\xA1\xB3\xAA\xB4\xD9\r\n"); // three syllables
    CStdioFile file(path, CFile::modeRead);
    wchar_t part[3];
    EXPECT_NE(file.ReadString(part, 3), nullptr);
    EXPECT_EQ(CString(part), L"\xAC00\xB098");
    EXPECT_EQ(file.GetPosition(), 4u);
    EXPECT_NE(file.ReadString(part, 3), nullptr);
    EXPECT_EQ(CString(part), L"\xB2E4\n");
    file.Close();
    file.Open(path, CFile::modeCreate | CFile::modeWrite);
    file.WriteString(L"\xAC00\n");
    file.Close();
    EXPECT_EQ(platform::file::read_whole(path, 100), "\xB0\xA1\r\n");
}

TEST_F(Korean, EightBitTextIsConvertedInThePageOfTheSystem)
{
    const CString wide("\xB0\xA1-a");
    EXPECT_EQ(wide, L"\xAC00-a");
    EXPECT_EQ(CStringA(wide), "\xB0\xA1-a");
    EXPECT_EQ(CString("\xB0\xA1-a", 2), L"\xAC00");
    CString s(L"x");
    s += "\xB3\xAA";
    s = s + CString("!");
    EXPECT_EQ(s, L"x\xB098!");
    CStringA a("\xB0\xA1 Beam");
    EXPECT_EQ(a.MakeUpper(), "\xB0\xA1 BEAM");
    EXPECT_EQ(a.MakeLower(), "\xB0\xA1 beam");
    EXPECT_EQ(a.CompareNoCase("\xB0\xA1 BEAM"), 0);
    s.Format(L"%S|%.2S|%hs|%.1hs", "\xB0\xA1", "\xB0\xA1\xB3\xAA\xB4\xD9", "\xB3\xAA", "\xB3\xAA\xB0\xA1");
    EXPECT_EQ(s, L"\xAC00|\xAC00\xB098|\xB098|\xB098");
    a.Format("%ls|%S|%s", L"\xAC00", L"\xB098", "\xB0\xA1");
    EXPECT_EQ(a, "\xB0\xA1|\xB3\xAA|\xB0\xA1");
}

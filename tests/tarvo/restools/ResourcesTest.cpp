#include "script.h"

#include "platform/codepage.h"
#include "platform/file.h"
#include "tarvo/text/AnsiPage.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

using namespace std::string_literals;

namespace
{
struct FromFile
{
    CResources resources;
    CString log;
    CStringArray languages;

    bool Read(const wchar_t* path) { return resources.Read(path, log, L"", languages); }
};

std::string DumpOf(const std::string& bytes)
{
    CResources resources;
    CString log;
    CStringArray languages;
    EXPECT_TRUE(resources.ReadMemory(bytes, log, nullptr, languages));
    return Dump(resources);
}
} // namespace

TEST(Resources, ReadAFileAndLogItsName)
{
    const TempFolder folder;
    const std::wstring path = folder / L"a.rc";
    ASSERT_EQ(platform::file::write_whole(path.c_str(), "LANGUAGE 18, 1\r\nA BITMAP \"a.bmp\"\r\n"),
              platform::file::Written::ok);
    FromFile script;
    script.log = L"before\r\n";
    EXPECT_TRUE(script.Read(path.c_str()));
    EXPECT_EQ(script.log,
              CString(L"before\r\nReading ") + path.c_str() + L"\r\nFind language: 18\r\nReading done\r\n");
    EXPECT_EQ(Dump(script.resources), "bitmap A \"a.bmp\"\n");
    ASSERT_EQ(script.languages.GetSize(), 1);
    EXPECT_EQ(script.languages[0], L"18");
}

TEST(Resources, CannotReadAFileThatIsNotThere)
{
    const TempFolder folder;
    const std::wstring path = folder / L"missing.rc";
    FromFile script;
    EXPECT_FALSE(script.Read(path.c_str()));
    EXPECT_EQ(script.log, CString(L"Couldn't open ") + path.c_str() + L"\r\n");
}

TEST(Resources, CannotReadAFileWithoutAName)
{
    FromFile script;
    EXPECT_FALSE(script.Read(L""));
    EXPECT_FALSE(script.Read(nullptr));
    EXPECT_EQ(script.log, L"");
}

TEST(Resources, ForgetWhatWasReadBefore)
{
    FromFile script;
    EXPECT_TRUE(script.resources.ReadMemory("A BITMAP a", script.log, L"", script.languages));
    EXPECT_TRUE(script.resources.ReadMemory("B ICON b", script.log, L"", script.languages));
    EXPECT_EQ(Dump(script.resources), "icon B \"b\"\n");
    EXPECT_FALSE(script.Read(L""));
    EXPECT_EQ(Dump(script.resources), "");
}

TEST(Resources, AreTheSameInEveryEncoding)
{
    const std::string wanted = "bitmap A \"가.bmp\"\n";
    EXPECT_EQ(DumpOf("\xEF\xBB\xBF"
                     "A BITMAP \"가.bmp\""),
              wanted);
    std::string little = "\xFF\xFE"s, big = "\xFE\xFF"s;
    for (const char16_t unit : std::u16string(u"A BITMAP \"가.bmp\""))
    {
        const char low = static_cast<char>(unit & 0xFF), high = static_cast<char>(unit >> 8);
        little += {low, high};
        big += {high, low};
    }
    EXPECT_EQ(DumpOf(little), wanted);
    EXPECT_EQ(DumpOf(big), wanted);
    SetAnsiCodePage(949);
    EXPECT_EQ(DumpOf("A BITMAP \"\xB0\xA1.bmp\""), wanted);
    SetAnsiCodePage(0);
}

// It is read, decoded and taken apart in pieces, which must not show wherever they end.
TEST(Resources, AreTheSameInLongScriptsWhateverStandsWhereAPieceEnds)
{
    std::string text, wanted;
    for (int i = 0; i < 4000; ++i)
    {
        const std::string id = "ID_" + std::to_string(i), value(static_cast<std::size_t>(i) % 61, 'x');
        text += "  " + id + " \"\xEA\xB0\x80" + value + "\"\r\n";
        wanted += "string " + id + " \"\xEA\xB0\x80" + value + "\"\n";
    }
    const std::string longText(200000, 'y');
    wanted += "string ID_LONG \"" + longText + "\"\nbitmap B \"\xEA\xB0\x80.bmp\"\n";
    const TempFolder folder;
    const std::wstring path = folder / L"a.rc";
    for (const std::size_t before : {0u, 1u, 2u, 3u, 4u, 5u})
    {
        const std::string script = std::string(before, '\n') + "STRINGTABLE\r\nBEGIN\r\n" + text +
                                   "ID_LONG \"" + longText + "\"\r\nEND\r\nB BITMAP \"\xEA\xB0\x80.bmp\"";
        std::string little = "\xFF\xFE"s;
        for (const char16_t unit : Utf16(script))
            little += {static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)};
        const auto wide = platform::codepage::decode(platform::codepage::utf8, script);
        const std::string ansi = *platform::codepage::encode(949, *wide);
        SetAnsiCodePage(949);
        for (const std::string& bytes : {Marked(script), little, ansi})
        {
            EXPECT_EQ(DumpOf(bytes), wanted);
            ASSERT_EQ(platform::file::write_whole(path.c_str(), bytes), platform::file::Written::ok);
            FromFile file;
            EXPECT_TRUE(file.Read(path.c_str()));
            EXPECT_EQ(Dump(file.resources), wanted);
        }
        SetAnsiCodePage(0);
    }
}

// In some pages the second byte of a character may be a backslash or a bar.
TEST(Resources, AreDecodedBeforeQuotesAreLookedFor)
{
    SetAnsiCodePage(932);
    EXPECT_EQ(DumpOf("STRINGTABLE\nBEGIN\nA \"\x95\x5C\"\nB \"b\"\nEND\nC BITMAP \"\x83\x7C\x95\x5C\" x"),
              "string A \"表\"\nstring B \"b\"\nbitmap C \"ポ表\"\n");
    SetAnsiCodePage(0);
}

TEST(Resources, CanBeMovedWithoutLosingTheirTexts)
{
    Script script =
        ReadScript("D DIALOG 0\nSTYLE A | B\nCAPTION \"say \"\"hi\"\"\"\nBEGIN\nLTEXT \"x\",\n1\nEND\n");
    const std::string before = Dump(script.resources);
    CResources moved = std::move(script.resources);
    EXPECT_EQ(Dump(moved), before);
    EXPECT_EQ(Dump(CResources(std::move(moved))), before);
}

TEST(Resources, AreFoundByNameOfWhichTheFirstCounts)
{
    const Script script = ReadScript("A MENU\nEND\nB MENU\nEND\nA MENU\nEND\nX TOOLBAR 1\nY TOOLBAR 1\n");
    EXPECT_EQ(script.resources.Menus().Find(u"A"), 0);
    EXPECT_EQ(script.resources.Menus().Find(u"B"), 1);
    EXPECT_EQ(script.resources.Menus().Find(u"a"), -1);
    EXPECT_EQ(script.resources.Menus().Find(u"A", 1), 2);
    EXPECT_EQ(script.resources.Toolbars().Find(u"X"), 0);
    EXPECT_EQ(script.resources.Toolbars().Find(u"Y"), -1)
        << "the first toolbar looked for its BEGIN to the end";
}

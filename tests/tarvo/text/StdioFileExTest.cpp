#include "tarvo/text/StdioFileEx.h"

#include "platform/codepage.h"
#include "platform/file.h"
#include "tests/standin/afx/Thrown.h"
#include "tests/support/TempFolder.h"
#include "tests/support/print.h"
#include "tests/tarvo/text/AnsiPage.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

using namespace std::string_literals;

namespace
{
using Lines = std::vector<CString>;

constexpr UINT reading = CFile::modeRead | CFile::shareDenyNone;
constexpr UINT text = reading | CFile::typeText;
constexpr UINT binary = reading | CFile::typeBinary;
constexpr UINT creating = CFile::modeCreate | CFile::modeWrite | CFile::shareDenyNone;

class StdioFileEx : public testing::Test
{
protected:
    std::wstring Path() const { return m_folder / L"file.txt"; }

    void Write(const std::string& bytes)
    {
        EXPECT_EQ(platform::file::write_whole(Path().c_str(), bytes), platform::file::Written::ok);
    }
    std::string Bytes() { return platform::file::read_whole(Path().c_str(), 1 << 20).value_or("missing"); }

    static Lines Rest(CStdioFileEx& file)
    {
        Lines lines;
        CString line;
        while (file.ReadString(line))
            lines.push_back(line);
        EXPECT_EQ(line, L"") << "emptied at the end";
        return lines;
    }

    Lines LinesOf(const std::string& bytes, UINT page = 0, UINT flags = text)
    {
        Write(bytes);
        CStdioFileEx file;
        file.SetCodePage(page);
        EXPECT_TRUE(file.Open(Path().c_str(), flags));
        return Rest(file);
    }

    std::string Written(LPCTSTR units, UINT page = 0, DWORD conversion = 0,
                        UINT flags = creating | CFile::typeText)
    {
        CStdioFileEx file(Path().c_str(), flags);
        file.SetCodePage(page);
        file.SetConversionFlags(conversion);
        file.WriteString(units);
        file.Close();
        return Bytes();
    }

    TempFolder m_folder;
};

std::string Wide(const std::wstring& units) { return "\xFF\xFE" + platform::codepage::to_utf16le(units); }
} // namespace

TEST_F(StdioFileEx, MarkTellsUtf16)
{
    const struct
    {
        std::string bytes;
        bool unicode;
    } rows[] = {{"\xFF\xFE"
                 "a\0"s,
                 true},
                {"\xFF\xFE", true},
                {"\xFF", false},
                {"", false},
                {"\xFE\xFF\0a"s, false},
                {"\xEF\xBB\xBF"
                 "a",
                 false},
                {"a\0"s, false}};
    for (const auto& row : rows)
    {
        Write(row.bytes);
        CStdioFileEx file(Path().c_str(), text);
        EXPECT_EQ(file.IsUnicodeText(), row.unicode) << testing::PrintToString(row.bytes);
        EXPECT_EQ(file.GetPosition(), 0u);
    }
}

TEST_F(StdioFileEx, Utf16TextIsReadAsItStandsWithoutItsMark)
{
    EXPECT_EQ(LinesOf(Wide(L"가\r\nb\n\r\nc")), (Lines{L"가", L"b", L"", L"c"}));
    EXPECT_EQ(LinesOf(Wide(L"")), Lines{});
    EXPECT_EQ(LinesOf(Wide(L"a\n")), Lines{L"a"});
    EXPECT_EQ(LinesOf(Wide(L"a\x1A"
                           L"К\x041A\x1A00\n"
                           L"b")),
              (Lines{L"a\x1A"
                     L"К\x041A\x1A00",
                     L"b"}))
        << "Ctrl+Z is a unit";
    EXPECT_EQ(LinesOf(Wide(L"\x0A0D\x0D0A\x0A00\x000A"
                           L"b")),
              (Lines{L"\x0A0D\x0D0A\x0A00", L"b"}))
        << "halves are no breaks";
    EXPECT_EQ(LinesOf(Wide(L"a\rb\r\r\nc\r")), (Lines{L"a\rb\r", L"c"})) << "one CR goes";
    EXPECT_EQ(LinesOf(Wide(L"\xD83D\xDE00\xD800")), Lines{L"\xD83D\xDE00\xD800"});
    for (const UINT flags : {text, binary})
        EXPECT_EQ(LinesOf(Wide(L"a\nb") + "c", 0, flags), (Lines{L"a", L"b"})) << "half a unit is none";
    EXPECT_EQ(LinesOf(Wide(L"a\n") + "c"), Lines{L"a"});
    EXPECT_EQ(LinesOf("\xFF\xFE"
                      "a"s),
              Lines{});
    const Lines lines = LinesOf(Wide(L"a\0b"s));
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].GetLength(), 3) << "a NUL is a unit";
}

TEST_F(StdioFileEx, MultibyteTextGoesThroughTheCodePage)
{
    EXPECT_EQ(LinesOf("\xB0\xA1\r\nb", 949), (Lines{L"가", L"b"}));
    EXPECT_EQ(LinesOf("\xB0\xA1\r\nb", 936), (Lines{L"啊", L"b"}));
    EXPECT_EQ(LinesOf("\xC6\n", 1251), Lines{L"Ж"});
    const AnsiPage page(949);
    EXPECT_EQ(LinesOf("\xB0\xA1\n"), Lines{L"가"}) << "the system's ANSI page";
    EXPECT_EQ(LinesOf("a\xB0\n\xA1\n", 949), (Lines{L"a?", L"?"})) << "a break is never half a character";
    EXPECT_EQ(LinesOf("a\nb\n", 12345), (Lines{L"", L""})) << "an unknown page";
    const Lines lines = LinesOf("a\0b\n"s, 949);
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].GetLength(), 3) << "a NUL is a character";
}

TEST_F(StdioFileEx, PageCanChangeBetweenLines)
{
    Write("\xB0\xA1\n\xB0\xA1\n");
    CStdioFileEx file(Path().c_str(), text);
    CString line;
    file.SetCodePage(949);
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, L"가");
    file.SetCodePage(936);
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, L"啊");
    EXPECT_EQ(file.GetCodePage(), 936u);
}

TEST_F(StdioFileEx, LinesEndBeforeTheirBreaks)
{
    const struct
    {
        std::string bytes;
        Lines lines;
    } rows[] = {
        {"", {}},
        {"a", {L"a"}},
        {"a\n", {L"a"}},
        {"\n", {L""}},
        {"\r\n\r\n", {L"", L""}},
        {"a\n\r\nb", {L"a", L"", L"b"}},
        {"a\rb\n", {L"a\rb"}},
        {"a\r", {L"a"}},
    };
    for (const auto& row : rows)
        for (const UINT flags : {text, binary})
            EXPECT_EQ(LinesOf(row.bytes, 949, flags), row.lines) << testing::PrintToString(row.bytes);
}

TEST_F(StdioFileEx, TextModeIsThatOfTheBase)
{
    EXPECT_EQ(LinesOf("a\r\r\nb", 949, text), (Lines{L"a", L"b"}))
        << "the CR of the break and a trailing one";
    EXPECT_EQ(LinesOf("a\r\r\nb", 949, binary), (Lines{L"a\r", L"b"}));
    EXPECT_EQ(LinesOf("a\nb\x1A"
                      "c\nd",
                      949, text),
              (Lines{L"a", L"b"}))
        << "Ctrl+Z is the end";
    EXPECT_EQ(LinesOf("a\n\x1A"
                      "c\nd",
                      949, text),
              Lines{L"a"});
    EXPECT_EQ(LinesOf("a\nb\x1A"
                      "c\nd",
                      949, binary),
              (Lines{L"a",
                     L"b\x1A"
                     L"c",
                     L"d"}));
}

TEST_F(StdioFileEx, FirstReadPassesOverThreeBytesOfUtf8WithoutLooking)
{
    EXPECT_EQ(LinesOf("\xEF\xBB\xBF\xEA\xB0\x80\nb", 65001), (Lines{L"가", L"b"}));
    EXPECT_EQ(LinesOf("abcdef\ngh", 65001), (Lines{L"def", L"gh"})) << "a deliberate shortcut";
    EXPECT_EQ(LinesOf("a\nbcd\ne", 65001), (Lines{L"cd", L"e"}));
    EXPECT_EQ(LinesOf("ab", 65001), Lines{});
    EXPECT_EQ(LinesOf("\xEF\xBB\xBF"
                      "a",
                      1252),
              Lines{L"ï»¿a"})
        << "in another page they are text";
    const AnsiPage page(65001);
    EXPECT_EQ(LinesOf("abcdef", 0), Lines{L"abcdef"}) << "only when the page is named";
}

TEST_F(StdioFileEx, MarkIsPassedOverOnceAndOnlyAtTheStart)
{
    Write(Wide(L"ab\nc"));
    CStdioFileEx file(Path().c_str(), text);
    CString line;
    EXPECT_EQ(file.Seek(4, CFile::begin), 4u);
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, L"b") << "not at the start";
    EXPECT_EQ(file.GetPosition(), 8u);
    file.SeekToBegin();
    EXPECT_EQ(Rest(file), (Lines{L"\xFEFF"
                                 L"ab",
                                 L"c"}))
        << "not the first";
    file.Close();

    EXPECT_TRUE(file.Open(Path().c_str(), text));
    file.Seek(4, CFile::begin);
    file.SeekToBegin();
    EXPECT_EQ(Rest(file), (Lines{L"ab", L"c"})) << "seeking is not reading";
}

TEST_F(StdioFileEx, PositionCountsTheBytesOfTheFile)
{
    Write("ab\r\n\xB0\xA1\r\nc");
    CStdioFileEx file(Path().c_str(), text);
    file.SetCodePage(949);
    CString line;
    std::vector<ULONGLONG> positions;
    do
        positions.push_back(file.GetPosition());
    while (file.ReadString(line));
    EXPECT_EQ(positions, (std::vector<ULONGLONG>{0, 4, 8, 9}));
    EXPECT_EQ(file.Seek(4, CFile::begin), 4u);
    EXPECT_EQ(Rest(file), (Lines{L"가", L"c"}));
    file.Seek(-1, CFile::end);
    EXPECT_EQ(Rest(file), Lines{L"c"});
    file.SeekToBegin();
    file.ReadString(line);
    EXPECT_EQ(file.Seek(2, CFile::current), 6u) << "from the line, not from what was read ahead";
}

TEST_F(StdioFileEx, BytesAndLinesShareOnePosition)
{
    Write("ab\r\ncd\r\nef\r\n");
    CStdioFileEx file(Path().c_str(), text);
    CString line;
    char bytes[8] = {};
    wchar_t units[8] = {};
    EXPECT_EQ(file.Read(bytes, 1), 1u);
    EXPECT_EQ(bytes[0], 'a');
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, L"b");
    EXPECT_EQ(file.Read(bytes, 3), 3u);
    EXPECT_STREQ(bytes, "cd\n") << "as the base reads text";
    EXPECT_NE(file.ReadString(units, 8), nullptr);
    EXPECT_STREQ(units, L"ef\n");
    EXPECT_FALSE(file.ReadString(line));
}

TEST_F(StdioFileEx, BytesOfUtf16AreReadUnchanged)
{
    Write(Wide(L"\x0A0D\x1A1A\n") + "c");
    CStdioFileEx file(Path().c_str(), text);
    char bytes[16];
    EXPECT_EQ(std::string(bytes, file.Read(bytes, 4)), "\xFF\xFE\x0D\x0A"s);
    CString line;
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, L"\x1A1A");
    EXPECT_EQ(std::string(bytes, file.Read(bytes, 16)), "c");
}

TEST_F(StdioFileEx, LongLineComesInPiecesOfWholeCharacters)
{
    for (const int length : {4095, 4096, 4097, 8192, 8193, 20000})
        for (const char* lineBreak : {"\n", "\r\n", ""})
        {
            const CString line(L'a', length);
            Lines pieces;
            for (int at = 0; at < length; at += 4096)
                pieces.push_back(line.Mid(at, 4096));
            pieces.push_back(L"next");
            const std::string bytes = std::string(static_cast<std::size_t>(length), 'a') + lineBreak;
            if (*lineBreak == 0)
                pieces.back() = pieces[pieces.size() - 2], pieces.pop_back();
            const std::string all = *lineBreak == 0 ? bytes : bytes + "next";
            EXPECT_EQ(LinesOf(all, 949), pieces) << length << " " << lineBreak;
            EXPECT_EQ(LinesOf(all, 949, binary), pieces) << length << " " << lineBreak;
            EXPECT_EQ(LinesOf(Wide(std::wstring(all.begin(), all.end()))), pieces)
                << length << " " << lineBreak;
        }
}

TEST_F(StdioFileEx, CutNeverFallsInsideACharacter)
{
    const struct
    {
        UINT page;
        std::string character;
        const wchar_t* units;
    } rows[] = {
        {949, "\xB0\xA1", L"가"},  {932, "\x81\x5C", L"―"},
        {936, "\xB0\xA1", L"啊"},  {65001, "\xEA\xB0\x80", L"가"},
        {65001, "\xC2\xA9", L"©"}, {65001, "\xF0\x9F\x98\x80", L"\xD83D\xDE00"},
    };
    for (const auto& row : rows)
        for (std::size_t before = 4092; before <= 4097; ++before)
        {
            std::string bytes = row.page == 65001 ? "\xEF\xBB\xBF" : "";
            bytes += std::string(before, 'a') + row.character + row.character + "\nnext";
            const Lines lines = LinesOf(bytes, row.page);
            const std::size_t fits = before > 4096 ? 0 : (4096 - before) / row.character.size();
            CString first(L'a', static_cast<int>(std::min<std::size_t>(before, 4096)));
            CString rest(L'a', before > 4096 ? 1 : 0);
            for (std::size_t i = 0; i < 2; ++i)
                (i < fits ? first : rest) += row.units;
            Lines expected = {first};
            if (!rest.IsEmpty())
                expected.push_back(rest);
            expected.push_back(L"next");
            EXPECT_EQ(lines, expected) << row.page << " " << before;
        }
    // A long row of pairs, where only a walk from the line's start tells lead bytes from trail bytes.
    std::string pairs = "a";
    for (int i = 0; i < 3000; ++i)
        pairs += "\xB0\xA1";
    EXPECT_EQ(LinesOf(pairs, 949), (Lines{L"a" + CString(L'가', 2047), CString(L'가', 953)}));
}

TEST_F(StdioFileEx, CutKeepsSurrogatePairsWhole)
{
    for (std::size_t before = 4094; before <= 4096; ++before)
    {
        const Lines lines = LinesOf(Wide(std::wstring(before, L'a') + L"\xD83D\xDE00\n"));
        ASSERT_EQ(lines.size(), before == 4094 ? 1u : 2u);
        EXPECT_EQ(lines[0].GetLength(), before == 4095 ? 4095 : 4096);
        if (before != 4094)
        {
            EXPECT_EQ(lines[1], L"\xD83D\xDE00");
        }
    }
}

TEST_F(StdioFileEx, CutLineKeepsTheCarriageReturnsInsideIt)
{
    const std::string a(4096, 'a');
    EXPECT_EQ(LinesOf(a + "\r\rb\n", 949), (Lines{CString(L'a', 4096), L"\r\rb"}));
    EXPECT_EQ(LinesOf(std::string(4095, 'a') + "\rb\n", 949), (Lines{CString(L'a', 4095) + L"\r", L"b"}));
    EXPECT_EQ(LinesOf(a + "\r\r\nb", 949), (Lines{CString(L'a', 4096), L"b"}));
    EXPECT_EQ(LinesOf(a + "\x1A"
                          "b\n",
                      949),
              Lines{CString(L'a', 4096)});
}

TEST_F(StdioFileEx, FileThatGrowsIsReadOn)
{
    Write("a\nb");
    CStdioFileEx file(Path().c_str(), text);
    EXPECT_EQ(Rest(file), (Lines{L"a", L"b"}));
    CFile more(Path().c_str(), CFile::modeWrite | CFile::shareDenyNone);
    more.SeekToEnd();
    more.Write("c\nd\n", 4);
    EXPECT_EQ(Rest(file), (Lines{L"c", L"d"}));
}

TEST_F(StdioFileEx, FileThatIsNotOpenReadsAsAnEmptyOne)
{
    CStdioFileEx file;
    EXPECT_EQ(Rest(file), Lines{});
    file.WriteString(L"nothing happens");
    CFileException error;
    EXPECT_FALSE(file.Open((m_folder / L"missing").c_str(), text, &error));
    EXPECT_EQ(error.m_cause, CFileException::fileNotFound);
    EXPECT_FALSE(file.Open(m_folder.path().c_str(), text));
    EXPECT_EQ(Rest(file), Lines{});
    Write("a\nb");
    EXPECT_TRUE(file.Open(Path().c_str(), text));
    CString line;
    EXPECT_TRUE(file.ReadString(line));
    file.Close();
    EXPECT_EQ(Rest(file), Lines{}) << "closed";
    EXPECT_EQ(thrown_by([&] { CStdioFileEx((m_folder / L"missing").c_str(), text); }), L"CFileException");
}

TEST_F(StdioFileEx, OneObjectReadsFileAfterFile)
{
    CStdioFileEx file;
    Write(Wide(L"a\n"));
    EXPECT_TRUE(file.Open(Path().c_str(), text));
    EXPECT_EQ(Rest(file), Lines{L"a"});
    file.Close();
    Write("\xEF\xBB\xBF"
          "b\n");
    file.SetCodePage(65001);
    EXPECT_TRUE(file.Open(Path().c_str(), text));
    EXPECT_FALSE(file.IsUnicodeText());
    EXPECT_EQ(Rest(file), Lines{L"b"});
}

TEST_F(StdioFileEx, TextIsWrittenInTheCodePageWithoutAMark)
{
    EXPECT_EQ(Written(L"가\nb", 949), "\xB0\xA1\r\nb") << "text mode";
    EXPECT_EQ(Written(L"가\nb", 949, 0, creating | CFile::typeBinary), "\xB0\xA1\nb");
    EXPECT_EQ(Written(L"가\xD83D\xDE00", 65001), "\xEA\xB0\x80\xF0\x9F\x98\x80");
    EXPECT_EQ(Written(L"Ж가Ａ", 1251), "\xC6?A") << "'?' and the best fit";
    EXPECT_EQ(Written(L""), "");
    EXPECT_EQ(Written(nullptr), "");
    EXPECT_EQ(Written(L"a", 12345), "") << "nothing when the conversion gives nothing";
    EXPECT_EQ(Written(CString(L'가', 5000), 949).size(), 10000u) << "however long";
}

TEST_F(StdioFileEx, FlagsGoToTheConversion)
{
    EXPECT_EQ(Written(L"aＡ가\xE9", 1252, 0x400), "a??\xE9") << "no best fit";
    EXPECT_EQ(Written(L"aＡ가", 1252, 0x600), "a??");
    EXPECT_EQ(Written(L"a\xE9", 1252, 0x400), "a\xE9");
    EXPECT_EQ(Written(L"가\xE9", 949, 0x400), "\xB0\xA1?");
    EXPECT_EQ(Written(L"가\xD83D\xDE00", 65001, 0x80), "\xEA\xB0\x80\xF0\x9F\x98\x80");
    EXPECT_EQ(Written(L"a\xD83D", 65001, 0x80), "") << "half a pair is an error";
    EXPECT_EQ(Written(L"a\xDE00\xD83D", 65001, 0x80), "");
    EXPECT_EQ(Written(L"a\xD83D", 65001), "a\xEF\xBF\xBD");
    EXPECT_EQ(Written(L"a", 65001, 0x400), "") << "a flag that the page does not take";
    EXPECT_EQ(Written(L"a", 1252, 0x80), "");
    EXPECT_EQ(Written(L"a", 1252, 0x10000), "");
    EXPECT_EQ(Written(L"a", 12345, 0x400), "");
    CStdioFileEx file;
    EXPECT_EQ(file.GetConversionFlags(), 0u);
}

TEST_F(StdioFileEx, FileOpenForWritingIsNotLookedAt)
{
    Write(Wide(L"ab"));
    CStdioFileEx file(Path().c_str(), CFile::modeWrite | CFile::shareDenyNone | CFile::typeText);
    EXPECT_FALSE(file.IsUnicodeText());
    EXPECT_EQ(file.GetPosition(), 0u);
    file.WriteString(L"xy");
    file.Close();
    EXPECT_EQ(Bytes(), "xy"
                       "a\0b\0"s);

    CStdioFileEx created(Path().c_str(), CFile::modeCreate | CFile::modeReadWrite | CFile::shareDenyNone);
    created.SetCodePage(65001);
    created.WriteString(L"가나\nb\n");
    EXPECT_EQ(created.GetPosition(), 11u);
    created.SeekToBegin();
    EXPECT_EQ(Rest(created), (Lines{L"가나", L"b"})) << "no mark is passed over in a file of our own";
}

TEST_F(StdioFileEx, ReadingAndWritingTakeTurns)
{
    Write("ab\r\ncd\r\nef\r\n");
    CStdioFileEx file(Path().c_str(), CFile::modeReadWrite | CFile::shareDenyNone | CFile::typeText);
    CString line;
    EXPECT_TRUE(file.ReadString(line));
    file.WriteString(L"XY");
    EXPECT_EQ(file.GetPosition(), 6u);
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, L"") << "behind what was written";
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, L"ef");
    file.WriteString(L"gh\n");
    file.SetLength(file.GetPosition() - 1);
    file.Close();
    EXPECT_EQ(Bytes(), "ab\r\nXY\r\nef\r\ngh\r");
}

TEST_F(StdioFileEx, Utf16TextOpenForBothIsWrittenAsItStands)
{
    Write(Wide(L"ab\nc"));
    CStdioFileEx file(Path().c_str(), CFile::modeReadWrite | CFile::shareDenyNone | CFile::typeText);
    CString line;
    EXPECT_TRUE(file.ReadString(line));
    file.WriteString(L"가\n");
    file.Close();
    EXPECT_EQ(Bytes(), Wide(L"ab\n가\n"));
}

TEST_F(StdioFileEx, WhatWasNotWrittenYetIsDroppedByAbort)
{
    CStdioFileEx file(Path().c_str(), creating);
    file.WriteString(L"abc");
    file.Abort();
    EXPECT_EQ(Bytes(), "");
}

TEST_F(StdioFileEx, IsKnownAsItsOwnClass)
{
    CStdioFileEx file;
    EXPECT_STREQ(file.GetRuntimeClass()->m_lpszClassName, "CStdioFileEx");
    EXPECT_TRUE(file.IsKindOf(RUNTIME_CLASS(CStdioFile)));
}

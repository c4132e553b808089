#include "tarvo/text/TextFile.h"

#include "platform/codepage.h"
#include "platform/file.h"
#include "tests/support/TempFolder.h"
#include "tests/support/print.h"
#include "tests/tarvo/text/AnsiPage.h"
#include "tests/tarvo/text/PlainTextReader.h"

#include <gtest/gtest.h>

#include <deque>
#include <random>

using namespace std::string_literals;

namespace
{
using Lines = std::vector<std::wstring>;

class TextFile : public testing::Test
{
protected:
    // A new file, so that one still open is left alone.
    std::wstring Write(const std::string& bytes)
    {
        const std::wstring path = m_folder / (L"text" + std::to_wstring(m_count++));
        EXPECT_EQ(platform::file::write_whole(path.c_str(), bytes), platform::file::Written::ok);
        return path;
    }

    Lines LinesOf(const std::string& bytes)
    {
        CTextFileRead file(Write(bytes).c_str());
        Lines lines;
        for (std::wstring line; file.ReadLine(line);)
            lines.push_back(line);
        EXPECT_TRUE(file.IsEndOfFile());
        return lines;
    }

    TempFolder m_folder;
    int m_count = 0;
};

std::string Repeated(const std::string& text, int count)
{
    std::string all;
    for (int i = 0; i < count; ++i)
        all += text;
    return all;
}

// Hands out its pieces one by one, then none, then what is added: a file that grows.
class PiecewiseFile : public CFile
{
public:
    explicit PiecewiseFile(std::deque<std::string> pieces) : m_pieces(std::move(pieces)) {}
    UINT Read(void* to, UINT count) override
    {
        if (m_throws)
            AfxThrowFileException(CFileException::hardIO);
        if (m_pieces.empty())
            return 0;
        const std::string piece = m_pieces.front().substr(0, count);
        m_pieces.front().erase(0, count);
        if (m_pieces.front().empty())
            m_pieces.pop_front();
        std::copy(piece.begin(), piece.end(), static_cast<char*>(to));
        return static_cast<UINT>(piece.size());
    }

    std::deque<std::string> m_pieces;
    bool m_throws = false;
};
} // namespace

TEST_F(TextFile, EncodingIsToldByTheFirstBytes)
{
    const struct
    {
        std::string bytes;
        TextEncoding encoding;
        Lines lines;
    } rows[] = {
        {"\xFF\xFE"
         "a\0b\0"s,
         TextEncoding::Utf16LittleEndian,
         {L"ab"}},
        {"\xFE\xFF\0a\0b"s, TextEncoding::Utf16BigEndian, {L"ab"}},
        {"\xEF\xBB\xBF"
         "ab",
         TextEncoding::Utf8,
         {L"ab"}},
        {"ab", TextEncoding::Ansi, {L"ab"}},
        {"\xEF\xBB"
         "ab",
         TextEncoding::Ansi,
         {L"п»ab"}},
        {"\xEF\xBB", TextEncoding::Ansi, {L"п»"}},
        {"\xEF\xBF\xBF", TextEncoding::Ansi, {L"пїї"}},
        {"\xFF", TextEncoding::Ansi, {L"я"}},
        {"\xFF\xFF", TextEncoding::Ansi, {L"яя"}},
        {"\xFE\xFE", TextEncoding::Ansi, {L"юю"}},
        {"\xFF\xFE", TextEncoding::Utf16LittleEndian, {}},
        {"\xFE\xFF", TextEncoding::Utf16BigEndian, {}},
        {"\xEF\xBB\xBF", TextEncoding::Utf8, {}},
        {"", TextEncoding::Ansi, {}},
    };
    const AnsiPage page(1251);
    for (const auto& row : rows)
    {
        EXPECT_EQ(LinesOf(row.bytes), row.lines) << testing::PrintToString(row.bytes);
        const CTextFileRead file(Write(row.bytes).c_str());
        EXPECT_EQ(file.GetEncoding(), row.encoding) << testing::PrintToString(row.bytes);
        EXPECT_TRUE(file.IsOpen());
        EXPECT_FALSE(file.IsEndOfFile()) << "nothing was missed yet";
    }
}

TEST_F(TextFile, LinesEndBeforeTheirBreaks)
{
    const struct
    {
        std::string text;
        Lines lines;
    } rows[] = {
        {"a\r\n\r\nb", {L"a", L"", L"b"}},
        {"a\n", {L"a"}},
        {"a\n\rb", {L"a", L"", L"b"}},
        {"a\rb\nc\r\nd", {L"a", L"b", L"c", L"d"}},
        {"a\n\nb\r\rc", {L"a", L"", L"b", L"", L"c"}},
        {"a\r\r\nb", {L"a", L"", L"b"}},
        {"a\r\n\n", {L"a", L""}},
        {"\r", {}},
        {"\n", {}},
        {"\r\n", {}},
        {"\na", {L"a"}},
        {"\r\na", {L"a"}},
        {"\n\na", {L"", L"a"}},
        {"\n\ra", {L"", L"a"}},
        {"a\r", {L"a"}},
        {" \t a ", {L" \t a "}},
        {"a\0b\n\0"s, {L"a\0b"s, L"\0"s}},
        {"a\x1A\n"
         "b",
         {L"a\x1A", L"b"}},
    };
    for (const auto& row : rows)
    {
        std::string wide = "\xFF\xFE";
        std::string swapped = "\xFE\xFF";
        for (const char ch : row.text)
        {
            wide += {ch, '\0'};
            swapped += {'\0', ch};
        }
        for (const std::string& bytes : {row.text, "\xEF\xBB\xBF" + row.text, wide, swapped})
            EXPECT_EQ(LinesOf(bytes), row.lines) << testing::PrintToString(bytes);
    }
}

TEST_F(TextFile, Utf8IsDecodedWithoutAQuestion)
{
    const struct
    {
        const char* text;
        std::wstring line;
    } rows[] = {
        {"\xEA\xB0\x80\xC2\xA9", L"가©"},
        {"\xF0\x9F\x98\x80"
         "a",
         L"\xFFFD\xFFFD\xFFFD\xFFFD"
         L"a"},
        {"\x80\xBF\xF8\xFF", L"\xFFFD\xFFFD\xFFFD\xFFFD"},
        {"\xC3"
         "AB",
         L"\xC1"
         L"B"},
        {"\xE3"
         "ABC",
         L"\x3042"
         L"C"},
        {"\xC0\x80"
         "a",
         L"\0a"s},
        {"\xED\xA0\x80", L"\xD800"},
        {"\xEF\xBF\xBF", L"\xFFFF"},
        {"a\xC3", L"a"},
        {"a\xE3\x81", L"a"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(LinesOf("\xEF\xBB\xBF"s + row.text), Lines{row.line}) << testing::PrintToString(row.text);
    EXPECT_EQ(LinesOf("\xEF\xBB\xBF"
                      "a\xC3\nb"),
              Lines{L"a\xCA"
                    L"b"})
        << "the break belongs to the character";
    EXPECT_EQ(LinesOf("\xEF\xBB\xBF"
                      "a\xC0\x8A"
                      "b"),
              (Lines{L"a", L"b"}))
        << "a break in two bytes";
    EXPECT_EQ(LinesOf("\xEF\xBB\xBF"
                      "a\n\xE3"),
              Lines{L"a"})
        << "no line of half a character";
}

TEST_F(TextFile, Utf16OfOddLengthEndsBeforeItsHalf)
{
    EXPECT_EQ(LinesOf("\xFF\xFE"
                      "a\0b"s),
              Lines{L"a"});
    EXPECT_EQ(LinesOf("\xFF\xFE"
                      "a\0\n\0b"s),
              Lines{L"a"});
    EXPECT_EQ(LinesOf("\xFF\xFE"
                      "a"s),
              Lines{});
    EXPECT_EQ(LinesOf("\xFF\xFE\n"s), Lines{});
    EXPECT_EQ(LinesOf("\xFF\xFE\x0A\x0A\x0D\x0D"
                      "a\0"s),
              Lines{L"\x0A0A\x0D0D"
                    L"a"})
        << "no breaks";
    EXPECT_EQ(LinesOf("\xFF\xFE\x3D\xD8\x00\xDE"s), Lines{L"\xD83D\xDE00"});
}

TEST_F(TextFile, AnsiLinesGoThroughTheAnsiPage)
{
    const AnsiPage page(949);
    EXPECT_EQ(LinesOf("\xB0\xA1\r\n\xB0\xA1"), (Lines{L"가", L"가"}));
    EXPECT_EQ(LinesOf("a\xB0\n\xA1"), (Lines{L"a?", L"?"})) << "a break is never half a character";
    EXPECT_EQ(LinesOf("\xEA\xB0\x80")[0].size(), 2u) << "UTF-8 without a mark is ANSI too";
}

TEST_F(TextFile, LinesAroundTheBufferComeWhole)
{
    const AnsiPage page(949);
    for (const int length :
         {1023, 1024, 1025, 5000, 8191, 8192, 8193, 16381, 16382, 16383, 16384, 16385, 16386, 40000})
        for (const char* const lineBreak : {"\n", "\r\n", "\r"})
        {
            const Lines lines = {std::wstring(static_cast<std::size_t>(length), L'a'), L"", L"b"};
            const std::string text =
                std::string(static_cast<std::size_t>(length), 'a') + lineBreak + lineBreak + "b";
            EXPECT_EQ(LinesOf(text), lines) << length;
            EXPECT_EQ(LinesOf("\xEF\xBB\xBF" + text), lines) << length;
            const std::wstring wide(text.begin(), text.end());
            EXPECT_EQ(LinesOf("\xFF\xFE" + platform::codepage::to_utf16le(wide)), lines) << length;
        }
    for (std::size_t before = 0; before < 4; ++before)
    {
        const std::wstring line = std::wstring(before, L'a') + std::wstring(9000, L'가');
        const std::string front(before, 'a');
        EXPECT_EQ(LinesOf(front + Repeated("\xB0\xA1", 9000)), Lines{line});
        EXPECT_EQ(LinesOf("\xEF\xBB\xBF" + front + Repeated("\xEA\xB0\x80", 9000)), Lines{line});
        EXPECT_EQ(LinesOf("\xFE\xFF" + Repeated(std::string("\0a", 2), static_cast<int>(before)) +
                          Repeated(std::string("\xAC\0", 2), 9000)),
                  Lines{line});
    }
}

TEST_F(TextFile, BothKindsOfStringGetTheSame)
{
    const std::wstring path = Write("\xEF\xBB\xBF"
                                    "\xEA\xB0\x80\n\n" +
                                    std::string(3000, 'x') + "\nlast");
    CTextFileRead first(path.c_str());
    CTextFileRead second(path.c_str());
    CString line(L"left over");
    std::wstring same;
    for (int i = 0; i < 4; ++i)
    {
        ASSERT_TRUE(first.ReadLine(line));
        ASSERT_TRUE(second.ReadLine(same));
        EXPECT_EQ(line, CString(same.data(), static_cast<int>(same.size())));
    }
    const CString kept = line;
    EXPECT_FALSE(first.ReadLine(line));
    EXPECT_FALSE(second.ReadLine(same));
    EXPECT_EQ(line, L"");
    EXPECT_EQ(same, L"");
    EXPECT_EQ(kept, L"last") << "a line that was kept stays";
}

TEST_F(TextFile, FileThatCannotBeOpenedReadsAsAnEmptyOne)
{
    const std::wstring missing = m_folder / L"missing";
    const std::wstring folder = m_folder.path();
    for (const wchar_t* path : {missing.c_str(), L"", static_cast<const wchar_t*>(nullptr), folder.c_str()})
    {
        CTextFileRead file(path);
        CString line(L"left over");
        EXPECT_FALSE(file.IsOpen());
        EXPECT_TRUE(file.IsEndOfFile());
        EXPECT_FALSE(file.ReadLine(line));
        EXPECT_EQ(line, L"");
        file.Close();
    }
}

TEST_F(TextFile, NothingIsReadAfterClose)
{
    for (const char* const mark : {"", "\xEF\xBB\xBF"})
    {
        const std::wstring path = Write(std::string(mark) + "a\nb\n");
        CTextFileRead file(path.c_str());
        CString line;
        EXPECT_TRUE(file.ReadLine(line));
        file.Close();
        EXPECT_FALSE(file.IsOpen());
        EXPECT_TRUE(file.IsEndOfFile());
        EXPECT_FALSE(file.ReadLine(line));
        file.Close();
        EXPECT_TRUE(platform::file::remove(path.c_str())) << "nobody holds the file";
    }
}

TEST_F(TextFile, EndOfFileIsSeenWhenAByteIsMissed)
{
    std::wstring line;
    CTextFileRead broken(Write("a\n").c_str());
    EXPECT_TRUE(broken.ReadLine(line));
    EXPECT_FALSE(broken.IsEndOfFile());
    EXPECT_FALSE(broken.ReadLine(line));
    EXPECT_TRUE(broken.IsEndOfFile());
    CTextFileRead unbroken(Write("a").c_str());
    EXPECT_TRUE(unbroken.ReadLine(line));
    EXPECT_TRUE(unbroken.IsEndOfFile());
}

TEST_F(TextFile, OpenFileIsReadFromItsPositionAndStaysTheCallers)
{
    const std::wstring path = Write("skipped\xFF\xFE"
                                    "a\0\n\0b\0"s);
    CFile file(path.c_str(), CFile::modeRead | CFile::shareDenyWrite);
    file.Seek(7, CFile::begin);
    {
        CTextFileBase reader(file);
        std::wstring line;
        EXPECT_TRUE(reader.ReadLine(line));
        EXPECT_EQ(line, L"a");
        reader.Close();
        EXPECT_FALSE(reader.IsOpen());
    }
    EXPECT_NE(file.m_hFile, CFile::hFileNull);
    EXPECT_EQ(file.Seek(0, CFile::begin), 0u);
}

TEST_F(TextFile, BytesMayComeInAnyPieces)
{
    const AnsiPage page(949);
    std::mt19937 random(7);
    for (const std::string& bytes : {"\xFF\xFE"
                                     "a\0\r\0\n\0\x00\xAC"
                                     "b\0\n\0c\0"s,
                                     "\xFE\xFF\0a\0\r\0\n\xAC\0\0b"s,
                                     "\xEF\xBB\xBF"
                                     "a\r\n\xEA\xB0\x80\xC2\xA9\n\nb"s,
                                     "a\xB0\xA1\r\n\xB0\xA1\n\nb"s})
        for (int round = 0; round < 50; ++round)
        {
            std::deque<std::string> pieces = {bytes.substr(0, 3)};
            for (std::size_t at = 3, n; at < bytes.size(); at += n)
            {
                n = 1 + random() % 3;
                pieces.push_back(bytes.substr(at, n));
            }
            PiecewiseFile file(pieces);
            CTextFileBase reader(file);
            Lines lines;
            for (std::wstring line; reader.ReadLine(line);)
                lines.push_back(line);
            EXPECT_EQ(lines, PlainLines(bytes, 949));
        }
}

TEST_F(TextFile, FileThatGrowsIsReadUntilItsEndIsSeen)
{
    PiecewiseFile file({"a\n"});
    CTextFileBase reader(file);
    std::wstring line;
    EXPECT_TRUE(reader.ReadLine(line));
    file.m_pieces.push_back("b");
    EXPECT_TRUE(reader.ReadLine(line));
    EXPECT_EQ(line, L"b");
    EXPECT_TRUE(reader.IsEndOfFile());
    file.m_pieces.push_back("c\n");
    EXPECT_FALSE(reader.ReadLine(line));
    EXPECT_FALSE(reader.ReadLine(line));
}

TEST_F(TextFile, FailureToReadIsTheEnd)
{
    PiecewiseFile file({"ab", "c"});
    CTextFileBase reader(file);
    std::wstring line;
    file.m_throws = true;
    EXPECT_TRUE(reader.ReadLine(line));
    EXPECT_EQ(line, L"ab") << "what was read before";
    EXPECT_TRUE(reader.IsEndOfFile());
    file.m_throws = false;
    EXPECT_FALSE(reader.ReadLine(line));
}

TEST_F(TextFile, RandomTextsReadAsTheRulesAreTold)
{
    const AnsiPage page(949);
    std::mt19937 random(20);
    const std::string marks[] = {"", "\xFF\xFE", "\xFE\xFF", "\xEF\xBB\xBF"};
    const std::string letters = "a\r\n\0\x0D\x0A\xB0\xA1\xC3\xE3\xF0\x80\xFF"s;
    for (int round = 0; round < 400; ++round)
    {
        std::string bytes = marks[random() % 4];
        const std::size_t length = random() % (round % 10 == 0 ? 40000 : 60);
        for (std::size_t i = 0; i < length; ++i)
            bytes += random() % 3 ? letters[random() % letters.size()] : 'b';
        ASSERT_EQ(LinesOf(bytes), PlainLines(bytes, 949)) << testing::PrintToString(bytes);
    }
}

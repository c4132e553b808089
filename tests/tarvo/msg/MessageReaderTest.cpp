#include "platform/codepage.h"
#include "platform/file.h"
#include "tarvo/msg/MSGInfo.h"
#include "tests/support/TempFolder.h"
#include "tests/support/TestHost.h"
#include "tests/support/TestRegistry.h"
#include "tests/tarvo/msg/Dump.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

using namespace std::string_literals;

namespace
{
std::string utf16(const std::wstring& text) { return "\xFF\xFE" + platform::codepage::to_utf16le(text); }

/// Every test once for each reader.
template <class Reader>
class MessageReader : public testing::Test
{
protected:
    std::wstring write(const std::wstring& name, const std::string& bytes)
    {
        const std::wstring path = folder / name;
        EXPECT_EQ(platform::file::write_whole(path.c_str(), bytes), platform::file::Written::ok);
        return path;
    }

    TempFolder folder;
    Reader reader;
};
using Readers = testing::Types<CPrimary, CFallback>;
TYPED_TEST_SUITE(MessageReader, Readers);

class CFixedInfo : public IMSGInfo
{
public:
    explicit CFixedInfo(int language) : m_nLanguage(language) {}
    void LoadMessage(int) override {}
    CString GetProgramPath() override { return CString(); }
    int GetCurrentLang() override { return m_nLanguage; }
    int GetInstallLang() override { return 0; }
    int IsInstalledForForeignLang() override { return 0; }
    CString GetLanguageINIFilePath(int, CString, CString*) override { return CString(); }

private:
    int m_nLanguage;
};

/// The code page that a reader chooses, by the profile's LANGUAGECHECK (nothing for "absent").
int chosen_page(int language, const int* check)
{
    TestRegistry own;
    const TestHost host(own.name().c_str(), L"Program");
    if (check)
        CHostApp::WriteInt(L"LANGUAGE", L"LANGUAGECHECK", *check);
    IMSGInfo* const before = IMSGInfo::m_pInstance;
    CFixedInfo info(language);
    IMSGInfo::m_pInstance = &info;
    CPrimary reader;
    reader.load();
    IMSGInfo::m_pInstance = before;
    return reader.code_page();
}
} // namespace

TYPED_TEST(MessageReader, ReadsLinesThatEndInAnyWay)
{
    EXPECT_EQ(this->reader.messages("A=\"1\"\r\nB=\"2\"\n\r\n\n[S]\r\n;C=3\r\nD=\"4\""), L"A=1;B=2;D=4;");
}

TYPED_TEST(MessageReader, TheFirstTextOfAKeyCountsWithinAndAcrossFiles)
{
    this->reader.messages("A=\"1\"\nA=\"2\"\n");
    EXPECT_EQ(this->reader.messages("A=\"3\"\nB=\"4\"\na=\"5\"\n"), L"A=1;B=4;a=5;");
}

TYPED_TEST(MessageReader, ReadsEightBitTextInItsCodePage)
{
    EXPECT_EQ(this->reader.messages("A=\"\xB0\xA1\"\n", 949), L"A=\xAC00;");
    EXPECT_EQ(this->reader.messages("B=\"\x82\xA0\"\n", 932), L"A=\xAC00;B=\x3042;");
    // A trail byte that looks like a backslash is no escape.
    EXPECT_EQ(this->reader.messages("C=\"\x83\x5Cn\"\n", 932), L"A=\xAC00;B=\x3042;C=\x30BDn;");
}

TYPED_TEST(MessageReader, ALeadByteDoesNotTakeTheLineFeedAlong)
{
    EXPECT_EQ(this->reader.messages("A=x\xB0\nB=\"2\"\n", 949), L"A=x?;B=2;");
}

TYPED_TEST(MessageReader, ThePageOfTheSystemIsPageZero)
{
    const std::string bytes = "\xC4\xC5";
    EXPECT_EQ(this->reader.messages("A=\"" + bytes + "\"\n"),
              L"A=" + CString(platform::codepage::decode(0, bytes)->c_str()) + L";");
}

TYPED_TEST(MessageReader, APageThatTheSystemHasNotGivesNothing)
{
    EXPECT_EQ(this->reader.messages("A=\"1\"\n", 12345), L"");
}

TYPED_TEST(MessageReader, EmptyFilesGiveNothing)
{
    EXPECT_EQ(this->reader.messages(""), L"");
    EXPECT_EQ(this->reader.messages("\n"), L"");
    EXPECT_EQ(this->reader.messages("\r\n\r\n"), L"");
}

TYPED_TEST(MessageReader, EightBitTextEndsAtControlZ)
{
    EXPECT_EQ(this->reader.messages("A=\"1\"\nB=\"2\x1A\nC=\"3\"\n"), L"A=1;B=2;");
}

TYPED_TEST(MessageReader, EscapesOfOneLineDoNotReachTheNext)
{
    EXPECT_EQ(this->reader.messages("A=\"1\\n\"\n;\nB=\"2\\t\"\nC=\"3\"\n\nD=\"4\\\\\""),
              L"A=1\n;B=2\t;C=3;D=4\\;");
}

TYPED_TEST(MessageReader, LoadsTheFilesOfItsListInOrderAndPassesOverWhatIsMissing)
{
    this->reader.add_path(this->write(L"1.ini", "A=\"1\"\n").c_str());
    this->reader.add_path((this->folder / L"missing.ini").c_str());
    this->reader.add_path(this->folder.path().c_str());
    this->reader.add_path(L"");
    this->reader.add_path(nullptr);
    this->reader.add_path(this->write(L"2.ini", "A=\"2\"\nB=\"3\"\n").c_str());
    EXPECT_TRUE(this->reader.load());
    EXPECT_EQ(dump(this->reader.store()), L"A=1;B=3;");
}

TYPED_TEST(MessageReader, LoadingAgainKeepsWhatIsThereAndClearingDropsIt)
{
    const std::wstring path = this->write(L"1.ini", "A=\"1\"\n");
    this->reader.add_path(path.c_str());
    this->reader.load();
    this->write(L"1.ini", "A=\"2\"\nB=\"3\"\n");
    this->reader.load();
    EXPECT_EQ(dump(this->reader.store()), L"A=1;B=3;");
    this->reader.clear();
    EXPECT_TRUE(this->reader.load()) << "without files";
    EXPECT_EQ(dump(this->reader.store()), L"");
}

TYPED_TEST(MessageReader, AnUnknownKeyShowsAsItself)
{
    this->reader.messages("A=\"\"\n");
    EXPECT_EQ(this->reader.get_value(L"A"), L"");
    EXPECT_EQ(this->reader.get_value(L"ABC"), L"ABC :");
    EXPECT_EQ(this->reader.get_value(L"a"), L"a :");
    EXPECT_EQ(this->reader.get_value(L""), L" :");
    EXPECT_EQ(this->reader.get_value(nullptr), L" :");
    EXPECT_EQ(this->reader.get_value(std::wstring(300, L'x').c_str()),
              std::wstring(300, L'x').c_str() + CString(L" :"));
}

TYPED_TEST(MessageReader, CopiesAreIndependent)
{
    this->reader.messages("A=\"1\"\n");
    this->reader.font("FONT=F\nSIZE=9\n");
    TypeParam copy(this->reader);
    this->reader.messages("B=\"2\"\n");
    EXPECT_EQ(dump(copy.store()), L"A=1;");
    EXPECT_EQ(copy.get_font(), L"F");
    copy = this->reader;
    this->reader.clear();
    EXPECT_EQ(dump(copy.store()), L"A=1;B=2;");
}

TYPED_TEST(MessageReader, ReadsTheFontFile)
{
    EXPECT_EQ(this->reader.font("; font\r\n[F]\r\nFONT=\xB1\xBC\xB8\xB2\r\nSIZE=9\r\n", 949),
              L"\xAD74\xB9BC/9");
    EXPECT_EQ(this->reader.font("FONT = Arial\nSIZE = 7\n", 949), L"\xAD74\xB9BC/9") << "blanks: other keys";
    EXPECT_EQ(this->reader.font(std::string("SIZE\0=7\nFONT\0=Arial\n", 20), 949), L"\xAD74\xB9BC/9")
        << "a NUL: other keys";
    EXPECT_EQ(this->reader.font("SIZE=-2147483649\n", 949), L"\xAD74\xB9BC/-2147483648");
}

TYPED_TEST(MessageReader, AFontFileThatIsMissingLeavesTheFont)
{
    EXPECT_EQ(this->reader.get_font(), L"");
    EXPECT_EQ(this->reader.get_fontsize(), 0);
    this->reader.set_fontpath(this->write(L"Font.ini", "FONT=Arial\nSIZE=10\n").c_str());
    EXPECT_TRUE(this->reader.load_font());
    this->reader.set_fontpath((this->folder / L"missing.ini").c_str());
    EXPECT_FALSE(this->reader.load_font());
    EXPECT_TRUE(this->reader.load());
    EXPECT_EQ(this->reader.get_font(), L"Arial");
    EXPECT_EQ(this->reader.get_fontsize(), 10);
    this->reader.clear();
    EXPECT_EQ(this->reader.get_font(), L"Arial");
}

TYPED_TEST(MessageReader, TwoHundredThousandKeysAreRead)
{
    std::string bytes;
    for (int i = 0; i < 200000; ++i)
        bytes += "KEY_" + std::to_string(i) + " = \"text " + std::to_string(i) + "\"\r\n";
    this->reader.add_path(this->write(L"many.ini", bytes).c_str());
    this->reader.load();
    EXPECT_EQ(this->reader.store().GetCount(), 200000u);
    EXPECT_EQ(this->reader.get_value(L"KEY_199999"), L"text 199999");
}

// ---- the fallback reader: lines of bytes

TEST(FallbackReader, LongerLinesAreCutAfter1023Bytes)
{
    for (const std::size_t length : {1022u, 1023u, 1024u, 1025u, 2046u, 2047u})
    {
        CFallback reader;
        const std::string line = "A=\"" + std::string(length - 4, 'x') + "\"";
        ASSERT_EQ(line.size(), length);
        reader.messages(line + "\r\nB=\"2\"\r\n");
        const std::size_t kept = std::min<std::size_t>(length, 1023) - (length > 1023 ? 3 : 4);
        EXPECT_EQ(reader.get_value(L"A").GetLength(), static_cast<int>(kept)) << length;
        EXPECT_EQ(reader.get_value(L"B"), L"2") << length;
        // What was cut off is a line of its own.
        EXPECT_EQ(reader.store().GetCount(), length <= 1023 ? 2u : length <= 2046 ? 3u : 4u) << length;
    }
}

TEST(FallbackReader, ADoubleByteCharacterThatIsCutBecomesTwoBrokenOnes)
{
    // The lead byte is the 1,023rd byte of the line, its trail byte begins the next piece.
    const std::string line = "A=\"" + std::string(1019, 'x') + "\xB0\xA1\"";
    CFallback reader;
    reader.messages(line + "\nB=\"2\"\n", 949);
    const CString value = reader.get_value(L"A");
    EXPECT_EQ(value.GetLength(), 1020);
    EXPECT_EQ(value.Right(2), L"x?");
    EXPECT_EQ(reader.get_value(L"B"), L"2");
    // The trail byte is a lead byte now and takes the quote along.
    EXPECT_EQ(reader.get_value(platform::codepage::decode(949, "\xA1\"")->c_str()), L"");
    EXPECT_EQ(reader.store().GetCount(), 3u);
}

TEST(FallbackReader, ACharacterThatEndsAtTheCutStaysWhole)
{
    const std::string line = "A=\"" + std::string(1018, 'x') + "\xB0\xA1" + "Z";
    CFallback reader;
    reader.messages(line + "\n", 949);
    EXPECT_EQ(reader.get_value(L"A").Right(2), L"x\xAC00");
    EXPECT_EQ(reader.get_value(L"Z"), L"");
}

TEST(FallbackReader, ANulEndsItsLine)
{
    CFallback reader;
    EXPECT_EQ(reader.messages("A=\"1\0\"x\nB=\"2\"\n\0C=\"3\"\nD=4"s), L"A=1;B=2;D=4;");
}

TEST(FallbackReader, ReadsUtf16AsBytes)
{
    CFallback reader;
    reader.messages(utf16(L"A=\"1\"\r\n"), 1252);
    EXPECT_EQ(reader.get_value(L"A"), L"A :");
    EXPECT_EQ(reader.store().GetCount(), 1u);
}

// ---- the primary reader: lines of the text file class

TEST(PrimaryReader, ReadsUtf16BehindItsMark)
{
    CPrimary reader;
    EXPECT_EQ(reader.messages(utf16(L"\xAC00=\"\xB098\xD83D\xDE00\"\r\nB=\"2\"\n")),
              L"B=2;\xAC00=\xB098\xD83D\xDE00;");
}

TEST(PrimaryReader, ALineOfUtf16MayHoldControlZAndNul)
{
    CPrimary reader;
    reader.messages(utf16(L"A=\"1\x1A"
                          L"2\"\nB=\"" +
                          std::wstring(1, L'\0') + L"\"\n"));
    EXPECT_EQ(reader.get_value(L"A"), L"1\x1A"
                                      L"2");
    EXPECT_EQ(reader.get_value(L"B").GetLength(), 1);
}

TEST(PrimaryReader, LongerLinesComeInPiecesOf4096)
{
    for (const std::size_t length : {4095u, 4096u, 4097u, 8192u, 8193u})
    {
        const std::wstring line = L"A=\"" + std::wstring(length - 4, L'x') + L"\"";
        const std::size_t kept = std::min<std::size_t>(length, 4096) - (length > 4096 ? 3 : 4);
        const std::size_t entries = length <= 4096 ? 2 : length <= 8192 ? 3 : 4;
        for (const bool wide : {false, true})
        {
            CPrimary reader;
            const std::wstring text = line + L"\r\nB=\"2\"\r\n";
            reader.messages(wide ? utf16(text) : narrow(text));
            EXPECT_EQ(reader.get_value(L"A").GetLength(), static_cast<int>(kept)) << length;
            EXPECT_EQ(reader.get_value(L"B"), L"2") << length;
            EXPECT_EQ(reader.store().GetCount(), entries) << length;
        }
    }
}

TEST(PrimaryReader, APieceEndsBetweenTwoCharacters)
{
    CPrimary reader;
    reader.messages("A=\"" + std::string(4092, 'x') + "\xB0\xA1=y\n", 949);
    EXPECT_EQ(reader.get_value(L"A"), std::wstring(4092, L'x').c_str());
    EXPECT_EQ(reader.get_value(L"\xAC00"), L"y");
    CPrimary pairs;
    pairs.messages(utf16(L"A=\"" + std::wstring(4092, L'x') + L"\xD83D\xDE00=y\n"));
    EXPECT_EQ(pairs.get_value(L"A"), std::wstring(4092, L'x').c_str());
    EXPECT_EQ(pairs.get_value(L"\xD83D\xDE00"), L"y");
}

TEST(PrimaryReader, DropsAnOddByteAtTheEndOfUtf16)
{
    CPrimary reader;
    EXPECT_EQ(reader.messages(utf16(L"A=1") + "\n"), L"A=1;");
}

TEST(PrimaryReader, InUtf8TheFirstThreeBytesArePassedOver)
{
    CPrimary reader;
    EXPECT_EQ(reader.messages("\xEF\xBB\xBF\xEA\xB0\x80=\"1\"\n", 65001), L"\xAC00=1;");
    CPrimary unmarked;
    EXPECT_EQ(unmarked.messages("KEY_A=\"1\"\n", 65001), L"_A=1;");
}

TEST(PrimaryReader, SetValueAddsAndReplaces)
{
    class : public CPrimary
    {
    public:
        using msg_parser2::set_value;
    } reader;
    reader.messages("A=\"1\"\n");
    EXPECT_TRUE(reader.set_value(L"A", L"other"));
    EXPECT_TRUE(reader.set_value(L"B", L"\\n"));
    EXPECT_TRUE(reader.set_value(L"C", nullptr));
    EXPECT_EQ(dump(reader.store()), L"A=other;B=\\n;C=;");
}

// ---- the code page

TEST(MessageCodePage, IsTheSystemsUnlessTheProfileAsksForTheLanguages)
{
    const int yes = 1, no = 0, never = -1, more = 7;
    for (const int language : {0, 1, 2, 3, 4, 5, 9, -1})
    {
        EXPECT_EQ(chosen_page(language, nullptr), 0) << language;
        EXPECT_EQ(chosen_page(language, &no), 0) << language;
        EXPECT_EQ(chosen_page(language, &never), 0) << language;
    }
    const int pages[] = {0, 949, 932, 936, 0, 0};
    for (int language = 0; language < 6; ++language)
    {
        EXPECT_EQ(chosen_page(language, &yes), pages[language]) << language;
        EXPECT_EQ(chosen_page(language, &more), pages[language]) << language;
    }
    EXPECT_EQ(chosen_page(9, &yes), 0);
    EXPECT_EQ(chosen_page(-1, &yes), 0);
}

TEST(MessageCodePage, IsTheSystemsBeforeTheHostHasItsInfoObject)
{
    IMSGInfo* const before = std::exchange(IMSGInfo::m_pInstance, nullptr);
    CPrimary reader;
    EXPECT_TRUE(reader.load());
    EXPECT_EQ(reader.code_page(), 0);
    IMSGInfo::m_pInstance = before;
}

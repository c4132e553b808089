#include "tarvo/lang/ResourceHeader.h"

#include "platform/codepage.h"
#include "platform/file.h"
#include "tests/support/Corpus.h"
#include "tests/support/TempFolder.h"
#include "tests/support/print.h"
#include "tests/tarvo/lang/HeaderModel.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <random>
#include <sstream>
#include <string>
#include <vector>

using namespace std::string_literals;

namespace
{
// Each table that is not empty: its letter, then value=NAME,NAME for each entry.
std::wstring Dump(const CResourceHeader& header)
{
    constexpr struct
    {
        CResourceHeader::Kind kind;
        wchar_t letter;
    } kinds[] = {{CResourceHeader::All, L'A'},
                 {CResourceHeader::Control, L'C'},
                 {CResourceHeader::Dialog, L'D'},
                 {CResourceHeader::Resource, L'R'},
                 {CResourceHeader::Menu, L'M'}};
    std::wstring dump;
    for (const auto& kind : kinds)
    {
        std::wstring table;
        for (const auto& entry : header.GetTable(kind.kind))
        {
            table += L' ';
            table += entry.strValue.GetString();
            for (std::size_t i = 0; i < entry.arrNames.size(); ++i)
                table.append(i == 0 ? L"=" : L",").append(entry.arrNames[i].GetString());
        }
        if (!table.empty())
            dump.append(dump.empty() ? L"" : L" | ").append(1, kind.letter).append(table);
    }
    return dump;
}

int LoadMemory(CResourceHeader& header, const std::wstring& text)
{
    // A copy of exactly the text's size, so that a sanitizer sees any look past its end.
    const std::string bytes = platform::codepage::to_utf16le(text);
    const std::vector<unsigned char> exact(bytes.begin(), bytes.end());
    static const unsigned char empty = 0;
    return header.LoadMemory(exact.empty() ? &empty : exact.data(), static_cast<int>(text.size()));
}

std::wstring MemoryDump(const std::wstring& text)
{
    CResourceHeader header;
    EXPECT_EQ(LoadMemory(header, text), 1);
    return Dump(header);
}

void LoadFile(CResourceHeader& header, const std::string& bytes)
{
    const TempFolder folder;
    const std::wstring path = folder / L"resource.h";
    ASSERT_EQ(platform::file::write_whole(path.c_str(), bytes), platform::file::Written::ok);
    EXPECT_EQ(header.LoadFile(path.c_str()), 1);
}

std::wstring FileDump(const std::string& bytes)
{
    CResourceHeader header;
    LoadFile(header, bytes);
    return Dump(header);
}

const std::wstring buttons = L"1=IDOK 2=IDCANCEL 8=IDCLOSE";
} // namespace

TEST(CResourceHeader, SortsNamesIntoTablesByTheirMarks)
{
    const std::wstring text = L"#define IDD_SETUP 120\r\n#define IDC_NAME 1001\r\n#define IDC_NAME2 1001\r\n"
                              L"#define ID_FILE_OPEN 32771\r\n#define IDR_MAIN 5\r\n"
                              L"#define _APS_NEXT_CONTROL_VALUE 1002\r\n";
    EXPECT_EQ(MemoryDump(text), L"A 1=IDOK 1001=IDC_NAME,IDC_NAME2 120=IDD_SETUP 2=IDCANCEL "
                                L"32771=ID_FILE_OPEN 5=IDR_MAIN 8=IDCLOSE | C 1001=IDC_NAME,IDC_NAME2 | "
                                L"D 120=IDD_SETUP | R 5=IDR_MAIN | M 32771=ID_FILE_OPEN");
    EXPECT_EQ(FileDump("#define IDD_SETUP 120\r\n#define IDC_NAME 1001\n#define _IDC_NEXT 9\n"),
              L"A 1001=IDC_NAME 120=IDD_SETUP | C 1001=IDC_NAME | D 120=IDD_SETUP");
}

TEST(CResourceHeader, FirstMarkInTheFixedOrderDecidesWhereverItStands)
{
    EXPECT_EQ(MemoryDump(L"#define MYIDC_X 3"), L"A 1=IDOK 2=IDCANCEL 3=MYIDC_X 8=IDCLOSE | C 3=MYIDC_X");
    EXPECT_EQ(MemoryDump(L"#define IDD_OF_IDC_X 3"),
              L"A 1=IDOK 2=IDCANCEL 3=IDD_OF_IDC_X 8=IDCLOSE | C 3=IDD_OF_IDC_X");
    EXPECT_EQ(MemoryDump(L"#define VALID_X 3"), L"A 1=IDOK 2=IDCANCEL 3=VALID_X 8=IDCLOSE | M 3=VALID_X");
    EXPECT_EQ(MemoryDump(L"#define idc_x 3\n#define IDS_TEXT 4\n"), L"A " + buttons);
}

TEST(CResourceHeader, MenuMarkIdmCountsInMemoryButNotInAFile)
{
    EXPECT_EQ(MemoryDump(L"#define IDM_EXIT 300"),
              L"A 1=IDOK 2=IDCANCEL 300=IDM_EXIT 8=IDCLOSE | M 300=IDM_EXIT");
    EXPECT_EQ(FileDump("#define IDM_EXIT 300\n#define ID_OPEN 301\n"), L"A 301=ID_OPEN | M 301=ID_OPEN");
}

TEST(CResourceHeader, StandardButtonsWinOverOtherNamesOfTheirValuesInMemoryOnly)
{
    EXPECT_EQ(MemoryDump(L"#define IDC_FIRST 1"), L"A 1=IDOK,IDC_FIRST 2=IDCANCEL 8=IDCLOSE | C 1=IDC_FIRST");
    EXPECT_EQ(FileDump("#define IDC_FIRST 1\n"), L"A 1=IDC_FIRST | C 1=IDC_FIRST");
    EXPECT_EQ(MemoryDump(L""), L"A " + buttons);
}

TEST(CResourceHeader, ValueStaysTheTextThatTheHeaderWrites)
{
    CResourceHeader header;
    LoadMemory(header, L"#define IDC_HEX 0x3E9");
    EXPECT_FALSE(header.Has(CResourceHeader::All, L"1001"));
    EXPECT_EQ(header.FindFirst(CResourceHeader::Control, L"0x3E9"), CString(L"IDC_HEX"));
}

TEST(CResourceHeader, NamesOfOneValueKeepTheirOrderAndTheFirstCounts)
{
    CResourceHeader header;
    LoadMemory(header, L"#define IDC_B 7\n#define IDD_X 7\n#define IDC_A 7\n");
    CStringArray all;
    CStringArray controls;
    header.FindNames(CResourceHeader::All, L"7", all);
    header.FindNames(CResourceHeader::Control, L"7", controls);
    ASSERT_EQ(all.GetSize(), 3);
    EXPECT_EQ(all[0] + L"," + all[1] + L"," + all[2], CString(L"IDC_B,IDD_X,IDC_A"));
    ASSERT_EQ(controls.GetSize(), 2);
    EXPECT_EQ(controls[0] + L"," + controls[1], CString(L"IDC_B,IDC_A"));
    EXPECT_EQ(header.FindFirst(CResourceHeader::All, L"7"), CString(L"IDC_B"));
    EXPECT_EQ(header.FindFirst(CResourceHeader::Dialog, L"7"), CString(L"IDD_X"));
    EXPECT_TRUE(header.FindFirst(CResourceHeader::Menu, L"7").IsEmpty());
    EXPECT_TRUE(header.FindFirst(CResourceHeader::All, L"9").IsEmpty());
}

TEST(CResourceHeader, LoadsAddUp)
{
    CResourceHeader header;
    LoadMemory(header, L"#define IDC_A 7");
    LoadFile(header, "#define IDC_A 7\n#define IDC_B 7\n");
    EXPECT_EQ(Dump(header), L"A 1=IDOK 2=IDCANCEL 7=IDC_A,IDC_A,IDC_B 8=IDCLOSE | C 7=IDC_A,IDC_A,IDC_B");
}

TEST(CResourceHeader, StepsOverWhatDoesNotBeginWithANumberSign)
{
    EXPECT_EQ(MemoryDump(L"//{{NO_DEPENDENCIES}}\r\n// Used by x.rc\r\n\r\n#ifdef APSTUDIO_INVOKED\r\n"
                         L"#define IDC_X 5 // remark\r\n#endif\r\n"),
              L"A 1=IDOK 2=IDCANCEL 5=IDC_X 8=IDCLOSE | C 5=IDC_X");
}

TEST(CResourceHeader, WordsThatMerelyBeginWithDefineAreTaken)
{
    EXPECT_EQ(MemoryDump(L"#defineX IDC_X 5"), L"A 1=IDOK 2=IDCANCEL 5=IDC_X 8=IDCLOSE | C 5=IDC_X");
    EXPECT_EQ(MemoryDump(L"# define IDC_X 5"), L"A " + buttons);
    EXPECT_EQ(MemoryDump(L"#DEFINE IDC_X 5"), L"A " + buttons);
}

TEST(CResourceHeader, StepBehindAScanIsAsLongAsTheWordsWereMany)
{
    // The scan at the remark takes three words and steps three units, behind the number sign.
    EXPECT_EQ(MemoryDump(L"a #define IDC_X 5"), L"A " + buttons);
    EXPECT_EQ(MemoryDump(L"abc #define IDC_X 5"), L"A 1=IDOK 2=IDCANCEL 5=IDC_X 8=IDCLOSE | C 5=IDC_X");
}

TEST(CResourceHeader, DefinitionWithoutValueTakesTheNextWordInMemoryAndIsDroppedInAFile)
{
    EXPECT_EQ(MemoryDump(L"#define IDC_X\n#define IDD_Y 5\n"),
              L"A #define=IDC_X 1=IDOK 2=IDCANCEL 5=IDD_Y 8=IDCLOSE | C #define=IDC_X | D 5=IDD_Y");
    EXPECT_EQ(FileDump("#define IDC_X\n#define IDD_Y 5\n"), L"A 5=IDD_Y | D 5=IDD_Y");
}

TEST(CResourceHeader, DirectiveAtTheVeryEndIsDropped)
{
    for (const wchar_t* text : {L"#", L"#define", L"#define IDC_X", L"#define IDC_X ", L"x #"})
        EXPECT_EQ(MemoryDump(text), L"A " + buttons) << std::string(text, text + std::wcslen(text));
    EXPECT_EQ(MemoryDump(L"#define IDC_X 5"), L"A 1=IDOK 2=IDCANCEL 5=IDC_X 8=IDCLOSE | C 5=IDC_X");
}

TEST(CResourceHeader, BoundAndNulEndTheText)
{
    CResourceHeader header;
    const std::string bytes = platform::codepage::to_utf16le(L"#define IDC_X 55");
    header.LoadMemory(reinterpret_cast<const unsigned char*>(bytes.data()), 15);
    EXPECT_EQ(header.FindFirst(CResourceHeader::All, L"5"), CString(L"IDC_X"));
    EXPECT_EQ(MemoryDump(std::wstring(L"#define IDC_X\0 5", 16)), L"A " + buttons);
    EXPECT_EQ(header.LoadMemory(reinterpret_cast<const unsigned char*>(bytes.data()), -1), 1);
    EXPECT_EQ(header.LoadMemory(nullptr, 5), 0);
}

TEST(CResourceHeader, LongWordIsCutAtTheBufferAndWhatFollowsKeepsItsPlace)
{
    const std::wstring name = L"IDC_" + std::wstring(1996, L'N');
    const std::wstring value(2000, L'7');
    CResourceHeader header;
    LoadMemory(header, L"#define " + name + L" " + value + L"\n#define IDC_NEXT 5\n");
    EXPECT_EQ(header.FindFirst(CResourceHeader::All, value.substr(0, 1023).c_str()),
              CString(name.substr(0, 1023).c_str()));
    EXPECT_EQ(header.FindFirst(CResourceHeader::All, L"5"), CString(L"IDC_NEXT"));
    EXPECT_EQ(header.GetTable(CResourceHeader::Control).size(), 2u);
}

TEST(CResourceHeader, LongLineOfAFileIsReadInPiecesOfTheBuffer)
{
    // The first piece ends inside the value; the second begins with what is left of it.
    const std::string head = "#define IDC_X ";
    const std::string bytes = head + std::string(2000, '7') + "\n#define IDC_NEXT 5\n";
    EXPECT_EQ(FileDump(bytes), L"A 5=IDC_NEXT " + std::wstring(1023 - head.size(), L'7') +
                                   L"=IDC_X | C 5=IDC_NEXT " + std::wstring(1023 - head.size(), L'7') +
                                   L"=IDC_X");
}

TEST(CResourceHeader, FileIsReadAsTheCLibraryReadsText)
{
    EXPECT_EQ(FileDump("#define IDC_A\xC7 5\n"), L"A 5=IDC_A\u00C7 | C 5=IDC_A\u00C7"); // byte for byte
    EXPECT_EQ(FileDump("#define IDC_A 5\n\x1A#define IDC_B 6\n"), L"A 5=IDC_A | C 5=IDC_A");
    EXPECT_EQ(FileDump("#define IDC_A 5\n#define IDC_B 6\x1A"), L"A 5=IDC_A 6=IDC_B | C 5=IDC_A 6=IDC_B");
    EXPECT_EQ(FileDump("#define\0 IDC_A 5\n#define IDC_B 6\n"s), L"A 6=IDC_B | C 6=IDC_B");
    EXPECT_EQ(FileDump(""), L"");
}

TEST(CResourceHeader, MissingSourceGivesZeroAndLeavesTheTables)
{
    const TempFolder folder;
    CResourceHeader header;
    EXPECT_EQ(header.LoadFile(L""), 0);
    EXPECT_EQ(header.LoadFile(nullptr), 0);
    EXPECT_EQ(header.LoadFile(L"no such folder/resource.h"), 0);
    EXPECT_EQ(header.LoadFile(folder.path().c_str()), 0);
    EXPECT_EQ(Dump(header), L"");
}

TEST(CResourceHeader, FirstWordOfATextNamesTheProject)
{
    const auto first = [](const std::wstring& text) {
        const std::string bytes = platform::codepage::to_utf16le(text);
        return CResourceHeader::FirstWord(reinterpret_cast<const unsigned char*>(bytes.data()),
                                          static_cast<int>(text.size()));
    };
    EXPECT_EQ(first(L"  \r\n\tDraw  more"), CString(L"Draw"));
    EXPECT_EQ(first(std::wstring(L"Draw\0x", 6)), CString(L"Draw"));
    EXPECT_EQ(first(std::wstring(3000, L'x')).GetLength(), 1023);
    EXPECT_TRUE(first(L" \n ").IsEmpty());
    EXPECT_TRUE(CResourceHeader::FirstWord(nullptr, 4).IsEmpty());
}

TEST(CResourceHeader, RealHeadersGiveEveryDefinedSymbol)
{
    const std::vector<CorpusFile> files = CorpusFiles(".h");
    SKIP_WITHOUT_CORPUS(files);
    for (const CorpusFile& file : files)
    {
        if (file.encoding.starts_with("utf-16"))
            continue;
        CResourceHeader header;
        ASSERT_EQ(header.LoadFile(file.path.c_str()), 1);
        std::size_t expected = 0;
        std::istringstream in(file.bytes);
        for (std::string line; std::getline(in, line);)
        {
            char directive[64] = "";
            char name[256] = "";
            char value[256] = "";
            if (std::sscanf(line.c_str(), "%63s %255s %255s", directive, name, value) != 3)
                continue;
            const std::string_view symbol = name;
            const auto holds = [&](const char* mark) { return symbol.find(mark) != std::string_view::npos; };
            expected += std::string_view(directive).starts_with("#define") && symbol[0] != '_' &&
                        (holds("IDC_") || holds("IDD_") || holds("IDR_") || holds("ID_"));
        }
        std::size_t found = 0;
        for (const auto& entry : header.GetTable(CResourceHeader::All))
            found += entry.arrNames.size();
        EXPECT_EQ(found, expected) << file.name;
    }
}

TEST(CResourceHeader, AnyTextGivesWhatTheRulesGiveUnitByUnit)
{
    const std::u16string_view pieces[] = {
        u"#define ", u"#define\t", u"#",      u"IDC_",   u"IDD_A",     u"xIDR_",         u"ID_",
        u"IDM_",     u"_APS",      u"12",     u"0012",   u"7",         u"a word of any", u"\r\n",
        u"\n",       u"\u00A0",    u"\uD55C", u"      ", u"123456789", u"0123456789"};
    std::mt19937 random(4711);
    for (int round = 0; round < 3000; ++round)
    {
        std::u16string text;
        for (int count = static_cast<int>(random() % 60); count > 0; --count)
            text += pieces[random() % std::size(pieces)];
        if (random() % 8 == 0 && !text.empty())
            text[random() % text.size()] = u'\0';
        CResourceHeader header;
        header.LoadMemory(reinterpret_cast<const unsigned char*>(text.data()), static_cast<int>(text.size()));
        CHeaderModel model(text);
        for (const auto kind : {CResourceHeader::All, CResourceHeader::Control, CResourceHeader::Dialog,
                                CResourceHeader::Resource, CResourceHeader::Menu})
            ASSERT_EQ(CHeaderModel::Told(header, kind), model.Get(kind)) << testing::PrintToString(text);
    }
}

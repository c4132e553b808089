#include "platform/codepage.h"
#include "platform/file.h"
#include "tarvo/lang/XIni.h"
#include "tests/support/TempFolder.h"
#include "tests/tarvo/lang/Dump.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using namespace std::string_literals;

namespace
{
std::string utf16(const std::wstring& text) { return "\xFF\xFE" + platform::codepage::to_utf16le(text); }

class XIniFile : public testing::Test
{
protected:
    const wchar_t* write(const std::string& bytes)
    {
        EXPECT_EQ(platform::file::write_whole(path.c_str(), bytes), platform::file::Written::ok);
        return path.c_str();
    }
    std::string read() const
    {
        return platform::file::read_whole(path.c_str(), 1 << 28).value_or("unreadable");
    }

    TempFolder folder;
    const std::wstring path = folder / L"a.ini";
};
} // namespace

TEST_F(XIniFile, OpensUtf16WithAMark)
{
    XIni ini(write(utf16(L"[A]\r\nk=\xAC00\xD800x\r\n")));
    EXPECT_EQ(ini.IsOpened(), 1);
    EXPECT_EQ(dump(ini), L"[A] k=\xAC00\xD800x;");
}

TEST_F(XIniFile, OpensEightBitTextInTheCodePage)
{
    XIni ini;
    ini.SetCodePage(949);
    EXPECT_EQ(ini.Open(write("[A]\r\nk=\xB0\xA1\r\n")), 1);
    EXPECT_EQ(dump(ini), L"[A] k=\xAC00;");
    ini.SetCodePage(65001);
    EXPECT_EQ(ini.Open(write("[A]\r\nk=\xEA\xB0\x80\r\n")), 1);
    EXPECT_EQ(dump(ini), L"[A] k=\xAC00;");
}

TEST_F(XIniFile, OpensInTheSystemsPageByDefault)
{
    const std::string bytes = "\xC4\xC5 z";
    XIni ini(write("[A]\nk=" + bytes));
    EXPECT_EQ(ini.GetStr(L"A", L"k", L""), platform::codepage::decode(0, bytes)->c_str());
}

TEST_F(XIniFile, AnEmptyFileIsReadButNotParsed)
{
    XIni ini;
    parse(ini, L"[A]\nk=v");
    EXPECT_EQ(ini.Open(write("")), 1);
    EXPECT_EQ(ini.IsOpened(), 0);
    EXPECT_EQ(dump(ini), L"");
}

TEST_F(XIniFile, OneByteIsReadButNotParsed)
{
    XIni ini;
    EXPECT_EQ(ini.Open(write("[")), 1);
    EXPECT_EQ(ini.IsOpened(), 0);
    EXPECT_EQ(ini.Open(write("\xFF\xFE")), 1);
    EXPECT_EQ(ini.IsOpened(), 1) << "the mark alone is an empty text";
}

TEST_F(XIniFile, AnOddLastByteOfUtf16IsDropped)
{
    XIni ini(write(utf16(L"[A]\nk=v") + "w"));
    EXPECT_EQ(dump(ini), L"[A] k=v;");
    XIni mark(write("\xFF\xFEx"));
    EXPECT_EQ(mark.IsOpened(), 1);
    EXPECT_EQ(dump(mark), L"");
}

TEST_F(XIniFile, RefusesOneByteMoreThanTheLimit)
{
    std::string bytes = "[A]\nk=" + std::string(XIni::kMostBytes - 6, 'v');
    ASSERT_EQ(bytes.size(), 5242880u);
    XIni ini;
    EXPECT_EQ(ini.Open(write(bytes)), 1);
    EXPECT_EQ(ini.GetStr(L"A", L"k", L"").GetLength(), 5242874);
    EXPECT_EQ(ini.Open(write(bytes + "v")), 0);
    EXPECT_EQ(ini.IsOpened(), 0);
    EXPECT_EQ(dump(ini), L"");
}

TEST_F(XIniFile, WhatCannotBeReadLeavesAnEmptyDocument)
{
    const std::wstring paths[] = {folder / L"missing.ini", folder.path(), L"", L"a\x01?:*|.ini",
                                  folder / std::wstring(32000, L'x')};
    for (const std::wstring& missing : paths)
    {
        XIni ini;
        parse(ini, L"[A]\nk=v");
        EXPECT_EQ(ini.Open(missing.c_str()), 0);
        EXPECT_EQ(ini.IsOpened(), 0);
        EXPECT_EQ(dump(ini), L"");
    }
    XIni ini;
    EXPECT_EQ(ini.Open(nullptr), 0);
}

TEST_F(XIniFile, EndsAtANulInTheMiddle)
{
    XIni ini;
    ini.SetCodePage(1252);
    ini.Open(write("[A]\nk=v\0w\nl=1"s));
    EXPECT_EQ(dump(ini), L"[A] k=v;");
    ini.Open(write(utf16(L"[A]\nk=v\0w\nl=1"s)));
    EXPECT_EQ(dump(ini), L"[A] k=v;");
    EXPECT_EQ(ini.Open(write("\0\0\0"s)), 1);
    EXPECT_EQ(ini.IsOpened(), 1);
    EXPECT_EQ(dump(ini), L"");
}

TEST_F(XIniFile, OtherMarksAreTextInTheCodePage)
{
    XIni ini;
    ini.SetCodePage(65001);
    ini.Open(write("\xEF\xBB\xBF[A]\nk=v\n[B]\nk=w"));
    EXPECT_EQ(dump(ini), L"[B] k=w;") << "the first line begins with the mark, so it names no section";
    ini.SetCodePage(1252);
    ini.Open(write("\xEF\xBB\xBF[A]\nk=v\n[B]\nk=w"));
    EXPECT_EQ(dump(ini), L"[B] k=w;");
    ini.Open(write("\xFE\xFF[A]\nk=v\n[B]\nk=w"));
    EXPECT_EQ(dump(ini), L"[B] k=w;");
}

TEST_F(XIniFile, AMemoryBlockThatCannotBeParsedChangesNothing)
{
    XIni ini;
    parse(ini, L"[A]\nk=v");
    const unsigned char bytes[] = "[B]\nk=v";
    EXPECT_EQ(ini.OpenMemory(bytes, 1), 0);
    EXPECT_EQ(ini.OpenMemory(bytes, 0), 0);
    EXPECT_EQ(ini.OpenMemory(bytes, -5), 0);
    EXPECT_EQ(ini.OpenMemory(static_cast<const unsigned char*>(nullptr), 7), 0);
    ini.SetCodePage(4711);
    EXPECT_EQ(ini.OpenMemory(bytes, 7), 0);
    EXPECT_EQ(dump(ini), L"[A] k=v;");
    EXPECT_EQ(ini.IsOpened(), 1);
    EXPECT_EQ(ini.Open(write("[B]\nk=v")), 1) << "the file was read";
    EXPECT_EQ(ini.IsOpened(), 0) << "but not parsed";
}

TEST_F(XIniFile, EightBitTextIsTheSameHoweverItIsCutForDecoding)
{
    // Longer than a piece, with lines of all lengths around its end, and line feeds behind lead bytes.
    std::string bytes = "[A]\n";
    for (int i = 0; bytes.size() < 200000; ++i)
    {
        bytes += "k" + std::to_string(i) + "=" + std::string(static_cast<std::size_t>(i % 97), 'v');
        bytes += i % 5 == 0 ? "\xB0\xA1\n" : i % 7 == 0 ? "\xB0\n" : "\n";
    }
    for (const int page : {949, 932, 65001, 1252})
    {
        for (const std::size_t skip : {0u, 1u, 2u, 3u, 50u})
        {
            const std::string text = "; " + std::string(skip, 'x') + "\n" + bytes;
            XIni whole, pieces;
            parse(whole, *platform::codepage::decode(page, text));
            pieces.SetCodePage(page);
            EXPECT_EQ(parse_bytes(pieces, text), 1);
            EXPECT_EQ(pieces.Serialize() == whole.Serialize(), true) << page << " " << skip;
        }
    }
    XIni one;
    one.SetCodePage(949);
    parse_bytes(one, "[A]\nk=" + std::string(300000, '\xB0'));
    EXPECT_EQ(static_cast<std::size_t>(one.GetStr(L"A", L"k", L"").GetLength()),
              platform::codepage::decode(949, std::string(300000, '\xB0'))->size());
}

TEST_F(XIniFile, ParsesALineOfAMegabyte)
{
    const std::wstring value(1 << 19, L'\xAC00');
    XIni ini(write(utf16(L"[" + value + L"]\n" + value + L"=\"" + value + L"\"\n" + value)));
    ASSERT_EQ(ini.GetSection(value.c_str())->GetCount(), 1) << "the bare line is the key again";
    EXPECT_EQ(ini.GetStr(value.c_str(), value.c_str(), L"none"), L"");
    XIni quoted;
    parse(quoted, L"[A]\n" + value + L"=\"" + value + L"\"\n");
    EXPECT_EQ(quoted.GetStr(L"A", value.c_str(), L"none"), value.c_str());
}

TEST_F(XIniFile, SavesSortedAndQuoted)
{
    XIni ini;
    parse(ini, L"; comment\nlost\n[b]\nz=1\na=\xAC00\"q\"\n[B]\nbare\n[empty]\n");
    EXPECT_EQ(ini.SaveAs(path.c_str()), 1);
    const std::wstring expected = L"[B]\r\nbare = \"\"\r\n\r\n"
                                  L"[b]\r\na = \"q\"\r\nz = \"1\"\r\n\r\n"
                                  L"[empty]\r\n\r\n";
    EXPECT_EQ(read(), utf16(expected));
    EXPECT_EQ(ini.Serialize(), utf16(expected));
}

TEST_F(XIniFile, AnEmptyDocumentIsSavedAsItsMark)
{
    XIni ini;
    EXPECT_EQ(ini.SaveAs(path.c_str()), 1);
    EXPECT_EQ(read(), "\xFF\xFE");
}

TEST_F(XIniFile, WhatWasSavedComesBack)
{
    XIni ini;
    ini.SetStr(L"S", L"quotes", L"say \"hello\" \"");
    ini.SetStr(L"S", L"blanks", L"  around  ");
    ini.SetStr(L"S", L"equals", L"a = b; c # d");
    ini.SetStr(L"S", L"", L"empty key");
    ini.SetStr(L"S", L"lone", L"\xD800 \xDC00 \xFFFE");
    ini.SetStr(L"S", L"backslash", L"a\\nb\\r\\");
    ini.SetStr(L"brackets [in] name", L"\"k\"", L"[v]");
    ASSERT_EQ(ini.SaveAs(path.c_str()), 1);
    XIni again(path.c_str());
    EXPECT_EQ(dump(again), dump(ini));
    EXPECT_EQ(again.Serialize(), ini.Serialize());
}

TEST_F(XIniFile, AValueWithALineBreakIsNotRestored)
{
    XIni ini;
    ini.SetStr(L"A", L"k", L"one\ntwo");
    EXPECT_EQ(ini.GetStr(L"A", L"k", L""), L"one\ntwo");
    XIni again;
    parse_bytes(again, ini.Serialize());
    EXPECT_EQ(dump(again), L"[A] k=one; two\"=;");
}

TEST_F(XIniFile, SaveReplacesALongerFile)
{
    write(std::string(100, 'x'));
    XIni ini;
    ini.SetStr(L"A", L"k", L"v");
    EXPECT_EQ(ini.SaveAs(path.c_str()), 1);
    EXPECT_EQ(read(), utf16(L"[A]\r\nk = \"v\"\r\n\r\n"));
}

TEST_F(XIniFile, SaveFailsOnlyWhereTheFileCannotBeOpened)
{
    XIni ini;
    ini.SetStr(L"A", L"k", L"v");
    EXPECT_EQ(ini.SaveAs(folder.path().c_str()), 0);
    EXPECT_EQ(ini.SaveAs((folder / L"no" + L"/such/folder.ini").c_str()), 0);
    EXPECT_EQ(ini.SaveAs((folder / std::wstring(32000, L'x')).c_str()), 0);
    EXPECT_EQ(ini.SaveAs(L""), 0);
    EXPECT_EQ(ini.SaveAs(nullptr), 0);
    EXPECT_EQ(folder.count(), 0);
}

TEST_F(XIniFile, SaveOverAReadOnlyFileFailsAndLeavesIt)
{
    write("kept");
    const std::filesystem::path file(path);
    constexpr auto writes = std::filesystem::perms::owner_write | std::filesystem::perms::group_write |
                            std::filesystem::perms::others_write;
    std::filesystem::permissions(file, writes, std::filesystem::perm_options::remove);
    if (std::ofstream(file, std::ios::app))
        GTEST_SKIP() << "this user may write read-only files";
    XIni ini;
    ini.SetStr(L"A", L"k", L"v");
    EXPECT_EQ(ini.SaveAs(path.c_str()), 0);
    EXPECT_EQ(read(), "kept");
    std::filesystem::permissions(file, writes, std::filesystem::perm_options::add);
}

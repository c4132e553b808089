#include "platform/file.h"

#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

namespace file = platform::file;
using file::Written;

namespace
{
constexpr std::uint64_t mebibyte = 1024 * 1024;
const std::string bytes("\xFF\xFE\0\r\n\x1A tail", 11);
const std::wstring endless(32000, L'x');

/// 32,000 characters that no single component makes too long.
std::wstring deep_path(const TempFolder& folder)
{
    std::wstring path = folder.path();
    while (path.size() < 32000)
        path += file::separator + std::wstring(99, L'd');
    return path;
}
} // namespace

TEST(File, WholeFileComesBackByteForByte)
{
    const TempFolder folder;
    const std::wstring path = folder / L"a.bin";
    EXPECT_EQ(file::write_whole(path.c_str(), bytes), Written::ok);
    EXPECT_EQ(file::read_whole(path.c_str(), mebibyte), bytes);
}

TEST(File, NameInAnyScriptIsOneFile)
{
    const TempFolder folder;
    const std::wstring name{0xD55C, 0xAE00, L'-', 0x416, L'-', 0xD83D, 0xDE00, L'.', L't'};
    ASSERT_EQ(file::write_whole((folder / name).c_str(), "x"), Written::ok);
    EXPECT_EQ(file::read_whole((folder / name).c_str(), 9), "x");
    EXPECT_EQ(folder.count(), 1);
    EXPECT_TRUE(file::remove((folder / name).c_str()));
    EXPECT_EQ(folder.count(), 0);
}

TEST(File, EmptyFileGivesEmptyBytes)
{
    const TempFolder folder;
    const std::wstring path = folder / L"empty";
    EXPECT_EQ(file::write_whole(path.c_str(), ""), Written::ok);
    EXPECT_EQ(file::read_whole(path.c_str(), 0), "");
}

TEST(File, InputGivesTheFilePieceByPiece)
{
    const TempFolder folder;
    const std::wstring path = folder / L"a.bin";
    ASSERT_EQ(file::write_whole(path.c_str(), bytes), Written::ok);
    auto opened = file::input::open(path.c_str(), bytes.size());
    ASSERT_TRUE(opened);
    EXPECT_EQ(opened->size(), bytes.size());
    char read[11];
    EXPECT_TRUE(opened->read(read, 4));
    EXPECT_TRUE(opened->read(read + 4, 0));
    file::input moved = *std::move(opened);
    EXPECT_TRUE(moved.read(read + 4, 7));
    EXPECT_EQ(std::string(read, 11), bytes);
    EXPECT_FALSE(moved.read(read, 1));
}

TEST(File, InputSaysWhenTheFileHasBecomeShorter)
{
    const TempFolder folder;
    const std::wstring path = folder / L"a";
    ASSERT_EQ(file::write_whole(path.c_str(), "0123456789"), Written::ok);
    auto opened = file::input::open(path.c_str(), 10);
    ASSERT_TRUE(opened);
    ASSERT_EQ(file::write_whole(path.c_str(), "0123"), Written::ok);
    char read[10];
    EXPECT_FALSE(opened->read(read, 10));
}

TEST(File, InputOpensWhatIsReadWholeAndNothingElse)
{
    const TempFolder folder;
    const std::wstring path = folder / L"a";
    ASSERT_EQ(file::write_whole(path.c_str(), std::string(1000, 'a')), Written::ok);
    EXPECT_TRUE(file::input::open(path.c_str(), 1000));
    EXPECT_FALSE(file::input::open(path.c_str(), 999));
    EXPECT_FALSE(file::input::open((folder / L"missing").c_str(), 1000));
    EXPECT_FALSE(file::input::open(folder.path().c_str(), 1000));
    EXPECT_FALSE(file::input::open(nullptr, 1000));
    EXPECT_FALSE(file::input::open(L"", 1000));
}

TEST(File, LimitAllowsItsOwnSizeAndNoByteMore)
{
    const TempFolder folder;
    const std::wstring path = folder / L"a";
    ASSERT_EQ(file::write_whole(path.c_str(), std::string(1000, 'a')), Written::ok);
    EXPECT_EQ(file::read_whole(path.c_str(), 1000), std::string(1000, 'a'));
    EXPECT_EQ(file::read_whole(path.c_str(), 999), std::nullopt);
}

TEST(File, WritingShortensALongerFile)
{
    const TempFolder folder;
    const std::wstring path = folder / L"a";
    ASSERT_EQ(file::write_whole(path.c_str(), "a long text"), Written::ok);
    ASSERT_EQ(file::write_whole(path.c_str(), "short"), Written::ok);
    EXPECT_EQ(file::read_whole(path.c_str(), mebibyte), "short");
}

TEST(File, ReplacingMakesOrReplacesAndLeavesNothingBeside)
{
    const TempFolder folder;
    const std::wstring path = folder / L"a";
    EXPECT_EQ(file::replace_whole(path.c_str(), "one"), Written::ok);
    EXPECT_EQ(file::read_whole(path.c_str(), mebibyte), "one");
    EXPECT_EQ(file::replace_whole(path.c_str(), bytes), Written::ok);
    EXPECT_EQ(file::read_whole(path.c_str(), mebibyte), bytes);
    EXPECT_EQ(folder.count(), 1);
}

TEST(File, ReplacingWorksForANameOfTheGreatestLength)
{
    const TempFolder folder;
    const std::wstring path = folder / std::wstring(255, L'n');
    EXPECT_EQ(file::replace_whole(path.c_str(), "one"), Written::ok);
    EXPECT_EQ(file::replace_whole(path.c_str(), "two"), Written::ok);
    EXPECT_EQ(file::read_whole(path.c_str(), 3), "two");
}

TEST(File, BigFileIsWrittenAndReadWhole)
{
    const TempFolder folder;
    const std::wstring path = folder / L"big";
    std::string big(5 * mebibyte, '\0');
    for (std::size_t i = 0; i < big.size(); ++i)
        big[i] = static_cast<char>(i * 31 >> 3);
    EXPECT_EQ(file::replace_whole(path.c_str(), big), Written::ok);
    EXPECT_TRUE(file::read_whole(path.c_str(), 5 * mebibyte) == big);
}

TEST(File, MissingFileIsNotReadAndAMissingFolderNotWrittenTo)
{
    const TempFolder folder;
    const std::wstring path = folder / (std::wstring(L"no") + file::separator + L"a");
    EXPECT_EQ(file::read_whole((folder / L"a").c_str(), mebibyte), std::nullopt);
    EXPECT_EQ(file::write_whole(path.c_str(), "x"), Written::not_opened);
    EXPECT_EQ(file::replace_whole(path.c_str(), "x"), Written::not_opened);
    EXPECT_FALSE(file::exists(path.c_str()));
    EXPECT_FALSE(file::remove(path.c_str()));
    EXPECT_EQ(file::open(path.c_str(), "wb"), nullptr);
}

TEST(File, FolderIsNoFile)
{
    const TempFolder folder;
    for (const std::wstring& path : {folder.path(), folder.path() + file::separator})
    {
        EXPECT_TRUE(file::exists(path.c_str()));
        EXPECT_EQ(file::read_whole(path.c_str(), mebibyte), std::nullopt);
        EXPECT_EQ(file::write_whole(path.c_str(), "x"), Written::not_opened);
        EXPECT_EQ(file::replace_whole(path.c_str(), "x"), Written::not_opened);
        EXPECT_EQ(file::open(path.c_str(), "rb"), nullptr);
        EXPECT_EQ(file::open(path.c_str(), "wb"), nullptr);
        EXPECT_FALSE(file::remove(path.c_str()));
    }
    EXPECT_EQ(folder.count(), 0);
}

TEST(File, NullAndEmptyPathsNameNoFile)
{
    for (const wchar_t* path : {static_cast<const wchar_t*>(nullptr), L""})
    {
        EXPECT_FALSE(file::exists(path));
        EXPECT_EQ(file::read_whole(path, mebibyte), std::nullopt);
        EXPECT_EQ(file::write_whole(path, "x"), Written::not_opened);
        EXPECT_EQ(file::replace_whole(path, "x"), Written::not_opened);
        EXPECT_EQ(file::open(path, "wb"), nullptr);
        EXPECT_FALSE(file::remove(path));
    }
}

TEST(File, PathOfThirtyTwoThousandCharactersFailsCleanly)
{
    const TempFolder folder;
    for (const std::wstring& path : {endless, folder / endless, deep_path(folder), std::wstring(70000, L'a')})
    {
        EXPECT_FALSE(file::exists(path.c_str()));
        EXPECT_EQ(file::read_whole(path.c_str(), mebibyte), std::nullopt);
        EXPECT_EQ(file::write_whole(path.c_str(), "x"), Written::not_opened);
        EXPECT_EQ(file::replace_whole(path.c_str(), "x"), Written::not_opened);
        EXPECT_EQ(file::open(path.c_str(), "wb"), nullptr);
        EXPECT_FALSE(file::remove(path.c_str()));
    }
    EXPECT_EQ(folder.count(), 0);
}

TEST(File, StreamWritesAppendsAndReads)
{
    const TempFolder folder;
    const std::wstring path = folder / L"a";
    std::fputs("one", file::open(path.c_str(), "wb").get());
    std::fputs("two", file::open(path.c_str(), "ab").get());
    char text[16] = "";
    const file::stream reading = file::open(path.c_str(), "rb");
    ASSERT_NE(reading, nullptr);
    EXPECT_EQ(std::fread(text, 1, sizeof text, reading.get()), 6u);
    EXPECT_STREQ(text, "onetwo");
    EXPECT_EQ(file::open((folder / L"b").c_str(), "rb"), nullptr);
}

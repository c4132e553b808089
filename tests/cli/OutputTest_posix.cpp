#include "program.h"

#include <filesystem>
#include <sys/stat.h>

namespace fs = std::filesystem;
using OutputTest = ProgramTest;

TEST_F(OutputTest, AFullDiskIsStatusFour)
{
    write("a.ini", "[A]\r\nk=\"v\"\r\n");
    EXPECT_EQ(tarvo({"ini", "show", "a.ini", "-o", "/dev/full"}),
              (Outcome{4, "", "tarvo: /dev/full: cannot be written: not all bytes reached it\n"}));
    m_out = "/dev/full";
    const Outcome full{4, "", "tarvo: standard output: cannot be written: No space left on device\n"};
    EXPECT_EQ(tarvo({"ini", "show", "a.ini"}), full);
    EXPECT_EQ(tarvo({"ini", "get", "a.ini", "A", "k"}), full);
    EXPECT_EQ(tarvo({"ini", "convert", "a.ini"}), full);
    EXPECT_EQ(tarvo({"--help"}), full);
    EXPECT_EQ(tarvo({"--version"}), full);
}

TEST_F(OutputTest, ADeviceIsWrittenToAndStaysADevice)
{
    write("a.ini", "[A]\r\nk=\"v\"\r\n");
    EXPECT_EQ(tarvo({"ini", "convert", "a.ini", "-o", "/dev/null"}), (Outcome{0, "", ""}));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(OutputTest, ALinkStaysALinkAndTheFileBehindItChanges)
{
    write("a.ini", "[A]\r\nk=\"v\"\r\n");
    fs::create_symlink("a.ini", path("link.ini"));
    EXPECT_EQ(tarvo({"ini", "set", "link.ini", "A", "k", "w"}), (Outcome{0, "", ""}));
    EXPECT_TRUE(fs::is_symlink(path("link.ini")));
    EXPECT_EQ(read("a.ini"), utf16(L"[A]\r\nk = \"w\"\r\n\r\n"));
}

TEST_F(OutputTest, ThePermissionsOfAFileStay)
{
    write("a.ini", "[A]\r\nk=\"v\"\r\n");
    fs::permissions(path("a.ini"), fs::perms(0640));
    EXPECT_EQ(tarvo({"ini", "set", "a.ini", "A", "k", "w"}), (Outcome{0, "", ""}));
    EXPECT_EQ(fs::status(path("a.ini")).permissions(), fs::perms(0640));
}

TEST_F(OutputTest, AnArgumentThatIsNoTextIsWrongUsage)
{
    EXPECT_EQ(tarvo({"ini", "show", "a\xff.ini"}),
              (Outcome{2, "", "tarvo: usage: an argument is not valid Unicode text\n"}));
}

TEST_F(OutputTest, APipeIsReadThroughStandardInputOnly)
{
    ASSERT_EQ(::mkfifo(path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(
        tarvo({"ini", "show", "pipe"}),
        (Outcome{3, "", "tarvo: pipe: is not a regular file; use - to read it through standard input\n"}));
}

TEST_F(OutputTest, TheAnsiCodePageFollowsTheLocalesLanguage)
{
    write("a.ini", "[A]\r\nk=\"\xb0\xa1\"\r\n");
    const std::pair<std::string, std::string> table[] = {{"ko_KR.UTF-8", "가"}, {"ja_JP.UTF-8", "ｰ｡"},
                                                         {"zh_CN.UTF-8", "啊"}, {"zh_TW.UTF-8", "陛"},
                                                         {"ru_RU.UTF-8", "°Ў"}, {"en_US.UTF-8", "°¡"}};
    for (const auto& [locale, letter] : table)
    {
        m_environment["LC_ALL"] = locale;
        EXPECT_EQ(tarvo({"ini", "get", "a.ini", "A", "k"}), (Outcome{0, letter + "\n", ""})) << locale;
    }
}

#include "program.h"

#include <filesystem>

namespace fs = std::filesystem;
using OutputTest = ProgramTest;

TEST_F(OutputTest, AFileIsReplacedWhole)
{
    write("a.ini", "[A]\r\nk=\"v\"\r\n");
    write("out.txt", std::string(100, 'x'));
    EXPECT_EQ(tarvo({"ini", "show", "a.ini", "--output", "out.txt"}), (Outcome{0, "", ""}));
    EXPECT_EQ(read("out.txt"), "[A] k = \"v\"\n");
    EXPECT_EQ(names(), (std::vector<std::string>{"a.ini", "out.txt"}));
}

TEST_F(OutputTest, AReadOnlyFileStaysAsItWas)
{
    const std::string before = "[A]\r\nk=\"v\"\r\n";
    write("a.ini", before);
    constexpr fs::perms writes = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    fs::permissions(path("a.ini"), writes, fs::perm_options::remove);
    const Outcome refused{4, "", "tarvo: a.ini: cannot be written: it is read-only\n"};
    EXPECT_EQ(tarvo({"ini", "set", "a.ini", "A", "k", "w"}), refused);
    EXPECT_EQ(tarvo({"ini", "convert", "a.ini", "-o", "a.ini"}), refused);
    EXPECT_EQ(tarvo({"ini", "show", "a.ini", "-o", "a.ini"}), refused);
    EXPECT_EQ(read("a.ini"), before);
    EXPECT_EQ(names(), (std::vector<std::string>{"a.ini"}));
    fs::permissions(path("a.ini"), fs::perms::owner_write, fs::perm_options::add);
}

TEST_F(OutputTest, WhatIsNoPlaceForAFileIsStatusFour)
{
    write("a.ini", "[A]\r\nk=\"v\"\r\n");
    fs::create_directory(path("folder"));
    EXPECT_EQ(tarvo({"ini", "show", "a.ini", "-o", "folder"}),
              (Outcome{4, "", "tarvo: folder: cannot be written: it is a folder\n"}));
    EXPECT_EQ(tarvo({"ini", "set", "a.ini", "A", "k", "w", "-o", "none/b.ini"}),
              (Outcome{4, "", "tarvo: none/b.ini: cannot be written: its folder does not exist\n"}));
    EXPECT_EQ(tarvo({"ini", "show", "a.ini", "-o", ""}),
              (Outcome{4, "", "tarvo: : cannot be written: it cannot be created\n"}));
    EXPECT_EQ(names(), (std::vector<std::string>{"a.ini", "folder"}));
}

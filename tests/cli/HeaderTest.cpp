#include "program.h"

#include <filesystem>

using HeaderTest = ProgramTest;

namespace
{
constexpr std::string_view sample = "//{{NO_DEPENDENCIES}}\r\n"
                                    "#define IDD_SETUP 120\r\n"
                                    "#define IDC_NAME 1001\r\n"
                                    "#define IDC_NAME2 1001\r\n"
                                    "#define ID_FILE_OPEN 32771\r\n"
                                    "#define IDM_EXIT 300\r\n"
                                    "#define IDR_MAIN 0x80\r\n"
                                    "#define PLAIN 7\r\n"
                                    "#ifdef APSTUDIO_INVOKED\r\n"
                                    "#define _APS_NEXT_CONTROL_VALUE 1002\r\n"
                                    "#endif\r\n";

constexpr std::string_view memory_text = "all 0x80 IDR_MAIN\n"
                                         "all 1 IDOK\n"
                                         "all 1001 IDC_NAME IDC_NAME2\n"
                                         "all 120 IDD_SETUP\n"
                                         "all 2 IDCANCEL\n"
                                         "all 300 IDM_EXIT\n"
                                         "all 32771 ID_FILE_OPEN\n"
                                         "all 8 IDCLOSE\n"
                                         "control 1001 IDC_NAME IDC_NAME2\n"
                                         "dialog 120 IDD_SETUP\n"
                                         "resource 0x80 IDR_MAIN\n"
                                         "menu 300 IDM_EXIT\n"
                                         "menu 32771 ID_FILE_OPEN\n";

std::string buttons(const std::string& others_of_all = {})
{
    return "all 1 IDOK\n" + others_of_all + "all 2 IDCANCEL\nall 8 IDCLOSE\n";
}
} // namespace

TEST_F(HeaderTest, ShowPrintsALineForEachValueOfEachTable)
{
    write("resource.h", sample);
    const Outcome memory{0, std::string(memory_text), ""};
    EXPECT_EQ(tarvo({"header", "show", "resource.h"}), memory);
    EXPECT_EQ(tarvo({"header", "show", "resource.h", "--form", "memory"}), memory);
    EXPECT_EQ(tarvo({"header", "show", "-"}, std::string(sample)), memory);
}

TEST_F(HeaderTest, TheFileFormHasNoStandardButtonsAndNoIdm)
{
    write("resource.h", sample);
    EXPECT_EQ(tarvo({"header", "show", "resource.h", "--form", "file"}),
              (Outcome{0,
                       "all 0x80 IDR_MAIN\n"
                       "all 1001 IDC_NAME IDC_NAME2\n"
                       "all 120 IDD_SETUP\n"
                       "all 32771 ID_FILE_OPEN\n"
                       "control 1001 IDC_NAME IDC_NAME2\n"
                       "dialog 120 IDD_SETUP\n"
                       "resource 0x80 IDR_MAIN\n"
                       "menu 32771 ID_FILE_OPEN\n",
                       ""}));
}

TEST_F(HeaderTest, ShowAsJsonIsTheFiveTables)
{
    write("resource.h", sample);
    EXPECT_EQ(
        tarvo({"header", "show", "resource.h", "--format", "json"}),
        (Outcome{
            0,
            "{\"all\":[[\"0x80\",[\"IDR_MAIN\"]],[\"1\",[\"IDOK\"]],[\"1001\",[\"IDC_NAME\",\"IDC_NAME2\"]],"
            "[\"120\",[\"IDD_SETUP\"]],[\"2\",[\"IDCANCEL\"]],[\"300\",[\"IDM_EXIT\"]],"
            "[\"32771\",[\"ID_FILE_OPEN\"]],[\"8\",[\"IDCLOSE\"]]],"
            "\"control\":[[\"1001\",[\"IDC_NAME\",\"IDC_NAME2\"]]],\"dialog\":[[\"120\",[\"IDD_SETUP\"]]],"
            "\"resource\":[[\"0x80\",[\"IDR_MAIN\"]]],"
            "\"menu\":[[\"300\",[\"IDM_EXIT\"]],[\"32771\",[\"ID_FILE_OPEN\"]]]}\n",
            ""}));
    write("empty.h", "");
    EXPECT_EQ(tarvo({"header", "show", "empty.h", "--form=file", "--format=json"}),
              (Outcome{0, "{\"all\":[],\"control\":[],\"dialog\":[],\"resource\":[],\"menu\":[]}\n", ""}));
}

TEST_F(HeaderTest, TheMarkSaysHowTheTextIsEncoded)
{
    const std::wstring text = L"// 머리\r\n#define IDC_이름 1001\r\n";
    const std::string shown = buttons("all 1001 IDC_이름\n") + "control 1001 IDC_이름\n";
    std::string swapped = utf16(text);
    for (std::size_t at = 1; at < swapped.size(); at += 2)
        std::swap(swapped[at - 1], swapped[at]);
    write("le.h", utf16(text));
    write("be.h", swapped);
    write("utf8.h", "\xEF\xBB\xBF// 머리\r\n#define IDC_이름 1001\r\n");
    write("949.h", "// \xb8\xd3\xb8\xae\r\n#define IDC_\xc0\xcc\xb8\xa7 1001\r\n");
    EXPECT_EQ(tarvo({"header", "show", "le.h"}), (Outcome{0, shown, ""}));
    EXPECT_EQ(tarvo({"header", "show", "be.h"}), (Outcome{0, shown, ""}));
    EXPECT_EQ(tarvo({"header", "show", "utf8.h"}), (Outcome{0, shown, ""}));
    EXPECT_EQ(tarvo({"header", "show", "949.h", "--ansi", "949"}), (Outcome{0, shown, ""}));
    EXPECT_EQ(tarvo({"header", "show", "949.h", "--ansi", "1252"}),
              (Outcome{0, buttons("all 1001 IDC_ÀÌ¸§\n") + "control 1001 IDC_ÀÌ¸§\n", ""}));
    EXPECT_EQ(tarvo({"header", "show", "949.h", "--form", "file", "--ansi", "949"}),
              (Outcome{0, "all 1001 IDC_ÀÌ¸§\ncontrol 1001 IDC_ÀÌ¸§\n", ""}))
        << "the file form widens each byte";
}

TEST_F(HeaderTest, ShortOddAndCutInputsAreRead)
{
    for (const std::string& bytes :
         {std::string(), std::string("#"), std::string("\xFF\xFE"), std::string("\xFF\xFE#"),
          std::string("#define"), std::string("#define IDC_X"), std::string("no directive"),
          utf16(L"#define IDC_X")})
    {
        write("a.h", bytes);
        EXPECT_EQ(tarvo({"header", "show", "a.h"}), (Outcome{0, buttons(), ""}))
            << testing::PrintToString(bytes);
        EXPECT_EQ(tarvo({"header", "show", "-"}, bytes), (Outcome{0, buttons(), ""}));
    }
    write("a.h", "#define IDC_X 5");
    EXPECT_EQ(tarvo({"header", "show", "a.h"}),
              (Outcome{0,
                       "all 1 IDOK\nall 2 IDCANCEL\nall 5 IDC_X\nall 8 IDCLOSE\n"
                       "control 5 IDC_X\n",
                       ""}));
    write("odd.h", utf16(L"#define IDC_X 5") + "6");
    EXPECT_EQ(tarvo({"header", "show", "odd.h"}), tarvo({"header", "show", "a.h"}));
}

TEST_F(HeaderTest, WordsAreCutAtTheirBuffer)
{
    const std::string name = "IDC_" + std::string(2'000, 'x');
    write("a.h", "#define " + name + " 5\r\n#define IDD_Y " + std::string(2'000, '7') + "\r\n");
    const std::string cut = name.substr(0, 1023);
    const std::string value(1023, '7');
    EXPECT_EQ(tarvo({"header", "show", "a.h"}),
              (Outcome{0,
                       "all 1 IDOK\nall 2 IDCANCEL\nall 5 " + cut + "\nall " + value +
                           " IDD_Y\nall 8 IDCLOSE\ncontrol 5 " + cut + "\ndialog " + value + " IDD_Y\n",
                       ""}));
}

TEST_F(HeaderTest, NulsEndADefinitionAndThatIsSaid)
{
    using namespace std::string_literals;
    const std::string note =
        "tarvo: a.h: holds NULs, which end a definition; is it UTF-16 without its mark?\n";
    write("a.h", "#define IDC_X 1\n#define IDC_Y\0 3\n#define IDC_Z 4"s);
    EXPECT_EQ(tarvo({"header", "show", "a.h"}),
              (Outcome{0,
                       "all 1 IDOK IDC_X\nall 2 IDCANCEL\nall 4 IDC_Z\nall 8 IDCLOSE\n"
                       "control 1 IDC_X\ncontrol 4 IDC_Z\n",
                       note}));
    write("a.h", utf16(L"#define IDC_X 1\n").substr(2));
    EXPECT_EQ(tarvo({"header", "show", "a.h"}), (Outcome{0, buttons(), note}));
    EXPECT_EQ(tarvo({"header", "show", "a.h", "--quiet"}), (Outcome{0, buttons(), ""}));
}

TEST_F(HeaderTest, WhatIsNoReadableFileIsStatusThree)
{
    std::filesystem::create_directory(path("folder.h"));
    for (const std::string form : {"memory", "file"})
    {
        EXPECT_EQ(tarvo({"header", "show", "folder.h", "--form", form}),
                  (Outcome{3, "", "tarvo: folder.h: is a folder, not a file\n"}));
        EXPECT_EQ(tarvo({"header", "show", "missing.h", "--form", form}),
                  (Outcome{3, "", "tarvo: missing.h: no such file\n"}));
        EXPECT_EQ(tarvo({"header", "show", "", "--form", form}), (Outcome{3, "", "tarvo: : no such file\n"}));
    }
}

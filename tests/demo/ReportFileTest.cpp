#include "demo/host/ReportFile.h"

#include "demo/host/Png.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

namespace
{
WindowReport report(const wchar_t* window, int language, bool opened, const wchar_t* file)
{
    WindowReport result;
    result.window = window;
    result.language = language;
    result.opened = opened;
    result.translated = 12;
    result.fallback = 3;
    result.missing = 1;
    result.file = file;
    return result;
}
} // namespace

TEST(ReportFile, WhatWasWrittenIsReadAgainAndShownByTheSamePage)
{
    const TempFolder folder;
    const std::filesystem::path path = folder / kReportFile;
    const std::vector<WindowReport> reports{report(L"IDD_ONE", 1, true, L"REAL_IDD_ONE_Korean.png"),
                                            report(L"IDD_TWO", 4, false, L"")};
    ASSERT_TRUE(write_reports(path, reports));
    const std::vector<WindowReport> read = read_reports(path);
    EXPECT_EQ(index_page(read), index_page(reports));
    ASSERT_EQ(read.size(), 2u);
    EXPECT_EQ(report_line(read[0]), report_line(reports[0]));
    EXPECT_EQ(report_line(read[1]), report_line(reports[1]));
}

TEST(ReportFile, LinesOfAnotherShapeAndLanguagesThatDoNotExistArePassedOver)
{
    const TempFolder folder;
    const std::filesystem::path path = folder / kReportFile;
    EXPECT_TRUE(read_reports(path).empty());
    const std::string lines =
        "\nIDD_ONE\nIDD_ONE\t1\tx\nIDD_ONE\t6\t1\t0\t0\t0\ta.png\nIDD_ONE\t-1\t1\t0\t0\t0\ta.png\n";
    ASSERT_TRUE(write_bytes(path, {lines.begin(), lines.end()}));
    EXPECT_TRUE(read_reports(path).empty());
}

#include "demo/host/IndexPage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

using testing::HasSubstr;

namespace
{
WindowReport report(const wchar_t* window, int language)
{
    WindowReport result;
    result.window = window;
    result.language = language;
    result.opened = true;
    result.translated = 20;
    result.fallback = 1;
    result.file = std::wstring(window) + L".png";
    return result;
}

std::ptrdiff_t count(const std::string& text, const std::string& part)
{
    std::ptrdiff_t found = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size()))
        ++found;
    return found;
}
} // namespace

TEST(DemoReport, LineNamesLanguageWindowAndCounts)
{
    EXPECT_EQ(L"Japanese  IDD_UNITS               20 translated   1 fallback   0 missing",
              report_line(report(L"IDD_UNITS", 2)));
}

TEST(DemoReport, LineSaysWhenTheWindowDidNotComeUp)
{
    WindowReport failed = report(L"IDD_UNITS", 4);
    failed.opened = false;
    EXPECT_EQ(L"Russian   IDD_UNITS              did not come up", report_line(failed));
}

TEST(DemoIndexPage, HasARowForEachWindowAndAColumnForEachLanguage)
{
    const std::string page =
        index_page({report(L"IDD_A", 0), report(L"IDD_B", 0), report(L"IDD_A", 1), report(L"IDD_B", 1)});
    EXPECT_EQ(1 + 2, count(page, "<tr>")); // with the heading
    EXPECT_EQ(4, count(page, "<img "));
    EXPECT_EQ(4, count(page, ">20 translated<"));
    EXPECT_THAT(page, HasSubstr("Korean &middot; \xED\x95\x9C\xEA\xB5\xAD\xEC\x96\xB4</th>"));
    EXPECT_THAT(page, HasSubstr("<th>English</th>"));
}

TEST(DemoIndexPage, WindowThatFailedHasNoPictureAndCutTextsAreShown)
{
    WindowReport failed = report(L"IDD_A", 0);
    failed.opened = false;
    WindowReport cut = report(L"IDD_B", 0);
    cut.cutTexts = {L"7: <A & \"B\">"};
    const std::string page = index_page({failed, cut});
    EXPECT_EQ(1, count(page, "<img "));
    EXPECT_EQ(1, count(page, ">did not come up<"));
    EXPECT_THAT(page, HasSubstr("cut off: 7: &lt;A &amp; &quot;B&quot;&gt;<"));
}

TEST(DemoIndexPage, RefersToNothingOutsideItsFolder)
{
    EXPECT_EQ(0, count(index_page({report(L"IDD_A", 0)}), "http"));
}

namespace
{
LanguageReport change()
{
    LanguageReport result;
    result.language = 2;
    result.former = 1;
    result.opened = true;
    result.controls = 167;
    result.changed = 120;
    result.font = L"Meiryo UI, 9 pt";
    result.mapped = L"Meiryo UI (Other), 14 px";
    result.dialogFont = L"Gulim";
    result.dialogMapped = L"Gulim, 15 px";
    result.before = L"b.png";
    result.after = L"a.png";
    return result;
}
} // namespace

TEST(DemoReport, ChangeOfLanguageIsThreeLinesAndOneForEachControlThatIsLeft)
{
    LanguageReport report = change();
    report.left = {L"IDD_A/7 shows \"x\", not \"y\""};
    EXPECT_EQ((std::vector<std::wstring>{
                  L"Japanese  font of texts          Meiryo UI, 9 pt is Meiryo UI (Other), 14 px",
                  L"Japanese  font of dialogs        Gulim is Gulim, 15 px",
                  L"Japanese  switched from Korean: 167 controls, 120 texts changed, 1 left",
                  L"          left: IDD_A/7 shows \"x\", not \"y\""}),
              language_lines(report));
    report.opened = false;
    EXPECT_EQ((std::vector<std::wstring>{L"Japanese  the windows to switch did not come up"}),
              language_lines(report));
}

TEST(DemoIndexPage, ShowsAllWindowsBeforeAndAfterTheLanguageChanged)
{
    LanguageReport report = change();
    report.left = {L"IDD_A/7 <left>"};
    const std::string page = index_page({::report(L"IDD_A", 2)}, {report});
    EXPECT_EQ(3, count(page, "<img "));
    EXPECT_THAT(page, HasSubstr("before: Korean"));
    EXPECT_THAT(page, HasSubstr("after: Japanese"));
    EXPECT_THAT(page, HasSubstr("IDD_A/7 &lt;left&gt;"));
    EXPECT_THAT(page, HasSubstr("Meiryo UI, 9 pt &rarr; Meiryo UI (Other), 14 px"));
}

#include "program.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace
{
constexpr std::string_view one = "D DIALOG 0\nBEGIN\nLTEXT \"<%d> & \"\"x\"\"\",1,1,2,3,4\nEDITTEXT 2\nEND\n";
constexpr std::string_view two = "\nD DIALOG 0\nBEGIN\nLTEXT \"x\",1,1,2,3,4\nEND\n";
constexpr std::string_view same = "A BITMAP a\n";

const std::string empty_rest =
    "\nComparing strings:\n\nComparing bitmaps:\nComparing icons:\nComparing cursors:\n";
const std::string differences =
    "Comparing menus:\n\nComparing toolbars:\n\nComparing dialogs:\n\tComparing dialog resource: D\n"
    "\t\tString error in 1: Different number of %-signs ('<%d> & \\\"x\\\"', 'x'), Different number "
    "of \\-signs ('<%d> & \\\"x\\\"', 'x')\n\t\tCouldn't find control ID: 2\n"
    "\t\tDifferent items count (2 in 1, 1 in 2)\n" +
    empty_rest;
const std::string nothing = "Comparing menus:\n\nComparing toolbars:\n\nComparing dialogs:\n" + empty_rest;

class RcFormatsTest : public ProgramTest
{
protected:
    RcFormatsTest()
    {
        for (const char* folder : {"en", "en/sub", "ko", "ko/sub"})
            std::filesystem::create_directory(path(folder));
        write("en/b.rc", one);
        write("ko/b.rc", two);
        write("en/sub/a.RC", same);
        write("ko/sub/a.RC", same);
        write("en/only here.rc", "");
        write("ko/only there.rc", "");
        write("en/no script.txt", "");
    }

    nlohmann::json sarif(const std::vector<std::string>& arguments)
    {
        std::vector<std::string> words = {"rc", "compare", "--format", "sarif"};
        words.insert(words.end(), arguments.begin(), arguments.end());
        const Outcome outcome = tarvo(words);
        EXPECT_EQ(outcome.err, "");
        return nlohmann::json::parse(outcome.out);
    }
};
} // namespace

TEST_F(RcFormatsTest, FoldersAreComparedByRelativePathInOneOrder)
{
    const Outcome wanted{1,
                         "Comparing scripts: b.rc\n" + differences +
                             "\nCouldn't find script: only here.rc in folder 2\n\n"
                             "Comparing scripts: sub/a.RC\n" +
                             nothing + "\n",
                         ""};
    EXPECT_EQ(tarvo({"rc", "compare", "en", "ko"}), wanted);
    for (const std::string jobs : {"1", "2", "7"})
        EXPECT_EQ(tarvo({"rc", "compare", "en", "ko/", "-j", jobs}), wanted) << jobs;
}

TEST_F(RcFormatsTest, LikeFoldersAreNoDifference)
{
    EXPECT_EQ(tarvo({"rc", "compare", "en", "en"}).status, 0);
    std::filesystem::create_directory(path("empty"));
    EXPECT_EQ(tarvo({"rc", "compare", "empty", "en"}), (Outcome{0, "", ""}));
}

TEST_F(RcFormatsTest, JobsAreANumberThatMakesSense)
{
    for (const std::string jobs : {"0", "x", "-1", "257", "2x", ""})
        EXPECT_EQ(
            tarvo({"rc", "compare", "en", "ko", "--jobs=" + jobs}),
            (Outcome{2, "", "tarvo: rc compare: --jobs needs a number from 1 to 256, not " + jobs + "\n"}));
}

TEST_F(RcFormatsTest, AFolderAgainstAFileIsRefused)
{
    EXPECT_EQ(tarvo({"rc", "compare", "en", "ko/b.rc"}),
              (Outcome{3, "", "tarvo: en: is a folder, not a file\n"}));
    EXPECT_EQ(tarvo({"rc", "compare", "en/b.rc", "ko"}),
              (Outcome{3, "", "tarvo: ko: is a folder, not a file\n"}));
}

TEST_F(RcFormatsTest, FoldersAsJsonHaveEveryFinding)
{
    const auto json = nlohmann::json::parse(tarvo({"rc", "compare", "en", "ko", "--format", "json"}).out);
    EXPECT_EQ(json["missing"], nlohmann::json::array({"only here.rc"}));
    ASSERT_EQ(json["files"].size(), 2u);
    EXPECT_EQ(json["files"][0]["file"], "b.rc");
    EXPECT_EQ(json["files"][0]["log"],
              "Reading en/b.rc\r\nReading done\r\nReading ko/b.rc\r\nReading done\r\n");
    const auto& findings = json["files"][0]["findings"];
    ASSERT_EQ(findings.size(), 3u);
    EXPECT_EQ(findings[1], (nlohmann::json{{"rule", "control-missing"},
                                           {"resource", "D"},
                                           {"item", "2"},
                                           {"line1", 4},
                                           {"line2", 2},
                                           {"text", "Couldn't find control ID: 2"}}));
    EXPECT_EQ(json["files"][1]["findings"], nlohmann::json::array());
}

TEST_F(RcFormatsTest, SarifHasRuleMessageAndBothPlaces)
{
    const auto log = sarif({"en/b.rc", "ko/b.rc"});
    EXPECT_EQ(log["version"], "2.1.0");
    const auto& run = log["runs"][0];
    EXPECT_EQ(run["tool"]["driver"]["name"], "tarvo");
    EXPECT_EQ(run["tool"]["driver"]["rules"].size(), 32u);
    ASSERT_EQ(run["results"].size(), 3u);
    EXPECT_EQ(
        run["results"][1],
        nlohmann::json::parse(
            R"({"ruleId":"control-missing","level":"warning","message":{"text":"Couldn't find control ID: 2"},
                      "locations":[{"physicalLocation":{"artifactLocation":{"uri":"ko/b.rc"},"region":{"startLine":2}},
                      "logicalLocations":[{"name":"2","fullyQualifiedName":"D/2"}]}],
                      "relatedLocations":[{"physicalLocation":{"artifactLocation":{"uri":"en/b.rc"},
                      "region":{"startLine":4}},"message":{"text":"the original"}}]})"));
}

TEST_F(RcFormatsTest, SarifNamesEachRuleThatAResultNames)
{
    const auto log = sarif({"en", "ko"});
    std::vector<std::string> rules;
    for (const auto& rule : log["runs"][0]["tool"]["driver"]["rules"])
        rules.push_back(rule["id"]);
    ASSERT_EQ(log["runs"][0]["results"].size(), 4u);
    for (const auto& result : log["runs"][0]["results"])
        EXPECT_EQ(std::ranges::count(rules, result["ruleId"].get<std::string>()), 1);
}

TEST_F(RcFormatsTest, SarifEscapesPathsAsUris)
{
    const auto log = sarif({"en", "ko"});
    EXPECT_EQ(log["runs"][0]["results"][3]["ruleId"], "script-missing");
    EXPECT_EQ(log["runs"][0]["results"][3]["locations"][0]["physicalLocation"]["artifactLocation"]["uri"],
              "ko/only%20here.rc");
    EXPECT_FALSE(log["runs"][0]["results"][3]["locations"][0]["physicalLocation"].contains("region"));
}

TEST_F(RcFormatsTest, SarifOfLikeScriptsHasNoResult)
{
    EXPECT_EQ(sarif({"en/b.rc", "en/b.rc"})["runs"][0]["results"], nlohmann::json::array());
}

TEST_F(RcFormatsTest, JunitHasATestcaseForEachFindingAndOneForAFileWithout)
{
    EXPECT_EQ(
        tarvo({"rc", "compare", "en", "ko", "--format", "junit"}),
        (Outcome{
            1,
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<testsuites name=\"tarvo rc compare\" tests=\"5\" failures=\"4\">\n"
            "  <testsuite name=\"b.rc\" tests=\"3\" failures=\"3\">\n"
            "    <testcase classname=\"b.rc\" name=\"control-text D 1\" file=\"ko/b.rc\" line=\"4\">\n"
            "      <failure type=\"control-text\" message=\"String error in 1: Different number of %-signs "
            "('&lt;%d&gt; &amp; \\&quot;x\\&quot;', 'x'), Different number of \\-signs ('&lt;%d&gt; &amp; "
            "\\&quot;x\\&quot;', 'x')\">en/b.rc:3\nko/b.rc:4</failure>\n    </testcase>\n"
            "    <testcase classname=\"b.rc\" name=\"control-missing D 2\" file=\"ko/b.rc\" line=\"2\">\n"
            "      <failure type=\"control-missing\" message=\"Couldn't find control ID: 2\">en/b.rc:4\n"
            "ko/b.rc:2</failure>\n    </testcase>\n"
            "    <testcase classname=\"b.rc\" name=\"control-count D\" file=\"ko/b.rc\" line=\"2\">\n"
            "      <failure type=\"control-count\" message=\"Different items count (2 in 1, 1 in "
            "2)\">en/b.rc:1\n"
            "ko/b.rc:2</failure>\n    </testcase>\n  </testsuite>\n"
            "  <testsuite name=\"only here.rc\" tests=\"1\" failures=\"1\">\n"
            "    <testcase classname=\"only here.rc\" name=\"script-missing\" file=\"ko/only here.rc\">\n"
            "      <failure type=\"script-missing\" message=\"Couldn't find script: only here.rc in folder "
            "2\">"
            "en/only here.rc:0\nko/only here.rc:0</failure>\n    </testcase>\n  </testsuite>\n"
            "  <testsuite name=\"sub/a.RC\" tests=\"1\" failures=\"0\">\n"
            "    <testcase classname=\"sub/a.RC\" name=\"comparison\" file=\"ko/sub/a.RC\"/>\n"
            "  </testsuite>\n</testsuites>\n",
            ""}));
}

TEST_F(RcFormatsTest, JunitHoldsNothingThatXmlCannot)
{
    write("x.rc", std::string("STRINGTABLE\nBEGIN\nA \"%\x01\"\nEND\n"));
    write("y.rc", "STRINGTABLE\nBEGIN\nA \"\"\nEND\n");
    const std::string junit = tarvo({"rc", "compare", "x.rc", "y.rc", "--format", "junit"}).out;
    EXPECT_THAT(junit, HasSubstr("('%\xEF\xBF\xBD', "));
    EXPECT_THAT(junit, Not(HasSubstr("\x01")));
}

TEST_F(RcFormatsTest, HtmlIsOnePageThatNeedsNothingElse)
{
    const std::string page = tarvo({"rc", "compare", "en", "ko", "--format", "html"}).out;
    EXPECT_THAT(page, StartsWith("<!DOCTYPE html>\n"));
    EXPECT_THAT(page, Not(HasSubstr("http")));
    EXPECT_THAT(page, Not(HasSubstr("src=")));
    EXPECT_THAT(page, HasSubstr("<details class=\"bad\" open><summary>Dialog D</summary>\n"));
    EXPECT_THAT(
        page,
        HasSubstr("<tr class=\"bad\"><td>1</td><td>LTEXT</td><td>&lt;%d&gt; &amp; \\&quot;x\\&quot;</td>"
                  "<td>x</td><td><span class=\"finding\">String error in 1: "));
    EXPECT_THAT(
        page,
        HasSubstr("<tr class=\"bad\"><td>2</td><td>EDITTEXT</td><td></td><td></td><td>"
                  "<span class=\"finding\">Couldn't find control ID: 2 <code>control-missing</code></span>"
                  "</td></tr>\n"));
    EXPECT_THAT(page, HasSubstr("Couldn't find script: only here.rc in folder 2"));
    EXPECT_THAT(page, Not(HasSubstr("<%d>")));
}

TEST_F(RcFormatsTest, HtmlShowsEveryFinding)
{
    const std::string page = tarvo({"rc", "compare", "en/b.rc", "ko/b.rc", "--format", "html"}).out;
    std::size_t shown = 0;
    for (std::size_t at = 0; (at = page.find("<span class=\"finding\">", at)) != std::string::npos; ++at)
        ++shown;
    EXPECT_EQ(shown, 3u);
}

#include "program.h"

#include "platform/codepage.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>

namespace fs = std::filesystem;

namespace
{
std::string bytes_of(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// Files of real programs, which are not part of this tree: TARVO_CORPUS names their folder.
class CorpusTest : public ProgramTest
{
protected:
    void SetUp() override
    {
        const char* const named = std::getenv("TARVO_CORPUS");
        const char* const source = std::getenv("TARVO_TEST_SOURCE_DIR");
        m_folder = named != nullptr ? fs::path(named)
                                    : fs::path(source == nullptr ? "." : source) / "../shared/corpus";
        if (!fs::is_directory(m_folder))
            GTEST_SKIP() << "no corpus; TARVO_CORPUS names its folder";
    }

    /// Every file with the extension, copied under one short name in turn.
    template <class Visit>
    void each(const std::string& extension, Visit visit)
    {
        std::vector<fs::path> files;
        for (const auto& entry : fs::recursive_directory_iterator(m_folder))
            if (entry.is_regular_file() && entry.path().extension() == extension)
                files.push_back(entry.path());
        std::ranges::sort(files);
        ASSERT_FALSE(files.empty());
        for (const fs::path& file : files)
        {
            SCOPED_TRACE(file.filename().string());
            const std::string bytes = bytes_of(file);
            write("file", bytes);
            visit(bytes);
        }
    }

private:
    fs::path m_folder;
};

std::string utf8_of(const std::string& bytes)
{
    namespace codepage = platform::codepage;
    const bool wide = bytes.starts_with("\xFF\xFE");
    return codepage::encode(codepage::utf8, wide ? codepage::from_utf16le(bytes.substr(2))
                                                 : codepage::decode(1252, bytes).value_or(L""))
        .value_or("");
}
} // namespace

TEST_F(CorpusTest, EverySectionOfAFileIsShown)
{
    each(".ini", [&](const std::string& bytes) {
        const Outcome shown = tarvo({"ini", "show", "file", "--format", "json", "--ansi", "1252", "-q"});
        ASSERT_EQ(shown.status, 0);
        ASSERT_EQ(shown.err, "");
        const auto document = nlohmann::json::parse(shown.out);
        std::set<std::string> found;
        for (const auto& section : document["sections"])
            found.insert(section["name"].get<std::string>());
        std::set<std::string> expected;
        static const std::regex line("(?:^|\n)[ \t]*\\[[ \t]*([^\r\n]*[^\r\n \t])[ \t]*\\][ \t]*(?=\r|\n|$)");
        const std::string text = utf8_of(bytes);
        for (std::sregex_iterator at(text.begin(), text.end(), line), end; at != end; ++at)
            expected.insert((*at)[1]);
        EXPECT_EQ(found, expected);
        EXPECT_EQ(document["is_opened"], 1);
    });
}

TEST_F(CorpusTest, AConvertedFileShowsTheSame)
{
    each(".ini", [&](const std::string&) {
        EXPECT_EQ(tarvo({"ini", "convert", "file", "-o", "converted", "--ansi", "1252"}),
                  (Outcome{0, "", ""}));
        const Outcome before = tarvo({"ini", "show", "file", "--ansi", "1252", "-q"});
        EXPECT_EQ(tarvo({"ini", "show", "converted"}), before);
        EXPECT_EQ(tarvo({"ini", "convert", "converted"}), (Outcome{0, read("converted"), ""}));
    });
}

TEST_F(CorpusTest, EveryNamedNumberOfAHeaderIsInItsTable)
{
    each(".h", [&](const std::string& bytes) {
        const Outcome shown = tarvo({"header", "show", "file", "--format", "json", "--ansi", "1252"});
        ASSERT_EQ(shown.status, 0);
        ASSERT_EQ(shown.err, "");
        const auto tables = nlohmann::json::parse(shown.out);
        std::set<std::string> found;
        for (const auto& [name, table] : tables.items())
            for (const auto& row : table)
                for (const auto& symbol : row[1])
                    found.insert(name + " " + row[0].get<std::string>() + " " + symbol.get<std::string>());
        static const std::regex line("(?:^|\n)#define[ \t]+([A-Za-z0-9][A-Za-z0-9_]*)[ \t]+([^ \t\r\n]+)");
        static const std::pair<std::string, std::string> marks[] = {
            {"IDC_", "control"}, {"IDD_", "dialog"}, {"IDR_", "resource"}, {"ID_", "menu"}, {"IDM_", "menu"}};
        const std::string text = utf8_of(bytes);
        std::size_t checked = 0;
        for (std::sregex_iterator at(text.begin(), text.end(), line), end; at != end; ++at)
        {
            const std::string name = (*at)[1];
            const auto mark = std::ranges::find_if(
                marks, [&](const auto& row) { return name.find(row.first) != std::string::npos; });
            if (mark == std::end(marks))
                continue;
            ++checked;
            EXPECT_TRUE(found.contains("all " + std::string((*at)[2]) + " " + name)) << name;
            EXPECT_TRUE(found.contains(mark->second + " " + std::string((*at)[2]) + " " + name)) << name;
        }
        RecordProperty("checked", static_cast<int>(checked));
    });
}

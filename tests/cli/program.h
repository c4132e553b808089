#pragma once

#include <filesystem>
#include <iosfwd>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

/// Runs the real program tarvo that was built beside the tests.
struct Outcome
{
    int status = -1;
    std::string out;
    std::string err;
    bool operator==(const Outcome&) const = default;
};
void PrintTo(const Outcome& outcome, std::ostream* stream);

struct Start
{
    std::filesystem::path program;
    std::filesystem::path folder; ///< the program's current folder
    std::vector<std::string> arguments;
    std::map<std::string, std::string> environment; ///< beside the tests' own
    std::filesystem::path in, out, err;             ///< files for the standard streams
};
/// Starts a program, waits for its end and gives its exit status; -1 when it did not start.
int start_and_wait(const Start& start);
std::filesystem::path tests_folder();
extern const char* const program_suffix;

/// A folder of its own for each test, in which the program runs, so that file names are the same wherever
/// the tests run.
class ProgramTest : public testing::Test
{
protected:
    ProgramTest();
    ~ProgramTest() override;

    Outcome tarvo(const std::vector<std::string>& arguments, const std::string& input = {});
    /// Runs another program by its full path.
    Outcome run(const std::filesystem::path& program, const std::vector<std::string>& arguments);
    void write(const std::string& name, std::string_view bytes) const;
    std::string read(const std::string& name) const;
    std::filesystem::path path(const std::string& name) const;
    /// The names in the folder, sorted.
    std::vector<std::string> names() const;

    std::map<std::string, std::string> m_environment; ///< for the programs that follow
    std::filesystem::path m_out;                      ///< where standard output goes; empty for Outcome::out

private:
    std::filesystem::path m_root;
};

/// UTF-16LE bytes behind their mark, of ASCII and other text below U+10000.
std::string utf16(std::wstring_view text);

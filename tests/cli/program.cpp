#include "program.h"

#include "platform/codepage.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>

namespace fs = std::filesystem;

namespace
{
std::string read_bytes(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void write_bytes(const fs::path& path, std::string_view bytes)
{
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    ASSERT_TRUE(file.flush()) << path;
}

fs::path utf8_path(const std::string& name) { return std::u8string(name.begin(), name.end()); }
} // namespace

void PrintTo(const Outcome& outcome, std::ostream* stream)
{
    const auto cut = [](const std::string& text) { return testing::PrintToString(text.substr(0, 4000)); };
    *stream << "exit " << outcome.status << "\n out " << cut(outcome.out) << "\n err " << cut(outcome.err);
}

ProgramTest::ProgramTest()
{
    std::random_device random;
    m_root = fs::temp_directory_path() / ("tarvo-cli-" + std::to_string(random()) + std::to_string(random()));
    fs::create_directories(m_root / "work");
    // A sanitizer's finding must not look like the program's own exit status.
    m_environment["ASAN_OPTIONS"] = "exitcode=99";
    m_environment["UBSAN_OPTIONS"] = "exitcode=99";
    m_environment["LC_ALL"] = "C.UTF-8";
}

ProgramTest::~ProgramTest()
{
    std::error_code ignored;
    fs::remove_all(m_root, ignored);
}

Outcome ProgramTest::run(const fs::path& program, const std::vector<std::string>& arguments)
{
    const fs::path out = m_root / "out";
    const fs::path err = m_root / "err";
    if (!fs::exists(m_root / "in"))
        write_bytes(m_root / "in", "");
    Outcome outcome;
    outcome.status = start_and_wait({program, m_root / "work", arguments, m_environment, m_root / "in",
                                     m_out.empty() ? out : m_out, err});
    outcome.out = m_out.empty() ? read_bytes(out) : std::string();
    outcome.err = read_bytes(err);
    return outcome;
}

Outcome ProgramTest::tarvo(const std::vector<std::string>& arguments, const std::string& input)
{
    write_bytes(m_root / "in", input);
    return run(tests_folder() / (std::string("tarvo") + program_suffix), arguments);
}

void ProgramTest::write(const std::string& name, std::string_view bytes) const
{
    write_bytes(path(name), bytes);
}

std::string ProgramTest::read(const std::string& name) const { return read_bytes(path(name)); }

fs::path ProgramTest::path(const std::string& name) const { return m_root / "work" / utf8_path(name); }

std::vector<std::string> ProgramTest::names() const
{
    std::vector<std::string> found;
    for (const auto& entry : fs::directory_iterator(m_root / "work"))
    {
        const auto name = entry.path().filename().u8string();
        found.emplace_back(name.begin(), name.end());
    }
    std::ranges::sort(found);
    return found;
}

std::string utf16(std::wstring_view text) { return "\xFF\xFE" + platform::codepage::to_utf16le(text); }

#include "tests/support/Corpus.h"

#include "platform/file.h"

#include <cstdlib>
#include <sstream>

namespace
{
constexpr std::uint64_t most = 64u * 1024 * 1024;

std::wstring CorpusFolder()
{
    const char* const folder = std::getenv("TARVO_CORPUS");
    const char* const source = std::getenv("TARVO_TEST_SOURCE_DIR");
    std::string path;
    if (folder != nullptr)
        path = folder;
    else if (source != nullptr)
        path = std::string(source) + "/../shared/corpus";
    return {path.begin(), path.end()};
}

std::vector<std::string> Columns(const std::string& line)
{
    std::vector<std::string> columns;
    std::istringstream in(line);
    for (std::string column; std::getline(in, column, '\t');)
        columns.push_back(column);
    return columns;
}
} // namespace

std::vector<CorpusFile> CorpusFiles(const std::string& ending)
{
    const std::wstring folder = CorpusFolder() + L'/';
    const auto manifest = platform::file::read_whole((folder + L"MANIFEST.tsv").c_str(), most);
    std::vector<CorpusFile> files;
    if (!manifest)
        return files;
    std::istringstream lines(*manifest);
    for (std::string line; std::getline(lines, line);)
    {
        const std::vector<std::string> columns = Columns(line);
        if (columns.size() < 6 || !columns[0].ends_with(ending))
            continue;
        CorpusFile file{
            columns[0], columns[5], folder + std::wstring(columns[0].begin(), columns[0].end()), {}};
        auto bytes = platform::file::read_whole(file.path.c_str(), most);
        if (!bytes)
            continue;
        file.bytes = std::move(*bytes);
        files.push_back(std::move(file));
    }
    return files;
}

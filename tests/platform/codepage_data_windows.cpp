#include "tests/platform/codepage_report.h"

#include "tests/platform/codepage_system_windows.h"

#include <cstdio>

/// Writes what this system answers for every page: codepage_data FOLDER
int main(int argc, char** argv)
{
    if (argc != 2)
        return std::fprintf(stderr, "usage: codepage_data FOLDER\n"), 2;
    for (const int page : codepage_report::pages)
    {
        const std::string path = std::string(argv[1]) + '/' + std::to_string(page) + ".txt";
        const std::string report = codepage_report::of(page, codepage_report::system());
        std::FILE* const file = std::fopen(path.c_str(), "wb");
        if (!file || std::fwrite(report.data(), 1, report.size(), file) != report.size() ||
            std::fclose(file) != 0)
            return std::fprintf(stderr, "codepage_data: cannot write %s\n", path.c_str()), 1;
    }
}

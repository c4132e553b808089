#include "demo/host/ReportFile.h"

#include "demo/host/Languages.h"
#include "demo/host/Png.h"

#include <fstream>
#include <sstream>

bool write_reports(const std::filesystem::path& path, const std::vector<WindowReport>& reports)
{
    std::string lines;
    for (const WindowReport& report : reports)
    {
        lines += to_utf8(report.window);
        for (const int number :
             {report.language, int{report.opened}, report.translated, report.fallback, report.missing})
            lines += "\t" + std::to_string(number);
        lines += "\t" + to_utf8(report.file) + "\n";
    }
    return write_bytes(path, {lines.begin(), lines.end()});
}

std::vector<WindowReport> read_reports(const std::filesystem::path& path)
{
    std::ifstream file(path);
    std::vector<WindowReport> reports;
    for (std::string line; std::getline(file, line);)
    {
        std::istringstream words(line);
        WindowReport report;
        std::string window, picture;
        if (!(words >> window >> report.language >> report.opened >> report.translated >> report.fallback >>
              report.missing) ||
            report.language < 0 || report.language >= static_cast<int>(kLanguages.size()))
            continue;
        words >> picture; // a window that did not come up has none
        report.window.assign(window.begin(), window.end());
        report.file.assign(picture.begin(), picture.end());
        reports.push_back(report);
    }
    return reports;
}

#pragma once
#include "demo/host/IndexPage.h"

#include <filesystem>

/// The name under which another program leaves its reports beside its pictures, for the index page.
inline constexpr const wchar_t* kReportFile = L"windows.tsv";

/// One line for each window: window, language number, opened, translated, fallback, missing, picture;
/// separated by tabs, UTF-8. False when the file could not be written.
bool write_reports(const std::filesystem::path& path, const std::vector<WindowReport>& reports);

/// What write_reports wrote. Nothing when there is no such file; lines that are not like it are passed over.
std::vector<WindowReport> read_reports(const std::filesystem::path& path);

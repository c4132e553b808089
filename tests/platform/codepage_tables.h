#pragma once

#include <string>

namespace codepage_report
{
/// The report of tests/data/codepage for a page; empty when there is none.
std::string table(int page);

/// Compares line by line, so that a difference names its row.
void expect_same(const std::string& actual, const std::string& expected);
} // namespace codepage_report

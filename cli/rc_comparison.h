#pragma once

#include "cli/rc_script.h"
#include "tarvo/restools/CompareResources.h"

#include <span>
#include <string>
#include <vector>

namespace cli
{
/// One script held against its translation.
struct Comparison
{
    std::string name;         ///< how the pair is called: the path below both folders, or of the translation
    std::string file1, file2; ///< paths as the user wrote them
    Script one, two;
    CString report;
    std::vector<CResFinding> findings;
    bool is_missing = false; ///< there is no second file; nothing else was read
};

/// Reads and compares the two files of \p comparison. Throws Failure with Status::unreadable.
void perform(Comparison& comparison, const Call& call);

/// The scripts below two folders, sorted by path, compared; with --jobs several at the same time.
std::vector<Comparison> compare_folders(const Call& call);

bool is_folder(const std::string& name);

/// A finding as build servers want it, in UTF-8. For a missing script only rule, files and text.
struct FindingRow
{
    std::string rule;
    std::string file1, file2;
    std::string resource, item;
    std::size_t line1 = 0, line2 = 0;
    std::string text;
};
inline constexpr std::string_view missing_rule = "script-missing";
inline constexpr std::string_view missing_help = "A script is missing in the second folder.";
std::vector<FindingRow> finding_rows(const Comparison& comparison);

std::string sarif_of(std::span<const Comparison> comparisons);
std::string junit_of(std::span<const Comparison> comparisons);
std::string html_of(std::span<const Comparison> comparisons);

/// UTF-8 as text and attribute value of XML and HTML. What XML cannot hold is U+FFFD.
std::string marked_up(std::string_view text);
} // namespace cli

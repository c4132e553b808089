#pragma once

#include <string>
#include <vector>

/// One file of the corpus: real scripts, headers and language files of other programs, kept outside the
/// project beside it.
struct CorpusFile
{
    std::string name;     ///< below the corpus folder, with '/'
    std::string encoding; ///< as its manifest says: "cp949", "utf-16le-bom", ...
    std::wstring path;
    std::string bytes;
};

/// The files whose name ends with \p ending, read. Empty when the corpus is not at hand; then the test
/// says so and skips. The folder is $TARVO_CORPUS, else `shared/corpus` beside the project.
std::vector<CorpusFile> CorpusFiles(const std::string& ending);

/// For the first line of a test over corpus files.
#define SKIP_WITHOUT_CORPUS(files)                                                                           \
    if ((files).empty())                                                                                     \
    GTEST_SKIP() << "the corpus is not at hand (TARVO_CORPUS names its folder)"

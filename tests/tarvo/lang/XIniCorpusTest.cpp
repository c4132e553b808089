#include "platform/codepage.h"
#include "tests/support/Corpus.h"
#include "tests/tarvo/lang/IniModel.h"

#include <gtest/gtest.h>

namespace
{
/// The page of an encoding as the manifest names it; 1252 for those that are no code page.
int page_of(const std::string& encoding)
{
    if (encoding.rfind("utf-8", 0) == 0)
        return 65001;
    return encoding.rfind("cp", 0) == 0 ? std::stoi(encoding.substr(2)) : 1252;
}

std::wstring text_of(const CorpusFile& file)
{
    if (file.bytes.rfind("\xFF\xFE", 0) == 0)
        return platform::codepage::from_utf16le(file.bytes.substr(2));
    return *platform::codepage::decode(page_of(file.encoding), file.bytes.substr(0, file.bytes.find('\0')));
}

std::vector<CorpusFile> language_files()
{
    std::vector<CorpusFile> files = CorpusFiles(".ini");
    for (CorpusFile& file : CorpusFiles(".lng"))
        files.push_back(std::move(file));
    return files;
}
} // namespace

TEST(XIniCorpus, RealFilesAreReadAndComeBack)
{
    const std::vector<CorpusFile> files = language_files();
    SKIP_WITHOUT_CORPUS(files);
    std::size_t keys = 0;
    for (const CorpusFile& file : files)
    {
        SCOPED_TRACE(file.name);
        XIni ini;
        ini.SetCodePage(page_of(file.encoding));
        ASSERT_EQ(ini.Open(file.path.c_str()), 1);
        ASSERT_EQ(ini.IsOpened(), 1);
        IniModel model = model_of(text_of(file));
        EXPECT_EQ(contents_of(ini), model);
        for (const auto& [name, section] : model)
            keys += section.size();

        XIni again;
        const std::string saved = ini.Serialize();
        again.OpenMemory(reinterpret_cast<const unsigned char*>(saved.data()),
                         static_cast<int>(saved.size()));
        IniModel reread = contents_of(again);
        drop_what_cannot_come_back(model, reread);
        EXPECT_EQ(reread, model);
    }
    EXPECT_GT(keys, 1000u);
}

TEST(XIniModel, ReadsTheDocumentedLines)
{
    const IniModel model =
        model_of(L"lost=1\n[A]\r\nk = \"a \"b\" c\"\nr/**/s=\"v\"\nbare\nx = y\n;c=1\n[]\nlost\n");
    const IniModel expected = {{L"A", {{L"k", L"a \"b\" c"}, {L"s", L"v"}, {L"bare", L""}, {L"x", L"= y"}}}};
    EXPECT_EQ(model, expected);
}

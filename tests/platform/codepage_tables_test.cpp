#include "tests/platform/codepage_tables.h"

#include "platform/codepage.h"
#include "tests/platform/codepage_report.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>

using namespace platform::codepage;

namespace codepage_report
{
std::string table(int page)
{
    const char* const source = std::getenv("TARVO_TEST_SOURCE_DIR");
    std::ifstream file(std::string(source ? source : ".") + "/tests/data/codepage/" + std::to_string(page) +
                           ".txt",
                       std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void expect_same(const std::string& actual, const std::string& expected)
{
    ASSERT_FALSE(expected.empty()) << "the table is missing";
    std::istringstream a(actual), e(expected);
    std::string actual_line, expected_line;
    while (std::getline(e, expected_line))
    {
        ASSERT_TRUE(std::getline(a, actual_line)) << "nothing for " << expected_line;
        ASSERT_EQ(actual_line, expected_line);
    }
    EXPECT_FALSE(std::getline(a, actual_line)) << actual_line;
}
} // namespace codepage_report

namespace
{
codepage_report::Converter library()
{
    codepage_report::Converter converter;
    converter.decode = [](int page, std::string_view bytes) {
        std::u16string text(bytes.size(), u'\0');
        text.resize(decode(page, bytes, text.data()).value());
        return text;
    };
    converter.encode = [](int page, std::u16string_view text) {
        std::string bytes(encoded_bound(text.size()), '\0');
        bytes.resize(encode(page, text, bytes.data()).value());
        return bytes;
    };
    return converter;
}

class CodepageTable : public testing::TestWithParam<int>
{
};
} // namespace

TEST_P(CodepageTable, EveryByteEveryPairAndEveryUnitConvertsAsWindowsConvertsIt)
{
    codepage_report::expect_same(codepage_report::of(GetParam(), library()),
                                 codepage_report::table(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Page, CodepageTable, testing::ValuesIn(codepage_report::pages),
                         [](const auto& test) { return std::to_string(test.param); });

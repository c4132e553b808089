#include "tests/platform/codepage_system_windows.h"
#include "tests/platform/codepage_tables.h"

#include <gtest/gtest.h>

namespace
{
class CodepageSystem : public testing::TestWithParam<int>
{
};
} // namespace

TEST_P(CodepageSystem, StillAnswersWhatTheTablesSay)
{
    codepage_report::expect_same(codepage_report::of(GetParam(), codepage_report::system()),
                                 codepage_report::table(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Page, CodepageSystem, testing::ValuesIn(codepage_report::pages),
                         [](const auto& test) { return std::to_string(test.param); });

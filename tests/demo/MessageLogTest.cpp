#include "demo/host/MessageLog.h"

#include "tests/support/print.h"

#include <gtest/gtest.h>

namespace
{
std::vector<std::wstring> texts(const CMessageLog& log)
{
    std::vector<std::wstring> all;
    for (const CMessageLog::Line& line : log.GetLines())
        all.push_back(line.text);
    return all;
}
} // namespace

TEST(DemoMessageLog, LinesStandInTheOrderInWhichTheyWereWritten)
{
    CMessageLog log;
    log.Add(MessageKind::plain, L"a");
    log.Add(MessageKind::error, L"b");
    EXPECT_EQ((std::vector<std::wstring>{L"a", L"b"}), texts(log));
    EXPECT_EQ(MessageKind::error, log.GetLines()[1].kind);
    EXPECT_EQ(1u, log.Count(MessageKind::error));
}

TEST(DemoMessageLog, LineAtTheSamePositionTakesTheLastOnesPlaceAndKind)
{
    CMessageLog log;
    log.Replace(MessageKind::plain, L"1 %");
    log.Add(MessageKind::plain, L"2 %");
    log.Replace(MessageKind::warning, L"3 %");
    EXPECT_EQ((std::vector<std::wstring>{L"1 %", L"3 %"}), texts(log));
    EXPECT_EQ(MessageKind::warning, log.GetLines()[1].kind);
}

TEST(DemoMessageLog, TextOfSeveralLinesBecomesAsManyOfOneKind)
{
    CMessageLog log;
    log.Add(MessageKind::error, L"a\r\nb\n\nc");
    EXPECT_EQ((std::vector<std::wstring>{L"a", L"b", L"", L"c"}), texts(log));
    EXPECT_EQ(4u, log.Count(MessageKind::error));
}

TEST(DemoMessageLog, OldestLinesGoWhenThePageIsFull)
{
    CMessageLog log;
    for (std::size_t i = 0; i < CMessageLog::kMost; ++i)
        EXPECT_EQ(0u, log.Add(MessageKind::plain, std::to_wstring(i)));
    EXPECT_EQ(2u, log.Add(MessageKind::plain, L"x\ny"));
    EXPECT_EQ(CMessageLog::kMost, log.GetLines().size());
    EXPECT_EQ(L"2", log.GetLines().front().text);
    EXPECT_EQ(L"y", log.GetLines().back().text);
}

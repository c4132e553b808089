#include "tarvo/restools/Resources.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

namespace
{
CResBaseclass<CResString> ListOf(const std::vector<std::u16string>& ids)
{
    CResBaseclass<CResString> list;
    for (const std::u16string& id : ids)
        list.Append({id, {}, 0});
    return list;
}
} // namespace

TEST(ResBaseclass, FindsTheFirstOfEqualIDs)
{
    const std::vector<std::u16string> ids = {u"a", u"b", u"a", u"", u"a"};
    const auto list = ListOf(ids);
    EXPECT_EQ(list.GetCount(), 5u);
    EXPECT_EQ(list.GetAt(2).m_strID, u"a");
    EXPECT_EQ(list.Find(u"a"), 0);
    EXPECT_EQ(list.Find(u"b"), 1);
    EXPECT_EQ(list.Find(u""), 3);
    EXPECT_EQ(list.Find(u"A"), -1) << "letter case counts";
    EXPECT_EQ(list.Find(u"aa"), -1);
}

TEST(ResBaseclass, FindsByRankAmongEqualIDs)
{
    const std::vector<std::u16string> ids = {u"a", u"b", u"a", u"c", u"a"};
    const auto list = ListOf(ids);
    EXPECT_EQ(list.Find(u"a", 0), 0);
    EXPECT_EQ(list.Find(u"a", 1), 2);
    EXPECT_EQ(list.Find(u"a", 2), 4);
    EXPECT_EQ(list.Find(u"a", 3), -1);
    EXPECT_EQ(list.Find(u"b", 1), -1);
    EXPECT_EQ(list.Find(u"c", 1), -1);
    const std::size_t ranks[] = {0, 0, 1, 0, 2};
    for (std::size_t i = 0; i < ids.size(); ++i)
        EXPECT_EQ(list.RankOf(i), ranks[i]);
}

TEST(ResBaseclass, FindsWhatWasAppendedAfterALookUp)
{
    auto list = ListOf({});
    EXPECT_EQ(list.Find(u"a"), -1);
    list.Append({u"a", {}, 0});
    EXPECT_EQ(list.Find(u"a"), 0);
    list.Append({u"a", {}, 0});
    EXPECT_EQ(list.Find(u"a", 1), 1);
    EXPECT_EQ(list.RankOf(1), 1u);
}

TEST(ResBaseclass, FindsEveryOneOfManyIDs)
{
    std::vector<std::u16string> ids;
    for (int i = 0; i < 20000; ++i)
    {
        const std::string digits = std::to_string(i % 15000);
        ids.emplace_back(digits.begin(), digits.end());
    }
    const auto list = ListOf(ids);
    for (int i = 0; i < 20000; ++i)
        ASSERT_EQ(list.Find(ids[static_cast<std::size_t>(i)], i < 15000 ? 0 : 1), i);
}

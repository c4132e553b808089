#include "tarvo/msg/MessageStore.h"

#include "tests/tarvo/msg/Dump.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>

namespace
{
std::u16string numbered(const char16_t* name, int number)
{
    const std::string digits = std::to_string(number);
    return name + std::u16string(digits.begin(), digits.end());
}

CMessageStore many(int count)
{
    CMessageStore store;
    for (int i = 0; i < count; ++i)
        store.Insert(numbered(u"KEY_", i), numbered(u"text ", i));
    return store;
}
} // namespace

TEST(MessageStore, AnEmptyOneKnowsNothing)
{
    const CMessageStore store;
    EXPECT_FALSE(store.Find(u"").has_value());
    EXPECT_FALSE(store.Find(u"A").has_value());
    EXPECT_EQ(store.GetCount(), 0u);
    EXPECT_EQ(store.GetMemory(), 0u);
    EXPECT_TRUE(store.Sorted().empty());
}

TEST(MessageStore, TheFirstTextOfAKeyStays)
{
    CMessageStore store;
    EXPECT_TRUE(store.Insert(u"A", u"1"));
    EXPECT_FALSE(store.Insert(u"A", u"2"));
    EXPECT_TRUE(store.Insert(u"a", u"3"));
    EXPECT_TRUE(store.Insert(u"", u""));
    EXPECT_EQ(dump(store), L"=;A=1;a=3;");
}

TEST(MessageStore, SetReplacesShorterEqualAndLongerTexts)
{
    CMessageStore store;
    store.Set(u"A", u"first");
    store.Insert(u"B", u"next");
    for (const units::view text : {u"x", u"other", u"a much longer text than before", u""})
    {
        store.Set(u"A", text);
        EXPECT_EQ(dump(store), L"A=" + units::to_string(text) + L";B=next;");
    }
    EXPECT_EQ(store.GetCount(), 2u);
}

TEST(MessageStore, KeysOfBytesAndOfUnitsOfEveryLengthAreToldApart)
{
    CMessageStore store;
    std::map<std::u16string, CString> expected;
    for (std::size_t length = 1; length < 40; ++length)
        for (const char16_t last : {u'\x41', u'\xFF', u'\x141', u'\xAC00'}) // the third has the first's byte
        {
            const std::u16string key = std::u16string(length, u'!') + last;
            const CString asked = units::to_string(key);
            EXPECT_FALSE(store.Find(key).has_value()) << length;
            EXPECT_TRUE(store.Insert(key, u"first")) << length;
            EXPECT_FALSE(store.Insert(key, u"second")) << length;
            EXPECT_EQ(store.Find(units::ask(asked)), u"first") << length;
            store.Set(key, key);
            EXPECT_EQ(store.Find(key), key) << length;
            expected[key] = asked + L"=" + asked + L";";
        }
    CString list;
    for (const auto& [key, line] : expected)
        list += line;
    EXPECT_EQ(dump(store), list);
    EXPECT_EQ(dump(CMessageStore(store)), list);
}

TEST(MessageStore, AKeyTakesAByteForEachUnitWhereItCan)
{
    CMessageStore names, others;
    for (int i = 0; i < 10000; ++i)
    {
        names.Insert(numbered(u"\x00C4 long name for a message ", i), u"");
        others.Insert(numbered(u"\xAC00 long name for a message ", i), u"");
    }
    names.Trim();
    others.Trim();
    EXPECT_LT(names.GetMemory() * 10, others.GetMemory() * 7);
}

TEST(MessageStore, ListsInTheOrdinalOrderOfTheKeys)
{
    CMessageStore store;
    for (const units::view key : {u"b", u"B", u"AB", u"A", u"\xAC00", u"\xFFFF", u"_", u"A\x0001"})
        store.Insert(key, u"");
    EXPECT_EQ(dump(store), L"A=;A\x0001=;AB=;B=;_=;b=;\xAC00=;\xFFFF=;");
}

TEST(MessageStore, TwoHundredThousandKeysAreAllFound)
{
    const CMessageStore store = many(200000);
    EXPECT_EQ(store.GetCount(), 200000u);
    for (int i = 0; i < 200000; ++i)
        ASSERT_EQ(store.Find(numbered(u"KEY_", i)), numbered(u"text ", i));
    EXPECT_FALSE(store.Find(u"KEY_200000").has_value());
    const auto sorted = store.Sorted();
    for (std::size_t i = 1; i < sorted.size(); ++i)
        ASSERT_LT(sorted[i - 1].key, sorted[i].key);
}

TEST(MessageStore, TextsLargerThanABlockAreKept)
{
    CMessageStore store;
    std::map<std::u16string, std::u16string> expected;
    for (const std::size_t size : {1u, 2040u, 131000u, 131072u, 1u, 3000000u, 5u})
    {
        const std::u16string key = numbered(u"K", static_cast<int>(expected.size()));
        expected[key] = std::u16string(size, static_cast<char16_t>(u'a' + expected.size()));
        EXPECT_TRUE(store.Insert(key, expected[key]));
    }
    for (const auto& [key, value] : expected)
        EXPECT_TRUE(store.Find(key) == units::view(value)) << testing::PrintToString(key);
}

TEST(MessageStore, CopiesAreIndependent)
{
    CMessageStore store = many(1000);
    CMessageStore copy(store);
    EXPECT_EQ(dump(copy), dump(store));
    copy.Set(u"KEY_1", u"changed");
    store.Clear();
    EXPECT_EQ(store.GetCount(), 0u);
    EXPECT_EQ(copy.Find(u"KEY_1"), u"changed");
    EXPECT_EQ(copy.Find(u"KEY_999"), u"text 999");
    copy = store;
    EXPECT_EQ(copy.GetCount(), 0u);
    copy = *&copy;
    EXPECT_TRUE(copy.Insert(u"A", u"1"));
}

TEST(MessageStore, AClearedOneKeepsItsMemoryForTheNextMessagesUntilItIsTrimmed)
{
    CMessageStore store = many(20000);
    const std::size_t full = store.GetMemory();
    for (int round = 0; round < 3; ++round)
    {
        store.Clear();
        EXPECT_EQ(store.GetCount(), 0u);
        EXPECT_FALSE(store.Find(u"KEY_1").has_value());
        for (int i = 0; i < 20000; ++i)
            ASSERT_TRUE(store.Insert(numbered(u"KEY_", i), numbered(u"text ", i)));
        EXPECT_EQ(store.GetMemory(), full);
    }
    store.Clear();
    store.Insert(u"A", u"1");
    store.Trim();
    EXPECT_LT(store.GetMemory(), std::size_t{10000});
    EXPECT_EQ(dump(store), L"A=1;");
    store.Clear();
    store.Trim();
    EXPECT_EQ(store.GetMemory(), 0u);
    EXPECT_TRUE(store.Insert(u"A", u"2"));
}

TEST(MessageStore, TrimmingKeepsEveryMessage)
{
    for (const int count : {1, 11, 12, 13, 1000, 24575, 24576, 24577})
    {
        CMessageStore store = many(30000);
        store.Clear();
        for (int i = 0; i < count; ++i)
            store.Insert(numbered(u"KEY_", i), numbered(u"text ", i));
        store.Trim();
        for (int i = 0; i < count; ++i)
            ASSERT_EQ(store.Find(numbered(u"KEY_", i)), numbered(u"text ", i)) << count;
        EXPECT_TRUE(store.Insert(u"one more", u""));
        EXPECT_FALSE(store.Find(u"unknown").has_value());
    }
}

TEST(MessageStore, MemoryStaysBoundedWhenTextsChangeAgainAndAgain)
{
    CMessageStore store = many(100);
    std::size_t most = 0;
    for (int round = 0; round < 20000; ++round)
    {
        store.Set(u"KEY_7", std::u16string(static_cast<std::size_t>(round % 300), u'x'));
        most = std::max(most, store.GetMemory());
    }
    EXPECT_LT(most, std::size_t{1} << 20);
    EXPECT_EQ(store.Find(u"KEY_7")->size(), 19999u % 300);
    EXPECT_EQ(store.Find(u"KEY_8"), u"text 8");
    EXPECT_EQ(store.GetCount(), 100u);
}

TEST(MessageStore, AnyChangesGiveWhatAnOrderedMapGives)
{
    std::mt19937 random(7);
    CMessageStore store;
    std::map<std::u16string, std::u16string> expected;
    for (int step = 0; step < 50000; ++step)
    {
        const std::u16string key = numbered(u"k", static_cast<int>(random() % 3000));
        const std::u16string value(random() % 40, static_cast<char16_t>(u'a' + random() % 26));
        if (random() % 2)
            EXPECT_EQ(store.Insert(key, value), expected.emplace(key, value).second);
        else
        {
            store.Set(key, value);
            expected[key] = value;
        }
    }
    CString list;
    for (const auto& [key, value] : expected)
        list += units::to_string(key) + L"=" + units::to_string(value) + L";";
    EXPECT_EQ(dump(store), list);
}

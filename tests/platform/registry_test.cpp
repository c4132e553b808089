#include "platform/registry.h"

#include "platform/codepage.h"
#include "tests/support/TestRegistry.h"

#include <gtest/gtest.h>
#include <optional>
#include <utility>

namespace registry = platform::registry;
using registry::Root;

namespace
{
struct key_closer
{
    void operator()(HKEY key) const { registry::close(key); }
};
using Key = std::unique_ptr<std::remove_pointer_t<HKEY>, key_closer>;

struct Registry : testing::Test
{
    Key open(const std::wstring& below = L"")
    {
        return Key(registry::open(software.get(), path(below).c_str()));
    }
    Key create(const std::wstring& below = L"")
    {
        return Key(registry::create(software.get(), path(below).c_str()));
    }
    std::wstring path(const std::wstring& below) const { return own.name() + below; }

    TestRegistry own;
    Key software{registry::create(registry::root(Root::current_user), L"Software")};
};

using Found = std::optional<std::pair<std::uint32_t, std::string>>;

Found value(const Key& key, const wchar_t* name)
{
    std::size_t size = 0;
    std::uint32_t type = 0;
    if (!registry::query(key.get(), name, nullptr, size))
        return std::nullopt;
    std::string data(size, '?');
    char nothing = 0;
    void* room = size ? data.data() : &nothing; // null would ask for the size once more
    if (!registry::query(key.get(), name, room, size, &type))
        return std::nullopt;
    data.resize(size);
    return std::pair(type, data);
}

bool put(const Key& key, const wchar_t* name, std::uint32_t type, const std::string& data)
{
    return registry::set(key.get(), name, type, data.data(), data.size());
}

std::string text_bytes(const std::wstring& text) { return platform::codepage::to_utf16le(text + L'\0'); }
} // namespace

TEST_F(Registry, ValueOfAnyTypeAndSizeComesBackByteForByte)
{
    const Key key = create();
    ASSERT_NE(key.get(), nullptr);
    std::string all(256, '\0');
    for (int i = 0; i < 256; ++i)
        all[static_cast<std::size_t>(i)] = static_cast<char>(i);
    const std::pair<std::uint32_t, std::string> rows[] = {
        {registry::type_string, text_bytes(L"text")},
        {registry::type_string, text_bytes(L"")},
        {registry::type_string, ""},
        {registry::type_string, "a"},                              // half a unit
        {registry::type_string, text_bytes(L"odd") + "x"},         // odd size
        {registry::type_string, text_bytes(L"open").substr(0, 8)}, // no null at the end
        {registry::type_string, text_bytes(std::wstring(L"a\0b\0", 4))},
        {registry::type_string, text_bytes(L"\\ \" = [x] ; \r\n\t\u0001")},
        {registry::type_string, text_bytes({0xD55C, 0xAE00, 0xD83D, 0xDE00, 0xD83D, L'x', 0xDE00})},
        {registry::type_dword, std::string("\x1f\0\0\x80", 4)},
        {registry::type_dword, "123"},
        {registry::type_dword, "12345"},
        {registry::type_binary, all},
        {registry::type_binary, ""},
        {2, text_bytes(L"%PATH%")},
        {7, text_bytes(std::wstring(L"a\0b\0", 4))},
        {11, "12345678"},
    };
    for (const auto& row : rows)
    {
        ASSERT_TRUE(put(key, L"v", row.first, row.second));
        EXPECT_EQ(value(key, L"v"), Found(row)) << "row " << &row - rows;
    }
}

TEST_F(Registry, ValueOfOneMebibyteComesBackWhole)
{
    const Key key = create();
    const std::string text = text_bytes(std::wstring((1 << 19) - 1, 0xAC00));
    std::string bytes(1 << 20, '\0');
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>(i * 7);
    ASSERT_TRUE(put(key, L"text", registry::type_string, text));
    ASSERT_TRUE(put(key, L"bytes", registry::type_binary, bytes));
    EXPECT_TRUE(value(key, L"text") == Found({registry::type_string, text}));
    EXPECT_TRUE(value(key, L"bytes") == Found({registry::type_binary, bytes}));
}

TEST_F(Registry, QueryFailsWithoutAChangeWhenTheRoomIsTooSmall)
{
    const Key key = create();
    ASSERT_TRUE(put(key, L"v", registry::type_binary, "12345"));
    char room[8] = "abcdefg";
    std::size_t size = 4;
    EXPECT_FALSE(registry::query(key.get(), L"v", room, size));
    size = 5;
    EXPECT_TRUE(registry::query(key.get(), L"v", room, size));
    EXPECT_STREQ(room, "12345fg");
    size = 0;
    EXPECT_TRUE(registry::query(key.get(), L"v", nullptr, size));
    EXPECT_EQ(size, 5u);
}

TEST_F(Registry, NamesAreFoundInAnyLetterCase)
{
    const Key made = create(L"\\Level One");
    ASSERT_TRUE(put(made, L"N\u00E4me", registry::type_string, "1"));
    const Key found = open(L"\\LEVEL one");
    ASSERT_NE(found.get(), nullptr);
    EXPECT_EQ(value(found, L"n\u00C4ME"), Found({registry::type_string, "1"}));
    ASSERT_TRUE(put(made, L"N\u00C4ME", registry::type_string, "2"));
    EXPECT_EQ(value(found, L"N\u00E4me"), Found({registry::type_string, "2"}));
    EXPECT_EQ(value(found, L"Name"), std::nullopt);
    ASSERT_TRUE(registry::remove_value(made.get(), L"n\u00E4mE"));
    EXPECT_EQ(value(found, L"N\u00E4me"), std::nullopt);
}

TEST_F(Registry, OpeningNeverCreates)
{
    EXPECT_EQ(open(L"\\missing").get(), nullptr);
    EXPECT_EQ(open().get(), nullptr);
    EXPECT_NE(create(L"\\a\\b").get(), nullptr);
    EXPECT_NE(open(L"\\a").get(), nullptr);
    EXPECT_NE(open(L"\\a\\b").get(), nullptr);
    EXPECT_EQ(open(L"\\a\\c").get(), nullptr);
}

TEST_F(Registry, EmptyNameOpensTheSameKeyAgain)
{
    const Key key = create();
    ASSERT_TRUE(put(key, L"v", registry::type_string, "1"));
    const Key again(registry::open(key.get(), L""));
    EXPECT_EQ(value(again, L"v"), Found({registry::type_string, "1"}));
    const Key writable(registry::create(key.get(), L""));
    EXPECT_TRUE(put(writable, L"v", registry::type_string, "2"));
    EXPECT_EQ(value(again, L"v"), Found({registry::type_string, "2"}));
}

TEST_F(Registry, UnnamedValueIsReachedByAnEmptyAndByANullName)
{
    const Key key = create();
    ASSERT_TRUE(put(key, L"", registry::type_string, "1"));
    EXPECT_EQ(value(key, nullptr), Found({registry::type_string, "1"}));
    EXPECT_TRUE(registry::remove_value(key.get(), nullptr));
    EXPECT_EQ(value(key, L""), std::nullopt);
}

TEST_F(Registry, KeyOpenedForReadingIsNotWritten)
{
    ASSERT_TRUE(put(create(), L"v", registry::type_string, "1"));
    const Key key = open();
    EXPECT_FALSE(put(key, L"v", registry::type_string, "2"));
    EXPECT_FALSE(registry::remove_value(key.get(), L"v"));
    EXPECT_EQ(value(key, L"v"), Found({registry::type_string, "1"}));
}

TEST_F(Registry, RemovingAValueTellsWhetherItWasThere)
{
    const Key key = create();
    ASSERT_TRUE(put(key, L"v", registry::type_string, "1"));
    EXPECT_TRUE(registry::remove_value(key.get(), L"v"));
    EXPECT_FALSE(registry::remove_value(key.get(), L"v"));
    EXPECT_EQ(value(key, L"v"), std::nullopt);
}

TEST_F(Registry, RemovingAKeyTakesAllBelowAndNoNeighbour)
{
    const Key key = create(L"\\ab\\c");
    ASSERT_TRUE(put(key, L"v", registry::type_string, "1"));
    const Key neighbour = create(L"\\abc"), parent = create();
    EXPECT_TRUE(registry::remove_tree(parent.get(), L"AB"));
    EXPECT_EQ(open(L"\\ab\\c").get(), nullptr);
    EXPECT_EQ(open(L"\\ab").get(), nullptr);
    EXPECT_NE(open(L"\\abc").get(), nullptr);
    EXPECT_FALSE(registry::remove_tree(parent.get(), L"ab"));
    EXPECT_FALSE(registry::remove_tree(parent.get(), L""));
    EXPECT_NE(open().get(), nullptr);
    EXPECT_FALSE(put(key, L"v", registry::type_string, "2")) << "the key is gone";
    EXPECT_EQ(value(key, L"v"), std::nullopt);
}

TEST_F(Registry, PredefinedKeysAreAlwaysThereAndSurviveClosing)
{
    for (const Root which :
         {Root::classes_root, Root::current_user, Root::local_machine, Root::users, Root::current_config})
    {
        registry::close(registry::root(which));
        EXPECT_NE(Key(registry::open(registry::root(which), L"")).get(), nullptr)
            << static_cast<unsigned>(which);
    }
    registry::close(nullptr);
    EXPECT_EQ(registry::open(nullptr, L"Software"), nullptr);
    EXPECT_EQ(registry::create(nullptr, L"Software"), nullptr);
}

TEST_F(Registry, NamesBeyondTheLimitsFail)
{
    const Key key = create();
    EXPECT_NE(create(L"\\" + std::wstring(255, L'k')).get(), nullptr);
    EXPECT_EQ(create(L"\\" + std::wstring(257, L'k')).get(), nullptr);
    EXPECT_EQ(open(L"\\" + std::wstring(32000, L'k')).get(), nullptr);
    EXPECT_TRUE(put(key, std::wstring(16383, L'v').c_str(), registry::type_string, "1"));
    EXPECT_FALSE(put(key, std::wstring(16384, L'v').c_str(), registry::type_string, "1"));
    EXPECT_EQ(value(key, std::wstring(32000, L'v').c_str()), std::nullopt);
}

TEST_F(Registry, ValueNameMayHoldAnyCharacter)
{
    const Key key = create();
    const std::wstring name = std::wstring(L"\\a\"=@[x]\n\t") + wchar_t(0xD83D) + wchar_t(0xAC00);
    ASSERT_TRUE(put(key, name.c_str(), registry::type_string, "1"));
    ASSERT_TRUE(put(key, L"@", registry::type_string, "2"));
    EXPECT_EQ(value(key, name.c_str()), Found({registry::type_string, "1"}));
    EXPECT_EQ(value(key, L"@"), Found({registry::type_string, "2"}));
    EXPECT_EQ(value(key, L""), std::nullopt);
}

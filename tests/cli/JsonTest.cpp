#include "cli/json.h"

#include <gtest/gtest.h>

using cli::JsonWriter;

TEST(JsonWriter, WritesMembersInTheOrderOfTheCalls)
{
    JsonWriter json;
    json.begin_object().key("z").number(-1).key("a").begin_array().end_array();
    json.key("m")
        .begin_array()
        .begin_object()
        .end_object()
        .null()
        .text(L"t")
        .begin_array()
        .number(2)
        .end_array();
    EXPECT_EQ(json.end_array().end_object().take(), "{\"z\":-1,\"a\":[],\"m\":[{},null,\"t\",[2]]}\n");
    EXPECT_EQ(json.begin_array().end_array().take(), "[]\n") << "the writer is empty after take";
}

TEST(JsonWriter, EscapesWhatJsonForbidsAndKeepsTheRest)
{
    EXPECT_EQ(JsonWriter().text(L"a\"b\\c/\r\n\t\b\x1f\x7f").take(),
              "\"a\\\"b\\\\c/\\r\\n\\t\\u0008\\u001f\x7f\"\n");
    EXPECT_EQ(JsonWriter().text(std::wstring_view(L"a\0b", 3)).take(), "\"a\\u0000b\"\n");
    EXPECT_EQ(JsonWriter().text(L"한Ж").take(), "\"\xed\x95\x9c\xd0\x96\"\n");
}

TEST(JsonWriter, WritesAPairAsItsLetterAndALoneSurrogateAsItsEscape)
{
    const auto text = [](std::initializer_list<wchar_t> units) {
        return JsonWriter().text(std::wstring_view(units.begin(), units.size())).take();
    };
    EXPECT_EQ(text({0xD83D, 0xDE00}), "\"\xf0\x9f\x98\x80\"\n");
    EXPECT_EQ(text({0xD83D}), "\"\\ud83d\"\n");
    EXPECT_EQ(text({0xDE00, 0xD83D}), "\"\\ude00\\ud83d\"\n");
    EXPECT_EQ(text({L'a', 0xD83D, L'b'}), "\"a\\ud83db\"\n");
    EXPECT_EQ(text({0xD83D, 0xD83D, 0xDE00}), "\"\\ud83d\xf0\x9f\x98\x80\"\n");
}

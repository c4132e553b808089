#include "program.h"

using namespace std::string_literals;

using TextTest = ProgramTest;

TEST_F(TextTest, LinesAreReadByTheMarkOfTheFile)
{
    const struct
    {
        std::string bytes;
        const char* encoding;
    } rows[] = {
        {utf16(L"a\r\n가\n\nb"), "utf-16le"},
        {"\xFE\xFF\0a\0\n\xAC\0\0\n\0\n\0b"s, "utf-16be"},
        {"\xEF\xBB\xBF"
         "a\n\xEA\xB0\x80\r\rb\n",
         "utf-8"},
        {"a\r\n\xB0\xA1\n\nb", "ansi"},
    };
    for (const auto& row : rows)
    {
        write("a.rc", row.bytes);
        EXPECT_EQ(tarvo({"text", "lines", "a.rc", "--ansi", "949"}),
                  (Outcome{0, "a\n\xEA\xB0\x80\n\nb\n", ""}))
            << row.encoding;
        const Outcome json{
            0, "{\"encoding\":\""s + row.encoding + "\",\"lines\":[\"a\",\"\xEA\xB0\x80\",\"\",\"b\"]}\n",
            ""};
        EXPECT_EQ(
            tarvo({"text", "lines", "a.rc", "--reader", "detect", "--code-page", "949", "--format", "json"}),
            json);
        EXPECT_EQ(tarvo({"text", "lines", "-", "--ansi", "949", "--format", "json"}, row.bytes), json);
    }
}

TEST_F(TextTest, JsonIsExact)
{
    write("a.rc", utf16(L"a\x0001\0\t\xD800\xFFFF"s));
    EXPECT_EQ(
        tarvo({"text", "lines", "a.rc", "--format", "json"}),
        (Outcome{0, "{\"encoding\":\"utf-16le\",\"lines\":[\"a\\u0001\\u0000\\t\\ud800\xEF\xBF\xBF\"]}\n",
                 ""}));
}

TEST_F(TextTest, StdioReaderReadsAsTheCatalogueDoes)
{
    write("a.ini", "a\rb\r\n\xB0\xA1\n\x1A"
                   "c");
    EXPECT_EQ(
        tarvo({"text", "lines", "a.ini", "--reader", "stdio", "--code-page", "949", "--format", "json"}),
        (Outcome{0, "{\"encoding\":\"multibyte\",\"lines\":[\"a\\rb\",\"\xEA\xB0\x80\"]}\n", ""}));
    EXPECT_EQ(tarvo({"text", "lines", "a.ini", "--reader", "stdio", "--ansi", "949"}),
              (Outcome{0, "a\rb\n\xEA\xB0\x80\n", ""}));
    write("b.ini", utf16(L"가\r\nК\n"));
    EXPECT_EQ(tarvo({"text", "lines", "b.ini", "--reader", "stdio", "--format", "json"}),
              (Outcome{0, "{\"encoding\":\"utf-16le\",\"lines\":[\"\xEA\xB0\x80\",\"\xD0\x9A\"]}\n", ""}));
    write("c.ini", std::string(5000, 'a') + "\n");
    EXPECT_EQ(tarvo({"text", "lines", "c.ini", "--reader", "stdio"}),
              (Outcome{0, std::string(4096, 'a') + "\n" + std::string(904, 'a') + "\n", ""}));
}

TEST_F(TextTest, BytesTakenForAMarkAreTold)
{
    write("a.ini", "\xEF\xBB\xBF"
                   "abc");
    EXPECT_EQ(tarvo({"text", "lines", "a.ini", "--reader", "stdio", "--code-page", "65001"}),
              (Outcome{0, "abc\n", ""}));
    write("b.ini", "abcdef");
    EXPECT_EQ(
        tarvo({"text", "lines", "b.ini", "--reader", "stdio", "--code-page", "65001"}),
        (Outcome{
            0, "def\n",
            "tarvo: b.ini: has no mark of UTF-8; its first three bytes are passed over all the same\n"}));
}

TEST_F(TextTest, EmptyFileHasNoLines)
{
    write("a.rc", "");
    EXPECT_EQ(tarvo({"text", "lines", "a.rc"}), (Outcome{0, "", ""}));
    EXPECT_EQ(tarvo({"text", "lines", "-", "--format", "json"}),
              (Outcome{0, "{\"encoding\":\"ansi\",\"lines\":[]}\n", ""}));
}

TEST_F(TextTest, UnreadableFileIsNeverAnEmptyResult)
{
    for (const char* reader : {"detect", "stdio"})
    {
        EXPECT_EQ(tarvo({"text", "lines", "missing", "--reader", reader}),
                  (Outcome{3, "", "tarvo: missing: no such file\n"}));
        EXPECT_EQ(tarvo({"text", "lines", ".", "--reader", reader}),
                  (Outcome{3, "", "tarvo: .: is a folder, not a file\n"}));
    }
}

TEST_F(TextTest, StdioReaderNeedsAName)
{
    EXPECT_EQ(tarvo({"text", "lines", "-", "--reader", "stdio"}, "a").status, 2);
    EXPECT_EQ(tarvo({"text", "lines", "a", "--reader", "other"}).status, 2);
    EXPECT_EQ(tarvo({"text", "lines", "a", "--code-page", "12345"}).status, 2);
}

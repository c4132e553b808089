#include "tarvo/restools/ScriptWords.h"

#include "script.h"

#include <gtest/gtest.h>

namespace
{
using Words = std::vector<std::string>;

Words WordsOf(const std::string& line, WordSeparators separators)
{
    const std::u16string text = Utf16(line);
    CScriptArena keep;
    const CScriptMarks marks(text);
    CScriptWords walker(marks, 0, text.size(), keep);
    walker.EndWordsAt(separators);
    Words words;
    for (std::u16string_view word; walker.Next(word);)
        words.push_back(Utf8(word));
    return words;
}

Words Standard(const std::string& line) { return WordsOf(line, WordSeparators::Standard); }
Words Comma(const std::string& line) { return WordsOf(line, WordSeparators::Comma); }
} // namespace

TEST(ScriptWords, EndAtBlanksCommasAndTabsOfWhichRunsCountAsOne)
{
    EXPECT_EQ(Standard("  IDD_X DIALOGEX\t0, 0,,100 ,\t 50"),
              (Words{"IDD_X", "DIALOGEX", "0", "0", "100", "50"}));
    EXPECT_EQ(Standard(""), Words{});
    EXPECT_EQ(Standard(" ,\t"), Words{});
    EXPECT_EQ(Standard("one"), Words{"one"});
    EXPECT_EQ(Standard("a\vb\xC2\xA0"
                       "c"),
              Words{"a\vb\xC2\xA0"
                    "c"})
        << "nothing else separates";
}

TEST(ScriptWords, EndAtCommasAloneWhenAskedTo)
{
    EXPECT_EQ(Comma(" a b\t,c, d,,e"), (Words{" a b\t", "c", " d", "e"}));
}

TEST(ScriptWords, AreWholeInsideAQuotedSpan)
{
    EXPECT_EQ(Standard(R"(LTEXT "Name, first",IDC_NAME,7)"),
              (Words{"LTEXT", "Name, first", "IDC_NAME", "7"}));
    EXPECT_EQ(Standard("\"a\tb\" c"), (Words{"a\tb", "c"}));
    EXPECT_EQ(Comma(R"(LTEXT "a, b", ID)"), (Words{"LTEXT a, b", " ID"}));
}

TEST(ScriptWords, LoseTheSeparatorsRightBehindTheOpeningQuote)
{
    EXPECT_EQ(Standard(R"("  , text ")"), Words{"text "});
    EXPECT_EQ(Comma(R"(" , text")"), (Words{" , text"})) << "only separators: here a blank is none";
    EXPECT_EQ(Comma(R"(", text")"), (Words{" text"}));
}

TEST(ScriptWords, EndAtTheClosingQuote)
{
    EXPECT_EQ(Standard(R"("one"two "three")"), (Words{"one", "two", "three"}));
    EXPECT_EQ(Standard(R"("one")"), Words{"one"});
}

TEST(ScriptWords, MayHaveASpanThatOpensInside)
{
    EXPECT_EQ(Standard(R"(L"wide text" next)"), (Words{"Lwide text", "next"}));
}

TEST(ScriptWords, TakeAPairOfQuotesForBackslashAndQuote)
{
    EXPECT_EQ(Standard(R"(CAPTION "Say ""Hi""")"), (Words{"CAPTION", R"(Say \"Hi\")"}));
    EXPECT_EQ(Standard(R"("""all""" x)"), (Words{R"(\"all\")", "x"}));
    EXPECT_EQ(Standard(R"(a""b)"), Words{R"(a\"b)"}) << "outside of a span as well";
    EXPECT_EQ(Standard(R"("a""""b")"), Words{R"(a\"\"b)"}) << "from the left: two pairs";
    EXPECT_EQ(Standard(R"("a\""b" c)"), (Words{R"(a\\"b)", "c"}))
        << "a pair is one whatever stands before it";
}

TEST(ScriptWords, DoNotEndAtAQuoteBehindABackslash)
{
    EXPECT_EQ(Standard(R"("a \"b\" c" d)"), (Words{R"(a \"b\" c)", "d"}));
    EXPECT_EQ(Standard(R"("\tCtrl+\\",ID)"), Words{R"(\tCtrl+\\",ID)"})
        << "of two backslashes the last one counts";
}

TEST(ScriptWords, AreEmptyForAnEmptyLiteral)
{
    EXPECT_EQ(Standard(R"(EDITTEXT "",IDC_X)"), (Words{"EDITTEXT", "", "IDC_X"}));
    EXPECT_EQ(Standard(R"("")"), Words{""});
    EXPECT_EQ(Standard(R"(\")"), Words{""});
    EXPECT_EQ(Standard(R"("" "" x)"), (Words{"", "", "x"}));
    EXPECT_EQ(Comma(R"(LTEXT "",ID)"), (Words{R"(LTEXT \")", "ID"}))
        << "with more around it, it is no empty one";
    EXPECT_EQ(Standard(R"(" " x)"), (Words{"", "x"})) << "a span of separators alone is a word too";
}

TEST(ScriptWords, GoOnToTheEndOfTheLineInASpanThatNothingCloses)
{
    EXPECT_EQ(Standard(R"(LTEXT "open, ID)"), (Words{"LTEXT", "open, ID"}));
    EXPECT_EQ(Standard(R"(LTEXT ")"), Words{"LTEXT"});
    EXPECT_EQ(Standard(R"("a"")"), Words{R"(a\")"});
}

TEST(ScriptWords, AreEmptyPastTheLast)
{
    EXPECT_EQ(ScriptWord(u"a b", 0, WordSeparators::Standard), u"a");
    EXPECT_EQ(ScriptWord(u"a b", 1, WordSeparators::Standard), u"b");
    EXPECT_EQ(ScriptWord(u"a b", 2, WordSeparators::Standard), u"");
    EXPECT_EQ(ScriptWord(u"a b", 99, WordSeparators::Standard), u"");
    EXPECT_EQ(ScriptWord(u"", 0, WordSeparators::Comma), u"");
}

TEST(ScriptWords, CanBePassedOverAndEndElsewhereFromThereOn)
{
    const std::u16string line = u"MENUITEM \"a, b\" 101 GRAYED, INACTIVE";
    CScriptArena keep;
    const CScriptMarks marks(line);
    CScriptWords words(marks, 0, line.size(), keep);
    words.Skip(2);
    EXPECT_EQ(words.Next(), u"101");
    words.EndWordsAt(WordSeparators::Comma);
    EXPECT_EQ(words.Next(), u"GRAYED");
    EXPECT_EQ(words.Next(), u" INACTIVE");
    words.Skip(3);
    EXPECT_EQ(words.Next(), u"");
}

TEST(ScriptWords, AreViewsIntoTheLineWhereNothingHadToChange)
{
    const std::u16string line = u"LTEXT \"Name\",ID";
    CScriptArena keep;
    const CScriptMarks marks(line);
    CScriptWords words(marks, 0, line.size(), keep);
    EXPECT_EQ(words.Next().data(), line.data());
    EXPECT_EQ(words.Next().data(), line.data() + 7);
    EXPECT_EQ(words.Next().data(), line.data() + 13);
    EXPECT_EQ(keep.GetMemory(), 0u);
}

TEST(ScriptWords, AreTheSameWhereverTheyStandAndHoweverLongTheyAre)
{
    for (std::size_t length = 0; length < 200; ++length)
    {
        const std::string blanks(length, ' '), text(length, 'x');
        const Words inQuotes = {"LTEXT", "a " + text, "ID", "7"};
        EXPECT_EQ(Standard("LTEXT" + blanks + " \"a " + text + "\"," + blanks + "ID," + blanks + "7"),
                  inQuotes);
        const Words plain = {"a" + text, "b", "c" + text};
        EXPECT_EQ(Standard(blanks + "a" + text + " b " + blanks + "c" + text), plain);
        const Words pairs = {text + R"(\"x)", text + R"(\"y)"};
        EXPECT_EQ(Standard('"' + text + R"(""x" ")" + text + R"(\"y")"), pairs);
    }
}

TEST(ScriptWords, HoldAPairOfQuotesWhereverItStands)
{
    for (std::size_t before = 1; before < 20; ++before)
        for (std::size_t length = 0; length < 80; ++length)
        {
            const std::string first(before, 'x'), text(length, 'y');
            EXPECT_EQ(Standard(first + " \"" + text + "\"\"z\" end"), (Words{first, text + "\\\"z", "end"}))
                << before << " " << length;
        }
}

TEST(ScriptWords, StandAlsoInTheMiddleOfAText)
{
    const std::u16string text = u"\"LTEXT \"a, b\",ID\",";
    const CScriptMarks marks(text);
    CScriptArena keep;
    CScriptWords words(marks, 1, text.size() - 2, keep);
    EXPECT_EQ(words.Next(), u"LTEXT");
    EXPECT_EQ(words.Next(), u"a, b");
    EXPECT_EQ(words.Next(), u"ID") << "what stands behind the end is no part of it";
    std::u16string_view word;
    EXPECT_FALSE(words.Next(word));
}

TEST(ScriptWords, TellWhetherOneFollows)
{
    const auto isAtEnd = [](const std::string& line, std::size_t count) {
        const std::u16string text = Utf16(line);
        const CScriptMarks marks(text);
        CScriptArena keep;
        CScriptWords words(marks, 0, text.size(), keep);
        words.Skip(count);
        return words.IsAtEnd();
    };
    EXPECT_TRUE(isAtEnd("", 0));
    EXPECT_TRUE(isAtEnd("ID , \t", 1));
    EXPECT_FALSE(isAtEnd("ID , \t x", 1));
    EXPECT_FALSE(isAtEnd(R"(ID "")", 1)) << "an empty literal is a word";
    EXPECT_FALSE(isAtEnd(R"(ID "  ")", 1));
    EXPECT_TRUE(isAtEnd(R"(ID " )", 1)) << "an open span without anything is none";
}

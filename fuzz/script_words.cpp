#include "fuzz/require.h"
#include "tarvo/restools/ScriptWords.h"
#include "tarvo/text/TextDecode.h"

#include <string>
#include <vector>

// The words of any line are those that the rules give when they are followed step by step: first every pair
// of quotes is replaced in a copy, then the copy is walked over unit by unit.
namespace
{
using Words = std::vector<std::u16string>;

std::u16string WithoutPairs(std::u16string_view line)
{
    std::u16string text;
    for (std::size_t i = 0; i < line.size(); ++i)
    {
        const bool isPair = line[i] == u'"' && i + 1 < line.size() && line[i + 1] == u'"';
        text += isPair ? u'\\' : line[i];
        if (isPair)
            text += line[++i];
    }
    return text;
}

Words ByTheRules(std::u16string_view line, std::u16string_view separators)
{
    const std::u16string text = WithoutPairs(line);
    const auto opensOrCloses = [&](std::size_t i) {
        return text[i] == u'"' && (i == 0 || text[i - 1] != u'\\');
    };
    const auto separates = [&](std::size_t i) {
        return separators.find(text[i]) != std::u16string_view::npos;
    };
    Words words;
    bool inSpan = false, inWord = false;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        if (opensOrCloses(i))
        {
            if (inSpan && !inWord)
                words.emplace_back();
            inWord = inWord && !inSpan;
            inSpan = !inSpan;
        }
        else if (separates(i) && (!inSpan || !inWord))
            inWord = false;
        else
        {
            if (!inWord)
                words.emplace_back();
            inWord = true;
            words.back() += text[i];
        }
    }
    for (std::u16string& word : words)
        if (word == u"\\\"")
            word.clear();
    return words;
}

Words ByTheWalker(std::u16string_view line, WordSeparators separators)
{
    CTextArena keep;
    const CScriptMarks marks(line);
    CScriptWords walker(line.data(), marks, 0, line.size(), keep);
    walker.EndWordsAt(separators);
    Words words;
    for (std::u16string_view word; walker.Next(word);)
        words.emplace_back(word);
    return words;
}

// The fields behind the first, found from behind the \p count words at blanks and commas.
Words FieldsFrom(std::u16string_view line, std::size_t count)
{
    CTextArena keep;
    const CScriptMarks marks(line);
    CScriptWords walker(line.data(), marks, 0, line.size(), keep);
    std::u16string_view word;
    while (count-- != 0)
        walker.Next(word);
    CScriptWords fields = walker.SecondField(word);
    Words words;
    while (fields.Next(word))
        words.emplace_back(word);
    return words;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    std::u16string line(size, u'\0');
    line.resize(DecodeLenientUtf8({reinterpret_cast<const char*>(data), size}, line.data()));
    const Words standard = ByTheRules(line, u" ,\t");
    Require(ByTheWalker(line, WordSeparators::Standard) == standard, "the words are what the rules give");
    Words fields = ByTheRules(line, u",");
    Require(ByTheWalker(line, WordSeparators::Comma) == fields, "the fields are too");
    if (!fields.empty())
        fields.erase(fields.begin());
    for (std::size_t i = 0; i < 4; ++i)
        Require(FieldsFrom(line, i) == fields, "the second field is found from anywhere");
    for (std::size_t i = 0; i <= standard.size() && i < 8; ++i)
        Require(ScriptWord(line, i, WordSeparators::Standard) ==
                    (i < standard.size() ? standard[i] : std::u16string()),
                "a word is found by its number");
    return 0;
}

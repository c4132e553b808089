#include "fuzz/require.h"
#include "tarvo/restools/Resources.h"
#include "tarvo/restools/ScriptWords.h"
#include "tarvo/text/TextDecode.h"

#include <string>
#include <vector>

// The words of any line are those that the rules give when they are followed step by step: first every pair
// of quotes is replaced in a copy, then the copy is walked over unit by unit. A control has those that its
// rule counts.
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
    CScriptArena keep;
    const CScriptMarks marks(line);
    CScriptWords walker(marks, 0, line.size(), keep);
    walker.EndWordsAt(separators);
    Words words;
    for (std::u16string_view word; walker.Next(word);)
        words.emplace_back(word);
    return words;
}

// Where a control's words stand among those at blanks and commas, and its fields among those at commas.
struct Places
{
    std::u16string_view keyword;
    std::size_t text, id, type, style, exStyle;
};
constexpr Places places[] = {
    {u"CONTROL", 1, 2, 3, 3, 8}, {u"LTEXT", 1, 2, 0, 6, 7}, {u"EDITTEXT", 99, 1, 0, 5, 6}};

// A dialog with the line as its control has the words that stand at the rule's places.
void CheckControl(std::u16string_view line, const Words& words, Words fields, const Places& rule)
{
    const auto at = [](const Words& all, std::size_t number) {
        return number < all.size() ? all[number] : std::u16string();
    };
    for (std::u16string& field : fields)
        std::erase(field, u' ');
    const std::u16string script = u"\uFEFFD DIALOG 0,0\nBEGIN\n" + std::u16string(line) + u"\nEND\n";
    CResources resources;
    CString log;
    CStringArray languages;
    resources.ReadMemory({reinterpret_cast<const char*>(script.data()), 2 * script.size()}, log, L"",
                         languages);
    const CResDialogControl& control = resources.Dialogs().GetAt(0).m_items.GetAt(0);
    Require(control.m_strText == at(words, rule.text) && control.m_strID == at(words, rule.id) &&
                control.m_strType == at(words, rule.type) && control.m_strStyle == at(fields, rule.style) &&
                control.m_strExStyle == at(fields, rule.exStyle) &&
                control.m_strHelpID == at(fields, rule.exStyle + 1),
            "a control has the words at the rule's places");
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
    for (const Places& rule : places)
        if (!standard.empty() && standard[0] == rule.keyword &&
            line.find_first_of(u"\r\n") == std::u16string_view::npos)
            CheckControl(line, standard, fields, rule);
    for (std::size_t i = 0; i <= standard.size() && i < 8; ++i)
        Require(ScriptWord(line, i, WordSeparators::Standard) ==
                    (i < standard.size() ? standard[i] : std::u16string()),
                "a word is found by its number");
    return 0;
}

#include "tarvo/restools/CheckString.h"

#include "tarvo/text/Units.h"

#include <algorithm>
#include <initializer_list>

namespace
{
using View = std::u16string_view;

bool IsWordUnit(char16_t c)
{
    return (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
}

std::size_t PercentWordLength(View text)
{
    std::size_t length = text.size() > 1 && text[1] == u'%' ? 2 : 1;
    while (length < text.size() && IsWordUnit(text[length]))
        ++length;
    return length;
}

std::size_t BackslashWordLength(View text) { return std::min<std::size_t>(text.size(), 2); }

// Cuts the next word that begins with \p sign off \p text; empty at the end.
View TakeWord(View& text, char16_t sign, std::size_t (*length)(View))
{
    const std::size_t start = text.find(sign);
    if (start == View::npos)
    {
        text = {};
        return {};
    }
    text.remove_prefix(start);
    const View word = text.substr(0, length(text));
    text.remove_prefix(word.size());
    return word;
}

std::u16string Join(std::initializer_list<View> parts)
{
    std::u16string joined;
    for (const View part : parts)
        joined += part;
    return joined;
}

struct SignRule
{
    char16_t sign;
    std::size_t (*length)(View);
    View differentCount;
    View differentWords;
};

constexpr SignRule percentRule = {u'%', PercentWordLength, u"Different number of %-signs ('",
                                  u"Different %-words ("};
constexpr SignRule backslashRule = {u'\\', BackslashWordLength, u"Different number of \\-signs ('",
                                    u"Different \\-characters ("};

bool Holds(View text, char16_t sign)
{
    const char16_t* const end = text.data() + text.size();
    return units::find(text.data(), end, sign) != end;
}

std::u16string CheckSigns(View text1, View text2, const SignRule& rule)
{
    if (!Holds(text1, rule.sign) && !Holds(text2, rule.sign)) // nearly all of a script
        return {};
    if (std::count(text1.begin(), text1.end(), rule.sign) !=
        std::count(text2.begin(), text2.end(), rule.sign))
        return Join({rule.differentCount, text1, u"', '", text2, u"')"});
    while (!text1.empty() || !text2.empty())
    {
        const View word1 = TakeWord(text1, rule.sign, rule.length);
        const View word2 = TakeWord(text2, rule.sign, rule.length);
        if (word1 != word2)
            return Join({rule.differentWords, word1, u" and ", word2, u")"});
    }
    return {};
}
} // namespace

std::u16string CheckString(View text1, View text2, StringCheck mode)
{
    if (units::equal(text1, text2)) // whatever is looked for, they agree
        return {};
    switch (mode)
    {
    case StringCheck::Percent:
        return CheckSigns(text1, text2, percentRule);
    case StringCheck::Backslash:
        return CheckSigns(text1, text2, backslashRule);
    case StringCheck::Both: {
        std::u16string problem = CheckSigns(text1, text2, percentRule);
        const std::u16string second = CheckSigns(text1, text2, backslashRule);
        if (!problem.empty() && !second.empty())
            problem += u", ";
        return problem + second;
    }
    case StringCheck::FullString:
        // The single bracket at the end is what reports have always had; tools search for it.
        return Join({u"Strings doesn't match: 1: '", text1, u"', 2: '", text2, u"')"});
    case StringCheck::None:
        break;
    }
    return {};
}

CString CheckString(const wchar_t* psz1, const wchar_t* psz2, StringCheck mode)
{
    const CUnits text1(psz1);
    const CUnits text2(psz2);
    return units::to_string(CheckString(units::view(text1), units::view(text2), mode));
}

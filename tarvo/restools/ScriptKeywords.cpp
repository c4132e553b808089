#include "tarvo/restools/ScriptKeywords.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace
{
using Word = std::u16string_view;

// By keyword.
constexpr std::array<Word, static_cast<std::size_t>(ScriptKeyword::Count)> words = {
    u"",         u"LANGUAGE", u"STRINGTABLE", u"BEGIN",     u"END",      u"STYLE",      u"EXSTYLE",
    u"CAPTION",  u"FONT",     u"MENUITEM",    u"POPUP",     u"BUTTON",   u"SEPARATOR",  u"CONTROL",
    u"LTEXT",    u"RTEXT",    u"CTEXT",       u"ICON",      u"GROUPBOX", u"PUSHBUTTON", u"DEFPUSHBUTTON",
    u"EDITTEXT", u"COMBOBOX", u"LISTBOX",     u"SCROLLBAR",
};
constexpr std::size_t shortest = 3;
constexpr std::size_t longest = 13;

// A place of its own for each keyword, found by trying factors.
constexpr std::size_t PlaceOf(Word word) { return (word[0] + word[1] * 28u + word.size() * 2) % 64; }

/// A keyword, where a look-up finds all of it at once; in a place of none the size is 0.
struct Place
{
    char16_t units[longest];
    std::uint8_t size;
    ScriptKeyword keyword;
};

constexpr std::array<Place, 64> MakePlaces()
{
    std::array<Place, 64> table = {};
    for (std::size_t i = 1; i < words.size(); ++i)
    {
        Place& place = table[PlaceOf(words[i])];
        std::copy(words[i].begin(), words[i].end(), place.units);
        place.size = static_cast<std::uint8_t>(words[i].size());
        place.keyword = static_cast<ScriptKeyword>(i);
    }
    return table;
}
constexpr std::array<Place, 64> places = MakePlaces();

constexpr bool AllHaveTheirPlace()
{
    for (std::size_t i = 1; i < words.size(); ++i)
        if (words[i].size() < shortest || words[i].size() > longest ||
            places[PlaceOf(words[i])].keyword != static_cast<ScriptKeyword>(i))
            return false;
    return true;
}
static_assert(AllHaveTheirPlace());

std::uint64_t FourUnits(const char16_t* at)
{
    std::uint64_t four;
    std::memcpy(&four, at, sizeof four);
    return four;
}

/// Two words of the same length, by steps whose number does not depend on it.
bool AreEqual(const char16_t* a, const char16_t* b, std::size_t size)
{
    static_assert(shortest == 3 && longest <= 16);
    if (size == shortest)
        return a[0] == b[0] && a[1] == b[1] && a[2] == b[2];
    const std::size_t last = size - 4;
    const auto differ = [a, b](std::size_t at) { return FourUnits(a + at) ^ FourUnits(b + at); };
    return (differ(0) | differ(std::min<std::size_t>(4, last)) | differ(std::min<std::size_t>(8, last)) |
            differ(last)) == 0;
}
} // namespace

ScriptKeyword FindScriptKeyword(Word word)
{
    if (word.size() < shortest || word.size() > longest)
        return ScriptKeyword::None;
    const Place& place = places[PlaceOf(word)];
    return place.size == word.size() && AreEqual(word.data(), place.units, place.size) ? place.keyword
                                                                                       : ScriptKeyword::None;
}

#include "tarvo/restools/ScriptControls.h"

#include <bit>

namespace
{
// control ::= CONTROL text "," id "," class "," style "," x "," y "," w "," h ["," exstyle ["," help]]
//           | text-keyword text "," id "," x "," y "," w "," h ["," style ["," exstyle ["," help]]]
//           | plain-keyword id "," x "," y "," w "," h ["," style ["," exstyle ["," help]]]
// In the order of their keywords.
constexpr CControlRule controlRules[] = {
    {u"CONTROL", true, true, 3},     {u"LTEXT", true, false, 6},         {u"RTEXT", true, false, 6},
    {u"CTEXT", true, false, 6},      {u"ICON", true, false, 6},          {u"GROUPBOX", true, false, 6},
    {u"PUSHBUTTON", true, false, 6}, {u"DEFPUSHBUTTON", true, false, 6}, {u"EDITTEXT", false, false, 5},
    {u"COMBOBOX", false, false, 5},  {u"LISTBOX", false, false, 5},      {u"SCROLLBAR", false, false, 5},
};

constexpr std::size_t unitsSeen = CScriptMarks::Count;

/// What the next units are; all behind the end of the statement are separators.
struct Look
{
    Look(const CScriptWords& words, std::size_t at)
    {
        const CScriptMarks::Seen seen = words.Marks().At(at);
        const std::size_t left = words.End() - at;
        const std::uint64_t within = left < unitsSeen ? (std::uint64_t{1} << left) - 1 : ~std::uint64_t{0};
        quotes = seen.quotes & within;
        commas = seen.commas & within;
        separators = seen.separators | ~within;
    }
    std::uint64_t quotes;
    std::uint64_t commas;
    std::uint64_t separators;
};

std::size_t First(std::uint64_t bits) { return static_cast<std::size_t>(std::countr_zero(bits)); }
std::uint64_t From(std::size_t place) { return ~std::uint64_t{0} << place; }
bool Has(std::uint64_t bits, std::size_t place) { return (bits >> place & 1) != 0; }

// Nearly every statement is written in one way, and then each of its parts is told by one look at the next
// units. These functions give false where something else is written, and what they found then means nothing.

// text ::= keyword blanks quoted ","      Nothing before the text separates fields or opens a span. \p at
// becomes the comma's place.
bool FindSimpleText(const CScriptWords& words, CResDialogControl& control, std::size_t& at)
{
    const std::size_t keywordEnd = words.At() - words.Begin();
    const Look head(words, words.Begin());
    const std::size_t open = First(head.quotes | head.commas);
    if (open >= unitsSeen || keywordEnd > open || First(~head.separators & From(keywordEnd)) != open)
        return false;
    const std::size_t begin = words.Begin() + open + 1;
    const Look inside(words, begin);
    const std::size_t close = First(inside.quotes);
    const bool isOdd = close >= unitsSeen - 1 || !Has(inside.commas, close + 1) ||
                       words.Text()[begin + close - 1] == u'\\' || (close != 0 && Has(inside.separators, 0));
    control.m_strText = {words.Text() + begin, close};
    at = begin + close + 1;
    return !isOdd;
}

// class ::= "," id "," blanks quoted     All of it in \p tail, which is seen from \p at on; the ID ends at \p
// idEnd. \p at becomes the place behind it.
bool FindSimpleClass(const CScriptWords& words, const Look& tail, std::size_t idEnd,
                     CResDialogControl& control, std::size_t& at)
{
    const std::size_t open = First(tail.quotes);
    if (open >= unitsSeen - 2 || First(~tail.separators & From(idEnd)) != open ||
        (tail.commas & ~From(open)) != (std::uint64_t{1} << idEnd | 1))
        return false;
    const std::size_t close = First(tail.quotes & From(open + 1));
    const bool isOdd = close >= unitsSeen - 1 || close == open + 1 || Has(tail.separators, open + 1) ||
                       Has(tail.quotes, close + 1) || words.Text()[at + close - 1] == u'\\';
    control.m_strType = {words.Text() + at + open + 1, close - open - 1};
    at += close + 1;
    return !isOdd;
}

// \p field becomes a place from where on there are as many fields before the style as \p fields says.
bool FindSimple(const CControlRule& rule, const CScriptWords& words, CResDialogControl& control,
                std::size_t& field, std::size_t& fields)
{
    std::size_t at = words.At();
    if (rule.hasText && !FindSimpleText(words, control, at))
        return false;
    const Look tail(words, at);
    const std::size_t first = First(~tail.separators);
    if (first >= unitsSeen)
        return false;
    const std::size_t last = First((tail.separators | tail.quotes) & From(first));
    if (last >= unitsSeen || Has(tail.quotes, last))
        return false;
    control.m_strID = {words.Text() + at + first, last - first};
    field = at;
    fields = rule.style - 1;
    if (rule.hasText && !rule.hasClass)
        return true;
    if (rule.hasClass)
    {
        fields = 0;
        return FindSimpleClass(words, tail, last, control, field);
    }
    field += last;
    const Look head(words, words.Begin());
    return Has(tail.commas, last) && words.Begin() + First(head.quotes | head.commas) == field;
}
} // namespace

const CControlRule& ControlRuleOf(ScriptKeyword keyword)
{
    return controlRules[static_cast<std::size_t>(keyword) - static_cast<std::size_t>(ScriptKeyword::Control)];
}

CScriptWords FindControlWords(const CControlRule& rule, const CScriptWords& words, CResDialogControl& control)
{
    control.m_strType = rule.keyword;
    std::size_t field = 0, fields = 0;
    if (!FindSimple(rule, words, control, field, fields))
    {
        CScriptWords next = words;
        control.m_strText = rule.hasText ? next.Next() : CResText();
        control.m_strID = next.Next();
        if (rule.hasClass)
            control.m_strType = next.Next();
        field = words.Begin();
        fields = rule.style;
    }
    CScriptWords settings = words.FieldsFrom(field);
    settings.Skip(fields);
    return settings;
}

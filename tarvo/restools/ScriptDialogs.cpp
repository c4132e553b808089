#include "tarvo/restools/ScriptControls.h"
#include "tarvo/restools/ScriptReader.h"

#include <algorithm>
#include <climits>
#include <iterator>
#include <utility>

namespace
{
constexpr CScriptKeywords headBeginnings(ScriptKeyword::Style, ScriptKeyword::ExStyle, ScriptKeyword::Caption,
                                         ScriptKeyword::Font, ScriptKeyword::Begin);
constexpr CScriptKeywords bodyBeginnings =
    CScriptKeywords(ScriptKeyword::End).With(ScriptKeyword::Control, ScriptKeyword::ScrollBar);

// The value of a text of digits alone, held at the largest int; 0 of every other.
int NumberOf(CResText text)
{
    long long value = 0;
    for (const char16_t c : text)
    {
        if (c < u'0' || c > u'9')
            return 0;
        value = std::min<long long>(value * 10 + (c - u'0'), INT_MAX);
    }
    return static_cast<int>(value);
}
} // namespace

// dialog ::= name (DIALOG | DIALOGEX) ... head BEGIN body END
void CScriptReader::ReadDialog(const CScriptLine& head, CResText type)
{
    CResDialog dialog;
    dialog.m_strName = head.first;
    dialog.m_strType = type;
    dialog.m_nLine = head.number;
    m_lines.Take();
    if (ReadDialogHead(dialog))
        ReadDialogBody(dialog);
    m_resources.m_dialogs.Append(std::move(dialog));
}

// head ::= { STYLE style | EXSTYLE style | CAPTION text | any other line } BEGIN
bool CScriptReader::ReadDialogHead(CResDialog& dialog)
{
    while (m_lines.Peek())
    {
        const ScriptKeyword keyword = m_lines.At().keyword;
        if (keyword == ScriptKeyword::Style)
            dialog.m_strStyle = ReadStyle();
        else if (keyword == ScriptKeyword::ExStyle)
            dialog.m_strExStyle = ReadStyle();
        else
        {
            if (keyword == ScriptKeyword::Caption)
                dialog.m_strCaption = CScriptWords(m_lines.At().words).Next();
            m_lines.Take();
            if (keyword == ScriptKeyword::Begin)
                return true;
        }
    }
    return false;
}

// style ::= (STYLE | EXSTYLE) expression, over several lines. Wherever "STYLE" stands a comma is put
// behind it, all spaces and breaks are taken out, and what stands between the first two commas is the value.
CResText CScriptReader::ReadStyle()
{
    constexpr std::u16string_view keyword = u"STYLE";
    std::u16string_view rest = m_lines.TakeStatement(headBeginnings).words.Line();
    std::u16string text;
    for (std::size_t at; (at = rest.find(keyword)) != std::u16string_view::npos;
         rest.remove_prefix(at + keyword.size()))
        text.append(rest.substr(0, at + keyword.size())).append(u",");
    text.append(rest);
    std::erase_if(text, [](char16_t c) { return c == u' ' || IsScriptBreak(c); });
    return Keep().Copy(ScriptWord(text, 1, WordSeparators::Comma));
}

// body ::= { control | any other line } END
void CScriptReader::ReadDialogBody(CResDialog& dialog)
{
    m_controls.clear();
    for (bool isOpen = true; isOpen && m_lines.Peek();)
    {
        const CScriptLine& line = m_lines.At();
        if (IsControl(line.keyword))
        {
            ReadControl();
            continue;
        }
        isOpen = line.keyword != ScriptKeyword::End;
        if (isOpen)
            Log(u"Strange dialog line: ", line.words.Line());
        m_lines.Take();
    }
    dialog.m_items.Assign(m_controls, Keep());
}

void CScriptReader::ReadControl()
{
    const CControlRule& rule = ControlRuleOf(m_lines.At().keyword);
    const CScriptLine& statement = m_lines.TakeStatement(bodyBeginnings);
    CResDialogControl& control = m_controls.emplace_back();
    CScriptWords fields = FindControlWords(rule, statement.words, control);
    control.m_strStyle = WithoutSpaces(fields.Next());
    if (rule.hasClass)
        fields.Skip(4); // place and size
    control.m_strExStyle = WithoutSpaces(fields.Next());
    control.m_strHelpID = WithoutSpaces(fields.Next());
    if (rule.hasClass)
        control.m_nNumber = NumberOf(control.m_strText);
    control.m_nLine = statement.number;
}

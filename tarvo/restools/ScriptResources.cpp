#include "tarvo/restools/ScriptReader.h"

#include "tarvo/text/Units.h"

#include <utility>

namespace
{
constexpr CScriptKeywords menuBeginnings(ScriptKeyword::MenuItem, ScriptKeyword::Popup, ScriptKeyword::Begin,
                                         ScriptKeyword::End);

// An empty literal keeps its two quotes: a translator must see that the text is there and empty.
CResText WithoutOuterQuotes(CResText text)
{
    if (text.size() <= 2)
        return text;
    if (text.back() == u'"')
        text.remove_suffix(1);
    if (text.front() == u'"')
        text.remove_prefix(1);
    return text;
}
} // namespace

// language ::= LANGUAGE word ...
void CScriptReader::ReadLanguage()
{
    CScriptWords words = m_lines.At().words;
    const CResText language = words.Next();
    Log(u"Find language: ", language);
    m_wanted = m_isWanted(language);
    m_lines.Take();
}

// A resource is told by the second word of its first line, a string table by the first. False, and
// nothing taken, for every other line.
bool CScriptReader::ReadResource()
{
    const CScriptLine head = m_lines.At();
    CScriptWords words = head.words;
    const CResText type = words.Next();
    if (type == u"MENU")
        ReadMenu(head);
    else if (type == u"TOOLBAR")
        ReadToolbar(head);
    // Without a third word, as in a block of design information, it is no dialog.
    else if (type == u"DIALOGEX" || (type == u"DIALOG" && !CScriptWords(words).Next().empty()))
        ReadDialog(head, type);
    else if (type == u"BITMAP")
        ReadSimple(m_resources.m_bitmaps, head, words);
    else if (type == u"PNG")
        ReadSimple(m_resources.m_pngs, head, words);
    else if (type == u"ICON")
        ReadSimple(m_resources.m_icons, head, words);
    else if (type == u"CURSOR")
        ReadSimple(m_resources.m_cursors, head, words);
    else if (head.keyword == ScriptKeyword::StringTable)
        ReadStringTable();
    else
        return false;
    return true;
}

// simple ::= name (BITMAP | PNG | ICON | CURSOR) file
void CScriptReader::ReadSimple(CResBaseclass<CResSimple>& list, const CScriptLine& head, CScriptWords words)
{
    list.Append({head.first, words.Next(), head.number});
    m_lines.Take();
}

// menu-item ::= MENUITEM SEPARATOR | MENUITEM text [","] id { "," option }
CResMenuItem CScriptReader::ReadMenuItem(CScriptWords words)
{
    CResMenuItem item;
    item.m_strText = words.Next();
    item.m_strID = words.Next();
    words.EndWordsAt(WordSeparators::Comma);
    std::u16string style;
    for (CResText option; words.Next(option);)
    {
        if (!style.empty())
            style += u'|';
        style += WithoutSpaces(option);
    }
    item.m_strStyle = style.empty() ? CResText() : Keep().Copy(style);
    return item;
}

// menu ::= name MENU ... { BEGIN | END | menu-item | POPUP text }, until an END has closed every BEGIN
void CScriptReader::ReadMenu(const CScriptLine& head)
{
    CResMenu menu;
    menu.m_strName = head.first;
    menu.m_nLine = head.number;
    unsigned separators = 0;
    unsigned popups = 0;
    m_lines.Take();
    for (long long depth = -1; m_lines.Peek();)
    {
        const ScriptKeyword keyword = m_lines.At().keyword;
        if (keyword == ScriptKeyword::MenuItem || keyword == ScriptKeyword::Popup)
        {
            const CScriptLine& statement = m_lines.TakeStatement(menuBeginnings);
            CResMenuItem item;
            if (keyword == ScriptKeyword::MenuItem)
                item = ReadMenuItem(statement.words);
            else
                item = {CScriptWords(statement.words).Next(), Numbered(u"POPUP", popups++), {}, 0};
            if (keyword == ScriptKeyword::MenuItem && item.m_strText == u"SEPARATOR")
                item = {{}, Numbered(u"SEPARATOR", separators++), {}, 0};
            item.m_nLine = statement.number;
            menu.m_items.Append(item);
            continue;
        }
        if (keyword == ScriptKeyword::Begin)
            ++depth;
        else if (keyword == ScriptKeyword::End)
            --depth;
        else
            Log(u"Unkown line in menu section: ", m_lines.At().words.Line());
        m_lines.Take();
        if (keyword == ScriptKeyword::End && depth < 0)
            break;
    }
    m_resources.m_menus.Append(std::move(menu));
}

// toolbar ::= name TOOLBAR ... BEGIN { BUTTON id | SEPARATOR } END
void CScriptReader::ReadToolbar(const CScriptLine& head)
{
    CResToolbar toolbar;
    toolbar.m_strName = head.first;
    toolbar.m_nLine = head.number;
    unsigned separators = 0;
    m_lines.Take();
    for (bool isOpen = SkipToBegin(); isOpen && m_lines.Peek(); m_lines.Take())
    {
        const CScriptLine& line = m_lines.At();
        if (line.keyword == ScriptKeyword::Button)
            toolbar.m_items.Append({u"BUTTON", CScriptWords(line.words).Next(), line.number});
        else if (line.keyword == ScriptKeyword::Separator)
            toolbar.m_items.Append({u"SEPARATOR", Numbered(u"SEPARATOR", separators++), line.number});
        else if (line.keyword == ScriptKeyword::End)
            isOpen = false;
        else
            Log(u"Unkown toolbar line: ", line.words.Line());
    }
    m_resources.m_toolbars.Append(std::move(toolbar));
}

// string-table ::= STRINGTABLE ... BEGIN { id [","] rest-of-line | id line-break line } END
// The text is what stands from the first quote on, and pairs of quotes in it stay pairs.
void CScriptReader::ReadStringTable()
{
    m_lines.Take();
    bool isOpen = SkipToBegin();
    while (isOpen && m_lines.Peek())
    {
        const CScriptLine& line = m_lines.At();
        isOpen = line.keyword != ScriptKeyword::End;
        CResString string = {line.first, line.words.FromQuote(), line.number};
        const bool isAlone = line.words.IsAtEnd();
        m_lines.Take();
        if (!isOpen)
            break;
        if (isAlone)
            string.m_strText = ReadAloneText();
        string.m_strText = WithoutOuterQuotes(string.m_strText);
        m_resources.m_strings.Append(string);
    }
}

// The text of an identifier that stands alone is the next line, unless that ends the table.
CResText CScriptReader::ReadAloneText()
{
    if (!m_lines.Peek() || m_lines.At().keyword == ScriptKeyword::End)
        return {};
    const CResText text = units::trim(m_lines.At().words.Line());
    m_lines.Take();
    return text;
}

#include "script.h"

#include "platform/codepage.h"
#include "tarvo/text/Units.h"

namespace
{
std::string Quoted(CResText text) { return '"' + Utf8(text) + '"'; }
std::string Bracketed(CResText text) { return '[' + Utf8(text) + ']'; }

std::string Item(const CResMenuItem& item)
{
    return Quoted(item.m_strText) + ' ' + Utf8(item.m_strID) + ' ' + Bracketed(item.m_strStyle);
}

std::string Item(const CResToolbarItem& item) { return Utf8(item.m_strKeyword) + ' ' + Utf8(item.m_strID); }

std::string Item(const CResDialogControl& item)
{
    return Utf8(item.m_strType) + ' ' + Utf8(item.m_strID) + ' ' + Quoted(item.m_strText) + ' ' +
           Bracketed(item.m_strStyle) + ' ' + Bracketed(item.m_strExStyle) + ' ' +
           Bracketed(item.m_strHelpID) + ' ' + std::to_string(item.m_nNumber);
}

template <class List>
std::string Items(const List& items)
{
    std::string text = "{";
    for (const auto& item : items)
        text += (text.size() > 1 ? "; " : " ") + Item(item);
    return text + " }\n";
}

std::string Files(const char* kind, const CResBaseclass<CResSimple>& list)
{
    std::string text;
    for (const CResSimple& file : list)
        text += kind + (' ' + Utf8(file.m_strName)) + ' ' + Quoted(file.m_strFile) + '\n';
    return text;
}
} // namespace

std::string Marked(std::string_view text) { return "\xEF\xBB\xBF" + std::string(text); }

Script ReadScript(std::string_view text, const wchar_t* language)
{
    Script script;
    CString log;
    CStringArray languages;
    script.isRead = script.resources.ReadMemory(Marked(text), log, language, languages);
    log.Replace(L"\r\n", L"\n");
    script.log = Utf8(log);
    for (INT_PTR i = 0; i < languages.GetSize(); ++i)
        script.languages.push_back(Utf8(languages[i]));
    return script;
}

std::string Utf8(std::u16string_view text)
{
    std::string bytes(platform::codepage::encoded_bound(text.size()), '\0');
    bytes.resize(platform::codepage::encode(platform::codepage::utf8, text, bytes.data()).value_or(0));
    return bytes;
}

std::string Utf8(const CString& text)
{
    return *platform::codepage::encode(
        platform::codepage::utf8,
        std::wstring_view(text.GetString(), static_cast<std::size_t>(text.GetLength())));
}

std::u16string Utf16(std::string_view text)
{
    const auto wide = platform::codepage::decode(platform::codepage::utf8, text);
    return {wide->begin(), wide->end()};
}

std::string Dump(const CResources& resources)
{
    std::string text;
    for (const CResMenu& menu : resources.Menus())
        text += "menu " + Utf8(menu.m_strName) + ' ' + Items(menu.m_items);
    for (const CResToolbar& toolbar : resources.Toolbars())
        text += "toolbar " + Utf8(toolbar.m_strName) + ' ' + Items(toolbar.m_items);
    for (const CResDialog& dialog : resources.Dialogs())
        text += Utf8(dialog.m_strType) + ' ' + Utf8(dialog.m_strName) + ' ' + Bracketed(dialog.m_strStyle) +
                ' ' + Bracketed(dialog.m_strExStyle) + ' ' + Quoted(dialog.m_strCaption) + ' ' +
                Items(dialog.m_items);
    for (const CResString& string : resources.Strings())
        text += "string " + Utf8(string.m_strID) + ' ' + Quoted(string.m_strText) + '\n';
    return text + Files("bitmap", resources.Bitmaps()) + Files("png", resources.PNGs()) +
           Files("icon", resources.Icons()) + Files("cursor", resources.Cursors());
}

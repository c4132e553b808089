#include "cli/rc_script.h"
#include "cli/text.h"

#include <initializer_list>

namespace cli
{
namespace
{
struct Field
{
    std::string_view key;
    CResText value;
};

void add_fields(JsonWriter& json, std::initializer_list<Field> fields)
{
    for (const Field& field : fields)
        add_text(json.key(field.key), field.value);
}

void add_files(JsonWriter& json, std::string_view key, const CResBaseclass<CResSimple>& files)
{
    json.key(key).begin_array();
    for (const CResSimple& file : files)
    {
        json.begin_object();
        add_fields(json, {{"name", file.m_strName}, {"file", file.m_strFile}});
        json.end_object();
    }
    json.end_array();
}

void add_menus(JsonWriter& json, const CResources& resources)
{
    json.key("menus").begin_array();
    for (const CResMenu& menu : resources.Menus())
    {
        add_text(json.begin_object().key("name"), menu.m_strName).key("items").begin_array();
        for (const CResMenuItem& item : menu.m_items)
        {
            json.begin_object();
            add_fields(json, {{"text", item.m_strText}, {"id", item.m_strID}, {"style", item.m_strStyle}});
            json.end_object();
        }
        json.end_array().end_object();
    }
    json.end_array();
}

void add_toolbars(JsonWriter& json, const CResources& resources)
{
    json.key("toolbars").begin_array();
    for (const CResToolbar& toolbar : resources.Toolbars())
    {
        add_text(json.begin_object().key("name"), toolbar.m_strName).key("items").begin_array();
        for (const CResToolbarItem& item : toolbar.m_items)
        {
            json.begin_object();
            add_fields(json, {{"keyword", item.m_strKeyword}, {"id", item.m_strID}});
            json.end_object();
        }
        json.end_array().end_object();
    }
    json.end_array();
}

void add_dialogs(JsonWriter& json, const CResources& resources)
{
    json.key("dialogs").begin_array();
    for (const CResDialog& dialog : resources.Dialogs())
    {
        json.begin_object();
        add_fields(json, {{"name", dialog.m_strName},
                          {"type", dialog.m_strType},
                          {"style", dialog.m_strStyle},
                          {"exstyle", dialog.m_strExStyle},
                          {"caption", dialog.m_strCaption}});
        json.key("controls").begin_array();
        for (const CResDialogControl& control : dialog.m_items)
        {
            json.begin_object();
            add_fields(json, {{"type", control.m_strType},
                              {"id", control.m_strID},
                              {"text", control.m_strText},
                              {"style", control.m_strStyle},
                              {"exstyle", control.m_strExStyle},
                              {"help_id", control.m_strHelpID}});
            json.key("number").number(control.m_nNumber).end_object();
        }
        json.end_array().end_object();
    }
    json.end_array();
}

void add_line(std::string& text, std::initializer_list<CResText> columns)
{
    bool first = true;
    for (const CResText column : columns)
    {
        if (!first)
            text += '\t';
        first = false;
        text += to_utf8(column);
    }
    text += '\n';
}
} // namespace

std::string script_json(const Script& script)
{
    const CResources& resources = script.resources;
    JsonWriter json;
    json.begin_object().key("read").boolean(true).key("log").text(view(script.log));
    json.key("languages").begin_array();
    for (const CString& language : script.languages)
        json.text(view(language));
    json.end_array();
    add_menus(json, resources);
    add_toolbars(json, resources);
    add_dialogs(json, resources);
    json.key("strings").begin_array();
    for (const CResString& string : resources.Strings())
    {
        json.begin_object();
        add_fields(json, {{"id", string.m_strID}, {"text", string.m_strText}});
        json.end_object();
    }
    json.end_array();
    add_files(json, "bitmaps", resources.Bitmaps());
    add_files(json, "pngs", resources.PNGs());
    add_files(json, "icons", resources.Icons());
    add_files(json, "cursors", resources.Cursors());
    return json.end_object().take();
}

std::string script_text(const Script& script)
{
    const CResources& all = script.resources;
    std::string text;
    for (const CString& language : script.languages)
        text += "language\t" + to_utf8(view(language)) + '\n';
    for (const CResMenu& menu : all.Menus())
        for (const CResMenuItem& item : menu.m_items)
            add_line(text, {u"menu", menu.m_strName, item.m_strID, item.m_strText, item.m_strStyle});
    for (const CResToolbar& toolbar : all.Toolbars())
        for (const CResToolbarItem& item : toolbar.m_items)
            add_line(text, {u"toolbar", toolbar.m_strName, item.m_strID, item.m_strKeyword});
    for (const CResDialog& dialog : all.Dialogs())
    {
        add_line(text, {u"dialog", dialog.m_strName, dialog.m_strType, dialog.m_strCaption, dialog.m_strStyle,
                        dialog.m_strExStyle});
        for (const CResDialogControl& control : dialog.m_items)
            add_line(text,
                     {u"control", dialog.m_strName, control.m_strID, control.m_strType, control.m_strText,
                      control.m_strStyle, control.m_strExStyle, control.m_strHelpID});
    }
    for (const CResString& string : all.Strings())
        add_line(text, {u"string", string.m_strID, string.m_strText});
    for (const auto& [kind, files] : {std::pair{CResText(u"bitmap"), &all.Bitmaps()},
                                      {u"png", &all.PNGs()},
                                      {u"icon", &all.Icons()},
                                      {u"cursor", &all.Cursors()}})
        for (const CResSimple& file : *files)
            add_line(text, {kind, file.m_strName, file.m_strFile});
    return text;
}
} // namespace cli

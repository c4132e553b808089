#pragma once

#include "platform/letters.h"
#include "tarvo/lang/ResourceHeader.h"

#include <map>
#include <string>
#include <vector>

/// What the memory form of a resource header has to give, one unit at a time and without any shortcut.
class CHeaderModel
{
public:
    using Table = std::map<std::u16string, std::vector<std::u16string>>;

    explicit CHeaderModel(std::u16string_view text)
    {
        m_tables[CResourceHeader::All] = {{u"1", {u"IDOK"}}, {u"2", {u"IDCANCEL"}}, {u"8", {u"IDCLOSE"}}};
        while (!text.empty())
        {
            const std::vector<std::u16string> words = Scan(text);
            if (words.size() == 3)
                Take(words[1], words[2], words[0]);
            text.remove_prefix(std::min(words.size(), text.size()));
            text.remove_prefix(std::min(text.find(u'#'), text.size()));
        }
    }

    /// The same table as \p header tells it, for a comparison.
    static Table Told(const CResourceHeader& header, CResourceHeader::Kind kind)
    {
        Table table;
        for (const CResourceHeader::Entry& entry : header.GetTable(kind))
            for (const CString& name : entry.arrNames)
                table[Units(entry.strValue)].push_back(Units(name));
        return table;
    }
    const Table& Get(CResourceHeader::Kind kind) { return m_tables[kind]; }

private:
    static std::u16string Units(const CString& text)
    {
        return {text.GetString(), text.GetString() + text.GetLength()};
    }
    static bool IsBlank(char16_t unit) { return platform::letters::is_space(static_cast<wchar_t>(unit)); }

    static std::vector<std::u16string> Scan(std::u16string_view text)
    {
        std::vector<std::u16string> words;
        std::size_t at = 0;
        for (; words.size() < 3; words.back().resize(std::min(words.back().size(), std::size_t{1023})))
        {
            while (at < text.size() && IsBlank(text[at]))
                ++at;
            if (at == text.size() || text[at] == 0)
                break;
            words.emplace_back();
            for (; at < text.size() && text[at] != 0 && !IsBlank(text[at]); ++at)
                words.back() += text[at];
        }
        return words;
    }

    void Take(const std::u16string& name, const std::u16string& value, const std::u16string& directive)
    {
        if (!directive.starts_with(u"#define") || name.starts_with(u'_'))
            return;
        const struct
        {
            const char16_t* text;
            CResourceHeader::Kind kind;
        } marks[] = {{u"IDC_", CResourceHeader::Control},
                     {u"IDD_", CResourceHeader::Dialog},
                     {u"IDR_", CResourceHeader::Resource},
                     {u"ID_", CResourceHeader::Menu},
                     {u"IDM_", CResourceHeader::Menu}};
        for (const auto& mark : marks)
            if (name.find(mark.text) != std::u16string::npos)
            {
                m_tables[CResourceHeader::All][value].push_back(name);
                m_tables[mark.kind][value].push_back(name);
                return;
            }
    }

    std::map<CResourceHeader::Kind, Table> m_tables;
};

#include "demo/real/ScriptTexts.h"

#include "tarvo/restools/Resources.h"

#include <map>
#include <sstream>

namespace
{
/// The symbols of a resource header and what they stand for.
class Symbols
{
public:
    explicit Symbols(const std::wstring& header)
    {
        std::wistringstream lines(header);
        for (std::wstring line; std::getline(lines, line);)
        {
            std::wistringstream words(line);
            std::wstring define, symbol;
            int number = 0;
            if (words >> define >> symbol >> number && define == L"#define" &&
                m_numbers.emplace(symbol, number).second)
                ++m_uses[number];
        }
    }

    /// 0 when it is no symbol of the header.
    int number(const std::wstring& symbol) const
    {
        const auto found = m_numbers.find(symbol);
        return found == m_numbers.end() ? 0 : found->second;
    }
    bool has_own_number(const std::wstring& symbol) const
    {
        const auto found = m_numbers.find(symbol);
        return found != m_numbers.end() && m_uses.at(found->second) == 1;
    }

private:
    std::map<std::wstring, int> m_numbers;
    std::map<int, int> m_uses;
};

std::wstring wide(CResText text) { return {text.begin(), text.end()}; }

/// What the resource compiler makes of a text.
std::wstring compiled(CResText text)
{
    std::wstring result;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        const char16_t next = i + 1 < text.size() ? text[i + 1] : u'\0';
        const bool escape =
            text[i] == u'\\' && std::u16string_view(u"nrt\"\\").find(next) != std::u16string_view::npos;
        const bool quotes = text[i] == u'"' && next == u'"';
        if (!escape && !quotes)
        {
            result += static_cast<wchar_t>(text[i]);
            continue;
        }
        result += static_cast<wchar_t>(next == u'n'   ? u'\n'
                                       : next == u'r' ? u'\r'
                                       : next == u't' ? u'\t'
                                                      : next);
        ++i;
    }
    return result;
}

ScriptDialog dialog_of(const CResDialog& original, const CResDialog& translated, const Symbols& symbols)
{
    ScriptDialog dialog{wide(original.m_strName),
                        symbols.number(wide(original.m_strName)),
                        compiled(translated.m_strCaption),
                        {}};
    for (const CResDialogControl& control : original.m_items)
    {
        const std::wstring symbol = wide(control.m_strID);
        const int partner = translated.m_items.Find(control.m_strID);
        const bool alone = original.m_items.Find(control.m_strID, 1) < 0;
        if (partner < 0 || !alone || !symbols.has_own_number(symbol))
            continue;
        const CResText text = translated.m_items.GetAt(static_cast<std::size_t>(partner)).m_strText;
        if (!text.empty())
            dialog.controls.push_back({symbol, symbols.number(symbol), compiled(text)});
    }
    return dialog;
}
} // namespace

std::vector<ScriptDialog> dialogs_of(const CResources& original, const CResources& translated,
                                     const std::wstring& header)
{
    const Symbols symbols(header);
    std::vector<ScriptDialog> dialogs;
    for (const CResDialog& dialog : original.Dialogs())
    {
        const int partner = translated.Dialogs().Find(dialog.m_strName);
        if (partner >= 0)
            dialogs.push_back(
                dialog_of(dialog, translated.Dialogs().GetAt(static_cast<std::size_t>(partner)), symbols));
    }
    return dialogs;
}

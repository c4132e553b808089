#include "cli/rc_comparison.h"

#include <map>

namespace cli
{
namespace
{
constexpr std::string_view head =
    "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
    "<meta name=\"viewport\" content=\"width=device-width\">\n<title>Resource scripts "
    "compared</title>\n<style>\n"
    "body{font:14px/1.4 system-ui,sans-serif;margin:2em;color:#222;background:#fff}\n"
    "table{border-collapse:collapse;width:100%}\n"
    "td,th{border:1px solid #ccc;padding:2px 8px;text-align:left;vertical-align:top;white-space:pre-wrap}\n"
    "th{background:#f4f4f4}\nsummary{cursor:pointer;padding:4px 0;font-weight:600}\n"
    "tr.bad{background:#fff3f0}\n.bad>summary,.finding{color:#a8071a}\n.finding{display:block}\n.finding "
    "code{color:#777}\n"
    "#only:checked~main .good{display:none}\n</style>\n</head>\n<body>\n"
    "<h1>Resource scripts compared</h1>\n"
    "<input type=\"checkbox\" id=\"only\"><label for=\"only\"> only differences</label>\n<main>\n";

using Notes = std::multimap<std::pair<CResText, std::size_t>, const CResFinding*>; ///< by resource and line 1

/// The page of one comparison while it is written.
class Page
{
public:
    explicit Page(const Comparison& comparison) : m_comparison(comparison)
    {
        for (const CResFinding& finding : comparison.findings)
            m_notes.emplace(std::pair(finding.m_strResource, finding.m_nLine1), &finding);
    }

    std::string text()
    {
        const CResources& one = m_comparison.one.resources;
        const CResources& two = m_comparison.two.resources;
        m_text = "<h2>" + marked_up(m_comparison.name) + "</h2>\n<p>" + marked_up(m_comparison.file1) +
                 " and " + marked_up(m_comparison.file2) + ": " +
                 std::to_string(m_comparison.findings.size()) + " findings</p>\n";
        if (const std::string general = notes({}, 0); !general.empty())
            m_text += "<p>" + general + "</p>\n";
        resources("Dialog", one.Dialogs(), two.Dialogs());
        resources("Menu", one.Menus(), two.Menus());
        resources("Toolbar", one.Toolbars(), two.Toolbars());
        strings(one.Strings(), two.Strings());
        files("Bitmap", one.Bitmaps());
        files("Icon", one.Icons());
        files("Cursor", one.Cursors());
        return m_text;
    }

private:
    static const CResText& kind(const CResDialogControl& item) { return item.m_strType; }
    static CResText kind(const CResMenuItem& item) { return item.m_strStyle; }
    static const CResText& kind(const CResToolbarItem& item) { return item.m_strKeyword; }
    static const CResText& words(const CResDialogControl& item) { return item.m_strText; }
    static const CResText& words(const CResMenuItem& item) { return item.m_strText; }
    static CResText words(const CResToolbarItem&) { return {}; }
    static CResText title(const CResDialog& dialog) { return dialog.m_strCaption; }
    template <class Item>
    static CResText title(const CResNamed<Item>&)
    {
        return {};
    }

    std::string notes(CResText resource, std::size_t line) const
    {
        std::string text;
        const auto [first, last] = m_notes.equal_range(std::pair(resource, line));
        for (auto at = first; at != last; ++at)
            text += "<span class=\"finding\">" + marked_up(to_utf8(CResText(at->second->m_strText))) +
                    " <code>" + ResourceRule(at->second->m_rule).m_pszName + "</code></span>";
        return text;
    }

    void row(CResText id, CResText what, CResText text1, CResText text2, const std::string& found)
    {
        m_text += found.empty() ? "<tr class=\"good\">" : "<tr class=\"bad\">";
        for (const CResText cell : {id, what, text1, text2})
            m_text += "<td>" + marked_up(to_utf8(cell)) + "</td>";
        m_text += "<td>" + found + "</td></tr>\n";
    }

    void open(const char* what, CResText name, bool is_bad)
    {
        m_text += std::string("<details class=\"") + (is_bad ? "bad\" open" : "good\"") + "><summary>" +
                  what + ' ' + marked_up(to_utf8(name)) +
                  "</summary>\n<table><tr><th>ID</th><th>Type</th><th>File 1</th>"
                  "<th>File 2</th><th>Findings</th></tr>\n";
    }
    void close() { m_text += "</table></details>\n"; }

    template <class T>
    void resources(const char* what, const CResBaseclass<T>& list1, const CResBaseclass<T>& list2)
    {
        for (const T& one : list1)
        {
            const int partner = list2.Find(one.m_strName);
            const T* const two = partner < 0 ? nullptr : &list2.GetAt(static_cast<std::size_t>(partner));
            bool is_bad = !notes(one.m_strName, one.m_nLine).empty();
            for (const auto& item : one.m_items)
                is_bad = is_bad || m_notes.contains(std::pair(one.m_strName, item.m_nLine));
            open(what, one.m_strName, is_bad);
            row(one.m_strName, {}, title(one), two == nullptr ? CResText() : title(*two),
                notes(one.m_strName, one.m_nLine));
            for (std::size_t i = 0; i < one.m_items.GetCount(); ++i)
                item_row(one, i, two);
            close();
        }
    }

    template <class T>
    void item_row(const T& one, std::size_t position, const T* two)
    {
        const auto& item = one.m_items.GetAt(position);
        const int partner =
            two == nullptr ? -1 : two->m_items.Find(item.m_strID, one.m_items.RankOf(position));
        row(item.m_strID, kind(item), words(item),
            partner < 0 ? CResText() : words(two->m_items.GetAt(static_cast<std::size_t>(partner))),
            notes(one.m_strName, item.m_nLine));
    }

    void strings(const CResBaseclass<CResString>& list1, const CResBaseclass<CResString>& list2)
    {
        if (list1.GetCount() == 0)
            return;
        bool is_bad = false;
        for (const CResString& one : list1)
            is_bad = is_bad || m_notes.contains(std::pair(one.m_strID, one.m_nLine));
        open("Strings", {}, is_bad);
        for (const CResString& one : list1)
        {
            const int partner = list2.Find(one.m_strID);
            row(one.m_strID, {}, one.m_strText,
                partner < 0 ? CResText() : list2.GetAt(static_cast<std::size_t>(partner)).m_strText,
                notes(one.m_strID, one.m_nLine));
        }
        close();
    }

    void files(const char* what, const CResBaseclass<CResSimple>& list)
    {
        for (const CResSimple& one : list)
            if (const std::string found = notes(one.m_strName, one.m_nLine); !found.empty())
            {
                open(what, one.m_strName, true);
                row(one.m_strName, {}, one.m_strFile, {}, found);
                close();
            }
    }

    const Comparison& m_comparison;
    Notes m_notes;
    std::string m_text;
};
} // namespace

std::string html_of(std::span<const Comparison> comparisons)
{
    std::string text(head);
    for (const Comparison& comparison : comparisons)
        if (comparison.is_missing)
            text += "<h2>" + marked_up(comparison.name) + "</h2>\n<p class=\"finding\">" +
                    marked_up(finding_rows(comparison)[0].text) + "</p>\n";
        else
            text += Page(comparison).text();
    return text + "</main>\n</body>\n</html>\n";
}
} // namespace cli

#include "tarvo/restools/CompareResources.h"

#include "tarvo/restools/ResourcePairs.h"
#include "tarvo/restools/TextOut.h"

#include <algorithm>
#include <string>

namespace
{
std::u16string Number(std::size_t value)
{
    const std::string digits = std::to_string(value);
    return {digits.begin(), digits.end()};
}

/// The words and rules of one kind of resource that has items.
struct Kind
{
    CResText name;
    CResText disorder;
    ResRule count;
    ResRule missing;
    ResRule itemCount;
    ResRule order;
};

constexpr Kind menuKind = {u"menu",
                           u"\t\tDifferent menu structure. Item ",
                           ResRule::MenuCount,
                           ResRule::MenuMissing,
                           ResRule::MenuItemCount,
                           ResRule::MenuStructure};
constexpr Kind toolbarKind = {u"toolbar",
                              u"\t\tDifferent toolbar structure. Item ",
                              ResRule::ToolbarCount,
                              ResRule::ToolbarMissing,
                              ResRule::ToolbarItemCount,
                              ResRule::ToolbarStructure};
constexpr Kind dialogKind = {u"dialog",
                             u"\t\tDifferent tab order. Item ",
                             ResRule::DialogCount,
                             ResRule::DialogMissing,
                             ResRule::ControlCount,
                             ResRule::TabOrder};

/// One comparison while it runs.
class Comparison
{
public:
    Comparison(CResReport& report, StringCheck mode) : m_report(report), m_mode(mode) {}

    // Menus, toolbars, dialogs: the counts, then each resource of file 1 with its partner.
    template <class T>
    void Resources(const Kind& kind, const CResBaseclass<T>& list1, const CResBaseclass<T>& list2)
    {
        m_report.Line({u"Comparing ", kind.name, u"s:"});
        CompareCounts(kind, list1.GetCount(), list2.GetCount());
        for (const T& one : list1)
            if (const T* const two = Partner(list2, one.m_strName))
            {
                m_report.Line({u"\tComparing ", kind.name, u" resource: ", one.m_strName});
                Compare(one, *two);
            }
            else
                m_report.Finding(
                    kind.missing, {one.m_strName, {}, one.m_nLine, 0},
                    {u"\tCouldn't find ", kind.name, u" resource: ", one.m_strName, u" in file 2"});
        m_report.Line({});
    }

    void Strings(const CResBaseclass<CResString>& list1, const CResBaseclass<CResString>& list2)
    {
        m_report.Line({u"Comparing strings:"});
        const CResPairs pairs(list1, list2);
        for (std::size_t i = 0; i < list1.GetCount(); ++i)
        {
            const CResString& one = list1.GetAt(i);
            if (const CResString* const two = pairs.FirstOf(i))
                CheckText(ResRule::StringText, {one.m_strID, {}, one.m_nLine, two->m_nLine},
                          u"\tString error in ", one.m_strID, one.m_strText, two->m_strText);
            else
                m_report.Finding(ResRule::StringMissing, {one.m_strID, {}, one.m_nLine, 0},
                                 {u"\tCouldn't find string: ", one.m_strID, u" in file 2"});
        }
        m_report.Line({});
    }

    // Bitmaps, icons, cursors: presence alone. A translation may well have pictures of its own.
    void Files(CResText kind, ResRule rule, const CResBaseclass<CResSimple>& list1,
               const CResBaseclass<CResSimple>& list2)
    {
        m_report.Line({u"Comparing ", kind, u"s:"});
        for (const CResSimple& one : list1)
            if (Partner(list2, one.m_strName) == nullptr)
                m_report.Finding(rule, {one.m_strName, {}, one.m_nLine, 0},
                                 {u"\tCouldn't find ", kind, u": ", one.m_strName, u" in file 2"});
    }

private:
    template <class T>
    static const T* Partner(const CResBaseclass<T>& list, CResText key)
    {
        const int position = list.Find(key);
        return position < 0 ? nullptr : &list.GetAt(static_cast<std::size_t>(position));
    }

    void CompareCounts(const Kind& kind, std::size_t count1, std::size_t count2)
    {
        if (count1 != count2)
            m_report.Finding(kind.count, {},
                             {u"Different number of ", kind.name, u"s, ", Number(count1), u" ", kind.name,
                              u"s in file 1, ", Number(count2), u" ", kind.name, u"s in file 2."});
    }

    void CheckText(ResRule rule, const CResPlace& place, CResText prefix, CResText name, CResText text1,
                   CResText text2)
    {
        const std::u16string problem = CheckString(text1, text2, m_mode);
        if (!problem.empty())
            m_report.Finding(rule, place, {prefix, name, u": ", problem});
    }

    void Compare(const CResMenu& menu1, const CResMenu& menu2)
    {
        const CResPairs pairs(menu1.m_items, menu2.m_items);
        for (std::size_t i = 0; i < menu1.m_items.GetCount(); ++i)
            CompareMenuItem(menu1, i, menu2, pairs);
        CompareOrder(menuKind, menu1, menu2, pairs);
    }

    void CompareMenuItem(const CResMenu& menu1, std::size_t position, const CResMenu& menu2,
                         const CResPairs<CResMenuItem>& pairs)
    {
        const CResMenuItem& one = menu1.m_items.GetAt(position);
        CResPlace place{menu1.m_strName, one.m_strID, one.m_nLine, menu2.m_nLine};
        if (position >= menu2.m_items.GetCount())
        {
            m_report.Finding(ResRule::MenuItemMissing, place, {u"\t\tMissing menu item in file 2"});
            return;
        }
        const CResMenuItem* const two = pairs.PartnerOf(position);
        if (two == nullptr)
        {
            m_report.Finding(ResRule::MenuItemMissing, place,
                             {u"\t\tMissing menu item ID: ", one.m_strID, u" in file 2."});
            return;
        }
        place.line2 = two->m_nLine;
        if (!units::equal(one.m_strStyle, two->m_strStyle))
            m_report.Finding(ResRule::MenuItemStyle, place,
                             {u"\t\tDifferent style in ID: ", one.m_strID, u" (1: ", one.m_strStyle, u", 2: ",
                              two->m_strStyle, u")"});
        CheckText(ResRule::MenuItemText, place, u"\t\tString error in ", one.m_strID, one.m_strText,
                  two->m_strText);
    }

    void Compare(const CResToolbar& toolbar1, const CResToolbar& toolbar2)
    {
        for (const CResToolbarItem& one : toolbar1.m_items)
            if (Partner(toolbar2.m_items, one.m_strID) == nullptr)
                m_report.Finding(ResRule::ToolbarItemMissing,
                                 {toolbar1.m_strName, one.m_strID, one.m_nLine, toolbar2.m_nLine},
                                 {u"\t\tCouldn't find ID: ", one.m_strID});
        CompareOrder(toolbarKind, toolbar1, toolbar2, CResPairs(toolbar1.m_items, toolbar2.m_items));
    }

    void Compare(const CResDialog& dialog1, const CResDialog& dialog2)
    {
        const CResPlace whole{dialog1.m_strName, {}, dialog1.m_nLine, dialog2.m_nLine};
        CompareHead(ResRule::DialogType, whole, u"m_type", dialog1.m_strType, dialog2.m_strType);
        CompareHead(ResRule::DialogStyle, whole, u"style", dialog1.m_strStyle, dialog2.m_strStyle);
        CompareHead(ResRule::DialogExStyle, whole, u"exstyle", dialog1.m_strExStyle, dialog2.m_strExStyle);
        CheckText(ResRule::DialogCaption, whole, u"\tString error in ", u"caption", dialog1.m_strCaption,
                  dialog2.m_strCaption);
        const CResPairs pairs(dialog1.m_items, dialog2.m_items);
        for (std::size_t i = 0; i < dialog1.m_items.GetCount(); ++i)
        {
            const CResDialogControl& one = dialog1.m_items.GetAt(i);
            CResPlace place{dialog1.m_strName, one.m_strID, one.m_nLine, dialog2.m_nLine};
            if (const auto* two = pairs.PartnerOf(i))
                CompareControls(place, one, *two);
            else
                m_report.Finding(ResRule::ControlMissing, place,
                                 {u"\t\tCouldn't find control ID: ", one.m_strID});
        }
        CompareOrder(dialogKind, dialog1, dialog2, pairs);
    }

    void CompareHead(ResRule rule, const CResPlace& place, CResText what, CResText value1, CResText value2)
    {
        if (!units::equal(value1, value2))
            m_report.Finding(rule, place,
                             {u"\t\tDialog ", what, u" doesn't match (", value1, u", ", value2, u")"});
    }

    void CompareControls(CResPlace place, const CResDialogControl& one, const CResDialogControl& two)
    {
        constexpr CResText style = u"Different style settings";
        place.line2 = two.m_nLine;
        CompareSetting(ResRule::ControlType, place, u"Different types", one.m_strType, two.m_strType);
        CompareSetting(ResRule::ControlStyle, place, style, one.m_strStyle, two.m_strStyle);
        CompareSetting(ResRule::ControlExStyle, place, style, one.m_strExStyle, two.m_strExStyle);
        CompareSetting(ResRule::ControlHelpID, place, u"Different help ID setting", one.m_strHelpID,
                       two.m_strHelpID);
        CheckText(ResRule::ControlText, place, u"\t\tString error in ", one.m_strID, one.m_strText,
                  two.m_strText);
    }

    void CompareSetting(ResRule rule, const CResPlace& place, CResText what, CResText value1, CResText value2)
    {
        if (!units::equal(value1, value2))
            m_report.Finding(rule, place,
                             {u"\t\t", what, u" on control ID: ", place.item, u" (1: '", value1, u"', 2: '",
                              value2, u"')"});
    }

    // How many items there are, and which one stands where.
    template <class Item>
    void CompareOrder(const Kind& kind, const CResNamed<Item>& one, const CResNamed<Item>& two,
                      const CResPairs<Item>& pairs)
    {
        const std::size_t count1 = one.m_items.GetCount();
        const std::size_t count2 = two.m_items.GetCount();
        if (count1 != count2)
            m_report.Finding(
                kind.itemCount, {one.m_strName, {}, one.m_nLine, two.m_nLine},
                {u"\t\tDifferent items count (", Number(count1), u" in 1, ", Number(count2), u" in 2)"});
        for (std::size_t i = pairs.GetSame(); i < std::min(count1, count2); ++i)
        {
            const Item& item1 = one.m_items.GetAt(i);
            const Item& item2 = two.m_items.GetAt(i);
            if (!units::equal(item1.m_strID, item2.m_strID))
                m_report.Finding(kind.order, {one.m_strName, item1.m_strID, item1.m_nLine, item2.m_nLine},
                                 {kind.disorder, Number(i + 1), u" is ", item1.m_strID, u" in 1, and ",
                                  item2.m_strID, u" in 2"});
        }
    }

    CResReport& m_report;
    StringCheck m_mode;
};
} // namespace

void CompareResources(const CResources& resources1, const CResources& resources2, CString& strReport,
                      StringCheck mode, std::vector<CResFinding>* pFindings)
{
    CResReport report(pFindings);
    Comparison comparison(report, mode);
    comparison.Resources(menuKind, resources1.Menus(), resources2.Menus());
    comparison.Resources(toolbarKind, resources1.Toolbars(), resources2.Toolbars());
    comparison.Resources(dialogKind, resources1.Dialogs(), resources2.Dialogs());
    comparison.Strings(resources1.Strings(), resources2.Strings());
    comparison.Files(u"bitmap", ResRule::BitmapMissing, resources1.Bitmaps(), resources2.Bitmaps());
    comparison.Files(u"icon", ResRule::IconMissing, resources1.Icons(), resources2.Icons());
    comparison.Files(u"cursor", ResRule::CursorMissing, resources1.Cursors(), resources2.Cursors());
    AppendText(strReport, [&](auto& out) { out.Put(report.Text()); });
}

#pragma once

#include "tarvo/export.h"
#include "tarvo/restools/Resources.h"

#include <cstddef>
#include <initializer_list>
#include <string>
#include <vector>

/// What can be wrong with a translated script, in the order of the report.
enum class ResRule
{
    MenuCount,
    MenuMissing,
    MenuItemMissing,
    MenuItemStyle,
    MenuItemText,
    MenuItemCount,
    MenuStructure,
    ToolbarCount,
    ToolbarMissing,
    ToolbarItemMissing,
    ToolbarItemCount,
    ToolbarStructure,
    DialogCount,
    DialogMissing,
    DialogType,
    DialogStyle,
    DialogExStyle,
    DialogCaption,
    ControlMissing,
    ControlType,
    ControlStyle,
    ControlExStyle,
    ControlHelpID,
    ControlText,
    ControlCount,
    TabOrder,
    StringMissing,
    StringText,
    BitmapMissing,
    IconMissing,
    CursorMissing,
    Count ///< how many there are
};

/// A rule as machine formats show it.
struct CResRule
{
    const char* m_pszName; ///< "control-missing": stable, for filters and baselines
    const char* m_pszHelp; ///< one English sentence
};
TARVO_API const CResRule& ResourceRule(ResRule rule);

/// One difference, for programs that want more than its line of the report. Texts are views into the
/// compared resources.
struct CResFinding
{
    ResRule m_rule;
    std::u16string m_strText; ///< the report's line without indent and line end
    CResText m_strResource;   ///< the menu, toolbar, dialog, string or file; empty where kinds are counted
    CResText m_strItem;       ///< the item or control in it; empty when the resource as a whole is meant
    std::size_t m_nLine1;     ///< where that begins in file 1; 0 when nowhere
    std::size_t m_nLine2;     ///< the same in file 2, or of what should hold it; 0 when nowhere
};

/// Where a finding belongs.
struct CResPlace
{
    CResText resource;
    CResText item;
    std::size_t line1 = 0;
    std::size_t line2 = 0;
};

/// A report while it is written: headings are lines, differences are lines and findings.
class TARVO_API CResReport
{
public:
    using Parts = std::initializer_list<CResText>;
    /// The most units of a report. More come only of scripts that repeat one name against very long texts.
    static constexpr std::size_t MaxSize = std::size_t{256} * 1024 * 1024;

    explicit CResReport(std::vector<CResFinding>* pFindings, std::size_t most = MaxSize)
        : m_most(most), m_findings(pFindings)
    {
    }

    // Both throw std::bad_alloc when the report becomes too large.

    void Line(Parts parts);
    void Finding(ResRule rule, const CResPlace& place, Parts parts);
    CResText Text() const { return m_text; }

private:
    std::u16string m_text;
    std::size_t m_most;
    std::vector<CResFinding>* m_findings;
};

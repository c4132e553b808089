#include "demo/common/ListView.h"
#include "demo/common/ModuleText.h"
#include "demo/section/SectionDialogs.h"
#include "demo/section/Sections.h"
#include "demo/section/resource.h"

#include <vector>

namespace
{
CString format(const wchar_t* pattern, double value)
{
    CString text;
    text.Format(pattern, value);
    return text;
}

class CSectionLibraryDlg : public CTranslatedDialog
{
public:
    explicit CSectionLibraryDlg(CWnd* parent) : CTranslatedDialog(IDD_SECTION_LIBRARY, parent) {}

protected:
    void FillControls() override;
    afx_msg void OnShape(UINT id);
    afx_msg void OnSelected(NMHDR* header, LRESULT* result);
    afx_msg void OnClosed() { OnCancel(); }
    DECLARE_MESSAGE_MAP()

private:
    HWND List() const { return ::GetDlgItem(m_hWnd, IDC_SL_LIST); }
    std::vector<Section> m_shown;
};

BEGIN_MESSAGE_MAP(CSectionLibraryDlg, CTranslatedDialog)
ON_COMMAND_RANGE(IDC_SL_I_SHAPE, IDC_SL_PIPE, &CSectionLibraryDlg::OnShape)
ON_NOTIFY(LVN_ITEMCHANGED, IDC_SL_LIST, &CSectionLibraryDlg::OnSelected)
ON_BN_CLICKED(IDCLOSE, &CSectionLibraryDlg::OnClosed)
END_MESSAGE_MAP()

void CSectionLibraryDlg::FillControls()
{
    FillCombo(IDC_SL_STANDARD, {L"EN 10365, EN 10210"}, 0);
    const HINSTANCE module = GetModule();
    add_columns(List(), {{MODULE_TEXT(module, IDS_SL_NAME), 118},
                         {MODULE_TEXT(module, IDS_SL_DEPTH), 70, LVCFMT_RIGHT},
                         {MODULE_TEXT(module, IDS_SL_WIDTH), 70, LVCFMT_RIGHT},
                         {MODULE_TEXT(module, IDS_SL_WEB), 70, LVCFMT_RIGHT},
                         {MODULE_TEXT(module, IDS_SL_FLANGE), 70, LVCFMT_RIGHT}});
    CheckDlgButton(IDC_SL_I_SHAPE, BST_CHECKED);
    OnShape(IDC_SL_I_SHAPE);
}

void CSectionLibraryDlg::OnShape(UINT id)
{
    m_shown.clear();
    ListView_DeleteAllItems(List());
    for (const Section& section : sections())
    {
        if (static_cast<UINT>(section.shape) != id - IDC_SL_I_SHAPE)
            continue;
        const int row = static_cast<int>(m_shown.size());
        m_shown.push_back(section);
        set_row(List(), row,
                {section.name, format(L"%.1f", section.depth), format(L"%.1f", section.width),
                 format(L"%.1f", section.web), format(L"%.1f", section.flange)});
    }
    select_row(List(), 0);
}

void CSectionLibraryDlg::OnSelected(NMHDR*, LRESULT* result)
{
    *result = 0;
    const int row = selected_row(List());
    if (row < 0 || row >= static_cast<int>(m_shown.size()))
        return;
    const Section& section = m_shown[static_cast<std::size_t>(row)];
    SetDlgItemText(IDC_SL_AREA, format(L"%.1f cm\u00B2", section.area));
    SetDlgItemText(IDC_SL_MASS, format(L"%.1f kg/m", section.mass));
    SetDlgItemText(IDC_SL_WY, format(L"%.0f cm\u00B3", section.wy));
    SetDlgItemText(IDC_SL_IY, format(L"%.0f cm\u2074", section.iy));
    SetDlgItemText(IDC_SL_IZ, format(L"%.0f cm\u2074", section.iz));
}
} // namespace

std::unique_ptr<CTranslatedDialog> make_section_library(CWnd* parent)
{
    return std::make_unique<CSectionLibraryDlg>(parent);
}

#include "demo/common/ListView.h"
#include "demo/common/ModuleText.h"
#include "demo/host/HostModule.h"
#include "demo/host/resource.h"

#include <vector>

namespace
{
struct LoadCase
{
    int number;
    CString name;
    int action; // of the combo box
    double factor;
};

class CLoadCasesDlg : public CTranslatedDialog
{
public:
    explicit CLoadCasesDlg(CWnd* parent) : CTranslatedDialog(IDD_LOAD_CASES, parent) {}

protected:
    void FillControls() override;
    afx_msg void OnAdd();
    afx_msg void OnDuplicate();
    afx_msg void OnDeleteCase();
    afx_msg void OnRenumber();
    afx_msg void OnSelected(NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()

private:
    HWND List() const { return ::GetDlgItem(m_hWnd, IDC_LC_LIST); }
    bool HasSelected() const { return selected_row(List()) >= 0; }
    LoadCase& Selected() { return m_cases[static_cast<std::size_t>(selected_row(List()))]; }
    CString ActionText(int action);
    int NextNumber() const;
    void ShowAll(int selected);

    std::vector<LoadCase> m_cases;
};

BEGIN_MESSAGE_MAP(CLoadCasesDlg, CTranslatedDialog)
ON_BN_CLICKED(IDC_LC_ADD, &CLoadCasesDlg::OnAdd)
ON_BN_CLICKED(IDC_LC_DUPLICATE, &CLoadCasesDlg::OnDuplicate)
ON_BN_CLICKED(IDC_LC_DELETE, &CLoadCasesDlg::OnDeleteCase)
ON_BN_CLICKED(IDC_LC_RENUMBER, &CLoadCasesDlg::OnRenumber)
ON_NOTIFY(LVN_ITEMCHANGED, IDC_LC_LIST, &CLoadCasesDlg::OnSelected)
END_MESSAGE_MAP()

void CLoadCasesDlg::FillControls()
{
    const HINSTANCE module = GetModule();
    add_columns(List(), {{MODULE_TEXT(module, IDS_LC_NUMBER), 46},
                         {MODULE_TEXT(module, IDS_LC_NAME), 236},
                         {MODULE_TEXT(module, IDS_LC_ACTION), 112},
                         {MODULE_TEXT(module, IDS_LC_FACTOR), 66, LVCFMT_RIGHT}});
    FillCombo(IDC_LC_ACTION,
              {MODULE_TEXT(module, IDS_ACTION_PERMANENT), MODULE_TEXT(module, IDS_ACTION_IMPOSED),
               MODULE_TEXT(module, IDS_ACTION_SNOW), MODULE_TEXT(module, IDS_ACTION_WIND),
               MODULE_TEXT(module, IDS_ACTION_SEISMIC), MODULE_TEXT(module, IDS_ACTION_TEMPERATURE)},
              0);
    m_cases = {
        {1, MODULE_TEXT(module, IDS_CASE_DEAD), 0, 1.35},  {2, MODULE_TEXT(module, IDS_CASE_LIVE), 1, 1.5},
        {3, MODULE_TEXT(module, IDS_CASE_ROOF), 1, 1.5},   {4, MODULE_TEXT(module, IDS_CASE_SNOW), 2, 1.5},
        {5, MODULE_TEXT(module, IDS_CASE_WIND_X), 3, 1.5}, {6, MODULE_TEXT(module, IDS_CASE_WIND_Y), 3, 1.5},
        {7, MODULE_TEXT(module, IDS_CASE_QUAKE), 4, 1.0}};
    CheckDlgButton(IDC_LC_ENVELOPE, BST_CHECKED);
    ShowAll(1);
}

CString CLoadCasesDlg::ActionText(int action)
{
    wchar_t text[128] = L"";
    SendDlgItemMessage(IDC_LC_ACTION, CB_GETLBTEXT, static_cast<WPARAM>(action),
                       reinterpret_cast<LPARAM>(text));
    return text;
}

int CLoadCasesDlg::NextNumber() const
{
    int highest = 0;
    for (const LoadCase& entry : m_cases)
        highest = entry.number > highest ? entry.number : highest;
    return highest + 1;
}

void CLoadCasesDlg::ShowAll(int selected)
{
    ListView_DeleteAllItems(List());
    for (std::size_t i = 0; i < m_cases.size(); ++i)
    {
        CString number;
        CString factor;
        number.Format(L"%d", m_cases[i].number);
        factor.Format(L"%.2f", m_cases[i].factor);
        set_row(List(), static_cast<int>(i),
                {number, m_cases[i].name, ActionText(m_cases[i].action), factor});
    }
    select_row(List(), selected < static_cast<int>(m_cases.size()) ? selected : selected - 1);
}

void CLoadCasesDlg::OnAdd()
{
    m_cases.push_back({NextNumber(), ActionText(1), 1, 1.5});
    ShowAll(static_cast<int>(m_cases.size()) - 1);
}

void CLoadCasesDlg::OnDuplicate()
{
    if (!HasSelected())
        return;
    LoadCase copy = Selected();
    copy.number = NextNumber();
    m_cases.push_back(copy);
    ShowAll(static_cast<int>(m_cases.size()) - 1);
}

void CLoadCasesDlg::OnDeleteCase()
{
    if (!HasSelected())
        return;
    const int row = selected_row(List());
    m_cases.erase(m_cases.begin() + row);
    ShowAll(row);
}

void CLoadCasesDlg::OnRenumber()
{
    int number = 0;
    for (LoadCase& entry : m_cases)
        entry.number = ++number;
    ShowAll(HasSelected() ? selected_row(List()) : 0);
}

void CLoadCasesDlg::OnSelected(NMHDR*, LRESULT* result)
{
    *result = 0;
    if (!HasSelected())
        return;
    const LoadCase& entry = Selected();
    CString factor;
    factor.Format(L"%.2f", entry.factor);
    SetDlgItemText(IDC_LC_NAME, entry.name);
    SetDlgItemText(IDC_LC_FACTOR, factor);
    SendDlgItemMessage(IDC_LC_ACTION, CB_SETCURSEL, static_cast<WPARAM>(entry.action));
}
} // namespace

std::unique_ptr<CTranslatedDialog> make_load_cases(CWnd* parent)
{
    return std::make_unique<CLoadCasesDlg>(parent);
}

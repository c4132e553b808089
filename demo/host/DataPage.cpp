#include "demo/host/DataPage.h"

#include "demo/host/Catalogue.h"

BOOL CDataPage::OnInitDialog()
{
    const BOOL focus = CInternationalPropertyPage::OnInitDialog();
    for (const auto& [id, text] : m_data.edits)
        SetDlgItemText(id, text);
    for (const int id : m_data.checked)
        CheckDlgButton(id, BST_CHECKED);
    return focus;
}

/// An entry that the user has changed can be applied.
BOOL CDataPage::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const WORD code = HIWORD(wParam);
    if (m_apply && m_bFilled && lParam && (code == EN_CHANGE || code == CBN_SELCHANGE || code == BN_CLICKED))
        SetModified();
    return CInternationalPropertyPage::OnCommand(wParam, lParam);
}

BOOL CDataPage::OnApply()
{
    if (m_apply)
        m_apply(*this);
    return CInternationalPropertyPage::OnApply();
}

void CDataPage::SetText()
{
    for (const PageData::Combo& combo : m_data.combos)
    {
        if (combo.inCatalogue)
            fill_from_catalogue(*this, combo.id, combo.entries);
        else
            fill_with_texts(*this, combo.id, combo.entries);
        if (!m_bFilled)
            SendDlgItemMessage(combo.id, CB_SETCURSEL, static_cast<WPARAM>(combo.chosen));
    }
    m_bFilled = true;
}

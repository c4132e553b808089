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

void CDataPage::SetText()
{
    for (const PageData::Combo& combo : m_data.combos)
    {
        if (combo.inCatalogue)
            fill_from_catalogue(*this, combo.id, combo.entries);
        else
            fill_with_texts(*this, combo.id, combo.entries);
    }
}

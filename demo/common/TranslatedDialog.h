#pragma once
#include "tarvo/lang/XMultiLang.h"

#include <afxwin.h>

/// A dialog that comes up in the user's language: OnInitDialog puts the texts of its module's language table
/// into the caption and the controls before the derived class fills in its data. Make the object while the
/// module's state is in force.
class CTranslatedDialog : public CDialog
{
public:
    CTranslatedDialog(UINT id, CWnd* parent);

    /// Opens it beside its parent; FALSE when the window did not come up.
    BOOL Open();
    INT_PTR DoModal() override;

    /// Where the texts came from; zeros until the window has come up.
    const CTranslateCount& GetCount() const { return m_count; }

protected:
    BOOL OnInitDialog() override;
    /// The derived dialog puts its data into the controls, whose own texts are translated by now.
    virtual void FillControls() {}

    HINSTANCE GetModule() const { return m_module; }
    void FillCombo(int id, const std::initializer_list<CString>& texts, int selected);

    afx_msg void OnOpenHelp();
    DECLARE_MESSAGE_MAP()

private:
    /// Gives the controls a face that has the language's letters, in the template's size.
    void UseFace(const CString& face);

    HINSTANCE m_module;
    UINT m_id;
    CFont m_font;
    CTranslateCount m_count;
};

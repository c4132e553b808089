#pragma once
#include "tarvo/intl/InternationalDlg.h"
#include "tarvo/lang/XMultiLang.h"

/// A dialog of a module that knows nothing of the library: its texts come from the module's language table.
class CRealDialog : public CInternationalDlg
{
public:
    CRealDialog(XMultiLang& table, HINSTANCE module, UINT id, CWnd* parent);

    /// Opens and shows it, a page (a template with WS_CHILD) inside the parent, which is made to fit. FALSE
    /// when the window did not come up.
    BOOL Open();
    void SetText() override;
    const CTranslateCount& GetCount() const { return m_count; }

private:
    void FitParent();

    XMultiLang& m_table;
    HINSTANCE m_module;
    UINT m_id;
    CTranslateCount m_count;
};

#pragma once

#include "tarvo/intl/LanguageWindow.h"
#include "tarvo/intl/RcStringExtract.h"

#include <bcgp.h>

class CDialogTemplate;

/// The base of the host's dialogs. A dialog comes up in the dialog font of the user's settings, which also
/// decides how large it is, and every text in it gets the text font of the user's language
/// (CInternationalUtil). Its texts are set by the derived class's SetText, and follow a change of language
/// (CLanguageSwitch). Alt+F12 opens the resource changer on it, when one is registered (IRcStringOpener).
class TARVO_API CInternationalDlg : public CBCGPDialog, public CLanguageWindow, public CRcSource
{
    DECLARE_DYNCREATE(CInternationalDlg)

public:
    explicit CInternationalDlg(CWnd* pParent = nullptr);
    explicit CInternationalDlg(UINT nIDTemplate, CWnd* pParent = nullptr);
    explicit CInternationalDlg(LPCTSTR lpszTemplateName, CWnd* pParent = nullptr);
    ~CInternationalDlg() override;

    /// As CDialog's. The template is looked for by the resource ID (SetDlgResID_o), else by the name that the
    /// constructor was given. -1 when it cannot be loaded. A template that was given in memory
    /// (InitModalIndirect) is shown in the font that it names.
    INT_PTR DoModal() override;
    /// A modeless dialog. The template's ID becomes the dialog's resource ID when none was set. 0 when the
    /// template cannot be loaded or the dialog did not outlive its initialisation.
    BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr) override;
    BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr) override;
    /// Loads the dialog's template into \p memory, puts a font into it, locks it and makes it the dialog's
    /// template in memory. A size outside 1 to 127 points keeps the template's own. 0, with nothing changed,
    /// when the template cannot be loaded, else 1. The caller unlocks the memory when the dialog has
    /// gone, and keeps it until then.
    int ChangeDlgFont(CDialogTemplate& memory, const CString& face, int points);

    /// Always 1. What a derived class's SetText and TranslateStringToINI need is done afterwards: they run
    /// when the whole initialisation, the derived class's included, has ended.
    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    void PostNcDestroy() override;

    /// Empty here; see CLanguageWindow.
    void SetText() override {}
    /// 0 here: a dialog's texts come from SetText. A derived class whose texts are in its module's language
    /// table returns TranslateByTable(GetDlgResID()).
    int TranslateStringToINI() override { return 0; }

protected:
    /// Points the dialog at a resource, for its template from the next DoModal on and for the resource
    /// changer; empties the changer's lists.
    virtual void SetDlgResID_o(UINT nID, LPCTSTR lpszSymbol);
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg LRESULT OnRcStringExtract(WPARAM wParam, LPARAM lParam);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    DECLARE_MESSAGE_MAP()

private:
    LPCTSTR TemplateResource() const;
    BOOL CreateFrom(LPCTSTR resource, CWnd* pParentWnd);
    template <class Show>
    auto ShowFromMemory(CDialogTemplate& memory, Show show);

    CString m_strTemplate;   ///< the template's name, when it has one
    bool* m_pGone = nullptr; ///< set when the object goes while its window is being shown
};

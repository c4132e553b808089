#pragma once

#include "tarvo/intl/LanguageWindow.h"
#include "tarvo/intl/RcStringExtract.h"

#include <bcgp.h>

#include <memory>

class CDialogTemplate;
struct ModuleTable;
struct TemplateFont;

/// The base of the host's property pages. In a CInternationalPropertySheet a page is made in the dialog font
/// of the user's settings, and its tab has the caption of the user's language; in any sheet its texts get
/// the text font, are translated by its module's language table, and follow a change of language
/// (CLanguageSwitch), also while the page is not in front. Alt+F12 opens the resource changer on it.
class TARVO_API CInternationalPropertyPage : public CBCGPPropertyPage,
                                             public CLanguageWindow,
                                             public CRcSource
{
    DECLARE_DYNCREATE(CInternationalPropertyPage)

public:
    CInternationalPropertyPage();
    /// \p nIDCaption is a string resource for the tab; 0: the template's caption.
    explicit CInternationalPropertyPage(UINT nIDTemplate, UINT nIDCaption = 0);
    ~CInternationalPropertyPage() override;

    /// Runs the base with the page's template ID in place, takes the visual manager's style when the sheet
    /// or the skin asks for it, stands below the sheet's header, and gives the text font to its texts.
    BOOL OnInitDialog() override;
    BOOL OnSetActive() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

    /// Gives \p psp, the copy of the page's description that a sheet is built from, the page's template with
    /// the dialog font and the tab's caption in the language in force. Both stay the page's and are good as
    /// long as it is. A template that cannot be loaded leaves \p psp without.
    void PreProcessPageTemplateInternational(PROPSHEETPAGE& psp, BOOL bWizard);
    /// The tab's caption in the language in force now: the catalogue's text for the page's own name
    /// (XMultiLang::GetDlgCaptionText), else what the resource says.
    CString GetTabCaption() const;

    /// Points the page at a resource, for its template when a sheet is built next and for the resource
    /// changer; empties the changer's lists.
    virtual void SetDlgResID_o(UINT nID, LPCTSTR lpszSymbol);
    /// Empty here; see CLanguageWindow.
    void SetText() override {}
    /// TranslateByTable for the page's resource ID.
    int TranslateStringToINI() override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void PostNcDestroy() override;
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg void OnWindowPosChanging(WINDOWPOS* pPlace);
    afx_msg LRESULT OnRcStringExtract(WPARAM wParam, LPARAM lParam);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    DECLARE_MESSAGE_MAP()

private:
    friend class CInternationalPropertySheet;
    LPCTSTR TemplateResource() const;
    ModuleTable FindTable() const;
    void RenewTemplate();

    std::unique_ptr<CDialogTemplate> m_pTemplate; ///< what the sheet makes the page from
    std::unique_ptr<TemplateFont> m_pFont;        ///< which is in the template
    CString m_strTabCaption;                      ///< as the resource says
    CString m_strBuiltText;                       ///< as the sheet was told when it was built
    CString m_strTabText;                         ///< as the tab was given last
};

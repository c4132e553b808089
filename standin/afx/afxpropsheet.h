#pragma once

#include "afxcoll.h"
#include "afxdlg.h"

#include <commctrl.h>
#include <prsht.h>

#include <vector>

class CPropertySheet;
class CTabCtrl;

inline constexpr UINT ID_APPLY_NOW = 0x3021;
inline constexpr UINT ID_WIZBACK = 0x3023;
inline constexpr UINT ID_WIZNEXT = 0x3024;
inline constexpr UINT ID_WIZFINISH = 0x3025;
inline constexpr UINT ID_HELP = 0xE146;
inline constexpr UINT AFX_IDC_TAB_CONTROL = 0x3020;

/// One page of a property sheet: a dialog whose window the sheet makes when it is first shown. The object
/// must outlive the sheet's window. What a page was told it answers in the sheet's own notifications, which
/// the functions On... below stand for.
class AFX_API CPropertyPage : public CDialog
{
    DECLARE_DYNAMIC(CPropertyPage)

public:
    CPropertyPage();
    /// \p nIDCaption is a string resource for the tab; 0: the template's caption.
    explicit CPropertyPage(UINT nIDTemplate, UINT nIDCaption = 0, DWORD dwSize = sizeof(PROPSHEETPAGEW));
    explicit CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption = 0,
                           DWORD dwSize = sizeof(PROPSHEETPAGEW));
    /// For wizards with a heading (PSH_WIZARD97).
    CPropertyPage(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle = 0,
                  DWORD dwSize = sizeof(PROPSHEETPAGEW));
    ~CPropertyPage() override;
    void Construct(UINT nIDTemplate, UINT nIDCaption = 0, DWORD dwSize = sizeof(PROPSHEETPAGEW));
    void Construct(LPCTSTR lpszTemplateName, UINT nIDCaption = 0, DWORD dwSize = sizeof(PROPSHEETPAGEW));

    PROPSHEETPAGE m_psp; ///< may be changed before the sheet is built
    PROPSHEETPAGE& GetPSP() { return m_psp; }

    /// The button OK becomes Close and Cancel grey: something was done that cannot be taken back.
    void CancelToClose();
    /// There is something to apply, or not any more.
    void SetModified(BOOL bChanged = TRUE);
    /// Sends PSM_QUERYSIBLINGS to each page that has a window until one answers other than 0; the answer.
    LRESULT QuerySiblings(WPARAM wParam, LPARAM lParam);
    /// Ends the sheet.
    void EndDialog(int nEndID);
    /// One of PSBTN_BACK, _NEXT, _FINISH, _OK, _APPLYNOW, _CANCEL, _HELP.
    BOOL IsButtonEnabled(int iButton);
    CPropertySheet* GetParentSheet();

    /// Apply or OK: FALSE keeps the sheet open with this page. The default calls OnOK.
    virtual BOOL OnApply();
    /// The sheet was cancelled. The default calls OnCancel.
    virtual void OnReset();
    void OnOK() override {}
    void OnCancel() override {}
    /// The page comes to the front: FALSE refuses, and the next page comes. The default shows the members'
    /// values (UpdateData), from the second time on: the first time OnInitDialog has.
    virtual BOOL OnSetActive();
    /// The page leaves the front, or the sheet is applied: FALSE keeps it. The default takes the controls'
    /// values (UpdateData).
    virtual BOOL OnKillActive();
    /// FALSE: the sheet is not to be cancelled.
    virtual BOOL OnQueryCancel() { return TRUE; }
    /// The wizard's buttons. 0 goes on; -1 stays; anything else is the template number of the page to show.
    virtual LRESULT OnWizardBack() { return 0; }
    virtual LRESULT OnWizardNext() { return 0; }
    /// FALSE keeps the wizard open.
    virtual BOOL OnWizardFinish() { return TRUE; }

    /// Gives \p psp, the copy of m_psp that the sheet is built from, the template as memory of the page's own
    /// (PSP_DLGINDIRECT, pResource), which the system may change. A template that cannot be loaded leaves it
    /// without, and the sheet is then not shown.
    void PreProcessPageTemplate(PROPSHEETPAGE& psp, BOOL bWizard);

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    LRESULT MapWizardResult(LRESULT lToMap);

    CString m_strCaption;
    CString m_strHeaderTitle;
    CString m_strHeaderSubTitle;
    BOOL m_bFirstSetActive = TRUE;

private:
    friend class CPropertySheet;
    BOOL OnSheetNotify(const PSHNOTIFY& notify, LRESULT& lResult);
    void* OwnTemplate(LPCDLGTEMPLATE pTemplate);
    static UINT CALLBACK PageCallback(HWND hWnd, UINT message, LPPROPSHEETPAGEW pPage);
    static INT_PTR CALLBACK PageProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

    void WasBuilt(CPropertySheet* pSheet, const void* pTemplate)
    {
        m_pSheet = pSheet;
        m_pBuiltTemplate = pTemplate;
    }

    HGLOBAL m_hOwnTemplate = nullptr;
    CPropertySheet* m_pSheet = nullptr;     ///< whose window makes the page's; good only while it does
    const void* m_pBuiltTemplate = nullptr; ///< by which the system knows the page
};

/// A row of pages with tabs, or a wizard, on the system's property sheet. Add the pages, then DoModal or
/// Create. The page objects belong to the program.
class AFX_API CPropertySheet : public CWnd
{
    DECLARE_DYNAMIC(CPropertySheet)

public:
    CPropertySheet();
    explicit CPropertySheet(UINT nIDCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    explicit CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    ~CPropertySheet() override;
    void Construct(UINT nIDCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    void Construct(LPCTSTR pszCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);

    PROPSHEETHEADER m_psh; ///< may be changed before the sheet is built

    /// IDOK or IDCANCEL, a wizard ID_WIZFINISH or IDCANCEL, or what EndDialog was given. -1: it could not be
    /// shown, as with no pages or a page whose template cannot be loaded.
    virtual INT_PTR DoModal();
    /// A modeless sheet, without the buttons OK, Cancel and Apply. FALSE under the same conditions. It
    /// destroys its window when it is closed. The style is that of a window with caption and system menu
    /// unless \p dwStyle is given.
    virtual BOOL Create(CWnd* pParentWnd = nullptr, DWORD dwStyle = static_cast<DWORD>(-1),
                        DWORD dwExStyle = 0);
    void EndDialog(int nEndID);
    /// From a page's initialisation, while the sheet is being made: at the end of that.
    BOOL DestroyWindow() override;

    /// Also while the sheet is shown: at the end, and then a page that cannot be loaded is not added.
    void AddPage(CPropertyPage* pPage);
    void RemovePage(CPropertyPage* pPage);
    void RemovePage(int nPage);
    int GetPageCount() const { return static_cast<int>(m_pages.GetSize()); }
    CPropertyPage* GetPage(int nPage) const;
    /// -1 for a page of another sheet.
    int GetPageIndex(CPropertyPage* pPage) const;
    CPropertyPage* GetActivePage() const;
    int GetActiveIndex() const;
    /// Before the sheet is built: the page to begin with. FALSE when the active page or the new one refuses.
    BOOL SetActivePage(int nPage);
    BOOL SetActivePage(CPropertyPage* pPage);

    void SetTitle(LPCTSTR lpszText, UINT nStyle = 0);
    void SetWizardMode() { m_psh.dwFlags |= PSH_WIZARD; }
    /// PSWIZB_BACK and the like, from a page's OnSetActive.
    void SetWizardButtons(DWORD dwFlags);
    /// The last page's: the button Finish with this text, and the button Back hidden.
    void SetFinishText(LPCTSTR lpszText);
    /// One of PSBTN_...
    BOOL PressButton(int nButton);
    /// The tabs in several rows when they do not fit in one; before the sheet is built.
    void EnableStackedTabs(BOOL bStacked) { m_bStacked = bStacked; }
    CTabCtrl* GetTabControl() const;
    void MapDialogRect(LPRECT lpRect) const { ::MapDialogRect(m_hWnd, lpRect); }
    BOOL IsModeless() const { return m_bModeless; }
    BOOL IsWizard() const { return (m_psh.dwFlags & (PSH_WIZARD | PSH_WIZARD97)) != 0; }

    /// The window and its first page exist.
    virtual BOOL OnInitDialog();
    /// Fills m_psh.ppsp and m_psh.nPages with a copy of each page's m_psp, in their order, each of them
    /// dwSize bytes long and gone through PreProcessPageTemplate. A derived class may then put templates
    /// of its own in place (pResource); they must last as long as the window.
    virtual void BuildPropPageArray();

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL ContinueModal() override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg LRESULT OnInitDialogMessage(WPARAM wParam, LPARAM lParam);
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
    const AFX_MSGMAP* GetMessageMap() const override;

    CPtrArray m_pages; ///< of CPropertyPage
    CString m_strCaption;
    CWnd* m_pParentWnd = nullptr;
    BOOL m_bStacked = TRUE;
    BOOL m_bModeless = FALSE;

private:
    friend class CPropertyPage;
    BOOL Build(HWND hOwner);
    bool EveryPageHasItsTemplate() const;
    bool IsOver() const;
    void HideButtons();
    void TellPages();
    static int CALLBACK SheetCallback(HWND hWnd, UINT message, LPARAM lParam);

    std::vector<BYTE> m_pageBytes; ///< what m_psh.ppsp points to
    DWORD m_dwStyle = 0;           ///< of a modeless sheet
    DWORD m_dwExStyle = 0;
    int m_nEndID = 0;        ///< what the notifications say that ended it
    BOOL m_bBuilt = FALSE;   ///< the system has made all of it
    BOOL m_bClosing = FALSE; ///< its end is queued
};

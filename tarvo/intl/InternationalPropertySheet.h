#pragma once

#include "tarvo/intl/InternationalPropertyPage.h"
#include "tarvo/intl/SheetLayout.h"

#include <vector>

/// The base of the host's property sheets and wizards. Every page's template gets the dialog font of the
/// user's settings before the sheet is built, and the sheet is made as large as its largest page needs in
/// that font, as far as the screen allows; the system itself measures pages in a font of its own. The sheet's
/// own texts are translated, and follow a change of language (CLanguageSwitch):
/// - its caption by the catalogue's text "IDS_" + name of the first page's dialog + "_SHEET";
/// - the tabs of CInternationalPropertyPage by the pages' own captions;
/// - its buttons by the catalogue's texts "IDS_DIALOG_IDOK" and so on (IDCANCEL, IDHELP, ID_APPLY_NOW,
///   ID_WIZBACK, ID_WIZNEXT, ID_WIZFINISH), else by those names in the section "DIALOG" of the language files
///   of the first page's module.
/// What has no text there stays as it was given, or as the system has it. A wizard's caption is that of the
/// page in front. Texts that the program has changed since the sheet was opened are left alone.
class TARVO_API CInternationalPropertySheet : public CBCGPPropertySheet, public CLanguageWindow
{
    DECLARE_DYNCREATE(CInternationalPropertySheet)

public:
    CInternationalPropertySheet();
    explicit CInternationalPropertySheet(UINT nIDCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    explicit CInternationalPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd = nullptr,
                                         UINT iSelectPage = 0);
    ~CInternationalPropertySheet() override;

    /// The user can change the sheet's size; its pages grow with it. Before DoModal or Create.
    void SetResizable(BOOL bResizable) { m_bResizable = bResizable; }

    /// As CPropertySheet's. -1 without pages and when a page's template cannot be loaded.
    INT_PTR DoModal() override;
    BOOL Create(CWnd* pParentWnd = nullptr, DWORD dwStyle = static_cast<DWORD>(-1),
                DWORD dwExStyle = 0) override;
    /// BuildPropPageArrayInternational.
    void BuildPropPageArray() override;
    /// Fills the sheet's header with the pages' descriptions, and every page's template with the dialog font;
    /// see CInternationalPropertyPage::PreProcessPageTemplateInternational. Pages of other classes get the
    /// font as well.
    void BuildPropPageArrayInternational();
    BOOL OnInitDialog() override;
    /// The sheet's part of its initialisation: font, texts, and the places from which OnResizePage starts.
    void __OnInitDialog();
    /// Lays the tabs, the page in front and the buttons out in the sheet's present size. Called when that
    /// changes and when another page comes to the front.
    void OnResizePage();
    void OnActivatePage(CPropertyPage* pPage) override;

    /// Moves a page that is being placed to where it stands in the sheet's present size; false as long as
    /// that is the size in which the sheet was made.
    bool PutPage(WINDOWPOS& place) const;

    /// Empty here; see CLanguageWindow.
    void SetText() override {}
    /// 0: a sheet has no template.
    int TranslateStringToINI() override { return 0; }

    /// What the system calls while it makes a sheet: gives a resizable one its border.
    static int CALLBACK PropSheetProc(HWND hWnd, UINT message, LPARAM lParam);

protected:
    /// Offers the buttons Apply and Help and those of a wizard to the message map of the active page first,
    /// then to the sheet's; when none handles them, the system does as ever.
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void ChangeOwnTexts() override;
    void EndLayout(bool changed) override;
    std::vector<HWND> GetFontTargets() const override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void PostNcDestroy() override;
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    DECLARE_MESSAGE_MAP()

private:
    void Init(UINT iSelectPage);
    const CInternationalPropertyPage* FindNamingPage() const;
    CString TranslatedCaption() const;
    CString TranslatedButton(XMultiLang* table, UINT id, const CString& original) const;
    void TranslateCaptionAndButtons();
    void TranslateTabs();
    bool FindWizardTitle(const CString& told, CString& title);
    void TranslateWizardTitle();
    static bool IsPage(HWND window);
    SheetLayout::Size WantedPageSize() const;
    SheetLayout::Rect RoomForPages() const;
    SheetLayout::Size ClientSize() const;
    SheetLayout::Size GrowSheet(const SheetLayout::Size& by);
    void FitPages();
    void FitPagesAnew();
    void StartFromHere();
    void NotePlaces();

    CString m_strFirstCaption; ///< as it was given
    CString m_strLastCaption;  ///< as it was translated last
    UINT m_nFirstPage = 0;
    BOOL m_bResizable = FALSE;
    std::vector<std::unique_ptr<CDialogTemplate>> m_templates; ///< of pages of other classes

    struct Part
    {
        HWND window;
        SheetLayout::PART part;
        SheetLayout::Rect place;
    };
    SheetLayout::Size m_size;    ///< of the client area when the parts stood at their places
    SheetLayout::Rect m_page;    ///< where a page stood then
    SheetLayout::Size m_growth;  ///< by which the sheet is larger than the system has made it, for its pages
    SheetLayout::Size m_started; ///< the client area's size as the sheet came up
    std::vector<Part> m_parts;
    bool m_bStarted = false; ///< the sheet's size is the user's from now on
};

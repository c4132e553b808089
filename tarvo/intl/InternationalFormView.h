#pragma once

#include "tarvo/intl/LanguageWindow.h"

#include <bcgp.h>

/// The base of the host's form views. A form is made in the dialog font of the user's settings, which also
/// decides how large it is. In a process whose interface is not Korean every text in it gets the text font of
/// the user's language; where it is (CLocaleLib::bKoreanUILanguage), the form keeps its template's font.
/// Its texts are translated by its module's language table, and follow a change of language
/// (CLanguageSwitch).
class TARVO_API CInternationalFormView : public CBCGPFormView, public CLanguageWindow
{
    DECLARE_DYNCREATE(CInternationalFormView)

public:
    /// As CFormView's. FALSE, and the object has deleted itself, when the template cannot be loaded or is no
    /// child.
    BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwRequestedStyle, const RECT& rect,
                CWnd* pParentWnd, UINT nID, CCreateContext* pContext = nullptr) override;
    /// Puts font and texts in place. SetText runs when the whole of it, the derived class's part included,
    /// has ended; when it was not called by a frame's or the message WM_INITIALUPDATE but by the program,
    /// before it returns.
    void OnInitialUpdate() override;
    void PostNcDestroy() override;

    /// Empty here; see CLanguageWindow.
    void SetText() override {}
    /// TranslateByTable for the form's resource ID.
    int TranslateStringToINI() override;

    UINT GetFormResID() const { return m_nFormResID; }

protected:
    CInternationalFormView();
    explicit CInternationalFormView(UINT nIDTemplate);
    ~CInternationalFormView() override;

    /// PutTextFont, unless the interface is Korean.
    void ChangeFormViewFont();
    CPoint BeginLayout() override;
    void EndLayout(bool changed) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    DECLARE_MESSAGE_MAP()

private:
    BOOL CreateFrom(const DLGTEMPLATE* pTemplate, const CREATESTRUCT& cs, CWnd* pParentWnd, UINT nID,
                    CCreateContext* pContext);
    void Place(const RECT& rect);

    UINT m_nFormResID;
    CPoint m_scrolled;             ///< before another layout
    CSize m_formerSize;            ///< of the whole, then
    bool m_bUpdateMessage = false; ///< WM_INITIALUPDATE is being handled
};

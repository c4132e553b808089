#pragma once

#include "bcgppropertypage.h"

/// The framework's property sheet with the toolkit's looks.
class BCGP_API CBCGPPropertySheet : public CPropertySheet
{
    DECLARE_DYNAMIC(CBCGPPropertySheet)

public:
    CBCGPPropertySheet() = default;
    explicit CBCGPPropertySheet(UINT nIDCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0)
        : CPropertySheet(nIDCaption, pParentWnd, iSelectPage)
    {
    }
    explicit CBCGPPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0)
        : CPropertySheet(pszCaption, pParentWnd, iSelectPage)
    {
    }

    /// The sheet and those of its pages that are the toolkit's, also pages that are made later. \p bNCArea as
    /// for CBCGPDialog.
    void EnableVisualManagerStyle(BOOL bEnable = TRUE, BOOL bNCArea = FALSE);
    BOOL IsVisualManagerStyle() const { return m_style.IsEnabled(); }
    BOOL IsVisualManagerNCArea() const { return m_style.IsNCArea(); }

    /// Room above the toolkit's pages, in pixels; 0 for none. Before the window exists: the sheet grows by
    /// it. The header's width follows the sheet's.
    void EnablePageHeader(int nHeaderHeight);
    int GetHeaderHeight() const { return m_nHeaderHeight; }
    /// Draws the header of the active page; the default gives it the visual manager's background.
    virtual void OnDrawPageHeader(CDC* pDC, int nPage, CRect rectHeader);
    /// One of the toolkit's pages has come to the front and stands in its place.
    virtual void OnActivatePage(CPropertyPage* pPage);

    BOOL OnInitDialog() override;

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnSysColorChange();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    /// The room above the pages, in front of the tab control.
    class BCGP_API CHeader : public CWnd
    {
    public:
        void Draw();

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    };
    void MakeRoom();

    CBCGPWindowStyle m_style{this};
    int m_nHeaderHeight = 0;
    int m_nHeaderMargin = 0; ///< at its right
    CHeader m_header;
};

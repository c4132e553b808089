#pragma once

#include <afxdlgs.h>

#include "bcgpwindowstyle.h"

/// The framework's property page with the toolkit's looks; the operations are those of CBCGPDialog. In one of
/// the toolkit's sheets it takes the sheet's style when it is made, and stands below the sheet's header.
class BCGP_API CBCGPPropertyPage : public CPropertyPage
{
    DECLARE_DYNCREATE(CBCGPPropertyPage)

public:
    CBCGPPropertyPage() = default;
    explicit CBCGPPropertyPage(UINT nIDTemplate, UINT nIDCaption = 0) : CPropertyPage(nIDTemplate, nIDCaption)
    {
    }
    explicit CBCGPPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption = 0)
        : CPropertyPage(lpszTemplateName, nIDCaption)
    {
    }

    void EnableVisualManagerStyle(BOOL bEnable = TRUE,
                                  const CList<UINT, UINT>* plstNonSubclassedItems = nullptr)
    {
        m_style.Enable(bEnable, FALSE, plstNonSubclassedItems);
    }
    BOOL IsVisualManagerStyle() const { return m_style.IsEnabled(); }
    void SetBackgroundColor(COLORREF color, BOOL bRepaint = TRUE) { m_style.SetBackground(color, bRepaint); }

    BOOL OnInitDialog() override;

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnSysColorChange();
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    DECLARE_MESSAGE_MAP()

private:
    void StandBelow(int nHeaderHeight);

    CBCGPWindowStyle m_style{this};
    int m_nTop = NOWHERE; ///< where the system puts the page, in the sheet's client area
    enum
    {
        NOWHERE = -0x8000
    };
};

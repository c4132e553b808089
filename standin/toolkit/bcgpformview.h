#pragma once

#include <afxext.h>

#include "bcgpwindowstyle.h"

/// The framework's form view with the toolkit's looks; the operations are those of CBCGPDialog.
class BCGP_API CBCGPFormView : public CFormView
{
    DECLARE_DYNAMIC(CBCGPFormView)

public:
    void EnableVisualManagerStyle(BOOL bEnable = TRUE,
                                  const CList<UINT, UINT>* plstNonSubclassedItems = nullptr)
    {
        m_style.Enable(bEnable, FALSE, plstNonSubclassedItems);
    }
    BOOL IsVisualManagerStyle() const { return m_style.IsEnabled(); }
    void SetBackgroundColor(COLORREF color, BOOL bRepaint = TRUE) { m_style.SetBackground(color, bRepaint); }

protected:
    explicit CBCGPFormView(UINT nIDTemplate) : CFormView(nIDTemplate) {}
    explicit CBCGPFormView(LPCTSTR lpszTemplateName) : CFormView(lpszTemplateName) {}

    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnSysColorChange();
    DECLARE_MESSAGE_MAP()

private:
    CBCGPWindowStyle m_style{this};
};

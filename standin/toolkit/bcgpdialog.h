#pragma once

#include "bcgpwindowstyle.h"

/// The framework's dialog with the toolkit's looks.
class BCGP_API CBCGPDialog : public CDialog
{
    DECLARE_DYNAMIC(CBCGPDialog)

public:
    CBCGPDialog() = default;
    explicit CBCGPDialog(UINT nIDTemplate, CWnd* pParent = nullptr) : CDialog(nIDTemplate, pParent) {}
    explicit CBCGPDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr)
        : CDialog(lpszTemplateName, pParentWnd)
    {
    }

    /// Draws the dialog, its labels, buttons and frames in the visual manager's colours, before or after the
    /// window exists. The controls whose IDs are in \p plstNonSubclassedItems keep the system's colours. \p
    /// bNCArea is remembered: the caption and the border are the system's here.
    void EnableVisualManagerStyle(BOOL bEnable = TRUE, BOOL bNCArea = FALSE,
                                  const CList<UINT, UINT>* plstNonSubclassedItems = nullptr)
    {
        m_style.Enable(bEnable, bNCArea, plstNonSubclassedItems);
    }
    BOOL IsVisualManagerStyle() const { return m_style.IsEnabled(); }
    BOOL IsVisualManagerNCArea() const { return m_style.IsNCArea(); }
    /// A background of its own, before that of the visual manager; CLR_INVALID takes it away.
    void SetBackgroundColor(COLORREF color, BOOL bRepaint = TRUE) { m_style.SetBackground(color, bRepaint); }

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnSysColorChange();
    DECLARE_MESSAGE_MAP()

private:
    CBCGPWindowStyle m_style{this};
};

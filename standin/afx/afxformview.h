#pragma once

#include "afxscrollview.h"

/// A view made of the controls of a dialog template, which must be a child without caption. Lives in a frame
/// as its view, or as a child of any window; such a host calls OnInitialUpdate itself.
class AFX_API CFormView : public CScrollView
{
    DECLARE_DYNAMIC(CFormView)

public:
    /// The controls exist: UpdateData(FALSE), and what CView does.
    void OnInitialUpdate() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

    /// Makes the window from the template that the constructor named; \p lpszClassName has no meaning. An
    /// empty \p rect leaves it as large as the template. What does not fit can be scrolled to. FALSE when the
    /// template cannot be loaded or is no child: the object has then deleted itself.
    BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwRequestedStyle, const RECT& rect,
                CWnd* pParentWnd, UINT nID, CCreateContext* pContext) override;

protected:
    explicit CFormView(LPCTSTR lpszTemplateName);
    explicit CFormView(UINT nIDTemplate);

    void OnDraw(CDC*) override {}
    void OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView) override;
    void OnActivateFrame(UINT nState, CFrameWnd* pFrame) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpcs);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
    const AFX_MSGMAP* GetMessageMap() const override;

    LPCTSTR m_lpszTemplateName;                 ///< a number or a copy of the name
    CCreateContext* m_pCreateContext = nullptr; ///< while the window is being made
    HWND m_hWndFocus = nullptr;                 ///< the control that had the focus last

private:
    BOOL SaveFocusControl();
    BOOL IsChildTemplate() const;
    CString m_strTemplateName;
};

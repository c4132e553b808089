#pragma once

#include "afxview.h"

/// A frame window with a menu: the usual main window. Made with new, it deletes itself when its window is
/// gone.
///
/// Commands go to the active view, its document, the frame and then to the application. When a menu opens,
/// each item's update handler is asked; items whose command nobody handles are grey as long as
/// m_bAutoMenuEnable is TRUE.
class AFX_API CFrameWnd : public CWnd
{
    DECLARE_DYNCREATE(CFrameWnd)

public:
    static const CRect rectDefault; ///< the system chooses the place
    HACCEL m_hAccelTable = nullptr;
    HMENU m_hMenuDefault = nullptr; ///< the menu of LoadFrame; belongs to the window
    BOOL m_bAutoMenuEnable = TRUE;
    CString m_strTitle;

    BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle = WS_OVERLAPPEDWINDOW,
                const RECT& rect = rectDefault, CWnd* pParentWnd = nullptr, LPCTSTR lpszMenuName = nullptr,
                DWORD dwExStyle = 0, CCreateContext* pContext = nullptr);
    /// Menu, accelerators, icon and title string (its first part) of one resource ID.
    virtual BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW,
                           CWnd* pParentWnd = nullptr, CCreateContext* pContext = nullptr);
    /// Makes the view of the context's class as the child \p nID; null when it has none or it cannot be made.
    CWnd* CreateView(CCreateContext* pContext, UINT nID = AFX_IDW_PANE_FIRST);
    CView* GetActiveView() const { return m_pViewActive; }
    /// Tells the former and the new view (OnActivateView) unless \p bNotify is FALSE. Null: no active view.
    void SetActiveView(CView* pViewNew, BOOL bNotify = TRUE);
    /// The active view's.
    virtual CDocument* GetActiveDocument();
    virtual CFrameWnd* GetActiveFrame() { return this; }
    /// Sends WM_INITIALUPDATE to everything inside, the first pane becoming the active view when there is
    /// none, and with \p bMakeVisible shows the frame.
    void InitialUpdateFrame(CDocument* pDoc, BOOL bMakeVisible);
    /// The first pane fills the client area. Called whenever the frame's size changes.
    virtual void RecalcLayout(BOOL bNotify = TRUE);
    BOOL LoadAccelTable(LPCTSTR lpszResourceName);
    HACCEL GetDefaultAccelerator() const { return m_hAccelTable; }
    /// Shows the frame (-1: restored when minimized, else as it is) and brings it to the front.
    virtual void ActivateFrame(int nCmdShow = -1);
    BOOL IsFrameWnd() const override { return TRUE; }
    CString GetTitle() const { return m_strTitle; }
    void SetTitle(LPCTSTR lpszTitle) { m_strTitle = lpszTitle; }

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    void PostNcDestroy() override { delete this; }
    /// Makes what fills the frame: by default the view of the context. FALSE: the frame cannot be made.
    virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext);
    afx_msg int OnCreate(LPCREATESTRUCT lpcs);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    /// Asks the document first (CanCloseFrame).
    afx_msg void OnClose();
    afx_msg void OnInitMenuPopup(CMenu* pMenu, UINT nIndex, BOOL bSysMenu);

    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
    const AFX_MSGMAP* GetMessageMap() const override;

private:
    CView* m_pViewActive = nullptr;
};

#pragma once

#include "afxwnd.h"

/// A frame window with a menu: the usual main window. Made with new, it deletes itself when its window is
/// gone.
///
/// Commands go to the frame and then to the application. When a menu opens, each item's update handler is
/// asked; items whose command nobody handles are grey as long as m_bAutoMenuEnable is TRUE.
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
    afx_msg void OnClose();
    afx_msg void OnInitMenuPopup(CMenu* pMenu, UINT nIndex, BOOL bSysMenu);

    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
    const AFX_MSGMAP* GetMessageMap() const override;
};

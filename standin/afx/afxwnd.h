#pragma once

#include "afxcmd.h"
#include "afxdc.h"

#undef GetNextWindow // a macro of two arguments that would swallow the member

class CDataExchange;
class CFrameWnd;
class CScrollBar;
struct CCreateContext;

inline constexpr int MLF_NOIDLEMSG = 0x0001;  ///< the parent gets no WM_ENTERIDLE
inline constexpr int MLF_NOKICKIDLE = 0x0002; ///< the window gets no WM_KICKIDLE
inline constexpr int MLF_SHOWONIDLE = 0x0004; ///< the window is shown when the queue is empty first

inline constexpr UINT WM_IDLEUPDATECMDUI =
    0x0363; ///< bring items up to date; wParam: grey those without handler
inline constexpr UINT WM_INITIALUPDATE = 0x0364;
inline constexpr UINT WM_KICKIDLE = 0x036A; ///< idle in a modal loop, lParam 0, 1, ...; 0 answers "no more"

/// A window. The object and the window come and go separately: the object is attached to a window by
/// creating, attaching or subclassing it, and m_hWnd is null before and after. While it is attached it is
/// permanent: FromHandle answers it. For other windows FromHandle answers a temporary object, which the
/// application's next idle time deletes; never keep a pointer from FromHandle, GetDlgItem and the like.
///
/// A message passes PreTranslateMessage (queued ones only), WindowProc, OnWndMsg, there OnCommand and
/// OnNotify for the two, then the message map; what nobody handled ends at DefWindowProc. No C++ exception
/// leaves the window procedure.
///
/// Functions named as the system's do what those do with m_hWnd.
class AFX_API CWnd : public CCmdTarget
{
    DECLARE_DYNCREATE(CWnd)

public:
    CWnd() = default;
    explicit CWnd(HWND hWnd) : m_hWnd(hWnd) {}
    /// Destroys a window that is still attached. Too late for a derived class's handlers: destroy it before.
    ~CWnd() override;

    HWND m_hWnd = nullptr; ///< null while there is no window

    operator HWND() const { return m_hWnd; }
    bool operator==(const CWnd& wnd) const { return wnd.m_hWnd == m_hWnd; }
    bool operator!=(const CWnd& wnd) const { return wnd.m_hWnd != m_hWnd; }
    /// The handle, also of a null object pointer.
    HWND GetSafeHwnd() const { return SafeHandle(AfxOpaque(this)); }
    static HWND SafeHandle(const CWnd* pWnd) { return pWnd ? pWnd->m_hWnd : nullptr; }

    static CWnd* PASCAL FromHandle(HWND hWnd);
    /// Null unless an object is attached.
    static CWnd* PASCAL FromHandlePermanent(HWND hWnd);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HWND hWndNew);
    HWND Detach();
    /// Attaches and takes the window's messages. FALSE for a null handle or a window that has an object.
    BOOL SubclassWindow(HWND hWnd);
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    /// Gives the window its former procedure back and detaches; the handle, null without one.
    HWND UnsubclassWindow();

    /// A child window (WS_CHILD is added).
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd, UINT nID, CCreateContext* pContext = nullptr);
    /// A null class name is a plain window. On failure FALSE, and PostNcDestroy was called.
    BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x, int y,
                  int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam = nullptr);
    BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                  const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam = nullptr);
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual BOOL DestroyWindow();
    virtual void PreSubclassWindow() {}
    /// The last call to the object: a window that lives by itself deletes itself here.
    virtual void PostNcDestroy() {}

    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// Offers a message to the object of \p pMsg's window and of each parent or owner up to \p hWndStop.
    static BOOL PASCAL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);
    /// The dialog handling of keys and mouse messages (Tab, Enter, Esc, mnemonics). TRUE when it took the
    /// message.
    BOOL PreTranslateInput(LPMSG lpMsg);
    /// The message being handled.
    static const MSG* PASCAL GetCurrentMessage();

    /// Until EndModalLoop; the answer is what that was given, -1 when the window was destroyed or the program
    /// ends.
    int RunModalLoop(DWORD dwFlags = 0);
    virtual BOOL ContinueModal();
    virtual void EndModalLoop(int nResult);

    /// Moves data between controls and members through DoDataExchange. FALSE when a text was refused;
    /// the user has been told and the focus is on that control.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);
    void UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);
    /// Hands the message being handled to this control first, as its parent's functions do. TRUE when it
    /// handled it.
    BOOL SendChildNotifyLastMsg(LRESULT* pResult = nullptr);
    static BOOL PASCAL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = nullptr);
    /// To all windows below, or only children without \p bDeep, or only those with an object with \p
    /// bOnlyPerm.
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0, BOOL bDeep = TRUE,
                                  BOOL bOnlyPerm = FALSE)
    {
        SendMessageToDescendants(m_hWnd, message, wParam, lParam, bDeep, bOnlyPerm);
    }
    static void PASCAL SendMessageToDescendants(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam,
                                                BOOL bDeep, BOOL bOnlyPerm);

    // Relations. FromHandle answers: temporary for windows without an object, null for none.
    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    CWnd* SetParent(CWnd* pWndNewParent)
    {
        return FromHandle(::SetParent(m_hWnd, SafeHandle(pWndNewParent)));
    }
    CWnd* GetOwner() const;
    void SetOwner(CWnd* pOwnerWnd) { m_hWndOwner = SafeHandle(pOwnerWnd); }
    CWnd* GetTopLevelParent() const;
    CWnd* GetTopLevelOwner() const;
    CWnd* GetParentOwner() const;
    CFrameWnd* GetParentFrame() const;
    CFrameWnd* GetTopLevelFrame() const;
    CWnd* GetLastActivePopup() const { return FromHandle(::GetLastActivePopup(m_hWnd)); }
    CWnd* GetWindow(UINT nCmd) const { return FromHandle(::GetWindow(m_hWnd, nCmd)); }
    CWnd* GetNextWindow(UINT nFlag = GW_HWNDNEXT) const { return FromHandle(::GetWindow(m_hWnd, nFlag)); }
    CWnd* GetTopWindow() const { return FromHandle(::GetTopWindow(m_hWnd)); }
    BOOL IsChild(const CWnd* pWnd) const { return ::IsChild(m_hWnd, SafeHandle(pWnd)); }
    virtual BOOL IsFrameWnd() const { return FALSE; }
    CWnd* ChildWindowFromPoint(POINT point) const
    {
        return FromHandle(::ChildWindowFromPoint(m_hWnd, point));
    }
    static CWnd* PASCAL WindowFromPoint(POINT point) { return FromHandle(::WindowFromPoint(point)); }
    static CWnd* PASCAL FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName)
    {
        return FromHandle(::FindWindowW(lpszClassName, lpszWindowName));
    }
    static CWnd* PASCAL GetDesktopWindow() { return FromHandle(::GetDesktopWindow()); }
    static CWnd* PASCAL GetForegroundWindow() { return FromHandle(::GetForegroundWindow()); }
    static CWnd* PASCAL GetActiveWindow() { return FromHandle(::GetActiveWindow()); }
    static CWnd* PASCAL GetFocus() { return FromHandle(::GetFocus()); }
    static CWnd* PASCAL GetCapture() { return FromHandle(::GetCapture()); }
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    CWnd* SetActiveWindow() { return FromHandle(::SetActiveWindow(m_hWnd)); }
    CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
    BOOL SetForegroundWindow() { return ::SetForegroundWindow(m_hWnd); }

    // Messages.
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::SendMessageW(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        return ::PostMessageW(m_hWnd, message, wParam, lParam);
    }

    // Text, style, font.
    void SetWindowText(LPCTSTR lpszString) { ::SetWindowTextW(m_hWnd, lpszString); }
    int GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const
    {
        return ::GetWindowTextW(m_hWnd, lpszStringBuf, nMaxCount);
    }
    void GetWindowText(CString& rString) const;
    int GetWindowTextLength() const { return ::GetWindowTextLengthW(m_hWnd); }
    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_STYLE)); }
    DWORD GetExStyle() const { return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_EXSTYLE)); }
    /// FALSE when nothing changes. \p nFlags other than 0 go to SetWindowPos with the frame recalculated.
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0)
    {
        return ModifyStyle(m_hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
    }
    BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0)
    {
        return ModifyStyle(m_hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
    }
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE)
    {
        SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(pFont ? pFont->m_hObject : nullptr), bRedraw);
    }
    CFont* GetFont() const { return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT))); }
    HICON SetIcon(HICON hIcon, BOOL bBigIcon)
    {
        return reinterpret_cast<HICON>(SendMessage(WM_SETICON, bBigIcon, reinterpret_cast<LPARAM>(hIcon)));
    }
    HICON GetIcon(BOOL bBigIcon) const { return reinterpret_cast<HICON>(SendMessage(WM_GETICON, bBigIcon)); }
    CMenu* GetMenu() const { return CMenu::FromHandle(::GetMenu(m_hWnd)); }
    BOOL SetMenu(CMenu* pMenu) { return ::SetMenu(m_hWnd, pMenu ? pMenu->m_hMenu : nullptr); }
    void DrawMenuBar() { ::DrawMenuBar(m_hWnd); }
    CMenu* GetSystemMenu(BOOL bRevert) const { return CMenu::FromHandle(::GetSystemMenu(m_hWnd, bRevert)); }

    // Place and visibility.
    void GetWindowRect(LPRECT lpRect) const { ::GetWindowRect(m_hWnd, lpRect); }
    void GetClientRect(LPRECT lpRect) const { ::GetClientRect(m_hWnd, lpRect); }
    void ClientToScreen(LPPOINT lpPoint) const { ::ClientToScreen(m_hWnd, lpPoint); }
    void ClientToScreen(LPRECT lpRect) const { MapRect(m_hWnd, nullptr, lpRect); }
    void ScreenToClient(LPPOINT lpPoint) const { ::ScreenToClient(m_hWnd, lpPoint); }
    void ScreenToClient(LPRECT lpRect) const { MapRect(nullptr, m_hWnd, lpRect); }
    void MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const
    {
        ::MapWindowPoints(m_hWnd, SafeHandle(pwndTo), lpPoint, nCount);
    }
    void MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const { MapRect(m_hWnd, SafeHandle(pwndTo), lpRect); }
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE)
    {
        ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
    }
    void MoveWindow(LPCRECT lpRect, BOOL bRepaint = TRUE)
    {
        MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top,
                   bRepaint);
    }
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags)
    {
        return ::SetWindowPos(m_hWnd, SafeHandle(pWndInsertAfter), x, y, cx, cy, nFlags);
    }
    static const CWnd wndTop, wndBottom, wndTopMost, wndNoTopMost;
    BOOL GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const;
    BOOL SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl) { return ::SetWindowPlacement(m_hWnd, lpwndpl); }
    BOOL BringWindowToTop() { return ::BringWindowToTop(m_hWnd); }
    /// In the middle of the alternate owner, the owner or the parent, within its screen's work area.
    void CenterWindow(CWnd* pAlternateOwner = nullptr);
    BOOL ShowWindow(int nCmdShow) { return ::ShowWindow(m_hWnd, nCmdShow); }
    BOOL EnableWindow(BOOL bEnable = TRUE) { return ::EnableWindow(m_hWnd, bEnable); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    BOOL IsIconic() const { return ::IsIconic(m_hWnd); }
    BOOL IsZoomed() const { return ::IsZoomed(m_hWnd); }
    virtual void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = 0);
    int SetWindowRgn(HRGN hRgn, BOOL bRedraw) { return ::SetWindowRgn(m_hWnd, hRgn, bRedraw); }

    // Painting.
    CDC* GetDC() { return CDC::FromHandle(::GetDC(m_hWnd)); }
    CDC* GetWindowDC() { return CDC::FromHandle(::GetWindowDC(m_hWnd)); }
    int ReleaseDC(CDC* pDC) { return ::ReleaseDC(m_hWnd, pDC->m_hDC); }
    CDC* BeginPaint(LPPAINTSTRUCT lpPaint) { return CDC::FromHandle(::BeginPaint(m_hWnd, lpPaint)); }
    void EndPaint(LPPAINTSTRUCT lpPaint) { ::EndPaint(m_hWnd, lpPaint); }
    void Invalidate(BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, bErase); }
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, lpRect, bErase); }
    void ValidateRect(LPCRECT lpRect) { ::ValidateRect(m_hWnd, lpRect); }
    BOOL GetUpdateRect(LPRECT lpRect, BOOL bErase = FALSE) { return ::GetUpdateRect(m_hWnd, lpRect, bErase); }
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    BOOL RedrawWindow(LPCRECT lpRectUpdate = nullptr, CRgn* prgnUpdate = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE)
    {
        return ::RedrawWindow(m_hWnd, lpRectUpdate, prgnUpdate ? static_cast<HRGN>(*prgnUpdate) : nullptr,
                              flags);
    }
    void SetRedraw(BOOL bRedraw = TRUE) { SendMessage(WM_SETREDRAW, static_cast<WPARAM>(bRedraw)); }
    BOOL LockWindowUpdate() { return ::LockWindowUpdate(m_hWnd); }
    void UnlockWindowUpdate() { ::LockWindowUpdate(nullptr); }

    // Timers and scrolling.
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse, TIMERPROC lpfnTimer)
    {
        return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
    }
    BOOL KillTimer(UINT_PTR nIDEvent) { return ::KillTimer(m_hWnd, nIDEvent); }
    int GetScrollPos(int nBar) const { return ::GetScrollPos(m_hWnd, nBar); }
    int SetScrollPos(int nBar, int nPos, BOOL bRedraw = TRUE)
    {
        return ::SetScrollPos(m_hWnd, nBar, nPos, bRedraw);
    }
    void SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw = TRUE)
    {
        ::SetScrollRange(m_hWnd, nBar, nMinPos, nMaxPos, bRedraw);
    }
    BOOL GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    BOOL SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    void ShowScrollBar(UINT nBar, BOOL bShow = TRUE)
    {
        ::ShowScrollBar(m_hWnd, static_cast<int>(nBar), bShow);
    }
    void ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect = nullptr, LPCRECT lpClipRect = nullptr)
    {
        ::ScrollWindow(m_hWnd, xAmount, yAmount, lpRect, lpClipRect);
    }

    // Dialog items.
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    int SetDlgCtrlID(int nID) { return static_cast<int>(::SetWindowLongPtrW(m_hWnd, GWLP_ID, nID)); }
    CWnd* GetDlgItem(int nID) const { return FromHandle(::GetDlgItem(m_hWnd, nID)); }
    void GetDlgItem(int nID, HWND* phWnd) const { *phWnd = ::GetDlgItem(m_hWnd, nID); }
    CWnd* GetDescendantWindow(int nID, BOOL bOnlyPerm = FALSE) const
    {
        return GetDescendantWindow(m_hWnd, nID, bOnlyPerm);
    }
    static CWnd* PASCAL GetDescendantWindow(HWND hWnd, int nID, BOOL bOnlyPerm);
    int GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const
    {
        return static_cast<int>(::GetDlgItemTextW(m_hWnd, nID, lpStr, nMaxCount));
    }
    int GetDlgItemText(int nID, CString& rString) const;
    void SetDlgItemText(int nID, LPCTSTR lpszString) { ::SetDlgItemTextW(m_hWnd, nID, lpszString); }
    UINT GetDlgItemInt(int nID, BOOL* lpTrans = nullptr, BOOL bSigned = TRUE) const
    {
        return ::GetDlgItemInt(m_hWnd, nID, lpTrans, bSigned);
    }
    void SetDlgItemInt(int nID, UINT nValue, BOOL bSigned = TRUE)
    {
        ::SetDlgItemInt(m_hWnd, nID, nValue, bSigned);
    }
    LRESULT SendDlgItemMessage(int nID, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        return ::SendDlgItemMessageW(m_hWnd, nID, message, wParam, lParam);
    }
    void CheckDlgButton(int nIDButton, UINT nCheck) { ::CheckDlgButton(m_hWnd, nIDButton, nCheck); }
    UINT IsDlgButtonChecked(int nIDButton) const { return ::IsDlgButtonChecked(m_hWnd, nIDButton); }
    void CheckRadioButton(int nIDFirst, int nIDLast, int nIDCheck)
    {
        ::CheckRadioButton(m_hWnd, nIDFirst, nIDLast, nIDCheck);
    }
    /// The ID of the checked button, 0 for none.
    int GetCheckedRadioButton(int nIDFirst, int nIDLast) const;
    CWnd* GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const
    {
        return FromHandle(::GetNextDlgTabItem(m_hWnd, SafeHandle(pWndCtl), bPrevious));
    }
    CWnd* GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const
    {
        return FromHandle(::GetNextDlgGroupItem(m_hWnd, SafeHandle(pWndCtl), bPrevious));
    }
    /// Fills list and combo boxes from the dialog's initial lines (resource type 240). FALSE for a damaged
    /// resource.
    BOOL ExecuteDlgInit(LPCTSTR lpszResourceName);
    BOOL ExecuteDlgInit(LPVOID lpResource, UINT nBytes);

    int MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption = nullptr, UINT nType = MB_OK);
    BOOL OpenClipboard() { return ::OpenClipboard(m_hWnd); }
    void DragAcceptFiles(BOOL bAccept = TRUE) { ::DragAcceptFiles(m_hWnd, bAccept); }
    void CreateCaret(CBitmap* pBitmap) { ::CreateCaret(m_hWnd, *pBitmap, 0, 0); }
    virtual CScrollBar* GetScrollBarCtrl(int) const { return nullptr; }

    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override
    {
        return CCmdTarget::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }

protected:
    friend class CDataExchange;
    friend struct AfxWndAccess;
    virtual void DoDataExchange(CDataExchange*) {}
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// The message being handled, to DefWindowProc, with the arguments it came with.
    LRESULT Default();
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// A message about this control, from its parent. TRUE keeps it from the parent.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult);
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual WNDPROC* GetSuperWndProcAddr() { return nullptr; }

    BOOL CreateDlg(LPCTSTR lpszTemplateName, CWnd* pParentWnd);
    BOOL CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst);
    static BOOL ModifyStyle(HWND hWnd, int nIndex, DWORD dwRemove, DWORD dwAdd, UINT nFlags);

    // What the lines of a message map call. Each gives the message being handled, as it came, to the system's
    // default; a derived class overrides by the same name in its own map.

    // The parent's copy of a control's message: the control itself is asked first.
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    afx_msg int OnCompareItem(int nIDCtl, LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    afx_msg void OnDeleteItem(int nIDCtl, LPDELETEITEMSTRUCT lpDeleteItemStruct);
    afx_msg void OnParentNotify(UINT message, LPARAM lParam);

    /// Detaches the object and calls PostNcDestroy.
    afx_msg void OnNcDestroy();
    /// FALSE: the message goes on to the default, and so to the parent.
    afx_msg BOOL OnMouseWheel(UINT, short, CPoint) { return FALSE; }

    afx_msg int OnCreate(LPCREATESTRUCT) { return static_cast<int>(Default()); }
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT) { return static_cast<BOOL>(Default()); }
    afx_msg BOOL OnEraseBkgnd(CDC*) { return static_cast<BOOL>(Default()); }
    afx_msg int OnMouseActivate(CWnd*, UINT, UINT) { return static_cast<int>(Default()); }
    afx_msg BOOL OnNcActivate(BOOL) { return static_cast<BOOL>(Default()); }
    afx_msg LRESULT OnNcHitTest(CPoint) { return Default(); }
    afx_msg BOOL OnSetCursor(CWnd*, UINT, UINT) { return static_cast<BOOL>(Default()); }
    afx_msg UINT OnGetDlgCode() { return static_cast<UINT>(Default()); }
    afx_msg HCURSOR OnQueryDragIcon() { return reinterpret_cast<HCURSOR>(Default()); }
    afx_msg BOOL OnQueryEndSession() { return static_cast<BOOL>(Default()); }
    afx_msg LRESULT OnThemeChanged() { return Default(); }
    afx_msg BOOL OnCopyData(CWnd*, COPYDATASTRUCT*) { return static_cast<BOOL>(Default()); }
    afx_msg BOOL OnHelpInfo(HELPINFO*) { return static_cast<BOOL>(Default()); }

    afx_msg void OnDestroy() { Default(); }
    afx_msg void OnClose() { Default(); }
    afx_msg void OnPaint() { Default(); }
    afx_msg void OnSize(UINT, int, int) { Default(); }
    afx_msg void OnSizing(UINT, LPRECT) { Default(); }
    afx_msg void OnMove(int, int) { Default(); }
    afx_msg void OnMoving(UINT, LPRECT) { Default(); }
    afx_msg void OnTimer(UINT_PTR) { Default(); }
    afx_msg void OnLButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnRButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnRButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnRButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnMButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnMButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnMButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnMouseMove(UINT, CPoint) { Default(); }
    afx_msg void OnMouseLeave() { Default(); }
    afx_msg void OnNcLButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnNcLButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnNcLButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnNcRButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnNcRButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnNcMouseMove(UINT, CPoint) { Default(); }
    afx_msg void OnKeyDown(UINT, UINT, UINT) { Default(); }
    afx_msg void OnKeyUp(UINT, UINT, UINT) { Default(); }
    afx_msg void OnChar(UINT, UINT, UINT) { Default(); }
    afx_msg void OnDeadChar(UINT, UINT, UINT) { Default(); }
    afx_msg void OnSysKeyDown(UINT, UINT, UINT) { Default(); }
    afx_msg void OnSysKeyUp(UINT, UINT, UINT) { Default(); }
    afx_msg void OnSysChar(UINT, UINT, UINT) { Default(); }
    afx_msg void OnSysCommand(UINT, LPARAM) { Default(); }
    afx_msg void OnSetFocus(CWnd*) { Default(); }
    afx_msg void OnKillFocus(CWnd*) { Default(); }
    afx_msg void OnContextMenu(CWnd*, CPoint) { Default(); }
    afx_msg void OnInitMenu(CMenu*) { Default(); }
    afx_msg void OnInitMenuPopup(CMenu*, UINT, BOOL) { Default(); }
    afx_msg void OnMenuSelect(UINT, UINT, HMENU) { Default(); }
    afx_msg void OnEnterIdle(UINT, CWnd*) { Default(); }
    afx_msg void OnShowWindow(BOOL, UINT) { Default(); }
    afx_msg void OnActivate(UINT, CWnd*, BOOL) { Default(); }
    afx_msg void OnActivateApp(BOOL, DWORD) { Default(); }
    afx_msg void OnNcPaint() { Default(); }
    afx_msg void OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*) { Default(); }
    afx_msg void OnGetMinMaxInfo(MINMAXINFO*) { Default(); }
    afx_msg void OnEnable(BOOL) { Default(); }
    afx_msg void OnCancelMode() { Default(); }
    afx_msg void OnCaptureChanged(CWnd*) { Default(); }
    afx_msg void OnWindowPosChanging(WINDOWPOS*) { Default(); }
    afx_msg void OnWindowPosChanged(WINDOWPOS*) { Default(); }
    afx_msg void OnEndSession(BOOL) { Default(); }
    afx_msg void OnSysColorChange() { Default(); }
    afx_msg void OnSettingChange(UINT, LPCTSTR) { Default(); }
    afx_msg void OnDropFiles(HDROP) { Default(); }
    afx_msg void OnChildActivate() { Default(); }

    HWND m_hWndOwner = nullptr;
    UINT m_nFlags = 0;
    int m_nModalResult = 0;
    WNDPROC m_pfnSuper = nullptr; ///< what handled the window's messages before; null: the system's default

    enum : UINT
    {
        WF_MODALLOOP = 0x0010,
        WF_CONTINUEMODAL = 0x0100,
        WF_TEMPHIDE = 0x0020,
    };

    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
    const AFX_MSGMAP* GetMessageMap() const override;

private:
    static void MapRect(HWND hFrom, HWND hTo, LPRECT lpRect)
    {
        ::MapWindowPoints(hFrom, hTo, reinterpret_cast<POINT*>(lpRect), 2);
    }
    void EndModalLoops();
};

/// The window procedure of every attached window.
AFX_API LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
/// A window class with these traits, registered once; the name is valid until the program ends. Throws
/// CResourceException when it cannot be registered.
AFX_API LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr,
                                    HBRUSH hbrBackground = nullptr, HICON hIcon = nullptr);
/// TRUE also when the class was registered before.
AFX_API BOOL AfxRegisterClass(WNDCLASS* lpWndClass);
/// From here on the next window that this thread creates gets the object. Used around a creation that the
/// framework does not do itself.
AFX_API void AfxHookWindowCreate(CWnd* pWnd);
/// FALSE when no window was created in between.
AFX_API BOOL AfxUnhookWindowCreate();

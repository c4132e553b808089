#pragma once

#include "afxmenu.h"

#define afx_msg ///< marks the functions of a message map
#define AFXAPI

/// A message that a parent hands back to the control that caused it has this added.
#define WM_REFLECT_BASE 0xBC00
/// All WM_CTLCOLORxxx messages under one number in a message map.
#define WM_CTLCOLOR 0x0019

/// Who handles a command: filled instead of calling when OnCmdMsg is only asked.
struct AFX_CMDHANDLERINFO
{
    class CCmdTarget* pTarget;
    const struct AFX_MSGMAP_ENTRY* pEntry;
};

/// What a message brings, and what its handler answered.
struct AFX_MSGCALL
{
    UINT nMessage;
    WPARAM wParam;
    LPARAM lParam;
    LRESULT lResult;
    UINT nID;         ///< of the command or control
    NMHDR* pNMHDR;    ///< of a notification
    LRESULT* pResult; ///< where a notification's answer goes
    class CCmdUI* pCmdUI;
    BOOL bHandled; ///< FALSE: the handler passes the message on
};

/// One line of a message map. \p pfnCall unpacks the message and calls the member function, whose type the
/// compiler has checked against the documented one.
struct AFX_MSGMAP_ENTRY
{
    UINT nMessage;
    UINT nCode;
    UINT nID;
    UINT nLastID;
    const UINT* pnRegistered; ///< where the number of a registered message stands, else null
    void (*pfnCall)(class CCmdTarget*, AFX_MSGCALL&);
};

/// A class's lines, ended by one without a function, and its base class's map.
struct AFX_MSGMAP
{
    const AFX_MSGMAP* (*pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

struct AFX_MODULE_STATE;

/// What OnCmdMsg's code says besides a control's notification code.
inline constexpr int CN_COMMAND = 0;
inline constexpr int CN_UPDATE_COMMAND_UI = -1;

/// Base of everything that takes commands. Remembers the module that it was made in.
class AFX_API CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)

public:
    CCmdTarget();

    /// Offers a command (\p nCode CN_COMMAND), an update of its items (CN_UPDATE_COMMAND_UI, \p pExtra the
    /// CCmdUI) or a control's notification (the code in the low word, WM_NOTIFY and the like in the high
    /// one) to this object's message map, derived class first. TRUE when somebody handled it. With
    /// \p pHandlerInfo the handler is named there and not called.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

    void BeginWaitCursor();
    void EndWaitCursor();
    void RestoreWaitCursor();

    AFX_MODULE_STATE* m_pModuleState;

protected:
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
};

/// One item of a menu, or another object, while its state is brought up to date.
class AFX_API CCmdUI
{
public:
    CCmdUI() = default;
    virtual ~CCmdUI() = default;

    UINT m_nID = 0;
    UINT m_nIndex = 0;             ///< position in the menu
    CMenu* m_pMenu = nullptr;      ///< null when the item is a window
    CMenu* m_pSubMenu = nullptr;   ///< set when the item itself is a popup
    CWnd* m_pOther = nullptr;      ///< the window that stands for the command
    BOOL m_bEnableChanged = FALSE; ///< a handler has called Enable
    BOOL m_bContinueRouting = FALSE;
    UINT m_nIndexMax = 0; ///< items in the menu

    virtual void Enable(BOOL bOn = TRUE);
    virtual void SetCheck(int nCheck = 1);
    virtual void SetRadio(BOOL bOn = TRUE);
    virtual void SetText(LPCTSTR lpszText);
    /// For a handler that wants the next object of the route asked as well.
    void ContinueRouting() { m_bContinueRouting = TRUE; }

    /// Asks the target's handlers; with \p bDisableIfNoHndler an item whose command nobody handles goes grey.
    BOOL DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);
    /// The same for each item of an open menu; what a frame does for WM_INITMENUPOPUP.
    static void UpdateMenu(CMenu* pMenu, CCmdTarget* pTarget, BOOL bDisableIfNoHndler);
};

/// The cursor is an hourglass while the object lives.
class AFX_API CWaitCursor
{
public:
    CWaitCursor();
    ~CWaitCursor();
    void Restore();

private:
    HCURSOR m_hFormer;
};

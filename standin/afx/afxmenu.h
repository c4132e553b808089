#pragma once

#include "afxrect.h"

class CWnd;
class CBitmap;

/// A menu. The destructor destroys the menu it owns; Detach gives it up (a menu that was set into a window
/// belongs to the window). GetSubMenu and FromHandle answer temporary objects, as CGdiObject's.
///
/// Items are named by position with MF_BYPOSITION, otherwise by command. Functions that change an item
/// answer FALSE when there is no such item or the menu is gone.
class AFX_API CMenu : public CObject
{
    DECLARE_DYNCREATE(CMenu)

public:
    CMenu() = default;
    ~CMenu() override;
    CMenu(const CMenu&) = delete;
    CMenu& operator=(const CMenu&) = delete;

    HMENU m_hMenu = nullptr;

    operator HMENU() const { return m_hMenu; }
    HMENU GetSafeHmenu() const { return HandleOf(AfxOpaque(this)); }
    static CMenu* PASCAL FromHandle(HMENU hMenu);
    BOOL Attach(HMENU hMenu);
    HMENU Detach();

    BOOL CreateMenu() { return Attach(::CreateMenu()); }
    BOOL CreatePopupMenu() { return Attach(::CreatePopupMenu()); }
    /// From the module that AfxFindResourceHandle names.
    BOOL LoadMenu(LPCTSTR lpszResourceName);
    BOOL LoadMenu(UINT nIDResource) { return LoadMenu(MAKEINTRESOURCEW(nIDResource)); }
    BOOL LoadMenuIndirect(const void* lpMenuTemplate) { return Attach(::LoadMenuIndirectW(lpMenuTemplate)); }
    BOOL DestroyMenu();

    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr)
    {
        return ::AppendMenuW(m_hMenu, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr)
    {
        return ::InsertMenuW(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr)
    {
        return ::ModifyMenuW(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL DeleteMenu(UINT nPosition, UINT nFlags) { return ::DeleteMenu(m_hMenu, nPosition, nFlags); }
    BOOL RemoveMenu(UINT nPosition, UINT nFlags) { return ::RemoveMenu(m_hMenu, nPosition, nFlags); }
    BOOL InsertMenuItem(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE)
    {
        return ::InsertMenuItemW(m_hMenu, uItem, fByPos, lpMenuItemInfo);
    }
    BOOL GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE)
    {
        return ::GetMenuItemInfoW(m_hMenu, uItem, fByPos, lpMenuItemInfo);
    }
    BOOL SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE)
    {
        return ::SetMenuItemInfoW(m_hMenu, uItem, fByPos, lpMenuItemInfo);
    }

    /// The former state (MF_CHECKED, MF_UNCHECKED), or UINT of -1.
    UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck)
    {
        return ::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck);
    }
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable)
    {
        return static_cast<UINT>(::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable));
    }
    BOOL CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags)
    {
        return ::CheckMenuRadioItem(m_hMenu, nIDFirst, nIDLast, nIDItem, nFlags);
    }
    BOOL SetDefaultItem(UINT uItem, BOOL fByPos = FALSE)
    {
        return ::SetMenuDefaultItem(m_hMenu, uItem, static_cast<UINT>(fByPos));
    }

    /// UINT of -1 when the menu is gone.
    UINT GetMenuItemCount() const { return static_cast<UINT>(::GetMenuItemCount(m_hMenu)); }
    /// 0 for a separator, UINT of -1 for a popup or a position that does not exist.
    UINT GetMenuItemID(int nPos) const { return ::GetMenuItemID(m_hMenu, nPos); }
    UINT GetMenuState(UINT nID, UINT nFlags) const { return ::GetMenuState(m_hMenu, nID, nFlags); }
    int GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const
    {
        return ::GetMenuStringW(m_hMenu, nIDItem, lpString, nMaxCount, nFlags);
    }
    /// The whole text with its accelerator, however long; the length, 0 for no text or no item.
    int GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const;
    /// Null when the item has no popup.
    CMenu* GetSubMenu(int nPos) const { return FromHandle(::GetSubMenu(m_hMenu, nPos)); }

    /// Shows the menu as a popup until the user chose; \p pWnd gets WM_COMMAND. With TPM_RETURNCMD the
    /// answer is the chosen command or 0.
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = nullptr);
    BOOL TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm);

    /// For owner-drawn items of a derived class, called through the owner window's default handling.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);

private:
    static HMENU HandleOf(const CMenu* pMenu) { return pMenu ? pMenu->m_hMenu : nullptr; }
};

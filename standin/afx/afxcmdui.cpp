#include "afxroute.h"
#include "afxstate.h"

#include <algorithm>

void CCmdUI::Enable(BOOL bOn)
{
    m_bEnableChanged = TRUE;
    if (m_pMenu)
    {
        if (!m_pSubMenu) // popups stay open to their items
            m_pMenu->EnableMenuItem(m_nIndex, MF_BYPOSITION | (bOn ? MF_ENABLED : MF_DISABLED | MF_GRAYED));
        return;
    }
    if (!m_pOther)
        return;
    if (!bOn && CWnd::GetFocus() == m_pOther) // a disabled window must not keep the focus
        m_pOther->GetParent()->SendMessage(WM_NEXTDLGCTL);
    m_pOther->EnableWindow(bOn);
}

void CCmdUI::SetCheck(int nCheck)
{
    if (m_pMenu)
    {
        if (!m_pSubMenu)
            m_pMenu->CheckMenuItem(m_nIndex, MF_BYPOSITION | (nCheck ? MF_CHECKED : MF_UNCHECKED));
        return;
    }
    if (m_pOther && (m_pOther->SendMessage(WM_GETDLGCODE) & DLGC_BUTTON))
        m_pOther->SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck));
}

void CCmdUI::SetRadio(BOOL bOn)
{
    SetCheck(bOn);
    if (!m_pMenu || m_pSubMenu || !bOn)
        return;
    MENUITEMINFOW info{};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE;
    if (m_pMenu->GetMenuItemInfo(m_nIndex, &info, TRUE))
    {
        info.fType |= MFT_RADIOCHECK;
        m_pMenu->SetMenuItemInfo(m_nIndex, &info, TRUE);
    }
}

void CCmdUI::SetText(LPCTSTR lpszText)
{
    if (m_pMenu)
    {
        if (m_pSubMenu)
            return;
        MENUITEMINFOW info{};
        info.cbSize = sizeof(info);
        info.fMask = MIIM_STRING;
        info.dwTypeData = const_cast<LPTSTR>(lpszText);
        m_pMenu->SetMenuItemInfo(m_nIndex, &info, TRUE);
        return;
    }
    if (!m_pOther)
        return;
    CString strOld; // an unchanged text is not set again: it would flicker
    m_pOther->GetWindowText(strOld);
    if (strOld != lpszText)
        m_pOther->SetWindowText(lpszText);
}

BOOL CCmdUI::DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler)
{
    if (m_nID == 0 || LOWORD(m_nID) == 0xFFFF)
        return TRUE; // separators and popups have no handler
    m_bEnableChanged = FALSE;
    const BOOL bResult = pTarget->OnCmdMsg(m_nID, CN_UPDATE_COMMAND_UI, this, nullptr);
    if (bDisableIfNoHndler && !m_bEnableChanged)
    {
        AFX_CMDHANDLERINFO info{};
        Enable(pTarget->OnCmdMsg(m_nID, CN_COMMAND, this, &info));
    }
    return bResult;
}

void CCmdUI::UpdateMenu(CMenu* pMenu, CCmdTarget* pTarget, BOOL bDisableIfNoHndler)
{
    CCmdUI state;
    state.m_pMenu = pMenu;
    state.m_nIndexMax = pMenu->GetMenuItemCount();
    for (state.m_nIndex = 0; state.m_nIndex < state.m_nIndexMax; ++state.m_nIndex)
    {
        state.m_nID = pMenu->GetMenuItemID(static_cast<int>(state.m_nIndex));
        state.m_pSubMenu = nullptr;
        if (state.m_nID == 0)
            continue; // a separator
        if (state.m_nID == static_cast<UINT>(-1))
        {
            // A popup takes the state of its first command, for those who grey it by that one.
            state.m_pSubMenu = pMenu->GetSubMenu(static_cast<int>(state.m_nIndex));
            if (!state.m_pSubMenu || (state.m_nID = state.m_pSubMenu->GetMenuItemID(0)) == 0 ||
                state.m_nID == static_cast<UINT>(-1))
                continue;
            state.DoUpdate(pTarget, FALSE);
        }
        else
            state.DoUpdate(pTarget, bDisableIfNoHndler && state.m_nID < 0xF000);
        // A handler may have changed the menu.
        const UINT nCount = pMenu->GetMenuItemCount();
        if (nCount < state.m_nIndexMax)
            state.m_nIndex -= std::min(state.m_nIndex + 1, state.m_nIndexMax - nCount);
        state.m_nIndexMax = nCount;
    }
}

#include "TestApp.h"

namespace
{
class Menus : public WindowTest
{
};

/// A menu with its popups as one line of text: texts, commands, states.
std::string Dump(const CMenu& menu)
{
    std::string text = "{";
    for (UINT i = 0; i < menu.GetMenuItemCount(); ++i)
    {
        CString strItem;
        menu.GetMenuString(i, strItem, MF_BYPOSITION);
        const UINT nState = menu.GetMenuState(i, MF_BYPOSITION);
        text += " " + std::string(CStringA(strItem).GetString());
        if (const CMenu* pSub = menu.GetSubMenu(static_cast<int>(i)))
        {
            text += Dump(*pSub);
            continue;
        }
        if (nState & MF_SEPARATOR) // some systems call it grey, some do not
        {
            text += "-";
            continue;
        }
        text += nState & MF_GRAYED ? "(grey)" : "";
        text += nState & MF_CHECKED ? "(check)" : "";
    }
    return text + " }";
}

TEST_F(Menus, ResourceMenuIsReadAtAnyDepth)
{
    CMenu menu;
    ASSERT_TRUE(menu.LoadMenu(IDR_MENU));
    EXPECT_EQ(Dump(menu), "{ &File{ &Save\tCtrl+S - S&end } &View{ &Grid Mode &1 Mode &2 } }");
    EXPECT_EQ(menu.GetMenuItemID(0), static_cast<UINT>(-1));
    EXPECT_EQ(menu.GetSubMenu(0)->GetMenuItemID(2), static_cast<UINT>(ID_FILE_SEND));
    EXPECT_EQ(menu.GetSubMenu(7), nullptr);
    CMenu none;
    EXPECT_FALSE(none.LoadMenu(999u));
}

TEST_F(Menus, ItemsChangeByPositionAndByCommand)
{
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    const CString strLong(L'x', 3000);
    ASSERT_TRUE(menu.AppendMenu(MF_STRING, 1, L"one"));
    ASSERT_TRUE(menu.AppendMenu(MF_STRING, 2, L"two"));
    ASSERT_TRUE(menu.InsertMenu(1, MF_BYPOSITION | MF_SEPARATOR));
    ASSERT_TRUE(menu.ModifyMenu(2, MF_BYCOMMAND | MF_STRING, 2, L"deux\tF2"));
    EXPECT_EQ(Dump(menu), "{ one - deux\tF2 }");
    MENUITEMINFOW info{};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_STRING;
    info.dwTypeData = const_cast<LPTSTR>(strLong.GetString());
    ASSERT_TRUE(menu.SetMenuItemInfo(0, &info, TRUE));
    CString strRead;
    EXPECT_EQ(menu.GetMenuString(0, strRead, MF_BYPOSITION), 3000);
    EXPECT_EQ(strRead, strLong);
    ASSERT_TRUE(menu.DeleteMenu(0, MF_BYPOSITION));
    EXPECT_EQ(Dump(menu), "{ - deux\tF2 }");
    EXPECT_EQ(menu.GetMenuString(9, strRead, MF_BYPOSITION), 0);
    EXPECT_EQ(strRead, L"");
}

TEST_F(Menus, MenuThatIsGoneAnswersFailure)
{
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    ::DestroyMenu(menu.m_hMenu);
    EXPECT_EQ(menu.GetMenuItemCount(), static_cast<UINT>(-1));
    EXPECT_FALSE(menu.AppendMenu(MF_STRING, 1, L"one"));
    CString strText(L"old");
    EXPECT_EQ(menu.GetMenuString(0, strText, MF_BYPOSITION), 0);
    EXPECT_EQ(strText, L"");
    EXPECT_FALSE(menu.DestroyMenu());
}

class CMenuFrame : public CFrameWnd
{
public:
    BOOL m_bMode2 = TRUE;
    int m_nSaves = 0;

protected:
    afx_msg void OnSave() { ++m_nSaves; }
    afx_msg void OnGrid() {}
    afx_msg void OnUpdateGrid(CCmdUI* pCmdUI)
    {
        pCmdUI->SetCheck(1);
        pCmdUI->SetText(L"Raster");
    }
    afx_msg void OnUpdateMode(CCmdUI* pCmdUI)
    {
        pCmdUI->SetRadio(m_bMode2 == (pCmdUI->m_nID == ID_VIEW_MODE2));
    }
    afx_msg void OnMode(UINT) {}
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CMenuFrame, CFrameWnd)
ON_COMMAND(ID_FILE_SAVE, &CMenuFrame::OnSave)
ON_COMMAND(ID_VIEW_GRID, &CMenuFrame::OnGrid)
ON_COMMAND_RANGE(ID_VIEW_MODE1, ID_VIEW_MODE2, &CMenuFrame::OnMode)
ON_UPDATE_COMMAND_UI(ID_VIEW_GRID, &CMenuFrame::OnUpdateGrid)
ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_MODE1, ID_VIEW_MODE2, &CMenuFrame::OnUpdateMode)
END_MESSAGE_MAP()

TEST_F(Menus, OpenedMenuShowsTheStateThatItsHandlersGive)
{
    auto* pFrame = new CMenuFrame;
    ASSERT_TRUE(pFrame->LoadFrame(IDR_MENU));
    const HMENU hMenu = pFrame->m_hMenuDefault;
    for (int i = 0; i < 2; ++i)
        pFrame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(::GetSubMenu(hMenu, i)),
                            MAKELPARAM(i, FALSE));
    const CMenu* pMenu = CMenu::FromHandle(hMenu);
    EXPECT_EQ(Dump(*pMenu),
              "{ &File{ &Save\tCtrl+S - S&end(grey) } &View{ Raster(check) Mode &1 Mode &2(check) } }");
    pFrame->m_bMode2 = FALSE;
    pFrame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(::GetSubMenu(hMenu, 1)),
                        MAKELPARAM(1, FALSE));
    EXPECT_EQ(Dump(*CMenu::FromHandle(::GetSubMenu(hMenu, 1))), "{ Raster(check) Mode &1(check) Mode &2 }");
    pFrame->DestroyWindow();
}

TEST_F(Menus, FrameDeletesItselfAndEndsTheProgramWhenItIsTheMainWindow)
{
    auto* pFrame = new CMenuFrame;
    ASSERT_TRUE(pFrame->Create(nullptr, L"frame"));
    theApp.m_pMainWnd = pFrame;
    EXPECT_EQ(AfxGetMainWnd(), pFrame);
    CStatic child;
    ASSERT_TRUE(child.Create(L"", WS_VISIBLE, CRect(0, 0, 9, 9), pFrame, 1));
    EXPECT_EQ(child.GetParentFrame(), pFrame);
    EXPECT_EQ(child.GetTopLevelFrame(), pFrame);
    pFrame->SendMessage(WM_COMMAND, ID_FILE_SAVE);
    EXPECT_EQ(pFrame->m_nSaves, 1);
    pFrame->PostMessage(WM_CLOSE);
    EXPECT_EQ(theApp.Run(), 0);
    EXPECT_EQ(theApp.m_pMainWnd, nullptr);
    EXPECT_EQ(child.m_hWnd, nullptr);
}

TEST_F(Menus, FrameWithoutItsMenuResourceIsNotMade) { EXPECT_FALSE((new CMenuFrame)->LoadFrame(999)); }
} // namespace

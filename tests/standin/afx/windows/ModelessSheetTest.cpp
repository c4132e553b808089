#include "TestSheet.h"

namespace
{
class ModelessSheets : public WindowTest
{
protected:
    Log m_log;
    CHostWnd m_host;
    CStepSheet m_sheet{m_log};
    CLogPage m_first{IDD_PAGE1, "1", m_log};
    CLogPage m_second{IDD_PAGE2, "2", m_log};

    void SetUp() override
    {
        WindowTest::SetUp();
        m_sheet.AddPage(&m_first);
        m_sheet.AddPage(&m_second);
    }
};

TEST_F(ModelessSheets, SheetStaysWithoutButtonsUntilItIsDestroyed)
{
    ASSERT_TRUE(m_sheet.Create(&m_host));
    EXPECT_TRUE(m_sheet.IsModeless());
    EXPECT_TRUE(m_host.IsWindowEnabled());
    PumpAll();
    EXPECT_TRUE(m_sheet.IsWindowVisible());
    for (UINT nID : {static_cast<UINT>(IDOK), static_cast<UINT>(IDCANCEL), ID_APPLY_NOW})
    {
        const HWND hButton = ::GetDlgItem(m_sheet.m_hWnd, static_cast<int>(nID));
        EXPECT_FALSE(hButton && ::IsWindowVisible(hButton)) << nID;
    }
    CRect tab;
    m_sheet.GetTabControl()->GetWindowRect(tab);
    m_sheet.ScreenToClient(tab);
    CRect client;
    m_sheet.GetClientRect(client);
    EXPECT_EQ(client.bottom - tab.bottom, tab.left);
    EXPECT_TRUE(m_sheet.SetActivePage(1));
    EXPECT_TRUE(m_sheet.DestroyWindow());
    EXPECT_EQ(m_log, (Log{"1 init", "1 set active", "sheet init", "1 kill active", "2 init", "2 set active",
                          "1 gone", "2 gone", "sheet gone"}));
}

TEST_F(ModelessSheets, ClosingItCancelsThePagesAndDestroysIt)
{
    ASSERT_TRUE(m_sheet.Create(&m_host));
    m_sheet.PostMessage(WM_SYSCOMMAND, SC_CLOSE);
    EXPECT_TRUE(PumpUntil([&] { return m_sheet.m_hWnd == nullptr; }));
    EXPECT_EQ(m_log, (Log{"1 init", "1 set active", "sheet init", "1 query cancel", "1 reset", "1 cancel",
                          "1 gone", "sheet gone"}));
}

TEST_F(ModelessSheets, StyleIsThatOfTheCaller)
{
    ASSERT_TRUE(m_sheet.Create(&m_host, WS_POPUP | WS_CAPTION | WS_THICKFRAME, WS_EX_TOOLWINDOW));
    EXPECT_FALSE(m_sheet.IsWindowVisible());
    EXPECT_TRUE(m_sheet.GetStyle() & WS_THICKFRAME);
    EXPECT_FALSE(m_sheet.GetStyle() & WS_SYSMENU);
    EXPECT_TRUE(m_sheet.GetExStyle() & WS_EX_TOOLWINDOW);
    m_sheet.DestroyWindow();
}

TEST_F(ModelessSheets, SheetCanBeAChildOfAnyWindow)
{
    ASSERT_TRUE(m_sheet.Create(&m_host, WS_CHILD | WS_VISIBLE | DS_CONTROL));
    EXPECT_EQ(m_sheet.GetParent(), &m_host);
    EXPECT_TRUE(m_sheet.IsWindowVisible());
    EXPECT_TRUE(m_sheet.SetActivePage(1));
    EXPECT_EQ(m_sheet.GetActivePage(), &m_second);
    m_host.DestroyWindow();
    EXPECT_EQ(m_sheet.m_hWnd, nullptr);
    EXPECT_EQ(m_log.back(), "sheet gone");
}

TEST_F(ModelessSheets, SheetMayDestroyItselfInAPagesHandler)
{
    m_second.m_onButton = [&] { m_sheet.DestroyWindow(); };
    ASSERT_TRUE(m_sheet.Create(&m_host));
    m_sheet.SetActivePage(1);
    m_second.GetDlgItem(IDC_BUTTON)->SendMessage(BM_CLICK);
    EXPECT_EQ(m_sheet.m_hWnd, nullptr);
    EXPECT_EQ(m_second.m_hWnd, nullptr);
    ASSERT_TRUE(m_sheet.Create(&m_host)); // and again
    m_sheet.EndDialog(0);
    EXPECT_EQ(m_sheet.m_hWnd, nullptr);
}

TEST_F(ModelessSheets, SheetMadeWithNewMayDeleteItselfInItsLastCall)
{
    class COwnSheet : public CPropertySheet
    {
    public:
        explicit COwnSheet(Log& log) : m_page(IDD_PAGE2, "own", log) { AddPage(&m_page); }
        CLogPage m_page;

    protected:
        void PostNcDestroy() override { delete this; }
    };
    auto* pSheet = new COwnSheet(m_log);
    ASSERT_TRUE(pSheet->Create(&m_host));
    pSheet->m_page.m_onButton = [pSheet] { pSheet->DestroyWindow(); };
    const HWND hWnd = pSheet->m_hWnd;
    pSheet->PostMessage(WM_CLOSE);
    EXPECT_TRUE(PumpUntil([hWnd] { return !::IsWindow(hWnd); }));
    auto* pNever = new COwnSheet(m_log);
    pNever->m_page.m_onInit = [pNever] { pNever->DestroyWindow(); };
    EXPECT_FALSE(pNever->Create(&m_host));
}
} // namespace

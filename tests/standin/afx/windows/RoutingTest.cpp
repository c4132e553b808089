#include "TestApp.h"

#include <afxcmn.h>

#include <stdexcept>

namespace
{
using Log = std::vector<std::string>;
const UINT WM_REGISTERED = ::RegisterWindowMessageW(L"TarvoAfxTestMessage");
constexpr UINT WM_OWN = WM_APP + 7;

/// Writes down each station that a message passes.
class CBaseWnd : public CHostWnd
{
public:
    Log m_log;
    UINT m_nWatched = 0;

protected:
    BOOL PreTranslateMessage(MSG* pMsg) override
    {
        Note(pMsg->message, "PreTranslateMessage");
        return CHostWnd::PreTranslateMessage(pMsg);
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        Note(message, "WindowProc");
        return CHostWnd::WindowProc(message, wParam, lParam);
    }
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override
    {
        Note(message, "OnWndMsg");
        return CHostWnd::OnWndMsg(message, wParam, lParam, pResult);
    }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        Note(WM_COMMAND, "OnCommand");
        return CHostWnd::OnCommand(wParam, lParam);
    }
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override
    {
        Note(WM_NOTIFY, "OnNotify");
        return CHostWnd::OnNotify(wParam, lParam, pResult);
    }
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override
    {
        if (m_nWatched == WM_COMMAND || m_nWatched == WM_NOTIFY)
            m_log.push_back(nCode == CN_UPDATE_COMMAND_UI ? "OnCmdMsg update" : "OnCmdMsg");
        return CHostWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        Note(message, "DefWindowProc");
        return CHostWnd::DefWindowProc(message, wParam, lParam);
    }

    afx_msg void OnSave() { m_log.push_back("base save"); }
    afx_msg void OnSend() { m_log.push_back("base send"); }
    afx_msg LRESULT OnOwn(WPARAM wParam, LPARAM lParam)
    {
        m_log.push_back("base own " + std::to_string(wParam) + " " + std::to_string(lParam));
        return 41;
    }
    afx_msg void OnSize(UINT, int cx, int cy)
    {
        m_log.push_back("base size " + std::to_string(cx) + " " + std::to_string(cy));
        Default();
    }
    DECLARE_MESSAGE_MAP()

    void Note(UINT message, const char* pszWhere)
    {
        if (message == m_nWatched)
            m_log.push_back(pszWhere);
    }
};

BEGIN_MESSAGE_MAP(CBaseWnd, CHostWnd)
ON_COMMAND(ID_FILE_SAVE, &CBaseWnd::OnSave)
ON_COMMAND(ID_FILE_SEND, &CBaseWnd::OnSend)
ON_MESSAGE(WM_OWN, &CBaseWnd::OnOwn)
ON_WM_SIZE()
END_MESSAGE_MAP()

class CDerivedWnd : public CBaseWnd
{
public:
    BOOL m_bSaveEnabled = TRUE;
    BOOL m_bPassOn = FALSE;

protected:
    afx_msg void OnSave() { m_log.push_back("derived save"); }
    afx_msg void OnUpdateSave(CCmdUI* pCmdUI) { pCmdUI->Enable(m_bSaveEnabled); }
    afx_msg LRESULT OnRegistered(WPARAM wParam, LPARAM)
    {
        m_log.push_back("derived registered " + std::to_string(wParam));
        return 42;
    }
    afx_msg void OnModes(UINT nID) { m_log.push_back("derived mode " + std::to_string(nID - ID_VIEW_MODE1)); }
    afx_msg BOOL OnGrid(UINT)
    {
        m_log.push_back("derived grid");
        return !m_bPassOn;
    }
    afx_msg void OnControls(UINT nID) { m_log.push_back("derived control " + std::to_string(nID)); }
    afx_msg void OnClicked(NMHDR* pNMHDR, LRESULT* pResult)
    {
        m_log.push_back("derived notify " + std::to_string(pNMHDR->idFrom));
        *pResult = 43;
    }
    afx_msg BOOL OnManyNotify(UINT nID, NMHDR*, LRESULT* pResult)
    {
        m_log.push_back("derived notify range " + std::to_string(nID));
        *pResult = 44;
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CDerivedWnd, CBaseWnd)
ON_COMMAND(ID_FILE_SAVE, &CDerivedWnd::OnSave)
ON_UPDATE_COMMAND_UI(ID_FILE_SAVE, &CDerivedWnd::OnUpdateSave)
ON_REGISTERED_MESSAGE(WM_REGISTERED, &CDerivedWnd::OnRegistered)
ON_COMMAND_RANGE(ID_VIEW_MODE1, ID_VIEW_MODE2, &CDerivedWnd::OnModes)
ON_COMMAND_EX(ID_VIEW_GRID, &CDerivedWnd::OnGrid)
ON_CONTROL_RANGE(BN_CLICKED, IDC_RADIO1, IDC_RADIO3, &CDerivedWnd::OnControls)
ON_NOTIFY(NM_CLICK, IDC_LIST, &CDerivedWnd::OnClicked)
ON_NOTIFY_EX_RANGE(NM_DBLCLK, IDC_COMBO, IDC_BUTTON, &CDerivedWnd::OnManyNotify)
END_MESSAGE_MAP()

class MessageRouting : public WindowTest
{
protected:
    CDerivedWnd m_wnd;
    Log Watch(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult = nullptr)
    {
        m_wnd.m_nWatched = message;
        m_wnd.m_log.clear();
        const LRESULT lResult = m_wnd.SendMessage(message, wParam, lParam);
        if (pResult)
            *pResult = lResult;
        m_wnd.m_nWatched = 0;
        return m_wnd.m_log;
    }
};

TEST_F(MessageRouting, PostedMessagePassesEveryStationInOrder)
{
    m_wnd.m_nWatched = WM_OWN;
    m_wnd.PostMessage(WM_OWN, 3, 4);
    ASSERT_TRUE(PumpUntil([&] { return m_wnd.m_log.size() >= 4; }));
    EXPECT_EQ(m_wnd.m_log, (Log{"PreTranslateMessage", "WindowProc", "OnWndMsg", "base own 3 4"}));
}

TEST_F(MessageRouting, SentMessageSkipsPreTranslateAndAnswersTheHandlersResult)
{
    LRESULT lResult = 0;
    EXPECT_EQ(Watch(WM_OWN, 1, 2, &lResult), (Log{"WindowProc", "OnWndMsg", "base own 1 2"}));
    EXPECT_EQ(lResult, 41);
}

TEST_F(MessageRouting, MessageWithoutHandlerEndsAtTheDefault)
{
    EXPECT_EQ(Watch(WM_OWN + 1, 0, 0), (Log{"WindowProc", "OnWndMsg", "DefWindowProc"}));
}

TEST_F(MessageRouting, DefaultRepeatsTheMessageBeingHandled)
{
    EXPECT_EQ(Watch(WM_SIZE, SIZE_RESTORED, MAKELPARAM(300, 200)),
              (Log{"WindowProc", "OnWndMsg", "base size 300 200", "DefWindowProc"}));
}

TEST_F(MessageRouting, RegisteredMessageIsFoundByItsRunTimeNumber)
{
    LRESULT lResult = 0;
    EXPECT_EQ(Watch(WM_REGISTERED, 9, 0, &lResult), (Log{"WindowProc", "OnWndMsg", "derived registered 9"}));
    EXPECT_EQ(lResult, 42);
}

TEST_F(MessageRouting, MenuCommandIsAskedForItsStateAndThenHandledByTheDerivedClassFirst)
{
    EXPECT_EQ(Watch(WM_COMMAND, ID_FILE_SAVE, 0),
              (Log{"WindowProc", "OnWndMsg", "OnCommand", "OnCmdMsg update", "OnCmdMsg", "derived save"}));
    EXPECT_EQ(Watch(WM_COMMAND, ID_FILE_SEND, 0),
              (Log{"WindowProc", "OnWndMsg", "OnCommand", "OnCmdMsg update", "OnCmdMsg", "base send"}));
}

TEST_F(MessageRouting, DisabledMenuCommandIsSwallowed)
{
    m_wnd.m_bSaveEnabled = FALSE;
    EXPECT_EQ(Watch(WM_COMMAND, ID_FILE_SAVE, 0),
              (Log{"WindowProc", "OnWndMsg", "OnCommand", "OnCmdMsg update"}));
}

TEST_F(MessageRouting, RangesGiveTheHandlerTheCommandOrControl)
{
    EXPECT_EQ(Watch(WM_COMMAND, ID_VIEW_MODE2, 0).back(), "derived mode 1");
    EXPECT_EQ(Watch(WM_COMMAND, Clicked(IDC_RADIO3), reinterpret_cast<LPARAM>(m_wnd.m_hWnd)).back(),
              "derived control " + std::to_string(IDC_RADIO3));
    EXPECT_EQ(Watch(WM_COMMAND, Clicked(IDC_RADIO3 + 1), reinterpret_cast<LPARAM>(m_wnd.m_hWnd)).back(),
              "DefWindowProc");
}

TEST_F(MessageRouting, ExtendedHandlerThatSaysNoPassesTheCommandOn)
{
    EXPECT_EQ(Watch(WM_COMMAND, ID_VIEW_GRID, 0).back(), "derived grid");
    m_wnd.m_bPassOn = TRUE;
    EXPECT_EQ(Watch(WM_COMMAND, ID_VIEW_GRID, 0).back(), "DefWindowProc");
}

TEST_F(MessageRouting, NotificationCarriesItsHeaderAndAnswer)
{
    CStatic control;
    ASSERT_TRUE(control.Create(L"", WS_VISIBLE, CRect(0, 0, 9, 9), &m_wnd, IDC_LIST));
    NMHDR header{control.m_hWnd, IDC_LIST, static_cast<UINT>(NM_CLICK)};
    LRESULT lResult = 0;
    EXPECT_EQ(Watch(WM_NOTIFY, IDC_LIST, reinterpret_cast<LPARAM>(&header), &lResult),
              (Log{"WindowProc", "OnWndMsg", "OnNotify", "OnCmdMsg",
                   "derived notify " + std::to_string(IDC_LIST)}));
    EXPECT_EQ(lResult, 43);
    header.code = static_cast<UINT>(NM_DBLCLK);
    EXPECT_EQ(Watch(WM_NOTIFY, IDC_LIST, reinterpret_cast<LPARAM>(&header), &lResult).back(),
              "derived notify range " + std::to_string(IDC_LIST));
    EXPECT_EQ(lResult, 44);
}

TEST_F(MessageRouting, AskedForAHandlerNobodyIsCalled)
{
    AFX_CMDHANDLERINFO info{};
    CCmdTarget& target = m_wnd;
    EXPECT_TRUE(target.OnCmdMsg(ID_FILE_SAVE, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &m_wnd);
    EXPECT_TRUE(m_wnd.m_log.empty());
    EXPECT_FALSE(target.OnCmdMsg(ID_FILE_SAVE + 0x100, CN_COMMAND, nullptr, &info));
}

TEST_F(MessageRouting, TheLoopOffersAMessageToEachParentUpToTheMainWindow)
{
    class CChild : public CStatic
    {
    public:
        Log* m_pLog = nullptr;
        BOOL m_bTake = FALSE;
        BOOL PreTranslateMessage(MSG* pMsg) override
        {
            if (m_pLog && pMsg->message == WM_OWN)
                m_pLog->push_back("child PreTranslateMessage");
            return m_bTake;
        }
    };
    CChild child;
    child.m_pLog = &m_wnd.m_log;
    ASSERT_TRUE(child.Create(L"", WS_VISIBLE, CRect(0, 0, 9, 9), &m_wnd, 1));
    m_wnd.m_nWatched = WM_OWN;
    MSG msg{child.m_hWnd, WM_OWN, 0, 0, 0, {}};
    EXPECT_FALSE(AfxPreTranslateMessage(&msg));
    EXPECT_EQ(m_wnd.m_log, (Log{"child PreTranslateMessage", "PreTranslateMessage"}));
    m_wnd.m_log.clear();
    child.m_bTake = TRUE;
    EXPECT_TRUE(AfxPreTranslateMessage(&msg));
    EXPECT_EQ(m_wnd.m_log, (Log{"child PreTranslateMessage"}));
}

class CThrowingWnd : public CHostWnd
{
public:
    int m_nKind = 0;

protected:
    afx_msg LRESULT OnOwn(WPARAM, LPARAM)
    {
        if (m_nKind == 0)
            AfxThrowNotSupportedException();
        throw std::runtime_error("not the framework's");
    }
    afx_msg void OnSave() { AfxThrowNotSupportedException(); }
    afx_msg void OnSend() { AfxThrowUserException(); }
    afx_msg void OnPaint() { AfxThrowMemoryException(); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CThrowingWnd, CHostWnd)
ON_MESSAGE(WM_OWN, &CThrowingWnd::OnOwn)
ON_COMMAND(ID_FILE_SAVE, &CThrowingWnd::OnSave)
ON_COMMAND(ID_FILE_SEND, &CThrowingWnd::OnSend)
ON_WM_PAINT()
END_MESSAGE_MAP()

using ThrowingHandler = WindowTest;

TEST_F(ThrowingHandler, ExceptionStaysInsideTheWindowProcedure)
{
    CThrowingWnd wnd;
    for (wnd.m_nKind = 0; wnd.m_nKind < 2; ++wnd.m_nKind)
        EXPECT_NO_THROW(EXPECT_EQ(wnd.SendMessage(WM_OWN), 0));
    EXPECT_TRUE(theApp.m_boxes.empty());
}

TEST_F(ThrowingHandler, FailedCommandIsShownToTheUserUnlessHeWasTold)
{
    CThrowingWnd wnd;
    wnd.SendMessage(WM_COMMAND, ID_FILE_SEND);
    EXPECT_EQ(theApp.m_boxes.size(), 0u);
    wnd.SendMessage(WM_COMMAND, ID_FILE_SAVE);
    EXPECT_EQ(theApp.m_boxes.size(), 1u);
}

TEST_F(ThrowingHandler, FailedPaintDoesNotComeAgainForever)
{
    CThrowingWnd wnd;
    wnd.Invalidate();
    wnd.UpdateWindow();
    EXPECT_FALSE(::GetUpdateRect(wnd.m_hWnd, nullptr, FALSE));
}

TEST_F(ThrowingHandler, WindowIsNotCreatedWhenItsCreationThrows)
{
    class CFailing : public CWnd
    {
    public:
        int m_nPosts = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_CREATE)
                AfxThrowMemoryException();
            return CWnd::WindowProc(message, wParam, lParam);
        }
        void PostNcDestroy() override { ++m_nPosts; }
    };
    CFailing wnd;
    EXPECT_FALSE(wnd.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0));
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    EXPECT_EQ(wnd.m_nPosts, 1);
}
} // namespace

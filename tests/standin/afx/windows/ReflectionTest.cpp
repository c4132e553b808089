#include "TestApp.h"
#include <afxcmn.h>

#include <algorithm>

namespace
{
using Log = std::vector<std::string>;
Log s_log;

/// A button that handles what it tells its parent.
class CSelfButton : public CButton
{
public:
    BOOL m_bKeep = TRUE;
    CBrush m_brush{RGB(1, 2, 3)};

    void DrawItem(LPDRAWITEMSTRUCT) override { s_log.push_back("button DrawItem"); }

protected:
    afx_msg BOOL OnClickedSelf()
    {
        s_log.push_back("button clicked");
        return m_bKeep;
    }
    afx_msg HBRUSH CtlColor(CDC*, UINT nCtlColor)
    {
        s_log.push_back("button colour " + std::to_string(nCtlColor));
        return m_bKeep ? static_cast<HBRUSH>(m_brush) : nullptr;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CSelfButton, CButton)
ON_CONTROL_REFLECT_EX(BN_CLICKED, &CSelfButton::OnClickedSelf)
ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

class CSelfList : public CListCtrl
{
public:
    BOOL m_bKeep = TRUE;

protected:
    afx_msg void OnClick(NMHDR*, LRESULT* pResult)
    {
        s_log.push_back("list click");
        *pResult = 7;
    }
    afx_msg BOOL OnDoubleClick(NMHDR*, LRESULT* pResult)
    {
        s_log.push_back("list double click");
        *pResult = 8;
        return m_bKeep;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CSelfList, CListCtrl)
ON_NOTIFY_REFLECT(NM_CLICK, &CSelfList::OnClick)
ON_NOTIFY_REFLECT_EX(NM_DBLCLK, &CSelfList::OnDoubleClick)
END_MESSAGE_MAP()

class CSelfScroll : public CScrollBar
{
protected:
    afx_msg void HScroll(UINT nSBCode, UINT nPos)
    {
        s_log.push_back("scroll " + std::to_string(nSBCode) + " " + std::to_string(nPos));
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CSelfScroll, CScrollBar)
ON_WM_HSCROLL_REFLECT()
END_MESSAGE_MAP()

class CParent : public CHostWnd
{
public:
    BOOL m_bOwnColour = FALSE;
    CBrush m_brush{RGB(4, 5, 6)};

protected:
    afx_msg void OnButton() { s_log.push_back("parent clicked"); }
    afx_msg void OnListClick(NMHDR*, LRESULT*) { s_log.push_back("parent list click"); }
    afx_msg void OnListDoubleClick(NMHDR*, LRESULT* pResult)
    {
        s_log.push_back("parent list double click");
        *pResult = 9;
    }
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
    {
        s_log.push_back("parent colour");
        return m_bOwnColour ? static_cast<HBRUSH>(m_brush) : CHostWnd::OnCtlColor(pDC, pWnd, nCtlColor);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CParent, CHostWnd)
ON_BN_CLICKED(IDC_BUTTON, &CParent::OnButton)
ON_NOTIFY(NM_CLICK, IDC_LIST, &CParent::OnListClick)
ON_NOTIFY(NM_DBLCLK, IDC_LIST, &CParent::OnListDoubleClick)
ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

class Reflection : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        ASSERT_TRUE(
            m_button.Create(L"b", WS_VISIBLE | BS_OWNERDRAW, CRect(0, 0, 50, 20), &m_parent, IDC_BUTTON));
        ASSERT_TRUE(m_list.Create(WS_VISIBLE | LVS_REPORT, CRect(0, 30, 100, 100), &m_parent, IDC_LIST));
        PumpAll();
        s_log.clear();
    }
    LRESULT Notify(int nCode)
    {
        NMHDR header{m_list.m_hWnd, IDC_LIST, static_cast<UINT>(nCode)};
        return m_parent.SendMessage(WM_NOTIFY, IDC_LIST, reinterpret_cast<LPARAM>(&header));
    }
    LRESULT Colour()
    {
        const CClientDC dc(&m_button);
        return m_parent.SendMessage(WM_CTLCOLORBTN, reinterpret_cast<WPARAM>(dc.m_hDC),
                                    reinterpret_cast<LPARAM>(m_button.m_hWnd));
    }

    CParent m_parent;
    CSelfButton m_button;
    CSelfList m_list;
};

TEST_F(Reflection, ControlIsAskedBeforeItsParentAndMayKeepTheMessage)
{
    const LPARAM control = reinterpret_cast<LPARAM>(m_button.m_hWnd);
    m_parent.SendMessage(WM_COMMAND, Clicked(IDC_BUTTON), control);
    EXPECT_EQ(s_log, Log{"button clicked"});
    s_log.clear();
    m_button.m_bKeep = FALSE;
    m_parent.SendMessage(WM_COMMAND, Clicked(IDC_BUTTON), control);
    EXPECT_EQ(s_log, (Log{"button clicked", "parent clicked"}));
}

TEST_F(Reflection, NotificationKeptByTheControlAnswersWithItsResult)
{
    EXPECT_EQ(Notify(NM_CLICK), 7);
    EXPECT_EQ(s_log, Log{"list click"});
    s_log.clear();
    EXPECT_EQ(Notify(NM_DBLCLK), 8);
    m_list.m_bKeep = FALSE;
    EXPECT_EQ(Notify(NM_DBLCLK), 9);
    EXPECT_EQ(s_log, (Log{"list double click", "list double click", "parent list double click"}));
}

TEST_F(Reflection, ColourComesFromTheParentOrThroughItFromTheControl)
{
    EXPECT_EQ(Colour(), reinterpret_cast<LRESULT>(m_button.m_brush.m_hObject));
    EXPECT_EQ(s_log, (Log{"parent colour", "button colour " + std::to_string(CTLCOLOR_BTN)}));
    s_log.clear();
    m_parent.m_bOwnColour = TRUE;
    EXPECT_EQ(Colour(), reinterpret_cast<LRESULT>(m_parent.m_brush.m_hObject));
    EXPECT_EQ(s_log, Log{"parent colour"});
}

TEST_F(Reflection, ColourThatNobodyGivesIsTheSystems)
{
    m_button.m_bKeep = FALSE;
    EXPECT_EQ(Colour(), ::DefWindowProcW(m_parent.m_hWnd, WM_CTLCOLORBTN,
                                         reinterpret_cast<WPARAM>(CClientDC(&m_button).m_hDC),
                                         reinterpret_cast<LPARAM>(m_button.m_hWnd)));
}

TEST_F(Reflection, OwnerDrawnControlDrawsItself)
{
    m_button.Invalidate();
    m_button.UpdateWindow();
    EXPECT_NE(std::find(s_log.begin(), s_log.end(), "button DrawItem"), s_log.end());
}

TEST_F(Reflection, ScrollBarHearsOfItsOwnScrolling)
{
    CSelfScroll scroll;
    ASSERT_TRUE(scroll.Create(WS_VISIBLE | SBS_HORZ, CRect(0, 120, 100, 140), &m_parent, 5));
    m_parent.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 12),
                         reinterpret_cast<LPARAM>(scroll.m_hWnd));
    EXPECT_EQ(s_log, Log{"scroll " + std::to_string(SB_THUMBPOSITION) + " 12"});
    m_parent.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_LINEUP, 0), 0); // the window's own bar has no control
    EXPECT_EQ(s_log.size(), 1u);
}

TEST_F(Reflection, RealClickReachesTheControlsHandler)
{
    m_button.SendMessage(BM_CLICK);
    EXPECT_NE(std::find(s_log.begin(), s_log.end(), "button clicked"), s_log.end());
}
} // namespace

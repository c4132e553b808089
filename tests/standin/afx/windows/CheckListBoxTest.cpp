#include "TestApp.h"

namespace
{
/// Counts what the list tells its parent.
class CCheckHost : public CHostWnd
{
public:
    int m_nChanges = 0;

protected:
    afx_msg void OnChange() { ++m_nChanges; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CCheckHost, CHostWnd)
ON_CLBN_CHKCHANGE(20, &CCheckHost::OnChange)
END_MESSAGE_MAP()

class CheckLists : public WindowTest
{
protected:
    CCheckHost m_host;
    CCheckListBox m_list;

    void Make(DWORD dwStyle = 0)
    {
        ASSERT_TRUE(m_list.Create(WS_VISIBLE | LBS_NOTIFY | dwStyle, CRect(0, 0, 150, 200), &m_host, 20));
        for (LPCTSTR psz : {L"beam", L"column", L"plate"})
            m_list.AddString(psz);
    }
    std::vector<int> Marks() const
    {
        std::vector<int> marks(static_cast<std::size_t>(m_list.GetCount()));
        for (std::size_t i = 0; i < marks.size(); ++i)
            marks[i] = m_list.GetCheck(static_cast<int>(i));
        return marks;
    }
    void ClickMark(int nIndex)
    {
        CRect line;
        m_list.GetItemRect(nIndex, line);
        const LPARAM lPoint = MAKELPARAM(line.left + 8, line.CenterPoint().y);
        m_list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, lPoint);
        m_list.SendMessage(WM_LBUTTONUP, 0, lPoint);
    }
};

TEST_F(CheckLists, MarksBelongToTheirLinesWhateverBecomesOfOthers)
{
    Make();
    m_list.SetCheck(1, 1);
    m_list.SetItemData(1, 77); // the program's own
    EXPECT_EQ(Marks(), (std::vector<int>{0, 1, 0}));
    m_list.InsertString(0, L"arch");
    EXPECT_EQ(Marks(), (std::vector<int>{0, 0, 1, 0}));
    m_list.DeleteString(0);
    m_list.DeleteString(0);
    EXPECT_EQ(Marks(), (std::vector<int>{1, 0}));
    EXPECT_EQ(m_list.GetItemData(0), 77u);
    m_list.ResetContent();
    m_list.AddString(L"new");
    EXPECT_EQ(Marks(), std::vector<int>{0});
}

TEST_F(CheckLists, SortedListsKeepMarksToo)
{
    Make(LBS_SORT);
    m_list.SetCheck(0, 1);
    m_list.AddString(L"arch");
    EXPECT_EQ(Marks(), (std::vector<int>{0, 1, 0, 0}));
}

TEST_F(CheckLists, MarksThatDoNotExistAreNeitherSetNorAnswered)
{
    Make();
    m_list.SetCheck(9, 1);
    m_list.SetCheck(-1, 1);
    m_list.SetCheck(0, 2); // no third state in this style
    EXPECT_EQ(Marks(), (std::vector<int>{0, 0, 0}));
    EXPECT_EQ(m_list.GetCheck(9), 0);
    EXPECT_FALSE(m_list.IsEnabled(9));
}

TEST_F(CheckLists, ClickOnAMarkAndSpaceChangeItAndTellTheParent)
{
    Make();
    ClickMark(1);
    EXPECT_EQ(Marks(), (std::vector<int>{0, 1, 0}));
    EXPECT_EQ(m_list.GetCurSel(), 1);
    EXPECT_EQ(m_host.m_nChanges, 1);
    m_list.SendMessage(WM_KEYDOWN, VK_SPACE);
    EXPECT_EQ(Marks(), (std::vector<int>{0, 0, 0}));
    EXPECT_EQ(m_host.m_nChanges, 2);
    // On the text it is a selection only.
    CRect line;
    m_list.GetItemRect(2, line);
    m_list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(line.right - 5, line.CenterPoint().y));
    m_list.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(line.right - 5, line.CenterPoint().y));
    EXPECT_EQ(Marks(), (std::vector<int>{0, 0, 0}));
    EXPECT_EQ(m_list.GetCurSel(), 2);
    EXPECT_EQ(m_host.m_nChanges, 2);
}

TEST_F(CheckLists, DisabledLinesAndProgramsStylesKeepTheirMarksFromTheUser)
{
    Make();
    m_list.Enable(1, FALSE);
    EXPECT_FALSE(m_list.IsEnabled(1));
    ClickMark(1);
    EXPECT_EQ(m_list.GetCheck(1), 0);
    m_list.SetCheck(1, 1); // the program may
    EXPECT_EQ(m_list.GetCheck(1), 1);
    m_list.SetCheckStyle(BS_CHECKBOX);
    ClickMark(0);
    EXPECT_EQ(m_list.GetCheck(0), 0);
    EXPECT_EQ(m_host.m_nChanges, 0);
    m_list.SetCheckStyle(BS_AUTO3STATE);
    for (int nExpected : {1, 2, 0})
    {
        ClickMark(0);
        EXPECT_EQ(m_list.GetCheck(0), nExpected);
    }
}

TEST_F(CheckLists, MarkIsDrawnWhereItIsClicked)
{
    Make();
    const auto picture = [this] {
        m_list.RedrawWindow();
        CClientDC dc(&m_list);
        CRect line;
        m_list.GetItemRect(0, line);
        std::vector<COLORREF> pixels;
        for (int x = 0; x < 20; ++x)
            for (int y = line.top; y < line.bottom; ++y)
                pixels.push_back(dc.GetPixel(x, y));
        return pixels;
    };
    const auto unmarked = picture();
    m_list.SetCheck(0, 1);
    const auto marked = picture();
    EXPECT_NE(unmarked, marked);
    m_list.SetCheck(0, 0);
    EXPECT_EQ(picture(), unmarked);
    m_list.Enable(0, FALSE);
    EXPECT_NE(picture(), unmarked);
}

TEST_F(CheckLists, ListOfATemplateIsTakenOverWithItsLines)
{
    CListBox plain;
    ASSERT_TRUE(
        plain.Create(WS_VISIBLE | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS, CRect(0, 0, 99, 99), &m_host, 21));
    plain.AddString(L"one");
    const HWND hWnd = plain.UnsubclassWindow();
    ASSERT_TRUE(m_list.SubclassWindow(hWnd));
    m_list.SetCheck(0, 1);
    EXPECT_EQ(Marks(), std::vector<int>{1});
}
} // namespace

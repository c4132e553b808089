#include "TestApp.h"

#include <afxcmn.h>
#include <afxdlgs.h>

#include <algorithm>
#include <iterator>
#include <memory>

namespace
{
class Controls : public WindowTest
{
protected:
    CHostWnd m_host;
};

TEST_F(Controls, ListTextsOfAnyLengthComeBackWhole)
{
    CListCtrl list;
    ASSERT_TRUE(list.Create(WS_VISIBLE | LVS_REPORT, CRect(0, 0, 300, 200), &m_host, 1));
    ASSERT_EQ(list.InsertColumn(0, L"Name", LVCFMT_LEFT, 100), 0);
    ASSERT_EQ(list.InsertColumn(1, L"Value", LVCFMT_LEFT, 100), 1);
    ASSERT_EQ(list.InsertItem(0, L"second"), 0);
    ASSERT_EQ(list.InsertItem(0, L"first"), 0);
    for (int nLength : {0, 254, 255, 256, 257, 1000})
    {
        const CString strText(L'x', nLength);
        ASSERT_TRUE(list.SetItemText(0, 1, strText));
        EXPECT_EQ(list.GetItemText(0, 1), strText) << nLength;
    }
    EXPECT_EQ(list.GetItemText(1, 0), L"second");
    ASSERT_TRUE(list.SetItemData(1, 77));
    EXPECT_EQ(list.GetItemData(1), 77u);
}

TEST_F(Controls, SelectedRowsAreWalkedFromTheFirstToTheLast)
{
    CListCtrl list;
    ASSERT_TRUE(list.Create(WS_VISIBLE | LVS_REPORT, CRect(0, 0, 300, 200), &m_host, 1));
    list.InsertColumn(0, L"Name", LVCFMT_LEFT, 100);
    for (int i = 0; i < 4; ++i)
        list.InsertItem(i, L"row");
    EXPECT_EQ(list.GetFirstSelectedItemPosition(), nullptr);
    list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    list.SetItemState(2, LVIS_SELECTED, LVIS_SELECTED);
    std::vector<int> rows;
    POSITION pos = list.GetFirstSelectedItemPosition();
    while (pos)
        rows.push_back(list.GetNextSelectedItem(pos));
    EXPECT_EQ(rows, (std::vector<int>{0, 2}));
}

TEST_F(Controls, TreeTabProgressAndToolTipKeepWhatTheyAreGiven)
{
    CTreeCtrl tree;
    ASSERT_TRUE(tree.Create(WS_VISIBLE, CRect(0, 0, 100, 100), &m_host, 2));
    const HTREEITEM hRoot = tree.InsertItem(L"root");
    const CString strLong(L'y', 300);
    const HTREEITEM hLeaf = tree.InsertItem(strLong, hRoot);
    EXPECT_EQ(tree.GetParentItem(hLeaf), hRoot);
    EXPECT_EQ(tree.GetItemText(hRoot), L"root");
    EXPECT_EQ(tree.GetItemText(nullptr), L"");
    CTabCtrl tab;
    ASSERT_TRUE(tab.Create(WS_VISIBLE, CRect(100, 0, 300, 100), &m_host, 3));
    EXPECT_EQ(tab.InsertItem(0, L"A"), 0);
    EXPECT_EQ(tab.InsertItem(1, L"B"), 1);
    tab.SetCurSel(1);
    EXPECT_EQ(tab.GetCurSel(), 1);
    CProgressCtrl progress;
    ASSERT_TRUE(progress.Create(WS_VISIBLE, CRect(0, 100, 300, 120), &m_host, 4));
    progress.SetRange32(-10, 100000);
    int nLower = 0;
    int nUpper = 0;
    progress.GetRange(nLower, nUpper);
    EXPECT_EQ(nLower, -10);
    EXPECT_EQ(nUpper, 100000);
    progress.SetPos(70000);
    EXPECT_EQ(progress.GetPos(), 70000);
    CToolTipCtrl tip;
    ASSERT_TRUE(tip.Create(&m_host));
    EXPECT_TRUE(tip.AddTool(&progress, L"so far"));
    EXPECT_EQ(tip.GetToolCount(), 1);
    tip.DelTool(&progress);
    EXPECT_EQ(tip.GetToolCount(), 0);
}

TEST_F(Controls, EditLineIsReadIntoTheRoomThereIs)
{
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_VISIBLE | ES_MULTILINE, CRect(0, 0, 300, 100), &m_host, 5));
    edit.SetWindowText(L"first\r\nsecond");
    EXPECT_EQ(edit.GetLineCount(), 2);
    WCHAR szLine[8] = {};
    EXPECT_EQ(edit.GetLine(1, szLine, 3), 3);
    EXPECT_EQ(CString(szLine, 3), L"sec");
    EXPECT_EQ(edit.GetLine(1, szLine, 0), 0);
    edit.SetSel(0, 5);
    edit.ReplaceSel(L"1st");
    CString strText;
    edit.GetWindowText(strText);
    EXPECT_EQ(strText, L"1st\r\nsecond");
}

TEST_F(Controls, OwnerDrawnComboBoxMeasuresItsLinesThroughItsObject)
{
    class CDrawnCombo : public CComboBox
    {
    public:
        void MeasureItem(LPMEASUREITEMSTRUCT p) override { p->itemHeight = 31; }
        void DrawItem(LPDRAWITEMSTRUCT) override {}
    };
    CDrawnCombo combo;
    ASSERT_TRUE(combo.Create(WS_VISIBLE | CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE | CBS_HASSTRINGS,
                             CRect(0, 0, 100, 200), &m_host, 6));
    ASSERT_EQ(combo.AddString(L"line"), 0);
    EXPECT_EQ(combo.GetItemHeight(0), 31);
}

TEST_F(Controls, ChosenFilesAreTakenApart)
{
    const auto pDlg =
        std::make_unique<CFileDialog>(TRUE, L"txt", nullptr, OFN_ALLOWMULTISELECT, L"Text|*.txt||");
    EXPECT_EQ(std::wstring(pDlg->m_ofn.lpstrFilter, 11), std::wstring(L"Text\0*.txt\0", 11));
    const wchar_t several[] = L"C:\\Data\0one.a.txt\0two\0";
    std::copy(std::begin(several), std::end(several), pDlg->m_ofn.lpstrFile);
    std::vector<CString> paths;
    POSITION pos = pDlg->GetStartPosition();
    while (pos)
        paths.push_back(pDlg->GetNextPathName(pos));
    EXPECT_EQ(paths, (std::vector<CString>{L"C:\\Data\\one.a.txt", L"C:\\Data\\two"}));
    EXPECT_EQ(pDlg->GetFileName(), L"one.a.txt");
    EXPECT_EQ(pDlg->GetFileTitle(), L"one.a");
    EXPECT_EQ(pDlg->GetFileExt(), L"txt");
    EXPECT_EQ(pDlg->GetFolderPath(), L"C:\\Data");
    const wchar_t one[] = L"C:\\Data\\three.txt\0";
    std::copy(std::begin(one), std::end(one), pDlg->m_ofn.lpstrFile);
    pos = pDlg->GetStartPosition();
    EXPECT_EQ(pDlg->GetNextPathName(pos), L"C:\\Data\\three.txt");
    EXPECT_EQ(pos, nullptr);
}
} // namespace

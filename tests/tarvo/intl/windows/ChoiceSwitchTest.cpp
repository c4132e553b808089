#include "tarvo/intl/InternationalDlg.h"
#include "tarvo/intl/LanguageSwitch.h"
#include "tests/tarvo/intl/windows/IntlFixture.h"

#include <afxcmn.h>

#include <functional>
#include <gmock/gmock.h>

// What is chosen in lists and trees that SetText fills with the words of the language.

namespace
{
constexpr int kList = 4001;
constexpr int kTree = 4002;

class CChoiceDlg : public CInternationalDlg
{
public:
    CChoiceDlg() : CInternationalDlg(IDD_SETUP) {}
    BOOL OnInitDialog() override
    {
        CInternationalDlg::OnInitDialog();
        list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SHOWSELALWAYS | listStyle, CRect(0, 0, 100, 80),
                    this, kList);
        list.InsertColumn(0, L"Name", LVCFMT_LEFT, 90);
        tree.Create(WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_SHOWSELALWAYS | treeStyle,
                    CRect(110, 0, 210, 80), this, kTree);
        return TRUE;
    }
    void SetText() override
    {
        if (fill)
            fill();
    }
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override
    {
        const auto& header = *reinterpret_cast<NMHDR*>(lParam);
        if (header.code == LVN_ITEMCHANGED)
        {
            const auto& change = *reinterpret_cast<NMLISTVIEW*>(lParam);
            if ((change.uNewState ^ change.uOldState) & LVIS_SELECTED)
                told +=
                    (change.uNewState & LVIS_SELECTED ? L"+" : L"-") + std::to_wstring(change.iItem) + L" ";
        }
        if (header.code == TVN_SELCHANGEDW)
            told += L"tree ";
        return CInternationalDlg::OnNotify(wParam, lParam, pResult);
    }
    /// The list with these lines; each one's data is its first letter's place in "abcdef", from 1 on, or 0.
    void FillList(const std::vector<std::wstring>& lines, bool withData)
    {
        list.DeleteAllItems();
        for (int i = 0; i < static_cast<int>(lines.size()); ++i)
        {
            const std::wstring& line = lines[static_cast<std::size_t>(i)];
            const int item = list.InsertItem(i, line.c_str());
            list.SetItemData(item, withData ? static_cast<DWORD_PTR>(line[0] - L'a' + 1) : 0);
        }
    }
    /// The tree of these nodes; each is below the last one with one blank less before it. A "+" at the end:
    /// open.
    void FillTree(const std::vector<std::wstring>& lines, bool withData)
    {
        tree.DeleteAllItems();
        std::vector<HTREEITEM> above{TVI_ROOT}, open;
        for (const std::wstring& line : lines)
        {
            const std::size_t depth = line.find_first_not_of(L' ');
            const std::wstring text = line.substr(depth, line.find(L'+') - depth);
            above.resize(depth + 1);
            const HTREEITEM item = tree.InsertItem(text.c_str(), above.back());
            tree.SetItemData(item, withData ? static_cast<DWORD_PTR>(text[0]) : 0);
            above.push_back(item);
            if (line.back() == L'+')
                open.push_back(item);
        }
        for (const HTREEITEM item : open)
            tree.Expand(item, TVE_EXPAND);
    }
    std::wstring Selected() const
    {
        std::wstring all;
        for (int i = -1; (i = list.GetNextItem(i, LVNI_SELECTED)) >= 0;)
            all += std::wstring(list.GetItemText(i, 0)) + L" ";
        const int focused = list.GetNextItem(-1, LVNI_FOCUSED);
        return all + L"focus " + (focused < 0 ? L"none" : std::wstring(list.GetItemText(focused, 0)));
    }
    void Select(int line) { list.SetItemState(line, LVIS_SELECTED, LVIS_SELECTED); }
    void Focus(int line) { list.SetItemState(line, LVIS_FOCUSED, LVIS_FOCUSED); }
    /// The nodes that can be seen, with "*" at the selected one and "x" at those that are checked.
    std::wstring Nodes() const
    {
        std::wstring all;
        const HTREEITEM selected = tree.GetSelectedItem();
        ForEachNode([&](HTREEITEM item) {
            all += std::wstring(tree.GetItemText(item)) + (item == selected ? L"*" : L"");
            all += (tree.GetItemState(item, TVIS_STATEIMAGEMASK) >> 12) == 2 ? L"x " : L" ";
            return (tree.GetItemState(item, TVIS_EXPANDED) & TVIS_EXPANDED) != 0;
        });
        return all;
    }
    HTREEITEM Node(const wchar_t* text) const
    {
        HTREEITEM found = nullptr;
        ForEachNode([&](HTREEITEM item) {
            if (!found && tree.GetItemText(item) == text)
                found = item;
            return true;
        });
        return found;
    }
    /// Visits each node before those below it, which it wants to see or not.
    template <class WantsBelow>
    void ForEachNode(WantsBelow visit) const
    {
        std::vector<HTREEITEM> left{tree.GetRootItem()};
        while (!left.empty())
        {
            const HTREEITEM item = left.back();
            left.pop_back();
            if (!item)
                continue;
            left.push_back(tree.GetNextItem(item, TVGN_NEXT));
            if (visit(item))
                left.push_back(tree.GetChildItem(item));
        }
    }
    CListCtrl list;
    CTreeCtrl tree;
    DWORD listStyle = 0, treeStyle = 0;
    std::function<void()> fill;
    std::wstring told;
};

class ChoiceSwitch : public IntlWindows
{
protected:
    void Open()
    {
        ASSERT_TRUE(dlg.Create(IDD_SETUP));
        dlg.told.clear();
    }
    void TearDown() override
    {
        dlg.DestroyWindow();
        IntlWindows::TearDown();
    }
    using Lines = std::vector<std::wstring>;
    CChoiceDlg dlg;
};
} // namespace

TEST_F(ChoiceSwitch, LinesOfAListAreKnownByTheirDataInWhateverOrderTheyCome)
{
    Lines lines{L"apple", L"bread", L"cheese", L"dill"};
    dlg.fill = [&] { dlg.FillList(lines, true); };
    Open();
    for (const int line : {0, 2})
        dlg.Select(line);
    dlg.Focus(2);
    dlg.told.clear();
    lines = {L"dill.", L"cheese.", L"bread.", L"apple."};
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(dlg.Selected(), L"cheese. apple. focus cheese.");
    EXPECT_THAT(dlg.told, testing::EndsWith(L"+3 +1 ")) << "the program knows what is chosen";
}

TEST_F(ChoiceSwitch, LinesWithoutDataAreKnownByTheirNumber)
{
    Lines lines{L"apple", L"bread", L"cheese"};
    dlg.fill = [&] { dlg.FillList(lines, false); };
    Open();
    dlg.Select(1);
    dlg.Focus(0);
    lines = {L"Apfel", L"Brot", L"K\x00E4se"};
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(dlg.Selected(), L"Brot focus Apfel");
}

TEST_F(ChoiceSwitch, DataThatIsMadeAnewCountsForNothing)
{
    int round = 0;
    dlg.fill = [&] {
        dlg.FillList({L"apple", L"bread"}, false);
        for (int i = 0; i < 2; ++i) // as pointers to what is allocated anew
            dlg.list.SetItemData(i, static_cast<DWORD_PTR>(1000) * static_cast<DWORD_PTR>(++round) +
                                        static_cast<DWORD_PTR>(i));
    };
    Open();
    dlg.Select(1);
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(dlg.Selected(), L"bread focus none");
}

TEST_F(ChoiceSwitch, LineThatIsGoneIsNotChosenAgain)
{
    Lines lines{L"apple", L"bread", L"cheese"};
    dlg.fill = [&] { dlg.FillList(lines, true); };
    Open();
    for (const int line : {0, 2})
        dlg.Select(line);
    lines = {L"apple"};
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(dlg.Selected(), L"apple focus none");
}

TEST_F(ChoiceSwitch, ListThatIsNotFilledAnewIsLeftAlone)
{
    dlg.fill = [&] {
        if (dlg.list.GetItemCount() == 0)
            dlg.FillList({L"apple", L"bread"}, true);
        if (dlg.tree.GetCount() == 0)
            dlg.FillTree({L"a+", L" b"}, true);
    };
    Open();
    dlg.Select(1);
    dlg.tree.SelectItem(dlg.Node(L"b"));
    dlg.told.clear();
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(dlg.told, L"");
    EXPECT_EQ(dlg.Selected(), L"bread focus none");
    EXPECT_EQ(dlg.Nodes(), L"a b* ");
}

TEST_F(ChoiceSwitch, CheckedLinesStayChecked)
{
    Lines lines{L"apple", L"bread", L"cheese"};
    dlg.fill = [&] {
        dlg.list.SetExtendedStyle(LVS_EX_CHECKBOXES);
        dlg.FillList(lines, true);
    };
    Open();
    dlg.list.SetCheck(1, TRUE);
    lines = {L"bread.", L"apple.", L"cheese."};
    CLanguageSwitch::Retranslate();
    EXPECT_TRUE(dlg.list.GetCheck(0));
    EXPECT_FALSE(dlg.list.GetCheck(1));
    EXPECT_FALSE(dlg.list.GetCheck(2));
}

TEST_F(ChoiceSwitch, ListWhoseLinesAreTheProgramsAloneIsKnownByNumbers)
{
    dlg.listStyle = LVS_OWNERDATA;
    dlg.fill = [&] {
        dlg.list.SetItemCount(0);
        dlg.list.SetItemCount(1000);
    };
    Open();
    dlg.Select(700);
    dlg.Focus(700);
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(dlg.list.GetNextItem(-1, LVNI_SELECTED), 700);
    EXPECT_EQ(dlg.list.GetNextItem(700, LVNI_SELECTED), -1);
    EXPECT_EQ(dlg.list.GetNextItem(-1, LVNI_FOCUSED), 700);
}

TEST_F(ChoiceSwitch, NodesOfATreeAreOpenAndChosenAsBefore)
{
    for (const bool withData : {true, false})
    {
        Lines lines{L"a", L" b", L"  c", L" d", L"e", L" f", L"g+", L" h"};
        dlg.fill = [&] { dlg.FillTree(lines, withData); };
        Open();
        dlg.tree.Expand(dlg.Node(L"a"), TVE_EXPAND);
        dlg.tree.Expand(dlg.Node(L"b"), TVE_EXPAND);
        dlg.tree.Expand(dlg.Node(L"g"), TVE_COLLAPSE);
        dlg.tree.SelectItem(dlg.Node(L"c"));
        EXPECT_EQ(dlg.Nodes(), L"a b c* d e g ");
        if (withData)
            lines = {L"g.+", L" h.", L"e.", L" f.", L"a.", L" d.", L" b.", L"  c."};
        CLanguageSwitch::Retranslate();
        EXPECT_EQ(dlg.Nodes(), withData ? L"g. e. a. d. b. c.* " : L"a b c* d e g ");
        dlg.DestroyWindow();
    }
}

TEST_F(ChoiceSwitch, NodeThatIsGoneIsNoTrouble)
{
    Lines lines{L"a", L" b", L"e", L" f"};
    dlg.fill = [&] { dlg.FillTree(lines, true); };
    Open();
    for (const wchar_t* node : {L"a", L"e"})
        dlg.tree.Expand(dlg.Node(node), TVE_EXPAND);
    dlg.tree.SelectItem(dlg.Node(L"f"));
    lines = {L"a", L" b"};
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(dlg.Nodes(), L"a b ");
}

TEST_F(ChoiceSwitch, CheckedNodesStayChecked)
{
    dlg.treeStyle = TVS_CHECKBOXES;
    Lines lines{L"a+", L" b", L"c"};
    dlg.fill = [&] { dlg.FillTree(lines, true); };
    Open();
    for (const wchar_t* node : {L"b", L"c"})
    {
        TVITEMW item = {};
        item.mask = TVIF_STATE | TVIF_HANDLE;
        item.hItem = dlg.Node(node);
        item.state = INDEXTOSTATEIMAGEMASK(2);
        item.stateMask = TVIS_STATEIMAGEMASK;
        dlg.tree.SendMessage(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
    EXPECT_EQ(dlg.Nodes(), L"a bx cx ");
    lines = {L"c", L"a+", L" b"};
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(dlg.Nodes(), L"cx a bx ");
}

TEST_F(ChoiceSwitch, ListThatGoesWhileTextsAreSetIsPassedOver)
{
    dlg.fill = [&] {
        if (dlg.list.m_hWnd && dlg.list.GetItemCount() > 0)
        {
            dlg.list.DestroyWindow();
            dlg.tree.DestroyWindow();
        }
        else if (dlg.list.m_hWnd)
            dlg.FillList({L"apple"}, true);
    };
    Open();
    dlg.Select(0);
    EXPECT_EQ(CLanguageSwitch::Retranslate(), 1);
}

// List boxes and edit controls.

TEST_F(ChoiceSwitch, ListBoxOfManyChoicesIsChosenAsBefore)
{
    class CManyDlg : public CChoiceDlg
    {
    protected:
        void PreInitDialog() override // the template's controls are there, the library has not seen them yet
        {
            many.Create(WS_CHILD | LBS_MULTIPLESEL, CRect(0, 100, 80, 160), this, 4003);
        }

    public:
        CListBox many;
    } box;
    box.fill = [&] {
        box.many.ResetContent();
        for (const wchar_t* line : {L"one", L"two", L"three", L"four"})
            box.many.AddString(line);
    };
    ASSERT_TRUE(box.Create(IDD_SETUP));
    for (const int line : {1, 3})
        box.many.SetSel(line, TRUE);
    CLanguageSwitch::Retranslate();
    std::wstring chosen;
    for (int i = 0; i < 4; ++i)
        chosen += box.many.GetSel(i) > 0 ? L"x" : L"-";
    EXPECT_EQ(chosen, L"-x-x");
    box.DestroyWindow();
}

TEST_F(ChoiceSwitch, SelectedCharactersAndFocusComeBackFromWhereSetTextPutsThem)
{
    CHostWnd host;
    ASSERT_TRUE(dlg.Create(IDD_SETUP, &host));
    dlg.ShowWindow(SW_SHOW);
    dlg.SetForegroundWindow();
    dlg.SetDlgItemText(IDC_NAME_EDIT, L"entered");
    dlg.SendDlgItemMessage(IDC_NAME_EDIT, EM_SETSEL, 2, 4);
    dlg.GetDlgItem(IDC_NAME_EDIT)->SetFocus();
    dlg.fill = [&] {
        dlg.SendDlgItemMessage(IDC_NAME_EDIT, EM_SETSEL, 0, -1);
        dlg.GetDlgItem(IDC_SEARCH)->SetFocus();
    };
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(dlg.SendDlgItemMessage(IDC_NAME_EDIT, EM_GETSEL), MAKELRESULT(2, 4));
    EXPECT_EQ(::GetFocus(), dlg.GetDlgItem(IDC_NAME_EDIT)->m_hWnd);
}

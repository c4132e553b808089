#include "TestApp.h"

#include <afxcmn.h>

namespace
{
class CommonControls : public WindowTest
{
protected:
    CHostWnd m_host;
};

class Lists : public CommonControls
{
protected:
    CListCtrl m_list;
    void SetUp() override
    {
        CommonControls::SetUp();
        ASSERT_TRUE(
            m_list.Create(WS_VISIBLE | LVS_REPORT | LVS_SHAREIMAGELISTS, CRect(0, 0, 400, 200), &m_host, 5));
        m_list.InsertColumn(0, L"Name", LVCFMT_LEFT, 120, 0);
        m_list.InsertColumn(1, L"Value", LVCFMT_RIGHT, 80, 1);
        m_list.InsertColumn(2, L"Unit", LVCFMT_LEFT, 60, 2);
    }
};

TEST_F(Lists, RowsAreInsertedAndChangedWithAllTheirParts)
{
    EXPECT_EQ(m_list.InsertItem(LVIF_TEXT | LVIF_PARAM | LVIF_STATE, 0, L"Length", LVIS_SELECTED,
                                LVIS_SELECTED, 0, 77),
              0);
    EXPECT_EQ(m_list.GetItemText(0, 0), L"Length");
    EXPECT_EQ(m_list.GetItemData(0), 77u);
    EXPECT_EQ(m_list.GetItemState(0, LVIS_SELECTED), static_cast<UINT>(LVIS_SELECTED));
    EXPECT_TRUE(m_list.SetItem(0, 1, LVIF_TEXT, L"12.5", 0, 0, 0, 0));
    WCHAR szText[4] = {};
    EXPECT_EQ(m_list.GetItemText(0, 1, szText, 4), 3);
    EXPECT_STREQ(szText, L"12.");
    LVITEMW state{};
    state.stateMask = LVIS_SELECTED;
    EXPECT_TRUE(m_list.SetItemState(0, &state));
    EXPECT_EQ(m_list.GetSelectedCount(), 0u);
}

TEST_F(Lists, HeaderOfTheListIsAHeaderControl)
{
    CHeaderCtrl* pHeader = m_list.GetHeaderCtrl();
    ASSERT_NE(pHeader, nullptr);
    EXPECT_EQ(pHeader->GetItemCount(), 3);
    WCHAR szText[16] = {};
    HDITEMW item{};
    item.mask = HDI_TEXT | HDI_WIDTH;
    item.pszText = szText;
    item.cchTextMax = 16;
    EXPECT_TRUE(pHeader->GetItem(1, &item));
    EXPECT_STREQ(szText, L"Value");
    EXPECT_EQ(item.cxy, 80);
    CRect second;
    EXPECT_TRUE(pHeader->GetItemRect(1, second));
    EXPECT_EQ(second.left, 120);
    HDHITTESTINFO hit{};
    hit.pt = second.CenterPoint();
    EXPECT_EQ(pHeader->HitTest(&hit), 1);
    int order[] = {2, 0, 1};
    EXPECT_TRUE(m_list.SetColumnOrderArray(3, order));
    int read[3] = {};
    EXPECT_TRUE(m_list.GetColumnOrderArray(read));
    EXPECT_EQ(std::vector<int>(read, read + 3), (std::vector<int>{2, 0, 1}));
    EXPECT_EQ(pHeader->OrderToIndex(0), 2);
}

TEST_F(Lists, RowsAreFoundByTextDataAndPlace)
{
    for (int i = 0; i < 5; ++i)
        m_list.InsertItem(LVIF_TEXT | LVIF_PARAM, i, (L"row" + std::to_wstring(i)).c_str(), 0, 0, 0, 100 + i);
    LVFINDINFOW find{};
    find.flags = LVFI_PARAM;
    find.lParam = 103;
    EXPECT_EQ(m_list.FindItem(&find), 3);
    EXPECT_EQ(m_list.FindItem(&find, 3), -1);
    find.flags = LVFI_STRING;
    find.psz = L"row2";
    EXPECT_EQ(m_list.FindItem(&find), 2);
    CRect row;
    ASSERT_TRUE(m_list.GetItemRect(4, row, LVIR_LABEL));
    UINT nFlags = 0;
    EXPECT_EQ(m_list.HitTest(row.CenterPoint(), &nFlags), 4);
    EXPECT_EQ(nFlags, static_cast<UINT>(LVHT_ONITEMLABEL));
    EXPECT_EQ(m_list.HitTest(CPoint(390, 190)), -1);
    EXPECT_GT(m_list.GetStringWidth(L"a long text"), m_list.GetStringWidth(L"a"));
}

TEST_F(Lists, ImageListsAreAnsweredAsTheObjectsTheyWereGivenFrom)
{
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR32, 1, 1));
    EXPECT_EQ(m_list.GetImageList(LVSIL_SMALL), nullptr);
    EXPECT_EQ(m_list.SetImageList(&images, LVSIL_SMALL), nullptr);
    EXPECT_EQ(m_list.GetImageList(LVSIL_SMALL), &images);
    EXPECT_EQ(m_list.SetImageList(nullptr, LVSIL_SMALL), &images);
    m_list.SetImageList(&images, LVSIL_SMALL);
    images.Detach(); // somebody else's now: the answer is a temporary object
    CImageList* pTemporary = m_list.GetImageList(LVSIL_SMALL);
    ASSERT_NE(pTemporary, nullptr);
    EXPECT_NE(pTemporary, &images);
    EXPECT_EQ(CImageList::FromHandlePermanent(*pTemporary), nullptr);
    const HIMAGELIST hImages = pTemporary->m_hImageList;
    theApp.OnIdle(1); // which does not destroy what it stood for
    EXPECT_EQ(::ImageList_GetImageCount(hImages), 0);
    m_list.SetImageList(nullptr, LVSIL_SMALL);
    EXPECT_TRUE(::ImageList_Destroy(hImages));
}

TEST_F(Lists, LabelIsEditedInAnEditControl)
{
    m_list.ModifyStyle(0, LVS_EDITLABELS);
    m_list.InsertItem(0, L"before");
    m_list.SetFocus();
    EXPECT_EQ(m_list.GetEditControl(), nullptr);
    CEdit* pEdit = m_list.EditLabel(0);
    ASSERT_NE(pEdit, nullptr);
    EXPECT_EQ(m_list.GetEditControl(), pEdit);
    m_host.SetFocus();
    EXPECT_EQ(m_list.GetEditControl(), nullptr);
}

TEST_F(Lists, ColoursAndMarksAreKept)
{
    EXPECT_TRUE(m_list.SetTextColor(RGB(1, 2, 3)));
    EXPECT_TRUE(m_list.SetTextBkColor(RGB(4, 5, 6)));
    EXPECT_TRUE(m_list.SetBkColor(RGB(7, 8, 9)));
    EXPECT_EQ(m_list.GetTextColor(), RGB(1, 2, 3));
    EXPECT_EQ(m_list.GetTextBkColor(), RGB(4, 5, 6));
    EXPECT_EQ(m_list.GetBkColor(), RGB(7, 8, 9));
    m_list.InsertItem(0, L"one");
    m_list.SetSelectionMark(0);
    EXPECT_EQ(m_list.GetSelectionMark(), 0);
}

TEST_F(CommonControls, ImageListDrawsCopiesAndReplaces)
{
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR32 | ILC_MASK, 2, 1));
    EXPECT_EQ(images.Add(::LoadIconW(nullptr, IDI_INFORMATION)), 0);
    EXPECT_EQ(images.Replace(-1, ::LoadIconW(nullptr, IDI_WARNING)), 1);
    EXPECT_EQ(images.GetImageCount(), 2);
    CImageList copy;
    ASSERT_TRUE(copy.Create(&images));
    EXPECT_TRUE(images.Remove(-1));
    EXPECT_EQ(images.GetImageCount(), 0);
    EXPECT_EQ(copy.GetImageCount(), 2);
    IMAGEINFO info{};
    EXPECT_TRUE(copy.GetImageInfo(1, &info));
    EXPECT_EQ(CRect(info.rcImage).Size(), CSize(16, 16));
    copy.SetBkColor(RGB(9, 9, 9));
    EXPECT_EQ(copy.GetBkColor(), RGB(9, 9, 9));
    EXPECT_TRUE(copy.SetOverlayImage(1, 1));
    CClientDC dc(&m_host);
    EXPECT_TRUE(copy.DrawEx(&dc, 0, CPoint(1, 1), CSize(16, 16), CLR_NONE, CLR_NONE, ILD_NORMAL));
    EXPECT_TRUE(copy.BeginDrag(0, CPoint(0, 0)));
    EXPECT_TRUE(CImageList::DragEnter(&m_host, CPoint(5, 5)));
    EXPECT_TRUE(CImageList::DragMove(CPoint(9, 9)));
    EXPECT_TRUE(CImageList::DragLeave(&m_host));
    CImageList::EndDrag();
    const HIMAGELIST hCopy = copy;
    EXPECT_EQ(CImageList::FromHandle(hCopy), &copy);
    EXPECT_TRUE(copy.DeleteImageList());
    EXPECT_EQ(CImageList::FromHandlePermanent(hCopy), nullptr);
    EXPECT_EQ(CImageList::FromHandle(nullptr), nullptr);
}

TEST_F(CommonControls, TabsCarryDataAndAreHit)
{
    CTabCtrl tabs;
    ASSERT_TRUE(tabs.Create(WS_VISIBLE, CRect(0, 0, 400, 300), &m_host, 6));
    EXPECT_EQ(tabs.InsertItem(TCIF_TEXT | TCIF_PARAM, 0, L"One", 0, 111), 0);
    EXPECT_EQ(tabs.InsertItem(1, L"Two"), 1);
    TCITEMW item{};
    item.mask = TCIF_PARAM;
    EXPECT_TRUE(tabs.GetItem(0, &item));
    EXPECT_EQ(item.lParam, 111);
    CRect second;
    ASSERT_TRUE(tabs.GetItemRect(1, second));
    TCHITTESTINFO hit{};
    hit.pt = second.CenterPoint();
    EXPECT_EQ(tabs.HitTest(&hit), 1);
    EXPECT_EQ(tabs.GetRowCount(), 1);
    tabs.SetCurFocus(1);
    EXPECT_EQ(tabs.GetCurFocus(), 1);
    CImageList images;
    images.Create(16, 16, ILC_COLOR32, 1, 1);
    EXPECT_EQ(tabs.SetImageList(&images), nullptr);
    EXPECT_EQ(tabs.GetImageList(), &images);
    tabs.SetImageList(nullptr);
    tabs.SetItemSize(CSize(90, 30));
    EXPECT_EQ(tabs.SetItemSize(CSize(90, 31)).cy, 30);
}

TEST_F(CommonControls, OwnerDrawnTabsAndHeadingsDrawThemselves)
{
    class CDrawnTabs : public CTabCtrl
    {
    public:
        int m_nDrawn = 0;
        void DrawItem(LPDRAWITEMSTRUCT lp) override { m_nDrawn += lp->CtlType == ODT_TAB; }
    };
    CDrawnTabs tabs;
    ASSERT_TRUE(tabs.Create(WS_VISIBLE | TCS_OWNERDRAWFIXED, CRect(0, 0, 200, 100), &m_host, 6));
    tabs.InsertItem(0, L"One");
    m_host.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    EXPECT_GT(tabs.m_nDrawn, 0);
    class CDrawnHeader : public CHeaderCtrl
    {
    public:
        int m_nDrawn = 0;
        void DrawItem(LPDRAWITEMSTRUCT lp) override { m_nDrawn += lp->CtlType == ODT_HEADER; }
    };
    CDrawnHeader header;
    ASSERT_TRUE(header.Create(WS_VISIBLE | HDS_HORZ, CRect(0, 120, 200, 150), &m_host, 7));
    HDITEMW item{};
    item.mask = HDI_WIDTH | HDI_FORMAT;
    item.cxy = 50;
    item.fmt = HDF_OWNERDRAW;
    EXPECT_EQ(header.InsertItem(0, &item), 0);
    header.RedrawWindow();
    EXPECT_GT(header.m_nDrawn, 0);
    EXPECT_TRUE(header.DeleteItem(0));
}

TEST_F(CommonControls, TreeItemsHaveStatesImagesAndNeighbours)
{
    CTreeCtrl tree;
    ASSERT_TRUE(tree.Create(WS_VISIBLE | TVS_HASLINES | TVS_CHECKBOXES, CRect(0, 0, 200, 200), &m_host, 8));
    const HTREEITEM hRoot = tree.InsertItem(L"root", 1, 2);
    const HTREEITEM hLater = tree.InsertItem(L"later", hRoot);
    const HTREEITEM hSooner = tree.InsertItem(L"Sooner", hRoot, TVI_FIRST);
    tree.Expand(hRoot, TVE_EXPAND);
    int nImage = 0;
    int nSelected = 0;
    EXPECT_TRUE(tree.GetItemImage(hRoot, nImage, nSelected));
    EXPECT_EQ(std::make_pair(nImage, nSelected), std::make_pair(1, 2));
    EXPECT_TRUE(tree.SetItemImage(hRoot, 3, 4));
    EXPECT_TRUE(tree.GetItemImage(hRoot, nImage, nSelected));
    EXPECT_EQ(std::make_pair(nImage, nSelected), std::make_pair(3, 4));
    EXPECT_FALSE(tree.GetCheck(hLater));
    EXPECT_TRUE(tree.SetCheck(hLater));
    EXPECT_TRUE(tree.GetCheck(hLater));
    EXPECT_EQ(tree.GetPrevSiblingItem(hLater), hSooner);
    EXPECT_EQ(tree.GetNextVisibleItem(hSooner), hLater);
    EXPECT_EQ(tree.GetFirstVisibleItem(), hRoot);
    EXPECT_TRUE(tree.SortChildren(hRoot));
    EXPECT_EQ(tree.GetChildItem(hRoot), hLater);
    CRect label;
    ASSERT_TRUE(tree.GetItemRect(hLater, label, TRUE));
    UINT nFlags = 0;
    EXPECT_EQ(tree.HitTest(label.CenterPoint(), &nFlags), hLater);
    EXPECT_EQ(nFlags, static_cast<UINT>(TVHT_ONITEMLABEL));
}

TEST_F(CommonControls, ProgressSpinAndSliderHoldTheirNumbers)
{
    CProgressCtrl progress;
    ASSERT_TRUE(progress.Create(WS_VISIBLE, CRect(0, 0, 100, 20), &m_host, 9));
    progress.SetStep(7);
    EXPECT_EQ(progress.GetStep(), 7);
    progress.StepIt();
    EXPECT_EQ(progress.GetPos(), 7);
    progress.SetBarColor(RGB(1, 1, 1));
    EXPECT_EQ(progress.SetBarColor(RGB(2, 2, 2)), RGB(1, 1, 1));

    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_VISIBLE, CRect(0, 30, 60, 50), &m_host, 10));
    CSpinButtonCtrl spin;
    ASSERT_TRUE(
        spin.Create(WS_VISIBLE | UDS_SETBUDDYINT | UDS_NOTHOUSANDS, CRect(60, 30, 80, 50), &m_host, 11));
    spin.SetBuddy(&edit);
    EXPECT_EQ(spin.GetBuddy(), &edit);
    spin.SetRange32(-5, 100000);
    spin.SetPos32(70000);
    CString strText;
    edit.GetWindowText(strText);
    EXPECT_EQ(strText, L"70000");
    edit.SetWindowText(L"nonsense");
    BOOL bError = FALSE;
    spin.GetPos32(&bError);
    EXPECT_TRUE(bError);
    int nLower = 0;
    int nUpper = 0;
    spin.GetRange32(nLower, nUpper);
    EXPECT_EQ(std::make_pair(nLower, nUpper), std::make_pair(-5, 100000));

    CSliderCtrl slider;
    ASSERT_TRUE(slider.Create(WS_VISIBLE, CRect(0, 60, 200, 90), &m_host, 12));
    slider.SetRange(10, 20);
    slider.SetPos(99);
    EXPECT_EQ(slider.GetPos(), 20);
    EXPECT_EQ(slider.GetRangeMin(), 10);
}

TEST_F(CommonControls, CharactersOfAFieldHavePlaces)
{
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_VISIBLE, CRect(0, 0, 200, 25), &m_host, 10));
    edit.SetWindowText(L"abcdef");
    const CPoint place = edit.PosFromChar(3);
    EXPECT_GT(place.x, edit.PosFromChar(0).x);
    EXPECT_EQ(LOWORD(edit.CharFromPos(CPoint(place.x + 1, place.y + 2))), 3);
    edit.SetPasswordChar(L'*');
    EXPECT_EQ(edit.GetPasswordChar(), L'*');
}

TEST_F(CommonControls, LinesOfListsAreFoundByPlaceAndRange)
{
    CListBox list;
    ASSERT_TRUE(list.Create(WS_VISIBLE | LBS_EXTENDEDSEL, CRect(0, 0, 100, 100), &m_host, 13));
    for (int i = 0; i < 4; ++i)
        list.AddString(std::to_wstring(i).c_str());
    CRect line;
    list.GetItemRect(2, line);
    BOOL bOutside = TRUE;
    EXPECT_EQ(list.ItemFromPoint(line.CenterPoint(), bOutside), 2u);
    EXPECT_FALSE(bOutside);
    list.ItemFromPoint(CPoint(500, 500), bOutside);
    EXPECT_TRUE(bOutside);
    list.SelItemRange(TRUE, 1, 3);
    EXPECT_EQ(list.GetSelCount(), 3);
    list.SetCaretIndex(2);
    EXPECT_EQ(list.GetCaretIndex(), 2);
    list.SetHorizontalExtent(333);
    EXPECT_EQ(list.GetHorizontalExtent(), 333);
    CComboBox combo;
    ASSERT_TRUE(
        combo.Create(WS_VISIBLE | CBS_DROPDOWNLIST | WS_HSCROLL, CRect(0, 110, 100, 250), &m_host, 14));
    combo.AddString(L"x");
    combo.SetItemDataPtr(0, &list);
    EXPECT_EQ(combo.GetItemDataPtr(0), &list);
    combo.SetHorizontalExtent(222);
    EXPECT_EQ(combo.GetHorizontalExtent(), 222u);
    combo.SetExtendedUI();
    EXPECT_TRUE(combo.GetExtendedUI());
}
} // namespace

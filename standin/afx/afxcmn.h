#pragma once

#include <afxtempl.h>
#include <afxwin.h>

#include <commctrl.h>

/// The common controls. Thin, as the controls of afxctrl.h: each function is the message of its name with
/// its results.

/// A list of images. The destructor destroys the list it owns; Detach gives it up.
class AFX_API CImageList : public CObject
{
    DECLARE_DYNCREATE(CImageList)

public:
    CImageList() = default;
    ~CImageList() override { DeleteImageList(); }

    HIMAGELIST m_hImageList = nullptr;

    operator HIMAGELIST() const { return m_hImageList; }
    HIMAGELIST GetSafeHandle() const { return HandleOf(AfxOpaque(this)); }
    static HIMAGELIST HandleOf(const CImageList* pList) { return pList ? pList->m_hImageList : nullptr; }
    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow)
    {
        return Attach(::ImageList_Create(cx, cy, nFlags, nInitial, nGrow));
    }
    /// A bitmap resource of pictures \p cx wide; \p crMask is see-through.
    BOOL Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL Attach(HIMAGELIST hImageList);
    HIMAGELIST Detach();
    BOOL DeleteImageList();
    int GetImageCount() const { return ::ImageList_GetImageCount(m_hImageList); }
    int Add(CBitmap* pbmImage, CBitmap* pbmMask)
    {
        return ::ImageList_Add(m_hImageList, *pbmImage, pbmMask ? static_cast<HBITMAP>(*pbmMask) : nullptr);
    }
    int Add(CBitmap* pbmImage, COLORREF crMask)
    {
        return ::ImageList_AddMasked(m_hImageList, *pbmImage, crMask);
    }
    int Add(HICON hIcon) { return ::ImageList_ReplaceIcon(m_hImageList, -1, hIcon); }
    BOOL Remove(int nImage) { return ::ImageList_Remove(m_hImageList, nImage); }
    BOOL Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle)
    {
        return ::ImageList_Draw(m_hImageList, nImage, pDC->m_hDC, pt.x, pt.y, nStyle);
    }
    HICON ExtractIcon(int nImage) { return ::ImageList_GetIcon(m_hImageList, nImage, ILD_NORMAL); }
};

class AFX_API CListCtrl : public CWnd
{
    DECLARE_DYNCREATE(CListCtrl)

public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
    {
        return CWnd::Create(WC_LISTVIEWW, nullptr, dwStyle, rect, pParentWnd, nID);
    }
    int GetItemCount() const { return ListView_GetItemCount(m_hWnd); }
    BOOL GetItem(LVITEM* pItem) const { return ListView_GetItem(m_hWnd, pItem); }
    BOOL SetItem(const LVITEM* pItem) { return ListView_SetItem(m_hWnd, pItem); }
    int InsertItem(const LVITEM* pItem) { return ListView_InsertItem(m_hWnd, pItem); }
    int InsertItem(int nItem, LPCTSTR lpszItem);
    int InsertItem(int nItem, LPCTSTR lpszItem, int nImage);
    BOOL DeleteItem(int nItem) { return ListView_DeleteItem(m_hWnd, nItem); }
    BOOL DeleteAllItems() { return ListView_DeleteAllItems(m_hWnd); }
    BOOL SetItemText(int nItem, int nSubItem, LPCTSTR lpszText);
    /// The whole text, however long.
    CString GetItemText(int nItem, int nSubItem) const;
    DWORD_PTR GetItemData(int nItem) const;
    BOOL SetItemData(int nItem, DWORD_PTR dwData);
    UINT GetItemState(int nItem, UINT nMask) const { return ListView_GetItemState(m_hWnd, nItem, nMask); }
    BOOL SetItemState(int nItem, UINT nState, UINT nMask);
    BOOL GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const
    {
        return ListView_GetItemRect(m_hWnd, nItem, lpRect, nCode);
    }
    BOOL GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref) const
    {
        return ListView_GetSubItemRect(m_hWnd, iItem, iSubItem, nArea, &ref);
    }
    int GetNextItem(int nItem, int nFlags) const
    {
        return ListView_GetNextItem(m_hWnd, nItem, static_cast<UINT>(nFlags));
    }
    int HitTest(LVHITTESTINFO* pHitTestInfo) const { return ListView_HitTest(m_hWnd, pHitTestInfo); }
    int SubItemHitTest(LVHITTESTINFO* pHitTestInfo) const
    {
        return ListView_SubItemHitTest(m_hWnd, pHitTestInfo);
    }
    BOOL EnsureVisible(int nItem, BOOL bPartialOK)
    {
        return ListView_EnsureVisible(m_hWnd, nItem, bPartialOK);
    }
    int GetTopIndex() const { return ListView_GetTopIndex(m_hWnd); }
    int GetCountPerPage() const { return ListView_GetCountPerPage(m_hWnd); }
    int InsertColumn(int nCol, const LVCOLUMN* pColumn)
    {
        return ListView_InsertColumn(m_hWnd, nCol, pColumn);
    }
    int InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat = LVCFMT_LEFT, int nWidth = -1,
                     int nSubItem = -1);
    BOOL DeleteColumn(int nCol) { return ListView_DeleteColumn(m_hWnd, nCol); }
    BOOL GetColumn(int nCol, LVCOLUMN* pColumn) const { return ListView_GetColumn(m_hWnd, nCol, pColumn); }
    BOOL SetColumn(int nCol, const LVCOLUMN* pColumn) { return ListView_SetColumn(m_hWnd, nCol, pColumn); }
    int GetColumnWidth(int nCol) const { return ListView_GetColumnWidth(m_hWnd, nCol); }
    BOOL SetColumnWidth(int nCol, int cx) { return ListView_SetColumnWidth(m_hWnd, nCol, cx); }
    DWORD GetExtendedStyle() const { return ListView_GetExtendedListViewStyle(m_hWnd); }
    DWORD SetExtendedStyle(DWORD dwNewStyle) { return ListView_SetExtendedListViewStyle(m_hWnd, dwNewStyle); }
    UINT GetSelectedCount() const { return ListView_GetSelectedCount(m_hWnd); }
    POSITION GetFirstSelectedItemPosition() const;
    int GetNextSelectedItem(POSITION& pos) const;
    int GetSelectionMark() const { return ListView_GetSelectionMark(m_hWnd); }
    BOOL SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData)
    {
        return ListView_SortItems(m_hWnd, pfnCompare, dwData);
    }
    void SetImageList(CImageList* pImageList, int nImageListType)
    {
        ListView_SetImageList(m_hWnd, CImageList::HandleOf(pImageList), nImageListType);
    }
    BOOL SetTextColor(COLORREF cr) { return ListView_SetTextColor(m_hWnd, cr); }
    BOOL SetBkColor(COLORREF cr) { return ListView_SetBkColor(m_hWnd, cr); }
    BOOL GetCheck(int nItem) const { return ListView_GetCheckState(m_hWnd, static_cast<UINT>(nItem)) == 1; }
    BOOL SetCheck(int nItem, BOOL fCheck = TRUE);
    void SetItemCount(int nItems) { ListView_SetItemCount(m_hWnd, nItems); }
    BOOL RedrawItems(int nFirst, int nLast) { return ListView_RedrawItems(m_hWnd, nFirst, nLast); }
    CEdit* EditLabel(int nItem)
    {
        return reinterpret_cast<CEdit*>(FromHandle(ListView_EditLabel(m_hWnd, nItem)));
    }
    virtual void DrawItem(LPDRAWITEMSTRUCT) {}

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;
};

class AFX_API CTreeCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTreeCtrl)

public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
    {
        return CWnd::Create(WC_TREEVIEWW, nullptr, dwStyle, rect, pParentWnd, nID);
    }
    HTREEITEM InsertItem(LPTVINSERTSTRUCT lpInsertStruct)
    {
        return TreeView_InsertItem(m_hWnd, lpInsertStruct);
    }
    HTREEITEM InsertItem(LPCTSTR lpszItem, HTREEITEM hParent = TVI_ROOT, HTREEITEM hInsertAfter = TVI_LAST);
    UINT GetCount() const { return TreeView_GetCount(m_hWnd); }
    BOOL DeleteItem(HTREEITEM hItem) { return TreeView_DeleteItem(m_hWnd, hItem); }
    BOOL DeleteAllItems() { return TreeView_DeleteAllItems(m_hWnd); }
    CString GetItemText(HTREEITEM hItem) const;
    BOOL SetItemText(HTREEITEM hItem, LPCTSTR lpszItem);
    DWORD_PTR GetItemData(HTREEITEM hItem) const;
    BOOL SetItemData(HTREEITEM hItem, DWORD_PTR dwData);
    BOOL Expand(HTREEITEM hItem, UINT nCode) { return TreeView_Expand(m_hWnd, hItem, nCode); }
    HTREEITEM GetRootItem() const { return TreeView_GetRoot(m_hWnd); }
    HTREEITEM GetSelectedItem() const { return TreeView_GetSelection(m_hWnd); }
    BOOL SelectItem(HTREEITEM hItem) { return TreeView_SelectItem(m_hWnd, hItem); }
    HTREEITEM GetChildItem(HTREEITEM hItem) const { return TreeView_GetChild(m_hWnd, hItem); }
    HTREEITEM GetParentItem(HTREEITEM hItem) const { return TreeView_GetParent(m_hWnd, hItem); }
    HTREEITEM GetNextSiblingItem(HTREEITEM hItem) const { return TreeView_GetNextSibling(m_hWnd, hItem); }
    BOOL ItemHasChildren(HTREEITEM hItem) const { return GetChildItem(hItem) != nullptr; }
    BOOL EnsureVisible(HTREEITEM hItem) { return TreeView_EnsureVisible(m_hWnd, hItem); }
};

class AFX_API CTabCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTabCtrl)

public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
    {
        return CWnd::Create(WC_TABCONTROLW, nullptr, dwStyle, rect, pParentWnd, nID);
    }
    int GetItemCount() const { return TabCtrl_GetItemCount(m_hWnd); }
    BOOL GetItem(int nItem, TCITEM* pTabCtrlItem) const
    {
        return TabCtrl_GetItem(m_hWnd, nItem, pTabCtrlItem);
    }
    BOOL SetItem(int nItem, TCITEM* pTabCtrlItem) { return TabCtrl_SetItem(m_hWnd, nItem, pTabCtrlItem); }
    LONG InsertItem(int nItem, TCITEM* pTabCtrlItem)
    {
        return TabCtrl_InsertItem(m_hWnd, nItem, pTabCtrlItem);
    }
    LONG InsertItem(int nItem, LPCTSTR lpszItem);
    BOOL DeleteItem(int nItem) { return TabCtrl_DeleteItem(m_hWnd, nItem); }
    BOOL DeleteAllItems() { return TabCtrl_DeleteAllItems(m_hWnd); }
    int GetCurSel() const { return TabCtrl_GetCurSel(m_hWnd); }
    int SetCurSel(int nItem) { return TabCtrl_SetCurSel(m_hWnd, nItem); }
    BOOL GetItemRect(int nItem, LPRECT lpRect) const { return TabCtrl_GetItemRect(m_hWnd, nItem, lpRect); }
    void AdjustRect(BOOL bLarger, LPRECT lpRect) const { TabCtrl_AdjustRect(m_hWnd, bLarger, lpRect); }
};

class AFX_API CProgressCtrl : public CWnd
{
    DECLARE_DYNCREATE(CProgressCtrl)

public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
    {
        return CWnd::Create(PROGRESS_CLASSW, nullptr, dwStyle, rect, pParentWnd, nID);
    }
    void SetRange(short nLower, short nUpper) { SendMessage(PBM_SETRANGE, 0, MAKELPARAM(nLower, nUpper)); }
    void SetRange32(int nLower, int nUpper)
    {
        SendMessage(PBM_SETRANGE32, static_cast<WPARAM>(nLower), nUpper);
    }
    void GetRange(int& nLower, int& nUpper) const;
    int GetPos() const { return static_cast<int>(SendMessage(PBM_GETPOS)); }
    int SetPos(int nPos) { return static_cast<int>(SendMessage(PBM_SETPOS, static_cast<WPARAM>(nPos))); }
    int SetStep(int nStep) { return static_cast<int>(SendMessage(PBM_SETSTEP, static_cast<WPARAM>(nStep))); }
    int StepIt() { return static_cast<int>(SendMessage(PBM_STEPIT)); }
    int OffsetPos(int nPos) { return static_cast<int>(SendMessage(PBM_DELTAPOS, static_cast<WPARAM>(nPos))); }
};

class AFX_API CToolTipCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolTipCtrl)

public:
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);
    /// For a control of \p pWnd's dialog; with \p lpRectTool an area of the window under \p nIDTool.
    BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool = nullptr, UINT_PTR nIDTool = 0);
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    int GetToolCount() const { return static_cast<int>(SendMessage(TTM_GETTOOLCOUNT)); }
    void Activate(BOOL bActivate) { SendMessage(TTM_ACTIVATE, static_cast<WPARAM>(bActivate)); }
    /// From PreTranslateMessage of the dialog, so that the tips see the mouse.
    void RelayEvent(LPMSG lpMsg) { SendMessage(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(lpMsg)); }
    int SetMaxTipWidth(int iWidth) { return static_cast<int>(SendMessage(TTM_SETMAXTIPWIDTH, 0, iWidth)); }
};

#pragma once

#include "afxcoll.h"
#include "afxctrl.h"
#include "afximagelist.h"

class CHeaderCtrl;

/// The list view: rows of texts, in one of four layouts. A row is named by its number, a cell by row and
/// column.
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
    int InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask, int nImage,
                   LPARAM lParam);
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                 UINT nStateMask, LPARAM lParam);
    BOOL DeleteItem(int nItem) { return ListView_DeleteItem(m_hWnd, nItem); }
    BOOL DeleteAllItems() { return ListView_DeleteAllItems(m_hWnd); }
    BOOL SetItemText(int nItem, int nSubItem, LPCTSTR lpszText);
    /// The whole text, however long.
    CString GetItemText(int nItem, int nSubItem) const;
    /// As the message: what was copied to the buffer, cut to its room, and its length.
    int GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const;
    DWORD_PTR GetItemData(int nItem) const;
    BOOL SetItemData(int nItem, DWORD_PTR dwData);
    UINT GetItemState(int nItem, UINT nMask) const { return ListView_GetItemState(m_hWnd, nItem, nMask); }
    BOOL SetItemState(int nItem, UINT nState, UINT nMask);
    BOOL SetItemState(int nItem, LVITEM* pItem)
    {
        return static_cast<BOOL>(
            SendMessage(LVM_SETITEMSTATE, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(pItem)));
    }
    /// -1 when no row fits; \p nStart is passed over, -1 begins with the first row.
    int FindItem(LVFINDINFO* pFindInfo, int nStart = -1) const
    {
        return ListView_FindItem(m_hWnd, nStart, pFindInfo);
    }
    BOOL GetItemPosition(int nItem, LPPOINT lpPoint) const
    {
        return ListView_GetItemPosition(m_hWnd, nItem, lpPoint);
    }
    BOOL SetItemPosition(int nItem, POINT pt)
    {
        ListView_SetItemPosition32(m_hWnd, nItem, pt.x, pt.y);
        return TRUE;
    }
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
    int HitTest(CPoint pt, UINT* pFlags = nullptr) const;
    int HitTest(LVHITTESTINFO* pHitTestInfo) const { return ListView_HitTest(m_hWnd, pHitTestInfo); }
    int SubItemHitTest(LVHITTESTINFO* pHitTestInfo) const
    {
        return ListView_SubItemHitTest(m_hWnd, pHitTestInfo);
    }
    BOOL EnsureVisible(int nItem, BOOL bPartialOK)
    {
        return ListView_EnsureVisible(m_hWnd, nItem, bPartialOK);
    }
    BOOL Scroll(CSize size) { return ListView_Scroll(m_hWnd, size.cx, size.cy); }
    BOOL GetOrigin(LPPOINT lpPoint) const { return ListView_GetOrigin(m_hWnd, lpPoint); }
    BOOL GetViewRect(LPRECT lpRect) const { return ListView_GetViewRect(m_hWnd, lpRect); }
    BOOL Update(int nItem) { return ListView_Update(m_hWnd, nItem); }
    BOOL Arrange(UINT nCode) { return ListView_Arrange(m_hWnd, nCode); }
    int GetStringWidth(LPCTSTR lpsz) const { return ListView_GetStringWidth(m_hWnd, lpsz); }
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
    /// Null in layouts without columns. A temporary object unless one is attached.
    CHeaderCtrl* GetHeaderCtrl() const;
    /// Which column stands where, from left to right.
    BOOL GetColumnOrderArray(LPINT piArray, int iCount = -1) const;
    BOOL SetColumnOrderArray(int iCount, LPINT piArray)
    {
        return ListView_SetColumnOrderArray(m_hWnd, iCount, piArray);
    }
    DWORD GetExtendedStyle() const { return ListView_GetExtendedListViewStyle(m_hWnd); }
    DWORD SetExtendedStyle(DWORD dwNewStyle) { return ListView_SetExtendedListViewStyle(m_hWnd, dwNewStyle); }
    UINT GetSelectedCount() const { return ListView_GetSelectedCount(m_hWnd); }
    POSITION GetFirstSelectedItemPosition() const;
    int GetNextSelectedItem(POSITION& pos) const;
    int GetSelectionMark() const { return ListView_GetSelectionMark(m_hWnd); }
    int SetSelectionMark(int iIndex) { return ListView_SetSelectionMark(m_hWnd, iIndex); }
    int GetHotItem() const { return ListView_GetHotItem(m_hWnd); }
    int SetHotItem(int iIndex) { return ListView_SetHotItem(m_hWnd, iIndex); }
    BOOL SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData)
    {
        return ListView_SortItems(m_hWnd, pfnCompare, dwData);
    }
    /// The former list, null for none. Without LVS_SHAREIMAGELISTS the control destroys the list it holds.
    CImageList* SetImageList(CImageList* pImageList, int nImageListType)
    {
        return CImageList::FromHandle(
            ListView_SetImageList(m_hWnd, CImageList::HandleOf(pImageList), nImageListType));
    }
    CImageList* GetImageList(int nImageListType) const
    {
        return CImageList::FromHandle(ListView_GetImageList(m_hWnd, nImageListType));
    }
    /// A new object, which the caller deletes; null when there is no picture.
    CImageList* CreateDragImage(int nItem, LPPOINT lpPoint);
    BOOL SetTextColor(COLORREF cr) { return ListView_SetTextColor(m_hWnd, cr); }
    COLORREF GetTextColor() const { return ListView_GetTextColor(m_hWnd); }
    COLORREF GetTextBkColor() const { return ListView_GetTextBkColor(m_hWnd); }
    BOOL SetTextBkColor(COLORREF cr) { return ListView_SetTextBkColor(m_hWnd, cr); }
    COLORREF GetBkColor() const { return ListView_GetBkColor(m_hWnd); }
    BOOL SetBkColor(COLORREF cr) { return ListView_SetBkColor(m_hWnd, cr); }
    BOOL GetCheck(int nItem) const { return ListView_GetCheckState(m_hWnd, static_cast<UINT>(nItem)) == 1; }
    BOOL SetCheck(int nItem, BOOL fCheck = TRUE);
    BOOL SetItemCountEx(int iCount, DWORD dwFlags = LVSICF_NOINVALIDATEALL)
    {
        return static_cast<BOOL>(
            SendMessage(LVM_SETITEMCOUNT, static_cast<WPARAM>(iCount), static_cast<LPARAM>(dwFlags)));
    }
    void SetItemCount(int nItems) { ListView_SetItemCount(m_hWnd, nItems); }
    BOOL RedrawItems(int nFirst, int nLast) { return ListView_RedrawItems(m_hWnd, nFirst, nLast); }
    CEdit* EditLabel(int nItem)
    {
        return reinterpret_cast<CEdit*>(FromHandle(ListView_EditLabel(m_hWnd, nItem)));
    }
    /// Null unless a text is being edited.
    CEdit* GetEditControl() const
    {
        return reinterpret_cast<CEdit*>(FromHandle(ListView_GetEditControl(m_hWnd)));
    }
    virtual void DrawItem(LPDRAWITEMSTRUCT) {}

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;
};

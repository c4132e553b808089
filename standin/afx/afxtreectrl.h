#pragma once

#include "afxctrl.h"
#include "afximagelist.h"

/// The tree view.
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
    HTREEITEM InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage, HTREEITEM hParent = TVI_ROOT,
                         HTREEITEM hInsertAfter = TVI_LAST);
    UINT GetCount() const { return TreeView_GetCount(m_hWnd); }
    BOOL DeleteItem(HTREEITEM hItem) { return TreeView_DeleteItem(m_hWnd, hItem); }
    BOOL DeleteAllItems() { return TreeView_DeleteAllItems(m_hWnd); }
    CString GetItemText(HTREEITEM hItem) const;
    BOOL SetItemText(HTREEITEM hItem, LPCTSTR lpszItem);
    DWORD_PTR GetItemData(HTREEITEM hItem) const;
    BOOL SetItemData(HTREEITEM hItem, DWORD_PTR dwData);
    BOOL GetItem(TVITEM* pItem) const { return TreeView_GetItem(m_hWnd, pItem); }
    BOOL SetItem(TVITEM* pItem) { return TreeView_SetItem(m_hWnd, pItem); }
    UINT GetItemState(HTREEITEM hItem, UINT nStateMask) const;
    BOOL SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask);
    BOOL SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage);
    BOOL GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const;
    BOOL GetCheck(HTREEITEM hItem) const { return (GetItemState(hItem, TVIS_STATEIMAGEMASK) >> 12) == 2; }
    BOOL SetCheck(HTREEITEM hItem, BOOL fCheck = TRUE)
    {
        return SetItemState(hItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2u : 1u), TVIS_STATEIMAGEMASK);
    }
    BOOL GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const
    {
        return TreeView_GetItemRect(m_hWnd, hItem, lpRect, bTextOnly);
    }
    HTREEITEM HitTest(CPoint pt, UINT* pFlags = nullptr) const;
    HTREEITEM HitTest(TVHITTESTINFO* pHitTestInfo) const { return TreeView_HitTest(m_hWnd, pHitTestInfo); }
    HTREEITEM GetNextItem(HTREEITEM hItem, UINT nCode) const
    {
        return TreeView_GetNextItem(m_hWnd, hItem, nCode);
    }
    HTREEITEM GetPrevSiblingItem(HTREEITEM hItem) const { return TreeView_GetPrevSibling(m_hWnd, hItem); }
    HTREEITEM GetFirstVisibleItem() const { return TreeView_GetFirstVisible(m_hWnd); }
    HTREEITEM GetNextVisibleItem(HTREEITEM hItem) const { return TreeView_GetNextVisible(m_hWnd, hItem); }
    HTREEITEM GetDropHilightItem() const { return TreeView_GetDropHilight(m_hWnd); }
    BOOL SelectDropTarget(HTREEITEM hItem) { return TreeView_SelectDropTarget(m_hWnd, hItem); }
    BOOL SortChildren(HTREEITEM hItem) { return TreeView_SortChildren(m_hWnd, hItem, FALSE); }
    BOOL SortChildrenCB(LPTVSORTCB pSort) { return TreeView_SortChildrenCB(m_hWnd, pSort, FALSE); }
    CImageList* SetImageList(CImageList* pImageList, int nImageListType)
    {
        return CImageList::FromHandle(
            TreeView_SetImageList(m_hWnd, CImageList::HandleOf(pImageList), nImageListType));
    }
    CImageList* GetImageList(UINT nImageList) const
    {
        return CImageList::FromHandle(TreeView_GetImageList(m_hWnd, static_cast<int>(nImageList)));
    }
    CEdit* EditLabel(HTREEITEM hItem)
    {
        return reinterpret_cast<CEdit*>(FromHandle(TreeView_EditLabel(m_hWnd, hItem)));
    }
    CEdit* GetEditControl() const
    {
        return reinterpret_cast<CEdit*>(FromHandle(TreeView_GetEditControl(m_hWnd)));
    }
    UINT GetIndent() const { return TreeView_GetIndent(m_hWnd); }
    void SetIndent(UINT nIndent) { TreeView_SetIndent(m_hWnd, nIndent); }
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

#include "afxtreectrl.h"

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)

namespace
{
LPTSTR Writable(LPCTSTR psz) { return const_cast<LPTSTR>(psz); } // the structures serve reading too
} // namespace

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR lpszItem, HTREEITEM hParent, HTREEITEM hInsertAfter)
{
    TVINSERTSTRUCTW insert{};
    insert.hParent = hParent;
    insert.hInsertAfter = hInsertAfter;
    insert.item.mask = TVIF_TEXT;
    insert.item.pszText = Writable(lpszItem);
    return InsertItem(&insert);
}

CString CTreeCtrl::GetItemText(HTREEITEM hItem) const
{
    CString strText;
    TVITEMW item{};
    item.mask = TVIF_TEXT | TVIF_HANDLE;
    item.hItem = hItem;
    for (int nRoom = 256;; nRoom *= 2)
    {
        item.cchTextMax = nRoom;
        item.pszText = strText.GetBuffer(nRoom);
        item.pszText[0] = 0;
        const BOOL bFound = TreeView_GetItem(m_hWnd, &item);
        strText.ReleaseBuffer();
        if (!bFound || strText.GetLength() < nRoom - 1)
            return strText;
    }
}

BOOL CTreeCtrl::SetItemText(HTREEITEM hItem, LPCTSTR lpszItem)
{
    TVITEMW item{};
    item.mask = TVIF_TEXT | TVIF_HANDLE;
    item.hItem = hItem;
    item.pszText = Writable(lpszItem);
    return TreeView_SetItem(m_hWnd, &item);
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM hItem) const
{
    TVITEMW item{};
    item.mask = TVIF_PARAM | TVIF_HANDLE;
    item.hItem = hItem;
    TreeView_GetItem(m_hWnd, &item);
    return static_cast<DWORD_PTR>(item.lParam);
}

BOOL CTreeCtrl::SetItemData(HTREEITEM hItem, DWORD_PTR dwData)
{
    TVITEMW item{};
    item.mask = TVIF_PARAM | TVIF_HANDLE;
    item.hItem = hItem;
    item.lParam = static_cast<LPARAM>(dwData);
    return TreeView_SetItem(m_hWnd, &item);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage, HTREEITEM hParent,
                                HTREEITEM hInsertAfter)
{
    TVINSERTSTRUCTW insert{};
    insert.hParent = hParent;
    insert.hInsertAfter = hInsertAfter;
    insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    insert.item.pszText = Writable(lpszItem);
    insert.item.iImage = nImage;
    insert.item.iSelectedImage = nSelectedImage;
    return InsertItem(&insert);
}

UINT CTreeCtrl::GetItemState(HTREEITEM hItem, UINT nStateMask) const
{
    return static_cast<UINT>(SendMessage(TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(hItem), nStateMask)) &
           nStateMask;
}

BOOL CTreeCtrl::SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask)
{
    TVITEMW item{};
    item.mask = TVIF_STATE | TVIF_HANDLE;
    item.hItem = hItem;
    item.state = nState;
    item.stateMask = nStateMask;
    return SetItem(&item);
}

BOOL CTreeCtrl::SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage)
{
    TVITEMW item{};
    item.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_HANDLE;
    item.hItem = hItem;
    item.iImage = nImage;
    item.iSelectedImage = nSelectedImage;
    return SetItem(&item);
}

BOOL CTreeCtrl::GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const
{
    TVITEMW item{};
    item.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_HANDLE;
    item.hItem = hItem;
    const BOOL bFound = GetItem(&item);
    nImage = item.iImage;
    nSelectedImage = item.iSelectedImage;
    return bFound;
}

HTREEITEM CTreeCtrl::HitTest(CPoint pt, UINT* pFlags) const
{
    TVHITTESTINFO info{};
    info.pt = pt;
    const HTREEITEM hItem = HitTest(&info);
    if (pFlags)
        *pFlags = info.flags;
    return hItem;
}

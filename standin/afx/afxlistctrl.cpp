#include "afxlistctrl.h"

#include "afxtabctrl.h"

IMPLEMENT_DYNCREATE(CListCtrl, CWnd)

namespace
{
LPTSTR Writable(LPCTSTR psz) { return const_cast<LPTSTR>(psz); } // the structures serve reading too
} // namespace

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem)
{
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.iItem = nItem;
    item.pszText = Writable(lpszItem);
    return InsertItem(&item);
}

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem, int nImage)
{
    LVITEMW item{};
    item.mask = LVIF_TEXT | LVIF_IMAGE;
    item.iItem = nItem;
    item.pszText = Writable(lpszItem);
    item.iImage = nImage;
    return InsertItem(&item);
}

BOOL CListCtrl::SetItemText(int nItem, int nSubItem, LPCTSTR lpszText)
{
    LVITEMW item{};
    item.iSubItem = nSubItem;
    item.pszText = Writable(lpszText);
    return static_cast<BOOL>(
        SendMessage(LVM_SETITEMTEXTW, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(&item)));
}

CString CListCtrl::GetItemText(int nItem, int nSubItem) const
{
    CString strText;
    LVITEMW item{};
    item.iSubItem = nSubItem;
    // A text that fills the room may have been cut.
    for (int nRoom = 256;; nRoom *= 2)
    {
        item.cchTextMax = nRoom;
        item.pszText = strText.GetBuffer(nRoom);
        const LRESULT lLength =
            SendMessage(LVM_GETITEMTEXTW, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(&item));
        strText.ReleaseBuffer(static_cast<int>(lLength));
        if (lLength < nRoom - 1)
            return strText;
    }
}

DWORD_PTR CListCtrl::GetItemData(int nItem) const
{
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = nItem;
    GetItem(&item);
    return static_cast<DWORD_PTR>(item.lParam);
}

BOOL CListCtrl::SetItemData(int nItem, DWORD_PTR dwData)
{
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = nItem;
    item.lParam = static_cast<LPARAM>(dwData);
    return SetItem(&item);
}

BOOL CListCtrl::SetItemState(int nItem, UINT nState, UINT nMask)
{
    LVITEMW item{};
    item.state = nState;
    item.stateMask = nMask;
    return static_cast<BOOL>(
        SendMessage(LVM_SETITEMSTATE, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(&item)));
}

BOOL CListCtrl::SetCheck(int nItem, BOOL fCheck)
{
    return SetItemState(nItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2u : 1u), LVIS_STATEIMAGEMASK);
}

int CListCtrl::InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat, int nWidth, int nSubItem)
{
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.pszText = Writable(lpszColumnHeading);
    column.fmt = nFormat;
    if (nWidth != -1)
    {
        column.mask |= LVCF_WIDTH;
        column.cx = nWidth;
    }
    if (nSubItem != -1)
    {
        column.mask |= LVCF_SUBITEM;
        column.iSubItem = nSubItem;
    }
    return InsertColumn(nCol, &column);
}

// A position is the row's number and one, so that the first is not null.
POSITION CListCtrl::GetFirstSelectedItemPosition() const
{
    return reinterpret_cast<POSITION>(static_cast<INT_PTR>(GetNextItem(-1, LVNI_SELECTED) + 1));
}

int CListCtrl::GetNextSelectedItem(POSITION& pos) const
{
    const int nItem = static_cast<int>(reinterpret_cast<INT_PTR>(pos)) - 1;
    pos = reinterpret_cast<POSITION>(static_cast<INT_PTR>(GetNextItem(nItem, LVNI_SELECTED) + 1));
    return nItem;
}

BOOL CListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    if (CWnd::OnChildNotify(message, wParam, lParam, pLResult))
        return TRUE;
    if (message != WM_DRAWITEM)
        return FALSE;
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

int CListCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask, int nImage,
                          LPARAM lParam)
{
    LVITEMW item{};
    item.mask = nMask;
    item.iItem = nItem;
    item.pszText = Writable(lpszItem);
    item.state = nState;
    item.stateMask = nStateMask;
    item.iImage = nImage;
    item.lParam = lParam;
    return InsertItem(&item);
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                        UINT nStateMask, LPARAM lParam)
{
    LVITEMW item{};
    item.mask = nMask;
    item.iItem = nItem;
    item.iSubItem = nSubItem;
    item.pszText = Writable(lpszItem);
    item.state = nState;
    item.stateMask = nStateMask;
    item.iImage = nImage;
    item.lParam = lParam;
    return SetItem(&item);
}

int CListCtrl::GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const
{
    LVITEMW item{};
    item.iSubItem = nSubItem;
    item.cchTextMax = nLen;
    item.pszText = lpszText;
    return static_cast<int>(
        SendMessage(LVM_GETITEMTEXTW, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(&item)));
}

int CListCtrl::HitTest(CPoint pt, UINT* pFlags) const
{
    LVHITTESTINFO info{};
    info.pt = pt;
    const int nItem = HitTest(&info);
    if (pFlags)
        *pFlags = info.flags;
    return nItem;
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl() const
{
    return reinterpret_cast<CHeaderCtrl*>(FromHandle(ListView_GetHeader(m_hWnd)));
}

BOOL CListCtrl::GetColumnOrderArray(LPINT piArray, int iCount) const
{
    if (iCount < 0)
        iCount = Header_GetItemCount(ListView_GetHeader(m_hWnd));
    return ListView_GetColumnOrderArray(m_hWnd, iCount, piArray);
}

CImageList* CListCtrl::CreateDragImage(int nItem, LPPOINT lpPoint)
{
    const HIMAGELIST hImage = ListView_CreateDragImage(m_hWnd, nItem, lpPoint);
    if (!hImage)
        return nullptr;
    auto* pImage = new CImageList;
    pImage->Attach(hImage);
    return pImage;
}

#include "afxcmn.h"

IMPLEMENT_DYNCREATE(CImageList, CObject)
IMPLEMENT_DYNCREATE(CListCtrl, CWnd)
IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)
IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)
IMPLEMENT_DYNCREATE(CProgressCtrl, CWnd)
IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

namespace
{
LPTSTR Writable(LPCTSTR psz) { return const_cast<LPTSTR>(psz); } // the structures serve reading too
} // namespace

BOOL CImageList::Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask)
{
    const LPCTSTR lpszName = MAKEINTRESOURCEW(nBitmapID);
    return Attach(::ImageList_LoadImageW(AfxFindResourceHandle(lpszName, RT_BITMAP), lpszName, cx, nGrow,
                                         crMask, IMAGE_BITMAP, 0));
}

BOOL CImageList::Attach(HIMAGELIST hImageList)
{
    if (!hImageList)
        return FALSE;
    m_hImageList = hImageList;
    return TRUE;
}

HIMAGELIST CImageList::Detach() { return std::exchange(m_hImageList, nullptr); }
BOOL CImageList::DeleteImageList() { return m_hImageList ? ::ImageList_Destroy(Detach()) : FALSE; }

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

LONG CTabCtrl::InsertItem(int nItem, LPCTSTR lpszItem)
{
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = Writable(lpszItem);
    return InsertItem(nItem, &item);
}

void CProgressCtrl::GetRange(int& nLower, int& nUpper) const
{
    PBRANGE range{};
    SendMessage(PBM_GETRANGE, TRUE, reinterpret_cast<LPARAM>(&range));
    nLower = range.iLow;
    nUpper = range.iHigh;
}

BOOL CToolTipCtrl::Create(CWnd* pParentWnd, DWORD dwStyle)
{
    return CreateEx(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP | dwStyle,
                    CRect(CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT), pParentWnd, 0);
}

namespace
{
/// A control is its own tool; an area is a tool of its window.
TTTOOLINFOW ToolOf(CWnd* pWnd, UINT_PTR nIDTool)
{
    TTTOOLINFOW info{};
    info.cbSize = sizeof(info);
    const HWND hParent = ::GetParent(pWnd->m_hWnd);
    info.hwnd = nIDTool == 0 && hParent ? hParent : pWnd->m_hWnd;
    info.uFlags = nIDTool == 0 ? TTF_IDISHWND : 0;
    info.uId = nIDTool == 0 ? reinterpret_cast<UINT_PTR>(pWnd->m_hWnd) : nIDTool;
    return info;
}
} // namespace

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool)
{
    TTTOOLINFOW info = ToolOf(pWnd, nIDTool);
    if (lpRectTool)
        info.rect = *lpRectTool;
    info.lpszText = Writable(lpszText);
    return static_cast<BOOL>(SendMessage(TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&info)));
}

void CToolTipCtrl::DelTool(CWnd* pWnd, UINT_PTR nIDTool)
{
    TTTOOLINFOW info = ToolOf(pWnd, nIDTool);
    SendMessage(TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&info));
}

void CToolTipCtrl::UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool)
{
    TTTOOLINFOW info = ToolOf(pWnd, nIDTool);
    info.lpszText = Writable(lpszText);
    SendMessage(TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&info));
}

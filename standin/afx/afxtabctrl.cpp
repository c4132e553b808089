#include "afxtabctrl.h"

IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)
IMPLEMENT_DYNCREATE(CHeaderCtrl, CWnd)

namespace
{
LPTSTR Writable(LPCTSTR psz) { return const_cast<LPTSTR>(psz); } // the structures serve reading too
} // namespace

LONG CTabCtrl::InsertItem(int nItem, LPCTSTR lpszItem)
{
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = Writable(lpszItem);
    return InsertItem(nItem, &item);
}

LONG CTabCtrl::InsertItem(int nItem, LPCTSTR lpszItem, int nImage)
{
    return InsertItem(TCIF_TEXT | TCIF_IMAGE, nItem, lpszItem, nImage, 0);
}

LONG CTabCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam)
{
    TCITEMW item{};
    item.mask = nMask;
    item.pszText = Writable(lpszItem);
    item.iImage = nImage;
    item.lParam = lParam;
    return InsertItem(nItem, &item);
}

CSize CTabCtrl::SetItemSize(CSize size)
{
    const auto dwFormer = static_cast<DWORD>(TabCtrl_SetItemSize(m_hWnd, size.cx, size.cy));
    return CSize(LOWORD(dwFormer), HIWORD(dwFormer));
}

BOOL CTabCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    if (CWnd::OnChildNotify(message, wParam, lParam, pLResult))
        return TRUE;
    if (message != WM_DRAWITEM)
        return FALSE;
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

BOOL CHeaderCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    if (CWnd::OnChildNotify(message, wParam, lParam, pLResult))
        return TRUE;
    if (message != WM_DRAWITEM)
        return FALSE;
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

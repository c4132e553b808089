#pragma once

#include "afximagelist.h"

/// The row of column headings.
class AFX_API CHeaderCtrl : public CWnd
{
    DECLARE_DYNCREATE(CHeaderCtrl)

public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
    {
        return CWnd::Create(WC_HEADERW, nullptr, dwStyle, rect, pParentWnd, nID);
    }
    int GetItemCount() const { return Header_GetItemCount(m_hWnd); }
    BOOL GetItem(int nPos, HDITEM* pHeaderItem) const { return Header_GetItem(m_hWnd, nPos, pHeaderItem); }
    BOOL SetItem(int nPos, HDITEM* pHeaderItem) { return Header_SetItem(m_hWnd, nPos, pHeaderItem); }
    int InsertItem(int nPos, HDITEM* phdi) { return Header_InsertItem(m_hWnd, nPos, phdi); }
    BOOL DeleteItem(int nPos) { return Header_DeleteItem(m_hWnd, nPos); }
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const { return Header_GetItemRect(m_hWnd, nIndex, lpRect); }
    BOOL Layout(HDLAYOUT* pHeaderLayout) { return Header_Layout(m_hWnd, pHeaderLayout); }
    int OrderToIndex(int nOrder) const { return Header_OrderToIndex(m_hWnd, nOrder); }
    BOOL GetOrderArray(LPINT piArray, int iCount = -1) const
    {
        return Header_GetOrderArray(m_hWnd, iCount < 0 ? GetItemCount() : iCount, piArray);
    }
    BOOL SetOrderArray(int iCount, LPINT piArray) { return Header_SetOrderArray(m_hWnd, iCount, piArray); }
    int HitTest(HDHITTESTINFO* phdhti) const
    {
        return static_cast<int>(SendMessage(HDM_HITTEST, 0, reinterpret_cast<LPARAM>(phdhti)));
    }
    CImageList* SetImageList(CImageList* pImageList)
    {
        return CImageList::FromHandle(Header_SetImageList(m_hWnd, CImageList::HandleOf(pImageList)));
    }
    CImageList* GetImageList() const { return CImageList::FromHandle(Header_GetImageList(m_hWnd)); }
    virtual void DrawItem(LPDRAWITEMSTRUCT) {}

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;
};

/// The row of tabs; what they show is the parent's affair.
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
    LONG InsertItem(int nItem, LPCTSTR lpszItem, int nImage);
    LONG InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam);
    BOOL DeleteItem(int nItem) { return TabCtrl_DeleteItem(m_hWnd, nItem); }
    BOOL DeleteAllItems() { return TabCtrl_DeleteAllItems(m_hWnd); }
    int GetCurSel() const { return TabCtrl_GetCurSel(m_hWnd); }
    int SetCurSel(int nItem) { return TabCtrl_SetCurSel(m_hWnd, nItem); }
    int GetCurFocus() const { return TabCtrl_GetCurFocus(m_hWnd); }
    void SetCurFocus(int nItem) { TabCtrl_SetCurFocus(m_hWnd, nItem); }
    int HitTest(TCHITTESTINFO* pHitTestInfo) const { return TabCtrl_HitTest(m_hWnd, pHitTestInfo); }
    int GetRowCount() const { return TabCtrl_GetRowCount(m_hWnd); }
    CSize SetItemSize(CSize size);
    void SetPadding(CSize size) { TabCtrl_SetPadding(m_hWnd, size.cx, size.cy); }
    int SetMinTabWidth(int cx) { return TabCtrl_SetMinTabWidth(m_hWnd, cx); }
    BOOL HighlightItem(int idItem, BOOL fHighlight = TRUE)
    {
        return static_cast<BOOL>(
            SendMessage(TCM_HIGHLIGHTITEM, static_cast<WPARAM>(idItem), MAKELONG(fHighlight, 0)));
    }
    void DeselectAll(BOOL fExcludeFocus) { TabCtrl_DeselectAll(m_hWnd, fExcludeFocus); }
    CImageList* SetImageList(CImageList* pImageList)
    {
        return CImageList::FromHandle(TabCtrl_SetImageList(m_hWnd, CImageList::HandleOf(pImageList)));
    }
    CImageList* GetImageList() const { return CImageList::FromHandle(TabCtrl_GetImageList(m_hWnd)); }
    BOOL GetItemRect(int nItem, LPRECT lpRect) const { return TabCtrl_GetItemRect(m_hWnd, nItem, lpRect); }
    void AdjustRect(BOOL bLarger, LPRECT lpRect) const { TabCtrl_AdjustRect(m_hWnd, bLarger, lpRect); }
    virtual void DrawItem(LPDRAWITEMSTRUCT) {}

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;
};

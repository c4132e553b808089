#pragma once

#include "afxwnd.h"

/// Lists of lines. As thin as the controls of afxctrl.h.

class AFX_API CListBox : public CWnd
{
    DECLARE_DYNAMIC(CListBox)

public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
    {
        return CWnd::Create(L"ListBox", nullptr, dwStyle, rect, pParentWnd, nID);
    }
    int GetCount() const { return Int(LB_GETCOUNT); }
    int GetCurSel() const { return Int(LB_GETCURSEL); }
    int SetCurSel(int nSelect) { return Int(LB_SETCURSEL, nSelect); }
    int GetSel(int nIndex) const { return Int(LB_GETSEL, nIndex); }
    int SetSel(int nIndex, BOOL bSelect = TRUE) { return Int(LB_SETSEL, bSelect, nIndex); }
    int GetSelCount() const { return Int(LB_GETSELCOUNT); }
    int GetSelItems(int nMaxItems, LPINT rgIndex) const
    {
        return Int(LB_GETSELITEMS, nMaxItems, reinterpret_cast<LPARAM>(rgIndex));
    }
    int GetTopIndex() const { return Int(LB_GETTOPINDEX); }
    int SetTopIndex(int nIndex) { return Int(LB_SETTOPINDEX, nIndex); }
    DWORD_PTR GetItemData(int nIndex) const
    {
        return static_cast<DWORD_PTR>(SendMessage(LB_GETITEMDATA, static_cast<WPARAM>(nIndex)));
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData)
    {
        return Int(LB_SETITEMDATA, nIndex, static_cast<LPARAM>(dwItemData));
    }
    int GetText(int nIndex, LPTSTR lpszBuffer) const
    {
        return Int(LB_GETTEXT, nIndex, reinterpret_cast<LPARAM>(lpszBuffer));
    }
    /// Empty when there is no such line.
    void GetText(int nIndex, CString& rString) const;
    int GetTextLen(int nIndex) const { return Int(LB_GETTEXTLEN, nIndex); }
    int AddString(LPCTSTR lpszItem) { return Int(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszItem)); }
    int InsertString(int nIndex, LPCTSTR lpszItem)
    {
        return Int(LB_INSERTSTRING, nIndex, reinterpret_cast<LPARAM>(lpszItem));
    }
    int DeleteString(UINT nIndex) { return Int(LB_DELETESTRING, static_cast<int>(nIndex)); }
    void ResetContent() { SendMessage(LB_RESETCONTENT); }
    int FindString(int nStartAfter, LPCTSTR lpszItem) const
    {
        return Int(LB_FINDSTRING, nStartAfter, reinterpret_cast<LPARAM>(lpszItem));
    }
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const
    {
        return Int(LB_FINDSTRINGEXACT, nIndexStart, reinterpret_cast<LPARAM>(lpszFind));
    }
    int SelectString(int nStartAfter, LPCTSTR lpszItem)
    {
        return Int(LB_SELECTSTRING, nStartAfter, reinterpret_cast<LPARAM>(lpszItem));
    }
    int GetItemRect(int nIndex, LPRECT lpRect) const
    {
        return Int(LB_GETITEMRECT, nIndex, reinterpret_cast<LPARAM>(lpRect));
    }
    int GetItemHeight(int nIndex) const { return Int(LB_GETITEMHEIGHT, nIndex); }
    int SetItemHeight(int nIndex, UINT cyItemHeight)
    {
        return Int(LB_SETITEMHEIGHT, nIndex, MAKELONG(cyItemHeight, 0));
    }
    int GetCaretIndex() const { return Int(LB_GETCARETINDEX); }
    int SetCaretIndex(int nIndex, BOOL bScroll = TRUE)
    {
        return Int(LB_SETCARETINDEX, nIndex, MAKELONG(bScroll, 0));
    }
    int SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem)
    {
        return Int(LB_SELITEMRANGE, bSelect, MAKELONG(nFirstItem, nLastItem));
    }
    /// The nearest line; \p bOutside tells that the point lies beside the client area.
    UINT ItemFromPoint(CPoint pt, BOOL& bOutside) const;
    void SetColumnWidth(int cxWidth) { SendMessage(LB_SETCOLUMNWIDTH, static_cast<WPARAM>(cxWidth)); }
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops)
    {
        return Int(LB_SETTABSTOPS, nTabStops, reinterpret_cast<LPARAM>(rgTabStops));
    }
    void* GetItemDataPtr(int nIndex) const { return reinterpret_cast<void*>(GetItemData(nIndex)); }
    int SetItemDataPtr(int nIndex, void* pData)
    {
        return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData));
    }
    int InitStorage(int nItems, UINT nBytes)
    {
        return Int(LB_INITSTORAGE, nItems, static_cast<LPARAM>(nBytes));
    }
    int GetHorizontalExtent() const { return Int(LB_GETHORIZONTALEXTENT); }
    void SetHorizontalExtent(int cxExtent)
    {
        SendMessage(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(cxExtent));
    }

    virtual void DrawItem(LPDRAWITEMSTRUCT) {}
    virtual void MeasureItem(LPMEASUREITEMSTRUCT) {}
    virtual int CompareItem(LPCOMPAREITEMSTRUCT) { return 0; }
    virtual void DeleteItem(LPDELETEITEMSTRUCT) {}

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;

private:
    int Int(UINT message, int wParam = 0, LPARAM lParam = 0) const
    {
        return static_cast<int>(SendMessage(message, static_cast<WPARAM>(wParam), lParam));
    }
};

class AFX_API CComboBox : public CWnd
{
    DECLARE_DYNAMIC(CComboBox)

public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
    {
        return CWnd::Create(L"ComboBox", nullptr, dwStyle, rect, pParentWnd, nID);
    }
    int GetCount() const { return Int(CB_GETCOUNT); }
    int GetCurSel() const { return Int(CB_GETCURSEL); }
    int SetCurSel(int nSelect) { return Int(CB_SETCURSEL, nSelect); }
    DWORD GetEditSel() const { return static_cast<DWORD>(SendMessage(CB_GETEDITSEL)); }
    BOOL SetEditSel(int nStartChar, int nEndChar)
    {
        return Int(CB_SETEDITSEL, 0, MAKELONG(nStartChar, nEndChar));
    }
    BOOL LimitText(int nMaxChars) { return Int(CB_LIMITTEXT, nMaxChars); }
    DWORD_PTR GetItemData(int nIndex) const
    {
        return static_cast<DWORD_PTR>(SendMessage(CB_GETITEMDATA, static_cast<WPARAM>(nIndex)));
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData)
    {
        return Int(CB_SETITEMDATA, nIndex, static_cast<LPARAM>(dwItemData));
    }
    int GetLBText(int nIndex, LPTSTR lpszText) const
    {
        return Int(CB_GETLBTEXT, nIndex, reinterpret_cast<LPARAM>(lpszText));
    }
    /// Empty when there is no such line.
    void GetLBText(int nIndex, CString& rString) const;
    int GetLBTextLen(int nIndex) const { return Int(CB_GETLBTEXTLEN, nIndex); }
    int AddString(LPCTSTR lpszString) { return Int(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszString)); }
    int InsertString(int nIndex, LPCTSTR lpszString)
    {
        return Int(CB_INSERTSTRING, nIndex, reinterpret_cast<LPARAM>(lpszString));
    }
    int DeleteString(UINT nIndex) { return Int(CB_DELETESTRING, static_cast<int>(nIndex)); }
    void ResetContent() { SendMessage(CB_RESETCONTENT); }
    int FindString(int nStartAfter, LPCTSTR lpszString) const
    {
        return Int(CB_FINDSTRING, nStartAfter, reinterpret_cast<LPARAM>(lpszString));
    }
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const
    {
        return Int(CB_FINDSTRINGEXACT, nIndexStart, reinterpret_cast<LPARAM>(lpszFind));
    }
    int SelectString(int nStartAfter, LPCTSTR lpszString)
    {
        return Int(CB_SELECTSTRING, nStartAfter, reinterpret_cast<LPARAM>(lpszString));
    }
    void ShowDropDown(BOOL bShowIt = TRUE) { SendMessage(CB_SHOWDROPDOWN, static_cast<WPARAM>(bShowIt)); }
    BOOL GetDroppedState() const { return Int(CB_GETDROPPEDSTATE); }
    void GetDroppedControlRect(LPRECT lprect) const
    {
        SendMessage(CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(lprect));
    }
    int GetDroppedWidth() const { return Int(CB_GETDROPPEDWIDTH); }
    int SetDroppedWidth(UINT nWidth) { return Int(CB_SETDROPPEDWIDTH, static_cast<int>(nWidth)); }
    int GetItemHeight(int nIndex) const { return Int(CB_GETITEMHEIGHT, nIndex); }
    int SetItemHeight(int nIndex, UINT cyItemHeight)
    {
        return Int(CB_SETITEMHEIGHT, nIndex, MAKELONG(cyItemHeight, 0));
    }
    int GetTopIndex() const { return Int(CB_GETTOPINDEX); }
    int SetTopIndex(int nIndex) { return Int(CB_SETTOPINDEX, nIndex); }
    void* GetItemDataPtr(int nIndex) const { return reinterpret_cast<void*>(GetItemData(nIndex)); }
    int SetItemDataPtr(int nIndex, void* pData)
    {
        return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData));
    }
    int SetExtendedUI(BOOL bExtended = TRUE) { return Int(CB_SETEXTENDEDUI, bExtended); }
    BOOL GetExtendedUI() const { return Int(CB_GETEXTENDEDUI); }
    UINT GetHorizontalExtent() const { return static_cast<UINT>(Int(CB_GETHORIZONTALEXTENT)); }
    void SetHorizontalExtent(UINT nExtent) { SendMessage(CB_SETHORIZONTALEXTENT, nExtent); }
    int InitStorage(int nItems, UINT nBytes)
    {
        return Int(CB_INITSTORAGE, nItems, static_cast<LPARAM>(nBytes));
    }
    BOOL SetMinVisibleItems(int iMinVisible) { return Int(0x1701, iMinVisible); } // CB_SETMINVISIBLE
    void Clear() { SendMessage(WM_CLEAR); }
    void Copy() { SendMessage(WM_COPY); }
    void Cut() { SendMessage(WM_CUT); }
    void Paste() { SendMessage(WM_PASTE); }
    BOOL GetComboBoxInfo(PCOMBOBOXINFO pcbi) const;

    virtual void DrawItem(LPDRAWITEMSTRUCT) {}
    virtual void MeasureItem(LPMEASUREITEMSTRUCT) {}
    virtual int CompareItem(LPCOMPAREITEMSTRUCT) { return 0; }
    virtual void DeleteItem(LPDELETEITEMSTRUCT) {}

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;

private:
    int Int(UINT message, int wParam = 0, LPARAM lParam = 0) const
    {
        return static_cast<int>(SendMessage(message, static_cast<WPARAM>(wParam), lParam));
    }
};

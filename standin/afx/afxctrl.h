#pragma once

#include "afxwnd.h"

/// The system's controls. Thin: each function is the message or system call of its name, with its results
/// (CB_ERR, LB_ERR and the like). A control object is attached by Create, DDX_Control or SubclassDlgItem;
/// none of the classes has data of its own, so GetDlgItem's answer may be seen as the class that the
/// window is.
///
/// Owner-drawn controls override DrawItem and its fellows; the parent's default handling calls them.

class AFX_API CStatic : public CWnd
{
    DECLARE_DYNAMIC(CStatic)

public:
    BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID = 0xFFFF)
    {
        return CWnd::Create(L"Static", lpszText, dwStyle, rect, pParentWnd, nID);
    }
    HICON SetIcon(HICON hIcon)
    {
        return reinterpret_cast<HICON>(SendMessage(STM_SETICON, reinterpret_cast<WPARAM>(hIcon)));
    }
    HICON GetIcon() const { return reinterpret_cast<HICON>(SendMessage(STM_GETICON)); }
    HBITMAP SetBitmap(HBITMAP hBitmap)
    {
        return reinterpret_cast<HBITMAP>(
            SendMessage(STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(hBitmap)));
    }
    HBITMAP GetBitmap() const { return reinterpret_cast<HBITMAP>(SendMessage(STM_GETIMAGE, IMAGE_BITMAP)); }
    virtual void DrawItem(LPDRAWITEMSTRUCT) {}

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;
};

class AFX_API CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)

public:
    BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
    {
        return CWnd::Create(L"Button", lpszCaption, dwStyle, rect, pParentWnd, nID);
    }
    UINT GetState() const { return static_cast<UINT>(SendMessage(BM_GETSTATE)); }
    void SetState(BOOL bHighlight) { SendMessage(BM_SETSTATE, static_cast<WPARAM>(bHighlight)); }
    int GetCheck() const { return static_cast<int>(SendMessage(BM_GETCHECK)); }
    void SetCheck(int nCheck) { SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck)); }
    UINT GetButtonStyle() const { return GetStyle() & 0xFF; }
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE) { SendMessage(BM_SETSTYLE, nStyle, bRedraw); }
    HICON SetIcon(HICON hIcon)
    {
        return reinterpret_cast<HICON>(SendMessage(BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(hIcon)));
    }
    HBITMAP SetBitmap(HBITMAP hBitmap)
    {
        return reinterpret_cast<HBITMAP>(
            SendMessage(BM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(hBitmap)));
    }
    virtual void DrawItem(LPDRAWITEMSTRUCT) {}

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;
};

class AFX_API CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)

public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
    {
        return CWnd::Create(L"Edit", nullptr, dwStyle, rect, pParentWnd, nID);
    }
    BOOL CanUndo() const { return static_cast<BOOL>(SendMessage(EM_CANUNDO)); }
    int GetLineCount() const { return static_cast<int>(SendMessage(EM_GETLINECOUNT)); }
    /// At most \p nMaxLength characters, without a NUL; the count.
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;
    BOOL GetModify() const { return static_cast<BOOL>(SendMessage(EM_GETMODIFY)); }
    void SetModify(BOOL bModified = TRUE) { SendMessage(EM_SETMODIFY, static_cast<WPARAM>(bModified)); }
    void GetSel(int& nStartChar, int& nEndChar) const
    {
        SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&nStartChar), reinterpret_cast<LPARAM>(&nEndChar));
    }
    DWORD GetSel() const { return static_cast<DWORD>(SendMessage(EM_GETSEL)); }
    /// Scrolls the caret into view unless \p bNoScroll.
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE)
    {
        SetSel(LOWORD(dwSelection), HIWORD(dwSelection), bNoScroll);
    }
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE)
    {
        SendMessage(EM_REPLACESEL, static_cast<WPARAM>(bCanUndo), reinterpret_cast<LPARAM>(lpszNewText));
    }
    void LimitText(int nChars = 0) { SendMessage(EM_LIMITTEXT, static_cast<WPARAM>(nChars)); }
    void SetLimitText(UINT nMax) { SendMessage(EM_SETLIMITTEXT, nMax); }
    UINT GetLimitText() const { return static_cast<UINT>(SendMessage(EM_GETLIMITTEXT)); }
    BOOL SetReadOnly(BOOL bReadOnly = TRUE)
    {
        return static_cast<BOOL>(SendMessage(EM_SETREADONLY, static_cast<WPARAM>(bReadOnly)));
    }
    void SetPasswordChar(TCHAR ch) { SendMessage(EM_SETPASSWORDCHAR, ch); }
    void SetMargins(UINT nLeft, UINT nRight)
    {
        SendMessage(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELONG(nLeft, nRight));
    }
    BOOL SetTabStops(const int& cxEachStop)
    {
        return static_cast<BOOL>(SendMessage(EM_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&cxEachStop)));
    }
    int LineFromChar(int nIndex = -1) const
    {
        return static_cast<int>(SendMessage(EM_LINEFROMCHAR, static_cast<WPARAM>(nIndex)));
    }
    int LineIndex(int nLine = -1) const
    {
        return static_cast<int>(SendMessage(EM_LINEINDEX, static_cast<WPARAM>(nLine)));
    }
    int LineLength(int nLine = -1) const
    {
        return static_cast<int>(SendMessage(EM_LINELENGTH, static_cast<WPARAM>(nLine)));
    }
    void LineScroll(int nLines, int nChars = 0)
    {
        SendMessage(EM_LINESCROLL, static_cast<WPARAM>(nChars), nLines);
    }
    int GetFirstVisibleLine() const { return static_cast<int>(SendMessage(EM_GETFIRSTVISIBLELINE)); }
    BOOL Undo() { return static_cast<BOOL>(SendMessage(EM_UNDO)); }
    void EmptyUndoBuffer() { SendMessage(EM_EMPTYUNDOBUFFER); }
    void Clear() { SendMessage(WM_CLEAR); }
    void Copy() { SendMessage(WM_COPY); }
    void Cut() { SendMessage(WM_CUT); }
    void Paste() { SendMessage(WM_PASTE); }
};

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

class AFX_API CScrollBar : public CWnd
{
    DECLARE_DYNAMIC(CScrollBar)

public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
    {
        return CWnd::Create(L"ScrollBar", nullptr, dwStyle, rect, pParentWnd, nID);
    }
    int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
    int SetScrollPos(int nPos, BOOL bRedraw = TRUE) { return ::SetScrollPos(m_hWnd, SB_CTL, nPos, bRedraw); }
    void GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const
    {
        ::GetScrollRange(m_hWnd, SB_CTL, lpMinPos, lpMaxPos);
    }
    void SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw = TRUE)
    {
        ::SetScrollRange(m_hWnd, SB_CTL, nMinPos, nMaxPos, bRedraw);
    }
    BOOL GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL)
    {
        return CWnd::GetScrollInfo(SB_CTL, lpScrollInfo, nMask);
    }
    BOOL SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE)
    {
        return CWnd::SetScrollInfo(SB_CTL, lpScrollInfo, bRedraw);
    }
    BOOL EnableScrollBar(UINT nArrowFlags = ESB_ENABLE_BOTH)
    {
        return ::EnableScrollBar(m_hWnd, SB_CTL, nArrowFlags);
    }
};

#include "afxctrl.h"
#include "afxlistbox.h"

#include <cstring>

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CListBox, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)
IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    if (CWnd::OnChildNotify(message, wParam, lParam, pLResult))
        return TRUE;
    if (message != WM_DRAWITEM)
        return FALSE;
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    if (CWnd::OnChildNotify(message, wParam, lParam, pLResult))
        return TRUE;
    if (message != WM_DRAWITEM)
        return FALSE;
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

namespace
{
/// The four messages of lists with owner-drawn lines.
template <class Control>
BOOL CallItemFunction(Control& control, UINT message, LPARAM lParam, LRESULT* pLResult)
{
    switch (message)
    {
    case WM_DRAWITEM:
        control.DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        return TRUE;
    case WM_MEASUREITEM:
        control.MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        return TRUE;
    case WM_DELETEITEM:
        control.DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        return TRUE;
    case WM_COMPAREITEM: {
        const int nResult = control.CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        if (pLResult)
            *pLResult = nResult;
        return TRUE;
    }
    default:
        return FALSE;
    }
}

void TakeLine(CString& rString, const CWnd& wnd, UINT getLength, UINT getText, int nIndex)
{
    rString.Empty();
    const LRESULT lLength = wnd.SendMessage(getLength, static_cast<WPARAM>(nIndex));
    if (lLength <= 0)
        return;
    wnd.SendMessage(getText, static_cast<WPARAM>(nIndex),
                    reinterpret_cast<LPARAM>(rString.GetBufferSetLength(static_cast<int>(lLength))));
    rString.ReleaseBuffer();
}
} // namespace

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    return CWnd::OnChildNotify(message, wParam, lParam, pLResult) ||
           CallItemFunction(*this, message, lParam, pLResult);
}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    return CWnd::OnChildNotify(message, wParam, lParam, pLResult) ||
           CallItemFunction(*this, message, lParam, pLResult);
}

void CListBox::GetText(int nIndex, CString& rString) const
{
    TakeLine(rString, *this, LB_GETTEXTLEN, LB_GETTEXT, nIndex);
}
void CComboBox::GetLBText(int nIndex, CString& rString) const
{
    TakeLine(rString, *this, CB_GETLBTEXTLEN, CB_GETLBTEXT, nIndex);
}

UINT CListBox::ItemFromPoint(CPoint pt, BOOL& bOutside) const
{
    const auto dwItem = static_cast<DWORD>(SendMessage(LB_ITEMFROMPOINT, 0, MAKELPARAM(pt.x, pt.y)));
    bOutside = HIWORD(dwItem) != 0;
    return LOWORD(dwItem);
}

BOOL CComboBox::GetComboBoxInfo(PCOMBOBOXINFO pcbi) const
{
    pcbi->cbSize = sizeof(*pcbi);
    return ::GetComboBoxInfo(m_hWnd, pcbi);
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const
{
    // The message reads the room from the buffer's first character.
    const WORD wRoom = static_cast<WORD>(nMaxLength);
    if (nMaxLength <= 0)
        return 0;
    std::memcpy(lpszBuffer, &wRoom, sizeof(wRoom));
    return static_cast<int>(
        SendMessage(EM_GETLINE, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpszBuffer)));
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll)
{
    SendMessage(EM_SETSEL, static_cast<WPARAM>(nStartChar), nEndChar);
    if (!bNoScroll)
        SendMessage(EM_SCROLLCARET);
}

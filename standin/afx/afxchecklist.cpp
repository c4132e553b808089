#include "afxchecklist.h"

#include <algorithm>
#include <windowsx.h>

IMPLEMENT_DYNAMIC(CCheckListBox, CListBox)

namespace
{
constexpr int MARK_ROOM = 3; // pixels between a mark and what stands beside it

CSize MarkSize() { return CSize(::GetSystemMetrics(SM_CXMENUCHECK), ::GetSystemMetrics(SM_CYMENUCHECK)); }
} // namespace

BOOL CCheckListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    if (!(dwStyle & LBS_OWNERDRAWVARIABLE))
        dwStyle |= LBS_OWNERDRAWFIXED;
    return CListBox::Create(dwStyle | LBS_HASSTRINGS, rect, pParentWnd, nID);
}

void CCheckListBox::PreSubclassWindow()
{
    CListBox::PreSubclassWindow();
    m_marks.assign(static_cast<std::size_t>(m_hWnd && GetCount() > 0 ? GetCount() : 0), Mark());
}

const CCheckListBox::Mark* CCheckListBox::At(int nIndex) const
{
    return nIndex >= 0 && nIndex < static_cast<int>(m_marks.size())
               ? &m_marks[static_cast<std::size_t>(nIndex)]
               : nullptr;
}

int CCheckListBox::GetCheck(int nIndex) const
{
    const Mark* pMark = At(nIndex);
    return pMark ? pMark->nCheck : 0;
}

void CCheckListBox::SetCheck(int nIndex, int nCheck)
{
    const bool bThree = m_nCheckStyle == BS_3STATE || m_nCheckStyle == BS_AUTO3STATE;
    Mark* pMark = At(nIndex);
    if (!pMark || nCheck < 0 || nCheck > (bThree ? 2 : 1))
        return;
    pMark->nCheck = nCheck;
    Redraw(nIndex);
}

void CCheckListBox::Enable(int nIndex, BOOL bEnabled)
{
    if (Mark* pMark = At(nIndex))
    {
        pMark->bEnabled = bEnabled;
        Redraw(nIndex);
    }
}

BOOL CCheckListBox::IsEnabled(int nIndex) const
{
    const Mark* pMark = At(nIndex);
    return pMark && pMark->bEnabled;
}

void CCheckListBox::Redraw(int nIndex)
{
    CRect line;
    if (GetItemRect(nIndex, line) != LB_ERR)
        InvalidateRect(line, FALSE);
}

CRect CCheckListBox::OnGetCheckPosition(CRect, CRect rectCheckBox) { return rectCheckBox; }

CRect CCheckListBox::CheckPlace(CRect rectItem)
{
    const CSize size = MarkSize();
    const int nTop = rectItem.top + (rectItem.Height() - static_cast<int>(size.cy)) / 2;
    const int nLeft = rectItem.left + MARK_ROOM;
    return OnGetCheckPosition(rectItem, CRect(nLeft, nTop, nLeft + size.cx, nTop + size.cy));
}

void CCheckListBox::MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    CClientDC dc(this);
    CFont* pFont = GetFont();
    CFont* pFormer = pFont ? dc.SelectObject(pFont) : nullptr;
    TEXTMETRICW metrics{};
    dc.GetTextMetrics(&metrics);
    if (pFormer)
        dc.SelectObject(pFormer);
    lpMeasureItemStruct->itemHeight = static_cast<UINT>(std::max<LONG>(metrics.tmHeight, MarkSize().cy) + 1);
}

void CCheckListBox::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    const int nIndex = static_cast<int>(lpDrawItemStruct->itemID);
    CDC* pDC = CDC::FromHandle(lpDrawItemStruct->hDC);
    CRect line(lpDrawItemStruct->rcItem);
    if (const Mark* pMark = At(nIndex))
    {
        const bool bSelected = (lpDrawItemStruct->itemState & ODS_SELECTED) != 0;
        const bool bGrey = !pMark->bEnabled || !IsWindowEnabled();
        const COLORREF background = ::GetSysColor(bSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW);
        const int nText = bGrey ? COLOR_GRAYTEXT : bSelected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT;
        pDC->FillSolidRect(line, background);
        CRect place = CheckPlace(line);
        const UINT nMark = pMark->nCheck == 0   ? DFCS_BUTTONCHECK
                           : pMark->nCheck == 1 ? DFCS_BUTTONCHECK | DFCS_CHECKED
                                                : DFCS_BUTTON3STATE | DFCS_CHECKED;
        pDC->DrawFrameControl(place, DFC_BUTTON, nMark | (bGrey ? DFCS_INACTIVE : 0u));
        CString strText;
        GetText(nIndex, strText);
        CRect text(line);
        text.left = place.right + MARK_ROOM;
        pDC->SetBkMode(TRANSPARENT);
        pDC->SetTextColor(::GetSysColor(nText));
        pDC->DrawText(strText, text, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    }
    if (lpDrawItemStruct->itemState & ODS_FOCUS)
        pDC->DrawFocusRect(line);
}

void CCheckListBox::Toggle(int nIndex)
{
    const Mark* pMark = At(nIndex);
    const bool bAutomatic = m_nCheckStyle == BS_AUTOCHECKBOX || m_nCheckStyle == BS_AUTO3STATE;
    if (!pMark || !pMark->bEnabled || !bAutomatic)
        return;
    SetCheck(nIndex, (pMark->nCheck + 1) % (m_nCheckStyle == BS_AUTO3STATE ? 3 : 2));
    const int nID = GetDlgCtrlID();
    ::SendMessageW(::GetParent(m_hWnd), WM_COMMAND, MAKEWPARAM(nID, CLBN_CHKCHANGE),
                   reinterpret_cast<LPARAM>(m_hWnd));
}

/// The marks follow whatever changes the lines, whoever sent it.
void CCheckListBox::KeepInStep(UINT message, WPARAM wParam, LRESULT lResult)
{
    if (message == LB_RESETCONTENT)
        m_marks.clear();
    else if (lResult < 0)
        return;
    else if (message == LB_ADDSTRING || message == LB_INSERTSTRING)
        m_marks.insert(m_marks.begin() + static_cast<std::ptrdiff_t>(std::min<std::size_t>(
                                             static_cast<std::size_t>(lResult), m_marks.size())),
                       Mark());
    else if (message == LB_DELETESTRING && wParam < m_marks.size())
        m_marks.erase(m_marks.begin() + static_cast<std::ptrdiff_t>(wParam));
}

LRESULT CCheckListBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == LB_ADDSTRING || message == LB_INSERTSTRING || message == LB_DELETESTRING ||
        message == LB_RESETCONTENT)
    {
        const LRESULT lResult = CListBox::WindowProc(message, wParam, lParam);
        KeepInStep(message, wParam, lResult);
        return lResult;
    }
    if (message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK)
    {
        const CPoint point(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
        BOOL bOutside = TRUE;
        const int nIndex = static_cast<int>(ItemFromPoint(point, bOutside));
        CRect line;
        const bool bMark =
            !bOutside && GetItemRect(nIndex, line) != LB_ERR && CheckPlace(line).PtInRect(point);
        if (bMark)
        {
            SetFocus();
            SetCurSel(nIndex);
            Toggle(nIndex);
            return 0;
        }
    }
    if (message == WM_KEYDOWN && wParam == VK_SPACE)
    {
        Toggle(GetCaretIndex());
        return 0;
    }
    return CListBox::WindowProc(message, wParam, lParam);
}

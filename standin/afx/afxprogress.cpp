#include "afxprogress.h"

IMPLEMENT_DYNCREATE(CProgressCtrl, CWnd)
IMPLEMENT_DYNCREATE(CSpinButtonCtrl, CWnd)
IMPLEMENT_DYNCREATE(CSliderCtrl, CWnd)
IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

namespace
{
LPTSTR Writable(LPCTSTR psz) { return const_cast<LPTSTR>(psz); } // the structures serve reading too
} // namespace

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

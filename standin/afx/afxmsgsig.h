#pragma once

/// Unpacks each kind of message into the arguments of its handler. Naming the member function's type as a
/// parameter picks the right overload and refuses a handler of another signature when it is compiled.

#include "afxwnd.h"

namespace afxsig
{
template <class T>
T* To(CCmdTarget* p)
{
    return static_cast<T*>(p);
}
inline CWnd* Window(LPARAM l) { return CWnd::FromHandle(reinterpret_cast<HWND>(l)); }
inline CWnd* Window(WPARAM w) { return CWnd::FromHandle(reinterpret_cast<HWND>(w)); }
inline CPoint Point(LPARAM l) { return CPoint(l); }

// The name says result_arguments: v nothing, b BOOL, i int, l LRESULT, u UINT; n UINT, w window, p point,
// m menu; the rest by their message.
template <class T>
void v_v(CCmdTarget* p, void (T::*fn)(), AFX_MSGCALL&)
{
    (To<T>(p)->*fn)();
}
template <class T>
void b_v(CCmdTarget* p, BOOL (T::*fn)(), AFX_MSGCALL& c)
{
    c.lResult = (To<T>(p)->*fn)();
}
template <class T>
void u_v(CCmdTarget* p, UINT (T::*fn)(), AFX_MSGCALL& c)
{
    c.lResult = static_cast<LRESULT>((To<T>(p)->*fn)());
}
template <class T>
void l_v(CCmdTarget* p, LRESULT (T::*fn)(), AFX_MSGCALL& c)
{
    c.lResult = (To<T>(p)->*fn)();
}
template <class T>
void h_v(CCmdTarget* p, HCURSOR (T::*fn)(), AFX_MSGCALL& c)
{
    c.lResult = reinterpret_cast<LRESULT>((To<T>(p)->*fn)());
}
template <class T>
void v_b(CCmdTarget* p, void (T::*fn)(BOOL), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(static_cast<BOOL>(c.wParam));
}
template <class T>
void b_b(CCmdTarget* p, BOOL (T::*fn)(BOOL), AFX_MSGCALL& c)
{
    c.lResult = (To<T>(p)->*fn)(static_cast<BOOL>(c.wParam));
}
template <class T>
void v_bn(CCmdTarget* p, void (T::*fn)(BOOL, UINT), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(static_cast<BOOL>(c.wParam), static_cast<UINT>(c.lParam));
}
template <class T>
void v_bd(CCmdTarget* p, void (T::*fn)(BOOL, DWORD), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(static_cast<BOOL>(c.wParam), static_cast<DWORD>(c.lParam));
}
template <class T>
void i_create(CCmdTarget* p, int (T::*fn)(LPCREATESTRUCT), AFX_MSGCALL& c)
{
    c.lResult = (To<T>(p)->*fn)(reinterpret_cast<LPCREATESTRUCT>(c.lParam));
}
template <class T>
void b_create(CCmdTarget* p, BOOL (T::*fn)(LPCREATESTRUCT), AFX_MSGCALL& c)
{
    c.lResult = (To<T>(p)->*fn)(reinterpret_cast<LPCREATESTRUCT>(c.lParam));
}
template <class T>
void b_dc(CCmdTarget* p, BOOL (T::*fn)(CDC*), AFX_MSGCALL& c)
{
    c.lResult = (To<T>(p)->*fn)(CDC::FromHandle(reinterpret_cast<HDC>(c.wParam)));
}
template <class T>
void v_size(CCmdTarget* p, void (T::*fn)(UINT, int, int), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(static_cast<UINT>(c.wParam), LOWORD(c.lParam), HIWORD(c.lParam));
}
template <class T>
void v_move(CCmdTarget* p, void (T::*fn)(int, int), AFX_MSGCALL& c)
{
    const CPoint point = Point(c.lParam);
    (To<T>(p)->*fn)(point.x, point.y);
}
template <class T>
void v_side_rect(CCmdTarget* p, void (T::*fn)(UINT, LPRECT), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(static_cast<UINT>(c.wParam), reinterpret_cast<LPRECT>(c.lParam));
}
template <class T>
void v_timer(CCmdTarget* p, void (T::*fn)(UINT_PTR), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(c.wParam);
}
template <class T>
void v_scroll(CCmdTarget* p, void (T::*fn)(UINT, UINT, CScrollBar*), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(LOWORD(c.wParam), HIWORD(c.wParam), reinterpret_cast<CScrollBar*>(Window(c.lParam)));
}
template <class T>
void v_scroll_reflect(CCmdTarget* p, void (T::*fn)(UINT, UINT), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(LOWORD(c.wParam), HIWORD(c.wParam));
}
template <class T>
void v_np(CCmdTarget* p, void (T::*fn)(UINT, CPoint), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(static_cast<UINT>(c.wParam), Point(c.lParam));
}
template <class T>
void l_p(CCmdTarget* p, LRESULT (T::*fn)(CPoint), AFX_MSGCALL& c)
{
    c.lResult = (To<T>(p)->*fn)(Point(c.lParam));
}
template <class T>
void b_wheel(CCmdTarget* p, BOOL (T::*fn)(UINT, short, CPoint), AFX_MSGCALL& c)
{
    c.lResult = (To<T>(p)->*fn)(LOWORD(c.wParam), static_cast<short>(HIWORD(c.wParam)), Point(c.lParam));
    c.bHandled = c.lResult != 0;
}
template <class T>
void v_key(CCmdTarget* p, void (T::*fn)(UINT, UINT, UINT), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(static_cast<UINT>(c.wParam), LOWORD(c.lParam), HIWORD(c.lParam));
}
template <class T>
void v_nl(CCmdTarget* p, void (T::*fn)(UINT, LPARAM), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(static_cast<UINT>(c.wParam), c.lParam);
}
template <class T>
void v_w(CCmdTarget* p, void (T::*fn)(CWnd*), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(Window(c.wParam));
}
template <class T>
void v_captured(CCmdTarget* p, void (T::*fn)(CWnd*), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(Window(c.lParam));
}
template <class T>
void h_ctlcolor(CCmdTarget* p, HBRUSH (T::*fn)(CDC*, CWnd*, UINT), AFX_MSGCALL& c)
{
    c.lResult = reinterpret_cast<LRESULT>((To<T>(p)->*fn)(CDC::FromHandle(reinterpret_cast<HDC>(c.wParam)),
                                                          Window(c.lParam), c.nMessage - WM_CTLCOLORMSGBOX));
}
template <class T>
void h_ctlcolor_reflect(CCmdTarget* p, HBRUSH (T::*fn)(CDC*, UINT), AFX_MSGCALL& c)
{
    c.lResult = reinterpret_cast<LRESULT>(
        (To<T>(p)->*fn)(CDC::FromHandle(reinterpret_cast<HDC>(c.wParam)), c.nMessage - WM_CTLCOLORMSGBOX));
    c.bHandled = c.lResult != 0;
}
template <class Info, class T>
void v_item(CCmdTarget* p, void (T::*fn)(int, Info*), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(static_cast<int>(c.wParam), reinterpret_cast<Info*>(c.lParam));
    c.lResult = TRUE;
}
template <class Info, class T>
void v_item_reflect(CCmdTarget* p, void (T::*fn)(Info*), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(reinterpret_cast<Info*>(c.lParam));
    c.lResult = TRUE;
}
template <class T>
void i_compare(CCmdTarget* p, int (T::*fn)(int, LPCOMPAREITEMSTRUCT), AFX_MSGCALL& c)
{
    c.lResult = (To<T>(p)->*fn)(static_cast<int>(c.wParam), reinterpret_cast<LPCOMPAREITEMSTRUCT>(c.lParam));
}
template <class T>
void i_compare_reflect(CCmdTarget* p, int (T::*fn)(LPCOMPAREITEMSTRUCT), AFX_MSGCALL& c)
{
    c.lResult = (To<T>(p)->*fn)(reinterpret_cast<LPCOMPAREITEMSTRUCT>(c.lParam));
}
template <class T>
void v_wp(CCmdTarget* p, void (T::*fn)(CWnd*, CPoint), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(Window(c.wParam), Point(c.lParam));
}
template <class T>
void v_m(CCmdTarget* p, void (T::*fn)(CMenu*), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(CMenu::FromHandle(reinterpret_cast<HMENU>(c.wParam)));
}
template <class T>
void v_popup(CCmdTarget* p, void (T::*fn)(CMenu*, UINT, BOOL), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(CMenu::FromHandle(reinterpret_cast<HMENU>(c.wParam)), LOWORD(c.lParam), HIWORD(c.lParam));
}
template <class T>
void v_menuselect(CCmdTarget* p, void (T::*fn)(UINT, UINT, HMENU), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(LOWORD(c.wParam), HIWORD(c.wParam), reinterpret_cast<HMENU>(c.lParam));
}
template <class T>
void v_enteridle(CCmdTarget* p, void (T::*fn)(UINT, CWnd*), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(static_cast<UINT>(c.wParam), Window(c.lParam));
}
template <class T>
void v_activate(CCmdTarget* p, void (T::*fn)(UINT, CWnd*, BOOL), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(LOWORD(c.wParam), Window(c.lParam), HIWORD(c.wParam));
}
template <class T>
void i_mouseactivate(CCmdTarget* p, int (T::*fn)(CWnd*, UINT, UINT), AFX_MSGCALL& c)
{
    c.lResult = (To<T>(p)->*fn)(Window(c.wParam), LOWORD(c.lParam), HIWORD(c.lParam));
}
template <class T>
void b_setcursor(CCmdTarget* p, BOOL (T::*fn)(CWnd*, UINT, UINT), AFX_MSGCALL& c)
{
    c.lResult = (To<T>(p)->*fn)(Window(c.wParam), LOWORD(c.lParam), HIWORD(c.lParam));
}
template <class Info, class T>
void v_info(CCmdTarget* p, void (T::*fn)(Info*), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(reinterpret_cast<Info*>(c.lParam));
}
template <class Info, class T>
void b_info(CCmdTarget* p, BOOL (T::*fn)(Info*), AFX_MSGCALL& c)
{
    c.lResult = (To<T>(p)->*fn)(reinterpret_cast<Info*>(c.lParam));
}
template <class T>
void v_calcsize(CCmdTarget* p, void (T::*fn)(BOOL, NCCALCSIZE_PARAMS*), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(static_cast<BOOL>(c.wParam), reinterpret_cast<NCCALCSIZE_PARAMS*>(c.lParam));
}
template <class T>
void v_setting(CCmdTarget* p, void (T::*fn)(UINT, LPCTSTR), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(static_cast<UINT>(c.wParam), reinterpret_cast<LPCTSTR>(c.lParam));
}
template <class T>
void v_drop(CCmdTarget* p, void (T::*fn)(HDROP), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(reinterpret_cast<HDROP>(c.wParam));
}
template <class T>
void b_copydata(CCmdTarget* p, BOOL (T::*fn)(CWnd*, COPYDATASTRUCT*), AFX_MSGCALL& c)
{
    c.lResult = (To<T>(p)->*fn)(Window(c.wParam), reinterpret_cast<COPYDATASTRUCT*>(c.lParam));
}
template <class T>
void l_wl(CCmdTarget* p, LRESULT (T::*fn)(WPARAM, LPARAM), AFX_MSGCALL& c)
{
    c.lResult = (To<T>(p)->*fn)(c.wParam, c.lParam);
}
// Commands, notifications and updates.
template <class T>
void v_id(CCmdTarget* p, void (T::*fn)(UINT), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(c.nID);
}
template <class T>
void b_id(CCmdTarget* p, BOOL (T::*fn)(UINT), AFX_MSGCALL& c)
{
    c.bHandled = (To<T>(p)->*fn)(c.nID);
}
template <class T>
void b_reflect(CCmdTarget* p, BOOL (T::*fn)(), AFX_MSGCALL& c)
{
    c.bHandled = (To<T>(p)->*fn)();
}
template <class T>
void v_notify(CCmdTarget* p, void (T::*fn)(NMHDR*, LRESULT*), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(c.pNMHDR, c.pResult);
}
template <class T>
void b_notify(CCmdTarget* p, BOOL (T::*fn)(NMHDR*, LRESULT*), AFX_MSGCALL& c)
{
    c.bHandled = (To<T>(p)->*fn)(c.pNMHDR, c.pResult);
}
template <class T>
void v_id_notify(CCmdTarget* p, void (T::*fn)(UINT, NMHDR*, LRESULT*), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(c.nID, c.pNMHDR, c.pResult);
}
template <class T>
void b_id_notify(CCmdTarget* p, BOOL (T::*fn)(UINT, NMHDR*, LRESULT*), AFX_MSGCALL& c)
{
    c.bHandled = (To<T>(p)->*fn)(c.nID, c.pNMHDR, c.pResult);
}
template <class T>
void v_cmdui(CCmdTarget* p, void (T::*fn)(CCmdUI*), AFX_MSGCALL& c)
{
    (To<T>(p)->*fn)(c.pCmdUI);
    c.bHandled = !c.pCmdUI->m_bContinueRouting;
    c.pCmdUI->m_bContinueRouting = FALSE;
}
} // namespace afxsig

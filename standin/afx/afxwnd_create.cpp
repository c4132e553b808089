#include "afxmodal.h"
#include "afxroute.h"
#include "afxstate.h"

#include <set>
#include <string>

namespace
{
bool IsInputMethodWindow(HWND hWnd)
{
    WCHAR szClass[8] = {};
    return ::GetClassNameW(hWnd, szClass, static_cast<int>(std::size(szClass))) > 0 &&
           ::lstrcmpiW(szClass, L"ime") == 0;
}

/// A window that somebody else creates: its object waits for a child of a certain window.
bool IsMeant(const AFX_THREAD_STATE& state, const CREATESTRUCTW* pcs)
{
    return !state.hWndInitParent || (pcs->hwndParent == state.hWndInitParent && (pcs->style & WS_CHILD));
}

/// Runs before the new window's first message, so that the object sees all of them.
LRESULT CALLBACK CreationHook(int nCode, WPARAM wParam, LPARAM lParam)
{
    AFX_THREAD_STATE& state = AfxThreadState();
    const HWND hWnd = reinterpret_cast<HWND>(wParam);
    // The system makes input method windows on the way, in front of the one that is meant.
    if (nCode == HCBT_CREATEWND && state.pWndInit && !IsInputMethodWindow(hWnd) &&
        IsMeant(state, reinterpret_cast<const CBT_CREATEWNDW*>(lParam)->lpcs))
    {
        CWnd* pWnd = std::exchange(state.pWndInit, nullptr);
        const MSG msg{hWnd, WM_NCCREATE, 0, 0, 0, {}};
        AfxGuardedCall(msg, [&]() -> LRESULT {
            AfxWndAccess::Adopt(pWnd, hWnd);
            return 0;
        });
    }
    return ::CallNextHookEx(state.hCreationHook, nCode, wParam, lParam);
}
} // namespace

INT_PTR CALLBACK AfxDlgProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_INITDIALOG)
        return FALSE;
    CWnd* pWnd = CWnd::FromHandlePermanent(hWnd);
    return pWnd ? AfxWndAccess::InitDialog(pWnd, MSG{hWnd, message, wParam, lParam, 0, {}}) : TRUE;
}

void AfxHookWindowCreate(CWnd* pWnd)
{
    AFX_THREAD_STATE& state = AfxThreadState();
    if (!state.hCreationHook)
        state.hCreationHook = ::SetWindowsHookExW(WH_CBT, CreationHook, nullptr, ::GetCurrentThreadId());
    state.pWndInit = pWnd;
    state.hWndInitParent = nullptr;
}

BOOL AfxUnhookWindowCreate()
{
    AFX_THREAD_STATE& state = AfxThreadState();
    if (state.hCreationHook)
        ::UnhookWindowsHookEx(std::exchange(state.hCreationHook, nullptr));
    return std::exchange(state.pWndInit, nullptr) == nullptr;
}

namespace
{
/// One creation: the next window is the object's.
class AfxCreationScope
{
public:
    explicit AfxCreationScope(CWnd* pWnd) : m_life(pWnd), m_pWnd(pWnd) { AfxHookWindowCreate(pWnd); }
    /// FALSE when the object has no living window; PostNcDestroy has then been called.
    BOOL Finish(HWND hWnd)
    {
        if (!AfxUnhookWindowCreate())
        {
            AfxWndAccess::Abandon(m_pWnd);
            return FALSE;
        }
        // Destroyed without the window's last message: the object still believes in it.
        if (!hWnd && m_life.IsAlive() && m_pWnd->m_hWnd && !::IsWindow(m_pWnd->m_hWnd))
        {
            m_pWnd->Detach();
            AfxWndAccess::Abandon(m_pWnd);
        }
        return hWnd != nullptr;
    }

private:
    AfxLifeLine m_life;
    CWnd* m_pWnd;
};
} // namespace

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x,
                    int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam)
{
    CREATESTRUCTW cs{};
    cs.dwExStyle = dwExStyle;
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = static_cast<LONG>(dwStyle);
    cs.x = x;
    cs.y = y;
    cs.cx = nWidth;
    cs.cy = nHeight;
    cs.hwndParent = hWndParent;
    cs.hMenu = nIDorHMenu;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = lpParam;
    if (!PreCreateWindow(cs))
    {
        PostNcDestroy();
        return FALSE;
    }
    AfxCreationScope creation(this);
    const HWND hWnd =
        ::CreateWindowExW(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style), cs.x, cs.y,
                          cs.cx, cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    return creation.Finish(hWnd);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam)
{
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                    rect.right - rect.left, rect.bottom - rect.top, SafeHandle(pParentWnd),
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

BOOL CWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID, CCreateContext* pContext)
{
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID, pContext);
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!cs.lpszClass)
        cs.lpszClass =
            AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, ::LoadCursorW(nullptr, IDC_ARROW));
    return TRUE;
}

BOOL AfxRegisterClass(WNDCLASS* lpWndClass)
{
    WNDCLASSW known{};
    return ::GetClassInfoW(lpWndClass->hInstance, lpWndClass->lpszClassName, &known) ||
           ::RegisterClassW(lpWndClass) != 0;
}

LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon)
{
    static std::set<std::wstring> names; // nodes stay where they are, so do the texts
    CString strName;
    strName.Format(L"Afx:%p:%x:%p:%p:%p", AfxGetInstanceHandle(), nClassStyle, hCursor, hbrBackground, hIcon);
    LPCTSTR lpszName = names.emplace(strName.GetString()).first->c_str();
    WNDCLASSW wc{};
    wc.style = nClassStyle;
    wc.lpfnWndProc = ::DefWindowProcW;
    wc.hInstance = AfxGetInstanceHandle();
    wc.hIcon = hIcon;
    wc.hCursor = hCursor;
    wc.hbrBackground = hbrBackground;
    wc.lpszClassName = lpszName;
    if (!AfxRegisterClass(&wc))
        AfxThrowResourceException();
    return lpszName;
}

BOOL CWnd::CreateDlg(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
{
    const HINSTANCE hInst = AfxFindResourceHandle(lpszTemplateName, RT_DIALOG);
    const HRSRC hResource = ::FindResourceW(hInst, lpszTemplateName, RT_DIALOG);
    const HGLOBAL hTemplate = hResource ? ::LoadResource(hInst, hResource) : nullptr;
    const auto* pTemplate = static_cast<LPCDLGTEMPLATE>(hTemplate ? ::LockResource(hTemplate) : nullptr);
    return pTemplate ? CreateDlgIndirect(pTemplate, pParentWnd, hInst) : FALSE;
}

BOOL CWnd::CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst)
{
    AfxInitCommonControls();
    m_nModalResult = -1;
    m_nFlags |= WF_CONTINUEMODAL;
    const AfxLifeLine life(this);
    AfxCreationScope creation(this);
    const HWND hWnd = ::CreateDialogIndirectParamW(hInst ? hInst : AfxGetInstanceHandle(), lpDialogTemplate,
                                                   SafeHandle(pParentWnd), AfxDlgProc, 0);
    if (!creation.Finish(hWnd) || !life.IsAlive())
        return FALSE;
    if (m_hWnd == hWnd && (m_nFlags & WF_CONTINUEMODAL))
        return TRUE;
    if (m_hWnd == hWnd) // ended while it was being initialised
        DestroyWindow();
    return FALSE;
}

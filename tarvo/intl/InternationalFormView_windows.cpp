#include "tarvo/intl/InternationalFormView.h"

#include "tarvo/intl/DialogMemory_windows.h"
#include "tarvo/intl/LocaleLib.h"

IMPLEMENT_DYNCREATE(CInternationalFormView, CBCGPFormView)

BEGIN_MESSAGE_MAP(CInternationalFormView, CBCGPFormView)
ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

CInternationalFormView::CInternationalFormView() : CInternationalFormView(0u) {}

CInternationalFormView::CInternationalFormView(UINT nIDTemplate)
    : CBCGPFormView(nIDTemplate), CLanguageWindow(SKIN_WINDOW::FormView), m_nFormResID(nIDTemplate)
{
}

CInternationalFormView::~CInternationalFormView() = default;

BOOL CInternationalFormView::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwRequestedStyle,
                                    const RECT& rect, CWnd* pParentWnd, UINT nID, CCreateContext* pContext)
{
    const CResourceModule module(AfxFindResourceHandle(m_lpszTemplateName, RT_DIALOG));
    CDialogTemplate memory;
    CREATESTRUCTW cs{};
    cs.style = static_cast<LONG>(dwRequestedStyle != 0 ? dwRequestedStyle : AFX_WS_DEFAULT_VIEW);
    const TemplateFont font = GetDialogFont();
    // The base refuses what it cannot show, in its own way.
    if (!pParentWnd || !LoadWithFont(memory, m_lpszTemplateName, font) || !MakesChild(memory) ||
        !PreCreateWindow(cs))
        return CBCGPFormView::Create(lpszClassName, lpszWindowName, dwRequestedStyle, rect, pParentWnd, nID,
                                     pContext);
    MadeFrom(m_lpszTemplateName, font);
    {
        const CTemplateLock lock(memory);
        if (!CreateFrom(lock.Get(), cs, pParentWnd, nID, pContext))
            return FALSE;
    }
    if (lpszWindowName)
        SetWindowText(lpszWindowName);
    if (!ExecuteDlgInit(m_lpszTemplateName))
    {
        DestroyWindow();
        return FALSE;
    }
    Place(rect);
    if (cs.style & WS_VISIBLE)
        ShowWindow(SW_NORMAL);
    return TRUE;
}

/// Makes the window; when it fails, the object has gone.
BOOL CInternationalFormView::CreateFrom(const DLGTEMPLATE* pTemplate, const CREATESTRUCT& cs,
                                        CWnd* pParentWnd, UINT nID, CCreateContext* pContext)
{
    m_pCreateContext = pContext;
    if (!CreateDlgIndirect(pTemplate, pParentWnd, AfxGetResourceHandle()))
        return FALSE;
    m_pCreateContext = nullptr;
    ModifyStyle(WS_BORDER | WS_CAPTION, static_cast<DWORD>(cs.style) & (WS_BORDER | WS_CAPTION));
    ModifyStyleEx(WS_EX_CLIENTEDGE, cs.dwExStyle & WS_EX_CLIENTEDGE);
    SetDlgCtrlID(static_cast<int>(nID));
    return TRUE;
}

void CInternationalFormView::Place(const RECT& rect)
{
    CRect whole;
    GetClientRect(whole);
    SetScrollSizes(MM_TEXT, whole.Size());
    const UINT size = ::IsRectEmpty(&rect) ? SWP_NOSIZE : 0;
    SetWindowPos(nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED | size);
}

void CInternationalFormView::OnInitialUpdate()
{
    OpenWindow(this);
    EnableVisualManagerStyle(ISkinFunc::Instance()->UsesVisualManager(this, GetSkinKind()) != 0);
    CBCGPFormView::OnInitialUpdate();
    if (!IsOpen(this))
        return;
    ChangeFormViewFont();
    if (!m_bUpdateMessage)
        FinishStart();
}

LRESULT CInternationalFormView::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_GETFONT && GetDialogFontNow())
        return reinterpret_cast<LRESULT>(GetDialogFontNow());
    if (message != WM_INITIALUPDATE)
        return CBCGPFormView::WindowProc(message, wParam, lParam);
    const HWND window = m_hWnd;
    m_bUpdateMessage = true;
    const LRESULT result = CBCGPFormView::WindowProc(message, wParam, lParam);
    // The object may have gone with its window.
    if (FromHandlePermanent(window) != this || !IsOpen(this))
        return result;
    m_bUpdateMessage = false;
    FinishStart();
    return result;
}

void CInternationalFormView::ChangeFormViewFont()
{
    if (!CLocaleLib::bKoreanUILanguage)
        PutTextFont();
}

CPoint CInternationalFormView::BeginLayout()
{
    m_formerSize = GetTotalSize();
    return m_scrolled = GetScrollPosition();
}

/// What was at the upper left corner comes back there.
void CInternationalFormView::EndLayout(bool changed)
{
    if (!changed || m_formerSize.cx <= 0 || m_formerSize.cy <= 0)
        return;
    const CSize now = GetTemplateSize();
    SetScrollSizes(MM_TEXT, now);
    ScrollToPosition(CPoint(::MulDiv(m_scrolled.x, now.cx, m_formerSize.cx),
                            ::MulDiv(m_scrolled.y, now.cy, m_formerSize.cy)));
}

int CInternationalFormView::TranslateStringToINI() { return TranslateByTable(m_nFormResID); }

HBRUSH CInternationalFormView::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    const HBRUSH brush = GetSkinBackground(*pDC, *pWnd, nCtlColor);
    return brush ? brush : CBCGPFormView::OnCtlColor(pDC, pWnd, nCtlColor);
}

void CInternationalFormView::PostNcDestroy()
{
    CloseWindow();
    CBCGPFormView::PostNcDestroy();
}

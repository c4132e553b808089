#include "afxscrollview.h"

#include "afxframe.h"
#include "afxmsgmap.h"

#include <algorithm>
#include <cstdlib>

IMPLEMENT_DYNAMIC(CScrollView, CView)

const SIZE CScrollView::sizeDefault = {0, 0};

BEGIN_MESSAGE_MAP(CScrollView, CView)
ON_WM_SIZE()
ON_WM_HSCROLL()
ON_WM_VSCROLL()
ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

namespace
{
constexpr UINT NO_CODE = 0xFF;

int OrTenth(int nGiven, int nWhole) { return nGiven != 0 ? nGiven : nWhole / 10; }
} // namespace

void CScrollView::SetScrollSizes(int nMapMode, SIZE sizeTotal, const SIZE& sizePage, const SIZE& sizeLine)
{
    m_nMapMode = nMapMode;
    m_totalLog = sizeTotal;
    CSize sizes[] = {sizeTotal, sizePage, sizeLine};
    if (nMapMode != MM_TEXT)
    {
        CClientDC dc(nullptr);
        dc.SetMapMode(nMapMode);
        for (CSize& size : sizes)
        {
            CPoint corner(size.cx, size.cy);
            dc.LPtoDP(&corner);
            size = CSize(std::abs(corner.x), std::abs(corner.y)); // y grows upwards in the metric modes
        }
    }
    m_totalDev = sizes[0];
    m_pageDev = CSize(OrTenth(sizes[1].cx, m_totalDev.cx), OrTenth(sizes[1].cy, m_totalDev.cy));
    m_lineDev = CSize(OrTenth(sizes[2].cx, m_pageDev.cx), OrTenth(sizes[2].cy, m_pageDev.cy));
    if (m_hWnd)
        UpdateBars();
}

CPoint CScrollView::GetDeviceScrollPosition() const
{
    return CPoint(GetScrollPos(SB_HORZ), GetScrollPos(SB_VERT));
}

CPoint CScrollView::GetScrollPosition() const
{
    CPoint position = GetDeviceScrollPosition();
    if (m_nMapMode != 0 && m_nMapMode != MM_TEXT)
    {
        CClientDC dc(nullptr);
        dc.SetMapMode(m_nMapMode);
        dc.DPtoLP(&position);
    }
    return position;
}

void CScrollView::GetDeviceScrollSizes(int& nMapMode, SIZE& sizeTotal, SIZE& sizePage, SIZE& sizeLine) const
{
    nMapMode = m_nMapMode;
    sizeTotal = m_totalDev;
    sizePage = m_pageDev;
    sizeLine = m_lineDev;
}

void CScrollView::ScrollToPosition(POINT pt)
{
    CPoint target(pt);
    if (m_nMapMode != 0 && m_nMapMode != MM_TEXT)
    {
        CClientDC dc(nullptr);
        dc.SetMapMode(m_nMapMode);
        dc.LPtoDP(&target);
        target = CPoint(std::abs(target.x), std::abs(target.y));
    }
    OnScrollBy(target - GetDeviceScrollPosition());
}

void CScrollView::CheckScrollBars(BOOL& bHasHorzBar, BOOL& bHasVertBar) const
{
    bHasHorzBar = (GetStyle() & WS_HSCROLL) != 0;
    bHasVertBar = (GetStyle() & WS_VSCROLL) != 0;
}

void CScrollView::OnPrepareDC(CDC* pDC, CPrintInfo* pInfo)
{
    if (m_nMapMode != 0)
    {
        pDC->SetMapMode(m_nMapMode);
        const CPoint position = GetDeviceScrollPosition();
        pDC->SetViewportOrg(-position.x, -position.y);
    }
    CView::OnPrepareDC(pDC, pInfo);
}

void CScrollView::UpdateBars()
{
    // A bar that comes or goes changes the client area and calls this again from within.
    if (m_nMapMode == 0 || std::exchange(m_bInsideUpdate, TRUE))
        return;
    CSize bar(::GetSystemMetrics(SM_CXVSCROLL), ::GetSystemMetrics(SM_CYHSCROLL));
    CRect client;
    GetClientRect(client);
    CSize room = client.Size(); // without any bar
    room.cx += (GetStyle() & WS_VSCROLL) ? bar.cx : 0;
    room.cy += (GetStyle() & WS_HSCROLL) ? bar.cy : 0;
    bool bHorz = m_totalDev.cx > room.cx;
    const bool bVert = m_totalDev.cy > room.cy - (bHorz ? bar.cy : 0);
    bHorz = m_totalDev.cx > room.cx - (bVert ? bar.cx : 0);
    const CSize page(room.cx - (bVert ? bar.cx : 0), room.cy - (bHorz ? bar.cy : 0));
    // What scrolls out of reach comes back before the bars change.
    const CPoint last(std::max<LONG>(0, m_totalDev.cx - page.cx), std::max<LONG>(0, m_totalDev.cy - page.cy));
    const CPoint now = GetDeviceScrollPosition();
    const CPoint kept(std::min(now.x, last.x), std::min(now.y, last.y));
    if (kept != now)
        ScrollWindow(now.x - kept.x, now.y - kept.y);
    SCROLLINFO info{};
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMax = std::max<LONG>(0, m_totalDev.cx - 1);
    info.nPage = static_cast<UINT>(std::max<LONG>(0, page.cx));
    info.nPos = kept.x;
    SetScrollInfo(SB_HORZ, &info);
    info.nMax = std::max<LONG>(0, m_totalDev.cy - 1);
    info.nPage = static_cast<UINT>(std::max<LONG>(0, page.cy));
    info.nPos = kept.y;
    SetScrollInfo(SB_VERT, &info);
    ShowScrollBar(SB_HORZ, bHorz);
    ShowScrollBar(SB_VERT, bVert);
    m_bInsideUpdate = FALSE;
}

/// Where a code leads, not yet held within the bounds.
int CScrollView::Target(int nBar, UINT nCode, int nPage, int nLine) const
{
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL;
    ::GetScrollInfo(m_hWnd, nBar, &info);
    switch (nCode)
    {
    case SB_TOP:
        return 0;
    case SB_BOTTOM:
        return info.nMax;
    case SB_LINEUP:
        return info.nPos - nLine;
    case SB_LINEDOWN:
        return info.nPos + nLine;
    case SB_PAGEUP:
        return info.nPos - nPage;
    case SB_PAGEDOWN:
        return info.nPos + nPage;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        return info.nTrackPos; // the message's own number has 16 bits only
    default:
        return info.nPos;
    }
}

BOOL CScrollView::OnScroll(UINT nScrollCode, UINT, BOOL bDoScroll)
{
    const CPoint now = GetDeviceScrollPosition();
    const CPoint target(Target(SB_HORZ, LOBYTE(nScrollCode), m_pageDev.cx, m_lineDev.cx),
                        Target(SB_VERT, HIBYTE(nScrollCode), m_pageDev.cy, m_lineDev.cy));
    return OnScrollBy(target - now, bDoScroll);
}

BOOL CScrollView::OnScrollBy(CSize sizeScroll, BOOL bDoScroll)
{
    CRect client;
    GetClientRect(client);
    const CPoint now = GetDeviceScrollPosition();
    const auto within = [](LONG nTarget, LONG nTotal, LONG nPage) {
        return std::clamp<LONG>(nTarget, 0, std::max<LONG>(0, nTotal - nPage));
    };
    const CPoint target(within(now.x + sizeScroll.cx, m_totalDev.cx, client.Width()),
                        within(now.y + sizeScroll.cy, m_totalDev.cy, client.Height()));
    if (m_nMapMode == 0 || target == now)
        return FALSE;
    if (bDoScroll)
    {
        ScrollWindow(now.x - target.x, now.y - target.y);
        SetScrollPos(SB_HORZ, target.x);
        SetScrollPos(SB_VERT, target.y);
    }
    return TRUE;
}

void CScrollView::OnSize(UINT nType, int cx, int cy)
{
    CView::OnSize(nType, cx, cy);
    UpdateBars();
}

void CScrollView::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    if (pScrollBar) // of a control in the view
        CView::OnHScroll(nSBCode, nPos, pScrollBar);
    else
        OnScroll(MAKEWORD(nSBCode, NO_CODE), nPos);
}

void CScrollView::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    if (pScrollBar)
        CView::OnVScroll(nSBCode, nPos, pScrollBar);
    else
        OnScroll(MAKEWORD(NO_CODE, nSBCode), nPos);
}

BOOL CScrollView::OnMouseWheel(UINT, short zDelta, CPoint)
{
    UINT nLines = 3;
    ::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &nLines, 0);
    const int nStep = nLines == WHEEL_PAGESCROLL ? m_pageDev.cy : static_cast<int>(nLines) * m_lineDev.cy;
    return OnScrollBy(CSize(0, -::MulDiv(zDelta, nStep, WHEEL_DELTA)));
}

void CScrollView::ResizeParentToFit(BOOL bShrinkOnly)
{
    CFrameWnd* pFrame = GetParentFrame();
    if (!pFrame || m_nMapMode == 0)
        return;
    CRect frame;
    pFrame->GetWindowRect(frame);
    CRect client;
    GetClientRect(client);
    CSize bars((GetStyle() & WS_VSCROLL) ? ::GetSystemMetrics(SM_CXVSCROLL) : 0,
               (GetStyle() & WS_HSCROLL) ? ::GetSystemMetrics(SM_CYHSCROLL) : 0);
    CSize more = m_totalDev - client.Size() - bars;
    if (bShrinkOnly)
        more = CSize(std::min<LONG>(0, more.cx), std::min<LONG>(0, more.cy));
    MONITORINFO info{};
    info.cbSize = sizeof(info);
    ::GetMonitorInfoW(::MonitorFromWindow(pFrame->m_hWnd, MONITOR_DEFAULTTONEAREST), &info);
    const CSize screen = CRect(info.rcWork).Size();
    pFrame->SetWindowPos(nullptr, 0, 0,
                         std::min(frame.Width() + static_cast<int>(more.cx), static_cast<int>(screen.cx)),
                         std::min(frame.Height() + static_cast<int>(more.cy), static_cast<int>(screen.cy)),
                         SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

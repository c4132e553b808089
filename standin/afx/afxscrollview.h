#pragma once

#include "afxview.h"

/// A view of part of something larger, with scroll bars that come and go as the sizes need them. The view's
/// origin is scrolled; drawing in OnDraw uses the logical units of the mapping mode.
class AFX_API CScrollView : public CView
{
    DECLARE_DYNAMIC(CScrollView)

public:
    static const SIZE sizeDefault; ///< for a page or a line: a tenth of the whole, or of that

    /// From OnInitialUpdate or later; sizes in logical units of \p nMapMode (MM_TEXT: pixels).
    void SetScrollSizes(int nMapMode, SIZE sizeTotal, const SIZE& sizePage = sizeDefault,
                        const SIZE& sizeLine = sizeDefault);
    CSize GetTotalSize() const { return m_totalLog; }
    /// What of the whole is at the upper left corner; logical units, or pixels.
    CPoint GetScrollPosition() const;
    CPoint GetDeviceScrollPosition() const;
    void GetDeviceScrollSizes(int& nMapMode, SIZE& sizeTotal, SIZE& sizePage, SIZE& sizeLine) const;
    /// As far as the bars go.
    void ScrollToPosition(POINT pt);
    /// Whether there are bars now.
    void CheckScrollBars(BOOL& bHasHorzBar, BOOL& bHasVertBar) const;
    /// The frame takes the size that shows the whole, at most the size of its screen's work area.
    void ResizeParentToFit(BOOL bShrinkOnly = TRUE);

protected:
    CScrollView() = default;

    void OnPrepareDC(CDC* pDC, CPrintInfo* pInfo = nullptr) override;
    /// A code of WM_HSCROLL in the low byte, one of WM_VSCROLL in the next; 0xFF for none. TRUE when it
    /// scrolled, or with \p bDoScroll FALSE would.
    virtual BOOL OnScroll(UINT nScrollCode, UINT nPos, BOOL bDoScroll = TRUE);
    virtual BOOL OnScrollBy(CSize sizeScroll, BOOL bDoScroll = TRUE);

    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint point);
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
    const AFX_MSGMAP* GetMessageMap() const override;

    void UpdateBars();

    int m_nMapMode = 0; ///< 0: no sizes were set, nothing scrolls
    CSize m_totalLog;
    CSize m_totalDev;
    CSize m_pageDev;
    CSize m_lineDev;

private:
    int Target(int nBar, UINT nCode, int nPage, int nLine) const;
    BOOL m_bInsideUpdate = FALSE;
};

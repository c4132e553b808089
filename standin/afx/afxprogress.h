#pragma once

#include "afxwnd.h"

#include <commctrl.h>

/// The progress bar.
class AFX_API CProgressCtrl : public CWnd
{
    DECLARE_DYNCREATE(CProgressCtrl)

public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
    {
        return CWnd::Create(PROGRESS_CLASSW, nullptr, dwStyle, rect, pParentWnd, nID);
    }
    void SetRange(short nLower, short nUpper) { SendMessage(PBM_SETRANGE, 0, MAKELPARAM(nLower, nUpper)); }
    void SetRange32(int nLower, int nUpper)
    {
        SendMessage(PBM_SETRANGE32, static_cast<WPARAM>(nLower), nUpper);
    }
    void GetRange(int& nLower, int& nUpper) const;
    int GetPos() const { return static_cast<int>(SendMessage(PBM_GETPOS)); }
    int SetPos(int nPos) { return static_cast<int>(SendMessage(PBM_SETPOS, static_cast<WPARAM>(nPos))); }
    int SetStep(int nStep) { return static_cast<int>(SendMessage(PBM_SETSTEP, static_cast<WPARAM>(nStep))); }
    int GetStep() const { return static_cast<int>(SendMessage(PBM_GETSTEP)); }
    COLORREF SetBarColor(COLORREF clrBar)
    {
        return static_cast<COLORREF>(SendMessage(PBM_SETBARCOLOR, 0, static_cast<LPARAM>(clrBar)));
    }
    COLORREF SetBkColor(COLORREF clrNew)
    {
        return static_cast<COLORREF>(SendMessage(PBM_SETBKCOLOR, 0, static_cast<LPARAM>(clrNew)));
    }
    BOOL SetMarquee(BOOL fMarqueeMode, int nInterval)
    {
        return static_cast<BOOL>(SendMessage(PBM_SETMARQUEE, static_cast<WPARAM>(fMarqueeMode), nInterval));
    }
    int StepIt() { return static_cast<int>(SendMessage(PBM_STEPIT)); }
    int OffsetPos(int nPos) { return static_cast<int>(SendMessage(PBM_DELTAPOS, static_cast<WPARAM>(nPos))); }
};

/// The two arrows beside a field.
class AFX_API CSpinButtonCtrl : public CWnd
{
    DECLARE_DYNCREATE(CSpinButtonCtrl)

public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
    {
        return CWnd::Create(UPDOWN_CLASSW, nullptr, dwStyle, rect, pParentWnd, nID);
    }
    CWnd* SetBuddy(CWnd* pWndBuddy)
    {
        return FromHandle(reinterpret_cast<HWND>(
            SendMessage(UDM_SETBUDDY, reinterpret_cast<WPARAM>(SafeHandle(pWndBuddy)))));
    }
    CWnd* GetBuddy() const { return FromHandle(reinterpret_cast<HWND>(SendMessage(UDM_GETBUDDY))); }
    void SetRange32(int nLower, int nUpper)
    {
        SendMessage(UDM_SETRANGE32, static_cast<WPARAM>(nLower), nUpper);
    }
    void SetRange(short nLower, short nUpper) { SendMessage(UDM_SETRANGE, 0, MAKELPARAM(nUpper, nLower)); }
    void GetRange32(int& lower, int& upper) const
    {
        SendMessage(UDM_GETRANGE32, reinterpret_cast<WPARAM>(&lower), reinterpret_cast<LPARAM>(&upper));
    }
    int SetPos32(int nPos) { return static_cast<int>(SendMessage(UDM_SETPOS32, 0, nPos)); }
    /// \p lpbError is TRUE when the field holds no number of the range.
    int GetPos32(LPBOOL lpbError = nullptr) const
    {
        return static_cast<int>(SendMessage(UDM_GETPOS32, 0, reinterpret_cast<LPARAM>(lpbError)));
    }
    int SetPos(int nPos) { return static_cast<int>(SendMessage(UDM_SETPOS, 0, MAKELPARAM(nPos, 0))); }
    /// The position in the low word; the high word is not 0 when the field holds none.
    int GetPos() const { return static_cast<int>(SendMessage(UDM_GETPOS)); }
    int SetBase(int nBase) { return static_cast<int>(SendMessage(UDM_SETBASE, static_cast<WPARAM>(nBase))); }
    UINT GetBase() const { return static_cast<UINT>(SendMessage(UDM_GETBASE)); }
    BOOL SetAccel(int nAccel, UDACCEL* pAccel)
    {
        return static_cast<BOOL>(
            SendMessage(UDM_SETACCEL, static_cast<WPARAM>(nAccel), reinterpret_cast<LPARAM>(pAccel)));
    }
};

/// The slider.
class AFX_API CSliderCtrl : public CWnd
{
    DECLARE_DYNCREATE(CSliderCtrl)

public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
    {
        return CWnd::Create(TRACKBAR_CLASSW, nullptr, dwStyle, rect, pParentWnd, nID);
    }
    int GetPos() const { return static_cast<int>(SendMessage(TBM_GETPOS)); }
    void SetPos(int nPos) { SendMessage(TBM_SETPOS, TRUE, nPos); }
    int GetRangeMin() const { return static_cast<int>(SendMessage(TBM_GETRANGEMIN)); }
    int GetRangeMax() const { return static_cast<int>(SendMessage(TBM_GETRANGEMAX)); }
    void SetRangeMin(int nMin, BOOL bRedraw = FALSE)
    {
        SendMessage(TBM_SETRANGEMIN, static_cast<WPARAM>(bRedraw), nMin);
    }
    void SetRangeMax(int nMax, BOOL bRedraw = FALSE)
    {
        SendMessage(TBM_SETRANGEMAX, static_cast<WPARAM>(bRedraw), nMax);
    }
    void SetRange(int nMin, int nMax, BOOL bRedraw = FALSE)
    {
        SetRangeMin(nMin, bRedraw);
        SetRangeMax(nMax, bRedraw);
    }
    int SetPageSize(int nSize) { return static_cast<int>(SendMessage(TBM_SETPAGESIZE, 0, nSize)); }
    int SetLineSize(int nSize) { return static_cast<int>(SendMessage(TBM_SETLINESIZE, 0, nSize)); }
    void SetTicFreq(int nFreq) { SendMessage(TBM_SETTICFREQ, static_cast<WPARAM>(nFreq)); }
};

class AFX_API CToolTipCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolTipCtrl)

public:
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);
    /// For a control of \p pWnd's dialog; with \p lpRectTool an area of the window under \p nIDTool.
    BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool = nullptr, UINT_PTR nIDTool = 0);
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    int GetToolCount() const { return static_cast<int>(SendMessage(TTM_GETTOOLCOUNT)); }
    void Activate(BOOL bActivate) { SendMessage(TTM_ACTIVATE, static_cast<WPARAM>(bActivate)); }
    /// From PreTranslateMessage of the dialog, so that the tips see the mouse.
    void RelayEvent(LPMSG lpMsg) { SendMessage(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(lpMsg)); }
    int SetMaxTipWidth(int iWidth) { return static_cast<int>(SendMessage(TTM_SETMAXTIPWIDTH, 0, iWidth)); }
};

#pragma once

#include "tests/standin/afx/windows/TestApp.h"

#include <bcgp.h>

/// What a window answers for the colours of a control or of itself.
struct Colours
{
    HBRUSH hBrush = nullptr;
    COLORREF background = CLR_INVALID; ///< the brush's
    COLORREF text = CLR_INVALID;

    static Colours Of(CWnd& wnd, UINT message, HWND hControl)
    {
        CClientDC dc(&wnd);
        dc.SetTextColor(RGB(1, 2, 3)); // stays unless somebody sets another
        Colours colours;
        colours.hBrush = reinterpret_cast<HBRUSH>(
            wnd.SendMessage(message, reinterpret_cast<WPARAM>(dc.m_hDC), reinterpret_cast<LPARAM>(hControl)));
        LOGBRUSH brush{};
        if (::GetObjectW(colours.hBrush, sizeof(brush), &brush))
            colours.background = brush.lbColor;
        colours.text = ::GetTextColor(dc.m_hDC);
        return colours;
    }
};

/// What a window erases its background with: the pixel at 1,1.
inline COLORREF ErasedPixel(CWnd& wnd)
{
    CClientDC screen(&wnd);
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, 8, 8);
    CBitmap* pFormer = memory.SelectObject(&bitmap);
    wnd.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(memory.m_hDC));
    const COLORREF pixel = memory.GetPixel(1, 1);
    memory.SelectObject(pFormer);
    return pixel;
}

/// A theme of a test's own.
class CNightManager : public CBCGPVisualManager
{
    DECLARE_DYNCREATE(CNightManager)

public:
    static constexpr COLORREF BACKGROUND = RGB(20, 30, 40);
    static constexpr COLORREF TEXT = RGB(200, 210, 220);
    CBrush m_brush{BACKGROUND};

    CBrush& GetDlgBackBrush(CWnd*) override { return m_brush; }
    COLORREF GetDlgTextColor(CWnd*) override { return TEXT; }
};

/// Ends with the plain theme and no manager.
class ThemeTest : public WindowTest
{
protected:
    void TearDown() override
    {
        CBCGPVisualManager::SetDefaultManager(nullptr);
        CBCGPVisualManager::DestroyInstance();
        WindowTest::TearDown();
    }
    static COLORREF PlainBackground()
    {
        LOGBRUSH brush{};
        CBCGPVisualManager::GetInstance()->GetDlgBackBrush(nullptr).GetLogBrush(&brush);
        return brush.lbColor;
    }
};

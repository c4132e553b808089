#include "tarvo/intl/ISkinFunc.h"

#include <afxwin.h>

#include <utility>

namespace
{
ISkinFunc* g_registered = nullptr;
}

ISkinFunc::~ISkinFunc()
{
    if (g_registered == this)
        g_registered = nullptr;
}

ISkinFunc* ISkinFunc::Instance()
{
    static ISkinFunc plain;
    return g_registered ? g_registered : &plain;
}

ISkinFunc* ISkinFunc::Register(ISkinFunc* skin) { return std::exchange(g_registered, skin); }

int ISkinFunc::UsesVisualManager(CWnd*, SKIN_WINDOW) { return 0; }
void ISkinFunc::OnWindowReady(CWnd*, SKIN_WINDOW) {}
HBRUSH ISkinFunc::GetBackground(CWnd*, HDC, HWND, UINT) { return nullptr; }

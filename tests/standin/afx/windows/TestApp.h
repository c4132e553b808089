#pragma once

#include <afxwin.h>

#include "resource.h"

#include <chrono>
#include <gtest/gtest.h>
#include <string>
#include <vector>

/// The one application object of the test program. Message boxes are recorded instead of shown.
class CTestApp : public CWinApp
{
public:
    CTestApp() : CWinApp(L"afxwin_test") {}
    using CWinApp::SetRegistryKey;

    int DoMessageBox(LPCTSTR lpszPrompt, UINT, UINT) override
    {
        m_boxes.push_back(lpszPrompt);
        return IDOK;
    }
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override
    {
        if (m_pLog && nCode == CN_COMMAND && !pHandlerInfo)
            m_pLog->push_back("app OnCmdMsg");
        return CWinApp::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }

    std::vector<std::wstring> m_boxes;
    std::vector<std::string>* m_pLog = nullptr;
};

extern CTestApp theApp;

/// Runs the application's loop until the condition holds; false after ten seconds.
template <class Condition>
bool PumpUntil(Condition condition)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (!condition())
    {
        MSG msg;
        if (::PeekMessageW(&msg, nullptr, 0, 0, PM_NOREMOVE))
            AfxPumpMessage();
        else if (std::chrono::steady_clock::now() > end)
            return false;
        else
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
    return true;
}

/// Handles everything that is queued now.
inline void PumpAll()
{
    MSG msg;
    while (::PeekMessageW(&msg, nullptr, 0, 0, PM_NOREMOVE))
        AfxPumpMessage();
}

/// Every test begins without recorded boxes and temporary objects, and ends with an empty queue.
class WindowTest : public testing::Test
{
protected:
    void SetUp() override { theApp.m_boxes.clear(); }
    void TearDown() override
    {
        PumpAll();
        theApp.OnIdle(1);
    }
};

/// A visible top-level window of the test's own class for parents and owners.
class CHostWnd : public CWnd
{
public:
    CHostWnd()
    {
        CreateEx(0, nullptr, L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(50, 50, 650, 550), nullptr, 0);
    }
    ~CHostWnd() override { DestroyWindow(); }
};

inline WPARAM Clicked(int nID) { return MAKEWPARAM(nID, BN_CLICKED); }

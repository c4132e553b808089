#pragma once

#include "TestApp.h"

#include <afxcmn.h>
#include <afxdlgs.h>

#include <deque>
#include <functional>

using Log = std::vector<std::string>;

/// A page that writes down what it is asked, and answers what the test says.
class CLogPage : public CPropertyPage
{
public:
    CLogPage(UINT nIDTemplate, std::string name, Log& log, UINT nIDCaption = 0)
        : CPropertyPage(nIDTemplate, nIDCaption), m_name(std::move(name)), m_log(log)
    {
    }

    BOOL m_bMayLeave = TRUE;
    BOOL m_bMayCome = TRUE;
    BOOL m_bMayCancel = TRUE;
    BOOL m_bApplies = TRUE;
    BOOL m_bFinishes = TRUE;
    LRESULT m_lNext = 0;
    LRESULT m_lBack = 0;
    int m_nNumber = 7;
    std::function<void()> m_onInit;
    std::function<void()> m_onSetActive;
    std::function<void()> m_onButton;

    BOOL OnInitDialog() override
    {
        Note("init");
        const BOOL bFocus = CPropertyPage::OnInitDialog();
        if (m_onInit)
            m_onInit();
        return bFocus;
    }
    BOOL OnSetActive() override
    {
        Note("set active");
        if (m_onSetActive)
            m_onSetActive();
        return CPropertyPage::OnSetActive() && m_bMayCome;
    }
    BOOL OnKillActive() override
    {
        Note("kill active");
        return m_bMayLeave && CPropertyPage::OnKillActive();
    }
    BOOL OnApply() override
    {
        Note("apply");
        return m_bApplies && CPropertyPage::OnApply();
    }
    void OnOK() override { Note("ok"); }
    void OnReset() override
    {
        Note("reset");
        CPropertyPage::OnReset();
    }
    void OnCancel() override { Note("cancel"); }
    BOOL OnQueryCancel() override
    {
        Note("query cancel");
        return m_bMayCancel;
    }
    LRESULT OnWizardNext() override
    {
        Note("next");
        return m_lNext;
    }
    LRESULT OnWizardBack() override
    {
        Note("back");
        return m_lBack;
    }
    BOOL OnWizardFinish() override
    {
        Note("finish");
        return m_bFinishes;
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CPropertyPage::DoDataExchange(pDX);
        if (::GetDlgItem(m_hWnd, IDC_INT))
            DDX_Text(pDX, IDC_INT, m_nNumber);
    }
    void PostNcDestroy() override { Note("gone"); }
    afx_msg void OnButton()
    {
        Note("button");
        if (m_onButton)
            m_onButton();
    }
    afx_msg void OnSend() { Note("send"); }
    afx_msg LRESULT OnSiblings(WPARAM wParam, LPARAM lParam)
    {
        Note(("asked " + std::to_string(wParam) + " " + std::to_string(lParam)).c_str());
        return wParam == static_cast<WPARAM>(m_nNumber) ? 99 : 0;
    }
    afx_msg void OnHelp() { Note("help"); }
    DECLARE_MESSAGE_MAP()

private:
    void Note(const char* pszWhat) { m_log.push_back(m_name + " " + pszWhat); }
    std::string m_name;
    Log& m_log;
};

/// A sheet that takes one step of the test whenever its loop is idle.
class CStepSheet : public CPropertySheet
{
public:
    explicit CStepSheet(Log& log, CWnd* pParent = nullptr) : CPropertySheet(IDS_SHEET, pParent), m_log(log) {}
    std::deque<std::function<void()>> m_steps;
    Log& m_log;

    BOOL OnInitDialog() override
    {
        const BOOL bFocus = CPropertySheet::OnInitDialog();
        m_log.push_back("sheet init");
        return bFocus;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_KICKIDLE && !m_steps.empty())
        {
            const auto step = m_steps.front();
            m_steps.pop_front();
            step();
            PostMessage(WM_NULL); // and another idle time
            return FALSE;
        }
        return CPropertySheet::WindowProc(message, wParam, lParam);
    }
    void PostNcDestroy() override { m_log.push_back("sheet gone"); }
};

#pragma once
#include "demo/host/MessageLog.h"
#include "demo/host/resource.h"
#include "tarvo/intl/InternationalDlg.h"
#include "tarvo/msg/MsgOut.h"

/// The message window at the bottom of the main window: a page with the history of the session and one for
/// the analysis that runs. Errors are red, warnings amber. Lines stay in the language in which they were
/// written, the captions of the pages follow the language.
class CMessagePane : public CInternationalDlg
{
public:
    enum PAGE
    {
        History,
        Analysis
    };

    BOOL Open(CWnd* parent) { return Create(IDD_MESSAGE_PANE, parent); }
    /// The page that is written to from now on; it comes to the front.
    void Activate(PAGE page);
    void Write(MessageKind kind, const wchar_t* text, bool samePosition);
    /// Empties the page that is written to.
    void Clear();
    const CMessageLog& GetLog(PAGE page) const { return m_log[page]; }
    /// Lays the pages out in the pane's size and font.
    void Arrange();

    void SetText() override;

protected:
    BOOL OnInitDialog() override;
    void OnOK() override {}
    void OnCancel() override {}
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnDrawItem(int id, DRAWITEMSTRUCT* item);
    afx_msg void OnPageChosen(NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()

private:
    HWND List(PAGE page) const
    {
        return ::GetDlgItem(m_hWnd, page == History ? IDC_PN_HISTORY : IDC_PN_ANALYSIS);
    }
    CTabCtrl& Tabs() const;
    void ShowPage(int page);

    CMessageLog m_log[2];
    PAGE m_page = History;
};

/// The library's sink over the pane. The program has one document, which every call means.
class CPanePrinter : public msg_printer
{
public:
    explicit CPanePrinter(CMessagePane& pane) : m_pane(pane) {}

    void ActiveMessageWnd(CDocument*) override { m_pane.ShowWindow(SW_SHOW); }
    void ActiveSessionWnd(CDocument*) override { m_pane.GetTopLevelParent()->SetForegroundWindow(); }
    void MsgClear(CDocument*) override { m_pane.Clear(); }
    void MsgOut(CDocument*, const wchar_t* text) override { m_pane.Write(MessageKind::plain, text, false); }
    void MsgOutSampPos(CDocument*, const wchar_t* text) override
    {
        m_pane.Write(MessageKind::plain, text, true);
    }
    void MsgOutError(CDocument*, const wchar_t* text) override
    {
        m_pane.Write(MessageKind::error, text, false);
    }
    void MsgOutSampPosError(CDocument*, const wchar_t* text) override
    {
        m_pane.Write(MessageKind::error, text, true);
    }
    void MsgOutWarning(CDocument*, const wchar_t* text) override
    {
        m_pane.Write(MessageKind::warning, text, false);
    }
    void MsgOutSampPosWarning(CDocument*, const wchar_t* text) override
    {
        m_pane.Write(MessageKind::warning, text, true);
    }
    void ActivateHistory() override { m_pane.Activate(CMessagePane::History); }
    void ActivateAnalysis() override { m_pane.Activate(CMessagePane::Analysis); }

private:
    CMessagePane& m_pane;
};

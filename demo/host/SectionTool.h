#pragma once
#include "demo/host/FrameModel.h"
#include "demo/host/resource.h"
#include "tarvo/intl/InternationalDlg.h"

/// A tool window that stays open beside the main window: the values of an I-section.
class CSectionTool : public CInternationalDlg
{
public:
    /// Opens it, or brings it to the front.
    BOOL Open(CWnd* parent);

    int TranslateStringToINI() override { return TranslateByTable(GetDlgResID()); }

protected:
    BOOL OnInitDialog() override;
    void OnCancel() override { DestroyWindow(); }
    void OnOK() override { OnCalculate(); }
    afx_msg void OnCalculate();
    DECLARE_MESSAGE_MAP()
};

/// The limits of the design, modal.
class CLimitsDlg : public CInternationalDlg
{
public:
    CLimitsDlg(FrameModel& model, CWnd* parent) : CInternationalDlg(IDD_LIMITS, parent), m_model(model) {}

    void SetText() override;
    int TranslateStringToINI() override { return TranslateByTable(GetDlgResID()); }

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;

private:
    FrameModel& m_model;
};

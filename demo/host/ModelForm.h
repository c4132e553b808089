#pragma once
#include "demo/host/FrameModel.h"
#include "demo/host/resource.h"
#include "tarvo/intl/InternationalFormView.h"

/// The form beside the model: what is calculated, and the buttons that do it. They send the commands of the
/// menu to the frame.
class CModelForm : public CInternationalFormView
{
public:
    /// \p model belongs to the frame; the form shows it and takes entries over with TakeModel.
    explicit CModelForm(FrameModel& model) : CInternationalFormView(IDD_MODEL_FORM), m_model(model) {}

    void OnInitialUpdate() override;
    void SetText() override;
    void ShowModel();
    void TakeModel();
    FrameAnalysis GetAnalysis() const;

protected:
    afx_msg void OnCheckModel();
    afx_msg void OnRunAnalysis();
    DECLARE_MESSAGE_MAP()

private:
    FrameModel& m_model;
};

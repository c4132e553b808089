#pragma once
#include "demo/host/AnalysisSettings.h"
#include "demo/host/DataPage.h"
#include "demo/host/SheetShown.h"

/// The property sheet of the analysis: solver, dynamics, output. Its settings are taken over with OK and
/// Apply.
class CAnalysisControl : public CShownSheet
{
public:
    CAnalysisControl(AnalysisSettings& settings, CWnd* parent);

private:
    void Take(CDataPage& page);

    AnalysisSettings& m_settings;
    CDataPage m_solver;
    CDataPage m_dynamics;
    CDataPage m_output;
};

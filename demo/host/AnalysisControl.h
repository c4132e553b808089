#pragma once
#include "demo/host/DataPage.h"
#include "demo/host/SheetShown.h"

/// The property sheet of the analysis: solver, dynamics, output.
class CAnalysisControl : public CShownSheet
{
public:
    explicit CAnalysisControl(CWnd* parent);

private:
    CDataPage m_solver;
    CDataPage m_dynamics;
    CDataPage m_output;
};

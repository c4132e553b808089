#include "demo/host/AnalysisControl.h"

#include "demo/host/resource.h"

namespace
{
PageData solver()
{
    return {IDD_AC_SOLVER,
            {{IDC_SO_TOLERANCE, L"1e-6"}, {IDC_SO_ITERATIONS, L"500"}},
            {IDC_SO_DIRECT, IDC_SO_STOP},
            {}};
}

PageData dynamics()
{
    return {IDD_AC_DYNAMICS,
            {{IDC_DY_MODES, L"12"}, {IDC_DY_DAMPING, L"5"}},
            {IDC_DY_CQC},
            {{IDC_DY_MASS, true, {L"DYNAMICS_MASS_SELF", L"DYNAMICS_MASS_DEAD", L"DYNAMICS_MASS_QUASI"}}}};
}

PageData output()
{
    return {IDD_AC_OUTPUT,
            {},
            {IDC_OU_DISPLACEMENTS, IDC_OU_REACTIONS, IDC_OU_UTILISATION},
            {{IDC_OU_PAPER, false, {L"A4", L"A3", L"Letter"}}}};
}
} // namespace

CAnalysisControl::CAnalysisControl(CWnd* parent)
    : CShownSheet(IDS_IDD_AC_SOLVER_SHEET, parent), m_solver(solver()), m_dynamics(dynamics()),
      m_output(output())
{
    AddPage(&m_solver);
    AddPage(&m_dynamics);
    AddPage(&m_output);
}

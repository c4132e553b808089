#include "demo/host/AnalysisControl.h"

#include "demo/host/Catalogue.h"
#include "demo/host/resource.h"

namespace
{
CString text_of(int value)
{
    CString text;
    text.Format(L"%d", value);
    return text;
}

CString text_of(double value)
{
    CString text;
    text.Format(L"%g", value);
    return text;
}

std::vector<int> chosen(std::initializer_list<std::pair<int, bool>> choices)
{
    std::vector<int> ids;
    for (const auto& [id, is_chosen] : choices)
        if (is_chosen)
            ids.push_back(id);
    return ids;
}

PageData solver(const AnalysisSettings& settings)
{
    return {
        IDD_AC_SOLVER,
        {{IDC_SO_TOLERANCE, text_of(settings.tolerance)}, {IDC_SO_ITERATIONS, text_of(settings.iterations)}},
        chosen({{IDC_SO_DIRECT, !settings.iterative},
                {IDC_SO_ITERATIVE, settings.iterative},
                {IDC_SO_STOP, settings.stopsAtUnstable}}),
        {}};
}

PageData dynamics(const AnalysisSettings& settings)
{
    return {IDD_AC_DYNAMICS,
            {{IDC_DY_MODES, text_of(settings.modes)}, {IDC_DY_DAMPING, text_of(settings.damping)}},
            chosen({{IDC_DY_ROTATION, settings.rotationalMass}, {IDC_DY_CQC, settings.completeCombination}}),
            {{IDC_DY_MASS,
              true,
              {L"DYNAMICS_MASS_SELF", L"DYNAMICS_MASS_DEAD", L"DYNAMICS_MASS_QUASI"},
              static_cast<int>(settings.mass)}}};
}

PageData output(const AnalysisSettings& settings)
{
    return {IDD_AC_OUTPUT,
            {},
            chosen({{IDC_OU_DISPLACEMENTS, settings.listsDisplacements},
                    {IDC_OU_FORCES, settings.listsForces},
                    {IDC_OU_REACTIONS, settings.listsReactions},
                    {IDC_OU_UTILISATION, settings.listsUtilisation}}),
            {}};
}
} // namespace

CAnalysisControl::CAnalysisControl(AnalysisSettings& settings, CWnd* parent)
    : CShownSheet(IDS_IDD_AC_SOLVER_SHEET, parent), m_settings(settings), m_solver(solver(settings)),
      m_dynamics(dynamics(settings)), m_output(output(settings))
{
    for (CDataPage* const page : {&m_solver, &m_dynamics, &m_output})
    {
        page->SetApply([this](CDataPage& applied) { Take(applied); });
        AddPage(page);
    }
}

void CAnalysisControl::Take(CDataPage& page)
{
    const auto checked = [&](int id) { return page.IsDlgButtonChecked(id) == BST_CHECKED; };
    if (&page == &m_solver)
    {
        m_settings.iterative = checked(IDC_SO_ITERATIVE);
        m_settings.tolerance = entered_number(page, IDC_SO_TOLERANCE);
        m_settings.iterations = static_cast<int>(page.GetDlgItemInt(IDC_SO_ITERATIONS));
        m_settings.stopsAtUnstable = checked(IDC_SO_STOP);
    }
    else if (&page == &m_dynamics)
    {
        m_settings.modes = static_cast<int>(page.GetDlgItemInt(IDC_DY_MODES));
        m_settings.damping = entered_number(page, IDC_DY_DAMPING);
        m_settings.mass = static_cast<MassSource>(page.SendDlgItemMessage(IDC_DY_MASS, CB_GETCURSEL));
        m_settings.rotationalMass = checked(IDC_DY_ROTATION);
        m_settings.completeCombination = checked(IDC_DY_CQC);
    }
    else
    {
        m_settings.listsDisplacements = checked(IDC_OU_DISPLACEMENTS);
        m_settings.listsForces = checked(IDC_OU_FORCES);
        m_settings.listsReactions = checked(IDC_OU_REACTIONS);
        m_settings.listsUtilisation = checked(IDC_OU_UTILISATION);
    }
}

#include "demo/host/StructureWizard.h"

#include "demo/host/Catalogue.h"
#include "demo/host/resource.h"

#include <algorithm>

namespace
{
constexpr int kMostBays = 12;
constexpr int kMostStoreys = 12;

PageData geometry()
{
    return {IDD_WZ_GEOMETRY,
            {{IDC_WG_BAYS, L"2"}, {IDC_WG_STOREYS, L"3"}, {IDC_WG_WIDTH, L"6.00"}, {IDC_WG_HEIGHT, L"3.50"}},
            {},
            {}};
}

PageData sections()
{
    return {IDD_WZ_SECTIONS,
            {},
            {IDC_WS_RIGID},
            {{IDC_WS_MATERIAL, true, {L"MATERIAL_STEEL", L"MATERIAL_CONCRETE", L"MATERIAL_TIMBER"}},
             {IDC_WS_COLUMN, false, {L"HEB 200", L"30/30 cm", L"20/40 cm"}},
             {IDC_WS_BEAM, false, {L"IPE 330", L"30/50 cm", L"20/60 cm"}}}};
}

PageData loads()
{
    return {IDD_WZ_LOADS,
            {{IDC_WL_DEAD, L"4.00"}, {IDC_WL_LIVE, L"3.00"}, {IDC_WL_WIND, L"0.80"}},
            {IDC_WL_COMBINE},
            {}};
}

PageData summary() { return {IDD_WZ_SUMMARY, {}, {IDC_WY_RUN}, {}}; }

int entered_count(const CWnd& page, int edit, int most)
{
    return std::clamp(static_cast<int>(page.GetDlgItemInt(edit)), 1, most);
}
} // namespace

BOOL CWizardStep::OnSetActive()
{
    GetParentSheet()->SetWizardButtons(m_buttons);
    return CDataPage::OnSetActive();
}

CSectionsStep::CSectionsStep() : CWizardStep(sections(), PSWIZB_BACK | PSWIZB_NEXT) {}

BOOL CSectionsStep::OnCommand(WPARAM wParam, LPARAM lParam)
{
    if (HIWORD(wParam) == CBN_SELCHANGE)
    {
        const auto chosen =
            static_cast<WPARAM>(SendDlgItemMessage(static_cast<int>(LOWORD(wParam)), CB_GETCURSEL));
        for (const int combo : {IDC_WS_MATERIAL, IDC_WS_COLUMN, IDC_WS_BEAM})
            SendDlgItemMessage(combo, CB_SETCURSEL, chosen);
    }
    return CWizardStep::OnCommand(wParam, lParam);
}

CSummaryStep::CSummaryStep(const CStructureWizard& wizard)
    : CWizardStep(summary(), PSWIZB_BACK | PSWIZB_FINISH), m_wizard(wizard)
{
}

BOOL CSummaryStep::OnSetActive()
{
    SetText();
    return CWizardStep::OnSetActive();
}

void CSummaryStep::SetText()
{
    const FrameModel model = m_wizard.GetModel();
    CString text;
    text.Format(catalogue_text(L"WIZARD_SUMMARY"), model.bays, model.storeys, model.Nodes(), model.Members());
    SetDlgItemText(IDC_WY_TEXT, text);
}

CStructureWizard::CStructureWizard(CWnd* parent)
    : CShownSheet(L"", parent), m_geometry(geometry(), PSWIZB_NEXT),
      m_loads(loads(), PSWIZB_BACK | PSWIZB_NEXT), m_summary(*this)
{
    SetWizardMode();
    for (CWizardStep* const step :
         std::initializer_list<CWizardStep*>{&m_geometry, &m_sections, &m_loads, &m_summary})
        AddPage(step);
}

FrameModel CStructureWizard::GetModel() const
{
    FrameModel model = m_model;
    if (m_geometry.m_hWnd)
    {
        model.bays = entered_count(m_geometry, IDC_WG_BAYS, kMostBays);
        model.storeys = entered_count(m_geometry, IDC_WG_STOREYS, kMostStoreys);
        model.span = entered_number(m_geometry, IDC_WG_WIDTH);
        model.height = entered_number(m_geometry, IDC_WG_HEIGHT);
    }
    if (m_sections.m_hWnd)
    {
        model.material = static_cast<FrameMaterial>(
            ::SendDlgItemMessageW(m_sections.m_hWnd, IDC_WS_MATERIAL, CB_GETCURSEL, 0, 0));
        model.rigid = m_sections.IsDlgButtonChecked(IDC_WS_RIGID) == BST_CHECKED;
    }
    if (m_loads.m_hWnd)
    {
        model.dead = entered_number(m_loads, IDC_WL_DEAD);
        model.live = entered_number(m_loads, IDC_WL_LIVE);
        model.wind = entered_number(m_loads, IDC_WL_WIND);
        model.combines = m_loads.IsDlgButtonChecked(IDC_WL_COMBINE) == BST_CHECKED;
    }
    return model;
}

FrameModel CStructureWizard::GetModel(const FrameModel& limits) const
{
    FrameModel model = GetModel();
    model.utilisationLimit = limits.utilisationLimit;
    model.deflectionRatio = limits.deflectionRatio;
    model.crackLimit = limits.crackLimit;
    model.warnsNearLimit = limits.warnsNearLimit;
    model.listsEachOnce = limits.listsEachOnce;
    return model;
}

LRESULT CStructureWizard::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    // The pages' windows, and with them the entries, go before the sheet's own.
    if (message == WM_DESTROY || message == WM_COMMAND)
    {
        m_model = GetModel();
        m_bRun = m_summary.m_hWnd ? m_summary.IsDlgButtonChecked(IDC_WY_RUN) == BST_CHECKED : m_bRun;
    }
    return CShownSheet::WindowProc(message, wParam, lParam);
}

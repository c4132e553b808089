#pragma once
#include "demo/host/DataPage.h"
#include "demo/host/FrameModel.h"
#include "demo/host/SheetShown.h"

/// One of the wizard's four steps.
class CWizardStep : public CDataPage
{
public:
    CWizardStep(const PageData& data, DWORD buttons) : CDataPage(data), m_buttons(buttons) {}

protected:
    BOOL OnSetActive() override;

private:
    DWORD m_buttons;
};

/// The second step: the sections are those of the material.
class CSectionsStep : public CWizardStep
{
public:
    CSectionsStep();

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
};

class CStructureWizard;

/// The last step tells what the entries of the others make.
class CSummaryStep : public CWizardStep
{
public:
    explicit CSummaryStep(const CStructureWizard& wizard);
    void SetText() override;

protected:
    BOOL OnSetActive() override;

private:
    const CStructureWizard& m_wizard;
};

/// Asks for a new structure in four steps: geometry, sections, loads, summary.
class CStructureWizard : public CShownSheet
{
public:
    explicit CStructureWizard(CWnd* parent);

    /// What has been entered; a step that was not shown leaves what a new structure has.
    FrameModel GetModel() const;
    /// The same with the limits of another model, which the wizard does not ask for.
    FrameModel GetModel(const FrameModel& limits) const;
    bool RunsAnalysis() const { return m_bRun; }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    CWizardStep m_geometry;
    CSectionsStep m_sections;
    CWizardStep m_loads;
    CSummaryStep m_summary;
    FrameModel m_model;
    bool m_bRun = false;
};

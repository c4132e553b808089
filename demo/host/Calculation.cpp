#include "demo/host/Calculation.h"

#include "demo/host/Catalogue.h"
#include "demo/host/FrameSway.h"
#include "tarvo/msg/MsgOut.h"

namespace
{
constexpr double kNearLimit = 0.9;
constexpr double kSoilLimit = 250; // kN/m²
constexpr int kSecondOrderLimit = 10;
constexpr double kFloorFrequency = 4.0; // Hz
constexpr int kEnoughMass = 90;         // % that has to move with the modes

/// The catalogue's text as a format. Formats are checked against each other in all languages.
class CText
{
public:
    explicit CText(const wchar_t* key) : m_strText(catalogue_text(key)) {}
    operator const wchar_t*() const { return m_strText; }

private:
    CString m_strText;
};

const wchar_t* key_of(FrameMaterial material)
{
    static constexpr const wchar_t* kKeys[] = {L"MATERIAL_STEEL", L"MATERIAL_CONCRETE", L"MATERIAL_TIMBER"};
    return kKeys[static_cast<int>(material)];
}

const wchar_t* key_of(FrameAnalysis analysis)
{
    static constexpr const wchar_t* kKeys[] = {L"IDS_IDD_MODEL_FORM_IDC_MF_LINEAR",
                                               L"IDS_IDD_MODEL_FORM_IDC_MF_SECOND",
                                               L"IDS_IDD_MODEL_FORM_IDC_MF_BUCKLING"};
    return kKeys[static_cast<int>(analysis)];
}

/// A control's text without the mark of its access key.
CString without_access_key(CString text)
{
    const int at = text.Find(L"(&");
    if (at >= 0)
        return text.Left(at) + text.Mid(at + 4);
    text.Replace(L"&", L"");
    return text;
}

/// False when no solution was found.
bool solve(const FrameModel& model, const AnalysisSettings& settings)
{
    nsMsgOutFormat(CText(L"ANALYSIS_EQUATIONS"), model.Equations(), model.HalfBandwidth());
    nsMsgOutFormat(CText(L"ANALYSIS_PROGRESS"), 0);
    for (int done = 20; done <= 100; done += 20)
        nsMsgOutSamePosFormat(CText(L"ANALYSIS_PROGRESS"), done);
    const SwayResult sway = solve_sway(model, settings);
    if (!sway.found)
        nsMsgOutFormatError(CText(L"ANALYSIS_RESIDUAL"), sway.residual);
    else if (settings.iterative)
        nsMsgOutFormat(CText(L"ANALYSIS_RESIDUAL"), sway.residual);
    return sway.found;
}

/// What one beam exceeds: each limit, or the first one only.
class CExceeded
{
public:
    explicit CExceeded(bool once) : m_bOnce(once) {}
    bool Counts(bool exceeded)
    {
        const bool counts = exceeded && !(m_bOnce && m_bAny);
        m_bAny = m_bAny || exceeded;
        return counts;
    }
    bool IsAny() const { return m_bAny; }

private:
    bool m_bOnce;
    bool m_bAny = false;
};

/// False when a limit is exceeded.
bool check_beam(const FrameModel& model, int beam, const StoreyResult& storey)
{
    CExceeded exceeded(model.listsEachOnce);
    const double limit = model.utilisationLimit;
    const bool concrete = model.material == FrameMaterial::concrete;
    const double deflection = 1000 * model.span / model.deflectionRatio;
    const bool tooHigh = exceeded.Counts(storey.utilisation > limit);
    if (tooHigh && concrete)
        nsMsgOutFormatError(CText(L"CONCRETE_COMPRESSION"), beam);
    else if (tooHigh)
        nsMsgOutFormatError(CText(L"STEEL_EXCEEDED"), beam, storey.utilisation, limit);
    if (exceeded.Counts(storey.deflection > deflection))
        nsMsgOutFormatError(CText(L"ANALYSIS_DEFLECTION"), beam, storey.deflection, deflection);
    if (exceeded.Counts(concrete && storey.crack > model.crackLimit))
        nsMsgOutFormatError(CText(L"CONCRETE_CRACK"), beam, storey.crack, model.crackLimit);
    return !exceeded.IsAny();
}

void design_beam(const FrameModel& model, int beam, const StoreyResult& storey,
                 const AnalysisSettings& settings)
{
    if (settings.listsForces)
        nsMsgOutFormat(CText(L"ANALYSIS_MOMENT"), beam, storey.moment);
    if (settings.listsUtilisation && model.material == FrameMaterial::concrete)
        nsMsgOutFormat(CText(L"CONCRETE_LONGITUDINAL"), beam, storey.reinforcement);
    if (settings.listsUtilisation && model.material == FrameMaterial::timber)
        nsMsgOutFormat(CText(L"TIMBER_BENDING"), beam, storey.utilisation);
    if (!check_beam(model, beam, storey) || model.material == FrameMaterial::concrete)
        return;
    if (model.warnsNearLimit && storey.utilisation > kNearLimit * model.utilisationLimit)
        nsMsgOutFormatWarning(CText(L"STEEL_HIGH"), beam, storey.utilisation);
    else if (settings.listsUtilisation && model.material == FrameMaterial::steel)
        nsMsgOutFormat(CText(L"STEEL_UTILISATION"), beam, storey.utilisation);
}

void design(const FrameModel& model, FrameAnalysis analysis, const AnalysisSettings& settings)
{
    static constexpr const wchar_t* kStarts[] = {L"STEEL_START", L"CONCRETE_START", L"TIMBER_START"};
    nsMsgOutFormat(CText(kStarts[static_cast<int>(model.material)]), model.storeys);
    int fulfilled = 0;
    for (int storey = 0; storey < model.storeys; ++storey)
    {
        const StoreyResult result = calculate_storey(model, analysis, storey);
        design_beam(model, model.FirstBeam(storey), result, settings);
        fulfilled += result.utilisation <= model.utilisationLimit;
    }
    nsMsgOutFormat(CText(L"STEEL_DONE"), fulfilled, model.storeys);
}

/// False when the analysis ends here.
bool report_pivot(const FrameModel& model, const FrameResult& result, const AnalysisSettings& settings)
{
    if (result.criticalFactor >= 1)
        return true;
    nsMsgOutFormatWarning(CText(L"ANALYSIS_PIVOT"), model.bays + 2);
    if (settings.stopsAtUnstable)
        nsMsgOutFormatError(CText(L"ANALYSIS_FAILED"), 1);
    return !settings.stopsAtUnstable;
}

void report_modes(const FrameModel& model, const AnalysisSettings& settings)
{
    nsMsgOutFormat(CText(L"DYNAMICS_START"), settings.modes);
    const std::vector<SwayMode> modes = find_modes(model, settings);
    double mass = 0;
    for (std::size_t i = 0; i < modes.size(); ++i)
    {
        const double frequency = modes[i].frequency;
        nsMsgOutFormat(CText(L"DYNAMICS_MODE"), static_cast<int>(i) + 1, frequency, 1 / frequency);
        mass += modes[i].mass;
    }
    if (mass < kEnoughMass)
        nsMsgOutFormatWarning(CText(L"DYNAMICS_LOW_MASS"), kEnoughMass);
    nsMsgOutFormat(CText(L"SEISMIC_BASE_SHEAR"), base_shear(model, settings));
}

void report_stability(const FrameResult& result, FrameAnalysis analysis)
{
    nsMsgOutFormat(CText(L"BUCKLING_FACTOR"), result.criticalFactor);
    if (result.criticalFactor < 1)
        nsMsgOutError(CText(L"BUCKLING_BELOW_ONE"));
    else if (analysis == FrameAnalysis::linear && result.criticalFactor < kSecondOrderLimit)
        nsMsgOutFormatWarning(CText(L"BUCKLING_SECOND_ORDER"), kSecondOrderLimit);
}

void design_footing(const FrameResult& result, const AnalysisSettings& settings)
{
    constexpr int inner = 2;
    if (result.soilPressure > kSoilLimit)
        nsMsgOutFormatError(CText(L"FOUNDATION_PRESSURE_HIGH"), inner, result.soilPressure, kSoilLimit);
    else if (settings.listsReactions)
        nsMsgOutFormat(CText(L"FOUNDATION_PRESSURE"), inner, result.soilPressure);
}
} // namespace

bool check_model(const FrameModel& model)
{
    nsMsgOutActivateHistory();
    nsMsgOutFormat(CText(L"MODEL_CHECK_START"), static_cast<const wchar_t*>(CText(L"REPORT_PROJECT")));
    nsMsgOutFormat(CText(L"MODEL_SIZE"), model.Nodes(), model.Members(), model.Supports());
    const ModelCheck check = check_frame(model);
    if (check.emptyWindCase)
        nsMsgOutFormatWarning(CText(L"LOADING_EMPTY"), 5);
    if (check.zeroLength)
        nsMsgOutFormatError(CText(L"MODEL_ZERO_LENGTH"), 1);
    nsMsgOutFormat(CText(L"MODEL_CHECK_DONE"), check.zeroLength ? 1 : 0, check.emptyWindCase ? 1 : 0);
    return !check.zeroLength;
}

void run_analysis(const FrameModel& model, FrameAnalysis analysis, const AnalysisSettings& settings)
{
    const bool possible = check_model(model);
    nsMsgOutActivateAnalysis();
    nsMsgClear(nullptr);
    nsMsgOutFormat(CText(L"ANALYSIS_START"),
                   static_cast<const wchar_t*>(without_access_key(catalogue_text(key_of(analysis)))));
    if (!possible)
    {
        nsMsgOutFormatError(CText(L"ANALYSIS_FAILED"), 1);
        return;
    }
    const FrameResult result = calculate_frame(model, analysis);
    nsMsgOutFormat(CText(L"LOADING_SUM"), result.vertical, result.horizontal);
    nsMsgOutFormat(CText(L"COMBINATION_DONE"), model.combines ? kCombinationCount : 0, kLoadCaseCount);
    nsMsgOutFormat(CText(L"MATERIAL_USED"), static_cast<const wchar_t*>(CText(key_of(model.material))),
                   result.mass);
    if (!report_pivot(model, result, settings))
        return;
    if (!solve(model, settings))
    {
        nsMsgOutFormatError(CText(L"ANALYSIS_FAILED"), 1);
        return;
    }
    if (settings.listsDisplacements)
        nsMsgOutFormat(CText(L"ANALYSIS_RESULT"), result.displacement, model.bays + 2);
    report_modes(model, settings);
    report_stability(result, analysis);
    design(model, analysis, settings);
    if (model.material == FrameMaterial::timber && result.frequency < kFloorFrequency)
        nsMsgOutFormatWarning(CText(L"TIMBER_VIBRATION"), 1, result.frequency, kFloorFrequency);
    design_footing(result, settings);
}

#include "demo/host/Calculation.h"

#include "demo/host/Catalogue.h"
#include "tarvo/msg/MsgOut.h"

namespace
{
constexpr double kNearLimit = 0.9;
constexpr double kSoilLimit = 250; // kN/m²
constexpr int kSecondOrderLimit = 10;
constexpr double kFloorFrequency = 4.0; // Hz

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

void solve(const FrameModel& model)
{
    nsMsgOutFormat(CText(L"ANALYSIS_EQUATIONS"), model.Equations(), model.HalfBandwidth());
    nsMsgOutFormat(CText(L"ANALYSIS_PROGRESS"), 0);
    for (int done = 20; done <= 100; done += 20)
        nsMsgOutSamePosFormat(CText(L"ANALYSIS_PROGRESS"), done);
}

void design_beam(const FrameModel& model, int beam, const StoreyResult& storey)
{
    if (model.material == FrameMaterial::concrete)
    {
        nsMsgOutFormat(CText(L"CONCRETE_LONGITUDINAL"), beam, storey.reinforcement);
        if (storey.utilisation > model.utilisationLimit)
            nsMsgOutFormatError(CText(L"CONCRETE_COMPRESSION"), beam);
        return;
    }
    if (model.material == FrameMaterial::timber)
        nsMsgOutFormat(CText(L"TIMBER_BENDING"), beam, storey.utilisation);
    if (storey.utilisation > model.utilisationLimit)
        nsMsgOutFormatError(CText(L"STEEL_EXCEEDED"), beam, storey.utilisation, model.utilisationLimit);
    else if (model.warnsNearLimit && storey.utilisation > kNearLimit * model.utilisationLimit)
        nsMsgOutFormatWarning(CText(L"STEEL_HIGH"), beam, storey.utilisation);
    else if (model.material == FrameMaterial::steel)
        nsMsgOutFormat(CText(L"STEEL_UTILISATION"), beam, storey.utilisation);
}

void design(const FrameModel& model, FrameAnalysis analysis)
{
    static constexpr const wchar_t* kStarts[] = {L"STEEL_START", L"CONCRETE_START", L"TIMBER_START"};
    nsMsgOutFormat(CText(kStarts[static_cast<int>(model.material)]), model.storeys);
    int fulfilled = 0;
    for (int storey = 0; storey < model.storeys; ++storey)
    {
        const StoreyResult result = calculate_storey(model, analysis, storey);
        design_beam(model, model.FirstBeam(storey), result);
        fulfilled += result.utilisation <= model.utilisationLimit;
    }
    nsMsgOutFormat(CText(L"STEEL_DONE"), fulfilled, model.storeys);
}

void report_stability(const FrameResult& result, FrameAnalysis analysis)
{
    nsMsgOutFormat(CText(L"BUCKLING_FACTOR"), result.criticalFactor);
    if (result.criticalFactor < 1)
        nsMsgOutError(CText(L"BUCKLING_BELOW_ONE"));
    else if (analysis == FrameAnalysis::linear && result.criticalFactor < kSecondOrderLimit)
        nsMsgOutFormatWarning(CText(L"BUCKLING_SECOND_ORDER"), kSecondOrderLimit);
}

void design_footing(const FrameResult& result)
{
    constexpr int inner = 2;
    if (result.soilPressure > kSoilLimit)
        nsMsgOutFormatError(CText(L"FOUNDATION_PRESSURE_HIGH"), inner, result.soilPressure, kSoilLimit);
    else
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

void run_analysis(const FrameModel& model, FrameAnalysis analysis)
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
    nsMsgOutFormat(CText(L"COMBINATION_DONE"), kCombinationCount, kLoadCaseCount);
    nsMsgOutFormat(CText(L"MATERIAL_USED"), static_cast<const wchar_t*>(CText(key_of(model.material))),
                   result.mass);
    solve(model);
    nsMsgOutFormat(CText(L"ANALYSIS_RESULT"), result.displacement, model.bays + 2);
    report_stability(result, analysis);
    design(model, analysis);
    if (model.material == FrameMaterial::timber && result.frequency < kFloorFrequency)
        nsMsgOutFormatWarning(CText(L"TIMBER_VIBRATION"), 1, result.frequency, kFloorFrequency);
    design_footing(result);
}

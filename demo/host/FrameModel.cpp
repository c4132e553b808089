#include "demo/host/FrameModel.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr double kRoofLive = 0.75;  // kN/m²
constexpr double kFooting = 2.2;    // side of a footing, m
constexpr double kContinuity = 0.4; // a beam over supports against one on two
constexpr double kPi = 3.14159265358979;

/// Beam and column of one material; kN and cm.
struct Member
{
    double modulus;  // of elasticity
    double strength; // design value
    double beamW;
    double beamI;
    double beamArea;
    double columnI;
    double columnArea;
    double density; // kg/cm³
};

const Member& member_of(FrameMaterial material)
{
    static constexpr Member kMembers[] = {
        {21000, 35.5, 713, 11770, 62.6, 2003, 78.1, 0.00785},    // IPE 330, HEB 200
        {3280, 1.7, 12500, 312500, 1500, 67500, 900, 0.0025},    // 30/50, 30/30
        {1260, 1.79, 12000, 360000, 1200, 42667, 800, 0.00043}}; // 20/60, 20/40
    return kMembers[static_cast<int>(material)];
}

/// Load of a beam in kN/m, with or without partial factors.
double line_load(const FrameModel& model, int storey, bool design)
{
    const Member& member = member_of(model.material);
    const bool roof = storey + 1 == model.storeys;
    const double live = roof ? std::min(model.live, kRoofLive) : model.live;
    const double own = model.selfWeight ? member.beamArea * 100 * member.density * 0.00981 : 0;
    return (design ? 1.35 : 1.0) * (model.dead * kFrameSpacing + own) +
           (design ? 1.5 : 1.0) * live * kFrameSpacing;
}

double column_force(const FrameModel& model, bool design)
{
    double force = 0;
    for (int storey = 0; storey < model.storeys; ++storey)
        force += line_load(model, storey, design) * model.span;
    return force;
}

double critical_factor(const FrameModel& model)
{
    const Member& member = member_of(model.material);
    const double length = 100 * model.height;
    const double critical = kPi * kPi * member.modulus * member.columnI / (length * length);
    return critical / column_force(model, true);
}

/// How much larger moments are on the deformed structure.
double amplification(const FrameModel& model, FrameAnalysis analysis)
{
    const double factor = critical_factor(model);
    return analysis == FrameAnalysis::secondOrder && factor > 1 ? 1 / (1 - 1 / factor) : 1;
}

/// Of a beam of this storey, mm.
double deflection(const FrameModel& model, FrameAnalysis analysis, int storey)
{
    const Member& member = member_of(model.material);
    return 10 * (model.rigid ? kContinuity : 1) * 5 / 384 * line_load(model, storey, false) / 100 *
           std::pow(100 * model.span, 4) / (member.modulus * member.beamI) * amplification(model, analysis);
}
} // namespace

ModelCheck check_frame(const FrameModel& model)
{
    return {!(model.span > 0) || !(model.height > 0), !(model.wind > 0)};
}

double column_stiffness(const FrameModel& model)
{
    const Member& member = member_of(model.material);
    return 0.1 * member.modulus * member.columnI; // from kNcm²
}

FrameResult calculate_frame(const FrameModel& model, FrameAnalysis analysis)
{
    const Member& member = member_of(model.material);
    FrameResult result{};
    for (int storey = 0; storey < model.storeys; ++storey)
        result.vertical += line_load(model, storey, true) * model.span * model.bays;
    result.horizontal = 1.5 * model.wind * kFrameSpacing * model.height * model.storeys;
    const double beams = 100 * model.span * model.bays * model.storeys;
    const double columns = 100 * model.height * model.storeys * (model.bays + 1);
    result.mass = member.density * (beams * member.beamArea + columns * member.columnArea);
    result.displacement = deflection(model, analysis, 0);
    result.frequency = 18 / std::sqrt(result.displacement);
    result.criticalFactor = critical_factor(model);
    result.soilPressure = column_force(model, false) / (kFooting * kFooting);
    return result;
}

StoreyResult calculate_storey(const FrameModel& model, FrameAnalysis analysis, int storey)
{
    const Member& member = member_of(model.material);
    const double moment = 100 * line_load(model, storey, true) * model.span * model.span /
                          (model.rigid ? 10 : 8) * amplification(model, analysis); // kNcm
    const double bent = deflection(model, analysis, storey);
    if (model.material != FrameMaterial::concrete)
        return {moment / (member.beamW * member.strength), moment / 100, bent, 0, 0};
    constexpr double width = 30;
    constexpr double depth = 45; // to the reinforcement
    constexpr double limit = 0.37;
    constexpr double steel = 43.5;
    constexpr double bars = 200;     // their distance along the beam that cracks open at once, mm
    constexpr double youngs = 20000; // of steel, kN/cm²
    const double strain = steel * line_load(model, storey, false) / line_load(model, storey, true) / youngs;
    return {moment / (width * depth * depth * member.strength) / limit, moment / 100, bent,
            moment / (0.9 * depth * steel), bars * strain};
}

double ISection::Area() const { return (2 * width * flange + (depth - 2 * flange) * web) / 100; }

double ISection::Inertia() const
{
    const double inner = depth - 2 * flange;
    return (width * std::pow(depth, 3) - (width - web) * std::pow(inner, 3)) / 12 / 10000;
}

double ISection::Modulus() const { return Inertia() / (depth / 20); }

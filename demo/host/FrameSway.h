#pragma once
#include "demo/host/AnalysisSettings.h"
#include "demo/host/FrameModel.h"

#include <vector>

// The frame swaying sideways: one freedom for each storey, columns as springs between rigid floors.

/// How the floors' displacements were found.
struct SwayResult
{
    std::vector<double> displacements; ///< mm, from the lowest floor
    double residual = 0;               ///< of equilibrium, as a part of the load
    bool found = false;                ///< false: not within the iterations
};
SwayResult solve_sway(const FrameModel& model, const AnalysisSettings& settings);

struct SwayMode
{
    double frequency; ///< Hz, damped
    double mass;      ///< % of the whole that moves with it
};
/// At most as many as there are storeys, the slowest first. None without mass.
std::vector<SwayMode> find_modes(const FrameModel& model, const AnalysisSettings& settings);

/// The base shear of a spectrum's plateau at a tenth of gravity, in kN, from those modes.
double base_shear(const FrameModel& model, const AnalysisSettings& settings);

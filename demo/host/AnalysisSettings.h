#pragma once

/// What counts as mass when the structure vibrates.
enum class MassSource
{
    selfWeight,
    permanent,
    quasiPermanent ///< the permanent loads and 30 % of the imposed ones
};

/// What the user has set for the analysis.
struct AnalysisSettings
{
    bool iterative = false; ///< conjugate gradients instead of elimination
    double tolerance = 1e-6;
    int iterations = 500;
    bool stopsAtUnstable = true;

    int modes = 12;
    double damping = 5; ///< %
    MassSource mass = MassSource::selfWeight;
    bool rotationalMass = false;
    bool completeCombination = true; ///< CQC instead of the root of the sum of squares

    bool listsDisplacements = true;
    bool listsForces = false;
    bool listsReactions = true;
    bool listsUtilisation = true;
};

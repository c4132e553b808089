#include "demo/host/FrameSway.h"

#include <cmath>
#include <gtest/gtest.h>

namespace
{
constexpr double kPi = 3.14159265358979;

FrameModel one_storey()
{
    FrameModel model;
    model.storeys = 1;
    return model;
}
} // namespace

TEST(DemoSway, OneStoreyIsASpringWithAMass)
{
    const FrameModel model = one_storey();
    AnalysisSettings settings;
    settings.damping = 0;
    // 3 columns of 12 EI / h³: EI = 21000 kN/cm² * 2003 cm⁴ = 4206.3 kNm²
    const double spring = 3 * 12 * 4206300.0 / std::pow(3.5, 3);
    EXPECT_NEAR(4206300.0, column_stiffness(model), 1);
    const SwayResult sway = solve_sway(model, settings);
    ASSERT_EQ(1u, sway.displacements.size());
    EXPECT_NEAR(1000 * 1500 * 0.8 * 5 * 3.5 / spring, sway.displacements[0], 1e-6);
    const double mass = calculate_frame(model, FrameAnalysis::linear).mass;
    const std::vector<SwayMode> modes = find_modes(model, settings);
    ASSERT_EQ(1u, modes.size());
    EXPECT_NEAR(std::sqrt(spring / mass) / (2 * kPi), modes[0].frequency, 1e-9);
    EXPECT_NEAR(100, modes[0].mass, 1e-9);
    settings.damping = 5;
    EXPECT_NEAR(mass * 9.81 * 0.25 / 1000, base_shear(model, settings), 1e-9)
        << "the whole mass on the plateau";
}

TEST(DemoSway, BothSolversFindTheSameAndTheIterativeOneWithinItsTolerance)
{
    FrameModel model;
    model.storeys = 12;
    AnalysisSettings settings;
    const SwayResult direct = solve_sway(model, settings);
    EXPECT_LT(direct.residual, 1e-9);
    settings.iterative = true;
    for (const double tolerance : {1e-3, 1e-9})
    {
        settings.tolerance = tolerance;
        const SwayResult iterative = solve_sway(model, settings);
        EXPECT_TRUE(iterative.found);
        EXPECT_LE(iterative.residual, tolerance * 1.01);
    }
    EXPECT_NEAR(direct.displacements.back(), solve_sway(model, settings).displacements.back(), 1e-4);
    settings.iterations = 2;
    EXPECT_FALSE(solve_sway(model, settings).found) << "twelve floors need more steps";
}

TEST(DemoSway, ModesComeSlowestFirstAndHaveTheWholeMassTogether)
{
    FrameModel model;
    model.storeys = 4;
    AnalysisSettings settings;
    const std::vector<SwayMode> modes = find_modes(model, settings);
    ASSERT_EQ(4u, modes.size()) << "no more than there are floors";
    double mass = 0;
    for (std::size_t i = 0; i < modes.size(); ++i)
    {
        mass += modes[i].mass;
        EXPECT_TRUE(i == 0 || modes[i].frequency > modes[i - 1].frequency);
        // Equal springs and masses: omega = 2 sqrt(k / m) sin((2 i + 1) pi / (4 n + 2)).
        EXPECT_NEAR(std::sin((2.0 * static_cast<double>(i) + 1) * kPi / 18) / std::sin(kPi / 18),
                    modes[i].frequency / modes[0].frequency, 1e-6);
    }
    EXPECT_NEAR(100, mass, 1e-6);
    settings.modes = 2;
    EXPECT_EQ(2u, find_modes(model, settings).size());
}

TEST(DemoSway, EverySettingOfTheDynamicsCounts)
{
    FrameModel model;
    AnalysisSettings settings;
    const double frequency = find_modes(model, settings)[0].frequency;
    const double shear = base_shear(model, settings);
    const auto changed = [&](auto change) {
        AnalysisSettings other;
        change(other);
        return std::pair(find_modes(model, other)[0].frequency, base_shear(model, other));
    };
    EXPECT_LT(changed([](auto& s) { s.mass = MassSource::permanent; }).first, frequency);
    EXPECT_LT(changed([](auto& s) { s.mass = MassSource::quasiPermanent; }).first,
              changed([](auto& s) { s.mass = MassSource::permanent; }).first);
    EXPECT_LT(changed([](auto& s) { s.rotationalMass = true; }).first, frequency);
    EXPECT_LT(changed([](auto& s) { s.damping = 20; }).first, frequency);
    EXPECT_LT(changed([](auto& s) { s.damping = 20; }).second, shear);
    EXPECT_NE(changed([](auto& s) { s.completeCombination = false; }).second, shear);
    EXPECT_LT(changed([](auto& s) { s.modes = 1; }).second, shear);
}

TEST(DemoSway, WithoutMassNothingVibrates)
{
    FrameModel model;
    model.span = 0;
    EXPECT_TRUE(find_modes(model, {}).empty());
    EXPECT_EQ(0, base_shear(model, {}));
}

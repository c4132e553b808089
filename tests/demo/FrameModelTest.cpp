#include "demo/host/FrameModel.h"

#include <gtest/gtest.h>

// Values worked out by hand for the default frame: two bays of 6 m, three storeys of 3.5 m.

TEST(DemoFrame, SizesFollowBaysAndStoreys)
{
    const FrameModel model;
    EXPECT_EQ(12, model.Nodes());
    EXPECT_EQ(15, model.Members());
    EXPECT_EQ(3, model.Supports());
    EXPECT_EQ(27, model.Equations());
    EXPECT_EQ(10, model.FirstBeam(0));
    EXPECT_EQ(14, model.FirstBeam(2));
}

TEST(DemoFrame, BeamIsUsedByItsMomentAgainstItsResistance)
{
    FrameModel model;
    model.selfWeight = false;
    // (1.35 * 4 + 1.5 * 3) kN/m² * 5 m = 49.5 kN/m; * 6² / 10 = 178.2 kNm; / (713 cm³ * 35.5 kN/cm²)
    EXPECT_NEAR(0.7040, calculate_storey(model, FrameAnalysis::linear, 0).utilisation, 0.0001);
    // The roof carries 0.75 instead of 3 kN/m².
    EXPECT_NEAR(0.7040 * (5.4 + 1.125) / 9.9, calculate_storey(model, FrameAnalysis::linear, 2).utilisation,
                0.0001);
}

TEST(DemoFrame, SumsOfLoadsAreThoseOfAllBeamsAndStoreys)
{
    FrameModel model;
    model.selfWeight = false;
    const FrameResult result = calculate_frame(model, FrameAnalysis::linear);
    EXPECT_NEAR((2 * 49.5 + 32.625) * 6 * 2, result.vertical, 0.001);
    EXPECT_NEAR(1.5 * 0.8 * 5 * 3.5 * 3, result.horizontal, 0.001);
}

TEST(DemoFrame, CriticalFactorIsEulersLoadOfTheInnerColumn)
{
    FrameModel model;
    model.selfWeight = false;
    // pi² * 21000 * 2003 / 350² = 3389 kN against 789.75 kN
    EXPECT_NEAR(4.291, calculate_frame(model, FrameAnalysis::buckling).criticalFactor, 0.001);
    EXPECT_GT(calculate_storey(model, FrameAnalysis::secondOrder, 0).utilisation,
              calculate_storey(model, FrameAnalysis::linear, 0).utilisation * 1.29);
}

TEST(DemoFrame, BeamsOnHingesBendMoreAndHaveLargerMoments)
{
    FrameModel model;
    model.selfWeight = false;
    const StoreyResult rigid = calculate_storey(model, FrameAnalysis::linear, 0);
    EXPECT_NEAR(178.2, rigid.moment, 0.001);
    // 0.4 * 5/384 * 35 kN/m * 6⁴ m⁴ / (21000 kN/cm² * 11770 cm⁴)
    EXPECT_NEAR(9.559, rigid.deflection, 0.001);
    model.rigid = false;
    const StoreyResult hinged = calculate_storey(model, FrameAnalysis::linear, 0);
    EXPECT_NEAR(1.25 * rigid.moment, hinged.moment, 0.001);
    EXPECT_NEAR(2.5 * rigid.deflection, hinged.deflection, 0.001);
}

TEST(DemoFrame, ConcreteNeedsReinforcement)
{
    FrameModel model;
    model.selfWeight = false;
    model.material = FrameMaterial::concrete;
    // 17820 kNcm / (0.9 * 45 cm * 43.5 kN/cm²)
    EXPECT_NEAR(10.115, calculate_storey(model, FrameAnalysis::linear, 0).reinforcement, 0.001);
    // 200 mm * 43.5 kN/cm² / 20000 kN/cm², at 35 of 49.5 kN/m
    EXPECT_NEAR(0.3076, calculate_storey(model, FrameAnalysis::linear, 0).crack, 0.0001);
}

TEST(DemoFrame, MemberWithoutLengthAndCaseWithoutLoadsAreFound)
{
    FrameModel model;
    EXPECT_FALSE(check_frame(model).zeroLength);
    EXPECT_FALSE(check_frame(model).emptyWindCase);
    model.span = 0;
    model.wind = 0;
    EXPECT_TRUE(check_frame(model).zeroLength);
    EXPECT_TRUE(check_frame(model).emptyWindCase);
}

TEST(DemoSection, ValuesAreThoseOfThreePlates)
{
    const ISection section{160, 330, 11.5, 7.5};
    EXPECT_TRUE(section.IsPossible());
    EXPECT_NEAR(59.8, section.Area(), 0.05);
    EXPECT_NEAR(11145, section.Inertia(), 1);
    EXPECT_NEAR(675.5, section.Modulus(), 0.1);
    EXPECT_FALSE((ISection{160, 20, 11.5, 7.5}.IsPossible()));
    EXPECT_FALSE((ISection{5, 330, 11.5, 7.5}.IsPossible()));
    EXPECT_FALSE((ISection{0, 0, 0, 0}.IsPossible()));
}

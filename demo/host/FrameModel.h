#pragma once

/// The structure that the program shows and calculates: a regular plane frame.
enum class FrameMaterial
{
    steel,
    concrete,
    timber
};

enum class FrameAnalysis
{
    linear,
    secondOrder,
    buckling
};

struct FrameModel
{
    int bays = 2;
    int storeys = 3;
    double span = 6.0;   ///< m
    double height = 3.5; ///< m
    double dead = 4.0;   ///< kN/m²
    double live = 3.0;   ///< kN/m², on the floors; the roof has that of maintenance
    double wind = 0.8;   ///< kN/m²
    bool selfWeight = true;
    bool rigid = true;    ///< beams run through over their columns
    bool combines = true; ///< load combinations are generated
    FrameMaterial material = FrameMaterial::steel;
    double utilisationLimit = 1.0;
    int deflectionRatio = 200;  ///< a beam may bend by its span divided by this
    double crackLimit = 0.3;    ///< mm, concrete only
    bool warnsNearLimit = true; ///< from 90 % of the limit on
    bool listsEachOnce = false; ///< a member that exceeds several limits is listed with the first

    int Nodes() const { return (bays + 1) * (storeys + 1); }
    int Members() const { return bays * storeys + (bays + 1) * storeys; }
    int Supports() const { return bays + 1; }
    int Equations() const { return 3 * (Nodes() - Supports()); }
    int HalfBandwidth() const { return 3 * (bays + 2); }
    /// The beams have the numbers behind the columns', storey by storey.
    int FirstBeam(int storey) const { return (bays + 1) * storeys + storey * bays + 1; }
};

inline constexpr double kFrameSpacing = 5.0; ///< m

inline constexpr int kLoadCaseCount = 7;
inline constexpr int kCombinationCount = 6;

/// What goes wrong with a model before it is calculated.
struct ModelCheck
{
    bool zeroLength = false; ///< of member 1
    bool emptyWindCase = false;
};
ModelCheck check_frame(const FrameModel& model);

/// One storey's beams and what they stand on.
struct StoreyResult
{
    double utilisation;   ///< of the bending resistance
    double moment;        ///< kNm
    double deflection;    ///< mm, of each span
    double reinforcement; ///< cm², concrete only
    double crack;         ///< width in mm, concrete only
};

/// An estimate by the formulas of preliminary design: continuous beams of equal spans, pinned columns.
struct FrameResult
{
    double vertical;     ///< sum of loads, kN
    double horizontal;   ///< kN
    double mass;         ///< of the structure, kg
    double displacement; ///< largest deflection of a beam, mm
    double frequency;    ///< of the floor, Hz
    double criticalFactor;
    double soilPressure; ///< below an inner column, kN/m²
};

FrameResult calculate_frame(const FrameModel& model, FrameAnalysis analysis);
/// Storey 0 is the lowest.
StoreyResult calculate_storey(const FrameModel& model, FrameAnalysis analysis, int storey);
/// Of one column against bending, Nm².
double column_stiffness(const FrameModel& model);

/// A doubly symmetric I-section of plates, sizes in mm.
struct ISection
{
    double width;
    double depth;
    double flange;
    double web;

    bool IsPossible() const { return flange > 0 && web > 0 && width >= web && depth > 2 * flange; }
    double Area() const;    ///< cm²
    double Inertia() const; ///< about the strong axis, cm⁴
    double Modulus() const; ///< elastic, cm³
};

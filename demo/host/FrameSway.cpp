#include "demo/host/FrameSway.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr double kPi = 3.14159265358979;
constexpr double kGravity = 9.81; // m/s²
constexpr double kGround = 0.1;   // of gravity
constexpr double kPlateau = 2.5;  // of the ground's acceleration
constexpr double kQuasi = 0.3;    // of the imposed load

using Vector = std::vector<double>;
using Matrix = std::vector<Vector>;

/// Of one storey against the next, N/m.
double spring(const FrameModel& model)
{
    return 12 * column_stiffness(model) * (model.bays + 1) / std::pow(model.height, 3);
}

Matrix stiffness(const FrameModel& model)
{
    const auto storeys = static_cast<std::size_t>(model.storeys);
    Matrix k(storeys, Vector(storeys, 0));
    for (std::size_t i = 0; i < storeys; ++i)
    {
        k[i][i] = spring(model) * (i + 1 < storeys ? 2 : 1);
        if (i + 1 < storeys)
            k[i][i + 1] = k[i + 1][i] = -spring(model);
    }
    return k;
}

Vector product(const Matrix& a, const Vector& x)
{
    Vector y(x.size(), 0);
    for (std::size_t i = 0; i < x.size(); ++i)
        for (std::size_t j = 0; j < x.size(); ++j)
            y[i] += a[i][j] * x[j];
    return y;
}

double product(const Vector& x, const Vector& y)
{
    double sum = 0;
    for (std::size_t i = 0; i < x.size(); ++i)
        sum += x[i] * y[i];
    return sum;
}

/// x + factor * y
Vector sum(const Vector& x, double factor, const Vector& y)
{
    Vector z = x;
    for (std::size_t i = 0; i < x.size(); ++i)
        z[i] += factor * y[i];
    return z;
}

Vector eliminate(Matrix a, Vector b)
{
    const std::size_t n = b.size();
    for (std::size_t i = 0; i < n; ++i)
        for (std::size_t j = i + 1; j < n; ++j)
        {
            const double factor = a[j][i] / a[i][i];
            a[j] = sum(a[j], -factor, a[i]);
            b[j] -= factor * b[i];
        }
    for (std::size_t i = n; i-- > 0;)
    {
        for (std::size_t j = i + 1; j < n; ++j)
            b[i] -= a[i][j] * b[j];
        b[i] /= a[i][i];
    }
    return b;
}

/// Conjugate gradients.
Vector iterate(const Matrix& a, const Vector& b, double tolerance, int iterations)
{
    Vector x(b.size(), 0), rest = b, direction = b;
    double size = product(rest, rest);
    const double enough = tolerance * tolerance * product(b, b);
    for (int i = 0; i < iterations && size > enough; ++i)
    {
        const Vector image = product(a, direction);
        const double step = size / product(direction, image);
        x = sum(x, step, direction);
        rest = sum(rest, -step, image);
        const double next = product(rest, rest);
        direction = sum(rest, next / size, direction);
        size = next;
    }
    return x;
}

/// Of one floor, kg.
double floor_mass(const FrameModel& model, const AnalysisSettings& settings, int storey)
{
    const double area = kFrameSpacing * model.span * model.bays;
    double mass = calculate_frame(model, FrameAnalysis::linear).mass / model.storeys;
    if (settings.mass != MassSource::selfWeight)
        mass += 1000 / kGravity * model.dead * area;
    if (settings.mass == MassSource::quasiPermanent)
        mass += 1000 / kGravity * kQuasi * (storey + 1 == model.storeys ? 0 : model.live) * area;
    if (settings.rotationalMass) // a floor that tilts about the frame's foot
        mass *= 1 + std::pow(model.span * model.bays / (model.height * model.storeys), 2) / 12;
    return mass;
}

struct Shape
{
    double omega;         // 1/s
    double participation; // mass that moves with it, kg
};

/// The largest element beside the diagonal; both zero when there is none worth a turn.
std::pair<std::size_t, std::size_t> largest(const Matrix& a)
{
    std::pair<std::size_t, std::size_t> at{0, 0};
    double most = 1e-12 * std::abs(a[0][0]);
    for (std::size_t i = 0; i < a.size(); ++i)
        for (std::size_t j = i + 1; j < a.size(); ++j)
            if (std::abs(a[i][j]) > most)
            {
                most = std::abs(a[i][j]);
                at = {i, j};
            }
    return at;
}

/// One turn of Jacobi's method: makes the element zero.
void turn(Matrix& a, Matrix& shapes, std::size_t p, std::size_t q)
{
    const double angle = 0.5 * std::atan2(2 * a[p][q], a[q][q] - a[p][p]);
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    const auto mix = [c, s](double& x, double& y) {
        const double former = x;
        x = c * former - s * y;
        y = s * former + c * y;
    };
    for (std::size_t i = 0; i < a.size(); ++i)
    {
        mix(a[i][p], a[i][q]);
        mix(shapes[i][p], shapes[i][q]);
    }
    for (std::size_t i = 0; i < a.size(); ++i)
        mix(a[p][i], a[q][i]);
}

std::vector<Shape> find_shapes(const FrameModel& model, const AnalysisSettings& settings)
{
    Matrix a = stiffness(model);
    Vector roots; // of the masses
    for (int storey = 0; storey < model.storeys; ++storey)
        roots.push_back(std::sqrt(floor_mass(model, settings, storey)));
    Matrix shapes(a.size(), Vector(a.size(), 0));
    for (std::size_t i = 0; i < a.size(); ++i)
    {
        shapes[i][i] = 1;
        for (std::size_t j = 0; j < a.size(); ++j)
            a[i][j] /= roots[i] * roots[j];
    }
    for (auto at = largest(a); at.second > 0; at = largest(a))
        turn(a, shapes, at.first, at.second);
    std::vector<Shape> found;
    for (std::size_t i = 0; i < a.size(); ++i)
    {
        double part = 0;
        for (std::size_t j = 0; j < a.size(); ++j)
            part += shapes[j][i] * roots[j];
        found.push_back({std::sqrt(std::max(a[i][i], 0.0)), part * part});
    }
    std::sort(found.begin(), found.end(), [](const Shape& x, const Shape& y) { return x.omega < y.omega; });
    found.resize(std::min(found.size(), static_cast<std::size_t>(std::max(settings.modes, 0))));
    return found;
}

bool has_mass(const FrameModel& model, const AnalysisSettings& settings)
{
    return model.span > 0 && model.height > 0 && model.storeys > 0 && floor_mass(model, settings, 0) > 0;
}

/// How far two modes swing together, for equal damping of both.
double correlation(double ratio, double damping)
{
    const double squares = 8 * damping * damping * (1 + ratio) * std::pow(ratio, 1.5);
    return squares /
           (std::pow(1 - ratio * ratio, 2) + 4 * damping * damping * ratio * std::pow(1 + ratio, 2));
}
} // namespace

SwayResult solve_sway(const FrameModel& model, const AnalysisSettings& settings)
{
    const Matrix k = stiffness(model);
    const Vector load(k.size(), 1500 * model.wind * kFrameSpacing * model.height); // N on each floor
    const Vector x =
        settings.iterative ? iterate(k, load, settings.tolerance, settings.iterations) : eliminate(k, load);
    const Vector rest = sum(load, -1, product(k, x));
    const double whole = product(load, load);
    SwayResult result;
    result.residual = whole > 0 ? std::sqrt(product(rest, rest) / whole) : 0;
    result.found = !settings.iterative || result.residual <= std::max(settings.tolerance, 1e-12) * 1.01;
    for (const double metres : x)
        result.displacements.push_back(1000 * metres);
    return result;
}

std::vector<SwayMode> find_modes(const FrameModel& model, const AnalysisSettings& settings)
{
    std::vector<SwayMode> modes;
    if (!has_mass(model, settings))
        return modes;
    double whole = 0;
    for (int storey = 0; storey < model.storeys; ++storey)
        whole += floor_mass(model, settings, storey);
    const double damping = std::clamp(settings.damping / 100, 0.0, 0.99);
    for (const Shape& shape : find_shapes(model, settings))
        modes.push_back(
            {shape.omega * std::sqrt(1 - damping * damping) / (2 * kPi), 100 * shape.participation / whole});
    return modes;
}

double base_shear(const FrameModel& model, const AnalysisSettings& settings)
{
    if (!has_mass(model, settings))
        return 0;
    const double damping = std::clamp(settings.damping, 0.1, 99.0);
    const double reduction = std::max(std::sqrt(10 / (5 + damping)), 0.55);
    const double acceleration = kGravity * kGround * kPlateau * reduction;
    const std::vector<Shape> shapes = find_shapes(model, settings);
    double squares = 0;
    for (const Shape& x : shapes)
        for (const Shape& y : shapes)
        {
            const double slower = std::min(x.omega, y.omega) / std::max(x.omega, y.omega);
            const double together = settings.completeCombination ? correlation(slower, damping / 100)
                                    : &x == &y                   ? 1
                                                                 : 0;
            squares += together * x.participation * y.participation;
        }
    return std::sqrt(squares) * acceleration / 1000;
}

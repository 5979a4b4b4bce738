// SPDX-License-Identifier: MIT
#include "math/BSplineBase.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <utility>

namespace grisal::math
{

namespace
{

constexpr double twoPi = 6.2831854;

// The order of the derivative whose square the penalty integrates.
constexpr int derivativeDegree = 2;

// Matrices with this many intervals or more are too large to be read, and are not printed.
constexpr int printedIntervals = 30;

// The weights of the phantom nodes in the first two and the last two nodes, for each boundary type.
constexpr std::array<std::array<double, 4>, 3> boundaryWeights = {{
    {-4, -1, -1, -4},
    {0, 1, 1, 0},
    {2, -1, -1, 2},
}};

// Integrals of the product of two basis functions' derivatives over one interval. The indices are the order of the
// derivative minus 1, the distance of the two nodes, and the interval, counted from the second one to the left of the
// left node.
constexpr std::array<std::array<std::array<double, 4>, 4>, 3> penaltyTable = {{
    {{{0.1125, 0.6375, 0.6375, 0.1125}, {0, 0.13125, -0.54375, 0.13125}, {0, 0, -0.225, -0.225}, {0, 0, 0, -0.01875}}},
    {{{0.75, 2.25, 2.25, 0.75}, {0, -1.125, -1.125, -1.125}, {0, 0, 0, 0}, {0, 0, 0, 0.375}}},
    {{{2.25, 20.25, 20.25, 2.25}, {0, -6.75, -20.25, -6.75}, {0, 0, 6.75, 6.75}, {0, 0, 0, -2.25}}},
}};

} // namespace

template <typename T>
bool BSplineBase<T>::s_debug = false;

template <typename T>
BSplineBase<T>::BSplineBase(const T *x, int nx, double wavelength, int boundaryType, int numNodes)
    : m_wavelength(wavelength), m_boundaryType(boundaryType)
{
    const bool known = boundaryType >= 0 && boundaryType < static_cast<int>(boundaryWeights.size());
    if (!known || !(wavelength >= 0) || !copyPoints(x, nx) || !chooseNodes(numNodes)) {
        return;
    }
    const double a = m_wavelength / (m_spacing * twoPi);
    m_alpha = 1;
    for (int degree = 0; degree < derivativeDegree; ++degree) {
        m_alpha *= a * a;
    }
    reportNodes();
    m_matrix = BandMatrix(m_intervals + 1);
    addPenalty();
    addPoints();
    m_ready = factor();
}

template <typename T>
void BSplineBase<T>::setDebug(bool on)
{
    s_debug = on;
}

template <typename T>
bool BSplineBase<T>::debug()
{
    return s_debug;
}

template <typename T>
bool BSplineBase<T>::copyPoints(const T *x, int nx)
{
    if (nx <= 0 || x == nullptr) {
        return false;
    }
    m_x.assign(x, x + nx);
    if (!std::all_of(m_x.begin(), m_x.end(), [](T value) { return std::isfinite(value); })) {
        return false;
    }
    const auto [smallest, largest] = std::minmax_element(m_x.begin(), m_x.end());
    m_xMin = *smallest;
    m_xMax = *largest;
    return m_xMax > m_xMin;
}

template <typename T>
bool BSplineBase<T>::chooseNodes(int numNodes)
{
    const bool given = numNodes >= 2;
    const bool noWavelength = m_wavelength == 0;
    if (noWavelength) {
        m_wavelength = 1;
    }
    if (given) {
        m_intervals = numNodes - 1;
    } else {
        m_intervals = noWavelength ? 2 * static_cast<int>(m_x.size()) : searchedIntervals();
    }
    if (m_intervals <= 0) {
        return false;
    }
    m_spacing = span() / m_intervals;
    return true;
}

// Returns the smallest number of intervals, at least 10, with four nodes per wavelength. If there are too few points
// for it, returns the largest number with two nodes per wavelength. Nodes must not outnumber points. Returns 0 if there
// is no such number or if the wavelength exceeds the span.
template <typename T>
int BSplineBase<T>::searchedIntervals() const
{
    constexpr double fewest = 2;
    constexpr double enough = 4;
    if (m_wavelength > span()) {
        return 0;
    }
    int found = 0;
    for (int intervals = 10; intervals + 1 <= static_cast<int>(m_x.size()); ++intervals) {
        const double nodesPerWave = m_wavelength * intervals / span();
        if (nodesPerWave >= fewest) {
            found = intervals;
        }
        if (nodesPerWave >= enough) {
            break;
        }
    }
    return found;
}

template <typename T>
double BSplineBase<T>::span() const
{
    return static_cast<double>(m_xMax) - static_cast<double>(m_xMin);
}

template <typename T>
typename BSplineBase<T>::NodeRange BSplineBase<T>::nodesNear(double x) const
{
    const double position = (x - m_xMin) / m_spacing;
    const bool reached = position > -3 && position < m_intervals + 3;
    if (!reached) {
        return {};
    }
    const int interval = static_cast<int>(position);
    return {std::max(0, interval - 1), std::min(m_intervals, interval + 2)};
}

template <typename T>
double BSplineBase<T>::basis(int node, double x) const
{
    double y = plainBasis(node, x);
    if (node <= 1) {
        y += boundaryWeight(node) * plainBasis(-1, x);
    }
    if (node >= m_intervals - 1) {
        y += boundaryWeight(node) * plainBasis(m_intervals + 1, x);
    }
    return y;
}

template <typename T>
double BSplineBase<T>::plainBasis(int node, double x) const
{
    const double z = std::abs(x - (m_xMin + node * m_spacing)) / m_spacing;
    if (z >= 2) {
        return 0;
    }
    const double outer = 2 - z;
    const double inner = std::max(1 - z, 0.0);
    return 0.25 * outer * outer * outer - inner * inner * inner;
}

template <typename T>
double BSplineBase<T>::boundaryWeight(int node) const
{
    if (node > 1 && node < m_intervals - 1) {
        return 0;
    }
    const int entry = node >= m_intervals - 1 ? node - m_intervals + 3 : node;
    return boundaryWeights[m_boundaryType][entry];
}

template <typename T>
double BSplineBase<T>::penaltyElement(int node, int otherNode) const
{
    const auto [left, right] = std::minmax(node, otherNode);
    if (right - left > BandMatrix::halfWidth) {
        return 0;
    }
    double sum = 0;
    for (int interval = std::max(left - 2, 0); interval < std::min(left + 2, m_intervals); ++interval) {
        sum += penaltyTable[derivativeDegree - 1][right - left][interval - left + 2];
    }
    return sum * m_alpha;
}

template <typename T>
void BSplineBase<T>::addPenalty()
{
    if (s_debug) {
        std::cerr << "Calculating Q...\n";
    }
    if (m_alpha == 0) {
        return;
    }
    for (int i = 0; i <= m_intervals; ++i) {
        for (int j = i; j <= std::min(i + BandMatrix::halfWidth, m_intervals); ++j) {
            addSymmetric(i, j, penaltyElement(i, j));
        }
    }
    addLeftBoundary();
    addRightBoundary();
    reportMatrix();
}

template <typename T>
void BSplineBase<T>::addLeftBoundary()
{
    constexpr int phantom = -1;
    for (int i = 0; i <= 1; ++i) {
        const double weight = boundaryWeight(i);
        for (int j = i; j <= std::min(i + BandMatrix::halfWidth, m_intervals); ++j) {
            const double otherWeight = boundaryWeight(j);
            addSymmetric(i, j,
                         otherWeight * penaltyElement(phantom, i) + weight * penaltyElement(phantom, j) +
                             weight * otherWeight * penaltyElement(phantom, phantom));
        }
    }
}

template <typename T>
void BSplineBase<T>::addRightBoundary()
{
    const int phantom = m_intervals + 1;
    for (int i = m_intervals - 1; i <= m_intervals; ++i) {
        const double weight = boundaryWeight(i);
        for (int j = std::max(i - BandMatrix::halfWidth, 0); j <= i; ++j) {
            const double otherWeight = boundaryWeight(j);
            addSymmetric(i, j,
                         otherWeight * penaltyElement(i, phantom) + weight * penaltyElement(j, phantom) +
                             weight * otherWeight * penaltyElement(phantom, phantom));
        }
    }
}

template <typename T>
void BSplineBase<T>::addSymmetric(int row, int column, double value)
{
    m_matrix.add(row, column, value);
    if (row != column) {
        m_matrix.add(column, row, value);
    }
}

template <typename T>
void BSplineBase<T>::addPoints()
{
    if (s_debug) {
        std::cerr << "Calculating P...\n";
    }
    for (const T x : m_x) {
        const NodeRange near = nodesNear(x);
        std::array<double, BandMatrix::halfWidth + 1> values = {};
        for (int m = near.first; m <= near.last; ++m) {
            values[m - near.first] = basis(m, x);
            for (int n = near.first; n <= m; ++n) {
                addSymmetric(m, n, values[m - near.first] * values[n - near.first]);
            }
        }
    }
    if (s_debug) {
        std::cerr << "Done.\nArray Q after addition of P.\n";
        reportMatrix();
    }
}

template <typename T>
bool BSplineBase<T>::factor()
{
    if (s_debug) {
        std::cerr << "Beginning LU factoring of P+Q...\n";
    }
    const bool factored = m_matrix.factor();
    if (s_debug && factored) {
        std::cerr << "LU factor of (P+Q) =\n";
        reportMatrix();
        std::cerr << "Done.\n";
    } else if (s_debug) {
        std::cerr << "LU_factor_banded() failed.\nFactoring failed.\n";
    }
    return factored;
}

template <typename T>
void BSplineBase<T>::reportNodes() const
{
    if (s_debug) {
        std::cerr << "Using M node intervals: " << m_intervals << " of length DX: " << m_spacing << '\n'
                  << "X min: " << m_xMin << " ; X max: " << m_xMax << '\n'
                  << "Data points per interval: " << static_cast<double>(m_x.size()) / (m_intervals + 1) << '\n'
                  << "Nodes per wavelength: " << m_wavelength / m_spacing << '\n'
                  << "Derivative constraint degree: " << derivativeDegree << '\n'
                  << "Cutoff wavelength: " << m_wavelength << '\n'
                  << "Alpha: " << m_alpha << '\n';
    }
}

template <typename T>
void BSplineBase<T>::reportMatrix() const
{
    if (!s_debug || m_intervals >= printedIntervals) {
        return;
    }
    std::ostream out(std::cerr.rdbuf());
    out << std::setprecision(2) << std::setfill(' ');
    for (int row = 0; row <= m_intervals; ++row) {
        for (int column = 0; column <= m_intervals; ++column) {
            out << std::setw(5) << m_matrix.at(row, column) << ' ';
        }
        out << '\n';
    }
}

template class BSplineBase<float>;

} // namespace grisal::math

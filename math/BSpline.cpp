// SPDX-License-Identifier: MIT
#include "math/BSpline.h"

#include <iostream>
#include <numeric>

namespace grisal::math
{

template <typename T>
BSpline<T>::BSpline(const T *x, int nx, const T *y, double wavelength, int boundaryType, int numNodes)
    : BSplineBase<T>(x, nx, wavelength, boundaryType, numNodes)
{
    if (this->ok() && !solve(y)) {
        this->setNotReady();
    }
}

template <typename T>
T BSpline<T>::evaluate(T x) const
{
    if (!this->ok()) {
        return 0;
    }
    const auto near = this->nodesNear(x);
    double sum = m_mean;
    for (int node = near.first; node <= near.last; ++node) {
        sum += m_coefficients[node] * this->basis(node, x);
    }
    return static_cast<T>(sum);
}

template <typename T>
bool BSpline<T>::solve(const T *y)
{
    if (y == nullptr) {
        return false;
    }
    const std::vector<T> &x = this->xValues();
    m_mean = static_cast<T>(std::accumulate(y, y + x.size(), 0.0) / static_cast<double>(x.size()));
    if (this->debug()) {
        std::cerr << "Mean for y: " << m_mean << "\nSolving for B...\n";
    }
    std::vector<double> values(this->factors().order());
    for (std::size_t i = 0; i < x.size(); ++i) {
        const double height = static_cast<double>(y[i]) - m_mean;
        const auto near = this->nodesNear(x[i]);
        for (int node = near.first; node <= near.last; ++node) {
            values[node] += height * this->basis(node, x[i]);
        }
    }
    if (!this->factors().solve(values)) {
        if (this->debug()) {
            std::cerr << "LU_solve_banded() failed.\n";
        }
        return false;
    }
    m_coefficients.assign(values.begin(), values.end());
    if (this->debug()) {
        std::cerr << "Solution a for (P+Q)a = b\n";
        for (const T coefficient : m_coefficients) {
            std::cerr << coefficient << '\n';
        }
    }
    return true;
}

template class BSpline<float>;

} // namespace grisal::math

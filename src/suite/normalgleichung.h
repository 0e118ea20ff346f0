#pragma once
// Least squares of a few dozen unknowns: dense normal equations, some of whose unknowns can be held.

#include <cstddef>
#include <optional>
#include <vector>

namespace jorv::suite {

/// Positive definite normal equations N x = r.
class Normalgleichung {
public:
    explicit Normalgleichung(std::size_t n) : m_n(n), m_matrix(n * n), m_rechts(n) {}
    double& bei(std::size_t i, std::size_t k) { return m_matrix[i * m_n + k]; }
    double& rechts(std::size_t i) { return m_rechts[i]; }

    struct Loesung {
        std::vector<double> wert, sigma;
    };
    /// Solution of the unknowns that are free, the others held at their values. Nothing when it is singular.
    std::optional<Loesung> loesen(const std::vector<bool>& frei, const std::vector<double>& gehalten) const;

private:
    std::size_t m_n;
    std::vector<double> m_matrix, m_rechts;
};

}  // namespace jorv::suite

#include "suite/normalgleichung.h"

#include <cmath>

namespace jorv::suite {

std::optional<Normalgleichung::Loesung> Normalgleichung::loesen(const std::vector<bool>& frei,
                                                                const std::vector<double>& gehalten) const
{
    std::vector<std::size_t> wer;
    for (std::size_t i = 0; i < m_n; ++i)
        if (frei[i]) wer.push_back(i);
    const std::size_t n = wer.size();
    std::vector<double> u(n * n), y(n);
    const auto bei = [&](std::size_t i, std::size_t k) -> double& { return u[i * n + k]; };
    for (std::size_t i = 0; i < n; ++i) {  // Cholesky, lower triangle
        for (std::size_t k = 0; k <= i; ++k) {
            double s = m_matrix[wer[i] * m_n + wer[k]];
            for (std::size_t j = 0; j < k; ++j) s -= bei(i, j) * bei(k, j);
            if (i == k && s <= 0.0) return {};
            bei(i, k) = i == k ? std::sqrt(s) : s / bei(k, k);
        }
        double s = m_rechts[wer[i]];
        for (std::size_t j = 0; j < m_n; ++j)
            if (!frei[j]) s -= m_matrix[wer[i] * m_n + j] * gehalten[j];
        for (std::size_t j = 0; j < i; ++j) s -= bei(i, j) * y[j];
        y[i] = s / bei(i, i);
    }
    Loesung l{gehalten, std::vector<double>(m_n)};
    std::vector<double> spalte(n);  // of the inverse of the triangle: its squares add up to a variance
    for (std::size_t i = 0; i < n; ++i) {
        double q = 0;
        for (std::size_t k = i; k < n; ++k) {
            double s = k == i ? 1.0 : 0.0;
            for (std::size_t j = i; j < k; ++j) s -= bei(k, j) * spalte[j];
            spalte[k] = s / bei(k, k);
            q += spalte[k] * spalte[k];
        }
        l.sigma[wer[i]] = std::sqrt(q);
    }
    for (std::size_t i = n; i-- > 0;) {
        double s = y[i];
        for (std::size_t k = i + 1; k < n; ++k) s -= bei(k, i) * l.wert[wer[k]];
        l.wert[wer[i]] = s / bei(i, i);
    }
    return l;
}

}  // namespace jorv::suite

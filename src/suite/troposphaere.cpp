#include "suite/troposphaere.h"

#include <algorithm>

namespace jorv::suite {

namespace {

using Tafel = std::array<double, 5>;  // values at 15, 30, 45, 60, 75 degrees of latitude

// Niell (1996), tables 3 and 4.
constexpr std::array<Tafel, 3> TROCKEN_MITTEL = {
    {{1.2769934e-3, 1.2683230e-3, 1.2465397e-3, 1.2196049e-3, 1.2045996e-3},
     {2.9153695e-3, 2.9152299e-3, 2.9288445e-3, 2.9022565e-3, 2.9024912e-3},
     {62.610505e-3, 62.837393e-3, 63.721774e-3, 63.824265e-3, 64.258455e-3}}};
constexpr std::array<Tafel, 3> TROCKEN_JAHRESGANG = {{{0.0, 1.2709626e-5, 2.6523662e-5, 3.4000452e-5, 4.1202191e-5},
                                                      {0.0, 2.1414979e-5, 3.0160779e-5, 7.2562722e-5, 11.723375e-5},
                                                      {0.0, 9.0128400e-5, 4.3497037e-5, 84.795348e-5, 170.37206e-5}}};
constexpr std::array<Tafel, 3> FEUCHT = {{{5.8021897e-4, 5.6794847e-4, 5.8118019e-4, 5.9727542e-4, 6.1641693e-4},
                                          {1.4275268e-3, 1.5138625e-3, 1.4572752e-3, 1.5007428e-3, 1.7599082e-3},
                                          {4.3472961e-2, 4.6729510e-2, 4.3908931e-2, 4.4626982e-2, 5.4736038e-2}}};
constexpr std::array<double, 3> HOEHE = {2.53e-5, 5.49e-3, 1.14e-3};

double aus_tafel(const Tafel& tafel, double breite_grad)
{
    const double stelle = std::clamp(breite_grad / 15.0 - 1.0, 0.0, 4.0);
    const auto i = std::min<std::size_t>(static_cast<std::size_t>(stelle), 3);
    return tafel[i] + (stelle - static_cast<double>(i)) * (tafel[i + 1] - tafel[i]);
}

// The continued fraction of Marini, normed to 1 at the zenith.
double kettenbruch(double sinus, double a, double b, double c)
{
    return (1.0 + a / (1.0 + b / (1.0 + c))) / (sinus + a / (sinus + b / (sinus + c)));
}

}  // namespace

Zenitlaufzeit zenitlaufzeit(const Geographisch& ort)
{
    constexpr double feuchte = 0.6;
    const double hoehe = std::clamp(ort.hoehe, 0.0, 10000.0);
    const double druck = 1013.25 * std::pow(1.0 - 2.2557e-5 * hoehe, 5.2568);
    const double temperatur = 288.16 - 6.5e-3 * hoehe;
    const double dampf = 6.108 * feuchte * std::exp((17.15 * temperatur - 4684.0) / (temperatur - 38.45));
    return {0.0022768 * druck / (1.0 - 0.00266 * std::cos(2.0 * ort.breite) - 0.00028 * hoehe / 1000.0),
            0.002277 * (1255.0 / temperatur + 0.05) * dampf};
}

Niell::Niell(const Geographisch& ort, double tag) : m_km(ort.hoehe / 1000.0)
{
    const double grad = std::abs(ort.breite) / GRAD;
    const double jahr = (tag - 28.0) / 365.25 + (ort.breite < 0 ? 0.5 : 0.0);
    const double gang = std::cos(2.0 * std::numbers::pi * jahr);
    for (std::size_t i = 0; i < 3; ++i) {
        m_trocken[i] = aus_tafel(TROCKEN_MITTEL[i], grad) - aus_tafel(TROCKEN_JAHRESGANG[i], grad) * gang;
        m_feucht[i] = aus_tafel(FEUCHT[i], grad);
    }
}

Abbildung Niell::bei(double elevation) const
{
    const double sinus = std::sin(elevation);
    const double hoehenanteil = (1.0 / sinus - kettenbruch(sinus, HOEHE[0], HOEHE[1], HOEHE[2])) * m_km;
    return {kettenbruch(sinus, m_trocken[0], m_trocken[1], m_trocken[2]) + hoehenanteil,
            kettenbruch(sinus, m_feucht[0], m_feucht[1], m_feucht[2])};
}

double Luft::laufzeit(double elevation) const
{
    if (m_modell == Troposphaerenmodell::ohne || elevation <= 0) return 0.0;
    const Abbildung abbildung = m_niell.bei(elevation);
    const double trocken = m_zenit.hydrostatisch * abbildung.hydrostatisch;
    return m_modell == Troposphaerenmodell::hydrostatisch ? trocken : trocken + m_zenit.feucht * abbildung.feucht;
}

}  // namespace jorv::suite

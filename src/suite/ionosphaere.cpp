#include "suite/ionosphaere.h"

#include <cmath>
#include <map>

#include "suite/stationsreste.h"

namespace jorv::suite {

namespace {

using Wertesatz = Ionosphaere::Wertesatz;
constexpr std::size_t WERTE = Ionosphaere::WERTE;

constexpr double ERDRADIUS = 6371e3, SCHICHT = 450e3;  // metres
constexpr double TECU = 0.1624;                        // metres of delay on L1
constexpr double SPRUNG = 0.09;                        // metres on L1 from one epoch to the next
constexpr std::int64_t LUECKE = 95;                    // s
constexpr double TIEFSTER_SINUS = 0.26;                // of 15 degrees; lower rays pierce where the plane has bent away

// What is taken for granted before any observation, and how surely: level, change in an hour, in 1000 km north and
// east.
constexpr Wertesatz ERWARTET = {8 * TECU, 0, 0, 0};
constexpr Wertesatz SIGMA = {8 * TECU, 2 * TECU, 10 * TECU, 10 * TECU};
// The layer isn't smooth, and what it departs from the plane stays for many epochs: each one alone tells little.
constexpr double SIGMA_EPOCHE = 1.0 * TECU;

// Normal equations of the four unknowns; the constant of each arc goes out with the arc's means.
class Ausgleich {
public:
    Ausgleich()
    {
        for (std::size_t i = 0; i < WERTE; ++i) {
            m_n[i][i] = 1.0 / (SIGMA[i] * SIGMA[i]);
            m_rechts[i] = ERWARTET[i] * m_n[i][i];
        }
    }
    void beobachtung(const Rest& r, std::int64_t sekunde, const Wertesatz& x)
    {
        Bogen& b = m_boegen[r.satellit];
        const double y = (r.l1 - r.l2) / (IONO_VERHAELTNIS - 1.0);
        if (b.nummer != r.bogen || sekunde - b.sekunde > LUECKE || std::abs(y - b.zuletzt) > SPRUNG) {
            abschliessen(b);
            b = {};
        }
        b.nummer = r.bogen;
        b.sekunde = sekunde;
        b.zuletzt = y;
        const double w = r.sinus * r.sinus / (SIGMA_EPOCHE * SIGMA_EPOCHE);
        b.gewicht += w;
        b.y += w * y;
        for (std::size_t i = 0; i < WERTE; ++i) {
            b.x[i] += w * x[i];
            for (std::size_t k = 0; k < WERTE; ++k) m_n[i][k] += w * x[i] * x[k];
            m_rechts[i] += w * x[i] * y;
        }
    }
    Wertesatz loesen();

private:
    struct Bogen {
        int nummer = -1;
        std::int64_t sekunde = 0;
        double zuletzt = 0, gewicht = 0, y = 0;
        Wertesatz x{};
    };
    void abschliessen(const Bogen& b)
    {
        if (b.gewicht == 0) return;
        for (std::size_t i = 0; i < WERTE; ++i) {
            for (std::size_t k = 0; k < WERTE; ++k) m_n[i][k] -= b.x[i] * b.x[k] / b.gewicht;
            m_rechts[i] -= b.x[i] * b.y / b.gewicht;
        }
    }

    std::array<Wertesatz, WERTE> m_n{};
    Wertesatz m_rechts{};
    std::map<int, Bogen> m_boegen;
};

// The ray's angle to the vertical in the layer.
double winkel_oben(double elevation)
{
    return std::asin(ERDRADIUS / (ERDRADIUS + SCHICHT) * std::cos(elevation));
}

Wertesatz Ausgleich::loesen()
{
    for (const auto& [satellit, bogen] : m_boegen) abschliessen(bogen);
    Wertesatz wert{};
    for (std::size_t i = 0; i < WERTE; ++i)  // what is taken for granted makes it positive definite
        for (std::size_t k = i + 1; k < WERTE; ++k) {
            const double faktor = m_n[k][i] / m_n[i][i];
            for (std::size_t j = i; j < WERTE; ++j) m_n[k][j] -= faktor * m_n[i][j];
            m_rechts[k] -= faktor * m_rechts[i];
        }
    for (std::size_t i = WERTE; i-- > 0;) {
        double summe = m_rechts[i];
        for (std::size_t k = i + 1; k < WERTE; ++k) summe -= m_n[i][k] * wert[k];
        wert[i] = summe / m_n[i][i];
    }
    return wert;
}

}  // namespace

double schraegfaktor(double elevation)
{
    return 1.0 / std::cos(winkel_oben(elevation));
}

Ionosphaere::Ionosphaere(const Geographisch& ort, const std::vector<Restepoche>& reste) : m_mitte(ort)
{
    if (reste.empty()) return;
    m_sekunde = (reste.front().sekunde + reste.back().sekunde) / 2;
    Ausgleich ausgleich;
    for (const Restepoche& e : reste)
        for (const Rest& r : e.reste) {
            if (r.sinus < TIEFSTER_SINUS) continue;
            ausgleich.beobachtung(r, e.sekunde, anteile(ort, r.azimut, std::asin(r.sinus), e.sekunde));
            m_da = true;
        }
    if (m_da) m_wert = ausgleich.loesen();
}

// What each unknown counts in a slant delay; the ray meets the layer at its pierce point.
Wertesatz Ionosphaere::anteile(const Geographisch& ort, double azimut, double elevation, std::int64_t sekunde) const
{
    const double oben = winkel_oben(elevation);
    const double winkel = std::numbers::pi / 2.0 - elevation - oben;  // at the earth's centre
    const double breite =
        std::asin(std::sin(ort.breite) * std::cos(winkel) + std::cos(ort.breite) * std::sin(winkel) * std::cos(azimut));
    const double laenge = ort.laenge + std::asin(std::sin(winkel) * std::sin(azimut) / std::cos(breite));
    const double schief = 1.0 / std::cos(oben), weite = schief * ERDRADIUS / 1e6;
    return {schief, schief * static_cast<double>(sekunde - m_sekunde) / 3600.0, weite * (breite - m_mitte.breite),
            weite * std::cos(m_mitte.breite) * std::remainder(laenge - m_mitte.laenge, 2.0 * std::numbers::pi)};
}

double Ionosphaere::laufzeit(const Geographisch& ort, double azimut, double elevation, std::int64_t sekunde) const
{
    if (!m_da) return 0.0;
    const Wertesatz anteil = anteile(ort, azimut, elevation, sekunde);
    double summe = 0.0;
    for (std::size_t i = 0; i < WERTE; ++i) summe += anteil[i] * m_wert[i];
    return summe;
}

double Ionosphaerengefaelle::bei(const Xyz& satellit, const GpsZeit& zeit) const
{
    double summe = 0.0;
    for (const Gewichtsort& g : orte) {
        const Enu weg = enu(g.ort, satellit - g.ort.xyz);
        summe += g.gewicht * schicht.laufzeit(g.ort.blh, std::atan2(weg.e, weg.n),
                                              std::atan2(weg.u, std::hypot(weg.e, weg.n)), auf_sekunde(zeit).sekunde);
    }
    return summe;
}

}  // namespace jorv::suite

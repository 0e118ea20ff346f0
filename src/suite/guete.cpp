#include "suite/guete.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <set>
#include <utility>

namespace jorv::suite {

namespace {

constexpr double ZEITGLEICH = 0.002;  // s, both files print milliseconds

using Gruppe = std::pair<const Restzeile*, const Restzeile*>;

// Runs over the residual lines epoch by epoch.
template <typename Tun>
void epochenweise(const std::vector<Restzeile>& reste, Tun tun)
{
    for (std::size_t i = 0; i < reste.size();) {
        std::size_t ende = i;
        while (ende < reste.size() && std::abs(abstand(reste[ende].zeit, reste[i].zeit)) < ZEITGLEICH) ++ende;
        tun(Gruppe{reste.data() + i, reste.data() + ende});
        i = ende;
    }
}

class Rechnung {
public:
    Rechnung(const Loeserausgabe& ausgabe, Massstab massstab) : m_ausgabe(ausgabe), m_massstab(massstab)
    {
        m_varianzen.reserve(ausgabe.reste.size());
        for (const Restzeile& r : ausgabe.reste) m_varianzen.push_back(phasenvarianz(r.elevation));
    }
    Guetemasse ergebnis();

private:
    bool ist_feste_epoche(const GpsZeit& zeit);
    double rest(const Restzeile& r) const { return m_massstab == Massstab::code ? r.rest_code : r.rest; }
    double varianz(const Restzeile& r) const
    {
        return m_varianzen[static_cast<std::size_t>(&r - m_ausgabe.reste.data())];
    }
    bool zaehlt(const Restzeile& r, bool feste_epoche) const
    {
        return r.gueltig && (m_massstab != Massstab::fest || (feste_epoche && r.fest));
    }
    void quadratsumme(const Gruppe& epoche, int frequenz, bool feste_epoche);
    void geometrie(const Gruppe& epoche);

    const Loeserausgabe& m_ausgabe;
    Massstab m_massstab;
    std::vector<double> m_varianzen;  // of each residual line
    std::size_t m_stelle = 0;
    double m_summe = 0.0;
    std::size_t m_beobachtungen = 0, m_mittelwerte = 0;
    std::size_t m_epochen = 0, m_satelliten = 0, m_pdop_epochen = 0;
    double m_pdop = 0.0, m_pdop_beste = 0.0;
};

bool Rechnung::ist_feste_epoche(const GpsZeit& zeit)
{
    const auto& p = m_ausgabe.positionen;
    while (m_stelle < p.size() && abstand(p[m_stelle].zeit, zeit) < -ZEITGLEICH) ++m_stelle;
    return m_stelle < p.size() && abstand(p[m_stelle].zeit, zeit) < ZEITGLEICH && p[m_stelle].guete == Guete::fest;
}

// Weighted squares of the residuals less their weighted mean, which stands for the reference satellite.
void Rechnung::quadratsumme(const Gruppe& epoche, int frequenz, bool feste_epoche)
{
    double gewichte = 0.0, summe = 0.0;
    std::size_t anzahl = 0;
    for (const Restzeile* r = epoche.first; r != epoche.second; ++r) {
        if (r->frequenz != frequenz || !zaehlt(*r, feste_epoche)) continue;
        gewichte += 1.0 / varianz(*r);
        summe += rest(*r) / varianz(*r);
        ++anzahl;
    }
    if (anzahl < 2) return;
    for (const Restzeile* r = epoche.first; r != epoche.second; ++r) {
        if (r->frequenz != frequenz || !zaehlt(*r, feste_epoche)) continue;
        const double v = rest(*r) - summe / gewichte;
        m_summe += v * v / varianz(*r);
    }
    m_beobachtungen += anzahl;
    ++m_mittelwerte;
}

void Rechnung::geometrie(const Gruppe& epoche)
{
    std::vector<std::array<double, 2>> richtungen;
    std::vector<std::string_view> satelliten;
    for (const Restzeile* r = epoche.first; r != epoche.second; ++r) {
        if (!r->gueltig || std::find(satelliten.rbegin(), satelliten.rend(), r->satellit) != satelliten.rend())
            continue;
        satelliten.push_back(r->satellit);
        richtungen.push_back({r->azimut, r->elevation});
    }
    if (richtungen.empty()) return;
    ++m_epochen;
    m_satelliten += richtungen.size();
    const double wert = pdop(richtungen);
    if (wert <= 0.0) return;
    m_pdop += wert;
    m_pdop_beste = m_pdop_epochen == 0 ? wert : std::min(m_pdop_beste, wert);
    ++m_pdop_epochen;
}

Guetemasse Rechnung::ergebnis()
{
    std::set<std::pair<std::string_view, int>> feste;
    std::size_t gueltige = 0, auf_festen = 0, auffaellige = 0;
    epochenweise(m_ausgabe.reste, [&](const Gruppe& epoche) {
        const bool fest = ist_feste_epoche(epoche.first->zeit);
        for (const int frequenz : {1, 2}) quadratsumme(epoche, frequenz, fest);
        geometrie(epoche);
        for (const Restzeile* r = epoche.first; r != epoche.second; ++r)
            if (r->fest) feste.insert({r->satellit, r->frequenz});
    });
    Guetemasse g;
    const auto frei = static_cast<double>(m_beobachtungen) - static_cast<double>(m_mittelwerte) - 3.0;
    if (frei > 0) g.s0 = std::sqrt(m_summe / frei);
    if (m_mittelwerte > 0) g.feste = static_cast<double>(m_beobachtungen) / static_cast<double>(m_mittelwerte);
    m_stelle = 0;
    for (const Restzeile& r : m_ausgabe.reste) {
        const double grenze = 3.0 * g.s0 * std::sqrt(varianz(r));
        gueltige += r.gueltig;
        auf_festen += r.gueltig && feste.contains({r.satellit, r.frequenz});
        auffaellige += !r.gueltig || (zaehlt(r, ist_feste_epoche(r.zeit)) && std::abs(rest(r)) > grenze);
    }
    const auto anteil = [](std::size_t teil, std::size_t ganz) {
        return ganz == 0 ? 0.0 : 100.0 * static_cast<double>(teil) / static_cast<double>(ganz);
    };
    if (m_massstab == Massstab::fest) g.mehrdeutigkeiten = anteil(auf_festen, gueltige);
    g.umgewichtet = anteil(auffaellige, m_ausgabe.reste.size());
    if (m_epochen > 0) g.satelliten = static_cast<double>(m_satelliten) / static_cast<double>(m_epochen);
    g.pdop_beste = m_pdop_beste;
    if (m_pdop_epochen > 0) g.pdop_mittel = m_pdop / static_cast<double>(m_pdop_epochen);
    return g;
}

}  // namespace

double phasenvarianz(double elevation)
{
    const double s = std::max(std::sin(elevation), 0.05);
    return 2.0 * SIGMA_PHASE * SIGMA_PHASE * (1.0 + 1.0 / (s * s));
}

double pdop(const std::vector<std::array<double, 2>>& richtungen)
{
    if (richtungen.size() < 4) return 0.0;
    // Normal equations of east, north, up and clock.
    std::array<std::array<double, 4>, 4> n{}, inverse{};
    for (const auto& [azimut, elevation] : richtungen) {
        const std::array<double, 4> a = {-std::cos(elevation) * std::sin(azimut),
                                         -std::cos(elevation) * std::cos(azimut), -std::sin(elevation), 1.0};
        for (std::size_t i = 0; i < 4; ++i)
            for (std::size_t k = 0; k < 4; ++k) n[i][k] += a[i] * a[k];
    }
    for (std::size_t i = 0; i < 4; ++i) inverse[i][i] = 1.0;
    for (std::size_t i = 0; i < 4; ++i) {
        if (n[i][i] < 1e-6) return 0.0;  // positive definite, so no pivoting is needed
        const double kehrwert = 1.0 / n[i][i];
        for (std::size_t k = 0; k < 4; ++k) {
            n[i][k] *= kehrwert;
            inverse[i][k] *= kehrwert;
        }
        for (std::size_t z = 0; z < 4; ++z) {
            const double faktor = z == i ? 0.0 : n[z][i];
            for (std::size_t k = 0; k < 4; ++k) {
                n[z][k] -= faktor * n[i][k];
                inverse[z][k] -= faktor * inverse[i][k];
            }
        }
    }
    return std::sqrt(inverse[0][0] + inverse[1][1] + inverse[2][2]);
}

Guetemasse guetemasse(const Loeserausgabe& ausgabe, Massstab massstab)
{
    return Rechnung(ausgabe, massstab).ergebnis();
}

}  // namespace jorv::suite

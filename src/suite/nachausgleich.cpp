#include "suite/nachausgleich.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <string_view>

#include "suite/ionosphaere.h"

namespace jorv::suite {

namespace {

constexpr double ZEITGLEICH = 0.002;  // s, both files print milliseconds
constexpr double NAHE = 0.060;        // m from the end; farther away other integers were fixed
constexpr std::size_t EPOCHEN_MINDESTENS = 5;
constexpr double BLOCK = 300.0;  // s over which the drift of the two phases is averaged
constexpr std::size_t BLOCK_EPOCHEN = 5;
constexpr double RAUSCHZEIT = 75.0;   // s that the noise of an average stays alike
constexpr double MEHRWEGZEIT = 60.0;  // the same for what is left of the noise in a place
// What sets a satellite's two phases apart however long one waits, metres: reflections, and antennas without
// calibration.
constexpr double BLEIBT = 0.0007, BLEIBT_UNKALIBRIERT = 0.002;
// Metres of the ionosphere on L1: never less, and at most so many for each unit of a misfit beyond that of calm air.
constexpr double IONO_MINDESTENS = 0.002, IONO_JE_S0 = 0.005, S0_RUHIG = 0.35;
constexpr double SIGMA_ANFANG = 0.003, ANFANG_JE_IONO = 3.0;  // metres; how far the run on L1 may be off

constexpr double DRIFT = IONO_VERHAELTNIS - 1.0;

using Vektor = std::array<double, 3>;
using Matrix = std::array<Vektor, 3>;

struct Beobachtung {
    std::size_t satellit = 0;
    Vektor richtung{};      // geocentric unit vector
    double l1 = 0, l2 = 0;  // metres, observed less computed at the place of the end
    double varianz = 0, schief = 0;
};
struct Ausgleichsepoche {
    double sekunde = 0;  // since the first one
    std::vector<Beobachtung> werte;
};

Vektor vektor(const Xyz& p)
{
    return {p.x, p.y, p.z};
}

double skalar(const Vektor& a, const Vektor& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Vektor richtung(const Ort& ort, double azimut, double elevation)
{
    const Vektor enu = {std::cos(elevation) * std::sin(azimut), std::cos(elevation) * std::cos(azimut),
                        std::sin(elevation)};
    Vektor v{};
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t k = 0; k < 3; ++k) v[i] += enu[k] * ort.horizont[k][i];
    return v;
}

Matrix inverse(const Matrix& m)
{
    Matrix k{};
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t j = 0; j < 3; ++j) {
            const std::size_t a = (j + 1) % 3, b = (j + 2) % 3, c = (i + 1) % 3, d = (i + 2) % 3;
            k[i][j] = m[a][c] * m[b][d] - m[a][d] * m[b][c];
        }
    const double det = m[0][0] * k[0][0] + m[0][1] * k[1][0] + m[0][2] * k[2][0];
    for (Vektor& zeile : k)
        for (double& wert : zeile) wert /= det;
    return k;
}

struct Normalen {
    Matrix n{};
    Vektor rechts{};
};

class Rechnung {
public:
    Rechnung(const Loeserausgabe& lauf, const Position& ende, double bleibt);
    bool genug() const { return m_epochen.size() >= EPOCHEN_MINDESTENS; }
    /// Sets the noise too. The greatest that is believed, metres.
    double ionosphaere(double hoechstens);
    /// Mean of the epochs, so that an epoch's sigmas are those of the whole span.
    Normalen normalen(double ionosphaere) const;

private:
    void epoche(const Position& position, const Restzeile* von, const Restzeile* bis, const GpsZeit& beginn);
    double dauer() const { return m_epochen.back().sekunde - m_epochen.front().sekunde + m_intervall; }
    void epoche_dazu(const Ausgleichsepoche& e, double ionosphaere, Normalen& summe) const;

    Ort m_ort;
    double m_bleibt;
    std::map<std::string_view, std::size_t> m_satelliten;
    std::vector<Ausgleichsepoche> m_epochen;
    double m_intervall = 0, m_rauschen = 1;  // the latter in variances of SIGMA_PHASE
};

Rechnung::Rechnung(const Loeserausgabe& lauf, const Position& ende, double bleibt) : m_ort(ende.ort), m_bleibt(bleibt)
{
    auto p = lauf.positionen.begin();
    const auto& reste = lauf.reste;
    for (std::size_t i = 0, bis = 0; i < reste.size(); i = bis) {
        while (bis < reste.size() && std::abs(abstand(reste[bis].zeit, reste[i].zeit)) < ZEITGLEICH) ++bis;
        while (p != lauf.positionen.end() && abstand(p->zeit, reste[i].zeit) < -ZEITGLEICH) ++p;
        if (p == lauf.positionen.end()) break;
        const bool da = abstand(p->zeit, reste[i].zeit) < ZEITGLEICH && p->guete == Guete::fest;
        if (da && laenge(p->ort - ende.ort) < NAHE)
            epoche(*p, reste.data() + i, reste.data() + bis, lauf.positionen.front().zeit);
    }
    if (m_epochen.size() > 1)
        m_intervall =
            (m_epochen.back().sekunde - m_epochen.front().sekunde) / static_cast<double>(m_epochen.size() - 1);
}

// A residual is that of the reference satellite less the satellite's own, against the place of its epoch.
void Rechnung::epoche(const Position& position, const Restzeile* von, const Restzeile* bis, const GpsZeit& beginn)
{
    const Vektor weiter = vektor(position.ort - m_ort.xyz);
    Ausgleichsepoche e{abstand(position.zeit, beginn), {}};
    const auto zaehlt = [](const Restzeile& r, int frequenz) { return r.frequenz == frequenz && r.gueltig && r.fest; };
    for (const Restzeile* a = von; a != bis; ++a) {
        if (!zaehlt(*a, 1)) continue;
        const Restzeile* b =
            std::find_if(von, bis, [&](const Restzeile& r) { return zaehlt(r, 2) && r.satellit == a->satellit; });
        if (b == bis) continue;
        Beobachtung o;
        o.satellit = m_satelliten.emplace(a->satellit, m_satelliten.size()).first->second;
        o.richtung = richtung(m_ort, a->azimut, a->elevation);
        o.l1 = -a->rest - skalar(o.richtung, weiter);
        o.l2 = -b->rest - skalar(o.richtung, weiter);
        o.varianz = phasenvarianz(a->elevation);
        o.schief = schraegfaktor(a->elevation);
        e.werte.push_back(o);
    }
    if (e.werte.size() >= 2) m_epochen.push_back(std::move(e));
}

// The delay that the drift of the two phases tells, averaged over blocks: what it changes inside them is noise, what
// the averages differ by beyond that is ionosphere.
double Rechnung::ionosphaere(double hoechstens)
{
    struct Block {
        double anzahl = 0, summe = 0, quadrate = 0, schief = 0, varianz = 0;
    };
    std::map<std::pair<std::size_t, int>, Block> bloecke;
    for (const Ausgleichsepoche& e : m_epochen) {
        double gewichte = 0, mittel = 0;
        for (const Beobachtung& o : e.werte) {
            gewichte += 1.0 / o.varianz;
            mittel += (o.l1 - o.l2) / o.varianz;
        }
        mittel /= gewichte;
        for (const Beobachtung& o : e.werte) {
            Block& b = bloecke[{o.satellit, static_cast<int>(e.sekunde / BLOCK)}];
            const double wert = (o.l1 - o.l2 - mittel) / DRIFT;
            b.anzahl += 1;
            b.summe += wert;
            b.quadrate += wert * wert;
            b.schief += o.schief;
            b.varianz += 2.0 * o.varianz / (DRIFT * DRIFT);
        }
    }
    double innen = 0, freiheit = 0, ueber = 0, gewichte = 0;
    std::erase_if(bloecke, [](const auto& b) { return b.second.anzahl < static_cast<double>(BLOCK_EPOCHEN); });
    for (const auto& [wer, b] : bloecke) {
        innen += (b.quadrate - b.summe * b.summe / b.anzahl) / (b.varianz / b.anzahl);
        freiheit += b.anzahl - 1;
    }
    if (freiheit > 0) m_rauschen = innen / freiheit;
    const double gleich = std::max(1.0, RAUSCHZEIT / std::max(1.0, m_intervall));  // epochs with the same noise
    for (const auto& [wer, b] : bloecke) {
        const double mittel = b.summe / b.anzahl, schief = b.schief / b.anzahl, varianz = b.varianz / b.anzahl;
        ueber += mittel * mittel / varianz - m_rauschen * gleich / b.anzahl;
        gewichte += schief * schief / varianz;
    }
    const double gesehen = ueber > 0 ? std::sqrt(ueber / gewichte) : 0.0;
    return std::max(IONO_MINDESTENS, std::min(gesehen, hoechstens));
}

// Unknowns: the place and the epoch's clock on each frequency, which go out again.
void Rechnung::epoche_dazu(const Ausgleichsepoche& e, double ionosphaere, Normalen& summe) const
{
    constexpr std::size_t N = 5;
    std::array<std::array<double, N + 1>, N> m{};
    const double gleich = m_rauschen * std::min(1.0, MEHRWEGZEIT / std::max(1.0, dauer()));
    for (const Beobachtung& o : e.werte) {
        const double rauschen = o.varianz * gleich + m_bleibt * m_bleibt, iono = std::pow(ionosphaere * o.schief, 2);
        const double c11 = rauschen + iono, c12 = IONO_VERHAELTNIS * iono,
                     c22 = rauschen + IONO_VERHAELTNIS * IONO_VERHAELTNIS * iono, det = c11 * c22 - c12 * c12;
        const std::array<std::array<double, 2>, 2> gewicht = {{{c22 / det, -c12 / det}, {-c12 / det, c11 / det}}};
        const auto& r = o.richtung;
        const std::array<std::array<double, N + 1>, 2> zeile = {
            {{-r[0], -r[1], -r[2], 1, 0, o.l1}, {-r[0], -r[1], -r[2], 0, 1, o.l2}}};
        for (std::size_t f = 0; f < 2; ++f)
            for (std::size_t g = 0; g < 2; ++g)
                for (std::size_t i = 0; i < N; ++i)
                    for (std::size_t k = 0; k <= N; ++k) m[i][k] += gewicht[f][g] * zeile[f][i] * zeile[g][k];
    }
    for (const std::size_t uhr : {4u, 3u})
        for (std::size_t i = 0; i < uhr; ++i) {
            const double faktor = m[i][uhr] / m[uhr][uhr];
            for (std::size_t k = 0; k <= N; ++k)
                if (k < uhr || k == N) m[i][k] -= faktor * m[uhr][k];
        }
    const auto anteil = 1.0 / static_cast<double>(m_epochen.size());
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t k = 0; k < 3; ++k) summe.n[i][k] += anteil * m[i][k];
        summe.rechts[i] += anteil * m[i][N];
    }
}

Normalen Rechnung::normalen(double ionosphaere) const
{
    Normalen summe;
    for (const Ausgleichsepoche& e : m_epochen) epoche_dazu(e, ionosphaere, summe);
    return summe;
}

double wurzel_mit_vorzeichen(double wert)
{
    return std::copysign(std::sqrt(std::abs(wert)), wert);
}

}  // namespace

std::optional<Nachausgleich> nachausgleichen(const Loeserausgabe& lauf, const Position& ende, const Xyz& anfang,
                                             double s0, bool kalibriert)
{
    Rechnung rechnung(lauf, ende, kalibriert ? BLEIBT : BLEIBT_UNKALIBRIERT);
    if (!rechnung.genug()) return {};
    Nachausgleich ergebnis{ende, 0.0};
    ergebnis.ionosphaere = rechnung.ionosphaere(IONO_JE_S0 * std::sqrt(std::max(0.0, s0 * s0 - S0_RUHIG * S0_RUHIG)));
    Normalen n = rechnung.normalen(ergebnis.ionosphaere);
    const double gewicht = std::pow(SIGMA_ANFANG + ANFANG_JE_IONO * ergebnis.ionosphaere, -2);
    const Vektor dorthin = vektor(anfang - ende.ort);
    for (std::size_t i = 0; i < 3; ++i) {
        n.n[i][i] += gewicht;
        n.rechts[i] += gewicht * dorthin[i];
    }
    const Matrix q = inverse(n.n);
    ergebnis.position.ort = ende.ort + Xyz{skalar(q[0], n.rechts), skalar(q[1], n.rechts), skalar(q[2], n.rechts)};
    // The solver's deviations are those of noise alone; what the ionosphere leaves may be more.
    const auto& vorher = ende.sigma;
    if (q[0][0] + q[1][1] + q[2][2] > vorher.x * vorher.x + vorher.y * vorher.y + vorher.z * vorher.z) {
        ergebnis.position.sigma = {std::sqrt(q[0][0]), std::sqrt(q[1][1]), std::sqrt(q[2][2])};
        ergebnis.position.gemischt = {wurzel_mit_vorzeichen(q[0][1]), wurzel_mit_vorzeichen(q[1][2]),
                                      wurzel_mit_vorzeichen(q[2][0])};
    }
    return ergebnis;
}

}  // namespace jorv::suite

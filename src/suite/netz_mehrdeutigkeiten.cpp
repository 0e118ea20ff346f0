#include "suite/netz_mehrdeutigkeiten.h"

#include <algorithm>
#include <map>
#include <optional>

#include "suite/normalgleichung.h"

namespace jorv::suite {

namespace {

constexpr double LAMBDA1 = LICHT / FREQUENZ1, LAMBDA2 = LICHT / FREQUENZ2;
constexpr double WEITSPUR = LICHT / (FREQUENZ1 - FREQUENZ2), ENGSPUR = LICHT / (FREQUENZ1 + FREQUENZ2);
constexpr double QUADRATE = FREQUENZ1 * FREQUENZ1 - FREQUENZ2 * FREQUENZ2;
constexpr double B1 = FREQUENZ1 * FREQUENZ1 / QUADRATE, B2 = -FREQUENZ2 * FREQUENZ2 / QUADRATE;

constexpr double SPRUNG_IONO = 0.06, SPRUNG_FREI = 0.08;  // metres from one epoch to the next
constexpr std::size_t BOGEN_EPOCHEN = 10;
constexpr std::int64_t BOGEN_DAUER = 270;  // s
constexpr double SIGMA = 0.010;            // of an ionosphere-free difference in the zenith each 30 s, metres
// What is expected of the relative zenith delay: metres, metres per hour, gradients in metres.
constexpr std::size_t LUFTWERTE = 4;
constexpr std::array<double, LUFTWERTE> SIGMA_LUFT = {0.15, 0.03, 0.0005, 0.0005};
constexpr double SICHER = 0.12, NAHE = 0.25;  // cycles
constexpr double BRUCH_HOECHSTENS = 0.13, ANTEIL_FEST = 0.6;
// Metres by which the second station's place may come out beside its coordinates before anything is fixed, level and in
// height, from two and a quarter hours; less time tells less.
constexpr double VERSATZ_LAGE = 0.10, VERSATZ_HOEHE = 0.15, VERSATZ_DAUER = 8100.0;
constexpr std::size_t WEITERE = LUFTWERTE + 3;  // unknowns beside the integers
constexpr double SIGMA_ORT = 100.0;             // metres, expected of the place when it is left free

// A satellite's difference of two stations in one epoch.
struct Differenz {
    int satellit = 0;
    std::size_t bogen = 0;
    double l1 = 0, l2 = 0, weit = 0;  // metres; the last is phase wide lane less code narrow lane
    double sinus = 0, feucht = 0;
    double nord = 0, ost = 0;  // what a gradient of the troposphere counts
    Enu richtung;              // from the second station
    double frei() const { return B1 * l1 + B2 * l2; }
};
struct Differenzepoche {
    std::int64_t sekunde = 0;
    std::vector<Differenz> werte;
};

struct Bogen {
    std::size_t epochen = 0;
    std::int64_t von = 0, bis = 0;
    double gewicht = 0, weit = 0;  // sums
    double nw = 0, n1 = 0;         // integers relative to those of the reference arc
    double anfang = 0;             // metres taken off before the adjustment, a multiple of the narrow lane
    bool benutzt = false, fest = false;
};

Differenz differenz(const Rest& a, const Rest& b)
{
    const double l1 = b.l1 - a.l1, l2 = b.l2 - a.l2, c1 = b.c1 - a.c1, p2 = b.p2 - a.p2;
    const double weit = (FREQUENZ1 * l1 - FREQUENZ2 * l2) / (FREQUENZ1 - FREQUENZ2) -
                        (FREQUENZ1 * c1 + FREQUENZ2 * p2) / (FREQUENZ1 + FREQUENZ2);
    // Chen and Herring (1997), Journal of Geophysical Research 102(B9): gradients count 1/(sin tan + 0.0032).
    const double sinus = std::min(a.sinus, b.sinus);
    const double schief = 1.0 / (sinus * sinus / std::sqrt(1.0 - sinus * sinus) + 0.0032);
    const double flach = std::sqrt(1.0 - b.sinus * b.sinus);
    return {a.satellit,
            0,
            l1,
            l2,
            weit,
            sinus,
            (a.feucht + b.feucht) / 2.0,
            schief * std::cos(a.azimut),
            schief * std::sin(a.azimut),
            {flach * std::sin(b.azimut), flach * std::cos(b.azimut), b.sinus}};
}

double median(std::vector<double> werte)
{
    const auto mitte = werte.begin() + static_cast<std::ptrdiff_t>(werte.size() / 2);
    std::nth_element(werte.begin(), mitte, werte.end());
    return *mitte;
}

class Paarrechner {
public:
    Paarrechner(double intervall) : m_intervall(intervall) {}
    Paar rechnen(const std::vector<Restepoche>& erste, const std::vector<Restepoche>& zweite);

private:
    // The arc that a satellite is in.
    struct Stand {
        std::size_t bogen = 0;
        int bogen_a = 0, bogen_b = 0;
        std::int64_t sekunde = 0;
        double l1 = 0, l2 = 0, frei = 0;
    };
    void epoche(const Restepoche& a, const Restepoche& b);
    void boegen_waehlen();
    void weitspur();
    Normalgleichung normalgleichung(double mitte) const;
    void engspur(Paar& paar);
    void ergebnis(Paar& paar) const;
    double gewicht(const Differenz& d) const { return d.sinus * d.sinus * std::min(1.0, m_intervall / NETZTAKT); }

    double m_intervall;
    std::vector<Differenzepoche> m_epochen;
    std::vector<Bogen> m_boegen;
    std::map<int, Stand> m_stand;
    std::size_t m_bezug = 0;
};

void Paarrechner::epoche(const Restepoche& a, const Restepoche& b)
{
    struct Neu {
        Differenz d;
        int bogen_a, bogen_b;
        bool weiter;
    };
    std::vector<Neu> neue;
    std::vector<double> zuwachs;
    for (std::size_t i = 0, k = 0; i < a.reste.size() && k < b.reste.size();) {
        const Rest &x = a.reste[i], &y = b.reste[k];
        if (x.satellit != y.satellit) {
            ++(x.satellit < y.satellit ? i : k);
            continue;
        }
        Neu n{differenz(x, y), x.bogen, y.bogen, false};
        const auto alt = m_stand.find(x.satellit);
        if (alt != m_stand.end()) {
            const Stand& s = alt->second;
            n.weiter = s.bogen_a == x.bogen && s.bogen_b == y.bogen &&
                       static_cast<double>(a.sekunde - s.sekunde) <= std::max(BOGENLUECKE, 3.0 * m_intervall) &&
                       std::abs((n.d.l1 - n.d.l2) - (s.l1 - s.l2)) <= SPRUNG_IONO;
            if (n.weiter) zuwachs.push_back(n.d.frei() - s.frei);
        }
        neue.push_back(n);
        ++i, ++k;
    }
    // Both clocks move all satellites alike; who moves differently has slipped by the same way on both frequencies.
    const double uhr = zuwachs.empty() ? 0.0 : median(zuwachs);
    Differenzepoche e{a.sekunde, {}};
    for (Neu& n : neue) {
        Stand& s = m_stand[n.d.satellit];
        if (n.weiter && zuwachs.size() > 2 && std::abs(n.d.frei() - s.frei - uhr) > SPRUNG_FREI) n.weiter = false;
        if (!n.weiter) {
            s.bogen = m_boegen.size();
            m_boegen.emplace_back();
            m_boegen.back().von = a.sekunde;
        }
        s = {s.bogen, n.bogen_a, n.bogen_b, a.sekunde, n.d.l1, n.d.l2, n.d.frei()};
        n.d.bogen = s.bogen;
        Bogen& bogen = m_boegen[s.bogen];
        ++bogen.epochen;
        bogen.bis = a.sekunde;
        bogen.gewicht += gewicht(n.d);
        bogen.weit += gewicht(n.d) * n.d.weit;
        e.werte.push_back(n.d);
    }
    if (!e.werte.empty()) m_epochen.push_back(std::move(e));
}

void Paarrechner::boegen_waehlen()
{
    m_bezug = m_boegen.size();
    for (std::size_t i = 0; i < m_boegen.size(); ++i) {
        Bogen& b = m_boegen[i];
        b.benutzt = b.epochen >= BOGEN_EPOCHEN && b.bis - b.von >= BOGEN_DAUER;
        if (b.benutzt && (m_bezug == m_boegen.size() || b.gewicht > m_boegen[m_bezug].gewicht)) m_bezug = i;
    }
}

void Paarrechner::weitspur()
{
    const double bezug = m_boegen[m_bezug].weit / m_boegen[m_bezug].gewicht;
    for (Bogen& b : m_boegen) b.nw = std::round((b.weit / b.gewicht - bezug) / WEITSPUR);
    for (const Differenzepoche& e : m_epochen)
        for (const Differenz& d : e.werte) {
            Bogen& b = m_boegen[d.bogen];
            if (e.sekunde == b.von) b.anfang = std::round((d.frei() + B2 * LAMBDA2 * b.nw) / ENGSPUR) * ENGSPUR;
        }
}

// Unknowns: one narrow-lane integer for each arc, then offset and hourly rate of the relative zenith delay, its
// gradients, and the second station's place.
Normalgleichung Paarrechner::normalgleichung(double mitte) const
{
    const std::size_t n = m_boegen.size();
    Normalgleichung g(n + WEITERE);
    std::vector<double> summe(n + WEITERE);
    for (const Differenzepoche& e : m_epochen) {
        const double stunde = (static_cast<double>(e.sekunde) - mitte) / 3600.0;
        double gewichte = 0, summe_y = 0;
        std::fill(summe.begin(), summe.end(), 0.0);
        std::vector<std::size_t> beteiligt;
        for (const Differenz& d : e.werte) {
            const Bogen& b = m_boegen[d.bogen];
            if (!b.benutzt) continue;
            const double w = gewicht(d) / (SIGMA * SIGMA), y = d.frei() + B2 * LAMBDA2 * b.nw - b.anfang;
            const Enu& r = d.richtung;
            const std::array<std::size_t, 1 + WEITERE> stelle = {d.bogen, n, n + 1, n + 2, n + 3, n + 4, n + 5, n + 6};
            const std::array<double, 1 + WEITERE> x = {ENGSPUR, d.feucht, d.feucht * stunde, d.nord, d.ost, -r.e,
                                                       -r.n,    -r.u};
            for (std::size_t i = 0; i < x.size(); ++i) {
                for (std::size_t k = 0; k < x.size(); ++k) g.bei(stelle[i], stelle[k]) += w * x[i] * x[k];
                g.rechts(stelle[i]) += w * x[i] * y;
                summe[stelle[i]] += w * x[i];
            }
            beteiligt.push_back(d.bogen);
            gewichte += w;
            summe_y += w * y;
        }
        if (beteiligt.empty()) continue;
        beteiligt.insert(beteiligt.end(), {n, n + 1, n + 2, n + 3, n + 4, n + 5, n + 6});
        for (const std::size_t i : beteiligt) {  // the epoch's clocks go out with the weighted mean
            for (const std::size_t k : beteiligt) g.bei(i, k) -= summe[i] * summe[k] / gewichte;
            g.rechts(i) -= summe[i] * summe_y / gewichte;
        }
    }
    for (std::size_t i = 0; i < n; ++i) g.bei(i, i) += 1e-8;  // arcs that nothing ties to the reference
    for (std::size_t i = 0; i < LUFTWERTE; ++i) g.bei(n + i, n + i) += 1.0 / (SIGMA_LUFT[i] * SIGMA_LUFT[i]);
    for (std::size_t i = LUFTWERTE; i < WEITERE; ++i) g.bei(n + i, n + i) += 1.0 / (SIGMA_ORT * SIGMA_ORT);
    return g;
}

void Paarrechner::engspur(Paar& paar)
{
    const std::size_t n = m_boegen.size();
    const double mitte = static_cast<double>(m_epochen.front().sekunde + m_epochen.back().sekunde) / 2.0;
    const Normalgleichung g = normalgleichung(mitte);
    std::vector<bool> frei(n + WEITERE, true);
    std::vector<double> gehalten(n + WEITERE);
    for (std::size_t i = 0; i < n; ++i) frei[i] = m_boegen[i].benutzt && i != m_bezug;
    if (const auto l = g.loesen(frei, gehalten)) {
        const auto ort = [&](const std::vector<double>& wert) {
            return Enu{wert[n + LUFTWERTE], wert[n + LUFTWERTE + 1], wert[n + LUFTWERTE + 2]};
        };
        paar.versatz = ort(l->wert);
        paar.versatz_sigma = ort(l->sigma);
    }
    std::fill(frei.begin() + static_cast<std::ptrdiff_t>(n + LUFTWERTE), frei.end(), false);
    m_boegen[m_bezug].fest = true;
    double quadrate = 0;
    for (;;) {
        const auto l = g.loesen(frei, gehalten);
        if (!l) break;
        paar.zenit = l->wert[n];
        std::size_t bester = n;
        for (std::size_t i = 0; i < n; ++i) {
            const double bruch = l->wert[i] - std::round(l->wert[i]);
            if (!frei[i] || l->sigma[i] >= SICHER || std::abs(bruch) >= NAHE) continue;
            if (bester == n || l->sigma[i] < l->sigma[bester]) bester = i;
        }
        if (bester == n) break;
        const double ganz = std::round(l->wert[bester]), bruch = l->wert[bester] - ganz;
        quadrate += bruch * bruch;
        frei[bester] = false;
        gehalten[bester] = ganz;
        m_boegen[bester].fest = true;
        m_boegen[bester].n1 = ganz;
        ++paar.fest;
    }
    paar.bruch = paar.fest > 0 ? std::sqrt(quadrate / static_cast<double>(paar.fest)) : 0.0;
}

void Paarrechner::ergebnis(Paar& paar) const
{
    for (const Bogen& b : m_boegen) paar.boegen += b.benutzt;
    if (paar.boegen > 0) --paar.boegen;  // the reference has nothing to fix
    for (const Differenzepoche& e : m_epochen) {
        Paarepoche p{e.sekunde, {}};
        for (const Differenz& d : e.werte) {
            const Bogen& b = m_boegen[d.bogen];
            if (!b.fest) continue;
            const double n1 = b.n1 + std::round(b.anfang / ENGSPUR);
            p.reste.push_back({d.satellit, d.l1 - LAMBDA1 * n1, d.l2 - LAMBDA2 * (n1 - b.nw)});
        }
        if (p.reste.size() > 1) paar.epochen.push_back(std::move(p));
    }
}

Paar Paarrechner::rechnen(const std::vector<Restepoche>& erste, const std::vector<Restepoche>& zweite)
{
    Paar paar;
    for (std::size_t i = 0, k = 0; i < erste.size() && k < zweite.size();) {
        if (erste[i].sekunde == zweite[k].sekunde)
            epoche(erste[i++], zweite[k++]);
        else
            ++(erste[i].sekunde < zweite[k].sekunde ? i : k);
    }
    boegen_waehlen();
    if (m_bezug == m_boegen.size()) return paar;
    paar.dauer = static_cast<double>(m_epochen.back().sekunde - m_epochen.front().sekunde);
    weitspur();
    engspur(paar);
    ergebnis(paar);
    return paar;
}

}  // namespace

bool Paar::brauchbar() const
{
    const double mal = std::pow(std::max(1.0, VERSATZ_DAUER / std::max(1.0, dauer)), 1.5);
    const auto& s = versatz_sigma;
    const bool am_ort = std::hypot(versatz.e, versatz.n) <= std::max(VERSATZ_LAGE * mal, 3.0 * std::hypot(s.e, s.n)) &&
                        std::abs(versatz.u) <= std::max(VERSATZ_HOEHE * mal, 3.0 * s.u);
    return am_ort && fest >= 3 && static_cast<double>(fest) >= ANTEIL_FEST * static_cast<double>(boegen) &&
           bruch <= BRUCH_HOECHSTENS;
}

Paar paar_loesen(const std::vector<Restepoche>& erste, const std::vector<Restepoche>& zweite, double intervall)
{
    return Paarrechner(intervall).rechnen(erste, zweite);
}

}  // namespace jorv::suite

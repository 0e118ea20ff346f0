#include "suite/netz_interpolation.h"

#include <algorithm>
#include <cmath>

namespace jorv::suite {

namespace {

constexpr double AUF_LINIE = 0.02;   // smaller to larger moment of the stations' places
constexpr double NAH = 100.0;        // metres; a distance below it weighs no more
constexpr std::int64_t LUECKE = 90;  // s between two epochs that bridge what lies between them

// The weighted sums of the residuals of the satellites that all stations have.
Korrekturepoche summen(const std::vector<const Paarepoche*>& epochen, const std::vector<double>& gewichte)
{
    Korrekturepoche alle{epochen.front()->sekunde, {}};
    for (const Paarrest& erster : epochen.front()->reste) {
        Korrektur s{erster.satellit};
        bool ueberall = true;
        for (std::size_t k = 0; k < epochen.size() && ueberall; ++k) {
            const Paarrest* r = rest_von(*epochen[k], erster.satellit);
            ueberall = r != nullptr;
            if (!r) continue;
            s.l1 += gewichte[k] * r->l1;
            s.l2 += gewichte[k] * r->l2;
        }
        if (ueberall) alle.werte.push_back(s);
    }
    return alle;
}

// The sums hold the stations' clocks, alike for all satellites. They go out with the mean change since the last epoch,
// so that nothing steps when a satellite comes or goes; without any satellite in common, with the mean itself.
void anschliessen(Korrekturepoche& neu, const Korrekturepoche& alt)
{
    double l1 = 0, l2 = 0, anzahl = 0;
    for (const Korrektur& a : alt.werte)
        for (const Korrektur& b : neu.werte)
            if (a.satellit == b.satellit) {
                l1 += a.l1 - b.l1;
                l2 += a.l2 - b.l2;
                anzahl += 1;
            }
    if (anzahl == 0) {
        for (const Korrektur& b : neu.werte) {
            l1 -= b.l1;
            l2 -= b.l2;
            anzahl += 1;
        }
    }
    for (Korrektur& k : neu.werte) {
        k.l1 += l1 / anzahl;
        k.l2 += l2 / anzahl;
    }
}

const Korrektur* korrektur_von(const Korrekturepoche& epoche, int satellit)
{
    const auto k = std::find_if(epoche.werte.begin(), epoche.werte.end(),
                                [&](const Korrektur& a) { return a.satellit == satellit; });
    return k == epoche.werte.end() ? nullptr : &*k;
}

// Twice the area of a triangle, positive when it turns to the left.
double flaeche(const Enu& a, const Enu& b, const Enu& c)
{
    return (b.e - a.e) * (c.n - a.n) - (c.e - a.e) * (b.n - a.n);
}

bool im_dreieck(const Enu& p, const Enu& a, const Enu& b, const Enu& c)
{
    const double u = flaeche(p, a, b), v = flaeche(p, b, c), w = flaeche(p, c, a);
    return (u > 0 && v > 0 && w > 0) || (u < 0 && v < 0 && w < 0);
}

double abstand_von_strecke(const Enu& p, const Enu& a, const Enu& b)
{
    const double de = b.e - a.e, dn = b.n - a.n, quadrat = de * de + dn * dn;
    const double t = quadrat > 0 ? std::clamp(((p.e - a.e) * de + (p.n - a.n) * dn) / quadrat, 0.0, 1.0) : 0.0;
    return std::hypot(p.e - a.e - t * de, p.n - a.n - t * dn);
}

}  // namespace

const Paarrest* rest_von(const Paarepoche& epoche, int satellit)
{
    const auto r = std::lower_bound(epoche.reste.begin(), epoche.reste.end(), satellit,
                                    [](const Paarrest& a, int b) { return a.satellit < b; });
    return r == epoche.reste.end() || r->satellit != satellit ? nullptr : &*r;
}

std::vector<double> ebenengewichte(const Ort& master, const Xyz& virtuell, const std::vector<Xyz>& stationen)
{
    const Enu v = enu(master, virtuell - master.xyz);
    double ee = 0, en = 0, nn = 0;
    std::vector<Enu> x;
    std::vector<double> p;
    for (const Xyz& ort : stationen) {
        const Enu s = enu(master, ort - master.xyz);
        const double strecke = std::max(NAH, laenge(ort - virtuell)), gewicht = 1.0 / (strecke * strecke);
        x.push_back(s);
        p.push_back(gewicht);
        ee += gewicht * s.e * s.e;
        en += gewicht * s.e * s.n;
        nn += gewicht * s.n * s.n;
    }
    const double wurzel = std::hypot((ee - nn) / 2.0, en), gross = (ee + nn) / 2.0 + wurzel;
    const double klein = (ee + nn) / 2.0 - wurzel, det = ee * nn - en * en;
    std::vector<double> gewichte;
    if (klein > AUF_LINIE * gross) {
        const double a = (nn * v.e - en * v.n) / det, b = (ee * v.n - en * v.e) / det;
        for (std::size_t k = 0; k < x.size(); ++k) gewichte.push_back(p[k] * (a * x[k].e + b * x[k].n));
        return gewichte;
    }
    const double winkel = std::atan2(2.0 * en, ee - nn) / 2.0, ce = std::cos(winkel), cn = std::sin(winkel);
    for (std::size_t k = 0; k < x.size(); ++k)
        gewichte.push_back((v.e * ce + v.n * cn) * p[k] * (x[k].e * ce + x[k].n * cn) / gross);
    return gewichte;
}

double abstand_vom_netz(const Ort& master, const Xyz& virtuell, const std::vector<Xyz>& stationen)
{
    const Enu v = enu(master, virtuell - master.xyz);
    std::vector<Enu> ecken = {Enu{}};
    for (const Xyz& ort : stationen) ecken.push_back(enu(master, ort - master.xyz));
    double naechster = std::hypot(v.e, v.n);
    for (std::size_t i = 0; i < ecken.size(); ++i)
        for (std::size_t k = 0; k < i; ++k) {
            naechster = std::min(naechster, abstand_von_strecke(v, ecken[i], ecken[k]));
            for (std::size_t j = 0; j < k; ++j)
                if (im_dreieck(v, ecken[i], ecken[k], ecken[j])) return 0.0;
        }
    return naechster;
}

std::vector<Korrekturepoche> korrekturen(const std::vector<Hilfsstation>& stationen,
                                         const std::vector<double>& gewichte)
{
    std::vector<Korrekturepoche> alle;
    if (stationen.empty()) return alle;
    std::vector<std::size_t> stelle(stationen.size());
    for (const Paarepoche& e : stationen.front().paar.epochen) {
        std::vector<const Paarepoche*> epochen;
        for (std::size_t k = 0; k < stationen.size(); ++k) {
            const auto& reihe = stationen[k].paar.epochen;
            while (stelle[k] < reihe.size() && reihe[stelle[k]].sekunde < e.sekunde) ++stelle[k];
            if (stelle[k] < reihe.size() && reihe[stelle[k]].sekunde == e.sekunde) epochen.push_back(&reihe[stelle[k]]);
        }
        if (epochen.size() < stationen.size()) continue;
        Korrekturepoche k = summen(epochen, gewichte);
        if (k.werte.size() < 2) continue;
        anschliessen(k, alle.empty() ? Korrekturepoche{} : alle.back());
        alle.push_back(std::move(k));
    }
    return alle;
}

std::optional<Korrektur> korrektur_bei(const std::vector<Korrekturepoche>& alle, const GpsZeit& zeit, int satellit)
{
    const std::int64_t sekunde = auf_sekunde(zeit).sekunde;
    const auto oben = std::lower_bound(alle.begin(), alle.end(), sekunde,
                                       [](const Korrekturepoche& a, std::int64_t b) { return a.sekunde < b; });
    if (oben == alle.end()) return {};
    const Korrektur* b = korrektur_von(*oben, satellit);
    if (!b) return {};
    if (oben->sekunde == sekunde) return *b;
    if (oben == alle.begin()) return {};
    const auto unten = std::prev(oben);
    const Korrektur* a = korrektur_von(*unten, satellit);
    if (!a || oben->sekunde - unten->sekunde > LUECKE) return {};
    const double anteil =
        static_cast<double>(sekunde - unten->sekunde) / static_cast<double>(oben->sekunde - unten->sekunde);
    return Korrektur{satellit, a->l1 + anteil * (b->l1 - a->l1), a->l2 + anteil * (b->l2 - a->l2)};
}

}  // namespace jorv::suite

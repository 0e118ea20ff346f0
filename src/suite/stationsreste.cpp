#include "suite/stationsreste.h"

#include <algorithm>
#include <optional>

#include "suite/troposphaere.h"

namespace jorv::suite {

namespace {

constexpr double LAMBDA1 = LICHT / FREQUENZ1, LAMBDA2 = LICHT / FREQUENZ2;
constexpr double HOCH_GENUG = 6.0 * GRAD;
constexpr double NOMINELL = 0.1;  // s by which a tag may lie beside the full second

double code1(const Messung& m)
{
    return m[Art::C1] != 0.0 ? m[Art::C1] : m[Art::P1];
}

double code2(const Messung& m)
{
    return m[Art::P2] != 0.0 ? m[Art::P2] : m[Art::C2];
}

bool verloren(const Messung& m)
{
    const auto schlupf = [&](Art art) {
        const char c = m.schlupf[static_cast<std::size_t>(art)];
        return c >= '0' && c <= '9' && (c - '0') % 2 == 1;
    };
    return schlupf(Art::L1) || schlupf(Art::L2);
}

// Whether an epoch of observations in that interval is left out as too dense: the first of each half minute stays,
// whatever second it falls on.
bool zu_dicht(std::int64_t sekunde, double intervall)
{
    const bool im_takt = intervall > 0 && intervall < NETZTAKT && std::abs(std::remainder(NETZTAKT, intervall)) < 1e-3;
    return im_takt && static_cast<double>(sekunde % static_cast<std::int64_t>(NETZTAKT)) >= intervall;
}

// The running number of a satellite's arc at one station.
struct Faden {
    int bogen = 0;
    std::optional<GpsZeit> zuletzt;
};

class Stationsrechner {
public:
    Stationsrechner(const Ort& ort, const Phasenzentrum& zentrum, const GpsZeit& zeit)
        : m_ort(ort),
          m_zentrum(zentrum),
          m_luft(Troposphaerenmodell::voll, ort.blh, static_cast<double>(tag_im_jahr(zeit))),
          m_niell(ort.blh, static_cast<double>(tag_im_jahr(zeit)))
    {
    }
    std::optional<Rest> rechnen(const Messung& m, const Ephemeride& eph, const GpsZeit& zeit) const
    {
        const double code = code1(m);
        const Satellitenlage lage = satellitenlage(eph, verschoben(zeit, -code / LICHT));
        const Xyz sendung = lage.nach(-lage.uhr);
        double dauer = code / LICHT;
        for (int i = 0; i < 4; ++i) dauer = laenge(gedreht(sendung, dauer) - m_ort.xyz) / LICHT;
        const Enu weg = enu(m_ort, gedreht(sendung, dauer) - m_ort.xyz);
        const double strecke = dauer * LICHT;
        const Enu richtung{weg.e / strecke, weg.n / strecke, weg.u / strecke};
        const double hoehe = std::asin(richtung.u);
        if (hoehe < HOCH_GENUG) return {};
        const double modell = strecke - LICHT * lage.uhr + m_luft.laufzeit(hoehe);
        Rest r;
        r.satellit = m.satellit;
        // The codes end at the antenna too: a metre of its height would be a wide lane.
        const double eins = modell + m_zentrum.laenger(0, richtung), zwei = modell + m_zentrum.laenger(1, richtung);
        r.l1 = m[Art::L1] * LAMBDA1 - eins;
        r.l2 = m[Art::L2] * LAMBDA2 - zwei;
        r.c1 = code - eins;
        r.p2 = code2(m) - zwei;
        r.sinus = richtung.u;
        r.azimut = std::atan2(richtung.e, richtung.n);
        r.feucht = m_niell.bei(hoehe).feucht;
        return r;
    }

private:
    const Ort& m_ort;
    const Phasenzentrum& m_zentrum;
    Luft m_luft;
    Niell m_niell;
};

}  // namespace

std::vector<Restepoche> stationsreste(const RinexBeobachtung& daten, const Ort& ort, const Phasenzentrum& zentrum,
                                      const Bahnen& bahnen)
{
    std::vector<Restepoche> alle;
    if (daten.epochen.empty()) return alle;
    const Stationsrechner rechner(ort, zentrum, daten.epochen.front().zeit);
    const double intervall = daten.intervall(), luecke = std::max(BOGENLUECKE, 3.0 * intervall);
    std::map<int, Faden> faeden;
    for (const Epoche& e : daten.epochen) {
        const GpsZeit nominell = auf_sekunde(e.zeit);
        if (e.kennung == 1)
            for (auto& [satellit, faden] : faeden) ++faden.bogen;
        Restepoche epoche{nominell.sekunde, {}};
        const bool dicht = zu_dicht(nominell.sekunde, intervall);
        for (std::size_t i = 0; i < e.anzahl; ++i) {
            const Messung& m = daten.messungen[e.erste + i];
            Faden& faden = faeden[m.satellit];
            if (verloren(m) || (faden.zuletzt && abstand(e.zeit, *faden.zuletzt) > luecke)) ++faden.bogen;
            faden.zuletzt = e.zeit;
            if (dicht) continue;
            if (m[Art::L1] == 0.0 || m[Art::L2] == 0.0 || code1(m) == 0.0 || code2(m) == 0.0) continue;
            const auto satz = bahnen.find(m.satellit);
            const Ephemeride* eph =
                satz == bahnen.end() ? nullptr : passende_ephemeride(satz->second, m.satellit, nominell);
            if (!eph) continue;
            auto rest = rechner.rechnen(m, *eph, e.zeit);
            if (!rest) continue;
            rest->bogen = faden.bogen;
            epoche.reste.push_back(*rest);
        }
        if (dicht) continue;
        std::sort(epoche.reste.begin(), epoche.reste.end(),
                  [](const Rest& a, const Rest& b) { return a.satellit < b.satellit; });
        const bool doppelt = !alle.empty() && alle.back().sekunde == epoche.sekunde;
        if (!doppelt && std::abs(abstand(e.zeit, nominell)) < NOMINELL) alle.push_back(std::move(epoche));
    }
    return alle;
}

}  // namespace jorv::suite

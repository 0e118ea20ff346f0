#include "suite/netz_abgleich.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>

namespace jorv::suite {

namespace {

constexpr double GLEICHZEITIG = 0.1;  // s between the tags of a common epoch
constexpr double LUECKE = 95.0;       // s
constexpr double SPRUNG = 0.06;       // metres between two epochs
constexpr double RAUSCHZEIT = 150.0;  // s that the noise stays alike
constexpr double SIGMA_ANTEIL = 0.4;  // how far from 1 the factor is expected
constexpr std::size_t DURCHGAENGE = 4;

struct Wert {
    std::size_t epoche, bogen;
    double rest, netz;  // rover less shifted station, network less shifted station: metres of L1 less L2
};

const Messung* messung_von(const RinexBeobachtung& daten, const Epoche& epoche, int satellit)
{
    for (std::size_t i = 0; i < epoche.anzahl; ++i)
        if (daten.messungen[epoche.erste + i].satellit == satellit) return &daten.messungen[epoche.erste + i];
    return nullptr;
}

std::optional<double> drift(const Messung* m)
{
    if (!m || (*m)[Art::L1] == 0.0 || (*m)[Art::L2] == 0.0) return {};
    return LICHT * ((*m)[Art::L1] / FREQUENZ1 - (*m)[Art::L2] / FREQUENZ2);
}

const Epoche* epoche_bei(const RinexBeobachtung& daten, const GpsZeit& zeit)
{
    const auto e =
        std::lower_bound(daten.epochen.begin(), daten.epochen.end(), zeit,
                         [](const Epoche& a, const GpsZeit& z) { return abstand(a.zeit, z) < -GLEICHZEITIG; });
    return e == daten.epochen.end() || abstand(e->zeit, zeit) > GLEICHZEITIG ? nullptr : &*e;
}

std::vector<Wert> werte(const RinexBeobachtung& rover, const RinexBeobachtung& verschoben, const RinexBeobachtung& netz)
{
    struct Letzter {
        GpsZeit zeit;
        double rest;
        std::size_t bogen;
    };
    std::map<int, Letzter> letzte;
    std::vector<Wert> alle;
    std::size_t boegen = 0;
    for (std::size_t i = 0; i < netz.epochen.size(); ++i) {
        const Epoche& e = netz.epochen[i];
        const Epoche *r = epoche_bei(rover, e.zeit), *v = epoche_bei(verschoben, e.zeit);
        for (std::size_t k = 0; r && v && k < e.anzahl; ++k) {
            const Messung& m = netz.messungen[e.erste + k];
            const auto c = drift(&m), a = drift(messung_von(rover, *r, m.satellit)),
                       b = drift(messung_von(verschoben, *v, m.satellit));
            if (!a || !b || !c) continue;
            const double rest = *a - *b;
            const auto [stelle, neu] = letzte.try_emplace(m.satellit, Letzter{e.zeit, rest, boegen});
            Letzter& l = stelle->second;
            const bool bricht = abstand(e.zeit, l.zeit) > LUECKE || std::abs(rest - l.rest) > SPRUNG;
            if (neu || bricht) l.bogen = boegen++;
            l.zeit = e.zeit;
            l.rest = rest;
            alle.push_back({i, l.bogen, rest, *c - *b});
        }
    }
    return alle;
}

// Takes the mean out of every group of values.
void zentrieren(std::vector<Wert>& werte, std::size_t Wert::*gruppe)
{
    struct Summe {
        double anzahl = 0, rest = 0, netz = 0;
    };
    std::map<std::size_t, Summe> summen;
    for (const Wert& w : werte) {
        Summe& s = summen[w.*gruppe];
        s.anzahl += 1;
        s.rest += w.rest;
        s.netz += w.netz;
    }
    for (Wert& w : werte) {
        const Summe& s = summen[w.*gruppe];
        w.rest -= s.rest / s.anzahl;
        w.netz -= s.netz / s.anzahl;
    }
}

}  // namespace

double netzanteil(const RinexBeobachtung& rover, const RinexBeobachtung& verschoben, const RinexBeobachtung& netz)
{
    std::vector<Wert> alle = werte(rover, verschoben, netz);
    if (alle.empty()) return 1.0;
    for (std::size_t i = 0; i < DURCHGAENGE; ++i) {
        zentrieren(alle, &Wert::bogen);
        zentrieren(alle, &Wert::epoche);
    }
    double rr = 0, rn = 0, nn = 0;
    for (const Wert& w : alle) {
        rr += w.rest * w.rest;
        rn += w.rest * w.netz;
        nn += w.netz * w.netz;
    }
    const double rauschen = std::max(0.0, rr - (nn > 0 ? rn * rn / nn : 0.0)) / static_cast<double>(alle.size());
    const double gleich = std::max(1.0, RAUSCHZEIT / std::max(1.0, netz.intervall()));
    const double gewicht = rauschen * gleich / (SIGMA_ANTEIL * SIGMA_ANTEIL);
    if (nn + gewicht <= 0) return 1.0;
    return std::clamp((rn + gewicht) / (nn + gewicht), 0.0, 1.0);
}

}  // namespace jorv::suite

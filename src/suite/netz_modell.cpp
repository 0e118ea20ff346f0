#include "suite/netz_modell.h"

#include <algorithm>
#include <cmath>

#include "plattform/text.h"
#include "suite/spalten.h"

namespace jorv::suite {

namespace {

constexpr double AUF_LINIE = 0.02;  // smaller to larger moment of the stations' places
constexpr double LAUFZEIT = 0.075;  // s, good to a thousandth of a degree of elevation
constexpr double MM_JE_KM = 1e6;

// What a station's residual counts in the two slopes, per metre.
using Gewichte = std::vector<Neigung>;

Gewichte neigungsgewichte(const Ort& master, const std::vector<Hilfsstation>& stationen)
{
    double ee = 0, en = 0, nn = 0;
    std::vector<Enu> x;
    for (const Hilfsstation& s : stationen) {
        x.push_back(enu(master, s.ort - master.xyz));
        ee += x.back().e * x.back().e;
        en += x.back().e * x.back().n;
        nn += x.back().n * x.back().n;
    }
    const double wurzel = std::hypot((ee - nn) / 2.0, en), gross = (ee + nn) / 2.0 + wurzel;
    const double klein = (ee + nn) / 2.0 - wurzel, det = ee * nn - en * en;
    Gewichte gewichte;
    if (x.size() < 2 || klein <= AUF_LINIE * gross) return gewichte;
    for (const Enu& s : x) gewichte.push_back({(ee * s.n - en * s.e) / det, (nn * s.e - en * s.n) / det});
    return gewichte;
}

const Paarepoche* epoche_von(const Hilfsstation& station, std::int64_t sekunde)
{
    const auto& alle = station.paar.epochen;
    const auto e = std::lower_bound(alle.begin(), alle.end(), sekunde,
                                    [](const Paarepoche& a, std::int64_t b) { return a.sekunde < b; });
    return e == alle.end() || e->sekunde != sekunde ? nullptr : &*e;
}

double elevation_von(const Bahnen& bahnen, int satellit, const GpsZeit& zeit, const Ort& ort)
{
    const auto saetze = bahnen.find(satellit);
    const Ephemeride* eph = saetze == bahnen.end() ? nullptr : passende_ephemeride(saetze->second, satellit, zeit);
    if (!eph) return 0.0;
    return elevation(ort, gedreht(satellitenlage(*eph, verschoben(zeit, -LAUFZEIT)).ort, LAUFZEIT));
}

// Slopes of the residuals, which still hold the stations' clocks, alike for all satellites.
std::optional<Modellzeile> neigungen(int satellit, const std::vector<const Paarepoche*>& epochen,
                                     const Gewichte& gewichte)
{
    Modellzeile zeile;
    zeile.zeit = {epochen.front()->sekunde, 0.0};
    zeile.satellit = satellit;
    for (std::size_t k = 0; k < epochen.size(); ++k) {
        const Paarrest* r = rest_von(*epochen[k], satellit);
        if (!r) return {};
        const double neutral = Korrektur{satellit, r->l1, r->l2}.neutral(), ion = neutral - r->l1;
        zeile.neutral.nord += gewichte[k].nord * neutral * MM_JE_KM;
        zeile.neutral.ost += gewichte[k].ost * neutral * MM_JE_KM;
        zeile.ionosphaere.nord += gewichte[k].nord * ion * MM_JE_KM;
        zeile.ionosphaere.ost += gewichte[k].ost * ion * MM_JE_KM;
    }
    return zeile;
}

Neigung gegen(const Neigung& a, const Neigung& b)
{
    return {a.nord - b.nord, a.ost - b.ost};
}

// Takes the highest satellite's slopes off the others'; its own line goes.
void beziehen(std::vector<Modellzeile>& epoche)
{
    const auto hoechste = std::max_element(epoche.begin(), epoche.end(),
                                           [](const auto& a, const auto& b) { return a.elevation < b.elevation; });
    const Modellzeile bezug = *hoechste;
    epoche.erase(hoechste);
    for (Modellzeile& z : epoche) {
        z.neutral = gegen(z.neutral, bezug.neutral);
        z.ionosphaere = gegen(z.ionosphaere, bezug.ionosphaere);
    }
}

std::optional<GpsZeit> zeit_lesen(std::string_view zeile)
{
    Kalenderzeit k;
    constexpr std::array<std::array<std::size_t, 2>, 5> TEILE = {{{6, 4}, {3, 2}, {0, 2}, {11, 2}, {14, 2}}};
    const std::array<int*, 5> ziele = {&k.jahr, &k.monat, &k.tag, &k.stunde, &k.minute};
    for (std::size_t i = 0; i < TEILE.size(); ++i)
        *ziele[i] = spaltenganz(spalten(zeile, TEILE[i][0], TEILE[i][1])).value_or(-1);
    k.sekunde = spaltenzahl(spalten(zeile, 17, 2)).value_or(-1.0);
    return gps_zeit(k);
}

std::optional<Modellzeile> zeile_lesen(std::string_view zeile)
{
    const auto zeit = zeit_lesen(zeile);
    const auto satellit = spaltenganz(spalten(zeile, 21, 2));
    const auto hoehe = spaltenzahl(spalten(zeile, 23, 8));
    std::array<double, 4> wert{};
    for (std::size_t i = 0; i < wert.size(); ++i) {
        const auto zahl = spaltenzahl(spalten(zeile, 31 + 10 * i, 10));
        if (!zahl) return {};
        wert[i] = *zahl;
    }
    if (!zeit || !satellit || !hoehe) return {};
    return Modellzeile{*zeit, *satellit, *hoehe * GRAD, {wert[0], wert[1]}, {wert[2], wert[3]}};
}

}  // namespace

std::vector<Modellzeile> netzmodell(const Ort& master, const std::vector<Hilfsstation>& stationen, const Bahnen& bahnen,
                                    const Zeitspanne& spanne)
{
    std::vector<Modellzeile> alle;
    const Gewichte gewichte = neigungsgewichte(master, stationen);
    if (gewichte.empty()) return alle;
    for (const Paarepoche& erste : stationen.front().paar.epochen) {
        const GpsZeit zeit{erste.sekunde, 0.0};
        if (zeit < auf_sekunde(spanne.von) || auf_sekunde(spanne.bis) < zeit) continue;
        std::vector<const Paarepoche*> epochen;
        for (const Hilfsstation& s : stationen)
            if (const Paarepoche* e = epoche_von(s, erste.sekunde)) epochen.push_back(e);
        if (epochen.size() < stationen.size()) continue;
        std::vector<Modellzeile> zeilen;
        for (const Paarrest& r : erste.reste) {
            auto zeile = neigungen(r.satellit, epochen, gewichte);
            if (!zeile) continue;
            zeile->elevation = elevation_von(bahnen, r.satellit, zeit, master);
            zeilen.push_back(*zeile);
        }
        if (zeilen.size() < 2) continue;
        beziehen(zeilen);
        alle.insert(alle.end(), zeilen.begin(), zeilen.end());
    }
    return alle;
}

std::string modelltext(std::string_view kopf, const std::vector<Modellzeile>& zeilen)
{
    std::string text = verkettet("% ", kopf, "\r\n");
    for (const Modellzeile& z : zeilen) {
        text.append(zeittext(z.zeit)).append(" G").append(z.satellit < 10 ? "0" : "").append(verkettet(z.satellit));
        anhaengen_fest(text, z.elevation / GRAD, 8, 2);
        for (const double wert : {z.neutral.nord, z.neutral.ost, z.ionosphaere.nord, z.ionosphaere.ost})
            anhaengen_fest(text, wert, 10, 3);
        text.append("\r\n");
    }
    return text;
}

std::optional<std::vector<Modellzeile>> modell_lesen(std::string_view text)
{
    std::vector<Modellzeile> zeilen;
    Zeilenleser leser(text);
    while (const auto zeile = leser.naechste()) {
        if (zeile->empty() || zeile->front() == '%') continue;
        const auto gelesen = zeile_lesen(*zeile);
        if (!gelesen) return {};
        zeilen.push_back(*gelesen);
    }
    return zeilen;
}

}  // namespace jorv::suite

#include "suite/rinex_navigation.h"

#include <algorithm>
#include <array>
#include <optional>

#include "suite/spalten.h"

namespace jorv::suite {

namespace {

constexpr std::size_t ZEILEN_JE_SATZ = 8;
constexpr double WOCHE = 604800.0;  // s

struct Satzfeld {
    double Ephemeride::*ziel;
    std::size_t zeile, spalte;  // spalte counts the four numbers of a line
};

constexpr std::array<Satzfeld, 20> FELDER = {
    {{&Ephemeride::af0, 0, 1},     {&Ephemeride::af1, 0, 2},       {&Ephemeride::af2, 0, 3},
     {&Ephemeride::iode, 1, 0},    {&Ephemeride::crs, 1, 1},       {&Ephemeride::delta_n, 1, 2},
     {&Ephemeride::m0, 1, 3},      {&Ephemeride::cuc, 2, 0},       {&Ephemeride::e, 2, 1},
     {&Ephemeride::cus, 2, 2},     {&Ephemeride::wurzel_a, 2, 3},  {&Ephemeride::cic, 3, 1},
     {&Ephemeride::omega0, 3, 2},  {&Ephemeride::cis, 3, 3},       {&Ephemeride::i0, 4, 0},
     {&Ephemeride::crc, 4, 1},     {&Ephemeride::omega, 4, 2},     {&Ephemeride::omega_punkt, 4, 3},
     {&Ephemeride::i_punkt, 5, 0}, {&Ephemeride::gesundheit, 6, 1}}};

// What tells one set from another: satellite, both reference times, issue.
std::optional<Ephemeride> kennung_lesen(Satzzeilen zeilen)
{
    Ephemeride eph;
    const auto satellit = spaltenganz(spalten(zeilen[0], 0, 2));
    const auto toc = satzzeit(zeilen);
    const auto toe = satzzahl(zeilen, 3, 0), iode = satzzahl(zeilen, 1, 0);
    if (!iode || !satellit || *satellit < 1 || *satellit > 99 || !toc || !toe || *toe < 0 || *toe > WOCHE) return {};
    eph.satellit = *satellit;
    eph.iode = *iode;
    eph.toc = *toc;
    // The week number of old files has rolled over or names the week of transmission: the set's own clock time decides.
    eph.toe = gps_zeit(woche(*toc), *toe);
    if (abstand(eph.toe, *toc) > WOCHE / 2) eph.toe = verschoben(eph.toe, -WOCHE);
    if (abstand(eph.toe, *toc) < -WOCHE / 2) eph.toe = verschoben(eph.toe, WOCHE);
    return eph;
}

bool felder_lesen(Satzzeilen zeilen, Ephemeride& eph)
{
    for (const Satzfeld& feld : FELDER) {
        const auto zahl = satzzahl(zeilen, feld.zeile, feld.spalte);
        if (!zahl) return false;
        eph.*feld.ziel = *zahl;
    }
    return eph.wurzel_a >= 1000 && eph.e >= 0 && eph.e < 0.5;
}

bool schon_da(const Navigation& navigation, const Ephemeride& eph)
{
    return std::any_of(navigation.saetze.begin(), navigation.saetze.end(), [&](const Ephemeride& alt) {
        return alt.satellit == eph.satellit && alt.toe == eph.toe && alt.toc == eph.toc && alt.iode == eph.iode;
    });
}

bool ist_gps_navigation(std::string_view zeile)
{
    const std::string_view art = spalten(zeile, 20, 20);
    const auto version = spaltenzahl(spalten(zeile, 0, 9));
    // A head that ends in its first line names no type: what is written from it could not be read again.
    if (spalten(zeile, 60, 20) == "END OF HEADER") return false;
    return version && *version >= 1 && *version < 3 && !art.empty() && (art.front() == 'N' || art.front() == 'n');
}

}  // namespace

int navigation_lesen(std::string_view text, Navigation& ziel)
{
    Zeilenleser leser(text);
    const auto zeile = leser.naechste();
    if (!zeile || !ist_gps_navigation(*zeile)) return -1;
    auto kopf = kopfzeilen(*zeile, leser);
    if (!kopf) return -1;
    if (ziel.datei.kopf.empty()) ziel.datei.kopf = std::move(*kopf);
    int gelesen = 0;
    std::array<std::string_view, ZEILEN_JE_SATZ> zeilen;
    while (naechster_satz(leser, zeilen)) {
        // The files of neighbouring stations hold the same sets: their numbers are read once.
        auto eph = kennung_lesen(zeilen);
        const bool doppelt = eph && schon_da(ziel, *eph);
        if (!eph || (!doppelt && !felder_lesen(zeilen, *eph))) continue;
        ++gelesen;
        if (doppelt) continue;
        ziel.saetze.push_back(*eph);
        ziel.datei.dazu(zeilen);
    }
    return gelesen;
}

std::string navigation_text(const Navigation& navigation)
{
    return navigation.datei.text([&](std::size_t a, std::size_t b) {
        const Ephemeride &x = navigation.saetze[a], &y = navigation.saetze[b];
        return x.toc != y.toc ? x.toc < y.toc : x.satellit < y.satellit;
    });
}

}  // namespace jorv::suite

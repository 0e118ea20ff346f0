#include "suite/glonass.h"

#include <algorithm>
#include <array>
#include <optional>

#include "suite/spalten.h"

namespace jorv::suite {

namespace {

// Of PZ-90 in the interface document.
constexpr double ERDMASSE = 3.986004418e14;  // m3/s2
constexpr double AEQUATOR = 6378136.0;       // metres
constexpr double J2 = 1.0826257e-3;
constexpr double DREHUNG = 7.292115e-5;  // rad/s

constexpr double SCHRITT = 30.0;        // s
constexpr double GUELTIGKEIT = 1800.0;  // s
constexpr std::size_t ZEILEN_JE_SATZ = 4;

struct Bewegung {
    Xyz ort, tempo;
};

Xyz mal(double faktor, const Xyz& v)
{
    return {faktor * v.x, faktor * v.y, faktor * v.z};
}

Bewegung aenderung(const Bewegung& b, const Xyz& mond_und_sonne)
{
    const Xyz& p = b.ort;
    const double r2 = p.x * p.x + p.y * p.y + p.z * p.z, kern = ERDMASSE / (r2 * std::sqrt(r2));
    const double abplattung = 1.5 * J2 * kern * AEQUATOR * AEQUATOR / r2, z2 = 5.0 * p.z * p.z / r2;
    const double quer = DREHUNG * DREHUNG - kern - abplattung * (1.0 - z2);
    const Xyz zug{quer * p.x + 2.0 * DREHUNG * b.tempo.y, quer * p.y - 2.0 * DREHUNG * b.tempo.x,
                  -(kern + abplattung * (3.0 - z2)) * p.z};
    return {b.tempo, zug + mond_und_sonne};
}

Bewegung schritt(const Bewegung& b, const Xyz& mond_und_sonne, double h)
{
    const auto bei = [&](double dauer, const Bewegung& k) {
        return aenderung({b.ort + mal(dauer, k.ort), b.tempo + mal(dauer, k.tempo)}, mond_und_sonne);
    };
    const Bewegung k1 = aenderung(b, mond_und_sonne), k2 = bei(h / 2, k1), k3 = bei(h / 2, k2), k4 = bei(h, k3);
    const auto mittel = [](const Xyz& a, const Xyz& m, const Xyz& n, const Xyz& z) { return a + mal(2.0, m + n) + z; };
    return {b.ort + mal(h / 6.0, mittel(k1.ort, k2.ort, k3.ort, k4.ort)),
            b.tempo + mal(h / 6.0, mittel(k1.tempo, k2.tempo, k3.tempo, k4.tempo))};
}

struct Schaltsekunde {
    int jahr, monat, sekunden;  // from the month's first on
};

constexpr std::array<Schaltsekunde, 18> SCHALTSEKUNDEN = {{{2017, 1, 18},
                                                           {2015, 7, 17},
                                                           {2012, 7, 16},
                                                           {2009, 1, 15},
                                                           {2006, 1, 14},
                                                           {1999, 1, 13},
                                                           {1997, 7, 12},
                                                           {1996, 1, 11},
                                                           {1994, 7, 10},
                                                           {1993, 7, 9},
                                                           {1992, 7, 8},
                                                           {1991, 1, 7},
                                                           {1990, 1, 6},
                                                           {1988, 1, 5},
                                                           {1985, 7, 4},
                                                           {1983, 7, 3},
                                                           {1982, 7, 2},
                                                           {1981, 7, 1}}};

std::optional<Glonasssatz> satz_lesen(Satzzeilen zeilen, std::optional<int> schaltsekunden_des_kopfes)
{
    Glonasssatz s;
    const auto platz = spaltenganz(spalten(zeilen[0], 0, 2));
    const auto utc = satzzeit(zeilen);
    if (!platz || *platz < 1 || *platz > 99 || !utc) return {};
    s.satellit = GLONASS + *platz;
    s.zeit = verschoben(*utc, schaltsekunden_des_kopfes.value_or(schaltsekunden(*utc)));
    const auto lesen = [&](std::size_t zeile, std::size_t spalte, double& ziel, double faktor = 1.0) {
        const auto zahl = satzzahl(zeilen, zeile, spalte);
        ziel = faktor * zahl.value_or(0.0);
        return zahl.has_value();
    };
    double kanal = 0;
    bool gut = lesen(0, 1, s.uhr) && lesen(0, 2, s.uhrgang) && lesen(1, 3, s.gesundheit) && lesen(2, 3, kanal);
    const std::array<double Xyz::*, 3> achsen = {&Xyz::x, &Xyz::y, &Xyz::z};
    for (std::size_t i = 0; i < achsen.size(); ++i)
        gut = gut && lesen(i + 1, 0, s.ort.*achsen[i], 1e3) && lesen(i + 1, 1, s.geschwindigkeit.*achsen[i], 1e3) &&
              lesen(i + 1, 2, s.beschleunigung.*achsen[i], 1e3);
    s.kanal = static_cast<int>(std::lround(kanal));
    const double radius = laenge(s.ort);
    if (!gut || std::abs(kanal) > 32 || radius < 2.4e7 || radius > 2.7e7) return {};
    return s;
}

bool schon_da(const Glonassnavigation& navigation, const Glonasssatz& satz)
{
    return std::any_of(navigation.saetze.begin(), navigation.saetze.end(),
                       [&](const Glonasssatz& alt) { return alt.satellit == satz.satellit && alt.zeit == satz.zeit; });
}

}  // namespace

Satellitenlage satellitenlage(const Glonasssatz& satz, const GpsZeit& zeit)
{
    Bewegung b{satz.ort, satz.geschwindigkeit};
    const double dauer = abstand(zeit, satz.zeit), h = std::copysign(SCHRITT, dauer);
    const auto ganze = static_cast<int>(std::abs(dauer) / SCHRITT);
    for (int i = 0; i < ganze; ++i) b = schritt(b, satz.beschleunigung, h);
    b = schritt(b, satz.beschleunigung, dauer - ganze * h);
    return {b.ort, b.tempo, satz.uhr + satz.uhrgang * dauer};
}

const Glonasssatz* passender_satz(const std::vector<Glonasssatz>& alle, int satellit, const GpsZeit& zeit)
{
    const Glonasssatz* bester = nullptr;
    double naechste = GUELTIGKEIT;
    for (const Glonasssatz& s : alle) {
        if (s.satellit != satellit || s.gesundheit != 0) continue;
        const double entfernt = std::abs(abstand(s.zeit, zeit));
        if (entfernt > naechste || (bester && entfernt == naechste)) continue;
        bester = &s;
        naechste = entfernt;
    }
    return bester;
}

int schaltsekunden(const GpsZeit& zeit)
{
    const Kalenderzeit k = kalenderzeit(zeit);
    for (const Schaltsekunde& s : SCHALTSEKUNDEN)
        if (k.jahr > s.jahr || (k.jahr == s.jahr && k.monat >= s.monat)) return s.sekunden;
    return 0;
}

int glonass_lesen(std::string_view text, Glonassnavigation& ziel)
{
    Zeilenleser leser(text);
    const auto zeile = leser.naechste();
    const auto version = zeile ? spaltenzahl(spalten(*zeile, 0, 9)) : std::nullopt;
    if (!version || *version < 1 || *version >= 3 || !spalten(*zeile, 20, 20).starts_with('G')) return -1;
    auto kopf = kopfzeilen(*zeile, leser);
    if (!kopf) return -1;
    std::optional<int> sekunden;
    for (const std::string& z : *kopf)
        if (spalten(z, 60, 20) == "LEAP SECONDS") sekunden = spaltenganz(spalten(z, 0, 6));
    if (ziel.datei.kopf.empty()) ziel.datei.kopf = std::move(*kopf);
    int gelesen = 0;
    std::array<std::string_view, ZEILEN_JE_SATZ> zeilen;
    while (naechster_satz(leser, zeilen)) {
        const auto satz = satz_lesen(zeilen, sekunden);
        if (!satz) continue;
        ++gelesen;
        if (schon_da(ziel, *satz)) continue;
        ziel.saetze.push_back(*satz);
        ziel.datei.dazu(zeilen);
    }
    return gelesen;
}

std::string glonass_text(const Glonassnavigation& navigation)
{
    return navigation.datei.text([&](std::size_t a, std::size_t b) {
        const Glonasssatz &x = navigation.saetze[a], &y = navigation.saetze[b];
        return x.zeit != y.zeit ? x.zeit < y.zeit : x.satellit < y.satellit;
    });
}

}  // namespace jorv::suite

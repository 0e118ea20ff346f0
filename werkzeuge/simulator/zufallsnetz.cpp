#include "simulator/zufallsnetz.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "simulator/zufall.h"

namespace jorv::simulator {

namespace {

constexpr double anfang = 9 * 3600, stunde = 3600, takt = 30;  // seconds
constexpr std::uint64_t strom = 77;                            // of the draws made here

constexpr std::array<Unruhe, 3> unruhen = {{{"ruhig", {9, 0.008, 0.004, 0.05, 220, 25, 150}},
                                            {"mittel", {20, 0.03, 0.02, 0.3, 200, 20, 60}},
                                            {"stark", {40, 0.10, 0.06, 0.8, 120, 15, 45}}}};

Punkt punkt(const char* pkz, const Vektor& ort)
{
    Punkt p;
    p.pkz = p.name = pkz;
    p.ort = ort;
    p.von = anfang;
    p.bis = anfang + stunde - takt;
    p.takt = takt;
    return p;
}

}  // namespace

const Unruhe& unruhe(std::uint64_t saat)
{
    return unruhen[saat % unruhen.size()];
}

Szenario zufallsnetz(std::uint64_t saat, const Unruhe& unruhe)
{
    Zufall zufall(saat, {strom});
    Szenario s;
    s.saat = s.konstellation = saat;
    s.wirkungen.uhr_versatz = 1e-4;
    s.wirkungen.satellitenuhren = s.wirkungen.mehrdeutigkeiten = true;
    s.wirkungen.ionosphaere = unruhe.ionosphaere;
    s.wirkungen.ionosphaere.richtung = zufall.zwischen(0, 360);
    s.wirkungen.troposphaere = {true, zufall.zwischen(0.05, 0.20), zufall.zwischen(-0.3, 0.3),
                                zufall.zwischen(-0.3, 0.3)};
    s.wirkungen.spruenge = 0.05;
    s.wirkungen.coderauschen = 0.25;
    s.wirkungen.phasenrauschen = 0.002;
    s.wirkungen.mehrweg = 0.12;
    s.wirkungen.bahnfehler = 1.0;
    const Geographisch mitte{zufall.zwischen(47, 55) * grad, zufall.zwischen(6, 14) * grad, zufall.zwischen(50, 300)};
    Punkt rover = punkt("5501", nach_xyz(mitte));
    rover.naeherung = {zufall.zwischen(-4, 4), zufall.zwischen(-4, 4), zufall.zwischen(-4, 4)};
    rover.antennenhoehe = 1.5;
    s.punkte.push_back(rover);
    double azimut = zufall.zwischen(0, 2 * pi), strecke = zufall.zwischen(1000, 35000);
    for (const char* name : {"0001", "0002", "0003"}) {
        const Vektor ungefaehr =
            rover.ort + Horizont(mitte).geozentrisch({strecke * std::cos(azimut), strecke * std::sin(azimut), 0});
        Geographisch ort = nach_geographisch(ungefaehr);
        ort.hoehe = mitte.hoehe + zufall.zwischen(-150, 250);
        s.punkte.push_back(punkt(name, nach_xyz(ort)));
        azimut += zufall.zwischen(100, 140) * grad;
        strecke = std::max(strecke, zufall.zwischen(15000, 40000));
    }
    return s;
}

}  // namespace jorv::simulator

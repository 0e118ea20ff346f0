// What a virtual station is worth: rovers inside a simulated network whose truth is known, computed straight from the
// nearest station, from that station moved to the rover, and from the network of two, three and four stations, under
// a calm, a medium and a strong ionosphere. Prints one table row for each way; its last columns are the horizontal
// error less that of the moved station in the same case, so that harm in single cases shows. With the variable
// JORV_EINZELN each solution and the runs that led to it.
//   bench_virtuelle_station [count of seeds, 20] [minutes, 60] [first seed, 1] [wechselnd]
// With the last word each seed has one of the three lesser skies by turns, all in one table.
#include <algorithm>
#include <array>
#include <cstdio>

#include "hilfen/Projekt.h"
#include "plattform/text.h"
#include "plattform/zahl.h"
#include "simulator/beispiel.h"
#include "simulator/szenario_text.h"
#include "simulator/zufall.h"
#include "suite/basislinie.h"
#include "suite/ergebnistext.h"
#include "suite/virtuelle_station.h"

using namespace jorv;

namespace {

constexpr double FALSCH_LAGE = 50.0, FALSCH_HOEHE = 200.0;  // mm; a solution said to be fixed must be better

struct Himmel {
    const char* name;
    simulator::Ionosphaere ionosphaere;
};
constexpr std::array<Himmel, 4> HIMMEL = {{{"ruhig", {9, -0.008, 0.004, 0.05, 220, 25, 150}},
                                           {"mittel", {15, -0.016, 0.008, 0.15, 200, 20, 150}},
                                           {"stark", {30, -0.036, 0.018, 0.5, 200, 20, 150}},
                                           {"extrem", {40, -0.036, 0.018, 0.8, 120, 15, 150}}}};

struct Weg {
    const char* name;
    std::size_t stationen;  // 0: no virtual station
};
constexpr std::array<Weg, 5> WEGE = {{{"direkt", 0}, {"verschoben", 1}, {"Netz 2", 2}, {"Netz 3", 3}, {"Netz 4", 4}}};

struct Zeile {
    std::vector<double> lage, hoehe, hoehe_mit_zeichen;  // mm
    std::vector<double> gegen_verschoben;                // mm, horizontal, paired
    int l1 = 0, l0 = 0, offen = 0, ohne = 0, falsch = 0;
};

double quantil(std::vector<double> werte, double anteil)
{
    if (werte.empty()) return 0.0;
    std::sort(werte.begin(), werte.end());
    return werte[static_cast<std::size_t>(anteil * static_cast<double>(werte.size() - 1) + 0.5)];
}

double strecke(const simulator::Punkt& a, const simulator::Punkt& b)
{
    return simulator::betrag(a.ort - b.ort);
}

simulator::Vektor verlegt(const simulator::Vektor& ort, double nord, double ost, double oben)
{
    const simulator::Horizont horizont(simulator::nach_geographisch(ort));
    return ort + horizont.geozentrisch({nord, ost, oben});
}

// The first rover and its four nearest stations, sorted by distance: place, heights and time of day follow the seed.
simulator::Szenario szenario(std::uint64_t saat, double minuten)
{
    simulator::Szenario s;
    std::string meldung;
    if (!simulator::szenario_lesen(simulator::beispiel_text(), s, meldung)) std::abort();
    simulator::Zufall z(saat, {77});
    s.saat = saat;
    s.konstellation = 1 + saat % 5;
    auto& p = s.punkte;
    const auto erster = std::find_if(p.begin(), p.end(), [](const auto& punkt) { return punkt.pkz == "5501"; });
    simulator::Punkt rover = *erster;
    std::erase_if(p, [](const auto& punkt) { return punkt.pkz.starts_with("55"); });
    rover.ort = verlegt(rover.ort, z.zwischen(-6000, 6000), z.zwischen(-5000, 5000), z.zwischen(-80, 200));
    rover.takt = 30;
    rover.von = 3600.0 * std::floor(z.zwischen(1, 22));
    rover.bis = rover.von + minuten * 60 - 30;
    for (simulator::Punkt& station : p) {
        station.ort = verlegt(station.ort, 0, 0, z.zwischen(-80, 200));
        station.von = rover.von - 1800;
        station.bis = rover.bis + 1800;
    }
    std::sort(p.begin(), p.end(), [&](const auto& a, const auto& b) { return strecke(a, rover) < strecke(b, rover); });
    p.resize(4);
    p.push_back(rover);
    return s;
}

// Returns the horizontal error in millimetres.
std::optional<double> rechnen(const hilfen::Arbeitsordner& temp, const simulator::Szenario& s, const Weg& weg,
                              Zeile& zeile)
{
    const suite::Arbeitsordner ordner(temp.dos());
    const Festuhr uhr({2016, 12, 1, 12, 0, 0});
    const simulator::Punkt& rover = s.punkte.back();
    const std::string name = simulator::dateiname(s, rover, 'o');
    std::string basis = simulator::dateiname(s, s.punkte.front(), 'o'), grund;
    suite::Protokoll protokoll;
    if (weg.stationen > 0) {
        std::string stationen;
        for (std::size_t i = 0; i < weg.stationen; ++i) stationen += (i > 0 ? "," : "") + s.punkte[i].pkz;
        const auto aufruf = suite::wav2_aufruf({name, stationen, "+A001.ATX"}, grund);
        if (suite::wav2(*aufruf, ordner, uhr, protokoll) != 0) {
            ++zeile.ohne;
            return {};
        }
        basis = aufruf->virt + name.substr(name.size() - 4);
    }
    const auto aufruf = suite::wa2_aufruf({basis, name, "+ACF001.ATX"}, grund);
    const int status = suite::wa2(*aufruf, ordner, {programm_finden("rnx2rtkp")}, uhr, protokoll);
    const auto e = suite::loesung_lesen(hilfen::lesen(temp.host() / "wa2sol.txt"));
    if (status != 0 || !e) {
        ++zeile.ohne;
        return {};
    }
    const suite::Xyz wahr{rover.ort.x, rover.ort.y, rover.ort.z};
    const suite::Enu d = suite::enu(suite::Ort(wahr), e->rover - wahr);
    const double lage = 1000 * std::hypot(d.e, d.n), hoehe = 1000 * d.u;
    zeile.lage.push_back(lage);
    zeile.hoehe.push_back(std::abs(hoehe));
    zeile.hoehe_mit_zeichen.push_back(hoehe);
    const bool ist_fest = e->loesungstyp.starts_with("Fixed");
    (e->loesungstyp == "FixedL1" ? zeile.l1 : ist_fest ? zeile.l0 : zeile.offen) += 1;
    const bool falsch = ist_fest && (lage > FALSCH_LAGE || std::abs(hoehe) > FALSCH_HOEHE);
    zeile.falsch += falsch;
    const bool einzeln = std::getenv("JORV_EINZELN") != nullptr;
    Zeilenleser leser(protokoll.text());
    while (const auto text = leser.naechste())
        if (einzeln && text->starts_with("Lauf")) std::puts(std::string(*text).c_str());
    if (einzeln || falsch)
        std::printf("# Saat %d %s %s: Lage %s Hoehe %s mm\n", static_cast<int>(s.saat), weg.name,
                    e->loesungstyp.c_str(), fest(lage, 1).c_str(), fest(hoehe, 1).c_str());
    return lage;
}

void ausgeben(const Himmel& himmel, const Weg& weg, const Zeile& z)
{
    std::string text = verkettet(himmel.name, " | ", weg.name, " | ", z.l1, " | ", z.l0, " | ", z.offen, " | ", z.ohne,
                                 " | ", z.falsch);
    for (const double wert : {quantil(z.lage, 0.5), quantil(z.lage, 0.95), quantil(z.lage, 1.0),
                              quantil(z.hoehe_mit_zeichen, 0.5), quantil(z.hoehe, 0.5), quantil(z.hoehe, 0.95),
                              quantil(z.gegen_verschoben, 0.5), quantil(z.gegen_verschoben, 0.95)})
        text += verkettet(" | ", fest(wert, 1));
    std::puts(text.c_str());
    std::fflush(stdout);
}

}  // namespace

int main(int anzahl, char** worte)
{
    const auto zahl = [&](int i, double sonst) { return anzahl > i ? zahl_lesen(worte[i]) : sonst; };
    const int saaten = static_cast<int>(zahl(1, 20)), erste = static_cast<int>(zahl(3, 1));
    const double minuten = zahl(2, 60);
    std::printf("%d Saaten ab %d, %d Minuten; Lage und Hoehe in mm\n", saaten, erste, static_cast<int>(minuten));
    std::puts(
        "Ionosphaere | Weg | L1 | L0 | offen | ohne | falsch fest | Lage Median | 95 % | groesste | "
        "Hoehe Median | Betrag Median | 95 % | gegen verschoben Median | 95 %");
    constexpr std::size_t WECHSELNDE = 3;
    const bool wechselnd = anzahl > 4 && std::string_view(worte[4]) == "wechselnd";
    for (const Himmel& himmel : HIMMEL) {
        std::array<Zeile, WEGE.size()> zeilen;
        for (int saat = erste; saat < erste + saaten; ++saat) {
            simulator::Szenario s = szenario(static_cast<std::uint64_t>(saat), minuten);
            const std::size_t welcher = static_cast<std::size_t>(saat) % WECHSELNDE;
            s.wirkungen.ionosphaere = wechselnd ? HIMMEL[welcher].ionosphaere : himmel.ionosphaere;
            const hilfen::Arbeitsordner temp;
            std::string meldung;
            if (!simulator::schreiben(s, temp.host(), meldung) ||
                !simulator::antex_schreiben(s, temp.host() / "001.ATX", meldung)) {
                std::puts(meldung.c_str());
                return 1;
            }
            std::array<std::optional<double>, WEGE.size()> lage;
            for (std::size_t i = 0; i < WEGE.size(); ++i) {
                lage[i] = rechnen(temp, s, WEGE[i], zeilen[i]);
                if (i > 1 && lage[i] && lage[1]) zeilen[i].gegen_verschoben.push_back(*lage[i] - *lage[1]);
            }
        }
        const Himmel gemischt{"wechselnd", {}};
        for (std::size_t i = 0; i < WEGE.size(); ++i) ausgeben(wechselnd ? gemischt : himmel, WEGE[i], zeilen[i]);
        if (wechselnd) break;
    }
    return 0;
}

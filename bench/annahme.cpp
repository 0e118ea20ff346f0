// Whether the suite's fixed solutions can be believed: simulated cases with a known truth, each by the nearest station
// itself and by a virtual station, in windows of several lengths. Prints by way, distance and window how many were
// said to be fixed and how many of these are wrong, and each wrong one with what repeats it.
//   bench_annahme [first seed] [number of seeds]
#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "plattform/abbild.h"
#include "plattform/text.h"
#include "plattform/uhr.h"
#include "plattform/zahl.h"
#include "simulator/zufall.h"
#include "simulator/zufallsnetz.h"
#include "suite/basislinie.h"
#include "suite/ergebnistext.h"
#include "suite/programm.h"
#include "suite/virtuelle_station.h"

namespace {

using namespace jorv;
namespace sim = simulator;

constexpr std::array<int, 4> FENSTER = {60, 30, 15, 5};     // minutes
constexpr double LAGE_FALSCH = 50.0, HOEHE_FALSCH = 200.0;  // mm
constexpr int STUNDE = 60;                                  // minutes
constexpr std::uint64_t STROM = 78;                         // of the draws made here

struct Fall {
    std::uint64_t saat = 0;
    const sim::Unruhe* unruhe = nullptr;
    double strecke = 0.0;  // m to the nearest station
    bool virtuell = false;
    int fenster = 0;
};

struct Summe {
    int faelle = 0, l1 = 0, l0 = 0, offen = 0, ohne = 0, falsch = 0;
    double lage = 0.0, hoehe = 0.0;  // greatest of the fixed ones that aren't wrong, mm
};

class Messreihe {
public:
    explicit Messreihe(std::filesystem::path loeser) : m_umgebung{std::move(loeser)} {}
    bool rechnen(std::uint64_t saat);
    void berichten() const;

private:
    void fall(const Fall& f, const std::string& basis, const std::string& rover, const sim::Vektor& wahr);
    void zaehlen(const Fall& f, const suite::Ergebnis& ergebnis, const sim::Vektor& wahr);

    suite::Loeserumgebung m_umgebung;
    std::map<std::string, Summe> m_summen;
    std::vector<std::string> m_falsche;
};

// Seeds are independent: each makes its files anew in the current folder.
bool Messreihe::rechnen(std::uint64_t saat)
{
    const sim::Unruhe& unruhe = sim::unruhe(saat);
    const sim::Szenario s = sim::zufallsnetz(saat, unruhe);
    std::string meldung;
    if (!sim::schreiben(s, ".", meldung)) {
        std::fputs((meldung + "\n").c_str(), stderr);
        return false;
    }
    const sim::Punkt& rover = s.punkte[0];
    const std::string name = sim::dateiname(s, rover, 'o');
    const double strecke = sim::betrag(s.punkte[1].ort - rover.ort);
    suite::Wav2Aufruf virt;
    virt.rover = name;
    for (std::size_t i = 1; i < s.punkte.size(); ++i) virt.stationen.push_back(s.punkte[i].pkz);
    virt.virt = "virt";
    suite::Protokoll protokoll;
    const bool hat_virtuelle = suite::wav2(virt, suite::Arbeitsordner(), Systemuhr(), protokoll) == 0;
    for (const bool virtuell : {false, true}) {
        const std::string basis =
            virtuell ? virt.virt + std::string(rechts(name, 4)) : sim::dateiname(s, s.punkte[1], 'o');
        for (const int fenster : FENSTER)
            if (!virtuell || hat_virtuelle) fall({saat, &unruhe, strecke, virtuell, fenster}, basis, name, rover.ort);
    }
    return true;
}

void Messreihe::fall(const Fall& f, const std::string& basis, const std::string& rover, const sim::Vektor& wahr)
{
    suite::Wa2Aufruf aufruf;
    aufruf.basis = basis;
    aufruf.rover = rover;
    // The window lies anywhere in the hour, the same for both ways.
    sim::Zufall zufall(f.saat, {STROM, static_cast<std::uint64_t>(f.fenster)});
    aufruf.ohne_anfang = static_cast<int>(zufall.zwischen(0, STUNDE - f.fenster));
    aufruf.ohne_ende = STUNDE - f.fenster - aufruf.ohne_anfang;
    suite::Protokoll protokoll;
    std::error_code fehler;
    std::optional<suite::Ergebnis> ergebnis;
    if (suite::wa2(aufruf, suite::Arbeitsordner(), m_umgebung, Systemuhr(), protokoll) == 0)
        ergebnis = suite::loesung_lesen(suite::Arbeitsordner().lesen(aufruf.loesung_datei, fehler).text());
    zaehlen(f, ergebnis.value_or(suite::Ergebnis{}), wahr);
}

void Messreihe::zaehlen(const Fall& f, const suite::Ergebnis& e, const sim::Vektor& wahr)
{
    const char* weite = f.strecke <= 15000 ? " bis 15 km" : f.strecke <= 30000 ? "15-30 km  " : "ab 30 km  ";
    Summe& s =
        m_summen[verkettet(f.virtuell ? "virtuell " : "direkt   ", weite, f.fenster < 10 ? "  " : " ", f.fenster)];
    ++s.faelle;
    s.l1 += e.loesungstyp == "FixedL1";
    s.l0 += e.loesungstyp == "FixedL0";
    s.offen += e.loesungstyp == "FloatDGNSS";
    s.ohne += e.loesungstyp.empty();
    if (!e.loesungstyp.starts_with("Fixed")) return;
    const suite::Xyz soll{wahr.x, wahr.y, wahr.z};
    const suite::Enu d = suite::enu(suite::Ort(soll), e.rover - soll);
    const double lage = std::hypot(d.e, d.n) * 1000.0, hoehe = std::abs(d.u) * 1000.0;
    if (lage > LAGE_FALSCH || hoehe > HOEHE_FALSCH) {
        ++s.falsch;
        m_falsche.push_back(verkettet("Saat ", f.saat, " ", f.unruhe->name, " ", f.virtuell ? "virtuell" : "direkt",
                                      " ", fest(f.strecke / 1000.0, 1), " km ", f.fenster, " min ", e.loesungstyp, " ",
                                      fest(d.e * 1000, 0), " ", fest(d.n * 1000, 0), " ", fest(d.u * 1000, 0),
                                      " mm, Verhaeltnis ", fest(e.verhaeltnis, 1), ", s0 ", fest(e.sigma0 * 1000.0, 2),
                                      " mm"));
        return;
    }
    s.lage = std::max(s.lage, lage);
    s.hoehe = std::max(s.hoehe, hoehe);
}

void Messreihe::berichten() const
{
    std::string text =
        "Weg      Strecke    min  Faelle FixedL1 FixedL0 offen ohne falsch  Lage  Hoehe (mm, groesste)\n";
    Summe alle;
    const auto spalte = [&text](std::string_view wert, std::size_t breite) {
        text.append(wert.size() < breite ? breite - wert.size() : 1, ' ').append(wert);
    };
    const auto zeile = [&](std::string_view name, const Summe& s) {
        text.append(name).append(name.size() < 23 ? 23 - name.size() : 1, ' ');
        for (const int wert : {s.faelle, s.l1, s.l0, s.offen, s.ohne, s.falsch}) spalte(verkettet(wert), 7);
        spalte(fest(s.lage, 0), 6);
        spalte(fest(s.hoehe, 0), 6);
        text.push_back('\n');
    };
    for (const auto& [name, s] : m_summen) {
        zeile(name, s);
        alle.faelle += s.faelle, alle.l1 += s.l1, alle.l0 += s.l0, alle.offen += s.offen, alle.ohne += s.ohne;
        alle.falsch += s.falsch, alle.lage = std::max(alle.lage, s.lage), alle.hoehe = std::max(alle.hoehe, s.hoehe);
    }
    zeile("zusammen", alle);
    text += verkettet("als fest angegeben ", fest(100.0 * (alle.l1 + alle.l0) / std::max(1, alle.faelle), 1),
                      " %, davon falsch ", alle.falsch, "\n");
    for (const std::string& falsche : m_falsche) text += falsche + "\n";
    std::fputs(text.c_str(), stdout);
    std::fflush(stdout);
}

}  // namespace

int main(int anzahl, char** argumente)
{
    const int erste = anzahl > 1 ? static_cast<int>(zahl_lesen(argumente[1])) : 1;
    const int saaten = anzahl > 2 ? static_cast<int>(zahl_lesen(argumente[2])) : 10;
    const auto loeser = suite::loeserprogramm();
    if (loeser.empty()) {
        std::fputs("Das Rechenprogramm rnx2rtkp fehlt.\n", stderr);
        return 1;
    }
    const auto ordner = std::filesystem::temp_directory_path() / verkettet("jorv-annahme-", erste);
    std::filesystem::create_directories(ordner);
    std::filesystem::current_path(ordner);
    Messreihe reihe(loeser);
    bool gut = true;
    for (int saat = erste; gut && saat < erste + saaten; ++saat) {
        gut = reihe.rechnen(static_cast<std::uint64_t>(saat));
        if ((saat - erste) % 20 == 19 || saat + 1 == erste + saaten) reihe.berichten();
    }
    std::filesystem::current_path(ordner.parent_path());
    std::filesystem::remove_all(ordner);
    return gut ? 0 : 1;
}

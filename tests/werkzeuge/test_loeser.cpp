// The simulated files against the solver: what went in must come out.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "plattform/prozess.h"
#include "plattform/umgebung.h"
#include "simulator/beispiel.h"
#include "simulator/szenario_text.h"
#include "simulator/text.h"
#include "werkzeuge/umgebung.h"

namespace jorv::simulator {
namespace {

namespace fs = std::filesystem;

fs::path loeser()
{
    return programm_finden("rnx2rtkp");
}

#define LOESER_NOETIG() \
    if (loeser().empty()) GTEST_SKIP() << "rnx2rtkp is not installed (Debian package rtklib)"

struct Auftrag {
    int frequenzen = 2, systeme = 1;
    bool mehrdeutigkeiten = true, einzeln = false;
    std::string ionosphaere = "off";
    std::string antennendatei = "typ.atx";
};

/// The antenna file with types in place of numbers: the solver looks an antenna up by its type alone.
void antennen_nach_typ(const Szenario& szenario, const fs::path& datei)
{
    Szenario umbenannt = szenario;
    for (Antenne& a : umbenannt.antennen) a.typ = a.nummer;
    std::string meldung;
    ASSERT_TRUE(antex_schreiben(umbenannt, datei, meldung)) << meldung;
}

void optionen_schreiben(const Szenario& s, const Punkt& basis, const Punkt& rover, const Auftrag& auftrag,
                        const fs::path& datei)
{
    std::string o =
        "pos1-soltype=forward\npos1-elmask=10\npos1-sateph=brdc\n"
        "pos2-arthres=3\npos2-arelmask=15\npos2-arlockcnt=0\npos2-slipthres=0.05\npos2-maxage=30\npos2-rejionno=30\n"
        "pos1-posopt2=on\npos2-rejgdop=100\npos2-niter=3\npos2-gloarmode=off\nout-solformat=xyz\nout-solstatic="
        "all\nant2-postype=xyz\n";
    const auto anhaengen = [&o](std::string_view name, const std::string& wert) {
        o += std::string(name) + "=" + wert + "\n";
    };
    const auto meter = [](double wert) {
        std::string text;
        fest(text, wert, 0, 4);
        return text;
    };
    anhaengen("pos1-posmode", auftrag.einzeln ? "single" : "static");
    anhaengen("pos1-tropopt", auftrag.einzeln ? "off" : "saas");
    anhaengen("pos1-frequency", std::to_string(auftrag.frequenzen));
    anhaengen("pos1-navsys", std::to_string(auftrag.systeme));
    anhaengen("pos1-ionoopt", auftrag.ionosphaere);
    anhaengen("pos2-armode", auftrag.mehrdeutigkeiten ? "continuous" : "off");
    anhaengen("ant2-pos1", meter(basis.ort.x));
    anhaengen("ant2-pos2", meter(basis.ort.y));
    anhaengen("ant2-pos3", meter(basis.ort.z));
    if (s.wirkungen.antennenzentrum) {
        anhaengen("file-rcvantfile", auftrag.antennendatei);
        anhaengen("ant1-anttype", rover.antenne);
        anhaengen("ant2-anttype", basis.antenne);
        anhaengen("ant1-antdelu", meter(rover.antennenhoehe));
        anhaengen("ant2-antdelu", meter(basis.antennenhoehe));
    } else {
        o += "ant1-anttype=*\nant2-anttype=*\n";
    }
    std::ofstream(datei, std::ios::binary) << o;
}

struct Ergebnis {
    Vektor ort;
    int guete = 0;
};

/// Solves rover against base in `ordner`, which holds the files of the scenario, and reads the last epoch's solution.
Ergebnis loesen(const Szenario& s, const Punkt& basis, const Punkt& rover, const Auftrag& auftrag,
                const fs::path& ordner)
{
    if (s.wirkungen.antennenzentrum) antennen_nach_typ(s, ordner / auftrag.antennendatei);
    optionen_schreiben(s, basis, rover, auftrag, ordner / "o.conf");
    std::vector<std::string> worte{"-k",
                                   "o.conf",
                                   "-o",
                                   "o.pos",
                                   "-ti",
                                   std::to_string(std::max(basis.takt, rover.takt)),
                                   dateiname(s, rover, 'o'),
                                   dateiname(s, basis, 'o'),
                                   dateiname(s, basis, 'n')};
    if (s.glonass) worte.push_back(dateiname(s, basis, 'g'));
    const Prozessende ende = programm_ausfuehren(loeser(), worte, ordner, 60);
    EXPECT_TRUE(ende.gestartet && ende.status == 0) << ende.fehlerausgabe;
    Ergebnis e;
    if (!fs::exists(ordner / "o.pos")) return e;
    for (const std::string& zeile : zeilen(datei_lesen(ordner / "o.pos"))) {
        if (zeile.starts_with('%')) continue;
        e.ort = {spalte(zeile, 25, 14), spalte(zeile, 40, 14), spalte(zeile, 55, 14)};
        e.guete = static_cast<int>(spalte(zeile, 70, 3));
    }
    fs::remove(ordner / "o.pos");
    return e;
}

struct Fall {
    const char* name;
    void (*aendern)(Szenario&);
    Auftrag auftrag;
    double schranke = 0.001;
    int guete = 1;
};

void genaue_empfaenger(Szenario& s)
{
    s.wirkungen.uhr_versatz = 3e-4;
    s.wirkungen.uhr_gang = 1e-8;
    s.wirkungen.satellitenuhren = s.wirkungen.mehrdeutigkeiten = true;
}

void antennen(Szenario& s)
{
    s.antennen.push_back(antenne_machen("A1", "PRUEF", {0.02, -0.03, 0.1}, {-0.01, 0.04, 0.12}, 0.02, -0.01));
    s.antennen.push_back(antenne_machen("A2", "PRUEF", {0, 0, 0.05}, {0, 0, 0.09}, -0.005, 0.01));
    s.punkte[0].antenne = "A1";
    s.punkte[1].antenne = "A2";
    s.punkte[1].antennenhoehe = 1.543;
    s.wirkungen.antennenzentrum = true;
}

// The solver models the hydrostatic delay in every relative mode, whatever its options say, so it is always simulated.
TEST(Loeser, TrifftDieWahrheitAuf20Kilometer)
{
    LOESER_NOETIG();
    const Fall faelle[] = {
        {"nothing, L1", [](Szenario&) {}, {.frequenzen = 1}},
        {"nothing, L1+L2", [](Szenario&) {}, {}},
        {"clocks and ambiguities", genaue_empfaenger, {}},
        {"antennas", antennen, {}},
        {"antenna height by the header", [](Szenario& s) { s.punkte[1].antennenhoehe = 1.543; }, {}},
        {"slips", [](Szenario& s) { s.wirkungen.mehrdeutigkeiten = true, s.wirkungen.spruenge = 1; }, {}},
        {"over midnight and the end of the week",
         [](Szenario& s) {
             s.tag = {2016, 6, 18};
             for (Punkt& p : s.punkte) p.von = 23.5 * 3600, p.bis = 24.5 * 3600;
         },
         {}},
        {"over the end of the year",
         [](Szenario& s) {
             s.tag = {2016, 12, 31};
             for (Punkt& p : s.punkte) p.von = 23.5 * 3600, p.bis = 24.5 * 3600;
         },
         {}},
        {"at one second",
         [](Szenario& s) {
             for (Punkt& p : s.punkte) p.takt = 1, p.bis = p.von + 600;
         },
         {}},
        {"ambiguities left float, GLONASS alone",
         [](Szenario& s) { s.glonass = s.wirkungen.satellitenuhren = true; },
         {.systeme = 4, .mehrdeutigkeiten = false},
         0.003,
         2},
        {"GPS and GLONASS",
         [](Szenario& s) { s.glonass = s.wirkungen.satellitenuhren = s.wirkungen.mehrdeutigkeiten = true; },
         {.systeme = 5}},
    };
    for (const Fall& fall : faelle) {
        SCOPED_TRACE(fall.name);
        Szenario s = ohne_wirkung();
        s.wirkungen.troposphaere = {true, 0};
        fall.aendern(s);
        const Testordner ordner;
        std::string meldung;
        ASSERT_TRUE(schreiben(s, ordner.pfad(), meldung)) << meldung;
        const Ergebnis e = loesen(s, s.punkte[0], s.punkte[1], fall.auftrag, ordner.pfad());
        EXPECT_EQ(e.guete, fall.guete);
        EXPECT_LT(betrag(e.ort - s.punkte[1].ort), fall.schranke);
    }
}

// A point alone shows what differences hide: relativity, group delays, the time of the GLONASS sets.
TEST(Loeser, TrifftDenEinzelpunkt)
{
    LOESER_NOETIG();
    for (const int systeme : {1, 4}) {
        SCOPED_TRACE(systeme == 1 ? "GPS" : "GLONASS");
        Szenario s = ohne_wirkung();
        genaue_empfaenger(s);
        s.glonass = systeme == 4;
        const Testordner ordner;
        std::string meldung;
        ASSERT_TRUE(schreiben(s, ordner.pfad(), meldung)) << meldung;
        const Ergebnis e = loesen(s, s.punkte[0], s.punkte[1], {.systeme = systeme, .einzeln = true}, ordner.pfad());
        EXPECT_EQ(e.guete, 5);
        EXPECT_LT(betrag(e.ort - s.punkte[1].ort), 0.02);
    }
}

TEST(Loeser, MerktEineFalscheBahn)
{
    LOESER_NOETIG();
    // 300 m per axis of orbit error move a 20 km baseline by decimetres: the check above can fail.
    Szenario s = ohne_wirkung();
    s.wirkungen.troposphaere = {true, 0};
    s.wirkungen.bahnfehler = 300;
    const Testordner ordner;
    std::string meldung;
    ASSERT_TRUE(schreiben(s, ordner.pfad(), meldung)) << meldung;
    EXPECT_GT(betrag(loesen(s, s.punkte[0], s.punkte[1], {}, ordner.pfad()).ort - s.punkte[1].ort), 0.02);
}

TEST(Loeser, BeispielWirdMitFestenMehrdeutigkeitenGut)
{
    LOESER_NOETIG();
    const Testordner ordner;
    std::string meldung;
    ASSERT_TRUE(beispiel_schreiben(ordner.pfad(), meldung)) << meldung;
    Szenario s;
    ASSERT_TRUE(szenario_lesen(beispiel_text(), s, meldung)) << meldung;
    for (const Punkt& rover : s.punkte) {
        if (rover.pkz < "4000") continue;
        SCOPED_TRACE(rover.pkz);
        const Punkt* naechste = &s.punkte[0];
        for (const Punkt& p : s.punkte) {
            if (p.pkz < "4000" && betrag(p.ort - rover.ort) < betrag(naechste->ort - rover.ort)) naechste = &p;
        }
        const Ergebnis e = loesen(s, *naechste, rover, {.ionosphaere = "brdc"}, ordner.pfad() / "rinex");
        EXPECT_EQ(e.guete, 1);
        EXPECT_LT(betrag(e.ort - rover.ort), 0.03);
        EXPECT_GT(betrag(rover.naeherung), 2);
        EXPECT_LT(betrag(rover.naeherung), 10);
    }
}

}  // namespace
}  // namespace jorv::simulator

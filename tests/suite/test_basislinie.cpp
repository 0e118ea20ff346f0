#include <gtest/gtest.h>

#include "suite/Pruefdaten.h"
#include "suite/spalten.h"

namespace jorv::suite {

namespace {

const std::string ROVER = "07590920.05o", BASIS = "30400920.05o", VIRT = "virt092.05o";
const Xyz KOPF_BASIS = {-3978242.4348, 3382841.1715, 3649902.7667};

}  // namespace

#define BEREIT()                 \
    NUR_MIT_DATEN("geonet2005"); \
    NUR_MIT_LOESER();            \
    const Pruefordner p;         \
    p.geonet()

TEST(Basislinie, wirkliche_beobachtungen_in_allen_arten)
{
    BEREIT();
    struct Fall {
        Worte worte;
        std::string typ;
        Xyz soll;
        double grenze_mm;
    };
    // Values of version 2.4.3 of the solver; another version may differ by a little noise.
    const std::vector<Fall> faelle = {
        {{"+TL1"}, "FixedL1", {-3976219.6647, 3382372.5437, 3652513.0619}, 5},
        {{}, "FixedL1", {-3976219.6647, 3382372.5437, 3652513.0619}, 5},
        {{"+TL0"}, "FixedL0", {-3976219.6647, 3382372.5437, 3652513.0619}, 25},
    };
    for (const Fall& f : faelle) {
        Worte worte = {BASIS, ROVER, "+ACF001.ATX", "+FSwa2sol.txt"};
        worte.insert(worte.end(), f.worte.begin(), f.worte.end());
        const Lauf lauf = p.wa2(worte);
        ASSERT_EQ(lauf.status, 0) << lauf.ausgabe;
        EXPECT_EQ(p.wort("typ"), f.typ);
        expect_nahe(p.rover(), f.soll, f.grenze_mm, f.grenze_mm);
        EXPECT_NEAR(p.wert("minuten"), 60.0, 0.51);
        EXPECT_EQ(p.wert("bx"), KOPF_BASIS.x);
    }
    EXPECT_NE(p.text("wa2log.txt").find("Scan of RINEX file       30400920.05o\r\n  actual epochs         120\r\n"),
              std::string::npos);
}

// The virtual station at the station itself changes nothing, near the rover and with the solver's own model neither.
TEST(Basislinie, verschobene_station_gibt_die_direkte_loesung)
{
    BEREIT();
    ASSERT_EQ(p.wa2({BASIS, ROVER, "+ACF001.ATX"}).status, 0);
    const Xyz direkt = p.rover();
    for (const bool am_ort_der_station : {true, false}) {
        const Pruefordner q;
        q.geonet();
        if (am_ort_der_station)
            q.aendern(ROVER, " -3976219.5082  3382372.5671  3652512.9849",
                      " -3978242.4348  3382841.1715  3649902.7667");
        ASSERT_EQ(q.wav2({ROVER, "3040"}, Troposphaerenmodell::hydrostatisch).status, 0);
        ASSERT_EQ(q.wa2({VIRT, ROVER, "+ACF001.ATX"}).status, 0);
        EXPECT_EQ(q.wort("typ"), "FixedL1");
        const double grenze = am_ort_der_station ? 0.25 : 0.35;
        expect_nahe(q.rover(), direkt, grenze, grenze);
    }
    // The whole model differs by the wet part of 6 m of height alone; with the ionosphere by its millimetres on L1.
    ASSERT_EQ(p.wav2({ROVER, "3040"}, Troposphaerenmodell::voll, false).status, 0);
    ASSERT_EQ(p.wa2({VIRT, ROVER, "+ACF001.ATX"}).status, 0);
    expect_nahe(p.rover(), direkt, 0.5, 2.0);
}

// Height and offsets of the antenna count with and without a calibration, at either end and through a virtual station;
// the calibration is that of the serial number, else of the type.
TEST(Basislinie, antennen_beider_enden)
{
    BEREIT();
    // Behind the mean calibration of the type a piece of it whose phase centre lies 100 mm higher.
    const std::string antex = p.text("001.ATX"), typ = "TRM29659.00     NONE";
    const auto anfang = antex.rfind('\n', antex.rfind("START OF ANTENNA", antex.find(typ))) + 1;
    const auto ende = antex.find('\n', antex.find("END OF ANTENNA", anfang)) + 1;
    std::string block = antex.substr(anfang, ende - anfang);
    block.replace(block.find(typ) + typ.size(), 5, "M4711");
    for (auto pco = block.find("NORTH / EAST / UP"); pco != std::string::npos;
         pco = block.find("NORTH / EAST / UP", pco + 1)) {
        const auto stelle = block.rfind('\n', pco) + 21;
        const std::string neu = fest(zahl_lesen(block.substr(stelle, 10)) + 100.0, 2);
        block.replace(stelle, 10, std::string(10 - neu.size(), ' ') + neu);
    }
    p.schreiben("001.ATX", antex + block);
    const auto zeilen = [](std::string_view text) { return std::count(text.begin(), text.end(), '\n'); };
    const std::string mittel =
        verkettet("001.ATX Zeile ", zeilen(antex.substr(0, anfang)) + 2, ": ", typ, ", nach dem Typ");
    const std::string stueck = verkettet("001.ATX Zeile ", zeilen(antex) + 2, ": ", typ, "M4711, nach der Nummer");

    struct Ende {
        std::string nummer = "", typ = "TRM29659.00";
        double hoehe = 0.0, ost = 0.0, nord = 0.0;
    };
    struct Fall {
        const char* name;
        Ende basis, rover;
        bool virtuell;
        Enu soll;  // mm, from the first row
        std::string kalibrierung_basis, kalibrierung_rover;
    };
    const Ende hoch{"", "TRM29659.00", 1.5}, fremd{"", "UNBEKANNT"}, fremd_hoch{"", "UNBEKANNT", 1.5}, m4711{"M4711"};
    const std::vector<Fall> faelle = {
        {"beide ohne Hoehe", {}, {}, false, {0, 0, 0}, mittel, mittel},
        {"Hoehe am Rover, kalibriert", {}, hoch, false, {0, 0, -1500}, mittel, mittel},
        {"Hoehe an der Basis, kalibriert", hoch, {}, false, {0, 0, 1500}, mittel, mittel},
        {"Hoehe am Rover, ohne Kalibrierung", fremd, fremd_hoch, false, {0, 0, -1500}, "keine", "keine"},
        {"Hoehe an der Basis, ohne Kalibrierung", fremd_hoch, fremd, false, {0, 0, 1500}, "keine", "keine"},
        {"Hoehe an beiden", hoch, hoch, false, {0, 0, 0}, mittel, mittel},
        {"Hoehe an der verschobenen Basis", hoch, {}, true, {0, 0, 1500}, mittel, mittel},
        {"Versatz am Rover", {}, {"", typ, 0, 0.3, -0.2}, false, {-300, 200, 0}, mittel, mittel},
        {"Versatz an der Basis, ohne Kalibrierung",
         {"", "UNBEKANNT", 0, 0.3, -0.2},
         fremd,
         false,
         {300, -200, 0},
         "keine",
         "keine"},
        {"Nummer am Rover", {}, m4711, false, {0, 0, -100}, mittel, stueck},
        {"Nummer an der Basis", m4711, {}, false, {0, 0, 100}, stueck, mittel},
        {"Nummer an beiden", m4711, m4711, false, {0, 0, 0}, stueck, stueck},
        {"andere Nummer des Typs", {}, {"M4712"}, false, {0, 0, 0}, mittel, mittel},
        {"Nummer eines anderen Typs", {}, {"M4711", "UNBEKANNT"}, false, {0, 0, -100}, mittel, stueck},
    };
    const auto kopfzeile = [&](const std::string& datei, std::string_view marke, std::string neu) {
        neu.resize(60, ' ');
        std::string text = p.text(datei);
        text.replace(text.rfind('\n', text.find(marke)) + 1, 60, neu);
        p.schreiben(datei, text);
    };
    const auto angabe = [](const std::string& text, std::string_view name) {
        const auto stelle = std::min(text.find(name), text.size() - name.size()) + name.size();
        return std::string(trimmen(std::string_view(text).substr(stelle, text.find('\r', stelle) - stelle)));
    };
    Xyz erste;
    for (const Fall& f : faelle) {
        SCOPED_TRACE(f.name);
        for (const auto& [datei, e] : {std::pair(BASIS, f.basis), std::pair(ROVER, f.rover)}) {
            std::string antenne, versatz;
            anhaengen_links(antenne, e.nummer, 20);
            kopfzeile(datei, "ANT # / TYPE", antenne + e.typ);
            for (const double wert : {e.hoehe, e.ost, e.nord}) anhaengen_fest(versatz, wert, 14, 4);
            kopfzeile(datei, "ANTENNA: DELTA", versatz);
        }
        ASSERT_TRUE(!f.virtuell || p.wav2({ROVER, "3040"}, Troposphaerenmodell::voll, false).status == 0);
        const Lauf lauf = p.wa2({f.virtuell ? VIRT : BASIS, ROVER, "+ACF001.ATX"});
        ASSERT_EQ(lauf.status, 0) << lauf.ausgabe;
        if (&f == &faelle.front()) erste = p.rover();
        // The solver takes its troposphere at the marker's height, which is a millimetre of the result; the verticals
        // of both ends differ by 0.6 mm on 1.5 m.
        const Enu d = abweichung_mm(p.rover(), erste);
        EXPECT_NEAR(d.e, f.soll.e, 1.2);
        EXPECT_NEAR(d.n, f.soll.n, 1.2);
        EXPECT_NEAR(d.u, f.soll.u, 2.0);
        EXPECT_EQ(p.wert("antennenhoehe"), f.rover.hoehe);
        for (const std::string& text : {lauf.protokoll, p.text("wa2sol.txt")}) {
            EXPECT_EQ(angabe(text, "Kalibrierung Basis"), f.kalibrierung_basis);
            EXPECT_EQ(angabe(text, "Kalibrierung Rover"), f.kalibrierung_rover);
        }
        for (const auto& [datei, e] : {std::pair(f.virtuell ? VIRT : BASIS, f.basis), std::pair(ROVER, f.rover)})
            EXPECT_EQ(lauf.meldet(verkettet("WARNUNG: Antenne \"", e.nummer, "\" \"", e.typ, "\" der Datei ", datei,
                                            " fehlt in 001.ATX: keine Korrektur an diesem Punkt.\r\n")),
                      e.nummer.empty() && e.typ == "UNBEKANNT");
    }
}

TEST(Basislinie, zeile_mit_allen_angaben_der_batch)
{
    BEREIT();
    ASSERT_EQ(p.wav2({ROVER, "3040", "+PRO", "+E", "+A001.ATX"}).status, 0);
    const Lauf lauf = p.wa2({VIRT, ROVER, "+ACF001.ATX", "-e10", "-M5", "-N10", "-SV07", "-SVG08", "+L2", "+U54",
                             "+E-NS2,CU2,DOY,SES,TDM,BSU,STY,AMB,NS2,DOY,SES,SDV,AMB,SVA,PDM,ROB,STY,TDM,AH2,AT2,TSH",
                             "+FE07590920.ext", "+FL07590920.05o.LIS", "+FSwa2sol.txt"});
    ASSERT_EQ(lauf.status, 0) << lauf.ausgabe;
    const std::string zeile = p.text("07590920.ext");
    EXPECT_EQ(zeile.size(), 204u);
    EXPECT_TRUE(zeile.ends_with("\r\n"));
    EXPECT_EQ(zeile.substr(102 + 96, 4), "0005");
    EXPECT_NEAR(zahl_lesen(zeile.substr(55, 7)), 45.0, 0.51);
    EXPECT_NEAR(zahl_lesen(zeile.substr(5, 15)), 373754.356, 0.02);
    EXPECT_EQ(p.text("07590920.05o.LIS"), lauf.protokoll);
}

TEST(Basislinie, ohne_loesung_keine_zeile)
{
    NUR_MIT_DATEN("geonet2005");
    NUR_MIT_LOESER();
    struct Fall {
        const char* name;
        Worte worte;
        void (*schaden)(const Pruefordner& p);
        const char* meldung;
    };
    const auto nichts = [](const Pruefordner&) {};
    const std::vector<Fall> faelle = {
        {"kein Rover", {BASIS, "99990920.05o"}, nichts, "99990920.05o konnte nicht ge"},
        {"keine Basis", {VIRT, ROVER}, nichts, "virt092.05o konnte nicht ge"},
        {"keine Antennendatei", {BASIS, ROVER, "+ACF002.ATX"}, nichts, "Die Antennendatei 002.ATX"},
        {"Anfang zu lang", {BASIS, ROVER, "-M61"}, nichts, "kein Zeitraum"},
        {"Ende zu lang", {BASIS, ROVER, "-N99999"}, nichts, "kein Zeitraum"},
        {"beide zusammen", {BASIS, ROVER, "-M40", "-N40"}, nichts, "kein Zeitraum"},
        {"alle Satelliten weg", {BASIS, ROVER, "-e89"}, nichts, "Keine L"},
        {"ohne Navigation",
         {BASIS, ROVER},
         [](const Pruefordner& p) {
             fs::remove(p.pfad("30400920.05n"));
             fs::remove(p.pfad("07590920.05n"));
         },
         "Keine Navigationsdatei"},
        {"kaputte Navigation",
         {BASIS, ROVER},
         [](const Pruefordner& p) {
             p.schreiben("30400920.05n", "x");
             fs::remove(p.pfad("07590920.05n"));
         },
         "Keine Navigationsdatei"},
        {"anderer Tag",
         {BASIS, ROVER},
         [](const Pruefordner& p) { p.aendern(BASIS, "\n 05  4  2 ", "\n 05  4  3 "); },
         "keine gemeinsamen Epochen"},
    };
    for (const Fall& f : faelle) {
        const Pruefordner p;
        p.geonet();
        f.schaden(p);
        p.schreiben("a.ext", "alt");
        p.schreiben("a.prt", "alt");
        Worte worte = f.worte;
        worte.insert(worte.end(), {"+E-NS2,CU2", "+FEa.ext", "+FSa.prt", "+FLa.LIS"});
        const Lauf lauf = p.wa2(worte);
        EXPECT_EQ(lauf.status, 1) << f.name;
        EXPECT_TRUE(lauf.meldet("ERROR: ")) << f.name;
        EXPECT_TRUE(lauf.meldet(f.meldung)) << f.name << ": " << lauf.ausgabe;
        EXPECT_FALSE(p.da("a.ext")) << f.name;
        EXPECT_FALSE(p.da("a.prt")) << f.name;
        EXPECT_NE(p.text("a.LIS").find("ERROR: "), std::string::npos) << f.name;
    }
}

// Too short for integers: a float row that says so. No phases at all (the solver then uses no codes either): no row.
TEST(Basislinie, ohne_ganze_zahlen_bleibt_die_loesung_offen)
{
    BEREIT();
    ASSERT_EQ(p.wa2({BASIS, ROVER, "+ACF001.ATX"}).status, 0);
    const Xyz soll = p.rover();
    const Lauf kurz = p.wa2({BASIS, ROVER, "+ACF001.ATX", "-M58", "+E-STY,AMB"});
    EXPECT_EQ(kurz.status, 0);
    EXPECT_TRUE(kurz.meldet("WARNUNG: Die Mehrdeutigkeiten"));
    EXPECT_EQ(p.text("wa2ext.txt"), "FloatDGNSS   0.0\r\n");
    expect_nahe(p.rover(), soll, 1000.0, 2000.0);
    for (const std::string& name : {ROVER, BASIS})
        p.aendern(name, "     4    L1    C1    L2    P2", "     4    D1    C1    D2    P2");
    const Lauf code = p.wa2({BASIS, ROVER, "+ACF001.ATX", "+E-STY,AMB"});
    EXPECT_EQ(code.status, 1);
    EXPECT_TRUE(code.meldet("ERROR: Keine L")) << code.ausgabe;
    EXPECT_FALSE(p.da("wa2ext.txt"));
}

TEST(Basislinie, grosse_lange_namen_und_blanks)
{
    BEREIT();
#ifdef _WIN32  // which has no "*" in names
    const std::string name = "R 1%n#.05o";
#else
    const std::string name = "R 1%n#*.05o";
#endif
    fs::rename(p.pfad(ROVER), p.pfad(name));
    fs::rename(p.pfad("001.ATX"), p.pfad("mit blank.ATX"));
    const Lauf lauf = p.wa2({BASIS, klein(name), "+ACFmit blank.atx", "+SE", "+FSe m.EMD"});
    EXPECT_EQ(lauf.status, 0) << lauf.ausgabe;
    EXPECT_NE(p.text("e m.EMD").find("KOVARIANZ"), std::string::npos);
    EXPECT_FALSE(p.da("wa2ext.txt"));
}

// Rover at one second, base at thirty: the result is that of the common epochs.
TEST(Basislinie, rover_mit_einer_sekunde)
{
    NUR_MIT_DATEN("katalonien2010");
    NUR_MIT_LOESER();
    const Pruefordner p;
    for (const char* name : {"upc10770.10o", "upc20770.10o", "garr0770.10o", "brdc0770.10n"})
        p.holen(echt() / "katalonien2010" / name);
    std::array<Xyz, 2> upc;
    for (std::size_t i = 0; i < 2; ++i) {
        const std::string rover = i == 0 ? "upc10770.10o" : "upc20770.10o";
        ASSERT_EQ(p.wav2({rover, "garr"}).status, 0);
        const Lauf lauf = p.wa2({"virt077.10o", rover, "+R30", "+TL1"});
        ASSERT_EQ(lauf.status, 0) << lauf.ausgabe;
        EXPECT_EQ(p.wort("typ"), "FixedL1");
        EXPECT_EQ(p.wert("epochen"), 120);
        upc[i] = p.rover();
    }
    // The vector between the two, computed directly: -27.409 -26.219 -0.041.
    const Enu d = enu(Ort(upc[0]), upc[1] - upc[0]);
    EXPECT_NEAR(d.e, -27.409, 0.005);
    EXPECT_NEAR(d.n, -26.219, 0.005);
    EXPECT_NEAR(d.u, -0.041, 0.010);
    // 31 km: too long for L1 unless it is asked for, and then it is said.
    p.holen(echt() / "katalonien2010" / "mata0770.10o");
    for (const bool verlangt : {false, true}) {
        const Lauf lauf = p.wa2({"mata0770.10o", "upc10770.10o", "+R30", verlangt ? "+TL1" : "+L1"});
        EXPECT_EQ(lauf.meldet("WARNUNG: L1 ist f"), verlangt);
        EXPECT_EQ(lauf.protokoll.find("Lauf L1 ") != std::string::npos, verlangt) << lauf.protokoll;
    }
}

}  // namespace jorv::suite

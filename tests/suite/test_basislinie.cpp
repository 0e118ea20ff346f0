#include <gtest/gtest.h>

#include "suite/Pruefdaten.h"

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
    // The whole model differs by the wet part of 6 m of height alone.
    ASSERT_EQ(p.wav2({ROVER, "3040"}).status, 0);
    ASSERT_EQ(p.wa2({VIRT, ROVER, "+ACF001.ATX"}).status, 0);
    expect_nahe(p.rover(), direkt, 0.5, 2.0);
}

TEST(Basislinie, antennenhoehe_und_antenne_nach_nummer)
{
    BEREIT();
    ASSERT_EQ(p.wa2({BASIS, ROVER, "+ACF001.ATX"}).status, 0);
    const Xyz ohne = p.rover();
    p.aendern(ROVER, "        0.0000        0.0000        0.0000                  ANTENNA: DELTA",
              "        1.5000        0.0000        0.0000                  ANTENNA: DELTA");
    ASSERT_EQ(p.wa2({BASIS, ROVER, "+ACF001.ATX"}).status, 0);
    // The solver takes its troposphere at the marker's height, which is a millimetre of the result.
    EXPECT_NEAR(abweichung_mm(p.rover(), ohne).u, -1500.0, 2.0);
    EXPECT_EQ(p.wert("antennenhoehe"), 1.5);

    // A second antenna of the same type with a phase centre 100 mm higher on L1; the rover names its number.
    const std::string antex = p.text("001.ATX");
    const auto typ = antex.find("TRM29659.00     NONE");
    const auto anfang = antex.rfind("START OF ANTENNA", typ);
    const auto zeile = antex.rfind('\n', anfang) + 1, ende = antex.find('\n', antex.find("END OF ANTENNA", typ)) + 1;
    std::string block = antex.substr(zeile, ende - zeile);
    block.replace(block.find("TRM29659.00     NONE"), 40, "TRM29659.00     NONEM4711               ");
    const auto pco = block.rfind('\n', block.find("NORTH / EAST / UP")) + 1;
    const double hoch = zahl_lesen(block.substr(pco + 20, 10));
    std::string neu = fest(hoch + 100.0, 2);
    block.replace(pco + 20, 10, std::string(10 - neu.size(), ' ') + neu);
    p.schreiben("001.ATX", antex + block);
    p.aendern(ROVER, "                    TRM29659.00                             ANT #",
              "M4711               TRM29659.00                             ANT #");
    const Xyz vorher = p.rover();
    const Lauf lauf = p.wa2({BASIS, ROVER, "+ACF001.ATX"});
    ASSERT_EQ(lauf.status, 0);
    EXPECT_NE(lauf.protokoll.find("M4711, nach der Nummer"), std::string::npos);
    EXPECT_NEAR(abweichung_mm(p.rover(), vorher).u, -100.0, 0.3);
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

TEST(Basislinie, antenne_fehlt_am_einen_ende)
{
    BEREIT();
    p.aendern(ROVER, "                    TRM29659.00                             ANT #",
              "                    UNBEKANNT                               ANT #");
    const Lauf lauf = p.wa2({BASIS, ROVER, "+ACF001.ATX"});
    EXPECT_EQ(lauf.status, 0);
    EXPECT_TRUE(lauf.meldet("WARNUNG: Antenne \"\" \"UNBEKANNT\" der Datei 07590920.05o"));
}

TEST(Basislinie, grosse_lange_namen_und_blanks)
{
    BEREIT();
    fs::rename(p.pfad(ROVER), p.pfad("R 1%n#*.05o"));
    fs::rename(p.pfad("001.ATX"), p.pfad("mit blank.ATX"));
    const Lauf lauf = p.wa2({BASIS, "r 1%n#*.05O", "+ACFmit blank.atx", "+SE", "+FSe m.EMD"});
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
        const Lauf lauf = p.wa2({"virt077.10o", rover, "+R30"});
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
}

}  // namespace jorv::suite

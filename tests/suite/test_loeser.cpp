#include "suite/loeser.h"

#include <gtest/gtest.h>

#include "suite/Pruefdaten.h"

namespace jorv::suite {

namespace {

const std::string ROVER = "07590920.05o", BASIS = "30400920.05o";

const std::string ZEILE =
    "2005/04/02 00:00:00.000  -3976219.7103   3382373.2996   3652513.3762   1   7  10.8806  11.9329   "
    "9.3199  -9.9044   7.7183  -7.2913   0.00    2.5\n";

}  // namespace

// Stand-ins of the solver that misbehave, one after the other.
TEST(Loeser, stoerungen_geben_eine_meldung_und_kein_ergebnis)
{
    NUR_MIT_DATEN("geonet2005");
    struct Fall {
        const char* name;
        std::string skript;  // empty: no program at all
        std::string batch;   // the same for Windows, which has no signals
        const char* meldung;
    };
    const std::vector<Fall> faelle = {
        {"fehlt", "", "", "rnx2rtkp wurde nicht gefunden"},
        {"haengt", "sleep 60", ":a\r\ngoto a", "nach 1 s abgebrochen"},
#ifndef _WIN32
        {"stirbt", "kill -SEGV $$", "", "endete mit Status 139"},
#endif
        {"Status", "exit 3", "exit 3", "endete mit Status 3"},
        {"tut nichts", "echo 'error : no nav data' >&2", "echo error : no nav data>&2", "error : no nav data"},
        {"leere Datei", ": > o.pos", "rem > o.pos", "lieferte keine"},
        {"andere Version", "echo '% program   : RTKLIB ver.2.4.2' > o.pos",
         "echo %% program   : RTKLIB ver.2.4.2> o.pos", "erprobt ist 2.4.3"},
        {"nur Kopf", "echo '% program   : RTKLIB ver.2.4.3' > o.pos", "echo %% program   : RTKLIB ver.2.4.3> o.pos",
         "lieferte keine"},
        {"halbe Zeile", "printf '2005/04/02 00:00:00.000  -3976219.71' > o.pos",
         "echo 2005/04/02 00:00:00.000  -3976219.71> o.pos", "lieferte keine"},
        {"keine Zahlen", "printf '2005/04/02 00:00:00.000 nan nan nan 1 7 nan nan nan nan nan nan 0 9\\n' > o.pos",
         "echo 2005/04/02 00:00:00.000 nan nan nan 1 7 nan nan nan nan nan nan 0 9 > o.pos", "lieferte keine"},
        {"eine einzige Epoche", "printf '" + ZEILE + "' > o.pos",
         "echo " + ZEILE.substr(0, ZEILE.size() - 1) + " > o.pos", "Keine L"},
    };
    for (const Fall& f : faelle) {
        const Pruefordner p;
        p.geonet();
        Loeserumgebung umgebung{"", 1, p.temp.wurzel()};
        if (!f.skript.empty()) {
#ifdef _WIN32
            umgebung.programm = p.pfad("loeser.bat");
            p.schreiben("loeser.bat", "@echo off\r\n" + f.batch + "\r\n");
#else
            umgebung.programm = p.pfad("loeser.sh");
            p.schreiben("loeser.sh", "#!/bin/sh\n" + f.skript + "\n");
            fs::permissions(umgebung.programm, fs::perms::owner_all);
#endif
        }
        const Lauf lauf = p.wa2({BASIS, ROVER, "+ACF001.ATX", "+TL1", "+E-NS2,CU2"}, umgebung);
        EXPECT_EQ(lauf.status, 1) << f.name;
        EXPECT_NE(lauf.protokoll.find(f.meldung), std::string::npos) << f.name << ": " << lauf.protokoll;
        EXPECT_TRUE(lauf.meldet("ERROR: ")) << f.name;
        EXPECT_FALSE(p.da("wa2ext.txt")) << f.name;
        // The private folder is gone whatever happened.
        EXPECT_EQ(std::distance(fs::directory_iterator(p.temp.wurzel()), {}), 1) << f.name;
    }
}

TEST(Loeser, liest_positionen_und_residuen)
{
    const Loeserausgabe a =
        loeserausgabe_lesen("% program   : RTKLIB ver.2.4.3\r\n%\n" + ZEILE + ZEILE.substr(0, 60) + "\n",
                            "$POS,1316,518400.000,2,1,2,3,0,0,0\n$SAT,1316,518400.000,G07,2,298.1,16.2,0.9102,-0.0012,"
                            "1,0.0,2,0,1,0,0,0\n$SAT,13");
    EXPECT_EQ(a.programm, "RTKLIB ver.2.4.3");
    ASSERT_EQ(a.positionen.size(), 1u);
    EXPECT_EQ(a.positionen[0].ort.z, 3652513.3762);
    EXPECT_EQ(a.positionen[0].guete, Guete::fest);
    EXPECT_EQ(a.positionen[0].gemischt[2], -7.2913);
    EXPECT_EQ(a.positionen[0].verhaeltnis, 2.5);
    ASSERT_EQ(a.reste.size(), 1u);
    EXPECT_EQ(a.reste[0].satellit, "G07");
    EXPECT_EQ(a.reste[0].frequenz, 2);
    EXPECT_EQ(a.reste[0].rest, -0.0012);
    EXPECT_EQ(a.reste[0].rest_code, 0.9102);
    EXPECT_TRUE(a.reste[0].fest && a.reste[0].gueltig);
    EXPECT_EQ(a.reste[0].zeit, a.positionen[0].zeit);
}

// With ionosphere parameters the solver multiplies their sigmas by the length: a virtual station needs the reverse.
TEST(Loeser, vorgaben)
{
    Loeserauftrag auftrag;
    auftrag.ohne_satelliten = {"G05", "G20"};
    auftrag.rover.antennenhoehe = 1.5;
    auftrag.rover_antenne = Antennenblock{};
    auftrag.solverlaenge = 1.0;
    auftrag.zenit_schaetzen = true;
    const std::string l1 = optionsdatei(auftrag, Laufart::l1), l0 = optionsdatei(auftrag, Laufart::l0);
    for (const char* zeile :
         {"pos1-frequency=1\n", "pos1-ionoopt=brdc\n", "pos1-tropopt=saas\n", "pos1-exclsats=G05 G20\n",
          "ant1-anttype=ROVERANTENNE\n", "ant2-anttype=\n", "ant1-antdelu=1.5000\n", "pos2-armode=continuous\n"})
        EXPECT_NE(l1.find(zeile), std::string::npos) << zeile;
    for (const char* zeile :
         {"pos1-frequency=2\n", "pos1-ionoopt=est-stec\n", "pos1-tropopt=est-ztd\n", "stats-stdiono=50000.000000\n",
          "stats-prniono=1000.000000\n", "stats-stdtrop=3.000\n", "stats-prntrop=0.00100\n"})
        EXPECT_NE(l0.find(zeile), std::string::npos) << zeile;
    EXPECT_NE(optionsdatei(auftrag, Laufart::code).find("pos1-posmode=dgps\n"), std::string::npos);
    EXPECT_NE(optionsdatei(auftrag, Laufart::offen).find("pos2-armode=off\n"), std::string::npos);
}

}  // namespace jorv::suite

// A real baseline with the built-in suite, held against its published vector, by both ways of computing.
#include <gtest/gtest.h>

#include <GeographicLib/LocalCartesian.hpp>
#include <cmath>
#include <cstdlib>

#include "app/start.h"
#include "auswertung/aufrufdatei.h"
#include "auswertung/basis_gesamt.h"
#include "auswertung/basis_lovena.h"
#include "auswertung/lauf.h"
#include "ganz/Programmlauf.h"
#include "modell/Baum.h"
#include "plattform/wort.h"
#include "plattform/zahl.h"
#include "projekt/verfahren.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

constexpr double X = 4789013.0077, Y = 176610.1555, Z = 4195034.8091;
constexpr double ost = -27.4170, nord = -26.2341, hoch = -0.0304;  // the published vector in the horizon of X, Y, Z

// Distance in metres between the published vector and that of a result row (mm).
double abweichung(std::string_view reihe)
{
    const GeographicLib::Geocentric erde(6378137, 1 / 298.257222101);
    double breite = 0, laenge = 0, hoehe = 0, x = 0, y = 0, z = 0;
    erde.Reverse(X, Y, Z, breite, laenge, hoehe);
    GeographicLib::LocalCartesian(breite, laenge, hoehe, erde).Reverse(ost, nord, hoch, breite, laenge, hoehe);
    erde.Forward(breite, laenge, hoehe, x, y, z);
    const auto wort = [reihe](int nummer) { return zahl_lesen(wort_finden(reihe, nummer).text) / 1000; };
    return std::hypot(X + wort(3) - x, Y + wort(4) - y, Z + wort(5) - z);
}

TEST(BasisMitSuite, zwei_wege_geben_den_veroeffentlichten_vektor)
{
    const fs::path daten = fs::path(JORV_DATEN) / "echt/katalonien2010";
    if (!fs::exists(daten / "upc10770.10o")) GTEST_SKIP() << "The real observations are missing: " << daten.string();
    const Arbeitsplatz platz;
    fs::create_directories(platz.host("rinex"));
    for (const auto& [alt, neu] : {std::pair{"upc10770.10o", "55010770.10o"},
                                   {"upc20770.10o", "55020770.10o"},
                                   {"brdc0770.10n", "brdc0770.10n"}})
        fs::copy_file(daten / alt, platz.host("rinex") / neu);
    hilfen::schreiben(platz.host("katalog.txt"), "0601 4833520.1197 41537.2015 4147461.6263 Ebre\n");
    hilfen::schreiben(platz.host("grenzen.txt"), "2 -200000 4500000\n1 0 4700000\n");
    const std::string antennen = (daten.parent_path() / "antennen/igs08_auszug.atx").string();
    for (const std::vector<std::string>& worte : {std::vector<std::string>{"katalog", "machen", "katalog.txt"},
                                                  {"grenzen", "machen", "grenzen.txt"},
                                                  {"neu", "Linie", "--modus", "B", "--verzeichnis", "linie"},
                                                  {"--ja", "rinex", "1", "rinex"},
                                                  {"antennen", "1", antennen}})
        ASSERT_EQ(platz.jorv(worte).status, 0) << worte[0];

    const std::string alter_pfad = std::getenv("PATH");
    ::setenv("PATH", (platz.host("programme").string() + ":" + alter_pfad).c_str(), 1);
    Pruefschirm schirm;
    const Festuhr uhr({2016, 12, 1, 12, 0, 0});
    Global g(schirm, uhr, Dateisystem());
    ASSERT_EQ(start(g, {Laufwerke().dos(platz.host("JorvPlus.INI")).value(), {}}), Fehler::keiner);
    ASSERT_EQ(Verfahren_oeffnen(g, "Linie"), Fehler::keiner);
    (void)g.BASISLINIE.anfuegen({"5501", "55010770.10o", "5502", "55020770.10o"});
    baum_aufbauen(g);
    g.emds_ausgabe = true;
    EXPECT_EQ(m_wasoft_run_n(g), Fehler::keiner);
    EXPECT_TRUE(schirm.gezeigt.empty()) << schirm.einzige();
    const fs::path ablage = platz.host("linie/jorv_out");
    EXPECT_LT(abweichung(lesen(ablage / "export/001.MRK")), 0.02);
    EXPECT_EQ(lesen(ablage / "export/001.EPO"), "55010770.10o 3600\r\n55020770.10o 3600\r\n");
    EXPECT_EQ(lesen(ablage / "export/001.SIG").rfind("5501 5502 18.03.2010 ", 0), 0u);
    EXPECT_FALSE(lesen(ablage / "export/001.EMD").empty());
    EXPECT_TRUE(fs::exists(ablage / "lis_bas/55010770-55020770.lis"));
    EXPECT_EQ(g.baum.finden("BB_Datei")->Kinder.size(), 1u);
    EXPECT_EQ(m_basis_lovena(g), Fehler::keiner);
    EXPECT_EQ(lesen(platz.host("linie/RV001.DAT")).rfind(" -99\r\n       5501       5502  ", 0), 0u);

    schirm.antworten = {Antwort::ja};
    EXPECT_EQ(m_basis_erstellen(g), Fehler::keiner);
    EXPECT_TRUE(prozess_warten(g.dateien, '"' + aufrufdatei(g) + '"'));
    ::setenv("PATH", alter_pfad.c_str(), 1);
    EXPECT_LT(abweichung(lesen(platz.host("linie/001.MRK"))), 0.02);
    EXPECT_EQ(lesen(platz.host("linie/001.TEM")).rfind("RefS", 0), 0u);
    EXPECT_TRUE(fs::exists(ablage / "prot_bas/55010770._55020770.prt"));
}

}  // namespace

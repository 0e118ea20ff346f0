// Real baselines on the command line with the built-in suite, held against their published vector, by both ways.
#include <gtest/gtest.h>

#include <GeographicLib/LocalCartesian.hpp>
#include <cmath>
#include <string>
#include <vector>

#include "ganz/Programmlauf.h"
#include "plattform/wort.h"
#include "plattform/zahl.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

constexpr double X = 4789013.0077, Y = 176610.1555, Z = 4195034.8091;
constexpr double ost = -27.4170, nord = -26.2341, hoch = -0.0304;  // the published vector in the horizon of X, Y, Z

// East and north in metres of a result row's end beside the published place of 5501.
double lage_daneben(std::string_view reihe, double von_x, double von_y, double von_z)
{
    const GeographicLib::Geocentric erde(6378137, 1 / 298.257222101);
    double breite = 0, laenge = 0, hoehe = 0, e = 0, n = 0, u = 0;
    erde.Reverse(X, Y, Z, breite, laenge, hoehe);
    const GeographicLib::LocalCartesian horizont(breite, laenge, hoehe, erde);
    const auto wort = [reihe](int nummer) { return zahl_lesen(wort_finden(reihe, nummer).text) / 1000; };
    erde.Reverse(von_x + wort(3), von_y + wort(4), von_z + wort(5), breite, laenge, hoehe);
    horizont.Forward(breite, laenge, hoehe, e, n, u);
    return std::hypot(e, n);
}

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

// A project of mode B on the real observations, driven by command lines alone.
struct Basisplatz : Arbeitsplatz {
    explicit Basisplatz(const fs::path& daten)
    {
        fs::create_directories(host("rinex"));
        for (const auto& [alt, neu] : {std::pair{"upc10770.10o", "55010770.10o"},
                                       {"upc20770.10o", "55020770.10o"},
                                       {"upc10770.10o", "05830770.10o"},
                                       {"garr0770.10o", "garr0770.10o"},
                                       {"brdc0770.10n", "brdc0770.10n"}})
            fs::copy_file(daten / alt, host("rinex") / neu);
        hilfen::schreiben(host("katalog.txt"), "0601 4833520.1197 41537.2015 4147461.6263 Ebre\n");
        hilfen::schreiben(host("grenzen.txt"), "2 -200000 4500000\n1 0 4700000\n");
        hilfen::schreiben(host("paare.txt"), "5501 5502\r\n\r\n5502 5501 und mehr\r\ngarr 5501\r\n");
        const std::string antennen = (daten.parent_path() / "antennen/igs08_auszug.atx").string();
        gut({"katalog", "machen", "katalog.txt"});
        gut({"grenzen", "machen", "grenzen.txt"});
        gut({"neu", "Linie", "--modus", "B", "--verzeichnis", "linie"});
        gut({"--ja", "rinex", "1", "rinex"});
        gut({"antennen", "1", antennen});
    }
    // Standard output of a command that must succeed.
    std::string gut(const std::vector<std::string>& worte) const
    {
        const auto lauf = jorv(worte);
        EXPECT_EQ(lauf.status, 0) << worte[0] << ": " << lauf.err;
        return lauf.aus;
    }
    std::string datei(std::string_view name) const { return lesen(host("linie") / std::string(name)); }
    bool hat(std::string_view name) const { return fs::exists(host("linie") / std::string(name)); }
};

const std::string linie = "55010770.10o-55020770.10o", zwanzig_km = "garr0770.10o-55010770.10o";

// Points, vector, deviations, correlations, day; only the session may follow.
void mrk_pruefen(std::string_view reihe)
{
    std::vector<double> zahlen;
    for (int i = 3; i <= 12; ++i) {
        const auto zahl = zahl_streng(wort_finden(reihe, i).text);
        ASSERT_TRUE(zahl) << "word " << i << " of " << reihe;
        zahlen.push_back(*zahl);
    }
    EXPECT_LT(abweichung(reihe), 0.02) << reihe;
    for (std::size_t i = 3; i < 6; ++i) EXPECT_TRUE(zahlen[i] > 0 && zahlen[i] < 20) << reihe;
    for (std::size_t i = 6; i < 9; ++i) EXPECT_LE(std::abs(zahlen[i]), 1) << reihe;
    EXPECT_EQ(zahlen[9], 77);
}

TEST(BasisMitSuite, von_der_liste_der_paare_bis_zur_ausgleichung)
{
    const fs::path daten = fs::path(JORV_DATEN) / "echt/katalonien2010";
    if (!fs::exists(daten / "upc10770.10o")) GTEST_SKIP() << "The real observations are missing: " << daten.string();
    const Basisplatz platz(daten);
    EXPECT_EQ(platz.gut({"basislinien", "1", "paare.txt"}), linie + "\n" + zwanzig_km + "\n");
    platz.gut({"batch", "1", linie, "--emds"});
    EXPECT_NE(platz.datei("001.BAT").find(" +SE +FS001.EMD\r\n"), std::string::npos);
    EXPECT_NE(platz.gut({"auswerten", "1", "--emds"}).find(linie + "  FixedL1"), std::string::npos);
    const std::string mrk = platz.datei("jorv_out/export/001.MRK");
    mrk_pruefen(mrk);
    EXPECT_LT(lage_daneben(mrk.substr(mrk.find("garr")), 4796983.5767, 160309.1177, 4187340.3773), 0.025) << mrk;
    EXPECT_EQ(platz.datei("jorv_out/export/001.EPO"),
              "55010770.10o 3600\r\n55020770.10o 3600\r\ngarr0770.10o 2880\r\n");
    EXPECT_EQ(platz.datei("jorv_out/export/001.SIG").rfind("5501 5502 18.03.2010 ", 0), 0u);
    EXPECT_EQ(platz.datei("jorv_out/export/001.AMB").rfind("5501 5502 18.03.2010", 0), 0u);
    for (const char* name : {"export/001.TEM", "export/001.EMD", "dat_bas/001.BAL", "dat_bas/55010770-55020770.BAL",
                             "lis_bas/55010770-55020770.lis", "prot_bas/55010770-55020770.prt"})
        EXPECT_GT(platz.datei(std::string("jorv_out/") + name).size(), 80u) << name;
    platz.gut({"esa", "1"});
    platz.gut({"rv", "1"});
    EXPECT_EQ(platz.datei("RV001.DAT").rfind(" -99\r\n       5501       5502  ", 0), 0u);
    EXPECT_NE(platz.gut({"export", "1", "--format", "geojson"}).find("\"Loesung\":\"FixedL1\",\"dX\":18.3"),
              std::string::npos);

    EXPECT_NE(platz.gut({"--ja", "basis", "1", "beides"}).find("001.BAT"), std::string::npos);
    mrk_pruefen(platz.datei("001.MRK"));
    EXPECT_EQ(platz.datei("001.TEM").rfind("RefS", 0), 0u);
    EXPECT_TRUE(platz.hat("jorv_out/prot_bas/55010770._55020770.prt"));

    EXPECT_EQ(platz.jorv({"basislinie-loeschen", "1", linie}).status, 0);  // the question's default is "no"
    EXPECT_NE(platz.datei("001.INI").find("55020770.10o"), platz.datei("001.INI").rfind("55020770.10o"));
    platz.gut({"--ja", "basislinie-loeschen", "1", linie});
    EXPECT_EQ(platz.datei("jorv_out/export/001.MRK"), mrk.substr(mrk.find("garr")));
    EXPECT_EQ(platz.gut({"ergebnisse", "1"}).find(linie), std::string::npos);
    EXPECT_EQ(platz.jorv({"basislinie-loeschen", "1", linie}).status, 1);
}

TEST(BasisMitSuite, was_in_einem_fenster_liefe_laeuft_auf_der_konsole_zu_ende)
{
    const fs::path daten = fs::path(JORV_DATEN) / "echt/katalonien2010";
    if (!fs::exists(daten / "upc10770.10o")) GTEST_SKIP() << "The real observations are missing: " << daten.string();
    const Basisplatz platz(daten);
    const auto i95 = platz.jorv({"i95", "1"});
    EXPECT_EQ(i95.status, 0) << i95.err;
    EXPECT_NE(i95.err.find("-- I95-Auswertung..."), std::string::npos) << i95.err;
    EXPECT_EQ(platz.datei("58300770.10o"), platz.datei("05830770.10o"));
    for (const char* name : {"001.LIS", "001.ERR"})
        EXPECT_NE(platz.datei(name).find("ERROR: Keine Referenzstation"), std::string::npos) << name;

    hilfen::schreiben(platz.host("linie/HB001.DAT"), "x");
    EXPECT_NE(platz.jorv({"zeichnen", "1"}).err.find("2 Datei nicht gefunden beim Start von HOLBEK"),
              std::string::npos);
#ifndef _WIN32  // where a script isn't a program of that name
    hilfen::schreiben(platz.host("programme/holbek"), "#!/bin/sh\necho \"$PWD $1\"\nsleep 0.3\necho fertig\n");
    fs::permissions(platz.host("programme/holbek"), fs::perms::owner_all);
    const auto lauf = platz.jorv({"zeichnen", "1"});
    EXPECT_EQ(lauf.status, 0);
    EXPECT_EQ(lauf.err, platz.host("").parent_path().string() + " JorvPlus.INI\nfertig\n");
    EXPECT_NE(lesen(platz.host("JorvPlus.INI")).find("[HOLBEK]\r\nIcon="), std::string::npos);
#endif
    EXPECT_EQ(platz.jorv({"mitteln", "1"}).status, 1);
}

}  // namespace

#include "auswertung/ergebniszeile.h"

#include <gtest/gtest.h>

#include "hilfen/Projekt.h"

namespace jorv {
namespace {

// Columns: point 1-4, coordinates 6-48, day 50-52, session 54, minutes 56-62, deviations 64-84, type 86-95, per cent.
constexpr std::string_view kurz =
    "0759     392645.1234   3888123.4567      70.1535 092 0    59.5    1.10   1.20   2.70 FixedL1    100.0";

std::string lang()
{
    return "Kirchhof Ost        " + std::string(kurz.substr(4));
}

TEST(Ergebnis, SpaltenDerKurzenUndDerLangenZeile)
{
    const std::pair<std::string, std::string> zeilen[] = {{std::string(kurz), "0759"}, {lang(), "Kirchhof Ost"}};
    for (const auto& [zeile, punkt] : zeilen) {
        const auto e = ergebnis_aus_zeile(zeile);
        ASSERT_TRUE(e) << zeile;
        EXPECT_EQ(e->Punkt, punkt);
        EXPECT_EQ(e->Rechtswert, 392645.1234);
        EXPECT_EQ(e->Hochwert, 3888123.4567);
        EXPECT_EQ(e->Hoehe, 70.1535);
        EXPECT_EQ(e->Minuten, 59.5);
        EXPECT_EQ(e->sE, 1.1);
        EXPECT_EQ(e->sH, 2.7);
        EXPECT_EQ(e->Loesung, "FixedL1");
        EXPECT_EQ(e->Ambiguitaeten, 100.0);
    }
}

TEST(Ergebnis, KeineErfundenenZahlen)
{
    std::string sterne(kurz);
    sterne.replace(5, 15, "***************");
    for (const std::string& zeile : {std::string(), std::string(kurz.substr(0, 100)), sterne})
        EXPECT_FALSE(ergebnis_aus_zeile(zeile)) << zeile;
    std::string riesig(kurz);
    riesig.replace(38, 10, "     9E999");
    EXPECT_EQ(ergebnis_aus_zeile(riesig)->Hoehe, 0);
}

TEST(Ergebnis, DieLetzteZeileDerDateiGilt)
{
    const hilfen::Arbeitsordner ordner;
    const Dateisystem dateien;
    EXPECT_FALSE(ergebnis_lesen(dateien, ordner.dos(), "5501167j.16o"));
    std::string spaeter(kurz);
    spaeter.replace(85, 10, "FloatDGNSS");
    hilfen::schreiben(ordner.host() / "jorv_out/dat_rov/5501167j.16o.UTM",
                      std::string(kurz) + "\r\n" + spaeter + "\r\n");
    EXPECT_EQ(ergebnis_lesen(dateien, ordner.dos(), "5501167j.16o")->Loesung, "FloatDGNSS");
}

}  // namespace
}  // namespace jorv

#include "suite/felder.h"

#include <gtest/gtest.h>

#include <sstream>

#include "suite/aufruf.h"

namespace jorv::suite {

namespace {

Ergebnis beispiel()
{
    Ergebnis e;
    e.basis_datei = "30400920.05o";
    e.rover_datei = "07590920.05o";
    e.rover_marke = "Langer Name des Punktes";
    e.basis = {-3978242.4348, 3382841.1715, 3649902.7667};
    e.rover = {-3976219.6637, 3382372.5413, 3652513.0541};
    e.zone = 54;
    e.beginn = gps_zeit({2005, 4, 2, 0, 0, 0}).value();
    e.minuten = 59.5;
    e.loesungstyp = "FixedL1";
    e.sigma = {0.00104, 0.00095, 0.00128};
    e.r_xy = -0.641, e.r_yz = 0.38, e.r_zx = -0.62;
    e.sigma_enu = {0.0011, 0.0012, 0.0027};
    e.sigma0 = 0.00341;
    e.mehrdeutigkeiten = 100, e.satelliten = 6.7, e.pdop_beste = 1.76, e.pdop_mittel = 2.34, e.umgewichtet = 0.2;
    e.antennentyp = "TRM29659.00     NONE";
    return e;
}

Worte liste(const std::string& text)
{
    std::string grund;
    return wa2_aufruf({"a", "b", "+E-" + text}, grund).value_or(Wa2Aufruf{}).felder;
}

const std::string KURZ = "CU2,DOY,SES,TDM,BSU,STY,AMB,";
const std::string LANG = "NS2,DOY,SES,SDV,AMB,SVA,PDM,ROB,STY,TDM,AH2,AT2,TSH";
const std::string BASIS1 = "NS1,NS2,BCX,BLE,BSX,BXX,", BASIS2 = "NS1,NS2,BCX,BSX,BXX,DOY,SES,",
                  BASIS3 = "NS1,NS2,SDV,BXX,AMB,DOY,SES,SVA,STY,TDM,PDA";

std::vector<std::string> woerter(const std::string& text)
{
    std::istringstream strom(text);
    std::vector<std::string> alle;
    for (std::string wort; strom >> wort;) alle.push_back(wort);
    return alle;
}

}  // namespace

TEST(Felder, zeile_eines_rovers)
{
    const std::string zeile = feldzeile(liste("NS2," + KURZ + LANG), beispiel());
    ASSERT_EQ(zeile.size(), 202u);
    EXPECT_EQ(zeile.substr(0, 4), "0759");
    EXPECT_EQ(zeile[101], ' ');
    const std::string lang = zeile.substr(102);
    EXPECT_EQ(lang,
              "0759 092 0      3.41 100.0  6.7       1.8   0.2 FixedL1       59.5   0.000 TRM29659.00     NONE 0000");
    for (const std::size_t strich : {5, 11, 21, 27, 32, 42, 48, 59, 67, 75, 96})
        EXPECT_EQ(lang[strich - 1], ' ') << strich;
    EXPECT_EQ(feldzeile(liste("NL2," + KURZ + LANG), beispiel()).size(), 218u);
    EXPECT_EQ(feldzeile(liste("NL2," + KURZ), beispiel()).substr(0, 22), "Langer Name des Punk  ");
}

TEST(Felder, zeile_einer_basislinie)
{
    const std::string zeile = feldzeile(liste(BASIS1 + BASIS2 + BASIS3), beispiel());
    ASSERT_EQ(zeile.size(), 288u);
    const std::string bal = zeile.substr(0, 103), mrk = zeile.substr(104, 96), tem = zeile.substr(201, 87);
    EXPECT_EQ(
        bal, "3040 0759    2022771.1   -468630.2   2610287.4    3335388.7    1.04   0.95   1.28  -0.641  0.380 -0.620");
    // The right ends of the head's words.
    for (const std::size_t ende : {22, 34, 46, 59, 67, 74, 81, 89, 96, 103}) {
        EXPECT_NE(bal[ende - 1], ' ') << ende;
        EXPECT_TRUE(ende == bal.size() || bal[ende] == ' ') << ende;
    }
    EXPECT_EQ(woerter(mrk).size(), 13u);  // the twelfth is the day, the session stands behind
    EXPECT_EQ(woerter(mrk)[11], "092");
    EXPECT_EQ(woerter(tem)[2], "3.41");
    EXPECT_EQ(woerter(tem)[6], "100.0");
    EXPECT_EQ(woerter(tem)[7], "1316/6");
}

TEST(Felder, blanke_sitzung_schiebt_nichts)
{
    Ergebnis e = beispiel();
    e.rover_datei = "0759092.05o";
    EXPECT_EQ(feldzeile(liste("NS2," + KURZ + LANG), e).size(), 202u);
    EXPECT_EQ(woerter(feldzeile(liste(BASIS2), e)).size(), 12u);
}

TEST(Felder, zeitmarke_kurz_vor_mitternacht_gehoert_zum_neuen_tag)
{
    Ergebnis e = beispiel();
    e.beginn = gps_zeit({2005, 4, 2, 23, 59, 59.996}).value();
    EXPECT_EQ(feldzeile({"DOY", "TSH"}, e), "093 0000");
    EXPECT_EQ(feldzeile({"SDV", "DOY"}, e), "     3.41 1317/0");
}

TEST(Felder, zu_lange_werte_verlieren_stellen_und_nie_ihren_abstand)
{
    struct Fall {
        double wert;
        int breite, stellen;
        bool luft;
        std::string text;
    };
    const std::vector<Fall> faelle = {
        {-99999999.9, 12, 1, true, " -99999999.9"},
        {-123456789.9, 12, 1, true, "  -123456790"},
        {99999999999.0, 12, 1, true, " 99999999999"},
        {1e12, 12, 1, true, " ***********"},
        {100.0, 5, 1, false, "100.0"},
        {1000.04, 5, 1, false, " 1000"},
        {123456.0, 5, 1, false, "*****"},
        {1234.567, 7, 2, true, " 1234.6"},
        {-0.04, 5, 1, false, "  0.0"},
        {-0.9996, 7, 3, true, " -1.000"},
    };
    for (const Fall& f : faelle) EXPECT_EQ(feldwert(f.wert, f.breite, f.stellen, f.luft), f.text) << f.wert;
    Ergebnis e = beispiel();
    e.sigma = {1234.5678, 1234.5678, 1234.5678};
    e.rover.x = 9e9;
    EXPECT_EQ(feldzeile(liste(BASIS1 + BASIS2 + BASIS3), e).size(), 288u);
    EXPECT_EQ(woerter(feldzeile(liste(BASIS2), e)).size(), 13u);
}

}  // namespace jorv::suite

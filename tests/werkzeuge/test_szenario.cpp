// The scenario's text form, the shipped example, the satellites.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "simulator/bahn.h"
#include "simulator/beispiel.h"
#include "simulator/szenario_text.h"
#include "werkzeuge/umgebung.h"

namespace jorv::simulator {
namespace {

TEST(Szenariotext, AlleSchluesselKommenAn)
{
    Szenario s;
    std::string meldung;
    ASSERT_TRUE(
        szenario_lesen("# Kopf\r\n[Allgemein]\nTag = 18.06.2016\nSaat=5\nMaske = 7.5 # Grad\nGlonass = ja\n"
                       "[Wirkungen]\nEmpfaengeruhr = 1e-4 -2e-9\nIonosphaere = 9 0.1 -0.2\nPhasenrauschen = 1.5\n"
                       "Troposphaere = 0.1\n[Antenne A 1]\nTyp = X         NONE\nL1 = 1 2 60.5\nGang = 5 0\n"
                       "[Punkt 5501]\nName = Kirchhof Ost\nXYZ = 3884392.8034 629154.7793 5002948.8397\n"
                       "Antenne = A 1\nVon = 23:30\nBis = 25:00:15\nTakt = 0.5\nSitzung = b\nLuecke = 23:40 23:41\n"
                       "Luecke = 24:00 24:10\nEndzeit = nein\n",
                       s, meldung))
        << meldung;
    EXPECT_EQ(s.tag.monat, 6);
    EXPECT_EQ(s.saat, 5u);
    EXPECT_EQ(s.maske, 7.5);
    EXPECT_TRUE(s.glonass);
    EXPECT_EQ(s.wirkungen.uhr_gang, -2e-9);
    EXPECT_EQ(s.wirkungen.ionosphaere.gradient_ost, -0.2);
    EXPECT_EQ(s.wirkungen.phasenrauschen, 0.0015);
    EXPECT_TRUE(s.wirkungen.troposphaere.an);
    ASSERT_EQ(s.antennen.size(), 1u);
    EXPECT_EQ(s.antennen[0].typ, "X         NONE");
    EXPECT_EQ(s.antennen[0].versatz[0].z, 0.0605);
    EXPECT_EQ(s.antennen[0].gang[0][18], 0.005);
    ASSERT_EQ(s.punkte.size(), 1u);
    const Punkt& p = s.punkte[0];
    EXPECT_EQ(p.name, "Kirchhof Ost");
    EXPECT_EQ(p.antenne, "A 1");
    EXPECT_EQ(p.von, 84600);
    EXPECT_EQ(p.bis, 90015);
    EXPECT_EQ(p.sitzung, 'b');
    EXPECT_EQ(p.luecken.size(), 2u);
    EXPECT_FALSE(p.endzeit_im_kopf);
}

TEST(Szenariotext, FehlerNenntDieZeile)
{
    for (const char* zeile :
         {"Tag = 31.13.2016", "Tag = 1.6.2016", "Maske = fuenf", "Maske = 5 5", "Glonass = vielleicht", "Unbekannt = 1",
          "Maske", "[Punkt 12345]", "[Antenne]", "[Allgemein", "Saat = -1", "Takt = 30", "Satelliten = 1e9"}) {
        Szenario s;
        std::string meldung;
        EXPECT_FALSE(szenario_lesen(std::string("[Allgemein]\n\n") + zeile + "\n", s, meldung)) << zeile;
        EXPECT_THAT(meldung, testing::HasSubstr("Zeile 3 "));
    }
}

TEST(Szenario, UnmoeglichesWirdAbgelehnt)
{
    const std::pair<const char*, void (*)(Szenario&)> faelle[] = {
        {"Tag",
         [](Szenario& s) {
             s.tag = {2015, 2, 29};
         }},
        {"Tag",
         [](Szenario& s) {
             s.tag = {1979, 1, 1};
         }},
        {"Satelliten", [](Szenario& s) { s.satelliten = 33; }},
        {"Kennzeichen", [](Szenario& s) { s.punkte[1].pkz = "55"; }},
        {"Zeitspanne", [](Szenario& s) { s.punkte[1].takt = 0; }},
        {"Zeitspanne", [](Szenario& s) { s.punkte[1].bis = 0; }},
        {"Erde", [](Szenario& s) { s.punkte[1].ort = {}; }},
        {"Antenne", [](Szenario& s) { s.punkte[1].antenne = "unbekannt"; }},
        {"Epoche", [](Szenario& s) { s.maske = 89.9; }}};
    for (const auto& [wort, aendern] : faelle) {
        Szenario s = ohne_wirkung();
        aendern(s);
        const Testordner ordner;
        std::string meldung;
        EXPECT_FALSE(schreiben(s, ordner.pfad(), meldung)) << wort;
        EXPECT_THAT(meldung, testing::HasSubstr(wort));
    }
    std::string meldung;
    EXPECT_FALSE(schreiben(ohne_wirkung(), "/dev/null/ordner", meldung));
    EXPECT_THAT(meldung, testing::HasSubstr("/dev/null/ordner"));
    EXPECT_FALSE(antex_schreiben(ohne_wirkung(), "/dev/full", meldung)) << "the disk is full";
}

TEST(Bahn, BenachbarteSaetzeBeschreibenEineBahn)
{
    Szenario s = ohne_wirkung();
    s.glonass = s.wirkungen.satellitenuhren = true;
    s.punkte[0].bis = 14 * 3600;
    const Bahnen bahnen(s);
    std::set<std::string> namen;
    for (const Satellit& satellit : bahnen.satelliten()) {
        namen.insert(satellit.system + std::to_string(satellit.nummer));
        // On both sides of the change of sets, which lies in the middle between two of them.
        const double grenze = satellit.glonass ? satellit.glonass->saetze[3].t + 900 : satellit.saetze[1].toe + 3600;
        const Zustand a = bahnen.wahr(satellit, grenze - 1e-6), b = bahnen.wahr(satellit, grenze + 1e-6);
        const Vektor tempo = 0.5 * (bahnen.wahr(satellit, grenze + 1).ort - bahnen.wahr(satellit, grenze - 1).ort);
        EXPECT_NEAR(betrag(tempo), 3000, 1000) << "in the turning system";
        EXPECT_LT(betrag(a.ort + 2e-6 * tempo - b.ort), 1e-4) << satellit.system << satellit.nummer;
        EXPECT_LT(std::abs(a.uhr - b.uhr), 1e-15);
        EXPECT_NEAR(betrag(a.ort), satellit.glonass ? 25508e3 : 26560e3, 450e3);
    }
    EXPECT_EQ(namen.size(), 54u);
}

TEST(Beispiel, EnthaeltWasEsVerspricht)
{
    const Testordner ordner;
    std::string meldung;
    ASSERT_TRUE(beispiel_schreiben(ordner.pfad(), meldung)) << meldung;
    Szenario s;
    ASSERT_TRUE(szenario_lesen(datei_lesen(ordner.pfad() / "szenario.txt"), s, meldung)) << meldung;
    std::uintmax_t groesse = 0;
    std::set<std::string> stationen, rover;
    for (const Punkt& p : s.punkte) {
        for (const char art : {'o', 'n'})
            groesse += std::filesystem::file_size(ordner.pfad() / "rinex" / dateiname(s, p, art));
        (p.pkz < "4000" ? stationen : rover).insert(p.pkz);
    }
    EXPECT_LT(groesse, 15u << 20);
    EXPECT_EQ(rover.size(), 8u);
    EXPECT_THAT(stationen, testing::IsSupersetOf({"0583", "0590", "0591", "0593", "0596"}));
    EXPECT_EQ(zeilen(datei_lesen(ordner.pfad() / "katalog.txt")).size(), stationen.size());
    for (const std::string& zeile : zeilen(datei_lesen(ordner.pfad() / "wahrheit.txt"))) {
        const std::string pkz = zeile.substr(0, 4);
        const std::string kopf = datei_lesen(ordner.pfad() / "rinex" / (pkz + "1670.16o")).substr(0, 1500);
        std::string xyz;
        for (const std::size_t von : {4u, 19u, 34u}) xyz += zeile.substr(von + 1, 14);
        // Stations carry the truth in their heads, rovers an approximation.
        EXPECT_EQ(kopf.find(xyz) != std::string::npos, stationen.contains(pkz)) << pkz;
    }
    for (const std::string& figur : zeilen(datei_lesen(ordner.pfad() / "figuren.txt"))) {
        for (std::size_t i = 0; i < figur.size(); i += 5) EXPECT_TRUE(stationen.contains(figur.substr(i, 4))) << figur;
    }
    const auto grenzen = zeilen(datei_lesen(ordner.pfad() / "grenzen.txt"));
    EXPECT_EQ(grenzen.front()[0], '0');
    EXPECT_GT(grenzen.size(), 50u);
}

}  // namespace
}  // namespace jorv::simulator

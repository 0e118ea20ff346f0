#include <gtest/gtest.h>

#include "daten/antennentest.h"
#include "modell/Baum.h"
#include "proben.h"

namespace jorv {

using namespace hilfen;

namespace {

std::string antenne(std::string nummer, std::string_view typ)
{
    nummer.resize(20, ' ');
    return nummer + std::string(typ);
}

// Rovers r1 to r3 in use with the given antenna numbers, one station linked to each.
struct Teststand : Pruefstand {
    explicit Teststand(const std::vector<std::string>& nummern, std::string_view modus = "1",
                       const char* format = "ATX")
        : Pruefstand(modus)
    {
        g.Verfahren[1].Antenne = format;
        OBS station;
        station.Dateiname = "05900010.16o";
        station.Antenne = antenne("S1", "STATION");
        (void)(modus == "3" ? g.OBS_V : g.OBS_S).anfuegen(station);
        for (std::size_t i = 0; i < nummern.size(); ++i) {
            OBS obs;
            obs.Dateiname = "r" + std::to_string(i + 1) + ".16o";
            obs.Punktkennzeichen = "r" + std::to_string(i + 1);
            obs.Antenne = antenne(nummern[i], "LEIAR25.R4      LEIT");
            (void)g.OBS_R.anfuegen(obs);
            ROVER_Settings_Satz satz;
            satz.ROVER_Dateiname = obs.Dateiname;
            (void)g.ROVER_Settings.anfuegen(satz);
            ROVER_TOREL_Satz zuordnung;
            zuordnung.ROVER_Dateiname = obs.Dateiname;
            zuordnung.Status = 1;
            zuordnung.Anzahl = 1;
            zuordnung.TOREL_Dateiname[0] = station.Dateiname;
            (void)g.ROVER_TOREL.anfuegen(zuordnung);
            (void)g.ROVER_VIRT.anfuegen({obs.Dateiname, station.Dateiname, 1, 0});
        }
        baum_aufbauen(g);
    }
    std::string dos(std::string_view name) const { return ordner.dos() + "\\" + std::string(name); }
    std::string protokoll() const { return lesen(pfad("001.KRZ")); }
    std::string kopf(const char* endung) const
    {
        return "Fehler beim Abgleich der Antennen-Daten zwischen:\r\n-------------------------------------------------"
               "\r\n\r\nKoordinatendatei: " +
               dos("001.COO") + "\r\nund\r\nAntennendatei:    " + dos(std::string("001.") + endung) + "\r\n\r\n";
    }
};

constexpr const char* schluss = "Fehler beim Abgleich der Antennendaten!\n(siehe Kurzprotokolldatei)";

std::string rover_zeile(const char* nummer, const char* datei)
{
    return std::string("Die Antennennummer: \"") + nummer + "\" der ROVER-Datei: \"" + datei +
           "\" ist nicht in der Antennendatei vorhanden!\r\n";
}

}  // namespace

TEST(Antennentest, AlleGefundenGibtDieListe)
{
    for (const char* modus : {"1", "2", "3"}) {
        Teststand s({"A1", "A2", "A1"}, modus);
        s.g.ROVER_Settings[2].Ein_Ausschalterkennung = 0;
        schreiben(s.pfad("001.ATX"), antennenblock("X", "A1") + antennenblock("X", "A1"));
        EXPECT_FALSE(ist_fehler(antennendatentest(s.g))) << s.schirm.einzige();
        EXPECT_EQ(s.g.antennenliste,
                  (std::vector<std::string>{antenne("A1", "LEIAR25.R4      LEIT"), antenne("S1", "STATION")}));
        EXPECT_FALSE(fs::exists(s.pfad("001.KRZ")));
    }
    // Baselines have no rover that counts.
    Teststand s({"fehlt"}, "4");
    schreiben(s.pfad("001.ATX"), antennenblock("X", "A1"));
    EXPECT_FALSE(ist_fehler(antennendatentest(s.g)));
}

TEST(Antennentest, FehlendeRoverStehenImProtokoll)
{
    Teststand s({"A1", "B2", "C3"});
    schreiben(s.pfad("001.ATX"), antennenblock("X", "A1"));
    schreiben(s.pfad("001.KRZ"), "alt");
    EXPECT_TRUE(ist_fehler(antennendatentest(s.g)));
    EXPECT_EQ(s.schirm.einzige(), schluss);
    EXPECT_EQ(s.protokoll(), s.kopf("ATX") + rover_zeile("B2", "r2.16o") + rover_zeile("C3", "r3.16o"));
    Bruch bruch(s.g);
    const std::string alt = s.protokoll();
    const auto erwarten = [&](const std::string& meldung) {
        s.schirm.gezeigt.clear();
        EXPECT_TRUE(ist_fehler(antennendatentest(s.g)));
        EXPECT_EQ(s.schirm.einzige(), meldung);
        EXPECT_EQ(s.protokoll(), alt);
    };
    Bruch::verboten = "001.KRZ";
    erwarten("Die Kurzprotokolldatei:\n" + s.dos("001.KRZ") + "\nkonnte nicht geöffnet werden!");
    Bruch::verboten.clear();
    Bruch::schreiben_bei = 1;
    erwarten("In die Kurzprotokolldateidatei:\n" + s.dos("001.KRZ") + "\nkonnte nicht richtig geschrieben werden!");
    // The antenna file is closed first.
    Bruch::schliessen_bei = 2;
    erwarten("Die Kurzprotokolldatei:\n" + s.dos("001.KRZ") + "\nkonnte nicht richtig geschlossen werden!");
    Bruch::schliessen_bei = 1;
    erwarten("Die Antennendatei:\n" + s.dos("001.ATX") + "\nkonnte nicht richtig geschlossen werden!");
    Bruch::lesen_bei = 1;
    erwarten("Die Antennendatei:\n" + s.dos("001.ATX") + "\nkonnte nicht richtig gelesen werden!");
}

TEST(Antennentest, TypmittelNurMitDemSchluessel)
{
    for (const bool erlaubt : {false, true}) {
        Teststand s({"A1"});
        s.g.Typkalibrierung = erlaubt ? "J" : "N";
        // A numbered entry of the same type is no mean.
        schreiben(s.pfad("001.ATX"),
                  antennenblock("LEIAR25.R4      LEIT", "Z9") + antennenblock("LEIAR25.R4      LEIT", ""));
        EXPECT_EQ(ist_fehler(antennendatentest(s.g)), !erlaubt);
        schreiben(s.pfad("001.ATX"), antennenblock("LEIAR25.R4      LEIT", "Z9"));
        EXPECT_TRUE(ist_fehler(antennendatentest(s.g)));
        schreiben(s.pfad("001.ATX"), antennenblock("LEIAR25.R4      NONE", ""));
        EXPECT_TRUE(ist_fehler(antennendatentest(s.g)));
    }
}

TEST(Antennentest, FehlendeUndLeereDateien)
{
    Teststand s({"A1"});
    const auto erwarten = [](Teststand& t, const std::string& meldung) {
        t.schirm.gezeigt.clear();
        EXPECT_TRUE(ist_fehler(antennendatentest(t.g)));
        EXPECT_EQ(t.schirm.einzige(), meldung);
    };
    erwarten(s, "Die Antennendatei:\n" + s.dos("001.ATX") + "\nkonnte nicht gefunden werden!");
    schreiben(s.pfad("001.ATX"), std::string("\0binary\r\r", 9));
    erwarten(s, "Die Antennendateidatei:\n" + s.dos("001.ATX") + "\nenthält nicht eine einzige Antennenbezeichnung!");

    Teststand apc({"A1"}, "1", "APC");
    erwarten(apc, "Die Koordinatendatei:\n" + apc.dos("001.COO") + "\nkonnte nicht gefunden werden!");
    schreiben(apc.pfad("001.COO"), "");
    erwarten(apc, "Die Antennendatei:\n" + apc.dos("001.APC") + "\nkonnte nicht gefunden werden!");
    schreiben(apc.pfad("001.APC"), "1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n\nLEIAR25.R4      LEIT rest\n 0.1\n");
    erwarten(apc, "Die Koordinatendatei:\n" + apc.dos("001.COO") + "\nenthält nicht eine einzige Antennenbezeichnung!");
}

TEST(Antennentest, IGSFormVergleichtDieKoordinatendatei)
{
    Teststand s({"A1"}, "1", "APC");
    const auto coo = [](std::string_view name) { return std::string(41, ' ') + std::string(name) + "\n"; };
    const std::string kopf = "1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n\n";
    schreiben(s.pfad("001.COO"), coo("LEIAR25.R4      LEIT"));
    schreiben(s.pfad("001.APC"), kopf + "LEIAR25.R4      LEIT rest\n 0.1\n");
    EXPECT_FALSE(ist_fehler(antennendatentest(s.g))) << s.schirm.einzige();
    schreiben(s.pfad("001.COO"), coo("LEIAR25.R4      LEIT") + coo("FEHLT               "));
    schreiben(s.pfad("001.APC"), kopf + "LEIAR25.R4      LEIT\nLEIAR25.R4      LEIT\nLEIAR25.R4      LEIT\n");
    EXPECT_TRUE(ist_fehler(antennendatentest(s.g)));
    EXPECT_EQ(s.schirm.einzige(), schluss);
    EXPECT_EQ(s.protokoll(), s.kopf("APC") +
                                 "Die Antennenbezeichnung: \"LEIAR25.R4      LEIT\" ist mehrfach(3x) in der "
                                 "Antennendatei vorhanden!\r\nDie Antennenbezeichnung: \"FEHLT               \" "
                                 "ist nicht in der Antennendatei vorhanden!\r\n");
}

TEST(Antennentest, DimensionierungDerListe)
{
    for (const auto& [grenze, text] : std::vector<std::pair<int, std::string>>{
             {-1, "(82 in antennendatentest)\n    ReDim antennenliste(0)"},
             {0, "(83 in antennendatentest)\n    ReDim Preserve antennenliste(0)"},
             {1, "(84 in antennendatentest)\n    ReDim Preserve antennenliste(1)"}}) {
        Teststand s({"A1"});
        schreiben(s.pfad("001.ATX"), antennenblock("X", "A1"));
        EXPECT_TRUE(ist_fehler(antennendatentest(s.g, grenze)));
        EXPECT_EQ(s.schirm.einzige(), "Dimensionierungsfehler! " + text +
                                          "\nevtl. Speicherplatzprobleme\n\nOffene Anwendungen schließen und erneut "
                                          "versuchen!");
        EXPECT_TRUE(s.g.antennenliste.empty());
    }
}

}  // namespace jorv

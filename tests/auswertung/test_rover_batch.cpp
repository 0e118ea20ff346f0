#include "auswertung/rover_batch.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>

#include "beispiel.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

struct Fall {
    const char* probe;
    std::function<void(Beispiel&)> aendern;
};

ROVER_Settings_Satz& einstellung(Beispiel& b)
{
    return b.g.ROVER_Settings[1];
}

void fenster(Beispiel& b, const char* beginn, const char* ende)
{
    b.g.Zeitfenster_1h = "1";
    b.g.ROVER_TOREL[1].Zeitfenster_Startzeit = beginn;
    b.g.ROVER_TOREL[1].Zeitfenster_Endzeit = ende;
}

void satelliten(Beispiel& b)
{
    const std::array<std::pair<const char*, int>, 5> liste = {
        {{"G05", 0}, {"G06", 1}, {"XXR12", 0}, {"G7 ", 0}, {"G31", 0}}};
    std::size_t i = 1;
    for (const auto& [name, an] : liste) {
        einstellung(b).DelSatelliteName[i] = name;
        einstellung(b).DelSatellite[i++] = an;
    }
    einstellung(b).AnzahlDelSatellite = 4;
}

const std::array<Fall, 17> faelle = {{
    {"einfach", [](Beispiel&) {}},
    {"elevation_10", [](Beispiel& b) { einstellung(b).Elevation = 10; }},
    {"solution_0", [](Beispiel& b) { einstellung(b).Solution = 0; }},
    {"solution_1_minuten",
     [](Beispiel& b) {
         einstellung(b).Solution = 1;
         einstellung(b).DelFirstMinutes = 3;
         einstellung(b).DelLastMinutes = 12;
     }},
    {"satelliten_aus", satelliten},
    {"utm_zone", [](Beispiel& b) { b.g.UTM_Zone = "32"; }},
    {"marker_lang", [](Beispiel& b) { b.g.MARKER_Info = "L"; }},
    {"fenster", [](Beispiel& b) { fenster(b, "81500", "91500"); }},
    {"einfach", [](Beispiel& b) { fenster(b, "95000", "100001"); }},  // one second behind the last epoch
    {"einfach", [](Beispiel& b) { fenster(b, "75959", "90000"); }},   // one second before the first
    {"einfach",                                                       // only the last linked station ends too early
     [](Beispiel& b) {
         fenster(b, "81500", "91500");
         b.g.OBS_S[3].Endzeit_GPS_Sekunde = 91459;
     }},
    {"einfach",  // a linked file without a record
     [](Beispiel& b) {
         fenster(b, "81500", "91500");
         b.g.OBS_S[2].Dateiname = "0591092b.05o";
     }},
    {"umlaute",
     [](Beispiel& b) {
         b.g.Verfahrensname = b.g.Verfahren[1].Name = t1252("Büro Süd & Größe");
         b.g.EXE_Verzeichnis = t1252("C:\\Programme für Vermessung\\WaSoft");
         b.verlegen("D:", t1252("D:\\Übung Nr. 5\\Straße ä"));
     }},
    {"unc", [](Beispiel& b) { b.verlegen("\\\\server\\freigabe", "\\\\server\\freigabe\\Muster"); }},
    {"umlaut_rover",  // and more stations assigned than there are names
     [](Beispiel& b) {
         const std::string name = t1252("ä501092a.05o");
         b.g.OBS_R[1].Dateiname = name;
         b.g.ROVER_TOREL[1].ROVER_Dateiname = einstellung(b).ROVER_Dateiname = name;
         b.g.ROVER_TOREL[1].Anzahl = 6;
         b.g.ROVER_TOREL[1].TOREL_Dateiname[3] = "0596092a.05o";
     }},
    {"siebenstellig",
     [](Beispiel& b) {
         b.g.OBS_R[1].Dateiname = b.g.ROVER_TOREL[1].ROVER_Dateiname = einstellung(b).ROVER_Dateiname = "5501092.05o";
     }},
    {"einfach", [](Beispiel& b) { b.g.Verfahren[1].Antenne = "AXT"; }},  // the word that imported projects carry
}};

TEST(RoverBatch, schreibt_jede_zeile_auf_das_byte)
{
    for (std::size_t i = 0; i < faelle.size(); ++i) {
        SCOPED_TRACE(std::to_string(i) + " " + faelle[i].probe);
        Beispiel b;
        b.verlegen("D:", "D:\\Projekte\\Muster");
        b.g.Verfahren[1].LetztDatum = "01.01.2000";
        faelle[i].aendern(b);
        ASSERT_EQ(rover_batch_vrs(b.g, b.g.OBS_R[1].Dateiname), Fehler::keiner) << b.schirm.einzige();
        EXPECT_EQ(b.datei("001.BAT"), probe(std::string(faelle[i].probe) + ".BAT"));
        EXPECT_TRUE(b.schirm.gezeigt.empty());
        EXPECT_EQ(b.g.Verfahren[1].LetztDatum, "01.12.2016 12:00:00");
    }
}

const std::array<Fall, 8> faelle_fremd = {{
    {"fremd_einfach", [](Beispiel&) {}},
    {"fremd_elevation_10", [](Beispiel& b) { einstellung(b).Elevation = 10; }},
    {"fremd_solution_1_minuten",
     [](Beispiel& b) {
         einstellung(b).Solution = 1;
         einstellung(b).DelFirstMinutes = 3;
         einstellung(b).DelLastMinutes = 12;
     }},
    {"fremd_satelliten_aus", satelliten},
    {"fremd_utm_zone", [](Beispiel& b) { b.g.UTM_Zone = "32"; }},
    {"fremd_marker_lang", [](Beispiel& b) { b.g.MARKER_Info = "L"; }},
    {"fremd_einfach", [](Beispiel& b) { fenster(b, "81500", "91500"); }},  // the window is no matter of this mode
    {"fremd_umlaute",
     [](Beispiel& b) {
         b.g.Verfahrensname = b.g.Verfahren[1].Name = t1252("Büro Süd & Größe");
         b.g.EXE_Verzeichnis = t1252("C:\\Programme für Vermessung\\WaSoft");
         b.g.ROVER_VIRT[1].VIRT_Dateiname = t1252("virtä501092a.05o");
         b.verlegen("D:", t1252("D:\\Übung Nr. 5\\Straße ä"));
     }},
}};

TEST(RoverBatch, schreibt_jede_zeile_einer_fremden_station_auf_das_byte)
{
    for (const auto& fall : faelle_fremd) {
        SCOPED_TRACE(fall.probe);
        Beispiel b({"5501092a.05o"}, "3");
        b.verlegen("D:", "D:\\Projekte\\Muster");
        fall.aendern(b);
        ASSERT_EQ(rover_batch_fremd(b.g, "5501092a.05o"), Fehler::keiner) << b.schirm.einzige();
        EXPECT_EQ(b.datei("001.BAT"), probe(std::string(fall.probe) + ".BAT"));
        EXPECT_TRUE(b.hat("Jorv.BAT"));
    }
    Beispiel b({"5501092a.05o"}, "3");
    b.verlegen("D:", "D:\\Projekte\\Muster");
    b.g.Verfahren[1].Antenne = "APC";
    EXPECT_EQ(rover_batch_fremd(b.g, "5501092a.05o"), Fehler::gesetzt);
    EXPECT_EQ(b.datei("001.BAT"), probe("fremd_apc.BAT"));
    EXPECT_FALSE(b.hat("Jorv.BAT"));
    b.schirm.gezeigt.clear();
    b.g.ROVER_VIRT[1].VIRT_Dateiname = "?";
    EXPECT_EQ(rover_batch_fremd(b.g, "5501092a.05o"), Fehler::gesetzt);
    EXPECT_EQ(b.schirm.einzige(), "Zum ROVER:5501092a.05o\nist keine virtuelle Referenzstation zugeordnet!");
}

TEST(RoverBatch, die_aufrufdatei_startet_den_batch_in_anfuehrungszeichen)
{
    Beispiel b;
    b.verlegen("D:", "D:\\Projekte\\Muster");
    ASSERT_EQ(rover_batch_vrs(b.g, "5501092a.05o"), Fehler::keiner);
    EXPECT_EQ(b.datei("Jorv.BAT"), probe("aufruf.BAT"));
    b.verlegen("D:", t1252("D:\\Übung Nr. 5\\Straße ä"));
    ASSERT_EQ(rover_batch_vrs(b.g, "5501092a.05o"), Fehler::keiner);
    EXPECT_EQ(b.datei("Jorv.BAT"), probe("aufruf_umlaute.BAT"));
}

TEST(RoverBatch, alte_antennendateien_halten_den_batch_vor_der_auswertung_an)
{
    Beispiel b;
    b.verlegen("D:", "D:\\Projekte\\Muster");
    b.g.Verfahren[1].Antenne = "APC";
    b.legen("Jorv.BAT", "alt");
    EXPECT_EQ(rover_batch_vrs(b.g, "5501092a.05o"), Fehler::gesetzt);
    EXPECT_EQ(b.datei("001.BAT"), probe("apc.BAT"));
    EXPECT_EQ(b.datei("Jorv.BAT"), "alt");
    EXPECT_EQ(b.schirm.einzige(),
              "Antennen-Dateien im Format *.apc werden von JorvPlus nicht mehr unterstützt!\nWenn möglich "
              "Antennen-Dateien im Format *.atx verwenden oder die Vorversion Jorv für die Auswertung nutzen.");
    EXPECT_EQ(b.schirm.gezeigt[0].symbol, Symbol::stop);
}

TEST(RoverBatch, nur_ein_fehlender_batch_ist_ein_fehler)
{
    struct {
        const char* versperrt;
        Fehler ergebnis;
        const char* anfang;
        const char* ende;
    } const tafel[] = {
        {"001.BAT", Fehler::gesetzt, "Die Batchdatei:\n", "\nkonnte nicht angelegt/überschrieben werden!"},
        {"Jorv.BAT", Fehler::keiner, "Die Aufrufdatei:\n",
         "\nder Batchdatei konnte nicht angelegt/überschrieben werden!"}};
    for (const auto& fall : tafel) {
        Beispiel b;
        b.versperren(fall.versperrt);
        EXPECT_EQ(rover_batch_vrs(b.g, "5501092a.05o"), fall.ergebnis);
        EXPECT_EQ(b.schirm.einzige(), fall.anfang + b.pfad8(fall.versperrt) + fall.ende);
        EXPECT_EQ(b.schirm.gezeigt[0].symbol, Symbol::stop);
    }
    Beispiel b;
    EXPECT_EQ(rover_batch_vrs(b.g, "fremd.05o"), Fehler::gesetzt);
    EXPECT_FALSE(b.hat("001.BAT"));
    EXPECT_EQ(b.schirm.einzige(), "Zum ROVER:fremd.05o\nsind keine TOREL-Dateien zugeordnet!");
}

}  // namespace

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
    const char* fremd;  // the same with a foreign station; nullptr: no matter of that mode
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
    {"einfach", "fremd_einfach", [](Beispiel&) {}},
    {"elevation_10", "fremd_elevation_10", [](Beispiel& b) { einstellung(b).Elevation = 10; }},
    {"solution_0", "fremd_solution_0", [](Beispiel& b) { einstellung(b).Solution = 0; }},
    {"solution_1_minuten", "fremd_solution_1_minuten",
     [](Beispiel& b) {
         einstellung(b).Solution = 1;
         einstellung(b).DelFirstMinutes = 3;
         einstellung(b).DelLastMinutes = 12;
     }},
    {"satelliten_aus", "fremd_satelliten_aus", satelliten},
    {"utm_zone", "fremd_utm_zone", [](Beispiel& b) { b.g.UTM_Zone = "32"; }},
    {"marker_lang", "fremd_marker_lang", [](Beispiel& b) { b.g.MARKER_Info = "L"; }},
    {"fenster", "fremd_einfach", [](Beispiel& b) { fenster(b, "81500", "91500"); }},
    {"einfach", nullptr, [](Beispiel& b) { fenster(b, "95000", "100001"); }},  // one second behind the last epoch
    {"einfach", nullptr, [](Beispiel& b) { fenster(b, "75959", "90000"); }},   // one second before the first
    {"einfach", nullptr,  // only the last linked station ends too early
     [](Beispiel& b) {
         fenster(b, "81500", "91500");
         b.g.OBS_S[3].Endzeit_GPS_Sekunde = 91459;
     }},
    {"einfach", nullptr,  // a linked file without a record
     [](Beispiel& b) {
         fenster(b, "81500", "91500");
         b.g.OBS_S[2].Dateiname = "0591092b.05o";
     }},
    {"umlaute", "fremd_umlaute",
     [](Beispiel& b) {
         b.g.Verfahrensname = b.g.Verfahren[1].Name = t1252("Büro Süd & Größe");
         if (ist_F(b.g)) b.g.ROVER_VIRT[1].VIRT_Dateiname = t1252("virtä501092a.05o");
         b.g.EXE_Verzeichnis = t1252("C:\\Programme für Vermessung\\WaSoft");
         b.verlegen("D:", t1252("D:\\Übung Nr. 5\\Straße ä"));
     }},
    {"unc", "fremd_unc", [](Beispiel& b) { b.verlegen("\\\\server\\freigabe", "\\\\server\\freigabe\\Muster"); }},
    {"umlaut_rover", nullptr,  // and more stations assigned than there are names
     [](Beispiel& b) {
         const std::string name = t1252("ä501092a.05o");
         b.g.OBS_R[1].Dateiname = name;
         b.g.ROVER_TOREL[1].ROVER_Dateiname = einstellung(b).ROVER_Dateiname = name;
         b.g.ROVER_TOREL[1].Anzahl = 6;
         b.g.ROVER_TOREL[1].TOREL_Dateiname[3] = "0596092a.05o";
     }},
    {"siebenstellig", nullptr,
     [](Beispiel& b) {
         b.g.OBS_R[1].Dateiname = b.g.ROVER_TOREL[1].ROVER_Dateiname = einstellung(b).ROVER_Dateiname = "5501092.05o";
     }},
    {"einfach", nullptr,
     [](Beispiel& b) { b.g.Verfahren[1].Antenne = "AXT"; }},  // the word that imported projects carry
}};

TEST(RoverBatch, schreibt_jede_zeile_auf_das_byte)
{
    for (const bool fremd : {false, true})
        for (std::size_t i = 0; i < faelle.size(); ++i) {
            const char* name = fremd ? faelle[i].fremd : faelle[i].probe;
            if (!name) continue;
            SCOPED_TRACE(std::to_string(i) + " " + name);
            Beispiel b({"5501092a.05o"}, fremd ? "3" : "1");
            b.verlegen("D:", "D:\\Projekte\\Muster");
            b.g.Verfahren[1].LetztDatum = "01.01.2000";
            faelle[i].aendern(b);
            const auto batch = fremd ? rover_batch_fremd : rover_batch_vrs;
            ASSERT_EQ(batch(b.g, b.g.OBS_R[1].Dateiname), Fehler::keiner) << b.schirm.einzige();
            EXPECT_EQ(b.datei("001.BAT"), probe(std::string(name) + ".BAT"));
            EXPECT_TRUE(b.schirm.gezeigt.empty());
            EXPECT_EQ(b.g.Verfahren[1].LetztDatum, "01.12.2016 12:00:00");
        }
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
    for (const bool fremd : {false, true}) {
        Beispiel b({"5501092a.05o"}, fremd ? "3" : "1");
        b.verlegen("D:", "D:\\Projekte\\Muster");
        b.g.Verfahren[1].Antenne = "APC";
        b.legen("Jorv.BAT", "alt");
        EXPECT_EQ((fremd ? rover_batch_fremd : rover_batch_vrs)(b.g, "5501092a.05o"), Fehler::gesetzt);
        EXPECT_EQ(b.datei("001.BAT"), probe(fremd ? "fremd_apc.BAT" : "apc.BAT"));
        EXPECT_EQ(b.datei("Jorv.BAT"), "alt");
        EXPECT_EQ(b.schirm.einzige(),
                  "Antennen-Dateien im Format *.apc werden von JorvPlus nicht mehr unterstützt!\nWenn möglich "
                  "Antennen-Dateien im Format *.atx verwenden oder die Vorversion Jorv für die Auswertung nutzen.");
        EXPECT_EQ(b.schirm.gezeigt[0].symbol, Symbol::stop);
    }
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
    b.schirm.gezeigt.clear();
    EXPECT_EQ(rover_batch_fremd(b.g, "5501092a.05o"), Fehler::gesetzt);
    EXPECT_EQ(b.schirm.einzige(), "Zum ROVER:5501092a.05o\nist keine virtuelle Referenzstation zugeordnet!");
}

}  // namespace

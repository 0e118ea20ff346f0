// The commands by which a user overrules, changes, moves and removes, one after the other on one project.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "ganz/Beispielplatz.h"
#include "plattform/text.h"

namespace jorv {
namespace {

using hilfen::Beispielplatz;
using hilfen::lesen;
using ::testing::HasSubstr;
using Json = nlohmann::json;
namespace fs = std::filesystem;
using Worte = std::vector<std::string>;

const std::string rover = "55041670.16o";

struct Fall {
    Worte worte;
    int status;
    const char* meldung;
};

void ablehnen(const Beispielplatz& platz, const std::vector<Fall>& faelle)
{
    const std::string vorher = platz.projektdatei();
    for (const auto& fall : faelle) {
        const auto lauf = platz.jorv(fall.worte);
        EXPECT_EQ(lauf.status, fall.status) << fall.worte[0] << " " << fall.worte.back() << "\n" << lauf.err;
        EXPECT_THAT(lauf.err, HasSubstr(fall.meldung));
        EXPECT_EQ(platz.projektdatei(), vorher) << fall.worte[0] << " " << fall.worte.back();
    }
}

TEST(Ganz_Befehle, EinstellenZuordnenUndDieBatchdateiZeigtEs)
{
    const Beispielplatz platz;
    platz.gut({"antennen", "1", "beispiel/antennen/antennen.atx"});
    platz.gut({"rinex", "1", "beispiel/rinex"});
    ablehnen(platz,
             {{{"einstellen", "1", rover, "Ein=0", "Elevation=91"}, 1, "Maximal-Wert von 90"},
              {{"einstellen", "1", rover, "DelLastMinutes=61"}, 1, "Maximal-Wert von 60"},
              {{"einstellen", "1", "alle", "DelFirstMinutes=5", "Elevation=61"}, 1, "Maximal-Wert von 60"},
              {{"einstellen", "1", "alle", "Ein=0"}, 2, "Ein"},
              {{"einstellen", "1", rover, "Elevation=-1"}, 2, "Elevation=-1"},
              {{"einstellen", "1", rover, "Solution=3"}, 2, "automatisch"},
              {{"einstellen", "1", rover, "SV:X99=0"}, 1, "X99"},
              {{"zuordnen", "1", rover, "fehlt.16o"}, 1, "fehlt.16o"},
              {{"zuordnen", "1", rover, "05901670.16o", "05901670.16O"}, 2, "mehrmals"},
              {{"zuordnen", "1", rover, "05901670.16o", "05911670.16o", "05931670.16o", "05961670.16o", "05981670.16o"},
               1,
               "INFO Es können max. 4"},
              {{"nicht-fertig", "1", rover}, 1, "nicht berechnet"},
              {{"wasoft", "1", "alles"}, 2, "beides"},
              {{"karte", "1", "--ausgabe", "bmp"}, 2, "ops oder svg"},
              {{"zeiten", "1", "12"}, 1, "keine Beobachtungen"}});

    platz.gut({"einstellen", "1", "alle", "DelLastMinutes=90", "Elevation=7"});
    const Json satz = Json::parse(
        platz.gut({"--json", "einstellen", "1", rover, "Elevation=12", "SV:G05=0"}).aus)["ROVER_Settings"][0];
    EXPECT_EQ(satz["Elevation"], 12);
    EXPECT_EQ(satz["DelLastMinutes"], 90);
    platz.gut({"einstellen", "1", rover, "DelLastMinutes=0"});
    EXPECT_THAT(platz.gut({"zuordnen", "1", rover, "05901670.16o", "05911670.16o"}).aus, HasSubstr("gelb"));
    EXPECT_THAT(platz.gut({"zuordnen", "1", rover, "05901670.16o", "05911670.16o", "05981670.16o", "--schutz"}).aus,
                HasSubstr("grün"));
    // Protected: a figure elsewhere leaves it.
    platz.gut({"figur", "1", "0591", "0583", "0593"});
    platz.gut({"batch", "1", rover});
    const std::string batch = lesen(platz.host("verfahren/001.BAT"));
    EXPECT_THAT(batch, HasSubstr("0598"));
    EXPECT_THAT(batch, HasSubstr("12"));

    const Json zeiten = Json::parse(platz.gut({"--json", "zeiten", "1", "167"}).aus);
    EXPECT_EQ(zeiten["Zeilen"].size(), 14u);
    EXPECT_NEAR(zeiten["Zeilen"][3]["von"], 340.0 / 419.5, 1e-9);  // minutes from 7:00 to 12:40 and to 13:59:30

    const std::string svg = platz.gut({"karte", "1", "--ausgabe", "svg", "--breite", "300", "--hoehe", "200"}).aus;
    EXPECT_THAT(svg, HasSubstr("viewBox=\"0 0 300 200\""));
    EXPECT_THAT(svg, HasSubstr(">0593</text>"));
    EXPECT_THAT(platz.gut({"karte", "1", "--ausgabe", "ops"}).aus, HasSubstr("\nfigur linie "));
    const Json karte = Json::parse(platz.gut({"--json", "karte", "1", "--ausgabe", "ops"}).aus);
    EXPECT_EQ(karte["Schritte"].back()["Text"], "10 km ");
}

TEST(Ganz_Befehle, GanzesVerfahrenRechnenUndEinenRoverZuruecknehmen)
{
    const Beispielplatz platz("S");
    platz.gut({"antennen", "1", "beispiel/antennen/antennen.atx"});
    Worte dateien = {"rinex", "1", "beispiel/rinex/" + rover};
    for (const char* station : {"0590", "0591", "0593"})
        for (const char* art : {"o", "n"}) dateien.push_back(verkettet("beispiel/rinex/", station, "1670.16", art));
    platz.gut(dateien);
    platz.gut({"figur", "1", "0590", "0591", "0593"});
    platz.gut({"wasoft", "1", "beides"});
    for (const char* datei : {"001.LIS", "001.UTM", "001.KRZ"})
        EXPECT_TRUE(fs::exists(platz.host("verfahren") / datei)) << datei;
    platz.gut({"auswerten", "1"});
    EXPECT_THAT(platz.gut({"ergebnisse", "1"}).aus, HasSubstr("FixedL1"));
    platz.gut({"nicht-fertig", "1", rover});
    EXPECT_THAT(platz.gut({"ergebnisse", "1"}).aus, HasSubstr("keine Lösung"));
    platz.gut({"--nein", "rover-loeschen", "1", rover});
    EXPECT_TRUE(fs::exists(platz.host("verfahren") / rover));
    platz.gut({"--ja", "rover-loeschen", "1", rover});
    platz.gut({"--ja", "antenne-loeschen", "1", "ANTENNEN.ATX"});
    const Json leer = Json::parse(platz.gut({"--json", "zeigen", "1"}).aus);
    EXPECT_TRUE(leer["OBS_R"].empty() && leer["Antennen_Dateien"].empty()) << leer["OBS_R"];
}

TEST(Ganz_Befehle, VerschobenesVerfahrenWirdImportiertUndWeiterBearbeitet)
{
    const Beispielplatz platz;
    platz.gut({"antennen", "1", "beispiel/antennen/antennen.atx"});
    platz.gut({"rinex", "1", "beispiel/rinex"});
    platz.gut({"figur", "1", "0590", "0591", "0593"});
    fs::rename(platz.host("verfahren"), platz.host("von Anna"));
    platz.gut({"neu", "Eins", "--modus", "E", "--verzeichnis", "verfahren"});
    const auto abgelehnt = platz.jorv({"--json", "importieren", "von Anna/001.INI"});
    EXPECT_EQ(abgelehnt.status, 1);
    EXPECT_THAT(abgelehnt.err, HasSubstr("Name >Waldweg<: bereits vergeben"));
    EXPECT_EQ(Json::parse(abgelehnt.aus)["Statuswort"], "0111111");
    ablehnen(platz, {{{"importieren", "von Anna/001.INI", "--name", "Zwei", "--nummer", "1"}, 1, "bereits vergeben"},
                     {{"importieren", "von Anna/fehlt.INI"}, 1, "nicht gefunden"}});
    EXPECT_EQ(platz.gut({"importieren", "von Anna/001.INI", "--name", "Zwei"}).aus, "003\n");
    EXPECT_TRUE(fs::exists(platz.host("von Anna/003.ATX")));
    EXPECT_EQ(Json::parse(platz.gut({"--json", "zeigen", "3"}).aus)["OBS_R"].size(), 8u);

    platz.gut({"--ja", "rover-loeschen", "3", "55011670.16o"});
    EXPECT_FALSE(fs::exists(platz.host("von Anna/55011670.16o")));
    platz.gut({"zuordnen", "3", rover, "05901670.16o", "05911670.16o", "05981670.16o", "--schutz"});
    platz.gut({"einstellen", "3", "alle", "Elevation=12", "DelFirstMinutes=3", "Solution=1", "SV:G05=0"});
    // A new figure renews the choice of all that are not protected; the first one holds this rover with 0593.
    platz.gut({"figur", "3", "0590", "0593", "0598", "0596"});
    const Json danach = Json::parse(platz.gut({"--json", "zeigen", "3", "rover"}).aus);
    ASSERT_EQ(danach["ROVER_TOREL"].size(), 7u);
    for (const auto& satz : danach["ROVER_Settings"]) EXPECT_EQ(satz["Elevation"], 12) << satz;
    platz.gut({"batch", "3", rover});
    const std::string einzeln = lesen(platz.host("von Anna/003.BAT"));
    EXPECT_THAT(einzeln, HasSubstr("von Anna\r\n"));
    EXPECT_THAT(einzeln, HasSubstr("\r\nwav2 " + rover + " 0590,0591,0598 +PRO +E +A003.ATX -e12 >> 003.LIS\r\n"));
    EXPECT_THAT(einzeln, HasSubstr("\r\nwa2 virt167.16o " + rover + " +ACF003.ATX +TL1 -e12 -M3 -N0 -SVG05 +L2 +E-"));
    platz.gut({"--ja", "batch", "3"});
    const std::string alle = lesen(platz.host("von Anna/003.BAT"));
    EXPECT_THAT(alle,
                HasSubstr("\r\nwasoft 1670 0590,0591,0598 +Vvirt," + rover + " +A003.ATX +C003.COO >> 003.LIS\r\n"));
    EXPECT_THAT(alle, testing::Not(HasSubstr("55011670")));
}

// The four stations of the settings round the reference point, over the seven hours of the example's calm ionosphere.
TEST(Ganz_Befehle, IndexDerIonosphaereStundeFuerStunde)
{
    const Beispielplatz platz("B");
    platz.gut({"antennen", "1", "beispiel/antennen/antennen.atx"});
    Worte einfuegen = {"--ja", "rinex", "1"};
    for (const char* station : {"0583", "0590", "0591", "0593", "0596"})
        for (const char* art : {"o", "n"})
            einfuegen.push_back(std::string("beispiel/rinex/") + station + "1670.16" + art);
    platz.gut(einfuegen);
    const auto text = platz.gut({"i95", "1", "--bild"});
    const auto kopf = text.aus.find("I95 ppm");
    EXPECT_NE(kopf, std::string::npos) << text.aus << text.err;
    // What the batch's own window would show, and where its protocol lies.
    EXPECT_THAT(ersetzt(text.err, "\r\n", "\n"), HasSubstr(text.aus.substr(kopf)));
    EXPECT_THAT(lesen(platz.host("verfahren/001.LIS")), HasSubstr("Modelldatei model.wam, "));
    const Json stunden = Json::parse(platz.gut({"--json", "i95", "1", "--bild"}).aus)["Stunden"];
    ASSERT_EQ(stunden.size(), 7u);
    for (std::size_t i = 0; i < 7; ++i) {
        EXPECT_EQ(stunden[i]["Tag"], "15.06.2016");
        EXPECT_EQ(stunden[i]["Stunde"], (Worte{"07-08", "08-09", "09-10", "10-11", "11-12", "12-13", "13-14"}[i]));
        EXPECT_GT(stunden[i]["I95"], 0.3);
        EXPECT_LT(stunden[i]["I95"], 2.5);
        EXPECT_GT(stunden[i]["Epochen"], 100);
    }
    // Without a station's data there is no plane, and the hours of the run before are gone.
    for (const char* station : {"0591", "0596"})
        fs::remove(platz.host("verfahren") / (station + std::string("1670.16o")));
    const auto ohne = platz.jorv({"i95", "1", "--bild"});
    EXPECT_EQ(ohne.status, 1);
    EXPECT_EQ(ohne.aus, "");
    EXPECT_THAT(ohne.err, HasSubstr("STOP Der Index der Ionosph"));
    EXPECT_THAT(lesen(platz.host("verfahren/001.LIS")), HasSubstr("WARNUNG: Die Modelldatei model.wam braucht drei"));
}

}  // namespace
}  // namespace jorv

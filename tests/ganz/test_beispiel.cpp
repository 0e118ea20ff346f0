// The whole chain on the example network: from observation files to coordinates, against the truth.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <map>
#include <nlohmann/json.hpp>

#include "ganz/Beispielplatz.h"
#include "plattform/wort.h"
#include "plattform/zahl.h"

namespace jorv {
namespace {

using hilfen::Beispielplatz;
using hilfen::lesen;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using Json = nlohmann::json;
namespace fs = std::filesystem;

// East, north, up in millimetres of each line that holds them.
std::map<std::string, std::array<double, 3>> abweichungen(const std::string& tabelle)
{
    std::map<std::string, std::array<double, 3>> alle;
    Zeilenleser leser(tabelle);
    while (const auto zeile = leser.naechste()) {
        if (zeile->find(".16o") == std::string_view::npos) continue;
        Wortfolge worte(*zeile);
        std::vector<std::string> w;
        for (auto wort = worte.naechstes(); wort.status == Wortstatus::gefunden; wort = worte.naechstes())
            w.emplace_back(wort.text);
        if (w.size() == 8) alle[w[0].substr(0, 4)] = {zahl_lesen(w[5]), zahl_lesen(w[6]), zahl_lesen(w[7])};
    }
    return alle;
}

void nahe_der_wahrheit(const Beispielplatz& platz, std::size_t rover)
{
    const auto vergleich = platz.programm({"jorv-wahrheit", "beispiel/wahrheit.txt", "verfahren"});
    EXPECT_EQ(vergleich.status, 0) << vergleich.aus << vergleich.err;
    const auto alle = abweichungen(vergleich.aus);
    EXPECT_EQ(alle.size(), rover) << vergleich.aus;
    constexpr double lage = 20, hoehe = 50;  // millimetres; the network has a disturbed ionosphere
    for (const auto& [punkt, enu] : alle) {
        EXPECT_LT(std::hypot(enu[0], enu[1]), lage) << punkt << "\n" << vergleich.aus;
        EXPECT_LT(std::abs(enu[2]), hoehe) << punkt << "\n" << vergleich.aus;
    }
}

TEST(Ganz_Beispiel, EinRoverVonDenDateienBisZurKoordinate)
{
    const Beispielplatz platz;
    // Twenty minutes, in the figure of the three stations.
    std::vector<std::string> dateien = {"rinex", "1", "beispiel/rinex/55041670.16o"};
    for (const char* station : {"0590", "0591", "0593"})
        for (const char* art : {"o", "n"}) dateien.push_back(verkettet("beispiel/rinex/", station, "1670.16", art));
    platz.gut({"antennen", "1", "beispiel/antennen/antennen.atx"});
    platz.gut(dateien);
    platz.gut({"figur", "1", "0590", "0591", "0593"});
    const auto lauf = platz.gut({"auswerten", "1"});
    EXPECT_THAT(lauf.err, HasSubstr("Auswertung (1/1) - bitte warten"));
    EXPECT_THAT(lauf.aus, HasSubstr("FixedL1"));
    nahe_der_wahrheit(platz, 1);
    for (const char* datei : {"001.KRZ", "001.ALL", "001.LIS", "jorv_out/lis_rov/55041670.16o.LIS"})
        EXPECT_TRUE(fs::exists(platz.host("verfahren") / datei)) << datei;
    const Json ergebnis = Json::parse(platz.gut({"--json", "ergebnisse", "1"}).aus);
    EXPECT_EQ(ergebnis["Ergebnisse"][0]["Loesung"], "FixedL1");
    const double rechts = ergebnis["Ergebnisse"][0]["Rechtswert"];
    EXPECT_THAT(platz.gut({"export", "1", "--format", "csv"}).aus,
                HasSubstr("ROVER,5504,55041670.16o,FixedL1," + fest(rechts, 4)));
#ifndef _WIN32  // where a script isn't a program of that name
    // The program of the averaging finds the results of all rovers and its task.
    hilfen::schreiben(platz.host("programme/runa"), "#!/bin/sh\ngrep -c FixedL1 001.UTM\ngrep -a Titel 001.INI\n");
    fs::permissions(platz.host("programme/runa"), fs::perms::owner_all);
    EXPECT_THAT(platz.gut({"mitteln", "1"}).err, HasSubstr("1\nTitel=Verfahren -->Waldweg<--(001)  MITTELUNG"));
#endif
    // What is computed isn't computed again.
    EXPECT_THAT(platz.jorv({"auswerten", "1"}).err, HasSubstr("INFO "));
}

TEST(Ganz_Beispiel, AlleRoverInDenFigurenHabenEineLoesung)
{
    const Beispielplatz platz;
    platz.gut({"antennen", "1", "beispiel/antennen/antennen.atx"});
    platz.gut({"rinex", "1", "beispiel/rinex"});
    platz.gut({"figur", "1", "0590", "0591", "0593"});
    platz.gut({"figur", "1", "0591", "0583", "0593"});
    platz.gut({"figur", "1", "0590", "0593", "0598", "0596"});
    platz.gut({"auswerten", "1"});
    nahe_der_wahrheit(platz, 6);
}

TEST(Ganz_Verfahren, LebenEinesVerfahrens)
{
    const Beispielplatz platz;
    EXPECT_THAT(platz.gut({"liste"}).aus, HasSubstr("001     Waldweg         E"));
    // A name that is taken, a directory in use, a number that doesn't exist.
    EXPECT_EQ(platz.jorv({"neu", "Waldweg", "--modus", "E", "--verzeichnis", "zwei"}).status, 1);
    EXPECT_EQ(platz.jorv({"neu", "Zwei", "--modus", "S", "--verzeichnis", "verfahren"}).status, 1);
    EXPECT_EQ(platz.jorv({"neu", "Zwei", "--modus", "X", "--verzeichnis", "zwei"}).status, 2);
    EXPECT_EQ(platz.jorv({"zeigen", "2"}).status, 1);
    EXPECT_EQ(platz.jorv({"zeigen", "zwei"}).status, 2);
    EXPECT_EQ(platz.gut({"neu", "Zwei", "--modus", "S", "--verzeichnis", "zwei"}).aus, "002\n");

    platz.gut({"rinex", "1", "beispiel/rinex"});
    platz.gut({"figur", "001", "0590", "0591", "0593"});
    EXPECT_EQ(platz.jorv({"figur", "1", "0590", "0591", "9999"}).status, 1);
    EXPECT_EQ(platz.jorv({"figur", "1", "0590", "0591", "0590"}).status, 2);
    EXPECT_EQ(platz.jorv({"rinex", "1", "beispiel/rinex/fehlt.16o"}).status, 1);

    // Commands that only look leave the project file as it is.
    const std::string vorher = platz.projektdatei();
    for (const std::vector<std::string>& befehl :
         {std::vector<std::string>{"zeigen", "1"}, std::vector<std::string>{"zeigen", "1", "baum"},
          std::vector<std::string>{"ergebnisse", "1"},
          std::vector<std::string>{"zeigen", "1", "--warum", "55011670.16O"}})
        platz.gut(befehl);
    EXPECT_EQ(platz.jorv({"zeigen", "1", "--warum", "99991670.16o"}).status, 1);
    EXPECT_EQ(platz.projektdatei(), vorher);

    const Json gruen = Json::parse(platz.gut({"zeigen", "1", "--json"}).aus);
    EXPECT_EQ(gruen["OBS_R"].size(), 8u);
    EXPECT_EQ(gruen["OBS_S"].size(), 6u);
    EXPECT_EQ(gruen["TOREL_Punkt"].size(), 6u);
    EXPECT_EQ(gruen["Liste_Name"][0], "Waldweg");
    EXPECT_EQ(gruen["ROVER_TOREL"][0]["Status"], 1);
    EXPECT_EQ(gruen["ROVER_TOREL"][0]["Zeitfenster-Startzeit"], "0");
    platz.gut({"zeitfenster", "1", "an"});
    // Twenty minutes from 12:40 on: the hour is centred on them.
    EXPECT_EQ(Json::parse(platz.gut({"zeigen", "1", "--json"}).aus)["ROVER_TOREL"][3]["Zeitfenster-Startzeit"],
              "122000");
    platz.gut({"zeitfenster", "1", "aus"});
    platz.gut({"batch", "1", "55011670.16o"});
    EXPECT_THAT(lesen(platz.host("verfahren/001.BAT")), HasSubstr("wav2"));
    platz.gut({"figur-loeschen", "1"});
    EXPECT_THAT(Json::parse(platz.gut({"zeigen", "1", "--json"}).aus)["GEO_Punkt"], IsEmpty());

    EXPECT_THAT(platz.gut({"--nein", "loeschen", "1"}).err, HasSubstr("FRAGE *** INFO (KOR) ***"));
    EXPECT_THAT(platz.gut({"liste"}).aus, HasSubstr("Waldweg"));
    platz.gut({"--ja", "loeschen", "1"});
    EXPECT_THAT(platz.gut({"liste"}).aus, Not(HasSubstr("Waldweg")));
    EXPECT_TRUE(fs::exists(platz.host("verfahren/001.INI")));
}

TEST(Ganz_Katalog, MachenZeigenEntfernen)
{
    const Beispielplatz platz;
    const Json katalog = Json::parse(platz.gut({"katalog", "zeigen", "--json"}).aus);
    EXPECT_EQ(katalog["TOREL_Punkt"].size(), 6u);
    EXPECT_EQ(katalog["TOREL_Punkt"][0]["PKZ"], "0583");
    EXPECT_GT(katalog["Lnd"].size(), 100u);
    platz.gut({"--ja", "katalog", "entfernen", "0598"});
    EXPECT_THAT(platz.gut({"katalog", "zeigen"}).aus, Not(HasSubstr("0598")));
    EXPECT_EQ(platz.jorv({"--ja", "katalog", "entfernen", "0598"}).status, 1);
    hilfen::schreiben(platz.host("schlecht.txt"), "0590 eins zwei\n");
    EXPECT_EQ(platz.jorv({"katalog", "machen", "schlecht.txt"}).status, 1);
    EXPECT_EQ(platz.jorv({"katalog", "machen", "fehlt.txt"}).status, 1);
    EXPECT_THAT(platz.gut({"katalog", "zeigen"}).aus, HasSubstr("Ahlbeek"));
}

}  // namespace
}  // namespace jorv

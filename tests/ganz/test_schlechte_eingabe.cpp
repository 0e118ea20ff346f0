// What a user's disk and files do to the program at their worst. After each, the project file, the settings and the
// catalogue are the old or the new text, whole, and the next command works.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>

#include "ganz/Beispielplatz.h"
#include "hilfen/Umgebung.h"

#ifndef _WIN32
#include "ganz/Kleine_Platte.h"
#endif

namespace jorv {
namespace {

using hilfen::Beispielplatz;
using hilfen::lesen;
using hilfen::schreiben;
using ::testing::HasSubstr;
using Json = nlohmann::json;
using Worte = std::vector<std::string>;
namespace fs = std::filesystem;

// With the clock standing still, saving an undamaged project or settings file again gives the same bytes.
struct Stehende_Uhr {
    hilfen::Umgebungswert jetzt{"JORV_JETZT", "2016-12-01T12:00:00"};
};

void unversehrt(const Beispielplatz& platz, const fs::path& verfahren, std::string_view nach)
{
    const std::string projekt = lesen(verfahren / "001.INI"), einstellungen = lesen(platz.host("JorvPlus.INI"));
    platz.gut({"sichern", "1"});
    EXPECT_EQ(lesen(verfahren / "001.INI"), projekt) << nach;
    EXPECT_EQ(lesen(platz.host("JorvPlus.INI")), einstellungen) << nach;
    EXPECT_EQ(Json::parse(platz.gut({"--json", "katalog", "zeigen"}).aus)["TOREL_Punkt"].size(), 6u) << nach;
}

std::size_t rover_anzahl(const Beispielplatz& platz)
{
    return Json::parse(platz.gut({"--json", "zeigen", "1", "rover"}).aus)["OBS_R"].size();
}

const Worte beobachtungen = {"rinex", "1", "beispiel/rinex/55041670.16o", "beispiel/rinex/05901670.16o"};

TEST(Ganz_SchlechteEingabe, KaputteDateienSchadenDemVerfahrenNicht)
{
    const Stehende_Uhr uhr;
    const Beispielplatz platz;
    platz.gut(beobachtungen);
    const std::string gute = lesen(platz.host("beispiel/rinex/55041670.16o"));
    const auto ersetzen = [](std::string text, char alt, char neu) {
        std::replace(text.begin(), text.end(), alt, neu);
        return text;
    };
    std::string binaer, mit_nullen = gute;
    for (unsigned i = 0, z = 1; i < 20000; ++i) binaer += static_cast<char>((z = z * 1103515245 + 12345) >> 16);
    mit_nullen.replace(3000, 100, 100, '\0');
    // Read to their end or refused; what is read of the last two is a rover.
    const struct {
        const char* was;
        std::string bytes;
        int status;
        std::size_t rover;
    } faelle[] = {{"binary", binaer, 1, 1},
                  {"empty", "", 1, 1},
                  {"NUL only", std::string(30000, '\0'), 1, 1},
                  {"CR only", ersetzen(gute, '\n', '\r'), 1, 1},
                  {"header cut off", gute.substr(0, 700), 1, 1},
                  {"header without end", gute.substr(0, gute.find("END OF HEADER") - 60), 1, 1},
                  {"cut off in an epoch", gute.substr(0, 5000), 0, 2},
                  {"NUL in an epoch", mit_nullen, 0, 2}};
    for (const auto& fall : faelle) {
        schreiben(platz.host("99011670.16o"), fall.bytes);
        const auto lauf = platz.jorv({"rinex", "1", "99011670.16o"});
        EXPECT_EQ(lauf.status, fall.status) << fall.was << "\n" << lauf.err;
        EXPECT_EQ(lauf.err.find("STOP") != std::string::npos, fall.status == 1) << fall.was;
        unversehrt(platz, platz.host("verfahren"), fall.was);
        EXPECT_EQ(rover_anzahl(platz), fall.rover) << fall.was;
    }
    platz.gut({"--ja", "rover-loeschen", "1", "99011670.16o"});

    schreiben(platz.host("binaer.txt"), binaer);
    schreiben(platz.host("binaer.atx"), binaer);
    fs::create_directories(platz.host("ordner.16o"));
    for (const Worte& worte : {Worte{"rinex", "1", "ordner.16o"}, Worte{"antennen", "1", "ordner.16o"},
                               Worte{"importieren", "ordner.16o"}, Worte{"importieren", "binaer.txt"},
                               Worte{"katalog", "machen", "ordner.16o"}, Worte{"katalog", "machen", "binaer.txt"},
                               Worte{"grenzen", "machen", "ordner.16o"}, Worte{"grenzen", "machen", "binaer.txt"}}) {
        EXPECT_EQ(platz.jorv(worte).status, 1) << worte[0] << " " << worte.back();
        unversehrt(platz, platz.host("verfahren"), worte[0] + " " + worte.back());
    }
}

TEST(Ganz_SchlechteEingabe, KaputterKatalogWirdGemeldetUndLaesstSichErsetzen)
{
    const Stehende_Uhr uhr;
    const Beispielplatz platz;
    const fs::path katalog = platz.host("programme/Grund_TOREL.CIF");
    const std::string ganz = lesen(katalog);
    for (const std::string& bytes :
         {ganz.substr(0, ganz.size() / 2 + 7), ganz.substr(0, 60) + "\r\n" + ganz.substr(60), std::string(400, '\0')}) {
        schreiben(katalog, bytes);
        const auto lauf = platz.jorv({"katalog", "zeigen"});
        EXPECT_THAT(lauf.err, HasSubstr("STOP")) << bytes.size();
        // A station that can't be found may be taken in as a new one; the file stays as it is, to be mended.
        for (const char* antwort : {"--nein", "--ja"}) {
            Worte neue = beobachtungen;
            neue.emplace_back(antwort);
            (void)platz.jorv(neue);
            EXPECT_EQ(lesen(katalog), bytes);
        }
        platz.gut({"katalog", "machen", "beispiel/katalog.txt"});
        EXPECT_EQ(lesen(katalog), ganz);
        unversehrt(platz, platz.host("verfahren"), "catalogue");
    }
}

#ifndef _WIN32
// Settings and catalogue move to the small disk, where the project will be.
void auf_die_platte(const Beispielplatz& platz, const fs::path& ort)
{
    for (const fs::path& datei : {platz.host("JorvPlus.INI"), platz.host("programme/Grund_TOREL.CIF")}) {
        fs::copy_file(datei, ort / datei.filename());
        fs::remove(datei);
        fs::create_symlink(ort / datei.filename(), datei);
    }
}

TEST(Ganz_SchlechteEingabe, VollePlatteLaesstAltenOderNeuenStand)
{
    const Stehende_Uhr uhr;
    const Beispielplatz platz;
    fs::create_directories(platz.host("platte"));
    const hilfen::Kleine_Platte platte(platz.host("platte"), "8m");
    if (!platte.da()) GTEST_SKIP() << "A disk of its own needs the rights to mount one.";
    auf_die_platte(platz, platz.host("platte"));
    platz.gut({"--ja", "loeschen", "1"});
    platz.gut({"neu", "Eng", "--modus", "E", "--verzeichnis", "platte/v"});
    platz.gut({"antennen", "1", "beispiel/antennen/antennen.atx"});
    Worte rinex = {"rinex", "1", "beispiel/rinex/55041670.16o"};
    for (const char* station : {"0590", "0591", "0593"})
        for (const char* art : {"o", "n"}) rinex.push_back(verkettet("beispiel/rinex/", station, "1670.16", art));
    constexpr std::uintmax_t seite = 4096;
    for (const std::uintmax_t frei : {0u, 1u, 2u, 4u, 20u, 200u}) {
        platte.fuellen(frei * seite);
        EXPECT_EQ(platz.jorv(rinex).status, 1) << frei;
        platte.leeren();
        unversehrt(platz, platz.host("platte/v"), verkettet("rinex ", static_cast<int>(frei)));
    }
    platz.gut(rinex);
    platz.gut({"figur", "1", "0590", "0591", "0593"});
    platz.gut({"auswerten", "1"});
    const std::string ergebnis = platz.gut({"ergebnisse", "1"}).aus;
    EXPECT_THAT(ergebnis, HasSubstr("FixedL1"));
    int misslungen = 0;
    for (const std::uintmax_t frei : {0u, 1u, 2u, 3u, 5u, 8u, 12u, 16u, 20u, 24u, 28u, 60u, 1000u}) {
        // Whatever the run before has left is gone, results and reports.
        (void)platz.jorv({"nicht-fertig", "1", "55041670.16o"});
        fs::remove_all(platz.host("platte/v/jorv_out"));
        platte.fuellen(frei * seite);
        const int status = platz.jorv({"auswerten", "1"}).status;
        platte.leeren();
        misslungen += status;
        unversehrt(platz, platz.host("platte/v"), verkettet("auswerten ", static_cast<int>(frei)));
        const std::string jetzt = platz.gut({"ergebnisse", "1"}).aus;
        const bool berechnet = jetzt.find("keine Lösung") == std::string::npos;
        EXPECT_TRUE(berechnet || status != 0) << frei;
        EXPECT_TRUE(!berechnet || jetzt == ergebnis) << frei << "\n" << jetzt;
        EXPECT_TRUE(frei < 1000 || status == 0);
    }
    EXPECT_GE(misslungen, 4);
}
#endif

}  // namespace
}  // namespace jorv

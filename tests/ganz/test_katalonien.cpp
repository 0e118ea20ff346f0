// Real observations of a network with published coordinates, from intake to the result file. Held against the header
// coordinates of the two rovers and against the published vector between them; all differences are printed.
#include <gtest/gtest.h>

#include <GeographicLib/Geocentric.hpp>
#include <GeographicLib/LocalCartesian.hpp>
#include <GeographicLib/TransverseMercator.hpp>
#include <cmath>
#include <nlohmann/json.hpp>

#include "ganz/Programmlauf.h"
#include "plattform/zahl.h"

namespace jorv {
namespace {

using hilfen::Arbeitsplatz;
using Json = nlohmann::json;
namespace fs = std::filesystem;

constexpr double halbachse = 6378137, abplattung = 1 / 298.257222101;

struct Ort {
    double X, Y, Z;
};
constexpr Ort upc1{4789013.0077, 176610.1555, 4195034.8091}, upc2{4789031.3284, 176583.3954, 4195015.1071};

struct Waagrecht {
    double ost, nord;
    double laenge() const { return std::hypot(ost, nord); }
};

std::string text(std::string_view was, const Waagrecht& w)
{
    return verkettet(was, ": dE ", fest(w.ost, 4), " m, dN ", fest(w.nord, 4), " m\n");
}

// A grid position of zone 32, at the height of the horizon's point, seen in the horizon of a place.
Waagrecht im_horizont(const Ort& ort, const Json& ergebnis)
{
    const GeographicLib::Geocentric erde(halbachse, abplattung);
    const GeographicLib::TransverseMercator abbildung(halbachse, abplattung, 0.9996);
    double breite = 0, laenge = 0, hoehe = 0;
    erde.Reverse(ort.X, ort.Y, ort.Z, breite, laenge, hoehe);
    const GeographicLib::LocalCartesian horizont(breite, laenge, hoehe, erde);
    abbildung.Reverse(9, ergebnis["Rechtswert"].get<double>() - 500000, ergebnis["Hochwert"].get<double>(), breite,
                      laenge);
    double e = 0, n = 0, u = 0;
    horizont.Forward(breite, laenge, hoehe, e, n, u);
    return {e, n};
}

// The network under names that make stations of the four and rovers of the two: a name with letters is a rover.
void netz_kopieren(const fs::path& daten, const fs::path& ziel)
{
    constexpr std::pair<const char*, const char*> namen[] = {{"ebre", "0601"}, {"garr", "0602"}, {"mata", "0603"},
                                                             {"creu", "0604"}, {"upc1", "upc1"}, {"upc2", "upc2"}};
    fs::create_directories(ziel);
    for (const auto& [alt, neu] : namen)
        fs::copy_file(daten / verkettet(alt, "0770.10o"), ziel / verkettet(neu, "0770.10o"));
    fs::copy_file(daten / "brdc0770.10n", ziel / "brdc0770.10n");
}

constexpr std::string_view katalog =
    "0601 4833520.1197 41537.2015 4147461.6263 Ebre\n0602 4796983.5767 160309.1177 4187340.3773 Garraf\n"
    "0603 4776835.5870 202618.9947 4207574.6304 Mataro\n0604 4715420.3054 273177.8809 4271946.7957 Creus\n";

// A line with its label from column 61 on.
std::string antex_zeile(std::string text, std::string_view kennung)
{
    text.resize(60, ' ');
    return verkettet(text, kennung, "\n");
}

// An antenna without any offset for the rovers, whose own one nobody knows; their headers call its number "Unknown".
std::string unbekannte_antenne()
{
    std::string text = antex_zeile("", "START OF ANTENNA") +
                       antex_zeile("-                   Unknown", "TYPE / SERIAL NO") +
                       antex_zeile("     0.0", "DAZI") + antex_zeile("     0.0  90.0   5.0", "ZEN1 / ZEN2 / DZEN") +
                       antex_zeile("     2", "# OF FREQUENCIES");
    for (const char* frequenz : {"   G01", "   G02"}) {
        text += antex_zeile(frequenz, "START OF FREQUENCY") +
                antex_zeile("      0.00      0.00      0.00", "NORTH / EAST / UP") + "   NOAZI";
        for (int i = 0; i < 19; ++i) text += "    0.00";
        text += "\n" + antex_zeile(frequenz, "END OF FREQUENCY");
    }
    return text + antex_zeile("", "END OF ANTENNA");
}

TEST(Ganz_Katalonien, ZweiRoverVonDerAufnahmeBisZurKoordinate)
{
    const fs::path daten = fs::path(JORV_DATEN) / "echt";
    if (!fs::exists(daten / "katalonien2010/garr0770.10o"))
        GTEST_SKIP() << "The real observations are missing: " << daten.string();
    const Arbeitsplatz platz;
    netz_kopieren(daten / "katalonien2010", platz.host("rinex"));
    hilfen::schreiben(platz.host("katalog.txt"), katalog);
    hilfen::schreiben(platz.host("grenzen.txt"), "2 -200000 4500000\n1 0 4700000\n");
    hilfen::schreiben(platz.host("antennen.atx"),
                      hilfen::lesen(daten / "antennen/igs08_auszug.atx") + unbekannte_antenne());
    const auto gut = [&](const std::vector<std::string>& worte) {
        const auto lauf = platz.jorv(worte);
        EXPECT_EQ(lauf.status, 0) << worte[0] << "\n" << lauf.aus << lauf.err;
        return lauf.aus;
    };
    gut({"katalog", "machen", "katalog.txt"});
    gut({"grenzen", "machen", "grenzen.txt"});
    gut({"neu", "Katalonien", "--modus", "E", "--verzeichnis", "verfahren"});
    gut({"antennen", "1", "antennen.atx"});
    gut({"--ja", "rinex", "1", "rinex"});
    gut({"figur", "1", "0601", "0602", "0603"});
    std::cout << gut({"zeigen", "1", "rover"});
    gut({"auswerten", "1"});
    const Json ergebnisse = Json::parse(gut({"ergebnisse", "1", "--json"}))["Ergebnisse"];
    ASSERT_EQ(ergebnisse.size(), 2u);
    for (const auto& ergebnis : ergebnisse) ASSERT_TRUE(ergebnis.contains("Loesung")) << ergebnisse.dump();

    constexpr double schranke = 0.02;  // metres
    const Waagrecht eins = im_horizont(upc1, ergebnisse[0]), zwei = im_horizont(upc2, ergebnisse[1]);
    // Published vector UPC1 to UPC2 in the horizon of UPC1.
    constexpr Waagrecht vektor{-27.4170, -26.2341};
    const Waagrecht ziel = im_horizont(upc1, ergebnisse[1]);
    const Waagrecht rest{ziel.ost - eins.ost - vektor.ost, ziel.nord - eins.nord - vektor.nord};
    std::cout << ergebnisse[0]["Loesung"] << ' ' << text("UPC1", eins) << ergebnisse[1]["Loesung"] << ' '
              << text("UPC2", zwei) << text("UPC1-UPC2", rest);
    EXPECT_LT(eins.laenge(), schranke);
    EXPECT_LT(zwei.laenge(), schranke);
    EXPECT_LT(rest.laenge(), schranke);
}

}  // namespace
}  // namespace jorv

// Real observation files: what the reader makes of them against the tables that came with the data and against an
// independent look at the file.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "daten/antennen_datei.h"
#include "daten/antennentest.h"
#include "daten/dateiname.h"
#include "daten/punkt_info.h"
#include "daten/satelliten.h"
#include "modell/Baum.h"
#include "plattform/zahl.h"
#include "proben.h"

namespace jorv {

using namespace hilfen;

namespace {

const fs::path wurzel = fs::path(JORV_DATEN) / "echt";

struct Sollwert {
    const char* datei;
    double X;
    Zeitpunkt Ende;
};

// Positions and last epochs as the source of the data states them; the seconds rounded.
const std::vector<Sollwert> sollwerte = {
    {"katalonien2010/ebre0770.10o", 4833520.1197, {2010, 3, 18, 23, 59, 30}},
    {"katalonien2010/garr0770.10o", 4796983.5767, {2010, 3, 18, 23, 59, 30}},
    {"katalonien2010/creu0770.10o", 4715420.3054, {2010, 3, 18, 23, 59, 30}},
    {"katalonien2010/upc10770.10o", 4789013.0077, {2010, 3, 18, 5, 59, 59}},
    {"katalonien2010/upc20770.10o", 4789031.3284, {2010, 3, 18, 5, 59, 59}},
    {"niederlande2021/delf0010.21o", 3924687.7020, {2021, 1, 1, 0, 52, 0}},
    {"niederlande2021/zegv0010.21o", 3908910.3663, {2021, 1, 1, 23, 59, 30}},
    {"lesetests/ac660270.18o", 0, {2018, 1, 27, 1, 36, 15}},
    {"lesetests/barq071q.19o", 0, {2019, 3, 12, 16, 36, 0}},
    {"lesetests/cags1700.16o", 0, {2016, 6, 18, 0, 2, 30}},
    {"lesetests/faa1170b00.16o", 0, {2016, 6, 18, 1, 0, 4}},
    {"lesetests/gage2710.98o", 0, {1998, 9, 28, 11, 39, 8}},
    {"lesetests/galb3450.04o", 0, {2004, 12, 10, 2, 59, 30}},
    {"lesetests/kerg1700.16o", 0, {2016, 6, 18, 0, 2, 30}},
    {"lesetests/mixed211.05o", 0, {2005, 3, 24, 13, 14, 48}},
    {"lesetests/qaq13010.03o", 0, {2003, 10, 28, 2, 59, 30}},
    {"lesetests/txau0470.12o", 0, {2012, 2, 16, 8, 43, 20}},
};

std::vector<fs::path> dateien()
{
    std::vector<fs::path> alle;
    std::error_code fehler;
    for (const auto& e : fs::recursive_directory_iterator(wurzel, fehler))
        if (e.is_regular_file() && e.path().extension().string().ends_with('o')) alle.push_back(e.path());
    std::sort(alle.begin(), alle.end());
    return alle;
}

// The satellites of all epochs with a plain flag, by regular lines alone: right for files without errors.
std::set<std::string> satelliten_einfach(const std::string& text)
{
    std::set<std::string> alle;
    Zeilenleser zeilen(text);
    while (const auto z = zeilen.naechste())
        if (mitte(*z, 61, 13) == "END OF HEADER") break;
    int rest = 0;
    const auto nehmen = [&](std::string_view zeile) {
        for (std::size_t i = 0; i < 12 && rest > 0; ++i, --rest) {
            std::string name(mitte(zeile, 33 + 3 * i, 3));
            if (name.size() == 3 && name[1] == ' ') name[1] = '0';
            if (name.size() == 3 && std::string_view("GR ").find(name[0]) != std::string_view::npos) alle.insert(name);
        }
    };
    while (const auto z = zeilen.naechste()) {
        if (rest > 0) {
            nehmen(*z);
        } else if (mitte(*z, 27, 3) == "  0" && mitte(*z, 19, 1) == "." && z->size() > 34) {
            rest = static_cast<int>(zahl_lesen(mitte(*z, 30, 3)));
            nehmen(*z);
        }
    }
    return alle;
}

}  // namespace

TEST(EchteDateien, SollwerteDerQuelle)
{
    if (!fs::exists(wurzel)) GTEST_SKIP() << "no real data at " << wurzel;
    for (const auto& soll : sollwerte) {
        const fs::path quelle = wurzel / soll.datei;
        ASSERT_TRUE(fs::exists(quelle)) << quelle;
        Pruefstand p("4");
        const std::string name = quelle.filename().string();
        fs::copy_file(quelle, p.pfad(name));
        ASSERT_FALSE(ist_fehler(punkt_info_lesen(p.g, name))) << name << p.schirm.einzige();
        if (soll.X != 0) {
            EXPECT_EQ(p.g.R_Punkt[1].X, soll.X) << name;
        }
        const OBS& obs = p.g.OBS_R[1];
        EXPECT_EQ(obs.Endzeit(), soll.Ende) << name;
        EXPECT_EQ(obs.Antenne.size(), 40u) << name;
        EXPECT_LE(obs.Startzeit_GPS_Sekunde, obs.Endzeit_GPS_Sekunde) << name;
    }
}

TEST(EchteDateien, JedeDateiGehtDurchBeideLeser)
{
    const auto alle = dateien();
    if (alle.empty()) GTEST_SKIP() << "no real data at " << wurzel;
    // What these lack is told by one message, and nothing is left of them.
    const std::map<std::string, std::string> abgelehnt = {{"blank.10o", "Endjahr fehlt"},
                                                          {"default_time_system2.10o", "Keine Koordinaten"},
                                                          {"minimal2.10o", "Keine Koordinaten"}};
    for (const auto& quelle : alle) {
        Pruefstand p("4");
        const std::string name = quelle.filename().string();
        fs::copy_file(quelle, p.pfad(name));
        if (ist_fehler(punkt_info_lesen(p.g, name))) {
            ASSERT_TRUE(abgelehnt.contains(name)) << name << ": " << p.schirm.einzige();
            EXPECT_TRUE(p.schirm.einzige().starts_with(abgelehnt.at(name))) << p.schirm.einzige();
            EXPECT_EQ(p.g.OBS_R.anzahl(), 0);
            continue;
        }
        EXPECT_FALSE(abgelehnt.contains(name)) << name;
        ASSERT_FALSE(ist_fehler(satelliten_lesen(p.g, name))) << name;
        const auto& satz = p.g.ROVER_Settings[1];
        std::set<std::string> ist(satz.DelSatelliteName.begin() + 1,
                                  satz.DelSatelliteName.begin() + 1 + satz.AnzahlDelSatellite);
        EXPECT_EQ(ist, satelliten_einfach(lesen(quelle))) << name;
    }
}

// What public calibration files and real headers make of the checks: type means without numbers, two frames, and
// antennas of which only the dome or the make is known.
TEST(EchteDateien, Antennen)
{
    const fs::path antennen = wurzel / "antennen";
    if (!fs::exists(antennen)) GTEST_SKIP() << "no real data at " << wurzel;
    Pruefstand p;
    p.g.Verfahren[1].Antenne = "ATX";
    const auto legen = [&](const char* name, const std::string& inhalt) {
        schreiben(p.pfad(name), inhalt);
        ASSERT_TRUE(p.g.Antennen_Dateien.anfuegen(name));
    };
    const std::string igs05 = lesen(antennen / "igs05_auszug.atx"), igs08 = lesen(antennen / "igs08_auszug.atx");
    std::string relativ = igs05;
    relativ[relativ.find("\nA  ") + 1] = 'R';
    legen("igs05.atx", igs05);
    legen("relativ.atx", relativ);
    legen("igs08.atx", igs08);
    EXPECT_TRUE(ist_fehler(VerfahrensATX_erzeugen(p.g)));
    EXPECT_NE(p.schirm.einzige().find(">absolut< kalibriert"), std::string::npos) << p.schirm.einzige();
    ASSERT_FALSE(ist_fehler(VerfahrensATX_erzeugen(p.g)));
    EXPECT_EQ(ersetzt(lesen(p.pfad("001.ATX")), "\r\n", "\n"), igs05 + igs08);
    p.schirm.gezeigt.clear();

    for (const char* name : {"delf0010.21o", "eijs0010.21o", "zegv0010.21o", "wsra0010.21o"}) {
        fs::copy_file(wurzel / "niederlande2021" / name, p.pfad(name));
        ASSERT_FALSE(ist_fehler(punkt_info_lesen(p.g, name))) << p.schirm.einzige();
        ROVER_TOREL_Satz satz;
        satz.ROVER_Dateiname = name;
        satz.Status = 1;
        ASSERT_TRUE(p.g.ROVER_TOREL.anfuegen(satz));
    }
    baum_aufbauen(p.g);
    const auto fehlende = [&] {
        EXPECT_TRUE(ist_fehler(antennendatentest(p.g)));
        const std::string protokoll = lesen(p.pfad("001.KRZ"));
        std::string namen;
        for (const auto& rover : p.g.OBS_R)
            if (protokoll.find("\"" + rover.Dateiname + "\" ist nicht") != std::string::npos)
                namen += rover.Punktkennzeichen + " ";
        return namen;
    };
    EXPECT_EQ(fehlende(), "delf eijs zegv wsra ");
    p.g.Typkalibrierung = "J";
    EXPECT_EQ(fehlende(), "zegv wsra ");
    for (const int i : {3, 4}) p.g.ROVER_Settings[i].Ein_Ausschalterkennung = 0;
    EXPECT_FALSE(ist_fehler(antennendatentest(p.g)));
    ASSERT_EQ(p.g.antennenliste.size(), 2u);
    EXPECT_EQ(p.g.antennenliste[1].substr(20), "LEIAR25.R4      LEIT");
}

}  // namespace jorv

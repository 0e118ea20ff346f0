// Runs with the built-in suite on the example network: foreign virtual stations, and the whole project in one batch.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "app/start.h"
#include "auswertung/gesamtlauf.h"
#include "ganz/Programmlauf.h"
#include "hilfen/Umgebung.h"
#include "plattform/text.h"
#include "projekt/verfahren.h"
#include "simulator/beispiel.h"

using namespace jorv;
using namespace jorv::hilfen;
using testing::HasSubstr;

namespace {

// A project 001 with two rovers, of three hours and of twenty minutes, in the figure of three stations.
struct Netz : Arbeitsplatz {
    explicit Netz(const std::string& modus)
    {
        std::string meldung;
        EXPECT_TRUE(simulator::beispiel_schreiben(host("beispiel"), meldung)) << meldung;
        gut({"katalog", "machen", "beispiel/katalog.txt"});
        gut({"neu", "Quelle", "--modus", modus, "--verzeichnis", "quelle"});
        rinex("1", {"5501", "5504", "0590", "0591", "0593"});
        gut({"figur", "1", "0590", "0591", "0593"});
    }
    Programmlauf gut(const std::vector<std::string>& worte) const
    {
        auto lauf = jorv(worte);
        EXPECT_EQ(lauf.status, 0) << worte[0] << "\n" << lauf.aus << lauf.err;
        return lauf;
    }
    void rinex(const std::string& nummer, const std::vector<std::string>& punkte, const std::string& ordner = "") const
    {
        std::vector<std::string> worte = {"rinex", nummer};
        for (const auto& punkt : punkte)
            for (const char* art : {"o", "n"}) worte.push_back("beispiel/rinex/" + punkt + "1670.16" + art);
        if (!ordner.empty()) worte.push_back(ordner);
        gut(worte);
        gut({"antennen", nummer, "beispiel/antennen/antennen.atx"});
    }
};

TEST(LaufMitSuite, fremde_stationen_geben_dieselben_koordinaten_wie_die_eigenen)
{
    const Netz netz("E");
    // A foreign station must hold an hour of data, which twenty minutes get from the window alone.
    netz.gut({"zeitfenster", "1", "an"});
    netz.gut({"auswerten", "1"});
    netz.gut({"neu", "Fremd", "--modus", "F", "--verzeichnis", "fremd"});
    netz.rinex("2", {"5501", "5504"}, "quelle/jorv_out/rin_vrs");
    const auto lauf = netz.gut({"auswerten", "2"});
    EXPECT_THAT(lauf.err, testing::Not(HasSubstr("WARNUNG")));
    for (const std::string rover : {"55011670.16o", "55041670.16o"}) {
        EXPECT_TRUE(fs::exists(netz.host("fremd/virt" + rover)));
        const std::string ergebnis = "jorv_out/dat_rov/" + rover + ".UTM";
        EXPECT_THAT(lesen(netz.host("fremd/" + ergebnis)), HasSubstr("FixedL1"));
        EXPECT_EQ(lesen(netz.host("fremd/" + ergebnis)), lesen(netz.host("quelle/" + ergebnis)));
        EXPECT_THAT(lesen(netz.host("fremd/jorv_out/lis_rov/" + rover + ".LIS")), HasSubstr("virt" + rover));
        EXPECT_THAT(lesen(netz.host("fremd/002.LIS")), HasSubstr("ROVER-Datei: " + rover));
        EXPECT_TRUE(fs::exists(netz.host("fremd/jorv_out/prot_rov/" + rover.substr(0, 8) + ".prt")));
    }
    EXPECT_THAT(lesen(netz.host("fremd/002.KRZ")), HasSubstr("Anzahl L1 fixed:    2\r\n"));
    EXPECT_THAT(lesen(netz.host("fremd/002.ALL")), HasSubstr("Anzahl L1 fixed:    2\r\n"));
}

// The stations' antennas are not in the project's file: computed without them, and told once.
TEST(LaufMitSuite, eine_fehlende_kalibrierung_steht_im_protokoll_und_in_einer_meldung)
{
    const Netz netz("E");
    const fs::path antex = netz.host("quelle/001.ATX");
    const std::string text = ersetzt(ersetzt(lesen(antex), "JORREF2 ", "ANDERE  "), "JORD41002", "JORD51002");
    ASSERT_NE(text, lesen(antex));
    schreiben(antex, text);
    const auto lauf = netz.gut({"auswerten", "1"});
    EXPECT_EQ(lauf.err.find("keine Kalibrierung gefunden"), lauf.err.rfind("keine Kalibrierung gefunden"));
    EXPECT_THAT(lauf.err, HasSubstr("\n\"4100210090\" \"JORREF2         JORD\"\n   bei 55011670.16o\n"
                                    "\"4100210093\" \"JORREF2         JORD\"\n   bei 55041670.16o\n\n"));
    EXPECT_THAT(lesen(netz.host("quelle/jorv_out/lis_rov/55011670.16o.LIS")),
                HasSubstr("Kalibrierung Basis                  keine\r\n"));
}

TEST(LaufMitSuite, ohne_virtuelle_station_laesst_der_batch_den_loeser_aus)
{
    const Netz netz("E");
    for (const char* station : {"0590", "0591", "0593"})
        fs::remove(netz.host("quelle/" + std::string(station) + "1670.16o"));
    const auto lauf = netz.jorv({"auswerten", "1"});
    EXPECT_EQ(lauf.status, 1);
    EXPECT_THAT(lauf.err, HasSubstr("Bitte die Protokolldatei:"));
    EXPECT_THAT(lesen(netz.host("quelle/001.LIS")), testing::Not(HasSubstr("wa2")));
    EXPECT_THAT(lesen(netz.host("quelle/jorv_out/prot_vrs/55011670.vrt")), HasSubstr("ERROR"));
    EXPECT_FALSE(fs::exists(netz.host("quelle/jorv_out/dat_rov/55011670.16o.UTM")));
}

TEST(LaufMitSuite, ein_batch_rechnet_das_ganze_verfahren)
{
    const Netz netz("S");
    const Umgebungswert pfad("PATH", suchpfad_hinter(netz.host("programme")));
    Pruefschirm schirm;
    const Festuhr uhr({2016, 12, 1, 12, 0, 0});
    Global g(schirm, uhr, Dateisystem());
    ASSERT_EQ(start(g, {Laufwerke().dos(netz.host("JorvPlus.INI")).value(), {}}), Fehler::keiner);
    ASSERT_EQ(Verfahren_oeffnen(g, "Quelle"), Fehler::keiner);
    EXPECT_EQ(m_wasoft_run(g), Fehler::keiner);
    EXPECT_TRUE(schirm.gezeigt.empty()) << schirm.einzige();
    const fs::path projekt = netz.host("quelle");
    const std::string punkte = lesen(projekt / "001.UTM");
    for (const std::string rover : {"55011670", "55041670"}) {
        EXPECT_THAT(punkte, HasSubstr(rover.substr(0, 4) + " "));
        EXPECT_TRUE(fs::exists(projekt / "jorv_out/prot_rov" / (rover + ".prt")));
        EXPECT_TRUE(fs::exists(projekt / "jorv_out/prot_vrs" / (rover + ".vrt")));
        EXPECT_TRUE(fs::exists(projekt / "jorv_out/rin_vrs" / ("virt" + rover + ".16o")));
    }
    EXPECT_EQ(punkte.size(), 2 * 103u);
    EXPECT_THAT(lesen(projekt / "001.KRZ"), HasSubstr("Anzahl L1 fixed:    2\r\n"));
    EXPECT_FALSE(lesen(projekt / "001.LIS").empty());
    EXPECT_FALSE(fs::exists(projekt / "001.ERR"));

    // Rover by rover, with the mask that the batch of the whole leaves to the programs, the same lines come out.
    const std::string kurz = lesen(projekt / "001.KRZ");
    Verfahren_schliessen(g);
    netz.gut({"einstellen", "1", "alle", "Elevation=10"});
    netz.gut({"auswerten", "1"});
    std::string einzeln, einzeln_kurz;
    for (const std::string rover : {"55011670.16o", "55041670.16o"}) {
        einzeln += lesen(projekt / "jorv_out/dat_rov" / (rover + ".UTM"));
        einzeln_kurz += lesen(projekt / "jorv_out/krz_rov" / (rover + ".KRZ"));
    }
    EXPECT_EQ(punkte, einzeln);
    EXPECT_EQ(einzeln_kurz.size(), 2 * 102u);
    EXPECT_THAT(kurz, HasSubstr("\r\n" + einzeln_kurz + "\r\n"));
}

}  // namespace

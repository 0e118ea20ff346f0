#include "auswertung/ergebnis.h"

#include <gtest/gtest.h>

#include <functional>

#include "auswertung/koordinaten_datei.h"
#include "beispiel.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

const std::string rover = "5501092a.05o";

// A line whose columns can be told apart: the head counts up, the tail counts down.
std::string extraktionszeile(std::size_t laenge)
{
    std::string zeile;
    for (std::size_t i = 0; i < laenge; ++i) zeile += static_cast<char>('A' + i % 26);
    return zeile;
}

struct Auswertung : Beispiel {
    Auswertung()
    {
        for (const char* ordnername : {"dat_rov", "krz_rov"})
            (void)g.dateien.ordner_anlegen(im_Verfahren(g, std::string("jorv_out\\") + ordnername));
        legen("5501092a.ext", zeile + "\r\n");
    }
    int auswerten(bool fremd = false)
    {
        int status = 0;
        (fremd ? rover_auswerten_fremd : rover_auswerten_vrs)(g, rover, status);
        return status;
    }
    std::string zeile = extraktionszeile(218);
};

TEST(Ergebnis, zerlegt_die_zeile_nach_festen_laengen)
{
    struct {
        const char* marker;
        std::size_t laenge, utm;
        const char* ende;
        bool fremd = false;
    } const tafel[] = {
        {"S", 201, 101, "\r\n"},  // short and long list of the short names, no gap
        {"L", 217, 117, "\r\n"}, {"?", 217, 117, "\n"},
        {"S", 150, 101, "\r\n"},                                 // shorter than both cuts: the pieces overlap
        {"S", 40, 40, ""},       {"L", 217, 101, "\r\n", true},  // mode F cuts short, long names or not
    };
    for (const auto& fall : tafel) {
        SCOPED_TRACE(fall.laenge);
        Auswertung a;
        a.g.MARKER_Info = fall.marker;
        const std::string zeile = extraktionszeile(fall.laenge);
        a.legen("5501092a.ext", zeile + fall.ende);
        a.legen("001.KRZ", "vorher\r\n");
        EXPECT_EQ(a.auswerten(fall.fremd), 0);
        const std::string bericht = std::string(rechts(zeile, 100)) + "\r\n";
        EXPECT_EQ(a.datei("jorv_out\\dat_rov\\" + rover + ".UTM"), zeile.substr(0, fall.utm) + "\r\n");
        EXPECT_EQ(a.datei("jorv_out\\krz_rov\\" + rover + ".KRZ"), bericht);
        EXPECT_EQ(a.datei("001.KRZ"), "vorher\r\n" + bericht);
        for (const auto& quelle : {"5501092a.ext", "5501092a.05o.UTM", "5501092a.05o.KRZ"})
            EXPECT_FALSE(a.hat(quelle)) << quelle;
        EXPECT_TRUE(a.schirm.gezeigt.empty()) << a.schirm.einzige();
    }
}

TEST(Ergebnis, ohne_extraktionsdatei_endet_der_lauf)
{
    Auswertung a;
    (void)a.g.dateien.loeschen(im_Verfahren(a.g, "5501092a.ext"));
    EXPECT_EQ(a.auswerten(), 99);
    EXPECT_EQ(a.schirm.einzige(),
              "Die Extraktionsdatei:\n" + a.pfad8("5501092a.ext") +
                  "\nkonnte nicht geöffnet werden!\n\nEventuell wurde die WaSoft nicht ordnungsgemäß durchgeführt.\n\n"
                  "Bitte die Protokolldatei:\n" +
                  a.pfad8("5501092a.vrt ") + "auf ERROR-Meldungen untersuchen!");
    EXPECT_EQ(a.schirm.gezeigt[0].symbol, Symbol::stop);
    EXPECT_FALSE(a.hat("001.KRZ"));
}

struct Stoerung {
    const char* kopf;
    const char* datei;
    const char* ende;
    std::function<void(Auswertung&)> stoeren;
    const char* bleibt;  // a file that must still be there, or nullptr
};

const Stoerung stoerungen[] = {
    {"Die RuNA-Eingabedatei:", "5501092a.05o.UTM", "konnte nicht geöffnet werden!",
     [](Auswertung& a) { a.versperren("5501092a.05o.UTM"); }, "5501092a.ext"},
    {"Die aktuelle Kurzprotokolldatei:", "5501092a.05o.KRZ", "konnte nicht geöffnet werden!",
     [](Auswertung& a) { a.versperren("5501092a.05o.KRZ"); }, "5501092a.ext"},
    {"Die Kurzprotokolldatei aller Rover:", "001.KRZ", "konnte nicht geöffnet werden!",
     [](Auswertung& a) { a.versperren("001.KRZ"); }, "5501092a.ext"},
    {"Die Extraktionsdatei:", "5501092a.ext", "konnte nicht richtig gelesen werden!",
     [](Auswertung& a) { a.legen("5501092a.ext", ""); }, "5501092a.ext"},
    {"Die Extraktionsdatei:", "5501092a.ext", "konnte nicht richtig gelesen werden!",
     [](Auswertung& a) { a.legen("5501092a.ext", "  \r\n"); }, "5501092a.ext"},
    {"In die RuNA-Eingabedatei:", "5501092a.05o.UTM", "konnte nicht richtig geschrieben werden!",
     [](Auswertung&) { Bruch::schreiben_bei = 1; }, "5501092a.ext"},
    {"In die aktuelle Kurprotokolldatei:", "5501092a.05o.KRZ", "konnte nicht richtig geschrieben werden!",
     [](Auswertung&) { Bruch::schreiben_bei = 2; }, "5501092a.ext"},
    {"In die Kurzprotokolldatei aller Rover:", "001.KRZ", "konnte nicht richtig geschrieben werden!",
     [](Auswertung&) { Bruch::schreiben_bei = 3; }, "5501092a.ext"},
    {"Die RuNA-Eingabedatei:", "5501092a.05o.UTM", "konnte nicht kopiert werden!",
     [](Auswertung& a) { a.versperren("jorv_out\\dat_rov\\5501092a.05o.UTM"); }, "5501092a.05o.UTM"},
    {"Die aktuelle Kurzprotokolldatei:", "5501092a.05o.KRZ", "konnte nicht kopiert werden!",
     [](Auswertung& a) { a.versperren("jorv_out\\krz_rov\\5501092a.05o.KRZ"); }, "5501092a.05o.KRZ"},
    {"Die Extraktionsdatei:", "5501092a.ext", "konnte nicht gelöscht werden!",
     [](Auswertung&) { Bruch::loeschen_endung = ".ext"; }, nullptr},
    {"Die RuNa-Eingabedatei:", "5501092a.05o.UTM", "konnte nicht gelöscht werden!",
     [](Auswertung&) { Bruch::loeschen_endung = "5501092a.05o.UTM"; }, nullptr},
    {"Die aktuelle Kurzprotokolldatei:", "5501092a.05o.KRZ", "konnte nicht gelöscht werden!",
     [](Auswertung&) { Bruch::loeschen_endung = "5501092a.05o.KRZ"; }, nullptr},
};

TEST(Ergebnis, jede_stoerung_sagt_ihr_wort_und_laesst_den_lauf_weitergehen)
{
    for (const auto& fall : stoerungen) {
        SCOPED_TRACE(std::string(fall.kopf) + " " + fall.ende);
        Auswertung a;
        const Bruch bruch(a.g);
        fall.stoeren(a);
        EXPECT_EQ(a.auswerten(), 0);
        EXPECT_EQ(a.schirm.einzige(), std::string(fall.kopf) + "\n" + a.pfad8(fall.datei) + "\n" + fall.ende);
        EXPECT_EQ(a.schirm.gezeigt[0].symbol, Symbol::stop);
        if (!fall.bleibt) continue;
        EXPECT_TRUE(a.hat(fall.bleibt));
        // Nothing half done: no file with a length of zero, and no row without a filed result before the filing.
        const bool vor_der_ablage = std::string_view(fall.bleibt).ends_with(".ext");
        if (!vor_der_ablage) continue;
        for (const auto* name : {"5501092a.05o.UTM", "5501092a.05o.KRZ", "001.KRZ"})
            EXPECT_FALSE(a.g.dateien.ist_datei(im_Verfahren(a.g, name))) << name;
    }
}

TEST(KoordinatenDatei, steht_nur_in_verfahren_mit_alten_antennendateien)
{
    Beispiel b;
    b.versperren("001.COO");
    for (const char* format : {"ATX", "?", "AXT"}) {
        b.g.Verfahren[1].Antenne = format;
        EXPECT_EQ(koordinaten_datei_schreiben(b.g), Fehler::keiner);
    }
    EXPECT_TRUE(b.schirm.gezeigt.empty());
}

TEST(KoordinatenDatei, nennt_jede_station_einmal_mit_dem_antennentext_ihres_bereichs)
{
    Beispiel b({});
    b.g.Verfahren[1].Antenne = "APC";
    (void)b.g.OBS_S.groesse_setzen(0);
    (void)b.g.S_Punkt.groesse_setzen(0);
    const auto station = [&](const char* kennzeichen, double x, double y, double z) {
        OBS obs;
        obs.Antenne = "TRM22020.00+GP  NONE00220020        SN42";
        (void)b.g.OBS_S.anfuegen(obs);
        Punkt punkt;
        punkt.Punktkennzeichen = kennzeichen;
        punkt.X = x, punkt.Y = y, punkt.Z = z;
        (void)b.g.S_Punkt.anfuegen(punkt);
    };
    station("0590", 3844059.7, 709661.3, 5023129.5646);
    station("0590", 1, 2, 3);  // a second file of the same station
    station("3999", -3844059.7, -9661.3, 0.5);
    station("4000", 3844059.7, 709661.3, 5023129.5);
    ASSERT_EQ(koordinaten_datei_schreiben(b.g), Fehler::keiner);
    EXPECT_EQ(b.datei("001.COO"),
              "0590 3844059.700 709661.300 5023129.565 \"TRM22020.00+GP 00220\"\r\n"
              "3999 -3844059.700  -9661.300       0.500 \"TRM22020.00+GP 00220\"\r\n"
              "4000 3844059.700 709661.300 5023129.500 \"00220020        SN42\"\r\n");
}

TEST(KoordinatenDatei, nennt_in_modus_f_die_fremde_station_und_den_rover)
{
    Beispiel b({"5501092a.05o", "5502092a.05o"}, "3");
    b.g.Verfahren[1].Antenne = "APC";
    b.g.V_Punkt[2] = {"virt", 0, 0, 3844059.7, -0.5, 2};
    b.g.R_Punkt[2] = {"5502", 0, 0, 1, -0.5, 2};
    const std::string ende = "     -0.500       2.000 \"TRM22020.00+GP  NONE\"\r\n", eigene = "5502       1.000" + ende;
    for (const int index : {2, 0, 3}) {  // the linked station, and two indices without a point
        b.g.ROVER_VIRT[2].VIRT_Index = index;
        ASSERT_EQ(koordinaten_datei_rover(b.g, "5502092a.05o"), Fehler::keiner);
        EXPECT_EQ(b.datei("001.COO"), (index == 2 ? "virt 3844059.700" + ende : "") + eigene);
    }
    EXPECT_EQ(koordinaten_datei_rover(b.g, "fremd.05o"), Fehler::gesetzt);
    EXPECT_EQ(b.schirm.einzige(), "Zum ROVER:fremd.05o\nist keine virtuelle Referenzstation zugeordnet!");
}

TEST(KoordinatenDatei, ein_fehlschlag_bleibt_ein_fehler)
{
    for (const bool voll : {false, true}) {
        Beispiel b;
        b.g.Verfahren[1].Antenne = "APC";
        const Bruch bruch(b.g);
        if (voll)
            Bruch::schreiben_bei = 1;
        else
            b.versperren("001.COO");
        EXPECT_EQ(koordinaten_datei_schreiben(b.g), Fehler::gesetzt);
        EXPECT_EQ(b.schirm.einzige(),
                  voll ? "In die Datei:\n" + b.pfad8("001.COO") + "\nkonnte nicht richtig geschrieben werden!"
                       : "Die Datei:\n" + b.pfad8("001.COO") + "\nkonnte nicht angelegt/überschrieben werden!");
    }
}

}  // namespace

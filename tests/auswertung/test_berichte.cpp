#include <gtest/gtest.h>

#include <functional>

#include "auswertung/gesamtprotokoll.h"
#include "auswertung/kurzprotokoll.h"
#include "beispiel.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

const std::string zeilen[] = {
    "5501 092 a     0.0045  98.5    9       1.8  99.1 FixedL1      60.0   1.523 TRM22020.00+GP  NONE 0815\r\n",
    "5502 092 a     0.0091  95.0    8       2.1  97.0 FixedL0      58.5   1.600 TRM22020.00+GP  NONE 0820\r\n",
    "5503 092 a     0.0391   0.0    7       3.1  90.0 FloatDGNSS   12.0   1.700 TRM22020.00+GP  NONE 0930\r\n",
    "5504 092 a     0.0091  95.0    8       2.1  97.0 FixedLO      58.5   1.600 TRM22020.00+GP  NONE 0820\r\n"};

// Six rovers, of which the first ones have a filed result.
struct Berichte : Beispiel {
    explicit Berichte(int berechnet = 0)
        : Beispiel({"5501092a.05o", "5502092a.05o", "5503092a.05o", "5504092a.05o", "5505092a.05o", "5506092a.05o"})
    {
        verlegen("D:", t1252("D:\\Büro\\Muster"));
        g.antennenliste = {"TRM22020.00+GP  NONE", "LEIAT504GG      LEIS"};
        for (int i = 1; i <= berechnet; ++i) {
            const std::string& name = g.OBS_R[i].Dateiname;
            legen("jorv_out\\dat_rov\\" + name + ".UTM", "x\r\n");
            legen("jorv_out\\krz_rov\\" + name + ".KRZ", zeilen[i - 1]);
        }
        baum_aufbauen(g);
    }
    int float_ = -1, loesungen = -1;
};

TEST(Kurzprotokoll, der_letzte_lauf_steht_auf_das_byte)
{
    Berichte b;
    b.legen("001.KRZ", zeilen[0] + zeilen[1] + zeilen[2] + zeilen[3]);
    kurzprotokoll_erweitern(b.g, b.float_, b.loesungen, 5, 6);
    EXPECT_EQ(b.datei("001.KRZ"), probe("lauf.KRZ"));
    EXPECT_EQ(b.float_, 1);
    EXPECT_EQ(b.loesungen, 4);
    b.g.antennenliste.clear();
    b.legen("001.KRZ", zeilen[0]);
    kurzprotokoll_erweitern(b.g, b.float_, b.loesungen, 1, 1);
    EXPECT_EQ(b.datei("001.KRZ"), probe("lauf_alle_da.KRZ"));
    EXPECT_EQ(b.float_, 0);
    EXPECT_EQ(b.loesungen, 1);
    EXPECT_TRUE(b.schirm.gezeigt.empty());
}

TEST(Kurzprotokoll, ohne_datei_oder_nach_einem_fehler_bleibt_alles_wie_es_war)
{
    Berichte ohne;
    kurzprotokoll_erweitern(ohne.g, ohne.float_, ohne.loesungen, 5, 6);
    EXPECT_FALSE(ohne.hat("001.KRZ"));
    EXPECT_TRUE(ohne.schirm.gezeigt.empty());
    struct {
        const char* text;
        std::function<void(Berichte&)> stoeren;
        int grenze;
    } const tafel[] = {
        {"Die Kurzprotokolldatei:\n%\nkonnte nicht geöffnet werden!",
         [](Berichte& b) {
             (void)b.g.dateien.loeschen(Verfahrens_Datei(b.g, ".KRZ"));
             b.versperren("001.KRZ");
         },
         99},
        {"Die Kurzprotokolldatei:\n%\nkonnte nicht richtig gelesen werden!", [](Berichte&) { Bruch::lesen_bei = 1; },
         99},
        {"In die Datei:\n%\nkonnte nicht richtig geschrieben werden!", [](Berichte&) { Bruch::schreiben_bei = 1; }, 99},
        {"Die Kurzprotokolldatei:\n%\nkonnte nicht geöffnet werden!",
         [](Berichte& b) { fs::permissions(b.g.dateien.host(Verfahrens_Datei(b.g, ".KRZ")), fs::perms::owner_read); },
         99},
        {"Dimensionierungsfehler! (50 in neue_antennen_datei)\n    ReDim Preserve l_zeile(3)\nevtl. "
         "Speicherplatzprobleme\n\nOffene Anwendungen schließen und erneut versuchen!",
         [](Berichte&) {}, 2}};
    for (const auto& fall : tafel) {
        Berichte b;
        const std::string alt = zeilen[0] + zeilen[1] + zeilen[2];
        b.legen("001.KRZ", alt);
        const Bruch bruch(b.g);
        fall.stoeren(b);
        kurzprotokoll_erweitern(b.g, b.float_, b.loesungen, 5, 6, fall.grenze);
        EXPECT_EQ(b.schirm.einzige(), ersetzt(std::string_view(fall.text), "%", b.pfad8("001.KRZ")));
        EXPECT_TRUE(b.g.dateien.ist_ordner(Verfahrens_Datei(b.g, ".KRZ")) || b.datei("001.KRZ") == alt);
    }
}

TEST(Kurzprotokoll, alle_rover_stehen_auf_das_byte)
{
    Berichte b(4);
    auto& zweiter = b.g.ROVER_Settings[2];
    zweiter.Elevation = 12;
    zweiter.DelFirstMinutes = 3;
    zweiter.DelLastMinutes = 10;
    zweiter.AnzahlDelSatellite = 3;
    zweiter.DelSatelliteName[1] = "G05";
    zweiter.DelSatelliteName[2] = "G06";
    zweiter.DelSatellite[2] = 1;
    zweiter.DelSatelliteName[3] = "R12";
    kurzprotokoll_aller(b.g);
    EXPECT_EQ(b.datei("001.ALL"), probe("aller.ALL"));
    Berichte keine;
    kurzprotokoll_aller(keine.g);
    EXPECT_EQ(keine.datei("001.ALL"), probe("aller_keine.ALL"));
    EXPECT_TRUE(b.schirm.gezeigt.empty());
}

void protokolle_legen(Berichte& b)
{
    b.legen("jorv_out\\lis_rov\\5502092a.05o.LIS", t1252("zweiter\n\n  mit Lücke"));
    b.legen("jorv_out\\lis_rov\\5503092a.05o.LIS", "dritter\r\n");
    b.legen("jorv_out\\lis_rov\\5501092a.05o.LIS", "erster, nicht berechnet\r\n");
    for (int i : {2, 3}) b.legen("jorv_out\\dat_rov\\" + b.g.OBS_R[i].Dateiname + ".UTM", "x\r\n");
    baum_aufbauen(b.g);
}

TEST(Gesamtprotokoll, die_berechneten_rover_stehen_vor_den_anderen)
{
    Berichte b;
    protokolle_legen(b);
    b.legen("001.LIS", "alt\r\n");
    gesamtprotokoll_schreiben(b.g);
    EXPECT_EQ(b.datei("001.LIS"), probe("gesamt.LIS"));
    EXPECT_TRUE(b.schirm.gezeigt.empty());
}

TEST(Gesamtprotokoll, ohne_berechnete_rover_wird_angehaengt)
{
    Berichte b;
    b.legen("001.LIS", "alt\r\n");
    b.legen("jorv_out\\lis_rov\\5506092a.05o.LIS", "x\r\n");
    gesamtprotokoll_schreiben(b.g);
    EXPECT_EQ(b.datei("001.LIS").find("alt\r\n**** Anfang"), 0u);
    Beispiel leer({});
    gesamtprotokoll_schreiben(leer.g);
    EXPECT_FALSE(leer.hat("001.LIS"));
}

TEST(Berichtsfehler, jeder_fehler_sagt_sein_wort_und_laesst_keine_halbe_datei)
{
    struct {
        void (*bericht)(Global&);
        const char* text;
        const char* datei;
        std::function<void(Berichte&)> stoeren;
    } const tafel[] = {
        {kurzprotokoll_aller, "Die Kurzprotokolldatei für alle ROVER:\n%\nkonnte nicht geöffnet werden!", "001.ALL",
         [](Berichte& b) { b.versperren("001.ALL"); }},
        {kurzprotokoll_aller, "In die Gesamt-Kurzprotokolldatei:\n%\nkonnte nicht richtig geschrieben werden!",
         "001.ALL", [](Berichte&) { Bruch::schreiben_bei = 1; }},
        {kurzprotokoll_aller, "Die Kurzprotokolldatei:\n%\nkonnte nicht geöffnet werden!",
         "jorv_out\\krz_rov\\5502092a.05o.KRZ",
         [](Berichte& b) { (void)b.g.dateien.loeschen(im_Verfahren(b.g, "jorv_out\\krz_rov\\5502092a.05o.KRZ")); }},
        {kurzprotokoll_aller, "Die Kurzprotokolldatei:\n%\nkonnte nicht richtig gelesen werden!",
         "jorv_out\\krz_rov\\5502092a.05o.KRZ",
         [](Berichte& b) { b.legen("jorv_out\\krz_rov\\5502092a.05o.KRZ", ""); }},
        {kurzprotokoll_aller, "Die Kurzprotokolldatei:\n%\nkonnte nicht richtig gelesen werden!",
         "jorv_out\\krz_rov\\5501092a.05o.KRZ", [](Berichte&) { Bruch::lesen_bei = 1; }},
        {gesamtprotokoll_schreiben, "Die Gesamt-Berechnungsprotokolldatei:\n%\nkonnte nicht angelegt werden!",
         "001.LIS", [](Berichte& b) { b.versperren("001.LIS"); }},
        {gesamtprotokoll_schreiben, "Die Gesamt-Berechnungsprotokolldatei:\n%\nkonnte nicht angelegt/erweitert werden!",
         "001.LIS",
         [](Berichte& b) {
             for (int i : {2, 3})
                 (void)b.g.dateien.loeschen(im_Verfahren(b.g, "jorv_out\\dat_rov\\" + b.g.OBS_R[i].Dateiname + ".UTM"));
             baum_aufbauen(b.g);
             b.versperren("001.LIS");
         }},
        {gesamtprotokoll_schreiben,
         "In die Gesamt-Berechnungsprotokolldatei:\n%\nkonnte nicht richtig geschrieben werden!", "001.LIS",
         [](Berichte&) { Bruch::schreiben_bei = 1; }},
        {gesamtprotokoll_schreiben,
         "In die Gesamt-Berechnungsprotokolldatei:\n%\nkonnte nicht richtig geschrieben werden!", "001.LIS",
         [](Berichte&) { Bruch::schreiben_bei = 2; }},
        {gesamtprotokoll_schreiben, "Die Berechnungsprotokolldatei:\n%\nkonnte nicht geöffnet werden!",
         "jorv_out\\lis_rov\\5505092a.05o.LIS",
         [](Berichte& b) { b.versperren("jorv_out\\lis_rov\\5505092a.05o.LIS"); }},
        {gesamtprotokoll_schreiben, "Die Berechnungsprotokolldatei:\n%\nkonnte nicht richtig gelesen werden!",
         "jorv_out\\lis_rov\\5502092a.05o.LIS", [](Berichte&) { Bruch::lesen_bei = 1; }}};
    for (const auto& fall : tafel) {
        SCOPED_TRACE(fall.text);
        Berichte b(fall.bericht == kurzprotokoll_aller ? 4 : 0);
        protokolle_legen(b);
        const Bruch bruch(b.g);
        fall.stoeren(b);
        fall.bericht(b.g);
        EXPECT_EQ(b.schirm.einzige(), ersetzt(std::string_view(fall.text), "%", b.pfad8(fall.datei)));
        EXPECT_EQ(b.schirm.gezeigt[0].symbol, Symbol::stop);
        EXPECT_FALSE(b.g.dateien.ist_datei(im_Verfahren(b.g, "001.ALL")));
    }
}

}  // namespace

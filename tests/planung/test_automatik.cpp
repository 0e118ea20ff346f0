#include "planung/automatik.h"

#include <gtest/gtest.h>

#include "hilfen/Projekt.h"
#include "planung/Beobachtungen.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

const GEO_Punkt_Satz dreieck = figur({punkt("0590", 0, 0), punkt("0591", 1000, 0), punkt("0592", 0, 1000)});

struct Datei {
    const char *name, *von, *bis;
};
struct Ampelfall {
    const char* was;
    Datei rover;
    std::vector<Datei> stationen;
    int anzahl, status, grund;
    Pruefung entscheidend;
};

const std::vector<Ampelfall> ampelfaelle = {
    {"all corners cover a long rover",
     {"5501001a.14o", "08:00:00", "09:00:00"},
     {{"0590001a.14o", "08:00:00", "09:00:00"},
      {"0591001a.14o", "07:00:00", "10:00:00"},
      {"0592001a.14o", "07:00:00", "10:00:00"}},
     3,
     1,
     0,
     Pruefung::lang_genug},
    {"one corner begins a minute late",
     {"5501001a.14o", "08:00:00", "10:00:00"},
     {{"0590001a.14o", "08:01:00", "11:00:00"},
      {"0591001a.14o", "07:00:00", "11:00:00"},
      {"0592001a.14o", "07:00:00", "11:00:00"}},
     2,
     2,
     2,
     Pruefung::zu_wenig},
    {"one corner ends a second early, a short rover stays yellow",
     {"5501001a.14o", "08:00:00", "08:30:00"},
     {{"0590001a.14o", "07:00:00", "08:29:59"},
      {"0591001a.14o", "07:00:00", "11:00:00"},
      {"0592001a.14o", "07:00:00", "11:00:00"}},
     2,
     2,
     2,
     Pruefung::zu_wenig},
    {"all stations miss the rover",
     {"5501001a.14o", "08:00:00", "10:00:00"},
     {{"0590001a.14o", "09:00:00", "10:00:00"}, {"0591001a.14o", "06:00:00", "07:00:00"}},
     0,
     3,
     1,
     Pruefung::keine_datei},
    {"two files of one station are both taken, more than corners is green by its length",
     {"5501001a.14o", "08:00:00", "10:00:00"},
     {{"0590001a.14o", "07:00:00", "11:00:00"},
      {"0590001a.14d", "07:00:00", "11:00:00"},
      {"0591001a.14o", "07:00:00", "11:00:00"},
      {"0592001a.14o", "07:00:00", "11:00:00"}},
     4,
     1,
     0,
     Pruefung::lang_genug},
    {"a fifth file is counted but has no room",
     {"5501001a.14o", "08:00:00", "08:30:00"},
     {{"0590001a.14o", "07:00:00", "11:00:00"},
      {"0590001a.14d", "07:00:00", "11:00:00"},
      {"0591001a.14o", "07:00:00", "11:00:00"},
      {"0591001a.14d", "07:00:00", "11:00:00"},
      {"0592001a.14o", "08:00:00", "08:30:00"}},
     5,
     1,
     0,
     Pruefung::spanne_reicht},
    {"another day in a file's name",
     {"5501001a.14o", "08:00:00", "10:00:00"},
     {{"0590001a.14o", "07:00:00", "11:00:00"},
      {"0591002a.14o", "07:00:00", "11:00:00"},
      {"0592001a.14o", "07:00:00", "11:00:00"}},
     3,
     3,
     4,
     Pruefung::session},
    {"all stations of another day than the rover",
     {"5501001a.14o", "08:00:00", "10:00:00"},
     {{"0590002a.14o", "07:00:00", "11:00:00"},
      {"0591002a.14o", "07:00:00", "11:00:00"},
      {"0592002a.14o", "07:00:00", "11:00:00"}},
     3,
     3,
     3,
     Pruefung::tag},
    {"sessions differ among the stations",
     {"5501001a.14o", "08:00:00", "10:00:00"},
     {{"0590001a.14o", "07:00:00", "11:00:00"},
      {"0591001b.14o", "07:00:00", "11:00:00"},
      {"0592001a.14o", "07:00:00", "11:00:00"}},
     3,
     3,
     4,
     Pruefung::session},
    {"a name shorter than eight characters compares as much as it has",
     {"5501001", "08:00:00", "10:00:00"},
     {{"0590001", "07:00:00", "11:00:00"}, {"0591001", "07:00:00", "11:00:00"}, {"0592001", "07:00:00", "11:00:00"}},
     3,
     1,
     0,
     Pruefung::lang_genug},
    {"59 minutes, stations end at the last epoch and begin an hour earlier",
     {"5501001a.14o", "08:00:00", "08:59:00"},
     {{"0590001a.14o", "07:00:00", "08:59:00"},
      {"0591001a.14o", "07:00:00", "08:59:00"},
      {"0592001a.14o", "07:00:00", "08:59:00"}},
     3,
     3,
     6,
     Pruefung::spanne_endet_zu_frueh},
    {"59 minutes, one more minute on the far side only",
     {"5501001a.14o", "08:00:00", "08:59:00"},
     {{"0590001a.14o", "08:00:00", "09:00:00"},
      {"0591001a.14o", "08:00:00", "09:00:00"},
      {"0592001a.14o", "08:00:00", "09:00:00"}},
     3,
     1,
     0,
     Pruefung::spanne_reicht},
    {"59 minutes 59 seconds count as 59, the stations' span of the same too",
     {"5501001a.14o", "10:00:00", "10:59:59"},
     {{"0590001a.14o", "10:00:00", "10:59:59"},
      {"0591001a.14o", "10:00:00", "10:59:59"},
      {"0592001a.14o", "10:00:00", "10:59:59"}},
     3,
     3,
     5,
     Pruefung::spanne_zu_kurz},
    {"one second over the minute counts as a minute",
     {"5501001a.14o", "10:00:59", "11:00:00"},
     {{"0590001a.14o", "10:00:59", "11:00:00"},
      {"0591001a.14o", "10:00:59", "11:00:00"},
      {"0592001a.14o", "10:00:59", "11:00:00"}},
     3,
     1,
     0,
     Pruefung::lang_genug},
    {"half an hour, stations offer no more",
     {"5501001a.14o", "08:00:00", "08:30:00"},
     {{"0590001a.14o", "08:00:00", "08:30:00"},
      {"0591001a.14o", "07:00:00", "11:00:00"},
      {"0592001a.14o", "07:00:00", "11:00:00"}},
     3,
     3,
     5,
     Pruefung::spanne_zu_kurz},
};

void PrintTo(const Ampelfall& fall, std::ostream* strom)
{
    *strom << fall.was;
}

class Ampel_des_ROVER : public testing::TestWithParam<Ampelfall> {};

}  // namespace

TEST_P(Ampel_des_ROVER, folgt_aus_Dateien_und_Zeiten)
{
    const auto& fall = GetParam();
    Pruefstand p;
    rover(p.g, beobachtung(fall.rover.name, fall.rover.von, fall.rover.bis), 100, 100);
    for (const auto& s : fall.stationen) station(p.g, beobachtung(s.name, s.von, s.bis));
    ASSERT_TRUE(p.g.GEO_Punkt.anfuegen(dreieck));

    automatik(p.g);

    const auto& zeile = p.g.ROVER_TOREL[1];
    EXPECT_EQ(zeile.Anzahl, fall.anzahl);
    EXPECT_EQ(zeile.Status, fall.status);
    EXPECT_EQ(zeile.Grund, fall.grund);
    EXPECT_EQ(p.g.Begruendungen[0].Schritte.back(), fall.entscheidend);
    EXPECT_TRUE(p.schirm.gezeigt.empty());
}

INSTANTIATE_TEST_SUITE_P(Automatik, Ampel_des_ROVER, testing::ValuesIn(ampelfaelle));

TEST(Automatik, DieErsteFigurZaehltAuchWennIhreStationenFehlen)
{
    struct Fall {
        double rechtswert, hochwert;
        int figur, status;
    };
    const Fall faelle[] = {{100, 100, 1, 3}, {500, 500, 1, 3}, {700, 700, 2, 1}, {2000, 2000, 0, 3}};
    for (const auto& fall : faelle) {
        Pruefstand p;
        rover(p.g, beobachtung("5501001a.14o", "08:00:00", "10:00:00"), fall.rechtswert, fall.hochwert);
        for (const char* name : {"0700001a.14o", "0701001a.14o", "0702001a.14o"})
            station(p.g, beobachtung(name, "07:00:00", "11:00:00"));
        (void)p.g.GEO_Punkt.anfuegen(figur({punkt("0700", 0, 0), punkt("0701", 900, 900)}));  // never closed
        (void)p.g.GEO_Punkt.anfuegen(dreieck);
        (void)p.g.GEO_Punkt.anfuegen(figur({punkt("0700", 0, 0), punkt("0701", 1500, 0), punkt("0702", 0, 1500)}));
        automatik(p.g);
        EXPECT_EQ(p.g.Begruendungen[0].Figur, fall.figur == 0 ? 0 : fall.figur + 1);
        EXPECT_EQ(p.g.ROVER_TOREL[1].Status, fall.status);
        EXPECT_EQ(p.g.ROVER_TOREL[1].Grund, fall.status == 1 ? 0 : 1);
    }
}

TEST(Automatik, DieBegruendungNenntDateienUndFehlendeZeit)
{
    Pruefstand p;
    rover(p.g, beobachtung("5501001a.14o", "08:00:00", "09:30:00"), 100, 100);
    station(p.g, beobachtung("0591001a.14o", "08:05:00", "09:29:30"));
    station(p.g, beobachtung("0590001a.14o", "07:00:00", "11:00:00"));
    station(p.g, beobachtung("0999001a.14o", "07:00:00", "11:00:00"));
    (void)p.g.GEO_Punkt.anfuegen(dreieck);
    automatik(p.g);
    const Begruendung& warum = p.g.Begruendungen[0];
    EXPECT_EQ(warum.Ecken, 3);
    EXPECT_EQ(warum.Minuten_ROVER, 90);
    ASSERT_EQ(warum.Dateien.size(), 2u);
    EXPECT_EQ(warum.Dateien[0].TOREL_Dateiname, "0590001a.14o");
    EXPECT_TRUE(warum.Dateien[0].genommen);
    EXPECT_FALSE(warum.Dateien[1].genommen);
    EXPECT_EQ(warum.Dateien[1].Minuten_vorher, 5);
    EXPECT_EQ(warum.Dateien[1].Minuten_nachher, 1);
    EXPECT_EQ(warum.Dateien[1].Sekunden_nachher, 30);
    EXPECT_EQ(warum.Schritte, std::vector{Pruefung::zu_wenig});
}

TEST(Automatik, GeschuetzteZeilenBehaltenIhreStationenAberNichtDieFalscheTagesangabe)
{
    Pruefstand p;
    rover(p.g, beobachtung("5501001a.14o", "08:00:00", "08:10:00"), 5000, 5000);
    rover(p.g, beobachtung("5502001a.14o", "08:00:00", "08:10:00"), 5000, 5000);
    (void)p.g.GEO_Punkt.anfuegen(dreieck);
    for (const char* name : {"0590001a.14o", "0590007a.14o"}) {
        ROVER_TOREL_Satz zeile;
        zeile.Schutz = true;
        zeile.Anzahl = 1;
        zeile.TOREL_Dateiname[0] = name;
        zeile.Status = 2;
        zeile.Grund = 2;
        zeile.Zeitfenster_Startzeit = "073500";
        (void)p.g.ROVER_TOREL.anfuegen(zeile);
    }
    automatik(p.g);
    EXPECT_EQ(p.g.ROVER_TOREL[1].ROVER_Dateiname, "5501001a.14o");
    EXPECT_EQ(p.g.ROVER_TOREL[1].Status, 2);
    EXPECT_EQ(p.g.ROVER_TOREL[1].Zeitfenster_Startzeit, "073500");
    EXPECT_EQ(p.g.ROVER_TOREL[2].Anzahl, 1);
    EXPECT_EQ(p.g.ROVER_TOREL[2].Status, 3);
    EXPECT_EQ(p.g.ROVER_TOREL[2].Grund, 3);
    EXPECT_EQ(p.g.Begruendungen[1].abweichende_Datei, "0590007a.14o");
}

TEST(Automatik, OhneFigurBleibtAllesUnbeurteilt)
{
    Pruefstand p;
    rover(p.g, beobachtung("5501001a.14o", "08:00:00", "10:00:00"), 100, 100);
    (void)p.g.GEO_Punkt.anfuegen(dreieck);
    automatik(p.g);
    ASSERT_EQ(p.g.ROVER_TOREL[1].Status, 3);
    p.g.GEO_Punkt.leeren();
    automatik(p.g);
    EXPECT_EQ(p.g.ROVER_TOREL[1].Status, 0);
    EXPECT_EQ(p.g.ROVER_TOREL[1].Grund, 0);
    EXPECT_EQ(p.g.Begruendungen[0].Schritte, std::vector{Pruefung::keine});
    EXPECT_EQ(p.schirm.baum_erneuert, 2);
}

TEST(Automatik, ImBasislinienmodusUndOhneROVERWirdNurDerBaumErneuert)
{
    for (const char* modus : {"4", "1"}) {
        Pruefstand p(modus);
        if (std::string_view(modus) == "4") rover(p.g, beobachtung("5501001a.14o", "08:00:00", "10:00:00"), 100, 100);
        ROVER_TOREL_Satz zeile;
        zeile.Status = 2;
        (void)p.g.ROVER_TOREL.anfuegen(zeile);
        (void)p.g.GEO_Punkt.anfuegen(dreieck);
        automatik(p.g);
        EXPECT_EQ(p.g.ROVER_TOREL[1].Status, 2);
        EXPECT_EQ(p.schirm.baum_erneuert, 1);
    }
}

TEST(Automatik, FehlenderPlatzWirdGemeldetUndDerBaumErneuert)
{
    struct Fall {
        const char *modus, *kopf;
    };
    const Fall faelle[] = {{"2", "Dimensionierungsfehler! (25 in automatik)\n    ReDim Preserve ROVER_TOREL(2)\n"},
                           {"3", "Dimensionierungsfehler! (76 in automatik)\n    ReDim Preserve ROVER_VIRT(2)\n"}};
    for (const auto& fall : faelle) {
        Pruefstand p(fall.modus);
        rover(p.g, beobachtung("5501001a.14o", "08:00:00", "10:00:00"), 100, 100);
        rover(p.g, beobachtung("5502001a.14o", "08:00:00", "10:00:00"), 100, 100);
        p.g.ROVER_TOREL.grenze_setzen(1);
        p.g.ROVER_VIRT.grenze_setzen(1);
        automatik(p.g);
        EXPECT_EQ(p.schirm.einzige(), std::string(fall.kopf) +
                                          "evtl. Speicherplatzprobleme\n\n"
                                          "Offene Anwendungen schließen und erneut versuchen!");
        EXPECT_EQ(p.schirm.gezeigt[0].symbol, Symbol::stop);
        EXPECT_EQ(p.schirm.baum_erneuert, 1);
    }
}

TEST(AutomatikFremd, DieNaechsteDeckendeStationWirdGewaehlt)
{
    struct Fall {
        const char* was;
        std::vector<Datei> fremde;  // 300 m, 200 m, 200 m, 100 m away
        const char* name;
        int index;
        double strecke;
    };
    const Fall faelle[] = {
        {"the nearest", {{"v1", "07:00:00", "11:00:00"}, {"v2", "07:00:00", "11:00:00"}}, "v2", 2, 200},
        {"the first of two equally near",
         {{"v1", "07:00:00", "11:00:00"}, {"v2", "07:00:00", "11:00:00"}, {"v3", "07:00:00", "11:00:00"}},
         "v2",
         2,
         200},
        {"a nearer one that misses the rover displaces nobody",
         {{"v1", "07:00:00", "11:00:00"}, {"v2", "08:00:01", "11:00:00"}},
         "v1",
         1,
         300},
        {"less than an hour is no station", {{"v1", "08:00:00", "08:59:59"}}, "?", 0, 0},
        {"none", {}, "?", 0, 0},
    };
    for (const auto& fall : faelle) {
        SCOPED_TRACE(fall.was);
        Pruefstand p("3");
        rover(p.g, beobachtung("5501001a.14o", "08:00:00", "08:30:00"), 0, 0);
        const double abstand[] = {300, 200, -200, 100};
        for (std::size_t i = 0; i < fall.fremde.size(); ++i)
            fremde(p.g, beobachtung(fall.fremde[i].name, fall.fremde[i].von, fall.fremde[i].bis), abstand[i], 0);
        (void)p.g.V_Punkt.anfuegen(punkt("", 1, 1));  // a position without a file, of an import
        automatik(p.g);
        EXPECT_EQ(p.g.ROVER_VIRT[1].VIRT_Dateiname, fall.name);
        EXPECT_EQ(p.g.ROVER_VIRT[1].VIRT_Index, fall.index);
        EXPECT_DOUBLE_EQ(p.g.ROVER_VIRT[1].Strecke, fall.strecke);
        EXPECT_EQ(p.g.Begruendungen[0].Schritte.back(),
                  fall.index != 0 ? Pruefung::fremde_zugeordnet : Pruefung::keine_fremde);
        int genommen = 0;
        for (const auto& datei : p.g.Begruendungen[0].Dateien) genommen += datei.genommen ? 1 : 0;
        EXPECT_EQ(genommen, fall.index != 0 ? 1 : 0);
    }
}

#include "planung/zeitfenster.h"

#include <gtest/gtest.h>

#include "hilfen/Projekt.h"
#include "planung/Beobachtungen.h"
#include "planung/automatik.h"

using namespace jorv;
using namespace jorv::hilfen;

TEST(Zeitfenster, KurzeROVERBekommenDieStundeUmIhreMitte)
{
    struct Fall {
        const char *von, *bis, *start, *ende;
    };
    const Fall faelle[] = {
        {"10:00:00", "11:00:00", "100000", "110000"},  // exactly 60 minutes
        {"10:00:59", "11:00:00", "100059", "110000"},  // 60 calendar minutes
        {"10:00:00", "10:59:59", "100000", "110000"},  // 59 minutes, half a second to the even neighbour 1800
        {"10:00:00", "10:30:00", "094500", "104500"}, {"10:00:00", "10:00:01", "093000", "103000"},  // half of 1 to 0
        {"10:00:00", "10:00:03", "093002", "103002"},                                                // half of 3 to 2
        {"00:10:00", "00:20:00", "234500", "004500"},                                                // over midnight
        {"23:20:00", "23:40:00", "230000", "14"},  // midnight has no time part: the year's last digits
        {"00:20:00", "00:40:00", "14", "010000"},     {"24:00:00", "25:30:00", "14", "013000"},
    };
    for (const auto& fall : faelle) {
        SCOPED_TRACE(std::string(fall.von) + " " + fall.bis);
        Pruefstand p;
        p.g.Zeitfenster_1h = "1";
        rover(p.g, beobachtung("5501001a.14o", fall.von, fall.bis), 0, 0);
        automatik(p.g);
        zeitfenster_alle(p.g);
        EXPECT_EQ(p.g.ROVER_TOREL[1].Zeitfenster_Startzeit, fall.start);
        EXPECT_EQ(p.g.ROVER_TOREL[1].Zeitfenster_Endzeit, fall.ende);
    }
}

namespace {

struct DreiROVER : testing::Test {
    DreiROVER()
    {
        for (const char* name : {"5501001a.14o", "5502001a.14o", "5503001a.14o"})
            rover(p.g, beobachtung(name, "08:00:00", "08:20:00"), 0, 0);
        automatik(p.g);
        p.g.Verfahren[1].LetztDatum = "";
    }
    std::vector<std::string> starts() const
    {
        std::vector<std::string> alle;
        for (const auto& zeile : p.g.ROVER_TOREL) alle.push_back(zeile.Zeitfenster_Startzeit);
        return alle;
    }
    Pruefstand p;
};

using Texte = std::vector<std::string>;

}  // namespace

TEST_F(DreiROVER, DerSchalterRechnetNeuUndStempeltDasVerfahren)
{
    m_grund_zeitfenster_1h(p.g);
    EXPECT_EQ(p.g.Zeitfenster_1h, "1");
    EXPECT_EQ(starts(), Texte(3, "074000"));
    EXPECT_EQ(p.schirm.fortschritt, (Texte{"Bitte warten (Zeitfenster berechnen)", "(verborgen)"}));
    EXPECT_DOUBLE_EQ(p.schirm.prozente.front(), 0.0001);
    EXPECT_DOUBLE_EQ(p.schirm.prozente.back(), 100);
    EXPECT_EQ(p.g.Verfahren[1].LetztDatum, "01.12.2016 12:00:00");
    m_grund_zeitfenster_1h(p.g);
    EXPECT_EQ(p.g.Zeitfenster_1h, "0");
    EXPECT_EQ(starts(), Texte(3, "0"));
    EXPECT_EQ(p.schirm.fortschritt.size(), 2u);
}

TEST_F(DreiROVER, EinAbbruchSchaltetDieOptionAus)
{
    for (const int klick : {1, 3}) {
        p.g.Zeitfenster_1h = "1";
        p.schirm.ereignisse_zahl = 0;
        p.schirm.abbruch_nach = klick;
        zeitfenster_alle(p.g);
        EXPECT_EQ(p.g.Zeitfenster_1h, "0");
        EXPECT_EQ(starts(), Texte(3, "0"));
        EXPECT_EQ(p.g.abbruch, 0);
        EXPECT_EQ(p.schirm.fortschritt.back(), "(verborgen)");
    }
}

TEST(Tage, AlleTageDerBeobachtungenAufsteigend)
{
    struct Fall {
        const char* modus;
        std::vector<std::int16_t> tage;
    };
    const Fall faelle[] = {{"1", {3, 12, 200, 365}}, {"2", {3, 12, 200, 365}}, {"3", {7, 12, 200}}, {"4", {12, 200}}};
    for (const auto& fall : faelle) {
        Pruefstand p(fall.modus);
        for (const std::int16_t tag : {std::int16_t{200}, std::int16_t{12}, std::int16_t{200}})
            rover(p.g, beobachtung("5501", 0, 60, tag), 0, 0);
        for (const std::int16_t tag : {std::int16_t{365}, std::int16_t{3}, std::int16_t{12}})
            station(p.g, beobachtung("0590", 0, 60, tag));
        fremde(p.g, beobachtung("virt", 0, 60, 7), 0, 0);
        (void)p.g.tage.anfuegen(99);
        EXPECT_EQ(menue_zeitfenster(p.g), Fehler::keiner);
        EXPECT_EQ(std::vector<std::int16_t>(p.g.tage.begin(), p.g.tage.end()), fall.tage) << fall.modus;
    }
    Pruefstand leer;
    EXPECT_EQ(menue_zeitfenster(leer.g), Fehler::keiner);
    EXPECT_EQ(leer.g.tage.anzahl(), 0);
}

TEST(Tage, FehlenderPlatzWirdGemeldet)
{
    struct Fall {
        const char* modus;
        int grenze;
        const char* kopf;
    };
    const Fall faelle[] = {
        {"1", -1, "(26 in menue_zeitfenster)\n       ReDim tage(0 To 1)\n"},
        {"1", 0, "(27 in menue_zeitfenster)\n    ReDim Preserve tage(0 To 1)\n"},
        {"1", 1, "(28 in menue_zeitfenster)\n    ReDim Preserve tage(0 To 2)\n"},
        {"3", 1, "(75 in menue_zeitfenster)\n    ReDim Preserve tage(0 To 2)\n"},
    };
    for (const auto& fall : faelle) {
        Pruefstand p(fall.modus);
        rover(p.g, beobachtung("5501", 0, 60, 2), 0, 0);
        station(p.g, beobachtung("0590", 0, 60, 1));
        fremde(p.g, beobachtung("virt", 0, 60, 3), 0, 0);
        p.g.tage.grenze_setzen(fall.grenze);
        EXPECT_EQ(menue_zeitfenster(p.g), Fehler::gesetzt);
        EXPECT_EQ(p.schirm.einzige(), std::string("Dimensionierungsfehler! ") + fall.kopf +
                                          "evtl. Speicherplatzprobleme\n\n"
                                          "Offene Anwendungen schließen und erneut versuchen!");
    }
}

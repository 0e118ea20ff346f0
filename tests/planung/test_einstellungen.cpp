#include <gtest/gtest.h>

#include "hilfen/Projekt.h"
#include "modell/Baum.h"
#include "planung/Beobachtungen.h"
#include "planung/einstellungen_alle.h"
#include "planung/einstellungen_rover.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

struct Einstellen : testing::Test {
    Einstellen()
    {
        rover(p.g, beobachtung("5501001a.14o", "10:00:00", "11:30:00"), 0, 0);
        rover(p.g, beobachtung("5502001a.14o", "23:00:00", "24:10:00"), 0, 0);
        for (const auto& o : p.g.OBS_R) {
            ROVER_TOREL_Satz t;
            t.ROVER_Dateiname = o.Dateiname;
            t.Status = 1;
            EXPECT_TRUE(p.g.ROVER_TOREL.anfuegen(t));
        }
        satelliten(1, {"G09", "R01"});
        satelliten(2, {"G09", "G02"});
        baum_aufbauen(p.g);
    }
    void satelliten(int rover, const std::vector<std::string>& namen)
    {
        auto& s = p.g.ROVER_Settings[rover];
        s.AnzahlDelSatellite = 0;
        for (const auto& name : namen) {
            const auto i = static_cast<std::size_t>(++s.AnzahlDelSatellite);
            s.DelSatelliteName[i] = name;
            s.DelSatellite[i] = 1;
        }
    }
    Pruefstand p;
};

}  // namespace

TEST_F(Einstellen, ZahlenfeldHaeltSeineGrenzen)
{
    Zahlenfeld f("7", 1, 60);
    EXPECT_TRUE(f.taste('0') && f.taste('9') && f.taste(taste_ruecktaste));
    EXPECT_FALSE(f.taste('-') || f.taste(' ') || f.taste('a'));
    f.text_setzen("99999999999");
    EXPECT_FALSE(f.pruefen(p.schirm));
    EXPECT_EQ(p.schirm.einzige(), "Der zulässige Maximal-Wert von 60 wurde überschritten!");
    EXPECT_FALSE(f.taste(taste_escape));
    EXPECT_EQ(f.text(), "60");
    f.pfeil(p.schirm, 1);
    f.pfeil(p.schirm, -1);
    EXPECT_EQ(verkettet(f.text(), " ", p.schirm.gepiept), "59 1");
    f.text_setzen("0");
    EXPECT_FALSE(f.pruefen(p.schirm));
    EXPECT_EQ(p.schirm.texte().back(), "Der zulässige Minimal-Wert von 1 wurde unterschritten!");
    f.text_setzen("");
    f.verlassen();
    EXPECT_TRUE(f.pruefen(p.schirm));
}

TEST_F(Einstellen, EinRoverZeigtUndUebernimmt)
{
    auto e = einstellungen_oeffnen(p.g, "5501001a.14o").value();
    EXPECT_EQ(verkettet(e.starttime.minimum(), " ", e.endtime.maximum(), e.epochrate.text()), "100000 113000");
    EXPECT_EQ(e.satelliten[1].Text + e.satelliten[2].Text, "R01. . . . . . ");
    EXPECT_EQ(e.ampelinfo, "Alles OK.\nZur Zeit keine Probleme identifiziert.");
    EXPECT_EQ(einstellungen_oeffnen(p.g, "5502001a.14o")->endtime.maximum(), 999999);  // past midnight
    e.elevation.text_setzen("15");
    e.starttime.text_setzen("103000");
    e.satelliten[1].Haken = false;
    e.einaus = false;
    EXPECT_EQ(einstellungen_ok(p.g, e), Fehler::keiner);
    const auto& s = p.g.ROVER_Settings[1];
    EXPECT_EQ(verkettet(s.Elevation, " ", s.StartTime, s.DelSatellite[1], s.DelSatellite[2], s.Ein_Ausschalterkennung),
              "15 0100");
    EXPECT_EQ(verkettet(p.g.baum.finden("R_Datei")->Kinder[0].Bild, p.g.berechnete_ROVER), "91");
}

TEST_F(Einstellen, AlleErhaltenJeEinenWert)
{
    EinstellungenAlle e;
    ASSERT_EQ(einstellungen_alle_oeffnen(p.g, "", e), Fehler::keiner);
    EXPECT_EQ(e.satelliten[0].Name + e.satelliten[1].Name + e.satelliten[2].Name, "G02G09R01");
    EXPECT_FALSE(e.satelliten[3].aktiv || e.emds_aktiv || e.ist_frei(Alleknopf::cmd_ende));
    e.lastminutes.text_setzen("90");
    e.firstminutes.text_setzen("61");
    e.satelliten[1].Haken = false;
    EXPECT_EQ(einstellungen_alle_uebernehmen(p.g, e, Alleknopf::cmd_ende), Fehler::keiner);
    EXPECT_EQ(einstellungen_alle_uebernehmen(p.g, e, Alleknopf::cmd_start), Fehler::gesetzt);
    EXPECT_EQ(einstellungen_alle_uebernehmen(p.g, e, Alleknopf::cmd_satellit), Fehler::keiner);
    for (const auto& s : p.g.ROVER_Settings)
        EXPECT_EQ(verkettet(s.DelLastMinutes, s.DelFirstMinutes, s.DelSatellite[1], s.DelSatellite[2], s.Elevation),
                  "900015");
    EXPECT_FALSE(einstellungen_oeffnen(p.g, "5501001a.14o")->lastminutes.pruefen(p.schirm));
}

TEST_F(Einstellen, MehrAlsSiebzigSatellitenUndKeinRover)
{
    std::vector<std::string> viele;
    for (int i = 0; i < 70; ++i) viele.push_back(verkettet("G", 900 - i));
    satelliten(1, viele);
    EinstellungenAlle e;
    ASSERT_EQ(einstellungen_alle_oeffnen(p.g, "", e), Fehler::keiner);
    EXPECT_TRUE(p.schirm.einzige().starts_with("Mehr als 70 Satelliten!"));
    EXPECT_EQ(e.satelliten[0].Name + e.satelliten[69].Name, "G831G900");
    p.g.OBS_R.leeren();
    baum_aufbauen(p.g);
    EXPECT_EQ(einstellungen_alle_oeffnen(p.g, "", e), Fehler::gesetzt);
    EXPECT_EQ(p.schirm.texte().back(), "Es sind keine zu berechnenden ROVER-Dateien im aktuellen Verfahren vorhanden!");
}

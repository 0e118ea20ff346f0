#include "auswertung/baumbefehle.h"

#include <gtest/gtest.h>

#include "auswertung/beispiel.h"
#include "planung/handarbeit.h"
#include "projekt/projektdatei_schreiben.h"

namespace jorv {
namespace {

namespace fs = std::filesystem;
using hilfen::Pruefstand;

constexpr std::string_view wartende = "ROVER-Dateien", berechnete = "Berechnete ROVER-Dateien";

TEST(NichtFertig, WasSichLoeschenLaesstGehtUndDerRestWirdGemeldet)
{
    Pruefstand p;
    OBS rover;
    rover.Dateiname = "5501167j.16o";
    ASSERT_TRUE(p.g.OBS_R.anfuegen(rover));
    const char* reste[] = {"lis_rov/5501167j.16o.LIS", "error_rov/5501167j.16o.ERR", "dat_rov/5501167j.16o.UTM"};
    for (const char* rest : reste) hilfen::schreiben(p.pfad(verkettet("jorv_out/", rest)), "x");
    baum_aufbauen(p.g);
    ASSERT_EQ(p.g.baum.finden("E_Datei")->Kinder.size(), 1u);
    (void)baum_befehl(p.g, "mnu_tree_nichtfertig", p.g.baum.finden("E_Datei")->Kinder[0].Text, berechnete);
    EXPECT_EQ(p.g.baum.finden("R_Datei")->Kinder.size(), 1u);
    EXPECT_TRUE(p.schirm.gezeigt.empty());
    for (const char* rest : reste) EXPECT_FALSE(fs::exists(p.pfad(verkettet("jorv_out/", rest)))) << rest;

    // A folder with a content stands where the file is looked for.
    for (const char* rest : reste) hilfen::schreiben(p.pfad(verkettet("jorv_out/", rest, "/belegt")), "x");
    baum_aufbauen(p.g);
    (void)baum_befehl(p.g, "mnu_tree_nichtfertig", "5501167j.16o", berechnete);
    ASSERT_EQ(p.schirm.gezeigt.size(), 3u);
    EXPECT_EQ(p.schirm.gezeigt[2].text,
              verkettet("Die Ergebnisdateidatei:\n", p.g.Arbeitsverzeichnis, "\\jorv_out\\dat_rov\\5501167j.16o.UTM\n",
                        u8"konnte nicht gelöscht werden!"_w));
}

int bild(const Global& g, std::size_t i = 0)
{
    return g.baum.finden("R_Datei")->Kinder[i].Bild;
}

TEST(Baumbefehle, AusschaltenZeigtRotUndEinschaltenDieAmpel)
{
    struct {
        const char *modus, *virt;
        std::uint8_t status;
        int an;
    } const faelle[] = {{"1", "", 1, 1}, {"2", "", 2, 2}, {"3", "virt5501092a.05o", 0, 1}, {"3", "?", 0, 3}};
    for (const auto& fall : faelle) {
        Pruefstand p(fall.modus);
        hilfen::rover_anfuegen(p.g, "5501092a.05o");
        p.g.ROVER_TOREL[1].Status = fall.status;
        if (ist_F(p.g)) p.g.ROVER_VIRT[1].VIRT_Dateiname = fall.virt;
        baum_aufbauen(p.g);
        const int fertige = p.g.berechnete_ROVER;
        for (const int erwartet : {3, fall.an}) {
            (void)baum_befehl(p.g, "mnu_tree_stop", p.g.OBS_R[1].Dateiname, wartende);
            EXPECT_EQ(bild(p.g), erwartet) << fall.modus << fall.virt;
            EXPECT_EQ(p.g.berechnete_ROVER, erwartet == 1 ? 1 : 0);
        }
        EXPECT_EQ(p.g.berechnete_ROVER, fertige);
    }
}

TEST(Baumbefehle, LoeschenGehtNachDemElternknoten)
{
    Pruefstand p;
    for (const char* rover : {"5501092a.05o", "5502092a.05o"}) {
        hilfen::rover_anfuegen(p.g, rover);
        hilfen::schreiben(p.pfad(rover), "x");
    }
    hilfen::schreiben(p.pfad("a.atx"), "x");
    ASSERT_TRUE(p.g.Antennen_Dateien.anfuegen("a.atx"));
    hilfen::schreiben(p.pfad("jorv_out/dat_rov/5502092a.05o.UTM"), "x");
    ASSERT_FALSE(ist_fehler(Verfahren_sichern(p.g)));
    baum_aufbauen(p.g);
    const std::array<std::pair<const char*, std::string_view>, 3> knoten = {
        {{"5501092a.05o", wartende}, {"5502092a.05o", berechnete}, {"a.atx", "Antennen-Dateien"}}};
    for (const auto& [name, eltern] : knoten) {
        EXPECT_EQ(baum_eltern_von(p.g.baum, {"R_Datei", "E_Datei", "A_Datei"}, name), eltern);
        // Without an answer nothing goes, nor below a node that has no such command.
        (void)baum_befehl(p.g, "mnu_tree_loeschen", name, eltern);
        (void)baum_befehl(p.g, "mnu_tree_loeschen", name, "TOREL-Dateien");
        EXPECT_TRUE(fs::exists(p.pfad(name))) << name;
        EXPECT_EQ(p.schirm.gezeigt.size(), 1u) << p.schirm.einzige();
        p.schirm.antworten = {Antwort::ja};
        EXPECT_FALSE(ist_fehler(baum_befehl(p.g, "mnu_tree_loeschen", name, eltern).fehler));
        EXPECT_FALSE(fs::exists(p.pfad(name))) << name;
        p.schirm.gezeigt.clear();
    }
    EXPECT_EQ(p.g.OBS_R.anzahl() + p.g.Antennen_Dateien.anzahl(), 0);
}

TEST(Baumbefehle, KlickUndDialogeFolgenModusUndKnoten)
{
    Pruefstand e;
    hilfen::rover_anfuegen(e.g, "5501092a.05o");
    baum_aufbauen(e.g);
    e.g.geo_fertig = false;
    EXPECT_EQ(baum_klick(e.g, "05900920.05o", "TOREL-Dateien").dialog, Baumdialog::keiner);
    EXPECT_EQ(baum_klick(e.g, "ROVER-Dateien", "").dialog, Baumdialog::keiner);
    EXPECT_FALSE(e.g.geo_fertig);
    Baumfolge folge = baum_klick(e.g, "5501092a.05o", wartende);
    EXPECT_TRUE(folge.dialog == Baumdialog::handarbeit && folge.frmhinweis && e.g.geo_fertig);
    EXPECT_FALSE(baum_klick(e.g, "5501092a.05o", berechnete).frmhinweis);
    handarbeit_hinweis_ok(e.g, false);
    EXPECT_FALSE(baum_klick(e.g, "5501092a.05o", wartende).frmhinweis);
    EXPECT_EQ(baum_befehl(e.g, "mnu_tree_settings", "5501092a.05o", wartende).dialog, Baumdialog::einstellungen);
    EXPECT_EQ(baum_befehl(e.g, "mnu_tree_warum", "5501092a.05o", wartende).dialog, Baumdialog::warum);
    EXPECT_TRUE(ist_fehler(baum_befehl(e.g, "mnu_tree_dat_editieren", "5501092a.05o", wartende).fehler));
    EXPECT_EQ(e.schirm.einzige(), utf8_aus_1252(verkettet("Es existiert noch keine Datei: ", e.g.Arbeitsverzeichnis,
                                                          "\\jorv_out\\dat_rov\\5501092a.05o.UTM")));

    e.schirm.gezeigt.clear();
    e.g.EXE_Verzeichnis = e.g.Arbeitsverzeichnis;
    EXPECT_FALSE(handbuch(e.g));
    EXPECT_EQ(e.schirm.einzige(), "Benutzerhandbuch wurde nicht gefunden!");
    hilfen::schreiben(e.pfad("JorvPlus-Handbuch.pdf"), "x");
    EXPECT_EQ(handbuch(e.g), e.g.Arbeitsverzeichnis + "\\JorvPlus-Handbuch.pdf");

    Pruefstand b("4");
    ASSERT_TRUE(b.g.BASISLINIE.anfuegen({"5502", "5502092a.05o", "5501", "5501092a.05o"}));
    for (const char* rover : {"5501092a.05o", "5502092a.05o"}) hilfen::rover_anfuegen(b.g, rover);
    b.g.R_Punkt[1].Rechtswert = 1;
    b.g.R_Punkt[2].Rechtswert = 2;
    folge = baum_klick(b.g, "5502092a.05o-5501092a.05o", "Basislinien");
    ASSERT_EQ(folge.Punkte.size(), 2u);
    EXPECT_EQ(folge.Punkte[0].Rechtswert * 10 + folge.Punkte[1].Rechtswert, 21);
    EXPECT_EQ(baum_klick(b.g, "5501092a.05o", wartende).dialog, Baumdialog::keiner);
}

}  // namespace
}  // namespace jorv

#include "modell/Menue.h"

#include <gtest/gtest.h>

#include "hilfen/Projekt.h"
#include "modell/Baum.h"
#include "modell/Kontextmenue.h"

namespace jorv {

using hilfen::Pruefstand;

namespace {

std::string angeschaltet(const Global& g)
{
    std::string text;
    for (const auto& e : menue_setzen(g))
        if (e.an && e.sichtbar) text += e.Name.substr(2) + " ";
    return text;
}

std::string kontext(const Global& g, const std::string& knoten, const std::string& eltern)
{
    std::string text;
    for (const auto& e : kontextmenue(g, knoten, eltern))
        if (e.an) text += e.Name.substr(9) + " ";
    return text;
}

constexpr std::string_view immer_vorn = "datei_neu datei_laden ", ende = "datei_ende ", editor = "grund_editor ",
                           grafik =
                               "grafik_orginal grafik_vergroessern grafik_grenzen "
                               "grafik_ablage grafik_pkz grafik_alles grafik_speichern grafik_leiste ",
                           immer_hinten = "protkoll_editieren hilfe_handbuch hilfe_neuerungen ";

void rover(Pruefstand& p)
{
    OBS obs;
    obs.Dateiname = "5501092a.05o";
    obs.Punktkennzeichen = "5501";
    ROVER_TOREL_Satz torel;
    torel.Status = 1;
    ROVER_Settings_Satz einstellung;
    einstellung.ROVER_Dateiname = obs.Dateiname;
    ASSERT_TRUE(p.g.OBS_R.anfuegen(obs) && p.g.ROVER_TOREL.anfuegen(torel) && p.g.ROVER_Settings.anfuegen(einstellung));
    baum_aufbauen(p.g);
}

}  // namespace

TEST(Menue, FolgtVerfahrenModusUndDateien)
{
    Pruefstand ohne;
    ohne.g.Verfahrensname.clear();
    ohne.g.Verfahrensmodus.clear();
    EXPECT_EQ(angeschaltet(ohne.g), std::string(immer_vorn) + "datei_importieren " + std::string(ende) +
                                        std::string(editor) + std::string(grafik) + std::string(immer_hinten));

    Pruefstand e;
    e.g.menue = {true, true, true, true};
    rover(e);
    const std::string offen = std::string(immer_vorn) +
                              "datei_sichern datei_loeschen datei_importieren datei_rinex datei_antenne " +
                              std::string(ende) + "grund_zeitfenster_1h grund_EinstellungenAlle " +
                              std::string(editor) + std::string(grafik) + "geo geo_definieren geo_loeschen ";
    EXPECT_EQ(angeschaltet(e.g), offen + std::string(immer_hinten));
    EXPECT_TRUE(e.g.Antennen_Dateien.anfuegen("a.atx"));
    hilfen::schreiben(e.pfad("001.KRZ"), "x");
    hilfen::schreiben(e.pfad("HB001.DAT"), "x");
    hilfen::schreiben(e.pfad("jorv_out/lis_rov/a.LIS"), "x");
    EXPECT_EQ(angeschaltet(e.g),
              offen + "wasoft_run_n wasoft_holbek protkoll_einsehen protkoll_kurz " + std::string(immer_hinten));
    hilfen::schreiben(e.pfad("jorv_out/dat_rov/5501092a.05o.UTM"), "x");
    baum_aufbauen(e.g);
    EXPECT_FALSE(menueeintrag(menue_setzen(e.g), "m_wasoft_run_n")->an);
    EXPECT_TRUE(menueeintrag(menue_setzen(e.g), "m_wasoft_runa")->an);
    e.g.Gesamtbatch = "J";
    e.g.vergroessert = true;
    EXPECT_TRUE(menueeintrag(menue_setzen(e.g), "m_grafik_verkleinern")->an);
    e.g.Zeitfenster_1h = "1";
    EXPECT_TRUE(menueeintrag(menue_setzen(e.g), "m_wasoft_batch")->sichtbar);
    EXPECT_TRUE(menueeintrag(menue_setzen(e.g), "m_grund_zeitfenster_1h")->Haken);

    Pruefstand b("4");
    b.g.menue = {true, true, true, true};
    EXPECT_EQ(angeschaltet(b.g), std::string(immer_vorn) +
                                     "datei_sichern datei_loeschen datei_importieren datei_rinex datei_antenne " +
                                     "datei_basis datei_basis_liste datei_basis_dialog " + std::string(ende) +
                                     "grund_EinstellungenAlle " + std::string(editor) + std::string(grafik) +
                                     "basis_erstellen basis_batch basis_run basis_esa basis_i95 basis_lovena " +
                                     std::string(immer_hinten));
    EXPECT_EQ(menueeintrag(menue_setzen(b.g), "m_protkoll_einsehen")->Text, "&Berechnungs-Protokoll aller Basislinien");
    EXPECT_FALSE(menueeintrag(menue_setzen(b.g), "m_gibt_es_nicht"));
    EXPECT_EQ(menueeintrag(menue_setzen(b.g), "m_grund_editor")->Text, "Editor \"Notepad.exe\"");
    b.g.Editor = "Z:\\opt\\lesen.exe";
    EXPECT_EQ(menueeintrag(menue_setzen(b.g), "m_grund_editor")->Text, "Editor: \"lesen.exe\"");
    EXPECT_TRUE(b.g.tage.anfuegen(92));
    EXPECT_EQ(menueeintrag(menue_setzen(b.g), "m_grafik_zeiten(1)")->Text,
              std::string(u8"Zeiten-Übersicht für Tag: 92"_w));
}

TEST(Kontextmenue, FolgtDerGruppeUndDenErgebnissen)
{
    Pruefstand e;
    rover(e);
    const std::string name = "5501092a.05o";
    EXPECT_EQ(kontext(e.g, "ROVER-Dateien", ""), "");
    EXPECT_EQ(kontext(e.g, name, "ROVER-Dateien"), "settings stop editieren loeschen warum ");
    EXPECT_EQ(kontext(e.g, "05900920.05o", "TOREL-Dateien"), "settings stop editieren ");
    EXPECT_EQ(kontext(e.g, "a.atx", "Antennen-Dateien"), "settings stop editieren loeschen ");
    hilfen::schreiben(e.pfad("jorv_out/lis_rov/" + name + ".LIS"), "x");
    hilfen::schreiben(e.pfad("jorv_out/prot_vrs/5501092a.vrt"), "x");
    EXPECT_EQ(kontext(e.g, name, "Berechnete ROVER-Dateien"),
              "settings stop nichtfertig editieren lis_editieren vrs_report_editieren loeschen warum ");

    Pruefstand b("4");
    EXPECT_TRUE(b.g.BASISLINIE.anfuegen({"5501", name, "5502", "5502092a.05o"}));
    hilfen::schreiben(b.pfad("jorv_out/dat_bas/5501092a-5502092a.BAL"), "x");
    hilfen::schreiben(b.pfad("jorv_out/prot_bas/5501092a-5502092a.prt"), "x");
    const std::string linie = name + "-5502092a.05o";
    EXPECT_EQ(kontext(b.g, linie, "Basislinien"), "loeschen ");
    EXPECT_EQ(kontext(b.g, linie, "Berechnete Basislinien"), "dat_editieren rover_report_editieren loeschen ");
    const auto menue = kontextmenue(b.g, linie, "Berechnete Basislinien");
    EXPECT_EQ(menue.at(menue.size() - 2).Text, std::string(u8"Basislinie &löschen"_w));
    EXPECT_EQ(kontext(b.g, name, "ROVER-Dateien"), "settings editieren loeschen ");
}

}  // namespace jorv

#include "konsole/zeigen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <regex>

#include "hilfen/Projekt.h"
#include "modell/Baum.h"
#include "planung/begruendung.h"

namespace jorv {
namespace {

using ::testing::HasSubstr;
using Json = nlohmann::json;

// A project with one rover, one station, one figure.
struct Beispiel : hilfen::Pruefstand {
    Beispiel()
    {
        OBS rover;
        rover.Dateiname = "5501167j.16o";
        rover.Punktkennzeichen = "5501";
        rover.Tag = 167;
        rover.Startzeit_Jahr = rover.Endzeit_Jahr = 2016;
        rover.Startzeit_Monat = rover.Endzeit_Monat = 6;
        rover.Startzeit_Tag = rover.Endzeit_Tag = 15;
        rover.Startzeit_Stunde = 9;
        rover.Endzeit_Stunde = 12;
        rover.Antenne = u8"R7-00412            JORFELD7 Höhe"_w;
        (void)g.OBS_R.anfuegen(rover);
        (void)g.R_Punkt.anfuegen({"5501", 525700.125, 5771000.25, 3900000.1, 640000.2, 5000000.3});
        ROVER_TOREL_Satz urteil;
        urteil.ROVER_Dateiname = rover.Dateiname;
        urteil.Anzahl = 1;
        urteil.TOREL_Dateiname[0] = "0590167h.16o";
        urteil.Status = 2;
        urteil.Grund = 2;
        (void)g.ROVER_TOREL.anfuegen(urteil);
        ROVER_Settings_Satz einstellung;
        einstellung.ROVER_Dateiname = rover.Dateiname;
        einstellung.AnzahlDelSatellite = 2;
        einstellung.DelSatellite = {0, 1, 0};
        einstellung.DelSatelliteName = {"", "G02", "G05"};
        (void)g.ROVER_Settings.anfuegen(einstellung);
        rover.Dateiname = "0590167h.16o";
        rover.Punktkennzeichen = "0590";
        (void)g.OBS_S.anfuegen(rover);
        (void)g.S_Punkt.anfuegen({"0590", 513800, 5761000, 1, 2, 3});
        GEO_Punkt_Satz figur;
        figur.Anzahl = 3;
        figur.Punkt = {"0590", "0591", "0593"};
        (void)g.GEO_Punkt.anfuegen(figur);
        Begruendung b;
        b.Figur = 1;
        b.Ecken = 3;
        b.Dateien = {{"0590167h.16o", "0590", true, 0, 0, 0, 0, 0, 0},
                     {"0591167k.16o", "0591", false, 12, 0, 720, 0, 0, 0}};
        b.Schritte = {Pruefung::zu_wenig};
        b.Minuten_ROVER = 180;
        g.Begruendungen = {b};
        (void)g.tage.anfuegen(167);
        baum_aufbauen(g);
    }
};

// The members that the state's header declares, the tables of the menus and the kept scan apart.
std::vector<std::string> glieder_des_zustands()
{
    std::string text = hilfen::lesen(hilfen::fs::path(JORV_QUELLEN) / "src/modell/Global.h");
    text = text.substr(text.find("    Feld<OBS>"), text.find("    bool Verfahren_offen") - text.find("    Feld<OBS>"));
    for (const char* weg : {"//[^\n]*", "\"[^\"]*\"", "struct \\{[^}]*\\} menue;", "\\{[^{}]*\\}", "<[^<>]*>",
                            "<[^<>]*>", "=[^,;]*", "Baum baum;", "std::shared_ptr[^;]*;", "\\w+ abtastung;"})
        text = std::regex_replace(text, std::regex(weg), "");
    const std::regex name("(\\w+)\\s*[,;]");
    std::vector<std::string> namen;
    for (std::sregex_iterator i(text.begin(), text.end(), name), ende; i != ende; ++i) namen.push_back((*i)[1]);
    return namen;
}

TEST(ZeigenJson, JedesFeldUnterSeinemNamen)
{
    Beispiel p;
    p.g.KNOTEN[1] = "0";
    const Json j = Json::parse(verfahren_json(p.g, std::nullopt));
    const auto namen = glieder_des_zustands();
    EXPECT_GT(namen.size(), 60u);
    for (const auto& name : namen) EXPECT_TRUE(j.contains(name)) << name;
    for (const char* name : {"OBS_R", "BASISLINIE", "Verfahren", "Lnd", "Baum", "Tem_Stationen"})
        EXPECT_TRUE(j[name].is_array()) << name;
    EXPECT_EQ(j["Menue"]["m_wasoft_run_n"]["an"], false);
    EXPECT_EQ(j["Menue"]["m_datei_neu"]["Text"], "&Neues Verfahren...");
    EXPECT_EQ(j["Verfahrensname"], "Muster");
    EXPECT_EQ(j["OBS_R"][0]["Tag"], 167);
    EXPECT_EQ(j["OBS_R"][0]["Antenne"], "R7-00412            JORFELD7 Höhe");
    EXPECT_EQ(j["R_Punkt"][0]["Rechtswert"], 525700.125);
    EXPECT_EQ(j["ROVER_TOREL"][0]["TOREL-Dateiname"], Json({"0590167h.16o", "", "", ""}));
    EXPECT_EQ(j["ROVER_TOREL"][0]["Schutz"], false);
    EXPECT_EQ(j["ROVER_Settings"][0]["Ein-/Ausschalterkennung"], 1);
    EXPECT_EQ(j["ROVER_Settings"][0]["DelSatelliteName"], Json({"G02", "G05"}));
    EXPECT_EQ(j["ROVER_Settings"][0]["DelSatellite"], Json({1, 0}));
    EXPECT_EQ(j["GEO_Punkt"][0]["Punkt"], Json({"0590", "0591", "0593"}));
    EXPECT_EQ(j["tage"], Json({167}));
    EXPECT_EQ(j["KNOTEN"], Json({"0", "1", "1", "1", "1", "1", "1"}));
    EXPECT_EQ(j["geo_fertig"], -1);
    EXPECT_EQ(j["Baum"][0]["Schluessel"], "R_Datei");
    EXPECT_EQ(j["Baum"][0]["Kinder"][0], Json({{"Text", "5501167j.16o"}, {"Bild", 2}}));
}

TEST(ZeigenJson, EinTeilHatNurSeineFelder)
{
    const Beispiel p;
    const Json j = Json::parse(verfahren_json(p.g, Teil::figuren));
    EXPECT_EQ(j.size(), 1u);
    EXPECT_TRUE(j.contains("GEO_Punkt"));
}

TEST(ZeigenJson, UnbenutztesZeichenDerKodierungBleibtLesbar)
{
    Beispiel p;
    p.g.OBS_R[1].Antenne = "\x81\x8d \x01\"\\";
    EXPECT_TRUE(Json::accept(verfahren_json(p.g, Teil::rover)));
}

TEST(ZeigenText, RoverMitAmpelZuordnungUndGrund)
{
    const Beispiel p;
    const std::string text = utf8_aus_1252(verfahren_text(p.g));
    for (const char* stueck : {"Muster (001)", "5501167j.16o  gelb   15.06.2016 09:00:00 - 12:00:00",
                               "0590167h.16o  Zu wenig", "1: 0590 0591 0593"})
        EXPECT_THAT(text, HasSubstr(stueck));
}

TEST(ZeigenText, FremdeStationenUndWarumEineNichtReicht)
{
    Beispiel p;
    p.g.Verfahrensmodus = "3";
    (void)p.g.ROVER_VIRT.anfuegen({"5501167j.16o", "?", 0, 0});
    Begruendung b;
    b.Dateien = {{"virt5501167j.16o", "virt", false, 0, 0, 0, 0, 20, 0}};
    b.Schritte = {Pruefung::keine_fremde};
    p.g.Begruendungen = {b};
    const std::string_view grund = "keine fremde Referenzstation deckt den ROVER mit einer Stunde ab";
    const std::string warum = utf8_aus_1252(begruendung_text(p.g, 1));
    EXPECT_THAT(warum, HasSubstr(verkettet("5501167j.16o: rot, ", grund)));
    EXPECT_THAT(warum, HasSubstr("nicht genommen, Strecke 0 m, 20 min lang (kürzer als 60 min)"));
    EXPECT_THAT(teil_text(p.g, Teil::rover), HasSubstr(grund));
    p.g.ROVER_VIRT[1] = {"5501167j.16o", "virt5501167j.16o", 1, 0};
    EXPECT_THAT(utf8_aus_1252(teil_text(p.g, Teil::rover)), HasSubstr("grün"));
    p.g.ROVER_Settings[1].Ein_Ausschalterkennung = 0;
    EXPECT_THAT(teil_text(p.g, Teil::rover), testing::AllOf(HasSubstr("  -  "), HasSubstr("aus")));
}

TEST(ZeigenText, BegruendungNenntFigurDateienUndPruefung)
{
    const Beispiel p;
    const std::string text = utf8_aus_1252(begruendung_text(p.g, 1));
    for (const char* stueck :
         {"5501167j.16o: gelb, Zu wenig TOREL-Punkte", "Figur 1: 0590 0591 0593", "0590167h.16o  genommen",
          "0591167k.16o  nicht genommen, beginnt zu spät um 12 min", "weniger Dateien als Ecken der Figur", "180 min"})
        EXPECT_THAT(text, HasSubstr(stueck));
    const Json json = Json::parse(begruendung_json(p.g, 1));
    EXPECT_EQ(json["Dateien"][1]["Minuten_vorher"], 12);
    EXPECT_THAT(text, HasSubstr("\n  Weg zu Grün: " + json["Weg"]["Text"].get<std::string>() + "\n"));
}

TEST(Grundtext, GruenIstImmerOhneProblem)
{
    EXPECT_EQ(grund_text(1, 5), "Alles OK. Zur Zeit keine Probleme identifiziert.");
    EXPECT_THAT(grund_text(3, 0), HasSubstr("Unspezifizierter Grund."));
    EXPECT_THAT(grund_text(3, 77), HasSubstr("Unspezifizierter Grund."));
    EXPECT_EQ(grund_text(3, 5), "Weniger als 1h Beobachtungsmaterial der TOREL-Stationen vorhanden");
}

TEST(ZeigenTeile, UnbekannteWorteSindKeinTeil)
{
    EXPECT_EQ(teil_aus_wort("rover"), Teil::rover);
    EXPECT_FALSE(teil_aus_wort("Rover "));
}

}  // namespace
}  // namespace jorv

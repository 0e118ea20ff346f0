#include "konsole/ergebnisse.h"

#include <nlohmann/json.hpp>

#include "auswertung/basisergebnis.h"
#include "auswertung/ergebniszeile.h"
#include "konsole/Tabelle.h"
#include "modell/Gemeinsam.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

using Json = nlohmann::ordered_json;

std::string basis_text(const Global& g)
{
    Tabelle tabelle(
        {"Basislinie", std::string(u8"Lösung"_w), "dX", "dY", "dZ", "Strecke", "sX [mm]", "sY [mm]", "sZ [mm]"});
    for (const auto& b : g.BASISLINIE) {
        const std::string name = verkettet(b.Datei_von, "-", b.Datei_nach);
        const auto e = basisergebnis_lesen(g, b);
        if (e)
            tabelle.zeile({name, e->Loesung, fest(e->d[0], 4), fest(e->d[1], 4), fest(e->d[2], 4), fest(e->Strecke, 4),
                           fest(e->s[0], 2), fest(e->s[1], 2), fest(e->s[2], 2)});
        else
            tabelle.zeile({name, std::string(u8"keine Lösung"_w)});
    }
    return tabelle.text("");
}

Json basis_json(const Global& g)
{
    Json liste = Json::array();
    for (const auto& b : g.BASISLINIE) {
        Json eintrag = {{"Datei_von", utf8_aus_1252(b.Datei_von)}, {"Datei_nach", utf8_aus_1252(b.Datei_nach)}};
        if (const auto e = basisergebnis_lesen(g, b))
            eintrag.update(Json{{"Loesung", e->Loesung},
                                {"d", e->d},
                                {"Strecke", e->Strecke},
                                {"s", e->s},
                                {"r", e->r},
                                {"Sigma", e->Sigma},
                                {"Ambiguitaeten", e->Ambiguitaeten}});
        liste.push_back(std::move(eintrag));
    }
    return liste;
}

Json rover_json(const Global& g)
{
    Json liste = Json::array();
    for (const auto& rover : g.OBS_R) {
        Json eintrag = {{"ROVER-Dateiname", utf8_aus_1252(rover.Dateiname)}};
        if (const auto e = ergebnis_lesen(g.dateien, g.Arbeitsverzeichnis, rover.Dateiname))
            eintrag.update(Json{{"Loesung", utf8_aus_1252(e->Loesung)},
                                {"Rechtswert", e->Rechtswert},
                                {"Hochwert", e->Hochwert},
                                {"Hoehe", e->Hoehe},
                                {"Minuten", e->Minuten},
                                {"sE", e->sE},
                                {"sN", e->sN},
                                {"sH", e->sH},
                                {"Ambiguitaeten", e->Ambiguitaeten}});
        liste.push_back(std::move(eintrag));
    }
    return liste;
}

}  // namespace

std::string ergebnisse_text(const Global& g)
{
    if (ist_B(g)) return basis_text(g);
    Tabelle tabelle({"ROVER-Datei", std::string(u8"Lösung"_w), "Rechtswert", "Hochwert", std::string(u8"Höhe"_w),
                     "sE [mm]", "sN [mm]", "sH [mm]"});
    for (const auto& rover : g.OBS_R) {
        const auto e = ergebnis_lesen(g.dateien, g.Arbeitsverzeichnis, rover.Dateiname);
        if (e)
            tabelle.zeile({rover.Dateiname, e->Loesung, fest(e->Rechtswert, 4), fest(e->Hochwert, 4), fest(e->Hoehe, 4),
                           fest(e->sE, 1), fest(e->sN, 1), fest(e->sH, 1)});
        else
            tabelle.zeile({rover.Dateiname, std::string(u8"keine Lösung"_w)});
    }
    return tabelle.text("");
}

std::string ergebnisse_json(const Global& g)
{
    return Json{{"Ergebnisse", ist_B(g) ? basis_json(g) : rover_json(g)}}.dump(2, ' ', false,
                                                                               Json::error_handler_t::replace) +
           "\n";
}

}  // namespace jorv

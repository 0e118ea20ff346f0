#include "konsole/ergebnisse.h"

#include <nlohmann/json.hpp>

#include "konsole/Ergebnis.h"
#include "konsole/Tabelle.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

std::string ergebnisse_text(const Global& g)
{
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
    using Json = nlohmann::ordered_json;
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
    return Json{{"Ergebnisse", liste}}.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace jorv

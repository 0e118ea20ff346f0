#include "auswertung/export.h"

#include <nlohmann/json.hpp>
#include <utility>

#include "auswertung/export_objekte.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

using Json = nlohmann::ordered_json;

constexpr std::pair<std::string_view, Exportformat> formate[] = {
    {"geojson", Exportformat::geojson}, {"csv", Exportformat::csv}, {"kml", Exportformat::kml}};

// The corners of an outline: a ring ends where it began.
std::vector<Objektort> zug(const Objekt& objekt)
{
    auto orte = objekt.orte;
    if (objekt.form == Objektform::flaeche) orte.push_back(objekt.orte.front());
    return orte;
}

struct Formworte {
    const char *json, *wkt, *auf, *zu;  // the last two: brackets of the coordinates in WKT
};

Formworte formworte(Objektform form)
{
    switch (form) {
        case Objektform::punkt:
            return {"Point", "POINT", "(", ")"};
        case Objektform::linie:
            return {"LineString", "LINESTRING", "(", ")"};
        case Objektform::flaeche:
            break;
    }
    return {"Polygon", "POLYGON", "((", "))"};
}

std::string wkt(const Objekt& objekt, bool geographisch)
{
    const Formworte worte = formworte(objekt.form);
    std::string text = verkettet(worte.wkt, " ", worte.auf);
    bool weiterer = false;
    for (const auto& ort : zug(objekt)) {
        text += std::exchange(weiterer, true) ? ", " : "";
        text += geographisch ? verkettet(fest(ort.geographisch.laenge, 9), " ", fest(ort.geographisch.breite, 9))
                             : verkettet(fest(ort.Rechtswert, 4), " ", fest(ort.Hochwert, 4));
    }
    return text + worte.zu;
}

std::string verbunden(const std::vector<std::string>& texte)
{
    std::string text;
    for (const auto& t : texte) text += verkettet(text.empty() ? "" : " ", t);
    return text;
}

// A number with no more digits than are printed.
double gerundet(double wert, int stellen)
{
    return zahl_lesen(fest(wert, stellen));
}

Json json_ort(const Objektort& ort)
{
    Json werte = {gerundet(ort.geographisch.laenge, 9), gerundet(ort.geographisch.breite, 9)};
    if (ort.mit_hoehe) werte.push_back(gerundet(ort.geographisch.hoehe, 4));
    return werte;
}

Json json_geometrie(const Objekt& objekt)
{
    Json orte = Json::array();
    for (const auto& ort : zug(objekt)) orte.push_back(json_ort(ort));
    if (objekt.form == Objektform::punkt) orte = Json(orte[0]);
    if (objekt.form == Objektform::flaeche) orte = Json::array({orte});
    return Json{{"type", formworte(objekt.form).json}, {"coordinates", std::move(orte)}};
}

Json json_wert(const Objektwert& wert)
{
    if (wert.art == Wertart::zahl) return zahl_lesen(wert.texte.front());
    if (wert.art == Wertart::text) return utf8_aus_1252(wert.texte.front());
    Json liste = Json::array();
    for (const auto& text : wert.texte) liste.push_back(utf8_aus_1252(text));
    return liste;
}

std::string geojson(const std::vector<Objekt>& objekte)
{
    std::string text = "{\"type\":\"FeatureCollection\",\"features\":[";
    bool weiteres = false;
    for (const auto& objekt : objekte) {
        Json werte = {{"Art", std::string(objekt.art)}, {"Name", utf8_aus_1252(objekt.name)}};
        for (const auto& wert : objekt.werte) werte[std::string(wert.name)] = json_wert(wert);
        werte["UTM32"] = wkt(objekt, false);
        const Json feature = {{"type", "Feature"}, {"geometry", json_geometrie(objekt)}, {"properties", werte}};
        text += verkettet(std::exchange(weiteres, true) ? ",\n" : "\n",
                          feature.dump(-1, ' ', false, Json::error_handler_t::replace));
    }
    return text + "\n]}\n";
}

std::string csv_feld(std::string_view text)
{
    if (text.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(text);
    return verkettet('"', ersetzt(text, "\"", "\"\""), '"');
}

std::string csv(const std::vector<Objekt>& objekte)
{
    std::string text = "Art,Name";
    for (const auto spalte : objektspalten) text += verkettet(",", spalte);
    text += ",UTM32,WKT\r\n";
    for (const auto& objekt : objekte) {
        text += verkettet(objekt.art, ",", csv_feld(objekt.name));
        for (const auto spalte : objektspalten) {
            text += ',';
            for (const auto& wert : objekt.werte)
                if (wert.name == spalte) text += csv_feld(verbunden(wert.texte));
        }
        text += verkettet(",", csv_feld(wkt(objekt, false)), ",", csv_feld(wkt(objekt, true)), "\r\n");
    }
    return utf8_aus_1252(text);
}

std::string xml(std::string_view text)
{
    return ersetzt(ersetzt(ersetzt(text, "&", "&amp;"), "<", "&lt;"), "\"", "&quot;");
}

std::string kml_geometrie(const Objekt& objekt)
{
    std::string orte;
    for (const auto& ort : zug(objekt)) {
        orte +=
            verkettet(orte.empty() ? "" : " ", fest(ort.geographisch.laenge, 9), ",", fest(ort.geographisch.breite, 9));
        if (ort.mit_hoehe) orte += verkettet(",", fest(ort.geographisch.hoehe, 4));
    }
    const std::string koordinaten = verkettet("<coordinates>", orte, "</coordinates>");
    if (objekt.form == Objektform::flaeche)
        return verkettet("<Polygon><outerBoundaryIs><LinearRing>", koordinaten,
                         "</LinearRing></outerBoundaryIs></Polygon>");
    const std::string_view form = formworte(objekt.form).json;
    return verkettet("<", form, ">", koordinaten, "</", form, ">");
}

std::string kml_objekt(const Objekt& objekt)
{
    std::string text = verkettet("<Placemark><name>", xml(objekt.name), "</name><ExtendedData>");
    const auto wert = [&](std::string_view name, std::string_view inhalt) {
        text += verkettet("<Data name=\"", name, "\"><value>", xml(inhalt), "</value></Data>");
    };
    for (const auto& w : objekt.werte) wert(w.name, verbunden(w.texte));
    wert("UTM32", wkt(objekt, false));
    return verkettet(text, "</ExtendedData>", kml_geometrie(objekt), "</Placemark>\n");
}

std::string kml(const Global& g, const std::vector<Objekt>& objekte)
{
    std::string text = verkettet(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<kml xmlns=\"http://www.opengis.net/kml/2.2\">\n<Document><name>",
        xml(g.Verfahrensname), "</name>\n");
    std::string_view ordner;
    for (const auto& objekt : objekte) {
        if (objekt.art != ordner)
            text += verkettet(ordner.empty() ? "" : "</Folder>\n", "<Folder><name>", objekt.art, "</name>\n");
        ordner = objekt.art;
        text += kml_objekt(objekt);
    }
    return utf8_aus_1252(verkettet(text, ordner.empty() ? "" : "</Folder>\n", "</Document>\n</kml>\n"));
}

}  // namespace

std::optional<Exportformat> exportformat(std::string_view wort)
{
    for (const auto& [name, format] : formate)
        if (gleich_ohne_gross(name, wort)) return format;
    return std::nullopt;
}

std::string exporttext(const Global& g, Exportformat format)
{
    const auto objekte = exportobjekte(g);
    if (format == Exportformat::csv) return csv(objekte);
    return format == Exportformat::kml ? kml(g, objekte) : geojson(objekte);
}

Fehler export_schreiben(Global& g, Exportformat format, std::string_view datei)
{
    if (!g.dateien.schreiben(datei, exporttext(g, format))) return Fehler::keiner;
    stop_melden(g, datei_meldung("Die Exportdatei:", datei, u8"konnte nicht angelegt/überschrieben werden!"_w));
    return Fehler::gesetzt;
}

}  // namespace jorv

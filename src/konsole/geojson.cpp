#include "konsole/geojson.h"

#include <cmath>
#include <nlohmann/json.hpp>

#include "geo/koordtrans.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

using Json = nlohmann::json;

constexpr std::int32_t system_nummer = 1, zone = 32, projektion = 3;
constexpr int geschlossen = 0, fortsetzung = 1, offen = 2;

class Grenzschreiber {
public:
    // Any GeoJSON object: walks down to its geometries.
    bool objekt(const Json& o)
    {
        if (!o.is_object()) return o.is_null();
        for (const char* liste : {"features", "geometries"})
            if (const auto teile = o.find(liste); teile != o.end()) return alle(*teile, &Grenzschreiber::objekt);
        if (const auto teil = o.find("geometry"); teil != o.end()) return objekt(*teil);
        const auto art = o.find("type"), werte = o.find("coordinates");
        if (art == o.end() || !art->is_string() || werte == o.end()) return false;
        const std::string name = art->get<std::string>();
        if (name == "LineString") return linie(*werte);
        if (name == "MultiLineString") return alle(*werte, &Grenzschreiber::linie);
        if (name == "Polygon") return polygon(*werte);
        if (name == "MultiPolygon") return alle(*werte, &Grenzschreiber::polygon);
        return name == "Point" || name == "MultiPoint";
    }
    const std::string& text() const { return m_text; }

private:
    bool alle(const Json& liste, bool (Grenzschreiber::*teil)(const Json&))
    {
        if (!liste.is_array()) return false;
        for (const auto& wert : liste)
            if (!(this->*teil)(wert)) return false;
        return true;
    }
    bool polygon(const Json& ringe) { return alle(ringe, &Grenzschreiber::ring); }
    bool linie(const Json& punkte) { return zug(punkte, offen, punkte.size()); }
    // The last point of a ring repeats the first; the map closes the line itself.
    bool ring(const Json& punkte) { return zug(punkte, geschlossen, punkte.empty() ? 0 : punkte.size() - 1); }

    bool zug(const Json& punkte, int anfang, std::size_t anzahl)
    {
        if (!punkte.is_array()) return false;
        for (std::size_t i = 0; i < anzahl; ++i)
            if (!punkt(punkte[i], i == 0 ? anfang : fortsetzung)) return false;
        return true;
    }

    bool punkt(const Json& p, int typ)
    {
        if (!p.is_array() || p.size() < 2 || !p[0].is_number() || !p[1].is_number()) return false;
        const double laenge = p[0].get<double>(), breite = p[1].get<double>();
        if (std::abs(laenge) > 180 || std::abs(breite) >= 90) return false;
        double rechts = 0, hoch = 0;
        std::int32_t status = 0;
        GEGGKO(system_nummer, breite, laenge, zone, rechts, hoch, projektion, status);
        if (status != 0) return false;
        m_text += verkettet(typ, " ", fest(rechts, 1), " ", fest(hoch, 1), "\n");
        return true;
    }

    std::string m_text;
};

}  // namespace

std::optional<std::string> grenzen_aus_geojson(std::string_view text)
{
    const Json json = Json::parse(text, nullptr, false);
    Grenzschreiber schreiber;
    if (json.is_discarded() || !json.is_object() || !schreiber.objekt(json) || schreiber.text().empty())
        return std::nullopt;
    return schreiber.text();
}

}  // namespace jorv

#include "konsole/geojson.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "plattform/text.h"

namespace jorv {
namespace {

TEST(Geojson, LinienUndRingeWerdenGrenzlinien)
{
    // On the central meridian the easting is 500 000 m everywhere.
    const auto text = grenzen_aus_geojson(
        R"({"type":"FeatureCollection","features":[
            {"type":"Feature","properties":{},"geometry":{"type":"LineString","coordinates":[[9,52],[9,53,17]]}},
            {"type":"Feature","geometry":{"type":"Point","coordinates":[9,52]}},
            {"type":"Feature","geometry":null},
            {"type":"Feature","geometry":{"type":"GeometryCollection","geometries":[
              {"type":"MultiPolygon","coordinates":[[[[9,50],[9,51],[9,50.5],[9,50]]]]}]}}]})");
    ASSERT_TRUE(text);
    std::vector<std::string> typen;
    Zeilenleser leser(*text);
    while (const auto zeile = leser.naechste()) typen.emplace_back(zeile->substr(0, zeile->rfind(' ')));
    EXPECT_EQ(typen, (std::vector<std::string>{"2 500000.0", "1 500000.0", "0 500000.0", "1 500000.0", "1 500000.0"}));
}

TEST(Geojson, WasKeineGrenzenSindWirdAbgelehnt)
{
    for (const std::string_view text :
         {"", "{", "[]", "{}", R"({"type":"Point","coordinates":[9,52]})",
          R"({"type":"LineString","coordinates":[[9]]})", R"({"type":"LineString","coordinates":[["9","52"]]})",
          R"({"type":"LineString","coordinates":[[520000,5790000]]})", R"({"type":"Polygon","coordinates":{"a":1}})",
          R"({"features":7})"})
        EXPECT_FALSE(grenzen_aus_geojson(text)) << text;
}

}  // namespace
}  // namespace jorv

// The export in its three formats. GeoJSON is held against the rules of RFC 7946.
#include "auswertung/export.h"

#include <gtest/gtest.h>

#include <cmath>
#include <nlohmann/json.hpp>

#include "beispiel.h"
#include "plattform/zahl.h"

using namespace jorv;
using namespace jorv::hilfen;
using Json = nlohmann::json;

namespace {

// Geocentric place of a latitude and longitude on GRS80, height 100 m.
Punkt punkt(const std::string& name, double breite, double laenge)
{
    constexpr double a = 6378137, f = 1 / 298.257222101, e2 = f * (2 - f), hoehe = 100,
                     grad = 3.14159265358979323846 / 180;
    const double b = breite * grad, l = laenge * grad, n = a / std::sqrt(1 - e2 * std::sin(b) * std::sin(b));
    Punkt p;
    p.Punktkennzeichen = name;
    p.X = (n + hoehe) * std::cos(b) * std::cos(l);
    p.Y = (n + hoehe) * std::cos(b) * std::sin(l);
    p.Z = (n * (1 - e2) + hoehe) * std::sin(b);
    return p;
}

std::string utm_zeile(double rechts)
{
    return "5501 " + zahl_format(rechts, "##########0.0000").substr(1) +
           "   5761038.2125     100.0000 092 a    59.5    1.10   1.20   2.70 FixedL1    100.0\r\n";
}

GEO_Punkt_Satz figur(std::initializer_list<std::pair<double, double>> ecken)
{
    GEO_Punkt_Satz satz;
    for (const auto& [rechts, hoch] : ecken) {
        const auto i = static_cast<std::size_t>(satz.Anzahl++);
        satz.Punkt[i] = "059" + std::to_string(i);
        satz.Rechtswert[i] = rechts, satz.Hochwert[i] = hoch;
    }
    return satz;
}

// A computed rover, one that is none, three stations of which one has two files, a figure clicked either way round.
struct Exportstand : Beispiel {
    explicit Exportstand(std::string_view modus = "1") : Beispiel({"5501092a.05o", "5502092a.05o"}, modus)
    {
        g.Verfahrensname = t1252("Süd & \"West\" <3>");
        g.Verfahren[1].Name = g.Verfahrensname;
        g.R_Punkt[1] = punkt("5501", 52, 9), g.R_Punkt[2] = punkt("5502", 52.1, 8.5);
        for (int i = 1; i <= 4; ++i) g.S_Punkt[i] = punkt(g.OBS_S[i].Punktkennzeichen, 51.5 + 0.3 * i, 8 + 0.4 * i);
        g.S_Punkt[4] = g.S_Punkt[3];
        (void)g.GEO_Punkt.anfuegen(figur({{4e5, 5.7e6}, {4e5, 5.8e6}, {6e5, 5.8e6}}));
        (void)g.GEO_Punkt.anfuegen(figur({{4e5, 5.7e6}, {6e5, 5.7e6}, {6e5, 5.8e6}, {4e5, 5.8e6}}));
        (void)g.GEO_Punkt.anfuegen(figur({{4e5, 5.7e6}, {6e5, 5.8e6}, {6e5, 5.7e6}, {4e5, 5.8e6}}));  // crosswise
        (void)g.GEO_Punkt.anfuegen(figur({{4e5, 5.7e6}}));
        legen("jorv_out\\dat_rov\\5501092a.05o.UTM", utm_zeile(500000));
    }
    Json geojson() const { return Json::parse(exporttext(g, Exportformat::geojson)); }
};

void position_pruefen(const Json& p)
{
    ASSERT_TRUE(p.is_array() && (p.size() == 2 || p.size() == 3)) << p;
    for (const auto& zahl : p) ASSERT_TRUE(zahl.is_number()) << p;
    EXPECT_LE(std::abs(p[0].get<double>()), 180) << p;
    EXPECT_LE(std::abs(p[1].get<double>()), 90) << p;
}

void geometrie_pruefen(const Json& geometrie)
{
    const std::string art = geometrie.at("type");
    const Json& orte = geometrie.at("coordinates");
    EXPECT_EQ(geometrie.size(), 2u);
    if (art == "Point") return position_pruefen(orte);
    if (art == "LineString") {
        EXPECT_GE(orte.size(), 2u);
        for (const auto& ort : orte) position_pruefen(ort);
        return;
    }
    ASSERT_EQ(art, "Polygon");
    for (const auto& ring : orte) {
        ASSERT_GE(ring.size(), 4u);
        EXPECT_EQ(ring.front(), ring.back());
        double flaeche = 0;
        for (std::size_t i = 0; i + 1 < ring.size(); ++i) {
            position_pruefen(ring[i]);
            flaeche += ring[i][0].get<double>() * ring[i + 1][1].get<double>() -
                       ring[i + 1][0].get<double>() * ring[i][1].get<double>();
        }
        EXPECT_GT(flaeche, 0) << ring;  // the outer ring runs counter-clockwise
    }
}

void sammlung_pruefen(const Json& sammlung)
{
    EXPECT_EQ(sammlung.at("type"), "FeatureCollection");
    EXPECT_EQ(sammlung.dump().find("\"crs\""), std::string::npos);
    ASSERT_TRUE(sammlung.at("features").is_array());
    for (const auto& stueck : sammlung["features"]) {
        EXPECT_EQ(stueck.at("type"), "Feature");
        EXPECT_TRUE(stueck.at("properties").is_object());
        geometrie_pruefen(stueck.at("geometry"));
    }
}

// The feature of that kind and name.
Json stueck(const Json& sammlung, const std::string& art, const std::string& name)
{
    for (const auto& s : sammlung["features"])
        if (s["properties"]["Art"] == art && s["properties"]["Name"] == name) return s;
    ADD_FAILURE() << art << " " << name << " is missing";
    return {};
}

int anzahl(const Json& sammlung, const std::string& art)
{
    int n = 0;
    for (const auto& s : sammlung["features"]) n += s["properties"]["Art"] == art ? 1 : 0;
    return n;
}

TEST(Export, geojson_haelt_sich_an_rfc_7946_und_nennt_was_bekannt_ist)
{
    const Exportstand e;
    const Json sammlung = e.geojson();
    sammlung_pruefen(sammlung);
    for (const auto& [art, soll] : {std::pair{"Figur", 4}, {"TOREL", 3}, {"ROVER", 2}, {"Verbindung", 6}})
        EXPECT_EQ(anzahl(sammlung, art), soll) << art;
    EXPECT_NE(sammlung["features"][2].dump().find(", 500000.0000 5750000.0000"), std::string::npos);
    const Json rover = stueck(sammlung, "ROVER", "5501"), werte = rover["properties"];
    EXPECT_EQ(rover["geometry"]["coordinates"][0], 9.0);
    EXPECT_NEAR(rover["geometry"]["coordinates"][1], 52, 1e-7);
    EXPECT_EQ(rover["geometry"]["coordinates"][2], 100.0);
    EXPECT_EQ(werte["Loesung"], "FixedL1");
    EXPECT_EQ(werte["sH"], 2.7);
    EXPECT_EQ(werte["Rechtswert"], 500000.0);
    EXPECT_EQ(werte["Hochwert"], 5761038.2125);
    EXPECT_EQ(werte["Stationen"], Json({"0590092a.05o", "0591092a.05o", "0593092a.05o"}));
    const Json offen = stueck(sammlung, "ROVER", "5502");
    EXPECT_EQ(offen["properties"]["Loesung"], "keine");
    EXPECT_FALSE(offen["properties"].contains("sH"));
    EXPECT_NEAR(offen["geometry"]["coordinates"][0], 8.5, 1e-9);
    EXPECT_NEAR(offen["geometry"]["coordinates"][1], 52.1, 1e-9);
    EXPECT_EQ(stueck(sammlung, "Verbindung", "5501092a.05o-0591092a.05o")["geometry"]["coordinates"][0],
              rover["geometry"]["coordinates"]);
}

TEST(Export, findet_die_zone_eines_ergebnisses_am_kopf_seiner_datei)
{
    for (const auto& [einstellung, laenge] : {std::pair{"?", 9.0}, {"32", 9.0}, {"33", 15.0}}) {
        Exportstand e;
        e.g.UTM_Zone = einstellung;
        e.g.R_Punkt[1] = punkt("5501", 52, laenge);
        EXPECT_EQ(stueck(e.geojson(), "ROVER", "5501")["geometry"]["coordinates"][0], laenge) << einstellung;
    }
    Exportstand e;
    e.g.UTM_Zone = "33";  // changed behind the run
    EXPECT_EQ(stueck(e.geojson(), "ROVER", "5501")["geometry"]["coordinates"][0], 9.0);
}

TEST(Export, basislinien_enden_wo_ihr_vektor_hinfuehrt)
{
    Exportstand e("4");
    (void)e.g.BASISLINIE.anfuegen({"5501", "5501092a.05o", "5502", "5502092a.05o"});
    (void)e.g.BASISLINIE.anfuegen({"5502", "5502092a.05o", "5501", "5501092a.05o"});
    e.legen(
        "jorv_out\\dat_bas\\5501092a-5502092a.BAL",
        "von  nach           dx          dy          dz     distance      sX     sY     sZ     rXY    rYZ    rZX\r\n"
        "5501 5502          0.0         0.0      1000.0       1000.0    1.04   0.95   1.28  -0.641  0.380 -0.620\r\n");
    e.legen("jorv_out\\export\\001.TEM",
            "5501 5502      9.99   0.100  0.380 -0.620  50.0 1316/6 a  6.7 FixedL0       59.5    2.3\r\n"
            "5501 5502      3.41  -0.641  0.380 -0.620 100.0 1316/6    6.7 FixedL1       59.5    2.3\r\n");
    const Json sammlung = e.geojson();
    sammlung_pruefen(sammlung);
    const Json linie = stueck(sammlung, "Basislinie", "5501092a.05o-5502092a.05o"),
               ende = linie["geometry"]["coordinates"][1];
    EXPECT_NEAR(ende[0], 9, 1e-8);
    EXPECT_NEAR(ende[2].get<double>(), 100 + std::sin(0.907571), 0.001);  // 1 m along the axis of the earth
    EXPECT_EQ(linie["properties"]["Loesung"], "FixedL1");
    EXPECT_EQ(linie["properties"]["Sigma"], 3.41);
    EXPECT_EQ(linie["properties"]["sX"], 1.04);
    EXPECT_EQ(linie["properties"]["rZX"], -0.62);
    EXPECT_EQ(stueck(sammlung, "Basislinie", "5502092a.05o-5501092a.05o")["properties"]["Loesung"], "keine");
}

TEST(Export, csv_und_kml_tragen_dieselben_zahlen)
{
    Exportstand e("3");
    e.g.V_Punkt[1] = punkt("virt", 51.9, 9.1);
    const std::string csv = exporttext(e.g, Exportformat::csv), kml = exporttext(e.g, Exportformat::kml);
    EXPECT_NE(csv.find("\r\nVRS,virt5501092a.05o,virt5501092a.05o,,"), std::string::npos) << csv;
    EXPECT_NE(csv.find("\r\nROVER,5501,5501092a.05o,FixedL1,500000.0000,5761038.2125,100.0000,52.000000000,9.000000000,"
                       "1.10,1.20,2.70,59.5,"),
              std::string::npos)
        << csv;
    EXPECT_NE(csv.find(",\"POLYGON ((400000.0000 5700000.0000, "), std::string::npos) << csv;
    Zeilenleser leser(csv);
    const auto kommas = [](std::string_view zeile) {
        int n = 0;
        bool innen = false;
        for (const char z : zeile) innen ^= z == '"', n += z == ',' && !innen ? 1 : 0;
        return n;
    };
    const int spalten = kommas(leser.naechste().value());
    while (const auto zeile = leser.naechste()) EXPECT_EQ(kommas(*zeile), spalten) << *zeile;
    EXPECT_NE(kml.find("<Document><name>Süd &amp; &quot;West&quot; &lt;3></name>"), std::string::npos);
    EXPECT_NE(kml.find("<coordinates>9.000000000,52.000000000,100.0000</coordinates></Point>"), std::string::npos)
        << kml;
    EXPECT_NE(kml.find("<Data name=\"sN\"><value>1.20</value></Data>"), std::string::npos);
    e.versperren("aus.kml");
    EXPECT_EQ(export_schreiben(e.g, Exportformat::kml, im_Verfahren(e.g, "aus.kml")), Fehler::gesetzt);
    EXPECT_EQ(e.schirm.einzige(),
              "Die Exportdatei:\n" + e.pfad8("aus.kml") + "\nkonnte nicht angelegt/überschrieben werden!");
    EXPECT_EQ(export_schreiben(e.g, Exportformat::csv, im_Verfahren(e.g, "aus.csv")), Fehler::keiner);
    EXPECT_EQ(e.datei("aus.csv"), csv);
}

}  // namespace

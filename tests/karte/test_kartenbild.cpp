#include "karte/kartenbild.h"

#include <gmock/gmock.h>

#include "hilfen/Projekt.h"
#include "karte/svg.h"
#include "planung/Beobachtungen.h"

using namespace jorv;
using namespace jorv::hilfen;
using testing::HasSubstr;

namespace {

// One metre is one logical unit, the origin of the world at the lower left.
Ansicht ansicht(double breite = 400, double hoehe = 300)
{
    Ansicht a;
    a.groesse_setzen(breite, hoehe);
    a.wunsch_setzen({0, breite, 0, hoehe});
    EXPECT_TRUE(a.einpassen());
    return a;
}

void katalog(Global& g, std::string_view PKZ, double Rechtswert, double Hochwert)
{
    TOREL_Punkt_Satz satz;
    satz.PKZ = PKZ;
    satz.Rechtswert = Rechtswert;
    satz.Hochwert = Hochwert;
    (void)g.TOREL_Punkt.anfuegen(satz);
}

std::string text(const Global& g)
{
    return zeichenliste_text(karte_zeichnen(g, ansicht(), Umfang::alles));
}

constexpr auto rahmen =
    "hintergrund rechteck 0.00,0.00 400.00,300.00 fuellung=#ffffff\n"
    "massstab rechteck 4.00,292.00 84.00,296.00 fuellung=#000000\n";

}  // namespace

TEST(Kartenbild, ZeichnetInSeinerReihenfolge)
{
    Pruefstand p;
    for (const auto& [typ, r, h] : {std::tuple{0, 10, 10}, {1, 20, 10}, {1, 20, 20}, {2, 50, 50}, {1, 60, 50}})
        (void)p.g.Lnd.anfuegen({static_cast<std::uint8_t>(typ), static_cast<double>(r), static_cast<double>(h)});
    katalog(p.g, "0590", 100, 200);
    rover(p.g, beobachtung("5501001a.14o", 0, 7200), 150, 150);
    station(p.g, beobachtung("0590001a.14o", 0, 7200), 100, 200);
    (void)p.g.GEO_Punkt.anfuegen(figur({punkt("0590", 100, 200), punkt("0591", 200, 200)}));
    p.g.geo_fertig = false;
    const std::string black = " strich=#000000,1\n";
    EXPECT_EQ(text(p.g), rahmen +
                             std::string("grenze linienzug 10.00,290.00 20.00,290.00 20.00,280.00 10.00,290.00 "
                                         "strich=#f4c9f8,3\n"
                                         "grenze linienzug 50.00,250.00 60.00,250.00 strich=#f4c9f8,3\n"
                                         "katalog kreis 100.00,100.00 radius=4 fuellung=#00ff00") +
                             black + "figur linie 100.00,100.00 200.00,100.00" + black +
                             "figur linie 200.00,100.00 100.00,100.00" + black +
                             "rover kreis 150.00,150.00 radius=4 fuellung=#ff0000" + black +
                             "station kreis 100.00,100.00 radius=4 fuellung=#0000ff" + black +
                             "ecke kreis 100.00,100.00 radius=4 fuellung=#ffff00" + black +
                             "ecke kreis 200.00,100.00 radius=4 fuellung=#ffff00" + black +
                             "pkz text 100.00,100.00 \"0590 \" farbe=#000000\n"
                             "massstab text 44.00,292.00 \"80 m \" farbe=#000000\n");
    p.g.Grenzen = p.g.PKZ = "0";
    p.g.geo_fertig = true;
    for (const char* weg : {"grenze", "pkz", "ecke"}) EXPECT_THAT(text(p.g), testing::Not(HasSubstr(weg)));
}

TEST(Kartenbild, ZeigtZuordnungenUndBasislinienGepunktet)
{
    Pruefstand f("3");
    katalog(f.g, "0590", 1, 1);
    for (const double strecke : {3000.0, 3000.5, 1.0}) {
        rover(f.g, beobachtung("5501001a.14o", 0, 7200), 10, 10);
        ROVER_VIRT_Satz satz;
        satz.VIRT_Dateiname = strecke == 1.0 ? "?" : "9001001a.14o";
        satz.Strecke = strecke;
        (void)f.g.ROVER_VIRT.anfuegen(satz);
    }
    fremde(f.g, beobachtung("9001001a.14o", 0, 7200), 30, 10);
    const std::string stelle = "zuordnung linie 10.00,290.00 30.00,290.00 strich=";
    const std::string bild = text(f.g);
    EXPECT_THAT(bild, HasSubstr(stelle + "#00ff00,1,gepunktet\n" + stelle + "#ff0000,1,gepunktet\nmassstab"));
    EXPECT_THAT(bild, HasSubstr("pkz text 30.00,290.00 \"9001001a.14o \""));
    EXPECT_THAT(bild, testing::Not(HasSubstr("katalog")));

    Pruefstand b("4");
    rover(b.g, beobachtung("5501001a.14o", 0, 7200), 10, 10);
    rover(b.g, beobachtung("5502001a.14o", 0, 7200), 30, 10);
    (void)b.g.BASISLINIE.anfuegen({"5501", "5501001a.14o", "5502", "5502001a.14o"});
    (void)b.g.BASISLINIE.anfuegen({"5501", "5501001a.14o", "5503", "5503001a.14o"});
    EXPECT_THAT(text(b.g), HasSubstr("basislinie linie 10.00,290.00 30.00,290.00 strich=#0000ff,1,gepunktet\nmass"));
}

TEST(Kartenbild, HaeltSehrVieleObjekteKlein)
{
    Pruefstand p;
    constexpr int anzahl = 200000;
    for (int i = 0; i < anzahl; ++i) {
        (void)p.g.R_Punkt.anfuegen(punkt("", i % 1000, i / 1000.0));
        (void)p.g.Lnd.anfuegen({static_cast<std::uint8_t>(i == 0 ? 0 : 1), i * 0.01 - 500, i % 2 * 0.001 + 100});
    }
    std::size_t kreise = 0, ecken = 0;
    for (const auto& schritt : karte_zeichnen(p.g, ansicht())) {
        if (const auto* k = std::get_if<Kreise>(&schritt.form)) kreise += k->orte.size();
        if (const auto* l = std::get_if<Linienzug>(&schritt.form)) ecken += l->orte.size();
    }
    EXPECT_GT(kreise, 4000u);  // 102 x 51 cells
    EXPECT_LT(kreise, 5400u);
    EXPECT_GT(ecken, 400u);
    EXPECT_LT(ecken, 430u);
}

TEST(Kartenbild, BeschriftungenUeberdeckenSichNicht)
{
    Pruefstand p;
    for (const double r : {100.0, 104.0, 108.0, 112.0, 116.0}) katalog(p.g, "0590", r, 100);
    const auto anzahl = [&](Umfang umfang) {
        const auto bild = karte_zeichnen(p.g, ansicht(), umfang);
        return std::ranges::count_if(bild, [](const auto& s) { return s.ebene == Ebene::pkz; });
    };
    EXPECT_EQ(anzahl(Umfang::alles), 5);
    EXPECT_LT(anzahl(Umfang::sichtbar), 5);
    EXPECT_GT(anzahl(Umfang::sichtbar), 2);
}

TEST(Kartenbild, DerAusschnittFolgtDemKatalog)
{
    Pruefstand p("4");
    rover(p.g, beobachtung("5501001a.14o", 0, 7200), 1000, 2000);
    EXPECT_EQ(grafik_grenzen(p.g), (Ausschnitt{0, 100, 0, 100}));
    EXPECT_EQ(alles_umfassend(p.g), (Ausschnitt{900, 1100, 1900, 2100}));
    katalog(p.g, "0590", 100, 300);
    EXPECT_EQ(grafik_grenzen(p.g), (Ausschnitt{0, 200, 200, 400}));
    katalog(p.g, "0591", 300, 400);
    EXPECT_EQ(grafik_grenzen(p.g), (Ausschnitt{90, 310, 295, 405}));
}

TEST(Svg, SchreibtUmlauteUndSonderzeichen)
{
    Schrift s;
    s.text = t1252("Köln <&> ");
    EXPECT_THAT(svg({{Ebene::pkz, s}}, 10, 10), HasSubstr(">Köln &lt;&amp;></text>"));
}

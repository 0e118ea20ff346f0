#include "projekt/geo_lesen.h"

#include "projekt/reihe.h"

namespace jorv {

namespace {

constexpr Sektionsart art_geo = {"GEO", true, false, 15, 16, "geo_lesen", "     ReDim GEO_Punkt(1)", "GEO_Punkt"};
constexpr Feldwort angaben = "Geometrie-Angaben";

// The count is one character: the first, or the one behind a "=".
int ecken(std::string_view zeile)
{
    const auto gleich = zeile.find('=');
    const std::size_t stelle = gleich == std::string_view::npos ? 0 : gleich + 1;
    const char ziffer = stelle < zeile.size() ? zeile[stelle] : ' ';
    return ziffer >= '0' && ziffer <= '4' ? ziffer - '0' : -1;
}

}  // namespace

Fehler geo_lesen(Global& g, const Profil& profil)
{
    return sektion_lesen(g, profil, art_geo, g.GEO_Punkt,
                         [](Reihe& reihe, GEO_Punkt_Satz& figur, std::string_view zeile) {
                             figur.Anzahl = ecken(zeile);
                             if (figur.Anzahl < 0) reihe.fehler(angaben.konvertierung);
                             reihe.auslassen(angaben);
                             for (int i = 0; i < figur.Anzahl; ++i) {
                                 const auto ecke = static_cast<std::size_t>(i);
                                 reihe.text(figur.Punkt[ecke], angaben)
                                     .zahl(figur.Rechtswert[ecke], angaben)
                                     .zahl(figur.Hochwert[ecke], angaben);
                             }
                         });
}

}  // namespace jorv

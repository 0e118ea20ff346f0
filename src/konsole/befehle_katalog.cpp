#include <array>

#include "daten/grenzen.h"
#include "daten/katalog.h"
#include "konsole/Befehle.h"
#include "konsole/Lage.h"
#include "konsole/geojson.h"
#include "konsole/zeigen.h"

namespace jorv {

namespace {

Ausgang katalog_zeigen(Lage& lage)
{
    lage.aus << (lage.aufruf.json ? verfahren_json(lage.g, Teil::katalog)
                                  : utf8_aus_1252(teil_text(lage.g, Teil::katalog)));
    return Ausgang::gut;
}

// The text of a list, Windows-1252; a list in UTF-8 is turned, any other is taken as it stands.
std::optional<std::string> liste_lesen(Lage& lage)
{
    const auto pfad = pfad_aus_wort(lage.g.dateien.laufwerke(), lage.wort(0));
    if (!pfad) {
        (void)lage.pfad_nicht_verwendbar(lage.wort(0));
        return std::nullopt;
    }
    auto text = lage.g.dateien.lesen(*pfad);
    if (!text) {
        (void)lage.stop(verkettet("Die Datei:\n", *pfad, u8"\nkonnte nicht geöffnet werden!"_w));
        return std::nullopt;
    }
    if (auto gewandelt = text_aus_utf8(*text)) return gewandelt;
    return text;
}

Ausgang katalog_machen_befehl(Lage& lage)
{
    const auto text = liste_lesen(lage);
    if (!text || ist_fehler(katalog_machen(lage.g, *text))) return Ausgang::misslungen;
    return Ausgang::gut;
}

Ausgang grenzen_machen_befehl(Lage& lage)
{
    auto text = liste_lesen(lage);
    if (!text) return Ausgang::misslungen;
    if (trimmen(*text).starts_with('{')) {
        text = grenzen_aus_geojson(*text);
        if (!text)
            return lage.stop("Die Datei ist kein GeoJSON mit Linien oder Polygonen in geographischen Koordinaten!");
    }
    return ist_fehler(grenzen_machen(lage.g, *text)) ? Ausgang::misslungen : Ausgang::gut;
}

Ausgang katalog_entfernen(Lage& lage)
{
    const std::string pkz = text_aus_utf8_mit_ersatz(lage.wort(0));
    for (int i = 1; i <= lage.g.TOREL_Punkt.anzahl(); ++i)
        if (lage.g.TOREL_Punkt[i].PKZ == pkz)
            return ist_fehler(torel_punkt_entfernen(lage.g, i)) ? Ausgang::misslungen : Ausgang::gut;
    return lage.stop(verkettet("Die Station ", pkz, " steht nicht im Katalog!"));
}

constexpr Befehl befehle[] = {
    {"katalog zeigen",
     "",
     "zeigt die Referenzstationen des Katalogs",
     "jorv katalog zeigen",
     0,
     0,
     {},
     Grundlage::katalog,
     katalog_zeigen},
    {"katalog machen",
     "LISTE",
     "macht den Katalog der Referenzstationen neu aus einer Liste\n"
     "Eine Zeile für jede Station: PKZ X Y Z Name, geozentrisch in Metern.",
     "jorv katalog machen stationen.txt",
     1,
     1,
     {},
     Grundlage::einstellungen,
     katalog_machen_befehl},
    {"katalog entfernen",
     "PKZ",
     "nimmt nach einer Frage eine Station aus dem Katalog",
     "jorv katalog entfernen 0590 --ja",
     1,
     1,
     {},
     Grundlage::katalog,
     katalog_entfernen},
    {"grenzen machen",
     "LISTE",
     "macht die Grenzlinien der Karte neu aus einer Liste\n"
     "Eine Zeile für jeden Punkt: Typ Rechtswert Hochwert. Typ 1 setzt die Linie fort, jeder andere beginnt eine\n"
     "neue, mit 0 wird sie geschlossen. Auch GeoJSON in geographischen Koordinaten wird genommen.",
     "jorv grenzen machen grenzen.txt",
     1,
     1,
     {},
     Grundlage::einstellungen,
     grenzen_machen_befehl},
};

}  // namespace

std::span<const Befehl> befehle_katalog()
{
    return befehle;
}

}  // namespace jorv

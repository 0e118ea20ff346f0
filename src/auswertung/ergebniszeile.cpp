#include "auswertung/ergebniszeile.h"

#include <cmath>

#include "plattform/pfad.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

struct Spalten {
    std::size_t von, bis;  // from 1, both included
};

// With the point name of four characters; one of twenty moves everything behind it by sixteen.
constexpr Spalten Rechtswert{6, 20}, Hochwert{21, 35}, Hoehe{36, 48}, Minuten{56, 62}, sE{64, 70}, sN{71, 77},
    sH{78, 84}, Loesung{86, 95}, Ambiguitaeten{97, 101};
constexpr std::size_t kurze_zeile = 101, lange_zeile = 117, kurzer_name = 4;
constexpr std::size_t laenge_bericht = 100;  // long list, the row of the short report

// The three lists of a baseline, one blank between them.
constexpr Spalten Bal{1, 103}, Mrk{105, 200}, Tem{202, 288};

std::string_view stueck(std::string_view zeile, Spalten s)
{
    return mitte(zeile, s.von, s.bis - s.von + 1);
}

}  // namespace

std::optional<Ergebnis> ergebnis_aus_zeile(std::string_view zeile)
{
    if (zeile.size() < kurze_zeile) return std::nullopt;
    const std::size_t versatz = zeile.size() >= lange_zeile ? lange_zeile - kurze_zeile : 0;
    const auto feld = [&](Spalten s) { return trimmen(mitte(zeile, s.von + versatz, s.bis - s.von + 1)); };
    const auto rechts = zahl_streng(feld(Rechtswert)), hoch = zahl_streng(feld(Hochwert));
    if (!rechts || !hoch) return std::nullopt;
    // A field of asterisks, or of more than a number can hold, tells nothing.
    const auto zahl = [&](Spalten s) {
        const double wert = zahl_lesen(feld(s));
        return std::isfinite(wert) ? wert : 0;
    };
    Ergebnis e;
    e.Punkt = trimmen(zeile.substr(0, kurzer_name + versatz));
    e.Rechtswert = *rechts;
    e.Hochwert = *hoch;
    e.Hoehe = zahl(Hoehe);
    e.Minuten = zahl(Minuten);
    e.sE = zahl(sE);
    e.sN = zahl(sN);
    e.sH = zahl(sH);
    e.Loesung = feld(Loesung);
    e.Ambiguitaeten = zahl(Ambiguitaeten);
    return e;
}

Extraktstuecke extrakt_zerlegen(std::string_view zeile, bool langer_name)
{
    return {links(zeile, langer_name ? lange_zeile : kurze_zeile), rechts(zeile, laenge_bericht)};
}

Basisstuecke extrakt_zerlegen_basis(std::string_view zeile)
{
    return {stueck(zeile, Bal), stueck(zeile, Mrk), stueck(zeile, Tem)};
}

std::optional<Ergebnis> ergebnis_lesen(const Dateisystem& dateien, std::string_view arbeitsverzeichnis,
                                       std::string_view rover)
{
    const auto text =
        dateien.lesen(pfad_verbinden(arbeitsverzeichnis, verkettet("jorv_out\\dat_rov\\", rover, ".UTM")));
    if (!text) return std::nullopt;
    Zeilenleser leser(*text);
    std::optional<Ergebnis> letztes;
    while (const auto zeile = leser.naechste())
        if (auto ergebnis = ergebnis_aus_zeile(*zeile)) letztes = std::move(ergebnis);
    return letztes;
}

}  // namespace jorv

#include "karte/massstab.h"

#include <algorithm>
#include <cstdint>

#include "karte/schriftmass.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

std::optional<Massstab> massstab_zu_breite(double breite)
{
    const double w = breite / 5;
    if (!(w > 10) || w > 1e15) return std::nullopt;
    const std::string ziffern = verkettet(static_cast<std::int64_t>(w));
    const int erste = ziffern[0] - '0' + (ziffern[1] > '5' ? 1 : 0);
    std::string rund(ziffern.size(), '0');
    rund[0] = verkettet(erste)[0];
    const double laenge = zahl_lesen(rund);
    return Massstab{laenge, laenge >= 1000 ? zahl_text(laenge / 1000) + " km " : zahl_text(laenge) + " m "};
}

std::optional<Massstabbild> grafik_massstab(const Ansicht& ansicht)
{
    const auto massstab = massstab_zu_breite(ansicht.fenster().breite());
    if (!massstab) return std::nullopt;
    constexpr double rand = Ansicht::symbol, staerke = Ansicht::symbol, luft = 2;
    const double laenge = massstab->laenge * ansicht.je_meter();
    const double oben = ansicht.hoehe() - rand - staerke;
    // A bar shorter than its label would push it over the picture's edge.
    const double mitte = rand + std::max(laenge, schriftbreite(massstab->text, schrift_massstab)) / 2;
    Massstabbild bild;
    bild.balken = {{rand, oben}, laenge, staerke, std::nullopt, kartenfarbe::schwarz};
    bild.schrift.ort = {mitte, oben};
    bild.schrift.abstand = {0, -luft};
    bild.schrift.text = massstab->text;
    bild.schrift.anker = Anker::mitte_unten;
    bild.schrift.groesse = schrift_massstab;
    bild.schrift.hof = true;
    return bild;
}

}  // namespace jorv

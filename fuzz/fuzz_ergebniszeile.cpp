// The extraction row: its pieces make the row again, and its numbers are numbers.
#include <cmath>

#include "auswertung/ergebniszeile.h"
#include "plattform/text.h"
#include "ziel.h"

using namespace jorv;

JORV_ZIEL(ergebniszeile)
{
    const auto zeile = Zeilenleser(bytes).naechste().value_or("");
    for (const bool lang : {false, true}) {
        const auto stuecke = extrakt_zerlegen(zeile, lang);
        const std::size_t laenge = lang ? 117 : 101;
        fuzz::soll(zeile.starts_with(stuecke.utm) && zeile.ends_with(stuecke.bericht), "pieces of the row");
        if (zeile.size() != laenge + 101) continue;
        fuzz::soll(verkettet(stuecke.utm, zeile[laenge], stuecke.bericht) == zeile, "a row of two lists is its pieces");
    }
    const auto basis = extrakt_zerlegen_basis(zeile);
    if (zeile.size() > 201)
        fuzz::soll(verkettet(basis.bal, zeile[103], basis.mrk, zeile[200], basis.tem) == zeile.substr(0, 288),
                   "a baseline's row is its pieces");
    const auto e = ergebnis_aus_zeile(zeile);
    if (!e) return;
    for (const double zahl : {e->Rechtswert, e->Hochwert, e->Hoehe, e->Minuten, e->sE, e->sN, e->sH, e->Ambiguitaeten})
        fuzz::soll(std::isfinite(zahl), "finite numbers");
    fuzz::soll(e->Punkt.size() <= 20 && e->Loesung.size() <= 10, "texts keep to their columns");
}

// The border file behind the cipher.
#include <cmath>

#include "Stand.h"
#include "chiffre.h"
#include "daten/grenzen.h"
#include "ziel.h"

using namespace jorv;

JORV_ZIEL(grenzen)
{
    static fuzz::Stand stand;
    Global& g = stand.g;
    const Fehler fehler = grenzen_aus_text(g, fuzz::chiffriert(bytes), "ziel");
    for (const auto& punkt : g.Lnd)
        fuzz::soll(std::isfinite(punkt.Rechtswert) && std::isfinite(punkt.Hochwert), "finite coordinates");
    if (ist_fehler(fehler)) return;
    const auto text = grenzen_als_text(g.Lnd);
    if (!text) return;
    const int anzahl = g.Lnd.anzahl();
    fuzz::soll(!ist_fehler(grenzen_aus_text(g, *text, "ziel")), "what was written can be read");
    fuzz::soll(g.Lnd.anzahl() == anzahl, "as many points");
    fuzz::soll(grenzen_als_text(g.Lnd) == text, "written twice is equal");
}

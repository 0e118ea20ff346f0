// The station catalogue behind the cipher: what was read and written is read again as the same stations.
#include <cmath>

#include "Stand.h"
#include "chiffre.h"
#include "daten/katalog.h"
#include "ziel.h"

using namespace jorv;

namespace {

// Commas at the place of the line before are points, so they are no part of a name.
std::string ohne_komma(const std::string& name)
{
    return ersetzt(name, ',', '.');
}

}  // namespace

JORV_ZIEL(katalog)
{
    static fuzz::Stand stand;
    Global& g = stand.g;
    const Fehler fehler = katalog_aus_text(g, fuzz::chiffriert(bytes), "ziel");
    for (const auto& punkt : g.TOREL_Punkt)
        fuzz::soll(std::isfinite(punkt.Rechtswert) && std::isfinite(punkt.Hochwert), "finite coordinates");
    if (ist_fehler(fehler)) return;
    const auto text = katalog_als_text(g.TOREL_Punkt);
    if (!text) return;
    const Feld<TOREL_Punkt_Satz> vorher = g.TOREL_Punkt;
    fuzz::soll(!ist_fehler(katalog_aus_text(g, *text, "ziel")), "what was written can be read");
    fuzz::soll(g.TOREL_Punkt.anzahl() == vorher.anzahl(), "as many stations");
    for (int i = 1; i <= vorher.anzahl(); ++i) {
        const auto &alt = vorher[i], &neu = g.TOREL_Punkt[i];
        fuzz::soll(ohne_komma(neu.PKZ) == ohne_komma(alt.PKZ) && ohne_komma(neu.Name) == ohne_komma(alt.Name),
                   "of the same names");
        fuzz::soll(std::abs(neu.X - alt.X) <= 0.001 + 1e-12 * std::abs(alt.X), "at the same places");
    }
}

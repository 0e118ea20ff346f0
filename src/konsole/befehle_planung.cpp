#include <algorithm>
#include <vector>

#include "konsole/Befehle.h"
#include "konsole/Lage.h"
#include "modell/Gemeinsam.h"
#include "planung/figuren.h"
#include "planung/zeitfenster.h"

namespace jorv {

namespace {

// Index in S_Punkt of the first file of a station, 0 when the project has none.
int station_index(const Global& g, std::string_view pkz)
{
    for (int i = 1; i <= g.S_Punkt.anzahl(); ++i)
        if (g.S_Punkt[i].Punktkennzeichen == pkz) return i;
    return 0;
}

// As clicks on the map: each corner, then the first one again.
Ausgang figur(Lage& lage)
{
    if (!ist_E_oder_S(lage.g)) return lage.nicht_in_diesem_modus();
    std::vector<int> ecken;
    for (std::size_t i = 1; i < lage.aufruf.worte.size(); ++i) {
        const std::string pkz = text_aus_utf8_mit_ersatz(lage.wort(i));
        const int index = station_index(lage.g, pkz);
        if (index == 0) return lage.stop(verkettet("Die Station ", pkz, " hat keine Datei im Verfahren!"));
        if (std::ranges::count(ecken, index) != 0)
            return lage.falsch(verkettet("Die Station ", lage.wort(i), " steht mehrmals in der Figur."));
        ecken.push_back(index);
    }
    lage.geaendert = true;
    const int vorher = lage.g.GEO_Punkt.anzahl();
    for (const int ecke : ecken) {
        geo_markierung(lage.g, ecke);
        if (lage.g.GEO_Punkt.anzahl() == vorher) return Ausgang::misslungen;
    }
    geo_markierung(lage.g, ecken.front());
    return Ausgang::gut;
}

Ausgang figur_loeschen(Lage& lage)
{
    if (!ist_E_oder_S(lage.g)) return lage.nicht_in_diesem_modus();
    lage.geaendert = lage.g.GEO_Punkt.anzahl() > 0;
    m_geo_loeschen(lage.g);
    return Ausgang::gut;
}

Ausgang zeitfenster(Lage& lage)
{
    const auto zustand = lage.wort(1);
    if (zustand != "an" && zustand != "aus") return lage.falsch("Das Zeitfenster ist an oder aus.");
    if (!ist_E_oder_S(lage.g)) return lage.nicht_in_diesem_modus();
    if ((lage.g.Zeitfenster_1h == "1") == (zustand == "an")) return Ausgang::gut;
    lage.geaendert = true;
    m_grund_zeitfenster_1h(lage.g);
    return Ausgang::gut;
}

constexpr Befehl befehle[] = {
    {"figur",
     "NR PKZ PKZ PKZ [PKZ]",
     "bildet ein Dreieck oder Viereck aus Stationen und ordnet die ROVER darin zu\n"
     "Die Ecken stehen in der Reihenfolge, in der sie umlaufen werden.",
     "jorv figur 1 0590 0591 0593",
     4,
     5,
     {},
     Grundlage::verfahren,
     figur},
    {"figur-loeschen",
     "NR",
     "löscht die zuletzt gebildete Figur und ordnet neu zu",
     "jorv figur-loeschen 1",
     1,
     1,
     {},
     Grundlage::verfahren,
     figur_loeschen},
    {"zeitfenster",
     "NR an|aus",
     "schaltet das Zeitfenster von einer Stunde für alle ROVER",
     "jorv zeitfenster 1 an",
     2,
     2,
     {},
     Grundlage::verfahren,
     zeitfenster},
};

}  // namespace

std::span<const Befehl> befehle_planung()
{
    return befehle;
}

}  // namespace jorv

#include "planung/figuren.h"

#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "planung/automatik.h"
#include "plattform/text.h"

namespace jorv {

namespace {

constexpr int max_ecken = 4, min_ecken = 3;

std::string anweisung(int anzahl)
{
    return verkettet("    ReDim Preserve GEO_Punkt(", anzahl, ")");
}

void ecke_anfuegen(Global& g, GEO_Punkt_Satz& figur, const Punkt& station)
{
    const auto ecke = static_cast<std::size_t>(figur.Anzahl++);
    figur.Punkt[ecke] = station.Punktkennzeichen;
    figur.Rechtswert[ecke] = station.Rechtswert;
    figur.Hochwert[ecke] = station.Hochwert;
    g.oberflaeche->karte_zeichnen(false);
}

int ecke_von(const GEO_Punkt_Satz& figur, std::string_view kennzeichen)
{
    for (int i = 1; i <= figur.Anzahl; ++i)
        if (figur.Punkt[static_cast<std::size_t>(i - 1)] == kennzeichen) return i;
    return 0;
}

// What follows whenever the set of closed figures has changed.
void figuren_geaendert(Global& g)
{
    g.geo_fertig = true;
    g.oberflaeche->karte_zeichnen(false);
    automatik(g);
    Datum_setzen(g);
}

}  // namespace

void geo_markierung(Global& g, int Nummer)
{
    // A figure under construction may have gone with the project's data.
    if (g.geo_fertig || g.GEO_Punkt.anzahl() == 0) {
        if (!g.GEO_Punkt.anfuegen()) {
            stop_melden(g, dimensionierung_meldung(14, "geo_markierung", anweisung(g.GEO_Punkt.anzahl() + 1)));
            return;
        }
        g.geo_fertig = false;
    }
    const Punkt& station = g.S_Punkt[Nummer];
    GEO_Punkt_Satz& figur = g.GEO_Punkt.letztes();
    const int ecke = ecke_von(figur, station.Punktkennzeichen);
    if (ecke == 1 && figur.Anzahl >= min_ecken)
        figuren_geaendert(g);
    else if (ecke != 0 || figur.Anzahl >= max_ecken)
        g.oberflaeche->piepen();
    else
        ecke_anfuegen(g, figur, station);
}

void m_geo_loeschen(Global& g)
{
    if (g.GEO_Punkt.anzahl() == 0) {
        g.oberflaeche->meldung(Symbol::info, "Keine Definitionen vorhanden!");
        return;
    }
    const int rest = g.GEO_Punkt.anzahl() - 1;
    if (!g.GEO_Punkt.groesse_setzen(rest)) {
        stop_melden(g, dimensionierung_meldung(1, "m_geo_loeschen_Click", anweisung(rest), ""));
        return;
    }
    figuren_geaendert(g);
}

void m_geo_definieren(Global& g)
{
    g.menue.m_geo_definieren = !g.menue.m_geo_definieren;
    g.oberflaeche->menue_erneuern();
}

}  // namespace jorv

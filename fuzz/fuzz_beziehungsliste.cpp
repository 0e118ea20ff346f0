// The relation list.
#include "Stand.h"
#include "daten/beziehungsliste.h"
#include "planung/Beobachtungen.h"
#include "ziel.h"

using namespace jorv;

namespace {

// Two points with two files each that overlap, one beside them in time, one with a blank in its name.
void punkte_anlegen(Global& g)
{
    for (const auto& o : {hilfen::beobachtung("A001001a.14o", "08:00:00", "09:00:00"),
                          hilfen::beobachtung("A001001b.14o", "08:30:00", "10:00:00"),
                          hilfen::beobachtung("A002001a.14o", "08:00:00", "10:00:00"),
                          hilfen::beobachtung("A003001a.14o", "12:00:00", "13:00:00"),
                          hilfen::beobachtung("A  4001a.14o", "08:00:00", "13:00:00")}) {
        (void)g.RINEX_Dateien.anfuegen(o.Dateiname);
        (void)g.OBS_R.anfuegen(o);
    }
}

}  // namespace

JORV_ZIEL(beziehungsliste)
{
    static fuzz::Stand stand;
    Global& g = stand.g;
    if (g.OBS_R.anzahl() == 0) punkte_anlegen(g);
    g.BASISLINIE.leeren();
    const Fehler fehler = beziehungen_lesen(g, bytes, "ziel");
    const int anzahl = g.BASISLINIE.anzahl();
    for (const auto& b : g.BASISLINIE) fuzz::soll(b.PKK_von != b.PKK_nach && b.Datei_von != b.Datei_nach, "two ends");
    fuzz::soll(beziehungen_lesen(g, bytes, "ziel") == fehler && g.BASISLINIE.anzahl() == anzahl,
               "reading twice adds nothing");
    g.BASISLINIE.leeren();
    (void)beziehungen_lesen(g, fuzz::vordere_zeilen(bytes), "ziel");
    fuzz::soll(g.BASISLINIE.anzahl() <= anzahl, "a shorter list gives no more");
}

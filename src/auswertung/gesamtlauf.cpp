#include "auswertung/gesamtlauf.h"

#include <string>

#include "auswertung/antennenwarnung.h"
#include "auswertung/aufrufdatei.h"
#include "auswertung/gesamt_batch.h"
#include "auswertung/laufart.h"
#include "daten/antennentest.h"
#include "modell/Baum.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"

namespace jorv {

namespace {

// The call file may be that of another command, so it is written anew where there is a batch to call.
Fehler bereit_machen(Global& g)
{
    if (const Fehler fehler = antennendatentest(g); ist_fehler(fehler)) return fehler;
    if (g.dateien.vorhanden(batchdatei(g))) aufrufdatei_schreiben(g);
    return batch_vorhanden(g);
}

Fehler nachsehen(Global& g, const Laufart& art)
{
    if (g.dateien.vorhanden(Verfahrens_Datei(g, ".ERR"))) {
        stop_melden(g,
                    u8"Achtung!\n\nEs kam zu Fehlern bei der Ausführung der WaSoft.\n\n"
                    u8"Unbedingt Fehlerprotokoll einsehen!"_w);
        return Fehler::gesetzt;
    }
    Auswahl auswahl;
    if (const Fehler fehler = auswaehlen(g, art, auswahl); ist_fehler(fehler)) return fehler;
    lauf_abschliessen(g, auswahl.wahl, auswahl.wahl, g.berechnete_ROVER);
    Antennenwarnung antennen;
    antennen.lesen(g, Verfahrens_Datei(g, ".LIS"));
    antennen.melden(g);
    return Fehler::keiner;
}

}  // namespace

Fehler m_wasoft_batch(Global& g, const Lauf_Umgebung& umgebung)
{
    const Laufart* art = laufart(g);
    if (!art) return Fehler::gesetzt;
    if (const Fehler fehler = bereit_machen(g); ist_fehler(fehler)) return fehler;
    Datum_setzen(g);
    umgebung.prozess(g.dateien, verkettet('"', aufrufdatei(g), '"'), [&g] { (void)g.oberflaeche->ereignisse(); });
    // The batch has taken away the results of earlier runs, so all rovers stand among the open ones again.
    baum_aufbauen(g);
    const Fehler fehler = nachsehen(g, *art);
    g.oberflaeche->menue_erneuern();
    return fehler;
}

Fehler m_wasoft_run(Global& g, const Lauf_Umgebung& umgebung)
{
    if (const Fehler fehler = m_wasoft_erstellen(g); ist_fehler(fehler)) return fehler;
    return m_wasoft_batch(g, umgebung);
}

}  // namespace jorv

#include "auswertung/basis_ausfuehren.h"

#include "auswertung/aufrufdatei.h"
#include "auswertung/basis_gesamt.h"
#include "auswertung/laufart.h"
#include "modell/Meldungen.h"
#include "plattform/fensterstart.h"
#include "plattform/text.h"

namespace jorv {

Fehler aufrufdatei_starten(Global& g)
{
    const std::error_code fehler = g.oberflaeche->im_fenster_starten(batch_start(g.dateien, aufrufdatei(g)));
    if (!fehler) return Fehler::keiner;
    stop_melden(g, verkettet("FEHLER !!!\n", startfehler_text(fehler), " beim Aufruf der Batchdatei"));
    return Fehler::gesetzt;
}

Fehler m_basis_batch(Global& g)
{
    // The call file may be that of another command, so it is written anew where there is a batch to call.
    if (g.dateien.vorhanden(batchdatei(g))) aufrufdatei_schreiben(g);
    if (const Fehler fehler = batch_vorhanden(g); ist_fehler(fehler)) return fehler;
    return aufrufdatei_starten(g);
}

Fehler m_basis_run(Global& g)
{
    if (const Fehler fehler = m_basis_erstellen(g); ist_fehler(fehler)) return fehler;
    return m_basis_batch(g);
}

}  // namespace jorv

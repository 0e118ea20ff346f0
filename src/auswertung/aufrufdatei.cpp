#include "auswertung/aufrufdatei.h"

#include "modell/Batchzeilen.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"

namespace jorv {

namespace {

// `erste_zeile` is the first line of the message about a failure.
Fehler batchdatei_schreiben(Global& g, std::string_view bytes, std::string_view erste_zeile)
{
    if (!g.dateien.schreiben(batchdatei(g), bytes, Dauer::fluechtig)) return Fehler::keiner;
    stop_melden(g, datei_meldung(erste_zeile, batchdatei(g), u8"konnte nicht angelegt/überschrieben werden!"_w));
    return Fehler::gesetzt;
}

// The stop for antenna files of the old format.
void apc_melden(Global& g)
{
    stop_melden(g,
                u8"Antennen-Dateien im Format *.apc werden von JorvPlus nicht mehr unterstützt!\n"
                u8"Wenn möglich Antennen-Dateien im Format *.atx verwenden oder die Vorversion Jorv für die "
                u8"Auswertung nutzen."_w);
}

}  // namespace

std::string batchdatei(const Global& g)
{
    return Verfahrens_Datei(g, ".BAT");
}

std::string aufrufdatei(const Global& g)
{
    return im_Verfahren(g, "Jorv.BAT");
}

void aufrufdatei_schreiben(Global& g, Aufruftext text)
{
    if (!g.dateien.schreiben(aufrufdatei(g), batch_aufruf(batchdatei(g)), Dauer::fluechtig)) return;
    const std::string_view artikel = text == Aufruftext::der_Batchdatei ? "der" : "die";
    stop_melden(g, datei_meldung("Die Aufrufdatei:", aufrufdatei(g),
                                 verkettet(artikel, u8" Batchdatei konnte nicht angelegt/überschrieben werden!"_w)));
}

bool darf_ueberschreiben(Global& g, std::string_view kopf, const std::string& datei)
{
    if (!g.dateien.vorhanden(datei)) return true;
    const std::string frage = datei_meldung(kopf, datei, u8"ist ist bereits vorhanden!\n\nDie Datei überschreiben?"_w);
    return g.oberflaeche->frage(Symbol::frage, frage, Antwort::nein) == Antwort::ja;
}

Fehler einzelbatch_ablegen(Global& g, Batchtext& batch, const std::function<void()>& auswertung, Aufruftext text)
{
    const bool alte_antennen = batch.wert("ANT") == "APC";
    if (!alte_antennen) auswertung();
    if (const Fehler fehler = batchdatei_schreiben(g, batch.text(), "Die Batchdatei:"); ist_fehler(fehler))
        return fehler;
    Datum_setzen(g);
    if (alte_antennen) {
        apc_melden(g);
        return Fehler::gesetzt;
    }
    aufrufdatei_schreiben(g, text);
    return Fehler::keiner;
}

Fehler gesamtbatch_ablegen(Global& g, std::string_view bytes)
{
    if (const Fehler fehler = batchdatei_schreiben(g, bytes, "Die angegebene Batchdatei:"); ist_fehler(fehler))
        return fehler;
    Datum_setzen(g);
    aufrufdatei_schreiben(g);
    return Fehler::keiner;
}

}  // namespace jorv

#include "auswertung/gesamtprotokoll.h"

#include <optional>

#include "auswertung/berichtstext.h"
#include "auswertung/dateifehler.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"

namespace jorv {

namespace {

constexpr std::string_view anfang = u8"**** Anfang des Protokolls für die ROVER-Datei: "_w;
constexpr std::string_view ende = u8"**** Ende des Protokolls für die ROVER-Datei:   "_w;

// The protocols of the node's rovers one after the other; nothing when one can't be read (shown).
std::optional<std::string> protokolle(Global& g, const Hauptknoten& knoten)
{
    Berichtstext bericht;
    for (const auto& rover : knoten.Kinder) {
        const std::string datei = im_Verfahren(g, verkettet("jorv_out\\lis_rov\\", rover.Text, ".LIS"));
        if (!g.dateien.vorhanden(datei)) continue;
        std::error_code fehler;
        const auto text = g.dateien.lesen(datei, fehler);
        if (!text) {
            stop_melden(g, datei_meldung("Die Berechnungsprotokolldatei:", datei,
                                         beim_uebertragen(fehler) ? "konnte nicht richtig gelesen werden!"
                                                                  : u8"konnte nicht geöffnet werden!"_w));
            return std::nullopt;
        }
        bericht.zeile(anfang, rover.Text);
        Zeilenleser leser(*text);
        while (const auto zeile = leser.naechste()) bericht.zeile(*zeile);
        bericht.leerzeilen(1);
        bericht.zeile(ende, rover.Text);
        bericht.zeile(std::string(80, '*'));
    }
    return bericht.text();
}

bool melden(Global& g, const std::string& datei, std::error_code fehler, std::string_view nicht_angelegt)
{
    if (!fehler) return true;
    stop_melden(g, beim_uebertragen(fehler)
                       ? datei_meldung("In die Gesamt-Berechnungsprotokolldatei:", datei,
                                       "konnte nicht richtig geschrieben werden!")
                       : datei_meldung("Die Gesamt-Berechnungsprotokolldatei:", datei, nicht_angelegt));
    return false;
}

bool hat_kinder(const Hauptknoten* knoten)
{
    return knoten && !knoten->Kinder.empty();
}

}  // namespace

void gesamtprotokoll_schreiben(Global& g)
{
    const std::string datei = Verfahrens_Datei(g, ".LIS");
    if (const Hauptknoten* berechnet = g.baum.finden("E_Datei"); hat_kinder(berechnet)) {
        const auto text = protokolle(g, *berechnet);
        if (!text || !melden(g, datei, g.dateien.schreiben(datei, *text), "konnte nicht angelegt werden!")) return;
    }
    if (const Hauptknoten* offen = g.baum.finden("R_Datei"); hat_kinder(offen)) {
        const auto text = protokolle(g, *offen);
        if (text) melden(g, datei, g.dateien.anhaengen(datei, *text), "konnte nicht angelegt/erweitert werden!");
    }
}

}  // namespace jorv
